// The loops over points. A term is a small class made from the settings and its own parameters in
// grid order, with
//   double Value(double t) const;
//   void Gradient(double t, double* g) const;      // by its parameters
//   static constexpr uint32_t kParams;
// A function of one variable is the sum of its terms with offset and slope.
#pragma once

#include "FunctionRow.h"
#include "Kernels.h"

namespace curvefit {

template <class Term>
Term TermOf(const Curve& curve, uint32_t uTerm) {
    double params[Term::kParams];
    for (uint32_t c = 0; c < Term::kParams; ++c) params[c] = curve.pGrid[c * curve.uTerms + uTerm];
    return Term(*curve.pSettings, params);
}

// How a term's variable comes from x.
struct FromOrigin {
    explicit FromOrigin(const Curve& curve) : m_dOrigin(curve.dOrigin) {}
    double operator()(double x) const { return x - m_dOrigin; }
    double m_dOrigin;
};

template <class Term>
void EvaluateSum(const Curve& curve, const double* const* ppX, std::size_t n, double* y) {
    const double* x = ppX[0];
    const FromOrigin variable(curve);
    const Term first = TermOf<Term>(curve, 0);
    const double dOffset = curve.dOffset;
    if (curve.dSlope != 0.0) {
        const double dSlope = curve.dSlope;
        for (std::size_t i = 0; i < n; ++i) {
            const double t = variable(x[i]);
            y[i] = dSlope * t + dOffset + first.Value(t);
        }
    } else {
        for (std::size_t i = 0; i < n; ++i) y[i] = first.Value(variable(x[i])) + dOffset;
    }
    for (uint32_t k = 1; k < curve.uTerms; ++k) {
        const Term term = TermOf<Term>(curve, k);
        for (std::size_t i = 0; i < n; ++i) y[i] += term.Value(variable(x[i]));
    }
}

// The same where x is a concentration: what is not above zero is replaced. Few records need it, and
// what takes the place depends on all points; looking for zeros beside the formula costs next to
// nothing.
template <class Term>
void EvaluateConcentrations(const Curve& curve, const double* const* ppX, std::size_t n,
                            double* y) {
    const double* x = ppX[0];
    const Term term = TermOf<Term>(curve, 0);
    const double dOffset = curve.dOffset;
    uint64_t uSigns = 0;
    for (std::size_t i = 0; i < n; ++i) {
        uSigns |= SignOfNotPositive(x[i]);
        y[i] = term.Value(x[i]) + dOffset;
    }
    if (uSigns >> 63 == 0) return;
    const double dSubstitute = SubstituteForZero(x, n, curve.pSettings->dSubstZeroFactor);
    const double dAtZero = term.Value(dSubstitute) + dOffset;
    for (std::size_t i = 0; i < n; ++i) {
        if (x[i] <= 0.0) y[i] = dAtZero;
    }
}

template <class Term>
void GradientSum(const Curve& curve, const double* const* ppX, std::size_t n, double* columns) {
    const double* x = ppX[0];
    const FromOrigin variable(curve);
    for (uint32_t k = 0; k < curve.uTerms; ++k) {
        const Term term = TermOf<Term>(curve, k);
        for (std::size_t i = 0; i < n; ++i) {
            double g[Term::kParams];
            term.Gradient(variable(x[i]), g);
            for (uint32_t c = 0; c < Term::kParams; ++c)
                columns[(c * curve.uTerms + k) * n + i] = g[c];
        }
    }
}

}  // namespace curvefit
