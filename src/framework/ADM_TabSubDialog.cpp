#include "framework/ADM_TabSubDialog.h"

#include "framework/Theming.h"
#include "text/BoundedText.h"
#include "widgets/MessageDialog.h"

ADM_TabSubDialog::ADM_TabSubDialog(HINSTANCE hInstance, LPCSTR szTemplate, LPCSTR szTitle) {
    m_hInstance = hInstance;
    SetTemplate(szTemplate);
    if (!IsResourceId(szTitle)) {
        CopyText(m_szTabTitle, szTitle);
    } else if (szTitle != nullptr) {
        const UINT uId = static_cast<UINT>(reinterpret_cast<ULONG_PTR>(szTitle));
        LoadStringA(hInstance, uId, m_szTabTitle, sizeof m_szTabTitle);
    }
    m_bCenter = FALSE;
    m_bUseHook = FALSE;
    m_bUseOK = FALSE;
    m_bUseCancel = FALSE;
}

void ADM_TabSubDialog::GetTitle(LPSTR szBuffer, int nSize) const {
    CopyText(szBuffer, nSize, m_szTabTitle);
}

void ADM_TabSubDialog::CreatePage(HWND hDialogWnd, HWND hTabWnd) {
    if (m_hWnd != nullptr) return;
    m_hDialogWnd = hDialogWnd;
    m_hParentWnd = hTabWnd;
    CreateModeless();
}

bool ADM_TabSubDialog::HasForeignStyle() const {
    constexpr LONG_PTR kForeign = static_cast<LONG_PTR>(
        static_cast<DWORD>(WS_POPUP | WS_VISIBLE | WS_CAPTION | WS_THICKFRAME));
    return (GetWindowLongPtrA(m_hWnd, GWL_STYLE) & kForeign) != 0 ||
           (GetWindowLongPtrA(m_hWnd, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME) != 0 ||
           IsWindowVisible(m_hWnd);
}

BOOL ADM_TabSubDialog::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
    if (HasForeignStyle()) {
        // A word to the programmer.
        CommonCtls::ShowMessage(
            m_hWnd,
            "Internal Error\r\n\r\nTabbed sub dialogs should only have the WS_CHILD flag set",
            MB_ICONHAND);
    }
    // Tab goes into a child dialog only with this style.
    SetWindowLongPtrA(m_hWnd, GWL_EXSTYLE,
                      GetWindowLongPtrA(m_hWnd, GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
    if (IsThemedWithCommonControls6()) EnableThemeDialogTexture(m_hWnd, ETDT_ENABLETAB);
    return 1;
}

void ADM_TabSubDialog::OnAppCommand(WPARAM wParam, LPARAM lParam) {
    // A page asks its dialog, not the window around the tabs.
    PassAppCommand(m_hOwnerOverride != nullptr ? m_hOwnerOverride : GetDialogWnd(), wParam, lParam);
}

BOOL ADM_TabSubDialog::OnPageShow() {
    Show(SW_SHOW);
    Enable(TRUE);
    // A page in which nothing can have the focus leaves it on the tabs.
    const HWND hFirst = GetNextDlgTabItem(m_hWnd, nullptr, FALSE);
    if (hFirst != nullptr && ::IsChild(m_hWnd, hFirst)) {
        SetFocus();
    } else {
        ::SetFocus(m_hParentWnd);
    }
    // What the rules of the page depend on may have changed on another one.
    RequestUpdate();
    return 1;
}

BOOL ADM_TabSubDialog::CanLeavePage() {
    return Validate(1, nullptr) != 0;
}

HBRUSH ADM_TabSubDialog::OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType) {
    const HBRUSH hBrush = ADM_Dialog::OnCtlColor(hWnd, hDC, hWndCtl, nType);
    // The page's themed background shows through its labels.
    const bool bStatic = nType == WM_CTLCOLORSTATIC - WM_CTLCOLORMSGBOX;
    return hBrush != nullptr && bStatic && IsThemedWithCommonControls6() ? nullptr : hBrush;
}
