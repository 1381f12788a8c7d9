// Plays a scenario on a dialog of the library: what a user does, and what comes of it for the host.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <memory>

#include "Scenario.h"
#include "User.h"
#include "WindowState.h"
#include "dialogs/DialogRows.h"
#include "fit/FitMemory.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/WindowReading.h"
#include "fixtures/system.h"
#include "platform/platform.h"
#include "store/ProfileStore.h"

namespace differential {
namespace {

using dialogs_test::DialogRow;
using dialogs_test::Opening;
using dialogs_test::SourceRow;

constexpr char kPulseClass[] = "ZxDifferentialPulse";
constexpr UINT kPulse = WM_APP + 1;
constexpr UINT kRetryAfter = 10;    // ms
constexpr int kMostAnswers = 12;    // until a dialog that does not end is destroyed
constexpr int kMostRetries = 1500;  // without a dialog to be seen
constexpr int kMostWaits = 100;     // for what was posted

uint64_t HashOf(const std::string& text) {
    uint64_t hash = 14695981039346656037u;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
    return hash;
}

// A record, as its words that are not zero. What can be a number with a fraction is written with
// the digits that every mathematical library agrees on.
void TellRecord(std::FILE* out, const char* name, const void* data, std::size_t size) {
    const auto* bytes = static_cast<const unsigned char*>(data);
    constexpr double kLeast = 1e-12, kMost = 1e15;
    for (std::size_t at = 0; at + sizeof(uint32_t) <= size; at += sizeof(uint32_t)) {
        double number = 0.0;
        if (at % sizeof number == 0 && at + sizeof number <= size)
            std::memcpy(&number, bytes + at, sizeof number);
        if (std::fabs(number) > kLeast && std::fabs(number) < kMost) {
            std::fprintf(out, "%s %04x %.5g\n", name, static_cast<unsigned>(at), number);
            at += sizeof number - sizeof(uint32_t);
            continue;
        }
        uint32_t word = 0;
        std::memcpy(&word, bytes + at, sizeof word);
        if (word != 0) std::fprintf(out, "%s %04x %08x\n", name, static_cast<unsigned>(at), word);
    }
}

// What a fit of any function has something to hold on to.
std::vector<double> DecayingWave() {
    constexpr int kPoints = 1000;
    std::vector<double> values;
    for (int i = 0; i < kPoints; ++i) {
        const double x = 0.1 * i;
        // The scatter is the same each time.
        const double scatter = 0.01 * ((i * 7919) % 101 - 50);
        values.push_back(20.0 + 60.0 * std::exp(-x / 12.0) + 9.0 * std::sin(x / 5.0) + scatter);
    }
    return values;
}

// Whether anything waits that must be done before the next action; painting and timers, those of
// the caret as well, need not: they come last, after the message that asks here again.
bool Busy() {
    constexpr UINT kCaretTimer = 0x118;  // has no name
    constexpr UINT kLast = 0xFFFF;
    const auto waits = [](UINT first, UINT last) {
        MSG msg;
        return PeekMessageA(&msg, nullptr, first, last, PM_NOREMOVE) != FALSE;
    };
    return waits(0, WM_PAINT - 1) || waits(WM_PAINT + 1, WM_TIMER - 1) ||
           waits(WM_TIMER + 1, kCaretTimer - 1) || waits(kCaretTimer + 1, kLast);
}

// The user: a window that posts itself a message until nothing else waits, and then does the next
// action to whatever dialog takes input.
class Session {
  public:
    Session(std::FILE* out, const Scenario& scenario) : m_out(out), m_scenario(scenario) {
        s_session = this;
        WNDCLASSA pulse = {};
        pulse.lpfnWndProc = Procedure;
        pulse.lpszClassName = kPulseClass;
        pulse.hInstance = GetModuleHandleA(nullptr);
        RegisterClassA(&pulse);
        m_pulse = CreateWindowExA(0, kPulseClass, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                                  pulse.hInstance, nullptr);
    }
    ~Session() {
        DestroyWindow(m_pulse);
        s_session = nullptr;
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void Run() {
        Words words(m_scenario.lines[0]);
        words.Next();
        const std::string title = words.Next();
        const auto& rows = dialogs_test::Rows();
        const auto dialog = std::find_if(rows.begin(), rows.end(),
                                         [&](const DialogRow& row) { return title == row.szName; });
        const auto source = static_cast<std::size_t>(words.NextNumber());
        if (dialog == rows.end() || source >= dialogs_test::Sources().size()) {
            std::fputs("? no such dialog\n", m_out);
            return;
        }
        const int64_t flags = words.NextNumber();
        Opening opening(*dialog);
        dialogs_test::Sources()[source].build(opening.source);
        opening.source.yValues = DecayingWave();
        opening.source.Profile(m_store.ProfileFile()).Record();
        opening.params.bReadOnly = (flags & 1) != 0;
        opening.params.bDeferredRun = (flags & 2) != 0;
        opening.params.bShowGroupSelector = (flags & 4) != 0;
        opening.params.bShowDestination = (flags & 8) != 0;
        opening.params.bShowDynamicLink = (flags & 16) != 0;
        opening.params.bShowWriteRegionInfo = (flags & 32) != 0;
        // A user who closes the dialog opens it again, until there is nothing left to do.
        do {
            Show(*dialog, opening);
        } while (m_next < m_scenario.lines.size());
    }

  private:
    void Show(const DialogRow& dialog, Opening& opening) {
        m_opening = &opening;
        m_answers = m_retries = 0;
        std::fputs("@ show\n", m_out);
        PostMessageA(m_pulse, kPulse, 0, 0);
        const int result = dialog.show(opening);
        KillTimer(m_pulse, kPulse);
        std::fprintf(m_out, "@ closed\n= %d\n", result);
        TellCalls();
        TellRecord(m_out, "options", opening.options.data(), opening.options.size());
        TellRecord(m_out, "data", &opening.data, sizeof opening.data);
        std::string line;
        for (const char c : m_store.ReadFile() + "\n") {
            if (c == '\n') {
                if (!line.empty()) std::fprintf(m_out, "store %s\n", line.c_str());
                line.clear();
            } else if (c != '\r') {
                line += c;
            }
        }
        m_opening = nullptr;
    }

    static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
        if (s_session != nullptr && (message == kPulse || message == WM_TIMER)) {
            KillTimer(hwnd, kPulse);
            s_session->Pulse();
            return 0;
        }
        return DefWindowProcA(hwnd, message, wParam, lParam);
    }

    void Pulse() {
        if (m_opening == nullptr) return;
        // An open menu has the keyboard, whatever is under it: it closes without a choice.
        if (const HWND menu = test_support::OpenMenuWindow()) {
            PostMessageA(menu, WM_KEYDOWN, VK_ESCAPE, 1);
            PostMessageA(m_pulse, kPulse, 0, 0);
            return;
        }
        // What a dialog does in a loop of its own, the dialog on top of it sees.
        const HWND dialog = test_support::ActiveDialog();
        if (dialog == nullptr || test_support::ClassOf(dialog) != "#32770") {
            // One that is not shown yet waits until no message does.
            if (++m_retries > kMostRetries) std::_Exit(4);
            SetTimer(m_pulse, kPulse, kRetryAfter, nullptr);
            return;
        }
        if (Busy()) {
            // What comes from the mouse itself comes after what is posted: it gets its turn.
            if (++m_waits < kMostWaits)
                PostMessageA(m_pulse, kPulse, 0, 0);
            else
                SetTimer(m_pulse, kPulse, kRetryAfter, nullptr);
            return;
        }
        m_retries = m_waits = 0;
        if (DoPending()) {
            PostMessageA(m_pulse, kPulse, 0, 0);
            return;
        }
        ReleaseKeys();
        RedrawWindow(dialog, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
        Tell(dialog);
        // An action may open a dialog and come back when that is closed.
        PostMessageA(m_pulse, kPulse, 0, 0);
        Act(dialog);
    }

    void Tell(HWND dialog) {
        SettleFocus();
        TellCalls();
        for (const std::string& line : m_state.Changes(dialog, true))
            std::fprintf(m_out, ". %s\n", line.c_str());
        for (const std::string& fault : test_support::TakeSystemFaults())
            std::fprintf(m_out, "fault: %s\n", fault.c_str());
    }

    void TellCalls() {
        std::vector<std::string>& calls = m_opening->source.calls;
        if (calls.empty()) return;
        std::string all;
        for (const std::string& call : calls) all += call + ' ';
        std::fprintf(m_out, "calls %d %016llx %s\n", static_cast<int>(calls.size()),
                     static_cast<unsigned long long>(HashOf(all)), all.substr(0, 300).c_str());
        calls.clear();
    }

    void Act(HWND dialog) {
        if (m_next < m_scenario.lines.size()) {
            const std::string& line = m_scenario.lines[m_next++];
            std::fprintf(m_out, "@ %s\n", line.c_str());
            Words words(line);
            const std::string verb = words.Next();
            if (verb == "text") {
                const HWND hwnd = Target(dialog, words.Next());
                if (hwnd != nullptr && test_support::ClassOf(hwnd) == "edit")
                    SetWindowTextA(hwnd, words.Next().c_str());
            } else if (verb == "press") {
                PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(words.NextNumber()), 0);
            } else if (!DoAsUser(dialog, verb, words)) {
                std::fputs("?\n", m_out);
            }
            return;
        }
        // OK first; a message on top is answered by its last button, and then the dialog is left.
        ++m_answers;
        if (m_answers > kMostAnswers) {
            std::fputs("@ stuck\n", m_out);
            std::fclose(m_out);
            std::_Exit(5);
        }
        constexpr int kFirstAnswer = 101;
        int last = kFirstAnswer - 1;
        while (GetDlgItem(dialog, last + 1) != nullptr) ++last;
        const bool question = GetDlgItem(dialog, IDCANCEL) == nullptr && last >= kFirstAnswer;
        std::fprintf(m_out, "@ end %d\n", m_answers);
        const int button = question ? last : m_answers == 1 ? IDOK : IDCANCEL;
        const HWND hwnd = GetDlgItem(dialog, button);
        if (hwnd != nullptr)
            PostMessageA(hwnd, BM_CLICK, 0, 0);
        else
            PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
    }

    static inline Session* s_session = nullptr;
    std::FILE* m_out;
    const Scenario& m_scenario;
    test_support::ScratchStore m_store;
    HWND m_pulse = nullptr;
    Opening* m_opening = nullptr;
    WindowState m_state;
    std::size_t m_next = 1;
    int m_answers = 0;
    int m_retries = 0;
    int m_waits = 0;
};

}  // namespace

void PlayDialogs(std::FILE* out, const Scenario& scenario) {
    ClearClipboard();
    const bool before = SetUseProfileFile(true);
    // A scenario does not go on from what the one before it left.
    ForgetFit();
    Session(out, scenario).Run();
    SetUseProfileFile(before);
}

}  // namespace differential
