// A profile file of any bytes behind every typed read, value by value and in a batch: both give the
// same.
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

#include "store/ProfileStore.h"
#include "store/StoreBatch.h"

namespace {

struct Values {
    std::int32_t bFlag;
    std::uint64_t uLong;
    std::int32_t nInteger;
    double dReal;
    RECT rect;
    LOGFONTA font;
    int nIndex;
    char szText[64];
};

void ReadAll(const char* szApp, Values& values) {
    static constexpr std::int32_t kTable[] = {1, 2, 3, -1};
    std::memset(&values, 0, sizeof values);
    ReadBool("S", "flag", 0, &values.bFlag, szApp);
    ReadUInt64("S", "long", 0, &values.uLong, szApp);
    ReadInt32("S", "integer", 0, &values.nInteger, szApp);
    ReadDouble("S", "real", 0, &values.dReal, szApp);
    ReadRect("S", "rect", nullptr, &values.rect, szApp);
    ReadFont("S", "font", nullptr, &values.font, szApp);
    ReadIntIndex("S", "index", kTable, 0, &values.nIndex, szApp);
    ReadString("S", "text", "default", values.szText, sizeof values.szText, szApp);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    static const std::string sFile = "/tmp/zx-fuzz-" + std::to_string(getpid()) + ".ini";
    std::ofstream(sFile, std::ios::binary)
        .write(reinterpret_cast<const char*>(pData), static_cast<std::streamsize>(nSize));
    SetUseProfileFile(true);
    Values single;
    Values batched;
    ReadAll(sFile.c_str(), single);
    {
        StoreBatch batch(sFile.c_str());
        ReadAll(sFile.c_str(), batched);
    }
    if (std::memcmp(&single, &batched, sizeof single) != 0) std::abort();
    return 0;
}
