// The shapes that a search starts from, by the reduced data.
#pragma once

#include <vector>

#include "seeds/TermSearch.h"

namespace curvefit {

std::vector<double> Geometric(double dFrom, double dTo, std::size_t nValues);
// From dFrom by dFactor while not above dTo; at least one value.
std::vector<double> ByFactor(double dFrom, double dTo, double dFactor);
std::vector<double> Evenly(double dFrom, double dTo, std::size_t nValues);

// Each of `first` with each of `second`.
std::vector<Shape> Pairs(const std::vector<double>& first, const std::vector<double>& second);
std::vector<Shape> Singles(const std::vector<double>& values);

// The shortest time constant that the data can show.
double ShortestTime(const ReducedData& data);

}  // namespace curvefit
