// The stored settings of the histogram from any bytes, and everything that the dialog makes of them
// with data of any range.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Aborts where a promise of the rules is broken. The profile file is overwritten.
void FuzzHistogramSection(const std::uint8_t* pData, std::size_t nSize,
                          const std::string& sProfile);
