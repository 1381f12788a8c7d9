// A combo box with what its tests ask of it: its parts, its open list, keys and the mouse.
#pragma once

#include <string>

#include "control_fixture.h"
#include "fixtures/KnownGap.h"

constexpr int kEditOfCombo = 1001;

class ComboBoxTest : public ControlTest {
  protected:
    HWND MakeCombo(DWORD style, int items = 6, int height = 150) {
        Make("ComboBox", style | WS_VSCROLL, 100, height);
        for (int i = 0; i < items; ++i) {
            Add((i == 4 ? "other " : "item ") + std::to_string(i));
        }
        m_edit = GetDlgItem(m_control, kEditOfCombo);
        EXPECT_EQ((style & 3) == CBS_DROPDOWN, m_edit != nullptr);
        m_list = Info().hwndList;
        EXPECT_NE(nullptr, m_list);
        Events();
        return m_control;
    }
    HWND MakeList(int items = 6) { return MakeCombo(CBS_DROPDOWNLIST, items); }
    HWND MakeEdit(int items = 6) { return MakeCombo(CBS_DROPDOWN | CBS_AUTOHSCROLL, items); }
    int Add(const std::string& text) {
        return static_cast<int>(SendText(CB_ADDSTRING, 0, text.c_str()));
    }
    COMBOBOXINFO Info() {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof(info);
        EXPECT_NE(0, Send(CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info)));
        return info;
    }
    int Current() { return static_cast<int>(Send(CB_GETCURSEL)); }
    bool IsDropped() { return Send(CB_GETDROPPEDSTATE) != 0; }
    int Height() {
        RECT rect = {};
        GetWindowRect(m_control, &rect);
        return rect.bottom - rect.top;
    }
    int FontHeight() {
        HDC dc = GetDC(m_control);
        HGDIOBJ old = SelectObject(dc, m_font);
        TEXTMETRICA metrics = {};
        GetTextMetricsA(dc, &metrics);
        SelectObject(dc, old);
        ReleaseDC(m_control, dc);
        return metrics.tmHeight;
    }
    static void AltDownTo(HWND hwnd, int key = VK_DOWN) {
        SendMessageA(hwnd, WM_SYSKEYDOWN, static_cast<WPARAM>(key), 0x20000001);
    }
    LPARAM ButtonPoint() {
        const RECT button = Info().rcButton;
        return MAKELPARAM(button.left + 4, button.top + 4);
    }
    void ClickButton() {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, ButtonPoint());
        Send(WM_LBUTTONUP, 0, ButtonPoint());
    }
    void ClickItem(int index) {
        const RECT rect = ItemRect(m_list, index);
        const LPARAM point = MAKELPARAM(rect.left + 5, rect.top + 3);
        SendMessageA(m_list, WM_MOUSEMOVE, 0, point);
        SendMessageA(m_list, WM_LBUTTONDOWN, MK_LBUTTON, point);
        SendMessageA(m_list, WM_LBUTTONUP, 0, point);
    }
    LRESULT DialogCode(HWND hwnd, int key) {
        MSG message = {};
        message.hwnd = hwnd;
        message.message = WM_KEYDOWN;
        message.wParam = static_cast<WPARAM>(key);
        return SendMessageA(hwnd, WM_GETDLGCODE, static_cast<WPARAM>(key),
                            reinterpret_cast<LPARAM>(&message));
    }
    std::string EditSelection() {
        DWORD start = 0, end = 0;
        SendMessageA(m_edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start),
                     reinterpret_cast<LPARAM>(&end));
        return std::to_string(start) + ".." + std::to_string(end);
    }

    HWND m_edit = nullptr;
    HWND m_list = nullptr;
};
