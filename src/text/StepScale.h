// Steps of spinners and gauges: the grid on which a value moves, and the scale of a gauge.
#pragma once

#include <cstdint>

// Moves a value one step on a grid of the size of the delta. A value off the grid lands on the next
// grid point in the direction of the delta; negative values move as a mirror image around a shift
// of one step. The arithmetic is in single precision, as the grid is meant for display values. A
// delta of 0 has no grid and leaves the value.
float StepValue(double dValue, double dDelta);

// The 1, 2 or 5 times a power of ten below a number, as its first digit stands when it is written
// with one decimal in exponent form. 0 and what is not finite stay.
double RoundOneTwoFive(double x);

// Divides the range between two limits, in either order, into gauge positions. Stores the number of
// steps, the step and the grid point nearest to the lower limit, and returns 1. The step is
// coarsened to 1, 2 or 5 times a power of ten until there are at most 10 million positions. With
// equal limits or a step of 0 it stores 1, `dStep` and `dLow`, and returns 0.
std::int32_t ComputeGaugeScale(double dLow, double dHigh, double dStep, std::int32_t* pnPositions,
                               double* pdStep, double* pdOrigin);
