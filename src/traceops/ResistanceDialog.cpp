#include "traceops/ResistanceDialog.h"

#include "ids.h"

namespace {

using Record = ZXADLG_ResistanceOptions;

constexpr std::uint32_t kVoltageClamp = 0;
constexpr std::uint32_t kCurrentClamp = 1;
constexpr Choice<std::uint32_t> kExperimentTypes[] = {{kVoltageClamp, IDS_VOLTAGE_CLAMP},
                                                      {kCurrentClamp, IDS_CURRENT_CLAMP}};

class CResistanceOptionsTab : public COptionsTab<Record> {
  public:
    CResistanceOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                          CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_RESISTANCE_OPTIONS) {
        Bind(IDC_EXPERIMENT_TYPE, m_cmbExperimentType, &Record::uExperimentType);
        Bind(IDC_WAVEFORM, m_cmbWaveform, &Record::uWaveformIndex);
        Bind(IDC_CONVERSION_FACTOR, m_cmbFactor, &Record::dConversionFactor);
    }

  private:
    bool SetUp() override {
        m_cmbFactor.Fill();
        m_cmbWaveform.Fill(Source());
        return true;
    }

    void ShowOptions() override {
        // Required: the box is not emptied first, so that in read-only mode it grows with every
        // event.
        m_cmbExperimentType.Append(kExperimentTypes);
        m_cmbExperimentType.SetCurSel(m_pRecord->uExperimentType == kCurrentClamp ? 1 : 0);
    }

    CZxDlgChoiceCombo<std::uint32_t> m_cmbExperimentType;
    CZxDlgWaveformCombo m_cmbWaveform;
    CZxDlgConversionFactorCombo m_cmbFactor;
};

}  // namespace

CResistanceDialog::CResistanceDialog(HWND hwndParent, ZXADLG_ResistanceOptions* pOptions,
                                     ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                     const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_RESISTANCE, IDC_TABS) {
    BuildTabs<CResistanceOptionsTab>(pOptions, {.bShowGroups = pParams->bShowGroupSelector});
}
