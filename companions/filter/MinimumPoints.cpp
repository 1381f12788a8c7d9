#include "MinimumPoints.h"

#include <algorithm>
#include <cmath>

#include "Gaussian.h"
#include "RcFilters.h"

namespace filter {

namespace {

constexpr double kMostPoints = 2147483647.0;
constexpr double kLeastFraction = 1e-6;
constexpr double kNyquist = 0.5;
// Settling times in units of 1/cutoff.
constexpr double kBesselSettling = 1.1377116;
constexpr double kButterworthSettling = 5.0931764;
constexpr double kChebyshevSettling = 13.0126744;
constexpr double kRc8Settling = 0.9397205;
constexpr double kBesselHighpassSettling = 5.7103301;
constexpr double kSettled = 0.001;
// The line frequency that counts where it is still to be found.
constexpr double kAutoLineFrequency = 50.0;

// Rounded up, with cutoffs that were rounded to single precision counting as what they were.
double CeilingOf(double d) {
    return std::ceil(d * (1.0 - 1e-7));
}

// Points until the pole of an RC filter has fallen to a thousandth.
double RcDecay(double dFraction) {
    return CeilingOf(std::log(kSettled) / std::log1p(-RcStep(dFraction)));
}

double LowpassPoints(Family family, double f) {
    switch (family) {
        case Family::kBessel:
            return CeilingOf(kBesselSettling / f) + 1.0;
        case Family::kButterworth:
            return CeilingOf(kButterworthSettling / f) + 1.0;
        case Family::kChebyshev:
            return CeilingOf(kChebyshevSettling / f) + 1.0;
        case Family::kRc:
            return RcDecay(f);
        case Family::kRc8:
            return CeilingOf(kRc8Settling / f) + 1.0;
        case Family::kBoxcar:
        case Family::kGaussian:
            break;
    }
    return 2.0 * GaussianHalfLength(f) + 1.0;
}

}  // namespace

std::uint32_t MinimumPoints(const Section& section, double dSamplingFrequency) {
    double dPoints = 1.0;
    if (section.kind == Kind::kInterference) {
        const double dLine =
            section.dLineFrequency > 0.0 ? section.dLineFrequency : kAutoLineFrequency;
        dPoints = CeilingOf(section.uCycles * (dSamplingFrequency / dLine));
    } else if (section.kind == Kind::kLowpass && section.family == Family::kBoxcar) {
        dPoints = section.uPoints;
    } else if (section.dFraction > 0.0) {
        const double f = std::clamp(section.dFraction, kLeastFraction, kNyquist);
        if (section.kind == Kind::kLowpass) {
            dPoints = LowpassPoints(section.family, f);
        } else if (section.kind == Kind::kNotch) {
            dPoints = std::max(3.0, CeilingOf(1.0 / f));
        } else {
            dPoints = section.family == Family::kRc ? RcDecay(f) + 1.0
                                                    : CeilingOf(kBesselHighpassSettling / f) + 1.0;
        }
    }
    return static_cast<std::uint32_t>(std::clamp(dPoints, 1.0, kMostPoints));
}

std::uint32_t MinimumPoints(const Settings& settings) {
    std::uint32_t uMost = 1;
    for (const Section& section : settings.sections)
        uMost = std::max(uMost, MinimumPoints(section, settings.dSamplingFrequency));
    return uMost;
}

}  // namespace filter
