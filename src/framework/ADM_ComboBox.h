// A combo box whose selection is kept in the object. Its items live in the window: they are added
// again at each opening, then OnAttach selects the kept index. Indices count from 0; -1 is no
// selection. Its list opens as wide as its widest item.
//
// The list operations mean what the platform's messages mean and return 0 with no window; an index
// out of range is passed on as it is and answered with CB_ERR. A subclass filters typing in OnChar
// as text controls do: what is typed in the edit part is offered to the dialog first.
#pragma once

#include "framework/ADM_Wnd.h"

class ADM_ComboBox : public ADM_Wnd {
  public:
    void OnAttach() override;
    void ReadControl() override;
    void SaveInitialValue() override;
    BOOL HasChanged() override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;

    // The list or its selection changed, before the notification goes out.
    virtual void OnListChanged();

    void SetCurSel(int nIndex);
    int GetCurSel();

    int GetCount() const;
    int ResetContent();
    int AddString(LPCSTR szText);
    int InsertString(int nIndex, LPCSTR szText);
    int DeleteString(int nIndex);
    LPARAM GetItemData(int nIndex) const;
    int SetItemData(int nIndex, LPARAM nData);
    // Copies the item's text, cut to the buffer; returns the number of characters copied or CB_ERR.
    int GetLBText(int nIndex, LPSTR szBuffer, int nSize) const;
    int FindString(int nStart, LPCSTR szText) const;
    int FindStringExact(int nStart, LPCSTR szText) const;
    int SelectString(int nStart, LPCSTR szText);
    int ShowDropDown(BOOL bShow);
    BOOL GetDroppedState() const;
    int SetEditSel(int nStart, int nEnd);
    int LimitText(int nLimit);
    int SetExtendedUI(BOOL bExtended);
    BOOL GetExtendedUI() const;
    // nIndex of -1 is the selection field.
    int SetItemHeight(int nIndex, int nHeight);
    int GetItemHeight(int nIndex) const;

    // The first index behind nStart (-1: from the first) whose data equals nData, or -1.
    int FindData(int nStart, LPARAM nData) const;
    // The first index from nStart on (below 0: from the first), which is selected, or -1.
    int SelectData(int nStart, LPARAM nData);

    int AddInt(int nValue);
    int AddLong(LONG nValue);
    // nDecimals of -1 selects nSigDigits significant digits, any other that many fixed decimals.
    int AddFloat(float fValue, int nDecimals, UINT nSigDigits);
    int AddDouble(double dValue, int nDecimals, UINT nSigDigits);
    // A string of at most 254 characters; adds nothing, and returns CB_ERR, when there is none.
    int AddResourceString(HINSTANCE hInstance, UINT nId);

  protected:
    int Send(UINT uMsg, WPARAM wParam = 0, LPARAM lParam = 0) const;
    void HookEdit();
    void FitDroppedList() const;

    BOOL m_bEditHooked = FALSE;
    int m_nSelected = -1;
    int m_nInitial = -1;
    HWND m_hEdit = nullptr;  // the edit part; null for a drop-down list
};
