// Which window has the keyboard, which is active, which has the mouse; enabling and disabling.
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/input_state.h"
#include "platform/headless/window/window.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

bool CanActivate(const Window* window) {
    return window != nullptr && (window->style & WS_VISIBLE) != 0 && Enabled(*window) &&
           !window->IsChildWindow() && !window->destroying;
}

void MoveFocus(HWND hwnd) {
    World& world = ThisWorld();
    const HWND old = world.focus;
    if (old == hwnd) return;
    if (hwnd != nullptr &&
        CallCbt(HCBT_SETFOCUS, reinterpret_cast<WPARAM>(hwnd), reinterpret_cast<LPARAM>(old)) != 0)
        return;
    world.focus = hwnd;
    if (old != nullptr) {
        Send(old, WM_KILLFOCUS, reinterpret_cast<WPARAM>(hwnd), 0);
        // The loser may have moved the focus elsewhere.
        if (world.focus != hwnd) return;
    }
    if (Peek(hwnd) != nullptr) Send(hwnd, WM_SETFOCUS, reinterpret_cast<WPARAM>(old), 0);
}

void RememberPopup(Window& window) {
    for (Window* owner = Peek(window.owner); owner != nullptr; owner = Peek(owner->owner))
        owner->lastActivePopup = window.handle;
    window.lastActivePopup = window.handle;
}

}  // namespace

void SetActive(HWND hwnd, bool byMouse, bool focusToo) {
    KeepAlive keep;
    World& world = ThisWorld();
    const HWND old = world.active;
    if (old == hwnd) {
        if (hwnd != nullptr) world.foreground = hwnd;
        return;
    }
    if (hwnd != nullptr) {
        CBTACTIVATESTRUCT info{byMouse, old};
        if (CallCbt(HCBT_ACTIVATE, reinterpret_cast<WPARAM>(hwnd),
                    reinterpret_cast<LPARAM>(&info)) != 0)
            return;
    }
    if (Window* leaving = Peek(old); leaving != nullptr) {
        Send(old, WM_NCACTIVATE, FALSE, reinterpret_cast<LPARAM>(hwnd));
        if (leaving->alive)
            Send(old, WM_ACTIVATE,
                 MAKEWPARAM(WA_INACTIVE, (leaving->style & WS_MINIMIZE) != 0 ? 1 : 0),
                 reinterpret_cast<LPARAM>(hwnd));
        if (leaving->alive && hwnd == nullptr) Send(old, WM_ACTIVATEAPP, FALSE, 0);
        if (world.active != old) return;
    }
    Window* window = Peek(hwnd);
    if (hwnd != nullptr && window == nullptr) return;
    world.active = hwnd;
    world.foreground = hwnd;
    if (old == nullptr && window != nullptr) {
        Send(hwnd, WM_ACTIVATEAPP, TRUE, 0);
        if (!window->alive || world.active != hwnd) return;
    }
    if (window != nullptr) {
        RememberPopup(*window);
        if (window->parent != nullptr) RaiseWithOwned(*window);
        Send(hwnd, WM_NCACTIVATE, TRUE, reinterpret_cast<LPARAM>(old));
        if (window->alive)
            Send(hwnd, WM_ACTIVATE,
                 MAKEWPARAM(byMouse ? WA_CLICKACTIVE : WA_ACTIVE,
                            (window->style & WS_MINIMIZE) != 0 ? 1 : 0),
                 reinterpret_cast<LPARAM>(old));
    }
    if (!focusToo || world.active != hwnd) return;
    const Window* focus = Peek(world.focus);
    if (focus == nullptr || window == nullptr || !window->alive ||
        Root(const_cast<Window*>(focus)) != window)
        MoveFocus(window != nullptr && window->alive ? hwnd : nullptr);
}

// Another window takes over from one that is hidden, minimized or destroyed: its owner first, then
// the next in depth.
void ActivateAnother(Window& leaving) {
    World& world = ThisWorld();
    Window* next = nullptr;
    if (Window* owner = Peek(leaving.owner); owner != nullptr && CanActivate(Root(owner)))
        next = Root(owner);
    if (next == nullptr) {
        for (Window* w : world.desktop->children) {
            if (w != &leaving && CanActivate(w) && (w->exStyle & WS_EX_NOACTIVATE) == 0) {
                next = w;
                break;
            }
        }
    }
    SetActive(next == nullptr ? nullptr : next->handle, false, true);
}

}  // namespace headless

using namespace headless;

HWND GetFocus() {
    return ThisWorld().focus;
}

HWND SetFocus(HWND hwnd) {
    KeepAlive keep;
    World& world = ThisWorld();
    const HWND old = world.focus;
    if (hwnd == nullptr) {
        MoveFocus(nullptr);
        return old;
    }
    Window* window = Lookup(hwnd);
    if (window == nullptr) return nullptr;
    if (window->IsDesktop()) {
        SetLastError(ERROR_ACCESS_DENIED);
        return nullptr;
    }
    if (hwnd == old) return old;
    for (const Window* w = window; w != nullptr && !w->IsDesktop(); w = w->parent) {
        if ((w->style & (WS_MINIMIZE | WS_DISABLED)) != 0) return nullptr;
    }
    Window* root = Root(window);
    if (world.active != root->handle) {
        SetActive(root->handle, false, false);
        if (!window->alive || world.active != root->handle) return nullptr;
    }
    MoveFocus(hwnd);
    return old;
}

HWND GetActiveWindow() {
    return ThisWorld().active;
}

HWND SetActiveWindow(HWND hwnd) {
    KeepAlive keep;
    const HWND old = ThisWorld().active;
    if (hwnd == nullptr) {
        SetActive(nullptr, false, true);
        return old;
    }
    const Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return nullptr;
    if (window->IsChildWindow() || !Enabled(*window)) return old;
    SetActive(hwnd, false, true);
    return old;
}

HWND GetForegroundWindow() {
    return ThisWorld().foreground;
}

BOOL SetForegroundWindow(HWND hwnd) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return FALSE;
    Window* root = Root(window);
    if (!Enabled(*root) && root->handle != ThisWorld().active) return FALSE;
    SetActive(root->handle, false, true);
    return TRUE;
}

BOOL EnableWindow(HWND hwnd, BOOL enable) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return FALSE;
    const bool wasDisabled = !Enabled(*window);
    if (enable && wasDisabled) {
        window->style &= ~static_cast<DWORD>(WS_DISABLED);
        Send(hwnd, WM_ENABLE, TRUE, 0);
    } else if (!enable && !wasDisabled) {
        Send(hwnd, WM_CANCELMODE, 0, 0);
        if (!window->alive) return FALSE;
        window->style |= WS_DISABLED;
        if (hwnd == GetFocus()) SetFocus(nullptr);
        if (window->alive) Send(hwnd, WM_ENABLE, FALSE, 0);
    }
    return wasDisabled;
}

HWND GetCapture() {
    return ThisWorld().capture;
}

HWND SetCapture(HWND hwnd) {
    KeepAlive keep;
    World& world = ThisWorld();
    const HWND old = world.capture;
    if (hwnd != nullptr && Lookup(hwnd) == nullptr) return nullptr;
    world.capture = hwnd;
    if (old != nullptr && old != hwnd)
        Send(old, WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(hwnd));
    return old;
}

BOOL ReleaseCapture() {
    SetCapture(nullptr);
    return TRUE;
}
