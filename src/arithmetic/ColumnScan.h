// Which columns an expression over a sheet names.
//
// The scan knows letters and a few signs and no table of function names, so that some words count
// as columns which are none. All of that is required:
//
// - a word of exactly three letters before "(" is a function; SQRT and ARCOS are columns, and so is
//   LN(;
// - a digit ends a word, so that "1e-3*a" names E and A;
// - "$" closes a word and skips the letters and digits behind it: "K$9" names K;
// - "_" drops the word before it and skips the letters behind it: "_ROW" is no column;
// - "A..C" names A, B and C, and so does "C..A"; a single point drops the word before it.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

// The columns, counted from 1, each once and in the order in which the text names them. Columns
// beyond the sheet's nColumns are left out, and of one range everything behind its first 10000.
// With bRightSideOnly what stands before the first "=" does not count.
std::vector<std::int32_t> ScanColumns(std::string_view sExpression, bool bRightSideOnly,
                                      std::int32_t nColumns);
