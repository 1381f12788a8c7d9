#include "zxadlg/headless/census.h"

#include "platform/headless/drawing/gdi.h"
#include "platform/headless/menu/menu.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/timer_list.h"
#include "platform/headless/window/window.h"

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
    census.menus = world.menus->menus.size();
    census.gdi = gdi::LiveCounts();
    return census;
}

std::string Growth(const Census& before, const Census& after) {
    std::string text;
    const auto add = [&text](std::size_t was, std::size_t is, const char* one, const char* many) {
        if (is <= was) return;
        if (!text.empty()) text += ", ";
        text += std::to_string(is - was) + " " + (is - was > 1 ? many : one);
    };
    add(before.windows, after.windows, "window", "windows");
    add(before.timers, after.timers, "timer", "timers");
    add(before.hooks, after.hooks, "hook", "hooks");
    add(before.properties, after.properties, "property", "properties");
    add(before.menus, after.menus, "menu", "menus");
    add(before.gdi.fonts, after.gdi.fonts, "font", "fonts");
    add(before.gdi.brushes, after.gdi.brushes, "brush", "brushes");
    add(before.gdi.pens, after.gdi.pens, "pen", "pens");
    add(before.gdi.bitmaps, after.gdi.bitmaps, "bitmap", "bitmaps");
    add(before.gdi.metafiles, after.gdi.metafiles, "metafile", "metafiles");
    add(before.gdi.memoryDcs, after.gdi.memoryDcs, "memory DC", "memory DCs");
    add(before.gdi.windowDcs, after.gdi.windowDcs, "window DC", "window DCs");
    add(before.gdi.themes, after.gdi.themes, "theme", "themes");
    add(before.gdi.globals, after.gdi.globals, "memory block", "memory blocks");
    return text;
}

}  // namespace headless
