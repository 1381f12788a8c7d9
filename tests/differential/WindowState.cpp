#include "WindowState.h"

#include <cstdio>

#include "Scenario.h"
#include "fixtures/WindowReading.h"

namespace differential {
namespace {

using test_support::ClassOf;

// The list of a combo box is no descendant of the dialog; it is told with its combo box.
class Line {
  public:
    Line& Add(const char* name, int64_t value) {
        m_text += std::string(" ") + name + " " + std::to_string(value);
        return *this;
    }
    Line& AddText(const std::string& text) {
        m_text += " " + Quoted(text);
        return *this;
    }
    Line& AddRect(const char* name, const RECT& rect) {
        char text[80];
        std::snprintf(text, sizeof text, " %s %d,%d,%d,%d", name, static_cast<int>(rect.left),
                      static_cast<int>(rect.top), static_cast<int>(rect.right),
                      static_cast<int>(rect.bottom));
        m_text += text;
        return *this;
    }
    std::string m_text;
};

int Ask(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
    return static_cast<int>(SendMessageA(hwnd, message, wParam, lParam));
}

RECT PlaceOf(HWND hwnd, HWND top) {
    RECT rect = {};
    GetWindowRect(hwnd, &rect);
    MapWindowPoints(nullptr, top, reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

void ReadEdit(HWND hwnd, Line& line) {
    DWORD from = 0, to = 0;
    SendMessageA(hwnd, EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    line.Add("from", from).Add("to", to);
    // Where an empty field is scrolled to cannot be seen.
    if (GetWindowTextLengthA(hwnd) > 0) line.Add("first", Ask(hwnd, EM_GETFIRSTVISIBLELINE));
    line.Add("lines", Ask(hwnd, EM_GETLINECOUNT));
    line.Add("modified", Ask(hwnd, EM_GETMODIFY) != 0);
    line.Add("undo", Ask(hwnd, EM_CANUNDO) != 0);
}

void ReadItems(HWND hwnd, Line& line) {
    for (const std::string& item : test_support::ItemsOf(hwnd)) line.AddText(item);
}

void ReadList(HWND hwnd, Line& line) {
    line.Add("caret", Ask(hwnd, LB_GETCARETINDEX)).Add("top", Ask(hwnd, LB_GETTOPINDEX));
    const LONG_PTR style = GetWindowLongPtrA(hwnd, GWL_STYLE);
    if ((style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) == 0) {
        line.Add("chosen", Ask(hwnd, LB_GETCURSEL));
    } else {
        if (Ask(hwnd, LB_GETCOUNT) > 0) line.Add("anchor", Ask(hwnd, LB_GETANCHORINDEX));
        line.m_text += " selected";
        for (const int index : test_support::SelectedIndexes(hwnd))
            line.m_text += " " + std::to_string(index);
    }
}

void ReadCombo(HWND hwnd, Line& line, HWND top, bool places) {
    line.Add("chosen", Ask(hwnd, CB_GETCURSEL)).Add("open", Ask(hwnd, CB_GETDROPPEDSTATE));
    line.Add("selection", Ask(hwnd, CB_GETEDITSEL));
    COMBOBOXINFO info = {};
    info.cbSize = sizeof info;
    SendMessageA(hwnd, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
    line.m_text += " list";
    line.Add("shown", IsWindowVisible(info.hwndList));
    ReadList(info.hwndList, line);
    if (places && IsWindowVisible(info.hwndList)) line.AddRect("at", PlaceOf(info.hwndList, top));
}

void ReadTab(HWND hwnd, Line& line, bool places) {
    const int count = Ask(hwnd, TCM_GETITEMCOUNT);
    line.Add("chosen", Ask(hwnd, TCM_GETCURSEL)).Add("rows", Ask(hwnd, TCM_GETROWCOUNT));
    if (count > 0) line.Add("focus", Ask(hwnd, TCM_GETCURFOCUS));
    for (int i = 0; places && i < count; ++i) {
        RECT rect = {};
        Ask(hwnd, TCM_GETITEMRECT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&rect));
        line.AddRect("tab", rect);
    }
}

std::string Describe(HWND hwnd, HWND top, bool places) {
    const std::string kind = ClassOf(hwnd);
    Line line;
    line.m_text = kind;
    line.AddText(test_support::TextOf(hwnd));
    const auto style = static_cast<DWORD>(GetWindowLongPtrA(hwnd, GWL_STYLE));
    char text[64];
    std::snprintf(text, sizeof text, " style %08x ex %x", static_cast<unsigned>(style),
                  static_cast<unsigned>(GetWindowLongPtrA(hwnd, GWL_EXSTYLE)));
    line.m_text += text;
    if (places) line.AddRect("at", PlaceOf(hwnd, top));
    if (kind == "edit") ReadEdit(hwnd, line);
    if (kind == "button")
        line.Add("check", Ask(hwnd, BM_GETCHECK)).Add("state", Ask(hwnd, BM_GETSTATE));
    if (kind == "listbox") ReadList(hwnd, line);
    if (kind == "combobox") ReadCombo(hwnd, line, top, places);
    if (kind == "systabcontrol32") ReadTab(hwnd, line, places);
    if (kind == "listbox" || kind == "combobox" || kind == "systabcontrol32") ReadItems(hwnd, line);
    return line.m_text;
}

// Whether a text that a field is made with counts as a change is not compared.
void ForgetChangesOfNew(HWND top) {
    constexpr char kSeen[] = "ZxDifferentialSeen";
    if (GetPropA(top, kSeen) != nullptr) return;
    SetPropA(top, kSeen, reinterpret_cast<HANDLE>(top));
    for (const HWND hwnd : test_support::Descendants(top)) {
        if (ClassOf(hwnd) == "edit") SendMessageA(hwnd, EM_SETMODIFY, FALSE, 0);
    }
}

std::string NameOf(HWND hwnd, HWND top) {
    if (hwnd == nullptr) return "nothing";
    if (hwnd == top) return "the dialog";
    int place = 0;
    for (const HWND child : test_support::Descendants(top)) {
        if (child == hwnd) return std::to_string(place);
        ++place;
    }
    return "another " + ClassOf(hwnd);
}

std::string DescribeTop(HWND top) {
    Line line;
    line.m_text = ClassOf(top);
    line.AddText(test_support::TextOf(top));
    line.Add("shown", IsWindowVisible(top)).Add("enabled", IsWindowEnabled(top));
    const LRESULT standard = SendMessageA(top, DM_GETDEFID, 0, 0);
    line.Add("default", HIWORD(standard) == DC_HASDEFID ? LOWORD(standard) : 0);
    line.m_text += " focus " + NameOf(GetFocus(), top) + " capture " + NameOf(GetCapture(), top);
    return line.m_text;
}

}  // namespace

std::vector<std::string> WindowState::Changes(HWND top, bool places) {
    ForgetChangesOfNew(top);
    if (top != m_top) m_known.clear();
    m_top = top;
    std::vector<std::string> changes;
    std::map<int, std::string> now;
    now[-1] = DescribeTop(top);
    int place = 0;
    for (const HWND hwnd : test_support::Descendants(top)) {
        now[place++] =
            "(" + std::to_string(GetDlgCtrlID(hwnd)) + ") " + Describe(hwnd, top, places);
    }
    for (const auto& [at, line] : now) {
        if (m_known[at] != line) changes.push_back(std::to_string(at) + " " + line);
    }
    for (const auto& [at, line] : m_known) {
        if (now.count(at) == 0) changes.push_back(std::to_string(at) + " gone");
    }
    m_known = std::move(now);
    return changes;
}

}  // namespace differential
