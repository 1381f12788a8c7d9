#include "traceops/LeakSubtractionDialog.h"

#include "framework/ADM_DoubleText.h"
#include "ids.h"

namespace {

using Record = ZXADLG_LeakSubtractionOptions;

class CLeakSubtractionOptionsTab : public COptionsTab<Record> {
  public:
    CLeakSubtractionOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                               CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_LEAK_SUBTRACTION_OPTIONS) {
        Bind(IDC_WAVEFORM, m_cmbWaveform, &Record::uWaveformIndex);
        // Required: the factor goes through single precision, so that 0.001 comes back as another
        // number, which is none of the offered factors.
        Bind(
            IDC_CONVERSION_FACTOR, m_cmbFactor, [this] { return m_pRecord->dConversionFactor; },
            [this](double d) { m_pRecord->dConversionFactor = static_cast<float>(d); });
        Bind(IDC_PASSIVE_RESISTANCE, m_txtResistance, &Record::dPassiveResistance);
    }

  private:
    bool SetUp() override {
        m_cmbFactor.Fill();
        m_cmbWaveform.Fill(Source());
        return true;
    }

    CZxDlgWaveformCombo m_cmbWaveform;
    CZxDlgConversionFactorCombo m_cmbFactor;
    ADM_DoubleText m_txtResistance;
};

}  // namespace

CLeakSubtractionDialog::CLeakSubtractionDialog(HWND hwndParent,
                                               ZXADLG_LeakSubtractionOptions* pOptions,
                                               ZXADLG_DataOptions* pData,
                                               ZXADLG_CDlgDataSource* pSource,
                                               const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_LEAK_SUBTRACTION, IDC_TABS) {
    BuildTabs<CLeakSubtractionOptionsTab>(pOptions, {.bShowGroups = pParams->bShowGroupSelector});
}
