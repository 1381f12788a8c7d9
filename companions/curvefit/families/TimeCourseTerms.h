// Responses that begin at t = 0 and are at rest before.
#pragma once

#include "Kernels.h"
#include "Settings.h"

namespace curvefit {

// Rises to its peak at t = tau.
struct AlphaTerm {
    static constexpr uint32_t kParams = 2;
    AlphaTerm(const Settings&, const double* p) : m_dPeak(p[0]), m_dTau(NonZero(p[1])) {}
    // Beyond 1000 e^(1-u) is 0 and u may be infinite.
    static double Shape(double u) { return u > 1000.0 ? 0.0 : u * std::exp(1.0 - u); }
    double Value(double t) const { return t < 0.0 ? 0.0 : m_dPeak * Shape(t / m_dTau); }
    void Gradient(double t, double* g) const {
        g[0] = g[1] = 0.0;
        if (t < 0.0) return;
        const double u = t / m_dTau;
        g[0] = Shape(u);
        if (g[0] != 0.0) g[1] = m_dPeak * g[0] * (u - 1.0) / m_dTau;
    }
    double m_dPeak, m_dTau;
};

// Activation by a number of independent gates.
struct PowerTerm {
    static constexpr uint32_t kParams = 2;
    PowerTerm(const Settings& settings, const double* p)
        : m_dAmplitude(p[0]), m_dTau(NonZero(p[1])), m_uPower(settings.uPowerA) {}
    double Value(double t) const {
        return t < 0.0 ? 0.0 : m_dAmplitude * WholePower(Rise(t / m_dTau), m_uPower);
    }
    void Gradient(double t, double* g) const {
        g[0] = g[1] = 0.0;
        if (t < 0.0) return;
        const double u = t / m_dTau;
        const double e = std::exp(-u);
        const double r = Rise(u);
        g[0] = WholePower(r, m_uPower);
        if (e == 0.0) return;
        const double dBelow = m_uPower == 1 ? 1.0 : WholePower(r, m_uPower - 1);
        g[1] = -m_dAmplitude * m_uPower * dBelow * e * u / m_dTau;
    }
    double m_dAmplitude, m_dTau;
    uint32_t m_uPower;
};

// A rise and a decay.
struct ProductTerm {
    static constexpr uint32_t kParams = 3;
    ProductTerm(const Settings&, const double* p)
        : m_dAmplitude(p[0]), m_dRise(NonZero(p[1])), m_dDecay(NonZero(p[2])) {}
    double Value(double t) const {
        return t < 0.0 ? 0.0 : m_dAmplitude * Rise(t / m_dRise) * std::exp(-t / m_dDecay);
    }
    void Gradient(double t, double* g) const {
        g[0] = g[1] = g[2] = 0.0;
        if (t < 0.0) return;
        const double u = t / m_dRise;
        const double v = t / m_dDecay;
        const double e = std::exp(-u);
        const double d = std::exp(-v);
        g[0] = Rise(u) * d;
        if (e != 0.0) g[1] = -m_dAmplitude * e * u / m_dRise * d;
        if (d != 0.0) g[2] = m_dAmplitude * Rise(u) * d * v / m_dDecay;
    }
    double m_dAmplitude, m_dRise, m_dDecay;
};

// Current through channels with gates that open (power a) and gates that close (power b).
struct CurrentTerm {
    static constexpr uint32_t kParams = 4;
    CurrentTerm(const Settings& settings, const double* p)
        : m_dAmplitude(p[0]),
          m_dTauM(NonZero(p[1])),
          m_dInfinity(p[2]),
          m_dTauH(NonZero(p[3])),
          m_uPowerA(settings.uPowerA),
          m_uPowerB(settings.uPowerB) {}
    double Value(double t) const {
        if (t < 0.0) return 0.0;
        const double dOpen = Rise(t / m_dTauM);
        const double dLeft = m_dInfinity + (1.0 - m_dInfinity) * std::exp(-t / m_dTauH);
        return m_dAmplitude * WholePower(dOpen, m_uPowerA) * WholePower(dLeft, m_uPowerB);
    }
    void Gradient(double t, double* g) const {
        g[0] = g[1] = g[2] = g[3] = 0.0;
        if (t < 0.0) return;
        const double u = t / m_dTauM;
        const double v = t / m_dTauH;
        const double em = std::exp(-u);
        const double eh = std::exp(-v);
        const double dOpen = Rise(u);
        const double dLeft = m_dInfinity + (1.0 - m_dInfinity) * eh;
        const double dOpenA = WholePower(dOpen, m_uPowerA);
        const double dLeftB = WholePower(dLeft, m_uPowerB);
        const double dOpenBelow = m_uPowerA == 1 ? 1.0 : WholePower(dOpen, m_uPowerA - 1);
        const double dLeftBelow = m_uPowerB == 1 ? 1.0 : WholePower(dLeft, m_uPowerB - 1);
        g[0] = dOpenA * dLeftB;
        if (em != 0.0) g[1] = -m_dAmplitude * m_uPowerA * dOpenBelow * em * u / m_dTauM * dLeftB;
        g[2] = m_dAmplitude * dOpenA * m_uPowerB * dLeftBelow * Rise(v);
        if (eh != 0.0) {
            g[3] = m_dAmplitude * dOpenA * m_uPowerB * dLeftBelow * (1.0 - m_dInfinity) * eh * v /
                   m_dTauH;
        }
    }
    double m_dAmplitude, m_dTauM, m_dInfinity, m_dTauH;
    uint32_t m_uPowerA, m_uPowerB;
};

}  // namespace curvefit
