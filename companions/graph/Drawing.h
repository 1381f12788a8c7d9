// Draws a graph into a device context, in two layers: what rarely changes (axes and data), and the
// curves above it.
#pragma once

#include <span>

#include "CurveSet.h"
#include "Layout.h"

namespace graph {

class Drawing {
  public:
    // The context has the graph's font selected and is as large as the control.
    Drawing(HDC dc, const Layout& layout, uint32_t uFlags);

    void Background(const Titles& titles);
    void Data(const std::vector<ShownCurve>& curves);
    void Curves(const std::vector<ShownCurve>& curves);
    void Legend(const std::vector<ShownCurve>& curves);
    // In the middle of an empty plot.
    void EmptyText(const char* szText);
    // The value under the pointer, above the plot.
    void Readout(const std::string& sText);

    // How wide the legend of these names is, its lines included; 0 when all are empty.
    static int LegendWidth(HDC dc, int nDpi, const std::vector<std::string>& names);

  private:
    void Axes(const Titles& titles);
    // Whether the points of data stand far enough apart to be drawn one by one.
    bool HasMarks(const ShownCurve& curve) const;
    void Marks(const ShownCurve& curve, COLORREF crMark);
    void Trace(const ShownCurve& curve);
    void LinkedPoints(const ShownCurve& curve);
    void Text(const std::string& sText, int nLeft, int nTop);
    // Draws a line in the style of its curve; breaks it into dashes itself, since the system breaks
    // thin lines only.
    void Line(const std::vector<POINT>& points);
    void UseStyleOf(const ShownCurve& curve);

    HDC m_dc;
    const Layout& m_layout;
    uint32_t m_uFlags;
    COLORREF m_crText, m_crBack;
    std::span<const uint8_t> m_pattern;
    COLORREF m_crLine = 0;
    int m_nWidth = 1;
};

}  // namespace graph
