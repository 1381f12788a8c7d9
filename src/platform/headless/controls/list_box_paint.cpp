#include <algorithm>

#include "platform/headless/controls/list_box.h"

namespace headless {

int ListBox::ItemHeight(int index) const {
    if (!m_variableHeights || !IsIndex(index)) return std::max(m_itemHeight, 1);
    return std::max(m_items[static_cast<size_t>(index)]->height, 1);
}

// How many items fit whole from the top item on, at least one.
int ListBox::PageSize() const {
    RECT client;
    GetClientRect(m_hwnd, &client);
    if (!m_variableHeights) return std::max(1, client.bottom / ItemHeight(0));
    int fitting = 0;
    int height = 0;
    for (int i = m_top; i < Count(); ++i) {
        height += ItemHeight(i);
        if (height > client.bottom) break;
        ++fitting;
    }
    return std::max(1, fitting);
}

int ListBox::MaxTop() const {
    if (!m_variableHeights) return std::max(0, Count() - PageSize());
    RECT client;
    GetClientRect(m_hwnd, &client);
    int height = 0;
    for (int i = Count() - 1; i >= 0; --i) {
        height += ItemHeight(i);
        if (height > client.bottom) return std::min(i + 1, Count() - 1);
    }
    return 0;
}

void ListBox::SetTop(int index) {
    const int top = std::clamp(index, 0, MaxTop());
    if (top == m_top) return;
    m_top = top;
    Repaint();
}

// The mouse leaves an item that shows in part where it is.
void ListBox::EnsureVisible(int index, bool whole) {
    if (index < m_top) {
        SetTop(index);
        return;
    }
    if (!m_variableHeights) {
        RECT client;
        GetClientRect(m_hwnd, &client);
        const int page = PageSize();
        if (!whole && index == m_top + page && client.bottom > page * ItemHeight(0)) return;
        if (index >= m_top + PageSize()) SetTop(index - PageSize() + 1);
        return;
    }
    while (index >= m_top + PageSize() && m_top < MaxTop()) SetTop(m_top + 1);
}

// A list that may scroll carries WS_VSCROLL, and loses the width of the bar, only while it has more
// items than it shows.
void ListBox::UpdateScrollStyle() {
    if (!m_scrollStyle) return;
    const bool needed = MaxTop() > 0;
    if (needed == HasStyle(WS_VSCROLL)) return;
    SetStyle(WS_VSCROLL, needed);
    SetWindowPos(m_hwnd, nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

int ListBox::ItemFromPoint(POINT point) const {
    if (Count() == 0 || point.y < 0) return -1;
    if (!m_variableHeights) {
        const int index = m_top + point.y / ItemHeight(0);
        return index < Count() ? index : -1;
    }
    int bottom = 0;
    for (int i = m_top; i < Count(); ++i) {
        bottom += ItemHeight(i);
        if (point.y < bottom) return i;
    }
    return -1;
}

LRESULT ListBox::ItemFromPointResult(POINT point) const {
    RECT client;
    GetClientRect(m_hwnd, &client);
    bool outside = !PtInRect(&client, point);
    point.y = std::clamp<LONG>(point.y, 0, std::max<LONG>(client.bottom - 1, 0));
    int index = ItemFromPoint(point);
    if (index == -1) {
        outside = true;
        index = Count() - 1;
    }
    return MAKELRESULT(index, outside ? 1 : 0);
}

LRESULT ListBox::GetItemRect(LRESULT index, RECT* rect) const {
    GetClientRect(m_hwnd, rect);
    const RECT client = *rect;
    // The first place of an empty list has a rectangle too, and so has what would stand above it.
    if (index > 0 && !IsIndex(index)) {
        SetRectEmpty(rect);
        SetLastError(ERROR_INVALID_INDEX);
        return LB_ERR;
    }
    int top = 0;
    if (!m_variableHeights) {
        top = (static_cast<int>(index) - m_top) * ItemHeight(0);
    } else {
        for (int i = m_top; i < index; ++i) top += ItemHeight(i);
        for (int i = m_top - 1; i >= index; --i) top -= ItemHeight(i);
    }
    rect->top = top;
    rect->bottom = top + ItemHeight(static_cast<int>(index));
    return rect->top < client.bottom && rect->bottom > 0 ? 1 : 0;
}

LRESULT ListBox::SetItemHeight(LRESULT index, int height) {
    if (m_variableHeights) {
        if (!IsIndex(index)) return LB_ERR;
        m_items[static_cast<size_t>(index)]->height = height;
    } else {
        m_itemHeight = height;
    }
    UpdateScrollStyle();
    SetTop(m_top);
    Repaint();
    return LB_OKAY;
}

int ListBox::MeasureByOwner(int index, int height) {
    MEASUREITEMSTRUCT measure = {};
    measure.CtlType = ODT_LISTBOX;
    measure.CtlID = static_cast<UINT>(Id());
    measure.itemID = static_cast<UINT>(index);
    measure.itemHeight = static_cast<UINT>(height);
    if (IsIndex(index)) {
        const Item& item = *m_items[static_cast<size_t>(index)];
        measure.itemData =
            HasStrings() ? reinterpret_cast<ULONG_PTR>(item.text.c_str()) : item.data;
    }
    SendMessageA(m_owner, WM_MEASUREITEM, measure.CtlID, reinterpret_cast<LPARAM>(&measure));
    return static_cast<int>(measure.itemHeight);
}

void ListBox::Scroll(int request, int position) {
    switch (request) {
        case SB_LINEUP:
            SetTop(m_top - 1);
            break;
        case SB_LINEDOWN:
            SetTop(m_top + 1);
            break;
        case SB_PAGEUP:
            SetTop(m_top - PageSize());
            break;
        case SB_PAGEDOWN:
            SetTop(m_top + PageSize());
            break;
        case SB_TOP:
            SetTop(0);
            break;
        case SB_BOTTOM:
            SetTop(Count());
            break;
        case SB_THUMBPOSITION:
        case SB_THUMBTRACK:
            SetTop(position);
            break;
        default:
            break;
    }
}

void ListBox::Paint(HDC dc) {
    RECT client;
    GetClientRect(m_hwnd, &client);
    const HGDIOBJ oldFont =
        SelectObject(dc, m_font != nullptr ? m_font : GetStockObject(SYSTEM_FONT));
    const HBRUSH brush = reinterpret_cast<HBRUSH>(SendMessageA(m_owner, WM_CTLCOLORLISTBOX,
                                                               reinterpret_cast<WPARAM>(dc),
                                                               reinterpret_cast<LPARAM>(m_hwnd)));
    FillRect(dc, &client, brush != nullptr ? brush : GetSysColorBrush(COLOR_WINDOW));
    const bool hasFocus = GetFocus() == m_hwnd;
    int y = 0;
    for (int i = m_top; i < Count() && y < client.bottom; ++i) {
        const RECT rect = {0, y, client.right, y + ItemHeight(i)};
        PaintItem(dc, i, rect, hasFocus);
        if (m_hwnd == nullptr) break;
        y = rect.bottom;
    }
    SelectObject(dc, oldFont);
}

void ListBox::PaintItem(HDC dc, int index, const RECT& rect, bool hasFocus) {
    const Item& item = *m_items[static_cast<size_t>(index)];
    const bool selected = IsMultiple() ? item.selected : index == m_current;
    const bool focused = hasFocus && index == m_caret;
    const bool enabled = IsWindowEnabled(m_hwnd) != FALSE;
    if (IsDrawnByOwner()) {
        DRAWITEMSTRUCT draw = {};
        draw.CtlType = ODT_LISTBOX;
        draw.CtlID = static_cast<UINT>(Id());
        draw.itemID = static_cast<UINT>(index);
        draw.itemAction = ODA_DRAWENTIRE;
        draw.itemState =
            static_cast<UINT>((selected ? ODS_SELECTED : 0) | (focused ? ODS_FOCUS : 0) |
                              (enabled ? 0 : ODS_DISABLED));
        draw.hwndItem = m_hwnd;
        draw.hDC = dc;
        draw.rcItem = rect;
        draw.itemData = item.data;
        SendMessageA(m_owner, WM_DRAWITEM, draw.CtlID, reinterpret_cast<LPARAM>(&draw));
        return;
    }
    const COLORREF oldText = GetTextColor(dc);
    const COLORREF oldBack = GetBkColor(dc);
    if (selected) {
        SetTextColor(dc, GetSysColor(enabled ? COLOR_HIGHLIGHTTEXT : COLOR_GRAYTEXT));
        SetBkColor(dc, GetSysColor(COLOR_HIGHLIGHT));
    } else if (!enabled) {
        SetTextColor(dc, GetSysColor(COLOR_GRAYTEXT));
    }
    ExtTextOutA(dc, rect.left + 1, rect.top, ETO_OPAQUE | ETO_CLIPPED, &rect, item.text.c_str(),
                static_cast<UINT>(item.text.size()), nullptr);
    SetTextColor(dc, oldText);
    SetBkColor(dc, oldBack);
    if (focused) DrawFocusRect(dc, &rect);
}

}  // namespace headless
