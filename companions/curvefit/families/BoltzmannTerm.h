// amplitude / (1 + e^((mid - t) / width)): the sigmoid of the Boltzmann functions, and of the dose
// responses on the logarithm of the concentration.
#pragma once

#include "Kernels.h"
#include "Settings.h"

namespace curvefit {

struct BoltzmannTerm {
    static constexpr uint32_t kParams = 3;
    BoltzmannTerm(const Settings&, const double* p)
        : m_dAmplitude(p[0]), m_dMid(p[1]), m_dWidth(NonZero(p[2])) {}
    double Value(double t) const { return m_dAmplitude * Logistic((t - m_dMid) / m_dWidth); }
    void Gradient(double t, double* g) const {
        const double z = (t - m_dMid) / m_dWidth;
        const double dSlope = m_dAmplitude * LogisticSlope(z) / m_dWidth;
        g[0] = Logistic(z);
        g[1] = -dSlope;
        g[2] = dSlope == 0.0 ? 0.0 : -dSlope * z;
    }
    double m_dAmplitude, m_dMid, m_dWidth;
};

}  // namespace curvefit
