// Filters of second order: the Bessel highpass of eight poles in four sections, and the notch. Both
// keep what differs from z = 1 in figures and states of its own, which keeps its digits at low
// frequencies, where polynomials in z lose them. Per point: a = x - w - r v; w += k v; v += k a.
#pragma once

#include <cstddef>

namespace filter {

constexpr int kBesselSections = 4;

// The output is a.
struct HighpassSection {
    double k, r;
};

// The bilinear transform of the analog highpass, which has no impulse response to be sampled, with
// the half-power point in its place. Frequencies are fractions of the sampling frequency.
struct BesselHighpassDesign {
    HighpassSection sections[kBesselSections];
    double dGain;  // of the input
};
BesselHighpassDesign DesignBesselHighpass(double dFraction);
// Before its first point the trace stood still at `dLevel`.
void RunBesselHighpass(const BesselHighpassDesign& design, double dLevel, double* values,
                       std::size_t nPoints);

// The output is x - depth (a + slope v).
struct NotchDesign {
    double k, r;
    double dDepth, dSlope;
};

// Zero at the centre, half power at two frequencies `dWidth` apart, gain 1 at 0 Hz and at half the
// sampling frequency. The width counts as 0.49 at most.
NotchDesign DesignNotch(double dCenter, double dWidth);
void RunNotch(const NotchDesign& design, double dLevel, double* values, std::size_t nPoints);

}  // namespace filter
