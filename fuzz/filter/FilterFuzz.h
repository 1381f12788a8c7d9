// Any bytes as a filter record and a trace: no crash, a refusal leaves the trace, a result is
// finite.
#pragma once

#include <cstddef>
#include <cstdint>

// Aborts where something does not hold.
void FuzzFilter(const std::uint8_t* pData, std::size_t nSize);
