// Filters of weights that are the same to both sides: no delay and no phase. Short ones are added
// directly, long ones go through the Fourier transform.
#pragma once

#include <cstddef>
#include <vector>

namespace filter {

// What the trace is beyond its ends.
struct EndLevels {
    double dBefore, dAfter;
};

// `weights`: of the point itself and of the points 1, 2, ... to each side.
void RunSymmetricFir(const std::vector<double>& weights, const EndLevels& levels, double* values,
                     std::size_t nPoints);

// The mean of `nAverage` points around each point, odd.
void RunBoxcar(std::size_t nAverage, const EndLevels& levels, double* values, std::size_t nPoints);

// Both ways of RunSymmetricFir.
void RunFirDirectly(const std::vector<double>& weights, const EndLevels& levels, double* values,
                    std::size_t nPoints);
void RunFirByFft(const std::vector<double>& weights, const EndLevels& levels, double* values,
                 std::size_t nPoints);

}  // namespace filter
