#include "Palette.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "zxadlg/Graph.h"

namespace graph {
namespace {

constexpr Color Rgb(Color rgb) {
    return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16;
}

// For a light background and for a dark one.
struct ColorPair {
    Color light, dark;
};
constexpr ColorPair kData = {Rgb(0x505050), Rgb(0xC0C0C0)};
constexpr ColorPair kTotal = {Rgb(0xC00000), Rgb(0xFF8A80)};
constexpr std::array<ColorPair, 6> kTerms = {{{Rgb(0x0050B0), Rgb(0x82B1FF)},
                                              {Rgb(0x00693E), Rgb(0x69F0AE)},
                                              {Rgb(0x7A1FA2), Rgb(0xE1A6F5)},
                                              {Rgb(0x8A4500), Rgb(0xFFC078)},
                                              {Rgb(0x006478), Rgb(0x66D9E8)},
                                              {Rgb(0x9C1458), Rgb(0xFF9BD2)}}};

constexpr uint8_t kDashes[] = {7, 4};
constexpr uint8_t kDots[] = {2, 3};
constexpr uint8_t kDashDot[] = {8, 3, 2, 3};
constexpr uint8_t kLongDashes[] = {14, 5};
constexpr uint8_t kDashDotDot[] = {8, 3, 2, 3, 2, 3};
constexpr uint8_t kShortDashes[] = {4, 6};
constexpr std::array<std::span<const uint8_t>, 6> kPatterns = {
    kDashes, kDots, kDashDot, kLongDashes, kDashDotDot, kShortDashes};

constexpr double kReadable = 4.5;

// One channel of 0 to 255 as the light that it gives.
double LightOf(Color channel) {
    const double dShare = channel / 255.0;
    return dShare <= 0.04045 ? dShare / 12.92 : std::pow((dShare + 0.055) / 1.055, 2.4);
}

double LuminanceOf(Color color) {
    return 0.2126 * LightOf(color & 0xFF) + 0.7152 * LightOf(color >> 8 & 0xFF) +
           0.0722 * LightOf(color >> 16 & 0xFF);
}

const ColorPair& ColorsOf(uint32_t uKind) {
    if (uKind == GMT_KIND_DATA) return kData;
    return uKind < kTerms.size() ? kTerms[uKind] : kTotal;
}

}  // namespace

double Contrast(Color one, Color other) {
    const double dOne = LuminanceOf(one), dOther = LuminanceOf(other);
    return (std::max(dOne, dOther) + 0.05) / (std::min(dOne, dOther) + 0.05);
}

LineStyle StyleWithColor(uint32_t uKind, Color color) {
    if (uKind < kPatterns.size()) return {color, 1, kPatterns[uKind]};
    return {color, uKind == GMT_KIND_DATA ? 1 : 2, {}};
}

LineStyle StyleOf(uint32_t uKind, Color background, Color text) {
    const ColorPair& colors = ColorsOf(uKind);
    const bool bLight = Contrast(colors.light, background) >= Contrast(colors.dark, background);
    const Color color = bLight ? colors.light : colors.dark;
    return StyleWithColor(uKind, Contrast(color, background) >= kReadable ? color : text);
}

Color Faint(Color text, Color background) {
    Color mixed = 0;
    for (const int nShift : {0, 8, 16})
        mixed |= ((text >> nShift & 0xFF) + 2 * (background >> nShift & 0xFF)) / 3 << nShift;
    return mixed;
}

}  // namespace graph
