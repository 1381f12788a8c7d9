#include "analysis/CUntabbedDialogBase.h"

#include <algorithm>

#include "ZXADLG.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

// --- A page and a dialog in one --------------------------------------------------------------

CSinglePage::CSinglePage(HWND hwndParent, UINT uTemplateId, bool bReadOnly) : CEditPage(bReadOnly) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(uTemplateId));
}

BOOL CSinglePage::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CEditPage::OnInitDialog(hWnd, hFocus, lParam);
    if (IsReadOnly()) DressReadOnly(hWnd);
    return bResult;
}

void CSinglePage::OnOK() {
    const bool bPassed =
        std::all_of(m_vChecks.begin(), m_vChecks.end(), [this](const Check& check) {
            const CheckResult result = check(TypedTexts(m_hWnd));
            return !result.has_value() || Answer(*result);
        });
    if (bPassed && PrepareOK()) CEditPage::OnOK();
}

bool CSinglePage::Answer(const Finding& finding) {
    const UINT nButton = ShowFinding(m_hWnd, finding);
    const Finding::Answer* pAnswer = finding.FindAnswer(nButton);
    if (pAnswer != nullptr && pAnswer->step) pAnswer->step();
    const Finding::Next eNext = pAnswer != nullptr ? pAnswer->eNext : Finding::Next::kStay;
    if (eNext == Finding::Next::kCancel) EndDialogWith(IDCANCEL);
    if (eNext == Finding::Next::kStay) FocusControl(*this, finding.nControl);
    return eNext == Finding::Next::kGoOn;
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
