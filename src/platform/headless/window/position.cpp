// Where windows are: sizes of frames, moving, sizing, showing, and the order in depth.
#include <algorithm>

#include "platform/headless/window/window.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr UINT kKnownPositionFlags =
    SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOREDRAW | SWP_NOACTIVATE | SWP_FRAMECHANGED |
    SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_NOCOPYBITS | SWP_NOOWNERZORDER | SWP_NOSENDCHANGING;

// Coordinates beyond 16 bits do not fit the messages that carry them.
int Limited(int value) {
    return std::clamp(value, -32768, 32767);
}

HWND Above(const Window& window) {
    const auto& siblings = window.parent->children;
    const auto at = std::find(siblings.begin(), siblings.end(), &window);
    return at == siblings.begin() || at == siblings.end() ? HWND_TOP : (*std::prev(at))->handle;
}

// Takes out of a request what would change nothing.
void DropIdle(const Window& window, WINDOWPOS& pos) {
    if ((pos.flags & SWP_NOSIZE) == 0 && pos.cx == Width(window.frame) &&
        pos.cy == Height(window.frame))
        pos.flags |= SWP_NOSIZE;
    if ((pos.flags & SWP_NOMOVE) == 0 && pos.x == window.frame.left && pos.y == window.frame.top)
        pos.flags |= SWP_NOMOVE;
    const bool visible = (window.style & WS_VISIBLE) != 0;
    if (visible) pos.flags &= ~static_cast<UINT>(SWP_SHOWWINDOW);
    if (!visible) {
        pos.flags &= ~static_cast<UINT>(SWP_HIDEWINDOW);
        if ((pos.flags & SWP_SHOWWINDOW) == 0) pos.flags |= SWP_NOREDRAW;
    }
    if ((pos.flags & SWP_NOZORDER) == 0) {
        const HWND after = pos.hwndInsertAfter;
        const auto& siblings = window.parent->children;
        const bool first = !siblings.empty() && siblings.front() == &window;
        const bool last = !siblings.empty() && siblings.back() == &window;
        const bool topmost = (window.exStyle & WS_EX_TOPMOST) != 0;
        if ((after == HWND_TOP && (first || Above(window) == HWND_TOP)) ||
            (after == HWND_BOTTOM && last && !topmost) || after == window.handle ||
            (after != HWND_TOP && after != HWND_BOTTOM && after != HWND_TOPMOST &&
             after != HWND_NOTOPMOST && Above(window) == after))
            pos.flags |= SWP_NOZORDER;
    }
}

// The part of the window that its change of size uncovered or that its class wants drawn anew.
void InvalidateAfterResize(Window& window, const RECT& oldClient, UINT flags) {
    const int oldWidth = Width(oldClient);
    const int oldHeight = Height(oldClient);
    const int width = Width(window.client);
    const int height = Height(window.client);
    const UINT redraw = window.cls->style & (CS_HREDRAW | CS_VREDRAW);
    const bool all = (flags & (SWP_FRAMECHANGED | SWP_NOCOPYBITS)) != 0 ||
                     (width != oldWidth && (redraw & CS_HREDRAW) != 0) ||
                     (height != oldHeight && (redraw & CS_VREDRAW) != 0);
    if (all) {
        InvalidateAll(window, true);
        return;
    }
    window.update.frame = true;
    if (width > oldWidth) {
        const RECT strip{oldWidth, 0, width, height};
        RedrawWindow(window.handle, &strip, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
    if (height > oldHeight) {
        const RECT strip{0, oldHeight, width, height};
        RedrawWindow(window.handle, &strip, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

// What a window owns goes with it in depth and lies above it.
void RaiseOwned(Window& window) {
    std::vector<Window*> owned;
    for (Window* w : window.parent->children) {
        if (w->owner == window.handle) owned.push_back(w);
    }
    for (auto w = owned.rbegin(); w != owned.rend(); ++w) {
        LinkOnTop(**w);
        RaiseOwned(**w);
    }
}

BOOL ApplyPosition(WINDOWPOS& pos) {
    KeepAlive keep;
    Window* window = Lookup(pos.hwnd);
    if (window == nullptr) return FALSE;
    if (window->IsDesktop()) {
        SetLastError(ERROR_INVALID_WINDOW_HANDLE);
        return FALSE;
    }
    if ((pos.flags & ~kKnownPositionFlags) != 0)
        ReportUnsupported("SetWindowPos flags " + Hex(pos.flags & ~kKnownPositionFlags));
    const HWND hwnd = window->handle;
    if ((pos.flags & SWP_NOMOVE) == 0) {
        pos.x = Limited(pos.x);
        pos.y = Limited(pos.y);
    } else {
        pos.x = window->frame.left;
        pos.y = window->frame.top;
    }
    if ((pos.flags & SWP_NOSIZE) == 0) {
        pos.cx = std::clamp(pos.cx, 0, 32767);
        pos.cy = std::clamp(pos.cy, 0, 32767);
    } else {
        pos.cx = Width(window->frame);
        pos.cy = Height(window->frame);
    }
    if ((pos.flags & SWP_NOZORDER) == 0 && pos.hwndInsertAfter != HWND_TOP &&
        pos.hwndInsertAfter != HWND_BOTTOM && pos.hwndInsertAfter != HWND_TOPMOST &&
        pos.hwndInsertAfter != HWND_NOTOPMOST) {
        const Window* after = Lookup(pos.hwndInsertAfter);
        if (after == nullptr) return FALSE;
        // A sibling only: otherwise nothing is moved at all.
        if (after->parent != window->parent) return TRUE;
    }
    if ((pos.flags & SWP_NOSENDCHANGING) == 0) {
        Send(hwnd, WM_WINDOWPOSCHANGING, 0, reinterpret_cast<LPARAM>(&pos));
        if (!window->alive) return FALSE;
        pos.cx = std::clamp(pos.cx, 0, 32767);
        pos.cy = std::clamp(pos.cy, 0, 32767);
    }
    DropIdle(*window, pos);

    RECT frame = window->frame;
    if ((pos.flags & SWP_NOMOVE) == 0)
        frame = {pos.x, pos.y, pos.x + Width(frame), pos.y + Height(frame)};
    if ((pos.flags & SWP_NOSIZE) == 0) {
        frame.right = frame.left + pos.cx;
        frame.bottom = frame.top + pos.cy;
    }
    const RECT oldFrame = window->frame;
    const RECT oldClient = window->client;
    RECT client = Moved(oldClient, frame.left - oldFrame.left, frame.top - oldFrame.top);
    if ((pos.flags & SWP_NOSIZE) == 0 || (pos.flags & SWP_FRAMECHANGED) != 0) {
        client = AskClientRect(*window, frame, true);
        if (!window->alive) return FALSE;
    }
    if ((pos.flags & SWP_NOZORDER) == 0) {
        ReorderWindow(*window, pos.hwndInsertAfter);
        if (!window->IsChildWindow() && (pos.flags & SWP_NOOWNERZORDER) == 0) RaiseOwned(*window);
    }
    const bool wasVisible = (window->style & WS_VISIBLE) != 0;
    window->frame = frame;
    window->client = client;
    if ((window->style & (WS_MINIMIZE | WS_MAXIMIZE)) == 0) window->restored = frame;
    if ((pos.flags & SWP_HIDEWINDOW) != 0) {
        if (wasVisible && (pos.flags & SWP_NOREDRAW) == 0) InvalidateParentArea(*window, oldFrame);
        window->style &= ~static_cast<DWORD>(WS_VISIBLE);
        ForgetUpdates(*window);
    } else if ((pos.flags & SWP_SHOWWINDOW) != 0) {
        window->style |= WS_VISIBLE;
        if ((pos.flags & SWP_NOREDRAW) == 0) InvalidateAll(*window, true);
    } else if (wasVisible && (pos.flags & SWP_NOREDRAW) == 0) {
        const bool moved = frame.left != oldFrame.left || frame.top != oldFrame.top;
        const bool sized = Width(client) != Width(oldClient) || Height(client) != Height(oldClient);
        if (moved || Width(frame) < Width(oldFrame) || Height(frame) < Height(oldFrame))
            InvalidateParentArea(*window, Without(oldFrame, frame));
        if (sized || (pos.flags & (SWP_FRAMECHANGED | SWP_NOCOPYBITS)) != 0)
            InvalidateAfterResize(*window, oldClient, pos.flags);
    }
    if ((pos.flags & (SWP_NOACTIVATE | SWP_HIDEWINDOW)) == 0) {
        if (window->IsChildWindow()) {
            Send(hwnd, WM_CHILDACTIVATE, 0, 0);
        } else {
            SetForegroundWindow(hwnd);
        }
        if (!window->alive) return TRUE;
    }
    constexpr UINT kNothing = SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER;
    const bool changed = (pos.flags & kNothing) != kNothing ||
                         (pos.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW | SWP_FRAMECHANGED)) != 0;
    if (changed) {
        WINDOWPOS done = pos;
        done.x = window->frame.left;
        done.y = window->frame.top;
        done.cx = Width(window->frame);
        done.cy = Height(window->frame);
        // The procedure's default step sends WM_MOVE and WM_SIZE for what is not marked as kept.
        if (client.left == oldClient.left && client.top == oldClient.top)
            done.flags |= 0x1000;  // client place kept
        if (Width(client) == Width(oldClient) && Height(client) == Height(oldClient))
            done.flags |= 0x800;  // client size kept
        Send(hwnd, WM_WINDOWPOSCHANGED, 0, reinterpret_cast<LPARAM>(&done));
    }
    return TRUE;
}

void FocusOutOfHidden(Window& window) {
    // A focus deeper inside stays where it is.
    if (ThisWorld().focus != window.handle) return;
    Window* parent = window.parent;
    SetFocus(parent == nullptr || parent->IsDesktop() ? nullptr : parent->handle);
}

// Changes between minimized, maximized and restored; gives the frame to take.
RECT FrameForState(Window& window, int command) {
    if ((window.style & (WS_MINIMIZE | WS_MAXIMIZE)) == 0) window.restored = window.frame;
    window.style &= ~static_cast<DWORD>(WS_MINIMIZE | WS_MAXIMIZE);
    switch (command) {
        case SW_SHOWMINIMIZED:
        case SW_MINIMIZE:
        case SW_SHOWMINNOACTIVE: {
            window.style |= WS_MINIMIZE;
            const int height = GetSystemMetrics(SM_CYCAPTION) + 8;
            return {-32000, -32000, -32000 + 160, -32000 + height};
        }
        case SW_SHOWMAXIMIZED: {
            window.style |= WS_MAXIMIZE;
            if (!window.IsTopLevel()) {
                return {0, 0, Width(window.parent->client), Height(window.parent->client)};
            }
            MONITORINFO info{};
            info.cbSize = sizeof info;
            GetMonitorInfoA(MonitorFromWindow(window.handle, MONITOR_DEFAULTTONEAREST), &info);
            return info.rcWork;
        }
        default:
            return window.restored;
    }
}

BOOL ShowInState(Window& window, int command) {
    const HWND hwnd = window.handle;
    const bool wasVisible = (window.style & WS_VISIBLE) != 0;
    const bool minimizing =
        command == SW_SHOWMINIMIZED || command == SW_MINIMIZE || command == SW_SHOWMINNOACTIVE;
    const bool iconic = (window.style & WS_MINIMIZE) != 0;
    const bool zoomed = (window.style & WS_MAXIMIZE) != 0;
    const bool same = minimizing ? iconic : command == SW_SHOWMAXIMIZED && zoomed && !iconic;
    if (same && wasVisible) return TRUE;
    const Window* focus = Peek(ThisWorld().focus);
    if (minimizing && focus != nullptr && Within(&window, focus)) SetFocus(nullptr);
    if (!window.alive) return FALSE;
    const RECT frame = FrameForState(window, command);
    if (!wasVisible) {
        Send(hwnd, WM_SHOWWINDOW, TRUE, 0);
        if (!window.alive) return FALSE;
    }
    UINT flags = SWP_FRAMECHANGED | SWP_SHOWWINDOW;
    if (command == SW_MINIMIZE || command == SW_SHOWMINNOACTIVE) flags |= SWP_NOACTIVATE;
    if (minimizing) flags |= SWP_NOZORDER;
    SetWindowPos(hwnd, HWND_TOP, frame.left, frame.top, Width(frame), Height(frame), flags);
    if (window.alive && minimizing && command != SW_SHOWMINIMIZED && ThisWorld().active == hwnd)
        ActivateAnother(window);
    return wasVisible;
}

}  // namespace

RECT FrameThickness(DWORD style, DWORD exStyle) {
    RECT frame{};
    AdjustWindowRectEx(&frame, style, FALSE, exStyle);
    return {-frame.left, -frame.top, frame.right, frame.bottom};
}

RECT AskClientRect(Window& window, const RECT& frame, bool validRects) {
    RECT client = frame;
    if (validRects) {
        WINDOWPOS pos{window.handle, HWND_TOP,      frame.left, frame.top,
                      Width(frame),  Height(frame), 0};
        NCCALCSIZE_PARAMS params{};
        params.rgrc[0] = frame;
        params.rgrc[1] = window.frame;
        params.rgrc[2] = window.client;
        params.lppos = &pos;
        Send(window.handle, WM_NCCALCSIZE, TRUE, reinterpret_cast<LPARAM>(&params));
        client = params.rgrc[0];
    } else {
        Send(window.handle, WM_NCCALCSIZE, FALSE, reinterpret_cast<LPARAM>(&client));
    }
    client.right = std::max(client.right, client.left);
    client.bottom = std::max(client.bottom, client.top);
    return client;
}

void RaiseWithOwned(Window& window) {
    LinkOnTop(window);
    RaiseOwned(window);
}

void ReorderWindow(Window& window, HWND insertAfter) {
    auto& siblings = window.parent->children;
    if (insertAfter == HWND_TOPMOST) window.exStyle |= WS_EX_TOPMOST;
    if (insertAfter == HWND_NOTOPMOST || insertAfter == HWND_BOTTOM)
        window.exStyle &= ~static_cast<DWORD>(WS_EX_TOPMOST);
    if (insertAfter == HWND_TOP || insertAfter == HWND_TOPMOST || insertAfter == HWND_NOTOPMOST) {
        LinkOnTop(window);
        return;
    }
    Unlink(window);
    if (insertAfter == HWND_BOTTOM) {
        siblings.push_back(&window);
        return;
    }
    const auto at = std::find_if(siblings.begin(), siblings.end(),
                                 [&](const Window* w) { return w->handle == insertAfter; });
    siblings.insert(at == siblings.end() ? at : std::next(at), &window);
}

}  // namespace headless

using namespace headless;

BOOL AdjustWindowRectEx(RECT* rect, DWORD style, BOOL menu, DWORD exStyle) {
    if (rect == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    const DWORD edges = exStyle & (WS_EX_STATICEDGE | WS_EX_DLGMODALFRAME);
    int border = 0;
    if (edges == static_cast<DWORD>(WS_EX_STATICEDGE)) {
        border = 1;
    } else if ((exStyle & WS_EX_DLGMODALFRAME) != 0 ||
               (style & (WS_THICKFRAME | WS_DLGFRAME)) != 0) {
        border = 2;
    }
    if ((style & WS_THICKFRAME) != 0)
        border += GetSystemMetrics(SM_CXFRAME) - GetSystemMetrics(SM_CXDLGFRAME);
    if ((style & (WS_BORDER | WS_DLGFRAME)) != 0 || (exStyle & WS_EX_DLGMODALFRAME) != 0) ++border;
    rect->left -= border;
    rect->top -= border;
    rect->right += border;
    rect->bottom += border;
    if ((style & WS_CAPTION) == WS_CAPTION) {
        rect->top -=
            GetSystemMetrics((exStyle & WS_EX_TOOLWINDOW) != 0 ? SM_CYSMCAPTION : SM_CYCAPTION);
    }
    if (menu) rect->top -= GetSystemMetrics(SM_CYMENU);
    if ((exStyle & WS_EX_CLIENTEDGE) != 0) {
        const int dx = GetSystemMetrics(SM_CXEDGE);
        const int dy = GetSystemMetrics(SM_CYEDGE);
        rect->left -= dx;
        rect->top -= dy;
        rect->right += dx;
        rect->bottom += dy;
    }
    return TRUE;
}

BOOL SetWindowPos(HWND hwnd, HWND insertAfter, int x, int y, int cx, int cy, UINT flags) {
    WINDOWPOS pos{hwnd, insertAfter, x, y, cx, cy, flags};
    return ApplyPosition(pos);
}

BOOL MoveWindow(HWND hwnd, int x, int y, int width, int height, BOOL repaint) {
    UINT flags = SWP_NOZORDER | SWP_NOACTIVATE;
    if (!repaint) flags |= SWP_NOREDRAW;
    return SetWindowPos(hwnd, nullptr, x, y, width, height, flags);
}

BOOL BringWindowToTop(HWND hwnd) {
    return SetWindowPos(hwnd, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
}

BOOL ShowWindow(HWND hwnd, int command) {
    KeepAlive keep;
    Window* window = Lookup(hwnd);
    if (window == nullptr || window->IsDesktop()) return FALSE;
    const bool wasVisible = (window->style & WS_VISIBLE) != 0;
    UINT flags = SWP_NOSIZE | SWP_NOMOVE;
    bool show = true;
    switch (command) {
        case SW_HIDE:
            if (!wasVisible) return FALSE;
            show = false;
            flags |= SWP_HIDEWINDOW;
            if (window->IsChildWindow()) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
            break;
        case SW_SHOWNA:
        case SW_SHOWNOACTIVATE:
            if (command == SW_SHOWNOACTIVATE && (window->style & WS_MINIMIZE) != 0)
                return ShowInState(*window, command);
            if (wasVisible && command == SW_SHOWNOACTIVATE) return TRUE;
            flags |= SWP_NOACTIVATE | SWP_SHOWWINDOW;
            if (window->IsChildWindow() || command == SW_SHOWNOACTIVATE) flags |= SWP_NOZORDER;
            break;
        case SW_SHOW:
        case SW_SHOWNORMAL:
        case SW_RESTORE:
        case SW_SHOWDEFAULT:
            if (command != SW_SHOW && (window->style & (WS_MINIMIZE | WS_MAXIMIZE)) != 0)
                return ShowInState(*window, command);
            if (wasVisible) return TRUE;
            flags |= SWP_SHOWWINDOW;
            if (window->IsChildWindow()) flags |= SWP_NOACTIVATE | SWP_NOZORDER;
            break;
        case SW_SHOWMINIMIZED:
        case SW_SHOWMAXIMIZED:
        case SW_MINIMIZE:
        case SW_SHOWMINNOACTIVE:
            return ShowInState(*window, command);
        default:
            ReportUnsupported("ShowWindow " + std::to_string(command));
            return wasVisible;
    }
    if (show != wasVisible || command == SW_SHOWNA) {
        Send(hwnd, WM_SHOWWINDOW, show, 0);
        if (!window->alive) return wasVisible;
    }
    if (!window->IsTopLevel() && !Visible(*window->parent)) {
        // Nothing can be seen: only the style changes, and no message tells of it.
        if (show) {
            window->style |= WS_VISIBLE;
        } else {
            window->style &= ~static_cast<DWORD>(WS_VISIBLE);
        }
    } else {
        SetWindowPos(hwnd, HWND_TOP, 0, 0, 0, 0, flags);
    }
    if (!window->alive) return wasVisible;
    if (show) SendFirstSize(*window);
    if (!window->alive) return wasVisible;
    if (!show) {
        if (ThisWorld().active == hwnd) ActivateAnother(*window);
        if (window->alive) FocusOutOfHidden(*window);
    }
    return wasVisible;
}

BOOL GetWindowRect(HWND hwnd, RECT* rect) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || rect == nullptr) return FALSE;
    *rect = FrameOnScreen(*window);
    return TRUE;
}

BOOL GetClientRect(HWND hwnd, RECT* rect) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || rect == nullptr) return FALSE;
    *rect = {0, 0, Width(window->client), Height(window->client)};
    return TRUE;
}

BOOL GetWindowPlacement(HWND hwnd, WINDOWPLACEMENT* placement) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || placement == nullptr) return FALSE;
    placement->flags = 0;
    placement->showCmd = (window->style & WS_MINIMIZE)   ? SW_SHOWMINIMIZED
                         : (window->style & WS_MAXIMIZE) ? SW_SHOWMAXIMIZED
                                                         : SW_SHOWNORMAL;
    placement->ptMinPosition = {-1, -1};
    placement->ptMaxPosition = {-1, -1};
    placement->rcNormalPosition =
        (window->style & (WS_MINIMIZE | WS_MAXIMIZE)) != 0 ? window->restored : window->frame;
    return TRUE;
}

BOOL ClientToScreen(HWND hwnd, POINT* point) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || point == nullptr) return FALSE;
    const POINT origin = ClientOrigin(*window);
    point->x += origin.x;
    point->y += origin.y;
    return TRUE;
}

BOOL ScreenToClient(HWND hwnd, POINT* point) {
    const Window* window = Lookup(hwnd);
    if (window == nullptr || point == nullptr) return FALSE;
    const POINT origin = ClientOrigin(*window);
    point->x -= origin.x;
    point->y -= origin.y;
    return TRUE;
}

int MapWindowPoints(HWND from, HWND to, POINT* points, UINT count) {
    const Window* source = LookupOrDesktop(from);
    const Window* target = LookupOrDesktop(to);
    if (source == nullptr || target == nullptr || (points == nullptr && count > 0)) return 0;
    const POINT a = ClientOrigin(*source);
    const POINT b = ClientOrigin(*target);
    const int dx = a.x - b.x;
    const int dy = a.y - b.y;
    for (UINT i = 0; i < count; ++i) {
        points[i].x += dx;
        points[i].y += dy;
    }
    return MAKELONG(static_cast<WORD>(dx), static_cast<WORD>(dy));
}
