#include "analysis/CUntabbedDialogBase.h"

#include "ZXADLG.h"
#include "analysis/DialogMessages.h"
#include "analysis/SelectionControls.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/Framework.h"

// --- Controls --------------------------------------------------------------------------------

CUntabbedDialogBase::CUntabbedDialogBase(HWND hwndParent, UINT uTemplateId,
                                         ZXADLG_CDlgDataSource* pSource,
                                         const ZXADLG_DlgParams* pParams, ZXADLG_DataOptions* pData)
    : m_pSource(pSource),
      m_pParams(pParams),
      m_pDataRecord(pData),
      m_bReadOnly(pParams->bReadOnly != 0) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(uTemplateId));
    // The id between the two buttons belongs to another control.
    constexpr int kDestinations[] = {IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE};
    RegisterControl(IDC_DESTINATION_GROUP, &m_grpDestination);
    m_radDestination.SetupIds(this, 2, kDestinations, nullptr);
    RegisterControl(IDC_DYNAMIC_LINK, &m_chkDynamicLink);
}

BOOL CUntabbedDialogBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
    if (m_bReadOnly) DressReadOnly(hWnd);
    ShowSharedOptions();
    const int nDestination = m_pParams->bShowDestination != 0 ? SW_SHOW : SW_HIDE;
    m_grpDestination.Show(nDestination);
    m_radDestination.Show(nDestination);
    m_chkDynamicLink.Show(m_pParams->bShowDynamicLink != 0 ? SW_SHOW : SW_HIDE);
    return bResult;
}

// --- Display ---------------------------------------------------------------------------------

void CUntabbedDialogBase::ShowSharedOptions() {
    if (m_pOptions == nullptr) return;
    const UpdateScope updating(m_bUpdating);
    SelectButton(m_radDestination, m_pOptions->GetDestinationOption());
    m_chkDynamicLink.SetCheck(m_pOptions->GetDynamicLink() ? BST_CHECKED : BST_UNCHECKED);
}

// --- Events ----------------------------------------------------------------------------------

void CUntabbedDialogBase::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_Dialog::Notify(pSender, nId, nCode, nData);
    if (!m_bReady || m_bUpdating != 0) return;
    if (m_bReadOnly) {
        ShowSharedOptions();
        FocusCancel(m_hWnd);
        return;
    }
    if (m_pOptions == nullptr || nCode != ADMN_CLICKED) return;
    if (pSender == &m_radDestination) {
        m_pOptions->SetDestinationOption(m_radDestination.GetSelected());
    } else if (pSender == &m_chkDynamicLink) {
        m_pOptions->SetDynamicLink(m_chkDynamicLink.GetCheck() == BST_CHECKED);
    }
}

void CUntabbedDialogBase::OnOK() {
    if (!m_bReadOnly && m_pParams->bDeferredRun == 0 && m_pDataOptionsObject != nullptr &&
        !m_pDataOptionsObject->UpdateDataInfo()) {
        ShowErrorString(m_hWnd, IDS_NO_DATA_PROPERTIES);
        return;
    }
    ReadControls();
    ADM_Wnd* pFailed = nullptr;
    if (!Validate(FALSE, &pFailed)) {
        if (pFailed != nullptr) pFailed->SetFocus();
        return;
    }
    if (IsModified()) OnApply();
    EndDialogWith(ZXADLG_OK);
}
