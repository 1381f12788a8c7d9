// Reads delimited text into columns of numbers.
//
// Values are separated by tabs, semicolons, commas or blanks, whichever of these, in this order,
// the first line has, unless the caller says which. Lines that begin with "#" and empty lines are
// passed over. The first line may give names, as "Vm" or "Vm (mV)", and the line behind it units.
// Numbers have a decimal point, or in all of the file a decimal comma where commas do not separate.
// A file whose commas may be either is refused. Text is UTF-8. Every row has the same number of
// values; anything else is an error with its line, and nothing is given. The text is read in
// pieces: beyond the numbers themselves little memory is used.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace zxhost {

inline constexpr std::size_t kMaxColumns = 10000;
inline constexpr std::size_t kMaxValues = 64 * 1024 * 1024;  // 512 MB of numbers

struct TextColumn {
    std::string name;
    std::string units;
    std::vector<double> values;
};

// Told how much of the file is read, from 0 to 1; false gives up.
using ReadProgress = std::function<bool(double fraction)>;

// On failure false, with `error` as "FILE:LINE: what is wrong" or "FILE: what is wrong". A
// delimiter of 0 is found out.
bool ReadTextColumns(const std::string& path, std::vector<TextColumn>* columns, std::string* error,
                     const ReadProgress& progress = nullptr, char delimiter = 0);

// What stands for a delimiter on the command line, as "tab"; 0 for none of these words.
char DelimiterOf(const std::string& word);

}  // namespace zxhost
