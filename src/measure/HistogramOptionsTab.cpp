#include "measure/HistogramOptionsTab.h"

#include <algorithm>
#include <cmath>

#include "ZXADLG.h"
#include "histogram_ids.h"
#include "ids.h"

namespace {

constexpr int kWidthDigits = 6;
constexpr int kRangeDecimals = 3;
constexpr int kTextDigits = 15;

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CHistogramOptionsTab::CHistogramOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                                           CDataOptionsInterface* pData)
    : COptionsTab(pOptions, pParams, pData, IDD_HISTOGRAM_OPTIONS),
      m_first{m_pRecord->fMinDataValue, m_pRecord->fMaxDataValue} {
    BindRadios({IDC_HISTOGRAM_CONVENTIONAL, IDC_HISTOGRAM_CUMULATIVE, IDC_HISTOGRAM_LOGARITHMIC,
                IDC_HISTOGRAM_VARIABLE},
               m_radKind, &Record::eHistoType);
    BindBins();
    Bind(IDC_HISTOGRAM_NORMALIZE, m_chkNormalize, &Record::bNormalize);
    Bind(IDC_HISTOGRAM_COMBINE, m_chkCombine, &Record::bCombineData);
    BindLimits();
    FollowData(pData, [this] { TakeRange(); });
}

void CHistogramOptionsTab::BindBins() {
    Label(IDC_HISTOGRAM_WIDTH_LABEL, m_lblWidth);
    // A width of 0 is not stored; the field keeps it, for OK to tell.
    BindTyped(
        IDC_HISTOGRAM_WIDTH, m_txtWidth, [this] { return m_pRecord->fBinWidth; },
        [this](double d) {
            if (SingleValue(d) > 0.0f) m_pRecord->fBinWidth = SingleValue(d);
        })
        .Then([this] { CountLinear(); });
    m_txtWidth.SetSigDigits(kWidthDigits);
    Spinner(IDC_HISTOGRAM_WIDTH_SPIN, m_spnWidth, m_txtWidth);
    Label(IDC_HISTOGRAM_BINS_LABEL, m_lblBins);
    Bind(
        IDC_HISTOGRAM_BINS, m_txtBins, [this] { return m_pRecord->nNumBins; },
        [this](std::int32_t n) {
            if (n > 0) SetBins(n);
        })
        .ShowsWhenLeft();
    Spinner(IDC_HISTOGRAM_BINS_SPIN, m_spnBins, m_txtBins);
    Label(IDC_HISTOGRAM_DECADES_LABEL, m_lblDecades);
    // None at all are not stored either.
    Bind(
        IDC_HISTOGRAM_DECADES, m_txtDecades, [this] { return m_pRecord->nBinsPerDecade; },
        [this](std::int32_t n) {
            if (n > 0) m_pRecord->nBinsPerDecade = std::min(n, kMostBins);
        });
    Spinner(IDC_HISTOGRAM_DECADES_SPIN, m_spnDecades, m_txtDecades);
    Label(IDC_HISTOGRAM_DECADES_COUNT, m_lblDecadesCount);
    if (IsReadOnly()) return;
    m_txtBins.SetRange(0, kMostBins, 1);
    m_txtDecades.SetRange(0, kMostBins, 1);
}

void CHistogramOptionsTab::BindLimits() {
    Bind(IDC_HISTOGRAM_ALL, m_chkAll, &Record::bBinAllData).Then([this] { CountCurrentKind(); });
    BindLimit(IDC_HISTOGRAM_LOWER_LABEL, m_lblLower, IDC_HISTOGRAM_LOWER, m_txtLower,
              &Record::fMinDataValue, ClampLower);
    BindLimit(IDC_HISTOGRAM_UPPER_LABEL, m_lblUpper, IDC_HISTOGRAM_UPPER, m_txtUpper,
              &Record::fMaxDataValue, ClampUpper);
    Label(IDC_HISTOGRAM_RANGE, m_lblRange);
}

void CHistogramOptionsTab::BindLimit(int nLabel, ADM_Static& lbl, int nField, ADM_FloatText& txt,
                                     float Record::*pLimit,
                                     float (*clamp)(float, const HistogramRange&)) {
    Label(nLabel, lbl);
    BindTyped(
        nField, txt, [this, pLimit] { return m_pRecord->*pLimit; },
        [this, pLimit, clamp](float f) {
            m_pRecord->*pLimit = m_bRangeKnown ? clamp(f, m_range) : f;
        })
        .ShowsWhenLeft()
        .Then([this] { CountCurrentKind(); });
}

// --- The data ------------------------------------------------------------------------------------

HistogramRange CHistogramOptionsTab::ReadRange() {
    HistogramRange range;
    range.bFound = m_pData->GetYExtent(&range.dMin, &range.dMax, false);
    // A deferred run takes what is stored, whatever that is.
    if (std::isnan(range.dMin) || std::isnan(range.dMax)) return {};
    return range;
}

// What depends on the range is made anew for another range alone, so that bins that were typed, and
// limits that were restored, outlast a look at the data page.
void CHistogramOptionsTab::TakeRange() {
    const HistogramRange range = ReadRange();
    const bool bSame = m_bRangeTaken && range == m_range;
    m_bRangeTaken = true;
    m_range = range;
    m_bRangeKnown = m_pParams->bDeferredRun == 0 || range.dMin != 0.0 || range.dMax != 0.0;
    if (bSame || IsReadOnly()) return;
    m_txtWidth.SetLimits(0.0, MostWidth(m_range, m_pRecord->fBinWidth), WidthStep(m_range));
    if (m_bRangeKnown) {
        const HistogramLimits limits =
            FollowRange({m_pRecord->fMinDataValue, m_pRecord->fMaxDataValue}, m_first, m_range,
                        m_pRecord->fBinWidth);
        m_pRecord->fMinDataValue = limits.fLower;
        m_pRecord->fMaxDataValue = limits.fUpper;
        m_txtLower.SetValue(limits.fLower);
        m_txtUpper.SetValue(limits.fUpper);
    }
    CountLinear();
}

// --- Bins ----------------------------------------------------------------------------------------

void CHistogramOptionsTab::SetBins(std::int32_t nBins) {
    m_pRecord->nNumBins = std::min(nBins, kMostBins);
    const float fWidth = WidthOfBins(m_range, m_pRecord->nNumBins);
    // A range of no width has none to give.
    if (!(fWidth > 0.0f)) return;
    m_pRecord->fBinWidth = fWidth;
    m_txtWidth.SetValue(fWidth);
}

float CHistogramOptionsTab::WidthInUse() {
    const float fShown = SingleValue(m_txtWidth.GetTypedValue());
    return fShown > 0.0f ? m_pRecord->fBinWidth : fShown;
}

void CHistogramOptionsTab::CountLinear() {
    const BinCount count = CountLinearBins(m_range, WidthInUse());
    if (!m_bRangeKnown || count.eState != BinCountState::kCounted) return;
    m_pRecord->nNumBins = std::max(count.nCount, 0);
    m_txtBins.SetValue(m_pRecord->nNumBins);
}

// The other layout is counted wherever the rules run.
void CHistogramOptionsTab::CountCurrentKind() {
    if (!HasDecades(m_pRecord->eHistoType)) CountLinear();
}

// --- Rules ---------------------------------------------------------------------------------------

void CHistogramOptionsTab::UpdateControls() {
    COptionsTab::UpdateControls();
    const bool bDecades = HasDecades(m_pRecord->eHistoType);
    EnableControls({&m_lblWidth, &m_txtWidth, &m_spnWidth, &m_lblBins, &m_txtBins, &m_spnBins},
                   !bDecades);
    EnableControls({&m_lblDecades, &m_txtDecades, &m_spnDecades, &m_lblDecadesCount}, bDecades);
    EnableControls({&m_chkNormalize}, m_pRecord->eHistoType != kVariableWidthHistogram);
    EnableControls({&m_lblLower, &m_txtLower, &m_lblUpper, &m_txtUpper},
                   m_pRecord->bBinAllData == 0);
    ShowDecades();
    ShowRange();
}

void CHistogramOptionsTab::ShowDecades() {
    const BinCount count = CountLogarithmicBins(m_range, WidthInUse(), m_pRecord->nBinsPerDecade);
    ShowControls({&m_lblDecadesCount}, m_bRangeKnown);
    if (count.eState == BinCountState::kCounted) {
        m_lblDecadesCount.SetArgInt(0, count.nCount);
    } else {
        const bool bNegative = count.eState == BinCountState::kNegative;
        m_lblDecadesCount.SetArg(0, bNegative ? "(-ve value)" : "(Error)");
    }
}

void CHistogramOptionsTab::ShowRange() {
    ShowControls({&m_lblRange}, m_bRangeKnown);
    char szFormat[128] = "";
    LoadStringA(m_hInstance, m_range.bFound ? IDS_HISTOGRAM_RANGE : IDS_HISTOGRAM_NO_RANGE,
                szFormat, sizeof szFormat);
    m_lblRange.SetFormat(szFormat);
    m_lblRange.SetArgDouble(0, m_range.dMin, kRangeDecimals, kTextDigits);
    m_lblRange.SetArgDouble(1, m_range.dMax, kRangeDecimals, kTextDigits);
}

// --- OK ------------------------------------------------------------------------------------------

HistogramCheck CHistogramOptionsTab::Typed() {
    TakeData();
    return {.eKind = m_pRecord->eHistoType,
            .nBinsPerDecade = m_txtDecades.GetTypedValue(),
            .fWidth = SingleValue(m_txtWidth.GetTypedValue()),
            .limits = {m_txtLower.GetTypedValue(), m_txtUpper.GetTypedValue()},
            .bBinAllData = m_pRecord->bBinAllData != 0};
}
