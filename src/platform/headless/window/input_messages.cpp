// From events of keys and mouse to messages: the window that gets them, hit tests, double clicks,
// activation by a click and the pointer's shape.
#include <cstdlib>

#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/input_state.h"
#include "platform/headless/window/message_queue.h"

namespace headless {

namespace {

bool Down(const InputState& input, int key) {
    return (input.keys[static_cast<std::size_t>(key)] & 0x80) != 0;
}

void SetKey(InputState& input, int key, bool down) {
    BYTE& state = input.keys[static_cast<std::size_t>(key & 0xFF)];
    if (down && (state & 0x80) == 0) state ^= 1;
    state = static_cast<BYTE>(down ? state | 0x80 : state & 0x7F);
}

// Both sides of a modifier have one number in messages.
int GenericKey(int key) {
    switch (key) {
        case VK_LSHIFT:
        case VK_RSHIFT:
            return VK_SHIFT;
        case VK_LCONTROL:
        case VK_RCONTROL:
            return VK_CONTROL;
        case VK_LMENU:
        case VK_RMENU:
            return VK_MENU;
        default:
            return key;
    }
}

WPARAM HeldButtons(const InputState& input) {
    WPARAM held = 0;
    if (Down(input, VK_LBUTTON)) held |= MK_LBUTTON;
    if (Down(input, VK_RBUTTON)) held |= MK_RBUTTON;
    if (Down(input, VK_MBUTTON)) held |= MK_MBUTTON;
    if (Down(input, VK_SHIFT)) held |= MK_SHIFT;
    if (Down(input, VK_CONTROL)) held |= MK_CONTROL;
    return held;
}

bool InRange(UINT message, UINT first, UINT last) {
    return (first == 0 && last == 0) || (message >= first && message <= last);
}

bool KeyMessage(const RawEvent& event, MSG& msg, HWND filter, UINT first, UINT last, bool remove) {
    World& world = ThisWorld();
    InputState& input = *world.input;
    const int key = GenericKey(event.key);
    const bool wasDown = Down(input, key);
    bool alt = Down(input, VK_MENU);
    const bool control = Down(input, VK_CONTROL);
    bool system = false;
    if (key == VK_MENU) {
        system = event.down ? !control : input.altAlone;
        alt = event.down;
    } else {
        system = (alt && !control) || key == VK_F10;
    }
    HWND target = world.focus;
    if (target == nullptr) {
        // Without a focus the keys are the active window's, as system keys.
        target = world.active;
        system = true;
    }
    UINT message = event.down ? WM_KEYDOWN : WM_KEYUP;
    if (system) message = event.down ? WM_SYSKEYDOWN : WM_SYSKEYUP;
    msg = {};
    msg.hwnd = target;
    msg.message = message;
    msg.wParam = static_cast<WPARAM>(key);
    if (key == VK_PACKET) msg.wParam |= static_cast<WPARAM>(event.character) << 16;
    DWORD flags = 1 | static_cast<DWORD>(ScanCode(key)) << 16;
    if (event.extended) flags |= 1u << 24;
    if (alt) flags |= 1u << 29;
    if (wasDown) flags |= 1u << 30;
    if (!event.down) flags |= 1u << 31;
    msg.lParam = static_cast<LPARAM>(static_cast<LONG>(flags));
    msg.time = event.time;
    msg.pt = event.at;
    const bool wanted =
        target != nullptr && PassesWindowFilter(target, filter) && InRange(message, first, last);
    if (target != nullptr && !wanted) return false;
    if (remove || target == nullptr) {
        SetKey(input, event.key, event.down);
        if (event.key != key) SetKey(input, key, event.down);
        input.altAlone = key == VK_MENU && event.down;
        input.events.pop_front();
        if (target == nullptr) return false;
        if (CallKeyboardHooks(static_cast<WPARAM>(key), msg.lParam, true)) return false;
    }
    return Peek(target) != nullptr;
}

// The window under a point and what part of it; windows of the same thread may let the point
// through.
struct Hit {
    HWND hwnd = nullptr;
    int code = HTNOWHERE;
};

Hit HitIn(Window& window, POINT at) {
    const std::vector<Window*> children = window.children;
    for (Window* child : children) {
        if (!child->alive || (child->style & WS_VISIBLE) == 0) continue;
        if (!Contains(FrameOnScreen(*child), at)) continue;
        if (!Enabled(*child)) {
            if (child->IsChildWindow()) continue;
            return {child->handle, HTERROR};
        }
        if (Contains(ClientOnScreen(*child), at)) {
            const Hit inner = HitIn(*child, at);
            if (inner.hwnd != nullptr) return inner;
        }
        if (!child->alive) continue;
        const auto code =
            static_cast<int>(Send(child->handle, WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y)));
        if (child->alive && code != HTTRANSPARENT) return {child->handle, code};
    }
    return {};
}

Hit HitAt(POINT at) {
    World& world = ThisWorld();
    if (Peek(world.capture) != nullptr) return {world.capture, HTCLIENT};
    return HitIn(*Peek(DesktopHandle()), at);
}

UINT ButtonMessage(int key, bool down) {
    switch (key) {
        case VK_LBUTTON:
            return down ? WM_LBUTTONDOWN : WM_LBUTTONUP;
        case VK_RBUTTON:
            return down ? WM_RBUTTONDOWN : WM_RBUTTONUP;
        default:
            return down ? WM_MBUTTONDOWN : WM_MBUTTONUP;
    }
}

// The second press at one place within the time is a double click where the class wants them.
bool IsSecondPress(InputState& input, const Hit& hit, UINT message, const RawEvent& event) {
    const Window* window = Peek(hit.hwnd);
    const bool wants =
        hit.code != HTCLIENT || (window != nullptr && (window->cls->style & CS_DBLCLKS) != 0);
    const bool near =
        std::abs(event.at.x - input.clickAt.x) < GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
        std::abs(event.at.y - input.clickAt.y) < GetSystemMetrics(SM_CYDOUBLECLK) / 2;
    const bool second = wants && input.clickWindow == hit.hwnd && input.clickMessage == message &&
                        event.time - input.clickTime < GetDoubleClickTime() && near;
    input.clickWindow = second ? nullptr : hit.hwnd;
    input.clickMessage = message;
    input.clickTime = event.time;
    input.clickAt = event.at;
    return second;
}

void TellParents(HWND hwnd, UINT message, POINT at) {
    for (Window* w = Peek(hwnd); w != nullptr && w->IsChildWindow();) {
        Window* parent = w->parent;
        if ((w->exStyle & WS_EX_NOPARENTNOTIFY) != 0 || parent->IsDesktop()) return;
        const POINT origin = ClientOrigin(*parent);
        Send(parent->handle, WM_PARENTNOTIFY, message,
             MAKELPARAM(at.x - origin.x, at.y - origin.y));
        if (!parent->alive) return;
        w = parent;
    }
}

// False when the click is not to reach the window.
bool ActivateByClick(const Hit& hit, UINT message) {
    Window* window = Peek(hit.hwnd);
    if (window == nullptr) return false;
    Window* root = Root(window);
    const LRESULT answer = Send(hit.hwnd, WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(root->handle),
                                MAKELPARAM(hit.code, message));
    bool eat = false;
    switch (answer) {
        case MA_NOACTIVATEANDEAT:
            return false;
        case MA_NOACTIVATE:
            return true;
        case MA_ACTIVATEANDEAT:
            eat = true;
            break;
        default:
            break;
    }
    if (root->alive && ThisWorld().active != root->handle) SetActive(root->handle, true, true);
    return !eat && Peek(hit.hwnd) != nullptr;
}

void LeaveTracked(const Hit& hit) {
    InputState& input = *ThisWorld().input;
    if (input.tracked == nullptr) return;
    if (hit.hwnd == input.tracked && hit.code == HTCLIENT) return;
    PostMessageA(input.tracked, WM_MOUSELEAVE, 0, 0);
    input.tracked = nullptr;
}

bool MouseMessage(const RawEvent& source, MSG& msg, HWND filter, UINT first, UINT last,
                  bool remove) {
    World& world = ThisWorld();
    InputState& input = *world.input;
    const RawEvent event = source;
    const bool captured = Peek(world.capture) != nullptr;
    Hit hit = HitAt(event.at);
    UINT message = WM_MOUSEMOVE;
    if (event.kind == RawEvent::Kind::kButton) message = ButtonMessage(event.key, event.down);
    if (event.kind == RawEvent::Kind::kWheel) {
        message = WM_MOUSEWHEEL;
        hit = {world.focus != nullptr ? world.focus : hit.hwnd, HTCLIENT};
    }
    const bool client = hit.code == HTCLIENT || event.kind == RawEvent::Kind::kWheel;
    // The messages of the frame lie at a fixed distance from those of the client area.
    const UINT shown = client ? message : message - WM_MOUSEFIRST + WM_NCMOUSEMOVE;
    if (hit.hwnd != nullptr && hit.code != HTERROR &&
        !(PassesWindowFilter(hit.hwnd, filter) && InRange(shown, first, last)))
        return false;
    if (remove || hit.hwnd == nullptr) input.events.pop_front();
    const bool press = event.kind == RawEvent::Kind::kButton && event.down;
    if (remove && event.kind == RawEvent::Kind::kButton) SetKey(input, event.key, event.down);
    if (remove) LeaveTracked(hit);
    if (hit.hwnd == nullptr) return false;
    if (remove && event.kind != RawEvent::Kind::kWheel) {
        if (hit.code == HTERROR) {
            // A disabled top-level window: it is told by WM_SETCURSOR only.
            Send(hit.hwnd, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.hwnd),
                 MAKELPARAM(HTERROR, message));
            return false;
        }
        const bool second = press && IsSecondPress(input, hit, message, event);
        if (press && !captured) {
            TellParents(hit.hwnd, message, event.at);
            if (!ActivateByClick(hit, message)) return false;
        }
        if (!captured)
            Send(hit.hwnd, WM_SETCURSOR, reinterpret_cast<WPARAM>(hit.hwnd),
                 MAKELPARAM(hit.code, message));
        if (second) message += WM_LBUTTONDBLCLK - WM_LBUTTONDOWN;
    }
    const Window* window = Peek(hit.hwnd);
    if (window == nullptr) return false;
    msg = {};
    msg.hwnd = hit.hwnd;
    msg.time = event.time;
    msg.pt = event.at;
    if (event.kind == RawEvent::Kind::kWheel) {
        msg.message = WM_MOUSEWHEEL;
        msg.wParam = MAKEWPARAM(HeldButtons(input), event.delta);
        msg.lParam = MAKELPARAM(event.at.x, event.at.y);
    } else if (client) {
        const POINT origin = ClientOrigin(*window);
        msg.message = message;
        msg.wParam = HeldButtons(input);
        msg.lParam = MAKELPARAM(event.at.x - origin.x, event.at.y - origin.y);
    } else {
        msg.message = message - WM_MOUSEFIRST + WM_NCMOUSEMOVE;
        msg.wParam = static_cast<WPARAM>(hit.code);
        msg.lParam = MAKELPARAM(event.at.x, event.at.y);
    }
    return true;
}

}  // namespace

bool TakeInput(MSG& msg, HWND filter, UINT first, UINT last, bool remove) {
    InputState& input = *ThisWorld().input;
    while (!input.events.empty()) {
        const std::size_t before = input.events.size();
        const RawEvent event = input.events.front();
        const bool made = event.kind == RawEvent::Kind::kKey
                              ? KeyMessage(event, msg, filter, first, last, remove)
                              : MouseMessage(event, msg, filter, first, last, remove);
        if (made) return true;
        // Still there: the filter holds it back, and all that came later with it.
        if (input.events.size() >= before) return false;
    }
    return false;
}

}  // namespace headless
