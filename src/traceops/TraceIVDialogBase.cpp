#include "traceops/TraceIVDialogBase.h"

#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "ids.h"

CTraceIVDialogBase::CTraceIVDialogBase(HWND hwndParent, UINT uTemplateId, ZXADLG_DataOptions* pData,
                                       ZXADLG_CDlgDataSource* pSource,
                                       const ZXADLG_DlgParams* pParams)
    : CUntabbedDialogBase(hwndParent, uTemplateId, pSource, pParams, pData),
      // The plots choose groups, sets and regions by controls of their own.
      m_flags{.bAllowRegion = 0, .bShowGroups = 0, .bShowSetTools = 0},
      m_events(pParams->bReadOnly != 0, [this] { ShowOptions(); }) {
    RegisterControl(IDC_AXES_X_WAVEFORM, &m_cmbXWaveform);
    RegisterControl(IDC_AXES_Y_WAVEFORM, &m_cmbYWaveform);
    RegisterControl(IDC_AXES_X_GROUP, &m_cmbXGroup);
    RegisterControl(IDC_AXES_Y_GROUP, &m_cmbYGroup);
    RegisterControl(IDC_AXES_X_INVERT, &m_chkXInvert);
    RegisterControl(IDC_AXES_Y_INVERT, &m_chkYInvert);
    RegisterControl(IDC_WRITE_REGION_INFO, &m_chkWriteRegionInfo);
    OnCheck(m_chkWriteRegionInfo, [this](bool b) { m_pOptions->SetWriteRegionInfo(b); });
}

BOOL CTraceIVDialogBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CUntabbedDialogBase::OnInitDialog(hWnd, hFocus, lParam);
    m_chkWriteRegionInfo.Show(m_pParams->bShowWriteRegionInfo != 0 ? SW_SHOW : SW_HIDE);
    return bResult;
}

std::uint32_t CTraceIVDialogBase::SelectGroup(CZxDlgGroupCombo& cmbGroup, std::uint32_t uGroup) {
    const int nCount = cmbGroup.GetCount();
    const auto uCount = static_cast<std::uint32_t>(nCount > 0 ? nCount : 0);
    cmbGroup.SetCurSel(static_cast<int>(uGroup < uCount ? uGroup : uCount - 1));
    return SelectedGroup(cmbGroup);
}

std::uint32_t CTraceIVDialogBase::SelectedGroup(CZxDlgGroupCombo& cmbGroup) {
    const int nItem = cmbGroup.GetCurSel();
    return nItem >= 0 ? static_cast<std::uint32_t>(nItem) : 0;
}

void CTraceIVDialogBase::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    CUntabbedDialogBase::Notify(pSender, nId, nCode, nData);
    m_events.Serve(m_hWnd, pSender, nCode);
}
