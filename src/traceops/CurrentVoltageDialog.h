// Current/Voltage: a plot whose x axis comes from the stimulus and whose y axis from the response.
// Applies to files with a stimulus waveform alone, except in deferred mode.
#pragma once

#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "traceops/TraceIVDialogBase.h"
#include "zxadlg/CurrentVoltageOptions.h"

class CCurrentVoltageDialog : public CTraceIVDialogBase<ZXADLG_CurrentVoltageOptions> {
  public:
    CCurrentVoltageDialog(HWND hwndParent, ZXADLG_CurrentVoltageOptions* pOptions,
                          ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DlgParams* pParams);

    void UpdateControls() override;

  private:
    bool SetUp() override;
    void ShowLabels();

    ADM_RadioButtons m_radVoltage, m_radTraces, m_radCurrent, m_radPolarity;
    CZxDlgFixedEpochCombo m_cmbEpoch;
    ADM_Static m_lblGroup;
    ADM_StaticText m_lblRegion;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_Button m_chkSmooth;
    ADM_IntegerGaugeText m_txtSmoothing;
    ADM_Spinner m_spnSmoothing;
};
