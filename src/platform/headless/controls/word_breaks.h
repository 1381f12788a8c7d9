// Where words of a text begin, as the system's edit controls break them: behind blanks, behind a
// hyphen or a slash unless a digit follows, and before a backslash, so that a number with its sign
// and its exponent is one word.
#pragma once

#include <cstddef>
#include <string_view>

namespace headless {

// Whether a word begins at `index`; the begin and the end of the text count.
bool IsWordStart(std::string_view text, std::size_t index);

}  // namespace headless
