#include "ParallelLowpass.h"

#include <algorithm>
#include <cmath>

#include "Recursive.h"

namespace filter {

ParallelDesign DesignParallel(const Prototype& prototype, double dFraction) {
    const double w = 2.0 * kPi * dFraction;
    ParallelDesign design;
    double dGain = 0.0;
    for (int k = 0; k < kPolePairs; ++k) {
        const AnalogPole& pole = prototype.poles[k];
        const double a = w * pole.dReal;
        const double b = w * pole.dImaginary;
        const double dHalfSine = std::sin(0.5 * b);
        // The pole less 1, without the cancellation.
        const double er = std::expm1(a) * std::cos(b) - 2.0 * dHalfSine * dHalfSine;
        const double ei = std::exp(a) * std::sin(b);
        const double rr = 2.0 * w * pole.dResidueReal;
        const double ri = 2.0 * w * pole.dResidueImaginary;
        dGain -= (rr * er + ri * ei) / (er * er + ei * ei);
        design.eReal[k] = er;
        design.eImaginary[k] = ei;
        design.rReal[k] = rr;
        design.rImaginary[k] = ri;
    }
    // Sampling folds a few millionths onto 0 Hz.
    for (int k = 0; k < kPolePairs; ++k) {
        design.rReal[k] /= dGain;
        design.rImaginary[k] /= dGain;
    }
    return design;
}

void RunParallel(const ParallelDesign& design, double dLevel, double* values, std::size_t nPoints) {
    const ParallelDesign d = design;
    double sr[kPolePairs];
    double si[kPolePairs];
    for (int k = 0; k < kPolePairs; ++k) {
        const double dScale =
            -dLevel / (d.eReal[k] * d.eReal[k] + d.eImaginary[k] * d.eImaginary[k]);
        sr[k] = dScale * (d.rReal[k] * d.eReal[k] + d.rImaginary[k] * d.eImaginary[k]);
        si[k] = dScale * (d.rImaginary[k] * d.eReal[k] - d.rReal[k] * d.eImaginary[k]);
    }
    for (std::size_t nStart = 0; nStart < nPoints; nStart += kStateBlock) {
        const std::size_t nEnd = std::min(nStart + kStateBlock, nPoints);
        for (std::size_t i = nStart; i < nEnd; ++i) {
            const double x = values[i];
            for (int k = 0; k < kPolePairs; ++k) {
                const double r = sr[k];
                sr[k] += d.eReal[k] * r - d.eImaginary[k] * si[k] + d.rReal[k] * x;
                si[k] += d.eReal[k] * si[k] + d.eImaginary[k] * r + d.rImaginary[k] * x;
            }
            values[i] = (sr[0] + sr[1]) + (sr[2] + sr[3]);
        }
        for (int k = 0; k < kPolePairs; ++k) {
            FlushTiny(sr[k]);
            FlushTiny(si[k]);
        }
    }
}

}  // namespace filter
