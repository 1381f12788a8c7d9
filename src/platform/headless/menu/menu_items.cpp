// Popup menus and their items.
#include <algorithm>

#include "platform/headless/menu/menu.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr UINT kKnownFlags = MF_GRAYED | MF_DISABLED | MF_SEPARATOR;

// The item of a position or of an id; null with the last error set.
MenuItem* FindItem(HMENU handle, UINT item, UINT flags) {
    Menu* menu = FindMenu(handle);
    if (menu == nullptr) return nullptr;
    auto& items = menu->items;
    if ((flags & MF_BYPOSITION) != 0) {
        if (item < items.size()) return &items[item];
    } else {
        const auto found = std::find_if(items.begin(), items.end(), [item](const MenuItem& each) {
            return !each.IsSeparator() && each.id == item;
        });
        if (found != items.end()) return &*found;
    }
    SetLastError(ERROR_MENU_ITEM_NOT_FOUND);
    return nullptr;
}

}  // namespace

Menu* FindMenu(HMENU menu) {
    auto& menus = ThisWorld().menus->menus;
    const auto found = menus.find(menu);
    if (found != menus.end()) return &found->second;
    SetLastError(ERROR_INVALID_MENU_HANDLE);
    return nullptr;
}

}  // namespace headless

using namespace headless;

HMENU CreatePopupMenu() {
    EnsureInitialized();
    static std::uintptr_t next = 0x700001;
    const auto menu = reinterpret_cast<HMENU>(next += 2);
    ThisWorld().menus->menus[menu];
    return menu;
}

BOOL DestroyMenu(HMENU menu) {
    if (FindMenu(menu) == nullptr) return FALSE;
    ThisWorld().menus->menus.erase(menu);
    return TRUE;
}

BOOL IsMenu(HMENU menu) {
    return ThisWorld().menus->menus.contains(menu);
}

BOOL AppendMenuA(HMENU handle, UINT flags, UINT_PTR id, LPCSTR text) {
    Menu* menu = FindMenu(handle);
    if (menu == nullptr) return FALSE;
    if ((flags & ~kKnownFlags) != 0) {
        ReportUnsupported("AppendMenuA " + Hex(flags & ~kKnownFlags));
        return FALSE;
    }
    MenuItem item;
    item.flags = flags;
    item.id = id;
    // An item with no text is a separator.
    if (text == nullptr) item.flags |= MF_SEPARATOR;
    if (!item.IsSeparator()) item.text = text;
    menu->items.push_back(item);
    return TRUE;
}

int GetMenuItemCount(HMENU handle) {
    const Menu* menu = FindMenu(handle);
    return menu == nullptr ? -1 : static_cast<int>(menu->items.size());
}

UINT GetMenuItemID(HMENU handle, int position) {
    const MenuItem* item = FindItem(handle, static_cast<UINT>(position), MF_BYPOSITION);
    return item == nullptr ? static_cast<UINT>(-1) : static_cast<UINT>(item->id);
}

UINT GetMenuState(HMENU handle, UINT id, UINT flags) {
    const MenuItem* item = FindItem(handle, id, flags);
    return item == nullptr ? static_cast<UINT>(-1) : item->flags;
}

int GetMenuStringA(HMENU handle, UINT id, LPSTR buffer, int size, UINT flags) {
    if (buffer != nullptr && size > 0) buffer[0] = '\0';
    const MenuItem* item = FindItem(handle, id, flags);
    if (item == nullptr) return 0;
    const int length = static_cast<int>(item->text.size());
    // With no buffer it tells the length.
    if (buffer == nullptr || size <= 0) return length;
    const int copied = std::min(length, size - 1);
    item->text.copy(buffer, static_cast<std::size_t>(copied));
    buffer[copied] = '\0';
    return copied;
}

BOOL GetMenuItemRect(HWND hwnd, HMENU handle, UINT position, RECT* rect) {
    const Menu* menu = FindMenu(handle);
    const MenuItem* item = FindItem(handle, position, MF_BYPOSITION);
    if (item == nullptr || rect == nullptr) return FALSE;
    *rect = item->rect;
    // Of no window: that of the open menu.
    MapWindowPoints(hwnd != nullptr ? hwnd : menu->window, nullptr, reinterpret_cast<POINT*>(rect),
                    2);
    return TRUE;
}
