// What can be seen and asked of a window and all below it, as one line per window, and which of
// these lines changed since the last look.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/platform.h"

namespace differential {

class WindowState {
  public:
    // The lines that are not as they were, "gone" for a window that is no longer there. A window is
    // named by its place among the descendants and its id. `places` adds rectangles, relative to
    // the client area of `top`.
    std::vector<std::string> Changes(HWND top, bool places);

  private:
    std::map<int, std::string> m_known;
    HWND m_top = nullptr;
};

}  // namespace differential
