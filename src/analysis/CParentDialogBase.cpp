#include "analysis/CParentDialogBase.h"

#include <charconv>

#include "ZXADLG.h"
#include "analysis/DialogMessages.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "widgets/Framework.h"

CParentDialogBase::CParentDialogBase(HWND hwndParent, ZXADLG_DataOptions* pData,
                                     ZXADLG_CDlgDataSource* pSource,
                                     const ZXADLG_DlgParams* pParams, UINT uTemplateId,
                                     UINT uTabControlId)
    : m_pDataRecord(pData),
      m_pFlags(std::make_unique<ZXADLG_DataTabFlags>()),
      m_pSource(pSource),
      m_pParams(pParams),
      m_bUseDataOptions(pParams->bUseDataOptions != 0),
      m_bReadOnly(pParams->bReadOnly != 0) {
    m_hInstance = GetFrameworkInstance();
    m_hParentWnd = hwndParent;
    SetTemplate(MAKEINTRESOURCEA(uTemplateId));
    SetTabControlId(static_cast<int>(uTabControlId));
}

CParentDialogBase::~CParentDialogBase() {
    m_pDataTab.reset();
    m_pDataOptions.reset();
    m_pFlags.reset();
}

BOOL CParentDialogBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = ADM_TabbedDialog::OnInitDialog(hWnd, hFocus, lParam);
    if (m_bReadOnly) DressReadOnly(hWnd);
    return bResult;
}

BOOL CParentDialogBase::FinishInitialization(int nLastTab) {
    // A memory that points past the last tab is of a dialog with more tabs than this one.
    if (nLastTab != 0 && !m_bReadOnly && nLastTab < GetPageCount()) SelectPage(nLastTab);
    m_bReady = true;
    return TRUE;
}

BOOL CParentDialogBase::FailInitialization() {
    OnCancel();
    return FALSE;
}

void CParentDialogBase::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    ADM_TabbedDialog::Notify(pSender, nId, nCode, nData);
    if (!m_bReadOnly || m_bInDataCheck != 0 || m_hWnd == nullptr) return;
    // Deliberately checked here and nowhere else: a dialog in edit mode never checks its data.
    CheckData();
    FocusCancel(m_hWnd);
}

void CParentDialogBase::OnOK() {
    if (!m_bReadOnly && m_pParams->bDeferredRun == 0 && !m_pDataOptions->UpdateDataInfo()) {
        ShowErrorString(m_hWnd, IDS_NO_DATA_PROPERTIES);
        return;
    }
    if (ValidateAll()) EndDialogWith(ZXADLG_OK);
}

void CParentDialogBase::OnCancel() {
    if (m_bInitFailed) {
        m_bInitFailed = false;
        const UpdateScope check(m_bInDataCheck);
        ShowErrorString(m_hWnd, IDS_INIT_FAILED);
    }
    EndDialogWith(ZXADLG_CANCEL);
}

void CParentDialogBase::CheckData() {
    // Once the user has been told, there is nothing to add until the dialog is closed.
    if (m_bInitFailed) return;
    const UpdateScope check(m_bInDataCheck);
    const std::uint32_t uMinSets =
        m_pSource->GetDataKind() == CDataOptionsInterface::kSheetData ? 2 : 1;
    const std::uint32_t uGroups = m_pSource->GetGroupCount();
    for (std::uint32_t uGroup = 0; uGroup < uGroups; ++uGroup) {
        if (!CheckGroup(uGroup, uMinSets)) m_bInitFailed = true;
    }
}

bool CParentDialogBase::CheckGroup(std::uint32_t uGroup, std::uint32_t uMinSets) {
    const std::uint32_t uSets = m_pSource->GetSetCount(uGroup);
    for (std::uint32_t uSet = 0; uSet < uSets; ++uSet) {
        const bool bEmpty = m_pSource->GetPointCount(uGroup, uSet, nullptr, 0) == 0;
        const std::uint32_t uSetsNow = m_pSource->GetSetCount(uGroup);
        if (bEmpty || uSetsNow == 0) {
            ShowErrorString(m_hWnd, IDS_EMPTY_SETS);
            return false;
        }
        if (uSetsNow < uMinSets) {
            char szMin[12] = {};
            std::to_chars(szMin, szMin + sizeof szMin - 1, uMinSets);
            ShowErrorString(m_hWnd, IDS_TOO_FEW_SETS, szMin);
            return false;
        }
    }
    return true;
}
