// Plays a scenario on a dialog of standard controls with no code of its own behind it: what the
// user does and what a program does to its controls.
#include <deque>
#include <memory>

#include "ControlMessages.h"
#include "Scenario.h"
#include "User.h"
#include "WindowState.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "fixtures/system.h"
#include "platform/platform.h"

namespace differential {
namespace {

using test_support::DialogTemplate;
using test_support::TestDialog;

constexpr int kMostMessages = 2000;  // of one action

// The dialog and its pages.
class Stage {
  public:
    Stage(std::FILE* out, const Scenario& scenario) : m_out(out) {
        m_dialog = std::make_unique<TestDialog>(Watch());
        for (const std::string& line : scenario.lines) {
            std::fprintf(m_out, "@ %s\n", line.c_str());
            Words words(line);
            const std::string verb = words.Next();
            if (!Build(verb, words) && Made() && !Act(verb, words)) std::fputs("? \n", m_out);
            if (Made() && m_shown) Tell();
        }
        if (Made()) DestroyWindow(m_dialog->Handle());
        Pump();
    }

  private:
    TestDialog::Handler Watch() {
        return [this](HWND, UINT message, WPARAM wParam, LPARAM lParam) -> INT_PTR {
            if (message == WM_COMMAND || message == WM_NOTIFY) {
                m_told.AddMessage(message, wParam, lParam);
                return FALSE;
            }
            return message == WM_INITDIALOG;
        };
    }

    bool Made() const { return m_dialog->Handle() != nullptr; }
    HWND Dialog() const { return m_dialog->Handle(); }

    // The instructions that stand before the dialog is made or shown.
    bool Build(const std::string& verb, Words& words) {
        if (verb == "dialog" || verb == "page") {
            Finish();
            const int x = verb == "page" ? static_cast<int>(words.NextNumber()) : 10;
            const int y = verb == "page" ? static_cast<int>(words.NextNumber()) : 10;
            const int width = static_cast<int>(words.NextNumber());
            m_template = std::make_unique<DialogTemplate>("Scenario", width,
                                                          static_cast<int>(words.NextNumber()));
            m_template->At(x, y);
            m_isPage = verb == "page";
            if (m_isPage) m_template->AsPage();
            return true;
        }
        if (verb == "control" && m_template != nullptr) {
            const std::string kind = words.Next();
            const int id = static_cast<int>(words.NextNumber());
            const auto style = static_cast<DWORD>(words.NextNumber());
            const auto exStyle = static_cast<DWORD>(words.NextNumber());
            int place[4];
            for (int& value : place) value = static_cast<int>(words.NextNumber());
            m_template->Control(kind, words.Next(), id, style & ~DWORD{WS_VISIBLE}, place[0],
                                place[1], place[2], place[3], exStyle, (style & WS_VISIBLE) == 0);
            return true;
        }
        Finish();
        if (verb != "show") return false;
        if (Made() && !m_shown) {
            m_told.Take();
            m_shown = true;
            ShowWindow(Dialog(), SW_SHOW);
            SetForegroundWindow(Dialog());
            Pump();
        }
        return true;
    }

    void Finish() {
        if (m_template == nullptr) return;
        if (m_isPage) {
            m_pages.push_back(std::make_unique<TestDialog>(Watch()));
            ShowWindow(m_pages.back()->Create(*m_template, Dialog()), SW_SHOW);
        } else if (!Made()) {
            m_dialog->Create(*m_template);
        }
        m_template.reset();
    }

    bool Act(const std::string& verb, Words& words) {
        ReleaseKeys();
        m_undoing = verb == "undo";
        if (DoAsUser(Dialog(), verb, words)) {
            Pump();
            while (DoPending()) Pump();
            return true;
        }
        const HWND hwnd = Target(Dialog(), words.Next());
        if (hwnd == nullptr) return true;
        if (verb == "send") {
            if (IsKnownToDiffer(hwnd, words)) return true;
            // A click that no user could do makes some systems look for the next button for ever.
            if (words.Ahead() == "BM_CLICK" && !(IsWindowVisible(hwnd) && IsWindowEnabled(hwnd)))
                return true;
            std::fprintf(m_out, "= %s\n", SendControlMessage(hwnd, words).c_str());
        } else if (verb == "enable") {
            EnableWindow(hwnd, words.NextNumber() != 0);
        } else if (verb == "visible") {
            ShowWindow(hwnd, words.NextNumber() != 0 ? SW_SHOW : SW_HIDE);
        } else if (verb == "text") {
            SetWindowTextA(hwnd, words.Next().c_str());
        } else {
            return false;
        }
        Pump();
        return true;
    }

    void Pump() {
        MSG msg;
        for (int n = 0; n < kMostMessages && PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++n) {
            if (Made() && IsDialogMessageA(Dialog(), &msg)) continue;
            TranslateMessage(&msg);
            DispatchMessageA(&msg);
        }
    }

    // What the parent was told, but for scrolling, which the platform tells at its own times.
    std::string Told() {
        std::string told, last;
        for (const std::string& line : m_told.Lines()) {
            if (line.rfind("EN_HSCROLL", 0) == 0 || line.rfind("EN_VSCROLL", 0) == 0) continue;
            // Taking a change back may be told once more.
            if (m_undoing && line == last) continue;
            told += (told.empty() ? "" : " ") + line;
            last = line;
        }
        m_told.Take();
        return told;
    }

    void Tell() {
        SettleFocus();
        const std::string told = Told();
        if (!told.empty()) std::fprintf(m_out, "! %s\n", told.c_str());
        for (const std::string& line : m_state.Changes(Dialog(), true))
            std::fprintf(m_out, ". %s\n", line.c_str());
        for (const std::string& fault : test_support::TakeSystemFaults())
            std::fprintf(m_out, "fault: %s\n", fault.c_str());
    }

    std::FILE* m_out;
    std::unique_ptr<DialogTemplate> m_template;
    bool m_isPage = false;
    bool m_shown = false;
    bool m_undoing = false;
    std::unique_ptr<TestDialog> m_dialog;
    std::vector<std::unique_ptr<TestDialog>> m_pages;
    test_support::EventLog m_told;
    WindowState m_state;
};

}  // namespace

void PlayControls(std::FILE* out, const Scenario& scenario) {
    ClearClipboard();
    Stage stage(out, scenario);
}

}  // namespace differential
