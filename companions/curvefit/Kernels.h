// Pieces of formulas, arranged so that they lose no digits and never overflow on the way.
#pragma once

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numbers>

namespace curvefit {

// --- Looking through the data. The bits of a number tell in fewer steps than comparisons do, and
// several at a time.

// Finite only.
inline bool AllFinite(const double* values, std::size_t n) {
    constexpr uint64_t kExponent = 0x7FF0000000000000u;
    constexpr uint64_t kOne = 0x0010000000000000u;
    uint64_t uCarries = 0;
    for (std::size_t i = 0; i < n; ++i)
        uCarries |= (std::bit_cast<uint64_t>(values[i]) & kExponent) + kOne;
    return uCarries >> 63 == 0;
}

// What a number adds to the signs of many: the top bit is set where it is zero or below.
inline uint64_t SignOfNotPositive(double d) {
    const auto uBits = std::bit_cast<uint64_t>(d);
    return uBits | (uBits - 1);
}

// The smallest x above zero divided by the record's factor; 0 where no x is.
double SubstituteForZero(const double* x, std::size_t n, double dFactor);

// --- Pieces.

// A width or time constant of zero means the limit from above.
inline double NonZero(double d) {
    return d == 0.0 ? std::numeric_limits<double>::denorm_min() : d;
}

// 1 / (1 + e^-z).
inline double Logistic(double z) {
    const double q = std::exp(-std::fabs(z));
    return (z >= 0.0 ? 1.0 : q) / (1.0 + q);
}

// Its derivative by z.
inline double LogisticSlope(double z) {
    const double q = std::exp(-std::fabs(z));
    return q / ((1.0 + q) * (1.0 + q));
}

// 1 - e^-u.
inline double Rise(double u) {
    return -std::expm1(-u);
}

inline double WholePower(double d, uint32_t uPower) {
    // No dialog asks for more, but a record may hold anything.
    constexpr uint32_t kMostProducts = 16;
    if (uPower > kMostProducts) return std::pow(d, uPower);
    double dResult = d;
    for (uint32_t i = 1; i < uPower; ++i) dResult *= d;
    return dResult;
}

// --- The gamma function and its relatives, for arguments above zero ------------------------------

// ln of gamma(x) less Stirling's formula; x at least 10.
double StirlingRest(double x);
double LogGamma(double x);
// The derivative of LogGamma.
double Digamma(double x);
// ln of gamma(a) gamma(b) / gamma(a + b).
double LogBeta(double a, double b);
// x ln(x / m) + m - x, without cancellation where x is near m.
double Deviance(double x, double m);

}  // namespace curvefit
