// The loops over points. A term is a small class made from the settings and its own parameters in
// grid order, with
//   double Value(double t) const;
//   void Gradient(double t, double* g) const;      // by its parameters
//   static constexpr uint32_t kParams;
// A function of one variable is the sum of its terms with offset and slope.
#pragma once

#include "FunctionRow.h"

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
// A concentration: what is not above zero is replaced.
struct Concentration {
    explicit Concentration(const Curve& curve) : m_dSubstitute(curve.dSubstitute) {}
    double operator()(double x) const { return x <= 0.0 ? m_dSubstitute : x; }
    double m_dSubstitute;
};

template <class Term, class Variable = FromOrigin>
void EvaluateSum(const Curve& curve, const double* const* ppX, std::size_t n, double* y) {
    const double* x = ppX[0];
    const Variable variable(curve);
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

template <class Term, class Variable = FromOrigin>
void GradientSum(const Curve& curve, const double* const* ppX, std::size_t n, double* columns) {
    const double* x = ppX[0];
    const Variable variable(curve);
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
