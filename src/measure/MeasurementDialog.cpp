#include "measure/MeasurementDialog.h"

#include "ids.h"
#include "measure/MeasurementChecks.h"
#include "measure/MeasurementOptionsTab.h"
#include "measure/MeasurementOutputTab.h"

namespace {

constexpr int kOutputPage = 1;

}  // namespace

CMeasurementDialog::CMeasurementDialog(HWND hwndParent, ZXADLG_MeasurementOptions* pOptions,
                                       const ZXADLG_MeasurementOptions* pHost, void*,
                                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                       const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_MEASUREMENT, IDC_TABS),
      m_pRecord(pOptions) {
    OfferData({.bShowGroups = pParams->bShowGroupSelector});
    auto pInterface = std::make_unique<CMeasurementOptionsInterface>(
        pOptions, pHost, pSource, HasLiveData() && !IsReadOnly());
    m_pInterface = pInterface.get();
    m_pOptions = std::move(pInterface);
    auto pTab =
        std::make_unique<CMeasurementOptionsTab>(m_pInterface, pParams, m_pDataOptions.get());
    m_pTab = pTab.get();
    AddOptionsTab(std::move(pTab));
    if (pParams->bShowMeasurementOutput != 0) {
        auto pOutput = std::make_unique<CMeasurementOutputTab>(m_pInterface, pParams);
        m_pOutput = pOutput.get();
        AddOptionsTab(std::move(pOutput));
    }
    AddUsualDataTab();
    // What nobody can change is not checked.
    if (!IsReadOnly()) AddChecks();
}

void CMeasurementDialog::AddChecks() {
    AddCheck([this](const TypedValues&) -> CheckResult {
        m_pTab->TakeData();
        RepairOutput();
        return {};
    });
    for (int i = 0; i < kMeasurementSearches; ++i) {
        AddCheck([this, i](const TypedValues&) -> CheckResult {
            // The acquisition's settings take the place of all that would be checked.
            if (m_pInterface->IsImportInUse()) return {};
            CheckResult result = CheckRegions(*m_pRecord, i);
            if (result.has_value()) m_pTab->ShowSearch(i);
            return result;
        });
        AddCheck([this, i](const TypedValues&) -> CheckResult {
            if (m_pInterface->IsImportInUse()) return {};
            return CheckXVariable(*m_pRecord, i, m_pOutput != nullptr ? kOutputPage : -1,
                                  [this](int nSearch) { m_pTab->ShowSearch(nSearch); });
        });
    }
}

// The lists may have been emptied since they were filled.
void CMeasurementDialog::RepairOutput() {
    if (m_pParams->bMeasurementRegionCheck == 0 || m_pOutput == nullptr) return;
    const int nFirst = FirstSearchOn(*m_pRecord);
    if (nFirst < 0 || m_pRecord->aSearches[nFirst].nNumYPlotItems == 0) m_pOutput->Refill();
}

void CMeasurementDialog::OnAccepted() {
    if (IsReadOnly()) return;
    const bool bImport = m_pInterface->IsImportInUse();
    if (!bImport) OrderRegions(*m_pRecord);
    AcceptImport(*m_pRecord, bImport);
    WriteRegions(*m_pRecord, m_pTab->GetAxis(), *m_pDataRecord);
}
