#include "sigproc/CorrelationDialog.h"

#include "analysis/CUnitaryDataTab.h"
#include "ids.h"
#include "sigproc/CorrelationOptionsTab.h"
#include "sigproc_ids.h"

CCorrelationDialog::CCorrelationDialog(HWND hwndParent, ZXADLG_CorrelationOptions* pOptions,
                                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                       const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_CORRELATION, IDC_TABS),
      m_pRecord(pOptions) {
    // What is no type counts as the first one.
    if (!IsReadOnly() && pOptions->eType != kCrossCorrelation) pOptions->eType = kAutocorrelation;
    OfferData({.bShowGroups = pParams->bShowGroupSelector});
    auto pInterface = std::make_unique<CCorrelationOptionsTab::Options>(pOptions, pSource);
    auto pTab =
        std::make_unique<CCorrelationOptionsTab>(pInterface.get(), pParams, m_pDataOptions.get());
    m_pTab = pTab.get();
    m_pOptions = std::move(pInterface);
    AddOptionsTab(std::move(pTab));
    ShowDataTab();
    m_pOptions->AddObserver(this);
    OnBroadcast(kNotifyCorrelationChanged, [this] { ShowDataTab(); });
    // What nobody can change is not checked.
    if (IsReadOnly()) return;
    AddCheck([this](const TypedValues&) { return CheckLags(m_pTab->Typed()); });
    AddCheck([this](const TypedValues&) { return CheckFrequency(m_pTab->Typed()); });
}

// A tab of one selection edits the first one, whichever was edited before.
void CCorrelationDialog::ShowDataTab() {
    const bool bCross = m_pRecord->eType == kCrossCorrelation;
    const UINT uTemplate = bCross ? IDD_UNITARY_DATA_DUAL : IDD_UNITARY_DATA;
    if (!m_bUseDataOptions || uTemplate == m_uDataTemplate) return;
    m_uDataTemplate = uTemplate;
    if (!bCross) m_pDataOptions->SetSelectedDataSet(0);
    SetDataTab(std::make_unique<CUnitaryDataTab>(m_pDataOptions.get(), uTemplate, IsReadOnly()));
    m_pTab->TakeData();
}
