#include "seeds/Dictionaries.h"

#include <algorithm>
#include <cmath>

namespace curvefit {

std::vector<double> Geometric(double dFrom, double dTo, std::size_t nValues) {
    std::vector<double> values;
    for (std::size_t k = 0; k < nValues; ++k) {
        values.push_back(dFrom * std::pow(dTo / dFrom, static_cast<double>(k) /
                                                           static_cast<double>(nValues - 1)));
    }
    return values;
}

std::vector<double> ByFactor(double dFrom, double dTo, double dFactor) {
    // Data of the strangest sizes end the list as well.
    constexpr std::size_t kMost = 400;
    std::vector<double> values = {dFrom};
    for (double d = dFrom * dFactor; d > dFrom && d <= dTo && values.size() < kMost; d *= dFactor)
        values.push_back(d);
    return values;
}

std::vector<double> Evenly(double dFrom, double dTo, std::size_t nValues) {
    std::vector<double> values;
    for (std::size_t k = 0; k < nValues; ++k) {
        values.push_back(dFrom +
                         (dTo - dFrom) * static_cast<double>(k) / static_cast<double>(nValues - 1));
    }
    return values;
}

std::vector<Shape> Pairs(const std::vector<double>& first, const std::vector<double>& second) {
    std::vector<Shape> shapes;
    for (const double a : first) {
        for (const double b : second) shapes.push_back({a, b, 0.0});
    }
    return shapes;
}

std::vector<Shape> Singles(const std::vector<double>& values) {
    return Pairs(values, {0.0});
}

double ShortestTime(const ReducedData& data) {
    return std::max(0.6 * data.dSmallestStep, data.Span() / 2000.0);
}

}  // namespace curvefit
