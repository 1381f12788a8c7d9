#include "sigproc/FilterRecord.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/SmoothingLengths.h"
#include "sigproc/FilterLimits.h"

namespace {

constexpr double kMicroseconds = 1000000.0;

bool IsLowpassFamily(std::int32_t eFamily) {
    return eFamily >= kBessel && eFamily <= kRC8;
}

bool IsHighpassFamily(std::int32_t eFamily) {
    return eFamily == kBessel || eFamily == kRC;
}

// To the limit as it is shown, so that it reads as one within the limits with single precision too.
void Clamp(double& dFrequency, const FilterLimits& limits) {
    if (IsShownWithin(dFrequency, limits)) return;
    // No number has no nearer limit.
    const double dNearer = dFrequency > limits.dHigh ? limits.dHigh : limits.dLow;
    dFrequency = SingleFrequency(ShownFrequency(dNearer));
}

}  // namespace

FilterType FilterTypeOf(const FilterOptions& options) {
    const bool bLowpass = options.lowpass.m_bIsSelected != 0;
    if (options.highpass.m_bIsSelected != 0) return bLowpass ? kBandpassFilter : kHighpassFilter;
    if (bLowpass) return kLowpassFilter;
    if (options.notch.m_bIsSelected != 0) return kNotchFilter;
    return options.adaptive.m_bIsSelected != 0 ? kInterferenceFilter : kLowpassFilter;
}

void SelectFilterType(FilterOptions& options, FilterType eType) {
    options.lowpass.m_bIsSelected = eType == kBandpassFilter || eType == kLowpassFilter;
    options.highpass.m_bIsSelected = eType == kBandpassFilter || eType == kHighpassFilter;
    options.notch.m_bIsSelected = eType == kNotchFilter;
    options.adaptive.m_bIsSelected = eType == kInterferenceFilter;
}

void StoreInterval(FilterOptions& options, double dRate) {
    options.dSampleInterval = SingleFrequency(kMicroseconds / dRate);
}

void CompleteFilterRecord(FilterOptions& options, double dRate) {
    if (!IsLowpassFamily(options.lowpass.m_eFilterFamily))
        options.lowpass.m_eFilterFamily = kGaussian;
    if (!IsHighpassFamily(options.highpass.m_eFilterFamily))
        options.highpass.m_eFilterFamily = kBessel;

    std::int32_t& eReference = options.adaptive.m_eReferenceGeneration;
    if (eReference < k50Hz || eReference > kAutoReference) eReference = k50Hz;

    // A high- or lowpass leaves the other two sections as they are.
    const FilterType eType = FilterTypeOf(options);
    const bool bNone = options.lowpass.m_bIsSelected == 0 && options.highpass.m_bIsSelected == 0;
    if (bNone) SelectFilterType(options, eType);

    if (options.lowpass.m_eFilterFamily == kBoxcar) {
        options.lowpass.m_uNumAveragePoints = std::max(options.lowpass.m_uNumAveragePoints, 3u);
    } else if (options.lowpass.m_dCornerFreq == 0.0) {
        options.lowpass.m_dCornerFreq = SingleFrequency(std::trunc(dRate * 0.5 * 0.2));
    }
    if (options.highpass.m_dCornerFreq == 0.0)
        options.highpass.m_dCornerFreq = SingleFrequency(std::max(dRate * 0.5 * 0.0001, 1.0));
    if (options.notch.m_dCornerFreq == 0.0) options.notch.m_dCornerFreq = 60.0;
    if (!(options.notch.m_d3dbWidth > 0.0)) options.notch.m_d3dbWidth = 10.0;
}

std::vector<std::int32_t> SmoothingLengthsFor(const FilterSignal& signal) {
    constexpr std::uint32_t kAnyNumber = std::numeric_limits<std::uint32_t>::max();
    return SmoothingLengths(signal.bPointsKnown ? signal.uPoints : kAnyNumber);
}

bool AreLowpassLimitsKnown(const FilterOptions& options, const FilterSignal& signal) {
    return options.lowpass.m_eFilterFamily == kBoxcar ? signal.bPointsKnown : signal.dRate > 0.0;
}

FilterLimits LowpassLimitsFor(const FilterOptions& options, const FilterSignal& signal) {
    return LowpassLimits(options.lowpass.m_eFilterFamily, signal.dRate, signal.uPoints);
}

void ClampLowpass(FilterOptions& options, const FilterSignal& signal) {
    if (signal.dRate == 0.0) return;
    const FilterLimits limits = LowpassLimitsFor(options, signal);
    if (options.lowpass.m_eFilterFamily != kBoxcar) {
        Clamp(options.lowpass.m_dCornerFreq, limits);
    } else if (signal.bPointsKnown) {
        options.lowpass.m_uNumAveragePoints =
            std::clamp(options.lowpass.m_uNumAveragePoints, static_cast<std::uint32_t>(limits.dLow),
                       static_cast<std::uint32_t>(limits.dHigh));
    }
}

void ClampHighpass(FilterOptions& options, const FilterSignal& signal) {
    if (signal.dRate == 0.0) return;
    Clamp(options.highpass.m_dCornerFreq,
          HighpassLimits(options.highpass.m_eFilterFamily, signal.dRate));
}

void ClampNotch(FilterOptions& options, const FilterSignal& signal) {
    if (signal.dRate == 0.0) return;
    Clamp(options.notch.m_dCornerFreq, NotchCenterLimits(signal.dRate));
    Clamp(options.notch.m_d3dbWidth, NotchWidthLimits(signal.dRate));
}

std::uint32_t FilterApplyCount(const FilterOptions& options) {
    const bool bCorner =
        options.lowpass.m_bIsSelected != 0 && options.lowpass.m_eFilterFamily != kBoxcar;
    return (bCorner ? 1u : 0u) + (options.highpass.m_bIsSelected != 0 ? 1u : 0u) +
           (options.notch.m_bIsSelected != 0 ? 1u : 0u);
}
