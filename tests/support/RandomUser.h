// A user who does anything at all: keys, characters, clicks, commands, focus, pasted rubbish, the
// framework's private messages, OK and Cancel. Driven by a seed, from inside the modal loops of
// whatever dialog is active; one at a time.
#pragma once

#include <random>
#include <vector>

#include "framework/PrivateMessages.h"
#include "platform/platform.h"
#include "support/WindowReading.h"

namespace test_support {

class RandomUser {
  public:
    // nEnd is the button that the user presses at last; one that is refused is followed by Cancel.
    RandomUser(unsigned uSeed, int nEvents, int nEnd = IDCANCEL)
        : m_random(uSeed), m_nLeft(nEvents), m_nEnd(nEnd) {
        s_pThis = this;
        m_uTimer = SetTimer(nullptr, 0, 10, OnTimer);
    }
    ~RandomUser() {
        KillTimer(nullptr, m_uTimer);
        s_pThis = nullptr;
    }
    RandomUser(const RandomUser&) = delete;
    RandomUser& operator=(const RandomUser&) = delete;

    int EventsLeft() const { return m_nLeft; }

  private:
    static constexpr int kEventsPerTick = 50;

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        if (s_pThis != nullptr) s_pThis->Tick();
    }

    int Pick(int nCount) { return std::uniform_int_distribution<int>(0, nCount - 1)(m_random); }
    template <class T, std::size_t N>
    T PickFrom(const T (&values)[N]) {
        return values[Pick(static_cast<int>(N))];
    }

    void Tick() {
        // An event that runs a loop of its own comes back here.
        if (m_bInTick) return;
        m_bInTick = true;
        if (const HWND hDialog = ActiveDialog()) {
            LookAt(hDialog);
            for (int i = 0; i < kEventsPerTick && m_nLeft > 0; ++i, --m_nLeft) OneEvent(hDialog);
        }
        if (m_nLeft == 0) {
            if (const HWND hDialog = ActiveDialog()) {
                PostMessageA(hDialog, WM_COMMAND, static_cast<WPARAM>(m_nEnd), 0);
                m_nEnd = IDCANCEL;
            }
        }
        m_bInTick = false;
    }

    // The controls that a user sees now; an event may hide or destroy some of them.
    void LookAt(HWND hDialog) {
        m_shown.clear();
        for (const HWND hWnd : Descendants(hDialog)) {
            if (IsWindowVisible(hWnd) && IsWindowEnabled(hWnd)) m_shown.push_back(hWnd);
        }
    }

    HWND SomeControl(HWND hDialog) {
        if (m_shown.empty()) return hDialog;
        const HWND hWnd = m_shown[static_cast<std::size_t>(Pick(static_cast<int>(m_shown.size())))];
        return IsWindow(hWnd) ? hWnd : hDialog;
    }

    void OneEvent(HWND hDialog) {
        const HWND hWnd = SomeControl(hDialog);
        switch (Pick(14)) {
            case 0:
            case 1:
                return PressKey();
            case 2:
            case 3:
            case 4:
                return TypeCharacter();
            case 5:
            case 6:
                return ClickAt(hWnd);
            case 7:
                return PressMnemonic(hDialog);
            case 8:
                SetFocus(hWnd);
                return;
            case 9:
                return ReplaceText(hWnd);
            case 10:
                return SendCommand(hWnd);
            case 11:
                return PostPrivateMessage(hWnd);
            case 12:
                return EditOperation(hWnd);
            default:
                // Rare: the dialog ends and is opened again.
                if (Pick(60) == 0)
                    PostMessageA(hDialog, WM_COMMAND, Pick(2) == 0 ? IDOK : IDCANCEL, 0);
                return;
        }
    }

    void PressKey() {
        static constexpr int kKeys[] = {VK_TAB,  VK_UP,     VK_DOWN,  VK_LEFT, VK_RIGHT,
                                        VK_HOME, VK_END,    VK_PRIOR, VK_NEXT, VK_SPACE,
                                        VK_BACK, VK_DELETE, VK_F1,    VK_F4};
        const HWND hFocus = GetFocus();
        if (hFocus == nullptr) return;
        const int nKey = PickFrom(kKeys);
        PostMessageA(hFocus, WM_KEYDOWN, static_cast<WPARAM>(nKey), 1);
        PostMessageA(hFocus, WM_KEYUP, static_cast<WPARAM>(nKey), static_cast<LPARAM>(0xC0000001u));
    }

    void TypeCharacter() {
        static constexpr char kLikely[] = {'0', '1', '5', '9', '.', '-',
                                           '+', 'e', 'E', ' ', 'x', '\b'};
        const HWND hFocus = GetFocus();
        if (hFocus == nullptr) return;
        const int nChar = Pick(4) == 0 ? 1 + Pick(255) : PickFrom(kLikely);
        // Enter and Escape would end the dialog too often.
        if (nChar == VK_RETURN || nChar == VK_ESCAPE) return;
        PostMessageA(hFocus, WM_CHAR, static_cast<WPARAM>(nChar), 1);
    }

    void ClickAt(HWND hWnd) {
        RECT rc;
        GetClientRect(hWnd, &rc);
        if (rc.right <= 0 || rc.bottom <= 0 || IsButtonThatEnds(hWnd)) return;
        const LPARAM nPoint = MAKELPARAM(Pick(rc.right), Pick(rc.bottom));
        PostMessageA(hWnd, WM_LBUTTONDOWN, MK_LBUTTON, nPoint);
        PostMessageA(hWnd, WM_LBUTTONUP, 0, nPoint);
    }

    // The last case of OneEvent presses these.
    bool IsButtonThatEnds(HWND hWnd) {
        const int nId = GetDlgCtrlID(hWnd);
        return (nId == IDOK || nId == IDCANCEL) && Pick(50) != 0;
    }

    void PressMnemonic(HWND hDialog) {
        const HWND hFocus = GetFocus();
        PostMessageA(hFocus != nullptr ? hFocus : hDialog, WM_SYSCHAR,
                     static_cast<WPARAM>('a' + Pick(26)), 1 << 29);
    }

    void ReplaceText(HWND hWnd) {
        if (ClassOf(hWnd) != "edit") return;
        static const char* const kTexts[] = {"",
                                             "1e999",
                                             "-1e999",
                                             "nan",
                                             "1.2.3",
                                             "0x10",
                                             "99999",
                                             "-5",
                                             "12345678901234567890123456789012345678901234567890"
                                             "12345678901234567890",
                                             "\x80\xFF",
                                             "%s%n",
                                             "  7"};
        SetWindowTextA(hWnd, PickFrom(kTexts));
    }

    void SendCommand(HWND hWnd) {
        static constexpr int kCodes[] = {0,   1,   2,     3,     4,     5,     6,      7,
                                         8,   9,   10,    11,    12,    500,   501,    502,
                                         503, 504, 0x100, 0x200, 0x300, 0x400, 0xFFFF, 0xFFFE};
        const int nId = GetDlgCtrlID(hWnd);
        const int nCode = PickFrom(kCodes);
        if (nCode == 0 && (nId == IDOK || nId == IDCANCEL)) return;
        PostMessageA(GetParent(hWnd), WM_COMMAND, MAKEWPARAM(nId, nCode),
                     reinterpret_cast<LPARAM>(hWnd));
    }

    void PostPrivateMessage(HWND hWnd) {
        static constexpr UINT kMessages[] = {ADMM_FOCUS_CONTROL, ADMM_SAVE_INITIAL,
                                             ADMM_UPDATE_CONTROLS, ADMM_APPLY_NOW,
                                             ADMM_APPLY_LATER};
        PostMessageA(GetParent(hWnd), PickFrom(kMessages), 0, 0);
    }

    void EditOperation(HWND hWnd) {
        if (ClassOf(hWnd) != "edit") return;
        static constexpr UINT kOperations[] = {WM_CUT, WM_COPY, WM_PASTE, WM_CLEAR, WM_UNDO};
        SendMessageA(hWnd, EM_SETSEL, static_cast<WPARAM>(Pick(5)), Pick(9) - 1);
        PostMessageA(hWnd, PickFrom(kOperations), 0, 0);
    }

    static inline RandomUser* s_pThis = nullptr;
    std::mt19937 m_random;
    int m_nLeft;
    int m_nEnd;
    bool m_bInTick = false;
    std::vector<HWND> m_shown;
    UINT_PTR m_uTimer = 0;
};

}  // namespace test_support
