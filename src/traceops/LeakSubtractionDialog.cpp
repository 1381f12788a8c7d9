#include "traceops/LeakSubtractionDialog.h"

#include "ids.h"

// --- Options tab: controls -------------------------------------------------------------------

CLeakSubtractionOptionsTab::CLeakSubtractionOptionsTab(CLeakSubtractOptionsInterface* pOptions,
                                                       const ZXADLG_DlgParams* pParams,
                                                       CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_LEAK_SUBTRACTION_OPTIONS, IDS_TAB_OPTIONS),
      m_pLeak(pOptions),
      m_pData(pData) {
    RegisterControl(IDC_WAVEFORM, &m_cmbWaveform);
    RegisterControl(IDC_CONVERSION_FACTOR, &m_cmbFactor);
    RegisterControl(IDC_PASSIVE_RESISTANCE, &m_txtResistance);

    On(&m_cmbWaveform, ADMN_COMBOSELCHANGE,
       [this] { m_pLeak->SetWaveformIndex(m_cmbWaveform.GetWaveform()); });
    On(&m_cmbFactor, ADMN_COMBOSELCHANGE,
       [this] { m_pLeak->SetConversionFactor(m_cmbFactor.GetFactor()); });
    On(&m_txtResistance, ADMN_TEXTCHANGE,
       [this] { m_pLeak->SetPassiveResistance(m_txtResistance.GetValue()); });
}

BOOL CLeakSubtractionOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbFactor.Fill();
    m_cmbWaveform.Fill(m_pData->GetDataSource());
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CLeakSubtractionOptionsTab::ShowOptions() {
    m_txtResistance.SetValue(m_pLeak->GetPassiveResistance());
    m_cmbFactor.SetFactor(m_pLeak->GetConversionFactor());
    m_cmbWaveform.SelectByValue(m_pLeak->GetWaveformIndex());
}

// --- Dialog ----------------------------------------------------------------------------------

CLeakSubtractionDialog::CLeakSubtractionDialog(HWND hwndParent,
                                               ZXADLG_LeakSubtractionOptions* pOptions,
                                               ZXADLG_DataOptions* pData,
                                               ZXADLG_CDlgDataSource* pSource,
                                               const ZXADLG_DlgParams* pParams)
    : COptionsDialog(hwndParent, pOptions, pData, pSource, pParams, IDD_LEAK_SUBTRACTION,
                     {.bShowGroups = pParams->bShowGroupSelector}) {}
