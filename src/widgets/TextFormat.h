// Texts put together from a format with numbered places, and ordinal numbers.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/platform.h"

// Expands a format into a buffer, cut at its end: "%%" gives "%", "%" and a digit 0 to 9 the
// argument of that number; a "%" before anything else disappears. `ppArgs` has at least as many
// entries as the highest digit used asks for. A null argument is empty; format and arguments may be
// string ids (MAKEINTRESOURCE), loaded from `hInstance`. A null or empty format gives an empty
// text.
void FormatArgs(HINSTANCE hInstance, char* szBuffer, int nSize, const char* szFormat,
                const char* const* ppArgs);

template <std::size_t N>
void FormatArgs(HINSTANCE hInstance, char (&szBuffer)[N], const char* szFormat,
                const char* const* ppArgs) {
    FormatArgs(hInstance, szBuffer, static_cast<int>(N), szFormat, ppArgs);
}

// Writes a number with the ending of its place in a row: "1st", "12th", "23rd". Cut at the buffer's
// end.
void FormatOrdinal(std::uint32_t uValue, char* szBuffer, int nSize);
void FormatOrdinal(std::int32_t nValue, char* szBuffer, int nSize);
