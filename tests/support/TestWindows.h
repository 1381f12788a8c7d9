// Windows for tests: a dialog whose procedure is a callable, and a top-level window that records.
#pragma once

#include <functional>
#include <string>

#include "platform/platform.h"
#include "support/DialogTemplate.h"
#include "support/Notifications.h"

namespace test_support {

// A dialog whose procedure is a callable. The callable sees every message of the dialog procedure
// from the first on (WM_SETFONT comes before WM_INITDIALOG); without one, OK and Cancel end the
// dialog with their ids. Not to be used for two dialogs at once.
class TestDialog {
  public:
    using Handler = std::function<INT_PTR(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)>;

    explicit TestDialog(Handler handler = nullptr) : handler_(std::move(handler)) {}

    // Runs it modally and returns what EndDialog was given.
    INT_PTR Run(DialogTemplate& shape, HWND owner = nullptr);
    // The same for a template among the resources of this program.
    INT_PTR RunResource(int id, HWND owner = nullptr);
    // Creates it modeless (or as a page, when the template says so). The caller destroys it; this
    // object must live longer.
    HWND Create(DialogTemplate& shape, HWND owner = nullptr);
    HWND CreateResource(int id, HWND owner = nullptr);

    HWND Handle() const { return handle_; }
    // Every WM_COMMAND and WM_NOTIFY, as EventLog writes them.
    EventLog& Notifications() { return notifications_; }
    // Every message that the dialog procedure saw, by name.
    EventLog& Messages() { return messages_; }
    // What OK and Cancel do when the handler does not take the message: end the dialog.
    static INT_PTR EndOnCommand(HWND dialog, UINT message, WPARAM wParam);

  private:
    static INT_PTR CALLBACK Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    INT_PTR Handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

    Handler handler_;
    HWND handle_ = nullptr;
    EventLog notifications_;
    EventLog messages_;
};

// A top-level window that records what its controls send it. Visible by default, so that its
// children can take the focus and the mouse.
class RecordingWindow {
  public:
    using Handler =
        std::function<bool(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)>;

    explicit RecordingWindow(bool visible = true, int width = 400, int height = 300);
    ~RecordingWindow();
    RecordingWindow(const RecordingWindow&) = delete;
    RecordingWindow& operator=(const RecordingWindow&) = delete;

    operator HWND() const { return handle_; }
    HWND Handle() const { return handle_; }
    // Creates a visible child control, in pixels.
    HWND Add(const char* className, const char* text, int id, DWORD style, int x = 10, int y = 10,
             int width = 120, int height = 24, DWORD exStyle = 0);
    // A handler sees each message first; true means that it has given the result.
    void OnMessage(Handler handler) { handler_ = std::move(handler); }
    // The WM_COMMAND and WM_NOTIFY of the controls.
    EventLog& Notifications() { return notifications_; }
    // All messages of the window, by name.
    EventLog& Messages() { return messages_; }

  private:
    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    HWND handle_ = nullptr;
    Handler handler_;
    EventLog notifications_;
    EventLog messages_;
};

// Dispatches all messages that wait now, at most `limit` of them. Timers of due time count.
void PumpMessages(int limit = 10000);

}  // namespace test_support
