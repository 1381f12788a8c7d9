// Lowpass filters that copy the time course of an analog prototype: its impulse response, sampled,
// as a sum of four complex filters of one pole each. No section is of a higher order, and each
// keeps the small distance of its pole from 1 in full precision, so that a cutoff of 0.0001 of the
// sampling frequency works as one of 0.1.
#pragma once

#include <cstddef>

#include "Prototypes.h"

namespace filter {

// Per section and point: s += e s + r x; the output is the sum of the real parts of s.
struct ParallelDesign {
    double eReal[kPolePairs], eImaginary[kPolePairs];  // pole - 1
    double rReal[kPolePairs], rImaginary[kPolePairs];
};

// `dFraction`: the half-power point as a fraction of the sampling frequency.
ParallelDesign DesignParallel(const Prototype& prototype, double dFraction);

// Before its first point the trace stood still at `dLevel`.
void RunParallel(const ParallelDesign& design, double dLevel, double* values, std::size_t nPoints);

}  // namespace filter
