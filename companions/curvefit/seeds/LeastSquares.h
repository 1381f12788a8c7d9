// Small least-squares problems: tens of columns, hundreds of rows.
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace curvefit {

// Columns of equal length, one behind the other.
class Columns {
  public:
    Columns() = default;
    Columns(std::size_t nRows, std::size_t nColumns) : m_nRows(nRows), m_values(nRows * nColumns) {}
    std::size_t Rows() const { return m_nRows; }
    std::size_t Count() const { return m_nRows == 0 ? 0 : m_values.size() / m_nRows; }
    double* At(std::size_t k) { return m_values.data() + k * m_nRows; }
    const double* At(std::size_t k) const { return m_values.data() + k * m_nRows; }
    void Append(const double* column) { m_values.insert(m_values.end(), column, column + m_nRows); }

  private:
    std::size_t m_nRows = 0;
    std::vector<double> m_values;
};

double Dot(const double* a, const double* b, std::size_t n);

// Coefficients of the columns that come nearest to y, by Householder's method on columns of equal
// length. A column that adds nothing gets 0. Gives the sum of squares left over.
double SolveLeastSquares(const Columns& columns, const double* y, double* coefficients);

// The same with the first `nPositive` coefficients not below zero.
double SolveNonNegative(const Columns& columns, std::size_t nPositive, const double* y,
                        double* coefficients);

// Solves the symmetric positive definite system in place (n by n, row by row); false when it is
// not.
bool SolveCholesky(double* matrix, double* right, std::size_t n);

// What Levenberg-Marquardt works on.
struct SearchTask {
    std::size_t nRows = 0;
    // Writes the weighted differences of data and model and, where `columns` is not null, the
    // weighted derivatives of the model; false where the model has no value.
    std::function<bool(const double* params, double* differences, Columns* columns)> evaluate;
    // Brings a step back into what is allowed; may be empty.
    std::function<void(const double* before, double* params)> mend;
};

// At most `nSteps` steps with Marquardt's scaling. The parameters become the best ones found; gives
// their sum of squares, infinite where the first ones have none.
double Refine(const SearchTask& task, std::vector<double>& params, int nSteps);

}  // namespace curvefit
