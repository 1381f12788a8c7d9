#include <unistd.h>

#include "FitSectionFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const std::string sFile = "/tmp/zx-fuzz-" + std::to_string(getpid()) + ".ini";
    FuzzFitSection(pData, nSize, sFile);
    return 0;
}
