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

// All controls as the groups go through them: those of a page that shows stand in its place.
void FlattenShown(const Window& parent, std::vector<const Window*>& order) {
    for (const Window* child : parent.children) {
        const bool page = (child->exStyle & WS_EX_CONTROLPARENT) != 0 && Usable(*child);
        if (page && !child->children.empty()) {
            FlattenShown(*child, order);
        } else {
            order.push_back(child);
        }
    }
}

// A control that a group offers; a page is none.
bool IsItem(const Window& window) {
    return Usable(window) && (window.exStyle & WS_EX_CONTROLPARENT) == 0;
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
    if (control == dialog) control = nullptr;
    // Backwards from nowhere there is nothing.
    if (control == nullptr && previous) return nullptr;
    const Window* from = nullptr;
    if (control != nullptr) {
        from = Lookup(control);
        if (from == nullptr || !Within(window, from)) return nullptr;
    }
    std::vector<const Window*> order;
    FlattenShown(*window, order);
    if (order.empty()) return nullptr;
    const std::size_t count = order.size();
    std::size_t at = 0;
    if (from == nullptr) {
        if (IsItem(*order[0])) return order[0]->handle;
    } else {
        // Inside of a control, as in the edit of a combo box, the control itself is meant.
        auto found = std::find(order.begin(), order.end(), from);
        for (; found == order.end() && from != window; from = from->parent)
            found = std::find(order.begin(), order.end(), from);
        if (found == order.end()) return control;
        at = static_cast<std::size_t>(found - order.begin());
    }
    // A group reaches from a mark to the next one, round the end of the dialog as well.
    const auto begins = [&](std::size_t i) { return (order[i]->style & WS_GROUP) != 0; };
    std::size_t first = at;
    while (!begins(first)) {
        first = (first + count - 1) % count;
        if (first == at) break;
    }
    std::size_t size = 1;
    while (size < count && !begins((first + size) % count)) ++size;
    const std::size_t start = (at + count - first) % count;
    for (std::size_t i = 1; i <= size; ++i) {
        const std::size_t place = (start + (previous ? size - i : i)) % size;
        const Window& candidate = *order[(first + place) % count];
        if (IsItem(candidate)) return candidate.handle;
    }
    return control;
}
