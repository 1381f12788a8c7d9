#include "CurveFitFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzCurveFit(pData, nSize);
    return 0;
}
