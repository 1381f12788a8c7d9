// The tab on which the user says which data an analysis works on: the group selector, one or two
// lists of sets, and the labels built from the host's nouns. Subclasses add how sets are chosen.
//
// The stored selection is a list text of 0-based numbers; what the user sees and types counts
// from 1. In read-only mode every event shows the stored selection again and gives the focus away.
#pragma once

#include <cstdint>
#include <vector>

#include "analysis/SelectionControls.h"
#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Static.h"
#include "framework/ADM_StaticText.h"
#include "framework/ADM_TabSubDialog.h"
#include "framework/ADM_Text.h"

class CDataTabBase : public ADM_TabSubDialog {
  public:
    CDataTabBase(UINT uTemplateId, CDataOptionsInterface* pData, bool bReadOnly);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;
    // Tells the other tabs that this one is about to be shown.
    BOOL OnPageShow() override;
    // Tells the other tabs, on success, that this one is about to be left.
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;

    // Enables or disables every control of the tab together.
    virtual void SetDisabled(bool bDisabled);

    // The list of the selection that the tab edits.
    CZxDlgSetListBox& GetActiveList() { return m_nActiveList == 0 ? m_lstSets : m_lstSets2; }
    int GetListSelCount() { return static_cast<int>(GetActiveList().GetSelection().size()); }
    int GetListSelItems(int nMax, int* pItems) { return GetActiveList().GetSelItems(nMax, pItems); }
    // The number of selected sets, or 2 where the sets are columns of a sheet.
    int GetSelectedCountSafe() { return m_bSetsSelectable ? GetListSelCount() : 2; }
    int GetComboSelection() { return m_cmbGroup.GetCurSel(); }

  protected:
    static constexpr int kListTextSize = 1000;

    // Captions from the host's nouns, the lists of the current group, and the stored selection's
    // place.
    void ShowLabels();
    void ChooseList();
    void CorrectGroup();
    void FillLists(std::uint32_t uGroup);
    // Fills the lists anew when they hold another group's sets. Answers whether they did.
    bool ListCurrentGroup();
    // The user chose another group.
    void ChangeGroup();
    // The stored list texts become selections of the lists, and the active one the text of the
    // edit.
    void ReadListText();
    // The edited text becomes the selection of the active list and, in set mode 3 or 4, is stored.
    void WriteListText(int eMode);
    // The selection of the active list becomes the text of the edit and, in mode 3 or 4, is stored.
    void WriteListSelection(int eMode);
    void GiveFocusAway();
    HWND MessageOwner() const { return m_hWnd; }

    CDataOptionsInterface* m_pData;
    int m_nActiveList = 0;
    bool m_bDualList;
    bool m_bSetsSelectable;
    bool m_bReadOnly;
    bool m_bDisabled = false;
    bool m_bReady = false;
    BOOL m_bUpdating = 0;

    ADM_RadioButtons m_radDataSet;
    CZxDlgSetListBox m_lstSets;
    CZxDlgSetListBox m_lstSets2;
    ADM_Static m_lblGroup;
    CZxDlgGroupCombo m_cmbGroup;
    ADM_Static m_lblSets;
    ADM_Text m_txtList;
    ADM_Button m_btnAll;
    ADM_Button m_btnNone;
    ADM_Button m_btnInvert;
    ADM_StaticText m_lblCount;

  private:
    const char* GetStoredList(int n) const;
    void StoreList(const std::vector<std::int32_t>& vItems);
    void ShowListText(const std::vector<std::int32_t>& vItems);
    std::vector<std::int32_t> ParseEdit();

    std::uint32_t m_uListedGroup = 0;  // whose sets the lists hold
};
