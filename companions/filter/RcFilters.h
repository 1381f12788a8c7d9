// RC filters: one pole as lowpass and highpass, and eight coincident poles. The pole is solved from
// the half-power point, so that this is exact up to half the sampling frequency.
#pragma once

#include <cstddef>

namespace filter {

// 1 - pole of a single-pole filter with that half-power point, a fraction of the sampling
// frequency.
double RcStep(double dFraction);

// Before its first point the trace stood still at `dLevel`.
void RunRcLowpass(double dFraction, double dLevel, double* values, std::size_t nPoints);
// The power complement of the lowpass: the squares of both gains add to 1 at every frequency.
void RunRcHighpass(double dFraction, double dLevel, double* values, std::size_t nPoints);

constexpr int kRc8Taps = 7;
constexpr int kRc8Stages = 8;

// The sampled response of eight coincident analog poles: seven taps behind the present point, then
// eight equal stages of one pole.
struct Rc8Design {
    double taps[kRc8Taps];  // of the points 1 to 7 before
    double dStep;           // 1 - pole
};
Rc8Design DesignRc8(double dFraction);
void RunRc8(const Rc8Design& design, double dLevel, double* values, std::size_t nPoints);

}  // namespace filter
