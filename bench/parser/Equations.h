// The equations of the benchmark, in the forms that the three competitors take.
#pragma once

#include <array>
#include <cstddef>

constexpr int kParameterCount = 20;
using Parameters = std::array<double, kParameterCount>;

struct Equation {
    const char* pszName;
    const char* pszText;  // the right side; X1 and P1 to P20 are its variables
    // The same operations written by hand.
    void (*pHandWritten)(const Parameters& p, const double* x, double* y, std::size_t n);
    bool bBulkTarget;  // the block has a target against muParser's bulk mode
};

extern const std::array<Equation, 5> kEquations;

// The parameters that all equations are evaluated with.
Parameters BenchmarkParameters();
