// The Gaussian filter's weights.
#pragma once

#include <cstdint>
#include <vector>

namespace filter {

// The standard deviation of a continuous bell with that half-power point, in points. `dFraction` is
// a fraction of the sampling frequency.
double GaussianDeviation(double dFraction);

// Weights to each side of the middle one: 4 standard deviations, at least 2.
std::uint32_t GaussianHalfLength(double dFraction);

// Weights of the middle and of one side, with sum 1 over both sides. The bell is a little wider
// than the continuous one where that is sampled too coarsely, so that the half-power point is
// exact.
std::vector<double> GaussianWeights(double dFraction);

}  // namespace filter
