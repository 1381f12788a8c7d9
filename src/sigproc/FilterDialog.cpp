#include "sigproc/FilterDialog.h"

#include "ids.h"
#include "sigproc/FilterOptionsTab.h"
#include "sigproc_ids.h"
#include "widgets/FrameworkSetup.h"

CFilterDialog::CFilterDialog(HWND hwndParent, FilterOptions* pOptions, ZXADLG_DataOptions* pData,
                             ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
                             const char* szLibrary)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_FILTER, IDC_TABS),
      m_pRecord(pOptions),
      m_library(GetFrameworkInstance(), szLibrary),
      m_pTab(BuildTabs<CFilterOptionsTab>(pOptions, {.bShowGroups = pParams->bShowGroupSelector})) {
    // What nobody can change is not checked.
    if (IsReadOnly()) return;
    // OK asks it: loading it there takes half as long as all else that OK does.
    m_library.Load();
    AddSelectionCheck();
    AddCheck([this](const TypedValues&) { return CheckOptions(); });
}

CheckResult CFilterDialog::CheckOptions() {
    m_pTab->TakeData();
    CheckResult result = m_pTab->Check(m_library);
    if (!result.has_value() || result->nStringId != IDS_NOTCH_SETTLING) return result;
    // A width that its field does not take is told of first.
    BringUp(result->nPage);
    if (!m_pTab->IsWidthValid()) result->nStringId = 0;
    return result;
}

void CFilterDialog::OnAccepted() {
    if (IsReadOnly()) return;
    const std::uint32_t uOrder = FilterApplyCount(*m_pRecord);
    for (ZXADLG_FilterSection* pSection :
         {&m_pRecord->lowpass, &m_pRecord->highpass, &m_pRecord->notch})
        pSection->uApplyOrder = uOrder;
}
