// What is wrong with a record or with data, told in a sentence.
#pragma once

#include <cstddef>

#include "Settings.h"

namespace filter {

// Null where the section can be designed as its record asks.
const char* WhyNot(const Section& section, double dSamplingFrequency);

// Null where all values can be filtered.
const char* WhyNot(const double* values, std::size_t nPoints);

}  // namespace filter
