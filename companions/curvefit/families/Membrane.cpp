// Potentials from concentrations, in millivolts.

#include "FunctionTable.h"
#include "Kernels.h"
#include "TermLoops.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

struct NernstTerm {
    static constexpr uint32_t kParams = 1;
    NernstTerm(const Settings& settings, const double* p)
        : m_dInside(p[0]), m_dScale(settings.dThermalMv / settings.nValence) {}
    double Value(double x) const {
        const double dDifference = x - m_dInside;
        // Near 0 mV the quotient keeps few digits.
        return std::fabs(dDifference) < 0.5 * std::fabs(m_dInside)
                   ? m_dScale * std::log1p(dDifference / m_dInside)
                   : m_dScale * std::log(x / m_dInside);
    }
    void Gradient(double, double* g) const { g[0] = -m_dScale / m_dInside; }
    double m_dInside, m_dScale;
};

// Potassium, sodium and chloride. The variables are [K]o, [K]i, [Na]o, [Na]i, [Cl]o, [Cl]i.
struct ConstantField {
    ConstantField(const Settings& settings, const double* p)
        : m_dSodium(p[0]), m_dChloride(p[1]), m_dThermal(settings.dThermalMv) {}
    double Numerator(const double* c) const { return c[0] + m_dSodium * c[2] + m_dChloride * c[5]; }
    double Denominator(const double* c) const {
        return c[1] + m_dSodium * c[3] + m_dChloride * c[4];
    }
    double Value(const double* c) const {
        const double n = Numerator(c);
        const double d = Denominator(c);
        const double dDifference =
            (c[0] - c[1]) + m_dSodium * (c[2] - c[3]) + m_dChloride * (c[5] - c[4]);
        // Near 0 mV the quotient keeps few digits.
        return std::fabs(dDifference) < 0.5 * std::fabs(d)
                   ? m_dThermal * std::log1p(dDifference / d)
                   : m_dThermal * std::log(n / d);
    }
    void Gradient(const double* c, double* g) const {
        const double n = Numerator(c);
        const double d = Denominator(c);
        g[0] = m_dThermal * (c[2] / n - c[3] / d);
        g[1] = m_dThermal * (c[5] / n - c[4] / d);
    }
    double m_dSodium, m_dChloride, m_dThermal;
};

// Potassium, sodium and a divalent ion: the potential without net current solves a quadratic
// equation in u = e^(V / thermal). The variables are [K]o, [K]i, [Na]o, [Na]i, [Ca]o, [Ca]i.
struct DivalentField {
    DivalentField(const Settings& settings, const double* p)
        : m_dSodium(p[0]), m_dCalcium(p[1]), m_dThermal(settings.dThermalMv) {}
    struct Parts {
        double a, b, c, d;  // c u^2 - b u - a = 0, d the root of the discriminant
    };
    Parts PartsOf(const double* c) const {
        Parts parts;
        const double dOut = c[0] + m_dSodium * c[2];
        const double dIn = c[1] + m_dSodium * c[3];
        parts.a = dOut + 4.0 * m_dCalcium * c[4];
        parts.b = (c[0] - c[1]) + m_dSodium * (c[2] - c[3]);
        parts.c = dIn + 4.0 * m_dCalcium * c[5];
        parts.d = std::sqrt(parts.b * parts.b + 4.0 * parts.a * parts.c);
        return parts;
    }
    static double Root(const Parts& parts) {
        return parts.b >= 0.0 ? (parts.b + parts.d) / (2.0 * parts.c)
                              : 2.0 * parts.a / (parts.d - parts.b);
    }
    double Value(const double* c) const {
        const Parts parts = PartsOf(c);
        // u - 1 without cancellation: near 0 mV the root itself keeps few digits.
        const double q = 2.0 * (parts.b + 2.0 * m_dCalcium * (c[4] - c[5]));
        const double s = 2.0 * parts.c - parts.b;
        const double dBeyondOne = 2.0 * q / (s + parts.d);
        return s > 0.0 && std::fabs(dBeyondOne) < 0.5 ? m_dThermal * std::log1p(dBeyondOne)
                                                      : m_dThermal * std::log(Root(parts));
    }
    void Gradient(const double* c, double* g) const {
        const Parts parts = PartsOf(c);
        const double u = Root(parts);
        const double dScale = -m_dThermal / (u * parts.d);
        g[0] = dScale * (c[3] * u * u - (c[2] - c[3]) * u - c[2]);
        g[1] = dScale * (4.0 * c[5] * u * u - 4.0 * c[4]);
    }
    double m_dSodium, m_dCalcium, m_dThermal;
};

constexpr std::size_t kIons = 6;

template <class Field>
void EvaluateField(const Curve& curve, const double* const* ppX, std::size_t n, double* y) {
    const Field field(*curve.pSettings, curve.pGrid);
    for (std::size_t i = 0; i < n; ++i) {
        const double c[kIons] = {ppX[0][i], ppX[1][i], ppX[2][i], ppX[3][i], ppX[4][i], ppX[5][i]};
        y[i] = field.Value(c);
    }
}

template <class Field>
void GradientField(const Curve& curve, const double* const* ppX, std::size_t n, double* columns) {
    const Field field(*curve.pSettings, curve.pGrid);
    for (std::size_t i = 0; i < n; ++i) {
        const double c[kIons] = {ppX[0][i], ppX[1][i], ppX[2][i], ppX[3][i], ppX[4][i], ppX[5][i]};
        double g[2];
        field.Gradient(c, g);
        columns[i] = g[0];
        columns[n + i] = g[1];
    }
}

constexpr FunctionRow kRows[] = {
    {.eFunction = 19,
     .szCaption = "Goldman-Hodgkin-Katz",
     .uParams = 2,
     .aszParams = {"PNa/PK", "PCl/PK"},
     .uVariables = kIons,
     .aszVariables = {"[K]o", "[K]i", "[Na]o", "[Na]i", "[Cl]o", "[Cl]i"},
     .szDependent = "Vm (mV)",
     .traits = {.bCanForcePositive = kYes, .bAlwaysPositive = kYes, .bUsesTemperature = kYes},
     .pEvaluate = EvaluateField<ConstantField>,
     .pGradient = GradientField<ConstantField>,
     .pSeed = SeedConstantField,
     .szUnits = "ratios of permeabilities: none; T: degrees Celsius; y: mV",
     .szSource = "Goldman 1943; Hodgkin & Katz 1949"},
    {.eFunction = 20,
     .szCaption = "Goldman-Hodgkin-Katz, extended",
     .uParams = 2,
     .aszParams = {"PNa/PK", "PCa/PK"},
     .uVariables = kIons,
     .aszVariables = {"[K]o", "[K]i", "[Na]o", "[Na]i", "[Ca]o", "[Ca]i"},
     .szDependent = "Vrev (mV)",
     .traits = {.bCanForcePositive = kYes, .bAlwaysPositive = kYes, .bUsesTemperature = kYes},
     .pEvaluate = EvaluateField<DivalentField>,
     .pGradient = GradientField<DivalentField>,
     .pSeed = SeedConstantField,
     .szUnits = "ratios of permeabilities: none; T: degrees Celsius; y: mV",
     .szSource = "Spangler 1972; Lewis 1979"},
    {.eFunction = 30,
     .szCaption = "Nernst",
     .uParams = 1,
     .aszParams = {"[X]i"},
     .uVariables = 1,
     .aszVariables = {"[X]o"},
     .szDependent = "E (mV)",
     .traits = {.bCanForcePositive = kYes,
                .bAlwaysPositive = kYes,
                .bUsesTemperature = kYes,
                .bUsesValence = kYes,
                .bSubstitutesZeroX = kYes},
     .pEvaluate = EvaluateConcentrations<NernstTerm>,
     .pGradient = GradientSum<NernstTerm>,
     .pSeed = SeedNernst,
     .szUnits = "[X]i: x; z: whole number; T: degrees Celsius; y: mV",
     .szSource = "Nernst 1889; Hille 2001"},
};

}  // namespace

const FunctionRows kMembraneFunctions = {kRows, std::size(kRows)};

}  // namespace curvefit
