// Plays a script on the dialogs that a call opens: one step whenever their loop is idle.
//
//     ScriptPlayer player(script, 30000);
//     const int32_t result = player.Play([&] { return ZXADLG_ShowNormalizeDialog(...); });
//     if (!player.Error().empty()) ...
//
// Steps act on the dialog that opened; a message on top of it must be met by "expect message" or
// "answer". The first step that cannot be done, a dialog that closes before the last step or stays
// open behind it, no dialog at all and the time limit end the script with an error, and all dialogs
// are cancelled. One player plays at a time.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
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
    HWND ControlOf(const Step& step, HWND dialog, bool forInput);
    void Compare(const std::string& what, const std::string& seen, const Word& wanted);
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
};

}  // namespace zxhost
