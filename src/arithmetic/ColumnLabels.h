// The labels of a sheet's columns: A to Z, then AA, AB and so on. Columns count from 1.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// The longest label of a column.
inline constexpr std::size_t kMostLabelLetters = 5;

// The label of a column, of at most 5 letters; "Ove" below 1 and beyond 26 to the power 5.
std::string ColumnLabel(std::int64_t nColumn);

// The column of a label of up to 9 letters, in any case; 0 for any other text.
std::int64_t ColumnNumber(std::string_view sLabel);
