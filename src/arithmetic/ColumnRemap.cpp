#include "arithmetic/ColumnRemap.h"

#include <algorithm>
#include <memory>
#include <vector>

#include "arithmetic/ColumnLabels.h"
#include "parser/NameScan.h"
#include "text/TextTests.h"

namespace {

constexpr std::size_t kMostKept = 254;
constexpr std::string_view kWordEnds = "()=*-+/^";

// The label of a word: what stands before the "$" of a fixed row.
std::string_view LabelOf(std::string_view sWord) {
    return sWord.substr(0, sWord.find('$'));
}

bool IsLabel(std::string_view sLabel) {
    return sLabel.size() <= kMostLabelLetters && ColumnNumber(sLabel) != 0;
}

// The columns that a text names, each once; empty where it cannot be read or names anything else.
std::vector<std::int64_t> NamedColumns(std::string_view sText) {
    std::string sScanned(sText);
    std::erase(sScanned, ' ');
    if (sScanned.size() >= NAME_SLOT_SIZE) return {};
    const auto pNames = std::make_unique<char[][NAME_SLOT_SIZE]>(NAME_TABLE_SIZE);
    int nNames = 0;
    if (!CollectExpressionNames(sScanned.data(), pNames.get(), &nNames)) return {};
    std::vector<std::int64_t> vColumns;
    for (int i = 0; i < nNames; ++i) {
        const std::string_view sName = pNames[i];
        if (sName.starts_with('_')) continue;
        if (!IsLabel(LabelOf(sName))) return {};
        const std::int64_t nColumn = ColumnNumber(LabelOf(sName));
        if (std::find(vColumns.begin(), vColumns.end(), nColumn) == vColumns.end())
            vColumns.push_back(nColumn);
    }
    return vColumns;
}

// A word with its blanks, its column replaced where it is one of vFrom.
std::string Replaced(std::string_view sWord, const std::vector<std::int64_t>& vFrom,
                     std::span<const std::int32_t> vTo) {
    const std::size_t nFirst = sWord.find_first_not_of(' ');
    if (nFirst == std::string_view::npos) return std::string(sWord);
    const std::size_t nLast = sWord.find_last_not_of(' ');
    const std::string_view sLabel = LabelOf(sWord.substr(nFirst, nLast + 1 - nFirst));
    if (!IsLabel(sLabel)) return std::string(sWord);
    const auto found = std::find(vFrom.begin(), vFrom.end(), ColumnNumber(sLabel));
    if (found == vFrom.end()) return std::string(sWord);
    const std::int64_t nColumn = std::int64_t{vTo[static_cast<std::size_t>(found - vFrom.begin())]};
    return std::string(sWord.substr(0, nFirst)) + ColumnLabel(nColumn + 1) +
           std::string(sWord.substr(nFirst + sLabel.size()));
}

}  // namespace

std::optional<std::string> RemapColumns(std::string_view sExpression,
                                        std::span<const std::int32_t> vColumns) {
    const std::size_t nEquals = sExpression.find('=');
    const std::vector<std::int64_t> vNamed = NamedColumns(
        nEquals == std::string_view::npos ? sExpression : sExpression.substr(nEquals + 1));
    if (vNamed.empty() || vNamed.size() != vColumns.size()) return std::nullopt;
    std::string sResult;
    for (std::size_t i = 0; i <= sExpression.size();) {
        const std::size_t nEnd =
            std::min(sExpression.find_first_of(kWordEnds, i), sExpression.size());
        sResult += Replaced(sExpression.substr(i, nEnd - i), vNamed, vColumns);
        if (nEnd < sExpression.size()) sResult += sExpression[nEnd];
        i = nEnd + 1;
    }
    if (sResult.size() > kMostKept) return std::nullopt;
    return sResult;
}
