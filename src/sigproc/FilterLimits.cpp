#include "sigproc/FilterLimits.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "analysis/SmoothingLengths.h"
#include "text/NumberFormat.h"

namespace {

// Shares of the sampling frequency.
struct FamilyLimits {
    std::int32_t eFamily;
    double dLow;
    double dHigh;
};
constexpr double kLowest = 0.0001;
constexpr FamilyLimits kLowpassLimits[] = {
    {kBessel, kLowest, 0.14},  {kButterworth, kLowest, 0.2}, {kChebyshev, kLowest, 0.2},
    {kGaussian, kLowest, 0.5}, {kRC, kLowest, 0.5},          {kRC8, kLowest, 0.15},
};
constexpr FamilyLimits kHighpassLimits[] = {{kBessel, kLowest, 0.14}, {kRC, kLowest, 0.5}};
constexpr FilterLimits kNotchCenter = {0.001, 0.3};
constexpr FilterLimits kNotchWidth = {0.0, 0.5};

constexpr int kFrequencyDigits = 6;

// The first row stands for every family that is not in the table.
template <std::size_t N>
const FamilyLimits& FindFamily(const FamilyLimits (&rows)[N], std::int32_t eFamily) {
    for (const FamilyLimits& row : rows) {
        if (row.eFamily == eFamily) return row;
    }
    return rows[0];
}

FilterLimits Times(double dLow, double dHigh, double dRate) {
    return {dLow * dRate, dHigh * dRate};
}

// The lowest cutoff whose coefficients fit into the points. Its share of the rate counts in whole
// ten-thousandths, so that every build gets the same.
double GaussianMinimum(double dRate, std::uint32_t uPoints) {
    constexpr std::int64_t kHalf = 5000;
    std::int64_t nShare = kHalf;
    const std::int64_t nSpan = std::min<std::int64_t>(std::int64_t{uPoints} / 4 - 1, 4095);
    if (uPoints == 0) {
        nShare = 1;
    } else if (nSpan >= 1) {
        const auto nMillionths =
            static_cast<std::int64_t>(1.060041454108 / static_cast<double>(nSpan) * 1000000.0);
        nShare = std::clamp<std::int64_t>(nMillionths / 100, 1, kHalf);
    }
    double dMinimum = static_cast<double>(nShare) * dRate / 10000.0;
    if (dMinimum > 1.0) dMinimum = std::trunc(dMinimum) + 1.0;
    if (dMinimum > 10.0) {
        const double dOver = std::fmod(dMinimum, 5.0);
        if (dOver != 0.0) dMinimum += 5.0 - dOver;
    }
    return std::max(dMinimum, kLowest * dRate);
}

}  // namespace

FilterLimits LowpassLimits(std::int32_t eFamily, double dRate, std::uint32_t uPoints) {
    FilterLimits limits;
    if (eFamily == kBoxcar) {
        limits = {3.0, static_cast<double>(SmoothingLengths(uPoints).back())};
    } else {
        const FamilyLimits& row = FindFamily(kLowpassLimits, eFamily);
        limits = Times(row.dLow, row.dHigh, dRate);
        if (eFamily == kGaussian) limits.dLow = GaussianMinimum(dRate, uPoints);
    }
    if (limits.dHigh <= limits.dLow) limits.dLow = limits.dHigh - 1.0;
    return limits;
}

FilterLimits HighpassLimits(std::int32_t eFamily, double dRate) {
    const FamilyLimits& row = FindFamily(kHighpassLimits, eFamily);
    return Times(row.dLow, row.dHigh, dRate);
}

FilterLimits NotchCenterLimits(double dRate) {
    return Times(kNotchCenter.dLow, kNotchCenter.dHigh, dRate);
}

FilterLimits NotchWidthLimits(double dRate) {
    return Times(kNotchWidth.dLow, kNotchWidth.dHigh, dRate);
}

double CutoffStep(const FilterLimits& limits) {
    const double dStep = std::ceil(std::trunc((limits.dHigh - limits.dLow) / 75.0) / 10.0) * 10.0;
    if (dStep == 0.0) return 1.0;
    return std::min(dStep, 100.0);
}

std::int64_t CoefficientCount(double dCorner, double dRate) {
    if (!(dCorner > 0.0) || !(dRate > 0.0)) return 0;
    const double dQuarter = 4.0 * (0.1325051817635 / (dCorner / dRate));
    constexpr double kMost = 1e9;  // no count that a display could tell from it
    const auto nHalf = static_cast<std::int64_t>(std::min(dQuarter, kMost));
    return std::max<std::int64_t>(2 * nHalf + 1, 5);
}

double SamplesPerPeriod(std::int32_t eReference, double dRate) {
    return dRate / (eReference == k60Hz ? 60.0 : 50.0);
}

double InterferenceBandwidth(std::int32_t eReference, std::uint32_t uCycles) {
    if (uCycles == 0) return 0.0;
    return (eReference == k60Hz ? 36.000001430511475 : 30.000001192092896) / uCycles;
}

double ShownFrequency(double dFrequency) {
    char szText[32];
    FormatDouble(dFrequency, szText, sizeof szText, kFormatSignificant, 0, kFrequencyDigits,
                 nullptr);
    double dShown = dFrequency;
    ParseDouble(szText, &dShown);
    return dShown;
}

bool IsShownWithin(double dFrequency, const FilterLimits& limits) {
    const double dShown = ShownFrequency(dFrequency);
    return dShown >= ShownFrequency(limits.dLow) && dShown <= ShownFrequency(limits.dHigh);
}

double SingleFrequency(double dFrequency) {
    constexpr double kMost = std::numeric_limits<float>::max();
    return static_cast<float>(std::isnan(dFrequency) ? dFrequency
                                                     : std::clamp(dFrequency, -kMost, kMost));
}
