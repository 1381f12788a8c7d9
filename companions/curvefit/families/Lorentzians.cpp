// Noise spectra of relaxations.

#include "FunctionTable.h"
#include "TermLoops.h"
#include "families/SpectrumTerm.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// By the relaxation time.
struct RelaxationTerm {
    static constexpr uint32_t kParams = 2;
    RelaxationTerm(const Settings&, const double* p) : m_dDensity(p[0]), m_dTau(p[1]) {}
    double Value(double f) const {
        const double r = 2.0 * std::numbers::pi * f * m_dTau;
        return m_dDensity / (1.0 + r * r);
    }
    void Gradient(double f, double* g) const {
        const double w = 2.0 * std::numbers::pi * f;
        const double r = w * m_dTau;
        g[0] = 1.0 / (1.0 + r * r);
        g[1] = g[0] == 0.0 ? 0.0 : -2.0 * m_dDensity * (w * g[0]) * (r * g[0]);
    }
    double m_dDensity, m_dTau;
};

constexpr FunctionRow kRows[] = {
    {.eFunction = 27,
     .szCaption = "Lorentzian power 1",
     .uParams = 2,
     .aszParams = {"S0", "fc"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Frequency"},
     .szDependent = "Power",
     .traits = {.bMultiTerm = kYes,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<SpectrumTerm>,
     .pGradient = GradientSum<SpectrumTerm>,
     .pSeed = SeedSpectrum,
     .szUnits = "S0, C: y; fc: x",
     .szSource = "Anderson & Stevens 1973; DeFelice 1981"},
    {.eFunction = 28,
     .szCaption = "Lorentzian power 2",
     .uParams = 2,
     .aszParams = {"S0", "tau"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Frequency"},
     .szDependent = "Power",
     .traits = {.bMultiTerm = kYes, .bHasOffset = kYes, .bCanForcePositive = kYes},
     .pEvaluate = EvaluateSum<RelaxationTerm>,
     .pGradient = GradientSum<RelaxationTerm>,
     .pSeed = SeedSpectrum,
     .szUnits = "S0, C: y; tau: 1/x",
     .szSource = "Anderson & Stevens 1973; DeFelice 1981; Colquhoun & Hawkes 1977"},
};

}  // namespace

const FunctionRows kLorentzianFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
