#include "RcFilters.h"

#include <algorithm>
#include <cmath>

#include "Recursive.h"

namespace filter {

namespace {

// 1 / sqrt(2^(1/8) - 1): the pole of eight that have half power at 1 rad/s together.
constexpr double kCoincidentPole = 3.3239704732468361;
// How t^7 exp(-t) at whole numbers splits into taps before eight equal poles.
constexpr double kEulerian[kRc8Taps] = {1.0, 120.0, 1191.0, 2416.0, 1191.0, 120.0, 1.0};

Rc8Design Rc8OfRate(double c) {
    Rc8Design design;
    design.dStep = -std::expm1(-c);
    const double dPole = std::exp(-c);
    double dSum = 0.0;
    double dPower = 1.0;
    for (int k = 0; k < kRc8Taps; ++k) {
        dPower *= dPole;
        design.taps[k] = kEulerian[k] * dPower;
        dSum += design.taps[k];
    }
    for (double& dTap : design.taps) dTap /= dSum;
    return design;
}

double PowerAt(const Rc8Design& design, double dFraction) {
    const double w = 2.0 * kPi * dFraction;
    double dReal = 0.0;
    double dImaginary = 0.0;
    for (int k = 0; k < kRc8Taps; ++k) {
        dReal += design.taps[k] * std::cos(w * (k + 1));
        dImaginary += design.taps[k] * std::sin(w * (k + 1));
    }
    const double dSine = std::sin(0.5 * w);
    const double dSquare = design.dStep * design.dStep;
    const double dStage = dSquare / (dSquare + 4.0 * (1.0 - design.dStep) * dSine * dSine);
    double dPower = dReal * dReal + dImaginary * dImaginary;
    for (int k = 0; k < kRc8Stages; ++k) dPower *= dStage;
    return dPower;
}

}  // namespace

double RcStep(double dFraction) {
    const double dSine = std::sin(kPi * dFraction);
    const double q = 2.0 * dSine * dSine;
    return 2.0 * q / (std::sqrt(q * (q + 2.0)) + q);
}

void RunRcLowpass(double dFraction, double dLevel, double* values, std::size_t nPoints) {
    const double d = RcStep(dFraction);
    double y = dLevel;
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t i = nStart; i < nEnd; ++i) {
            y += d * (values[i] - y);
            values[i] = y;
        }
        FlushTiny(y);
    }
}

void RunRcHighpass(double dFraction, double dLevel, double* values, std::size_t nPoints) {
    const double dPole = 1.0 - RcStep(dFraction);
    const double dGain = std::sqrt(dPole);
    double dBefore = dLevel;
    double y = 0.0;
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t i = nStart; i < nEnd; ++i) {
            const double x = values[i];
            y = dPole * y + dGain * (x - dBefore);
            dBefore = x;
            values[i] = y;
        }
        FlushTiny(y);
    }
}

Rc8Design DesignRc8(double dFraction) {
    // Sampling moves the half-power point a little: the rate of the poles is found that puts it
    // back.
    const double dRate = 2.0 * kPi * dFraction * kCoincidentPole;
    double dBefore = 1.0;
    double dNow = 0.999;
    double dErrorBefore = PowerAt(Rc8OfRate(dRate * dBefore), dFraction) - 0.5;
    for (int i = 0; i < 20; ++i) {
        const double dError = PowerAt(Rc8OfRate(dRate * dNow), dFraction) - 0.5;
        if (dError == dErrorBefore) break;
        const double dNext = dNow - dError * (dNow - dBefore) / (dError - dErrorBefore);
        dBefore = dNow;
        dErrorBefore = dError;
        dNow = dNext;
        if (std::fabs(dNow - dBefore) < 1e-15) break;
    }
    return Rc8OfRate(dRate * dNow);
}

void RunRc8(const Rc8Design& design, double dLevel, double* values, std::size_t nPoints) {
    const Rc8Design d = design;
    double past[kRc8Taps];
    double stages[kRc8Stages];
    std::fill(past, past + kRc8Taps, dLevel);
    std::fill(stages, stages + kRc8Stages, dLevel);
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t i = nStart; i < nEnd; ++i) {
            double v = 0.0;
            for (int k = 0; k < kRc8Taps; ++k) v += d.taps[k] * past[k];
            for (int k = kRc8Taps - 1; k > 0; --k) past[k] = past[k - 1];
            past[0] = values[i];
            for (double& dStage : stages) {
                dStage += d.dStep * (v - dStage);
                v = dStage;
            }
            values[i] = v;
        }
        for (double& dStage : stages) FlushTiny(dStage);
    }
}

}  // namespace filter
