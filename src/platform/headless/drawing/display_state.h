// What the drawing half asks the display beyond what tests may ask.
#pragma once

#include "zxadlg/headless/types.h"

namespace headless {

int DisplayDepth();
bool Themed();
int MonitorCount();
// The bounds of the primary monitor.
RECT PrimaryBounds();
// The rectangle around all monitors.
RECT VirtualBounds();

}  // namespace headless
