// How many points a smoothing window may have.
#pragma once

#include <cstdint>
#include <vector>

// The lengths that fit twice into the points: odd, at least 3, at most 49 of them. Where fewer than
// three fit, three times 3.
std::vector<std::int32_t> SmoothingLengths(std::uint32_t uPoints);
