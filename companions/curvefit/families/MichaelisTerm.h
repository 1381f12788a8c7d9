// Saturation of an enzyme.
#pragma once

#include <cstdint>

#include "Settings.h"

namespace curvefit {

struct MichaelisTerm {
    static constexpr uint32_t kParams = 2;
    MichaelisTerm(const Settings&, const double* p) : m_dMax(p[0]), m_dHalf(p[1]) {}
    double Value(double x) const { return m_dMax * (x / (m_dHalf + x)); }
    void Gradient(double x, double* g) const {
        g[0] = x / (m_dHalf + x);
        g[1] = -m_dMax * g[0] / (m_dHalf + x);
    }
    double m_dMax, m_dHalf;
};

}  // namespace curvefit
