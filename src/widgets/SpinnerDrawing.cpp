// How spinners look: with the visual style of the system when there is one, else as classic scroll
// arrows.
#include <initializer_list>

#include "widgets/Spinner.h"

namespace CommonCtls {

namespace {

// Parts and states of the theme class "Spin".
constexpr int kThemeUp = 1;
constexpr int kThemeDown = 2;
constexpr int kThemeRight = 3;
constexpr int kThemeLeft = 4;
constexpr int kThemeNormal = 1;
constexpr int kThemeHot = 2;
constexpr int kThemePressed = 3;
constexpr int kThemeDisabled = 4;

}  // namespace

CSpinnerBase::ArrowLook CSpinnerVertical::LookOf(int nArrow) const {
    if (nArrow == kArrowFirst) return {kThemeUp, DFCS_SCROLLUP};
    return {kThemeDown, DFCS_SCROLLDOWN};
}

CSpinnerBase::ArrowLook CSpinnerHorizontal::LookOf(int nArrow) const {
    if (nArrow == kArrowFirst) return {kThemeRight, DFCS_SCROLLRIGHT};
    return {kThemeLeft, DFCS_SCROLLLEFT};
}

int CSpinnerBase::ThemeState(int nArrow) const {
    if (!::IsWindowEnabled(m_hWnd)) return kThemeDisabled;
    if (m_nShownArrow == nArrow) return kThemePressed;
    return m_nHot == nArrow ? kThemeHot : kThemeNormal;
}

UINT CSpinnerBase::ClassicState(int nArrow) const {
    if (!::IsWindowEnabled(m_hWnd)) return DFCS_INACTIVE;
    return m_nShownArrow == nArrow ? DFCS_PUSHED : 0;
}

void CSpinnerBase::PaintWindow() {
    PAINTSTRUCT paint;
    if (const HDC hDC = ::BeginPaint(m_hWnd, &paint)) Paint(hDC);
    ::EndPaint(m_hWnd, &paint);
}

void CSpinnerBase::Paint(HDC hDC) {
    RECT rc;
    ::GetClientRect(m_hWnd, &rc);
    ::FillRect(hDC, &rc,
               m_hBuddyBrush != nullptr ? m_hBuddyBrush : ::GetSysColorBrush(COLOR_BTNFACE));
    OnDraw(hDC);
}

void CSpinnerBase::OnDraw(HDC hDC) {
    const HTHEME hTheme = ::OpenThemeData(m_hWnd, L"Spin");
    for (const int nArrow : {kArrowFirst, kArrowSecond}) {
        RECT rc;
        GetArrowRect(nArrow, &rc);
        const ArrowLook look = LookOf(nArrow);
        if (hTheme != nullptr) {
            ::DrawThemeBackground(hTheme, hDC, look.nThemePart, ThemeState(nArrow), &rc, nullptr);
        } else {
            ::DrawFrameControl(hDC, &rc, DFC_SCROLL, look.uClassic | ClassicState(nArrow));
        }
    }
    if (hTheme != nullptr) ::CloseThemeData(hTheme);
}

}  // namespace CommonCtls
