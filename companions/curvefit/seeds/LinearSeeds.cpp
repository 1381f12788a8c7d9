// Seeds by linear regression: lines, parabolas, polynomials, and what a transformation makes one.

#include <algorithm>
#include <cmath>

#include "Kernels.h"
#include "seeds/PolynomialFit.h"
#include "seeds/SeedMethods.h"
#include "seeds/SeedTerms.h"

namespace curvefit {

namespace {

enum Function : int32_t { kVarianceMean = 31, kPolynomial = 34, kLine = 35, kLineOrigin = 36 };

// sum x y / sum x^2 without overflow.
double SlopeThroughOrigin(const double* x, const double* y, std::size_t n) {
    double dLargest = 0.0;
    for (std::size_t i = 0; i < n; ++i) dLargest = std::max(dLargest, std::fabs(x[i]));
    double dProducts = 0.0;
    double dSquares = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        const double s = x[i] / dLargest;
        dProducts += s * (y[i] / dLargest);
        dSquares += s * s;
    }
    return dProducts / dSquares;
}

}  // namespace

bool SeedPolynomial(SeedTask& task, double* seeds) {
    const double* x = task.Array(0);
    const double* y = task.Array(1);
    if (task.Row().eFunction == kLineOrigin) {
        seeds[0] = SlopeThroughOrigin(x, y, task.Points());
        return true;
    }
    const std::size_t nDegree = task.Row().eFunction == kPolynomial ? task.Terms() : 1;
    double coefficients[kMaxDegree + 1] = {};
    if (!FitPolynomial(x, y, task.Points(), nDegree, coefficients)) return false;
    std::copy(coefficients + 1, coefficients + 1 + nDegree, seeds);
    seeds[nDegree] = coefficients[0];
    return true;
}

bool SeedParabola(SeedTask& task, double* seeds) {
    const double* x = task.Array(0);
    double c[3] = {};
    if (!FitPolynomial(x, task.Array(1), task.Points(), 2, c)) return false;
    seeds[2] = c[0];
    if (task.Row().eFunction != kVarianceMean) {
        seeds[0] = c[2];
        seeds[1] = c[1];
        return true;
    }
    seeds[0] = c[1];
    if (c[2] < 0.0) {
        seeds[1] = -1.0 / c[2];
        return true;
    }
    // Without a bend the number of channels is large beyond telling.
    double dLargest = 0.0;
    for (std::size_t i = 0; i < task.Points(); ++i) dLargest = std::max(dLargest, std::fabs(x[i]));
    seeds[1] = c[1] == 0.0 ? 1.0 : std::fabs(10.0 * dLargest / c[1]);
    return true;
}

bool SeedReciprocal(SeedTask& task, double* seeds) {
    double c[2] = {};
    if (!FitPolynomial(task.Array(0), task.Array(1), task.Points(), 1, c)) return false;
    seeds[0] = 1.0 / c[0];
    seeds[1] = c[1] / c[0];
    // An intercept of a few units of rounding is none.
    const double* y = task.Array(1);
    double dLargest = 0.0;
    for (std::size_t i = 0; i < task.Points(); ++i) dLargest = std::max(dLargest, std::fabs(y[i]));
    if (std::fabs(c[0]) <= 1e-14 * dLargest || !std::isfinite(seeds[0]))
        return task.Fail(kThroughOrigin);
    return true;
}

bool SeedNernst(SeedTask& task, double* seeds) {
    const double* x = task.Array(0);
    const double* y = task.Array(1);
    const Settings& settings = task.Options();
    const double dSubstitute = SubstituteForZero(x, task.Points(), settings.dSubstZeroFactor);
    const double dScale = settings.nValence / settings.dThermalMv;
    double dSum = 0.0;
    for (std::size_t i = 0; i < task.Points(); ++i)
        dSum += std::log(x[i] <= 0.0 ? dSubstitute : x[i]) - dScale * y[i];
    seeds[0] = std::exp(dSum / static_cast<double>(task.Points()));
    return true;
}

}  // namespace curvefit
