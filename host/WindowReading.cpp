#include "WindowReading.h"

#include <algorithm>
#include <cctype>

#include "System.h"

namespace zxhost {
namespace {

BOOL CALLBACK Collect(HWND hwnd, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
    return TRUE;
}

std::vector<HWND> ThreadWindows() {
    std::vector<HWND> all;
    EnumThreadWindows(GetCurrentThreadId(), Collect, reinterpret_cast<LPARAM>(&all));
    return all;
}

int Ask(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(SendMessageA(hwnd, message, wParam, lParam));
}

std::string ItemText(HWND control, UINT lengthMessage, UINT textMessage, int index) {
    const auto at = static_cast<WPARAM>(index);
    const int length = Ask(control, lengthMessage, at);
    if (length < 0) return "";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const int got = Ask(control, textMessage, at, reinterpret_cast<LPARAM>(text.data()));
    text.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return FromSystem(text);
}

std::string TabText(HWND control, int index) {
    char text[256] = "";
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(control, TCM_GETITEMA, static_cast<WPARAM>(index),
                 reinterpret_cast<LPARAM>(&item));
    return FromSystem(text);
}

bool IsButton(HWND hwnd) {
    return ClassOf(hwnd) == "button" &&
           (GetWindowLongA(hwnd, GWL_STYLE) & BS_TYPEMASK) != BS_GROUPBOX;
}

bool IsFieldOrList(HWND hwnd) {
    const std::string kind = ClassOf(hwnd);
    return kind == "edit" || kind == "combobox" || kind == "listbox";
}

bool IsPushButton(HWND hwnd) {
    const LONG type = GetWindowLongA(hwnd, GWL_STYLE) & BS_TYPEMASK;
    return IsButton(hwnd) && (type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON);
}

// The caption by which a script names a control; empty for none.
std::string CaptionOf(HWND hwnd) {
    if (IsButton(hwnd)) return Plain(TextOf(hwnd));
    if (!IsFieldOrList(hwnd)) return "";
    HWND label = GetWindow(hwnd, GW_HWNDPREV);
    return label && ClassOf(label) == "static" ? Plain(TextOf(label)) : "";
}

// Of the candidates, one that can be seen where there is one.
HWND Best(const std::vector<HWND>& found) {
    for (HWND hwnd : found) {
        if (IsWindowVisible(hwnd)) return hwnd;
    }
    return found.empty() ? nullptr : found.front();
}

}  // namespace

std::string TextOf(HWND hwnd) {
    const int length = GetWindowTextLengthA(hwnd);
    if (length <= 0) return "";
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    const int got = GetWindowTextA(hwnd, text.data(), length + 1);
    text.resize(static_cast<std::size_t>(std::max(got, 0)));
    return FromSystem(text);
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

std::string Plain(const std::string& caption) {
    std::string plain;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    if (!plain.empty() && plain.back() == ':') plain.pop_back();
    return plain;
}

HWND FindControl(HWND dialog, const Word& control) {
    std::vector<HWND> found;
    const std::vector<HWND> all = Descendants(dialog);
    const int id = NumberOf(control);
    if (id >= 0) {
        for (HWND child : all) {
            if (GetDlgCtrlID(child) == id) found.push_back(child);
        }
        return Best(found);
    }
    const std::string wanted = Plain(control.text);
    for (HWND child : all) {
        if (IsButton(child) && Plain(TextOf(child)) == wanted) found.push_back(child);
    }
    if (!found.empty()) return Best(found);
    for (HWND child : all) {
        if (IsFieldOrList(child) && CaptionOf(child) == wanted) found.push_back(child);
    }
    if (!found.empty()) return Best(found);
    for (HWND child : all) {
        if (ClassOf(child) == "static" && Plain(TextOf(child)) == wanted) found.push_back(child);
    }
    return Best(found);
}

HWND FindFieldBehind(HWND dialog, const Word& caption) {
    const std::string wanted = Plain(caption.text);
    const std::vector<HWND> all = Descendants(dialog);
    std::vector<HWND> found;
    for (HWND child : all) {
        if (IsFieldOrList(child) && CaptionOf(child) == wanted) found.push_back(child);
    }
    if (!found.empty()) return Best(found);
    for (HWND child : all) {
        if (!IsButton(child) || Plain(TextOf(child)) != wanted) continue;
        HWND next = GetWindow(child, GW_HWNDNEXT);
        while (next && !IsFieldOrList(next) && !IsButton(next)) next = GetWindow(next, GW_HWNDNEXT);
        if (next && IsFieldOrList(next)) found.push_back(next);
    }
    return Best(found);
}

std::string ListControls(HWND dialog) {
    constexpr std::size_t kMost = 100;
    std::string all;
    std::size_t count = 0;
    for (HWND child : Descendants(dialog)) {
        if (!IsWindowVisible(child) || !(IsButton(child) || IsFieldOrList(child))) continue;
        const std::string caption = CaptionOf(child);
        if (++count > kMost) return all + ", ...";
        if (!all.empty()) all += ", ";
        all += std::to_string(GetDlgCtrlID(child));
        if (!caption.empty()) all += " \"" + caption + "\"";
    }
    return all;
}

bool IsField(HWND control) {
    const LONG style = GetWindowLongA(control, GWL_STYLE);
    const std::string kind = ClassOf(control);
    if (kind == "combobox") return (style & CBS_DROPDOWNLIST) != CBS_DROPDOWNLIST;
    return kind == "edit" && (style & ES_READONLY) == 0;
}

HWND FindByClass(HWND dialog, const char* className) {
    for (HWND child : Descendants(dialog)) {
        if (IsWindowVisible(child) && ClassOf(child) == className) return child;
    }
    return nullptr;
}

std::vector<std::string> ItemsOf(HWND control) {
    const std::string kind = ClassOf(control);
    std::vector<std::string> items;
    if (kind == "combobox") {
        const int count = Ask(control, CB_GETCOUNT);
        for (int i = 0; i < count; ++i)
            items.push_back(ItemText(control, CB_GETLBTEXTLEN, CB_GETLBTEXT, i));
    } else if (kind == "listbox" || kind == "combolbox") {
        const int count = Ask(control, LB_GETCOUNT);
        for (int i = 0; i < count; ++i)
            items.push_back(ItemText(control, LB_GETTEXTLEN, LB_GETTEXT, i));
    } else if (kind == "systabcontrol32") {
        const int count = Ask(control, TCM_GETITEMCOUNT);
        for (int i = 0; i < count; ++i) items.push_back(TabText(control, i));
    }
    return items;
}

int IndexOfItem(HWND control, const Word& item) {
    const std::vector<std::string> items = ItemsOf(control);
    const int position = NumberOf(item);
    if (position >= 0) return position <= static_cast<int>(items.size()) ? position - 1 : -1;
    const auto found = std::find(items.begin(), items.end(), item.text);
    return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

int ChosenIndex(HWND control) {
    const std::string kind = ClassOf(control);
    if (kind == "combobox") return Ask(control, CB_GETCURSEL);
    if (kind == "listbox") return Ask(control, LB_GETCURSEL);
    return kind == "systabcontrol32" ? Ask(control, TCM_GETCURSEL) : -1;
}

std::string ChosenItem(HWND control) {
    if (ClassOf(control) == "combobox" && IsField(control)) return TextOf(control);
    const int index = ChosenIndex(control);
    const std::vector<std::string> items = ItemsOf(control);
    return index >= 0 && index < static_cast<int>(items.size())
               ? items[static_cast<std::size_t>(index)]
               : "";
}

HWND ActiveDialog() {
    HWND best = nullptr;
    int bestRank = 0;
    for (HWND hwnd : ThreadWindows()) {
        if (!IsWindowVisible(hwnd) || !IsWindowEnabled(hwnd)) continue;
        if (ClassOf(hwnd) != "#32770") continue;
        const int rank = 1 + (hwnd == GetActiveWindow() ? 1 : 0);
        if (rank > bestRank) {
            best = hwnd;
            bestRank = rank;
        }
    }
    return best;
}

std::vector<HWND> OpenDialogs() {
    std::vector<HWND> dialogs;
    for (HWND hwnd : ThreadWindows()) {
        if (ClassOf(hwnd) == "#32770" && IsWindowVisible(hwnd)) dialogs.push_back(hwnd);
    }
    return dialogs;
}

HWND OpenMenu() {
    for (HWND hwnd : ThreadWindows()) {
        if (ClassOf(hwnd) == "#32768" && IsWindowVisible(hwnd)) return hwnd;
    }
    return nullptr;
}

std::vector<std::string> MenuItems(HWND menuWindow) {
    const auto menu = reinterpret_cast<HMENU>(SendMessageA(menuWindow, MN_GETHMENU, 0, 0));
    std::vector<std::string> items;
    for (int i = 0; i < GetMenuItemCount(menu); ++i) {
        char text[256] = {};
        GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
        items.emplace_back(text);
    }
    return items;
}

Message ReadMessage(HWND dialog) {
    Message message;
    message.title = TextOf(dialog);
    for (HWND child : Descendants(dialog)) {
        if (!IsWindowVisible(child)) continue;
        if (IsButton(child)) {
            message.buttons.push_back(Plain(TextOf(child)));
            continue;
        }
        const std::string kind = ClassOf(child);
        if (kind != "static" && kind != "edit") continue;
        if (kind == "static" && (GetWindowLongA(child, GWL_STYLE) & SS_TYPEMASK) == SS_ICON)
            continue;
        const std::string text = TextOf(child);
        if (text.empty()) continue;
        if (!message.text.empty()) message.text += '\n';
        message.text += text;
    }
    return message;
}

bool IsMessage(HWND dialog) {
    bool buttons = false;
    for (HWND child : Descendants(dialog)) {
        if (!IsWindowVisible(child)) continue;
        if (ClassOf(child) != "static" && !IsPushButton(child)) return false;
        buttons = buttons || IsPushButton(child);
    }
    return buttons;
}

HWND FindAnswer(HWND dialog, const Word& answer) {
    std::vector<HWND> buttons;
    for (HWND child : Descendants(dialog)) {
        if (IsWindowVisible(child) && IsButton(child)) buttons.push_back(child);
    }
    const int id = NumberOf(answer);
    for (HWND button : buttons) {
        if (id >= 0 ? GetDlgCtrlID(button) == id : Plain(TextOf(button)) == Plain(answer.text))
            return button;
    }
    // A box with nothing but OK may be worded otherwise.
    return buttons.size() == 1 && answer.text == "OK" ? buttons.front() : nullptr;
}

}  // namespace zxhost
