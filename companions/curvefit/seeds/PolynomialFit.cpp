#include "seeds/PolynomialFit.h"

#include <algorithm>
#include <cmath>

#include "seeds/LeastSquares.h"

namespace curvefit {

namespace {

// Longer records are solved by sums, shorter ones by columns, which bear any spacing of x.
constexpr std::size_t kColumnsTo = 4096;
constexpr std::size_t kBlock = 64;

// Maps x to -1..1.
struct Axis {
    double dMiddle = 0.0;
    double dHalf = 1.0;
    double At(double x) const { return (x - dMiddle) / dHalf; }
};

// By Householder's method on Chebyshev polynomials.
void SolveByColumns(const double* x, const double* y, std::size_t n, std::size_t nDegree,
                    const Axis& axis, double* chebyshev) {
    Columns columns(n, nDegree + 1);
    for (std::size_t i = 0; i < n; ++i) {
        const double s = axis.At(x[i]);
        double dBefore = 1.0;
        double dNow = s;
        columns.At(0)[i] = 1.0;
        for (std::size_t k = 1; k <= nDegree; ++k) {
            columns.At(k)[i] = dNow;
            const double dNext = 2.0 * s * dNow - dBefore;
            dBefore = dNow;
            dNow = dNext;
        }
    }
    SolveLeastSquares(columns, y, chebyshev);
}

// Four sums at a time, since each addition waits for the one before.
double SumOf(const double* values, const double* factors, std::size_t n) {
    double sums[4] = {};
    std::size_t i = 0;
    for (; i + 4 <= n; i += 4) {
        for (std::size_t k = 0; k < 4; ++k) sums[k] += values[i + k] * factors[i + k];
    }
    for (; i < n; ++i) sums[0] += values[i] * factors[i];
    return (sums[0] + sums[1]) + (sums[2] + sums[3]);
}

// By sums of Chebyshev polynomials, whose products are sums of others again:
// T_i T_j = (T_(i+j) + T_|i-j|) / 2. The matrix is well conditioned, unlike that of bare powers.
bool SolveBySums(const double* x, const double* y, std::size_t n, std::size_t nDegree,
                 const Axis& axis, double dScaleY, double* chebyshev) {
    double sums[2 * kMaxDegree + 1] = {};
    double products[kMaxDegree + 1] = {};
    double s[kBlock], twice[kBlock], before[kBlock], now[kBlock], scaled[kBlock], ones[kBlock];
    std::fill(std::begin(ones), std::end(ones), 1.0);
    for (std::size_t nStart = 0; nStart < n; nStart += kBlock) {
        const std::size_t m = std::min(kBlock, n - nStart);
        for (std::size_t i = 0; i < m; ++i) {
            s[i] = axis.At(x[nStart + i]);
            twice[i] = 2.0 * s[i];
            before[i] = s[i];  // T_-1 is T_1
            now[i] = 1.0;
            scaled[i] = y[nStart + i] / dScaleY;
        }
        for (std::size_t k = 0; k <= 2 * nDegree; ++k) {
            sums[k] += SumOf(now, ones, m);
            if (k <= nDegree) products[k] += SumOf(now, scaled, m);
            for (std::size_t i = 0; i < m; ++i) {
                const double dNext = twice[i] * now[i] - before[i];
                before[i] = now[i];
                now[i] = dNext;
            }
        }
    }
    const std::size_t nColumns = nDegree + 1;
    double matrix[(kMaxDegree + 1) * (kMaxDegree + 1)];
    for (std::size_t i = 0; i < nColumns; ++i) {
        for (std::size_t j = 0; j < nColumns; ++j)
            matrix[i * nColumns + j] = 0.5 * (sums[i + j] + sums[i > j ? i - j : j - i]);
        chebyshev[i] = products[i];
    }
    if (!SolveCholesky(matrix, chebyshev, nColumns)) return false;
    for (std::size_t i = 0; i < nColumns; ++i) chebyshev[i] *= dScaleY;
    return true;
}

// From Chebyshev polynomials of s to powers of x.
void ToPowers(const double* chebyshev, std::size_t nDegree, const Axis& axis,
              double* coefficients) {
    double before[kMaxDegree + 2] = {1.0};
    double now[kMaxDegree + 2] = {0.0, 1.0};
    double powers[kMaxDegree + 1] = {chebyshev[0]};
    for (std::size_t k = 1; k <= nDegree; ++k) {
        for (std::size_t j = 0; j <= k; ++j) powers[j] += chebyshev[k] * now[j];
        double next[kMaxDegree + 2] = {};
        for (std::size_t j = 0; j <= nDegree; ++j) {
            next[j] -= before[j];
            if (j < nDegree) next[j + 1] += 2.0 * now[j];
        }
        std::copy(std::begin(now), std::end(now), before);
        std::copy(std::begin(next), std::end(next), now);
    }
    double dScale = 1.0;
    for (std::size_t j = 0; j <= nDegree; ++j) {
        coefficients[j] = powers[j] * dScale;
        dScale /= axis.dHalf;
    }
    // A polynomial of x - middle becomes one of x by repeated division.
    for (std::size_t k = 0; k < nDegree; ++k) {
        for (std::size_t j = nDegree; j-- > k;)
            coefficients[j] -= axis.dMiddle * coefficients[j + 1];
    }
}

}  // namespace

bool FitPolynomial(const double* x, const double* y, std::size_t n, std::size_t nDegree,
                   double* coefficients) {
    if (n == 0) return false;
    double dLow = x[0];
    double dHigh = x[0];
    double dLargest = 0.0;
    for (std::size_t i = 0; i < n; ++i) {
        dLow = std::min(dLow, x[i]);
        dHigh = std::max(dHigh, x[i]);
        dLargest = std::max(dLargest, std::fabs(y[i]));
    }
    if (!(dHigh > dLow)) return false;
    Axis axis;
    axis.dMiddle = 0.5 * dLow + 0.5 * dHigh;
    axis.dHalf = 0.5 * dHigh - 0.5 * dLow;
    double chebyshev[kMaxDegree + 1] = {};
    if (n <= kColumnsTo) {
        // The columns square y: it is brought to size one first.
        const double dScaleY = dLargest > 0.0 ? dLargest : 1.0;
        std::vector<double> scaled(y, y + n);
        for (double& d : scaled) d /= dScaleY;
        SolveByColumns(x, scaled.data(), n, nDegree, axis, chebyshev);
        for (double& d : chebyshev) d *= dScaleY;
    } else if (!SolveBySums(x, y, n, nDegree, axis, dLargest > 0.0 ? dLargest : 1.0, chebyshev)) {
        return false;
    }
    ToPowers(chebyshev, nDegree, axis, coefficients);
    return true;
}

}  // namespace curvefit
