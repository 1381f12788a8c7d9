// The texts that selections of sets are kept in: list texts of 0-based numbers, "0..4,17", without
// blanks, in fields of a fixed size.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

// Reads a list text, at most CDataOptionsInterface::kMaxSelected numbers; empty when any part of it
// can't be read. nOffset is subtracted from each number.
std::vector<std::int32_t> ParseSelection(const char* szText, int nOffset);

// Writes the numbers plus nOffset. Numbers that no longer fit whole are left out at the end.
void FormatSelection(char* szText, int nSize, std::span<const std::int32_t> numbers, int nOffset);

template <std::size_t N>
void FormatSelection(char (&szText)[N], std::span<const std::int32_t> numbers, int nOffset) {
    FormatSelection(szText, static_cast<int>(N), numbers, nOffset);
}
