// The smallest and the largest of an array of doubles, as fast as the memory gives it.
#pragma once

#include <cstddef>

// Widens dMin and dMax to the values of the array: a value below dMin becomes dMin, a value above
// dMax becomes dMax, and a NaN, for which neither comparison holds, is passed over.
void WidenExtent(const double* pdValues, std::size_t nCount, double& dMin, double& dMax);
