#include "framework/MessageFilter.h"

#include "framework/ADM_Dialog.h"
#include "framework/DialogKeys.h"
#include "widgets/ModalRun.h"

namespace {

HHOOK g_hHook = nullptr;
int g_nUsers = 0;

LRESULT CALLBACK FilterProc(int nCode, WPARAM wParam, LPARAM lParam) {
    const LRESULT nNext = CallNextHookEx(g_hHook, nCode, wParam, lParam);
    if (nCode != MSGF_DIALOGBOX) return nNext;
    MSG* pMsg = reinterpret_cast<MSG*>(lParam);
    return CommonCtls::CallGuarded<LRESULT>(pMsg->hwnd, nNext, [=] {
        ADM_Dialog* pDialog = ADM_Dialog::FromWindow(pMsg->hwnd);
        if (pDialog != nullptr && pDialog->PreTranslateMessage(pMsg)) return LRESULT{1};
        return ServeDialogKey(*pMsg) ? 1 : nNext;
    });
}

}  // namespace

void InstallMessageFilter(HWND hDialog) {
    if (g_nUsers == 0) {
        g_hHook = SetWindowsHookExA(WH_MSGFILTER, FilterProc, nullptr,
                                    GetWindowThreadProcessId(hDialog, nullptr));
    }
    ++g_nUsers;
}

void RemoveMessageFilter() {
    if (g_nUsers == 0 || --g_nUsers > 0) return;
    if (g_hHook != nullptr) UnhookWindowsHookEx(g_hHook);
    g_hHook = nullptr;
}

int MessageFilterUsers() {
    return g_nUsers;
}
