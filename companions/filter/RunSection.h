// One section of a record applied to a trace.
#pragma once

#include <cstddef>

#include "Settings.h"

namespace filter {

// For a section that can be designed and a trace of at least its smallest number of points. Beyond
// its ends the trace is taken to stand still at the mean of its first and last points. Where memory
// is lacking it throws and has changed nothing.
void RunSection(const Section& section, double dSamplingFrequency, double* values,
                std::size_t nPoints);

}  // namespace filter
