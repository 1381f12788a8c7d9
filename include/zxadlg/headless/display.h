// How the headless display looks: its resolution, its colour depth and whether it is themed. The
// default is 96 dots per inch, 32 bits, not themed. What a test sets it must set back.
#pragma once

#include "zxadlg/headless/types.h"

namespace headless {

// Dots per inch in both directions: 96 is 100 %, 144 is 150 %. Fonts, base units and system metrics
// of windows and device contexts made from now on follow.
void SetDisplayDpi(int dpi);
int DisplayDpi();

// Bits of a pixel of the screen: 1, 8, 16, 24 or 32.
void SetDisplayDepth(int bitsPerPixel);

// Whether the display has a theme; OpenThemeData then succeeds. Sends no message: a test that wants
// WM_THEMECHANGED sends it.
void SetThemed(bool themed);

// Sets a system colour (COLOR_*); no message is sent.
void SetSystemColor(int index, COLORREF color);
// Sets all colours to the default ones.
void ResetSystemColors();

}  // namespace headless
