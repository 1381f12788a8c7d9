#include "analysis/DataChecks.h"

#include <algorithm>
#include <string>

#include "ZXADLG.h"
#include "contract/CDataOptionsInterface.h"
#include "ids.h"

namespace {

CheckResult CheckGroup(ZXADLG_CDlgDataSource& source, std::uint32_t uGroup,
                       std::uint32_t uMinSets) {
    const std::uint32_t uSets = source.GetSetCount(uGroup);
    for (std::uint32_t uSet = 0; uSet < uSets; ++uSet) {
        const bool bEmpty = source.GetPointCount(uGroup, uSet, nullptr, 0) == 0;
        const std::uint32_t uSetsNow = source.GetSetCount(uGroup);
        if (bEmpty || uSetsNow == 0) return Finding{.nStringId = IDS_EMPTY_SETS};
        if (uSetsNow < uMinSets) {
            return Finding{.nStringId = IDS_TOO_FEW_SETS, .vArguments = {std::to_string(uMinSets)}};
        }
    }
    return {};
}

}  // namespace

std::vector<Finding> FindUnusableGroups(ZXADLG_CDlgDataSource& source) {
    const std::uint32_t uMinSets =
        source.GetDataKind() == CDataOptionsInterface::kSheetData ? 2 : 1;
    std::vector<Finding> vFindings;
    const std::uint32_t uGroups = source.GetGroupCount();
    for (std::uint32_t uGroup = 0; uGroup < uGroups; ++uGroup) {
        if (CheckResult result = CheckGroup(source, uGroup, uMinSets))
            vFindings.push_back(std::move(*result));
    }
    return vFindings;
}

CheckResult CheckAnySetSelected(int nSelected, int nListControl) {
    if (nSelected > 0) return {};
    return Finding{.nStringId = IDS_NO_DATA_SELECTED, .nControl = nListControl};
}

CheckResult CheckRowOrder(int nFirst, int nLast, int nFirstControl) {
    if (nFirst != 0 && nLast != 0 && nFirst < nLast) return {};
    return Finding{.nStringId = IDS_RANGE_ORDER, .nControl = nFirstControl};
}

CheckResult CheckSetsExist(const std::vector<std::int32_t>& vItems, int nCount, const char* szNoun,
                           int nListControl) {
    const bool bAll = std::all_of(vItems.begin(), vItems.end(), [nCount](std::int32_t nItem) {
        return nItem >= 0 && nItem < nCount;
    });
    if (bAll) return {};
    return Finding{.nStringId = IDS_NO_SUCH_SET,
                   .vArguments = {szNoun, std::to_string(nCount)},
                   .nControl = nListControl};
}
