// A list box with what its tests ask of it.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "control_fixture.h"
#include "fixtures/KnownGap.h"

class ListBoxTest : public ControlTest {
  protected:
    HWND MakeList(DWORD style = 0, int items = 10) {
        Make("ListBox", LBS_NOTIFY | style);
        for (int i = 0; i < items; ++i) Add("item " + std::to_string(i));
        Events();
        return m_control;
    }
    int Add(const std::string& text) {
        return static_cast<int>(SendText(LB_ADDSTRING, 0, text.c_str()));
    }
    int Current() { return static_cast<int>(Send(LB_GETCURSEL)); }
    int Caret() { return static_cast<int>(Send(LB_GETCARETINDEX)); }
    int Anchor() { return static_cast<int>(Send(LB_GETANCHORINDEX)); }
    int Top() { return static_cast<int>(Send(LB_GETTOPINDEX)); }
    int Find(UINT message, int start, const char* text) {
        return static_cast<int>(SendText(message, static_cast<WPARAM>(start), text));
    }
    std::string Items() {
        std::string all;
        for (const std::string& item : test_support::ItemsOf(m_control)) {
            all += (all.empty() ? "" : " ") + item;
        }
        return all;
    }
    // The selected items of a list of several selections.
    std::string Selected() {
        std::string all;
        for (int i = 0; i < Send(LB_GETCOUNT); ++i) {
            if (Send(LB_GETSEL, static_cast<WPARAM>(i)) > 0) {
                all += (all.empty() ? "" : " ") + std::to_string(i);
            }
        }
        return all;
    }
    LPARAM PointOf(int index) {
        const RECT rect = ItemRect(m_control, index);
        return MAKELPARAM(rect.left + 5, rect.top + 3);
    }
    void Click(int index, bool shift = false, bool control = false) {
        HoldKeys(shift, control);
        const WPARAM keys =
            static_cast<WPARAM>((shift ? MK_SHIFT : 0) | (control ? MK_CONTROL : 0));
        Send(WM_LBUTTONDOWN, MK_LBUTTON | keys, PointOf(index));
        Send(WM_LBUTTONUP, keys, PointOf(index));
        HoldKeys(false, false);
    }
    void Drag(int from, const std::vector<int>& over) {
        Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOf(from));
        for (int index : over) Send(WM_MOUSEMOVE, MK_LBUTTON, PointOf(index));
        Send(WM_LBUTTONUP, 0, PointOf(over.back()));
    }
};
