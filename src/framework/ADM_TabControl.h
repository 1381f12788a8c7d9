// The tab control of a tabbed dialog. It turns the platform's two notifications into three:
// ADMN_TABSELCHANGING before the selection moves, ADMN_TABLEFT for the page left, during which
// GetCurSel still answers with that page, and ADMN_TABSELCHANGE for the page come to.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_TabControl : public ADM_Wnd {
  public:
    // Gives the window the theme's texture, once.
    void OnAttach() override;
    LRESULT OnNotify(HWND hWnd, int nId, NMHDR* pHeader) override;

    // A receiver of ADMN_TABSELCHANGING that clears this keeps the selection where it is.
    void SetAllowChange(BOOL bAllow) { m_bAllowChange = bAllow; }

    int GetItemCount() const;
    // -1 with no window.
    int GetCurSel() const;
    // Sends no notification.
    void SetCurSel(int nIndex);
    // Selects as a click on the tab does, with its notifications.
    void Choose(int nIndex);
    // szTitle is copied.
    void InsertItem(int nIndex, LPCSTR szTitle);
    void DeleteItem(int nIndex);
    // The area for a page, in client coordinates.
    RECT GetDisplayArea() const;

  protected:
    BOOL m_bReportOld = FALSE;  // GetCurSel answers with the page left
    int m_nLastPage = -1;       // the page selected last; -1 before the first change
    BOOL m_bAllowChange = TRUE;
    BOOL m_bThemed = FALSE;
};
