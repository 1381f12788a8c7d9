#include "zxadlg/headless/clock.h"

#include <atomic>
#include <chrono>
#include <thread>

#include "zxadlg/headless/functions.h"

namespace headless {

namespace {

std::atomic<bool> frozen{false};
std::atomic<std::uint64_t> frozenAt{0};
std::atomic<std::uint64_t> ahead{0};

std::uint64_t MachineNow() {
    using std::chrono::milliseconds;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<milliseconds>(now).count());
}

}  // namespace

std::uint64_t ClockNow() {
    return frozen ? frozenAt.load() : MachineNow() + ahead;
}

bool ClockFrozen() {
    return frozen;
}

void FreezeClock() {
    frozenAt = ClockNow();
    frozen = true;
}

void ThawClock() {
    if (!frozen) return;
    // Unsigned: a frozen clock that fell behind the machine's gives a difference that wraps.
    ahead = frozenAt - MachineNow();
    frozen = false;
}

void AdvanceClock(std::uint32_t milliseconds) {
    if (frozen) {
        frozenAt += milliseconds;
    } else {
        ahead += milliseconds;
    }
}

}  // namespace headless

DWORD GetTickCount() {
    return static_cast<DWORD>(headless::ClockNow());
}

void Sleep(DWORD milliseconds) {
    if (headless::ClockFrozen()) {
        headless::AdvanceClock(milliseconds);
        return;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}
