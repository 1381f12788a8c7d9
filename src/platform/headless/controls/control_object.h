// How a standard control keeps its object: made on WM_NCCREATE, reached through window long 0,
// freed once WM_NCDESTROY has passed and no call of it is left on the stack. A notification may
// destroy the control that sends it; the object then lives on, with no window, until its own calls
// return.
#pragma once

#include "zxadlg/headless/names.h"

namespace headless {

template <class Control>
class ControlObject {
  public:
    explicit ControlObject(HWND hwnd) : m_hwnd(hwnd) {}
    ControlObject(const ControlObject&) = delete;
    ControlObject& operator=(const ControlObject&) = delete;

    // The window procedure of the class.
    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        Control* control = reinterpret_cast<Control*>(GetWindowLongPtrA(hwnd, 0));
        if (message == WM_NCCREATE) {
            control = new Control(hwnd, *reinterpret_cast<CREATESTRUCTA*>(lParam));
            SetWindowLongPtrA(hwnd, 0, reinterpret_cast<LONG_PTR>(control));
        }
        if (control == nullptr) return DefWindowProcA(hwnd, message, wParam, lParam);
        ++control->m_calls;
        const LRESULT result = control->Handle(message, wParam, lParam);
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrA(hwnd, 0, 0);
            control->m_hwnd = nullptr;
        }
        if (--control->m_calls == 0 && control->m_hwnd == nullptr) delete control;
        return result;
    }

    static void Register(LPCSTR className, UINT style, LPCSTR cursor) {
        WNDCLASSA wc = {};
        wc.style = style;
        wc.lpfnWndProc = &ControlObject::Procedure;
        wc.cbWndExtra = sizeof(void*);
        wc.hCursor = LoadCursorA(nullptr, cursor);
        wc.lpszClassName = className;
        RegisterClassA(&wc);
    }

  protected:
    ~ControlObject() = default;

    bool HasStyle(DWORD style) const {
        return (static_cast<DWORD>(GetWindowLongPtrA(m_hwnd, GWL_STYLE)) & style) != 0;
    }
    // Changes style bits without any message.
    void SetStyle(DWORD style, bool on) {
        const DWORD old = static_cast<DWORD>(GetWindowLongPtrA(m_hwnd, GWL_STYLE));
        const DWORD next = on ? old | style : old & ~style;
        if (next != old) SetWindowLongPtrA(m_hwnd, GWL_STYLE, static_cast<LONG>(next));
    }
    int Id() const { return static_cast<int>(GetWindowLongPtrA(m_hwnd, GWLP_ID)); }
    LRESULT NotifyOwner(HWND owner, int code) const {
        return SendMessageA(owner, WM_COMMAND, MAKEWPARAM(Id(), code),
                            reinterpret_cast<LPARAM>(m_hwnd));
    }
    static bool IsKeyDown(int key) { return (GetKeyState(key) & 0x8000) != 0; }

    HWND m_hwnd;  // null once destroyed

  private:
    int m_calls = 0;
};

// The display context of a control with its font in it, for measuring.
class ControlDc {
  public:
    ControlDc(HWND hwnd, HFONT font) : m_hwnd(hwnd), m_dc(GetDC(hwnd)) {
        m_old = SelectObject(m_dc, font != nullptr ? font : GetStockObject(SYSTEM_FONT));
    }
    ~ControlDc() {
        SelectObject(m_dc, m_old);
        ReleaseDC(m_hwnd, m_dc);
    }
    ControlDc(const ControlDc&) = delete;
    ControlDc& operator=(const ControlDc&) = delete;

    int Width(const char* text, size_t length) const {
        SIZE size = {};
        GetTextExtentPoint32A(m_dc, text, static_cast<int>(length), &size);
        return size.cx;
    }
    TEXTMETRICA Metrics() const {
        TEXTMETRICA metrics = {};
        GetTextMetricsA(m_dc, &metrics);
        return metrics;
    }
    // The width of an average letter, as the dialog unit is measured.
    int LetterWidth() const {
        return (Width("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz", 52) / 26 + 1) / 2;
    }

  private:
    HWND m_hwnd;
    HDC m_dc;
    HGDIOBJ m_old;
};

}  // namespace headless
