// Refines seeds by a function's own formula, for functions that are no sum of terms with
// amplitudes.
#pragma once

#include <vector>

#include "seeds/SeedTask.h"

namespace curvefit {

struct ModelData {
    std::vector<const double*> x;  // one array for each variable
    const double* y = nullptr;
    const double* weight = nullptr;  // null for equal weights
    std::size_t n = 0;
};

// At most `nSteps` steps of all grid parameters, which stay above zero; the functions have no
// offset. Gives the sum of squares.
double RefineModel(const SeedTask& task, const ModelData& data, std::vector<double>& params,
                   int nSteps);
// The sum of squares as it stands.
double SquaresOfModel(const SeedTask& task, const ModelData& data,
                      const std::vector<double>& params);

}  // namespace curvefit
