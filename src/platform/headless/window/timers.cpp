#include <algorithm>

#include "platform/headless/window/message_queue.h"
#include "platform/headless/window/timer_list.h"
#include "zxadlg/headless/clock.h"

namespace headless {

namespace {

std::vector<Timer>::iterator Find(std::vector<Timer>& timers, HWND hwnd, UINT_PTR id) {
    return std::find_if(timers.begin(), timers.end(),
                        [&](const Timer& t) { return t.hwnd == hwnd && t.id == id; });
}

}  // namespace

bool TimerList::Take(MSG& msg, HWND filter, bool remove) {
    const std::uint64_t now = ClockNow();
    Timer* oldest = nullptr;
    for (Timer& timer : timers) {
        if (timer.due > now || !PassesWindowFilter(timer.hwnd, filter)) continue;
        if (oldest == nullptr || timer.due < oldest->due) oldest = &timer;
    }
    if (oldest == nullptr) return false;
    msg = {};
    msg.hwnd = oldest->hwnd;
    msg.message = WM_TIMER;
    msg.wParam = oldest->id;
    msg.lParam = reinterpret_cast<LPARAM>(oldest->proc);
    // A late timer does not catch up: the next one comes a full interval after now.
    if (remove) oldest->due = std::max(oldest->due + oldest->interval, now + 1);
    return true;
}

std::optional<std::uint64_t> TimerList::NextDue() const {
    std::optional<std::uint64_t> next;
    for (const Timer& timer : timers) {
        if (!next || timer.due < *next) next = timer.due;
    }
    return next;
}

bool TimerList::HasProcedure(HWND hwnd, UINT_PTR id, LPARAM proc) const {
    return std::any_of(timers.begin(), timers.end(), [&](const Timer& t) {
        return t.hwnd == hwnd && t.id == id && reinterpret_cast<LPARAM>(t.proc) == proc;
    });
}

void TimerList::RemoveAllOf(HWND hwnd) {
    std::erase_if(timers, [hwnd](const Timer& t) { return t.hwnd == hwnd; });
}

}  // namespace headless

using namespace headless;

UINT_PTR SetTimer(HWND hwnd, UINT_PTR id, UINT elapse, TIMERPROC proc) {
    TimerList& list = *ThisWorld().timers;
    if (hwnd != nullptr && Lookup(hwnd) == nullptr) return 0;
    Timer timer;
    timer.hwnd = hwnd;
    timer.id = id;
    timer.interval = std::clamp<UINT>(elapse, USER_TIMER_MINIMUM, 0x7FFFFFFF);
    timer.proc = proc;
    timer.due = ClockNow() + timer.interval;
    const auto found = Find(list.timers, hwnd, id);
    if (found != list.timers.end()) {
        *found = timer;
        return hwnd == nullptr ? id : 1;
    }
    if (hwnd == nullptr) {
        // Without a window the system chooses a number that is free.
        do {
            timer.id = list.nextId;
            list.nextId = list.nextId > 0x100 ? list.nextId - 1 : 0x7FFF;
        } while (Find(list.timers, nullptr, timer.id) != list.timers.end());
    }
    list.timers.push_back(timer);
    return hwnd == nullptr ? timer.id : id == 0 ? 1 : id;
}

BOOL KillTimer(HWND hwnd, UINT_PTR id) {
    TimerList& list = *ThisWorld().timers;
    const auto found = Find(list.timers, hwnd, id);
    if (found == list.timers.end()) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return FALSE;
    }
    list.timers.erase(found);
    return TRUE;
}
