// What a dialog's code throws must not pass through the system's frames: on some systems the
// process ends there. So every procedure that the system calls runs its work through CallGuarded,
// and every function with a modal loop has a ModalRun on its stack:
//
//     ModalRun run;                      // SetWindow(hDlg) at WM_INITDIALOG, before anything else
//     return run.Result(DialogBoxParamA(...));
//
// A failure ends the dialog that it happened in with -1, and the modal loops on top of it before
// that one. The code that had opened those does not go on with an answer that nobody gave: their
// Result throws the failure on, up to the procedure of the dialog that is ending.
//
// For the user-interface thread only.
#pragma once

#include "platform/platform.h"

namespace CommonCtls {

class ModalRun {
  public:
    ModalRun();
    ~ModalRun();
    ModalRun(const ModalRun&) = delete;
    ModalRun& operator=(const ModalRun&) = delete;

    // The dialog of this run, from now on. Ends it at once when its creation has failed.
    void SetWindow(HWND hDialog);
    // What the function that ran the loop returns: -1 after a failure. Throws when a dialog
    // underneath has failed.
    INT_PTR Result(INT_PTR nResult) const;

    // Called while an exception is handled: ends the dialog that hWnd belongs to (as itself, a
    // control, a page), and those on top of it. Where hWnd belongs to none it is the innermost.
    static void Fail(HWND hWnd) noexcept;

  private:
    static ModalRun* RunOf(HWND hWnd);

    HWND m_hDialog = nullptr;
    bool m_bFailed = false;
    ModalRun* const m_pOuter;
};

// Runs the work of a procedure for a window; gives `otherwise` when it throws.
template <class Result, class Work>
Result CallGuarded(HWND hWnd, Result otherwise, Work work) noexcept {
    try {
        return work();
    } catch (...) {
        ModalRun::Fail(hWnd);
        return otherwise;
    }
}

}  // namespace CommonCtls
