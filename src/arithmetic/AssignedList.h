// The data sets on the left side of an expression, as Assign writes them: "t1..3,t5" for traces,
// "A..C,E" for the columns of a sheet.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The longest text of an expression.
inline constexpr int kMostExpression = 255;

// Numbers count from 1 and come in any order. None where the text would reach kMostExpression.
std::optional<std::string> FormatAssignedList(std::vector<std::int32_t> vNumbers, bool bColumns);
