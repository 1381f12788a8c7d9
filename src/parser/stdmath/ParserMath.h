// What the mathematical functions need where the standard library's are accurate over the whole
// range and in any state of the processor: nothing. The build takes this header or its namesake in
// x87math.
#pragma once

#include <cmath>

// The time during which mathematical functions are called.
class PrecisionScope {
  public:
    PrecisionScope() {}
};

inline double Sine(double x) {
    return std::sin(x);
}
inline double Cosine(double x) {
    return std::cos(x);
}
inline double Power(double x, double y) {
    return std::pow(x, y);
}
