// Distributions: two bells with an amplitude, and three that have the area or sum of one.

#include "FunctionTable.h"
#include "Kernels.h"
#include "TermLoops.h"
#include "families/BellTerms.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// Amplitudes between closed (0) and open (1) of a filtered two-state channel.
struct BetaTerm {
    static constexpr uint32_t kParams = 2;
    // x is held this far away from the ends, so that a pole is large and finite.
    static constexpr double kEnd = 0x1p-40;
    BetaTerm(const Settings&, const double* p)
        : m_dA(p[0]),
          m_dB(p[1]),
          m_dLogBeta(m_dA > 0.0 && m_dB > 0.0 ? LogBeta(m_dA, m_dB)
                                              : std::numeric_limits<double>::quiet_NaN()) {}
    static bool IsInside(double x) { return x >= 0.0 && x <= 1.0; }
    static double LogX(double x) { return x < kEnd ? std::log(kEnd) : std::log(x); }
    static double LogRest(double x) { return x > 1.0 - kEnd ? std::log(kEnd) : std::log1p(-x); }
    double Density(double dLogX, double dLogRest) const {
        return std::exp((m_dA - 1.0) * dLogX + (m_dB - 1.0) * dLogRest - m_dLogBeta);
    }
    double Value(double x) const { return IsInside(x) ? Density(LogX(x), LogRest(x)) : 0.0; }
    void Gradient(double x, double* g) const {
        g[0] = g[1] = 0.0;
        if (!IsInside(x)) return;
        const double dLogX = LogX(x);
        const double dLogRest = LogRest(x);
        const double f = Density(dLogX, dLogRest);
        const double dBoth = Digamma(m_dA + m_dB);
        g[0] = f * (dLogX - Digamma(m_dA) + dBoth);
        g[1] = f * (dLogRest - Digamma(m_dB) + dBoth);
    }
    double m_dA, m_dB, m_dLogBeta;
};

// Stirling's formula holds from here; the saddle-point forms below lean on it.
constexpr double kLarge = 10.0;

// Number of successes, with a real number of trials: the value runs on to 0 at x = n + 1, so that a
// fit may move n.
struct BinomialTerm {
    static constexpr uint32_t kParams = 2;
    static constexpr double kProbabilityEnd = 1e-12;
    BinomialTerm(const Settings&, const double* p)
        : m_dTrials(p[0]),
          m_dP(p[1] < kProbabilityEnd         ? kProbabilityEnd
               : p[1] > 1.0 - kProbabilityEnd ? 1.0 - kProbabilityEnd
                                              : p[1]),
          m_dLogTrials(m_dTrials > -1.0 ? LogGamma(m_dTrials + 1.0) : 0.0) {}
    bool IsInside(double x) const { return x >= 0.0 && x < m_dTrials + 1.0; }
    double Value(double x) const {
        if (!IsInside(x)) return 0.0;
        const double dRest = m_dTrials - x;
        if (x >= kLarge && dRest >= kLarge) {
            // The large logarithms cancel in closed form.
            const double dExponent = StirlingRest(m_dTrials) - StirlingRest(x) -
                                     StirlingRest(dRest) - Deviance(x, m_dTrials * m_dP) -
                                     Deviance(dRest, m_dTrials * (1.0 - m_dP));
            return std::exp(dExponent) *
                   std::sqrt(m_dTrials / (2.0 * std::numbers::pi * x * dRest));
        }
        return std::exp(m_dLogTrials - LogGamma(x + 1.0) - LogGamma(dRest + 1.0) +
                        x * std::log(m_dP) + dRest * std::log1p(-m_dP));
    }
    void Gradient(double x, double* g) const {
        g[0] = g[1] = 0.0;
        if (!IsInside(x)) return;
        const double f = Value(x);
        g[0] = f * (Digamma(m_dTrials + 1.0) - Digamma(m_dTrials - x + 1.0) + std::log1p(-m_dP));
        g[1] = f * (x - m_dTrials * m_dP) / (m_dP * (1.0 - m_dP));
    }
    double m_dTrials, m_dP, m_dLogTrials;
};

struct PoissonTerm {
    static constexpr uint32_t kParams = 1;
    PoissonTerm(const Settings&, const double* p) : m_dMean(NonZero(p[0])) {}
    double Value(double x) const {
        if (x < 0.0) return 0.0;
        if (x >= kLarge) {
            return std::exp(-StirlingRest(x) - Deviance(x, m_dMean)) /
                   std::sqrt(2.0 * std::numbers::pi * x);
        }
        return std::exp(x * std::log(m_dMean) - m_dMean - LogGamma(x + 1.0));
    }
    void Gradient(double x, double* g) const {
        g[0] = x < 0.0 ? 0.0 : Value(x) * (x / m_dMean - 1.0);
    }
    double m_dMean;
};

constexpr FunctionRow kRows[] = {
    {.eFunction = 0,
     .szCaption = "Beta Function",
     .uParams = 2,
     .aszParams = {"a", "b"},
     .uVariables = 1,
     .aszVariables = {"x (0..1)"},
     .szDependent = "Density",
     .traits = {.bNormalizedX = kYes,
                .bNormalizedY = kYes,
                .bCanForcePositive = kYes,
                .bAlwaysPositive = kYes},
     .pEvaluate = EvaluateSum<BetaTerm>,
     .pGradient = GradientSum<BetaTerm>,
     .pSeed = SeedBeta,
     .szUnits = "a, b: none (rates times the filter's time constant)",
     .szSource = "FitzHugh 1983; Yellen 1984"},
    {.eFunction = 1,
     .szCaption = "Binomial",
     .uParams = 2,
     .aszParams = {"n", "p"},
     .uVariables = 1,
     .aszVariables = {"x (integer)"},
     .szDependent = "Probability",
     .traits = {.bIntegralX = kYes,
                .bNormalizedY = kYes,
                .bCanForcePositive = kYes,
                .bAlwaysPositive = kYes,
                .bRejectsNegativeData = kYes},
     .pEvaluate = EvaluateSum<BinomialTerm>,
     .pGradient = GradientSum<BinomialTerm>,
     .pSeed = SeedBinomial,
     .szUnits = "n: trials; p: none, 0 to 1",
     .szSource = "del Castillo & Katz 1954; Johnston & Wu 1995"},
    {.eFunction = 18,
     .szCaption = "Gaussian",
     .uParams = 3,
     .aszParams = {"A", "mean", "sigma"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "Count",
     .traits = {.uZeroColumn = 1,
                .bMultiTerm = kYes,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bOnlyProportionsForced = kYes,
                .bCanNormalizeProportions = kYes},
     .pEvaluate = EvaluateSum<GaussianTerm>,
     .pGradient = GradientSum<GaussianTerm>,
     .pSeed = SeedBells,
     .szUnits = "A (area): x times y; mean, sigma: x; C: y",
     .szSource = "Colquhoun & Sigworth 1995; Press et al. 2007"},
    {.eFunction = 26,
     .szCaption = "Lorentzian distribution",
     .uParams = 3,
     .aszParams = {"A", "x0", "width"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "y",
     .traits = {.uZeroColumn = 1,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<LorentzianTerm>,
     .pGradient = GradientSum<LorentzianTerm>,
     .pSeed = SeedBells,
     .szUnits = "A (area): x times y; x0, width (full, at half maximum): x; C: y",
     .szSource = "Press et al. 2007"},
    {.eFunction = 33,
     .szCaption = "Poisson",
     .uParams = 1,
     .aszParams = {"lambda"},
     .uVariables = 1,
     .aszVariables = {"x (integer)"},
     .szDependent = "Probability",
     .traits = {.bIntegralX = kYes,
                .bNormalizedY = kYes,
                .bCanForcePositive = kYes,
                .bAlwaysPositive = kYes,
                .bRejectsNegativeData = kYes},
     .pEvaluate = EvaluateSum<PoissonTerm>,
     .pGradient = GradientSum<PoissonTerm>,
     .pSeed = SeedPoisson,
     .szUnits = "lambda: the mean of x",
     .szSource = "del Castillo & Katz 1954; Feller 1968"},
};

}  // namespace

const FunctionRows kDistributionFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
