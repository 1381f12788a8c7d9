// Case and order of 8-bit text (code page 1252), as sorted lists, searches and upper-case edits see
// them: letters without regard to case, accents only between otherwise equal texts, digits before
// letters, signs before digits. A hyphen or an apostrophe counts only between texts that are equal
// without it, so that "co-op" stands beside "coop". The weights are those of the platform's plain
// order; orders of single languages are not known here.
#pragma once

#include <string_view>

namespace headless {

char ToUpperCase(char c);
char ToLowerCase(char c);

// Below, equal to or above zero, as `a` stands before, with or after `b`.
int CompareListText(std::string_view a, std::string_view b);

// Whether `text` begins with `prefix`, letter by letter without regard to case.
bool BeginsWith(std::string_view text, std::string_view prefix);

}  // namespace headless
