// Analog lowpass filters of eight poles with half power at 1 rad/s and gain 1 at 0 Hz.
#pragma once

namespace filter {

constexpr int kPolePairs = 4;

// A pole with its residue; each has a conjugate partner.
struct AnalogPole {
    double dReal, dImaginary;
    double dResidueReal, dResidueImaginary;
};

struct Prototype {
    AnalogPole poles[kPolePairs];
};

extern const Prototype kBesselPrototype;
extern const Prototype kButterworthPrototype;
// Ripple 0.1 dB, all of it above the gain at 0 Hz, against which the half-power point counts.
extern const Prototype kChebyshevPrototype;

}  // namespace filter
