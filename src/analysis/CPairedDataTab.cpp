#include "analysis/CPairedDataTab.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/DialogMessages.h"
#include "contract/NotificationCodes.h"
#include "contract/SelectionList.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/Framework.h"

namespace {

using Model = CDataOptionsInterface;

// Indices of the radios: the typed list first, then the list box.
constexpr int kTypedIndex = 0;
constexpr int kSigDigits = 5;

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CPairedDataTab::CPairedDataTab(CDataOptionsInterface* pData, UINT uTemplateId, bool bDepList,
                               bool bReadOnly)
    : CDataTabBase(uTemplateId, pData, bReadOnly),
      m_bListMode(uTemplateId == IDD_PAIRED_LIST),
      m_bDepList(bDepList) {
    pData->SetUseDepVarList(bDepList);
    for (int i = 0; i < kVariables; ++i) {
        const auto n = static_cast<std::size_t>(i);
        RegisterControl(IDC_VARIABLE_FIRST + i, &m_abtnVariable[n]);
        RegisterControl(IDC_VARIABLE_NAME_FIRST + i, &m_albVariable[n]);
        RegisterControl(IDC_CONSTANT_FIRST + i, &m_atxtConstant[n]);
        m_atxtConstant[n].SetSigDigits(kSigDigits);
    }
    RegisterControl(IDC_DEPENDENT, &m_btnDependent);
    RegisterControl(IDC_PAIRED_UNUSED, &m_lblUnused);
    RegisterControl(IDC_DEPENDENT_NAME, &m_lblDependent);
    RegisterControl(IDC_RANGE_ALL, &m_chkAll);
    RegisterControl(IDC_RANGE_FROM_LABEL, &m_lblFrom);
    RegisterControl(IDC_RANGE_FROM, &m_txtFrom);
    RegisterControl(IDC_RANGE_FROM_SPIN, &m_spnFrom);
    RegisterControl(IDC_RANGE_TO_LABEL, &m_lblTo);
    RegisterControl(IDC_RANGE_TO, &m_txtTo);
    RegisterControl(IDC_RANGE_TO_SPIN, &m_spnTo);
    RegisterControl(IDC_RANGE_AVAILABLE, &m_lblAvailable);
    m_radList.Setup(this, IDC_SETS_TYPED, IDC_SETS_LISTED);
    m_txtFrom.SetGauge(&m_spnFrom);
    m_txtTo.SetGauge(&m_spnTo);
}

BOOL CPairedDataTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CDataTabBase::OnInitDialog(hWnd, hFocus, lParam);
    ShowAll();
    m_bReady = true;
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

BOOL CPairedDataTab::OnPageShow() {
    const BOOL bResult = CDataTabBase::OnPageShow();
    ShowAll();
    return bResult;
}

void CPairedDataTab::ShowAll() {
    const UpdateScope updating(m_bUpdating);
    if (m_pData->GetFlags().bUseStoredInfo != 0) m_lblAvailable.Show(SW_HIDE);
    m_radList.SetSelected(m_pData->GetDataSetSelectionMode(0) == Model::kTypedSets ? 0 : 1);
    m_chkAll.SetCheck(m_pData->GetUseFullDataRange() ? BST_CHECKED : BST_UNCHECKED);
    ShowButtons();
    SelectColumn(static_cast<int>(m_pData->GetIndepVarDataSetIndex()));
    CorrectAssignment();
    CheckRange(false);
    ShowVariables();
    ShowDependent();
    AssignDependent();
    ShowLimits();
    if (m_bListMode) {
        EnableListMode();
        StoreListMode();
    }
    CorrectRange();
}

void CPairedDataTab::ShowButtons() {
    m_btnDependent.SetWindowText(m_pData->GetDependentName());
    for (std::uint32_t i = 0; i < kVariables; ++i) {
        const bool bUsed = i < m_pData->GetConstantCount();
        m_abtnVariable[i].SetWindowText(bUsed ? m_pData->GetConstantName(i) : " ");
    }
}

void CPairedDataTab::CorrectAssignment() {
    if (!m_pData->IsSheetData() || !HasSeveralVariables()) return;
    const std::uint32_t uColumns = m_pData->GetSetCountInGroup();
    for (std::uint32_t i = 0; i < kVariables; ++i) {
        if (m_pData->GetIsConstant(i) || i < uColumns) continue;
        for (std::uint32_t j = 0; j < kVariables; ++j) m_pData->SetIsConstant(j, j + 1 != uColumns);
        return;
    }
}

void CPairedDataTab::ShowVariables() {
    const int nColumn = static_cast<int>(m_pData->GetIndepVarDataSetIndex());
    if (!HasSeveralVariables()) {
        GetActiveList().SelectNone();
        SelectColumn(nColumn);
        AssignVariable(0);
        return;
    }
    for (std::uint32_t i = 0; i < kVariables; ++i)
        m_atxtConstant[i].SetValue(m_pData->GetConstant(i));
    for (int i = 0; i < kVariables; ++i) {
        if (m_pData->GetIsConstant(static_cast<std::uint32_t>(i))) continue;
        SelectColumn(nColumn);
        AssignVariable(i);
        return;
    }
    m_atxtConstant[0].Enable(FALSE);
    GetActiveList().SelectNone();
    SelectColumn(nColumn);
    AssignVariable(0);
}

void CPairedDataTab::ShowDependent() {
    CZxDlgSetListBox& list = GetActiveList();
    if (!m_bDepList) {
        SelectColumn(static_cast<int>(m_pData->GetDepVarDataSetIndex()));
        return;
    }
    const int nCount = list.GetCount();
    std::vector<std::int32_t> vColumns = ParseSelection(m_pData->GetDepVarSelectionList(), 0);
    std::erase_if(vColumns, [nCount](std::int32_t n) { return n < 0 || n >= nCount; });
    if (vColumns.empty()) vColumns = {0};
    list.SelectItems(vColumns);
    char szText[kListTextSize];
    FormatSelection(szText, vColumns, 1);
    m_txtList.SetWindowText(szText);
}

void CPairedDataTab::ShowLimits() {
    // While no column is listed, as in the middle of typing, the limits stay as they are.
    const bool bNoColumn = m_bListMode && GetListSelCount() == 0;
    if (m_pData->GetFlags().bUseStoredInfo == 0 && !bNoColumn) {
        const std::uint32_t uCount = PointsForRange();
        const auto nCount = static_cast<int>(uCount);
        m_txtFrom.SetRange(1, nCount, 1);
        m_txtTo.SetRange(1, nCount, 1);
        m_lblAvailable.SetArgInt(0, 1);
        m_lblAvailable.SetArgInt(1, nCount);
        if (m_pData->GetLastDataIndex() <= m_pData->GetFirstDataIndex()) {
            m_pData->SetFirstDataIndex(0);
            m_pData->SetLastDataIndex(uCount == 0 ? 0 : uCount - 1);
        }
    }
    EnableRange();
}

std::uint32_t CPairedDataTab::PointsForRange() {
    if (!m_bListMode) return m_pData->GetPointCount();
    const std::vector<std::int32_t> vColumns = ParseSelection(m_pData->GetDepVarSelectionList(), 0);
    return m_pData->GetFewestPoints(vColumns.data(), static_cast<int>(vColumns.size()));
}

void CPairedDataTab::CorrectRange() {
    const std::uint32_t uCount = PointsForRange();
    const std::uint32_t uFirst = m_pData->GetFirstDataIndex() + 1;
    const std::uint32_t uLast = m_pData->GetLastDataIndex() + 1;
    if (uFirst == uLast) {
        m_pData->SetFirstDataIndex(0);
        m_pData->SetLastDataIndex(uCount == 0 ? 0 : uCount - 1);
    }
    if (uLast <= uFirst) m_pData->SetFirstDataIndex(0);
    if (m_pData->GetFlags().bUseStoredInfo == 0 && uCount > 0) {
        if (uFirst > uCount) m_pData->SetFirstDataIndex(0);
        // Required as it stands: a last row past the end moves the first row, not the last.
        if (uLast > uCount) m_pData->SetFirstDataIndex(uCount - 1);
    }
    const UpdateScope updating(m_bUpdating);
    m_txtFrom.SetValue(static_cast<int>(m_pData->GetFirstDataIndex() + 1));
    m_txtTo.SetValue(static_cast<int>(m_pData->GetLastDataIndex() + 1));
}

// --- Enabling --------------------------------------------------------------------------------

void CPairedDataTab::EnableRange() {
    const BOOL bRange = m_chkAll.GetCheck() != BST_CHECKED && !m_bDisabled;
    m_lblAvailable.Enable(bRange);
    m_lblFrom.Enable(bRange);
    m_txtFrom.Enable(bRange);
    m_spnFrom.Enable(bRange);
    m_lblTo.Enable(bRange);
    m_txtTo.Enable(bRange);
    m_spnTo.Enable(bRange);
}

void CPairedDataTab::EnableListMode() {
    const bool bTyped = m_radList.GetSelected() == kTypedIndex;
    m_txtList.Enable(bTyped && !m_bDisabled);
    const BOOL bList = !bTyped && !m_bDisabled;
    GetActiveList().Enable(bList);
    m_btnAll.Enable(bList);
    m_btnNone.Enable(bList);
    m_btnInvert.Enable(bList);
}

void CPairedDataTab::SetDisabled(bool bDisabled) {
    CDataTabBase::SetDisabled(bDisabled);
    if (!bDisabled && m_hWnd != nullptr) ShowAll();
}

// --- Assigning -------------------------------------------------------------------------------

int CPairedDataTab::CurrentColumn() {
    const std::vector<std::int32_t> vSelected = GetActiveList().GetSelection();
    return vSelected.empty() ? -1 : vSelected.front();
}

void CPairedDataTab::SelectColumn(int n) {
    if (m_bDepList) {
        GetActiveList().SelectItem(n);
    } else {
        GetActiveList().SetCurSel(n);
    }
}

void CPairedDataTab::AssignVariable(int nVariable) {
    if (m_bListMode) return;
    if (m_bDepList && GetListSelCount() > 1) {
        ShowErrorString(MessageOwner(), IDS_ONE_INDEPENDENT);
        return;
    }
    const UpdateScope updating(m_bUpdating);
    char szColumn[256] = {};
    const int nColumn = CurrentColumn();
    if (nColumn >= 0) {
        GetActiveList().GetItemText(nColumn, szColumn, static_cast<int>(sizeof szColumn));
        if (m_bReady) m_pData->SetIndepVarDataSetIndex(static_cast<std::uint32_t>(nColumn));
    }
    if (!HasSeveralVariables()) {
        m_albVariable[0].SetArg(0, szColumn);
        return;
    }
    const auto nCount = static_cast<int>(m_pData->GetConstantCount());
    for (int i = 0; i < kVariables; ++i) {
        const auto n = static_cast<std::size_t>(i);
        if (i >= nCount) {
            m_atxtConstant[n].Enable(FALSE);
            m_albVariable[n].SetArg(0, " ");
            m_abtnVariable[n].Enable(FALSE);
        } else if (i == nVariable) {
            m_atxtConstant[n].Enable(FALSE);
            m_albVariable[n].SetArg(0, szColumn);
            m_pData->SetIsConstant(static_cast<std::uint32_t>(i), false);
        } else {
            m_atxtConstant[n].Enable(!m_bDisabled);
            m_albVariable[n].SetArgString(0, GetFrameworkInstance(), IDS_CONSTANT);
            m_pData->SetIsConstant(static_cast<std::uint32_t>(i), true);
        }
    }
}

void CPairedDataTab::AssignDependent() {
    const std::vector<std::int32_t> vColumns = GetActiveList().GetSelection();
    // With nothing selected a button has nothing to assign; a list is then empty.
    if (vColumns.empty() && !m_bListMode) return;
    if (!vColumns.empty()) {
        m_pData->SetDepVarDataSetIndex(static_cast<std::uint32_t>(vColumns.front()));
    }
    if (m_bDepList) {
        char szText[kListTextSize];
        FormatSelection(szText, vColumns, 0);
        m_pData->SetDepVarSelectionList(szText);
    }
    ShowDependentName(vColumns);
}

// One column by its name, several by their numbers.
void CPairedDataTab::ShowDependentName(const std::vector<std::int32_t>& vColumns) {
    char szText[kListTextSize] = {};
    if (m_bDepList && vColumns.size() > 1) {
        FormatSelection(szText, vColumns, 1);
    } else if (!vColumns.empty()) {
        GetActiveList().GetItemText(vColumns.front(), szText, kListTextSize);
    }
    m_lblDependent.SetArg(0, szText);
}

// --- Checking and storing --------------------------------------------------------------------

bool CPairedDataTab::CheckRange(bool bReport) {
    if (m_chkAll.GetCheck() == BST_CHECKED || m_pData->GetFlags().bUseStoredInfo != 0) return true;
    const int nFirst = m_txtFrom.GetValue();
    const int nLast = m_txtTo.GetValue();
    if (nFirst != 0 && nLast != 0 && nFirst < nLast) return true;
    if (bReport) {
        ShowErrorString(MessageOwner(), IDS_RANGE_ORDER);
        m_txtFrom.SetFocus();
    }
    return false;
}

BOOL CPairedDataTab::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    if (!CDataTabBase::Validate(bSilent, ppFailed)) return FALSE;
    if (m_bListMode && GetListSelCount() == 0) {
        if (!bSilent) ShowErrorString(MessageOwner(), IDS_NO_DATA_SELECTED);
        if (ppFailed != nullptr) *ppFailed = &GetActiveList();
        return FALSE;
    }
    if (!CheckRange(!bSilent)) {
        if (ppFailed != nullptr) *ppFailed = &m_txtFrom;
        return FALSE;
    }
    return TRUE;
}

void CPairedDataTab::ReadControls() {
    CDataTabBase::ReadControls();
    if (!m_bReady) return;
    m_pData->SetSelectedGroupCount(0,
                                   m_bDepList ? static_cast<std::uint32_t>(GetListSelCount()) : 1);
}

int CPairedDataTab::GetListMode() {
    return m_radList.GetSelected() == kTypedIndex ? Model::kTypedSets : Model::kListedSets;
}

void CPairedDataTab::StoreListMode() {
    m_pData->SetDataSetSelectionMode(0, GetListMode());
    if (m_bReady) m_pData->Notify(kNotifyDataSelectionChanged);
}

// --- Events ----------------------------------------------------------------------------------

void CPairedDataTab::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    CDataTabBase::Notify(pSender, nId, nCode, nData);
    if (!m_bReady || m_bUpdating != 0) return;
    if (m_bReadOnly) {
        ShowLabels();
        ShowAll();
        GiveFocusAway();
        return;
    }
    if (pSender == &m_cmbGroup && nCode == ADMN_COMBOSELCHANGE) {
        ShowAll();
    } else if (m_bListMode) {
        OnListEvent(pSender, nCode);
    } else {
        OnAssignmentEvent(pSender, nCode);
    }
    OnRangeEvent(pSender, nCode);
}

void CPairedDataTab::OnAssignmentEvent(ADM_Wnd* pSender, int nCode) {
    if (pSender == &m_btnDependent && nCode == ADMN_CLICKED) {
        AssignDependent();
        ShowLimits();
        m_pData->Notify(kNotifyDataSelectionChanged);
        return;
    }
    for (int i = 0; i < kVariables; ++i) {
        const auto n = static_cast<std::size_t>(i);
        if (pSender == &m_abtnVariable[n] && nCode == ADMN_CLICKED) {
            AssignVariable(i);
            ShowLimits();
            m_pData->Notify(kNotifyDataSelectionChanged);
        } else if (pSender == &m_atxtConstant[n] && nCode == ADMN_TEXTCHANGE) {
            OnVariableText(i);
        }
    }
}

void CPairedDataTab::OnVariableText(int nVariable) {
    const auto i = static_cast<std::uint32_t>(nVariable);
    m_pData->SetConstant(i, m_atxtConstant[i].GetValue());
}

void CPairedDataTab::OnListEvent(ADM_Wnd* pSender, int nCode) {
    CZxDlgSetListBox& list = GetActiveList();
    const auto afterSelection = [this] {
        StoreListMode();
        const UpdateScope updating(m_bUpdating);
        AssignDependent();
        WriteListSelection(GetListMode());
        ShowLimits();
    };
    if (pSender == &list && nCode == ADMN_LISTSELCHANGE) {
        m_nActiveList = 0;
        afterSelection();
    } else if (nCode == ADMN_CLICKED &&
               (pSender == &m_btnAll || pSender == &m_btnNone || pSender == &m_btnInvert)) {
        if (pSender == &m_btnAll) list.SelectAll();
        if (pSender == &m_btnNone) list.SelectNone();
        if (pSender == &m_btnInvert) list.Invert();
        afterSelection();
    } else if (pSender == &m_radList && nCode == ADMN_CLICKED) {
        EnableListMode();
        StoreListMode();
    } else if (pSender == &m_txtList && nCode == ADMN_TEXTCHANGE) {
        m_pData->SetDataSetSelectionMode(0, GetListMode());
        WriteListText(GetListMode());
        {
            const UpdateScope updating(m_bUpdating);
            ShowDependentName(list.GetSelection());
            ShowLimits();
        }
        m_pData->Notify(kNotifyDataSelectionChanged);
    }
}

void CPairedDataTab::OnRowText() {
    if (!CheckRange(false)) return;
    // Both: the other field may have changed while the two were out of order.
    m_pData->SetFirstDataIndex(static_cast<std::uint32_t>(m_txtFrom.GetValue() - 1));
    m_pData->SetLastDataIndex(static_cast<std::uint32_t>(m_txtTo.GetValue() - 1));
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CPairedDataTab::OnRangeEvent(ADM_Wnd* pSender, int nCode) {
    if (nCode == ADMN_TEXTCHANGE && (pSender == &m_txtFrom || pSender == &m_txtTo)) {
        OnRowText();
    } else if (pSender == &m_chkAll && nCode == ADMN_CLICKED) {
        m_pData->SetUseFullDataRange(m_chkAll.GetCheck() == BST_CHECKED);
        EnableRange();
        CorrectRange();
        m_pData->Notify(kNotifyPairingChanged);
        if (CheckRange(false)) m_pData->Notify(kNotifyDataSelectionChanged);
    }
}
