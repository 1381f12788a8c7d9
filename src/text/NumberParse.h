// Numbers out of text, by the rules of the C runtime's conversions but without its locale: leading
// white space is skipped, the longest start that is a number counts, and no number at all gives 0.
//
// Integers have 32 or 64 bits in every build, whatever the size of a `long`, and stay at the end of
// their range when the text goes beyond it. A null text reads as an empty one.
#pragma once

#include <cstdint>

// As `strtod`: decimal, "0x" hexadecimal, "inf", "infinity" and "nan" without regard to case. Too
// large gives infinity, too small gives 0, each with its sign.
double TextToDouble(const char* szText);

// As `atoi`.
std::int32_t TextToInt(const char* szText);

// As `strtol` with base 10. `*ppEnd` is set behind the last character used, or to the start of the
// text when there is no number.
std::int32_t TextToInt(const char* szText, const char** ppEnd);

// As `strtoul` and `_strtoui64` with base 0: "0x" means hexadecimal, another leading 0 octal. A
// minus sign gives the two's complement.
std::uint32_t TextToUInt32(const char* szText);
std::uint64_t TextToUInt64(const char* szText);

// Writes a number as C's "%g" does: six significant digits, no trailing zeros, an exponent of at
// least two digits. Exact decimal ties round to even here (100000.5 is "100000"), as the platform's
// current runtime prints them, unlike the digits shown in fields. Returns the length; `szBuffer`
// has at least 24 bytes.
int WriteGeneral(double dValue, char* szBuffer);
