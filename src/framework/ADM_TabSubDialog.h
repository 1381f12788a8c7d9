// A page of a tabbed dialog: a dialog without buttons of its own whose window is a child of the tab
// control. Its template has the style WS_CHILD (and DS_ styles) only.
#pragma once

#include "framework/ADM_Dialog.h"

class ADM_TabSubDialog : public ADM_Dialog {
  public:
    // szTitle is the text on the tab, at most 63 characters, or the id of a string of hInstance.
    ADM_TabSubDialog(HINSTANCE hInstance, LPCSTR szTemplate, LPCSTR szTitle);

    HBRUSH OnCtlColor(HWND hWnd, HDC hDC, HWND hWndCtl, int nType) override;
    // Tells the programmer of styles that a page must not have, and goes on.
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    void OnAppCommand(WPARAM wParam, LPARAM lParam) override;

    // Shows and enables the page and gives it the focus; returns 1.
    virtual BOOL OnPageShow();
    // Whether the user may go to another page.
    virtual BOOL CanLeavePage();

    void GetTitle(LPSTR szBuffer, int nSize) const;
    // Creates the page's window, unless it exists, as a child of hTabWnd in the dialog hDialogWnd.
    void CreatePage(HWND hDialogWnd, HWND hTabWnd);

  protected:
    bool HasForeignStyle() const;

    char m_szTabTitle[64] = {};
};
