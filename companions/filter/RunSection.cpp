#include "RunSection.h"

#include <algorithm>
#include <cmath>

#include "Gaussian.h"
#include "Interference.h"
#include "LineFrequency.h"
#include "ParallelLowpass.h"
#include "Prototypes.h"
#include "RcFilters.h"
#include "SecondOrder.h"
#include "SymmetricFir.h"

namespace filter {

namespace {

// The mean of nMean points at each end.
EndLevels LevelsOf(double dMean, const double* values, std::size_t nPoints) {
    const double dMost = static_cast<double>(nPoints);
    const auto nMean = static_cast<std::size_t>(std::clamp(dMean, 1.0, dMost));
    EndLevels levels = {0.0, 0.0};
    for (std::size_t i = 0; i < nMean; ++i) {
        levels.dBefore += values[i];
        levels.dAfter += values[nPoints - 1 - i];
    }
    levels.dBefore /= static_cast<double>(nMean);
    levels.dAfter /= static_cast<double>(nMean);
    return levels;
}

// Points that make a level at a cutoff: a tenth of its period. Cutoffs in single precision count as
// what they were.
double LevelPoints(double dFraction) {
    return std::ceil(0.1 / dFraction * (1.0 - 1e-7));
}

void RunLowpass(const Section& section, double* values, std::size_t nPoints) {
    const double f = section.dFraction;
    if (section.family == Family::kBoxcar) {
        const EndLevels levels = LevelsOf(std::ceil(section.uPoints / 4.0), values, nPoints);
        RunBoxcar(section.uPoints, levels, values, nPoints);
        return;
    }
    const EndLevels levels = LevelsOf(LevelPoints(f), values, nPoints);
    const auto parallel = [&](const Prototype& prototype) {
        RunParallel(DesignParallel(prototype, f), levels.dBefore, values, nPoints);
    };
    switch (section.family) {
        case Family::kBessel:
            parallel(kBesselPrototype);
            break;
        case Family::kButterworth:
            parallel(kButterworthPrototype);
            break;
        case Family::kChebyshev:
            parallel(kChebyshevPrototype);
            break;
        case Family::kRc:
            RunRcLowpass(f, levels.dBefore, values, nPoints);
            break;
        case Family::kRc8:
            RunRc8(DesignRc8(f), levels.dBefore, values, nPoints);
            break;
        case Family::kBoxcar:
        case Family::kGaussian:
            RunSymmetricFir(GaussianWeights(f), levels, values, nPoints);
            break;
    }
}

void RunHighpass(const Section& section, double* values, std::size_t nPoints) {
    const double f = section.dFraction;
    const EndLevels levels = LevelsOf(LevelPoints(f), values, nPoints);
    if (section.family == Family::kRc) {
        RunRcHighpass(f, levels.dBefore, values, nPoints);
    } else {
        RunBesselHighpass(DesignBesselHighpass(f), levels.dBefore, values, nPoints);
    }
}

void RunInterferenceSection(const Section& section, double dSamplingFrequency, double* values,
                            std::size_t nPoints) {
    double dLine = section.dLineFrequency;
    if (!(dLine > 0.0)) {
        dLine = FindLineFrequency(values, nPoints, dSamplingFrequency, section.uFirstHarmonic,
                                  std::min(section.uLastHarmonic, kMostHarmonics));
    }
    const InterferenceDesign design =
        DesignInterference(dSamplingFrequency, dLine, section.uFirstHarmonic, section.uLastHarmonic,
                           section.uCycles, nPoints);
    const EndLevels levels = LevelsOf(std::ceil(design.dPeriod), values, nPoints);
    RunInterference(design, section.bCompensateEnds, levels, values, nPoints);
}

}  // namespace

void RunSection(const Section& section, double dSamplingFrequency, double* values,
                std::size_t nPoints) {
    switch (section.kind) {
        case Kind::kLowpass:
            RunLowpass(section, values, nPoints);
            break;
        case Kind::kHighpass:
            RunHighpass(section, values, nPoints);
            break;
        case Kind::kNotch: {
            const EndLevels levels =
                LevelsOf(std::ceil(1.0 / section.dFraction * (1.0 - 1e-7)), values, nPoints);
            RunNotch(DesignNotch(section.dFraction, section.dWidth), levels.dBefore, values,
                     nPoints);
            break;
        }
        case Kind::kInterference:
            RunInterferenceSection(section, dSamplingFrequency, values, nPoints);
            break;
    }
}

}  // namespace filter
