// Seeds of functions of time, of dwell times and of spectra.

#include <algorithm>
#include <cmath>

#include "families/ExponentialTerms.h"
#include "families/SpectrumTerm.h"
#include "families/TimeCourseTerms.h"
#include "seeds/Dictionaries.h"
#include "seeds/SeedMethods.h"
#include "seeds/SeedTerms.h"

namespace curvefit {

namespace {

enum Function : int32_t {
    kTimeCourse = 7,
    kAlpha = 8,
    kCumulative = 9,
    kLogDensity = 10,
    kPower = 11,
    kDensity = 12,
    kProduct = 13,
    kWeighted = 16,
    kConstrained = 17,
    kSpectrumByTau = 28,
};

std::vector<double> TimeConstants(const SeedTask& task) {
    const ReducedData& data = task.Data();
    const int32_t eFunction = task.Row().eFunction;
    std::vector<double> values;
    if (eFunction == kLogDensity) {
        const double dStep = task.Terms() == 1 ? 0.2 : 0.1;
        // No time has a logarithm beyond these.
        const double dFirst = std::max(data.First(), -300.0);
        const double dLast = std::min(data.Last(), 300.0);
        const auto nSteps = static_cast<int>(std::max(0.0, (dLast - dFirst) / dStep));
        for (int i = 0; i <= nSteps; ++i) values.push_back(std::pow(10.0, dFirst + i * dStep));
        return values;
    }
    const double dSpan = data.Span();
    const double dLongest = eFunction == kPower ? 2.0 * dSpan : 5.0 * dSpan;
    values = ByFactor(ShortestTime(data), dLongest, task.Terms() == 1 ? 1.45 : 1.3);
    const bool bMayGrow =
        eFunction >= 14 && eFunction <= kWeighted && task.Terms() == 1 && !task.ForcesShapes();
    if (bMayGrow) {
        for (const double d : ByFactor(0.1, 3.3, 2.0)) values.push_back(-d * dSpan);
    }
    return values;
}

// An amplitude found at x0, transformed to the origin of x.
double AtOrigin(const SeedTask& task, double dAmplitude, double dTau) {
    const double dOrigin = task.LateOrigin();
    return dOrigin == 0.0 ? dAmplitude : dAmplitude * std::exp(dOrigin / dTau);
}

ShapeFunction* DecayOf(int32_t eFunction) {
    switch (eFunction) {
        case kCumulative:
            return ShapeColumns<CumulativeTerm>;
        case kLogDensity:
            return ShapeColumns<LogDensityTerm>;
        case kPower:
            return ShapeColumns<PowerTerm>;
        case kDensity:
            return ShapeColumns<DensityTerm>;
        default:
            return ShapeColumns<DecayTerm>;
    }
}

}  // namespace

bool SeedTimeConstants(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const int32_t eFunction = task.Row().eFunction;
    SearchRules rules = RulesOf(task, DecayOf(eFunction), 1);
    // Dwell times and rates that only decay have no other sign.
    const bool bDwellTimes = eFunction == kLogDensity || eFunction == kDensity;
    rules.bPositiveShapes |= bDwellTimes || eFunction == kCumulative || eFunction == kPower;
    TermSearch search(task.Options(), data, rules);
    FoundTerms found = search.Search(Singles(TimeConstants(task)), task.Terms());
    if (!found.bFound) return false;
    if (bDwellTimes && task.Options().IsLikelihood()) {
        const double dLeast = 0.1 / data.dScaleY;
        for (int i = 0; i < 3; ++i) search.ReweighByCurve(found, dLeast);
    }
    const double dArea = eFunction == kLogDensity ? 1.0 : data.dScaleX;
    double dShares = 0.0;
    for (const FoundTerm& term : found.terms) dShares += term.dAmplitude;
    for (uint32_t t = 0; t < task.Terms(); ++t) {
        const FoundTerm& term = found.terms[t];
        const double dTau = term.shape[0] * (eFunction == kLogDensity ? 1.0 : data.dScaleX);
        double dAmplitude = term.dAmplitude * data.dScaleY;
        if (bDwellTimes) {
            dAmplitude *= dArea;
        } else if (eFunction == kConstrained && dShares > 0.0) {
            dAmplitude = term.dAmplitude / dShares;
        }
        dAmplitude = AtOrigin(task, dAmplitude, dTau);
        const bool bRate = eFunction == kWeighted || eFunction == kConstrained;
        SetSeed(task, 0, t, dAmplitude, seeds);
        SetSeed(task, 1, t, bRate ? 1.0 / dTau : dTau, seeds);
    }
    if (eFunction == kConstrained && task.LateOrigin() != 0.0) {
        // The transformation moved the sum away from one.
        double dSum = 0.0;
        for (uint32_t t = 0; t < task.Terms(); ++t) dSum += seeds[t];
        for (uint32_t t = 0; t < task.Terms(); ++t) seeds[t] /= dSum;
    }
    WriteLinear(task, found.dOffset, found.dSlope, seeds);
    return true;
}

bool SeedTimeCourse(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const int32_t eFunction = task.Row().eFunction;
    const double dSpan = data.Span();
    const double dShortest = ShortestTime(data);
    std::vector<Shape> dictionary;
    SearchRules rules;
    if (eFunction == kAlpha) {
        rules = RulesOf(task, ShapeColumns<AlphaTerm>, 1);
        dictionary = Singles(ByFactor(dShortest, dSpan, 1.2));
    } else if (eFunction == kProduct) {
        rules = RulesOf(task, ShapeColumns<ProductTerm>, 2);
        const std::vector<double> taus = ByFactor(dShortest, 0.7 * dSpan, 1.5);
        dictionary = Pairs(taus, taus);
        rules.dWidestTerm = 40.0;
    } else {
        rules = RulesOf(task, ShapeColumns<CurrentTerm>, 3);
        rules.dWidestTerm = 40.0;
        const std::vector<double> rises =
            ByFactor(std::max(dShortest, dSpan / 200.0), 0.6 * dSpan, 1.5);
        std::vector<double> decays = rises;
        decays.push_back(1.2 * dSpan);
        for (const double dRise : rises) {
            for (const double dInfinity : {0.0, 0.1, 0.25, 0.5}) {
                for (const double dDecay : decays) dictionary.push_back({dRise, dInfinity, dDecay});
            }
        }
    }
    rules.bPositiveShapes = true;
    TermSearch search(task.Options(), data, rules);
    const FoundTerms found = search.Search(dictionary, 1);
    if (!found.bFound) return false;
    const FoundTerm& term = found.terms[0];
    SetSeed(task, 0, 0, term.dAmplitude * data.dScaleY, seeds);
    for (uint32_t c = 1; c < task.Row().uParams; ++c) {
        const bool bTime = !(eFunction == kTimeCourse && c == 2);
        SetSeed(task, c, 0, term.shape[c - 1] * (bTime ? data.dScaleX : 1.0), seeds);
    }
    WriteLinear(task, found.dOffset, found.dSlope, seeds);
    return true;
}

bool SeedSpectrum(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    double dLowest = 0.0;
    for (const double x : data.x) {
        if (x > 0.0) {
            dLowest = x;
            break;
        }
    }
    if (dLowest == 0.0) return false;
    SearchRules rules = RulesOf(task, ShapeColumns<SpectrumTerm>, 1);
    rules.bPositiveShapes = true;
    TermSearch search(task.Options(), data, rules);
    const FoundTerms found =
        search.Search(Singles(Geometric(dLowest / 2.0, 2.0 * data.Last(), 36)), task.Terms());
    if (!found.bFound) return false;
    for (uint32_t t = 0; t < task.Terms(); ++t) {
        const FoundTerm& term = found.terms[t];
        const double dCorner = term.shape[0] * data.dScaleX;
        SetSeed(task, 0, t, term.dAmplitude * data.dScaleY, seeds);
        SetSeed(task, 1, t,
                task.Row().eFunction == kSpectrumByTau ? 1.0 / (2.0 * std::numbers::pi * dCorner)
                                                       : dCorner,
                seeds);
    }
    WriteLinear(task, found.dOffset, found.dSlope, seeds);
    return true;
}

}  // namespace curvefit
