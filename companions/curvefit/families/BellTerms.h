// Bells by their area.
#pragma once

#include "Kernels.h"
#include "Settings.h"

namespace curvefit {

struct GaussianTerm {
    static constexpr uint32_t kParams = 3;
    GaussianTerm(const Settings&, const double* p)
        : m_dArea(p[0]), m_dMean(p[1]), m_dSigma(NonZero(p[2])) {}
    double Shape(double z) const {
        return std::exp(-0.5 * z * z) / (m_dSigma * std::sqrt(2.0 * std::numbers::pi));
    }
    double Value(double x) const { return m_dArea * Shape((x - m_dMean) / m_dSigma); }
    void Gradient(double x, double* g) const {
        const double z = (x - m_dMean) / m_dSigma;
        g[0] = Shape(z);
        const double dSlope = m_dArea * g[0] / m_dSigma;
        g[1] = dSlope == 0.0 ? 0.0 : dSlope * z;
        g[2] = dSlope == 0.0 ? 0.0 : dSlope * (z * z - 1.0);
    }
    double m_dArea, m_dMean, m_dSigma;
};

// By its full width at half maximum.
struct LorentzianTerm {
    static constexpr uint32_t kParams = 3;
    LorentzianTerm(const Settings&, const double* p)
        : m_dArea(p[0]), m_dCentre(p[1]), m_dWidth(NonZero(p[2])) {}
    double Value(double x) const {
        const double d = 2.0 * (x - m_dCentre) / m_dWidth;
        const double dShape = 1.0 / (d * d + 1.0);
        // Far away the width may be too small a number to divide by.
        return dShape == 0.0 ? 0.0 : 2.0 * m_dArea / (std::numbers::pi * m_dWidth) * dShape;
    }
    void Gradient(double x, double* g) const {
        const double d = 2.0 * (x - m_dCentre) / m_dWidth;
        const double dShape = 1.0 / (d * d + 1.0);
        g[0] = 2.0 / (std::numbers::pi * m_dWidth) * dShape;
        const double dSlope = m_dArea * g[0] / m_dWidth;
        g[1] = dShape == 0.0 ? 0.0 : 4.0 * dSlope * d * dShape;
        // (d^2 - 1) / (d^2 + 1), where d^2 may be too large a number.
        g[2] = dSlope * (1.0 - 2.0 * dShape);
    }
    double m_dArea, m_dCentre, m_dWidth;
};

}  // namespace curvefit
