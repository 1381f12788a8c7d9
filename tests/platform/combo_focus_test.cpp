// A combo box whose parent moves the focus on when it is told of it.
#include "control_fixture.h"

namespace {

class ComboFocus : public ControlTest {};

TEST_F(ComboFocus, APassedOnFocusIsToldOnce) {
    Make("ComboBox", CBS_DROPDOWNLIST | WS_VSCROLL);
    const HWND other = m_window.Add("Edit", "", 77, WS_CHILD | WS_VISIBLE, 10, 150);
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_COMMAND && LOWORD(wParam) == kId && HIWORD(wParam) == CBN_SETFOCUS)
            SetFocus(other);
        return false;
    });
    SetFocus(m_control);
    EXPECT_EQ(GetFocus(), other);
    EXPECT_EQ("CBN_SETFOCUS EN_SETFOCUS(77)", Events());
}

TEST_F(ComboFocus, OneWithAnEditPartAsWell) {
    Make("ComboBox", CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL);
    const HWND other = m_window.Add("Edit", "", 77, WS_CHILD | WS_VISIBLE, 10, 150);
    int told = 0;
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message != WM_COMMAND || LOWORD(wParam) != kId) return false;
        if (HIWORD(wParam) == CBN_SETFOCUS) {
            ++told;
            SetFocus(other);
        }
        return false;
    });
    SetFocus(m_control);
    EXPECT_EQ(GetFocus(), other);
    EXPECT_EQ(told, 1);
}

}  // namespace
