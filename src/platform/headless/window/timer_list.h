// The timers of one thread, on the clock of clock.h. Private to the headless system.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/headless/window/window.h"

namespace headless {

struct Timer {
    HWND hwnd = nullptr;
    UINT_PTR id = 0;
    UINT interval = 0;
    TIMERPROC proc = nullptr;
    std::uint64_t due = 0;
};

struct TimerList {
    std::vector<Timer> timers;
    UINT_PTR nextId = 0x7FFF;

    // The WM_TIMER of the timer that has been due for longest and passes the filter; `remove` sets
    // it to its next time.
    bool Take(MSG& msg, HWND filter, bool remove);
    std::optional<std::uint64_t> NextDue() const;
    // Whether the procedure that a message carries belongs to a live timer.
    bool HasProcedure(HWND hwnd, UINT_PTR id, LPARAM proc) const;
    void RemoveAllOf(HWND hwnd);
};

}  // namespace headless
