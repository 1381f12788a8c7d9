// Pulls a value onto the multiples of a step.
//
// Each function changes `*pValue` and returns 1, or leaves it and returns 0 when there is nothing
// to snap to: the step is 0, or (floating forms) the value is more than a million steps long. A
// value half way goes away from 0. A negative value with a negative step comes out positive, as is
// required.
#pragma once

#include <cstdint>

std::int32_t SnapToStep(double* pdValue, double dStep);

// The same with all of its arithmetic in single precision.
std::int32_t SnapToStepFloat(float* pfValue, float fStep);

// The same with no limit on the number of steps. A result that does not fit stays at the end of the
// range of the type.
std::int32_t SnapToStepInt(std::int32_t* pnValue, std::int32_t nStep);
