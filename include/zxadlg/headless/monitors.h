// The monitors of the headless system. There is one by default, 1280 x 1024 with no task bar; a
// test can set another layout and must set the default again.
#pragma once

#include <vector>

#include "zxadlg/headless/types.h"

namespace headless {

// Both rectangles in screen coordinates; `work` lies within `bounds`.
struct MonitorLayout {
    RECT bounds{};
    RECT work{};
};

// The first monitor is the primary one and its bounds begin at (0,0). An empty list sets the
// default layout.
void SetMonitors(const std::vector<MonitorLayout>& monitors);

}  // namespace headless
