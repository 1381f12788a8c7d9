// What keys do in a dialog before its controls see them.
#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/system/codepage.h"
#include "platform/headless/window/hook_list.h"
#include "platform/headless/window/window_class.h"

namespace headless {

namespace {

void ShowCues(HWND dialog, UINT cues) {
    const Window* window = Peek(dialog);
    if (window != nullptr && (window->uiState & cues) != 0)
        Send(dialog, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, cues), 0);
}

void Command(HWND dialog, int id) {
    Send(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
         reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

void PressEnter(HWND dialog) {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(dialog, focus) &&
        (DialogCode(focus) & DLGC_DEFPUSHBUTTON) != 0) {
        Send(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(focus), BN_CLICKED),
             reinterpret_cast<LPARAM>(focus));
        return;
    }
    const auto answer = static_cast<DWORD>(Send(dialog, DM_GETDEFID, 0, 0));
    const int id = HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : IDOK;
    const HWND button = GetDlgItem(dialog, id);
    if (button != nullptr && !IsWindowEnabled(button)) return;
    Command(dialog, id);
}

void PressArrow(HWND dialog, HWND from, WPARAM key) {
    ShowCues(dialog, UISF_HIDEFOCUS);
    const BOOL previous = key == VK_LEFT || key == VK_UP;
    const HWND next = GetNextDlgGroupItem(dialog, from, previous);
    if (next == nullptr ||
        (DialogCode(next) & (DLGC_BUTTON | DLGC_RADIOBUTTON)) != (DLGC_BUTTON | DLGC_RADIOBUTTON)) {
        Send(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(next), TRUE);
        return;
    }
    SetFocus(next);
    const bool automatic = (GetWindowLongA(next, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
    if (automatic && Send(next, BM_GETCHECK, 0, 0) != BST_CHECKED) Send(next, BM_CLICK, TRUE, 0);
}

// True when the key is done with.
bool KeyDown(HWND dialog, const MSG& msg) {
    const auto code = static_cast<UINT>(
        Send(msg.hwnd, WM_GETDLGCODE, msg.wParam, reinterpret_cast<LPARAM>(&msg)));
    if ((code & DLGC_WANTMESSAGE) != 0) return false;
    switch (msg.wParam) {
        case VK_TAB:
            if ((code & DLGC_WANTTAB) != 0) return false;
            ShowCues(dialog, UISF_HIDEFOCUS);
            Send(dialog, WM_NEXTDLGCTL, GetKeyState(VK_SHIFT) < 0, FALSE);
            return true;
        case VK_LEFT:
        case VK_UP:
        case VK_RIGHT:
        case VK_DOWN:
            if ((code & DLGC_WANTARROWS) != 0) return false;
            PressArrow(dialog, msg.hwnd, msg.wParam);
            return true;
        case VK_CANCEL:
        case VK_ESCAPE: {
            const HWND cancel = GetDlgItem(dialog, IDCANCEL);
            if (cancel != nullptr && !IsWindowEnabled(cancel)) {
                MessageBeep(0);
            } else {
                Command(dialog, IDCANCEL);
            }
            return true;
        }
        case VK_EXECUTE:
        case VK_RETURN:
            PressEnter(dialog);
            return true;
        default:
            return false;
    }
}

bool Character(HWND dialog, const MSG& msg) {
    if (msg.message == static_cast<UINT>(WM_CHAR)) {
        const auto code = static_cast<UINT>(
            Send(msg.hwnd, WM_GETDLGCODE, msg.wParam, reinterpret_cast<LPARAM>(&msg)));
        if ((code & (DLGC_WANTCHARS | DLGC_WANTMESSAGE)) != 0) return false;
        if (msg.wParam == '\t' && (code & DLGC_WANTTAB) != 0) return false;
        // Space presses the control itself.
        if (msg.wParam == ' ') return false;
    }
    return PressMnemonic(dialog, msg.hwnd, static_cast<int>(msg.wParam));
}

// The character after the first single ampersand, 0 for none.
int MnemonicOf(const std::string& text) {
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&') continue;
        if (text[i + 1] != '&') return static_cast<unsigned char>(text[i + 1]);
        ++i;
    }
    return 0;
}

std::string TextOf(HWND hwnd) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(hwnd)) + 1, '\0');
    text.resize(
        static_cast<std::size_t>(GetWindowTextA(hwnd, text.data(), static_cast<int>(text.size()))));
    return text;
}

// Every control that a mnemonic can reach, in their order, with those of nested pages.
void Reachable(const Window& parent, std::vector<HWND>& all) {
    for (const Window* child : parent.children) {
        if ((child->style & WS_VISIBLE) == 0 || !Enabled(*child)) continue;
        all.push_back(child->handle);
        if ((child->exStyle & WS_EX_CONTROLPARENT) != 0) Reachable(*child, all);
    }
}

bool Matches(HWND control, int character) {
    const UINT code = DialogCode(control);
    const Window* window = Peek(control);
    if (window == nullptr || (code & DLGC_WANTCHARS) != 0) return false;
    if ((code & (DLGC_STATIC | DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON |
                 DLGC_RADIOBUTTON)) == 0)
        return false;
    const bool isStatic = SameName(window->cls->name, "Static");
    if (isStatic && (window->style & SS_NOPREFIX) != 0) return false;
    const std::string wanted(1, static_cast<char>(character));
    const int mnemonic = MnemonicOf(TextOf(control));
    return mnemonic != 0 && SameName(std::string(1, static_cast<char>(mnemonic)), wanted);
}

void Reach(HWND dialog, HWND control) {
    const UINT code = DialogCode(control);
    const Window* window = Peek(control);
    const bool label = (code & DLGC_STATIC) != 0 ||
                       (SameName(window->cls->name, "Button") &&
                        (window->style & BS_TYPEMASK) == static_cast<DWORD>(BS_GROUPBOX));
    if (label) {
        // A label stands for the control after it. That one loses the focus and has it again when
        // it had it before, as the real system shows.
        Send(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        if (Peek(dialog) != nullptr) Send(dialog, WM_NEXTDLGCTL, FALSE, FALSE);
        return;
    }
    if ((code & (DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON | DLGC_RADIOBUTTON)) != 0)
        Send(control, BM_CLICK, 0, 0);
}

}  // namespace

bool PressMnemonic(HWND dialog, HWND from, int character) {
    const Window* window = Peek(dialog);
    if (window == nullptr) return false;
    std::vector<HWND> all;
    Reachable(*window, all);
    // The search goes on behind the control that has the key, and comes round to it last.
    std::size_t start = 0;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Window* control = Peek(all[i]);
        const Window* holder = Peek(from);
        if (holder != nullptr && Within(control, holder)) start = i + 1;
    }
    for (std::size_t i = 0; i < all.size(); ++i) {
        const HWND control = all[(start + i) % all.size()];
        if (Peek(control) == nullptr || !Matches(control, character)) continue;
        Reach(dialog, control);
        return true;
    }
    return false;
}

}  // namespace headless

using namespace headless;

BOOL IsDialogMessageA(HWND dialog, MSG* msg) {
    if (msg == nullptr) return FALSE;
    KeepAlive keep;
    if (CallFilterHooks(*msg, MSGF_DIALOGBOX)) return TRUE;
    const Window* window = Peek(dialog);
    const Window* target = Peek(msg->hwnd);
    if (window == nullptr || window->IsDesktop() || target == nullptr) return FALSE;
    if (target != window && !IsChild(dialog, msg->hwnd)) return FALSE;
    switch (msg->message) {
        case WM_KEYDOWN:
            if (KeyDown(dialog, *msg)) return TRUE;
            break;
        case WM_CHAR:
        case WM_SYSCHAR:
            if (Character(dialog, *msg)) return TRUE;
            break;
        case WM_SYSKEYDOWN:
            if (msg->wParam == VK_MENU) ShowCues(dialog, UISF_HIDEACCEL | UISF_HIDEFOCUS);
            break;
        default:
            break;
    }
    TranslateMessage(msg);
    DispatchMessageA(msg);
    return TRUE;
}
