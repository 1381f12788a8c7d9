// The hooks of one thread and the calls that serve them. Private to the headless system.
#pragma once

#include <list>

#include "platform/headless/window/window.h"

namespace headless {

struct Hook {
    HHOOK handle = nullptr;
    int kind = 0;
    HOOKPROC proc = nullptr;
    bool removed = false;  // while a call is inside it
};

struct HookList {
    std::list<Hook> hooks;  // the newest first
    unsigned kinds = 0;  // a bit for each kind that was ever set, so that the others cost nothing
    int running = 0;
    HHOOK current = nullptr;  // the innermost one that runs
    std::size_t Live() const;
};

// True when a filter took the message.
bool CallFilterHooks(MSG& msg, int code);
// Shows a message that GetMessage or PeekMessage is about to return.
void CallGetMessageHooks(MSG& msg, UINT remove);
void CallSendHooks(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
// A result other than 0 refuses the step.
LRESULT CallCbt(int code, WPARAM wParam, LPARAM lParam);
LRESULT CallCbtCreate(HWND hwnd, CREATESTRUCTA& cs);
// True when a hook took the key.
bool CallKeyboardHooks(WPARAM key, LPARAM flags, bool removed);

}  // namespace headless
