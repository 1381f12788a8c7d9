#include "framework/DialogKeys.h"

#include "framework/ADM_TabbedDialog.h"

namespace {

bool IsDown(int nKey) {
    return GetKeyState(nKey) < 0;
}

// The tabbed dialog that a window belongs to, or null.
ADM_TabbedDialog* TabbedDialogOf(HWND hWnd) {
    for (; hWnd != nullptr; hWnd = GetParent(hWnd)) {
        if (auto* pTabbed = dynamic_cast<ADM_TabbedDialog*>(ADM_Dialog::FromWindow(hWnd)))
            return pTabbed;
        if ((GetWindowLongPtrA(hWnd, GWL_STYLE) & WS_CHILD) == 0) return nullptr;
    }
    return nullptr;
}

bool IsKey(UINT uMessage) {
    return uMessage >= WM_KEYFIRST && uMessage <= WM_KEYLAST;
}

// Whether the dialog manager finds the window on its walk over the controls: it passes over what
// stands in a hidden or greyed page, and from a window in there it would walk for ever.
bool IsOnTheWalk(HWND hWnd) {
    for (;;) {
        const LONG_PTR nStyle = GetWindowLongPtrA(hWnd, GWL_STYLE);
        const HWND hParent = GetParent(hWnd);
        if ((nStyle & WS_CHILD) == 0 || hParent == nullptr) return true;
        const LONG_PTR nParentStyle = GetWindowLongPtrA(hParent, GWL_STYLE);
        if ((nParentStyle & WS_CHILD) != 0 &&
            (nParentStyle & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE)
            return false;
        hWnd = hParent;
    }
}

bool ChangePage(HWND hWnd, bool bForward) {
    ADM_TabbedDialog* const pTabbed = TabbedDialogOf(hWnd);
    return pTabbed != nullptr && pTabbed->ChoosePageBeside(bForward);
}

bool EnterPage(HWND hWnd) {
    ADM_TabbedDialog* const pTabbed = TabbedDialogOf(hWnd);
    if (pTabbed == nullptr || pTabbed->GetTabControl().GetHandle() != hWnd) return false;
    const ADM_TabSubDialog* const pPage = pTabbed->GetCurrentPage();
    const HWND hPage = pPage != nullptr ? pPage->GetHandle() : nullptr;
    const HWND hFirst = hPage != nullptr ? GetNextDlgTabItem(hPage, nullptr, FALSE) : nullptr;
    if (hFirst == nullptr || !IsChild(hPage, hFirst)) return false;
    SendMessageA(pTabbed->GetHandle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hFirst), TRUE);
    return true;
}

bool PressPageButton(HWND hWnd) {
    const HWND hPage = GetParent(hWnd);
    if (dynamic_cast<ADM_TabSubDialog*>(ADM_Dialog::FromWindow(hPage)) == nullptr) return false;
    const LRESULT nCode = SendMessageA(hWnd, WM_GETDLGCODE, 0, 0);
    if ((nCode & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) == 0) return false;
    // What it does may open a dialog, which must not run inside of the filter.
    PostMessageA(hWnd, BM_CLICK, 0, 0);
    return true;
}

}  // namespace

bool ServeDialogKey(const MSG& msg) {
    if (IsKey(msg.message) && !IsOnTheWalk(msg.hwnd)) return true;
    if (msg.message != WM_KEYDOWN) return false;
    const bool bControl = IsDown(VK_CONTROL);
    const bool bShift = IsDown(VK_SHIFT);
    switch (msg.wParam) {
        case VK_TAB:
            if (bControl) return ChangePage(msg.hwnd, !bShift);
            return !bShift && EnterPage(msg.hwnd);
        case VK_NEXT:
        case VK_PRIOR:
            return bControl && ChangePage(msg.hwnd, msg.wParam == VK_NEXT);
        case VK_RETURN:
            return PressPageButton(msg.hwnd);
        default:
            return false;
    }
}
