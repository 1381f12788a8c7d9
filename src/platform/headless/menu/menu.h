// The popup menus of one thread and the one that is open. Private to the headless system.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/headless/window/window.h"

namespace headless {

struct MenuItem {
    UINT flags = 0;
    UINT_PTR id = 0;
    std::string text;
    RECT rect{};  // in its window, once the menu has been open

    bool IsSeparator() const { return (flags & MF_SEPARATOR) != 0; }
    bool CanBeChosen() const { return !IsSeparator() && (flags & (MF_GRAYED | MF_DISABLED)) == 0; }
};

struct Menu {
    std::vector<MenuItem> items;
    HWND window = nullptr;  // while it is open
};

// What the loop of an open menu is about.
struct OpenMenu {
    HMENU menu = nullptr;
    HWND owner = nullptr;
    HWND window = nullptr;
    int selected = -1;
    bool ended = false;
    UINT chosen = 0;
};

struct MenuTable {
    std::map<HMENU, Menu> menus;
    OpenMenu* open = nullptr;
};

// The menu of a handle; sets the last error and gives null for any other handle.
Menu* FindMenu(HMENU menu);
// Closes the menu that this window, or a control in it, opened.
void CancelMenu(HWND owner);
void RegisterMenuClass();
void PaintMenu(HDC dc, const Menu& menu, int selected);
// Places the items from the top on and gives the size of them all.
SIZE LayOutMenu(Menu& menu);

}  // namespace headless
