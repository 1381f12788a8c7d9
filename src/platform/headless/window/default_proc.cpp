// What every window does with a message that its own procedure leaves alone.
#include <algorithm>
#include <cstring>

#include "platform/headless/menu/menu.h"
#include "platform/headless/window/frame.h"
#include "platform/headless/window/window.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

LRESULT SetText(Window& window, LPARAM text) {
    window.text = text == 0 ? "" : reinterpret_cast<LPCSTR>(text);
    if ((window.style & WS_CAPTION) == WS_CAPTION && Visible(window)) {
        window.update.frame = true;
        DrawFrame(window);
        window.update.frame = false;
    }
    return TRUE;
}

LRESULT GetText(const Window& window, WPARAM size, LPARAM buffer) {
    if (size == 0 || buffer == 0) return 0;
    const std::size_t length = std::min<std::size_t>(window.text.size(), size - 1);
    auto* target = reinterpret_cast<char*>(buffer);
    std::memcpy(target, window.text.data(), length);
    target[length] = '\0';
    return static_cast<LRESULT>(length);
}

LRESULT EraseBackground(Window& window, HDC dc) {
    HBRUSH brush = window.cls->background;
    if (brush == nullptr) return 0;
    const auto number = reinterpret_cast<ULONG_PTR>(brush);
    // A small number is a system colour, counted from 1.
    if (number <= 32) brush = GetSysColorBrush(static_cast<int>(number) - 1);
    const RECT client{0, 0, Width(window.client), Height(window.client)};
    FillRect(dc, &client, brush);
    return 1;
}

LRESULT ControlColor(UINT message, HDC dc) {
    if (message == WM_CTLCOLOREDIT || message == WM_CTLCOLORLISTBOX) {
        SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
        SetBkColor(dc, GetSysColor(COLOR_WINDOW));
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
    }
    if (message == WM_CTLCOLORSCROLLBAR)
        return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_SCROLLBAR));
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(COLOR_3DFACE));
    return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_3DFACE));
}

LRESULT SetRedraw(Window& window, bool on) {
    const bool was = (window.style & WS_VISIBLE) != 0;
    if (on && !was) {
        window.style |= WS_VISIBLE;
    } else if (!on && was) {
        window.style &= ~static_cast<DWORD>(WS_VISIBLE);
    }
    return 0;
}

// A window with sizing borders keeps within the limits that it gives.
LRESULT PositionChanging(Window& window, WINDOWPOS& pos) {
    if ((pos.flags & SWP_NOSIZE) != 0) return 0;
    const bool limited =
        (window.style & WS_THICKFRAME) != 0 || (window.style & (WS_POPUP | WS_CHILD)) == 0;
    if (!limited) return 0;
    MINMAXINFO info{};
    info.ptMaxSize = {GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    info.ptMaxTrackSize = {32767, 32767};
    info.ptMinTrackSize = {GetSystemMetrics(SM_CXMIN), GetSystemMetrics(SM_CYMIN)};
    Send(window.handle, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    if (!window.alive || (window.style & WS_MINIMIZE) != 0) return 0;
    pos.cx = std::max<int>(std::min<int>(pos.cx, info.ptMaxTrackSize.x), info.ptMinTrackSize.x);
    pos.cy = std::max<int>(std::min<int>(pos.cy, info.ptMaxTrackSize.y), info.ptMinTrackSize.y);
    return 0;
}

LRESULT PositionChanged(Window& window, const WINDOWPOS& pos) {
    constexpr UINT kClientPlaceKept = 0x1000;
    constexpr UINT kClientSizeKept = 0x800;
    if ((pos.flags & kClientPlaceKept) == 0)
        Send(window.handle, WM_MOVE, 0, MAKELPARAM(window.client.left, window.client.top));
    if (!window.alive) return 0;
    const bool state =
        (pos.flags & SWP_FRAMECHANGED) != 0 && (window.style & (WS_MINIMIZE | WS_MAXIMIZE)) != 0;
    if ((pos.flags & kClientSizeKept) == 0 || state) {
        const WPARAM kind = (window.style & WS_MAXIMIZE)   ? SIZE_MAXIMIZED
                            : (window.style & WS_MINIMIZE) ? SIZE_MINIMIZED
                                                           : SIZE_RESTORED;
        Send(window.handle, WM_SIZE, kind, MAKELPARAM(Width(window.client), Height(window.client)));
    }
    return 0;
}

LRESULT MouseActivate(Window& window, WPARAM top, LPARAM lParam) {
    if (window.IsChildWindow()) {
        const LRESULT answer = Send(window.parent->handle, WM_MOUSEACTIVATE, top, lParam);
        if (answer != 0) return answer;
    }
    if ((window.exStyle & WS_EX_NOACTIVATE) != 0) return MA_NOACTIVATE;
    // A press on the caption activates as part of moving the window.
    return LOWORD(lParam) == HTCAPTION && HIWORD(lParam) == WM_LBUTTONDOWN ? MA_NOACTIVATE
                                                                           : MA_ACTIVATE;
}

LRESULT SetShape(Window& window, WPARAM wParam, LPARAM lParam) {
    const auto hit = static_cast<SHORT>(LOWORD(lParam));
    const UINT message = HIWORD(lParam);
    if (window.IsChildWindow() && Send(window.parent->handle, WM_SETCURSOR, wParam, lParam) != 0)
        return TRUE;
    if (!window.alive) return FALSE;
    switch (hit) {
        case HTERROR:
            // A click on a window that a modal one has disabled brings that one forward.
            if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN ||
                message == WM_MBUTTONDOWN) {
                const HWND popup = GetLastActivePopup(window.handle);
                if (popup != window.handle && Peek(popup) != nullptr && IsWindowVisible(popup))
                    SetActive(Root(Peek(popup))->handle, false, true);
                MessageBeep(0);
            }
            return FALSE;
        case HTCLIENT: {
            const Window* target = Peek(reinterpret_cast<HWND>(wParam));
            if (target == nullptr || target->cls->cursor == nullptr || target != &window)
                return FALSE;
            SetCursor(target->cls->cursor);
            return TRUE;
        }
        default:
            SetCursor(LoadCursorA(nullptr, IDC_ARROW));
            return TRUE;
    }
}

// The marks of keyboard use: the topmost window decides, then all within it are told.
LRESULT ChangeUiState(Window& window, WPARAM wParam, LPARAM lParam) {
    UINT action = LOWORD(wParam);
    const UINT flags = HIWORD(wParam);
    if (action == UIS_INITIALIZE) {
        // Marks are always shown here, as where the user has asked for them.
        action = UIS_CLEAR;
        return Send(window.handle, WM_UPDATEUISTATE,
                    MAKEWPARAM(action, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
    }
    if ((action != UIS_SET && action != UIS_CLEAR) ||
        (flags & ~static_cast<UINT>(UISF_HIDEFOCUS | UISF_HIDEACCEL | UISF_ACTIVE)) != 0)
        return 0;
    const UINT next = action == UIS_SET ? window.uiState | flags : window.uiState & ~flags;
    if (next == window.uiState) return 0;
    if (window.IsChildWindow() && !window.parent->IsDesktop())
        return Send(window.parent->handle, WM_CHANGEUISTATE, wParam, lParam);
    return Send(window.handle, WM_UPDATEUISTATE, wParam, lParam);
}

LRESULT UpdateUiState(Window& window, WPARAM wParam, LPARAM lParam) {
    const UINT flags = HIWORD(wParam);
    switch (LOWORD(wParam)) {
        case UIS_SET:
            window.uiState |= flags;
            break;
        case UIS_CLEAR:
            window.uiState &= ~flags;
            break;
        default:
            return 0;
    }
    std::vector<HWND> children;
    for (const Window* child : window.children) children.push_back(child->handle);
    for (HWND child : children) Send(child, WM_UPDATEUISTATE, wParam, lParam);
    return 0;
}

LRESULT SystemKey(Window& window, WPARAM key, LPARAM lParam) {
    if (key == VK_F4 && (lParam & (1 << 29)) != 0) {
        Window* root = Root(&window);
        if ((root->cls->style & CS_NOCLOSE) == 0)
            PostMessageA(root->handle, WM_SYSCOMMAND, SC_CLOSE, 0);
    }
    return 0;
}

LRESULT SystemCharacter(Window& window, WPARAM character, LPARAM lParam) {
    if (character == '\r') return 0;
    if ((lParam & (1 << 29)) == 0) return 0;
    if (character == VK_ESCAPE || character == VK_SPACE || character == '\t') return 0;
    // There is no menu that it opens, but looking for one ends what has the mouse.
    static_cast<void>(window);
    if (const HWND capture = GetCapture(); capture != nullptr) {
        Send(capture, WM_CANCELMODE, 0, 0);
        ReleaseCapture();
    }
    MessageBeep(0);
    return 0;
}

LRESULT SystemCommand(Window& window, WPARAM command) {
    switch (command & 0xFFF0) {
        case SC_CLOSE:
            return Send(window.handle, WM_CLOSE, 0, 0);
        case SC_MINIMIZE:
            ShowWindow(window.handle, SW_MINIMIZE);
            return 0;
        case SC_MAXIMIZE:
            ShowWindow(window.handle, SW_SHOWMAXIMIZED);
            return 0;
        case SC_RESTORE:
            ShowWindow(window.handle, SW_RESTORE);
            return 0;
        case SC_KEYMENU:
            return 0;
        default:
            ReportUnsupported("WM_SYSCOMMAND " + Hex(command));
            return 0;
    }
}

LRESULT Print(Window& window, WPARAM wParam, LPARAM flags) {
    const HWND hwnd = window.handle;
    if ((flags & PRF_CHECKVISIBLE) != 0 && !Visible(window)) return 0;
    if ((flags & PRF_ERASEBKGND) != 0) Send(hwnd, WM_ERASEBKGND, wParam, 0);
    if (window.alive && (flags & PRF_CLIENT) != 0) Send(hwnd, WM_PRINTCLIENT, wParam, flags);
    if (window.alive && (flags & PRF_CHILDREN) != 0) ReportUnsupported("WM_PRINT with children");
    return 0;
}

HICON& IconPlace(Window& window, WPARAM kind) {
    return kind == ICON_BIG ? window.icon : window.smallIcon;
}

LRESULT PassToParent(Window& window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!window.IsChildWindow() || window.parent->IsDesktop()) return 0;
    return Send(window.parent->handle, message, wParam, lParam);
}

LRESULT DefaultPaint(HWND hwnd) {
    PAINTSTRUCT paint;
    if (BeginPaint(hwnd, &paint) != nullptr) EndPaint(hwnd, &paint);
    return 0;
}

LRESULT ContextMenuFromMouse(Window& window, LPARAM lParam) {
    POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    ClientToScreen(window.handle, &at);
    return Send(window.handle, WM_CONTEXTMENU, reinterpret_cast<WPARAM>(window.handle),
                MAKELPARAM(at.x, at.y));
}

LRESULT ShowWithOwner(Window& window, WPARAM show, LPARAM reason) {
    if (reason == 0) return 0;
    // Its owner is hidden or shown: what the owner hid it shows again.
    if ((window.style & WS_POPUP) == 0 || window.owner == nullptr) return 0;
    const bool visible = (window.style & WS_VISIBLE) != 0;
    if (visible != (show != 0)) ShowWindow(window.handle, show ? SW_SHOWNOACTIVATE : SW_HIDE);
    return 0;
}

}  // namespace

}  // namespace headless

using namespace headless;

LRESULT DefWindowProcA(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    KeepAlive keep;
    Window* found = Peek(hwnd);
    if (found == nullptr) return 0;
    Window& window = *found;
    switch (message) {
        case WM_NCCREATE: {
            const auto* cs = reinterpret_cast<const CREATESTRUCTA*>(lParam);
            if (cs != nullptr && cs->lpszName != nullptr) {
                if (IS_INTRESOURCE(cs->lpszName)) {
                    window.text =
                        "#" + std::to_string(LOWORD(reinterpret_cast<ULONG_PTR>(cs->lpszName)));
                } else {
                    window.text = cs->lpszName;
                }
            }
            return TRUE;
        }
        case WM_NCCALCSIZE:
            if (lParam != 0) SubtractFrame(window, *reinterpret_cast<RECT*>(lParam));
            return 0;
        case WM_NCHITTEST:
            return HitFrame(window, {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)});
        case WM_NCPAINT:
            if (Visible(window)) DrawFrame(window);
            return 0;
        case WM_NCACTIVATE:
            if (Visible(window)) DrawFrame(window);
            return TRUE;
        case WM_NCDESTROY:
            window.text.clear();
            return 0;
        case WM_SETTEXT:
            return SetText(window, lParam);
        case WM_GETTEXT:
            return GetText(window, wParam, lParam);
        case WM_GETTEXTLENGTH:
            return static_cast<LRESULT>(window.text.size());
        case WM_CLOSE:
            DestroyWindow(hwnd);
            return 0;
        case WM_PAINT:
            return DefaultPaint(hwnd);
        case WM_ERASEBKGND:
            return EraseBackground(window, reinterpret_cast<HDC>(wParam));
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
            return ControlColor(message, reinterpret_cast<HDC>(wParam));
        case WM_SETREDRAW:
            return SetRedraw(window, wParam != 0);
        case WM_WINDOWPOSCHANGING:
            return PositionChanging(window, *reinterpret_cast<WINDOWPOS*>(lParam));
        case WM_WINDOWPOSCHANGED:
            return PositionChanged(window, *reinterpret_cast<const WINDOWPOS*>(lParam));
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE && (window.style & WS_MINIMIZE) == 0) SetFocus(hwnd);
            return 0;
        case WM_SHOWWINDOW:
            return ShowWithOwner(window, wParam, lParam);
        case WM_MOUSEACTIVATE:
            return MouseActivate(window, wParam, lParam);
        case WM_SETCURSOR:
            return SetShape(window, wParam, lParam);
        case WM_NCLBUTTONDOWN:
        case WM_NCLBUTTONUP:
        case WM_NCLBUTTONDBLCLK:
            return FrameMouse(window, message, wParam, lParam);
        case WM_RBUTTONUP:
            return ContextMenuFromMouse(window, lParam);
        case WM_CONTEXTMENU:
        case WM_MOUSEWHEEL:
        case WM_HELP:
            return PassToParent(window, message, wParam, lParam);
        case WM_CANCELMODE:
            CancelMenu(hwnd);
            if (GetCapture() == hwnd) ReleaseCapture();
            return 0;
        case WM_SYSCOMMAND:
            return SystemCommand(window, wParam);
        case WM_SYSKEYDOWN:
            return SystemKey(window, wParam, lParam);
        case WM_SYSCHAR:
            return SystemCharacter(window, wParam, lParam);
        case WM_KEYDOWN:
            if (wParam == VK_F1) {
                HELPINFO info{};
                info.cbSize = sizeof info;
                info.iContextType = HELPINFO_WINDOW;
                info.iCtrlId = window.IsChildWindow() ? static_cast<int>(window.id) : 0;
                info.hItemHandle = hwnd;
                GetCursorPos(&info.MousePos);
                Send(hwnd, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
            }
            return 0;
        case WM_CHANGEUISTATE:
            return ChangeUiState(window, wParam, lParam);
        case WM_UPDATEUISTATE:
            return UpdateUiState(window, wParam, lParam);
        case WM_QUERYUISTATE:
            return static_cast<LRESULT>(window.uiState);
        case WM_GETICON:
            return reinterpret_cast<LRESULT>(IconPlace(window, wParam));
        case WM_SETICON: {
            HICON& place = IconPlace(window, wParam);
            const HICON old = place;
            place = reinterpret_cast<HICON>(lParam);
            return reinterpret_cast<LRESULT>(old);
        }
        case WM_PRINT:
            return Print(window, wParam, lParam);
        case WM_QUERYOPEN:
            return TRUE;
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
            return -1;
        default:
            return 0;
    }
}
