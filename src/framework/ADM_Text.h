// An edit field: its notifications, its keyboard and the edit operations. The numeric controls
// build on it.
//
// Characters and the dialog code are asked for by way of the parent dialog, so that a dialog may
// answer for its fields. The arrow keys never reach the edit control: they become ADMN_KEYUP and
// its like, at most one per 20 ms for all fields together. Every operation does nothing with no
// window.
#pragma once

#include "framework/ADM_SubClassWnd.h"

class ADM_Text : public ADM_SubClassWnd {
  public:
    void SelectContents() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    LRESULT OnGetDlgCode(HWND hWnd) override;
    LRESULT SubclassProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override;

    // Whether taking the focus selects all the text; it does by default.
    void SetSelectOnFocus(BOOL bSelect) { m_bSelectOnFocus = bSelect; }
    BOOL GetSelectOnFocus() const { return m_bSelectOnFocus; }
    // A mark for the owner's own use.
    void SetFlag(BOOL bFlag) { m_bFlag = bFlag; }
    BOOL GetFlag() const { return m_bFlag; }

    void SetSel(int nStart, int nEnd) const;
    BOOL GetModify() const;
    void SetModify(BOOL bModified) const;
    int GetLineCount() const;
    int GetFirstVisibleLine() const;
    // The largest number of characters that can be typed.
    void LimitText(UINT uCharacters) const;
    BOOL Undo() const;
    void Cut() const;
    void Copy() const;
    void Paste() const;

  protected:
    // Tells the user what is wrong with this field: the focus first, so that the dialog comes back
    // on it, then the text as it stands.
    void ShowFailure(LPCSTR szMsg) const;

    BOOL m_bSelectOnFocus = 1;
    BOOL m_bFlag = 1;

  private:
    void OnArrowKey(HWND hWnd, bool bUp) const;
    LRESULT Send(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const;
};
