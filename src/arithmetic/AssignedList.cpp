#include "arithmetic/AssignedList.h"

#include <algorithm>

#include "arithmetic/ColumnLabels.h"

std::optional<std::string> FormatAssignedList(std::vector<std::int32_t> vNumbers, bool bColumns) {
    std::sort(vNumbers.begin(), vNumbers.end());
    vNumbers.erase(std::unique(vNumbers.begin(), vNumbers.end()), vNumbers.end());
    const auto name = [bColumns](std::int32_t n) {
        return bColumns ? ColumnLabel(n) : std::to_string(n);
    };
    // The end of a run stands bare behind its "..".
    const char* const szPrefix = bColumns ? "" : "t";
    std::string sText;
    for (std::size_t i = 0; i < vNumbers.size();) {
        std::size_t nEnd = i;
        while (nEnd + 1 < vNumbers.size() && vNumbers[nEnd + 1] == vNumbers[nEnd] + 1) ++nEnd;
        if (i != 0) sText += ',';
        sText += szPrefix + name(vNumbers[i]);
        if (nEnd != i) sText += ".." + name(vNumbers[nEnd]);
        if (sText.size() >= static_cast<std::size_t>(kMostExpression)) return std::nullopt;
        i = nEnd + 1;
    }
    return sText;
}
