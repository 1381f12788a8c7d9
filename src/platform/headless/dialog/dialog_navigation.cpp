// The orders in which the keyboard goes through a dialog.
#include <algorithm>

#include "platform/headless/dialog/dialog_state.h"

namespace headless {

namespace {

struct Place {
    const Window* window = nullptr;
    bool stop = false;
};

bool Usable(const Window& window) {
    return (window.style & WS_VISIBLE) != 0 && Enabled(window);
}

// All controls in tab order. A window that is marked as a parent of controls is no stop itself: its
// controls stand in its place. Those of a hidden or disabled one keep their place but are no stops.
void Flatten(const Window& parent, bool usable, std::vector<Place>& order) {
    for (const Window* child : parent.children) {
        const bool reachable = usable && Usable(*child);
        if ((child->exStyle & WS_EX_CONTROLPARENT) != 0) {
            order.push_back({child, false});
            Flatten(*child, reachable, order);
        } else {
            order.push_back({child, reachable && (child->style & WS_TABSTOP) != 0});
        }
    }
}

// Where a window stands in the order; one that lies deeper stands where its parent does.
std::ptrdiff_t IndexOf(const std::vector<Place>& order, const Window* window) {
    for (; window != nullptr; window = window->parent) {
        const auto at = std::find_if(order.begin(), order.end(),
                                     [window](const Place& p) { return p.window == window; });
        if (at != order.end()) return at - order.begin();
    }
    return -1;
}

}  // namespace

HWND FirstTabStop(HWND dialog) {
    return GetNextDlgTabItem(dialog, nullptr, FALSE);
}

}  // namespace headless

using namespace headless;

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
    const Window* window = Lookup(dialog);
    if (window == nullptr) return nullptr;
    if (control == dialog) control = nullptr;
    // Backwards from nowhere there is nothing.
    if (control == nullptr && previous) return nullptr;
    const Window* from = nullptr;
    if (control != nullptr) {
        from = Lookup(control);
        if (from == nullptr || !Within(window, from)) return nullptr;
    }
    std::vector<Place> order;
    Flatten(*window, true, order);
    const auto count = static_cast<std::ptrdiff_t>(order.size());
    if (count == 0) return control;
    std::ptrdiff_t at = from == nullptr ? -1 : IndexOf(order, from);
    if (at < 0) at = previous ? 0 : count - 1;
    const std::ptrdiff_t step = previous ? count - 1 : 1;
    for (std::ptrdiff_t i = 0; i < count; ++i) {
        at = (at + step) % count;
        if (order[static_cast<std::size_t>(at)].stop)
            return order[static_cast<std::size_t>(at)].window->handle;
    }
    return control;
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
    const Window* window = Lookup(dialog);
    if (window == nullptr) return nullptr;
    const Window* from = nullptr;
    if (control != nullptr) {
        from = Lookup(control);
        if (from == nullptr || from == window || !Within(window, from)) return nullptr;
        // Inside of a control, as in the edit of a combo box, the control itself is meant.
        while (from->parent != window && (from->parent->exStyle & WS_EX_CONTROLPARENT) == 0)
            from = from->parent;
    }
    const std::vector<Window*>& all = from == nullptr ? window->children : from->parent->children;
    if (all.empty()) return nullptr;
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    std::ptrdiff_t at = 0;
    if (from != nullptr) at = std::find(all.begin(), all.end(), from) - all.begin();
    const auto begins = [&](std::ptrdiff_t i) {
        return (all[static_cast<std::size_t>(i)]->style & WS_GROUP) != 0;
    };
    std::ptrdiff_t first = at;
    while (first > 0 && !begins(first)) --first;
    std::ptrdiff_t last = at + 1;
    while (last < count && !begins(last)) ++last;
    const std::ptrdiff_t size = last - first;
    const std::ptrdiff_t step = previous ? size - 1 : 1;
    std::ptrdiff_t index = at - first;
    if (from == nullptr) index = previous ? 0 : size - 1;
    for (std::ptrdiff_t i = 0; i < size; ++i) {
        index = (index + step) % size;
        const Window& candidate = *all[static_cast<std::size_t>(first + index)];
        if (Usable(candidate)) return candidate.handle;
    }
    return control;
}
