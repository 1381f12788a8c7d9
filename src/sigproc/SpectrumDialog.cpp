#include "sigproc/SpectrumDialog.h"

#include "ids.h"
#include "sigproc/SpectrumOptionsTab.h"
#include "sigproc_ids.h"

CSpectrumDialog::CSpectrumDialog(HWND hwndParent, SpectrumOptions* pOptions,
                                 ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                 const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_SPECTRUM, IDC_TABS),
      m_pTab(
          BuildTabs<CSpectrumOptionsTab>(pOptions, {.bShowGroups = pParams->bShowGroupSelector})) {
    // What nobody can change is not checked.
    if (IsReadOnly()) return;
    AddSelectionCheck();
    AddCheck([this](const TypedValues&) {
        m_pTab->TakeData();
        return m_pTab->CheckLength();
    });
    AddCheck([this](const TypedValues&) { return m_pTab->CheckSegmentCount(); });
}

void CSpectrumDialog::OnAccepted() {
    if (!IsReadOnly()) m_pTab->StoreAveraging();
}
