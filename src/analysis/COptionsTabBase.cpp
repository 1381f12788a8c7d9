#include "analysis/COptionsTabBase.h"

#include <utility>

#include "analysis/DialogMessages.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "support/Framework.h"

// --- Controls
// -------------------------------------------------------------------------------------

COptionsTabBase::COptionsTabBase(CAnalysisOptionsInterfaceBase* pOptions,
                                 const ZXADLG_DlgParams* pParams, UINT uTemplateId,
                                 UINT uCaptionStringId)
    : ADM_TabSubDialog(GetFrameworkInstance(), MAKEINTRESOURCEA(uTemplateId),
                       MAKEINTRESOURCEA(uCaptionStringId)),
      m_pParams(pParams),
      m_bReadOnly(pParams->bReadOnly != 0),
      m_pOptions(pOptions) {
    // The id between the two buttons belongs to another page.
    constexpr int kValues[] = {0, -1, 1};
    RegisterControl(IDC_DESTINATION_GROUP, &m_grpDestination);
    m_radDestination.Setup(this, IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE, 3, kValues);
    RegisterControl(IDC_DYNAMIC_LINK, &m_chkDynamicLink);
    RegisterControl(IDC_WRITE_REGION_INFO, &m_chkWriteRegionInfo);

    On(&m_radDestination, ADMN_CLICKED,
       [this] { m_pOptions->SetDestinationOption(m_radDestination.GetValue()); });
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

// --- Display
// --------------------------------------------------------------------------------------

void COptionsTabBase::ShowSharedOptions() {
    const UpdateScope updating(m_bUpdating);
    // A stored option that is none of the two shows as the first.
    m_radDestination.SetValue(m_pOptions->GetDestinationOption() == 1 ? 1 : 0);
    m_chkDynamicLink.SetCheck(m_pOptions->GetDynamicLink() ? BST_CHECKED : BST_UNCHECKED);
    m_chkWriteRegionInfo.SetCheck(m_pOptions->GetWriteRegionInfo() ? BST_CHECKED : BST_UNCHECKED);
}

void COptionsTabBase::RefreshOptions() {
    const UpdateScope updating(m_bUpdating);
    ShowSharedOptions();
    ShowOptions();
}

void COptionsTabBase::SelectButton(ADM_RadioButtons& radButtons, int nIndex) {
    radButtons.SetSelected(nIndex >= 0 && nIndex < radButtons.GetCount() ? nIndex : 0);
}

BOOL COptionsTabBase::OnPageShow() {
    ApplyVisibility();
    return ADM_TabSubDialog::OnPageShow();
}

// --- Enabling
// -------------------------------------------------------------------------------------

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

// --- Events
// ---------------------------------------------------------------------------------------

void COptionsTabBase::On(ADM_Wnd* pControl, int nCode, std::function<void()> step) {
    m_vBindings.push_back({pControl, nCode, std::move(step)});
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
    for (const Binding& binding : m_vBindings) {
        if (binding.pControl == pSender && binding.nCode == nCode) binding.step();
    }
}
