// A control whose window's messages the framework sees first. The window carries two properties:
// "ADM_ThisProp" holds the object, "ADM_OldWndProc" the window's previous procedure.
//
// The hook ends with the window, with the binding or with the object, whichever comes first, so
// that neither ever refers to the other when it is gone.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_SubClassWnd : public ADM_Wnd {
  public:
    ~ADM_SubClassWnd() override;

    void Attach(HWND hWnd) override;
    // Hooks the window once; a window that is hooked already stays as it is.
    void OnAttach() override;

    // Every message of the window but its last. The base calls the previous procedure.
    virtual LRESULT SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);

  private:
    static LRESULT CALLBACK HookProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    static LRESULT OnHookedMessage(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void Unhook();
};
