#include "arithmetic/ArithmeticChecks.h"

#include <algorithm>
#include <limits>
#include <string>
#include <utility>

#include "ZXADLG.h"
#include "arithmetic/AssignedList.h"
#include "arithmetic/LeftSide.h"
#include "arithmetic_ids.h"
#include "ids.h"
#include "text/BoundedText.h"
#include "widgets/FrameworkSetup.h"

namespace {

// The left side of an expression that has none.
std::string NewColumnName() {
    char szName[32] = {};
    LoadStringA(GetFrameworkInstance(), IDS_NEW_COLUMN_NAME, szName, sizeof szName);
    return szName;
}

Finding TooLong(std::size_t nLength) {
    return Refusal(IDS_EXPRESSION_TOO_LONG, Finding::kCurrentPage, IDC_EXPRESSION,
                   {kMostExpression, static_cast<std::int64_t>(nLength)});
}

}  // namespace

std::uint32_t LongestColumn(ZXADLG_CDlgDataSource& source, std::uint32_t uGroup) {
    std::uint32_t uLongest = 0;
    const std::uint32_t uSets = source.GetSetCount(uGroup);
    for (std::uint32_t uSet = 0; uSet < uSets; ++uSet)
        uLongest = std::max(uLongest, source.GetPointCount(uGroup, uSet, nullptr, 0));
    return uLongest;
}

std::uint32_t RowLimit(ZXADLG_CDlgDataSource& source, std::uint32_t uGroup,
                       const std::vector<std::int32_t>& vColumns, std::uint32_t uLongest) {
    if (vColumns.empty()) return uLongest;
    std::uint32_t uFewest = std::numeric_limits<std::uint32_t>::max();
    for (const std::int32_t nColumn : vColumns) {
        const auto uSet = static_cast<std::uint32_t>(nColumn - 1);
        uFewest = std::min(uFewest, source.GetPointCount(uGroup, uSet, nullptr, 0));
    }
    return uFewest;
}

CheckResult CheckRows(const RowRange& rows) {
    const auto exceeds = [&rows](std::int32_t nRow) {
        return rows.bLimited && nRow > 0 && std::cmp_greater(nRow, rows.uLimit);
    };
    if (exceeds(rows.nFirst) || exceeds(rows.nLast)) {
        return Refusal(IDS_ROWS_BEYOND_DATA, Finding::kCurrentPage,
                       exceeds(rows.nFirst) ? IDC_RANGE_FROM : IDC_RANGE_TO);
    }
    // Required: a range of one row is accepted here.
    if (rows.nFirst > 0 && rows.nLast > 0 && rows.nFirst <= rows.nLast) return {};
    const bool bOnlyLast = rows.nFirst > 0 && rows.nLast <= 0;
    return Refusal(IDS_RANGE_ORDER, Finding::kCurrentPage,
                   bOnlyLast ? IDC_RANGE_TO : IDC_RANGE_FROM);
}

CheckResult CheckAnyData(ZXADLG_CDlgDataSource& source) {
    const std::uint32_t uGroups = source.GetGroupCount();
    for (std::uint32_t uGroup = 0; uGroup < uGroups; ++uGroup) {
        if (LongestColumn(source, uGroup) > 0) return {};
    }
    return Finding{.nStringId = IDS_NO_DATA_TO_PROCESS, .uFlags = MB_ICONASTERISK};
}

CheckResult CheckExpression(std::string_view sTyped, std::string_view sTitle, bool bWantsTitle) {
    const std::string_view sExpression = Trimmed(sTyped);
    if (sExpression.empty())
        return Refusal(IDS_NO_EXPRESSION, Finding::kCurrentPage, IDC_EXPRESSION);
    if (bWantsTitle && Trimmed(sTitle).empty())
        return Refusal(IDS_NO_COLUMN_TITLE, Finding::kCurrentPage, IDC_COLUMN_TITLE);
    if (sExpression.size() > static_cast<std::size_t>(kMostExpression))
        return TooLong(sExpression.size());
    return {};
}

Finding TooLongAssignment() {
    return TooLong(static_cast<std::size_t>(kMostExpression));
}

void StoreExpression(std::string_view sTyped, ZXADLG_ArithmeticOptions& options) {
    const std::string sExpression(Trimmed(sTyped));
    const bool bHasLeftSide = sExpression.find('=') != std::string::npos;
    CopyText(options.szDisplayExpression, bHasLeftSide ? std::string() : "y=" + sExpression);
    CopyText(options.szExpression,
             bHasLeftSide ? sExpression : NewColumnName() + "=" + sExpression);
}

std::string_view TypedForm(std::string_view sStored) {
    const std::string sPrefix = NewColumnName() + "=";
    if (sStored.starts_with(sPrefix)) sStored.remove_prefix(sPrefix.size());
    return sStored;
}
