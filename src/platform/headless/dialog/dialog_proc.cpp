// The procedure of the dialog class: the user's procedure first, then the dialog's own answers.
#include "platform/headless/dialog/dialog_state.h"
#include "platform/headless/system/codepage.h"
#include "platform/headless/window/window_class.h"

namespace headless {

namespace {

bool IsPushButton(UINT code) {
    return (code & (DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON)) != 0;
}

HWND FindDefault(const Window& window) {
    const std::vector<Window*> children = window.children;
    for (const Window* child : children) {
        if (!child->alive) continue;
        if ((DialogCode(child->handle) & DLGC_DEFPUSHBUTTON) != 0) return child->handle;
        if ((child->exStyle & WS_EX_CONTROLPARENT) == 0 || !child->alive) continue;
        if (const HWND inner = FindDefault(*child)) return inner;
    }
    return nullptr;
}

LRESULT Erase(HWND dialog, HDC dc) {
    auto brush = reinterpret_cast<HBRUSH>(Send(dialog, WM_CTLCOLORDLG, reinterpret_cast<WPARAM>(dc),
                                               reinterpret_cast<LPARAM>(dialog)));
    if (GetObjectType(brush) == 0)
        brush = reinterpret_cast<HBRUSH>(DefWindowProcA(dialog, WM_CTLCOLORDLG,
                                                        reinterpret_cast<WPARAM>(dc),
                                                        reinterpret_cast<LPARAM>(dialog)));
    RECT client{};
    if (brush != nullptr && GetClientRect(dialog, &client)) FillRect(dc, &client, brush);
    return 1;
}

void SaveFocus(HWND dialog) {
    const HWND focus = GetFocus();
    DialogState* state = StateOf(dialog, true);
    if (state != nullptr && focus != nullptr && IsChild(dialog, focus)) state->savedFocus = focus;
}

// Gives the focus back to the control that had it, or to the first one. On activation only what was
// remembered counts, and the text in it keeps its selection.
void RestoreFocus(HWND dialog, bool activation) {
    DialogState* state = StateOf(dialog, true);
    if (state == nullptr || state->ended || IsIconic(dialog)) return;
    HWND target = Peek(state->savedFocus) != nullptr ? state->savedFocus : nullptr;
    if (target == nullptr || target == dialog) {
        if (activation) return;
        target = FirstTabStop(dialog);
        if (target == nullptr) target = GetNextDlgGroupItem(dialog, nullptr, FALSE);
        if (target == nullptr) return;
    }
    state->savedFocus = nullptr;
    if (activation) {
        SetFocus(target);
    } else {
        FocusByKey(target);
    }
}

void HideDropDown() {
    // The drop-down list of a combo box closes when another part of the dialog is clicked.
    const Window* focus = Peek(GetFocus());
    if (focus != nullptr && SameName(focus->cls->name, "Edit")) focus = focus->parent;
    if (focus != nullptr && SameName(focus->cls->name, "ComboBox"))
        Send(focus->handle, CB_SHOWDROPDOWN, FALSE, 0);
}

LRESULT NextControl(HWND dialog, WPARAM wParam, LPARAM lParam) {
    HWND target = nullptr;
    if (LOWORD(lParam) != 0) {
        target = reinterpret_cast<HWND>(wParam);
    } else {
        target = GetNextDlgTabItem(dialog, GetFocus(), wParam != 0);
    }
    if (Peek(target) == nullptr) target = nullptr;
    if (target != nullptr) FocusByKey(target);
    ShowDefaultFor(dialog, target);
    return 0;
}

LRESULT DefaultId(HWND dialog) {
    const DialogState* state = StateOf(dialog, true);
    if (state == nullptr || state->ended) return 0;
    if (state->defaultId != 0) return MAKELONG(state->defaultId, DC_HASDEFID);
    const HWND button = ShownDefaultButton(dialog);
    return button == nullptr ? 0 : MAKELONG(GetDlgCtrlID(button), DC_HASDEFID);
}

LRESULT Close(HWND dialog) {
    const HWND cancel = GetDlgItem(dialog, IDCANCEL);
    if (cancel != nullptr && !IsWindowEnabled(cancel)) {
        MessageBeep(0);
    } else {
        PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                     reinterpret_cast<LPARAM>(cancel));
    }
    return 0;
}

LRESULT DialogDefault(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_ERASEBKGND:
            return Erase(dialog, reinterpret_cast<HDC>(wParam));
        case WM_SHOWWINDOW:
            if (wParam == 0) SaveFocus(dialog);
            return DefWindowProcA(dialog, message, wParam, lParam);
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE) {
                RestoreFocus(dialog, true);
            } else {
                SaveFocus(dialog);
            }
            return 0;
        case WM_SETFOCUS:
            RestoreFocus(dialog, false);
            return 0;
        case DM_SETDEFID:
            if (DialogState* state = StateOf(dialog, true); state != nullptr && !state->ended)
                ChangeDefaultId(dialog, *state, static_cast<int>(wParam));
            return TRUE;
        case DM_GETDEFID:
            return DefaultId(dialog);
        case WM_NEXTDLGCTL:
            return NextControl(dialog, wParam, lParam);
        case WM_LBUTTONDOWN:
        case WM_NCLBUTTONDOWN:
            HideDropDown();
            return DefWindowProcA(dialog, message, wParam, lParam);
        case WM_GETFONT: {
            const DialogState* state = StateOf(dialog, true);
            return state == nullptr ? 0 : reinterpret_cast<LRESULT>(state->font);
        }
        case WM_CLOSE:
            return Close(dialog);
        case WM_INITDIALOG:
        case WM_VKEYTOITEM:
        case WM_COMPAREITEM:
        case WM_CHARTOITEM:
            return 0;
        default:
            return DefWindowProcA(dialog, message, wParam, lParam);
    }
}

// Messages whose answer is the procedure's own result instead of the one that it stored.
bool AnswersDirectly(UINT message) {
    switch (message) {
        case WM_CTLCOLORMSGBOX:
        case WM_CTLCOLOREDIT:
        case WM_CTLCOLORLISTBOX:
        case WM_CTLCOLORBTN:
        case WM_CTLCOLORDLG:
        case WM_CTLCOLORSCROLLBAR:
        case WM_CTLCOLORSTATIC:
        case WM_COMPAREITEM:
        case WM_VKEYTOITEM:
        case WM_CHARTOITEM:
        case WM_QUERYDRAGICON:
        case WM_INITDIALOG:
            return true;
        default:
            return false;
    }
}

}  // namespace

UINT DialogCode(HWND control) {
    return static_cast<UINT>(Send(control, WM_GETDLGCODE, 0, 0));
}

HWND ShownDefaultButton(HWND dialog) {
    const Window* window = Peek(dialog);
    return window == nullptr ? nullptr : FindDefault(*window);
}

void ShowDefaultFor(HWND dialog, HWND control) {
    const DialogState* state = StateOf(dialog);
    const int defaultId = state == nullptr ? 0 : state->defaultId;
    HWND target = control;
    UINT code = target == nullptr ? 0 : DialogCode(target);
    if (!IsPushButton(code)) {
        // The dialog's own default button again, where it has one.
        target = defaultId == 0 ? nullptr : GetDlgItem(dialog, defaultId);
        code = target == nullptr ? 0 : DialogCode(target);
        // No button is the default one while nothing has the focus.
        if (!IsPushButton(code) || control == nullptr) target = nullptr;
    }
    HWND shown = defaultId == 0 ? nullptr : GetDlgItem(dialog, defaultId);
    if (shown == nullptr || (DialogCode(shown) & DLGC_DEFPUSHBUTTON) == 0)
        shown = ShownDefaultButton(dialog);
    if (shown != nullptr && shown != target) Send(shown, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (target != nullptr && (code & DLGC_UNDEFPUSHBUTTON) != 0)
        Send(target, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

void ChangeDefaultId(HWND dialog, DialogState& state, int id) {
    const int oldId = state.defaultId;
    state.defaultId = id;
    const HWND next = GetDlgItem(dialog, id);
    UINT code = 0;
    if (next != nullptr) {
        code = DialogCode(next);
        if ((code & (DLGC_UNDEFPUSHBUTTON | DLGC_BUTTON)) == 0) return;
    }
    HWND old = oldId == 0 ? nullptr : GetDlgItem(dialog, oldId);
    if (old == nullptr || (DialogCode(old) & DLGC_DEFPUSHBUTTON) == 0)
        old = ShownDefaultButton(dialog);
    if (old != nullptr && old != next) Send(old, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
    if (next != nullptr && (code & DLGC_UNDEFPUSHBUTTON) != 0)
        Send(next, BM_SETSTYLE, BS_DEFPUSHBUTTON, TRUE);
}

void FocusByKey(HWND control) {
    if ((DialogCode(control) & DLGC_HASSETSEL) != 0) Send(control, EM_SETSEL, 0, -1);
    SetFocus(control);
}

}  // namespace headless

using namespace headless;

LRESULT DefDlgProcA(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    KeepAlive keep;
    Window* window = Peek(dialog);
    if (window == nullptr) return 0;
    if (window->extra.size() < static_cast<std::size_t>(DWLP_USER))
        return DefWindowProcA(dialog, message, wParam, lParam);
    const auto proc = reinterpret_cast<DLGPROC>(GetWindowLongPtrA(dialog, DWLP_DLGPROC));
    SetWindowLongPtrA(dialog, DWLP_MSGRESULT, 0);
    INT_PTR result = 0;
    if (proc != nullptr) result = proc(dialog, message, wParam, lParam);
    if (!window->alive) return result;
    if (result == 0) return DialogDefault(dialog, message, wParam, lParam);
    if (AnswersDirectly(message)) return result;
    return GetWindowLongPtrA(dialog, DWLP_MSGRESULT);
}
