#include "Kernels.h"

#include <algorithm>

namespace curvefit {

double SubstituteForZero(const double* x, std::size_t n, double dFactor) {
    constexpr double kNone = std::numeric_limits<double>::infinity();
    double dSmallest = kNone;
    for (std::size_t i = 0; i < n; ++i) {
        const double d = x[i] > 0.0 ? x[i] : kNone;
        dSmallest = d < dSmallest ? d : dSmallest;
    }
    return dSmallest == kNone ? 0.0 : dSmallest / dFactor;
}

namespace {

constexpr double kSeriesFrom = 10.0;
constexpr double kHalfLogTwoPi = 0.91893853320467274178;

// Sums of small rows, smallest first.
template <std::size_t N>
double Horner(const double (&coefficients)[N], double x) {
    double dSum = 0.0;
    for (std::size_t i = N; i-- > 0;) dSum = dSum * x + coefficients[i];
    return dSum;
}

}  // namespace

double StirlingRest(double x) {
    // The asymptotic series; at 10 its last row is below a unit of rounding.
    static constexpr double kRows[] = {1.0 / 12,   -1.0 / 360,        1.0 / 1260, -1.0 / 1680,
                                       1.0 / 1188, -691.0 / 360360.0, 1.0 / 156};
    return Horner(kRows, 1.0 / (x * x)) / x;
}

double LogGamma(double x) {
    // Below the series' reach the recurrence gathers one product.
    double dProduct = 1.0;
    while (x < kSeriesFrom) {
        dProduct *= x;
        x += 1.0;
    }
    return (x - 0.5) * std::log(x) - x + kHalfLogTwoPi + StirlingRest(x) - std::log(dProduct);
}

double Digamma(double x) {
    static constexpr double kRows[] = {1.0 / 12,  -1.0 / 120,       1.0 / 252, -1.0 / 240,
                                       5.0 / 660, -691.0 / 32760.0, 1.0 / 12};
    double dSum = 0.0;
    while (x < kSeriesFrom) {
        dSum += 1.0 / x;
        x += 1.0;
    }
    const double dInverse = 1.0 / (x * x);
    return std::log(x) - 0.5 / x - dInverse * Horner(kRows, dInverse) - dSum;
}

double LogBeta(double a, double b) {
    if (a > b) std::swap(a, b);
    if (a < kSeriesFrom) {
        if (b < kSeriesFrom) return LogGamma(a) + LogGamma(b) - LogGamma(a + b);
        // The large parts of the two gammas of b and a + b cancel in closed form.
        const double dDifference = StirlingRest(b) - StirlingRest(a + b) + a -
                                   (b - 0.5) * std::log1p(a / b) - a * std::log(a + b);
        return LogGamma(a) + dDifference;
    }
    const double dRest = StirlingRest(a) + StirlingRest(b) - StirlingRest(a + b);
    return dRest + kHalfLogTwoPi - 0.5 * std::log(b) + (a - 0.5) * std::log(a / (a + b)) -
           b * std::log1p(a / b);
}

double Deviance(double x, double m) {
    if (std::fabs(x - m) >= 0.1 * (x + m)) return x * std::log(x / m) + m - x;
    // ln((1 + v) / (1 - v)) = 2 (v + v^3/3 + v^5/5 ...), with v = (x - m) / (x + m).
    const double v = (x - m) / (x + m);
    double dSum = (x - m) * v;
    double dRow = 2.0 * x * v;
    for (int k = 3; k < 1000; k += 2) {
        dRow *= v * v;
        const double dNext = dSum + dRow / k;
        if (dNext == dSum) break;
        dSum = dNext;
    }
    return dSum;
}

}  // namespace curvefit
