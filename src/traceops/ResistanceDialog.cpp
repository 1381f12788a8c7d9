#include "traceops/ResistanceDialog.h"

#include "ids.h"

namespace {

constexpr std::uint32_t kVoltageClamp = 0;
constexpr std::uint32_t kCurrentClamp = 1;

}  // namespace

// --- Options tab: controls -------------------------------------------------------------------

CResistanceOptionsTab::CResistanceOptionsTab(CResistanceOptionsInterface* pOptions,
                                             const ZXADLG_DlgParams* pParams,
                                             CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_RESISTANCE_OPTIONS, IDS_TAB_OPTIONS),
      m_pResistance(pOptions),
      m_pData(pData) {
    RegisterControl(IDC_EXPERIMENT_TYPE, &m_cmbExperimentType);
    RegisterControl(IDC_WAVEFORM, &m_cmbWaveform);
    RegisterControl(IDC_CONVERSION_FACTOR, &m_cmbFactor);

    On(&m_cmbExperimentType, ADMN_COMBOSELCHANGE, [this] {
        const LPARAM nType = m_cmbExperimentType.GetItemData(m_cmbExperimentType.GetCurSel());
        m_pResistance->SetExperimentType(static_cast<std::uint32_t>(nType));
    });
    On(&m_cmbWaveform, ADMN_COMBOSELCHANGE,
       [this] { m_pResistance->SetWaveformIndex(m_cmbWaveform.GetWaveform()); });
    On(&m_cmbFactor, ADMN_COMBOSELCHANGE,
       [this] { m_pResistance->SetConversionFactor(m_cmbFactor.GetFactor()); });
}

BOOL CResistanceOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbFactor.Fill();
    m_cmbWaveform.Fill(m_pData->GetDataSource());
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CResistanceOptionsTab::ShowOptions() {
    // Required: the box is not emptied first, so that in read-only mode it grows with every event.
    AddExperimentType(IDS_VOLTAGE_CLAMP, kVoltageClamp);
    AddExperimentType(IDS_CURRENT_CLAMP, kCurrentClamp);
    m_cmbExperimentType.SetCurSel(m_pResistance->GetExperimentType() == kCurrentClamp ? 1 : 0);
    m_cmbFactor.SetFactor(m_pResistance->GetConversionFactor());
    m_cmbWaveform.SelectByValue(m_pResistance->GetWaveformIndex());
}

void CResistanceOptionsTab::AddExperimentType(UINT uStringId, std::uint32_t uType) {
    const int nItem = m_cmbExperimentType.AddResourceString(m_hInstance, uStringId);
    m_cmbExperimentType.SetItemData(nItem, static_cast<LPARAM>(uType));
}

// --- Dialog ----------------------------------------------------------------------------------

CResistanceDialog::CResistanceDialog(HWND hwndParent, ZXADLG_ResistanceOptions* pOptions,
                                     ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                     const ZXADLG_DlgParams* pParams)
    : COptionsDialog(hwndParent, pOptions, pData, pSource, pParams, IDD_RESISTANCE,
                     {.bShowGroups = pParams->bShowGroupSelector}) {}
