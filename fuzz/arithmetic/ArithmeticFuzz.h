// Expressions of any bytes through the scan for columns, remapping, assignment and the checks, and
// the stored settings and histories of arithmetic from any bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// Aborts where a promise is broken. The profile file is overwritten.
void FuzzArithmetic(const std::uint8_t* pData, std::size_t nSize, const std::string& sProfile);
