// The measures of an open menu and how it looks.
#include <algorithm>

#include "platform/headless/menu/menu.h"

namespace headless {

namespace {

constexpr int kRowMargin = 2;  // above and below the text
constexpr int kSideMargin = 6;
constexpr int kSeparatorHeight = 9;

// A context with the font of menus in it.
class MenuDc {
  public:
    explicit MenuDc(HDC dc) : dc_(dc), old_(SelectObject(dc, GetStockObject(DEFAULT_GUI_FONT))) {}
    ~MenuDc() { SelectObject(dc_, old_); }
    MenuDc(const MenuDc&) = delete;
    MenuDc& operator=(const MenuDc&) = delete;

  private:
    HDC dc_;
    HGDIOBJ old_;
};

int CheckColumn() {
    return GetSystemMetrics(SM_CXMENUCHECK) + kSideMargin;
}

}  // namespace

SIZE LayOutMenu(Menu& menu) {
    const HDC dc = GetDC(nullptr);
    int widest = 0;
    int rowHeight = GetSystemMetrics(SM_CYMENUCHECK);
    {
        const MenuDc font(dc);
        for (const MenuItem& item : menu.items) {
            RECT rect{};
            DrawTextA(dc, item.text.c_str(), -1, &rect, DT_SINGLELINE | DT_CALCRECT);
            widest = std::max(widest, Width(rect));
            rowHeight = std::max(rowHeight, Height(rect));
        }
    }
    ReleaseDC(nullptr, dc);
    const int width = CheckColumn() + widest + 2 * kSideMargin;
    int top = 0;
    for (MenuItem& item : menu.items) {
        const int height = item.IsSeparator() ? kSeparatorHeight : rowHeight + 2 * kRowMargin;
        item.rect = {0, top, width, top + height};
        top += height;
    }
    return {width, top};
}

void PaintMenu(HDC dc, const Menu& menu, int selected) {
    const MenuDc font(dc);
    SetBkMode(dc, TRANSPARENT);
    for (std::size_t i = 0; i < menu.items.size(); ++i) {
        const MenuItem& item = menu.items[i];
        const bool chosen = static_cast<int>(i) == selected;
        FillRect(dc, &item.rect, GetSysColorBrush(chosen ? COLOR_HIGHLIGHT : COLOR_MENU));
        RECT rect = item.rect;
        if (item.IsSeparator()) {
            rect.top += kSeparatorHeight / 2;
            DrawEdge(dc, &rect, EDGE_ETCHED, BF_TOP);
            continue;
        }
        const int color = !item.CanBeChosen() ? COLOR_GRAYTEXT
                          : chosen            ? COLOR_HIGHLIGHTTEXT
                                              : COLOR_MENUTEXT;
        SetTextColor(dc, GetSysColor(color));
        rect.left += CheckColumn();
        DrawTextA(dc, item.text.c_str(), -1, &rect, DT_SINGLELINE | DT_VCENTER);
    }
}

}  // namespace headless
