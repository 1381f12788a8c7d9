#include "Checks.h"

#include <algorithm>

#include "Interference.h"

namespace filter {

namespace {

constexpr char kNoInterval[] = "The sampling interval must be greater than zero.";
constexpr char kHarmonics[] = "At most 1000 harmonics can be removed.";
constexpr char kNoValue[] = "The data contain a value that is not a number or is too large.";
constexpr char kLowpassCutoff[] =
    "The lowpass cutoff frequency is outside the range of the filter.";
constexpr char kHighpassCutoff[] =
    "The highpass cutoff frequency is outside the range of the filter.";
constexpr char kNotchCenter[] = "The notch center frequency is outside the range of the filter.";
constexpr char kNotchWidth[] = "The notch width must be greater than zero.";

// Frequencies of records have single precision: one at the limit may lie a little above it.
constexpr double kRounding = 1.0 + 1e-6;
constexpr double kLeastFraction = 1e-6;

// Values up to 1e100 have finite sums and squares; those beyond overflow with this factor.
constexpr double kToOverflow = 1.797e208;

// The highest cutoff at which the design keeps what the family is chosen for.
double HighestCutoff(Kind kind, Family family) {
    if (kind == Kind::kNotch) return 0.5;
    switch (family) {
        case Family::kBessel:
            return 0.14;
        case Family::kButterworth:
        case Family::kChebyshev:
            return 0.2;
        case Family::kRc8:
            return 0.15;
        case Family::kGaussian:
        case Family::kBoxcar:
        case Family::kRc:
            break;
    }
    return 0.5;
}

}  // namespace

const char* WhyNot(const Section& section, double dSamplingFrequency) {
    if (section.kind == Kind::kLowpass && section.family == Family::kBoxcar) return nullptr;
    if (!(dSamplingFrequency > 0.0)) return kNoInterval;
    if (section.kind == Kind::kInterference) {
        const double dLowest = section.dLineFrequency > 0.0 ? section.dLineFrequency : 50.0;
        const bool bTooMany = section.uLastHarmonic > kMostHarmonics &&
                              0.49 * dSamplingFrequency / dLowest > kMostHarmonics;
        return bTooMany ? kHarmonics : nullptr;
    }
    const double dHighest = HighestCutoff(section.kind, section.family) * kRounding;
    if (!(section.dFraction >= kLeastFraction / kRounding && section.dFraction <= dHighest)) {
        switch (section.kind) {
            case Kind::kHighpass:
                return kHighpassCutoff;
            case Kind::kNotch:
                return kNotchCenter;
            default:
                return kLowpassCutoff;
        }
    }
    if (section.kind == Kind::kNotch && !(section.dWidth > 0.0)) return kNotchWidth;
    return nullptr;
}

const char* WhyNot(const double* values, std::size_t nPoints) {
    // A value that is too large is infinite after the first product, and nothing that is not finite
    // is 0 after the second. Several sums are faster than one.
    constexpr std::size_t kSums = 8;
    double sums[kSums] = {};
    std::size_t i = 0;
    for (; i + kSums <= nPoints; i += kSums) {
        for (std::size_t k = 0; k < kSums; ++k) sums[k] += values[i + k] * kToOverflow * 0.0;
    }
    for (; i < nPoints; ++i) sums[0] += values[i] * kToOverflow * 0.0;
    const bool bGood = std::all_of(sums, sums + kSums, [](double d) { return d == 0.0; });
    return bGood ? nullptr : kNoValue;
}

}  // namespace filter
