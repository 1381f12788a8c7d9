// The clock of the headless system, in milliseconds, one for the process. It runs with the
// machine's until a test freezes it. A frozen clock moves only by AdvanceClock, by Sleep (which
// then does not wait), and by a wait for messages that only a timer or the wait's own limit can
// end: it moves straight to that moment. So timers fire in their order with no time spent.
#pragma once

#include <cstdint>

namespace headless {

std::uint64_t ClockNow();
bool ClockFrozen();
void FreezeClock();
// Lets the clock run again, from the time that it shows.
void ThawClock();
// Moves the clock forward, frozen or not; timers that become due fire when messages are next asked
// for.
void AdvanceClock(std::uint32_t milliseconds);

}  // namespace headless
