// An edit control with what its tests ask of it: texts, selection, places.
#pragma once

#include <cstring>
#include <string>

#include "control_fixture.h"

class EditTest : public ControlTest {
  protected:
    HWND MakeLine(DWORD style = ES_AUTOHSCROLL, const char* text = "") {
        return Make("Edit", style, 150, 22, text);
    }
    HWND MakeLines(DWORD style = ES_AUTOVSCROLL | ES_AUTOHSCROLL, int width = 150,
                   int height = 84) {
        return Make("Edit", style | ES_MULTILINE, width, height);
    }
    void SetText(const std::string& text) {
        SetWindowTextA(m_control, text.c_str());
        Events();
    }
    void Select(int start, int end) { Send(EM_SETSEL, static_cast<WPARAM>(start), end); }
    // "start..end"
    std::string Selection() {
        DWORD start = 0, end = 0;
        Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return std::to_string(start) + ".." + std::to_string(end);
    }
    std::string LineText(int line) {
        char buffer[100] = {};
        const WORD room = 99;
        std::memcpy(buffer, &room, sizeof(room));
        const LRESULT length =
            Send(EM_GETLINE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(buffer));
        return std::string(buffer, static_cast<size_t>(length));
    }
    LPARAM PointOf(int index) {
        const LRESULT point = Send(EM_POSFROMCHAR, static_cast<WPARAM>(index), 0);
        return MAKELPARAM(LOWORD(point) + 1, HIWORD(point) + 4);
    }
    void Click(int index, WPARAM keys = 0) {
        Send(WM_LBUTTONDOWN, MK_LBUTTON | keys, PointOf(index));
        Send(WM_LBUTTONUP, keys, PointOf(index));
    }
};
