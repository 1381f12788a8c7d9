#include "PageState.h"

namespace traceops_test {
namespace {

bool IsPush(HWND control) {
    const LONG_PTR type = GetWindowLongPtrA(control, GWL_STYLE) & 0xF;
    return type == BS_PUSHBUTTON || type == BS_DEFPUSHBUTTON;
}

}  // namespace

std::string StateOf(HWND control) {
    const std::string kind = test_support::ClassOf(control);
    std::string state = kind + " " + std::to_string(GetDlgCtrlID(control));
    if (kind == "combobox") {
        state += " " + test_support::SelectedText(control);
    } else {
        state += " " + test_support::TextOf(control);
    }
    if (kind == "button") state += " " + std::to_string(SendMessageA(control, BM_GETCHECK, 0, 0));
    return state + (IsWindowEnabled(control) ? " on\n" : " off\n");
}

std::vector<HWND> VisibleControls(HWND dialog) {
    std::vector<HWND> controls;
    for (HWND control : test_support::Descendants(dialog)) {
        const std::string kind = test_support::ClassOf(control);
        const bool own = kind == "combobox" || kind == "edit" || kind == "static" ||
                         (kind == "button" && !IsPush(control));
        // The edit part of a combo box does not tell of a text that it is given.
        const bool part = test_support::ClassOf(GetParent(control)) == "combobox";
        if (own && !part && IsWindowVisible(control)) controls.push_back(control);
    }
    return controls;
}

bool IsInput(HWND control) {
    const auto type = GetWindowLongPtrA(control, GWL_STYLE) & BS_TYPEMASK;
    const std::string kind = test_support::ClassOf(control);
    return kind != "static" && !(kind == "button" && type == BS_GROUPBOX);
}

std::string PageState(HWND dialog) {
    std::string state;
    for (HWND control : VisibleControls(dialog)) state += StateOf(control);
    return state;
}

void Disturb(HWND control) {
    const std::string kind = test_support::ClassOf(control);
    const HWND page = GetParent(control);
    const auto tell = [&](int code) {
        SendMessageA(page, WM_COMMAND,
                     MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(control)), static_cast<WORD>(code)),
                     reinterpret_cast<LPARAM>(control));
    };
    if (kind == "button") {
        SendMessageA(control, BM_CLICK, 0, 0);
    } else if (kind == "combobox") {
        const auto items = SendMessageA(control, CB_GETCOUNT, 0, 0);
        SendMessageA(control, CB_SETCURSEL, static_cast<WPARAM>(items - 1), 0);
        tell(CBN_SELCHANGE);
    } else if (kind == "edit") {
        SetWindowTextA(control, "99");
    }
}

}  // namespace traceops_test
