#include "FilterFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    FuzzFilter(pData, nSize);
    return 0;
}
