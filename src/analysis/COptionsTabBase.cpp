#include "analysis/COptionsTabBase.h"

#include <utility>

#include "analysis/DialogMessages.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/Framework.h"

// --- Controls --------------------------------------------------------------------------------

COptionsTabBase::COptionsTabBase(CAnalysisOptionsInterfaceBase* pOptions,
                                 const ZXADLG_DlgParams* pParams, UINT uTemplateId,
                                 UINT uCaptionStringId)
    : ADM_TabSubDialog(GetFrameworkInstance(), MAKEINTRESOURCEA(uTemplateId),
                       MAKEINTRESOURCEA(uCaptionStringId)),
      m_pParams(pParams),
      m_bReadOnly(pParams->bReadOnly != 0),
      m_pOptions(pOptions) {
    // The id between the two buttons belongs to another page.
    constexpr int kDestinations[] = {IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE};
    RegisterControl(IDC_DESTINATION_GROUP, &m_grpDestination);
    m_radDestination.SetupIds(this, 2, kDestinations, nullptr);
    RegisterControl(IDC_DYNAMIC_LINK, &m_chkDynamicLink);
    RegisterControl(IDC_WRITE_REGION_INFO, &m_chkWriteRegionInfo);

    On(&m_radDestination, ADMN_CLICKED,
       [this] { m_pOptions->SetDestinationOption(m_radDestination.GetSelected()); });
    On(&m_chkDynamicLink, ADMN_CLICKED,
       [this] { m_pOptions->SetDynamicLink(m_chkDynamicLink.GetCheck() == BST_CHECKED); });
    On(&m_chkWriteRegionInfo, ADMN_CLICKED,
       [this] { m_pOptions->SetWriteRegionInfo(m_chkWriteRegionInfo.GetCheck() == BST_CHECKED); });
}

BOOL COptionsTabBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_TabSubDialog::OnInitDialog(hWnd, hFocus, lParam);
    ShowSharedOptions();
    ApplyVisibility();
    return bResult;
}

BOOL COptionsTabBase::FinishInitialization() {
    RefreshOptions();
    m_bReady = true;
    return TRUE;
}

// --- Display ---------------------------------------------------------------------------------

void COptionsTabBase::ShowSharedOptions() {
    const UpdateScope updating(m_bUpdating);
    SelectButton(m_radDestination, m_pOptions->GetDestinationOption());
    m_chkDynamicLink.SetCheck(m_pOptions->GetDynamicLink() ? BST_CHECKED : BST_UNCHECKED);
    m_chkWriteRegionInfo.SetCheck(m_pOptions->GetWriteRegionInfo() ? BST_CHECKED : BST_UNCHECKED);
}

void COptionsTabBase::RefreshOptions() {
    const UpdateScope updating(m_bUpdating);
    ShowSharedOptions();
    ShowOptions();
}

BOOL COptionsTabBase::OnPageShow() {
    ApplyVisibility();
    return ADM_TabSubDialog::OnPageShow();
}

// --- Enabling --------------------------------------------------------------------------------

void COptionsTabBase::ApplyVisibility() {
    const int nDestination = m_pParams->bShowDestination != 0 ? SW_SHOW : SW_HIDE;
    m_grpDestination.Show(nDestination);
    m_radDestination.Show(nDestination);
    m_chkDynamicLink.Show(m_pParams->bShowDynamicLink != 0 ? SW_SHOW : SW_HIDE);
    m_chkWriteRegionInfo.Show(m_pParams->bShowWriteRegionInfo != 0 ? SW_SHOW : SW_HIDE);
    const BOOL bEnable = !m_bDisabled;
    m_grpDestination.Enable(bEnable);
    m_radDestination.Enable(bEnable);
    m_chkDynamicLink.Enable(bEnable);
    m_chkWriteRegionInfo.Enable(bEnable);
}

BOOL COptionsTabBase::CanLeavePage() {
    return TRUE;
}

// --- Events ----------------------------------------------------------------------------------

void COptionsTabBase::On(ADM_Wnd* pControl, int nCode, EventTable::Step step) {
    m_events.On(pControl, nCode, std::move(step));
}

void COptionsTabBase::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_TabSubDialog::Notify(pSender, nId, nCode, nData);
    if (!m_bReady || m_bInEvent != 0) return;
    if (m_bReadOnly) {
        if (m_bUpdating == 0) RefreshOptions();
        const UpdateScope inEvent(m_bInEvent);
        FocusCancel(GetDialogWnd());
        return;
    }
    if (m_bUpdating != 0) return;
    m_events.Run(pSender, nCode);
}
