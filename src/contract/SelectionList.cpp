#include "contract/SelectionList.h"

#include <cstring>
#include <string>
#include <string_view>

#include "contract/CDataOptionsInterface.h"
#include "text/BoundedText.h"
#include "text/ListText.h"

std::vector<std::int32_t> ParseSelection(const char* szText, int nOffset) {
    // Most lists are short, and are parsed whenever a tab shows or a key is pressed.
    constexpr int kFew = 64;
    std::int32_t anFew[kFew];
    const int nFew = ParseList(szText, anFew, kFew, nOffset, nullptr, 0);
    if (nFew < kFew) return {anFew, anFew + nFew};
    constexpr int kMost = CDataOptionsInterface::kMaxSelected;
    std::vector<std::int32_t> vNumbers(kMost);
    const int nCount = ParseList(szText, vNumbers.data(), kMost, nOffset, nullptr, 0);
    vNumbers.resize(static_cast<std::size_t>(nCount));
    return vNumbers;
}

void FormatSelection(char* szText, int nSize, std::span<const std::int32_t> numbers, int nOffset) {
    if (szText == nullptr || nSize <= 0) return;
    // With room for the blanks that are removed, the whole field serves for numbers.
    std::string sList(2 * static_cast<std::size_t>(nSize), '\0');
    FormatList(sList.data(), static_cast<int>(sList.size()), numbers.data(),
               static_cast<int>(numbers.size()), nOffset);
    RemoveSpaces(sList.data());
    std::string_view list = sList.c_str();
    if (list.size() >= static_cast<std::size_t>(nSize)) {
        // Cut before the piece that does not fit, ",17" or "..17": a number is never cut in two.
        const std::size_t nCut = list.find_last_of(",.", static_cast<std::size_t>(nSize) - 1);
        list = list.substr(0, nCut == std::string_view::npos ? 0 : nCut);
        while (!list.empty() && list.back() == '.') list.remove_suffix(1);
    }
    CopyText(szText, nSize, list);
}
