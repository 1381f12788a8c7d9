// The platform's message box: an ordinary dialog of this system, so that whoever drives dialogs can
// read and answer it like any other. Its text is the control with id 0xFFFF, its icon the one with
// id 20, and the buttons have the platform's ids.
#include <algorithm>
#include <string>

#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/system/codepage.h"
#include "zxadlg/headless/diagnostics.h"

namespace headless {

namespace {

constexpr int kTextId = 0xFFFF;
constexpr int kIconId = 20;
constexpr int kMargin = 12;
constexpr int kButtonGap = 6;
constexpr int kIconGap = 12;

constexpr UINT kKnownTypes = MB_TYPEMASK | MB_ICONMASK | MB_DEFMASK | MB_SYSTEMMODAL |
                             MB_TASKMODAL | MB_HELP | MB_NOFOCUS | MB_SETFOREGROUND |
                             MB_DEFAULT_DESKTOP_ONLY | MB_TOPMOST | MB_RIGHT | MB_RTLREADING |
                             MB_SERVICE_NOTIFICATION;

struct Button {
    int id;
    const char* text;
};

constexpr Button kOk{IDOK, "OK"};
constexpr Button kCancel{IDCANCEL, "Cancel"};
constexpr Button kAbort{IDABORT, "&Abort"};
constexpr Button kRetry{IDRETRY, "&Retry"};
constexpr Button kIgnore{IDIGNORE, "&Ignore"};
constexpr Button kYes{IDYES, "&Yes"};
constexpr Button kNo{IDNO, "&No"};
constexpr Button kTryAgain{IDTRYAGAIN, "&Try Again"};
constexpr Button kContinue{IDCONTINUE, "&Continue"};
constexpr Button kHelp{IDHELP, "Help"};

// By the type's low four bits.
const std::vector<Button> kButtons[] = {
    {kOk},       {kOk, kCancel},    {kAbort, kRetry, kIgnore},       {kYes, kNo, kCancel},
    {kYes, kNo}, {kRetry, kCancel}, {kCancel, kTryAgain, kContinue},
};

struct Box {
    std::string text;
    UINT type = 0;
    std::vector<Button> buttons;
    int defaultIndex = 0;
    HWND owner = nullptr;
    HFONT font = nullptr;
};

class TemplateWriter {
  public:
    void Word(unsigned value) {
        bytes_.push_back(static_cast<std::uint8_t>(value));
        bytes_.push_back(static_cast<std::uint8_t>(value >> 8));
    }
    void Double(DWORD value) {
        Word(value & 0xFFFF);
        Word(value >> 16);
    }
    void Text(const std::string& text) {
        for (const char c : text) Word(FromAnsi(c));
        Word(0);
    }
    void Item(DWORD style, int id, unsigned atom, const std::string& text) {
        while ((bytes_.size() & 3) != 0) bytes_.push_back(0);
        Double(style | WS_CHILD | WS_VISIBLE);
        Double(0);
        for (const int value : {0, 0, 50, 14}) Word(static_cast<unsigned>(value));
        Word(static_cast<unsigned>(id));
        Word(0xFFFF);
        Word(atom);
        Text(text);
        Word(0);
    }
    const std::vector<std::uint8_t>& Bytes() const { return bytes_; }

  private:
    std::vector<std::uint8_t> bytes_;
};

// The texts are set later: a template cannot hold one of any length.
std::vector<std::uint8_t> MakeTemplate(const Box& box) {
    TemplateWriter out;
    const bool icon = (box.type & MB_ICONMASK) != 0;
    out.Double(static_cast<DWORD>(WS_POPUP) | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME |
               DS_NOIDLEMSG | DS_SETFONT);
    out.Double(0);
    out.Word(static_cast<unsigned>(box.buttons.size()) + (icon ? 2 : 1));
    for (const int value : {0, 0, 100, 60}) out.Word(static_cast<unsigned>(value));
    out.Word(0);
    out.Word(0);
    out.Text("");
    out.Word(8);
    out.Text("MS Shell Dlg");
    for (std::size_t i = 0; i < box.buttons.size(); ++i) {
        const bool first = i == 0;
        const bool chosen = static_cast<int>(i) == box.defaultIndex;
        out.Item(static_cast<DWORD>((chosen ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON) | WS_TABSTOP |
                                    (first ? WS_GROUP : 0)),
                 box.buttons[i].id, 0x80, box.buttons[i].text);
    }
    // The arrows stay among the buttons.
    if (icon) out.Item(DWORD{SS_ICON} | WS_GROUP, kIconId, 0x82, "");
    out.Item(DWORD{SS_LEFT} | SS_NOPREFIX | WS_GROUP, kTextId, 0x82, "");
    return out.Bytes();
}

void Place(HWND control, int x, int y, int width, int height) {
    SetWindowPos(control, nullptr, x, y, width, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

// Text at most five eighths of the screen wide, icon left of it, buttons in the middle below.
void Layout(HWND dialog, const Box& box) {
    RECT button{0, 0, 50, 14};
    MapDialogRect(dialog, &button);
    const HDC dc = GetDC(dialog);
    const HGDIOBJ old = SelectObject(dc, reinterpret_cast<HGDIOBJ>(Send(dialog, WM_GETFONT, 0, 0)));
    RECT text{0, 0, GetSystemMetrics(SM_CXSCREEN) * 5 / 8, 0};
    DrawTextA(dc, box.text.c_str(), static_cast<int>(box.text.size()), &text,
              DT_CALCRECT | DT_WORDBREAK | DT_EXPANDTABS | DT_NOPREFIX);
    SelectObject(dc, old);
    ReleaseDC(dialog, dc);
    const bool icon = (box.type & MB_ICONMASK) != 0;
    const int iconWidth = icon ? GetSystemMetrics(SM_CXICON) : 0;
    const int iconHeight = icon ? GetSystemMetrics(SM_CYICON) : 0;
    const int textLeft = kMargin + iconWidth + (icon ? kIconGap : 0);
    const int count = static_cast<int>(box.buttons.size());
    const int row = count * Width(button) + (count - 1) * kButtonGap;
    const int body = std::max<int>(Height(text), iconHeight);
    const int width = std::max<int>(textLeft + Width(text), kMargin + row) + kMargin;
    const int height = kMargin + body + kMargin + Height(button) + kMargin;
    RECT frame{0, 0, width, height};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongA(dialog, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongA(dialog, GWL_EXSTYLE)));
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoA(
        MonitorFromWindow(box.owner != nullptr ? box.owner : dialog, MONITOR_DEFAULTTOPRIMARY),
        &monitor);
    const RECT& work = monitor.rcWork;
    Place(dialog, (work.left + work.right - Width(frame)) / 2,
          (work.top + work.bottom - Height(frame)) / 2, Width(frame), Height(frame));
    if (icon) Place(GetDlgItem(dialog, kIconId), kMargin, kMargin, iconWidth, iconHeight);
    Place(GetDlgItem(dialog, kTextId), textLeft, kMargin + (body - Height(text)) / 2, Width(text),
          Height(text));
    int x = (width - row) / 2;
    for (const Button& b : box.buttons) {
        Place(GetDlgItem(dialog, b.id), x, kMargin + body + kMargin, Width(button), Height(button));
        x += Width(button) + kButtonGap;
    }
}

LPCSTR IconName(UINT type) {
    switch (type & MB_ICONMASK) {
        case MB_ICONHAND:
            return IDI_HAND;
        case MB_ICONQUESTION:
            return IDI_QUESTION;
        case MB_ICONEXCLAMATION:
            return IDI_EXCLAMATION;
        case MB_ICONASTERISK:
            return IDI_ASTERISK;
        default:
            return IDI_APPLICATION;
    }
}

bool HasButton(const Box& box, int id) {
    return std::any_of(box.buttons.begin(), box.buttons.end(),
                       [id](const Button& b) { return b.id == id; });
}

void AskForHelp(HWND dialog, const Box& box) {
    HELPINFO info{};
    info.cbSize = sizeof info;
    info.iContextType = HELPINFO_WINDOW;
    info.hItemHandle = dialog;
    GetCursorPos(&info.MousePos);
    if (box.owner != nullptr) Send(box.owner, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
}

INT_PTR BoxProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    static const char kProperty[] = "MessageBoxData";
    if (message == static_cast<UINT>(WM_INITDIALOG)) {
        auto* box = reinterpret_cast<Box*>(lParam);
        SetPropA(dialog, kProperty, box);
        SetDlgItemTextA(dialog, kTextId, box->text.c_str());
        if ((box->type & MB_ICONMASK) != 0)
            SendDlgItemMessageA(dialog, kIconId, STM_SETICON,
                                reinterpret_cast<WPARAM>(LoadIconA(nullptr, IconName(box->type))),
                                0);
        Layout(dialog, *box);
        if ((box->type & (MB_TOPMOST | MB_SYSTEMMODAL)) != 0)
            SetWindowPos(dialog, HWND_TOPMOST, 0, 0, 0, 0,
                         SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        const int id = box->buttons[static_cast<std::size_t>(box->defaultIndex)].id;
        SetFocus(GetDlgItem(dialog, id));
        Send(dialog, DM_SETDEFID, static_cast<WPARAM>(id), 0);
        return FALSE;
    }
    if (message == static_cast<UINT>(WM_HELP)) {
        const auto* box = static_cast<const Box*>(GetPropA(dialog, kProperty));
        if (box != nullptr) AskForHelp(dialog, *box);
        return TRUE;
    }
    if (message != static_cast<UINT>(WM_COMMAND)) return FALSE;
    const auto* box = static_cast<const Box*>(GetPropA(dialog, kProperty));
    if (box == nullptr || HIWORD(wParam) != BN_CLICKED) return FALSE;
    int id = LOWORD(wParam);
    if (id == IDHELP) {
        AskForHelp(dialog, *box);
        return TRUE;
    }
    if (id == IDCANCEL && !HasButton(*box, IDCANCEL)) {
        // Escape and the close box press the only button there is, and do nothing where a choice
        // has to be made.
        if ((box->type & MB_TYPEMASK) != MB_OK) return TRUE;
        id = IDOK;
    }
    if (HasButton(*box, id)) EndDialog(dialog, id);
    return TRUE;
}

// With no owner a task-modal box closes every window of the thread to the user.
std::vector<HWND> DisableTask() {
    std::vector<HWND> disabled;
    const std::vector<Window*> all = ThisWorld().desktop->children;
    for (const Window* w : all) {
        if (!w->alive || (w->style & WS_VISIBLE) == 0 || !Enabled(*w)) continue;
        disabled.push_back(w->handle);
    }
    for (const HWND w : disabled) EnableWindow(w, FALSE);
    return disabled;
}

}  // namespace

}  // namespace headless

using namespace headless;

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type) {
    KeepAlive keep;
    const UINT kind = type & MB_TYPEMASK;
    if (kind >= std::size(kButtons) || (owner != nullptr && !IsWindow(owner))) {
        SetLastError(kind >= std::size(kButtons) ? ERROR_INVALID_PARAMETER
                                                 : ERROR_INVALID_WINDOW_HANDLE);
        return 0;
    }
    if ((type & ~kKnownTypes) != 0) ReportUnsupported("MessageBoxA " + Hex(type & ~kKnownTypes));
    Box box;
    box.text = text == nullptr ? "" : text;
    box.type = type;
    box.owner = owner;
    box.buttons = kButtons[kind];
    if ((type & MB_HELP) != 0) box.buttons.push_back(kHelp);
    const auto wanted = static_cast<int>((type & MB_DEFMASK) >> 8);
    box.defaultIndex = wanted < static_cast<int>(box.buttons.size()) ? wanted : 0;

    std::vector<HWND> disabled;
    if (owner == nullptr && (type & MB_TASKMODAL) != 0) disabled = DisableTask();
    const HWND active = GetActiveWindow();
    const std::vector<std::uint8_t> bytes = MakeTemplate(box);
    const HWND dialog = CreateDialogFrom(nullptr, bytes.data(), bytes.size(), owner, BoxProc,
                                         reinterpret_cast<LPARAM>(&box), true);
    INT_PTR result = 0;
    if (dialog != nullptr) {
        SetWindowTextA(dialog, caption == nullptr ? "Error" : caption);
        result = RunDialog(dialog, owner);
    }
    for (const HWND w : disabled) {
        if (Peek(w) != nullptr) EnableWindow(w, TRUE);
    }
    if (!disabled.empty() && Peek(active) != nullptr) SetActiveWindow(active);
    return result < 0 ? 0 : static_cast<int>(result);
}
