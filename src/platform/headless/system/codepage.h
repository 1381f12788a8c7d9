// Between code page 1252, in which all texts of the headless system are, and the 16-bit characters
// of resources. A character that the page lacks becomes a question mark. And its letters without
// case.
#pragma once

#include <string>
#include <string_view>

#include "zxadlg/headless/types.h"

namespace headless {

char ToAnsi(char32_t character);
WORD FromAnsi(char character);
std::string ToAnsi(std::u16string_view text);

// Compares names of classes, properties and resources: without case, in the platform's 8-bit way.
bool SameName(const std::string& a, const std::string& b);
std::string Lowered(const std::string& text);

}  // namespace headless
