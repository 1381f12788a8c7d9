// A push button, check box or single radio button, and the check box of three states. The check
// state (0 off, 1 on, 2 undetermined) is kept in the object, so that it can be set before the
// dialog opens and read after it has closed.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_Button : public ADM_Wnd {
  public:
    explicit ADM_Button(int nCheck = 0) : m_nCheck(nCheck), m_nInitialCheck(nCheck) {}

    void OnAttach() override;
    void ReadControl() override;
    void SaveInitialValue() override;
    BOOL HasChanged() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;

    void SetCheck(int nState);
    int GetCheck();

    // The platform's button operations; no-ops, or 0, with no window. nType is IMAGE_ICON,
    // IMAGE_BITMAP or IMAGE_CURSOR; the caller keeps owning the image.
    void SetState(BOOL bHighlight);
    int GetState() const;
    void SetStyle(int nStyle, BOOL bRedraw = TRUE);
    HANDLE SetImage(int nType, HANDLE hImage);
    HANDLE GetImage(int nType) const;

  protected:
    int m_nCheck;
    int m_nInitialCheck;
};

class ADM_TriStateCheck : public ADM_Button {
  public:
    explicit ADM_TriStateCheck(int nCheck = 0) : ADM_Button(nCheck) {}

    // Gives a check box of the template its third state.
    void OnAttach() override;

    // 0, 1 or 2; any other state changes nothing.
    void SetTriState(int nState);
    // The state; one that is none of the three reads as 0.
    int GetTriState();

  protected:
    BOOL m_bStyled = FALSE;  // the window has its third state
};
