// The controls through which a user picks data. Each adds its filling and its read-back to a
// framework control; all that they show comes from the host.
//
// A fill empties the control and ends with the first entry selected. With no window nothing
// happens.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "framework/ADM_ComboBox.h"
#include "framework/ADM_ListBox.h"

class ADM_RadioButtons;
class ZXADLG_CDlgDataSource;
class ZXADLG_CDlgFileSource;

// Selects the button of an index from outside: the first one for an index beyond the set.
void SelectButton(ADM_RadioButtons& radButtons, int nIndex);

// Group names; an item's position is the group as long as every group has a name.
class CZxDlgGroupCombo : public ADM_ComboBox {
  public:
    // Every group with a name, or with bAll false those that are visible.
    void Fill(ZXADLG_CDlgDataSource* pSource, bool bAll);
};

// The set names of one group, several of which can be selected; an item's position is the set.
class CZxDlgSetListBox : public ADM_ListBox {
  public:
    // With bNumbered each name stands behind its number, counted from 1.
    void Fill(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource, bool bNumbered);
    // Selects the sets that the host shows.
    void SelectVisible(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource);
    void SelectAll();
    void SelectNone();
    void Invert();
    void SelectItem(int nItem);
    // Selects these items and no others. Items beyond the list are passed over.
    void SelectItems(std::span<const std::int32_t> items);
    std::vector<std::int32_t> GetSelection() const;
    int GetItemText(int nItem, LPSTR szBuffer, int nSize) const {
        return GetText(nItem, szBuffer, nSize);
    }

  private:
    void SelectRange(int nFirst, int nLast, bool bSelect);
    bool IsMultiple() const;
};

// Region names; the item data is the region id.
class CZxDlgRegionCombo : public ADM_ComboBox {
  public:
    // Every region with a name and an id that is not negative.
    void Fill(ZXADLG_CDlgDataSource* pSource);
    // The id of the selected region; 0 with none.
    int GetRegionId();
    // Selects entry 0 when there is no such region.
    void SelectById(int nRegionId);
    // The same; answers the id of the region that is then selected, 0 with none.
    int SelectOffered(int nRegionId) { return SelectById(nRegionId), GetRegionId(); }
};

// The set names of one group; the position is the set.
class CZxDlgDataSetCombo : public ADM_ComboBox {
  public:
    void Fill(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource);
    // Also kept for when the control does not exist yet.
    void SetSelection(int nSet) { SetCurSel(nSet); }
};

// Waveform names; the item data is the waveform number.
class CZxDlgWaveformCombo : public ADM_ComboBox {
  public:
    // One entry "Not a waveform file" when there is none.
    void Fill(ZXADLG_CDlgDataSource* pSource);
    // The number of the selected waveform; 0 for a file without one.
    std::uint32_t GetWaveform();
    // Selects entry 0 when no waveform has this number.
    void SelectByValue(std::uint32_t uNumber);
};

// The group names of a control file; several can be selected.
class CZxDlgGroupListBox : public CZxDlgSetListBox {
  public:
    void Fill(ZXADLG_CDlgFileSource* pSource);
};

// The epoch variables that the data has; the item data is the code: levels 0 to 9, durations 10 to
// 19, the user's list 20.
class CZxDlgFixedEpochCombo : public ADM_ComboBox {
  public:
    static constexpr int kUserListCode = 20;

    void Fill(ZXADLG_CDlgDataSource* pSource);
    int GetCode();
    // Entry 0 stays selected for a code that is not there.
    void SelectByCode(int nCode);
};

// Five fixed factors between units.
class CZxDlgConversionFactorCombo : public ADM_ComboBox {
  public:
    void Fill();
    // 1.0 beyond the fifth entry.
    double GetFactor();
    // Selects the entry of exactly this factor, or entry 0.
    void SetFactor(double dFactor);
};
