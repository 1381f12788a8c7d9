#include <unistd.h>

#include "MeasurementSectionFuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const std::string sFile = "/tmp/zx-fuzz-" + std::to_string(getpid()) + ".ini";
    FuzzMeasurementSection(pData, nSize, sFile);
    return 0;
}
