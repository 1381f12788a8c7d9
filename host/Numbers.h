// Numbers as text for people: no locale, the same digits on every system.
#pragma once

#include <string>
#include <string_view>

namespace zxhost {

// With at most six digits: "0.25", "199.9", "1e+06".
std::string ShortNumber(double value);

// Reads a number at the begin of a text and gives where it ends; null for none. The nearest double,
// as std::from_chars gives it, and for plain decimals much sooner.
const char* ReadDecimal(const char* at, const char* end, double* value);

// Reads the whole text, with a sign or without, as a finite number.
bool ParseNumber(std::string_view text, double* value);

}  // namespace zxhost
