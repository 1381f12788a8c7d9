// A stored expression over a sheet, applied to other columns.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The expression with each column that its right side names, in the order of their first
// appearance, replaced by the next one of vColumns, which count from 0. A column stands for itself
// in "K$9" as well, whose row stays, and on the left side; words that begin with "_" are no
// columns. None, and the expression stays, when the numbers of columns differ, when there are none,
// when a name is no column, and when the result would be longer than 254 characters.
std::optional<std::string> RemapColumns(std::string_view sExpression,
                                        std::span<const std::int32_t> vColumns);
