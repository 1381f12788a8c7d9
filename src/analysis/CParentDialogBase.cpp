#include "analysis/CParentDialogBase.h"

#include <map>

#include "analysis/CPairedDataTab.h"
#include "analysis/CUnitaryDataTab.h"
#include "analysis/DataChecks.h"
#include "analysis/DialogMessages.h"
#include "ids.h"
#include "widgets/FrameworkSetup.h"

CParentDialogBase::CParentDialogBase(HWND hwndParent, ZXADLG_DataOptions* pData,
                                     ZXADLG_CDlgDataSource* pSource,
                                     const ZXADLG_DlgParams* pParams, UINT uTemplateId,
                                     UINT uTabControlId)
    : CCheckedDialog(pParams->bReadOnly != 0),
      m_pDataRecord(pData),
      m_pFlags(std::make_unique<ZXADLG_DataTabFlags>()),
      m_pSource(pSource),
      m_pParams(pParams),
      m_bUseDataOptions(pParams->bUseDataOptions != 0),
      m_nLastTab(LastTab(uTemplateId)) {
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

namespace {

// By the template of the dialog. An entry keeps its place for an open dialog's reference.
std::map<UINT, int>& LastTabs() {
    static std::map<UINT, int> s_lastTabs;
    return s_lastTabs;
}

}  // namespace

int& CParentDialogBase::LastTab(UINT uTemplateId) {
    return LastTabs()[uTemplateId];
}

void CParentDialogBase::ForgetTabs() {
    for (auto& [uTemplateId, nTab] : LastTabs()) nTab = 0;
}

// --- Building --------------------------------------------------------------------------------

void CParentDialogBase::OfferData(const ZXADLG_DataTabFlags& flags) {
    *m_pFlags = flags;
    m_pDataOptions =
        std::make_unique<CDataOptionsInterface>(m_pDataRecord, m_pSource, m_pFlags.get());
    m_pDataOptions->SetDeferred(!HasLiveData());
}

void CParentDialogBase::AddOptionsTab(std::unique_ptr<ADM_TabSubDialog> pTab) {
    AddPage(pTab.get());
    m_vOptionsTabs.push_back(std::move(pTab));
}

void CParentDialogBase::SetDataTab(std::unique_ptr<CDataTabBase> pTab) {
    const bool bWasCurrent = m_pDataTab != nullptr && GetCurrentPage() == m_pDataTab.get();
    if (m_pDataTab != nullptr) RemovePage(m_pDataTab.get());
    m_pDataTab = std::move(pTab);
    InsertPage(GetPageCount(), m_pDataTab.get());
    if (bWasCurrent) BringUpPage(GetPageCount() - 1);
}

void CParentDialogBase::AddUsualDataTab(SheetData eSheet) {
    if (!m_bUseDataOptions) return;
    CDataOptionsInterface* pData = m_pDataOptions.get();
    if (eSheet == SheetData::kListed && pData->IsSheetData()) {
        SetDataTab(std::make_unique<CPairedDataTab>(pData, IDD_PAIRED_LIST, true, IsReadOnly()));
    } else {
        SetDataTab(std::make_unique<CUnitaryDataTab>(pData, IDD_UNITARY_DATA, IsReadOnly()));
    }
}

void CParentDialogBase::AddSelectionCheck() {
    AddCheck([this](const TypedValues&) -> CheckResult {
        if (m_pDataTab == nullptr) return {};
        CheckResult result = m_pDataTab->CheckSelected();
        if (result.has_value()) result->nPage = GetPageCount() - 1;
        return result;
    });
}

bool CParentDialogBase::SetUp() {
    if (IsReadOnly()) DressReadOnly(m_hWnd);
    if (m_bInitFailed) {
        OnCancel();
        return false;
    }
    return true;
}

BOOL CParentDialogBase::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CEditPage::OnInitDialog(hWnd, hFocus, lParam);
    // A memory that points past the last tab is of a dialog with more tabs than this one. A page
    // that refuses to be left would say so before the user has done anything.
    const bool bRemembered = m_nLastTab != 0 && m_nLastTab < GetPageCount();
    if (IsReady() && bRemembered && !IsReadOnly() && GetCurrentPage()->CanLeavePage())
        SelectPage(m_nLastTab);
    return bResult;
}

// --- Ending ----------------------------------------------------------------------------------

void CParentDialogBase::OnOK() {
    if (!PassChecks()) return;
    if (!IsReadOnly() && HasLiveData() && !m_pDataOptions->UpdateDataInfo()) {
        ShowFinding(m_hWnd, {.nStringId = IDS_NO_DATA_PROPERTIES});
        return;
    }
    if (!ValidateAll()) return;
    OnAccepted();
    if (!IsReadOnly()) m_nLastTab = GetCurrentPageIndex();
    EndDialogWith(ZXADLG_OK);
}

void CParentDialogBase::OnCancel() {
    if (m_bInitFailed) {
        m_bInitFailed = false;
        const UpdateScope updating(m_bUpdating);
        ShowFinding(m_hWnd, {.nStringId = IDS_INIT_FAILED});
    }
    EndDialogWith(ZXADLG_CANCEL);
}

TypedValues CParentDialogBase::GetTyped() const {
    TypedValues typed = CCheckedDialog::GetTyped();
    for (int i = 0; i < GetPageCount(); ++i) typed.merge(TypedTexts(GetPage(i)->GetHandle()));
    return typed;
}

const ADM_Dialog& CParentDialogBase::BringUp(int nPage) {
    if (nPage == Finding::kCurrentPage) nPage = GetCurrentPageIndex();
    BringUpPage(nPage);
    return *GetPage(nPage);
}

// --- The data of a read-only dialog ----------------------------------------------------------

void CParentDialogBase::Undo() {
    // Deliberately checked here and nowhere else: a dialog in edit mode never checks its data.
    CheckData();
}

void CParentDialogBase::CheckData() {
    for (const Finding& finding : FindUnusableGroups(*m_pSource)) {
        ShowFinding(m_hWnd, finding);
        m_bInitFailed = true;
    }
}
