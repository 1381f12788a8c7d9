// Lines, parabolas and polynomials: linear in their parameters, or nearly.

#include "FunctionTable.h"
#include "TermLoops.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// Variance against mean current of a number of equal channels.
struct VarianceTerm {
    static constexpr uint32_t kParams = 2;
    VarianceTerm(const Settings&, const double* p) : m_dUnit(p[0]), m_dChannels(p[1]) {}
    double Value(double x) const { return x * (m_dUnit - x / m_dChannels); }
    void Gradient(double x, double* g) const {
        g[0] = x;
        g[1] = (x / m_dChannels) * (x / m_dChannels);
    }
    double m_dUnit, m_dChannels;
};

struct ParabolaTerm {
    static constexpr uint32_t kParams = 2;
    ParabolaTerm(const Settings&, const double* p) : m_dA(p[0]), m_dB(p[1]) {}
    double Value(double x) const { return x * (m_dA * x + m_dB); }
    void Gradient(double x, double* g) const {
        g[0] = x * x;
        g[1] = x;
    }
    double m_dA, m_dB;
};

struct LineTerm {
    static constexpr uint32_t kParams = 1;
    LineTerm(const Settings&, const double* p) : m_dSlope(p[0]) {}
    double Value(double x) const { return m_dSlope * x; }
    void Gradient(double x, double* g) const { g[0] = x; }
    double m_dSlope;
};

template <uint32_t kDegree>
void EvaluateDegree(const Curve& curve, const double* x, std::size_t n, double* y) {
    double a[kDegree];
    for (uint32_t k = 0; k < kDegree; ++k) a[k] = curve.pGrid[k];
    const double dOffset = curve.dOffset;
    for (std::size_t i = 0; i < n; ++i) {
        double dSum = a[kDegree - 1];
        for (uint32_t k = kDegree - 1; k-- > 0;) dSum = dSum * x[i] + a[k];
        y[i] = dSum * x[i] + dOffset;
    }
}

// By Horner's rule: the terms are not summed one by one.
void EvaluatePolynomial(const Curve& curve, const double* const* ppX, std::size_t n, double* y) {
    using Degree = void(const Curve&, const double*, std::size_t, double*);
    static constexpr Degree* kDegrees[kMaxTerms] = {EvaluateDegree<1>, EvaluateDegree<2>,
                                                    EvaluateDegree<3>, EvaluateDegree<4>,
                                                    EvaluateDegree<5>, EvaluateDegree<6>};
    kDegrees[curve.uTerms - 1](curve, ppX[0], n, y);
}

void GradientPolynomial(const Curve& curve, const double* const* ppX, std::size_t n,
                        double* columns) {
    for (std::size_t i = 0; i < n; ++i) {
        double dPower = 1.0;
        for (uint32_t k = 0; k < curve.uTerms; ++k) {
            dPower *= ppX[0][i];
            columns[k * n + i] = dPower;
        }
    }
}

constexpr FunctionRow kRows[] = {
    {.eFunction = 31,
     .szCaption = "Parabola, variance-mean",
     .uParams = 2,
     .aszParams = {"i", "N"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Mean"},
     .szDependent = "Variance",
     .traits = {.bHasOffset = kYes, .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<VarianceTerm>,
     .pGradient = GradientSum<VarianceTerm>,
     .pSeed = SeedParabola,
     .szUnits = "i (of one channel): x; N: number of channels; C: y",
     .szSource = "Sigworth 1980"},
    {.eFunction = 32,
     .szCaption = "Parabola, standard",
     .uParams = 2,
     .aszParams = {"a", "b"},
     .szOffset = "c",
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "y",
     .traits = {.uZeroColumn = 1, .bHasOffset = kYes, .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<ParabolaTerm>,
     .pGradient = GradientSum<ParabolaTerm>,
     .pSeed = SeedParabola,
     .szUnits = "a: y/x^2; b: y/x; c: y",
     .szSource = "Press et al. 2007"},
    {.eFunction = 34,
     .szCaption = "Polynomial",
     .uParams = 1,
     .aszParams = {"a"},
     .szOffset = "a0",
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "y",
     // The number of terms is the degree.
     .traits = {.bMultiTerm = kYes,
                .bHasOffset = kYes,
                .bOnlyProportionsForced = kYes,
                .bAllowLM = kNo,
                .bAllowSimplex = kNo,
                .bPolynomial = kYes},
     .pEvaluate = EvaluatePolynomial,
     .pGradient = GradientPolynomial,
     .pSeed = SeedPolynomial,
     .szUnits = "a of term i: y/x^i; a0: y",
     .szSource = "Press et al. 2007"},
    {.eFunction = 35,
     .szCaption = "Straight line, standard",
     .uParams = 1,
     .aszParams = {"m"},
     .szOffset = "b",
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "y",
     .traits = {.bHasOffset = kYes,
                .bOnlyProportionsForced = kYes,
                .bAllowLM = kNo,
                .bAllowSimplex = kNo,
                .bStraightLine = kYes},
     .pEvaluate = EvaluateSum<LineTerm>,
     .pGradient = GradientSum<LineTerm>,
     .pSeed = SeedPolynomial,
     .szUnits = "m: y/x; b: y",
     .szSource = "Press et al. 2007"},
    // Not flagged as a straight line: its automatic method is a search.
    {.eFunction = 36,
     .szCaption = "Straight line, origin at zero",
     .uParams = 1,
     .aszParams = {"m"},
     .uVariables = 1,
     .aszVariables = {"x"},
     .szDependent = "y",
     .traits = {.uZeroColumn = 0, .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<LineTerm>,
     .pGradient = GradientSum<LineTerm>,
     .pSeed = SeedPolynomial,
     .szUnits = "m: y/x",
     .szSource = "Press et al. 2007"},
};

}  // namespace

const FunctionRows kLinearFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
