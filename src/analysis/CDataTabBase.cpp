#include "analysis/CDataTabBase.h"

#include "ZXADLG.h"
#include "analysis/CaptionText.h"
#include "analysis/DialogMessages.h"
#include "contract/NotificationCodes.h"
#include "contract/SelectionList.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/Framework.h"

namespace {

// Keeps the first visible item of a list where it is.
class TopIndexScope {
  public:
    explicit TopIndexScope(CZxDlgSetListBox& list) : m_list(list), m_nTop(list.GetTopIndex()) {}
    ~TopIndexScope() { m_list.SetTopIndex(m_nTop); }
    TopIndexScope(const TopIndexScope&) = delete;
    TopIndexScope& operator=(const TopIndexScope&) = delete;

  private:
    CZxDlgSetListBox& m_list;
    int m_nTop;
};

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CDataTabBase::CDataTabBase(UINT uTemplateId, CDataOptionsInterface* pData, bool bReadOnly)
    : ADM_TabSubDialog(GetFrameworkInstance(), MAKEINTRESOURCEA(uTemplateId),
                       MAKEINTRESOURCEA(IDS_TAB_DATA)),
      m_pData(pData),
      m_bDualList(uTemplateId == IDD_UNITARY_DATA_DUAL),
      m_bSetsSelectable(!pData->IsSheetData()),
      m_bReadOnly(bReadOnly) {
    m_radDataSet.Setup(this, IDC_DATA_SET_1, IDC_DATA_SET_2);
    RegisterControl(IDC_SET_LIST, &m_lstSets);
    RegisterControl(IDC_SET_LIST_2, &m_lstSets2);
    RegisterControl(IDC_GROUP_LABEL, &m_lblGroup);
    RegisterControl(IDC_GROUP, &m_cmbGroup);
    RegisterControl(IDC_SET_LABEL, &m_lblSets);
    RegisterControl(IDC_SET_LIST_TEXT, &m_txtList);
    RegisterControl(IDC_SELECT_ALL, &m_btnAll);
    RegisterControl(IDC_SELECT_NONE, &m_btnNone);
    RegisterControl(IDC_SELECT_INVERT, &m_btnInvert);
    RegisterControl(IDC_SET_COUNT, &m_lblCount);
}

BOOL CDataTabBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_TabSubDialog::OnInitDialog(hWnd, hFocus, lParam);
    m_txtList.LimitText(kListTextSize - 1);
    const UpdateScope updating(m_bUpdating);
    const bool bShowGroups = m_pData->GetFlags().bShowGroups != 0;
    m_cmbGroup.Show(bShowGroups ? SW_SHOW : SW_HIDE);
    m_lblGroup.Show(bShowGroups ? SW_SHOW : SW_HIDE);
    if (bShowGroups) m_cmbGroup.Fill(m_pData->GetDataSource(), true);
    FillLists(0);
    ShowLabels();
    // The lists began with the sets of the first group; a stored selection may be in another one.
    ListCurrentGroup();
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

void CDataTabBase::FillLists(std::uint32_t uGroup) {
    m_lstSets.Fill(uGroup, m_pData->GetDataSource(), false);
    m_lstSets2.Fill(uGroup, m_pData->GetDataSource(), false);
    m_uListedGroup = uGroup;
}

bool CDataTabBase::ListCurrentGroup() {
    if (m_uListedGroup == m_pData->GetGroup()) return false;
    FillLists(m_pData->GetGroup());
    return true;
}

void CDataTabBase::ShowLabels() {
    ZXADLG_CDlgDataSource* pSource = m_pData->GetDataSource();
    char szCaption[128];
    if (m_pData->GetFlags().bShowGroups != 0) {
        m_cmbGroup.SetCurSel(static_cast<int>(m_pData->GetGroup()));
        const char* szGroup = pSource->GetGroupLabel();
        FormatCaption(szCaption, szGroup != nullptr ? "Select %s:" : "Select Group:", szGroup);
        m_lblGroup.SetWindowText(szCaption);
    }
    const char* szSet = pSource->GetSetLabel();
    FormatCaption(szCaption, szSet != nullptr ? "Select %ss:" : "Select Set:", szSet);
    m_lblSets.SetWindowText(szCaption);
    FormatCaption(szCaption, szSet != nullptr ? "Select %s Set &1:" : "Select Set &1:", szSet);
    m_radDataSet.SetButtonText(0, szCaption);
    FormatCaption(szCaption, szSet != nullptr ? "Select %s Set &2:" : "Select Set &2:", szSet);
    m_radDataSet.SetButtonText(1, szCaption);
    if (m_bReadOnly) m_radDataSet.SetSelected(m_nActiveList);
    ChooseList();
    CorrectGroup();
}

void CDataTabBase::ChooseList() {
    if (!m_bDualList) return;
    m_nActiveList = m_radDataSet.GetSelected();
    m_lstSets.Enable(m_nActiveList == 0 && !m_bDisabled);
    m_lstSets2.Enable(m_nActiveList == 1 && !m_bDisabled);
    m_pData->SetSelectedDataSet(static_cast<std::uint32_t>(m_nActiveList));
    m_cmbGroup.SetCurSel(static_cast<int>(m_pData->GetGroup()));
}

void CDataTabBase::CorrectGroup() {
    if (!m_pData->IsSheetData()) return;
    const std::uint32_t uSets = m_pData->GetSetCountInGroup();
    if (uSets == 0) return;
    m_pData->SetGroup1Index(m_pData->GetGroup1Index());
    if (m_pData->GetIndepVarDataSetIndex() >= uSets) m_pData->SetIndepVarDataSetIndex(uSets - 1);
    if (m_pData->GetDepVarDataSetIndex() >= uSets) m_pData->SetDepVarDataSetIndex(uSets - 1);
}

BOOL CDataTabBase::OnPageShow() {
    m_pData->Notify(kNotifyDataTabShown);
    return ADM_TabSubDialog::OnPageShow();
}

const char* CDataTabBase::GetStoredList(int n) const {
    // On a sheet the selection is kept as the list of dependent columns, once there is one.
    const char* szDependent = m_pData->GetDepVarSelectionList();
    return m_pData->IsSheetData() && *szDependent != '\0' ? szDependent
                                                          : m_pData->GetSelectionList(n);
}

void CDataTabBase::ReadListText() {
    const UpdateScope updating(m_bUpdating);
    const int nLists = m_bDualList ? 2 : 1;
    for (int n = 0; n < nLists; ++n) {
        CZxDlgSetListBox& list = n == 0 ? m_lstSets : m_lstSets2;
        const std::vector<std::int32_t> vStored = ParseSelection(GetStoredList(n), 0);
        // Deliberately inclusive: a number equal to the count passes.
        const auto nBound = static_cast<std::int32_t>(m_pData->GetSetCountInGroup());
        std::vector<std::int32_t> vItems;
        for (const std::int32_t nNumber : vStored) {
            if (nNumber <= nBound) vItems.push_back(nNumber);
        }
        if (vItems.empty()) vItems = {0};
        const TopIndexScope top(list);
        list.SelectItems(vItems);
        if (n == m_nActiveList) ShowListText(vItems);
    }
}

void CDataTabBase::ShowListText(const std::vector<std::int32_t>& vItems) {
    char szText[kListTextSize];
    FormatSelection(szText, vItems, 1);
    m_txtList.SetWindowText(szText);
}

// --- Enabling --------------------------------------------------------------------------------

void CDataTabBase::SetDisabled(bool bDisabled) {
    m_bDisabled = bDisabled;
    for (ADM_Wnd* pControl : m_vControls) pControl->Enable(!bDisabled);
}

// --- Storing ---------------------------------------------------------------------------------

// The items that the edit names; the user counts from 1.
std::vector<std::int32_t> CDataTabBase::ParseEdit() {
    char szText[kListTextSize];
    m_txtList.GetWindowText(szText, kListTextSize);
    return ParseSelection(szText, 1);
}

void CDataTabBase::StoreList(const std::vector<std::int32_t>& vItems) {
    char szText[kListTextSize];
    FormatSelection(szText, vItems, 0);
    if (m_pData->IsSheetData()) {
        m_pData->SetDepVarSelectionList(szText);
    } else {
        m_pData->SetSelectionList(m_nActiveList, szText);
    }
}

void CDataTabBase::WriteListText(int eMode) {
    CZxDlgSetListBox& list = GetActiveList();
    const std::vector<std::int32_t> vItems = ParseEdit();
    {
        const UpdateScope updating(m_bUpdating);
        const TopIndexScope top(list);
        list.SelectItems(vItems);
    }
    if (eMode == CDataOptionsInterface::kListedSets || eMode == CDataOptionsInterface::kTypedSets) {
        StoreList(vItems);
    }
}

void CDataTabBase::WriteListSelection(int eMode) {
    const UpdateScope updating(m_bUpdating);
    const std::vector<std::int32_t> vItems = GetActiveList().GetSelection();
    if (vItems.empty()) {
        m_txtList.SetWindowText("");
        return;
    }
    if (eMode == CDataOptionsInterface::kListedSets || eMode == CDataOptionsInterface::kTypedSets) {
        StoreList(vItems);
    }
    ShowListText(vItems);
}

// --- Events ----------------------------------------------------------------------------------

void CDataTabBase::ChangeGroup() {
    const int nItem = m_cmbGroup.GetCurSel();
    if (nItem < 0) return;
    const auto uGroup = static_cast<std::uint32_t>(nItem);
    if (m_pData->IsSheetData()) {
        m_pData->SetPairedGroupIndex(uGroup);
    } else if (m_nActiveList == 0) {
        m_pData->SetGroup1Index(uGroup);
    } else {
        m_pData->SetGroup2Index(uGroup);
    }
    {
        const UpdateScope updating(m_bUpdating);
        FillLists(uGroup);
        ChooseList();
        CorrectGroup();
    }
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CDataTabBase::GiveFocusAway() {
    const UpdateScope updating(m_bUpdating);
    FocusCancel(GetDialogWnd());
}

void CDataTabBase::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_TabSubDialog::Notify(pSender, nId, nCode, nData);
    if (!m_bReady || m_bReadOnly || m_bUpdating != 0) return;
    if (pSender == &m_cmbGroup && nCode == ADMN_COMBOSELCHANGE) ChangeGroup();
    if (pSender == &m_radDataSet && nCode == ADMN_CLICKED) ChooseList();
}

BOOL CDataTabBase::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    if (!ADM_TabSubDialog::Validate(bSilent, ppFailed)) return FALSE;
    m_pData->Notify(kNotifyDataTabLeft);
    return TRUE;
}
