// Growth, and the time constant of a voltage-dependent relaxation.

#include "FunctionTable.h"
#include "Kernels.h"
#include "TermLoops.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// Written so that neither side of the bend overflows or cancels.
struct LogisticGrowthTerm {
    static constexpr uint32_t kParams = 3;
    LogisticGrowthTerm(const Settings&, const double* p)
        : m_dLevel(p[0]),
          m_dStart(p[1]),
          m_dRate(p[2]),
          m_dRatio(m_dLevel / m_dStart),
          m_dRest((m_dLevel - m_dStart) / m_dStart) {}
    // 1 + rest e^-u for u not below 0.
    double Late(double u) const {
        const double e = std::exp(-u);
        return m_dRest >= 0.0 ? 1.0 + m_dRest * e : Rise(u) + m_dRatio * e;
    }
    double Value(double t) const {
        const double u = m_dRate * t;
        if (u >= 0.0) return m_dLevel / Late(u);
        const double e = std::exp(u);
        return m_dLevel * e / (e + m_dRest);
    }
    void Gradient(double t, double* g) const {
        const double u = m_dRate * t;
        if (u >= 0.0) {
            const double e = std::exp(-u);
            const double d = Late(u);
            g[0] = Rise(u) / (d * d);
            g[1] = m_dRatio * m_dRatio * e / (d * d);
            g[2] = e == 0.0 ? 0.0 : m_dLevel * m_dRest * t * e / (d * d);
        } else {
            const double e = std::exp(u);
            const double d = e + m_dRest;
            g[0] = e * std::expm1(u) / (d * d);
            g[1] = m_dRatio * m_dRatio * e / (d * d);
            g[2] = e == 0.0 ? 0.0 : m_dLevel * m_dRest * t * e / (d * d);
        }
    }
    double m_dLevel, m_dStart, m_dRate, m_dRatio, m_dRest;
};

// Two states with rates that are exponentials of the voltage.
struct RelaxationTimeTerm {
    static constexpr uint32_t kParams = 4;
    RelaxationTimeTerm(const Settings&, const double* p)
        : m_dAlpha(p[0]),
          m_dAlphaWidth(NonZero(p[1])),
          m_dBeta(p[2]),
          m_dBetaWidth(NonZero(p[3])) {}
    // The smaller exponent relative to the larger one, which is given back.
    double Sum(double v, double* pLarger) const {
        const double a = v / m_dAlphaWidth;
        const double b = -v / m_dBetaWidth;
        *pLarger = a > b ? a : b;
        return m_dAlpha * std::exp(a - *pLarger) + m_dBeta * std::exp(b - *pLarger);
    }
    double Value(double v) const {
        double dLarger = 0.0;
        const double dSum = Sum(v, &dLarger);
        return std::exp(-dLarger) / dSum;
    }
    void Gradient(double v, double* g) const {
        double m = 0.0;
        const double s = Sum(v, &m);
        // tau^2 e^a = e^(a - 2 m) / s^2, with a at most m.
        const double dTauA = std::exp(v / m_dAlphaWidth - m) * std::exp(-m) / (s * s);
        const double dTauB = std::exp(-v / m_dBetaWidth - m) * std::exp(-m) / (s * s);
        g[0] = -dTauA;
        g[1] = dTauA * m_dAlpha * v / (m_dAlphaWidth * m_dAlphaWidth);
        g[2] = -dTauB;
        g[3] = -dTauB * m_dBeta * v / (m_dBetaWidth * m_dBetaWidth);
    }
    double m_dAlpha, m_dAlphaWidth, m_dBeta, m_dBetaWidth;
};

constexpr FunctionRow kRows[] = {
    {.eFunction = 25,
     .szCaption = "Logistic growth",
     .uParams = 3,
     .aszParams = {"K", "N0", "r"},
     .uVariables = 1,
     .aszVariables = {"Time"},
     .szDependent = "Size",
     .traits = {.zeroShift = ZeroShift::kAllowedOn, .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<LogisticGrowthTerm>,
     .pGradient = GradientSum<LogisticGrowthTerm>,
     .pSeed = SeedGrowth,
     .szUnits = "K, N0 (the size at the origin): y; r: 1/x",
     .szSource = "Verhulst 1838; Murray 2002"},
    {.eFunction = 37,
     .szCaption = "Voltage-dependent relaxation",
     .uParams = 4,
     .aszParams = {"alpha0", "V alpha", "beta0", "V beta"},
     .uVariables = 1,
     .aszVariables = {"Voltage"},
     .szDependent = "Time constant",
     .traits = {.bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<RelaxationTimeTerm>,
     .pGradient = GradientSum<RelaxationTimeTerm>,
     .pSeed = SeedRelaxationTime,
     .szUnits = "alpha0, beta0: 1/y; V alpha, V beta: x",
     .szSource = "Hille 2001; Johnston & Wu 1995; Hodgkin & Huxley 1952"},
};

}  // namespace

const FunctionRows kGrowthFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
