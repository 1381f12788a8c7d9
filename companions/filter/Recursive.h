// What the recursive filters share.
#pragma once

#include <cmath>
#include <cstddef>

namespace filter {

constexpr double kPi = 3.14159265358979323846;

// Points between two looks at the state.
constexpr std::size_t kStateBlock = 1024;

// A state that fades into nothing would be carried on in denormal numbers, which are slow.
inline void FlushTiny(double& dState) {
    if (std::fabs(dState) < 1e-290) dState = 0.0;
}

}  // namespace filter
