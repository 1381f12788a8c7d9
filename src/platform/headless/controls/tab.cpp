#include "platform/headless/controls/tab.h"

#include <algorithm>
#include <cstring>

#include "platform/headless/controls/controls.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {
namespace {

// Distances in pixels: from the corner of the control to the first tab, and from the edge of the
// page to its contents.
constexpr int kFirstTab = 2;
constexpr int kPageBorder = 4;
// A tab is this much higher than its text with its padding.
constexpr int kTabBorder = 2;
constexpr int kLeastWidth = 54;
constexpr int kFixedWidth = 96;

// The notification of a key, packed as the platform has it.
struct __attribute__((packed)) KeyNotification {
    NMHDR hdr;
    WORD wVKey;
    UINT flags;
};

// The width of a text, with the sign of its mnemonic or as it is drawn.
int LabelWidth(HWND hwnd, HFONT font, const std::string& text, UINT prefix) {
    const HDC dc = GetDC(hwnd);
    const HGDIOBJ old = SelectObject(dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    RECT rect = {};
    DrawTextA(dc, text.c_str(), -1, &rect, DT_SINGLELINE | DT_CALCRECT | prefix);
    SelectObject(dc, old);
    ReleaseDC(hwnd, dc);
    return rect.right - rect.left;
}

int DisplayScale(HWND hwnd, int pixels) {
    const HDC dc = GetDC(hwnd);
    const int dpi = GetDeviceCaps(dc, LOGPIXELSX);
    ReleaseDC(hwnd, dc);
    return MulDiv(pixels, dpi, 96);
}

}  // namespace

Tab::Tab(HWND hwnd, const CREATESTRUCTA& create) : ControlObject(hwnd) {
    constexpr LONG kKnown = TCS_FIXEDWIDTH | TCS_FOCUSONBUTTONDOWN | TCS_FOCUSNEVER | TCS_HOTTRACK |
                            TCS_FORCELABELLEFT | TCS_FORCEICONLEFT;
    const LONG unknown = create.style & 0xFFFF & ~kKnown;
    if (unknown != 0) ReportUnsupported("tab control style " + std::to_string(unknown));
    SetStyle(WS_CLIPSIBLINGS, true);
}

int Tab::Height() const {
    if (m_fixedHeight > 0) return m_fixedHeight;
    return ControlDc(m_hwnd, m_font).Metrics().tmHeight + kTabBorder + m_padY;
}

void Tab::Layout() {
    const int height = Height();
    const int least = m_minWidth >= 0 ? m_minWidth : DisplayScale(m_hwnd, kLeastWidth);
    int x = kFirstTab;
    for (Item& item : m_items) {
        // A tab has room for the sign of the mnemonic that is not drawn.
        const int text = LabelWidth(m_hwnd, m_font, item.text, DT_NOPREFIX);
        int width = std::max(text + 2 * m_padX, least);
        if (HasStyle(TCS_FIXEDWIDTH)) width = m_fixedWidth > 0 ? m_fixedWidth : kFixedWidth;
        item.rect = {x, kFirstTab, x + width, kFirstTab + height};
        x += width;
    }
    if (IsWindowVisible(m_hwnd)) CheckThatTabsFit();
    Repaint();
}

// The platform would bring up arrows to scroll the tabs with.
void Tab::CheckThatTabsFit() const {
    RECT client = {};
    GetClientRect(m_hwnd, &client);
    if (!m_items.empty() && m_items.back().rect.right > client.right && client.right > 0)
        ReportUnsupported("tabs that do not fit their control");
}

void Tab::Repaint() const {
    if (m_redraws) InvalidateRect(m_hwnd, nullptr, TRUE);
}

int Tab::ItemAt(POINT point) const {
    for (int i = 0; i < Count(); ++i)
        if (PtInRect(&m_items[static_cast<std::size_t>(i)].rect, point)) return i;
    return -1;
}

void Tab::Apply(Item& target, const TCITEMA& item) {
    if ((item.mask & TCIF_TEXT) != 0) {
        if (item.pszText == LPSTR_TEXTCALLBACKA)
            ReportUnsupported("LPSTR_TEXTCALLBACK");
        else
            target.text = item.pszText == nullptr ? "" : item.pszText;
    }
    if ((item.mask & TCIF_IMAGE) != 0) target.image = item.iImage;
    if ((item.mask & TCIF_PARAM) != 0) target.param = item.lParam;
    if ((item.mask & TCIF_STATE) != 0)
        target.state = (target.state & ~item.dwStateMask) | (item.dwState & item.dwStateMask);
}

int Tab::Insert(int index, const TCITEMA& item) {
    if (index < 0) return -1;
    index = std::min(index, Count());
    Item added;
    Apply(added, item);
    m_items.insert(m_items.begin() + index, std::move(added));
    if (Count() == 1)
        m_selected = m_focused = 0;
    else if (index <= m_selected)
        m_focused = ++m_selected;
    Layout();
    return index;
}

bool Tab::SetItem(int index, const TCITEMA& item) {
    if (!IsItem(index)) return false;
    Apply(m_items[static_cast<std::size_t>(index)], item);
    Layout();
    return true;
}

bool Tab::GetItem(int index, TCITEMA& item) const {
    if (!IsItem(index)) return false;
    const Item& source = m_items[static_cast<std::size_t>(index)];
    if ((item.mask & TCIF_TEXT) != 0 && item.pszText != nullptr && item.cchTextMax > 0) {
        const std::size_t count =
            std::min(source.text.size(), static_cast<std::size_t>(item.cchTextMax) - 1);
        std::memcpy(item.pszText, source.text.data(), count);
        item.pszText[count] = '\0';
    }
    if ((item.mask & TCIF_IMAGE) != 0) item.iImage = source.image;
    if ((item.mask & TCIF_PARAM) != 0) item.lParam = source.param;
    if ((item.mask & TCIF_STATE) != 0) item.dwState = source.state & item.dwStateMask;
    return true;
}

bool Tab::Delete(int index) {
    if (!IsItem(index)) return false;
    m_items.erase(m_items.begin() + index);
    if (index == m_selected)
        m_selected = -1;
    else if (index < m_selected)
        --m_selected;
    m_focused = m_selected;
    Layout();
    return true;
}

// Selects without telling anyone; the result is the tab that was selected.
int Tab::Select(int index) {
    if (index >= Count()) return -1;
    const int old = m_selected;
    m_selected = m_focused = std::max(index, -1);
    if (old != m_selected) Repaint();
    return old;
}

// What the user selects is asked first and told afterwards.
void Tab::SelectAsUser(int index) {
    if (!IsItem(index) || index == m_selected) return;
    if (Notify(TCN_SELCHANGING) != 0) return;
    // The parent may have changed the tabs meanwhile.
    if (m_hwnd == nullptr || !IsItem(index)) return;
    Select(index);
    Notify(TCN_SELCHANGE);
}

LRESULT Tab::Notify(DWORD code) const {
    if (m_hwnd == nullptr) return 0;
    NMHDR header = {};
    header.hwndFrom = m_hwnd;
    header.idFrom = static_cast<UINT_PTR>(Id());
    header.code = code;
    return SendMessageA(GetParent(m_hwnd), WM_NOTIFY, header.idFrom,
                        reinterpret_cast<LPARAM>(&header));
}

void Tab::NotifyKey(WPARAM key, LPARAM flags) const {
    KeyNotification notification = {};
    notification.hdr.hwndFrom = m_hwnd;
    notification.hdr.idFrom = static_cast<UINT_PTR>(Id());
    notification.hdr.code = TCN_KEYDOWN;
    notification.wVKey = static_cast<WORD>(key);
    notification.flags = static_cast<UINT>(flags);
    SendMessageA(GetParent(m_hwnd), WM_NOTIFY, static_cast<WPARAM>(Id()),
                 reinterpret_cast<LPARAM>(&notification));
}

void Tab::ButtonDown(POINT point) {
    if (!HasStyle(TCS_FOCUSNEVER)) SetFocus(m_hwnd);
    if (m_hwnd != nullptr) SelectAsUser(ItemAt(point));
}

void Tab::KeyDown(WPARAM key) {
    if (key == VK_LEFT) SelectAsUser(m_selected - 1);
    if (key == VK_RIGHT) SelectAsUser(m_selected + 1);
}

void Tab::AdjustRect(bool larger, RECT& rect) const {
    const int top = kPageBorder + (m_items.empty() ? 0 : Height());
    const int sign = larger ? -1 : 1;
    rect.left += sign * kPageBorder;
    rect.top += sign * top;
    rect.right -= sign * kPageBorder;
    rect.bottom -= sign * kPageBorder;
}

LRESULT Tab::SetFont(HFONT font, bool redraw) {
    m_font = font;
    Layout();
    if (redraw) UpdateWindow(m_hwnd);
    return 0;
}

LRESULT Tab::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
    const POINT point = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    switch (message) {
        case WM_GETDLGCODE:
            return DLGC_WANTARROWS | DLGC_WANTCHARS;
        case WM_NCHITTEST: {
            // What is no tab lets the mouse through to the dialog.
            POINT at = point;
            ScreenToClient(m_hwnd, &at);
            return ItemAt(at) < 0 ? HTTRANSPARENT : HTCLIENT;
        }
        case WM_SETREDRAW:
            m_redraws = wParam != 0;
            return 0;
        case WM_SETFONT:
            return SetFont(reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0);
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(m_font);
        case WM_SIZE:
            Layout();
            return 0;
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            InvalidateRect(m_hwnd, nullptr, FALSE);
            return 0;
        case WM_LBUTTONDOWN:
            ButtonDown(point);
            return 0;
        case WM_LBUTTONDBLCLK:
            return 0;
        case WM_LBUTTONUP:
            Notify(NM_CLICK);
            return 0;
        case WM_RBUTTONUP:
            Notify(NM_RCLICK);
            return 0;
        case WM_KEYDOWN:
            NotifyKey(wParam, lParam);
            if (m_hwnd != nullptr) KeyDown(wParam);
            return 0;
        case WM_PAINT: {
            if (wParam != 0) {
                Paint(reinterpret_cast<HDC>(wParam));
                return 0;
            }
            PAINTSTRUCT paint = {};
            Paint(BeginPaint(m_hwnd, &paint));
            EndPaint(m_hwnd, &paint);
            return 0;
        }
        case WM_PRINTCLIENT:
            Paint(reinterpret_cast<HDC>(wParam));
            return 0;
        case TCM_GETITEMCOUNT:
            return Count();
        case TCM_GETITEMA:
            return GetItem(static_cast<int>(wParam), *reinterpret_cast<TCITEMA*>(lParam)) ? TRUE
                                                                                          : FALSE;
        case TCM_SETITEMA:
            return SetItem(static_cast<int>(wParam), *reinterpret_cast<const TCITEMA*>(lParam))
                       ? TRUE
                       : FALSE;
        case TCM_INSERTITEMA:
            return Insert(static_cast<int>(wParam), *reinterpret_cast<const TCITEMA*>(lParam));
        case TCM_DELETEITEM:
            return Delete(static_cast<int>(wParam)) ? TRUE : FALSE;
        case TCM_DELETEALLITEMS:
            m_items.clear();
            m_selected = m_focused = -1;
            Layout();
            return TRUE;
        case TCM_GETITEMRECT: {
            auto* rect = reinterpret_cast<RECT*>(lParam);
            const int index = static_cast<int>(wParam);
            *rect = IsItem(index) ? m_items[static_cast<std::size_t>(index)].rect
                                  : RECT{0, 0, 0, Height()};
            return IsItem(index) ? TRUE : FALSE;
        }
        case TCM_GETCURSEL:
            return m_selected;
        case TCM_SETCURSEL:
            return Select(static_cast<int>(wParam));
        case TCM_GETCURFOCUS:
            return m_focused;
        case TCM_SETCURFOCUS:
            SelectAsUser(static_cast<int>(wParam));
            return 0;
        case TCM_HITTEST: {
            auto* test = reinterpret_cast<TCHITTESTINFO*>(lParam);
            const int index = ItemAt(test->pt);
            test->flags = index < 0 ? TCHT_NOWHERE : TCHT_ONITEM;
            return index;
        }
        case TCM_ADJUSTRECT:
            AdjustRect(wParam != 0, *reinterpret_cast<RECT*>(lParam));
            return 0;
        case TCM_GETROWCOUNT:
            return m_items.empty() ? 0 : 1;
        case TCM_SETITEMSIZE: {
            const LRESULT old = MAKELONG(m_fixedWidth > 0 ? m_fixedWidth : kFixedWidth, Height());
            m_fixedWidth = GET_X_LPARAM(lParam);
            m_fixedHeight = GET_Y_LPARAM(lParam);
            Layout();
            return old;
        }
        case TCM_SETPADDING:
            m_padX = GET_X_LPARAM(lParam);
            m_padY = GET_Y_LPARAM(lParam);
            Layout();
            return 0;
        case TCM_SETMINTABWIDTH: {
            const int old = m_minWidth >= 0 ? m_minWidth : kLeastWidth;
            m_minWidth = static_cast<int>(lParam);
            Layout();
            return old;
        }
        default:
            if (message >= TCM_FIRST && message < TCM_FIRST + 0x100)
                ReportUnsupported("tab control message " + std::to_string(message));
            break;
    }
    return DefWindowProcA(m_hwnd, message, wParam, lParam);
}

void Tab::PaintItem(HDC dc, int index) {
    const Item& item = m_items[static_cast<std::size_t>(index)];
    RECT rect = item.rect;
    // The selected tab stands out by two pixels and covers the border of the page.
    if (index == m_selected) rect = {rect.left - 2, rect.top - 2, rect.right + 2, rect.bottom + 1};
    FillRect(dc, &rect, GetSysColorBrush(COLOR_BTNFACE));
    RECT edge = rect;
    DrawEdge(dc, &edge, EDGE_RAISED, BF_LEFT | BF_TOP | BF_RIGHT | BF_SOFT);
    const int width = LabelWidth(m_hwnd, m_font, item.text, 0);
    const LONG left = item.rect.left + (item.rect.right - item.rect.left - width) / 2;
    RECT text = {left, rect.top + kTabBorder, left + width, item.rect.bottom};
    UINT format = DT_SINGLELINE | DT_NOCLIP | DT_VCENTER;
    if ((SendMessageA(m_hwnd, WM_QUERYUISTATE, 0, 0) & UISF_HIDEACCEL) != 0)
        format |= DT_HIDEPREFIX;
    DrawTextA(dc, item.text.c_str(), -1, &text, format);
    if (index == m_focused && GetFocus() == m_hwnd) {
        RECT focus = item.rect;
        InflateRect(&focus, -1, -1);
        DrawFocusRect(dc, &focus);
    }
}

void Tab::Paint(HDC dc) {
    // Tabs may have come before anything was shown.
    CheckThatTabsFit();
    const int saved = SaveDC(dc);
    SelectObject(dc, m_font != nullptr ? m_font : GetStockObject(SYSTEM_FONT));
    RECT page = {};
    GetClientRect(m_hwnd, &page);
    if (!m_items.empty()) page.top += kFirstTab + Height();
    DrawEdge(dc, &page, EDGE_RAISED, BF_RECT | BF_SOFT | BF_MIDDLE);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, GetSysColor(IsWindowEnabled(m_hwnd) ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    for (int i = 0; i < Count(); ++i)
        if (i != m_selected) PaintItem(dc, i);
    if (IsItem(m_selected)) PaintItem(dc, m_selected);
    RestoreDC(dc, saved);
}

void RegisterTabControlClass() {
    Tab::Register(WC_TABCONTROLA,
                  CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW | CS_PARENTDC | CS_GLOBALCLASS, IDC_ARROW);
}

}  // namespace headless
