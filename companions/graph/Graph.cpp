#include "Graph.h"

#include <algorithm>
#include <cmath>

#include "Drawing.h"

using graph::Range;

namespace {

constexpr char kProperty[] = "GMT_Graph";

SIZE ClientSize(HWND hWnd) {
    RECT rc = {};
    GetClientRect(hWnd, &rc);
    return {std::max<LONG>(rc.right, 1), std::max<LONG>(rc.bottom, 1)};
}

}  // namespace

GMT_Graph::GMT_Graph(HWND hControl) : m_hWnd(hControl), m_pOldProc(nullptr) {
    SetPropA(m_hWnd, kProperty, this);
    m_pOldProc = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(WindowProc)));
    Invalidate();
}

GMT_Graph::~GMT_Graph() {
    if (m_hWnd == nullptr) return;
    const HWND hWnd = m_hWnd;
    Detach();
    InvalidateRect(hWnd, nullptr, TRUE);
}

bool GMT_Graph::IsGraph(HWND hControl) {
    return GetPropA(hControl, kProperty) != nullptr;
}

void GMT_Graph::Detach() {
    if (m_bDragging) ReleaseCapture();
    RemovePropA(m_hWnd, kProperty);
    SetWindowLongPtrA(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_pOldProc));
    m_hWnd = nullptr;
}

// --- What the dialog sets

void GMT_Graph::SetSource(GMT_DataSource* pSource) {
    m_curves.SetSource(pSource);
    Invalidate();
}

Range* GMT_Graph::ScaleOf(uint32_t uAxis) {
    if (uAxis == GMT_X) return &m_x;
    return uAxis == GMT_Y ? &m_y : nullptr;
}

bool GMT_Graph::SetScale(uint32_t uAxis, double dMin, double dMax) {
    Range* pScale = ScaleOf(uAxis);
    const Range wanted = {dMin, dMax};
    if (pScale == nullptr || !graph::IsUsable(wanted)) return false;
    if (*pScale == wanted) return true;
    *pScale = wanted;
    m_bLayoutStale = true;
    Invalidate();
    return true;
}

bool GMT_Graph::GetScale(uint32_t uAxis, double* pMin, double* pMax) const {
    const Range* pScale = const_cast<GMT_Graph*>(this)->ScaleOf(uAxis);
    if (pScale == nullptr || pMin == nullptr || pMax == nullptr) return false;
    *pMin = pScale->dMin;
    *pMax = pScale->dMax;
    return true;
}

bool GMT_Graph::AutoScale(uint32_t uAxis) {
    if (ScaleOf(uAxis) == nullptr) return false;
    const Range range = uAxis == GMT_X ? m_curves.AutoX() : m_curves.AutoY(m_x, PlotWidth());
    return SetScale(uAxis, range.dMin, range.dMax);
}

void GMT_Graph::CurveChanged(uint32_t uCurve) {
    m_curves.Changed(uCurve);
    Invalidate();
}

void GMT_Graph::SetFlag(uint32_t uFlags, bool bSet) {
    const uint32_t uNew = bSet ? m_uFlags | uFlags : m_uFlags & ~uFlags;
    if (uNew == m_uFlags) return;
    m_uFlags = uNew;
    m_bLayoutStale = true;
    Invalidate();
}

bool GMT_Graph::SetTitle(uint32_t uWhich, const char* szTitle) {
    std::string* pTitle = nullptr;
    if (uWhich == GMT_X) pTitle = &m_titles.sX;
    if (uWhich == GMT_Y) pTitle = &m_titles.sY;
    if (uWhich == GMT_HEADING) pTitle = &m_titles.sHeading;
    if (pTitle == nullptr) return false;
    *pTitle = szTitle == nullptr ? "" : szTitle;
    m_bLayoutStale = true;
    Invalidate();
    return true;
}

void GMT_Graph::Redraw() {
    Invalidate();
    if (m_hWnd != nullptr) UpdateWindow(m_hWnd);
}

bool GMT_Graph::ValueAt(int x, int y, double* pX, double* pY) {
    if (m_hWnd == nullptr || pX == nullptr || pY == nullptr) return false;
    const HDC dc = GetDC(m_hWnd);
    Update(dc);
    ReleaseDC(m_hWnd, dc);
    const POINT at = {x, y};
    if (!PtInRect(&m_layout.plot, at)) return false;
    *pX = m_layout.ValueX(x);
    *pY = m_layout.ValueY(y);
    return true;
}

// --- The picture

void GMT_Graph::Invalidate() {
    m_bPictureStale = true;
    if (m_hWnd != nullptr) InvalidateRect(m_hWnd, nullptr, FALSE);
}

std::string GMT_Graph::TitleWithUnits(const std::string& sTitle, uint32_t uAxis) const {
    const GMT_DataSource* pSource = m_curves.Source();
    if (pSource == nullptr || GetFlag(GMT_FLAG_NO_UNITS)) return sTitle;
    const char* szUnits = m_curves.Source()->GetUnits(uAxis);
    if (szUnits == nullptr || szUnits[0] == '\0') return sTitle;
    return sTitle.empty() ? szUnits : sTitle + " (" + szUnits + ")";
}

graph::Titles GMT_Graph::ShownTitles() const {
    return {m_titles.sHeading, TitleWithUnits(m_titles.sX, GMT_X),
            TitleWithUnits(m_titles.sY, GMT_Y)};
}

graph::Layout GMT_Graph::MakeLayout(HDC dc) {
    const auto hFont = reinterpret_cast<HFONT>(Default(WM_GETFONT, 0, 0));
    const HGDIOBJ hOld = SelectObject(
        dc, hFont != nullptr ? static_cast<HGDIOBJ>(hFont) : GetStockObject(DEFAULT_GUI_FONT));
    const int nLegend =
        GetFlag(GMT_FLAG_LEGEND)
            ? graph::Drawing::LegendWidth(dc, GetDeviceCaps(dc, LOGPIXELSX), m_curves.Names())
            : 0;
    graph::Layout layout =
        graph::Arrange(dc, ClientSize(m_hWnd), m_uFlags, ShownTitles(), m_x, m_y, nLegend);
    SelectObject(dc, hOld);
    return layout;
}

// Of the layout that the next picture will have.
int GMT_Graph::PlotWidth() {
    if (m_hWnd == nullptr) return 1;
    const HDC dc = GetDC(m_hWnd);
    m_layout = MakeLayout(dc);
    ReleaseDC(m_hWnd, dc);
    m_bLayoutStale = true;
    return m_layout.Width();
}

void GMT_Graph::Update(HDC dc) {
    if (!m_bPictureStale) return;
    if (GetFlag(GMT_FLAG_CONTINUOUS)) {
        if (m_layout.Width() <= 0) m_layout = MakeLayout(dc);
        const Range x = m_curves.AutoX(), y = m_curves.AutoY(x, m_layout.Width());
        m_bLayoutStale |= !(x == m_x) || !(y == m_y);
        m_x = x;
        m_y = y;
    }
    graph::Layout layout = MakeLayout(dc);
    const RECT &oldPlot = m_layout.plot, &plot = layout.plot;
    m_bLayoutStale |= !EqualRect(&oldPlot, &plot) || layout.nLegendLeft != m_layout.nLegendLeft;
    m_layout = std::move(layout);
    const std::vector<graph::ShownCurve>& curves = m_curves.Prepare(m_x, m_layout.Width());
    const auto hFont = reinterpret_cast<HFONT>(Default(WM_GETFONT, 0, 0));
    if (m_bLayoutStale || m_uDataVersion != m_curves.DataVersion() || m_base.Context() == nullptr) {
        m_base.Drop();
        if (m_base.Prepare(dc, m_layout.size, hFont) == nullptr) return;
        graph::Drawing drawing(m_base.Context(), m_layout, m_uFlags);
        drawing.Background(ShownTitles());
        drawing.Data(curves);
        m_uDataVersion = m_curves.DataVersion();
        m_picture.Drop();
        m_bLayoutStale = false;
    }
    if (m_picture.Prepare(dc, m_layout.size, hFont) == nullptr) return;
    m_base.CopyTo(m_picture.Context());
    graph::Drawing drawing(m_picture.Context(), m_layout, m_uFlags);
    drawing.Curves(curves);
    drawing.Legend(curves);
    const bool bEmpty = std::all_of(curves.begin(), curves.end(),
                                    [](const graph::ShownCurve& c) { return c.IsEmpty(); });
    if (bEmpty) {
        GMT_DataSource* pSource = m_curves.Source();
        drawing.EmptyText(pSource == nullptr ? "" : pSource->GetEmptyText());
    }
    m_bPictureStale = false;
}

void GMT_Graph::DrawOverlays(HDC dc) {
    graph::Drawing drawing(dc, m_layout, m_uFlags);
    if (GetFlag(GMT_FLAG_POINTER) && m_bPointerInside) {
        const double dX = m_layout.ValueX(m_pointer.x), dY = m_layout.ValueY(m_pointer.y);
        const auto shown = [this](double dValue, const Range& range, uint32_t uAxis) {
            const std::string sNumber = graph::NumberText(dValue, range.Size() / 1000.0);
            return GetFlag(GMT_FLAG_NO_UNITS) ? sNumber : sNumber + " " + TitleWithUnits("", uAxis);
        };
        drawing.Readout("x = " + shown(dX, m_x, GMT_X) + "   y = " + shown(dY, m_y, GMT_Y));
    }
    RECT rc = m_layout.plot;
    if (!m_bDragging && !ShowsFocus()) return;
    if (m_bDragging) {
        rc = {std::min(m_dragFrom.x, m_pointer.x), std::min(m_dragFrom.y, m_pointer.y),
              std::max(m_dragFrom.x, m_pointer.x) + 1, std::max(m_dragFrom.y, m_pointer.y) + 1};
    }
    DrawFocusRect(dc, &rc);
}

void GMT_Graph::Paint(HDC dc) {
    Update(dc);
    if (!m_bDragging && !m_bPointerInside && !ShowsFocus()) {
        m_picture.CopyTo(dc);
        return;
    }
    const auto hFont = reinterpret_cast<HFONT>(Default(WM_GETFONT, 0, 0));
    if (m_shown.Prepare(dc, m_layout.size, hFont) == nullptr) return;
    m_picture.CopyTo(m_shown.Context());
    DrawOverlays(m_shown.Context());
    m_shown.CopyTo(dc);
}

// --- The user

void GMT_Graph::ShowPart(uint32_t uAxis, const Range& part) {
    if (!SetScale(uAxis, part.dMin, part.dMax)) return;
    if (m_curves.Source() != nullptr)
        m_curves.Source()->OnScaleChanged(uAxis, part.dMin, part.dMax);
}

void GMT_Graph::ShowAll() {
    for (const uint32_t uAxis : {GMT_X, GMT_Y}) {
        AutoScale(uAxis);
        const Range& range = *ScaleOf(uAxis);
        if (m_curves.Source() != nullptr)
            m_curves.Source()->OnScaleChanged(uAxis, range.dMin, range.dMax);
    }
}

void GMT_Graph::Move(uint32_t uAxis, double dShare) {
    const Range range = *ScaleOf(uAxis);
    const double dBy = range.Size() * dShare;
    ShowPart(uAxis, {range.dMin + dBy, range.dMax + dBy});
}

void GMT_Graph::Magnify(uint32_t uAxis, double dFactor) {
    const Range range = *ScaleOf(uAxis);
    const double dMiddle = range.dMin + range.Size() / 2, dHalf = range.Size() / 2 / dFactor;
    ShowPart(uAxis, {dMiddle - dHalf, dMiddle + dHalf});
}

bool GMT_Graph::Key(WPARAM wKey) {
    constexpr double kMove = 0.1, kFactor = 1.25;
    if (wKey == VK_ESCAPE && m_bDragging) {
        ReleaseCapture();
        return true;
    }
    if (IsLocked()) return false;
    switch (wKey) {
        case VK_LEFT:
            Move(GMT_X, -kMove);
            return true;
        case VK_RIGHT:
            Move(GMT_X, kMove);
            return true;
        case VK_UP:
            Move(GMT_Y, kMove);
            return true;
        case VK_DOWN:
            Move(GMT_Y, -kMove);
            return true;
        case VK_PRIOR:
            Magnify(GMT_Y, kFactor);
            return true;
        case VK_NEXT:
            Magnify(GMT_Y, 1 / kFactor);
            return true;
        case VK_HOME:
            ShowAll();
            return true;
        default:
            return false;
    }
}

bool GMT_Graph::Character(WPARAM wChar) {
    constexpr double kFactor = 1.25;
    if (IsLocked() || (wChar != '+' && wChar != '-')) return false;
    Magnify(GMT_X, wChar == '+' ? kFactor : 1 / kFactor);
    return true;
}

void GMT_Graph::BeginDrag(POINT at) {
    SetFocus(m_hWnd);
    if (IsLocked() || !PtInRect(&m_layout.plot, at)) return;
    m_bDragging = true;
    m_dragFrom = m_pointer = at;
    SetCapture(m_hWnd);
}

void GMT_Graph::EndDrag(POINT at) {
    // A hand that is not quite still means the other axis, or nothing at all.
    const int nLeast = m_layout.Pixels(6);
    const POINT from = m_dragFrom;
    ReleaseCapture();
    const auto part = [&](double dOne, double dOther) {
        return Range{std::min(dOne, dOther), std::max(dOne, dOther)};
    };
    const bool bX = std::abs(at.x - from.x) >= nLeast, bY = std::abs(at.y - from.y) >= nLeast;
    const Range x = part(m_layout.ValueX(from.x), m_layout.ValueX(at.x));
    const Range y = part(m_layout.ValueY(from.y), m_layout.ValueY(at.y));
    if (bX) ShowPart(GMT_X, x);
    if (bY) ShowPart(GMT_Y, y);
}

void GMT_Graph::MovePointer(POINT at) {
    const RECT& plot = m_layout.plot;
    if (m_bDragging) {
        at.x = std::clamp(at.x, plot.left, plot.right - 1);
        at.y = std::clamp(at.y, plot.top, plot.bottom - 1);
    }
    const bool bWasInside = m_bPointerInside;
    m_bPointerInside = PtInRect(&plot, at) != 0;
    m_pointer = at;
    if (m_bPointerInside) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        TrackMouseEvent(&track);
        if (m_curves.Source() != nullptr)
            m_curves.Source()->OnPointer(m_layout.ValueX(at.x), m_layout.ValueY(at.y));
    }
    if (m_bPointerInside || bWasInside) InvalidateRect(m_hWnd, nullptr, FALSE);
}

// --- Messages

LRESULT GMT_Graph::Default(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(m_pOldProc, m_hWnd, uMsg, wParam, lParam);
}

LRESULT CALLBACK GMT_Graph::WindowProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    auto* pGraph = static_cast<GMT_Graph*>(GetPropA(hWnd, kProperty));
    if (pGraph == nullptr) return DefWindowProcA(hWnd, uMsg, wParam, lParam);
    // An exception must not pass through the system's frames. Without memory the old picture stays.
    try {
        return pGraph->Handle(uMsg, wParam, lParam);
    } catch (...) {
        return DefWindowProcA(hWnd, uMsg, wParam, lParam);
    }
}

LRESULT GMT_Graph::Handle(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    // Signed: a captured pointer may be left of the control.
    const POINT at = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (uMsg) {
        case WM_PAINT: {
            PAINTSTRUCT paint;
            if (const HDC dc = BeginPaint(m_hWnd, &paint)) Paint(dc);
            EndPaint(m_hWnd, &paint);
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_NCHITTEST:
            return HTCLIENT;
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_SIZE:
        case WM_SETFONT:
        case WM_SYSCOLORCHANGE: {
            const LRESULT nResult = Default(uMsg, wParam, lParam);
            m_bLayoutStale = true;
            m_shown.Drop();
            Invalidate();
            return nResult;
        }
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            InvalidateRect(m_hWnd, nullptr, FALSE);
            return 0;
        case WM_LBUTTONDOWN:
            BeginDrag(at);
            return 0;
        case WM_MOUSEMOVE:
            MovePointer(at);
            return 0;
        case WM_LBUTTONUP:
            if (m_bDragging) EndDrag(m_pointer);
            return 0;
        case WM_LBUTTONDBLCLK:
            if (!IsLocked()) ShowAll();
            return 0;
        case WM_CAPTURECHANGED:
            m_bDragging = false;
            InvalidateRect(m_hWnd, nullptr, FALSE);
            return 0;
        case WM_MOUSELEAVE:
            m_bPointerInside = false;
            InvalidateRect(m_hWnd, nullptr, FALSE);
            return 0;
        case WM_KEYDOWN:
            if (Key(wParam)) return 0;
            break;
        case WM_CHAR:
            if (Character(wParam)) return 0;
            break;
        case WM_NCDESTROY: {
            const HWND hWnd = m_hWnd;
            const WNDPROC pOldProc = m_pOldProc;
            Detach();
            return CallWindowProcA(pOldProc, hWnd, uMsg, wParam, lParam);
        }
        default:
            break;
    }
    return Default(uMsg, wParam, lParam);
}
