// The tab on which the user says which data an analysis works on: the group selector, one or two
// lists of sets, and the labels built from the host's nouns. Subclasses add how sets are chosen.
//
// The stored selection is a list text of 0-based numbers; what the user sees and types counts
// from 1.
#pragma once

#include <cstdint>
#include <vector>

#include "analysis/CEditPage.h"
#include "contract/CDataOptionsInterface.h"
#include "framework/ADM_StaticText.h"
#include "framework/ADM_TabSubDialog.h"
#include "framework/ADM_Text.h"

class CDataTabBase : public CEditPage<ADM_TabSubDialog> {
  public:
    CDataTabBase(UINT uTemplateId, CDataOptionsInterface* pData, bool bReadOnly);

    void UpdateControls() override;
    // Tells the other tabs that this one is about to be shown.
    BOOL OnPageShow() override;
    // Tells the other tabs, on success, that this one is about to be left.
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;

    // The list of the selection that the tab edits.
    CZxDlgSetListBox& GetActiveList() { return m_nActiveList == 0 ? m_lstSets : m_lstSets2; }
    int GetListSelCount() { return static_cast<int>(GetActiveList().GetSelection().size()); }
    int GetListSelItems(int nMax, int* pItems) { return GetActiveList().GetSelItems(nMax, pItems); }
    // The number of selected sets, or 2 where the sets are columns of a sheet.
    int GetSelectedCountSafe() { return m_bSetsSelectable ? GetListSelCount() : 2; }
    int GetComboSelection() { return m_cmbGroup.GetCurSel(); }
    // Finds fault with a selection of no data.
    virtual CheckResult CheckSelected() { return {}; }

  protected:
    static constexpr int kListTextSize = 1000;

    bool SetUp() override;
    void Undo() override;

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
    // Binds the tools of a list to what follows each.
    void BindTools(const Step& after);
    // Shows the message of a finding, unless silent, and names the control that it points to.
    BOOL Passes(const CheckResult& result, BOOL bSilent, ADM_Wnd** ppFailed);

    CDataOptionsInterface* m_pData;
    int m_nActiveList = 0;
    bool m_bDualList;
    bool m_bSetsSelectable;

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

    // Shows items in the edit, counted from 1, and reads what is typed there, counted from 0.
    void ShowListText(const std::vector<std::int32_t>& vItems);
    std::vector<std::int32_t> ParseEdit();

  private:
    const char* GetStoredList(int n) const;
    void StoreList(const std::vector<std::int32_t>& vItems);

    std::uint32_t m_uListedGroup = 0;  // whose sets the lists hold
};
