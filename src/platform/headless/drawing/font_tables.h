// The measured advance widths of the fonts that dialogs use. Each table holds 225 widths: first the
// one of a character that the font lacks, which controls below 32 have too, then those of the
// characters 32 to 255 of code page 1252.
#pragma once

#include <cstdint>
#include <span>

namespace headless {

inline constexpr int kWidthCount = 225;
// Units per em of the design widths.
inline constexpr int kDesignEm = 2048;

// The widths at one size: pixels per em for Tahoma, pixels of the cell for MS Sans Serif.
struct SizeTable {
    int pixels;
    const std::uint8_t* widths;
};

std::span<const SizeTable> TahomaSizes(bool bold);
const std::uint16_t* TahomaDesignWidths(bool bold);
std::span<const SizeTable> SansSizes();
// The bold 16 pixel font that windows and device contexts begin with.
const std::uint8_t* SystemWidths();

}  // namespace headless
