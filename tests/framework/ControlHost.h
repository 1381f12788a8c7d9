// A window in the place of a dialog: it hands messages on to the control objects of a test as a
// dialog does, with nothing of a dialog's own behaviour, and logs the notifications that reach it.
#pragma once

#include <string>
#include <vector>

#include "fixtures/Beeps.h"
#include "fixtures/TestWindows.h"
#include "framework/ADM_Wnd.h"
#include "framework/PrivateMessages.h"

namespace framework_test {

// Collects notifications as "300(10)", the code and the id, or "707(20)=5" with data.
class NotificationLog : public ADM_Wnd {
  public:
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        pLastSender = pSender;
        std::string sLine = std::to_string(nCode) + "(" + std::to_string(nId) + ")";
        if (nData != 0) sLine += "=" + std::to_string(nData);
        m_lines.Add(sLine);
    }
    // Joined by blanks; the log is then empty.
    std::string Take() { return m_lines.Take(); }

    ADM_Wnd* pLastSender = nullptr;

  private:
    test_support::EventLog m_lines;
};

class ControlHost {
  public:
    ControlHost() {
        window.OnMessage([this](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
            return Route(uMsg, wParam, lParam, pResult);
        });
        // A key pressed in an earlier test is no reason to hold a step back.
        test_support::TakeBeeps();
    }
    ~ControlHost() { window.OnMessage(nullptr); }

    // Creates a child window and binds the control to it.
    HWND Bind(ADM_Wnd& control, const char* szClass, const char* szText, int nId, DWORD dwStyle,
              int x = 10, int y = 10, int nWidth = 120, int nHeight = 24) {
        const HWND hWnd = window.Add(szClass, szText, nId, dwStyle, x, y, nWidth, nHeight);
        Bind(control, hWnd);
        return hWnd;
    }
    void Bind(ADM_Wnd& control, HWND hWnd) {
        m_controls.push_back(&control);
        control.SetDialogWnd(window);
        if (control.GetNotifyTarget() == nullptr) control.SetNotifyTarget(&log);
        control.Attach(hWnd);
    }
    HWND BindEdit(ADM_Wnd& control, int nId = 10, const char* szText = "") {
        return Bind(control, "Edit", szText, nId, WS_TABSTOP | WS_BORDER | ES_AUTOHSCROLL, 10,
                    10 + 30 * static_cast<int>(m_controls.size()));
    }

    // Takes the focus away from every control.
    void FocusNowhere() { ::SetFocus(window); }

    test_support::RecordingWindow window;
    NotificationLog log;

  private:
    ADM_Wnd* Find(HWND hWnd) {
        for (ADM_Wnd* const pControl : m_controls) {
            if (hWnd != nullptr && pControl->IsHandle(hWnd)) return pControl;
        }
        return nullptr;
    }

    bool Route(UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT* pResult) {
        HWND hItem = nullptr;
        if (uMsg == WM_COMMAND) {
            hItem = reinterpret_cast<HWND>(lParam);
        } else if (uMsg == ADMM_CHAR || uMsg == ADMM_GET_DLG_CODE) {
            hItem = ::GetDlgItem(window, static_cast<int>(lParam));
        } else if (uMsg == WM_CTLCOLORSTATIC) {
            hItem = reinterpret_cast<HWND>(lParam);
        }
        ADM_Wnd* const pControl = Find(hItem);
        if (pControl == nullptr) return false;
        *pResult = 0;
        switch (uMsg) {
            case WM_COMMAND:
                pControl->OnCommand(window, LOWORD(wParam), hItem, HIWORD(wParam));
                return true;
            case ADMM_CHAR:
                *pResult = pControl->OnChar(hItem, static_cast<int>(wParam));
                return true;
            case ADMM_GET_DLG_CODE:
                *pResult = pControl->OnGetDlgCode(hItem);
                return true;
            default:
                *pResult = reinterpret_cast<LRESULT>(
                    pControl->OnCtlColor(window, reinterpret_cast<HDC>(wParam), hItem,
                                         static_cast<int>(uMsg) - WM_CTLCOLORMSGBOX));
                return *pResult != 0;
        }
    }

    std::vector<ADM_Wnd*> m_controls;
};

// Whether the count of beeps since the last look is as expected.
inline int Beeps() {
    return test_support::TakeBeeps();
}

// One character typed into a control that need not have the focus.
inline void TypeChar(HWND hWnd, char ch) {
    ::SendMessageA(hWnd, WM_CHAR, static_cast<unsigned char>(ch), 1);
}

inline void TypeText(HWND hWnd, const std::string& sText) {
    for (const char ch : sText) TypeChar(hWnd, ch);
}

// Shift held or let go, for this thread.
inline void HoldShift(bool bDown) {
    BYTE keys[256] = {};
    ::GetKeyboardState(keys);
    keys[VK_SHIFT] = bDown ? 0x80 : 0;
    ::SetKeyboardState(keys);
}

inline void KeyDown(HWND hWnd, int nKey) {
    ::SendMessageA(hWnd, WM_KEYDOWN, static_cast<WPARAM>(nKey), 1);
}

inline void KeyUp(HWND hWnd, int nKey) {
    ::SendMessageA(hWnd, WM_KEYUP, static_cast<WPARAM>(nKey), 1);
}

// One key stroke; the release lets the next one step at once.
inline void Stroke(HWND hWnd, int nKey) {
    KeyDown(hWnd, nKey);
    KeyUp(hWnd, nKey);
}

}  // namespace framework_test
