#include "seeds/SeedTask.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "Kernels.h"

namespace curvefit {

namespace {

enum Function : int32_t {
    kBeta = 0,
    kBinomial = 1,
    kCumulative = 9,
    kLogDensity = 10,
    kDensity = 12,
    kBoundedRate = 17,
    kConstantField = 19,
    kDivalentField = 20,
    kSpectrumByCorner = 27,
    kVarianceParabola = 31,
    kParabola = 32,
    kPoisson = 33,
    kPolynomial = 34,
    kLine = 35,
    kLineOrigin = 36,
};

}  // namespace

SeedTask::SeedTask(const FunctionRow& row, const Settings& settings, const double* const* arrays,
                   std::size_t nPoints)
    : m_Row(row),
      m_Settings(settings),
      m_pArrays(arrays),
      m_nPoints(nPoints),
      m_uTerms(TermsOf(row, settings)),
      m_bOffset(Holds(row.traits.bHasOffset, settings)),
      m_bSlope(Holds(row.traits.bHasSlope, settings)) {}

bool SeedTask::ForcesProportions() const {
    if (Holds(m_Row.traits.bAlwaysPositive, m_Settings)) return true;
    // Shares of dwell times are positive by nature, whether asked for or not.
    if (m_Row.eFunction == kCumulative || m_Row.eFunction == kLogDensity ||
        m_Row.eFunction == kDensity || m_Row.eFunction == kSpectrumByCorner ||
        m_Row.eFunction == kSpectrumByCorner + 1) {
        return true;
    }
    return m_Settings.bForceProps && Holds(m_Row.traits.bCanForcePositive, m_Settings);
}

bool SeedTask::ForcesShapes() const {
    if (Holds(m_Row.traits.bAlwaysPositive, m_Settings)) return true;
    return m_Settings.bForceTaus && Holds(m_Row.traits.bCanForcePositive, m_Settings) &&
           !Holds(m_Row.traits.bOnlyProportionsForced, m_Settings);
}

bool SeedTask::CheckVariation() const {
    const double* y = m_pArrays[m_Row.uVariables];
    const bool bConstant = std::all_of(y, y + m_nPoints, [&](double d) { return d == y[0]; });
    if (!bConstant) return true;
    if (y[0] == 0.0) return false;
    // A line, polynomial or parabola may well be level.
    const bool bLevel = Holds(m_Row.traits.bStraightLine, m_Settings) ||
                        Holds(m_Row.traits.bPolynomial, m_Settings) ||
                        m_Row.eFunction == kVarianceParabola || m_Row.eFunction == kParabola;
    return !m_bOffset || bLevel;
}

bool SeedTask::CheckData() {
    const uint32_t uVariables = m_Row.uVariables;
    const std::size_t nParams = GridParams() + m_bOffset + m_bSlope;
    if (m_nPoints < nParams) return Fail(kTooFewPoints);
    for (uint32_t k = 0; k <= uVariables; ++k) {
        if (!AllFinite(m_pArrays[k], m_nPoints)) return Fail(kNotNumbers);
    }
    if (Holds(m_Row.traits.bUsesTemperature, m_Settings) && !(m_Settings.dThermalMv > 0.0))
        return Fail(kBelowAbsoluteZero);
    const double* x = m_pArrays[0];
    const double* y = m_pArrays[uVariables];
    if (uVariables > 1) {
        for (uint32_t k = 0; k < uVariables; ++k) {
            const double* c = m_pArrays[k];
            if (std::any_of(c, c + m_nPoints, [](double d) { return d <= 0.0; }))
                return Fail(kZeroConcentration);
        }
    } else if (m_nPoints > 1 || nParams > 1) {
        if (std::all_of(x, x + m_nPoints, [&](double d) { return d == x[0]; }))
            return Fail(kAllXEqual);
    }
    if (m_Row.eFunction == kBeta &&
        std::any_of(x, x + m_nPoints, [](double d) { return d < 0.0 || d > 1.0; })) {
        return Fail(kOutsideUnitRange);
    }
    if (Holds(m_Row.traits.bSubstitutesZeroX, m_Settings) &&
        std::none_of(x, x + m_nPoints, [](double d) { return d > 0.0; })) {
        return Fail(kNoConcentrations);
    }
    if (!CheckVariation()) return Fail(kNoVariation);
    const bool bCounts = m_Row.eFunction == kBeta || m_Row.eFunction == kBinomial ||
                         m_Row.eFunction == kPoisson || m_Row.eFunction == kLogDensity ||
                         (m_Row.eFunction == kDensity && m_Settings.IsLikelihood());
    if (bCounts && std::none_of(y, y + m_nPoints, [](double d) { return d > 0.0; }))
        return Fail(kNoCounts);
    return true;
}

void SeedTask::ReduceData() {
    const bool bTime = m_Row.traits.zeroShift != ZeroShift::kNone;
    const double* x = m_pArrays[0];
    ReductionRules rules;
    rules.bFineOnset = bTime || m_Row.eFunction == kDensity ||
                       m_Row.eFunction == kSpectrumByCorner ||
                       m_Row.eFunction == kSpectrumByCorner + 1;
    rules.bGuardOutliers = m_Row.eFunction != kBinomial && m_Row.eFunction != kPoisson;
    rules.bOnlyNonNegative = m_Row.eFunction == kCumulative || m_Row.eFunction == kDensity;
    rules.bConcentration = Holds(m_Row.traits.bSubstitutesZeroX, m_Settings);
    if (rules.bConcentration)
        rules.dSubstitute = SubstituteForZero(x, m_nPoints, m_Settings.dSubstZeroFactor);
    // Functions of time are found from the first point on. Without a zero-shift the parameters are
    // transformed afterwards, but for the cumulative one, whose origin is the data's.
    if (bTime) {
        const double dFirst = *std::min_element(x, x + m_nPoints);
        if (IsZeroShiftInEffect(m_Row, m_Settings)) {
            rules.dOrigin = dFirst;
        } else if (m_Row.eFunction != kCumulative) {
            rules.dOrigin = m_dLateOrigin = dFirst;
        }
    }
    rules.nBins = m_Row.uParams == kMaxTermParams && bTime ? 128 : 256;
    m_Data = Reduce(x, m_pArrays[m_Row.uVariables], m_nPoints, rules);
    // Where a scale has no place in the formula the data keep theirs.
    const bool bOwnX = m_Row.eFunction == kBeta || m_Row.eFunction == kBinomial ||
                       m_Row.eFunction == kPoisson || m_Row.eFunction == kLogDensity;
    if (bOwnX) {
        for (double& d : m_Data.x) d *= m_Data.dScaleX;
        m_Data.dSmallestStep *= m_Data.dScaleX;
        m_Data.dScaleX = 1.0;
    }
}

void SeedTask::WeighCounts() {
    const std::size_t n = m_Data.Size();
    const std::vector<double>& y = m_Data.y;
    const double dLargest = *std::max_element(y.begin(), y.end());
    const double dHalf = 0.5 / m_Data.dScaleY;
    static constexpr double kSmooth[] = {1.0, 2.0, 3.0, 2.0, 1.0};
    for (std::size_t i = 0; i < n; ++i) {
        double dSum = 0.0;
        double dWeights = 0.0;
        for (int k = -2; k <= 2; ++k) {
            const auto j = static_cast<std::ptrdiff_t>(i) + k;
            if (j < 0 || j >= static_cast<std::ptrdiff_t>(n)) continue;
            dSum += kSmooth[k + 2] * std::max(y[static_cast<std::size_t>(j)], 0.0);
            dWeights += kSmooth[k + 2];
        }
        m_Data.weight[i] /= std::max({dSum / dWeights, dHalf, 0.001 * dLargest});
    }
}

void SeedTask::OrderTerms(double* seeds) const {
    // Rising time constants, midpoints and means; falling rates and corner frequencies.
    if (m_uTerms < 2 || m_Row.uParams < 2) return;
    const bool bFalling = m_Row.eFunction == 16 || m_Row.eFunction == kBoundedRate ||
                          m_Row.eFunction == kSpectrumByCorner;
    std::vector<uint32_t> order(m_uTerms);
    std::iota(order.begin(), order.end(), 0u);
    const double* key = seeds + m_uTerms;
    std::stable_sort(order.begin(), order.end(), [&](uint32_t a, uint32_t b) {
        return bFalling ? key[a] > key[b] : key[a] < key[b];
    });
    const std::vector<double> before(seeds, seeds + GridParams());
    for (uint32_t c = 0; c < m_Row.uParams; ++c) {
        for (uint32_t t = 0; t < m_uTerms; ++t)
            seeds[c * m_uTerms + t] = before[c * m_uTerms + order[t]];
    }
}

void SeedTask::MoveOffZero(double* seeds) const {
    const uint32_t uAllowed = m_Row.traits.uZeroColumn == kNoZeroColumn
                                  ? kNoZeroColumn
                                  : m_Row.traits.uZeroColumn * m_uTerms;
    for (uint32_t i = 0; i < GridParams(); ++i) {
        if (seeds[i] != 0.0 || i == uAllowed) continue;
        // A thousandth of what its kind is measured in.
        const uint32_t uColumn = i / m_uTerms;
        double dScale = 1.0;
        if (uColumn == 0) {
            dScale = m_Data.Size() == 0 ? 1.0 : m_Data.RangeY() * m_Data.dScaleY;
        } else if (m_Row.traits.uZeroColumn == uColumn) {
            dScale = m_Data.dSmallestStep * m_Data.dScaleX;
        } else {
            dScale = m_Data.Size() == 0 ? 1.0 : m_Data.Span() * m_Data.dScaleX;
        }
        seeds[i] = 0.001 * (dScale > 0.0 && std::isfinite(dScale) ? dScale : 1.0);
    }
}

bool SeedTask::Run(double* seeds) {
    if (!CheckData()) return false;
    // A long record of a regression is solved by sums as it stands.
    constexpr std::size_t kLongRecord = 8192;
    const bool bRegression = m_Row.eFunction == kPolynomial || m_Row.eFunction == kLine ||
                             m_Row.eFunction == kLineOrigin || m_Row.eFunction == kParabola ||
                             m_Row.eFunction == kVarianceParabola;
    if (m_Row.uVariables == 1 && !(bRegression && m_nPoints > kLongRecord)) {
        ReduceData();
        const std::size_t nParams = GridParams() + m_bOffset + m_bSlope;
        if (m_Data.nPoints < nParams || m_Data.nDistinct < nParams) return Fail(kTooFewPoints);
        const bool bDwellTimes = m_Row.eFunction == kLogDensity || m_Row.eFunction == kDensity;
        if (bDwellTimes && m_Settings.IsLikelihood()) WeighCounts();
    }
    double found[kMaxParams] = {};
    m_szError = kNoSeeds;
    if (!m_Row.pSeed(*this, found)) return false;
    const uint32_t uCount = GridParams() + m_bOffset + m_bSlope;
    if (!AllFinite(found, uCount)) return Fail(kNoSeeds);
    OrderTerms(found);
    MoveOffZero(found);
    std::copy(found, found + uCount, seeds);
    m_szError = "";
    return true;
}

}  // namespace curvefit
