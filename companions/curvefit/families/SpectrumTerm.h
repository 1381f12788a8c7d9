// The spectrum of a relaxation by its corner frequency.
#pragma once

#include "Kernels.h"
#include "Settings.h"

namespace curvefit {

struct SpectrumTerm {
    static constexpr uint32_t kParams = 2;
    SpectrumTerm(const Settings&, const double* p) : m_dDensity(p[0]), m_dCorner(NonZero(p[1])) {}
    double Value(double f) const {
        const double r = f / m_dCorner;
        return m_dDensity / (1.0 + r * r);
    }
    void Gradient(double f, double* g) const {
        const double r = f / m_dCorner;
        g[0] = 1.0 / (1.0 + r * r);
        // r^2 / (1 + r^2), where r^2 may be too large a number.
        g[1] = 2.0 * m_dDensity * g[0] * (1.0 - g[0]) / m_dCorner;
        if (std::fabs(r) < 0.5) g[1] = 2.0 * m_dDensity * g[0] * g[0] * r * r / m_dCorner;
    }
    double m_dDensity, m_dCorner;
};

}  // namespace curvefit
