// What the arithmetic dialog refuses, and what it makes of an expression that it accepts. Plain
// functions over the values as typed and the data; they know no window.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "contract/Finding.h"
#include "zxadlg/ArithmeticOptions.h"

class ZXADLG_CDlgDataSource;

// How many rows an expression can go over, and the most that any of the group's columns has.
struct RowExtent {
    std::uint32_t uLimit = 0;
    std::uint32_t uLongest = 0;
};

// The points of the longest column of a group.
std::uint32_t LongestColumn(ZXADLG_CDlgDataSource& source, std::uint32_t uGroup);
// The points of the shortest of these columns, counted from 1; uLongest without any.
std::uint32_t RowLimit(ZXADLG_CDlgDataSource& source, std::uint32_t uGroup,
                       const std::vector<std::int32_t>& vColumns, std::uint32_t uLongest);

// A range of rows, counted from 1 as typed. With bLimited no row may lie beyond uLimit.
struct RowRange {
    std::int32_t nFirst = 0;
    std::int32_t nLast = 0;
    std::uint32_t uLimit = 0;
    bool bLimited = true;
};
CheckResult CheckRows(const RowRange& rows);

// At least one set of any group must have points.
CheckResult CheckAnyData(ZXADLG_CDlgDataSource& source);

// The expression as typed must be there and not too long; a title must be there where one is
// wanted.
CheckResult CheckExpression(std::string_view sTyped, std::string_view sTitle, bool bWantsTitle);

// No text that is assigned may reach the longest expression.
Finding TooLongAssignment();

// Writes the expression as the host receives it. One without a left side gets "NEWCOL", and goes as
// "y=..." into the text to show, which is empty for all others. Both are cut to their fields.
void StoreExpression(std::string_view sTyped, ZXADLG_ArithmeticOptions& options);

// The expression of a record as it was typed.
std::string_view TypedForm(std::string_view sStored);
