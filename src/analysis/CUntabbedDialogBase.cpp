#include "analysis/CUntabbedDialogBase.h"

#include "ids.h"
#include "widgets/FrameworkSetup.h"

// --- A page and a dialog in one --------------------------------------------------------------

CSinglePage::CSinglePage(HWND hwndParent, UINT uTemplateId, bool bReadOnly)
    : CCheckedDialog(bReadOnly) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(uTemplateId));
}

BOOL CSinglePage::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CCheckedDialog::OnInitDialog(hWnd, hFocus, lParam);
    if (IsReadOnly()) DressReadOnly(hWnd);
    return bResult;
}

void CSinglePage::OnOK() {
    if (PassChecks() && PrepareOK()) CCheckedDialog::OnOK();
}

void CSinglePage::EndDialogWith(INT_PTR nResult) {
    if (nResult == IDOK && !IsReadOnly()) OnAccepted();
    CCheckedDialog::EndDialogWith(nResult);
}

// --- With the shared options and a model of the data -------------------------------------------

CUntabbedDialogBase::CUntabbedDialogBase(HWND hwndParent, UINT uTemplateId,
                                         ZXADLG_CDlgDataSource* pSource,
                                         const ZXADLG_DlgParams* pParams, ZXADLG_DataOptions* pData)
    : CSinglePage(hwndParent, uTemplateId, pParams->bReadOnly != 0),
      m_pSource(pSource),
      m_pParams(pParams),
      m_pDataRecord(pData) {
    m_results.Register(this);
}

void CUntabbedDialogBase::SetOptionsInterface(CAnalysisOptionsInterfaceBase* pOptions) {
    m_pOptions = pOptions;
    BindResults(m_results, pOptions);
}

void CUntabbedDialogBase::UpdateControls() {
    m_results.ShowWhere(*m_pParams);
}

bool CUntabbedDialogBase::PrepareOK() {
    if (IsReadOnly() || m_pParams->bDeferredRun != 0 || m_pDataOptionsObject == nullptr)
        return true;
    if (m_pDataOptionsObject->UpdateDataInfo()) return true;
    ShowFinding(m_hWnd, {.nStringId = IDS_NO_DATA_PROPERTIES});
    return false;
}
