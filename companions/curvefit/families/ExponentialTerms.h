// The exponential decay by its time constant, which the functions by rate constants and the seeds
// share.
#pragma once

#include "Kernels.h"
#include "Settings.h"

namespace curvefit {

struct DecayTerm {
    static constexpr uint32_t kParams = 2;
    DecayTerm(const Settings&, const double* p) : m_dAmplitude(p[0]), m_dTau(NonZero(p[1])) {}
    double Value(double t) const { return m_dAmplitude * std::exp(-t / m_dTau); }
    void Gradient(double t, double* g) const {
        const double u = t / m_dTau;
        g[0] = std::exp(-u);
        g[1] = g[0] == 0.0 ? 0.0 : m_dAmplitude * g[0] * u / m_dTau;
    }
    double m_dAmplitude, m_dTau;
};

// A share of a plateau that is reached exponentially from t = 0.
struct CumulativeTerm {
    static constexpr uint32_t kParams = 2;
    CumulativeTerm(const Settings&, const double* p) : m_dShare(p[0]), m_dTau(NonZero(p[1])) {}
    double Value(double t) const { return t < 0.0 ? 0.0 : m_dShare * Rise(t / m_dTau); }
    void Gradient(double t, double* g) const {
        g[0] = g[1] = 0.0;
        if (t < 0.0) return;
        const double u = t / m_dTau;
        const double e = std::exp(-u);
        g[0] = Rise(u);
        if (e != 0.0) g[1] = -m_dShare * e * u / m_dTau;
    }
    double m_dShare, m_dTau;
};

// A density of dwell times with the area of its share.
struct DensityTerm {
    static constexpr uint32_t kParams = 2;
    DensityTerm(const Settings&, const double* p) : m_dArea(p[0]), m_dTau(NonZero(p[1])) {}
    double Value(double t) const { return m_dArea / m_dTau * std::exp(-t / m_dTau); }
    void Gradient(double t, double* g) const {
        const double u = t / m_dTau;
        const double e = std::exp(-u);
        g[0] = e / m_dTau;
        g[1] = e == 0.0 ? 0.0 : m_dArea * e * (u - 1.0) / (m_dTau * m_dTau);
    }
    double m_dArea, m_dTau;
};

// The same over the decimal logarithm of the dwell time.
struct LogDensityTerm {
    static constexpr uint32_t kParams = 2;
    LogDensityTerm(const Settings&, const double* p) : m_dArea(p[0]), m_dTau(NonZero(p[1])) {}
    // Beyond 745 e^-u is 0 and u may be infinite.
    static double Shape(double u) {
        return u > 745.0 ? 0.0 : std::numbers::ln10 * u * std::exp(-u);
    }
    double Value(double x) const { return m_dArea * Shape(std::pow(10.0, x) / m_dTau); }
    void Gradient(double x, double* g) const {
        const double u = std::pow(10.0, x) / m_dTau;
        g[0] = Shape(u);
        g[1] = g[0] == 0.0 ? 0.0 : m_dArea * g[0] * (u - 1.0) / m_dTau;
    }
    double m_dArea, m_dTau;
};

}  // namespace curvefit
