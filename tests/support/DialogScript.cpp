#include "support/DialogScript.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

#include "support/HardLimit.h"
#include "support/WindowReading.h"

namespace test_support {
namespace {

constexpr UINT kTickInterval = 10;         // ms
constexpr DWORD kStepLimit = 8000;         // ms that one step may wait for what it needs
constexpr DWORD kHardLimitMargin = 40000;  // ms that a failed script has to end its dialogs
constexpr unsigned kIdleTicksAtEnd = 30;   // ticks that a dialog may stay open after the last step
constexpr unsigned kTicksToEnd = 100;      // ticks until a dialog that does not end is destroyed

const char kMenuClass[] = "#32768";

// Scripts may nest (a step may run a script of its own); timers go to the innermost.
DialogScript* innermost = nullptr;

LPARAM PointParam(POINT point) {
    return MAKELPARAM(point.x, point.y);
}

ShownMessage ReadMessage(HWND dialog) {
    ShownMessage shown;
    shown.title = TextOf(dialog);
    for (HWND child : Descendants(dialog)) {
        if (!IsWindowVisible(child)) continue;
        const std::string name = ClassOf(child);
        const LONG style = GetWindowLongA(child, GWL_STYLE);
        if (name == "button") {
            const LONG type = style & BS_TYPEMASK;
            if (type == BS_GROUPBOX) continue;
            shown.buttons.push_back(
                {GetDlgCtrlID(child), TextOf(child), IsWindowEnabled(child) != FALSE});
            continue;
        }
        if (name == "static" && (style & SS_TYPEMASK) == SS_ICON) continue;
        if (name != "static" && name != "edit") continue;
        const std::string text = TextOf(child);
        if (text.empty()) continue;
        if (!shown.text.empty()) shown.text += '\n';
        shown.text += text;
    }
    if (HWND focus = GetFocus(); focus && IsChild(dialog, focus))
        shown.focusId = GetDlgCtrlID(focus);
    return shown;
}

// The button that gives an answer. A box with nothing but OK may carry the id of Cancel on it, so
// that Escape closes it too.
HWND AnswerButton(HWND dialog, const ShownMessage& shown, int answer) {
    for (const ShownButton& button : shown.buttons)
        if (button.id == answer) return FindControl(dialog, answer);
    if (shown.buttons.size() == 1 && answer == IDOK)
        return FindControl(dialog, shown.buttons.front().id);
    return nullptr;
}

std::string Quote(const std::string& text) {
    return "\"" + text + "\"";
}

}  // namespace

DialogScript::DialogScript(DWORD timeLimit) : timeLimit_(timeLimit) {}

DialogScript::~DialogScript() {
    if (!begun_ && !steps_.empty())
        ADD_FAILURE_AT(steps_.front().where.file_name(),
                       static_cast<int>(steps_.front().where.line()))
            << "The script was never run.";
}

DialogScript& DialogScript::Add(const std::string& name, Where where, Action action) {
    steps_.push_back({name, where, std::move(action), false});
    return *this;
}

DialogScript& DialogScript::AddForNewDialog(const std::string& name, Where where, Action action) {
    steps_.push_back({name, where, std::move(action), true});
    return *this;
}

// --- Input -----------------------------------------------------------------------------------

HWND DialogScript::Control(HWND dialog, int id, bool forInput) {
    HWND control = FindControl(dialog, id);
    if (!control) {
        Fail("there is no control " + std::to_string(id));
        return nullptr;
    }
    if (forInput && (!IsWindowVisible(control) || !IsWindowEnabled(control))) {
        Fail("a user cannot use control " + std::to_string(id) + ", which is " +
             (IsWindowVisible(control) ? "disabled" : "hidden"));
        return nullptr;
    }
    return control;
}

DialogScript& DialogScript::Click(int id, Where where) {
    return Add("Click " + std::to_string(id), where, [id](DialogScript& script, HWND dialog) {
        // Posted: what it opens must not run inside this step.
        if (HWND control = script.Control(dialog, id, true)) PostMessageA(control, BM_CLICK, 0, 0);
        return State::kDone;
    });
}

void DialogScript::PostClick(HWND hwnd, POINT point, UINT firstMessage, unsigned modifiers) {
    HoldKeys(modifiers);
    WPARAM keys = 0;
    if (modifiers & kShift) keys |= MK_SHIFT;
    if (modifiers & kControl) keys |= MK_CONTROL;
    PostMessageA(hwnd, firstMessage, keys | MK_LBUTTON, PointParam(point));
    PostMessageA(hwnd, WM_LBUTTONUP, keys, PointParam(point));
}

DialogScript& DialogScript::MouseClick(int id, Where where) {
    return Add("MouseClick " + std::to_string(id), where, [id](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, true)) {
            RECT rect = {};
            GetClientRect(control, &rect);
            script.PostClick(control, {rect.right / 2, rect.bottom / 2}, WM_LBUTTONDOWN, kPlain);
        }
        return State::kDone;
    });
}

DialogScript& DialogScript::MouseClickAt(int id, int x, int y, Where where) {
    return Add("MouseClickAt " + std::to_string(id), where,
               [id, x, y](DialogScript& script, HWND dialog) {
                   if (HWND control = script.Control(dialog, id, true))
                       script.PostClick(control, {x, y}, WM_LBUTTONDOWN, kPlain);
                   return State::kDone;
               });
}

DialogScript& DialogScript::DoubleClick(int id, Where where) {
    return Add("DoubleClick " + std::to_string(id), where, [id](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, true)) {
            RECT rect = {};
            GetClientRect(control, &rect);
            const POINT middle = {rect.right / 2, rect.bottom / 2};
            script.PostClick(control, middle, WM_LBUTTONDOWN, kPlain);
            script.PostClick(control, middle, WM_LBUTTONDBLCLK, kPlain);
        }
        return State::kDone;
    });
}

DialogScript& DialogScript::Focus(int id, Where where) {
    return Add("Focus " + std::to_string(id), where, [id](DialogScript& script, HWND dialog) {
        if (HWND control = script.Control(dialog, id, true))
            SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        return State::kDone;
    });
}

DialogScript& DialogScript::Type(int id, const std::string& text, Where where) {
    Add("Type into " + std::to_string(id), where, [id](DialogScript& script, HWND dialog) {
        HWND control = script.Control(dialog, id, true);
        if (!control) return State::kDone;
        SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        HWND focus = GetFocus();
        if (!focus || (focus != control && !IsChild(control, focus))) {
            script.Fail("the control does not take the focus");
            return State::kDone;
        }
        SendMessageA(focus, EM_SETSEL, 0, -1);
        return State::kDone;
    });
    return text.empty() ? Press(VK_DELETE, kPlain, where) : TypeKeys(text, where);
}

DialogScript& DialogScript::TypeKeys(const std::string& text, Where where) {
    return Add("Type " + Quote(text), where, [text](DialogScript& script, HWND) {
        HWND focus = GetFocus();
        if (!focus) script.Fail("nothing has the focus");
        for (char c : text) PostMessageA(focus, WM_CHAR, static_cast<unsigned char>(c), 1);
        return State::kDone;
    });
}

void DialogScript::HoldKeys(unsigned modifiers) {
    if (modifiers == heldKeys_) return;
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    const auto set = [&](int key, unsigned bit) {
        keys[key] = static_cast<BYTE>((modifiers & bit) ? 0x80 : 0);
    };
    set(VK_SHIFT, kShift);
    set(VK_LSHIFT, kShift);
    set(VK_CONTROL, kControl);
    set(VK_LCONTROL, kControl);
    set(VK_MENU, kAlt);
    SetKeyboardState(keys);
    heldKeys_ = modifiers;
}

void DialogScript::PostKey(HWND focus, int key, unsigned modifiers) {
    HoldKeys(modifiers);
    const bool system = (modifiers & kAlt) != 0;
    // Repeat count 1; bit 24 marks the keys of the block of arrows, bit 29 a held Alt key.
    LPARAM down = 1;
    if (key >= VK_PRIOR && key <= VK_DELETE) down |= 1 << 24;
    if (system) down |= 1 << 29;
    const LPARAM up =
        static_cast<LPARAM>(static_cast<LONG>(static_cast<DWORD>(down) | 0xC0000000u));
    PostMessageA(focus, system ? WM_SYSKEYDOWN : WM_KEYDOWN, static_cast<WPARAM>(key), down);
    PostMessageA(focus, system ? WM_SYSKEYUP : WM_KEYUP, static_cast<WPARAM>(key), up);
}

DialogScript& DialogScript::Press(int key, unsigned modifiers, Where where) {
    return Add("Press key " + std::to_string(key), where,
               [key, modifiers](DialogScript& script, HWND dialog) {
                   HWND focus = GetFocus();
                   script.PostKey(focus ? focus : dialog, key, modifiers);
                   return State::kDone;
               });
}

DialogScript& DialogScript::Mnemonic(char letter, Where where) {
    return Add(std::string("Alt+") + letter, where, [letter](DialogScript&, HWND dialog) {
        HWND focus = GetFocus();
        PostMessageA(focus ? focus : dialog, WM_SYSCHAR, static_cast<unsigned char>(letter),
                     1 | (1 << 29));
        return State::kDone;
    });
}

void DialogScript::ChooseItem(HWND control, int index, unsigned modifiers) {
    const std::vector<std::string> items = ItemsOf(control);
    if (index < 0 || index >= static_cast<int>(items.size())) {
        std::string all;
        for (const std::string& item : items) all += " " + Quote(item);
        Fail("there is no such item; the items are" + (all.empty() ? " none" : all));
        return;
    }
    HWND list = control;
    if (ClassOf(control) == "combobox") {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        SendMessageA(GetParent(control), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
        SendMessageA(control, CB_SHOWDROPDOWN, TRUE, 0);
        SendMessageA(control, CB_GETCOMBOBOXINFO, 0, reinterpret_cast<LPARAM>(&info));
        list = info.hwndList;
    }
    const auto at = static_cast<WPARAM>(index);
    RECT rect = {}, client = {};
    GetClientRect(list, &client);
    SendMessageA(list, LB_GETITEMRECT, at, reinterpret_cast<LPARAM>(&rect));
    if (rect.top < 0 || rect.bottom > client.bottom) {
        SendMessageA(list, LB_SETTOPINDEX, at, 0);
        SendMessageA(list, LB_GETITEMRECT, at, reinterpret_cast<LPARAM>(&rect));
    }
    PostClick(list, {rect.left + 2, (rect.top + rect.bottom) / 2}, WM_LBUTTONDOWN, modifiers);
}

DialogScript& DialogScript::Choose(int id, int index, Where where) {
    return Add("Choose item " + std::to_string(index) + " of " + std::to_string(id), where,
               [id, index](DialogScript& script, HWND dialog) {
                   if (HWND control = script.Control(dialog, id, true))
                       script.ChooseItem(control, index, kPlain);
                   return State::kDone;
               });
}

DialogScript& DialogScript::Choose(int id, const std::string& text, Where where) {
    return Add("Choose " + Quote(text) + " of " + std::to_string(id), where,
               [id, text](DialogScript& script, HWND dialog) {
                   if (HWND control = script.Control(dialog, id, true))
                       script.ChooseItem(control, IndexOfItem(control, text), kPlain);
                   return State::kDone;
               });
}

DialogScript& DialogScript::ClickItem(int id, int index, unsigned modifiers, Where where) {
    return Add("ClickItem " + std::to_string(index) + " of " + std::to_string(id), where,
               [id, index, modifiers](DialogScript& script, HWND dialog) {
                   if (HWND control = script.Control(dialog, id, true))
                       script.ChooseItem(control, index, modifiers);
                   return State::kDone;
               });
}

DialogScript& DialogScript::AddTab(const std::string& name, int id, const std::string& title,
                                   int index, Where where) {
    return Add(name, where, [id, title, index](DialogScript& script, HWND dialog) {
        HWND tab = id ? script.Control(dialog, id, true) : FindByClass(dialog, "systabcontrol32");
        if (!tab) {
            script.Fail("there is no visible tab control");
            return State::kDone;
        }
        const int item = title.empty() ? index : IndexOfItem(tab, title);
        RECT rect = {};
        if (item < 0 || !SendMessageA(tab, TCM_GETITEMRECT, static_cast<WPARAM>(item),
                                      reinterpret_cast<LPARAM>(&rect))) {
            script.Fail("there is no such tab");
            return State::kDone;
        }
        script.PostClick(tab, {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2},
                         WM_LBUTTONDOWN, kPlain);
        return State::kDone;
    });
}

DialogScript& DialogScript::SelectTab(int index, Where where) {
    return AddTab("SelectTab " + std::to_string(index), 0, "", index, where);
}

DialogScript& DialogScript::SelectTab(const std::string& title, Where where) {
    return AddTab("SelectTab " + Quote(title), 0, title, -1, where);
}

DialogScript& DialogScript::SelectTabOf(int id, int index, Where where) {
    return AddTab("SelectTab " + std::to_string(index) + " of " + std::to_string(id), id, "", index,
                  where);
}

DialogScript& DialogScript::CloseByFrame(Where where) {
    return Add("CloseByFrame", where, [](DialogScript&, HWND dialog) {
        PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
        return State::kDone;
    });
}

// --- Dialogs on top --------------------------------------------------------------------------

DialogScript& DialogScript::Answer(int answer, Where where) {
    return AddForNewDialog(
        "Answer " + std::to_string(answer), where, [answer](DialogScript& script, HWND dialog) {
            script.messages_.push_back(ReadMessage(dialog));
            HWND button = AnswerButton(dialog, script.messages_.back(), answer);
            if (!button) {
                script.Fail("the message has no button " + std::to_string(answer));
                return State::kDone;
            }
            script.answered_ = dialog;
            PostMessageA(button, BM_CLICK, 0, 0);
            return State::kDone;
        });
}

DialogScript& DialogScript::Answer(int answer, const std::string& text, Where where) {
    Answer(answer, where);
    Action plain = std::move(steps_.back().action);
    steps_.back().name += " " + Quote(text);
    steps_.back().action = [plain, text, where](DialogScript& script, HWND dialog) {
        const State state = plain(script, dialog);
        const std::string shown = script.messages_.back().text;
        if (shown != text)
            ADD_FAILURE_AT(where.file_name(), static_cast<int>(where.line()))
                << "The message is " << Quote(shown) << "\nand should be " << Quote(text);
        return state;
    };
    return *this;
}

DialogScript& DialogScript::EnterDialog(Where where) {
    return AddForNewDialog("EnterDialog", where, [](DialogScript& script, HWND dialog) {
        script.dialogs_.push_back(dialog);
        return State::kDone;
    });
}

// --- Waiting ---------------------------------------------------------------------------------

DialogScript& DialogScript::WaitUntil(std::function<bool()> condition, Where where) {
    return Add("WaitUntil", where, [condition](DialogScript& script, HWND) {
        if (condition()) return State::kDone;
        if (!script.StepIsLate()) return State::kWait;
        script.Fail("the condition never holds");
        return State::kDone;
    });
}

DialogScript& DialogScript::Wait(DWORD milliseconds, Where where) {
    return Add("Wait", where, [milliseconds](DialogScript& script, HWND) {
        return GetTickCount() - script.stepTime_ >= milliseconds ? State::kDone : State::kWait;
    });
}

bool DialogScript::StepIsLate() const {
    return GetTickCount() - stepTime_ > kStepLimit;
}

// --- Running ---------------------------------------------------------------------------------

void DialogScript::Begin(Where where) {
    running_ = {"start", where, nullptr, false};
    begun_ = true;
    outer_ = innermost;
    innermost = this;
    startTime_ = stepTime_ = GetTickCount();
    hardLimit_ = std::make_unique<HardLimit>(timeLimit_ + kHardLimitMargin);
    timer_ = SetTimer(nullptr, 0, kTickInterval, OnTimer);
}

void DialogScript::End() {
    KillTimer(nullptr, timer_);
    timer_ = 0;
    HoldKeys(kPlain);
    innermost = outer_;
    hardLimit_.reset();
    if (!failed_ && !steps_.empty()) {
        const Step& next = steps_.front();
        ADD_FAILURE_AT(next.where.file_name(), static_cast<int>(next.where.line()))
            << "The dialog ended before this step (" << next.name << "); " << steps_.size()
            << " steps are left.";
        failed_ = true;
    }
    steps_.clear();
    dialogs_.clear();
}

void DialogScript::RunModeless(HWND dialog, Where where) {
    Begin(where);
    dialogs_.push_back(dialog);
    const auto handle = [dialog](MSG& msg) {
        if (IsWindow(dialog) && IsDialogMessageA(dialog, &msg)) return;
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    };
    MSG msg;
    while (!steps_.empty() && !failed_ && IsWindow(dialog) && GetMessageA(&msg, nullptr, 0, 0) > 0)
        handle(msg);
    // What the last step posted still belongs to it.
    KillTimer(nullptr, timer_);
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) handle(msg);
    End();
}

void CALLBACK DialogScript::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    if (innermost && innermost->timer_ == id) innermost->Tick();
}

// Steps that post nothing, as expectations, need not wait a tick each.
void DialogScript::Tick() {
    MSG waiting;
    while (TickOnce() && !failed_ && !PeekMessageA(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
    }
}

// Runs the next step if its dialog is there; true if another step may follow at once.
bool DialogScript::TickOnce() {
    HoldKeys(kPlain);
    if (failed_) {
        EndAllDialogs();
        return false;
    }
    if (GetTickCount() - startTime_ > timeLimit_) {
        Fail("the script takes longer than its " + std::to_string(timeLimit_) + " ms");
        return false;
    }
    const HWND active = ActiveDialog();
    if (answered_ && active == answered_) {
        if (StepIsLate()) Fail("the answered message stays open");
        return false;
    }
    answered_ = nullptr;
    while (!dialogs_.empty() && !(IsWindow(dialogs_.back()) && IsWindowVisible(dialogs_.back())))
        dialogs_.pop_back();
    const bool isNew =
        active && std::find(dialogs_.begin(), dialogs_.end(), active) == dialogs_.end();
    if (!steps_.empty() && steps_.front().wantsNewDialog) {
        if (isNew) return RunStep(active);
        if (StepIsLate()) Fail("no dialog appears for " + steps_.front().name);
        return false;
    }
    if (dialogs_.empty()) {
        if (!active) {
            if (StepIsLate() && !steps_.empty()) Fail("no dialog takes input");
            return false;
        }
        dialogs_.push_back(active);
    } else if (!IsWindowEnabled(dialogs_.back())) {
        if (isNew)
            Fail("an unexpected message appears: " + Quote(TextOf(active)) + ": " +
                 Quote(ReadMessage(active).text));
        else if (StepIsLate())
            Fail("the dialog stays disabled");
        return false;
    }
    if (!steps_.empty()) return RunStep(dialogs_.back());
    if (++idleTicks_ > kIdleTicksAtEnd) Fail("the script is over and the dialog is still open");
    return false;
}

// The step leaves the list before it runs: what it opens may run a loop in which the next ones run.
bool DialogScript::RunStep(HWND dialog) {
    Step step = std::move(steps_.front());
    steps_.pop_front();
    running_ = {step.name, step.where, nullptr, false};
    if (step.action(*this, dialog) == State::kWait) {
        steps_.push_front(std::move(step));
        return false;
    }
    stepTime_ = GetTickCount();
    if (testing::Test::HasFatalFailure() && !failed_) Fail("the step failed");
    return !steps_.empty();
}

void DialogScript::Fail(const std::string& why) {
    if (failed_) return;
    failed_ = true;
    steps_.clear();
    const HWND active = ActiveDialog();
    ADD_FAILURE_AT(running_.where.file_name(), static_cast<int>(running_.where.line()))
        << "At the step " << running_.name << ": " << why << "\n"
        << DescribeWindow(active);
}

void DialogScript::EndAllDialogs() {
    ++endingTicks_;
    for (HWND hwnd : OpenDialogs()) {
        if (endingTicks_ < kTicksToEnd)
            EndDialog(hwnd, IDCANCEL);
        else
            DestroyWindow(hwnd);
    }
    const HWND active = ActiveDialog();
    if (active && ClassOf(active) == kMenuClass)
        PostMessageA(active, WM_KEYDOWN, VK_ESCAPE, 0);
    else if (active && ClassOf(active) != "#32770")
        PostMessageA(active, WM_CLOSE, 0, 0);
    // A loop that waits for a message ends only when one comes.
    PostMessageA(nullptr, WM_NULL, 0, 0);
    if (endingTicks_ > 2 * kTicksToEnd) PostQuitMessage(IDCANCEL);
}

}  // namespace test_support
