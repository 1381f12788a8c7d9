#include "platform/headless/census.h"

#include "platform/headless/hook_list.h"
#include "platform/headless/timer_list.h"
#include "platform/headless/window.h"

namespace headless {

Census TakeCensus() {
    World& world = ThisWorld();
    Census census;
    // The desktop is always there.
    census.windows = world.windows.size() - 1;
    census.timers = world.timers->timers.size();
    census.hooks = world.hooks->Live();
    for (const auto& [handle, window] : world.windows)
        census.properties += window->properties.size();
    census.gdi = gdi::LiveCounts();
    return census;
}

std::string Growth(const Census& before, const Census& after) {
    std::string text;
    const auto add = [&text](std::size_t was, std::size_t is, const char* name) {
        if (is <= was) return;
        if (!text.empty()) text += ", ";
        text += std::to_string(is - was) + " " + name + (is - was > 1 ? "s" : "");
    };
    add(before.windows, after.windows, "window");
    add(before.timers, after.timers, "timer");
    add(before.hooks, after.hooks, "hook");
    add(before.properties, after.properties, "window prop");
    add(before.gdi.fonts, after.gdi.fonts, "font");
    add(before.gdi.brushes, after.gdi.brushes, "brush");
    add(before.gdi.pens, after.gdi.pens, "pen");
    add(before.gdi.bitmaps, after.gdi.bitmaps, "bitmap");
    add(before.gdi.metafiles, after.gdi.metafiles, "metafile");
    add(before.gdi.memoryDcs, after.gdi.memoryDcs, "memory DC");
    add(before.gdi.windowDcs, after.gdi.windowDcs, "window DC");
    add(before.gdi.themes, after.gdi.themes, "theme");
    add(before.gdi.globals, after.gdi.globals, "memory block");
    return text;
}

}  // namespace headless
