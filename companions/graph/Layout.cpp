#include "Layout.h"

#include <algorithm>

#include "zxadlg/Graph.h"

namespace graph {
namespace {

constexpr double kFarAway = 100000.0;
constexpr int kGap = 4;         // between texts and what they belong to
constexpr int kTick = 4;        // length of a tick
constexpr int kLeastPlot = 20;  // a plot is never smaller, even if it does not fit

int Place(double dValue, double dFirst, double dPerUnit, int nStart) {
    const double dPlace = (dValue - dFirst) * dPerUnit;
    return nStart +
           static_cast<int>(std::clamp(dPlace + (dPlace < 0 ? -0.5 : 0.5), -kFarAway, kFarAway));
}

int WidestOf(HDC dc, const std::vector<Tick>& ticks) {
    int nWidest = 0;
    for (const Tick& tick : ticks) nWidest = std::max(nWidest, TextWidth(dc, tick.sText));
    return nWidest;
}

}  // namespace

int TextWidth(HDC dc, const std::string& sText) {
    SIZE size = {};
    GetTextExtentPoint32A(dc, sText.c_str(), static_cast<int>(sText.size()), &size);
    return static_cast<int>(size.cx);
}

int Layout::PixelX(double dX) const {
    return Place(dX, x.dMin, (Width() - 1) / x.Size(), static_cast<int>(plot.left));
}

int Layout::PixelY(double dY) const {
    return Place(dY, y.dMax, -(Height() - 1) / y.Size(), static_cast<int>(plot.top));
}

double Layout::ValueX(int nPixel) const {
    return x.dMin + (nPixel - static_cast<int>(plot.left)) * (x.Size() / (Width() - 1));
}

double Layout::ValueY(int nPixel) const {
    return y.dMax - (nPixel - static_cast<int>(plot.top)) * (y.Size() / (Height() - 1));
}

Layout Arrange(HDC dc, SIZE size, uint32_t uFlags, const Titles& titles, const Range& x,
               const Range& y, int nLegendWidth) {
    Layout layout;
    layout.size = size;
    layout.x = x;
    layout.y = y;
    layout.nDpi = GetDeviceCaps(dc, LOGPIXELSX);
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    layout.nTextHeight = static_cast<int>(metrics.tmHeight);
    const int nGap = layout.Pixels(kGap), nRow = layout.nTextHeight + nGap;
    const auto has = [uFlags](uint32_t uFlag) { return (uFlags & uFlag) != 0; };
    const bool bAxes = has(GMT_FLAG_AXES);

    int nTop = nGap;
    layout.nHeadingTop = nTop;
    if (!has(GMT_FLAG_NO_HEADING) && !titles.sHeading.empty()) nTop += nRow;
    layout.nReadoutTop = nTop;
    const bool bYTitle = bAxes && !has(GMT_FLAG_NO_Y_TITLE) && !titles.sY.empty();
    if (bYTitle || has(GMT_FLAG_POINTER)) nTop += nRow;

    int nBottom = static_cast<int>(size.cy) - nGap;
    if (bAxes) {
        nBottom -= nGap;
        if (!has(GMT_FLAG_INNER_TICKS)) nBottom -= layout.Pixels(kTick);
        if (!has(GMT_FLAG_NO_X_NUMBERS)) nBottom -= layout.nTextHeight;
        if (!has(GMT_FLAG_NO_X_TITLE) && !titles.sX.empty()) nBottom -= nRow;
    }
    nBottom = std::max(nBottom, nTop + kLeastPlot);
    // A number every three rows of text at the most.
    if (bAxes)
        layout.yTicks = TicksOf(y, std::max((nBottom - nTop) / (3 * layout.nTextHeight) + 1, 2));

    int nLeft = nGap, nRight = static_cast<int>(size.cx) - 2 * nGap;
    if (bAxes) {
        if (!has(GMT_FLAG_INNER_TICKS)) nLeft += layout.Pixels(kTick);
        if (!has(GMT_FLAG_NO_Y_NUMBERS)) nLeft += WidestOf(dc, layout.yTicks) + nGap;
    }
    // A plot that the legend would leave less than half of the control goes without it.
    if (nLegendWidth > 0 && (nRight - nLeft - nLegendWidth) * 2 > static_cast<int>(size.cx)) {
        nRight -= nLegendWidth + nGap;
        layout.nLegendLeft = nRight + 2 * nGap;
    }
    nRight = std::max(nRight, nLeft + kLeastPlot);
    if (bAxes) {
        // As many numbers as stand beside each other with as much room between them.
        for (int nMost = 12; nMost >= 2; --nMost) {
            layout.xTicks = TicksOf(x, nMost);
            const int nWidest = WidestOf(dc, layout.xTicks);
            if (static_cast<int>(layout.xTicks.size()) * nWidest * 2 <= nRight - nLeft) break;
        }
    }
    layout.plot = {nLeft, nTop, nRight, nBottom};
    return layout;
}

}  // namespace graph
