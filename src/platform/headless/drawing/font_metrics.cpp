#include "platform/headless/drawing/font_metrics.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <tuple>

#include "platform/headless/drawing/font_tables.h"
#include "zxadlg/headless/constants.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

enum class Family { kTahoma, kSans, kSystem, kCourier, kFixed };

std::string Lower(const char* text, std::size_t limit) {
    std::string lower;
    for (std::size_t i = 0; i < limit && text[i] != '\0'; ++i)
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(text[i])));
    return lower;
}

Family FamilyOf(const LOGFONTA& font) {
    const std::string face = Lower(font.lfFaceName, LF_FACESIZE);
    if (face == "ms sans serif") return Family::kSans;
    if (face == "system") return Family::kSystem;
    if (face == "courier" || face == "fixedsys" || face == "terminal") return Family::kCourier;
    if (face == "courier new" || face == "lucida console" || face == "consolas")
        return Family::kFixed;
    if (face.empty() && (font.lfPitchAndFamily & 3) == FIXED_PITCH) return Family::kFixed;
    return Family::kTahoma;
}

int Round(double value) {
    return static_cast<int>(value + 0.5);
}

void SetWidths(FontFace& face, const std::uint8_t* table, int scale, int extra) {
    for (int c = 0; c < 256; ++c) {
        const int width = table[c < 32 ? 0 : c - 31] * scale + extra;
        face.widths[static_cast<std::size_t>(c)] = static_cast<std::uint16_t>(width);
    }
}

void SetHeights(FontFace& face, int ascent, int descent, int internalLeading) {
    face.metrics.tmAscent = ascent;
    face.metrics.tmDescent = descent;
    face.metrics.tmHeight = ascent + descent;
    face.metrics.tmInternalLeading = internalLeading;
}

void MakeTahoma(FontFace& face, int height, bool bold) {
    // Ascent, descent, mean and greatest width of the design, in units of the em.
    constexpr int kDescent = 423;
    constexpr int kCell = 2472;
    int em = height;
    if (height < 0) em = -height;
    if (height == 0) em = 13;
    if (height > 0) em = Round(static_cast<double>(height) * kDesignEm / kCell);
    em = std::clamp(em, 1, 20000);
    const int descent = Round(static_cast<double>(em) * kDescent / kDesignEm);
    SetHeights(face, em, descent, descent);
    face.metrics.tmAveCharWidth = Round(static_cast<double>(em) * (bold ? 1412 : 1226) / kDesignEm);
    face.metrics.tmMaxCharWidth = Round(static_cast<double>(em) * (bold ? 3083 : 2964) / kDesignEm);
    face.metrics.tmFirstChar = 30;
    face.metrics.tmDefaultChar = 31;
    face.metrics.tmPitchAndFamily = 39;
    for (const SizeTable& table : TahomaSizes(bold)) {
        if (table.pixels == em) {
            SetWidths(face, table.widths, 1, 0);
            return;
        }
    }
    const std::uint16_t* design = TahomaDesignWidths(bold);
    for (int c = 0; c < 256; ++c) {
        const int width = Round(static_cast<double>(design[c < 32 ? 0 : c - 31]) * em / kDesignEm);
        face.widths[static_cast<std::size_t>(c)] =
            static_cast<std::uint16_t>(std::clamp(width, 0, 65535));
    }
}

// A bitmap font has three sizes; beyond the last one its pixels are doubled, tripled and so on.
void MakeSans(FontFace& face, int height, bool bold) {
    struct Size {
        int em, cell, ascent, average, widest;
    };
    constexpr Size kSizes[] = {{11, 13, 11, 5, 11}, {13, 16, 13, 7, 14}, {16, 20, 16, 8, 16}};
    const Size* size = &kSizes[0];
    int scale = 1;
    for (const Size& each : kSizes)
        if (height < 0 ? -height >= each.em : height >= each.cell) size = &each;
    if (height < 0) scale = std::clamp(-height / size->em, 1, 64);
    if (height >= 36) scale = std::clamp((height + 4) / size->cell, 1, 64);
    if (size != &kSizes[2]) scale = 1;
    const int extra = bold ? 1 : 0;
    SetHeights(face, size->ascent * scale, (size->cell - size->ascent) * scale,
               (size->cell - size->em) * scale);
    face.metrics.tmAveCharWidth = size->average * scale + extra;
    face.metrics.tmMaxCharWidth = size->widest * scale + extra;
    face.metrics.tmOverhang = extra;
    face.metrics.tmFirstChar = 32;
    face.metrics.tmDefaultChar = 129;
    face.metrics.tmPitchAndFamily = 33;
    for (const SizeTable& table : SansSizes())
        if (table.pixels == size->cell) SetWidths(face, table.widths, scale, extra);
}

void MakeSystem(FontFace& face) {
    SetHeights(face, 13, 3, 3);
    face.metrics.tmAveCharWidth = 7;
    face.metrics.tmMaxCharWidth = 15;
    face.metrics.tmFirstChar = 32;
    face.metrics.tmDefaultChar = 128;
    face.metrics.tmPitchAndFamily = 33;
    SetWidths(face, SystemWidths(), 1, 0);
}

void MakeFixed(FontFace& face, int ascent, int descent, int leading, int width,
               int pitchAndFamily) {
    SetHeights(face, ascent, descent, leading);
    face.metrics.tmAveCharWidth = width;
    face.metrics.tmMaxCharWidth = width;
    face.metrics.tmFirstChar = 32;
    face.metrics.tmDefaultChar = 128;
    face.metrics.tmPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    face.widths.fill(static_cast<std::uint16_t>(width));
}

void MakeCourier(FontFace& face, int height) {
    const int pixels = height < 0 ? -height : height;
    const int scale = std::clamp(pixels / 12, 1, 64);
    MakeFixed(face, 11 * scale, 2 * scale, 0, 8 * scale, 48);
}

void MakeScalableFixed(FontFace& face, int height) {
    const double em =
        std::clamp(height < 0 ? -static_cast<double>(height) : (height == 0 ? 12.0 : height / 1.13),
                   1.0, 20000.0);
    const int ascent = Round(em * 0.83);
    const int descent = Round(em * 0.3);
    MakeFixed(face, ascent, descent, std::max(0, ascent + descent - Round(em)), Round(em * 0.6),
              54);
}

}  // namespace

int FontFace::Width(const char* text, int length) const {
    int width = 0;
    for (int i = 0; i < length; ++i) width += widths[static_cast<unsigned char>(text[i])];
    return width;
}

std::shared_ptr<const FontFace> ResolveFont(const LOGFONTA& font) {
    static std::mutex mutex;
    using Key = std::tuple<Family, int, bool, int, bool, bool, bool>;
    static auto& faces = *new std::map<Key, std::shared_ptr<const FontFace>>;
    const Family family = FamilyOf(font);
    const bool bold = font.lfWeight > 550;
    // The small size of a bitmap font follows the resolution when no height asks for one.
    const int height = font.lfHeight == 0 && family == Family::kSans ? -MulDiv(8, DisplayDpi(), 72)
                                                                     : font.lfHeight;
    const Key key{family,
                  height,
                  bold,
                  font.lfWidth,
                  font.lfItalic != 0,
                  font.lfUnderline != 0,
                  font.lfStrikeOut != 0};
    const std::lock_guard lock(mutex);
    auto& entry = faces[key];
    if (entry != nullptr) return entry;
    auto face = std::make_shared<FontFace>();
    switch (family) {
        case Family::kTahoma:
            MakeTahoma(*face, height, bold);
            break;
        case Family::kSans:
            MakeSans(*face, height, bold);
            break;
        case Family::kSystem:
            MakeSystem(*face);
            break;
        case Family::kCourier:
            MakeCourier(*face, height);
            break;
        case Family::kFixed:
            MakeScalableFixed(*face, height);
            break;
    }
    TEXTMETRICA& metrics = face->metrics;
    // A width in the description stretches scalable characters; the fixed bitmap fonts ignore it.
    if (font.lfWidth != 0 && family == Family::kTahoma && metrics.tmAveCharWidth > 0) {
        const int wanted = std::min(std::abs(font.lfWidth), 20000);
        for (auto& width : face->widths)
            width = static_cast<std::uint16_t>(std::min(
                Round(static_cast<double>(width) * wanted / metrics.tmAveCharWidth), 65535));
        metrics.tmMaxCharWidth = metrics.tmMaxCharWidth * wanted / metrics.tmAveCharWidth;
        metrics.tmAveCharWidth = wanted;
    }
    metrics.tmWeight = family == Family::kSystem || bold ? FW_BOLD : FW_NORMAL;
    metrics.tmDigitizedAspectX = DisplayDpi();
    metrics.tmDigitizedAspectY = DisplayDpi();
    metrics.tmLastChar = 255;
    metrics.tmBreakChar = 32;
    metrics.tmItalic = font.lfItalic != 0 ? 255 : 0;
    metrics.tmUnderlined = font.lfUnderline;
    metrics.tmStruckOut = font.lfStrikeOut;
    metrics.tmCharSet = ANSI_CHARSET;
    entry = face;
    return face;
}

}  // namespace headless
