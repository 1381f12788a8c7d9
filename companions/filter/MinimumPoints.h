// How many points a filter needs at least.
#pragma once

#include <cstdint>

#include "Settings.h"

namespace filter {

// The points until the step response stays within a thousandth of its final value; the length of a
// symmetric filter; one period of a notch, whose own settling the dialog tells about; the averaged
// cycles of an interference filter. 1 where the section's figures describe no filter.
std::uint32_t MinimumPoints(const Section& section, double dSamplingFrequency);

// The largest of all sections, at least 1.
std::uint32_t MinimumPoints(const Settings& settings);

}  // namespace filter
