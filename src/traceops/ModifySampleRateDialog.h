// Data Reduction/Interpolation: how the sampling rate of the data is to be changed, with a note
// that tells the new sampling interval at once. A single page with no data tab.
#pragma once

#include "analysis/CUntabbedDialogBase.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/ModifySampleRateOptions.h"

class CModifySampleRateDialog : public CRecordPage<ZXADLG_ModifySampleRateOptions, CSinglePage> {
  public:
    CModifySampleRateDialog(HWND hwndParent, ZXADLG_ModifySampleRateOptions* pOptions,
                            ZXADLG_CDlgDataSource* pSource, bool bReadOnly);

    void UpdateControls() override;

  private:
    void ShowOptions() override { ShowNote(); }
    void ShowNote();
    bool IsReduction() { return m_radConversion.GetSelected() == 0; }

    ZXADLG_CDlgDataSource* m_pSource;
    ADM_RadioButtons m_radConversion, m_radReduction, m_radInterpolation;
    ADM_Static m_lblReduceFactor, m_lblInterpolFactor;
    ADM_IntegerGaugeText m_txtReduceFactor, m_txtInterpolFactor;
    ADM_Spinner m_spnReduceFactor, m_spnInterpolFactor;
    ADM_StaticText m_lblNote;
};
