// The options of the histogram dialog: kind, bins and limits. The number of bins follows the width,
// the width the number of bins, and the limits follow the range of the selected data.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_FloatText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "measure/HistogramChecks.h"
#include "zxadlg/HistogramOptions.h"

class CHistogramOptionsTab : public COptionsTab<ZXADLG_HistogramOptions> {
  public:
    CHistogramOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                         CDataOptionsInterface* pData);

    void UpdateControls() override;
    // What the check at OK looks at.
    HistogramCheck Typed();

  private:
    using Record = ZXADLG_HistogramOptions;

    void BindBins();
    void BindLimits();
    void BindLimit(int nLabel, ADM_Static& lbl, int nField, ADM_FloatText& txt,
                   float Record::*pLimit, float (*clamp)(float, const HistogramRange&));
    HistogramRange ReadRange();
    void TakeRange();
    void SetBins(std::int32_t nBins);
    // The width that counts: that of the record, unless the field shows none.
    float WidthInUse();
    void CountLinear();
    void CountCurrentKind();
    void ShowRange();
    void ShowDecades();

    HistogramRange m_range;
    bool m_bRangeTaken = false;
    bool m_bRangeKnown = false;  // a deferred run may know of no data
    HistogramLimits m_first;     // the limits before any data had a say

    ADM_RadioButtons m_radKind;
    ADM_Static m_lblWidth, m_lblBins, m_lblDecades;
    ADM_DoubleGaugeText m_txtWidth;
    ADM_IntegerGaugeText m_txtBins, m_txtDecades;
    ADM_Spinner m_spnWidth, m_spnBins, m_spnDecades;
    ADM_StaticText m_lblDecadesCount;
    ADM_Button m_chkNormalize, m_chkCombine, m_chkAll;
    ADM_Static m_lblLower, m_lblUpper;
    ADM_FloatText m_txtLower, m_txtUpper;
    ADM_StaticText m_lblRange;
};
