// The controls through which a user picks data. Each adds its filling and its read-back to a
// framework control; all that they show comes from the host.
//
// A fill empties the control and ends with the first entry selected. With no window nothing
// happens.
#pragma once

#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "framework/ADM_ComboBox.h"
#include "framework/ADM_ListBox.h"
#include "widgets/FrameworkSetup.h"

class ZXADLG_CDlgDataSource;
class ZXADLG_CDlgFileSource;

// One entry of a box over a table: the value that it stands for, and the string that names it.
template <class Value>
struct Choice {
    Value value;
    UINT uStringId;
};

// A box over a table of choices.
template <class Value>
class CZxDlgChoiceCombo : public ADM_ComboBox {
  public:
    // valueOfNone is what no selection stands for.
    explicit CZxDlgChoiceCombo(Value valueOfNone = {}) : m_none(valueOfNone) {}

    void Fill(std::span<const Choice<Value>> choices) {
        Clear();
        Append(choices);
        SetCurSel(0);
    }
    // Adds the choices behind those that are there.
    void Append(std::span<const Choice<Value>> choices) {
        for (const Choice<Value>& choice : choices) AppendOne(choice);
    }
    Value GetValue() {
        const int nItem = GetCurSel();
        return nItem >= 0 && std::cmp_less(nItem, m_vValues.size())
                   ? m_vValues[static_cast<std::size_t>(nItem)]
                   : m_none;
    }
    // The last entry of exactly this value; entry 0 when there is none.
    void SelectValue(Value value) {
        SetCurSel(0);
        for (std::size_t i = 0; i < m_vValues.size(); ++i) {
            if (m_vValues[i] == value) SetCurSel(static_cast<int>(i));
        }
    }

  protected:
    void Clear() {
        ResetContent();
        m_vValues.clear();
    }
    void AppendOne(const Choice<Value>& choice) {
        if (m_hWnd == nullptr) return;
        const int nItem = AddResourceString(GetFrameworkInstance(), choice.uStringId);
        if (nItem < 0) return;
        m_vValues.push_back(choice.value);
        if constexpr (!std::is_floating_point_v<Value>)
            SetItemData(nItem, static_cast<LPARAM>(choice.value));
    }

  private:
    Value m_none;
    std::vector<Value> m_vValues;  // of the items, in their order
};

// Group names; an item's position is the group as long as every group has a name.
class CZxDlgGroupCombo : public ADM_ComboBox {
  public:
    // Every group with a name, or with bAll false those that are visible.
    void Fill(ZXADLG_CDlgDataSource* pSource, bool bAll);
    // Selects the last group for an index beyond them.
    void SelectGroup(std::uint32_t uGroup);
    // 0 with no selection.
    std::uint32_t GetGroup();
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
};

// The set names of one group; the position is the set.
class CZxDlgDataSetCombo : public ADM_ComboBox {
  public:
    void Fill(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource);
    // Also kept for when the control does not exist yet.
    void SetSelection(int nSet) { SetCurSel(nSet); }
    // Selects the first set for an index beyond them.
    void SelectSet(std::uint32_t uSet);
    // 0 with no selection.
    std::uint32_t GetSet();
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
// 19, the user's list 20. Entry 0 stays selected for a code that is not there.
class CZxDlgFixedEpochCombo : public CZxDlgChoiceCombo<int> {
  public:
    static constexpr int kUserListCode = 20;

    void Fill(ZXADLG_CDlgDataSource* pSource);
    int GetCode() { return GetValue(); }
    void SelectByCode(int nCode) { SelectValue(nCode); }
};

// Five fixed factors between units; 1.0 with none selected, and entry 0 for a factor that is none
// of them.
class CZxDlgConversionFactorCombo : public CZxDlgChoiceCombo<double> {
  public:
    CZxDlgConversionFactorCombo() : CZxDlgChoiceCombo(1.0) {}

    void Fill();
    double GetFactor() { return GetValue(); }
    void SetFactor(double dFactor) { SelectValue(dFactor); }
};
