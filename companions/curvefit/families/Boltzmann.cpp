// Sigmoids of the voltage.

#include "FunctionTable.h"
#include "Kernels.h"
#include "TermLoops.h"
#include "families/BoltzmannTerm.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// By the effective gating charge; kSign is 1 where the curve rises with the voltage.
template <int kSign>
struct GatingTerm {
    static constexpr uint32_t kParams = 3;
    GatingTerm(const Settings& settings, const double* p)
        : m_dAmplitude(p[0]),
          m_dMid(p[1]),
          m_dCharge(kSign * p[2]),
          m_dThermal(settings.dThermalMv) {}
    double Value(double v) const {
        return m_dAmplitude * Logistic(m_dCharge * (v - m_dMid) / m_dThermal);
    }
    void Gradient(double v, double* g) const {
        const double z = m_dCharge * (v - m_dMid) / m_dThermal;
        const double dSlope = m_dAmplitude * LogisticSlope(z);
        g[0] = Logistic(z);
        g[1] = -dSlope * m_dCharge / m_dThermal;
        g[2] = kSign * dSlope * (v - m_dMid) / m_dThermal;
    }
    double m_dAmplitude, m_dMid, m_dCharge, m_dThermal;
};

constexpr FunctionRow kRows[] = {
    {.eFunction = 2,
     .szCaption = "Boltzmann, charge-voltage",
     .uParams = 3,
     .aszParams = {"Qmax", "Vmid", "Vc"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Voltage"},
     .szDependent = "Charge",
     .traits = {.uZeroColumn = 1,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<BoltzmannTerm>,
     .pGradient = GradientSum<BoltzmannTerm>,
     .pSeed = SeedSigmoid,
     .szUnits = "Qmax, C: y; Vmid, Vc: x (Vc is thermal voltage / gating charge)",
     .szSource = "Almers 1978; Hille 2001"},
    {.eFunction = 3,
     .szCaption = "Boltzmann, shifted",
     .uParams = 3,
     .aszParams = {"Imax", "Vmid", "Vc"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Voltage"},
     .szDependent = "Current",
     .traits = {.uZeroColumn = 1,
                .bMultiTerm = kNotChebyshev,
                .bHasOffset = kYes,
                .bCanForcePositive = kYes,
                .bOnlyProportionsForced = kYes,
                .bNoChebyFilter = kYes,
                .bAllowChebyshev = kYes},
     .pEvaluate = EvaluateSum<BoltzmannTerm>,
     .pGradient = GradientSum<BoltzmannTerm>,
     .pSeed = SeedSigmoid,
     .szUnits = "Imax, C: y; Vmid, Vc: x",
     .szSource = "Hille 2001; Hodgkin & Huxley 1952"},
    {.eFunction = 4,
     .szCaption = "Boltzmann, standard",
     .uParams = 3,
     .aszParams = {"Imax", "Vmid", "Vc"},
     .uVariables = 1,
     .aszVariables = {"Voltage"},
     .szDependent = "Current",
     .traits = {.uZeroColumn = 1, .bOnlyProportionsForced = kYes},
     .pEvaluate = EvaluateSum<BoltzmannTerm>,
     .pGradient = GradientSum<BoltzmannTerm>,
     .pSeed = SeedSigmoid,
     .szUnits = "Imax: y; Vmid, Vc: x (Vc below 0 falls with x)",
     .szSource = "Hille 2001; Press et al. 2007"},
    {.eFunction = 5,
     .szCaption = "Boltzmann, Z-delta (inactivation)",
     .uParams = 3,
     .aszParams = {"Imax", "Vmid", "z-delta"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Voltage (mV)"},
     .szDependent = "Current",
     .traits = {.uZeroColumn = 1,
                .bHasOffset = kYes,
                .bOnlyProportionsForced = kYes,
                .bUsesTemperature = kYes},
     .pEvaluate = EvaluateSum<GatingTerm<-1>>,
     .pGradient = GradientSum<GatingTerm<-1>>,
     .pSeed = SeedSigmoid,
     .szUnits = "Imax, C: y; Vmid: mV; z-delta: none; T: degrees Celsius",
     .szSource = "Woodhull 1973; Hille 2001"},
    {.eFunction = 6,
     .szCaption = "Boltzmann, Z-delta (activation)",
     .uParams = 3,
     .aszParams = {"Imax", "Vmid", "z-delta"},
     .szOffset = "C",
     .uVariables = 1,
     .aszVariables = {"Voltage (mV)"},
     .szDependent = "Current",
     .traits = {.uZeroColumn = 1,
                .bHasOffset = kYes,
                .bOnlyProportionsForced = kYes,
                .bUsesTemperature = kYes},
     .pEvaluate = EvaluateSum<GatingTerm<1>>,
     .pGradient = GradientSum<GatingTerm<1>>,
     .pSeed = SeedSigmoid,
     .szUnits = "Imax, C: y; Vmid: mV; z-delta: none; T: degrees Celsius",
     .szSource = "Woodhull 1973; Hille 2001"},
};

}  // namespace

const FunctionRows kBoltzmannFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
