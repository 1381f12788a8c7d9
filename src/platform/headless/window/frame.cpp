#include "platform/headless/window/frame.h"

#include <algorithm>
#include <cstring>

#include "platform/headless/window/input_state.h"

namespace headless {

namespace {

bool HasCaption(const Window& window) {
    return (window.style & WS_CAPTION) == WS_CAPTION;
}

int CaptionHeight(const Window& window) {
    return GetSystemMetrics((window.exStyle & WS_EX_TOOLWINDOW) != 0 ? SM_CYSMCAPTION
                                                                     : SM_CYCAPTION);
}

// The frame without scroll bars, in window coordinates.
RECT Inside(const Window& window) {
    const RECT edge = FrameThickness(window.style, window.exStyle);
    RECT inside{edge.left, edge.top, Width(window.frame) - edge.right,
                Height(window.frame) - edge.bottom};
    inside.right = std::max(inside.right, inside.left);
    inside.bottom = std::max(inside.bottom, inside.top);
    return inside;
}

void Fill(HDC dc, int left, int top, int right, int bottom, int color) {
    const RECT rect{left, top, right, bottom};
    FillRect(dc, &rect, GetSysColorBrush(color));
}

}  // namespace

void SubtractFrame(const Window& window, RECT& rect) {
    if ((window.style & WS_MINIMIZE) != 0) {
        rect.right = rect.left;
        rect.bottom = rect.top;
        return;
    }
    const RECT edge = FrameThickness(window.style, window.exStyle);
    rect.left += edge.left;
    rect.top += edge.top;
    rect.right -= edge.right;
    rect.bottom -= edge.bottom;
    const int bar = GetSystemMetrics(SM_CXVSCROLL);
    const int row = GetSystemMetrics(SM_CYHSCROLL);
    // A bar needs its own width and a pixel more.
    if ((window.style & WS_VSCROLL) != 0 && rect.right - rect.left >= bar) rect.right -= bar;
    if ((window.style & WS_HSCROLL) != 0 && rect.bottom - rect.top > row) rect.bottom -= row;
    rect.right = std::max(rect.right, rect.left);
    rect.bottom = std::max(rect.bottom, rect.top);
}

int HitFrame(const Window& window, POINT screen) {
    const RECT frame = FrameOnScreen(window);
    if (!Contains(frame, screen)) return HTNOWHERE;
    if (Contains(ClientOnScreen(window), screen)) return HTCLIENT;
    if ((window.style & WS_MINIMIZE) != 0) return HTCAPTION;
    const POINT at{screen.x - frame.left, screen.y - frame.top};
    const RECT inside = Inside(window);
    if (HasCaption(window)) {
        const int top = inside.top - CaptionHeight(window);
        if (at.y >= top && at.y < inside.top && at.x >= inside.left && at.x < inside.right) {
            if ((window.style & WS_SYSMENU) == 0) return HTCAPTION;
            const int box = GetSystemMetrics(SM_CXSIZE);
            if (at.x >= inside.right - box) return HTCLOSE;
            const bool boxes = (window.style & (WS_MINIMIZEBOX | WS_MAXIMIZEBOX)) != 0;
            if (boxes && at.x >= inside.right - 2 * box) return HTMAXBUTTON;
            if (boxes && at.x >= inside.right - 3 * box) return HTMINBUTTON;
            const bool icon = (window.exStyle & (WS_EX_TOOLWINDOW | WS_EX_DLGMODALFRAME)) == 0;
            return icon && at.x < inside.left + box ? HTSYSMENU : HTCAPTION;
        }
    }
    if (Contains(inside, at)) {
        const int bar = GetSystemMetrics(SM_CXVSCROLL);
        const int row = GetSystemMetrics(SM_CYHSCROLL);
        const bool vertical = (window.style & WS_VSCROLL) != 0 && at.x >= inside.right - bar;
        const bool horizontal = (window.style & WS_HSCROLL) != 0 && at.y >= inside.bottom - row;
        if (vertical && horizontal) return HTGROWBOX;
        if (vertical) return HTVSCROLL;
        if (horizontal) return HTHSCROLL;
        return HTNOWHERE;
    }
    if ((window.style & WS_THICKFRAME) == 0) return HTBORDER;
    constexpr int corner = 16;
    const bool left = at.x < corner;
    const bool right = at.x >= Width(frame) - corner;
    if (at.y < inside.top) return left ? HTTOPLEFT : right ? HTTOPRIGHT : HTTOP;
    if (at.y >= inside.bottom) return left ? HTBOTTOMLEFT : right ? HTBOTTOMRIGHT : HTBOTTOM;
    return at.x < inside.left ? HTLEFT : HTRIGHT;
}

void DrawFrame(Window& window) {
    const RECT edge = FrameThickness(window.style, window.exStyle);
    const bool bars = (window.style & (WS_VSCROLL | WS_HSCROLL)) != 0;
    if (edge.left == 0 && edge.top == 0 && edge.right == 0 && edge.bottom == 0 && !bars) return;
    const HDC dc = GetWindowDC(window.handle);
    if (dc == nullptr) return;
    RECT rect{0, 0, Width(window.frame), Height(window.frame)};
    const RECT inside = Inside(window);
    const bool frame = (window.style & (WS_DLGFRAME | WS_THICKFRAME)) != 0 ||
                       (window.exStyle & WS_EX_DLGMODALFRAME) != 0;
    if (frame) {
        DrawEdge(dc, &rect, EDGE_RAISED, BF_RECT | BF_ADJUST);
        FrameRect(dc, &rect, GetSysColorBrush(COLOR_3DFACE));
    } else if ((window.exStyle & WS_EX_STATICEDGE) != 0) {
        DrawEdge(dc, &rect, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    } else if ((window.style & WS_BORDER) != 0) {
        FrameRect(dc, &rect, GetSysColorBrush(COLOR_WINDOWFRAME));
        rect = {1, 1, rect.right - 1, rect.bottom - 1};
    }
    if ((window.exStyle & WS_EX_CLIENTEDGE) != 0) {
        RECT client{inside.left - GetSystemMetrics(SM_CXEDGE),
                    inside.top - GetSystemMetrics(SM_CYEDGE),
                    inside.right + GetSystemMetrics(SM_CXEDGE),
                    inside.bottom + GetSystemMetrics(SM_CYEDGE)};
        DrawEdge(dc, &client, EDGE_SUNKEN, BF_RECT);
    }
    if (HasCaption(window)) {
        const bool active = ThisWorld().active == window.handle;
        RECT caption{inside.left, inside.top - CaptionHeight(window), inside.right, inside.top - 1};
        Fill(dc, caption.left, caption.top, caption.right, caption.bottom,
             active ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION);
        SetBkMode(dc, TRANSPARENT);
        SetTextColor(dc, GetSysColor(active ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
        if ((window.style & WS_SYSMENU) != 0) {
            RECT box{caption.right - GetSystemMetrics(SM_CXSIZE), caption.top + 2,
                     caption.right - 2, caption.bottom - 2};
            caption.right = box.left;
            DrawFrameControl(dc, &box, DFC_CAPTION, 0);
        }
        caption.left += 4;
        DrawTextA(dc, window.text.c_str(), static_cast<int>(window.text.size()), &caption,
                  DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    }
    const int bar = GetSystemMetrics(SM_CXVSCROLL);
    const int row = GetSystemMetrics(SM_CYHSCROLL);
    if ((window.style & WS_VSCROLL) != 0) {
        Fill(dc, inside.right - bar, inside.top, inside.right, inside.bottom, COLOR_SCROLLBAR);
        RECT up{inside.right - bar, inside.top, inside.right, inside.top + row};
        RECT down{inside.right - bar, inside.bottom - row, inside.right, inside.bottom};
        DrawFrameControl(dc, &up, DFC_SCROLL, DFCS_SCROLLUP);
        DrawFrameControl(dc, &down, DFC_SCROLL, DFCS_SCROLLDOWN);
    }
    if ((window.style & WS_HSCROLL) != 0) {
        Fill(dc, inside.left, inside.bottom - row, inside.right, inside.bottom, COLOR_SCROLLBAR);
        RECT left{inside.left, inside.bottom - row, inside.left + bar, inside.bottom};
        RECT right{inside.right - bar, inside.bottom - row, inside.right, inside.bottom};
        DrawFrameControl(dc, &left, DFC_SCROLL, DFCS_SCROLLLEFT);
        DrawFrameControl(dc, &right, DFC_SCROLL, DFCS_SCROLLRIGHT);
    }
    ReleaseDC(window.handle, dc);
}

LRESULT FrameMouse(Window& window, UINT message, WPARAM hit, LPARAM at) {
    InputState& input = *ThisWorld().input;
    const HWND hwnd = window.handle;
    switch (message) {
        case WM_NCLBUTTONDOWN:
            input.closePressed = hit == HTCLOSE ? hwnd : nullptr;
            if (hit == HTCAPTION && !window.IsChildWindow()) SetActive(hwnd, true, true);
            break;
        case WM_NCLBUTTONUP:
            // The close box acts when it is let go above itself.
            if (hit == HTCLOSE && input.closePressed == hwnd)
                Send(hwnd, WM_SYSCOMMAND, SC_CLOSE, at);
            if (Peek(hwnd) != nullptr) input.closePressed = nullptr;
            break;
        case WM_NCLBUTTONDBLCLK:
            if (hit == HTSYSMENU) Send(hwnd, WM_SYSCOMMAND, SC_CLOSE, at);
            break;
        default:
            break;
    }
    return 0;
}

}  // namespace headless
