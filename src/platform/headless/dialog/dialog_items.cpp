// Reaching the controls of a dialog by their numbers.
#include <charconv>
#include <climits>
#include <string>

#include "platform/headless/dialog/dialog_state.h"

using namespace headless;

HWND GetDlgItem(HWND dialog, int id) {
    const Window* window = Lookup(dialog);
    if (window == nullptr) return nullptr;
    for (const Window* child : window->children) {
        if (static_cast<int>(child->id) == id) return child->handle;
    }
    SetLastError(ERROR_CONTROL_ID_NOT_FOUND);
    return nullptr;
}

int GetDlgCtrlID(HWND hwnd) {
    const Window* window = Lookup(hwnd);
    return window == nullptr ? 0 : static_cast<int>(window->id);
}

BOOL SetDlgItemTextA(HWND dialog, int id, LPCSTR text) {
    const HWND control = GetDlgItem(dialog, id);
    return control != nullptr && SetWindowTextA(control, text);
}

UINT GetDlgItemTextA(HWND dialog, int id, LPSTR buffer, int size) {
    if (buffer != nullptr && size > 0) buffer[0] = '\0';
    const HWND control = GetDlgItem(dialog, id);
    return control == nullptr ? 0 : static_cast<UINT>(GetWindowTextA(control, buffer, size));
}

BOOL SetDlgItemInt(HWND dialog, int id, UINT value, BOOL isSigned) {
    const std::string text =
        isSigned ? std::to_string(static_cast<int>(value)) : std::to_string(value);
    return SetDlgItemTextA(dialog, id, text.c_str());
}

UINT GetDlgItemInt(HWND dialog, int id, BOOL* translated, BOOL isSigned) {
    if (translated != nullptr) *translated = FALSE;
    char buffer[32];
    if (GetDlgItemTextA(dialog, id, buffer, sizeof buffer) == 0) return 0;
    const char* at = buffer;
    while (*at == ' ' || (*at >= '\t' && *at <= '\r')) ++at;
    bool negative = false;
    if (*at == '-' && isSigned) {
        negative = true;
        ++at;
    } else if (*at == '+') {
        ++at;
    }
    unsigned long value = 0;
    const auto [end, error] =
        std::from_chars(at, buffer + std::char_traits<char>::length(buffer), value);
    // Text behind the digits ends the number; no digits at all is no number.
    if (error != std::errc() || end == at) return 0;
    const unsigned long limit = !isSigned  ? UINT_MAX
                                : negative ? static_cast<unsigned long>(INT_MAX) + 1
                                           : static_cast<unsigned long>(INT_MAX);
    if (value > limit) return 0;
    if (translated != nullptr) *translated = TRUE;
    return static_cast<UINT>(negative ? 0 - value : value);
}

LRESULT SendDlgItemMessageA(HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) {
    const HWND control = GetDlgItem(dialog, id);
    return control == nullptr ? 0 : SendMessageA(control, message, wParam, lParam);
}

BOOL CheckDlgButton(HWND dialog, int id, UINT check) {
    const HWND control = GetDlgItem(dialog, id);
    if (control == nullptr) return FALSE;
    SendMessageA(control, BM_SETCHECK, check, 0);
    return TRUE;
}

BOOL CheckRadioButton(HWND dialog, int first, int last, int checked) {
    KeepAlive keep;
    const Window* window = Lookup(dialog);
    if (window == nullptr) return FALSE;
    std::vector<HWND> buttons;
    for (const Window* child : window->children) {
        const int id = static_cast<int>(child->id);
        if (id >= first && id <= last) buttons.push_back(child->handle);
    }
    for (const HWND button : buttons)
        SendMessageA(button, BM_SETCHECK,
                     GetDlgCtrlID(button) == checked ? BST_CHECKED : BST_UNCHECKED, 0);
    return TRUE;
}

UINT IsDlgButtonChecked(HWND dialog, int id) {
    return static_cast<UINT>(SendDlgItemMessageA(dialog, id, BM_GETCHECK, 0, 0));
}
