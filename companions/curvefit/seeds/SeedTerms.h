// What the methods with terms share: from found terms to flat seeds.
#pragma once

#include "seeds/TermSearch.h"

namespace curvefit {

SearchRules RulesOf(const SeedTask& task, ShapeFunction* pShape, std::size_t nShapes);

// Writes offset and slope behind the grid parameters, in the data's units.
void WriteLinear(const SeedTask& task, double dOffset, double dSlope, double* seeds);

// Sets parameter `uColumn` of term `uTerm`.
inline void SetSeed(const SeedTask& task, uint32_t uColumn, uint32_t uTerm, double d,
                    double* seeds) {
    seeds[uColumn * task.Terms() + uTerm] = d;
}

}  // namespace curvefit
