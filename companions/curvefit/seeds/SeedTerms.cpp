#include "seeds/SeedTerms.h"

namespace curvefit {

SearchRules RulesOf(const SeedTask& task, ShapeFunction* pShape, std::size_t nShapes) {
    SearchRules rules;
    rules.pShape = pShape;
    rules.nShapes = nShapes;
    rules.bOffset = task.HasOffset();
    rules.bSlope = task.HasSlope();
    rules.bPositiveAmplitudes = task.ForcesProportions();
    rules.bPositiveShapes = task.ForcesShapes();
    return rules;
}

void WriteLinear(const SeedTask& task, double dOffset, double dSlope, double* seeds) {
    const ReducedData& data = task.Data();
    double* next = seeds + task.GridParams();
    const double dSlopeSeed = dSlope * data.dScaleY / data.dScaleX;
    if (task.HasOffset()) *next++ = dOffset * data.dScaleY - dSlopeSeed * task.LateOrigin();
    if (task.HasSlope()) *next = dSlopeSeed;
}

}  // namespace curvefit
