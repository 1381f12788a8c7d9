#include "arithmetic/ColumnLabels.h"

#include <algorithm>

#include "parser/CharacterClass.h"

namespace {

constexpr std::int64_t kLetters = 26;
constexpr std::int64_t kLastColumn = kLetters * kLetters * kLetters * kLetters * kLetters;
constexpr std::size_t kMostLettersRead = 9;

}  // namespace

std::string ColumnLabel(std::int64_t nColumn) {
    if (nColumn < 1 || nColumn > kLastColumn) return "Ove";
    std::string sLabel;
    // There is no digit for 0: each place takes 1 to 26.
    for (std::int64_t n = nColumn; n > 0; n = (n - 1) / kLetters)
        sLabel += static_cast<char>('A' + (n - 1) % kLetters);
    std::reverse(sLabel.begin(), sLabel.end());
    return sLabel;
}

std::int64_t ColumnNumber(std::string_view sLabel) {
    if (sLabel.empty() || sLabel.size() > kMostLettersRead) return 0;
    std::int64_t nColumn = 0;
    for (const char c : sLabel) {
        if (!IsLetter(c)) return 0;
        nColumn = nColumn * kLetters + (ToUpper(c) - 'A' + 1);
    }
    return nColumn;
}
