// A window with one control in it, for the tests of edits, lists and combo boxes: makes the control
// in the dialog font, sends it keys and mouse messages, and tells what it told its parent.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

class ControlTest : public testing::Test {
  protected:
    static constexpr int kId = 7;

    ~ControlTest() override {
        HoldKeys(false, false);
        if (m_font != nullptr) DeleteObject(m_font);
    }

    HWND Make(const char* className, DWORD style, int width = 100, int height = 100,
              const char* text = "") {
        m_control = m_window.Add(className, text, kId, style, 10, 10, width, height);
        EXPECT_NE(nullptr, m_control);
        if (m_font == nullptr) {
            m_font = CreateFontA(-11, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                                 OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                                 DEFAULT_PITCH, "MS Shell Dlg");
        }
        Send(WM_SETFONT, reinterpret_cast<WPARAM>(m_font), 0);
        Events();
        return m_control;
    }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(m_control, message, wParam, lParam);
    }
    LRESULT SendText(UINT message, WPARAM wParam, const char* text) {
        return Send(message, wParam, reinterpret_cast<LPARAM>(text));
    }
    // The texts of rectangles, selections and the like live until the next call.
    RECT ItemRect(HWND list, int index) {
        RECT rect = {};
        SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&rect));
        return rect;
    }

    static void HoldKeys(bool shift, bool control) {
        BYTE keys[256] = {};
        if (shift) keys[VK_SHIFT] = 0x80;
        if (control) keys[VK_CONTROL] = 0x80;
        SetKeyboardState(keys);
    }
    static void KeyTo(HWND hwnd, int key, bool shift = false, bool control = false) {
        HoldKeys(shift, control);
        SendMessageA(hwnd, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
        SendMessageA(hwnd, WM_KEYUP, static_cast<WPARAM>(key), 0xC0000001);
        HoldKeys(false, false);
    }
    void Key(int key, bool shift = false, bool control = false) {
        KeyTo(m_control, key, shift, control);
    }
    static void TypeTo(HWND hwnd, const std::string& text) {
        for (char c : text) SendMessageA(hwnd, WM_CHAR, static_cast<BYTE>(c), 1);
    }
    void Type(const std::string& text) { TypeTo(m_control, text); }
    // What a key with Ctrl held gives as a character: 3 for Ctrl+C.
    void TypeControl(int character) {
        HoldKeys(false, true);
        Send(WM_CHAR, static_cast<WPARAM>(character), 1);
        HoldKeys(false, false);
    }

    // The notifications since the last call, joined by blanks.
    std::string Events() {
        std::string text = m_window.Notifications().Take();
        const std::string id = "(" + std::to_string(kId) + ")";
        for (size_t at = text.find(id); at != std::string::npos; at = text.find(id)) {
            text.erase(at, id.size());
        }
        return text;
    }
    std::string Text() { return test_support::TextOf(m_control); }

    test_support::RecordingWindow m_window;
    HWND m_control = nullptr;
    HFONT m_font = nullptr;
};
