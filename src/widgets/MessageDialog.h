// The library's own message box: every error, query and warning that a dialog shows. It takes the
// flag word of the platform's message box and looks the same on every system; its title can carry
// the application's name.
//
// A text is a C string, or a string id where its high 16 bits are 0 (MAKEINTRESOURCEA); an id is
// loaded from the module of the owner window. A text may hold the placeholders "%0" to "%9" of
// FormatArgs, which stand for the arguments given behind the flags. All functions run a nested
// modal loop and return the result code of the button pressed, or one of the special codes below,
// or 0 when nothing could be shown.
#pragma once

#include <initializer_list>

#include "platform/platform.h"

namespace CommonCtls {

constexpr UINT kMessageNoText = 0xFFFF;
constexpr UINT kMessageSevereFailure = 0xFFFD;
constexpr UINT kMessageTimedOut = 0xFFFC;

// Icon bits of the form for a failure that nobody foresaw; no value of the platform's own.
constexpr UINT kMessageUnexpectedError = 0xE0;

// One message, on the stack for one call of Run. The functions below are the usual way in.
class CZDMsgDialog {
  public:
    CZDMsgDialog() = default;
    CZDMsgDialog(const CZDMsgDialog&) = delete;
    CZDMsgDialog& operator=(const CZDMsgDialog&) = delete;
    virtual ~CZDMsgDialog();

    // Shows szText and returns the result. uTimeoutMs of -1 never times out.
    UINT Run(HWND hOwner, UINT uTimeoutMs, LPCSTR szText, UINT uFlags,
             std::initializer_list<LPCSTR> args);

    // What a box with these flags and this (expanded) text is made of; set up by Run before the
    // window exists, and by Prepare alone for who only wants to know.
    void Prepare(LPCSTR szExpandedText, UINT uFlags);
    LPCSTR GetTitle() const { return m_szTitle; }
    LPCSTR GetText() const { return m_szMessage; }
    UINT GetButtonCount() const { return m_nButtonCount; }
    LPCSTR GetButtonLabel(UINT nIndex) const { return m_aButtons[nIndex].szLabel; }
    UINT GetButtonResult(UINT nIndex) const { return m_aButtons[nIndex].nResult; }
    UINT GetDefaultButton() const { return m_nDefaultButton; }
    int GetCancelButton() const { return m_nCancelButton; }
    int GetModality() const { return m_nModality; }

    static constexpr int kMaxButtons = 9;
    static constexpr int kFirstButtonId = 101;
    static constexpr int kTextId = 90;
    static constexpr int kHeadingId = 91;
    static constexpr int kIconId = 92;
    static constexpr UINT_PTR kTimeoutTimer = 200;

  private:
    struct Button {
        char szLabel[32] = {};
        UINT nResult = 0;
        HWND hWnd = nullptr;
    };
    // Client rectangles in pixels, and the outer size of the dialog.
    struct Layout {
        RECT rcIcon = {};
        RECT rcHeading = {};
        RECT rcText = {};
        bool bScroll = false;
        int nButtonTop = 0;
        int nButtonLeft = 0;
        int nButtonHeight = 0;
        SIZE client = {};
    };

    static INT_PTR CALLBACK DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam);
    void AddButton(LPCSTR szLabel, UINT nResult);
    void FillButtons();
    void FillIconAndTitle();
    void AddApplicationName();
    bool MakeFont();
    bool ComputeLayout(HWND hOwner);
    void OnInitDialog(HWND hWnd);
    HWND CreateChild(HWND hWnd, LPCSTR szClass, LPCSTR szText, DWORD dwStyle, DWORD dwExStyle,
                     const RECT& rc, int nId) const;
    bool OnCommand(HWND hWnd, UINT nId) const;
    UINT ShowSevereFailure() const;

    HICON m_hIcon = nullptr;
    UINT m_uFlags = 0;
    Button m_aButtons[kMaxButtons];
    int m_nButtonWidth = 0;
    UINT m_nButtonCount = 0;
    UINT m_nDefaultButton = 0;
    int m_nCancelButton = -1;
    char m_szMessage[2049] = {};
    char m_szTitle[256] = {};
    HFONT m_hFont = nullptr;
    bool m_bStockFont = false;
    int m_nModality = 2;  // 0 task modal, 1 system modal, 2 application modal
    bool m_bFatal = false;
    UINT m_uTimeoutMs = static_cast<UINT>(-1);
    HWND m_hOwner = nullptr;
    Layout m_layout;
};

// Shows a message; kMessageNoText for a null text.
UINT ShowMessage(HWND hOwner, LPCSTR szText, UINT uFlags, std::initializer_list<LPCSTR> args = {});

// The same, ending by itself with kMessageTimedOut after uTimeoutMs.
UINT ShowMessageTimed(HWND hOwner, UINT uTimeoutMs, LPCSTR szText, UINT uFlags,
                      std::initializer_list<LPCSTR> args = {});

// Shows szFirst and, behind an empty line, szSecond; either may be null.
UINT ShowMessageByKey(HWND hOwner, LPCSTR szSecond, LPCSTR szFirst, UINT uFlags);

}  // namespace CommonCtls
