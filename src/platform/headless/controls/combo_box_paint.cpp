#include <algorithm>

#include "platform/headless/controls/combo_box.h"

namespace headless {
namespace {

constexpr int kBorder = 2;  // around the field, on each side

}  // namespace

int ComboBox::ClosedHeight() const {
    return m_fieldHeight + 2 * kBorder;
}

int ComboBox::FieldHeightOfFont() const {
    return ControlDc(m_hwnd, m_font).Metrics().tmHeight + 4;
}

RECT ComboBox::ButtonRect() const {
    RECT client;
    GetClientRect(m_hwnd, &client);
    const LONG left =
        std::max<LONG>(client.right - kBorder - GetSystemMetrics(SM_CXVSCROLL), kBorder);
    return {left, kBorder, std::max(client.right - kBorder, left), client.bottom - kBorder};
}

// Where the text stands; an edit has a pixel of room around it.
RECT ComboBox::ItemRect() const {
    const RECT button = ButtonRect();
    RECT item = {kBorder, kBorder, button.left, button.bottom};
    if (!HasStyle(CBS_DROPDOWNLIST & ~CBS_DROPDOWN)) InflateRect(&item, -1, -1);
    return item;
}

void ComboBox::UpdateHeight() {
    RECT window;
    GetWindowRect(m_hwnd, &window);
    m_sizing = true;
    SetWindowPos(m_hwnd, nullptr, 0, 0, window.right - window.left, ClosedHeight(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    m_sizing = false;
    PlaceEdit();
    Repaint();
}

void ComboBox::PlaceEdit() {
    if (m_edit == nullptr) return;
    const RECT item = ItemRect();
    SetWindowPos(m_edit, nullptr, item.left, item.top, std::max<int>(item.right - item.left, 0),
                 std::max<int>(item.bottom - item.top, 0), SWP_NOZORDER | SWP_NOACTIVATE);
}

// The window with its list open below it, on the screen.
RECT ComboBox::DroppedRect() const {
    RECT rect;
    GetWindowRect(m_hwnd, &rect);
    rect.right = std::max<LONG>(rect.right, rect.left + m_droppedWidth);
    rect.bottom += m_droppedHeight;
    return rect;
}

// A list that has never been open already scrolls by the height that it will have.
void ComboBox::SizeList() {
    if (m_dropped) return;
    const RECT dropped = DroppedRect();
    SetWindowPos(m_list, nullptr, 0, 0, dropped.right - dropped.left, m_droppedHeight,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ComboBox::Paint(HDC dc) {
    RECT client;
    GetClientRect(m_hwnd, &client);
    const bool enabled = IsWindowEnabled(m_hwnd) != FALSE;
    const int saved = SaveDC(dc);
    SelectObject(dc, m_font != nullptr ? m_font : GetStockObject(SYSTEM_FONT));
    const HBRUSH brush = reinterpret_cast<HBRUSH>(
        SendMessageA(GetParent(m_hwnd), enabled ? WM_CTLCOLOREDIT : WM_CTLCOLORSTATIC,
                     reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(m_hwnd)));
    FillRect(dc, &client, brush != nullptr ? brush : GetSysColorBrush(COLOR_WINDOW));
    DrawEdge(dc, &client, EDGE_SUNKEN, BF_RECT);
    RECT button = ButtonRect();
    DrawFrameControl(dc, &button, DFC_SCROLL,
                     static_cast<UINT>(DFCS_SCROLLCOMBOBOX | (m_buttonDown ? DFCS_PUSHED : 0) |
                                       (enabled ? 0 : DFCS_INACTIVE)));
    if (m_edit == nullptr) PaintField(dc);
    RestoreDC(dc, saved);
}

// The selected item in the field of a combo box without an edit.
void ComboBox::PaintField(HDC dc) {
    RECT field = ItemRect();
    const bool enabled = IsWindowEnabled(m_hwnd) != FALSE;
    const bool focused = m_focused && !m_dropped;
    const int current = Current();
    if (m_ownerDraws) {
        InflateRect(&field, -1, -1);
        // With nothing chosen the owner draws item -1.
        DRAWITEMSTRUCT draw = {};
        draw.CtlType = ODT_COMBOBOX;
        draw.CtlID = static_cast<UINT>(Id());
        draw.itemID = static_cast<UINT>(current);
        draw.itemAction = ODA_DRAWENTIRE;
        draw.itemState =
            static_cast<UINT>(ODS_COMBOBOXEDIT | (focused ? ODS_SELECTED | ODS_FOCUS : 0) |
                              (enabled ? 0 : ODS_DISABLED));
        draw.hwndItem = m_hwnd;
        draw.hDC = dc;
        draw.rcItem = field;
        draw.itemData =
            static_cast<ULONG_PTR>(ToList(LB_GETITEMDATA, static_cast<WPARAM>(current)));
        SendMessageA(GetParent(m_hwnd), WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
        return;
    }
    if (focused) {
        SetTextColor(dc, GetSysColor(COLOR_HIGHLIGHTTEXT));
        SetBkColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    } else if (!enabled) {
        SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    }
    InflateRect(&field, -1, -1);
    const std::string text = ItemText(current);
    ExtTextOutA(dc, field.left + 1, field.top + 1,
                static_cast<UINT>(ETO_CLIPPED | (focused ? ETO_OPAQUE : 0)), &field, text.c_str(),
                static_cast<UINT>(text.size()), nullptr);
    if (focused) DrawFocusRect(dc, &field);
}

}  // namespace headless
