// The gallery program: shows every control of the framework in every state.
//
//   zx_gallery            opens the dialog for hand use and prints how it ended
//   zx_gallery --list     opens it, prints its windows page by page, and closes it
//   zx_gallery --page N   opens it on a page, counted from 0
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "framework/ADM_TabbedDialog.h"
#include "gallery_dialog.h"
#include "widgets/Framework.h"

namespace {

BOOL CALLBACK PrintWindow(HWND hWnd, LPARAM) {
    char szClass[64] = "", szText[64] = "";
    GetClassNameA(hWnd, szClass, sizeof szClass);
    GetWindowTextA(hWnd, szText, sizeof szText);
    RECT rc;
    GetWindowRect(hWnd, &rc);
    if (IsWindowVisible(hWnd)) {
        std::printf("  %-22s %5d  %4d,%-4d %3dx%-3d %s \"%s\"\n", szClass, GetDlgCtrlID(hWnd),
                    static_cast<int>(rc.left), static_cast<int>(rc.top),
                    static_cast<int>(rc.right - rc.left), static_cast<int>(rc.bottom - rc.top),
                    IsWindowEnabled(hWnd) ? "enabled " : "disabled", szText);
    }
    return TRUE;
}

int ListWindows(ADM_TabbedDialog& dialog, HINSTANCE hInstance) {
    if (!dialog.CreateModeless(hInstance, gallery::GalleryTemplate(), nullptr)) return 1;
    dialog.Show(SW_SHOW);
    for (int nPage = 0; nPage < dialog.GetPageCount(); ++nPage) {
        dialog.SelectPage(nPage);
        MSG msg;
        while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&msg);
        std::printf("page %d\n", nPage);
        EnumChildWindows(dialog.GetHandle(), PrintWindow, 0);
    }
    dialog.Destroy();
    return 0;
}

// Turns to a page once the dialog is there.
ADM_TabbedDialog* g_pDialog = nullptr;
int g_nFirstPage = 0;

void CALLBACK TurnToFirstPage(HWND, UINT, UINT_PTR nTimer, DWORD) {
    if (g_pDialog->GetHandle() == nullptr) return;
    KillTimer(nullptr, nTimer);
    g_pDialog->SelectPage(g_nFirstPage);
}

}  // namespace

int main(int nArguments, char** aszArguments) {
    const HINSTANCE hInstance = GetModuleHandleA(nullptr);
    const auto dialog = gallery::MakeGallery(hInstance);
    if (dialog == nullptr) return 1;
    if (nArguments > 1 && std::strcmp(aszArguments[1], "--list") == 0) {
        return ListWindows(*dialog, hInstance);
    }
    if (nArguments > 2 && std::strcmp(aszArguments[1], "--page") == 0) {
        g_pDialog = dialog.get();
        g_nFirstPage = std::atoi(aszArguments[2]);
        SetTimer(nullptr, 0, 50, TurnToFirstPage);
    }
    const INT_PTR nResult = dialog->DoModal(hInstance, gallery::GalleryTemplate(), nullptr);
    std::printf("result %d\n", static_cast<int>(nResult));
    ShutDownDialogFramework();
    return 0;
}
