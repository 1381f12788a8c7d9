// The class "SysTabControl32" with one row of tabs at the top, as wide as their texts.
#pragma once

#include <string>
#include <vector>

#include "platform/headless/controls/control_object.h"

namespace headless {

class Tab : public ControlObject<Tab> {
  public:
    Tab(HWND hwnd, const CREATESTRUCTA& create);

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    struct Item {
        std::string text;
        LPARAM param = 0;
        int image = -1;
        DWORD state = 0;
        RECT rect = {};
    };

    int Count() const { return static_cast<int>(m_items.size()); }
    bool IsItem(int index) const { return index >= 0 && index < Count(); }
    void Layout();
    int Height() const;
    int ItemAt(POINT point) const;
    int Insert(int index, const TCITEMA& item);
    bool SetItem(int index, const TCITEMA& item);
    bool GetItem(int index, TCITEMA& item) const;
    bool Delete(int index);
    void Apply(Item& target, const TCITEMA& item);
    int Select(int index);
    void SelectAsUser(int index);
    LRESULT Notify(DWORD code) const;
    void NotifyKey(WPARAM key, LPARAM flags) const;
    void ButtonDown(POINT point);
    void KeyDown(WPARAM key);
    void AdjustRect(bool larger, RECT& rect) const;
    LRESULT SetFont(HFONT font, bool redraw);

    void CheckThatTabsFit() const;
    void Repaint() const;
    void Paint(HDC dc);
    void PaintItem(HDC dc, int index);

    bool m_redraws = true;  // WM_SETREDRAW
    HFONT m_font = nullptr;
    std::vector<Item> m_items;
    int m_selected = -1;
    // Where the key focus is, which is the selected tab in this kind of control.
    int m_focused = -1;
    int m_padX = 6;
    int m_padY = 3;
    int m_minWidth = -1;   // -1: the default
    int m_fixedWidth = 0;  // with TCS_FIXEDWIDTH
    int m_fixedHeight = 0;
};

}  // namespace headless
