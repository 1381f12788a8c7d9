// A set of radio buttons as one control whose value is the index of the checked button, or the
// number that stands for that button. The set has no window of its own (it is registered without an
// id), and so is never validated; its buttons are found in the dialog by their ids, which follow
// each other.
//
// The set belongs to the dialog that Setup names and works before that dialog opens and after it
// closes.
#pragma once

#include <memory>
#include <vector>

#include "framework/ADM_Wnd.h"

class ADM_Dialog;

class ADM_RadioButtons : public ADM_Wnd {
  public:
    ADM_RadioButtons();

    void OnAttach() override;
    void ReadControl() override;
    void SaveInitialValue() override;
    BOOL HasChanged() override;
    BOOL IsHandle(HWND hWnd) override;
    void OnCommand(HWND hWnd, int nId, HWND hWndCtl, int nCode) override;
    void Show(int nCmdShow) override;
    void Enable(BOOL bEnable) override;

    // Builds the set of the buttons nFirstId to nLastId and registers it with the dialog. With
    // values, each button stands for the value at its place. Returns 0 when the ids are out of
    // order or the set is registered already.
    BOOL Setup(ADM_Dialog* pDialog, int nFirstId, int nLastId);
    BOOL Setup(ADM_Dialog* pDialog, int nFirstId, int nLastId, int nValues, const int* pnValues);
    // The same with the nValues values of type int behind nValues.
    BOOL SetupValues(ADM_Dialog* pDialog, int nFirstId, int nLastId, int nValues, ...);

    // The same for buttons whose ids do not follow each other, in the order of pnIds; pnValues may
    // be null.
    BOOL SetupIds(ADM_Dialog* pDialog, int nButtons, const int* pnIds, const int* pnValues);

    // Indices count from 0 and an index beyond the set is ignored.
    void SetSelected(int nIndex);
    int GetSelected();

    // Whether the buttons stand for values of their own.
    bool HasValues() const { return !m_anValues.empty(); }
    // Selects the button that stands for nValue; returns 0 when none does.
    BOOL SetValue(int nValue);
    // The value of the selected button; 0 for a button with no value.
    int GetValue();

    // An index of -1 means all buttons.
    void EnableButton(int nIndex, BOOL bEnable);
    void ShowButton(int nIndex, int nCmdShow);

    void SetButtonText(int nIndex, LPCSTR szText);
    // Returns the length of the text copied, 0 with no window.
    int GetButtonText(int nIndex, LPSTR szBuffer, int nSize);

    int GetCount() const { return m_nCount; }

  protected:
    struct Button {
        int nId = 0;
        HWND hWnd = nullptr;
    };

    HWND ButtonWindow(int nIndex) const;
    void FindButtons();
    void CheckSelected();

    ADM_Dialog* m_pDialog = nullptr;
    int m_nCount = 0;
    std::unique_ptr<Button[]> m_pButtons;
    BOOL m_bBound = FALSE;
    int m_nInitial = 0;
    int m_nSelected = 0;
    std::vector<int> m_anValues;
};
