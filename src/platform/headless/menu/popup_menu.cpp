// An open popup menu: its window, and the loop that keys and the mouse steer.
//
// The window that opens the menu is told of nothing but unknown characters (TPM_NONOTIFY), and the
// choice is what the call answers (TPM_RETURNCMD): the two forms that the library uses.
#include <algorithm>

#include "platform/headless/menu/menu.h"
#include "platform/headless/system/codepage.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/message_queue.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr char kClass[] = "#32768";
constexpr UINT kFormFlags = TPM_RETURNCMD | TPM_NONOTIFY;

const Menu* MenuOf(const OpenMenu& open) {
    const auto& menus = ThisWorld().menus->menus;
    const auto found = menus.find(open.menu);
    return found == menus.end() ? nullptr : &found->second;
}

LRESULT CALLBACK MenuProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    const OpenMenu* open = ThisWorld().menus->open;
    if (open == nullptr || open->window != hwnd)
        return DefWindowProcA(hwnd, message, wParam, lParam);
    switch (message) {
        case MN_GETHMENU:
            return reinterpret_cast<LRESULT>(open->menu);
        case WM_MOUSEACTIVATE:
            return MA_NOACTIVATE;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT: {
            PAINTSTRUCT paint;
            const HDC dc = BeginPaint(hwnd, &paint);
            if (const Menu* menu = MenuOf(*open)) PaintMenu(dc, *menu, open->selected);
            EndPaint(hwnd, &paint);
            return 0;
        }
        default:
            return DefWindowProcA(hwnd, message, wParam, lParam);
    }
}

class Loop {
  public:
    Loop(OpenMenu& open, Menu& menu) : open_(open), menu_(menu) {}

    void Run() {
        while (!open_.ended && Peek(open_.owner) != nullptr && MenuOf(open_) != nullptr) {
            MSG msg{};
            if (!PeekMessageA(&msg, nullptr, 0, 0, PM_NOREMOVE)) {
                if (!WaitMessage()) return;
                continue;
            }
            if (msg.message == static_cast<UINT>(WM_QUIT)) return;
            // A press beside the menu closes it and then reaches what it hit.
            if (IsPress(msg.message) && ItemAt(msg.pt) == kOutside) return;
            if (!PeekMessageA(&msg, nullptr, msg.message, msg.message, PM_REMOVE)) continue;
            if (CallFilterHooks(msg, MSGF_MENU)) continue;
            Take(msg);
        }
    }

  private:
    static constexpr int kOutside = -2;

    static bool IsPress(UINT message) {
        switch (message) {
            case WM_LBUTTONDOWN:
            case WM_LBUTTONDBLCLK:
            case WM_RBUTTONDOWN:
            case WM_MBUTTONDOWN:
                return true;
            default:
                return false;
        }
    }

    void Take(const MSG& msg) {
        if (msg.message >= WM_MOUSEFIRST && msg.message <= WM_MOUSELAST) return TakeMouse(msg);
        switch (msg.message) {
            case WM_KEYDOWN:
            case WM_SYSKEYDOWN:
                return TakeKey(msg);
            case WM_CHAR:
            case WM_SYSCHAR:
                return TakeCharacter(static_cast<int>(msg.wParam));
            case WM_KEYUP:
            case WM_SYSKEYUP:
                return;
            default:
                DispatchMessageA(&msg);
        }
    }

    void TakeMouse(const MSG& msg) {
        const int item = ItemAt(msg.pt);
        if (item == kOutside) return;
        if (msg.message == static_cast<UINT>(WM_LBUTTONUP)) {
            Choose(item);
        } else {
            Select(item);
        }
    }

    void TakeKey(const MSG& msg) {
        switch (msg.wParam) {
            case VK_ESCAPE:
            case VK_MENU:
            case VK_F10:
                open_.ended = true;
                return;
            case VK_DOWN:
                return Move(open_.selected, 1);
            case VK_UP:
                return Move(open_.selected, -1);
            case VK_HOME:
                return Move(-1, 1);
            case VK_END:
                return Move(-1, -1);
            case VK_RETURN:
                Choose(open_.selected);
                open_.ended = true;
                return;
            default:
                TranslateMessage(&msg);
        }
    }

    void TakeCharacter(int character) {
        const int item = ItemOfKey(character);
        if (item >= 0) {
            Select(item);
            return Choose(item);
        }
        if (character < ' ') return;
        const LRESULT answer = Send(open_.owner, WM_MENUCHAR, MAKEWPARAM(character, 0),
                                    reinterpret_cast<LPARAM>(open_.menu));
        switch (HIWORD(answer)) {
            case MNC_CLOSE:
                open_.ended = true;
                return;
            case MNC_EXECUTE:
                return Choose(LOWORD(answer));
            case MNC_SELECT:
                return Select(LOWORD(answer));
            default:
                MessageBeep(0);
        }
    }

    // The item whose text has the character behind a single ampersand; -1 for none.
    int ItemOfKey(int character) const {
        const std::string wanted(1, static_cast<char>(character));
        for (std::size_t i = 0; i < menu_.items.size(); ++i) {
            const std::string& text = menu_.items[i].text;
            for (std::size_t k = 0; k + 1 < text.size(); ++k) {
                if (text[k] != '&') continue;
                ++k;
                if (text[k] != '&' && SameName(text.substr(k, 1), wanted))
                    return static_cast<int>(i);
            }
        }
        return -1;
    }

    int ItemAt(POINT at) const {
        const Window* window = Peek(open_.window);
        if (window == nullptr || !Contains(FrameOnScreen(*window), at)) return kOutside;
        const POINT origin = ClientOrigin(*window);
        const POINT inside{at.x - origin.x, at.y - origin.y};
        for (std::size_t i = 0; i < menu_.items.size(); ++i) {
            if (Contains(menu_.items[i].rect, inside)) return static_cast<int>(i);
        }
        return -1;
    }

    void Select(int item) {
        const int count = static_cast<int>(menu_.items.size());
        if (item < 0 || item >= count || menu_.items[static_cast<std::size_t>(item)].IsSeparator())
            item = -1;
        if (item == open_.selected) return;
        Mark(open_.selected, false);
        open_.selected = item;
        Mark(item, true);
        InvalidateRect(open_.window, nullptr, FALSE);
    }

    void Mark(int item, bool on) {
        if (item < 0) return;
        UINT& flags = menu_.items[static_cast<std::size_t>(item)].flags;
        flags = on ? flags | MF_HILITE : flags & ~static_cast<UINT>(MF_HILITE);
    }

    // To the next item but separators, round the ends.
    void Move(int from, int step) {
        const int count = static_cast<int>(menu_.items.size());
        int item = from < 0 && step < 0 ? count : from;
        for (int i = 0; i < count; ++i) {
            item = (item + step + count) % count;
            if (!menu_.items[static_cast<std::size_t>(item)].IsSeparator()) return Select(item);
        }
    }

    // A greyed item is chosen by nothing.
    void Choose(int item) {
        if (item < 0 || item >= static_cast<int>(menu_.items.size())) return;
        const MenuItem& chosen = menu_.items[static_cast<std::size_t>(item)];
        if (!chosen.CanBeChosen()) return;
        open_.chosen = static_cast<UINT>(chosen.id);
        open_.ended = true;
    }

    OpenMenu& open_;
    Menu& menu_;
};

// Below the place and to the right of it; where that leaves the screen, above what is not to be
// covered, or the place itself.
POINT PlaceOnScreen(int x, int y, SIZE size, const TPMPARAMS* params) {
    const int screenWidth = GetSystemMetrics(SM_CXSCREEN);
    const int screenHeight = GetSystemMetrics(SM_CYSCREEN);
    if (y + size.cy > screenHeight) {
        const int above = params != nullptr ? params->rcExclude.top : y;
        y = std::max(above - static_cast<int>(size.cy), 0);
    }
    return {std::max(std::min(x, screenWidth - static_cast<int>(size.cx)), 0), y};
}

}  // namespace

void CancelMenu(HWND owner) {
    OpenMenu* open = ThisWorld().menus->open;
    Window* window = open == nullptr ? nullptr : Peek(open->owner);
    if (window != nullptr && (open->owner == owner || Root(window)->handle == owner))
        open->ended = true;
}

void RegisterMenuClass() {
    WNDCLASSA wc = {};
    wc.lpfnWndProc = MenuProc;
    wc.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    wc.lpszClassName = kClass;
    RegisterClassA(&wc);
}

}  // namespace headless

using namespace headless;

BOOL TrackPopupMenuEx(HMENU handle, UINT flags, int x, int y, HWND owner, TPMPARAMS* params) {
    KeepAlive keep;
    Menu* menu = FindMenu(handle);
    if (menu == nullptr || Lookup(owner) == nullptr) return FALSE;
    MenuTable& table = *ThisWorld().menus;
    if (table.open != nullptr) {
        SetLastError(ERROR_POPUP_ALREADY_ACTIVE);
        return FALSE;
    }
    if ((flags & ~static_cast<UINT>(TPM_VERTICAL)) != kFormFlags) {
        ReportUnsupported("TrackPopupMenuEx " + Hex(flags));
        return FALSE;
    }
    if (menu->items.empty()) return FALSE;
    OpenMenu open;
    open.menu = handle;
    open.owner = owner;
    const SIZE items = LayOutMenu(*menu);
    constexpr DWORD style = static_cast<DWORD>(WS_POPUP) | WS_BORDER;
    RECT frame{0, 0, items.cx, items.cy};
    AdjustWindowRectEx(&frame, style, FALSE, WS_EX_TOPMOST);
    const SIZE size{Width(frame), Height(frame)};
    const POINT at = PlaceOnScreen(x, y, size, params);
    open.window = CreateWindowExA(WS_EX_TOPMOST, kClass, "", style, at.x, at.y, size.cx, size.cy,
                                  owner, nullptr, nullptr, nullptr);
    if (open.window == nullptr) return FALSE;
    menu->window = open.window;
    table.open = &open;
    ShowWindow(open.window, SW_SHOWNOACTIVATE);
    SetCapture(owner);
    Loop(open, *menu).Run();
    if (GetCapture() == owner) ReleaseCapture();
    table.open = nullptr;
    if (Menu* left = FindMenu(handle)) {
        left->window = nullptr;
        for (MenuItem& item : left->items) item.flags &= ~static_cast<UINT>(MF_HILITE);
    }
    DestroyWindow(open.window);
    return static_cast<BOOL>(open.chosen);
}
