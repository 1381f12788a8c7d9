// The options of the correlation dialog: its type, the sampling frequency and the number of lags.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "sigproc/CorrelationRules.h"
#include "zxadlg/CorrelationOptions.h"

class CCorrelationOptionsTab : public COptionsTab<ZXADLG_CorrelationOptions> {
  public:
    CCorrelationOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                           CDataOptionsInterface* pData);

    void UpdateControls() override;
    // What the checks at OK look at.
    CorrelationCheck Typed();

  private:
    bool SetUp() override;
    void TakeSignal();
    void ShowOptions() override;
    void ShowTimes();
    void SetLags(std::uint32_t uLags);

    double m_dFileFrequency = 0.0;  // Hz; 0: the data tell none
    std::uint32_t m_uPoints = 0;

    ADM_RadioButtons m_radType;
    ADM_StaticText m_lblStatus;
    ADM_Static m_lblFrequency, m_lblUnit;
    ADM_DoubleText m_txtFrequency;
    ADM_StaticText m_lblInterval;
    ADM_Static m_lblLags;
    ADM_IntegerListText m_txtLags;
    ADM_Spinner m_spnLags;
    ADM_StaticText m_lblTimes;
};
