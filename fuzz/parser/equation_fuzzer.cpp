#include "EquationFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzEquation(pData, nSize);
    return 0;
}
