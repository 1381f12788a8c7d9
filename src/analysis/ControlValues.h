// How each family of controls shows a value of a record, gives it back, and which notification
// tells that the user changed it. A row that binds a control to a field is built from these three.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>

#include "analysis/SelectionControls.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Text.h"
#include "text/BoundedText.h"

inline int EditedCode(const ADM_Button&) {
    return ADMN_CLICKED;
}
inline int EditedCode(const ADM_RadioButtons&) {
    return ADMN_CLICKED;
}
inline int EditedCode(const ADM_Text&) {
    return ADMN_TEXTCHANGE;
}
inline int EditedCode(const ADM_ComboBox&) {
    return ADMN_COMBOSELCHANGE;
}
inline int EditedCode(const ADM_ListBox&) {
    return ADMN_LISTSELCHANGE;
}

// A check box.
inline void ShowValue(ADM_Button& chk, bool bChecked) {
    chk.SetCheck(bChecked ? BST_CHECKED : BST_UNCHECKED);
}
inline bool ReadValue(ADM_Button& chk) {
    return chk.GetCheck() == BST_CHECKED;
}

// A radio set: the number that stands for the button where it has such numbers, else its index. A
// value that no button stands for selects the first one.
inline void ShowValue(ADM_RadioButtons& rad, int nValue) {
    if (rad.HasValues() && rad.SetValue(nValue)) return;
    const bool bIndex = !rad.HasValues() && nValue >= 0 && nValue < rad.GetCount();
    rad.SetSelected(bIndex ? nValue : 0);
}
inline int ReadValue(ADM_RadioButtons& rad) {
    return rad.HasValues() ? rad.GetValue() : rad.GetSelected();
}

// A field that holds a number.
template <class Control>
requires requires(Control& txt, typename Control::Value value) {
    txt.SetValue(value);
}
void ShowValue(Control& txt, typename Control::Value value) {
    txt.SetValue(value);
}
template <class Control>
requires requires(Control& txt, typename Control::Value value) {
    txt.SetValue(value);
}
auto ReadValue(Control& txt) {
    return txt.GetValue();
}

// What a field shows, pulled into its range: fields of whole numbers give what they show.
template <class Control>
typename Control::Value ClampedValue(Control& txt) {
    typename Control::Value low = 0, high = 0;
    txt.GetRange(&low, &high);
    return std::max(low, std::min(high, txt.GetTypedValue()));
}

// A count of a record in a field of whole numbers, and the reverse: one too large for the field
// shows as its largest, one below 0 counts as 0.
inline std::int32_t ShownCount(std::uint32_t uCount) {
    constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
    return std::cmp_less(uCount, kMost) ? static_cast<std::int32_t>(uCount) : kMost;
}
inline std::uint32_t TypedCount(std::int32_t nCount) {
    return nCount > 0 ? static_cast<std::uint32_t>(nCount) : 0;
}

// Boxes that pick what the host offers; each shows its first entry for what is not offered.
inline void ShowValue(CZxDlgRegionCombo& cmb, std::int64_t nRegionId) {
    cmb.SelectById(static_cast<int>(nRegionId));
}
inline int ReadValue(CZxDlgRegionCombo& cmb) {
    return cmb.GetRegionId();
}
inline void ShowValue(CZxDlgWaveformCombo& cmb, std::uint32_t uNumber) {
    cmb.SelectByValue(uNumber);
}
inline std::uint32_t ReadValue(CZxDlgWaveformCombo& cmb) {
    return cmb.GetWaveform();
}
// The last group for one beyond them.
inline void ShowValue(CZxDlgGroupCombo& cmb, std::uint32_t uGroup) {
    cmb.SelectGroup(uGroup);
}
inline std::uint32_t ReadValue(CZxDlgGroupCombo& cmb) {
    return cmb.GetGroup();
}
inline void ShowValue(CZxDlgDataSetCombo& cmb, std::uint32_t uSet) {
    cmb.SelectSet(uSet);
}
inline std::uint32_t ReadValue(CZxDlgDataSetCombo& cmb) {
    return cmb.GetSet();
}
template <class Value>
void ShowValue(CZxDlgChoiceCombo<Value>& cmb, Value value) {
    cmb.SelectValue(value);
}
template <class Value>
Value ReadValue(CZxDlgChoiceCombo<Value>& cmb) {
    return cmb.GetValue();
}
