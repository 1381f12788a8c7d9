#include "measure/HistogramDialog.h"

#include "histogram_ids.h"
#include "ids.h"
#include "measure/HistogramOptionsTab.h"

CHistogramDialog::CHistogramDialog(HWND hwndParent, ZXADLG_HistogramOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_HISTOGRAM, IDC_TABS),
      m_pRecord(pOptions) {
    if (!IsReadOnly()) CompleteHistogramRecord(*pOptions);
    m_pTab = BuildTabs<CHistogramOptionsTab>(
        pOptions,
        {.bShowGroups = pParams->bShowGroupSelector, .bUseStoredInfo = pParams->bDeferredRun},
        SheetData::kListed);
    // What nobody can change is not checked.
    if (IsReadOnly()) return;
    AddSelectionCheck();
    AddCheck([this](const TypedValues&) { return CheckHistogram(m_pTab->Typed()); });
    AddCheck([this](const TypedValues&) { return CheckColumns(); });
}

CheckResult CHistogramDialog::CheckColumns() {
    if (m_pDataTab == nullptr || !m_pDataOptions->IsSheetData()) return {};
    double dMin, dMax;
    if (m_pDataOptions->GetYExtent(&dMin, &dMax, false)) return {};
    return Refusal(IDS_COLUMNS_EMPTY, GetPageCount() - 1, IDC_SET_LIST);
}

void CHistogramDialog::OnAccepted() {
    // An area of bins of different widths is not normalised.
    if (!IsReadOnly() && m_pRecord->eHistoType == kVariableWidthHistogram)
        m_pRecord->bNormalize = 0;
}
