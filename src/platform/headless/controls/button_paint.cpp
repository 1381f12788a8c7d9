// How a button looks.
#include "platform/headless/controls/button.h"

namespace headless {
namespace {

// The box of a check box and the circle of a radio button at 96 dots per inch, and the distance of
// the text behind it.
constexpr int kBoxSize = 13;
constexpr int kBoxGap = 4;
// A group box has its text this far from its side, and one pixel of background around it.
constexpr int kGroupMargin = 8;

int BoxSize(HDC dc) {
    return MulDiv(kBoxSize, GetDeviceCaps(dc, LOGPIXELSX), 96);
}

}  // namespace

// Asks the parent for the colours of the control; they are set into the context.
HBRUSH Button::AskColor(HDC dc) const {
    const bool button = IsPush() || Type() == BS_OWNERDRAW;
    const HWND parent = GetParent(m_hwnd);
    const UINT message = button ? WM_CTLCOLORBTN : WM_CTLCOLORSTATIC;
    const LRESULT brush = SendMessageA(parent, message, reinterpret_cast<WPARAM>(dc),
                                       reinterpret_cast<LPARAM>(m_hwnd));
    // A parent that answers nothing gets the answer of the system.
    if (brush == 0)
        return reinterpret_cast<HBRUSH>(DefWindowProcA(
            parent, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_hwnd)));
    return reinterpret_cast<HBRUSH>(brush);
}

std::string Button::Text() const {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(m_hwnd)), '\0');
    const int length = GetWindowTextA(m_hwnd, text.data(), static_cast<int>(text.size()) + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

UINT Button::TextFormat() const {
    const LONG_PTR style = GetWindowLongPtrA(m_hwnd, GWL_STYLE);
    UINT format = (style & BS_MULTILINE) != 0 ? DT_WORDBREAK : DT_SINGLELINE;
    switch (style & BS_CENTER) {
        case BS_LEFT:
            format |= DT_LEFT;
            break;
        case BS_RIGHT:
            format |= DT_RIGHT;
            break;
        case BS_CENTER:
            format |= DT_CENTER;
            break;
        default:
            if (IsPush() || HasStyle(BS_PUSHLIKE)) format |= DT_CENTER;
            break;
    }
    if ((SendMessageA(m_hwnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0)
        format |= DT_HIDEPREFIX;
    return format;
}

SIZE Button::LabelSize(HDC dc, const RECT& room) const {
    if (HasStyle(BS_ICON) && m_image != nullptr && m_imageType == IMAGE_ICON)
        return {GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    if (HasStyle(BS_BITMAP) && m_image != nullptr && m_imageType == IMAGE_BITMAP) {
        BITMAP bitmap = {};
        GetObjectA(m_image, sizeof bitmap, &bitmap);
        return {bitmap.bmWidth, bitmap.bmHeight};
    }
    const std::string text = Text();
    if (text.empty()) return {0, 0};
    RECT size = {0, 0, room.right - room.left, room.bottom - room.top};
    DrawTextA(dc, text.c_str(), -1, &size, TextFormat() | DT_CALCRECT);
    return {size.right, size.bottom};
}

// Where the text or the picture stands in the room that is left for it.
RECT Button::LabelRect(HDC dc, const RECT& room) const {
    const SIZE size = LabelSize(dc, room);
    const LONG_PTR style = GetWindowLongPtrA(m_hwnd, GWL_STYLE);
    int left = room.left;
    const UINT format = TextFormat();
    if ((format & DT_CENTER) != 0)
        left += (room.right - room.left - size.cx) / 2;
    else if ((format & DT_RIGHT) != 0)
        left = room.right - size.cx;
    int top = room.top + (room.bottom - room.top - size.cy) / 2;
    if ((style & BS_VCENTER) == BS_TOP) top = room.top;
    if ((style & BS_VCENTER) == BS_BOTTOM) top = room.bottom - size.cy;
    return {left, top, left + size.cx, top + size.cy};
}

void Button::PaintLabel(HDC dc, RECT rect) {
    if (HasStyle(BS_ICON) && m_image != nullptr && m_imageType == IMAGE_ICON) {
        DrawIcon(dc, rect.left, rect.top, static_cast<HICON>(m_image));
        return;
    }
    if (HasStyle(BS_BITMAP) && m_image != nullptr && m_imageType == IMAGE_BITMAP) {
        const HDC memory = CreateCompatibleDC(dc);
        const HGDIOBJ old = SelectObject(memory, m_image);
        BitBlt(dc, rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top, memory, 0,
               0, SRCCOPY);
        SelectObject(memory, old);
        DeleteDC(memory);
        return;
    }
    const std::string text = Text();
    if (text.empty()) return;
    const int mode = SetBkMode(dc, TRANSPARENT);
    if (IsWindowEnabled(m_hwnd)) {
        DrawTextA(dc, text.c_str(), -1, &rect, TextFormat() | DT_NOCLIP);
    } else {
        const COLORREF color = SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
        DrawTextA(dc, text.c_str(), -1, &rect, TextFormat() | DT_NOCLIP);
        SetTextColor(dc, color);
    }
    SetBkMode(dc, mode);
}

void Button::PaintPush(HDC dc, const RECT& client) {
    RECT frame = client;
    AskColor(dc);
    if (Type() == BS_DEFPUSHBUTTON) {
        FrameRect(dc, &frame, GetSysColorBrush(COLOR_WINDOWFRAME));
        InflateRect(&frame, -1, -1);
    }
    UINT state = DFCS_BUTTONPUSH | DFCS_ADJUSTRECT;
    if (m_highlit) state |= DFCS_PUSHED;
    if (m_check != BST_UNCHECKED) state |= DFCS_CHECKED;
    if (!IsWindowEnabled(m_hwnd)) state |= DFCS_INACTIVE;
    DrawFrameControl(dc, &frame, DFC_BUTTON, state);
    RECT label = LabelRect(dc, frame);
    if (m_highlit) OffsetRect(&label, 1, 1);
    const COLORREF color = SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
    PaintLabel(dc, label);
    SetTextColor(dc, color);
    if (m_focused) DrawFocusRect(dc, &frame);
}

void Button::PaintBox(HDC dc, const RECT& client, HBRUSH background) {
    FillRect(dc, &client, background);
    const int size = BoxSize(dc);
    RECT box = client;
    RECT room = client;
    if (HasStyle(BS_LEFTTEXT)) {
        box.left = client.right - size;
        room.right = box.left - kBoxGap;
    } else {
        box.right = client.left + size;
        room.left = box.right + kBoxGap;
    }
    const RECT label = LabelRect(dc, room);
    const LONG_PTR vertical = GetWindowLongPtrA(m_hwnd, GWL_STYLE) & BS_VCENTER;
    if (vertical == BS_BOTTOM)
        box.top = client.bottom - size;
    else if (vertical != BS_TOP)
        box.top = client.top + (client.bottom - client.top - size) / 2;
    box.bottom = box.top + size;
    UINT state = IsRadio() ? DFCS_BUTTONRADIO : DFCS_BUTTONCHECK;
    if (m_check == BST_INDETERMINATE) state = DFCS_BUTTON3STATE;
    if (m_check != BST_UNCHECKED) state |= DFCS_CHECKED;
    if (m_highlit) state |= DFCS_PUSHED;
    if (!IsWindowEnabled(m_hwnd)) state |= DFCS_INACTIVE;
    DrawFrameControl(dc, &box, DFC_BUTTON, state);
    PaintLabel(dc, label);
    if (m_focused && label.right > label.left) {
        RECT focus = label;
        InflateRect(&focus, 1, 1);
        IntersectRect(&focus, &focus, &client);
        DrawFocusRect(dc, &focus);
    }
}

void Button::PaintGroup(HDC dc, const RECT& client, HBRUSH background) {
    TEXTMETRICA metrics = {};
    GetTextMetricsA(dc, &metrics);
    RECT frame = client;
    frame.top += metrics.tmHeight / 2 - 1;
    DrawEdge(dc, &frame, EDGE_ETCHED, BF_RECT);
    const SIZE size = LabelSize(dc, client);
    if (size.cx == 0) return;
    RECT label = {client.left + kGroupMargin, client.top, 0, client.top + size.cy};
    const UINT format = TextFormat();
    if ((format & DT_CENTER) != 0)
        label.left = client.left + (client.right - client.left - size.cx) / 2;
    else if ((format & DT_RIGHT) != 0)
        label.left = client.right - kGroupMargin - size.cx;
    label.right = label.left + size.cx;
    // The frame stops before the text and goes on behind it.
    RECT gap = {label.left - 1, label.top, label.right + 1, label.bottom + 1};
    FillRect(dc, &gap, background);
    PaintLabel(dc, label);
}

void Button::PaintOwner(HDC dc, const RECT& client, UINT action) {
    AskColor(dc);
    DRAWITEMSTRUCT item = {};
    item.CtlType = ODT_BUTTON;
    item.CtlID = static_cast<UINT>(Id());
    item.itemAction = action;
    if (m_focused) item.itemState |= ODS_FOCUS;
    if (m_highlit) item.itemState |= ODS_SELECTED;
    if (!IsWindowEnabled(m_hwnd)) item.itemState |= ODS_DISABLED;
    item.hwndItem = m_hwnd;
    item.hDC = dc;
    item.rcItem = client;
    SendMessageA(GetParent(m_hwnd), WM_DRAWITEM, item.CtlID, reinterpret_cast<LPARAM>(&item));
}

void Button::Paint(HDC dc, UINT action) {
    RECT client = {};
    GetClientRect(m_hwnd, &client);
    const int saved = SaveDC(dc);
    if (m_font != nullptr) SelectObject(dc, m_font);
    if (Type() == BS_OWNERDRAW) {
        PaintOwner(dc, client, action);
    } else if (Type() == BS_GROUPBOX) {
        PaintGroup(dc, client, AskColor(dc));
    } else if (IsPush() || HasStyle(BS_PUSHLIKE)) {
        PaintPush(dc, client);
    } else {
        PaintBox(dc, client, AskColor(dc));
    }
    RestoreDC(dc, saved);
}

// A change of state shows at once, not with the next paint.
void Button::PaintNow(UINT action) {
    if (m_hwnd == nullptr || !IsWindowVisible(m_hwnd)) return;
    const HWND hwnd = m_hwnd;
    const HDC dc = GetDC(hwnd);
    Paint(dc, action);
    ReleaseDC(hwnd, dc);
}

}  // namespace headless
