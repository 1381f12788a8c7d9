#include "widgets/Spinner.h"

#include <initializer_list>

#include "text/TextTests.h"

namespace CommonCtls {

namespace {

constexpr UINT_PTR kRepeatTimer = 0;
constexpr DWORD kSlowMs = 2000;     // a press is slow for so long
constexpr DWORD kSlowPeriods = 10;  // and fires once in so many periods then
constexpr double kFitScale = 0.7;   // of the height of a scroll bar

// Set while a parent handles a step, for all spinners: a step that opens a message box must not be
// followed by the next while the box is up.
bool g_bFiring = false;

CSpinnerBase* ObjectOf(HWND hWnd) {
    return reinterpret_cast<CSpinnerBase*>(::GetWindowLongPtrA(hWnd, 0));
}

// The object behind a handle from outside, or null if that is no spinner.
CSpinnerBase* SpinnerOf(HWND hWnd) {
    char szClass[32] = "";
    if (hWnd == nullptr || ::GetClassNameA(hWnd, szClass, static_cast<int>(sizeof szClass)) <= 0) {
        return nullptr;
    }
    const bool bSpinner = EqualNoCase(szClass, kVerticalSpinnerClass) ||
                          EqualNoCase(szClass, kHorizontalSpinnerClass);
    return bSpinner ? ObjectOf(hWnd) : nullptr;
}

POINT PointOf(LPARAM lParam) {
    return {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
}

bool IsMainButtonDown() {
    // The asynchronous state is that of the physical buttons.
    const int nKey = ::GetSystemMetrics(SM_SWAPBUTTON) ? VK_RBUTTON : VK_LBUTTON;
    return ::GetAsyncKeyState(nKey) < 0;
}

int FittedSize() {
    return static_cast<int>(::GetSystemMetrics(SM_CYHSCROLL) * kFitScale);
}

template <class Spinner>
LRESULT SpinnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    CSpinnerBase* pSpinner = ObjectOf(hWnd);
    if (uMsg == WM_NCCREATE && pSpinner == nullptr) {
        pSpinner = new Spinner(hWnd);
        ::SetWindowLongPtrA(hWnd, 0, reinterpret_cast<LONG_PTR>(pSpinner));
    }
    if (pSpinner == nullptr) return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    if (uMsg == WM_NCDESTROY) {
        ::SetWindowLongPtrA(hWnd, 0, 0);
        delete pSpinner;
        return ::DefWindowProcA(hWnd, uMsg, wParam, lParam);
    }
    return pSpinner->HandleMessage(uMsg, wParam, lParam);
}

}  // namespace

LRESULT CALLBACK VerticalSpinnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return SpinnerProc<CSpinnerVertical>(hWnd, uMsg, wParam, lParam);
}

LRESULT CALLBACK HorizontalSpinnerProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    return SpinnerProc<CSpinnerHorizontal>(hWnd, uMsg, wParam, lParam);
}

UINT SpinnerSetRepeat(HWND hWnd, UINT uMs) {
    CSpinnerBase* const pSpinner = SpinnerOf(hWnd);
    return pSpinner != nullptr ? pSpinner->SetRepeat(uMs) : 0;
}

UINT SpinnerGetRepeat(HWND hWnd) {
    const CSpinnerBase* const pSpinner = SpinnerOf(hWnd);
    return pSpinner != nullptr ? pSpinner->GetRepeat() : 0;
}

void SpinnerFit(HWND hWnd) {
    if (CSpinnerBase* const pSpinner = SpinnerOf(hWnd)) pSpinner->FitSize();
}

void SpinnerPress(HWND hWnd, int nArrow) {
    if (CSpinnerBase* const pSpinner = SpinnerOf(hWnd)) pSpinner->Press(nArrow);
}

void SpinnerRelease(HWND hWnd) {
    if (CSpinnerBase* const pSpinner = SpinnerOf(hWnd)) pSpinner->Press(kArrowNone);
}

void SpinnerSetBuddy(HWND hWnd, HWND hEdit) {
    if (CSpinnerBase* const pSpinner = SpinnerOf(hWnd)) pSpinner->SetBuddy(hEdit);
}

CSpinnerBase::~CSpinnerBase() {
    if (m_hBuddyBrush != nullptr) ::DeleteObject(m_hBuddyBrush);
}

void CSpinnerBase::OnCreate() {
    RECT rc;
    ::GetClientRect(m_hWnd, &rc);
    m_nWidth = rc.right;
    m_nHeight = rc.bottom;
}

void CSpinnerBase::SetBuddy(HWND hEdit) {
    if (m_hBuddyBrush != nullptr) ::DeleteObject(m_hBuddyBrush);
    m_hBuddyBrush = nullptr;
    if (hEdit != nullptr && ::IsWindow(hEdit)) {
        m_hBuddyBrush = ::CreateSolidBrush(::GetSysColor(COLOR_WINDOW));
        RECT rc;
        ::GetWindowRect(hEdit, &rc);
        ::MapWindowPoints(nullptr, ::GetParent(m_hWnd), reinterpret_cast<POINT*>(&rc), 2);
        ::SetWindowPos(m_hWnd, nullptr, rc.right, rc.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
        SetSize(m_nWidth, rc.bottom - rc.top);
    }
    Redraw();
}

void CSpinnerBase::SetSize(int nWidth, int nHeight) {
    m_nWidth = nWidth;
    m_nHeight = nHeight;
    ::SetWindowPos(m_hWnd, nullptr, 0, 0, nWidth, nHeight,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

UINT CSpinnerBase::SetRepeat(UINT uMs) {
    const UINT uOld = m_uRepeatMs;
    m_uRepeatMs = uMs;
    return uOld;
}

void CSpinnerBase::Press(int nArrow) {
    Show(nArrow);
}

void CSpinnerBase::Show(int nArrow) {
    m_nShownArrow = nArrow;
    Redraw();
}

void CSpinnerBase::Redraw() const {
    ::InvalidateRect(m_hWnd, nullptr, FALSE);
}

LRESULT CSpinnerBase::HandleMessage(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    switch (uMsg) {
        case WM_CREATE:
            OnCreate();
            return 0;
        case WM_SIZE:
            m_nWidth = LOWORD(lParam);
            m_nHeight = HIWORD(lParam);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
            PaintWindow();
            return 0;
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            Redraw();
            return 0;
        case WM_ENABLE:
            m_nHot = kArrowNone;
            EndPress();
            return 0;
        case WM_LBUTTONDOWN:
            OnPress(PointOf(lParam));
            return 0;
        case WM_MOUSEMOVE:
            OnMove(PointOf(lParam));
            return 0;
        case WM_MOUSELEAVE:
            m_nHot = kArrowNone;
            Redraw();
            return 0;
        case WM_LBUTTONUP:
        case WM_CANCELMODE:
            EndPress();
            return 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != m_hWnd) EndPress();
            return 0;
        case WM_TIMER:
            if (wParam == kRepeatTimer) OnMove(m_ptMouse);
            return 0;
        default:
            return ::DefWindowProcA(m_hWnd, uMsg, wParam, lParam);
    }
}

void CSpinnerBase::OnPress(POINT point) {
    const HWND hWnd = m_hWnd;
    ::SetCapture(hWnd);
    m_bInRect = 0;
    m_dwFirstPress = 0;
    m_bPressPending = 1;
    OnMove(point);
    // The step may have ended the press, or the window.
    if (ObjectOf(hWnd) != this || m_nPressedArrow == kArrowNone) return;
    ::SetTimer(hWnd, kRepeatTimer, m_uRepeatMs / 2, nullptr);
}

void CSpinnerBase::OnMove(POINT point) {
    m_ptMouse = point;
    if (m_bPressPending) {
        m_nPressedArrow = ArrowAt(point);
        if (m_nPressedArrow != kArrowNone) GetArrowRect(m_nPressedArrow, &m_rcArrow);
        m_bPressPending = 0;
    }
    if (m_nPressedArrow == kArrowNone) {
        OnHover(point);
        return;
    }
    const BOOL bInRect = ::PtInRect(&m_rcArrow, point) != 0;
    if (bInRect != m_bInRect) {
        m_bInRect = bInRect;
        m_nHot = bInRect ? m_nPressedArrow : kArrowNone;
        Show(bInRect ? m_nPressedArrow : kArrowNone);
    }
    // Also outside of the arrow: a held button goes on stepping.
    if (ShouldFire()) Fire();
}

void CSpinnerBase::OnHover(POINT point) {
    const int nHot = ArrowAt(point);
    if (nHot == m_nHot) return;
    m_nHot = nHot;
    Redraw();
    TRACKMOUSEEVENT track = {};
    track.cbSize = sizeof track;
    track.dwFlags = TME_LEAVE;
    track.hwndTrack = m_hWnd;
    ::_TrackMouseEvent(&track);
}

int CSpinnerBase::ArrowAt(POINT point) {
    for (const int nArrow : {kArrowSecond, kArrowFirst}) {
        RECT rc;
        GetArrowRect(nArrow, &rc);
        if (::PtInRect(&rc, point)) return nArrow;
    }
    return kArrowNone;
}

bool CSpinnerBase::ShouldFire() {
    const DWORD dwNow = ::GetTickCount();
    if (m_dwFirstPress == 0) {
        m_dwFirstPress = dwNow != 0 ? dwNow : 1;
        m_dwNextFire = dwNow;
        return true;
    }
    const bool bSlow = dwNow - m_dwFirstPress < kSlowMs;
    if (dwNow - m_dwNextFire < m_uRepeatMs * (bSlow ? kSlowPeriods : 1)) return false;
    m_dwNextFire = dwNow;
    return true;
}

void CSpinnerBase::Fire() {
    const HWND hWnd = m_hWnd;
    const HWND hParent = ::GetParent(hWnd);
    if (hParent == nullptr || g_bFiring) return;
    g_bFiring = true;
    const bool bLarge = ::GetKeyState(VK_SHIFT) < 0;
    const bool bFirst = m_nPressedArrow == kArrowFirst;
    const int nCode = bFirst ? (bLarge ? kSpinnerFirstLarge : kSpinnerFirst)
                             : (bLarge ? kSpinnerSecondLarge : kSpinnerSecond);
    ::SendMessageA(hParent, WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(hWnd), nCode),
                   reinterpret_cast<LPARAM>(hWnd));
    // The parent may have destroyed the window, and this object with it.
    if (ObjectOf(hWnd) == this && !IsMainButtonDown()) EndPress();
    g_bFiring = false;
}

void CSpinnerBase::EndPress() {
    const bool bPressed = m_nPressedArrow != kArrowNone || m_bPressPending;
    m_nPressedArrow = kArrowNone;
    m_nShownArrow = kArrowNone;
    m_bInRect = 0;
    m_bPressPending = 0;
    m_dwFirstPress = 0;
    if (bPressed) {
        ::KillTimer(m_hWnd, kRepeatTimer);
        if (::GetCapture() == m_hWnd) ::ReleaseCapture();
    }
    Redraw();
}

void CSpinnerVertical::FitSize() {
    const int nSize = FittedSize();
    SetSize(nSize, 2 * nSize);
}

void CSpinnerVertical::GetArrowRect(int nArrow, RECT* pRect) {
    ::GetClientRect(m_hWnd, pRect);
    const LONG nMiddle = pRect->bottom / 2;
    (nArrow == kArrowFirst ? pRect->bottom : pRect->top) = nMiddle;
}

void CSpinnerHorizontal::FitSize() {
    const int nSize = FittedSize();
    SetSize(2 * nSize, nSize);
}

void CSpinnerHorizontal::GetArrowRect(int nArrow, RECT* pRect) {
    ::GetClientRect(m_hWnd, pRect);
    const LONG nMiddle = pRect->right / 2;
    (nArrow == kArrowFirst ? pRect->left : pRect->right) = nMiddle;
}

}  // namespace CommonCtls
