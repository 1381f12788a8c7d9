// Where everything stands in a graph's control, and how values become pixels.
#pragma once

#include <string>
#include <vector>

#include "AxisTicks.h"
#include "platform/platform.h"

namespace graph {

// What the layout depends on besides the size: texts and flags.
struct Titles {
    std::string sHeading, sX, sY;  // axis titles with their units
};

struct Layout {
    SIZE size{};  // of the control
    RECT plot{};  // inside of the frame
    int nDpi = 96;
    int nTextHeight = 0;
    int nHeadingTop = 0;
    int nReadoutTop = 0;  // the row of the y axis title and of the value under the pointer
    int nLegendLeft = 0;  // 0: no legend
    Range x, y;
    std::vector<Tick> xTicks, yTicks;

    int Pixels(int nAt96) const { return MulDiv(nAt96, nDpi, 96); }
    int Width() const { return static_cast<int>(plot.right - plot.left); }
    int Height() const { return static_cast<int>(plot.bottom - plot.top); }
    // Far outside of the control instead of beyond what a picture can address.
    int PixelX(double dX) const;
    int PixelY(double dY) const;
    double ValueX(int nPixel) const;
    double ValueY(int nPixel) const;
};

// Arranges a graph of that size. `dc` has its font selected. `nLegendWidth` is that of the names, 0
// for no legend.
Layout Arrange(HDC dc, SIZE size, uint32_t uFlags, const Titles& titles, const Range& x,
               const Range& y, int nLegendWidth);

int TextWidth(HDC dc, const std::string& sText);

}  // namespace graph
