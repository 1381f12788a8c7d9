// Text measurement: from a font description to the widths and heights of its characters.
//
// "MS Shell Dlg", "MS Shell Dlg 2" and every face that is not known are Tahoma; "MS Sans Serif",
// "System" and the fixed fonts are themselves. Sizes that were measured have their hinted widths,
// the others scaled ones.
#pragma once

#include <array>
#include <memory>

#include "zxadlg/headless/types.h"

namespace headless {

struct FontFace {
    TEXTMETRICA metrics{};
    std::array<std::uint16_t, 256> widths{};

    int Width(const char* text, int length) const;
};

// The face for a description whose height is in pixels. Never null.
std::shared_ptr<const FontFace> ResolveFont(const LOGFONTA& font);

}  // namespace headless
