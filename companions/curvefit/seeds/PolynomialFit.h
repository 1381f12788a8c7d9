// The least-squares polynomial of a record, exact for any number of points, in one pass and without
// a copy of a long record.
#pragma once

#include <cstddef>
#include <vector>

namespace curvefit {

constexpr std::size_t kMaxDegree = 6;

// Writes the coefficients of 1, x, x^2 ... of the polynomial of `nDegree`. False where x holds too
// few different values.
bool FitPolynomial(const double* x, const double* y, std::size_t n, std::size_t nDegree,
                   double* coefficients);

}  // namespace curvefit
