// Seeds of sigmoids, bells, growth and saturation.

#include <algorithm>
#include <cmath>

#include "families/BellTerms.h"
#include "families/BoltzmannTerm.h"
#include "families/MichaelisTerm.h"
#include "seeds/Dictionaries.h"
#include "seeds/SeedMethods.h"
#include "seeds/SeedTerms.h"

namespace curvefit {

namespace {

enum Function : int32_t {
    kStandard = 4,
    kInactivation = 5,
    kActivation = 6,
    kGaussian = 18,
    kSteadyState = 21,
    kFourParameters = 22,
};

// Positions tried for 2 to 6 terms.
constexpr std::size_t kPositions[] = {25, 25, 20, 18, 16};

struct WidthRange {
    double dFrom;
    double dTo;
};

// With `bBothSigns` also falling sigmoids.
std::vector<Shape> Sigmoids(const ReducedData& data, const WidthRange& widths, bool bBothSigns) {
    const double dBeyond = 0.05 * data.Span();
    std::vector<double> values = Geometric(widths.dFrom, widths.dTo, 8);
    if (bBothSigns) {
        for (std::size_t k = 0; k < 8; ++k) values.push_back(-values[k]);
    }
    return Pairs(Evenly(data.First() - dBeyond, data.Last() + dBeyond, 25), values);
}

// Of the two equal descriptions of a sigmoid above an offset the rising one.
void MakeRising(FoundTerm& term, double& dOffset) {
    if (term.shape[1] >= 0.0) return;
    dOffset += term.dAmplitude;
    term.dAmplitude = -term.dAmplitude;
    term.shape[1] = -term.shape[1];
}

}  // namespace

bool SeedSigmoid(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const int32_t eFunction = task.Row().eFunction;
    const std::size_t nTerms = task.Terms();
    const double dSpan = data.Span();
    const SearchRules rules = RulesOf(task, ShapeColumns<BoltzmannTerm>, 2);
    // A sigmoid that must be positive, or has no offset to fall from, may fall itself.
    const bool bBothSigns = eFunction == kStandard || rules.bPositiveAmplitudes;
    const WidthRange widths = {std::max(0.3 * data.dSmallestStep, dSpan / 120.0), dSpan / 3.0};
    const std::vector<Shape> dictionary = Sigmoids(data, widths, bBothSigns);
    TermSearch search(task.Options(), data, rules);
    FoundTerms found;
    if (nTerms == 1) {
        found = search.Search(dictionary, 1);
    } else {
        const double dWidth = dSpan / (8.0 * static_cast<double>(nTerms));
        found = search.SearchPositions(Evenly(data.First(), data.Last(), kPositions[nTerms - 2]),
                                       {1.6 * dWidth, 0.8 * dWidth, 0.4 * dWidth, 0.2 * dWidth},
                                       dictionary, nTerms);
    }
    if (!found.bFound) return false;
    double dOffset = found.dOffset;
    for (uint32_t t = 0; t < nTerms; ++t) {
        FoundTerm& term = found.terms[t];
        if (!bBothSigns) MakeRising(term, dOffset);
        const double dWidth = term.shape[1] * data.dScaleX;
        double dAmplitude = term.dAmplitude;
        double dLast = dWidth;
        if (eFunction == kInactivation || eFunction == kActivation)
            dLast = task.Options().dThermalMv / dWidth;
        if (eFunction == kInactivation) {
            // A rising sigmoid is one minus a falling one.
            dOffset += dAmplitude;
            dAmplitude = -dAmplitude;
        }
        SetSeed(task, 0, t, dAmplitude * data.dScaleY, seeds);
        SetSeed(task, 1, t, term.shape[0] * data.dScaleX, seeds);
        SetSeed(task, 2, t, dLast, seeds);
    }
    WriteLinear(task, dOffset, 0.0, seeds);
    return true;
}

bool SeedDoseResponse(SeedTask& task, double* seeds) {
    const int32_t eFunction = task.Row().eFunction;
    ReducedData data = task.Data();
    for (double& x : data.x) x = std::log(x);
    double dStep = data.Span();
    for (std::size_t i = 1; i < data.Size(); ++i) {
        if (data.x[i] > data.x[i - 1]) dStep = std::min(dStep, data.x[i] - data.x[i - 1]);
    }
    data.dSmallestStep = dStep;
    SearchRules rules = RulesOf(task, ShapeColumns<BoltzmannTerm>, 2);
    rules.bOffset = eFunction != kSteadyState;
    const double dSpan = data.Span();
    const double dNarrow = std::max(0.1, dSpan / 60.0);
    const WidthRange widths = {dNarrow, std::max(std::min(3.0, dSpan), 1.1 * dNarrow)};
    TermSearch search(task.Options(), data, rules);
    FoundTerms found = search.Search(Sigmoids(data, widths, eFunction == kSteadyState), 1);
    if (!found.bFound) return false;
    FoundTerm& term = found.terms[0];
    double dOffset = found.dOffset;
    if (eFunction != kSteadyState) MakeRising(term, dOffset);
    const double dHalf = std::exp(term.shape[0]) * data.dScaleX;
    const double dPower = 1.0 / term.shape[1];
    const double dAmplitude = term.dAmplitude * data.dScaleY;
    dOffset *= data.dScaleY;
    if (eFunction == kFourParameters) {
        const bool bFalls = dAmplitude < 0.0;
        seeds[0] = bFalls ? dOffset + dAmplitude : dOffset;
        seeds[1] = bFalls ? dOffset : dOffset + dAmplitude;
        seeds[2] = dHalf;
        seeds[3] = bFalls ? -dPower : dPower;
        return true;
    }
    seeds[0] = dAmplitude;
    seeds[1] = dHalf;
    seeds[2] = dPower;
    if (task.HasOffset()) seeds[3] = dOffset;
    return true;
}

bool SeedMichaelis(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    SearchRules rules = RulesOf(task, ShapeColumns<MichaelisTerm>, 1);
    rules.bPositiveShapes = true;
    TermSearch search(task.Options(), data, rules);
    const FoundTerms found =
        search.Search(Singles(Geometric(0.1 * data.First(), 10.0 * data.Last(), 30)), 1);
    if (!found.bFound) return false;
    seeds[0] = found.terms[0].dAmplitude * data.dScaleY;
    seeds[1] = found.terms[0].shape[0] * data.dScaleX;
    return true;
}

bool SeedBells(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const std::size_t nTerms = task.Terms();
    const double dSpan = data.Span();
    const bool bGaussian = task.Row().eFunction == kGaussian;
    const SearchRules rules =
        RulesOf(task, bGaussian ? ShapeColumns<GaussianTerm> : ShapeColumns<LorentzianTerm>, 2);
    TermSearch search(task.Options(), data, rules);
    const double dNarrow = std::min(0.8 * data.dSmallestStep, dSpan / 3.0);
    const auto bells = [&](std::size_t nCentres, double dWidest) {
        return Pairs(Evenly(data.First(), data.Last(), nCentres),
                     Geometric(dNarrow, std::max(dWidest, 1.5 * dNarrow), 8));
    };
    FoundTerms found;
    if (nTerms == 1) {
        found = search.Search(bells(33, dSpan / 3.0), 1);
    } else {
        const double dEach = dSpan / static_cast<double>(nTerms);
        found = search.Search(bells(41, dEach / 3.0), nTerms);
        const double dWidth = dEach / 3.0;
        for (const FoundTerms& other :
             {search.Search(bells(41, dEach / 8.0), nTerms),
              search.SearchPositions(Evenly(data.First(), data.Last(), kPositions[nTerms - 2]),
                                     {dWidth, 0.55 * dWidth, 0.3 * dWidth, 0.16 * dWidth}, {},
                                     nTerms)}) {
            if (other.bFound && (!found.bFound || other.dSquares < found.dSquares)) found = other;
        }
    }
    if (!found.bFound) return false;
    for (uint32_t t = 0; t < nTerms; ++t) {
        const FoundTerm& term = found.terms[t];
        const double dSign = term.shape[1] < 0.0 ? -1.0 : 1.0;
        SetSeed(task, 0, t, dSign * term.dAmplitude * data.dScaleY * data.dScaleX, seeds);
        SetSeed(task, 1, t, term.shape[0] * data.dScaleX, seeds);
        SetSeed(task, 2, t, dSign * term.shape[1] * data.dScaleX, seeds);
    }
    WriteLinear(task, found.dOffset, 0.0, seeds);
    return true;
}

namespace {

// Growth by its rest at the origin, K / N0 - 1, and its rate: the form in which K is an amplitude.
struct GrowthShape {
    static constexpr uint32_t kParams = 3;
    GrowthShape(const Settings&, const double* p) : m_dLevel(p[0]), m_dRest(p[1]), m_dRate(p[2]) {}
    void Gradient(double t, double* g) const {
        const double u = m_dRate * t;
        const double e = std::exp(-std::fabs(u));
        // Numerator and denominator over e^u where u is below 0.
        const double d = u >= 0.0 ? 1.0 + m_dRest * e : e + m_dRest;
        g[0] = (u >= 0.0 ? 1.0 : e) / d;
        g[1] = -m_dLevel * e / (d * d);
        g[2] = m_dLevel * m_dRest * t * e / (d * d);
    }
    double m_dLevel, m_dRest, m_dRate;
};

bool HasPole(const ReducedData& data, double dRest, double dRate) {
    return std::any_of(data.x.begin(), data.x.end(),
                       [&](double t) { return 1.0 + dRest * std::exp(-dRate * t) <= 0.0; });
}

}  // namespace

bool SeedGrowth(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    static constexpr double kRests[] = {-0.9, -0.75, -0.5,  -0.25, 0.3,   1.0,    3.0,    8.0,
                                        20.0, 50.0,  120.0, 300.0, 800.0, 2000.0, 10000.0};
    const double dSpan = data.Span();
    std::vector<double> rates = Geometric(0.5 / dSpan, 60.0 / dSpan, 16);
    for (std::size_t k = 0; k < 6; ++k) rates.push_back(-rates[k]);
    std::vector<Shape> dictionary;
    for (const double dRest : kRests) {
        for (const double dRate : rates) {
            if (!HasPole(data, dRest, dRate)) dictionary.push_back({dRest, dRate, 0.0});
        }
    }
    SearchRules rules = RulesOf(task, ShapeColumns<GrowthShape>, 2);
    TermSearch search(task.Options(), data, rules);
    const FoundTerms found = search.Search(dictionary, 1);
    if (!found.bFound) return false;
    const FoundTerm& term = found.terms[0];
    const double dLevel = term.dAmplitude * data.dScaleY;
    const double dRate = term.shape[1] / data.dScaleX;
    const double dRest = term.shape[0] * std::exp(dRate * task.LateOrigin());
    seeds[0] = dLevel;
    seeds[1] = dLevel / (1.0 + dRest);
    seeds[2] = dRate;
    return true;
}

}  // namespace curvefit
