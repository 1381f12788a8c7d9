#include "arithmetic/ADM_NoListCombo.h"

#include "framework/Theming.h"

namespace {

constexpr char kClassName[] = "ZXADLG_NoListCombo_PictureWnd32";

// The windows that use the class, of all objects of the process.
int g_nClassUses = 0;

// Part and states of the theme class "Button".
constexpr int kThemePushButton = 1;
constexpr int kThemeNormal = 1;
constexpr int kThemePressed = 3;
constexpr int kThemeDisabled = 4;

constexpr int kMenuIdOfFirstPick = 1;
constexpr int kFocusMargin = 3;

}  // namespace

ADM_NoListCombo::~ADM_NoListCombo() {
    LeaveWindow();
    DestroyOwnMenu();
}

void ADM_NoListCombo::DestroyOwnMenu() {
    if (m_hMenu != nullptr) DestroyMenu(m_hMenu);
    m_hMenu = nullptr;
}

BOOL ADM_NoListCombo::RegisterClass(HINSTANCE hInstance) {
    return AddClassUse(hInstance, kClassName, g_nClassUses);
}

void ADM_NoListCombo::UnregisterClass(HINSTANCE hInstance) {
    DropClassUse(hInstance, kClassName, g_nClassUses);
}

LPCSTR ADM_NoListCombo::GetClassName() const {
    return kClassName;
}

BOOL ADM_NoListCombo::OnCreate() {
    DestroyOwnMenu();
    m_hMenu = CreatePopupMenu();
    // Without a menu the button stands there and opens nothing.
    if (m_hMenu != nullptr) BuildMenu();
    return ADM_PictureWnd::OnCreate();
}

void ADM_NoListCombo::BuildMenu() {
    int nPick = 0;
    for (const LPCSTR szText : {"This", "is", "a", "test"}) AppendPick(nPick++, szText);
}

void ADM_NoListCombo::AppendPick(int nPick, LPCSTR szText) {
    AppendMenuA(m_hMenu, MF_STRING, static_cast<UINT_PTR>(nPick + kMenuIdOfFirstPick), szText);
}

LRESULT ADM_NoListCombo::DefaultProc(UINT uMsg, WPARAM wParam, LPARAM lParam) {
    const HWND hWnd = GetOwnWindow();
    switch (uMsg) {
        case WM_GETDLGCODE:
            return DLGC_BUTTON | DLGC_WANTARROWS;
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case BM_CLICK:
            Open();
            return 0;
        case WM_KEYDOWN:
        case WM_SYSKEYDOWN:
            if (wParam != VK_DOWN) break;
            Open();
            return 0;
        case WM_KEYUP:
            // Not on the press: the character of the key would reach the open menu.
            if (wParam != VK_SPACE) break;
            Open();
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
        case WM_ENABLE:
        case WM_SETTEXT:
        case WM_UPDATEUISTATE:
            InvalidateRect(hWnd, nullptr, TRUE);
            break;
        default:
            break;
    }
    return ADM_PictureWnd::DefaultProc(uMsg, wParam, lParam);
}

void ADM_NoListCombo::Open() {
    const HWND hWnd = GetOwnWindow();
    if (m_hMenu == nullptr || m_bPressed || !::IsWindowEnabled(hWnd)) return;
    ::SetFocus(hWnd);
    m_bPressed = TRUE;
    InvalidateRect(hWnd, nullptr, TRUE);
    // What the key that opens it types is not for the menu, where a blank is a choice.
    MSG typed;
    while (PeekMessageA(&typed, hWnd, WM_CHAR, WM_CHAR, PM_REMOVE)) continue;
    TPMPARAMS params = {};
    params.cbSize = sizeof params;
    ::GetWindowRect(hWnd, &params.rcExclude);
    const int nChosen = TrackPopupMenuEx(
        m_hMenu, TPM_LEFTALIGN | TPM_TOPALIGN | TPM_VERTICAL | TPM_RETURNCMD | TPM_NONOTIFY,
        params.rcExclude.left, params.rcExclude.bottom, hWnd, &params);
    m_bPressed = FALSE;
    if (!::IsWindow(hWnd)) return;
    InvalidateRect(hWnd, nullptr, TRUE);
    if (nChosen < kMenuIdOfFirstPick) return;
    m_nPick = nChosen - kMenuIdOfFirstPick;
    Notify(this, m_nControlId, kPicked, 0);
}

// --- Drawing ---------------------------------------------------------------------------------

void ADM_NoListCombo::Draw(HDC hDC) {
    ADM_PictureWnd::Draw(hDC);
    const HWND hWnd = GetOwnWindow();
    const bool bEnabled = ::IsWindowEnabled(hWnd) != FALSE;
    DrawFace(hDC, bEnabled);
    char szText[256];
    ::GetWindowTextA(hWnd, szText, sizeof szText);
    const LRESULT nCues = SendMessageA(hWnd, WM_QUERYUISTATE, 0, 0);
    RECT rc = m_rcClient;
    rc.right -= GetSystemMetrics(SM_CXVSCROLL);
    SetBkMode(hDC, TRANSPARENT);
    SetTextColor(hDC, GetSysColor(bEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    UINT uFormat = DT_CENTER | DT_VCENTER | DT_SINGLELINE;
    if ((nCues & UISF_HIDEACCEL) != 0) uFormat |= DT_HIDEPREFIX;
    DrawTextA(hDC, szText, -1, &rc, uFormat);
    DrawArrow(hDC, bEnabled);
    if (GetFocus() != hWnd || (nCues & UISF_HIDEFOCUS) != 0) return;
    rc = m_rcClient;
    InflateRect(&rc, -kFocusMargin, -kFocusMargin);
    DrawFocusRect(hDC, &rc);
}

void ADM_NoListCombo::DrawFace(HDC hDC, bool bEnabled) const {
    RECT rc = m_rcClient;
    // As the buttons beside it, which have the theme with that version of their library alone.
    const HTHEME hTheme =
        IsThemedWithCommonControls6() ? OpenThemeData(GetOwnWindow(), L"Button") : nullptr;
    if (hTheme == nullptr) {
        DrawFrameControl(hDC, &rc, DFC_BUTTON,
                         DFCS_BUTTONPUSH | static_cast<UINT>(m_bPressed ? DFCS_PUSHED : 0));
        return;
    }
    const int nState = !bEnabled ? kThemeDisabled : m_bPressed ? kThemePressed : kThemeNormal;
    DrawThemeBackground(hTheme, hDC, kThemePushButton, nState, &rc, nullptr);
    CloseThemeData(hTheme);
}

// An outline, filled where the button can be pressed.
void ADM_NoListCombo::DrawArrow(HDC hDC, bool bEnabled) const {
    const LONG nX = m_rcClient.right - GetSystemMetrics(SM_CXVSCROLL) / 2 - kFocusMargin;
    const LONG nY = (m_rcClient.top + m_rcClient.bottom) / 2;
    const POINT corners[] = {{nX - 4, nY - 2}, {nX + 3, nY - 2}, {nX, nY + 2}};
    const COLORREF crArrow = GetSysColor(bEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
    const HPEN hPen = CreatePen(PS_SOLID, 1, crArrow);
    const HGDIOBJ hOldPen = SelectObject(hDC, hPen);
    const HBRUSH hFill = CreateSolidBrush(crArrow);
    const HGDIOBJ hOldBrush =
        SelectObject(hDC, bEnabled ? static_cast<HGDIOBJ>(hFill) : GetStockObject(NULL_BRUSH));
    Polygon(hDC, corners, 3);
    SelectObject(hDC, hOldBrush);
    SelectObject(hDC, hOldPen);
    DeleteObject(hFill);
    DeleteObject(hPen);
}
