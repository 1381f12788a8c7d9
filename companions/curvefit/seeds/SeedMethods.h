// The seed methods by the kind of function. Each reads the task's data and writes the flat seeds in
// the units of the data; false when there are none, with the task's text set where it is not the
// usual one.
#pragma once

#include "FunctionRow.h"

namespace curvefit {

SeedFunction SeedBells;           // 18, 26
SeedFunction SeedBeta;            // 0
SeedFunction SeedBinomial;        // 1
SeedFunction SeedConstantField;   // 19, 20
SeedFunction SeedDoseResponse;    // 21, 22, 23
SeedFunction SeedGrowth;          // 25
SeedFunction SeedMichaelis;       // 29
SeedFunction SeedNernst;          // 30
SeedFunction SeedParabola;        // 31, 32
SeedFunction SeedPoisson;         // 33
SeedFunction SeedPolynomial;      // 34, 35, 36
SeedFunction SeedReciprocal;      // 24
SeedFunction SeedRelaxationTime;  // 37
SeedFunction SeedSigmoid;         // 2 to 6
SeedFunction SeedSpectrum;        // 27, 28
SeedFunction SeedTimeConstants;   // 9 to 12, 14 to 17
SeedFunction SeedTimeCourse;      // 7, 8, 13

}  // namespace curvefit
