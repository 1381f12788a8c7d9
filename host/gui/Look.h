// How large and in which colours the window is drawn: by the display's resolution and the user's
// scheme.
#pragma once

#include "zxadlg/headless.h"

namespace zxhost {

// Pixels for a measure at 96 pixels per inch.
int Scaled(int measure);

// The system's font for messages at this resolution; the program keeps it.
HFONT DialogFont();

// Whether windows have light text on a dark ground.
bool IsDark();

COLORREF Ground();
COLORREF Ink();
// Between ground (0) and ink (1).
COLORREF Shade(double part);

}  // namespace zxhost
