#include "sigproc/FilterChecks.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "sigproc_ids.h"

namespace {

constexpr int kPage = 0;

// Where the user changes what a message about the points is about.
int LowpassControl(const FilterOptions& options) {
    return options.lowpass.m_eFilterFamily == kBoxcar ? IDC_LOWPASS_POINTS : IDC_LOWPASS_CUTOFF;
}

int FirstSelectedControl(const FilterOptions& options) {
    if (options.lowpass.m_bIsSelected != 0) return LowpassControl(options);
    return options.highpass.m_bIsSelected != 0 ? IDC_HIGHPASS_CUTOFF : IDC_NOTCH_CENTER;
}

CheckResult CheckInterval(const FilterCheck& check) {
    if (check.bDeferred || check.signal.dRate > 0.0) return {};
    return Refusal(IDS_FILTER_NO_INTERVAL, kPage, IDC_FILTER_BANDPASS);
}

CheckResult CheckMinimumPoints(const FilterCheck& check) {
    if (check.options.adaptive.m_bIsSelected != 0 || !check.signal.bPointsKnown) return {};
    const std::uint32_t uMinimum = check.minimumPoints();
    if (check.signal.uPoints >= uMinimum) return {};
    return Refusal(IDS_FILTER_TOO_FEW_POINTS, kPage, FirstSelectedControl(check.options),
                   {uMinimum, check.signal.uPoints});
}

CheckResult CheckSettling(const FilterCheck& check) {
    const ZXADLG_FilterSection& notch = check.options.notch;
    if (notch.m_bIsSelected == 0 || check.signal.dRate == 0.0 || !check.signal.bPointsKnown)
        return {};
    const double dTwoSeconds = 2.0 * check.signal.dRate;
    const double dSettling =
        notch.m_d3dbWidth > 0.0 ? dTwoSeconds / notch.m_d3dbWidth : dTwoSeconds;
    if (std::trunc(dSettling) <= check.signal.uPoints) return {};
    return Refusal(IDS_NOTCH_SETTLING, kPage, IDC_NOTCH_WIDTH);
}

// A message that puts a field right behind it.
Finding Mending(Finding finding, const std::function<void(std::uint32_t)>& set,
                std::uint32_t uValue) {
    finding.vAnswers = {{IDOK, Finding::Next::kStay, [set, uValue] { set(uValue); }}};
    return finding;
}

CheckResult CheckInterference(const FilterCheck& check) {
    const ZXADLG_AdaptiveFilterSection& adaptive = check.options.adaptive;
    if (adaptive.m_bIsSelected == 0) return {};
    if (adaptive.m_uHarmonicNumberEnd < 1) {
        return Mending(Refusal(IDS_HUM_NO_HARMONICS, kPage, IDC_HUM_HARMONICS), check.setHarmonics,
                       1);
    }
    if (adaptive.m_uAveragingCycles < 1)
        return Mending(Refusal(IDS_HUM_NO_CYCLES, kPage, IDC_HUM_CYCLES), check.setCycles, 5);
    if (check.signal.dRate == 0.0 || !check.signal.bPointsKnown) return {};
    const double dPeriod = SamplesPerPeriod(adaptive.m_eReferenceGeneration, check.signal.dRate);
    const double dPoints = check.signal.uPoints;
    if (dPoints >= adaptive.m_uAveragingCycles * dPeriod) return {};
    constexpr double kMost = std::numeric_limits<std::uint32_t>::max();
    const auto uCycles = static_cast<std::uint32_t>(std::min(dPoints / dPeriod, kMost));
    if (uCycles == 0) return Refusal(IDS_HUM_SHORT_DATA, kPage, IDC_HUM_CYCLES);
    // Both answers stay: what the cycles become is the user's to confirm.
    return Question(
        IDS_HUM_FEWER_CYCLES, kPage, IDC_HUM_CYCLES, {uCycles},
        {{IDYES, Finding::Next::kStay, [set = check.setCycles, uCycles] { set(uCycles); }}});
}

// Deliberately kept as it stands: a frequency against a time, in seconds. It makes the messages
// about frequencies that are too small for the interval rare.
bool IsBelowInterval(const FilterCheck& check, double dFrequency) {
    return check.signal.dRate > 0.0 && dFrequency < check.options.dSampleInterval / 1000000.0;
}

CheckResult CheckLowpass(const FilterCheck& check) {
    const FilterOptions& options = check.options;
    const ZXADLG_FilterSection& lowpass = options.lowpass;
    if (lowpass.m_bIsSelected == 0) return {};
    const bool bKnown = AreLowpassLimitsKnown(options, check.signal);
    const int nControl = LowpassControl(options);
    if (lowpass.m_eFilterFamily == kBoxcar) {
        const std::uint32_t uPoints = lowpass.m_uNumAveragePoints;
        if (uPoints < 3) return Refusal(IDS_LOWPASS_TOO_FEW_AVERAGED, kPage, nControl, {3});
        if (bKnown && uPoints > LowpassLimitsFor(options, check.signal).dHigh)
            return Refusal(IDS_LOWPASS_OUT_OF_RANGE, kPage, nControl);
        return {};
    }
    const double dCorner = lowpass.m_dCornerFreq;
    if (options.highpass.m_bIsSelected != 0 &&
        !(ShownFrequency(dCorner) > ShownFrequency(options.highpass.m_dCornerFreq))) {
        return Refusal(IDS_LOWPASS_NOT_ABOVE, kPage, nControl);
    }
    if (bKnown && !IsShownWithin(dCorner, LowpassLimitsFor(options, check.signal)))
        return Refusal(IDS_LOWPASS_OUT_OF_RANGE, kPage, nControl);
    if (IsBelowInterval(check, dCorner)) return Refusal(IDS_CUTOFF_TOO_SMALL, kPage, nControl);
    return {};
}

CheckResult CheckHighpass(const FilterCheck& check) {
    const ZXADLG_FilterSection& highpass = check.options.highpass;
    if (highpass.m_bIsSelected == 0) return {};
    const double dCorner = highpass.m_dCornerFreq;
    if (check.signal.dRate > 0.0 &&
        !IsShownWithin(dCorner, HighpassLimits(highpass.m_eFilterFamily, check.signal.dRate)))
        return Refusal(IDS_HIGHPASS_OUT_OF_RANGE, kPage, IDC_HIGHPASS_CUTOFF);
    if (IsBelowInterval(check, dCorner))
        return Refusal(IDS_CUTOFF_TOO_SMALL, kPage, IDC_HIGHPASS_CUTOFF);
    return {};
}

CheckResult CheckNotch(const FilterCheck& check) {
    const ZXADLG_FilterSection& notch = check.options.notch;
    if (notch.m_bIsSelected == 0) return {};
    if (check.signal.dRate > 0.0 &&
        !IsShownWithin(notch.m_dCornerFreq, NotchCenterLimits(check.signal.dRate)))
        return Refusal(IDS_NOTCH_OUT_OF_RANGE, kPage, IDC_NOTCH_CENTER);
    if (IsBelowInterval(check, notch.m_d3dbWidth))
        return Refusal(IDS_NOTCH_WIDTH_TOO_SMALL, kPage, IDC_NOTCH_WIDTH);
    if (IsBelowInterval(check, notch.m_dCornerFreq))
        return Refusal(IDS_CUTOFF_TOO_SMALL, kPage, IDC_NOTCH_CENTER);
    return {};
}

}  // namespace

CheckResult CheckFilter(const FilterCheck& check) {
    for (const auto step : {CheckInterval, CheckMinimumPoints, CheckSettling, CheckInterference,
                            CheckLowpass, CheckHighpass, CheckNotch}) {
        if (CheckResult result = step(check)) return result;
    }
    return {};
}
