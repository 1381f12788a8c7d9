// Where the window system is one in memory there is nobody to look at a window.
#include "HostWindow.h"

namespace zxhost {

bool HasWindow() {
    return false;
}

int RunWindow(const Options&) {
    return kWrongUsage;
}

}  // namespace zxhost
