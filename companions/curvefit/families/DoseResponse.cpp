// Binding, enzyme kinetics and dose responses: x is a concentration.

#include "FunctionTable.h"
#include "Kernels.h"
#include "TermLoops.h"
#include "families/MichaelisTerm.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// amplitude x^h / (K^h + x^h).
struct HillTerm {
    static constexpr uint32_t kParams = 3;
    HillTerm(const Settings&, const double* p) : m_dMax(p[0]), m_dHalf(p[1]), m_dPower(p[2]) {}
    double Value(double x) const { return m_dMax * Logistic(m_dPower * std::log(x / m_dHalf)); }
    void Gradient(double x, double* g) const {
        const double dLog = std::log(x / m_dHalf);
        const double z = m_dPower * dLog;
        const double dSlope = m_dMax * LogisticSlope(z);
        g[0] = Logistic(z);
        g[1] = -dSlope * m_dPower / m_dHalf;
        g[2] = dSlope == 0.0 ? 0.0 : dSlope * dLog;
    }
    double m_dMax, m_dHalf, m_dPower;
};

// Between two plateaus.
struct LogisticDoseTerm {
    static constexpr uint32_t kParams = 4;
    LogisticDoseTerm(const Settings&, const double* p)
        : m_dMin(p[0]), m_dMax(p[1]), m_dHalf(p[2]), m_dPower(p[3]) {}
    double Value(double x) const {
        return m_dMin + (m_dMax - m_dMin) * Logistic(m_dPower * std::log(x / m_dHalf));
    }
    void Gradient(double x, double* g) const {
        const double dLog = std::log(x / m_dHalf);
        const double z = m_dPower * dLog;
        const double dSlope = (m_dMax - m_dMin) * LogisticSlope(z);
        g[0] = Logistic(-z);
        g[1] = Logistic(z);
        g[2] = -dSlope * m_dPower / m_dHalf;
        g[3] = dSlope == 0.0 ? 0.0 : dSlope * dLog;
    }
    double m_dMin, m_dMax, m_dHalf, m_dPower;
};

// The double reciprocal: x is 1/[S], y is 1/v.
struct ReciprocalTerm {
    static constexpr uint32_t kParams = 2;
    ReciprocalTerm(const Settings&, const double* p) : m_dMax(p[0]), m_dHalf(p[1]) {}
    double Value(double x) const { return (m_dHalf * x + 1.0) / m_dMax; }
    void Gradient(double x, double* g) const {
        g[0] = -(m_dHalf * x + 1.0) / (m_dMax * m_dMax);
        g[1] = x / m_dMax;
    }
    double m_dMax, m_dHalf;
};

constexpr FunctionRow kRows[] = {
    {.eFunction = 21,
     .szCaption = "Hill, steady state",
     .uParams = 3,
     .aszParams = {"Vmax", "K half", "h"},
     .uVariables = 1,
     .aszVariables = {"Concentration"},
     .szDependent = "Rate",
     .traits = {.bOnlyProportionsForced = kYes, .bSubstitutesZeroX = kYes},
     .pEvaluate = EvaluateConcentrations<HillTerm>,
     .pGradient = GradientSum<HillTerm>,
     .pSeed = SeedDoseResponse,
     .szUnits = "Vmax: y; K half: x; h: none",
     .szSource = "Cornish-Bowden 2012; Segel 1975"},
    {.eFunction = 22,
     .szCaption = "Hill (4 parameter logistic)",
     .uParams = 4,
     .aszParams = {"Imin", "Imax", "C50", "h"},
     .uVariables = 1,
     .aszVariables = {"Concentration"},
     .szDependent = "Response",
     .traits = {.uZeroColumn = 0, .bOnlyProportionsForced = kYes, .bSubstitutesZeroX = kYes},
     .pEvaluate = EvaluateConcentrations<LogisticDoseTerm>,
     .pGradient = GradientSum<LogisticDoseTerm>,
     .pSeed = SeedDoseResponse,
     .szUnits = "Imin, Imax: y; C50: x; h: none (below 0 falls)",
     .szSource = "De Lean, Munson & Rodbard 1978; Hill 1910"},
    {.eFunction = 23,
     .szCaption = "Hill, Langmuir",
     .uParams = 3,
     .aszParams = {"Imax", "C50", "h"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Concentration"},
     .szDependent = "Response",
     .traits = {.bHasOffset = kYes, .bOnlyProportionsForced = kYes, .bSubstitutesZeroX = kYes},
     .pEvaluate = EvaluateConcentrations<HillTerm>,
     .pGradient = GradientSum<HillTerm>,
     .pSeed = SeedDoseResponse,
     .szUnits = "Imax, C: y; C50: x; h: none",
     .szSource = "Langmuir 1918; Hill 1910; Weiss 1997"},
    {.eFunction = 24,
     .szCaption = "Lineweaver-Burk",
     .uParams = 2,
     .aszParams = {"Vmax", "Km"},
     .uVariables = 1,
     .aszVariables = {"1/[S]"},
     .szDependent = "1/v",
     .traits = {.bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<ReciprocalTerm>,
     .pGradient = GradientSum<ReciprocalTerm>,
     .pSeed = SeedReciprocal,
     .szUnits = "Vmax: 1/y; Km: 1/x",
     .szSource = "Lineweaver & Burk 1934"},
    {.eFunction = 29,
     .szCaption = "Michaelis-Menten",
     .uParams = 2,
     .aszParams = {"Vmax", "Km"},
     .uVariables = 1,
     .aszVariables = {"Concentration"},
     .szDependent = "Rate",
     .traits = {.bOnlyProportionsForced = kYes, .bSubstitutesZeroX = kYes},
     .pEvaluate = EvaluateConcentrations<MichaelisTerm>,
     .pGradient = GradientSum<MichaelisTerm>,
     .pSeed = SeedMichaelis,
     .szUnits = "Vmax: y; Km: x",
     .szSource = "Michaelis & Menten 1913; Cornish-Bowden 2012"},
};

}  // namespace

const FunctionRows kDoseResponseFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
