// Text output shared by the text functions. Internal to the drawing half.
#pragma once

#include <string>

#include "platform/headless/drawing/font_metrics.h"
#include "platform/headless/drawing/gdi_dc.h"

namespace headless::gdi {

// The face of the font that is selected, at its size in device units.
std::shared_ptr<const FontFace> FaceOf(const DeviceContext& dc);

// Records a run of text whose box begins at a place in device units, in the colours of the context.
// With an opaque background its box is filled in memory. `underlined` is the place of the mnemonic
// in the text, or -1.
void PutText(DeviceContext& dc, int left, int top, int width, const std::string& text,
             int underlined);

// The length of a text that is given with a count of which -1 means up to its end.
int TextLength(const char* text, int length);

}  // namespace headless::gdi
