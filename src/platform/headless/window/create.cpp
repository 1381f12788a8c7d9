// Creating and destroying windows: the order of messages and the links of the tree.
#include <algorithm>
#include <cstring>

#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/drawing/gdi.h"
#include "platform/headless/system/module_table.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/input_state.h"
#include "platform/headless/window/message_queue.h"
#include "platform/headless/window/timer_list.h"
#include "platform/headless/window/window.h"
#include "platform/headless/window/window_class.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr DWORD kUnsupportedExStyles = ~static_cast<DWORD>(
    WS_EX_DLGMODALFRAME | WS_EX_NOPARENTNOTIFY | WS_EX_TOPMOST | WS_EX_TRANSPARENT |
    WS_EX_TOOLWINDOW | WS_EX_WINDOWEDGE | WS_EX_CLIENTEDGE | WS_EX_CONTEXTHELP |
    WS_EX_CONTROLPARENT | WS_EX_STATICEDGE | WS_EX_APPWINDOW | WS_EX_NOACTIVATE | WS_EX_LAYERED |
    WS_EX_COMPOSITED | WS_EX_RIGHT);

struct Placement {
    int x, y, width, height;
};

// The place of a window whose creator left it to the system.
Placement Resolve(const CREATESTRUCTA& cs) {
    Placement place{cs.x, cs.y, cs.cx, cs.cy};
    const bool overlapped = (cs.style & (WS_CHILD | static_cast<LONG>(WS_POPUP))) == 0;
    if (place.x == CW_USEDEFAULT) {
        place.x = place.y = 0;
    }
    if (place.width == CW_USEDEFAULT) {
        place.width = overlapped ? GetSystemMetrics(SM_CXSCREEN) * 3 / 4 : 0;
        place.height = overlapped ? GetSystemMetrics(SM_CYSCREEN) * 3 / 4 : 0;
    }
    place.width = std::clamp(place.width, 0, 0x7FFF);
    place.height = std::clamp(place.height, 0, 0x7FFF);
    return place;
}

DWORD StyleOfNew(DWORD style) {
    if ((style & WS_CHILD) == 0) style |= WS_CLIPSIBLINGS;
    if ((style & (WS_CHILD | WS_POPUP)) == 0) style |= WS_CAPTION;
    return style & ~static_cast<DWORD>(WS_VISIBLE);
}

void NotifyParent(Window& window, UINT message) {
    if (!window.IsChildWindow() || (window.exStyle & WS_EX_NOPARENTNOTIFY) != 0) return;
    if (window.parent->IsDesktop()) return;
    Send(window.parent->handle, WM_PARENTNOTIFY, MAKEWPARAM(message, window.id),
         reinterpret_cast<LPARAM>(window.handle));
}

// The windows that a top-level window owns, topmost first.
std::vector<HWND> OwnedBy(HWND owner) {
    std::vector<HWND> owned;
    for (const Window* w : ThisWorld().desktop->children) {
        if (w->owner == owner) owned.push_back(w->handle);
    }
    return owned;
}

void SendDestroy(Window& window) {
    World& world = ThisWorld();
    if (world.capture == window.handle) ReleaseCapture();
    Send(window.handle, WM_DESTROY, 0, 0);
    if (!window.alive) return;
    std::vector<HWND> children;
    for (const Window* child : window.children) children.push_back(child->handle);
    for (HWND child : children) {
        Window* w = Peek(child);
        if (w != nullptr && w->parent == &window) SendDestroy(*w);
    }
}

// Ends a window and all within it, the children first, each with WM_NCDESTROY.
void Free(Window& window) {
    World& world = ThisWorld();
    while (window.alive && !window.children.empty()) {
        Window* child = window.children.front();
        Free(*child);
    }
    if (!window.alive) return;
    window.destroying = true;
    Send(window.handle, WM_NCDESTROY, 0, 0);
    if (!window.alive) return;
    world.timers->RemoveAllOf(window.handle);
    world.queue->ForgetWindow(window.handle);
    if (world.focus == window.handle) world.focus = nullptr;
    if (world.active == window.handle) world.active = nullptr;
    if (world.foreground == window.handle) world.foreground = nullptr;
    if (world.capture == window.handle) world.capture = nullptr;
    world.input->ForgetWindow(window.handle);
    gdi::ForgetWindow(window.handle);
    window.properties.clear();
    window.dialog.reset();
    Unlink(window);
    window.parent = nullptr;
    AddWindowToClass(*window.cls, -1);
    RetireWindow(window);
}

// A failed creation ends without WM_DESTROY when WM_NCCREATE refused, with it when WM_CREATE did.
HWND Abandon(HWND hwnd, bool sendDestroy) {
    Window* window = Peek(hwnd);
    if (window == nullptr) return nullptr;
    if (sendDestroy) SendDestroy(*window);
    window = Peek(hwnd);
    if (window != nullptr) Free(*window);
    return nullptr;
}

}  // namespace

void SendFirstSize(Window& window) {
    if (window.sizeSent) return;
    window.sizeSent = true;
    const HWND hwnd = window.handle;
    const WPARAM kind = (window.style & WS_MAXIMIZE)   ? SIZE_MAXIMIZED
                        : (window.style & WS_MINIMIZE) ? SIZE_MINIMIZED
                                                       : SIZE_RESTORED;
    Send(hwnd, WM_SIZE, kind, MAKELPARAM(Width(window.client), Height(window.client)));
    if (!window.alive) return;
    POINT at{window.client.left, window.client.top};
    Send(hwnd, WM_MOVE, 0, MAKELPARAM(at.x, at.y));
}

void LinkOnTop(Window& window) {
    Unlink(window);
    auto& siblings = window.parent->children;
    auto place = siblings.begin();
    if ((window.exStyle & WS_EX_TOPMOST) == 0) {
        place = std::find_if(siblings.begin(), siblings.end(),
                             [](const Window* w) { return (w->exStyle & WS_EX_TOPMOST) == 0; });
    }
    siblings.insert(place, &window);
}

void Unlink(Window& window) {
    if (window.parent == nullptr) return;
    std::erase(window.parent->children, &window);
}

DWORD EdgeCorrected(DWORD style, DWORD exStyle) {
    const bool edge =
        (exStyle & WS_EX_DLGMODALFRAME) != 0 ||
        ((exStyle & WS_EX_STATICEDGE) == 0 && (style & (WS_DLGFRAME | WS_THICKFRAME)) != 0);
    return edge ? exStyle | WS_EX_WINDOWEDGE : exStyle & ~static_cast<DWORD>(WS_EX_WINDOWEDGE);
}

}  // namespace headless

using namespace headless;

HWND CreateWindowExA(DWORD exStyle, LPCSTR className, LPCSTR windowName, DWORD style, int x, int y,
                     int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                     LPVOID param) {
    EnsureInitialized();
    KeepAlive keep;
    World& world = ThisWorld();
    WindowClass* cls = FindClass(className, instance);
    if (cls == nullptr) {
        SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
        return nullptr;
    }
    if ((exStyle & kUnsupportedExStyles) != 0)
        ReportUnsupported("extended window style " + Hex(exStyle & kUnsupportedExStyles));
    Window* parentWindow = world.desktop;
    HWND owner = nullptr;
    if (parent != nullptr) {
        Window* given = Lookup(parent);
        if (given == nullptr) return nullptr;
        if ((style & (WS_CHILD | WS_POPUP)) == static_cast<DWORD>(WS_CHILD)) {
            parentWindow = given;
        } else if (!given->IsDesktop()) {
            owner = Root(given)->handle;
        }
    } else if ((style & (WS_CHILD | WS_POPUP)) == static_cast<DWORD>(WS_CHILD)) {
        SetLastError(ERROR_TLW_WITH_WSCHILD);
        return nullptr;
    }
    if ((style & WS_CHILD) == 0 && menu != nullptr) ReportUnsupported("menu of a window");

    CREATESTRUCTA cs{};
    cs.lpCreateParams = param;
    cs.hInstance = instance;
    cs.hMenu = menu;
    cs.hwndParent = parent;
    cs.x = x;
    cs.y = y;
    cs.cx = width;
    cs.cy = height;
    cs.style = static_cast<LONG>(style);
    cs.lpszName = windowName;
    cs.lpszClass = className;
    cs.dwExStyle = exStyle;

    auto made = std::make_unique<Window>();
    Window& window = *made;
    window.cls = cls;
    window.proc = cls->proc;
    window.instance = instance;
    window.style = StyleOfNew(style);
    window.exStyle = EdgeCorrected(window.style, exStyle);
    window.id = reinterpret_cast<UINT_PTR>(menu);
    window.extra.resize(static_cast<std::size_t>(cls->windowExtra));
    window.parent = parentWindow;
    window.owner = owner;
    window.uiState = parentWindow->IsDesktop() ? 0 : parentWindow->uiState;
    const HWND hwnd = AdoptWindow(std::move(made));
    AddWindowToClass(*cls, 1);

    if (CallCbtCreate(hwnd, cs) != 0 || !window.alive) return Abandon(hwnd, false);

    Placement place = Resolve(cs);
    cs.x = place.x;
    cs.y = place.y;
    cs.cx = place.width;
    cs.cy = place.height;
    cs.style = static_cast<LONG>(window.style | (style & WS_VISIBLE));
    cs.dwExStyle = window.exStyle;
    // A child comes last among its siblings, where the order of creation is the order of the keys.
    if (window.IsChildWindow()) {
        parentWindow->children.push_back(&window);
    } else {
        LinkOnTop(window);
    }
    window.frame = {place.x, place.y, place.x + place.width, place.y + place.height};
    window.client = window.frame;
    window.restored = window.frame;

    if ((window.style & WS_THICKFRAME) != 0 || (window.style & (WS_POPUP | WS_CHILD)) == 0) {
        MINMAXINFO info{};
        info.ptMaxSize = {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
        info.ptMaxTrackSize = info.ptMaxSize;
        info.ptMinTrackSize = {GetSystemMetrics(SM_CXMIN), GetSystemMetrics(SM_CYMIN)};
        Send(hwnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        if (!window.alive) return nullptr;
        place.width = std::max<int>(place.width, info.ptMinTrackSize.x);
        place.height = std::max<int>(place.height, info.ptMinTrackSize.y);
        window.frame.right = place.x + place.width;
        window.frame.bottom = place.y + place.height;
        window.restored = window.frame;
        cs.cx = place.width;
        cs.cy = place.height;
    }
    if (Send(hwnd, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&cs)) == 0) return Abandon(hwnd, false);
    if (!window.alive) return nullptr;
    window.client = AskClientRect(window, window.frame, false);
    if (!window.alive) return nullptr;
    if (Send(hwnd, WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) == -1) return Abandon(hwnd, true);
    if (!window.alive) return nullptr;
    window.creating = false;
    // An overlapped window hears of its size when it is first shown.
    if ((window.style & (WS_CHILD | WS_POPUP)) != 0) SendFirstSize(window);
    if (!window.alive) return nullptr;
    NotifyParent(window, WM_CREATE);
    if (!window.alive) return nullptr;
    if ((style & WS_VISIBLE) != 0) {
        ShowWindow(hwnd, (style & WS_MAXIMIZE)   ? SW_SHOWMAXIMIZED
                         : (style & WS_MINIMIZE) ? SW_SHOWMINIMIZED
                                                 : SW_SHOW);
    }
    return window.alive ? hwnd : nullptr;
}

BOOL DestroyWindow(HWND hwnd) {
    KeepAlive keep;
    World& world = ThisWorld();
    Window* window = Lookup(hwnd);
    if (window == nullptr) return FALSE;
    if (window->IsDesktop()) {
        SetLastError(ERROR_ACCESS_DENIED);
        return FALSE;
    }
    if (window->destroying) return TRUE;
    if (CallCbt(HCBT_DESTROYWND, reinterpret_cast<WPARAM>(hwnd), 0) != 0) return FALSE;
    if (!window->alive) return TRUE;
    window->destroying = true;
    if (window->IsChildWindow()) NotifyParent(*window, WM_DESTROY);
    if (!window->alive) return TRUE;
    if ((window->style & WS_VISIBLE) != 0) {
        if (window->IsChildWindow()) {
            ShowWindow(hwnd, SW_HIDE);
        } else {
            SetWindowPos(hwnd, nullptr, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_HIDEWINDOW);
        }
        if (!window->alive) return TRUE;
    }
    if (world.active == hwnd) ActivateAnother(*window);
    if (!window->alive) return TRUE;
    // What the window owns ends with it, hidden ones included.
    for (HWND owned : OwnedBy(hwnd)) {
        if (Peek(owned) != nullptr) DestroyWindow(owned);
        if (!window->alive) return TRUE;
    }
    if (world.focus == hwnd) {
        Window* next = window->IsChildWindow() ? window->parent : nullptr;
        SetFocus(next != nullptr && !next->IsDesktop() ? next->handle : nullptr);
        if (!window->alive) return TRUE;
    }
    SendDestroy(*window);
    if (window->alive) Free(*window);
    return TRUE;
}

BOOL IsWindow(HWND hwnd) {
    return Peek(hwnd) != nullptr || OwnerThread(hwnd) != 0;
}
