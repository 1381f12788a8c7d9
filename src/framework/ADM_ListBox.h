// A list box with a single selection that is kept in the object. Its items live in the window: they
// are added again at each opening, then OnAttach selects the kept index. Indices count from 0; -1
// is no selection.
//
// The list operations mean what the platform's messages mean and return 0 with no window; an index
// out of range is passed on as it is and answered with LB_ERR.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_ListBox : public ADM_Wnd {
  public:
    void OnAttach() override;
    void ReadControl() override;
    // Required: a list keeps no initial value, so that it compares with "no selection" for its
    // life.
    BOOL HasChanged() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;

    void SetCurSel(int nIndex);
    int GetCurSel();

    int GetCount() const;
    LPARAM GetItemData(int nIndex) const;
    int SetItemData(int nIndex, LPARAM nData);
    // Copies the item's text, cut to the buffer; returns the number of characters copied or LB_ERR.
    int GetText(int nIndex, LPSTR szBuffer, int nSize) const;
    int AddString(LPCSTR szText);
    int InsertString(int nIndex, LPCSTR szText);
    int DeleteString(int nIndex);
    int ResetContent();
    int FindString(int nStart, LPCSTR szText) const;
    int FindStringExact(int nStart, LPCSTR szText) const;
    int SelectString(int nStart, LPCSTR szText);
    int SetTopIndex(int nIndex);
    int GetTopIndex() const;
    // The four below are for lists of several selections. nIndex of -1 means all items.
    int SetSel(int nIndex, BOOL bSelect);
    int GetSelCount() const;
    int GetSelItems(int nMax, int* pnItems) const;
    int SetCaretIndex(int nIndex);
    int GetCaretIndex() const;

    // The first index behind nStart (-1: from the first) whose data equals nData, or -1.
    int FindData(int nStart, LPARAM nData) const;
    // The first index from nStart on (below 0: from the first), which is selected, or -1.
    int SelectData(int nStart, LPARAM nData);

    int AddInt(int nValue);
    int AddLong(LONG nValue);
    // nDecimals of -1 selects nSigDigits significant digits, any other that many fixed decimals.
    int AddFloat(float fValue, int nDecimals, UINT nSigDigits);
    int AddDouble(double dValue, int nDecimals, UINT nSigDigits);
    // A string of at most 254 characters; adds nothing, and returns LB_ERR, when there is none.
    int AddResourceString(HINSTANCE hInstance, UINT nId);

  protected:
    int Send(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const;

    int m_nSelected = -1;
    int m_nInitial = -1;
};
