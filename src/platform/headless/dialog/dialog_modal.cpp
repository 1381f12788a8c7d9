// Modal dialogs: their loop and their end.
#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/message_queue.h"

namespace headless {

namespace {

bool Ended(HWND dialog) {
    const DialogState* state = StateOf(dialog);
    return state == nullptr || state->ended;
}

// One turn of the loop. False ends it.
bool Turn(HWND dialog, HWND owner, bool& shown) {
    MSG msg{};
    if (!PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        if (!shown) {
            // A dialog that nothing has shown by now appears when the first queue is empty.
            shown = true;
            ShowWindow(dialog, SW_SHOWNORMAL);
        }
        if (Peek(dialog) == nullptr) return false;
        const bool idle = (GetWindowLongA(dialog, GWL_STYLE) & DS_NOIDLEMSG) == 0;
        if (owner != nullptr && idle)
            SendMessageA(owner, WM_ENTERIDLE, MSGF_DIALOGBOX, reinterpret_cast<LPARAM>(dialog));
        if (Peek(dialog) == nullptr || Ended(dialog)) return false;
        // Nothing can ever come: the wait has been recorded and the dialog ends without a result.
        if (GetMessageA(&msg, nullptr, 0, 0) == -1) return false;
    }
    if (msg.message == static_cast<UINT>(WM_QUIT)) {
        // The loop outside has to see it as well.
        PostQuitMessage(static_cast<int>(msg.wParam));
        return false;
    }
    if (Peek(dialog) == nullptr) return false;
    if (!IsDialogMessageA(dialog, &msg)) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
    if (Peek(dialog) == nullptr || Ended(dialog)) return false;
    if (!shown && msg.message == static_cast<UINT>(WM_TIMER)) {
        shown = true;
        ShowWindow(dialog, SW_SHOWNORMAL);
    }
    return true;
}

}  // namespace

INT_PTR RunDialog(HWND dialog, HWND owner) {
    bool shown = false;
    if (!Ended(dialog)) {
        while (Turn(dialog, owner, shown)) {
        }
    }
    DialogState* state = StateOf(dialog);
    if (state == nullptr) return 0;
    const bool ended = state->ended;
    const INT_PTR result = ended ? state->result : -1;
    // A loop that ended otherwise gives the owner back too.
    if (!ended) EndDialog(dialog, -1);
    DestroyWindow(dialog);
    return result;
}

}  // namespace headless

using namespace headless;

BOOL EndDialog(HWND dialog, INT_PTR result) {
    KeepAlive keep;
    Window* window = Lookup(dialog);
    if (window == nullptr) return FALSE;
    DialogState* state = window->dialog.get();
    if (state == nullptr) return FALSE;
    state->ended = true;
    state->result = result;
    HWND owner = nullptr;
    if ((window->style & WS_POPUP) != 0 || !window->IsChildWindow()) owner = window->owner;
    if (state->enableOwner && owner != nullptr) {
        state->enableOwner = false;
        EnableWindow(owner, TRUE);
        if (!window->alive) return TRUE;
    }
    // The controls lose the focus while the dialog is still there to hear of it.
    if (IsChild(dialog, GetFocus())) SetFocus(dialog);
    if (!window->alive) return TRUE;
    SetWindowPos(dialog, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
    if (!window->alive) return TRUE;
    if (dialog == GetActiveWindow()) {
        const Window* ownerWindow = Peek(owner);
        if (ownerWindow != nullptr && Enabled(*ownerWindow)) {
            SetForegroundWindow(owner);
        } else {
            ActivateAnother(*window);
        }
    }
    if (window->alive) PostMessageA(dialog, WM_NULL, 0, 0);
    return TRUE;
}
