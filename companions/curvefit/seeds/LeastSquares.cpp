#include "seeds/LeastSquares.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace curvefit {

double Dot(const double* a, const double* b, std::size_t n) {
    double dSum = 0.0;
    for (std::size_t i = 0; i < n; ++i) dSum += a[i] * b[i];
    return dSum;
}

double SolveLeastSquares(const Columns& columns, const double* y, double* coefficients) {
    const std::size_t nRows = columns.Rows();
    const std::size_t nColumns = columns.Count();
    Columns work = columns;
    std::vector<double> right(y, y + nRows);
    std::vector<double> scale(nColumns);
    for (std::size_t k = 0; k < nColumns; ++k) {
        const double dLength = std::sqrt(Dot(work.At(k), work.At(k), nRows));
        scale[k] = dLength > 0.0 && std::isfinite(dLength) ? 1.0 / dLength : 0.0;
        for (std::size_t i = 0; i < nRows; ++i)
            work.At(k)[i] = scale[k] == 0.0 ? 0.0 : work.At(k)[i] * scale[k];
        coefficients[k] = 0.0;
    }
    // Row k of the triangle belongs to the k-th column that was independent.
    std::vector<std::size_t> used;
    std::vector<double> diagonal;
    constexpr double kDependent = 1e-12;
    for (std::size_t k = 0; k < nColumns && used.size() < nRows; ++k) {
        double* c = work.At(k);
        const std::size_t r = used.size();
        const double dNorm = std::sqrt(Dot(c + r, c + r, nRows - r));
        if (!(dNorm > kDependent)) continue;
        const double dAlpha = c[r] > 0.0 ? -dNorm : dNorm;
        c[r] -= dAlpha;
        const double dSquare = Dot(c + r, c + r, nRows - r);
        const auto reflect = [&](double* v) {
            const double dFactor = 2.0 * Dot(c + r, v + r, nRows - r) / dSquare;
            for (std::size_t i = r; i < nRows; ++i) v[i] -= dFactor * c[i];
        };
        for (std::size_t j = k + 1; j < nColumns; ++j) reflect(work.At(j));
        reflect(right.data());
        used.push_back(k);
        diagonal.push_back(dAlpha);
    }
    for (std::size_t r = used.size(); r-- > 0;) {
        double dSum = right[r];
        for (std::size_t s = r + 1; s < used.size(); ++s)
            dSum -= work.At(used[s])[r] * coefficients[used[s]];
        coefficients[used[r]] = dSum / diagonal[r];
    }
    for (std::size_t k = 0; k < nColumns; ++k) coefficients[k] *= scale[k];
    const std::size_t nUsed = used.size();
    return Dot(right.data() + nUsed, right.data() + nUsed, nRows - nUsed);
}

double SolveNonNegative(const Columns& columns, std::size_t nPositive, const double* y,
                        double* coefficients) {
    const std::size_t nColumns = columns.Count();
    std::vector<bool> left(nColumns, true);
    while (true) {
        Columns part(columns.Rows(), 0);
        std::vector<std::size_t> places;
        for (std::size_t k = 0; k < nColumns; ++k) {
            if (!left[k]) continue;
            part.Append(columns.At(k));
            places.push_back(k);
        }
        std::fill(coefficients, coefficients + nColumns, 0.0);
        if (places.empty()) return Dot(y, y, columns.Rows());
        std::vector<double> solution(places.size());
        const double dRest = SolveLeastSquares(part, y, solution.data());
        // The most negative one goes, one at a time.
        std::size_t nWorst = places.size();
        double dWorst = 0.0;
        for (std::size_t k = 0; k < places.size(); ++k) {
            coefficients[places[k]] = solution[k];
            const double dSize = solution[k] * std::sqrt(Dot(part.At(k), part.At(k), part.Rows()));
            if (places[k] < nPositive && dSize < dWorst) {
                dWorst = dSize;
                nWorst = k;
            }
        }
        if (nWorst == places.size()) return dRest;
        left[places[nWorst]] = false;
    }
}

bool SolveCholesky(double* matrix, double* right, std::size_t n) {
    for (std::size_t k = 0; k < n; ++k) {
        double dPivot = matrix[k * n + k];
        for (std::size_t j = 0; j < k; ++j) dPivot -= matrix[k * n + j] * matrix[k * n + j];
        if (!(dPivot > 0.0)) return false;
        const double dRoot = std::sqrt(dPivot);
        matrix[k * n + k] = dRoot;
        for (std::size_t i = k + 1; i < n; ++i) {
            double dSum = matrix[i * n + k];
            for (std::size_t j = 0; j < k; ++j) dSum -= matrix[i * n + j] * matrix[k * n + j];
            matrix[i * n + k] = dSum / dRoot;
        }
    }
    for (std::size_t i = 0; i < n; ++i) {
        for (std::size_t j = 0; j < i; ++j) right[i] -= matrix[i * n + j] * right[j];
        right[i] /= matrix[i * n + i];
    }
    for (std::size_t i = n; i-- > 0;) {
        for (std::size_t j = i + 1; j < n; ++j) right[i] -= matrix[j * n + i] * right[j];
        right[i] /= matrix[i * n + i];
    }
    return true;
}

double Refine(const SearchTask& task, std::vector<double>& params, int nSteps) {
    constexpr double kInfinite = std::numeric_limits<double>::infinity();
    const std::size_t nParams = params.size();
    const std::size_t nRows = task.nRows;
    std::vector<double> differences(nRows);
    std::vector<double> tried(nRows);
    Columns columns(nRows, nParams);
    const auto squares = [&](const std::vector<double>& d) {
        const double dSum = Dot(d.data(), d.data(), nRows);
        return std::isfinite(dSum) ? dSum : kInfinite;
    };
    if (!task.evaluate(params.data(), differences.data(), &columns)) return kInfinite;
    double dBest = squares(differences);
    if (!std::isfinite(dBest)) return kInfinite;
    double dLambda = 0.01;
    std::vector<double> normal(nParams * nParams);
    std::vector<double> gradient(nParams);
    std::vector<double> scale(nParams);
    for (int nStep = 0; nStep < nSteps; ++nStep) {
        for (std::size_t k = 0; k < nParams; ++k) {
            const double dLength = std::sqrt(Dot(columns.At(k), columns.At(k), nRows));
            scale[k] = dLength > 0.0 && std::isfinite(dLength) ? 1.0 / dLength : 0.0;
        }
        bool bBetter = false;
        double dFall = 0.0;
        for (int nTry = 0; nTry < 8 && !bBetter; ++nTry) {
            for (std::size_t k = 0; k < nParams; ++k) {
                for (std::size_t j = 0; j <= k; ++j) {
                    const double dProduct =
                        scale[k] * scale[j] * Dot(columns.At(k), columns.At(j), nRows);
                    normal[k * nParams + j] = normal[j * nParams + k] = dProduct;
                }
                normal[k * nParams + k] =
                    (scale[k] == 0.0 ? 1.0 : normal[k * nParams + k]) * (1.0 + dLambda);
                gradient[k] = scale[k] * Dot(columns.At(k), differences.data(), nRows);
            }
            if (SolveCholesky(normal.data(), gradient.data(), nParams)) {
                std::vector<double> next = params;
                for (std::size_t k = 0; k < nParams; ++k) next[k] += scale[k] * gradient[k];
                if (task.mend) task.mend(params.data(), next.data());
                const bool bFinite = std::all_of(next.begin(), next.end(),
                                                 [](double d) { return std::isfinite(d); });
                if (bFinite && task.evaluate(next.data(), tried.data(), nullptr)) {
                    const double dNow = squares(tried);
                    if (dNow < dBest) {
                        dFall = dBest - dNow;
                        bBetter = true;
                        dBest = dNow;
                        params = next;
                    }
                }
            }
            dLambda = bBetter ? dLambda / 10.0 : dLambda * 10.0;
        }
        if (!bBetter || dFall < 1e-7 * dBest) break;
        if (!task.evaluate(params.data(), differences.data(), &columns)) break;
    }
    return dBest;
}

}  // namespace curvefit
