// The frequency of the mains, found in the data.
#pragma once

#include <cstddef>
#include <cstdint>

namespace filter {

// Hz, within half a hertz of 50 or of 60: where harmonics uFirst to uLast have the most power under
// a Hann window. 50 where the trace holds no five periods of it, or no harmonic.
double FindLineFrequency(const double* values, std::size_t nPoints, double dSamplingFrequency,
                         std::uint32_t uFirst, std::uint32_t uLast);

}  // namespace filter
