// A script of what a user does with dialogs, run from inside their own modal loops: one step
// whenever the loop is idle. The same script runs on every system since it uses platform calls
// alone.
//
//     DialogScript script;
//     script.Type(IDC_CUTOFF, "12.5").Press(VK_TAB).Click(IDOK)
//           .Answer(IDOK, "The cutoff is too high.")
//           .Type(IDC_CUTOFF, "2").Click(IDOK);
//     const INT_PTR result = script.Run([&] { return ShowTheDialog(owner); });
//
// Steps act on the current dialog, which is the first that opens. A dialog on top of it is answered
// by Answer or becomes the current one by EnterDialog; before any other step it is an unexpected
// message and fails the test. When the current dialog closes, the one below becomes current again.
//
// A step that cannot be done, a dialog that ends with steps left, a script that ends with a dialog
// open, and a script that takes longer than its time limit fail the test and end all dialogs.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <source_location>
#include <string>
#include <type_traits>
#include <vector>

#include "platform/platform.h"
#include "support/HardLimit.h"

namespace test_support {

// One push button of a dialog as the user sees it.
struct ShownButton {
    int id = 0;
    std::string text;
    bool enabled = false;
};

// A message box, or any dialog that was answered with Answer.
struct ShownMessage {
    std::string title;
    std::string text;  // of all its labels and edit fields, joined by line feeds
    std::vector<ShownButton> buttons;
    int focusId = 0;  // of the button that has the focus when it appears
};

// Keys held down during Press.
enum Modifiers : unsigned { kPlain = 0, kShift = 1, kControl = 2, kAlt = 4 };

class DialogScript {
  public:
    using Where = std::source_location;

    // Once the script is over this many milliseconds old, it fails and ends all dialogs.
    explicit DialogScript(DWORD timeLimit = 30000);
    ~DialogScript();
    DialogScript(const DialogScript&) = delete;
    DialogScript& operator=(const DialogScript&) = delete;

    // --- What the user does. Controls are named by id, on the dialog or on its visible page.
    // Presses and releases a button by message, as a click that always hits.
    DialogScript& Click(int id, Where where = Where::current());
    // Presses and releases the left mouse button over the middle of the control, or at a point in
    // it.
    DialogScript& MouseClick(int id, Where where = Where::current());
    DialogScript& MouseClickAt(int id, int x, int y, Where where = Where::current());
    DialogScript& DoubleClick(int id, Where where = Where::current());
    // Moves the focus to the control and replaces its text by typing; "" deletes it.
    DialogScript& Type(int id, const std::string& text, Where where = Where::current());
    // Types into whatever has the focus.
    DialogScript& TypeKeys(const std::string& text, Where where = Where::current());
    // Presses and releases a key (VK_...) in whatever has the focus.
    DialogScript& Press(int key, unsigned modifiers = kPlain, Where where = Where::current());
    // Presses Alt and a letter.
    DialogScript& Mnemonic(char letter, Where where = Where::current());
    // Moves the focus as a click beside the text does.
    DialogScript& Focus(int id, Where where = Where::current());
    // Chooses an item of a combo box or a list box with the mouse.
    DialogScript& Choose(int id, int index, Where where = Where::current());
    DialogScript& Choose(int id, const std::string& text, Where where = Where::current());
    // Clicks an item of a list box with keys held (kShift, kControl).
    DialogScript& ClickItem(int id, int index, unsigned modifiers = kPlain,
                            Where where = Where::current());
    // Clicks a tab of the dialog's tab control; by id where there are several tab controls.
    DialogScript& SelectTab(int index, Where where = Where::current());
    DialogScript& SelectTab(const std::string& title, Where where = Where::current());
    DialogScript& SelectTabOf(int id, int index, Where where = Where::current());
    // The close button of the frame.
    DialogScript& CloseByFrame(Where where = Where::current());

    // --- Dialogs on top.
    // Waits for a dialog on top of the current one, records it, and clicks the button `answer`.
    // With a text, the dialog's text must be that text.
    DialogScript& Answer(int answer, Where where = Where::current());
    DialogScript& Answer(int answer, const std::string& text, Where where = Where::current());
    // Waits for a dialog on top of the current one and makes it the current one.
    DialogScript& EnterDialog(Where where = Where::current());

    // --- What the user sees.
    DialogScript& ExpectText(int id, const std::string& text, Where where = Where::current());
    DialogScript& ExpectEnabled(int id, bool enabled, Where where = Where::current());
    DialogScript& ExpectVisible(int id, bool visible, Where where = Where::current());
    DialogScript& ExpectChecked(int id, UINT state, Where where = Where::current());
    DialogScript& ExpectFocus(int id, Where where = Where::current());
    DialogScript& ExpectSelected(int id, const std::string& text, Where where = Where::current());
    DialogScript& ExpectItems(int id, const std::vector<std::string>& items,
                              Where where = Where::current());
    DialogScript& ExpectTitle(const std::string& title, Where where = Where::current());

    // --- Anything else. Do takes a callable with no parameter or with the current dialog.
    template <class F>
    DialogScript& Do(F callable, Where where = Where::current()) {
        if constexpr (std::is_invocable_v<F, HWND>)
            return Add("Do", where, [callable](DialogScript&, HWND dialog) mutable {
                callable(dialog);
                return State::kDone;
            });
        else
            return Add("Do", where, [callable](DialogScript&, HWND) mutable {
                callable();
                return State::kDone;
            });
    }
    // Waits until the callable (no parameter) gives true.
    DialogScript& WaitUntil(std::function<bool()> condition, Where where = Where::current());
    DialogScript& Wait(DWORD milliseconds, Where where = Where::current());

    // Runs the callable, which opens the dialog and returns when it has closed; the steps run
    // meanwhile. Returns what the callable returns.
    template <class F>
    auto Run(F open, Where where = Where::current()) {
        Begin(where);
        if constexpr (std::is_void_v<std::invoke_result_t<F>>) {
            open();
            End();
        } else {
            auto result = open();
            End();
            return result;
        }
    }
    // Runs the steps on a modeless dialog or a plain window in a message loop of its own, until no
    // step is left or the window is gone.
    void RunModeless(HWND dialog, Where where = Where::current());

    // The dialogs that were answered, in their order.
    const std::vector<ShownMessage>& Messages() const { return messages_; }
    bool Failed() const { return failed_; }

  private:
    enum class State { kDone, kWait };
    using Action = std::function<State(DialogScript&, HWND)>;
    struct Step {
        std::string name;
        Where where;
        Action action;
        bool wantsNewDialog = false;
    };

    DialogScript& Add(const std::string& name, Where where, Action action);
    DialogScript& AddForNewDialog(const std::string& name, Where where, Action action);
    DialogScript& AddTab(const std::string& name, int id, const std::string& title, int index,
                         Where where);
    void Begin(Where where);
    void End();
    void Tick();
    bool TickOnce();
    bool RunStep(HWND dialog);
    bool StepIsLate() const;
    void Fail(const std::string& why);
    void EndAllDialogs();
    void HoldKeys(unsigned modifiers);
    HWND Control(HWND dialog, int id, bool forInput);
    void PostKey(HWND focus, int key, unsigned modifiers);
    void PostClick(HWND hwnd, POINT point, UINT firstMessage, unsigned modifiers);
    void ChooseItem(HWND control, int index, unsigned modifiers);
    static void CALLBACK OnTimer(HWND hwnd, UINT message, UINT_PTR id, DWORD time);

    std::deque<Step> steps_;
    std::vector<ShownMessage> messages_;
    std::vector<HWND> dialogs_;  // the current one last, the ones below before it
    HWND answered_ = nullptr;    // a dialog that is on its way out
    Step running_;
    DWORD timeLimit_;
    DWORD startTime_ = 0;
    DWORD stepTime_ = 0;
    unsigned idleTicks_ = 0;
    unsigned endingTicks_ = 0;
    unsigned heldKeys_ = kPlain;
    UINT_PTR timer_ = 0;
    std::unique_ptr<HardLimit> hardLimit_;
    DialogScript* outer_ = nullptr;
    bool begun_ = false;
    bool failed_ = false;
};

}  // namespace test_support
