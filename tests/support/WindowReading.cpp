#include "support/WindowReading.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

namespace test_support {
namespace {

BOOL CALLBACK Collect(HWND hwnd, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
    return TRUE;
}

enum class ItemControl { kNone, kCombo, kList, kTab };

ItemControl KindOf(HWND control) {
    const std::string name = ClassOf(control);
    if (name == "combobox") return ItemControl::kCombo;
    if (name == "listbox" || name == "combolbox") return ItemControl::kList;
    if (name == "systabcontrol32") return ItemControl::kTab;
    return ItemControl::kNone;
}

int Ask(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(SendMessageA(hwnd, message, wParam, lParam));
}

std::string ItemText(HWND control, ItemControl kind, int index) {
    if (index < 0) return "";
    const auto at = static_cast<WPARAM>(index);
    if (kind == ItemControl::kTab) {
        char text[256] = "";
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = text;
        item.cchTextMax = sizeof text;
        if (!SendMessageA(control, TCM_GETITEMA, at, reinterpret_cast<LPARAM>(&item))) return "";
        return item.pszText ? item.pszText : "";
    }
    const bool combo = kind == ItemControl::kCombo;
    const int length = Ask(control, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, at);
    if (length < 0) return "";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const int got =
        Ask(control, combo ? CB_GETLBTEXT : LB_GETTEXT, at, reinterpret_cast<LPARAM>(text.data()));
    text.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return text;
}

void Describe(HWND hwnd, int depth, std::string& out) {
    RECT rect = {};
    GetWindowRect(hwnd, &rect);
    char line[160];
    std::snprintf(line, sizeof line, "%d \"", depth ? GetDlgCtrlID(hwnd) : 0);
    out += std::string(static_cast<std::size_t>(depth) * 2, ' ') + ClassOf(hwnd) + " " + line +
           TextOf(hwnd);
    std::snprintf(line, sizeof line, "\" (%d,%d %dx%d) style %08x%s%s%s\n",
                  static_cast<int>(rect.left), static_cast<int>(rect.top),
                  static_cast<int>(rect.right - rect.left),
                  static_cast<int>(rect.bottom - rect.top),
                  static_cast<unsigned>(GetWindowLongA(hwnd, GWL_STYLE)),
                  IsWindowVisible(hwnd) ? "" : " hidden", IsWindowEnabled(hwnd) ? "" : " disabled",
                  GetFocus() == hwnd ? " focus" : "");
    out += line;
    for (HWND child = GetWindow(hwnd, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        Describe(child, depth + 1, out);
}

}  // namespace

std::string TextOf(HWND hwnd) {
    const int length = GetWindowTextLengthA(hwnd);
    if (length <= 0) return "";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const int got = GetWindowTextA(hwnd, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(std::max(got, 0)));
    return text;
}

std::string ClassOf(HWND hwnd) {
    char name[128] = "";
    GetClassNameA(hwnd, name, sizeof name);
    std::string lower = name;
    for (char& c : lower) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

std::vector<HWND> Descendants(HWND parent) {
    std::vector<HWND> all;
    EnumChildWindows(parent, Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

HWND FindControl(HWND dialog, int id) {
    HWND found = GetDlgItem(dialog, id);
    if (found && IsWindowVisible(found)) return found;
    for (HWND child : Descendants(dialog)) {
        if (GetDlgCtrlID(child) != id) continue;
        if (IsWindowVisible(child)) return child;
        if (!found) found = child;
    }
    return found;
}

HWND FindByClass(HWND dialog, const std::string& className) {
    for (HWND child : Descendants(dialog))
        if (IsWindowVisible(child) && ClassOf(child) == className) return child;
    return nullptr;
}

std::vector<std::string> ItemsOf(HWND control) {
    const ItemControl kind = KindOf(control);
    int count = 0;
    if (kind == ItemControl::kCombo) count = Ask(control, CB_GETCOUNT);
    if (kind == ItemControl::kList) count = Ask(control, LB_GETCOUNT);
    if (kind == ItemControl::kTab) count = Ask(control, TCM_GETITEMCOUNT);
    std::vector<std::string> items;
    for (int i = 0; i < count; ++i) items.push_back(ItemText(control, kind, i));
    return items;
}

int IndexOfItem(HWND control, const std::string& text) {
    const std::vector<std::string> items = ItemsOf(control);
    const auto found = std::find(items.begin(), items.end(), text);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

int SelectedIndex(HWND control) {
    switch (KindOf(control)) {
        case ItemControl::kCombo:
            return Ask(control, CB_GETCURSEL);
        case ItemControl::kList:
            return Ask(control, LB_GETCURSEL);
        case ItemControl::kTab:
            return Ask(control, TCM_GETCURSEL);
        case ItemControl::kNone:
            break;
    }
    return -1;
}

std::string SelectedText(HWND control) {
    const ItemControl kind = KindOf(control);
    if (kind == ItemControl::kCombo &&
        (GetWindowLongA(control, GWL_STYLE) & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST)
        return TextOf(control);
    return ItemText(control, kind, SelectedIndex(control));
}

std::vector<int> SelectedIndexes(HWND listBox) {
    const int count = Ask(listBox, LB_GETSELCOUNT);
    if (count <= 0) return {};
    std::vector<int> selected(static_cast<std::size_t>(count));
    const int got = Ask(listBox, LB_GETSELITEMS, static_cast<WPARAM>(count),
                        reinterpret_cast<LPARAM>(selected.data()));
    selected.resize(static_cast<std::size_t>(std::max(got, 0)));
    return selected;
}

std::string SelectedPart(HWND edit) {
    DWORD from = 0, to = 0;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    const std::string text = TextOf(edit);
    if (from >= text.size() || to <= from) return "";
    return text.substr(from, to - from);
}

std::vector<HWND> OpenDialogs() {
    std::vector<HWND> all, dialogs;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&all));
    for (HWND hwnd : all)
        if (ClassOf(hwnd) == "#32770" && IsWindowVisible(hwnd)) dialogs.push_back(hwnd);
    return dialogs;
}

HWND ActiveDialog() {
    std::vector<HWND> all;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&all));
    const HWND active = GetActiveWindow();
    HWND best = nullptr;
    int bestRank = 0;
    for (HWND hwnd : all) {
        if (!IsWindowVisible(hwnd) || !IsWindowEnabled(hwnd)) continue;
        const std::string name = ClassOf(hwnd);
        if (name == "combolbox" || name == "tooltips_class32" || name == "ime") continue;
        const int rank = 1 + (name == "#32770" ? 2 : 0) + (hwnd == active ? 1 : 0);
        if (rank > bestRank) {
            best = hwnd;
            bestRank = rank;
        }
    }
    return best;
}

std::string DescribeWindow(HWND hwnd) {
    std::string out;
    if (IsWindow(hwnd)) Describe(hwnd, 0, out);
    return out;
}

}  // namespace test_support
