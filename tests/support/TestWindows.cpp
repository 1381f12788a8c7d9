#include "support/TestWindows.h"

namespace test_support {
namespace {

const char kRecorderClass[] = "ZxTestRecorder";
// Windows send messages before their creation call returns; until then this is whose they are.
TestDialog* startingDialog = nullptr;
RecordingWindow* startingWindow = nullptr;
const char kDialogProp[] = "ZxTestDialog";

HINSTANCE ThisModule() {
    return GetModuleHandleA(nullptr);
}

}  // namespace

INT_PTR TestDialog::EndOnCommand(HWND dialog, UINT message, WPARAM wParam) {
    if (message != WM_COMMAND) return FALSE;
    const int id = LOWORD(wParam);
    if ((id != IDOK && id != IDCANCEL) || HIWORD(wParam) != BN_CLICKED) return FALSE;
    EndDialog(dialog, id);
    return TRUE;
}

INT_PTR TestDialog::Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    messages_.Add(MessageName(message));
    if (message == WM_COMMAND || message == WM_NOTIFY)
        notifications_.AddMessage(message, wParam, lParam);
    if (handler_) return handler_(dialog, message, wParam, lParam);
    if (message == WM_INITDIALOG) return TRUE;
    return EndOnCommand(dialog, message, wParam);
}

INT_PTR CALLBACK TestDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = static_cast<TestDialog*>(GetPropA(dialog, kDialogProp));
    if (!self) {
        self = startingDialog;
        if (!self) return FALSE;
        startingDialog = nullptr;
        self->handle_ = dialog;
        SetPropA(dialog, kDialogProp, self);
    }
    const INT_PTR result = self->Handle(dialog, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        RemovePropA(dialog, kDialogProp);
        self->handle_ = nullptr;
    }
    return result;
}

INT_PTR TestDialog::Run(DialogTemplate& shape, HWND owner) {
    startingDialog = this;
    return DialogBoxIndirectParamA(ThisModule(), shape.Get(), owner, Procedure, 0);
}

INT_PTR TestDialog::RunResource(int id, HWND owner) {
    startingDialog = this;
    return DialogBoxParamA(ThisModule(), MAKEINTRESOURCEA(id), owner, Procedure, 0);
}

HWND TestDialog::Create(DialogTemplate& shape, HWND owner) {
    startingDialog = this;
    return CreateDialogIndirectParamA(ThisModule(), shape.Get(), owner, Procedure, 0);
}

HWND TestDialog::CreateResource(int id, HWND owner) {
    startingDialog = this;
    return CreateDialogParamA(ThisModule(), MAKEINTRESOURCEA(id), owner, Procedure, 0);
}

LRESULT CALLBACK RecordingWindow::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<RecordingWindow*>(GetWindowLongPtrA(hwnd, GWLP_USERDATA));
    if (!self && startingWindow) {
        self = startingWindow;
        SetWindowLongPtrA(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    if (self) {
        self->messages_.Add(MessageName(message));
        if (message == WM_COMMAND || message == WM_NOTIFY)
            self->notifications_.AddMessage(message, wParam, lParam);
        LRESULT result = 0;
        if (self->handler_ && self->handler_(message, wParam, lParam, &result)) return result;
    }
    return DefWindowProcA(hwnd, message, wParam, lParam);
}

RecordingWindow::RecordingWindow(bool visible, int width, int height) {
    WNDCLASSA wc = {};
    if (!GetClassInfoA(ThisModule(), kRecorderClass, &wc)) {
        wc = {};
        wc.lpfnWndProc = Procedure;
        wc.hInstance = ThisModule();
        wc.hbrBackground = GetSysColorBrush(COLOR_BTNFACE);
        wc.lpszClassName = kRecorderClass;
        RegisterClassA(&wc);
    }
    startingWindow = this;
    handle_ = CreateWindowExA(WS_EX_CONTROLPARENT, kRecorderClass, "recorder",
                              DWORD{WS_POPUP} | WS_CAPTION | WS_SYSMENU, 20, 20, width, height,
                              nullptr, nullptr, ThisModule(), nullptr);
    startingWindow = nullptr;
    if (visible) {
        ShowWindow(handle_, SW_SHOW);
        SetForegroundWindow(handle_);
        PumpMessages();
    }
    messages_.Take();
}

RecordingWindow::~RecordingWindow() {
    handler_ = nullptr;
    if (IsWindow(handle_)) DestroyWindow(handle_);
}

HWND RecordingWindow::Add(const char* className, const char* text, int id, DWORD style, int x,
                          int y, int width, int height, DWORD exStyle) {
    return CreateWindowExA(exStyle, className, text, style | WS_CHILD | WS_VISIBLE, x, y, width,
                           height, handle_, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                           ThisModule(), nullptr);
}

void PumpMessages(int limit) {
    MSG msg;
    for (int n = 0; n < limit && PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++n) {
        if (msg.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(msg.wParam));
            return;
        }
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

}  // namespace test_support
