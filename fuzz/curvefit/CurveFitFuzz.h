// Any bytes as an option record, data and parameters: seeds and evaluation must neither crash nor
// give a seed that is not finite.
#pragma once

#include <cstddef>
#include <cstdint>

// Aborts where something does not hold.
void FuzzCurveFit(const std::uint8_t* pData, std::size_t nSize);
