// List text of any bytes: both readers stay within their arrays, and what the writer makes of the
// numbers reads back as the same numbers.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "text/ListText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    const std::string sText(reinterpret_cast<const char*>(pData), nSize);
    static const char* const kNames[] = {"all", "Vm", "Trace 1"};
    static constexpr std::int32_t kNameValues[] = {-1, 7, 2147483647};
    constexpr int kMost = 1000;
    std::vector<std::int32_t> numbers(kMost);
    ParseIndexList(sText.c_str(), numbers.data(), kMost, 1, kNames, kNameValues, 3);
    ParseList(sText.c_str(), numbers.data(), kMost, 1, kNames, 3);
    const int nCount = ParseList(sText.c_str(), numbers.data(), kMost, 0, nullptr, 0);
    if (nCount < 0 || nCount > kMost) std::abort();
    numbers.resize(static_cast<std::size_t>(nCount));
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    std::vector<char> written(numbers.size() * 14 + 1);
    FormatList(written.data(), static_cast<int>(written.size()), numbers.data(),
               static_cast<int>(numbers.size()), 0);
    RemoveSpaces(written.data());
    std::vector<std::int32_t> again(kMost);
    const int nAgain = ParseList(written.data(), again.data(), kMost, 0, nullptr, 0);
    again.resize(static_cast<std::size_t>(nAgain));
    if (again != numbers) std::abort();
    char szSmall[16];
    FormatIndexList(szSmall, static_cast<int>(nSize % 17), numbers.data(),
                    static_cast<int>(numbers.size()), 1);
    return 0;
}
