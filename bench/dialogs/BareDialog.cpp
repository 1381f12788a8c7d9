#include "BareDialog.h"

#include "bench_ids.h"
#include "platform/platform.h"

namespace {

HWND g_ahPages[2];

INT_PTR CALLBACK PageProc(HWND hWnd, UINT uMsg, WPARAM, LPARAM lParam) {
    if (uMsg != WM_INITDIALOG) return FALSE;
    const int nBase = static_cast<int>(lParam);
    for (int i = 0; i < 8; ++i) SetDlgItemTextA(hWnd, nBase + i, "2.5");
    for (int i = 0; i < 3; ++i) CheckDlgButton(hWnd, nBase + 20 + i, BST_CHECKED);
    SendDlgItemMessageA(hWnd, nBase + 30, CB_SETCURSEL, static_cast<WPARAM>(-1), 0);
    return TRUE;
}

void Open(HWND hWnd) {
    const HINSTANCE hInstance = GetModuleHandleA(nullptr);
    const HWND hTabs = GetDlgItem(hWnd, IDC_BENCH_TABS);
    SetWindowLongPtrA(hTabs, GWL_EXSTYLE,
                      GetWindowLongPtrA(hTabs, GWL_EXSTYLE) | WS_EX_CONTROLPARENT);
    char szOne[] = "One", szTwo[] = "Two";
    for (int i = 0; i < 2; ++i) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = i == 0 ? szOne : szTwo;
        SendMessageA(hTabs, TCM_INSERTITEMA, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
    }
    RECT rc;
    GetClientRect(hTabs, &rc);
    SendMessageA(hTabs, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&rc));
    for (int i = 0; i < 2; ++i) {
        g_ahPages[i] = CreateDialogParamA(hInstance, MAKEINTRESOURCEA(IDD_BENCH_PAGE_ONE + i),
                                          hTabs, PageProc, (i + 1) * 100);
        MoveWindow(g_ahPages[i], rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top, TRUE);
    }
    ShowWindow(g_ahPages[0], SW_SHOW);
    SetFocus(g_ahPages[0]);
    ShowWindow(hWnd, SW_SHOW);
    PostMessageA(hWnd, WM_COMMAND, IDCANCEL, 0);
}

INT_PTR CALLBACK DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM) {
    switch (uMsg) {
        case WM_INITDIALOG:
            return Open(hWnd), TRUE;
        case WM_COMMAND:
            if (LOWORD(wParam) == IDCANCEL) EndDialog(hWnd, IDCANCEL);
            return TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

void OpenAndCloseBare() {
    DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_BENCH), nullptr, DialogProc, 0);
}
