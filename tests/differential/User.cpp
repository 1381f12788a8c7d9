#include "User.h"

#include <cstdlib>
#include <vector>

#include "fixtures/WindowReading.h"

namespace differential {
namespace {

constexpr WPARAM kControlZ = 26;

enum Modifier : int64_t { kShift = 1, kControl = 2, kAlt = 4 };

void HoldKeys(int64_t modifiers) {
    BYTE keys[256] = {};
    const auto hold = [&](int key) { keys[key] = 0x80; };
    if ((modifiers & kShift) != 0) hold(VK_SHIFT), hold(VK_LSHIFT);
    if ((modifiers & kControl) != 0) hold(VK_CONTROL), hold(VK_LCONTROL);
    if ((modifiers & kAlt) != 0) hold(VK_MENU);
    SetKeyboardState(keys);
}

HWND FocusOr(HWND dialog) {
    const HWND focus = GetFocus();
    return focus != nullptr ? focus : dialog;
}

void PostKey(HWND hwnd, int64_t key, int64_t modifiers) {
    HoldKeys(modifiers);
    const bool system = (modifiers & kAlt) != 0;
    // Repeat count 1; bit 24 marks the keys of the block of arrows, bit 29 a held Alt key.
    DWORD down = 1;
    if (key >= VK_PRIOR && key <= VK_DELETE) down |= 1u << 24;
    if (system) down |= 1u << 29;
    PostMessageA(hwnd, system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(key),
                 static_cast<LPARAM>(down));
    PostMessageA(hwnd, system ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(key),
                 static_cast<LPARAM>(static_cast<LONG>(down | 0xC0000000u)));
}

POINT PlaceIn(HWND hwnd, int64_t x, int64_t y) {
    RECT rect = {};
    GetClientRect(hwnd, &rect);
    return {static_cast<LONG>(rect.right * x / 100), static_cast<LONG>(rect.bottom * y / 100)};
}

// A mouse message goes to the window that has the mouse, else past what lets it through.
void PostMouse(HWND hwnd, UINT message, WPARAM keys, POINT at) {
    HWND receiver = hwnd;
    if (const HWND capture = GetCapture(); capture != nullptr) {
        receiver = capture;
    } else {
        POINT screen = at;
        ClientToScreen(hwnd, &screen);
        const LPARAM place = MAKELPARAM(screen.x, screen.y);
        while (SendMessageA(receiver, WM_NCHITTEST, 0, place) == HTTRANSPARENT &&
               GetParent(receiver) != nullptr)
            receiver = GetParent(receiver);
    }
    MapWindowPoints(hwnd, receiver, &at, 1);
    PostMessageA(receiver, message, keys, MAKELPARAM(at.x, at.y));
}

void Click(HWND hwnd, int64_t x, int64_t y, int64_t modifiers) {
    HoldKeys(modifiers);
    WPARAM keys = 0;
    if ((modifiers & kShift) != 0) keys |= MK_SHIFT;
    if ((modifiers & kControl) != 0) keys |= MK_CONTROL;
    const POINT at = PlaceIn(hwnd, x, y);
    PostMouse(hwnd, WM_LBUTTONDOWN, keys | MK_LBUTTON, at);
    PostMouse(hwnd, WM_LBUTTONUP, keys, at);
}

HWND OpenList(HWND dialog) {
    for (const HWND hwnd : test_support::Descendants(dialog)) {
        if (test_support::ClassOf(hwnd) != "combobox") continue;
        if (SendMessageA(hwnd, CB_GETDROPPEDSTATE, 0, 0) == 0) continue;
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        SendMessageA(hwnd, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
        return info.hwndList;
    }
    return nullptr;
}

// A double click is one only if both clicks go to the same window.
struct SecondClick {
    HWND hwnd = nullptr;
    POINT at = {};
    HWND receiver = nullptr;  // of the first click
};
SecondClick secondClick;

HWND settledFocus = nullptr;

bool CanBeUsed(HWND hwnd) {
    return IsWindowVisible(hwnd) && IsWindowEnabled(hwnd);
}

// Typing into an open list without an edit, over an item that was chosen, and into a list of
// several selections.
bool TypingIsKnownToDiffer(HWND dialog) {
    const HWND focus = GetFocus();
    if (focus == nullptr) return false;
    if (test_support::ClassOf(focus) == "combobox")
        return SendMessageA(focus, CB_GETDROPPEDSTATE, 0, 0) != 0;
    // Whether Space in a list of several selections is told.
    if (test_support::ClassOf(focus) == "listbox")
        return (GetWindowLongPtrA(focus, GWL_STYLE) & LBS_MULTIPLESEL) != 0;
    const HWND parent = GetParent(focus);
    return parent != dialog && test_support::ClassOf(parent) == "combobox" &&
           SendMessageA(parent, CB_GETCURSEL, 0, 0) >= 0;
}

}  // namespace

HWND Target(HWND dialog, const std::string& name) {
    if (name[0] == '#') return test_support::FindControl(dialog, std::atoi(name.c_str() + 1));
    std::vector<HWND> usable;
    for (const HWND hwnd : test_support::Descendants(dialog)) {
        if (CanBeUsed(hwnd)) usable.push_back(hwnd);
    }
    if (usable.empty()) return nullptr;
    return usable[static_cast<std::size_t>(std::atoi(name.c_str())) % usable.size()];
}

bool DoPending() {
    const SecondClick second = secondClick;
    secondClick = {};
    if (second.hwnd == nullptr || !IsWindow(second.hwnd) || !CanBeUsed(second.hwnd)) return false;
    const bool elsewhere = GetCapture() != second.receiver;
    PostMouse(second.hwnd, elsewhere ? WM_LBUTTONDOWN : WM_LBUTTONDBLCLK, MK_LBUTTON, second.at);
    PostMouse(second.hwnd, WM_LBUTTONUP, 0, second.at);
    return true;
}

void SettleFocus() {
    const HWND focus = GetFocus();
    if (focus == settledFocus) return;
    settledFocus = focus;
    if (focus == nullptr || test_support::ClassOf(focus) != "edit") return;
    if (test_support::ClassOf(GetParent(focus)) == "combobox")
        SendMessageA(focus, EM_SETSEL, 0, -1);
}

bool IsKnownToDiffer(HWND hwnd, const Words& words) {
    Words rest = words;
    const std::string message = rest.Next();
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(hwnd, GWL_STYLE));
    if (message == "LB_SELECTSTRING") return (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    // The platform's witness answers what is left in its memory.
    if (message == "EM_CHARFROMPOS") return GetWindowTextLengthA(hwnd) == 0;
    if (message == "LB_SETSEL") return (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) == 0;
    if (message != "CB_SETCURSEL") return false;
    return rest.NextNumber() >= SendMessageA(hwnd, CB_GETCOUNT, 0, 0);
}

void ClearClipboard() {
    if (!OpenClipboard(nullptr)) return;
    EmptyClipboard();
    CloseClipboard();
}

void ReleaseKeys() {
    HoldKeys(0);
}

bool DoAsUser(HWND dialog, const std::string& verb, Words& words) {
    if (verb == "key") {
        const int64_t key = words.NextNumber();
        if (key == VK_TAB) settledFocus = nullptr;
        if ((key == VK_BACK || key == VK_DELETE || key == VK_SPACE) &&
            TypingIsKnownToDiffer(dialog))
            return true;
        PostKey(FocusOr(dialog), key, words.NextNumber());
    } else if (verb == "char") {
        const int64_t code = words.NextNumber();
        if (TypingIsKnownToDiffer(dialog)) return true;
        HoldKeys(words.NextNumber());
        PostMessageA(FocusOr(dialog), WM_CHAR, static_cast<WPARAM>(code), 1);
    } else if (verb == "undo") {
        if (SendMessageA(FocusOr(dialog), EM_CANUNDO, 0, 0) == 0) return true;
        HoldKeys(kControl);
        PostMessageA(FocusOr(dialog), WM_CHAR, kControlZ, 1);
    } else if (verb == "focus") {
        settledFocus = nullptr;
        const HWND hwnd = Target(dialog, words.Next());
        // A radio button that has it while it is hidden makes some systems look for the next one
        // for ever.
        if (hwnd != nullptr && CanBeUsed(hwnd))
            SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(hwnd), TRUE);
    } else if (verb == "mnemonic") {
        settledFocus = nullptr;
        PostMessageA(FocusOr(dialog), WM_SYSCHAR, static_cast<WPARAM>(words.NextNumber()),
                     1 | (1 << 29));
    } else if (verb == "click" || verb == "twice" || verb == "drag") {
        const HWND hwnd = Target(dialog, words.Next());
        if (hwnd == nullptr || !CanBeUsed(hwnd)) return true;
        const int64_t x = words.NextNumber(), y = words.NextNumber();
        if (verb == "click") {
            Click(hwnd, x, y, words.NextNumber());
        } else if (verb == "twice") {
            Click(hwnd, x, y, 0);
            secondClick = {hwnd, PlaceIn(hwnd, x, y), GetCapture()};
        } else {
            PostMouse(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, PlaceIn(hwnd, x, y));
            const int64_t toX = words.NextNumber(), toY = words.NextNumber();
            PostMouse(hwnd, WM_MOUSEMOVE, MK_LBUTTON, PlaceIn(hwnd, toX, toY));
            PostMouse(hwnd, WM_LBUTTONUP, 0, PlaceIn(hwnd, toX, toY));
        }
    } else if (verb == "list") {
        const int64_t y = words.NextNumber();
        if (const HWND list = OpenList(dialog)) {
            const POINT at = PlaceIn(list, 10, y);
            PostMessageA(list, WM_MOUSEMOVE, 0, MAKELPARAM(at.x, at.y));
            PostMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
            PostMessageA(list, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
        }
    } else if (verb == "wheel") {
        if (OpenList(dialog) != nullptr) return true;
        const auto delta = static_cast<WORD>(words.NextNumber() * WHEEL_DELTA);
        PostMessageA(FocusOr(dialog), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), 0);
    } else {
        return false;
    }
    return true;
}

}  // namespace differential
