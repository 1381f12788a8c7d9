#include "ScriptPlayer.h"

#include <algorithm>
#include <utility>

#include "Numbers.h"
#include "System.h"

namespace zxhost {
namespace {

constexpr UINT kTickInterval = 10;        // ms
constexpr DWORD kStepLimit = 8000;        // ms that a step may wait for what it needs
constexpr unsigned kIdleTicksAtEnd = 50;  // that a dialog may stay open after the last step
constexpr unsigned kTicksToEnd = 100;     // until a dialog that does not end is destroyed

ScriptPlayer* playing = nullptr;

std::string Quote(const std::string& text) {
    std::string quoted = "\"";
    for (char c : text) {
        if (c == '\n') {
            quoted += "\\n";
        } else {
            if (c == '"' || c == '\\') quoted += '\\';
            quoted += c;
        }
    }
    return quoted + "\"";
}

POINT Middle(const RECT& rect) {
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

// Line ends are one character in a script.
std::string OneLineEnd(const std::string& text) {
    std::string plain;
    for (char c : text) {
        if (c != '\r') plain += c;
    }
    return plain;
}

std::string AllItems(HWND control) {
    std::string all;
    for (const std::string& item : ItemsOf(control)) all += (all.empty() ? "" : ", ") + Quote(item);
    return all.empty() ? "there are none" : "there are " + all;
}

}  // namespace

ScriptPlayer::ScriptPlayer(const Script& script, DWORD timeLimit)
    : script_(script), timeLimit_(timeLimit) {}

ScriptPlayer::~ScriptPlayer() {
    if (timer_) KillTimer(nullptr, timer_);
    if (playing == this) playing = nullptr;
}

std::int32_t ScriptPlayer::Play(const std::function<std::int32_t()>& open) {
    playing = this;
    startTime_ = stepTime_ = GetTickCount();
    timer_ = SetTimer(nullptr, 0, kTickInterval, OnTimer);
    const std::int32_t result = open();
    KillTimer(nullptr, timer_);
    timer_ = 0;
    playing = nullptr;
    HoldKeys(kHoldNone);
    while (error_.empty() && next_ < script_.steps.size() && IsLater(script_.steps[next_]))
        ExpectValue(script_.steps[next_++]);
    if (next_ < script_.steps.size()) {
        Fail(sawDialog_ ? "the dialog closed before this step: " + script_.steps[next_].source
                        : "no dialog opened (the call gave " + std::to_string(result) + ")");
    } else if (!sawDialog_ && messages_.empty()) {
        Fail("no dialog opened (the call gave " + std::to_string(result) + ")");
    }
    return result;
}

void CALLBACK ScriptPlayer::OnTimer(HWND, UINT, UINT_PTR id, DWORD) {
    if (playing && playing->timer_ == id) playing->Tick();
}

// Steps that post nothing, as expectations, need not wait for a tick each.
void ScriptPlayer::Tick() {
    MSG waiting;
    while (TickOnce() && !PeekMessageA(&waiting, nullptr, 0, 0, PM_NOREMOVE)) {
    }
}

bool ScriptPlayer::TickOnce() {
    HoldKeys(kHoldNone);
    if (!error_.empty()) {
        EndAllDialogs();
        return false;
    }
    if (GetTickCount() - startTime_ > timeLimit_) {
        Fail("the script takes longer than " + std::to_string(timeLimit_ / 1000) + " s");
        return false;
    }
    HWND active = ActiveDialog();
    if (answered_ && active == answered_) {
        if (StepIsLate()) Fail("the message stays open after its answer");
        return false;
    }
    answered_ = nullptr;
    if (!dialog_) {
        if (!active) {
            if (StepIsLate()) Fail("no dialog opens");
            return false;
        }
        const Verb verb = next_ < script_.steps.size() ? script_.steps[next_].verb : Verb::kOk;
        if ((verb == Verb::kAnswer || verb == Verb::kExpectMessage) && IsMessage(active)) {
            TickOnMessage(active);
            return false;
        }
        dialog_ = active;
        sawDialog_ = true;
    }
    if (active && active != dialog_) {
        TickOnMessage(active);
        return false;
    }
    message_ = nullptr;
    if (!active) {
        if (StepIsLate()) Fail("the dialog takes no input");
        return false;
    }
    CheckTyped();
    if (!error_.empty()) return false;
    if (next_ == script_.steps.size()) {
        if (++idleTicks_ > kIdleTicksAtEnd) Fail("the script is over and the dialog is still open");
        return false;
    }
    const Verb verb = script_.steps[next_].verb;
    if (verb == Verb::kAnswer || verb == Verb::kExpectMessage) {
        if (StepIsLate()) Fail("no message appears");
        return false;
    }
    return RunStep(&ScriptPlayer::RunOnDialog, dialog_);
}

void ScriptPlayer::TickOnMessage(HWND message) {
    if (message_ != message) {
        message_ = message;
        messages_.push_back(ReadMessage(message));
    }
    const Verb verb = next_ < script_.steps.size() ? script_.steps[next_].verb : Verb::kOk;
    if (verb == Verb::kAnswer || verb == Verb::kExpectMessage) {
        RunStep(&ScriptPlayer::RunOnMessage, message);
        return;
    }
    Fail("a message appears that the script does not expect: " + Quote(messages_.back().text));
}

bool ScriptPlayer::RunStep(State (ScriptPlayer::*run)(const Step&, HWND), HWND dialog) {
    // The step is behind us before it runs: what it opens may run a loop in which the next ones
    // run.
    const Step& step = script_.steps[next_++];
    const Step* outer = std::exchange(running_, &step);
    const State state = (this->*run)(step, dialog);
    running_ = outer;
    if (state == State::kWait) {
        --next_;
        return false;
    }
    if (!error_.empty()) return false;
    idleTicks_ = 0;
    stepTime_ = GetTickCount();
    return next_ < script_.steps.size();
}

ScriptPlayer::State ScriptPlayer::RunOnMessage(const Step& step, HWND message) {
    if (step.verb == Verb::kExpectMessage) {
        Compare("the message", OneLineEnd(messages_.back().text), step.argument);
        return State::kDone;
    }
    HWND button = FindAnswer(message, step.argument);
    if (!button) {
        Fail("the message has no button " + Describe(step.argument));
        return State::kDone;
    }
    answered_ = message;
    PostMessageA(button, BM_CLICK, 0, 0);
    return State::kDone;
}

ScriptPlayer::State ScriptPlayer::RunOnDialog(const Step& step, HWND dialog) {
    switch (step.verb) {
        case Verb::kTab:
            ChooseTab(step, dialog);
            return State::kDone;
        case Verb::kClick:
            // Posted: what it opens must not run inside this step.
            if (HWND control = ControlOf(step, dialog, true)) PostMessageA(control, BM_CLICK, 0, 0);
            return State::kDone;
        case Verb::kChoose:
            if (HWND control = ControlOf(step, dialog, true)) ChooseItem(step, control);
            return State::kDone;
        case Verb::kPick:
            return PickFromMenu(step);
        case Verb::kType:
            if (HWND control = ControlOf(step, dialog, true)) Type(step, dialog, control);
            return State::kDone;
        case Verb::kPress:
            Press(step, dialog);
            return State::kDone;
        case Verb::kFocus:
            if (HWND control = ControlOf(step, dialog, true))
                SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
            return State::kDone;
        case Verb::kWait:
            return GetTickCount() - stepTime_ >= static_cast<DWORD>(NumberOf(step.argument))
                       ? State::kDone
                       : State::kWait;
        case Verb::kOk:
        case Verb::kCancel: {
            Step button = step;
            button.control.text = std::to_string(step.verb == Verb::kOk ? IDOK : IDCANCEL);
            if (HWND control = ControlOf(button, dialog, true))
                PostMessageA(control, BM_CLICK, 0, 0);
            return State::kDone;
        }
        case Verb::kClose:
            PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0);
            return State::kDone;
        default:
            return Expect(step, dialog);
    }
}

ScriptPlayer::State ScriptPlayer::Expect(const Step& step, HWND dialog) {
    if (step.verb == Verb::kExpectTitle) {
        Compare("the title", TextOf(dialog), step.argument);
        return State::kDone;
    }
    if (step.verb == Verb::kExpectTab) {
        HWND tabs = FindByClass(dialog, "systabcontrol32");
        if (!tabs) {
            Fail("the dialog has no tabs");
        } else {
            CompareItem("the page", tabs, step.argument);
        }
        return State::kDone;
    }
    if (IsLater(step)) {
        ExpectValue(step);
        return State::kDone;
    }
    HWND control = ControlOf(step, dialog, false);
    if (!control) return State::kDone;
    const std::string name = "control " + Describe(step.control);
    switch (step.verb) {
        case Verb::kExpectText:
            Compare("the text of " + name, OneLineEnd(TextOf(control)), step.argument);
            break;
        case Verb::kExpectChosen:
            CompareItem("the choice in " + name, control, step.argument);
            break;
        case Verb::kExpectItem:
            if (IndexOfItem(control, step.argument) < 0)
                Fail(name + " has no item " + Describe(step.argument) + "; " + AllItems(control));
            break;
        case Verb::kExpectEnabled:
            Check(step, IsWindowEnabled(control) != FALSE, "enabled");
            break;
        case Verb::kExpectDisabled:
            Check(step, IsWindowEnabled(control) == FALSE, "disabled");
            break;
        case Verb::kExpectShown:
            Check(step, IsWindowVisible(control) != FALSE, "shown");
            break;
        case Verb::kExpectHidden:
            Check(step, IsWindowVisible(control) == FALSE, "hidden");
            break;
        case Verb::kExpectChecked:
            Check(step, SendMessageA(control, BM_GETCHECK, 0, 0) == BST_CHECKED, "checked");
            break;
        case Verb::kExpectUnchecked:
            Check(step, SendMessageA(control, BM_GETCHECK, 0, 0) == BST_UNCHECKED, "unchecked");
            break;
        default:
            Check(step, GetFocus() == control || IsChild(control, GetFocus()),
                  "where the focus is");
            break;
    }
    return State::kDone;
}

// --- Input -----------------------------------------------------------------------------------

HWND ScriptPlayer::ControlOf(const Step& step, HWND dialog, bool forInput) {
    HWND control =
        step.field ? FindFieldBehind(dialog, step.control) : FindControl(dialog, step.control);
    if (!control) {
        Fail((step.field ? "there is no field behind " : "there is no control ") +
             Describe(step.control) + "; there are " + ListControls(dialog));
        return nullptr;
    }
    if (forInput && (!IsWindowVisible(control) || !IsWindowEnabled(control))) {
        Fail("control " + Describe(step.control) + " cannot be used: it is " +
             (IsWindowVisible(control) ? "disabled" : "hidden"));
        return nullptr;
    }
    return control;
}

void ScriptPlayer::HoldKeys(unsigned held) {
    if (held == held_) return;
    BYTE keys[256] = {};
    GetKeyboardState(keys);
    const auto set = [&](int key, unsigned bit) {
        keys[key] = static_cast<BYTE>((held & bit) ? 0x80 : 0);
    };
    set(VK_SHIFT, kHoldShift);
    set(VK_LSHIFT, kHoldShift);
    set(VK_CONTROL, kHoldControl);
    set(VK_LCONTROL, kHoldControl);
    set(VK_MENU, kHoldAlt);
    SetKeyboardState(keys);
    held_ = held;
}

void ScriptPlayer::PostClick(HWND hwnd, POINT point, unsigned held) {
    HoldKeys(held);
    WPARAM keys = 0;
    if (held & kHoldShift) keys |= MK_SHIFT;
    if (held & kHoldControl) keys |= MK_CONTROL;
    const LPARAM at = MAKELPARAM(point.x, point.y);
    PostMessageA(hwnd, WM_LBUTTONDOWN, keys | MK_LBUTTON, at);
    PostMessageA(hwnd, WM_LBUTTONUP, keys, at);
}

void ScriptPlayer::ChooseTab(const Step& step, HWND dialog) {
    HWND tabs = FindByClass(dialog, "systabcontrol32");
    if (!tabs) {
        Fail("the dialog has no tabs");
        return;
    }
    const int index = IndexOfItem(tabs, step.argument);
    RECT rect = {};
    if (index < 0 || !SendMessageA(tabs, TCM_GETITEMRECT, static_cast<WPARAM>(index),
                                   reinterpret_cast<LPARAM>(&rect))) {
        Fail("there is no tab " + Describe(step.argument) + "; " + AllItems(tabs));
        return;
    }
    PostClick(tabs, Middle(rect), kHoldNone);
}

void ScriptPlayer::ChooseItem(const Step& step, HWND control) {
    const int index = IndexOfItem(control, step.argument);
    if (index < 0) {
        Fail("control " + Describe(step.control) + " has no item " + Describe(step.argument) +
             "; " + AllItems(control));
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
    PostClick(list, {rect.left + 2, (rect.top + rect.bottom) / 2}, step.held);
}

// With the keys, which pass separators by.
ScriptPlayer::State ScriptPlayer::PickFromMenu(const Step& step) {
    HWND menu = OpenMenu();
    if (!menu) {
        if (!StepIsLate()) return State::kWait;
        Fail("no menu is open");
        return State::kDone;
    }
    const std::vector<std::string> items = MenuItems(menu);
    const int position = NumberOf(step.argument) - 1;
    std::size_t item = 0;
    while (item < items.size() && static_cast<int>(item) != position &&
           items[item] != step.argument.text)
        ++item;
    if (item == items.size()) {
        std::string all;
        for (const std::string& each : items) all += (all.empty() ? "" : ", ") + Quote(each);
        Fail("the menu has no item " + Describe(step.argument) + "; there are " + all);
        return State::kDone;
    }
    const auto press = [menu](WPARAM key) { PostMessageA(menu, WM_KEYDOWN, key, 1); };
    press(VK_HOME);
    for (std::size_t i = 0; i < item; ++i) {
        if (!items[i].empty()) press(VK_DOWN);
    }
    press(VK_RETURN);
    return State::kDone;
}

void ScriptPlayer::Type(const Step& step, HWND dialog, HWND control) {
    if (!IsField(control)) {
        Fail("control " + Describe(step.control) + " is no field that can be typed into");
        return;
    }
    bool exact = false;
    const std::string characters = ToSystem(step.argument.text, &exact);
    if (!exact) {
        Fail("the dialogs have no such character in " + Quote(step.argument.text));
        return;
    }
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    HWND focus = GetFocus();
    if (!focus || (focus != control && !IsChild(control, focus))) {
        Fail("control " + Describe(step.control) + " does not take the focus");
        return;
    }
    typed_ = &step;
    typedInto_ = control;
    SendMessageA(focus, EM_SETSEL, 0, -1);
    if (step.argument.text.empty()) {
        PostMessageA(focus, WM_KEYDOWN, VK_DELETE, 1 | (1 << 24));
        return;
    }
    for (char c : characters) PostMessageA(focus, WM_CHAR, static_cast<unsigned char>(c), 1);
}

// A field may take some characters and leave others.
void ScriptPlayer::CheckTyped() {
    if (!typed_) return;
    const Step& step = *std::exchange(typed_, nullptr);
    if (!IsWindow(typedInto_)) return;
    const std::string held = TextOf(typedInto_);
    if (held == step.argument.text) return;
    const Step* outer = std::exchange(running_, &step);
    Fail("control " + Describe(step.control) + " holds " + Quote(held) + " after " +
         Quote(step.argument.text) + " was typed");
    running_ = outer;
}

void ScriptPlayer::Press(const Step& step, HWND dialog) {
    HWND focus = GetFocus();
    if (!focus) focus = dialog;
    const auto key = static_cast<WPARAM>(step.key);
    const bool character =
        (step.key >= '0' && step.key <= '9') || (step.key >= 'A' && step.key <= 'Z');
    // Bit 29 marks a held Alt key, bit 24 the keys of the block of arrows.
    if (character && step.held == kHoldAlt) {
        PostMessageA(focus, WM_SYSCHAR, key | 0x20, 1 | (1 << 29));
        return;
    }
    HoldKeys(step.held);
    const bool system = (step.held & kHoldAlt) != 0;
    LPARAM down = 1;
    if (step.key >= VK_PRIOR && step.key <= VK_DELETE) down |= 1 << 24;
    if (system) down |= 1 << 29;
    const auto up = static_cast<LPARAM>(static_cast<LONG>(static_cast<DWORD>(down) | 0xC0000000u));
    PostMessageA(focus, system ? WM_SYSKEYDOWN : WM_KEYDOWN, key, down);
    PostMessageA(focus, system ? WM_SYSKEYUP : WM_KEYUP, key, up);
}

// --- Judging ---------------------------------------------------------------------------------

void ScriptPlayer::Compare(const std::string& what, const std::string& seen, const Word& wanted) {
    if (seen != wanted.text)
        Fail(what + " is " + Quote(seen) + " and should be " + Quote(wanted.text));
}

// An item by its text, or by its position from 1.
void ScriptPlayer::CompareItem(const std::string& what, HWND control, const Word& wanted) {
    const int position = NumberOf(wanted);
    if (position < 0) {
        Compare(what, ChosenItem(control), wanted);
    } else if (ChosenIndex(control) + 1 != position) {
        Fail(what + " is item " + std::to_string(ChosenIndex(control) + 1) + ", " +
             Quote(ChosenItem(control)) + ", and should be item " + std::to_string(position));
    }
}

bool ScriptPlayer::IsLater(const Step& step) const {
    return step.verb == Verb::kExpectRecord || step.verb == Verb::kExpectStore;
}

void ScriptPlayer::ExpectValue(const Step& step) {
    const Step* outer = std::exchange(running_, &step);
    const bool record = step.verb == Verb::kExpectRecord;
    std::string seen, error;
    double number = 0.0, wanted = 0.0;
    if (!(record ? readRecord_ : readStore_)(step.name.text, &seen, &error)) {
        Fail(error);
    } else if (!ParseNumber(seen, &number) || !ParseNumber(step.argument.text, &wanted) ||
               number != wanted) {
        Compare(record ? "field " + step.name.text : "key " + step.name.text, seen, step.argument);
    }
    running_ = outer;
}

void ScriptPlayer::Check(const Step& step, bool holds, const char* is) {
    if (!holds) Fail("control " + Describe(step.control) + " is not " + is);
}

bool ScriptPlayer::StepIsLate() const {
    return GetTickCount() - stepTime_ > kStepLimit;
}

void ScriptPlayer::Fail(const std::string& why) {
    if (!error_.empty()) return;
    const Step& at =
        running_ ? *running_ : script_.steps[std::min(next_, script_.steps.size() - 1)];
    error_ = script_.name + ":" + std::to_string(at.line) + ": " + why;
}

void ScriptPlayer::EndAllDialogs() {
    ++endingTicks_;
    // An open menu has a loop of its own, which the end of its dialog does not end.
    if (HWND menu = OpenMenu()) {
        PostMessageA(menu, WM_KEYDOWN, VK_ESCAPE, 1);
        return;
    }
    for (HWND hwnd : OpenDialogs()) {
        if (endingTicks_ < kTicksToEnd) {
            EndDialog(hwnd, IDCANCEL);
        } else {
            DestroyWindow(hwnd);
        }
    }
    // A loop that waits for a message ends only when one comes.
    PostMessageA(nullptr, WM_NULL, 0, 0);
}

}  // namespace zxhost
