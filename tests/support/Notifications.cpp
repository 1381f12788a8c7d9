#include "support/Notifications.h"

#include <cstdio>

#include "support/WindowReading.h"

namespace test_support {
namespace {

struct Name {
    UINT value;
    const char* name;
};

template <class Table>
std::string Lookup(const Table& table, UINT value) {
    for (const Name& entry : table)
        if (entry.value == value) return entry.name;
    char number[16];
    std::snprintf(number, sizeof number, "0x%04X", value);
    return number;
}

#define ZX_NAME(symbol) \
    { static_cast<UINT>(symbol), #symbol }

constexpr Name kMessages[] = {
    ZX_NAME(WM_CREATE),
    ZX_NAME(WM_DESTROY),
    ZX_NAME(WM_MOVE),
    ZX_NAME(WM_SIZE),
    ZX_NAME(WM_ACTIVATE),
    ZX_NAME(WM_SETFOCUS),
    ZX_NAME(WM_KILLFOCUS),
    ZX_NAME(WM_ENABLE),
    ZX_NAME(WM_SETTEXT),
    ZX_NAME(WM_GETTEXT),
    ZX_NAME(WM_PAINT),
    ZX_NAME(WM_CLOSE),
    ZX_NAME(WM_ERASEBKGND),
    ZX_NAME(WM_SHOWWINDOW),
    ZX_NAME(WM_NEXTDLGCTL),
    ZX_NAME(WM_SETFONT),
    ZX_NAME(WM_GETFONT),
    ZX_NAME(WM_WINDOWPOSCHANGING),
    ZX_NAME(WM_WINDOWPOSCHANGED),
    ZX_NAME(WM_NCCREATE),
    ZX_NAME(WM_NCDESTROY),
    ZX_NAME(WM_NCCALCSIZE),
    ZX_NAME(WM_NCACTIVATE),
    ZX_NAME(WM_NCPAINT),
    ZX_NAME(WM_GETDLGCODE),
    ZX_NAME(WM_KEYDOWN),
    ZX_NAME(WM_KEYUP),
    ZX_NAME(WM_CHAR),
    ZX_NAME(WM_SYSKEYDOWN),
    ZX_NAME(WM_SYSKEYUP),
    ZX_NAME(WM_SYSCHAR),
    ZX_NAME(WM_INITDIALOG),
    ZX_NAME(WM_COMMAND),
    ZX_NAME(WM_TIMER),
    ZX_NAME(WM_ENTERIDLE),
    ZX_NAME(WM_CHANGEUISTATE),
    ZX_NAME(WM_LBUTTONDOWN),
    ZX_NAME(WM_LBUTTONUP),
    ZX_NAME(WM_CAPTURECHANGED),
    ZX_NAME(WM_PARENTNOTIFY),
    ZX_NAME(WM_CTLCOLOREDIT),
    ZX_NAME(WM_CTLCOLORBTN),
    ZX_NAME(WM_CTLCOLORDLG),
    ZX_NAME(WM_CTLCOLORSTATIC),
    ZX_NAME(WM_NOTIFY),
    ZX_NAME(WM_CANCELMODE),
    ZX_NAME(WM_STYLECHANGING),
    ZX_NAME(WM_STYLECHANGED),
    ZX_NAME(WM_USER),
    ZX_NAME(WM_APP),
    ZX_NAME(WM_HELP),
    ZX_NAME(WM_SYSCOMMAND),
};
constexpr Name kEdit[] = {
    ZX_NAME(EN_SETFOCUS), ZX_NAME(EN_KILLFOCUS), ZX_NAME(EN_CHANGE),  ZX_NAME(EN_UPDATE),
    ZX_NAME(EN_ERRSPACE), ZX_NAME(EN_MAXTEXT),   ZX_NAME(EN_HSCROLL), ZX_NAME(EN_VSCROLL),
};
constexpr Name kCombo[] = {
    ZX_NAME(CBN_SELCHANGE),    ZX_NAME(CBN_DBLCLK),     ZX_NAME(CBN_SETFOCUS),
    ZX_NAME(CBN_KILLFOCUS),    ZX_NAME(CBN_EDITCHANGE), ZX_NAME(CBN_EDITUPDATE),
    ZX_NAME(CBN_DROPDOWN),     ZX_NAME(CBN_CLOSEUP),    ZX_NAME(CBN_SELENDOK),
    ZX_NAME(CBN_SELENDCANCEL),
};
constexpr Name kList[] = {
    ZX_NAME(LBN_SELCHANGE), ZX_NAME(LBN_DBLCLK),    ZX_NAME(LBN_SELCANCEL),
    ZX_NAME(LBN_SETFOCUS),  ZX_NAME(LBN_KILLFOCUS),
};
constexpr Name kButton[] = {
    ZX_NAME(BN_CLICKED), ZX_NAME(BN_PAINT),         ZX_NAME(BN_HILITE),   ZX_NAME(BN_UNHILITE),
    ZX_NAME(BN_DISABLE), ZX_NAME(BN_DOUBLECLICKED), ZX_NAME(BN_SETFOCUS), ZX_NAME(BN_KILLFOCUS),
};
constexpr Name kStatic[] = {
    ZX_NAME(STN_CLICKED),
    ZX_NAME(STN_DBLCLK),
    ZX_NAME(STN_ENABLE),
    ZX_NAME(STN_DISABLE),
};
constexpr Name kNotify[] = {
    ZX_NAME(TCN_SELCHANGE),      ZX_NAME(TCN_SELCHANGING), ZX_NAME(TCN_KEYDOWN),
    ZX_NAME(NM_CLICK),           ZX_NAME(NM_SETFOCUS),     ZX_NAME(NM_KILLFOCUS),
    ZX_NAME(NM_RELEASEDCAPTURE),
};

#undef ZX_NAME

}  // namespace

std::string MessageName(UINT message) {
    return Lookup(kMessages, message);
}

std::string NotificationName(HWND control, UINT code) {
    const std::string name = ClassOf(control);
    if (name == "edit") return Lookup(kEdit, code);
    if (name == "combobox") return Lookup(kCombo, code);
    if (name == "listbox") return Lookup(kList, code);
    if (name == "button") return Lookup(kButton, code);
    if (name == "static") return Lookup(kStatic, code);
    return name + " " + std::to_string(code);
}

void EventLog::AddMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COMMAND) {
        const std::string id = "(" + std::to_string(static_cast<SHORT>(LOWORD(wParam))) + ")";
        if (HWND control = reinterpret_cast<HWND>(lParam))
            Add(NotificationName(control, HIWORD(wParam)) + id);
        else
            Add("command" + id);
    } else if (message == WM_NOTIFY) {
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        Add(Lookup(kNotify, header.code) + "(" + std::to_string(header.idFrom) + ")");
    } else {
        Add(MessageName(message));
    }
}

std::string EventLog::Take() {
    std::string all;
    for (const std::string& line : lines_) all += (all.empty() ? "" : " ") + line;
    lines_.clear();
    return all;
}

}  // namespace test_support
