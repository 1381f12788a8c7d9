#include "widgets/MessageDialog.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "text/BoundedText.h"
#include "text/NumberParse.h"
#include "widgets/TextFormat.h"

namespace CommonCtls {
namespace {

constexpr char kUnexpectedErrorText[] =
    "An unexpected error has occurred.\r\n\r\n"
    "We recommend that you exit the application and try again.  If the problem persists after "
    "re-running "
    "the application we recommend restarting your computer.\r\n\r\n"
    "If this problem continues, contact Technical Support.\r\n\r\n";
constexpr int kUnexpectedErrorKept = 1023;

struct ButtonRow {
    UINT uFlags;
    struct {
        const char* szLabel;
        UINT nResult;
    } buttons[3];
    int nCancelButton;
};

constexpr ButtonRow kDefaultRow = {MB_OK, {{"OK", IDOK}}, 0};
constexpr ButtonRow kButtonRows[] = {
    {MB_OKCANCEL, {{"OK", IDOK}, {"Cancel", IDCANCEL}}, 1},
    {MB_ABORTRETRYIGNORE, {{"&Abort", IDABORT}, {"&Retry", IDRETRY}, {"&Ignore", IDIGNORE}}, -1},
    {MB_YESNOCANCEL, {{"&Yes", IDYES}, {"&No", IDNO}, {"Cancel", IDCANCEL}}, 2},
    {MB_YESNO, {{"&Yes", IDYES}, {"&No", IDNO}}, -1},
    {MB_RETRYCANCEL, {{"&Retry", IDRETRY}, {"Cancel", IDCANCEL}}, 1},
};

struct IconRow {
    UINT uFlags;
    WORD nIcon;
    const char* szTitle;
};

// The numbers of the system's own icons.
constexpr WORD kApplicationIcon = 32512;
constexpr WORD kHandIcon = 32513;
constexpr WORD kQuestionIcon = 32514;
constexpr WORD kExclamationIcon = 32515;
constexpr WORD kAsteriskIcon = 32516;

constexpr IconRow kDefaultIcon = {0, kAsteriskIcon, "Information"};
constexpr IconRow kIconRows[] = {
    {MB_ICONHAND, kHandIcon, "Error"},
    {MB_ICONQUESTION, kQuestionIcon, "Query"},
    {MB_ICONEXCLAMATION, kExclamationIcon, "Warning"},
    {kMessageUnexpectedError, kApplicationIcon, "Unexpected Error"},
};

template <typename Row, std::size_t N>
const Row& FindRow(const Row (&rows)[N], UINT uFlags, const Row& otherwise) {
    const auto found =
        std::find_if(rows, rows + N, [=](const Row& row) { return row.uFlags == uFlags; });
    return found != rows + N ? *found : otherwise;
}

bool IsStringId(LPCSTR szText) {
    return (reinterpret_cast<ULONG_PTR>(szText) >> 16) == 0;
}

// The text itself, or the string of that id from the owner's module; false when there is no such
// string.
bool LoadMessageText(HWND hOwner, LPCSTR szText, std::string& sResult) {
    if (!IsStringId(szText)) {
        sResult = szText;
        return true;
    }
    char szLoaded[2049];
    const auto hInstance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(hOwner, GWLP_HINSTANCE));
    const auto nId = static_cast<UINT>(reinterpret_cast<ULONG_PTR>(szText));
    if (LoadStringA(hInstance, nId, szLoaded, sizeof szLoaded) <= 0) return false;
    sResult = szLoaded;
    return true;
}

BOOL CALLBACK TakeFirstNonPopup(HWND hWnd, LPARAM lParam) {
    if ((static_cast<DWORD>(GetWindowLongPtrA(hWnd, GWL_STYLE)) & WS_POPUP) != 0) return TRUE;
    *reinterpret_cast<HWND*>(lParam) = hWnd;
    return FALSE;
}

// The first window of the thread that is not a popup; null where there is none.
HWND FindThreadOwner() {
    HWND hFound = nullptr;
    EnumThreadWindows(GetCurrentThreadId(), &TakeFirstNonPopup, reinterpret_cast<LPARAM>(&hFound));
    return hFound;
}

// While a task modal message is up, no other top-level window of the thread takes input.
class TaskModalScope {
  public:
    TaskModalScope(bool bActive, HWND hOwner) : m_hOwner(hOwner) {
        if (bActive) {
            EnumThreadWindows(GetCurrentThreadId(), &TaskModalScope::Disable,
                              reinterpret_cast<LPARAM>(this));
        }
    }
    ~TaskModalScope() {
        for (HWND hWnd : m_vDisabled) EnableWindow(hWnd, TRUE);
    }
    TaskModalScope(const TaskModalScope&) = delete;
    TaskModalScope& operator=(const TaskModalScope&) = delete;

  private:
    static BOOL CALLBACK Disable(HWND hWnd, LPARAM lParam) {
        auto* self = reinterpret_cast<TaskModalScope*>(lParam);
        if (hWnd != self->m_hOwner && IsWindowVisible(hWnd) && IsWindowEnabled(hWnd)) {
            EnableWindow(hWnd, FALSE);
            self->m_vDisabled.push_back(hWnd);
        }
        return TRUE;
    }

    HWND m_hOwner;  // the modal loop itself looks after the owner
    std::vector<HWND> m_vDisabled;
};

}  // namespace

CZDMsgDialog::~CZDMsgDialog() {
    if (m_hFont != nullptr && !m_bStockFont) DeleteObject(m_hFont);
}

UINT CZDMsgDialog::Run(HWND hOwner, UINT uTimeoutMs, LPCSTR szText, UINT uFlags,
                       std::initializer_list<LPCSTR> args) {
    if (szText == nullptr) return kMessageNoText;
    m_uTimeoutMs = uTimeoutMs;
    std::string sText;
    if (!LoadMessageText(hOwner, szText, sText)) return 0;

    std::array<LPCSTR, 10> apArgs{};
    std::copy_n(args.begin(), std::min(args.size(), apArgs.size()), apArgs.begin());
    const auto hInstance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(hOwner, GWLP_HINSTANCE));
    char szExpanded[sizeof m_szMessage];
    FormatArgs(hInstance, szExpanded, sizeof szExpanded, sText.c_str(), apArgs.data());
    Prepare(szExpanded, uFlags);

    m_hOwner = hOwner != nullptr ? hOwner : FindThreadOwner();
    if (!MakeFont()) return ShowSevereFailure();
    if (!ComputeLayout(m_hOwner)) return 0;
    if (m_hOwner != nullptr && IsIconic(m_hOwner)) ShowWindow(m_hOwner, SW_RESTORE);

    // No items: the controls are made in pixels once the dialog exists. The words behind the header
    // are menu, class and title, all empty.
    struct {
        DLGTEMPLATE header;
        WORD tail[3];
    } dialog = {};
    const bool bCanClose = m_nCancelButton >= 0 || m_nButtonCount == 1;
    dialog.header.style = DS_MODALFRAME | DS_NOIDLEMSG | DS_SETFOREGROUND | WS_POPUP | WS_CAPTION |
                          (bCanClose ? WS_SYSMENU : 0) | (m_nModality == 1 ? DS_SYSMODAL : 0);
    const TaskModalScope taskModal(m_nModality == 0, m_hOwner);
    const INT_PTR nResult =
        DialogBoxIndirectParamA(GetModuleHandleA(nullptr), &dialog.header, m_hOwner,
                                &CZDMsgDialog::DialogProc, reinterpret_cast<LPARAM>(this));
    return nResult > 0 ? static_cast<UINT>(nResult) : ShowSevereFailure();
}

void CZDMsgDialog::Prepare(LPCSTR szExpandedText, UINT uFlags) {
    m_uFlags = uFlags;
    m_bFatal = (uFlags & MB_ICONMASK) == kMessageUnexpectedError;
    BoundedWriter writer(m_szMessage, sizeof m_szMessage);
    std::string_view sText(szExpandedText);
    if (m_bFatal) {
        writer.Put(kUnexpectedErrorText);
        sText = sText.substr(0, kUnexpectedErrorKept);
    }
    writer.Put(sText);
    FillButtons();
    FillIconAndTitle();
    m_nDefaultButton = std::min<UINT>((uFlags & MB_DEFMASK) >> 8, m_nButtonCount - 1);
    m_nModality = (uFlags & MB_TASKMODAL) != 0 ? 0 : (uFlags & MB_SYSTEMMODAL) != 0 ? 1 : 2;
    AddApplicationName();
}

void CZDMsgDialog::AddButton(LPCSTR szLabel, UINT nResult) {
    Button& button = m_aButtons[m_nButtonCount++];
    CopyText(button.szLabel, szLabel);
    button.nResult = nResult;
}

void CZDMsgDialog::FillButtons() {
    const ButtonRow& row = FindRow(kButtonRows, m_uFlags & MB_TYPEMASK, kDefaultRow);
    m_nButtonCount = 0;
    for (const auto& button : row.buttons) {
        if (button.szLabel != nullptr) AddButton(button.szLabel, button.nResult);
    }
    m_nCancelButton = row.nCancelButton;
}

void CZDMsgDialog::FillIconAndTitle() {
    const IconRow& row = FindRow(kIconRows, m_uFlags & MB_ICONMASK, kDefaultIcon);
    m_hIcon = LoadIconA(nullptr, MAKEINTRESOURCEA(row.nIcon));
    CopyText(m_szTitle, row.szTitle);
}

void CZDMsgDialog::AddApplicationName() {
    char szName[256];
    const DWORD nLength = GetEnvironmentVariableA("ZCC_ApplicationName", szName, sizeof szName);
    if (nLength == 0) return;
    std::string sName(szName, std::min<DWORD>(nLength, sizeof szName - 1));
    if (nLength >= sizeof szName) {
        sName.resize(nLength);
        sName.resize(GetEnvironmentVariableA("ZCC_ApplicationName", sName.data(), nLength));
    }
    char szKind[64];
    CopyText(szKind, m_szTitle);
    BoundedWriter writer(m_szTitle, sizeof m_szTitle);
    writer.Put(sName);
    writer.Put(" - ");
    writer.Put(szKind);
}

UINT CZDMsgDialog::ShowSevereFailure() const {
    MessageBoxA(nullptr,
                "The program is unable to continue\r\ndue to a critical deficiency in resources.",
                "Severe Error", MB_ICONHAND | MB_SYSTEMMODAL);
    return kMessageSevereFailure;
}

// --- The dialog ------------------------------------------------------------------------------

INT_PTR CALLBACK CZDMsgDialog::DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == WM_INITDIALOG) {
        SetWindowLongPtrA(hWnd, DWLP_USER, lParam);
        reinterpret_cast<CZDMsgDialog*>(lParam)->OnInitDialog(hWnd);
        return FALSE;
    }
    auto* self = reinterpret_cast<CZDMsgDialog*>(GetWindowLongPtrA(hWnd, DWLP_USER));
    if (self == nullptr) return FALSE;
    switch (uMsg) {
        case WM_COMMAND:
            return self->OnCommand(hWnd, LOWORD(wParam)) ? TRUE : FALSE;
        case WM_TIMER:
            if (wParam != kTimeoutTimer) return FALSE;
            EndDialog(hWnd, kMessageTimedOut);
            return TRUE;
        case WM_DESTROY:
            if (self->m_uTimeoutMs != static_cast<UINT>(-1)) KillTimer(hWnd, kTimeoutTimer);
            return FALSE;
        default:
            return FALSE;
    }
}

bool CZDMsgDialog::OnCommand(HWND hWnd, UINT nId) const {
    if (nId == IDOK) {
        EndDialog(hWnd, IDOK);
    } else if (nId == IDCANCEL) {
        if (m_nCancelButton >= 0) {
            EndDialog(hWnd, static_cast<INT_PTR>(m_aButtons[m_nCancelButton].nResult));
        } else if (m_nButtonCount == 1) {
            EndDialog(hWnd, static_cast<INT_PTR>(m_aButtons[0].nResult));
        }
    } else if (nId >= kFirstButtonId && nId < kFirstButtonId + m_nButtonCount) {
        EndDialog(hWnd, static_cast<INT_PTR>(m_aButtons[nId - kFirstButtonId].nResult));
    } else {
        return false;
    }
    return true;
}

HWND CZDMsgDialog::CreateChild(HWND hWnd, LPCSTR szClass, LPCSTR szText, DWORD dwStyle,
                               DWORD dwExStyle, const RECT& rc, int nId) const {
    HWND hChild = CreateWindowExA(
        dwExStyle, szClass, szText, dwStyle | WS_CHILD | WS_VISIBLE, rc.left, rc.top,
        rc.right - rc.left, rc.bottom - rc.top, hWnd,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(nId)),
        reinterpret_cast<HINSTANCE>(GetWindowLongPtrA(hWnd, GWLP_HINSTANCE)), nullptr);
    if (hChild != nullptr && m_hFont != nullptr) {
        SendMessageA(hChild, WM_SETFONT, reinterpret_cast<WPARAM>(m_hFont), FALSE);
    }
    return hChild;
}

void CZDMsgDialog::OnInitDialog(HWND hWnd) {
    SetWindowTextA(hWnd, m_szTitle);

    HWND hIcon = CreateChild(hWnd, "STATIC", "", SS_ICON, 0, m_layout.rcIcon, kIconId);
    SendMessageA(hIcon, STM_SETICON, reinterpret_cast<WPARAM>(m_hIcon), 0);
    std::string_view sText(m_szMessage);
    if (m_bFatal) {
        const std::size_t nHeading = sText.find("\r\n\r\n");
        CreateChild(hWnd, "STATIC", std::string(sText.substr(0, nHeading)).c_str(),
                    SS_LEFT | SS_NOPREFIX, 0, m_layout.rcHeading, kHeadingId);
        sText.remove_prefix(nHeading + 4);
    }
    if (m_layout.bScroll) {
        // An edit control breaks lines at "\r\n" alone.
        std::string sLines;
        for (std::size_t i = 0; i < sText.size(); ++i) {
            if (sText[i] == '\n' && (i == 0 || sText[i - 1] != '\r')) sLines += '\r';
            sLines += sText[i];
        }
        CreateChild(
            hWnd, "EDIT", sLines.c_str(),
            ES_MULTILINE | ES_READONLY | ES_AUTOVSCROLL | WS_VSCROLL | WS_TABSTOP | WS_GROUP,
            WS_EX_CLIENTEDGE, m_layout.rcText, kTextId);
    } else {
        CreateChild(hWnd, "STATIC", std::string(sText).c_str(), SS_LEFT | SS_NOPREFIX, 0,
                    m_layout.rcText, kTextId);
    }

    const int nGap = 4 * m_layout.nButtonHeight / 14;
    for (UINT i = 0; i < m_nButtonCount; ++i) {
        RECT rc;
        rc.left = m_layout.nButtonLeft + static_cast<int>(i) * (m_nButtonWidth + nGap);
        rc.top = m_layout.nButtonTop;
        rc.right = rc.left + m_nButtonWidth;
        rc.bottom = rc.top + m_layout.nButtonHeight;
        const DWORD dwStyle = WS_TABSTOP | (i == 0 ? WS_GROUP : 0) |
                              (i == m_nDefaultButton ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON);
        m_aButtons[i].hWnd = CreateChild(hWnd, "BUTTON", m_aButtons[i].szLabel, dwStyle, 0, rc,
                                         kFirstButtonId + static_cast<int>(i));
    }
    SendMessageA(hWnd, DM_SETDEFID, static_cast<WPARAM>(kFirstButtonId) + m_nDefaultButton, 0);

    RECT outer = {0, 0, m_layout.client.cx, m_layout.client.cy};
    AdjustWindowRectEx(&outer, static_cast<DWORD>(GetWindowLongPtrA(hWnd, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrA(hWnd, GWL_EXSTYLE)));
    const int nWidth = outer.right - outer.left;
    const int nHeight = outer.bottom - outer.top;
    MONITORINFO monitor = {};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(
        MonitorFromWindow(m_hOwner != nullptr ? m_hOwner : hWnd, MONITOR_DEFAULTTONEAREST),
        &monitor);
    RECT around = monitor.rcWork;
    if (m_hOwner != nullptr && IsWindowVisible(m_hOwner)) GetWindowRect(m_hOwner, &around);
    const LONG nLeft =
        std::clamp<LONG>((around.left + around.right - nWidth) / 2, monitor.rcWork.left,
                         std::max<LONG>(monitor.rcWork.left, monitor.rcWork.right - nWidth));
    const LONG nTop =
        std::clamp<LONG>((around.top + around.bottom - nHeight) / 2, monitor.rcWork.top,
                         std::max<LONG>(monitor.rcWork.top, monitor.rcWork.bottom - nHeight));
    SetWindowPos(hWnd, nullptr, nLeft, nTop, nWidth, nHeight, SWP_NOZORDER | SWP_NOACTIVATE);

    if (m_uTimeoutMs != static_cast<UINT>(-1)) SetTimer(hWnd, kTimeoutTimer, m_uTimeoutMs, nullptr);
    SetFocus(m_aButtons[m_nDefaultButton].hWnd);
}

// --- The free functions ----------------------------------------------------------------------

UINT ShowMessage(HWND hOwner, LPCSTR szText, UINT uFlags, std::initializer_list<LPCSTR> args) {
    return ShowMessageTimed(hOwner, static_cast<UINT>(-1), szText, uFlags, args);
}

UINT ShowMessageTimed(HWND hOwner, UINT uTimeoutMs, LPCSTR szText, UINT uFlags,
                      std::initializer_list<LPCSTR> args) {
    CZDMsgDialog dialog;
    return dialog.Run(hOwner, uTimeoutMs, szText, uFlags, args);
}

UINT ShowMessageByKey(HWND hOwner, LPCSTR szSecond, LPCSTR szFirst, UINT uFlags) {
    char szText[2049];
    BoundedWriter writer(szText, sizeof szText);
    std::string sPiece;
    const bool bFirst = szFirst != nullptr && LoadMessageText(hOwner, szFirst, sPiece);
    if (bFirst) writer.Put(sPiece);
    if (szSecond != nullptr && LoadMessageText(hOwner, szSecond, sPiece)) {
        if (bFirst) writer.Put("\r\n\r\n");
        writer.Put(sPiece);
    }
    if (writer.Length() == 0 && szFirst == nullptr && szSecond == nullptr) return kMessageNoText;
    return ShowMessage(hOwner, szText, uFlags);
}

}  // namespace CommonCtls
