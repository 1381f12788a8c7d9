// The stored settings of the measurements from any bytes, and everything that the dialog makes of
// them without a window.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Aborts where a promise of the rules is broken. The profile file is overwritten.
void FuzzMeasurementSection(const std::uint8_t* pData, std::size_t nSize,
                            const std::string& sProfile);
