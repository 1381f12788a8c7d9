// Plays a script on the dialogs that a call opens: one step whenever their loop is idle.
//
//     ScriptPlayer player(script, 30000);
//     const int32_t result = player.Play([&] { return ZXADLG_ShowNormalizeDialog(...); });
//     if (!player.Error().empty()) ...
//
// Steps act on the dialog that opened; a message on top of it, or in place of it, must be met by
// "expect message" or "answer". Expectations of records and store may stand behind the step that
// closes the dialog. The first step that cannot be done, a dialog that closes before the last step
// or stays open behind it, no dialog at all and the time limit end the script with an error, and
// all dialogs are cancelled. One player plays at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "Script.h"
#include "WindowReading.h"
#include "zxadlg/headless.h"

namespace zxhost {

class ScriptPlayer {
  public:
    // The limit is in milliseconds, over all steps.
    ScriptPlayer(const Script& script, DWORD timeLimit);
    ~ScriptPlayer();
    ScriptPlayer(const ScriptPlayer&) = delete;
    ScriptPlayer& operator=(const ScriptPlayer&) = delete;

    // Answers "expect record" and "expect store": gives the value of a field or a key, or false
    // with what is wrong.
    using ReadValue =
        std::function<bool(const std::string& name, std::string* value, std::string* error)>;
    void SetReaders(ReadValue record, ReadValue store) {
        readRecord_ = std::move(record);
        readStore_ = std::move(store);
    }

    // Opens the dialog by the call, plays the script, and gives what the call gives.
    std::int32_t Play(const std::function<std::int32_t()>& open);

    // "SCRIPT:LINE: what went wrong"; empty when the script went through.
    const std::string& Error() const { return error_; }

    // The messages that appeared, in their order.
    const std::vector<Message>& Messages() const { return messages_; }

  private:
    enum class State { kDone, kWait };

    static void CALLBACK OnTimer(HWND hwnd, UINT message, UINT_PTR id, DWORD time);
    void Tick();
    bool TickOnce();
    void TickOnMessage(HWND message);
    bool RunStep(State (ScriptPlayer::*run)(const Step&, HWND), HWND dialog);
    State RunOnDialog(const Step& step, HWND dialog);
    State RunOnMessage(const Step& step, HWND message);
    State Expect(const Step& step, HWND dialog);
    void ChooseTab(const Step& step, HWND dialog);
    void ChooseItem(const Step& step, HWND control);
    void Type(const Step& step, HWND dialog, HWND control);
    State PickFromMenu(const Step& step);
    void Press(const Step& step, HWND dialog);
    void PostClick(HWND hwnd, POINT point, unsigned held);
    void HoldKeys(unsigned held);
    void CheckTyped();
    void ExpectValue(const Step& step);
    bool IsLater(const Step& step) const;
    HWND ControlOf(const Step& step, HWND dialog, bool forInput);
    void Compare(const std::string& what, const std::string& seen, const Word& wanted);
    void CompareItem(const std::string& what, HWND control, const Word& wanted);
    void Check(const Step& step, bool holds, const char* is);
    bool StepIsLate() const;
    void Fail(const std::string& why);
    void EndAllDialogs();

    const Script& script_;
    DWORD timeLimit_;
    std::size_t next_ = 0;
    std::string error_;
    std::vector<Message> messages_;
    HWND dialog_ = nullptr;    // the one that opened
    HWND message_ = nullptr;   // on top of it, and already recorded
    HWND answered_ = nullptr;  // on its way out
    DWORD startTime_ = 0;
    DWORD stepTime_ = 0;
    unsigned idleTicks_ = 0;
    unsigned endingTicks_ = 0;
    unsigned held_ = kHoldNone;
    bool sawDialog_ = false;
    const Step* running_ = nullptr;
    UINT_PTR timer_ = 0;
    ReadValue readRecord_;
    ReadValue readStore_;
    HWND typedInto_ = nullptr;  // by the step before, whose characters have arrived by now
    const Step* typed_ = nullptr;
};

}  // namespace zxhost
