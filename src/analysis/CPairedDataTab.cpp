#include "analysis/CPairedDataTab.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/DataChecks.h"
#include "contract/NotificationCodes.h"
#include "contract/SelectionList.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

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
        Label(IDC_VARIABLE_FIRST + i, m_abtnVariable[n]);
        Label(IDC_VARIABLE_NAME_FIRST + i, m_albVariable[n]);
        Label(IDC_CONSTANT_FIRST + i, m_atxtConstant[n]);
        m_atxtConstant[n].SetSigDigits(kSigDigits);
    }
    Label(IDC_DEPENDENT, m_btnDependent);
    Label(IDC_PAIRED_UNUSED, m_lblUnused);
    Label(IDC_DEPENDENT_NAME, m_lblDependent);
    Label(IDC_RANGE_ALL, m_chkAll);
    Label(IDC_RANGE_FROM_LABEL, m_lblFrom);
    Label(IDC_RANGE_FROM, m_txtFrom);
    Spinner(IDC_RANGE_FROM_SPIN, m_spnFrom, m_txtFrom);
    Label(IDC_RANGE_TO_LABEL, m_lblTo);
    Label(IDC_RANGE_TO, m_txtTo);
    Spinner(IDC_RANGE_TO_SPIN, m_spnTo, m_txtTo);
    Label(IDC_RANGE_AVAILABLE, m_lblAvailable);
    m_radList.Setup(this, IDC_SETS_TYPED, IDC_SETS_LISTED);

    OnEvent(m_cmbGroup, ADMN_COMBOSELCHANGE, [this] { ShowRecord(); });
    if (m_bListMode) {
        BindList();
    } else {
        BindAssignment();
    }
    BindRange();
}

void CPairedDataTab::BindAssignment() {
    OnEvent(m_btnDependent, ADMN_CLICKED, [this] {
        AssignDependent();
        ShowLimits();
        m_pData->Notify(kNotifyDataSelectionChanged);
    });
    for (int i = 0; i < kVariables; ++i) {
        const auto n = static_cast<std::size_t>(i);
        OnEvent(m_abtnVariable[n], ADMN_CLICKED, [this, i] {
            AssignVariable(i);
            ShowLimits();
            m_pData->Notify(kNotifyDataSelectionChanged);
        });
        OnEvent(m_atxtConstant[n], ADMN_TEXTCHANGE, [this, n] {
            m_pData->SetConstant(static_cast<std::uint32_t>(n), m_atxtConstant[n].GetValue());
        });
    }
}

void CPairedDataTab::BindList() {
    OnEvent(m_lstSets, ADMN_LISTSELCHANGE, [this] {
        m_nActiveList = 0;
        ChangeListSelection();
    });
    BindTools([this] { ChangeListSelection(); });
    OnEvent(m_radList, ADMN_CLICKED, [this] { StoreListMode(); });
    OnEvent(m_txtList, ADMN_TEXTCHANGE, [this] { ChangeListText(); });
}

void CPairedDataTab::BindRange() {
    OnEvent(m_txtFrom, ADMN_TEXTCHANGE, [this] { ChangeRow(); });
    OnEvent(m_txtTo, ADMN_TEXTCHANGE, [this] { ChangeRow(); });
    OnEvent(m_chkAll, ADMN_CLICKED, [this] { ChangeRange(); });
}

// --- Display ---------------------------------------------------------------------------------

BOOL CPairedDataTab::OnPageShow() {
    const BOOL bResult = CDataTabBase::OnPageShow();
    ShowRecord();
    return bResult;
}

void CPairedDataTab::ShowOptions() {
    if (m_pData->GetFlags().bUseStoredInfo != 0) m_lblAvailable.Show(SW_HIDE);
    m_radList.SetSelected(m_pData->GetDataSetSelectionMode(0) == Model::kTypedSets ? 0 : 1);
    ShowValue(m_chkAll, m_pData->GetUseFullDataRange());
    ShowButtons();
    SelectColumn(static_cast<int>(m_pData->GetIndepVarDataSetIndex()));
    CorrectAssignment();
    CheckRange(false);
    ShowVariables();
    ShowDependent();
    AssignDependent();
    ShowLimits();
    if (m_bListMode) StoreListMode();
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

// --- Rules -----------------------------------------------------------------------------------

void CPairedDataTab::UpdateControls() {
    CDataTabBase::UpdateControls();
    EnableControls(
        {&m_lblAvailable, &m_lblFrom, &m_txtFrom, &m_spnFrom, &m_lblTo, &m_txtTo, &m_spnTo},
        !ReadValue(m_chkAll));
    if (m_bListMode) {
        const bool bTyped = m_radList.GetSelected() == kTypedIndex;
        EnableControls({&m_txtList}, bTyped);
        EnableControls({&m_btnAll, &m_btnNone, &m_btnInvert}, !bTyped);
        // A list stays alive in read-only mode, to be scrolled.
        GetActiveList().Enable((!bTyped || IsReadOnly()) && !IsDisabled());
        m_lblSets.Enable(GetActiveList().IsEnabled());
    } else if (HasSeveralVariables()) {
        for (int i = 0; i < kVariables; ++i) {
            const auto n = static_cast<std::size_t>(i);
            const bool bUsed = i < static_cast<int>(m_pData->GetConstantCount());
            EnableControls({&m_abtnVariable[n]}, bUsed);
            EnableControls({&m_atxtConstant[n]}, bUsed && i != m_nAssigned);
        }
    }
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
        ShowFinding(m_hWnd, {.nStringId = IDS_ONE_INDEPENDENT});
        return;
    }
    const UpdateScope updating(m_bUpdating);
    char szColumn[256] = {};
    const int nColumn = CurrentColumn();
    if (nColumn >= 0) {
        GetActiveList().GetItemText(nColumn, szColumn, static_cast<int>(sizeof szColumn));
        if (IsReady()) m_pData->SetIndepVarDataSetIndex(static_cast<std::uint32_t>(nColumn));
    }
    if (!HasSeveralVariables()) {
        m_albVariable[0].SetArg(0, szColumn);
        return;
    }
    m_nAssigned = nVariable;
    const auto nCount = static_cast<int>(m_pData->GetConstantCount());
    for (int i = 0; i < kVariables; ++i) {
        const auto n = static_cast<std::size_t>(i);
        if (i >= nCount) {
            m_albVariable[n].SetArg(0, " ");
        } else if (i == nVariable) {
            m_albVariable[n].SetArg(0, szColumn);
            m_pData->SetIsConstant(static_cast<std::uint32_t>(i), false);
        } else {
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

CheckResult CPairedDataTab::FindRangeFault() {
    if (ReadValue(m_chkAll) || m_pData->GetFlags().bUseStoredInfo != 0) return {};
    return CheckRowOrder(m_txtFrom.GetValue(), m_txtTo.GetValue(), IDC_RANGE_FROM);
}

bool CPairedDataTab::CheckRange(bool bReport) {
    const CheckResult result = FindRangeFault();
    if (result.has_value() && bReport) {
        ShowFinding(m_hWnd, *result);
        m_txtFrom.SetFocus();
    }
    return !result.has_value();
}

CheckResult CPairedDataTab::CheckSelected() {
    if (!m_bListMode) return {};
    const int nWhere =
        m_radList.GetSelected() == kTypedIndex ? IDC_SET_LIST_TEXT : GetActiveList().GetControlId();
    return CheckAnySetSelected(GetListSelCount(), nWhere);
}

BOOL CPairedDataTab::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    return CDataTabBase::Validate(bSilent, ppFailed) &&
           Passes(CheckSelected(), bSilent, ppFailed) &&
           Passes(FindRangeFault(), bSilent, ppFailed);
}

void CPairedDataTab::ReadControls() {
    CDataTabBase::ReadControls();
    if (!IsReady()) return;
    m_pData->SetSelectedGroupCount(0,
                                   m_bDepList ? static_cast<std::uint32_t>(GetListSelCount()) : 1);
}

int CPairedDataTab::GetListMode() {
    return m_radList.GetSelected() == kTypedIndex ? Model::kTypedSets : Model::kListedSets;
}

void CPairedDataTab::StoreListMode() {
    m_pData->SetDataSetSelectionMode(0, GetListMode());
    if (IsReady()) m_pData->Notify(kNotifyDataSelectionChanged);
}

// --- Events ----------------------------------------------------------------------------------

void CPairedDataTab::ChangeListSelection() {
    StoreListMode();
    AssignDependent();
    WriteListSelection(GetListMode());
    ShowLimits();
}

void CPairedDataTab::ChangeListText() {
    m_pData->SetDataSetSelectionMode(0, GetListMode());
    WriteListText(GetListMode());
    ShowDependentName(GetActiveList().GetSelection());
    ShowLimits();
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CPairedDataTab::ChangeRow() {
    if (!CheckRange(false)) return;
    // Both: the other field may have changed while the two were out of order.
    m_pData->SetFirstDataIndex(static_cast<std::uint32_t>(m_txtFrom.GetValue() - 1));
    m_pData->SetLastDataIndex(static_cast<std::uint32_t>(m_txtTo.GetValue() - 1));
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CPairedDataTab::ChangeRange() {
    m_pData->SetUseFullDataRange(ReadValue(m_chkAll));
    CorrectRange();
    m_pData->Notify(kNotifyPairingChanged);
    if (CheckRange(false)) m_pData->Notify(kNotifyDataSelectionChanged);
}
