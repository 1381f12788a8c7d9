// All functions by their number.
#pragma once

#include "FunctionRow.h"

namespace curvefit {

// The row of a predefined function, 0 to 37; null for any other number.
const FunctionRow* FindFunction(int32_t eFunction);

// The rows of the families.
struct FunctionRows {
    const FunctionRow* pRows;
    std::size_t nRows;
};
extern const FunctionRows kBoltzmannFunctions;
extern const FunctionRows kDistributionFunctions;
extern const FunctionRows kDoseResponseFunctions;
extern const FunctionRows kExponentialFunctions;
extern const FunctionRows kGrowthFunctions;
extern const FunctionRows kLinearFunctions;
extern const FunctionRows kLorentzianFunctions;
extern const FunctionRows kMembraneFunctions;
extern const FunctionRows kTimeCourseFunctions;

}  // namespace curvefit
