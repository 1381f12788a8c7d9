#include "sigproc/FilterOptionsTab.h"

#include "ZXADLG.h"
#include "ids.h"
#include "sigproc/SamplingRate.h"
#include "sigproc_ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

using Record = FilterOptions;

constexpr Choice<std::int32_t> kLowpassFamilies[] = {
    {kBessel, IDS_FAMILY_BESSEL},
    {kBoxcar, IDS_FAMILY_BOXCAR},
    {kButterworth, IDS_FAMILY_BUTTERWORTH},
    {kChebyshev, IDS_FAMILY_CHEBYSHEV},
    {kGaussian, IDS_FAMILY_GAUSSIAN},
    {kRC, IDS_FAMILY_RC},
    {kRC8, IDS_FAMILY_RC8},
};
constexpr Choice<std::int32_t> kHighpassFamilies[] = {{kBessel, IDS_FAMILY_BESSEL},
                                                      {kRC, IDS_FAMILY_RC}};

constexpr std::int32_t kCycles[] = {10, 20, 50, 100, 200, 500};
constexpr std::int32_t kHarmonics[] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                       11, 12, 13, 14, 15, 16, 17, 18, 19, 20};

constexpr int kFrequencyDigits = 6;
constexpr int kRangeDecimals = 1;
constexpr int kFigureDecimals = 2;
constexpr int kTextDigits = 15;

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CFilterOptionsTab::CFilterOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                                     CDataOptionsInterface* pData)
    : COptionsTab(pOptions, pParams, pData, IDD_FILTER_OPTIONS) {
    constexpr int kTypes[] = {IDC_FILTER_BANDPASS, IDC_FILTER_HIGHPASS, IDC_FILTER_LOWPASS,
                              IDC_FILTER_INTERFERENCE, IDC_FILTER_NOTCH};
    m_radType.SetupIds(this, 5, kTypes, nullptr);
    BindTo(
        m_radType, [this] { return static_cast<int>(FilterTypeOf(*m_pRecord)); },
        [this](int nType) { SelectFilterType(*m_pRecord, static_cast<FilterType>(nType)); });
    Label(IDC_FILTER_PICTURE, m_picture);
    BindHighpass();
    BindLowpass();
    BindInterference();
    BindNotch();
    FollowData(pData, [this] { TakeSignal(); });
}

void CFilterOptionsTab::BindHighpass() {
    ZXADLG_FilterSection& highpass = m_pRecord->highpass;
    Label(IDC_HIGHPASS_GROUP, m_grpHighpass);
    BindFamily(IDC_HIGHPASS_FAMILY_LABEL, m_lblHighpassFamily, IDC_HIGHPASS_FAMILY,
               m_cmbHighpassFamily, highpass)
        .Then([this] { ChangeFamily(ClampHighpass); });
    BindFrequency({IDC_HIGHPASS_CUTOFF_LABEL, IDC_HIGHPASS_CUTOFF, IDC_HIGHPASS_CUTOFF_SPIN,
                   IDC_HIGHPASS_UNIT},
                  m_highpass, highpass.m_dCornerFreq);
    Label(IDC_HIGHPASS_RANGE, m_lblHighpassRange);
}

void CFilterOptionsTab::BindLowpass() {
    ZXADLG_FilterSection& lowpass = m_pRecord->lowpass;
    Label(IDC_LOWPASS_GROUP, m_grpLowpass);
    BindFamily(IDC_LOWPASS_FAMILY_LABEL, m_lblLowpassFamily, IDC_LOWPASS_FAMILY, m_cmbLowpassFamily,
               lowpass)
        .Then([this] { ChangeFamily(ClampLowpass); });
    BindFrequency(
        {IDC_LOWPASS_CUTOFF_LABEL, IDC_LOWPASS_CUTOFF, IDC_LOWPASS_CUTOFF_SPIN, IDC_LOWPASS_UNIT},
        m_lowpass, lowpass.m_dCornerFreq);
    Label(IDC_LOWPASS_COEFFICIENTS, m_lblCoefficients);
    BindNumber({IDC_LOWPASS_POINTS_LABEL, IDC_LOWPASS_POINTS, IDC_LOWPASS_POINTS_SPIN}, m_points,
               lowpass.m_uNumAveragePoints);
    m_points.txt.SetStrict(TRUE);
    Label(IDC_LOWPASS_RANGE, m_lblLowpassRange);
}

void CFilterOptionsTab::BindInterference() {
    ZXADLG_AdaptiveFilterSection& adaptive = m_pRecord->adaptive;
    Label(IDC_HUM_GROUP, m_grpHum);
    constexpr int kReferences[] = {IDC_HUM_50HZ, IDC_HUM_60HZ, IDC_HUM_AUTO};
    m_radReference.SetupIds(this, 3, kReferences, nullptr);
    BindTo(
        m_radReference, [&adaptive] { return adaptive.m_eReferenceGeneration; },
        [&adaptive](int e) { adaptive.m_eReferenceGeneration = e; });
    BindNumber({IDC_HUM_HARMONICS_LABEL, IDC_HUM_HARMONICS, IDC_HUM_HARMONICS_SPIN}, m_harmonics,
               adaptive.m_uHarmonicNumberEnd);
    BindNumber({IDC_HUM_CYCLES_LABEL, IDC_HUM_CYCLES, IDC_HUM_CYCLES_SPIN}, m_cycles,
               adaptive.m_uAveragingCycles);
    Labels({{IDC_HUM_PERIOD_LABEL, &m_lblPeriod},
            {IDC_HUM_PERIOD, &m_lblPeriodValue},
            {IDC_HUM_BANDWIDTH_LABEL, &m_lblBandwidth},
            {IDC_HUM_BANDWIDTH, &m_lblBandwidthValue}});
}

void CFilterOptionsTab::BindNotch() {
    ZXADLG_FilterSection& notch = m_pRecord->notch;
    Label(IDC_NOTCH_GROUP, m_grpNotch);
    BindFrequency(
        {IDC_NOTCH_CENTER_LABEL, IDC_NOTCH_CENTER, IDC_NOTCH_CENTER_SPIN, IDC_NOTCH_CENTER_UNIT},
        m_center, notch.m_dCornerFreq);
    BindFrequency(
        {IDC_NOTCH_WIDTH_LABEL, IDC_NOTCH_WIDTH, IDC_NOTCH_WIDTH_SPIN, IDC_NOTCH_WIDTH_UNIT},
        m_width, notch.m_d3dbWidth);
    Label(IDC_NOTCH_RANGE, m_lblNotchRange);
}

CFilterOptionsTab::Row& CFilterOptionsTab::BindFamily(int nLabel, ADM_Static& lbl, int nBox,
                                                      CZxDlgChoiceCombo<std::int32_t>& cmb,
                                                      ZXADLG_FilterSection& section) {
    Label(nLabel, lbl);
    return Bind(
        nBox, cmb, [&section] { return section.m_eFilterFamily; },
        [&section](std::int32_t e) { section.m_eFilterFamily = e; });
}

void CFilterOptionsTab::BindFrequency(const FrequencyIds& ids, Frequency& frequency,
                                      double& dValue) {
    Label(ids.nLabel, frequency.lbl);
    BindTyped(
        ids.nField, frequency.txt, [&dValue] { return dValue; },
        [&dValue](double d) { dValue = SingleFrequency(d); });
    frequency.txt.SetSigDigits(kFrequencyDigits);
    Spinner(ids.nSpin, frequency.spn, frequency.txt);
    Label(ids.nUnit, frequency.lblUnit);
}

void CFilterOptionsTab::BindNumber(const NumberIds& ids, Number& number, std::uint32_t& uValue) {
    Label(ids.nLabel, number.lbl);
    Bind(
        ids.nField, number.txt, [&uValue] { return ShownCount(uValue); },
        [&uValue](std::int32_t n) { uValue = TypedCount(n); });
    Spinner(ids.nSpin, number.spn, number.txt);
}

bool CFilterOptionsTab::SetUp() {
    m_cmbLowpassFamily.Fill(kLowpassFamilies);
    m_cmbHighpassFamily.Fill(kHighpassFamilies);
    m_cycles.txt.SetValueList(std::size(kCycles), kCycles);
    m_harmonics.txt.SetValueList(std::size(kHarmonics), kHarmonics);
    return true;
}

// --- The data ------------------------------------------------------------------------------------

// A change of the sampling frequency, the first one included, puts what lies outside its limits
// into them. Other points alone do not: OK tells.
void CFilterOptionsTab::TakeSignal() {
    const double dRateBefore = m_signal.dRate;
    const double dFileRate = KnownRate(m_pData->GetSamplingFrequency());
    m_signal.dRate = dFileRate > 0.0 ? dFileRate : RateOfInterval(*m_pRecord);
    m_signal.uPoints = m_pData->GetAnalysisPointCount();
    m_signal.bPointsKnown = m_pParams->bDeferredRun == 0 || m_signal.uPoints > 0;
    if (IsReadOnly()) return;
    if (dFileRate > 0.0) StoreInterval(*m_pRecord, dFileRate);
    if (!m_bSignalTaken) CompleteFilterRecord(*m_pRecord, m_signal.dRate);
    const bool bClamp = !m_bSignalTaken || m_signal.dRate != dRateBefore;
    m_bSignalTaken = true;
    if (bClamp) {
        ClampLowpass(*m_pRecord, m_signal);
        ClampHighpass(*m_pRecord, m_signal);
        ClampNotch(*m_pRecord, m_signal);
    }
    SetLimits();
    if (bClamp) ShowRecord();
}

void CFilterOptionsTab::SetLimits() {
    const std::vector<std::int32_t> vLengths = SmoothingLengthsFor(m_signal);
    m_points.txt.SetValueList(static_cast<std::uint32_t>(vLengths.size()), vLengths.data());
    if (m_signal.dRate == 0.0) return;
    const auto limit = [](Frequency& frequency, const FilterLimits& limits, double dStep) {
        frequency.txt.SetLimits(limits.dLow, limits.dHigh, dStep);
    };
    if (m_pRecord->lowpass.m_eFilterFamily != kBoxcar) {
        const FilterLimits lowpass = LowpassLimitsFor(*m_pRecord, m_signal);
        limit(m_lowpass, lowpass, CutoffStep(lowpass));
    }
    const FilterLimits highpass =
        HighpassLimits(m_pRecord->highpass.m_eFilterFamily, m_signal.dRate);
    limit(m_highpass, highpass, CutoffStep(highpass));
    const FilterLimits center = NotchCenterLimits(m_signal.dRate);
    limit(m_center, center, CutoffStep(center));
    limit(m_width, NotchWidthLimits(m_signal.dRate), CutoffStep(center));
}

void CFilterOptionsTab::ChangeFamily(void (*clamp)(FilterOptions&, const FilterSignal&)) {
    clamp(*m_pRecord, m_signal);
    SetLimits();
    ShowRecord();
}

// --- Rules ---------------------------------------------------------------------------------------

void CFilterOptionsTab::UpdateControls() {
    COptionsTab::UpdateControls();
    const int nType = m_radType.GetSelected();
    m_picture.SetBitmap(m_hInstance, IDB_FILTER_RESPONSE_FIRST + nType,
                        IDB_FILTER_RESPONSE_LARGER + nType);
    EnableSections();
    ShowLowpassForm();
    ShowRanges();
    ShowInterference();
}

void CFilterOptionsTab::EnableFrequency(Frequency& frequency, bool bEnable) const {
    EnableControls({&frequency.lbl, &frequency.txt, &frequency.spn, &frequency.lblUnit}, bEnable);
}

void CFilterOptionsTab::EnableNumber(Number& number, bool bEnable) const {
    EnableControls({&number.lbl, &number.txt, &number.spn}, bEnable);
}

void CFilterOptionsTab::EnableSections() {
    const int nType = m_radType.GetSelected();
    const bool bHighpass = nType == kBandpassFilter || nType == kHighpassFilter;
    EnableControls(
        {&m_grpHighpass, &m_lblHighpassFamily, &m_cmbHighpassFamily, &m_lblHighpassRange},
        bHighpass);
    EnableFrequency(m_highpass, bHighpass);
    const bool bLowpass = nType == kBandpassFilter || nType == kLowpassFilter;
    const bool bBoxcar = m_pRecord->lowpass.m_eFilterFamily == kBoxcar;
    EnableControls({&m_grpLowpass, &m_lblLowpassFamily, &m_cmbLowpassFamily, &m_lblCoefficients,
                    &m_lblLowpassRange},
                   bLowpass);
    EnableFrequency(m_lowpass, bLowpass && !bBoxcar);
    EnableNumber(m_points, bLowpass && bBoxcar);
    const bool bHum = nType == kInterferenceFilter;
    const bool bByHand = bHum && m_radReference.GetSelected() != kAutoReference;
    EnableControls({&m_grpHum, &m_radReference, &m_lblPeriod, &m_lblPeriodValue}, bHum);
    EnableNumber(m_harmonics, bByHand);
    EnableNumber(m_cycles, bByHand);
    EnableControls({&m_lblBandwidth, &m_lblBandwidthValue}, bByHand);
    const bool bNotch = nType == kNotchFilter;
    EnableControls({&m_grpNotch, &m_lblNotchRange}, bNotch);
    EnableFrequency(m_center, bNotch);
    EnableFrequency(m_width, bNotch);
}

// A boxcar has points in the place of a cutoff; a Gaussian tells its coefficients.
void CFilterOptionsTab::ShowLowpassForm() {
    const ZXADLG_FilterSection& lowpass = m_pRecord->lowpass;
    const bool bBoxcar = lowpass.m_eFilterFamily == kBoxcar;
    ShowControls({&m_lowpass.lbl, &m_lowpass.txt, &m_lowpass.spn, &m_lowpass.lblUnit}, !bBoxcar);
    ShowControls({&m_points.lbl, &m_points.txt, &m_points.spn}, bBoxcar);
    ShowControls({&m_lblCoefficients}, lowpass.m_eFilterFamily == kGaussian);
    m_lblCoefficients.SetArgLong(
        0, static_cast<LONG>(CoefficientCount(lowpass.m_dCornerFreq, m_signal.dRate)));
    m_lblLowpassRange.SetArgString(0, m_hInstance, bBoxcar ? IDS_POINTS_RANGE : IDS_CUTOFF_RANGE);
    m_lblLowpassRange.SetArgString(3, m_hInstance, bBoxcar ? IDS_ODD_VALUES : IDS_HERTZ);
}

void CFilterOptionsTab::ShowRanges() {
    const bool bRate = m_signal.dRate > 0.0;
    ShowRange(m_lblLowpassRange, 1, LowpassLimitsFor(*m_pRecord, m_signal),
              AreLowpassLimitsKnown(*m_pRecord, m_signal));
    ShowRange(m_lblHighpassRange, 0,
              HighpassLimits(m_pRecord->highpass.m_eFilterFamily, m_signal.dRate), bRate);
    ShowRange(m_lblNotchRange, 0, NotchCenterLimits(m_signal.dRate), bRate);
}

void CFilterOptionsTab::ShowRange(ADM_StaticText& lbl, int nFirstPlace, const FilterLimits& limits,
                                  bool bKnown) {
    ShowControls({&lbl}, bKnown);
    lbl.SetArgDouble(nFirstPlace, limits.dLow, kRangeDecimals, kTextDigits);
    lbl.SetArgDouble(nFirstPlace + 1, limits.dHigh, kRangeDecimals, kTextDigits);
}

void CFilterOptionsTab::ShowInterference() {
    const ZXADLG_AdaptiveFilterSection& adaptive = m_pRecord->adaptive;
    m_lblPeriodValue.SetArgDouble(0,
                                  SamplesPerPeriod(adaptive.m_eReferenceGeneration, m_signal.dRate),
                                  kFigureDecimals, kTextDigits);
    m_lblBandwidthValue.SetArgDouble(
        0, InterferenceBandwidth(adaptive.m_eReferenceGeneration, adaptive.m_uAveragingCycles),
        kFigureDecimals, kTextDigits);
}

// --- OK ------------------------------------------------------------------------------------------

CheckResult CFilterOptionsTab::Check(FilterLibrary& library) {
    return CheckFilter(
        {.options = *m_pRecord,
         .signal = m_signal,
         .bDeferred = m_pParams->bDeferredRun != 0,
         .minimumPoints = [this, &library] { return library.MinimumPoints(*m_pRecord); },
         .setHarmonics =
             [this](std::uint32_t u) {
                 ChangeNumber(m_harmonics, m_pRecord->adaptive.m_uHarmonicNumberEnd, u);
             },
         .setCycles =
             [this](std::uint32_t u) {
                 ChangeNumber(m_cycles, m_pRecord->adaptive.m_uAveragingCycles, u);
             }});
}

void CFilterOptionsTab::ChangeNumber(Number& number, std::uint32_t& uRecord, std::uint32_t uValue) {
    uRecord = uValue;
    {
        const UpdateScope updating(m_bUpdating);
        number.txt.SetValue(ShownCount(uValue));
    }
    RunUpdate();
}

bool CFilterOptionsTab::IsWidthValid() {
    ADM_Wnd* pWidth = &m_width.txt;
    NameFields(*this, {pWidth});
    return m_width.txt.Validate(FALSE, nullptr) != 0;
}
