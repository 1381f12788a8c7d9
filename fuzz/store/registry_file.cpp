// Registry files of any bytes: a text is read whole or refused, and what was read is written as a
// text that reads the same.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/headless/registry_store.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    std::vector<headless::RegistryFileKey> keys;
    if (!headless::ParseRegistryFile({reinterpret_cast<const char*>(pData), nSize}, &keys))
        return 0;
    const std::string sText = headless::FormatRegistryFile(keys);
    std::vector<headless::RegistryFileKey> again;
    if (!headless::ParseRegistryFile(sText, &again) || again.size() != keys.size()) std::abort();
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (keys[i].path != again[i].path || keys[i].values.size() != again[i].values.size())
            std::abort();
        for (std::size_t j = 0; j < keys[i].values.size(); ++j) {
            if (keys[i].values[j].name != again[i].values[j].name ||
                keys[i].values[j].type != again[i].values[j].type ||
                keys[i].values[j].data != again[i].values[j].data) {
                std::abort();
            }
        }
    }
    return 0;
}
