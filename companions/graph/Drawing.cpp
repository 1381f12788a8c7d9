#include "Drawing.h"

#include <algorithm>
#include <cmath>

#include "Palette.h"

namespace graph {
namespace {

constexpr int kGap = 4;
constexpr int kTick = 4;
constexpr int kSample = 24;   // length of a line of the legend
constexpr int kMark = 5;      // edge of a data point's mark
constexpr int kMarkRoom = 4;  // columns for each mark; closer points become a line

// A pen for as long as it is used.
class Pen {
  public:
    Pen(HDC dc, int nWidth, COLORREF crPen)
        : m_dc(dc), m_pen(CreatePen(PS_SOLID, nWidth, crPen)), m_old(SelectObject(dc, m_pen)) {}
    ~Pen() {
        SelectObject(m_dc, m_old);
        DeleteObject(m_pen);
    }
    Pen(const Pen&) = delete;
    Pen& operator=(const Pen&) = delete;

  private:
    HDC m_dc;
    HPEN m_pen;
    HGDIOBJ m_old;
};

// The clip region for as long as the plot is drawn.
class ClippedToPlot {
  public:
    ClippedToPlot(HDC dc, const RECT& plot) : m_dc(dc), m_nSaved(SaveDC(dc)) {
        IntersectClipRect(dc, plot.left, plot.top, plot.right, plot.bottom);
    }
    ~ClippedToPlot() { RestoreDC(m_dc, m_nSaved); }
    ClippedToPlot(const ClippedToPlot&) = delete;
    ClippedToPlot& operator=(const ClippedToPlot&) = delete;

  private:
    HDC m_dc;
    int m_nSaved;
};

void Stroke(HDC dc, int x1, int y1, int x2, int y2) {
    MoveToEx(dc, x1, y1, nullptr);
    LineTo(dc, x2, y2);
}

void Fill(HDC dc, const RECT& rc, COLORREF cr) {
    const HBRUSH brush = CreateSolidBrush(cr);
    FillRect(dc, &rc, brush);
    DeleteObject(brush);
}

bool IsFinite(double dX, double dY) {
    return std::isfinite(dX) && std::isfinite(dY);
}

}  // namespace

Drawing::Drawing(HDC dc, const Layout& layout, uint32_t uFlags)
    : m_dc(dc),
      m_layout(layout),
      m_uFlags(uFlags),
      m_crText(GetSysColor(COLOR_WINDOWTEXT)),
      m_crBack(GetSysColor(COLOR_WINDOW)) {
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, m_crText);
}

void Drawing::Text(const std::string& sText, int nLeft, int nTop) {
    TextOutA(m_dc, nLeft, nTop, sText.c_str(), static_cast<int>(sText.size()));
}

void Drawing::Background(const Titles& titles) {
    const RECT all = {0, 0, m_layout.size.cx, m_layout.size.cy};
    Fill(m_dc, all, m_crBack);
    if ((m_uFlags & GMT_FLAG_NO_HEADING) == 0 && !titles.sHeading.empty()) {
        const int nMiddle = static_cast<int>(m_layout.plot.left + m_layout.plot.right) / 2;
        Text(titles.sHeading, std::max(nMiddle - TextWidth(m_dc, titles.sHeading) / 2, 0),
             m_layout.nHeadingTop);
    }
    if ((m_uFlags & GMT_FLAG_AXES) != 0) Axes(titles);
    const RECT& plot = m_layout.plot;
    if ((m_uFlags & GMT_FLAG_ZERO_LINE) != 0 && m_layout.y.dMin < 0.0 && m_layout.y.dMax > 0.0) {
        const Pen pen(m_dc, m_layout.Pixels(1), Faint(m_crText, m_crBack));
        const int nZero = m_layout.PixelY(0.0);
        Stroke(m_dc, plot.left, nZero, plot.right, nZero);
    }
    if ((m_uFlags & GMT_FLAG_NO_FRAME) == 0) {
        const RECT frame = {plot.left - 1, plot.top - 1, plot.right + 1, plot.bottom + 1};
        const HBRUSH brush = CreateSolidBrush(m_crText);
        FrameRect(m_dc, &frame, brush);
        DeleteObject(brush);
    }
}

void Drawing::Axes(const Titles& titles) {
    const RECT& plot = m_layout.plot;
    const int nGap = m_layout.Pixels(kGap), nTick = m_layout.Pixels(kTick);
    const bool bInner = (m_uFlags & GMT_FLAG_INNER_TICKS) != 0;
    const int nLength = bInner ? -nTick : nTick, nOutside = bInner ? 0 : nTick;
    if ((m_uFlags & GMT_FLAG_GRID) != 0) {
        const Pen pen(m_dc, 1, Faint(m_crText, m_crBack));
        for (const Tick& tick : m_layout.xTicks) {
            const int x = m_layout.PixelX(tick.dValue);
            Stroke(m_dc, x, plot.top, x, plot.bottom);
        }
        for (const Tick& tick : m_layout.yTicks) {
            const int y = m_layout.PixelY(tick.dValue);
            Stroke(m_dc, plot.left, y, plot.right, y);
        }
    }
    const Pen pen(m_dc, m_layout.Pixels(1), m_crText);
    for (const Tick& tick : m_layout.xTicks) {
        const int x = m_layout.PixelX(tick.dValue), y = static_cast<int>(plot.bottom);
        Stroke(m_dc, x, y, x, y + nLength);
        if ((m_uFlags & GMT_FLAG_NO_X_NUMBERS) == 0)
            Text(tick.sText, x - TextWidth(m_dc, tick.sText) / 2, y + nOutside + nGap / 2);
    }
    for (const Tick& tick : m_layout.yTicks) {
        const int x = static_cast<int>(plot.left) - 1, y = m_layout.PixelY(tick.dValue);
        Stroke(m_dc, x, y, x - nLength, y);
        if ((m_uFlags & GMT_FLAG_NO_Y_NUMBERS) == 0)
            Text(tick.sText, x - nOutside - nGap - TextWidth(m_dc, tick.sText),
                 y - m_layout.nTextHeight / 2);
    }
    if ((m_uFlags & GMT_FLAG_NO_X_TITLE) == 0)
        Text(titles.sX, static_cast<int>(plot.left + plot.right - TextWidth(m_dc, titles.sX)) / 2,
             static_cast<int>(m_layout.size.cy) - nGap - m_layout.nTextHeight);
    if ((m_uFlags & GMT_FLAG_NO_Y_TITLE) == 0) Text(titles.sY, nGap, m_layout.nReadoutTop);
}

void Drawing::UseStyleOf(const ShownCurve& curve) {
    const bool bOneColor = (m_uFlags & GMT_FLAG_ONE_COLOR) != 0;
    const LineStyle style = bOneColor || curve.uColor != GMT_COLOR_AUTOMATIC
                                ? StyleWithColor(curve.uKind, bOneColor ? m_crText : curve.uColor)
                                : StyleOf(curve.uKind, m_crBack, m_crText);
    m_pattern = style.pattern;
    m_crLine = style.color;
    m_nWidth = m_layout.Pixels(style.nWidth);
}

void Drawing::Line(const std::vector<POINT>& points) {
    if (points.empty()) return;
    if (m_pattern.empty() || points.size() < 2) {
        Polyline(m_dc, points.data(), static_cast<int>(points.size()));
        // The system leaves the last point out.
        if (m_nWidth == 1) SetPixel(m_dc, points.back().x, points.back().y, m_crLine);
        return;
    }
    std::vector<POINT> dash;
    std::size_t uPart = 0;
    double dLeft = m_layout.Pixels(m_pattern[0]);
    bool bDrawn = true;
    dash.push_back(points[0]);
    for (std::size_t i = 1; i < points.size(); ++i) {
        double dX = points[i - 1].x, dY = points[i - 1].y;
        double dRest = std::hypot(points[i].x - dX, points[i].y - dY);
        while (dRest > dLeft) {
            dX += (points[i].x - dX) * dLeft / dRest;
            dY += (points[i].y - dY) * dLeft / dRest;
            dRest -= dLeft;
            const POINT at = {static_cast<LONG>(std::lround(dX)),
                              static_cast<LONG>(std::lround(dY))};
            if (bDrawn) {
                dash.push_back(at);
                Polyline(m_dc, dash.data(), static_cast<int>(dash.size()));
            }
            dash.assign(1, at);
            bDrawn = !bDrawn;
            uPart = (uPart + 1) % m_pattern.size();
            dLeft = m_layout.Pixels(m_pattern[uPart]);
        }
        dLeft -= dRest;
        if (bDrawn) dash.push_back(points[i]);
    }
    if (bDrawn && dash.size() > 1) Polyline(m_dc, dash.data(), static_cast<int>(dash.size()));
}

bool Drawing::HasMarks(const ShownCurve& curve) const {
    return curve.IsData() &&
           static_cast<double>(curve.uVisiblePoints) * m_layout.Pixels(kMarkRoom) <=
               m_layout.Width();
}

void Drawing::Marks(const ShownCurve& curve, COLORREF crMark) {
    const HBRUSH brush = CreateSolidBrush(crMark);
    const int nEdge = m_layout.Pixels(kMark);
    for (uint32_t i = 0; i < curve.points.uCount; ++i) {
        const double dX = curve.points.pX[i], dY = curve.points.pY[i];
        if (!IsFinite(dX, dY) || dX < m_layout.x.dMin || dX > m_layout.x.dMax) continue;
        const int x = m_layout.PixelX(dX) - nEdge / 2, y = m_layout.PixelY(dY) - nEdge / 2;
        const RECT rc = {x, y, x + nEdge, y + nEdge};
        FillRect(m_dc, &rc, brush);
    }
    DeleteObject(brush);
}

void Drawing::LinkedPoints(const ShownCurve& curve) {
    std::vector<POINT> line;
    for (uint32_t i = 0; i <= curve.points.uCount; ++i) {
        if (i == curve.points.uCount || !IsFinite(curve.points.pX[i], curve.points.pY[i])) {
            Line(line);
            line.clear();
            continue;
        }
        line.push_back({m_layout.PixelX(curve.points.pX[i]), m_layout.PixelY(curve.points.pY[i])});
    }
}

// Two places a column, its extremes, so that a million points draw like a thousand.
void Drawing::Trace(const ShownCurve& curve) {
    std::vector<POINT> line;
    line.reserve(curve.columns.size() * 2);
    for (std::size_t i = 0; i < curve.columns.size(); ++i) {
        const Column& column = curve.columns[i];
        if (column.uCount == 0) continue;
        if (column.bGapBefore) {
            Line(line);
            line.clear();
        }
        const LONG x = m_layout.plot.left + static_cast<LONG>(i);
        const bool bRises = column.dFirst <= column.dLast;
        const LONG nLow = m_layout.PixelY(column.dMin), nHigh = m_layout.PixelY(column.dMax);
        line.push_back({x, bRises ? nLow : nHigh});
        if (nLow != nHigh) line.push_back({x, bRises ? nHigh : nLow});
    }
    Line(line);
}

void Drawing::Data(const std::vector<ShownCurve>& curves) {
    const ClippedToPlot clipped(m_dc, m_layout.plot);
    for (const ShownCurve& curve : curves) {
        if (!curve.IsData() || curve.IsEmpty()) continue;
        UseStyleOf(curve);
        const Pen pen(m_dc, m_nWidth, m_crLine);
        if (!HasMarks(curve)) {
            Trace(curve);
            continue;
        }
        if ((m_uFlags & GMT_FLAG_LINK_POINTS) != 0) LinkedPoints(curve);
        Marks(curve, m_crLine);
    }
}

void Drawing::Curves(const std::vector<ShownCurve>& curves) {
    const ClippedToPlot clipped(m_dc, m_layout.plot);
    std::vector<POINT> line;
    for (const ShownCurve& curve : curves) {
        if (curve.IsData() || curve.IsEmpty()) continue;
        UseStyleOf(curve);
        const Pen pen(m_dc, m_nWidth, m_crLine);
        line.clear();
        for (std::size_t i = 0; i <= curve.y.size(); ++i) {
            if (i < curve.y.size() && std::isfinite(curve.y[i])) {
                line.push_back({m_layout.PixelX(curve.x[i]), m_layout.PixelY(curve.y[i])});
                continue;
            }
            Line(line);
            line.clear();
        }
    }
}

int Drawing::LegendWidth(HDC dc, int nDpi, const std::vector<std::string>& names) {
    int nWidest = 0;
    for (const std::string& sName : names) nWidest = std::max(nWidest, TextWidth(dc, sName));
    return nWidest == 0 ? 0 : nWidest + MulDiv(kSample + 2 * kGap, nDpi, 96);
}

void Drawing::Legend(const std::vector<ShownCurve>& curves) {
    if (m_layout.nLegendLeft == 0) return;
    const int nLeft = m_layout.nLegendLeft, nSample = m_layout.Pixels(kSample);
    int nTop = static_cast<int>(m_layout.plot.top);
    // In the order in which the source names them.
    std::vector<const ShownCurve*> named;
    for (const ShownCurve& curve : curves)
        if (!curve.sName.empty()) named.push_back(&curve);
    std::sort(named.begin(), named.end(),
              [](const ShownCurve* a, const ShownCurve* b) { return a->uNumber < b->uNumber; });
    for (const ShownCurve* curve : named) {
        UseStyleOf(*curve);
        const Pen pen(m_dc, m_nWidth, m_crLine);
        const int nMiddle = nTop + m_layout.nTextHeight / 2;
        if (HasMarks(*curve)) {
            const int nEdge = m_layout.Pixels(kMark), x = nLeft + (nSample - nEdge) / 2;
            Fill(m_dc, {x, nMiddle - nEdge / 2, x + nEdge, nMiddle - nEdge / 2 + nEdge}, m_crLine);
        } else {
            Line({{nLeft, nMiddle}, {nLeft + nSample, nMiddle}});
        }
        Text(curve->sName, nLeft + nSample + m_layout.Pixels(kGap), nTop);
        nTop += m_layout.nTextHeight + m_layout.Pixels(kGap);
    }
}

void Drawing::EmptyText(const char* szText) {
    const std::string sText = szText == nullptr ? "" : szText;
    const RECT& plot = m_layout.plot;
    Text(sText, static_cast<int>(plot.left + plot.right - TextWidth(m_dc, sText)) / 2,
         static_cast<int>(plot.top + plot.bottom - m_layout.nTextHeight) / 2);
}

void Drawing::Readout(const std::string& sText) {
    Text(sText, static_cast<int>(m_layout.plot.right) - TextWidth(m_dc, sText),
         m_layout.nReadoutTop);
}

}  // namespace graph
