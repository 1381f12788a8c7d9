// The options of the filter dialog: the arrangement, and the families, cutoffs and figures of its
// sections. The record holds what is typed at each change; the cutoffs follow the sampling
// frequency, the points and the family.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "analysis/SelectionControls.h"
#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "sigproc/FilterChecks.h"
#include "sigproc/FilterLibrary.h"

class CFilterOptionsTab : public COptionsTab<FilterOptions> {
  public:
    CFilterOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                      CDataOptionsInterface* pData);

    void UpdateControls() override;
    // The first fault of the record.
    CheckResult Check(FilterLibrary& library);
    // Whether the width of the notch is one that its field takes; tells when it is not.
    bool IsWidthValid();

  private:
    struct Frequency {
        ADM_Static lbl, lblUnit;
        ADM_DoubleGaugeText txt;
        ADM_Spinner spn;
    };
    struct Number {
        ADM_Static lbl;
        ADM_IntegerListText txt;
        ADM_Spinner spn;
    };
    struct FrequencyIds {
        int nLabel, nField, nSpin, nUnit;
    };
    struct NumberIds {
        int nLabel, nField, nSpin;
    };

    bool SetUp() override;
    void BindHighpass();
    void BindLowpass();
    void BindInterference();
    void BindNotch();
    Row& BindFamily(int nLabel, ADM_Static& lbl, int nBox, CZxDlgChoiceCombo<std::int32_t>& cmb,
                    ZXADLG_FilterSection& section);
    void BindFrequency(const FrequencyIds& ids, Frequency& frequency, double& dValue);
    void BindNumber(const NumberIds& ids, Number& number, std::uint32_t& uValue);

    void TakeSignal();
    void SetLimits();
    void ChangeFamily(void (*clamp)(FilterOptions&, const FilterSignal&));

    void EnableFrequency(Frequency& frequency, bool bEnable) const;
    void EnableNumber(Number& number, bool bEnable) const;
    void EnableSections();
    void ShowLowpassForm();
    void ShowRanges();
    void ShowRange(ADM_StaticText& lbl, int nFirstPlace, const FilterLimits& limits, bool bKnown);
    void ShowInterference();
    void ChangeNumber(Number& number, std::uint32_t& uRecord, std::uint32_t uValue);

    bool m_bSignalTaken = false;
    FilterSignal m_signal;

    ADM_RadioButtons m_radType;
    ADM_BitmapPictureWnd m_picture;

    ADM_Static m_grpHighpass, m_lblHighpassFamily;
    CZxDlgChoiceCombo<std::int32_t> m_cmbHighpassFamily;
    Frequency m_highpass;
    ADM_StaticText m_lblHighpassRange;

    ADM_Static m_grpLowpass, m_lblLowpassFamily;
    CZxDlgChoiceCombo<std::int32_t> m_cmbLowpassFamily;
    Frequency m_lowpass;
    ADM_StaticText m_lblCoefficients;
    Number m_points;
    ADM_StaticText m_lblLowpassRange;

    ADM_Static m_grpHum;
    ADM_RadioButtons m_radReference;
    Number m_harmonics, m_cycles;
    ADM_Static m_lblPeriod, m_lblBandwidth;
    ADM_StaticText m_lblPeriodValue, m_lblBandwidthValue;

    ADM_Static m_grpNotch;
    Frequency m_center, m_width;
    ADM_StaticText m_lblNotchRange;
};
