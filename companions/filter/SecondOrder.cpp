#include "SecondOrder.h"

#include <algorithm>
#include <cmath>

#include "Prototypes.h"
#include "Recursive.h"

namespace filter {

namespace {

// The width beyond which a notch would not be stable is half the sampling frequency.
constexpr double kWidestNotch = 0.49;

}  // namespace

BesselHighpassDesign DesignBesselHighpass(double dFraction) {
    const double K = std::tan(kPi * dFraction);
    BesselHighpassDesign design;
    design.dGain = 1.0;
    for (int i = 0; i < kBesselSections; ++i) {
        // The pole p of the lowpass is 1/p here.
        const AnalogPole& pole = kBesselPrototype.poles[i];
        const double m = pole.dReal * pole.dReal + pole.dImaginary * pole.dImaginary;
        const double A = -2.0 * pole.dReal / m;
        const double B = 1.0 / m;
        const double D = 1.0 + K * (A + B * K);
        const double k = 2.0 * K * std::sqrt(B / D);
        const double r = (A + 2.0 * B * K) / std::sqrt(B * D);
        design.sections[i] = {k, r};
        // Of the rounded figures: the gain of the passband is 1.
        design.dGain *= 1.0 - 0.5 * r * k + 0.25 * k * k;
    }
    return design;
}

void RunBesselHighpass(const BesselHighpassDesign& design, double dLevel, double* values,
                       std::size_t nPoints) {
    const BesselHighpassDesign d = design;
    double v[kBesselSections] = {};
    double w[kBesselSections] = {d.dGain * dLevel};
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t n = nStart; n < nEnd; ++n) {
            double x = d.dGain * values[n];
            for (int i = 0; i < kBesselSections; ++i) {
                x = (x - w[i]) - d.sections[i].r * v[i];
                w[i] += d.sections[i].k * v[i];
                v[i] += d.sections[i].k * x;
            }
            values[n] = x;
        }
        for (int i = 0; i < kBesselSections; ++i) {
            FlushTiny(v[i]);
            FlushTiny(w[i]);
        }
    }
}

NotchDesign DesignNotch(double dCenter, double dWidth) {
    // By b0 = 1 / (1 + tan(pi width)), which is 1 - depth, the denominator in d = z - 1 is
    // d^2 + (2 depth + b0 q) d + b0 q, and 1 less the response is depth d (d + 2) over it.
    const double dTangent = std::tan(kPi * std::min(dWidth, kWidestNotch));
    const double b0 = 1.0 / (1.0 + dTangent);
    const double dSine = std::sin(kPi * dCenter);
    const double q = 4.0 * dSine * dSine;
    NotchDesign design;
    design.dDepth = dTangent * b0;
    design.k = std::sqrt(b0 * q);
    design.r = (2.0 * design.dDepth + b0 * q) / design.k;
    design.dSlope = 2.0 / design.k;
    return design;
}

void RunNotch(const NotchDesign& design, double dLevel, double* values, std::size_t nPoints) {
    const NotchDesign d = design;
    double v = 0.0;
    double w = dLevel;
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t n = nStart; n < nEnd; ++n) {
            const double x = values[n];
            const double a = (x - w) - d.r * v;
            values[n] = x - d.dDepth * (a + d.dSlope * v);
            w += d.k * v;
            v += d.k * a;
        }
        FlushTiny(v);
        FlushTiny(w);
    }
}

}  // namespace filter
