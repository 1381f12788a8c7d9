#include "analysis/SelectionControls.h"

#include <charconv>
#include <cstring>
#include <iterator>
#include <string>

#include "ZXADLG.h"
#include "framework/ADM_RadioButtons.h"
#include "ids.h"
#include "text/BoundedText.h"
#include "widgets/Framework.h"

namespace {

constexpr int kNameSize = 256;  // names are cut to 255 characters

// While a long list changes, it is not drawn item by item.
class RedrawScope {
  public:
    explicit RedrawScope(const ADM_Wnd& control) : m_control(control) {
        m_control.SetRedraw(FALSE);
    }
    ~RedrawScope() {
        m_control.SetRedraw(TRUE);
        m_control.Invalidate(TRUE);
    }
    RedrawScope(const RedrawScope&) = delete;
    RedrawScope& operator=(const RedrawScope&) = delete;

  private:
    const ADM_Wnd& m_control;
};

}  // namespace

void SelectButton(ADM_RadioButtons& radButtons, int nIndex) {
    radButtons.SetSelected(nIndex >= 0 && nIndex < radButtons.GetCount() ? nIndex : 0);
}

// --- Groups ----------------------------------------------------------------------------------

void CZxDlgGroupCombo::Fill(ZXADLG_CDlgDataSource* pSource, bool bAll) {
    ResetContent();
    const std::uint32_t uGroups = pSource->GetGroupCount();
    for (std::uint32_t g = 0; g < uGroups; ++g) {
        const char* szName = pSource->GetGroupName(g);
        if (szName == nullptr || *szName == '\0') continue;
        char szKept[kNameSize];
        CopyText(szKept, szName);
        if (bAll || pSource->IsGroupVisible(g)) AddString(szKept);
    }
    SetCurSel(0);
}

void CZxDlgGroupListBox::Fill(ZXADLG_CDlgFileSource* pSource) {
    const RedrawScope redraw(*this);
    ResetContent();
    const std::int32_t nGroups = pSource->GetGroupCount();
    for (std::int32_t g = 0; g < nGroups; ++g) {
        char szName[kNameSize];
        CopyText(szName, pSource->GetGroupName(static_cast<std::uint32_t>(g)));
        AddString(szName);
    }
    SetCurSel(0);
}

// --- Sets ------------------------------------------------------------------------------------

void CZxDlgSetListBox::Fill(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource, bool bNumbered) {
    if (m_hWnd == nullptr) return;
    const RedrawScope redraw(*this);
    ResetContent();
    const std::uint32_t uSets = pSource->GetSetCount(uGroup);
    Send(LB_INITSTORAGE, uSets, static_cast<LPARAM>(uSets) * 16);
    const std::size_t uWidth = std::to_string(uSets).size();
    for (std::uint32_t s = 0; s < uSets; ++s) {
        char szItem[kNameSize + 16];
        BoundedWriter writer(szItem, static_cast<int>(sizeof szItem));
        if (bNumbered) {
            const std::string sNumber = std::to_string(s + 1);
            writer.Put(std::string(uWidth - sNumber.size(), ' '));
            writer.Put(sNumber);
            writer.Put(": ");
        }
        char szName[kNameSize];
        CopyText(szName, pSource->GetSetName(uGroup, s));
        writer.Put(szName);
        if (AddString(szItem) < 0) break;
    }
    SetCurSel(0);
}

bool CZxDlgSetListBox::IsMultiple() const {
    return m_hWnd != nullptr &&
           (GetWindowLongPtrA(m_hWnd, GWL_STYLE) & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

void CZxDlgSetListBox::SelectRange(int nFirst, int nLast, bool bSelect) {
    if (nFirst > nLast) return;
    // With the ends the other way round the range is taken out of the selection.
    Send(LB_SELITEMRANGEEX, static_cast<WPARAM>(bSelect ? nFirst : nLast),
         bSelect ? nLast : nFirst);
}

void CZxDlgSetListBox::SelectItems(std::span<const std::int32_t> items) {
    if (!IsMultiple()) {
        if (!items.empty()) SetCurSel(items.front());
        return;
    }
    const RedrawScope redraw(*this);
    SetSel(-1, FALSE);
    const int nCount = GetCount();
    for (std::size_t i = 0; i < items.size();) {
        std::size_t nEnd = i + 1;
        while (nEnd < items.size() && items[nEnd] == items[nEnd - 1] + 1) ++nEnd;
        const int nFirst = items[i] < 0 ? 0 : items[i];
        const int nLast = items[nEnd - 1] < nCount ? items[nEnd - 1] : nCount - 1;
        if (nFirst == nLast) {
            SetSel(nFirst, TRUE);
        } else {
            SelectRange(nFirst, nLast, true);
        }
        i = nEnd;
    }
}

void CZxDlgSetListBox::SelectVisible(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource) {
    std::vector<std::int32_t> vVisible;
    const int nCount = GetCount();
    for (int s = 0; s < nCount; ++s) {
        if (pSource->IsSetVisible(uGroup, static_cast<std::uint32_t>(s))) vVisible.push_back(s);
    }
    SelectItems(vVisible);
    SetCurSel(0);
}

void CZxDlgSetListBox::SelectAll() {
    const RedrawScope redraw(*this);
    SetSel(-1, TRUE);
}

void CZxDlgSetListBox::SelectNone() {
    const RedrawScope redraw(*this);
    SetSel(-1, FALSE);
}

void CZxDlgSetListBox::Invert() {
    const std::vector<std::int32_t> vSelected = GetSelection();
    std::vector<std::int32_t> vOthers;
    const int nCount = GetCount();
    std::size_t nNext = 0;
    for (int i = 0; i < nCount; ++i) {
        if (nNext < vSelected.size() && vSelected[nNext] == i) {
            ++nNext;
        } else {
            vOthers.push_back(i);
        }
    }
    SelectItems(vOthers);
}

void CZxDlgSetListBox::SelectItem(int nItem) {
    // An index of -1 would mean every item.
    if (nItem >= 0) SetSel(nItem, TRUE);
}

std::vector<std::int32_t> CZxDlgSetListBox::GetSelection() const {
    if (m_hWnd == nullptr) return {};
    if (!IsMultiple()) {
        const int nItem = Send(LB_GETCURSEL);
        return nItem >= 0 ? std::vector<std::int32_t>{nItem} : std::vector<std::int32_t>{};
    }
    const int nCount = GetSelCount();
    std::vector<std::int32_t> vItems(static_cast<std::size_t>(nCount > 0 ? nCount : 0));
    if (nCount > 0) GetSelItems(nCount, vItems.data());
    return vItems;
}

void CZxDlgDataSetCombo::Fill(std::uint32_t uGroup, ZXADLG_CDlgDataSource* pSource) {
    const RedrawScope redraw(*this);
    ResetContent();
    const std::uint32_t uSets = pSource->GetSetCount(uGroup);
    for (std::uint32_t s = 0; s < uSets; ++s) {
        char szName[kNameSize];
        CopyText(szName, pSource->GetSetName(uGroup, s));
        if (AddString(szName) < 0) break;
    }
    SetCurSel(0);
}

// --- Regions ---------------------------------------------------------------------------------

void CZxDlgRegionCombo::Fill(ZXADLG_CDlgDataSource* pSource) {
    ResetContent();
    const std::uint32_t uRegions = pSource->GetRegionCount();
    for (std::uint32_t uPosition = 0; uPosition < uRegions; ++uPosition) {
        const char* szName = pSource->GetRegionName(uPosition);
        if (szName == nullptr) continue;
        char szKept[kNameSize];
        CopyText(szKept, szName);
        const std::int32_t nId = pSource->GetRegionId(uPosition);
        if (nId < 0) continue;
        SetItemData(AddString(szKept), nId);
    }
    SetCurSel(0);
}

int CZxDlgRegionCombo::GetRegionId() {
    const int nItem = GetCurSel();
    return nItem >= 0 && nItem < GetCount() ? static_cast<int>(GetItemData(nItem)) : 0;
}

void CZxDlgRegionCombo::SelectById(int nRegionId) {
    if (SelectData(0, nRegionId) < 0) SetCurSel(0);
}

// --- Waveforms and epochs --------------------------------------------------------------------

void CZxDlgWaveformCombo::Fill(ZXADLG_CDlgDataSource* pSource) {
    ResetContent();
    const std::uint32_t uWaveforms = pSource->GetEpochCount();
    if (uWaveforms == 0) AddString("Not a waveform file");
    for (std::uint32_t i = 0; i < uWaveforms; ++i) {
        std::uint32_t uNumber = 0;
        char szName[kNameSize];
        CopyText(szName, pSource->GetEpochName(i, &uNumber));
        SetItemData(AddString(szName), static_cast<LPARAM>(uNumber));
    }
    SetCurSel(0);
}

std::uint32_t CZxDlgWaveformCombo::GetWaveform() {
    const int nItem = GetCurSel();
    return nItem >= 0 && nItem < GetCount() ? static_cast<std::uint32_t>(GetItemData(nItem)) : 0;
}

void CZxDlgWaveformCombo::SelectByValue(std::uint32_t uNumber) {
    if (SelectData(0, static_cast<LPARAM>(uNumber)) < 0) SetCurSel(0);
}

namespace {

constexpr int kEpochCodes = 20;
constexpr int kLevelCodes = 10;
constexpr std::int32_t kFirstEpochRegion = 26;

// Levels have the odd ids and durations the even ones.
UINT EpochStringId(int nCode) {
    return nCode < kLevelCodes
               ? static_cast<UINT>(IDS_EPOCH_A_LEVEL + 2 * nCode)
               : static_cast<UINT>(IDS_EPOCH_A_DURATION + 2 * (nCode - kLevelCodes));
}

bool HasRegion(ZXADLG_CDlgDataSource* pSource, std::int32_t nRegionId) {
    const std::uint32_t uRegions = pSource->GetRegionCount();
    for (std::uint32_t uPosition = 0; uPosition < uRegions; ++uPosition) {
        if (pSource->GetRegionId(uPosition) == nRegionId) return true;
    }
    return false;
}

}  // namespace

void CZxDlgFixedEpochCombo::Fill(ZXADLG_CDlgDataSource* pSource) {
    ResetContent();
    for (int nCode = 0; nCode < kEpochCodes; ++nCode) {
        if (!HasRegion(pSource, nCode + kFirstEpochRegion)) continue;
        SetItemData(AddResourceString(GetFrameworkInstance(), EpochStringId(nCode)), nCode);
    }
    if (pSource->HasUserList()) {
        SetItemData(AddResourceString(GetFrameworkInstance(), IDS_USER_LIST), kUserListCode);
    }
    SetCurSel(0);
}

int CZxDlgFixedEpochCombo::GetCode() {
    const int nItem = GetCurSel();
    return nItem >= 0 && nItem < GetCount() ? static_cast<int>(GetItemData(nItem)) : 0;
}

void CZxDlgFixedEpochCombo::SelectByCode(int nCode) {
    SetCurSel(0);
    const int nCount = GetCount();
    for (int i = 0; i < nCount && i <= kUserListCode; ++i) {
        if (GetItemData(i) == nCode) SetCurSel(i);
    }
}

// --- Conversion factors ----------------------------------------------------------------------

namespace {

constexpr double kFactors[] = {0.000001, 0.001, 1.0, 1000.0, 1000000.0};

}  // namespace

void CZxDlgConversionFactorCombo::Fill() {
    ResetContent();
    for (std::size_t i = 0; i < std::size(kFactors); ++i) {
        AddResourceString(GetFrameworkInstance(),
                          static_cast<UINT>(IDS_CONVERSION_FACTOR_FIRST + i));
    }
    SetCurSel(0);
}

double CZxDlgConversionFactorCombo::GetFactor() {
    const int nItem = GetCurSel();
    return nItem >= 0 && nItem < static_cast<int>(std::size(kFactors)) ? kFactors[nItem] : 1.0;
}

void CZxDlgConversionFactorCombo::SetFactor(double dFactor) {
    SetCurSel(0);
    for (std::size_t i = 0; i < std::size(kFactors); ++i) {
        if (kFactors[i] == dFactor) SetCurSel(static_cast<int>(i));
    }
}
