// The options of the power spectrum dialog: the spectral window with its pictures, the length of
// the transforms, and what is averaged.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/SelectionControls.h"
#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_IntegerText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_MetafileWnd.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "sigproc/SpectrumChecks.h"

class CSpectrumOptionsTab : public COptionsTab<SpectrumOptions> {
  public:
    CSpectrumOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                        CDataOptionsInterface* pData);

    void UpdateControls() override;
    // The two checks at OK, in this order.
    CheckResult CheckLength();
    CheckResult CheckSegmentCount() const { return CheckSegments(*m_pRecord, m_signal); }
    // What OK writes besides.
    void StoreAveraging();

  private:
    struct Alpha {
        ADM_Static lbl;
        ADM_DoubleGaugeText txt;
        ADM_Spinner spn;
    };
    struct AlphaIds {
        int nLabel, nField, nSpin;
    };

    bool SetUp() override;
    void BindWindow();
    void BindAlpha(const AlphaIds& ids, Alpha& alpha, double SpectrumOptions::*pValue);
    void BindLength();
    void BindAveraging();

    void TakeSignal();
    void StoreLength();

    void ShowWindowForm();
    void ShowLengths();
    void EnableLengths();

    bool m_bSignalTaken = false;
    SpectrumSignal m_signal;
    std::uint32_t m_uSpecified = 0;  // the length in the field

    ADM_Static m_lblWindow;
    CZxDlgChoiceCombo<std::int32_t> m_cmbWindow;
    Alpha m_kaiser, m_poisson;
    ADM_BitmapPictureWnd m_shape, m_magnitude;
    ADM_MetafileWnd m_equation;
    const char* m_szEquation = nullptr;  // shown

    ADM_Static m_lblLength;
    ADM_IntegerListText m_txtLength;
    ADM_Spinner m_spnLength;
    ADM_Button m_chkMaximum;
    ADM_StaticText m_lblMaximum, m_lblOutput, m_lblResolution;
    ADM_Static m_lblExclude, m_lblExcludeUnit;
    ADM_IntegerText m_txtExclude;

    ADM_Button m_chkSegments, m_chkOverlap, m_chkTraces;
};
