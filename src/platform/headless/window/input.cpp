// Queueing of keys and mouse events, and the states that can be asked for.
#include "zxadlg/headless/input.h"

#include <algorithm>
#include <utility>

#include "platform/headless/system/codepage.h"
#include "platform/headless/window/input_state.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr int kDoubleClickTime = 500;

bool IsExtended(int key) {
    switch (key) {
        case VK_PRIOR:
        case VK_NEXT:
        case VK_END:
        case VK_HOME:
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
        case VK_INSERT:
        case VK_DELETE:
        case VK_DIVIDE:
        case VK_NUMLOCK:
        case VK_RCONTROL:
        case VK_RMENU:
        case VK_APPS:
            return true;
        default:
            return false;
    }
}

int KeyOfButton(MouseButton button) {
    switch (button) {
        case MouseButton::kLeft:
            return VK_LBUTTON;
        case MouseButton::kRight:
            return VK_RBUTTON;
        default:
            return VK_MBUTTON;
    }
}

void QueueKey(int key, bool down, bool extended) {
    RawEvent event;
    event.kind = RawEvent::Kind::kKey;
    event.key = key;
    event.down = down;
    event.extended = extended;
    QueueEvent(event);
}

void QueueCharacter(WORD character, bool down) {
    RawEvent event;
    event.kind = RawEvent::Kind::kKey;
    event.key = VK_PACKET;
    event.character = character;
    event.down = down;
    QueueEvent(event);
}

bool QueueMouseFlags(const MOUSEINPUT& mouse) {
    constexpr DWORD known = MOUSEEVENTF_MOVE | MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP |
                            MOUSEEVENTF_RIGHTDOWN | MOUSEEVENTF_RIGHTUP | MOUSEEVENTF_MIDDLEDOWN |
                            MOUSEEVENTF_MIDDLEUP | MOUSEEVENTF_WHEEL | MOUSEEVENTF_ABSOLUTE;
    if ((mouse.dwFlags & ~known) != 0) {
        ReportUnsupported("SendInput mouse flags " + Hex(mouse.dwFlags & ~known));
        return false;
    }
    if ((mouse.dwFlags & MOUSEEVENTF_MOVE) != 0) {
        const POINT cursor = ThisWorld().input->cursor;
        if ((mouse.dwFlags & MOUSEEVENTF_ABSOLUTE) != 0) {
            // Absolute places count in 65536ths of the screen.
            const auto scaled = [](LONG v, int size) {
                return static_cast<int>((static_cast<std::int64_t>(v) * size) >> 16);
            };
            InjectMouseMove(scaled(mouse.dx, GetSystemMetrics(SM_CXSCREEN)),
                            scaled(mouse.dy, GetSystemMetrics(SM_CYSCREEN)));
        } else {
            InjectMouseMove(cursor.x + mouse.dx, cursor.y + mouse.dy);
        }
    }
    const struct {
        int flag;
        MouseButton button;
        bool down;
    } buttons[] = {{MOUSEEVENTF_LEFTDOWN, MouseButton::kLeft, true},
                   {MOUSEEVENTF_LEFTUP, MouseButton::kLeft, false},
                   {MOUSEEVENTF_RIGHTDOWN, MouseButton::kRight, true},
                   {MOUSEEVENTF_RIGHTUP, MouseButton::kRight, false},
                   {MOUSEEVENTF_MIDDLEDOWN, MouseButton::kMiddle, true},
                   {MOUSEEVENTF_MIDDLEUP, MouseButton::kMiddle, false}};
    for (const auto& b : buttons) {
        if ((mouse.dwFlags & static_cast<DWORD>(b.flag)) != 0) InjectMouseButton(b.button, b.down);
    }
    if ((mouse.dwFlags & MOUSEEVENTF_WHEEL) != 0) InjectWheel(static_cast<SHORT>(mouse.mouseData));
    return true;
}

bool QueueKeyFlags(const KEYBDINPUT& key) {
    const bool down = (key.dwFlags & KEYEVENTF_KEYUP) == 0;
    if ((key.dwFlags & KEYEVENTF_UNICODE) != 0) {
        QueueCharacter(static_cast<unsigned char>(ToAnsi(key.wScan)), down);
        return true;
    }
    int code = key.wVk;
    if ((key.dwFlags & KEYEVENTF_SCANCODE) != 0)
        code = static_cast<int>(MapVirtualKeyA(key.wScan, MAPVK_VSC_TO_VK));
    if (code <= 0 || code > 254) return false;
    QueueKey(code, down, (key.dwFlags & KEYEVENTF_EXTENDEDKEY) != 0);
    return true;
}

}  // namespace

void InputState::ForgetWindow(HWND hwnd) {
    if (clickWindow == hwnd) clickWindow = nullptr;
    if (closePressed == hwnd) closePressed = nullptr;
    if (tracked == hwnd) tracked = nullptr;
}

void QueueEvent(RawEvent event) {
    InputState& input = *ThisWorld().input;
    event.time = GetTickCount();
    const auto mark = [&](int key) {
        BYTE& state = input.async[static_cast<std::size_t>(key & 0xFF)];
        if (event.down && (state & 0x80) == 0) state ^= 1;
        state = static_cast<BYTE>(event.down ? state | 0x80 : state & 0x7F);
    };
    switch (event.kind) {
        case RawEvent::Kind::kKey:
            mark(event.key);
            if (event.key == VK_LSHIFT || event.key == VK_RSHIFT) mark(VK_SHIFT);
            if (event.key == VK_LCONTROL || event.key == VK_RCONTROL) mark(VK_CONTROL);
            if (event.key == VK_LMENU || event.key == VK_RMENU) mark(VK_MENU);
            break;
        case RawEvent::Kind::kButton:
            mark(event.key);
            break;
        case RawEvent::Kind::kMove:
            input.cursor = event.at;
            break;
        case RawEvent::Kind::kWheel:
            break;
    }
    event.at = input.cursor;
    input.events.push_back(event);
}

void InjectKey(int key, bool down) {
    QueueKey(key, down, IsExtended(key));
}

void InjectKeyStroke(int key) {
    InjectKey(key, true);
    InjectKey(key, false);
}

void InjectText(const char* text) {
    for (; text != nullptr && *text != '\0'; ++text) {
        const auto character = static_cast<unsigned char>(*text);
        const int key = KeyOfCharacter(character);
        if (key < 0 || (key & 0x200) != 0) {
            QueueCharacter(character, true);
            QueueCharacter(character, false);
            continue;
        }
        if ((key & 0x100) != 0) InjectKey(VK_SHIFT, true);
        InjectKeyStroke(key & 0xFF);
        if ((key & 0x100) != 0) InjectKey(VK_SHIFT, false);
    }
}

void InjectMouseMove(int x, int y) {
    RawEvent event;
    event.kind = RawEvent::Kind::kMove;
    event.at = {x, y};
    QueueEvent(event);
}

void InjectMouseButton(MouseButton button, bool down) {
    RawEvent event;
    event.kind = RawEvent::Kind::kButton;
    event.key = KeyOfButton(button);
    event.down = down;
    QueueEvent(event);
}

void InjectClick(int x, int y, MouseButton button) {
    InjectMouseMove(x, y);
    InjectMouseButton(button, true);
    InjectMouseButton(button, false);
}

void InjectWheel(int delta) {
    RawEvent event;
    event.kind = RawEvent::Kind::kWheel;
    event.delta = delta;
    QueueEvent(event);
}

void ResetInput() {
    InputState& input = *ThisWorld().input;
    const POINT cursor = input.cursor;
    input = InputState{};
    input.cursor = cursor;
}

int TakeBeeps() {
    InputState& input = *ThisWorld().input;
    const int count = input.beeps;
    input.beeps = 0;
    return count;
}

}  // namespace headless

using namespace headless;

SHORT GetKeyState(int key) {
    const BYTE state = ThisWorld().input->keys[static_cast<std::size_t>(key & 0xFF)];
    return static_cast<SHORT>(((state & 0x80) != 0 ? 0xFF80 : 0) | (state & 1));
}

SHORT GetAsyncKeyState(int key) {
    const BYTE state = ThisWorld().input->async[static_cast<std::size_t>(key & 0xFF)];
    return static_cast<SHORT>((state & 0x80) != 0 ? 0x8000 : 0);
}

BOOL GetKeyboardState(BYTE* state) {
    if (state == nullptr) return FALSE;
    const InputState& input = *ThisWorld().input;
    std::copy(input.keys.begin(), input.keys.end(), state);
    return TRUE;
}

BOOL SetKeyboardState(BYTE* state) {
    if (state == nullptr) return FALSE;
    InputState& input = *ThisWorld().input;
    std::copy(state, state + input.keys.size(), input.keys.begin());
    return TRUE;
}

UINT SendInput(UINT count, INPUT* inputs, int size) {
    if (inputs == nullptr || size != static_cast<int>(sizeof(INPUT))) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    UINT done = 0;
    for (UINT i = 0; i < count; ++i) {
        bool queued = false;
        if (inputs[i].type == INPUT_KEYBOARD) queued = QueueKeyFlags(inputs[i].ki);
        if (inputs[i].type == INPUT_MOUSE) queued = QueueMouseFlags(inputs[i].mi);
        if (queued) ++done;
    }
    return done;
}

BOOL GetCursorPos(POINT* point) {
    if (point == nullptr) return FALSE;
    *point = ThisWorld().input->cursor;
    return TRUE;
}

BOOL SetCursorPos(int x, int y) {
    InjectMouseMove(x, y);
    return TRUE;
}

HCURSOR SetCursor(HCURSOR cursor) {
    return std::exchange(ThisWorld().input->shape, cursor);
}

HCURSOR GetCursor() {
    return ThisWorld().input->shape;
}

BOOL TrackMouseEvent(TRACKMOUSEEVENT* event) {
    if (event == nullptr || event->cbSize != sizeof(TRACKMOUSEEVENT)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    InputState& input = *ThisWorld().input;
    if ((event->dwFlags & TME_QUERY) != 0) {
        event->hwndTrack = input.tracked;
        event->dwFlags = input.tracked != nullptr ? TME_LEAVE : 0;
        event->dwHoverTime = 400;
        return TRUE;
    }
    if (Lookup(event->hwndTrack) == nullptr) return FALSE;
    if ((event->dwFlags & (TME_HOVER | TME_NONCLIENT)) != 0) {
        ReportUnsupported("TrackMouseEvent flags " + Hex(event->dwFlags));
        return FALSE;
    }
    if ((event->dwFlags & TME_CANCEL) != 0) {
        if (input.tracked == event->hwndTrack) input.tracked = nullptr;
        return TRUE;
    }
    if ((event->dwFlags & TME_LEAVE) == 0) return TRUE;
    const Window* window = Peek(event->hwndTrack);
    if (Contains(ClientOnScreen(*window), input.cursor)) {
        input.tracked = event->hwndTrack;
    } else {
        // The pointer is elsewhere already.
        PostMessageA(event->hwndTrack, WM_MOUSELEAVE, 0, 0);
    }
    return TRUE;
}

BOOL _TrackMouseEvent(TRACKMOUSEEVENT* event) {
    return TrackMouseEvent(event);
}

UINT GetDoubleClickTime() {
    return kDoubleClickTime;
}

BOOL MessageBeep(UINT) {
    ++ThisWorld().input->beeps;
    return TRUE;
}
