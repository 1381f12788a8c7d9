// The colours and line styles that tell curves apart, legible on any background.
#pragma once

#include <cstdint>
#include <span>

namespace graph {

// Colours are 0x00BBGGRR.
using Color = uint32_t;

// The contrast of two colours by the Web Content Accessibility Guidelines 2.1, section 1.4.3, from
// 1 to 21.
double Contrast(Color one, Color other);

// What the lines of a curve look like.
struct LineStyle {
    Color color;
    int nWidth;                        // in pixels at 96 dots per inch
    std::span<const uint8_t> pattern;  // pixels drawn and left out in turn; empty draws all
};

// The style of a kind of curve on a background. Colours have a contrast of at least 4.5; where the
// automatic one has less, it is that of text.
LineStyle StyleOf(uint32_t uKind, Color background, Color text);
// The same with a colour of the source's.
LineStyle StyleWithColor(uint32_t uKind, Color color);

// A line that helps to read and stands behind the curves: half way between two colours.
Color Faint(Color text, Color background);

}  // namespace graph
