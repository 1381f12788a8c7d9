// Where a system is known to differ from what the platform does. A gap is marked in the test that
// would fail there, and the mark itself fails when the gap closes, so that no mark outlives its
// reason.
//
//     KNOWN_GAP(kWine, "Escape ignores a disabled Cancel button", IsWindowVisible(dialog));
#pragma once

#include <gtest/gtest.h>

namespace test_support {

enum class TestSystem { kWindows, kWine, kHeadless };

// The system that this program runs on.
TestSystem CurrentSystem();

}  // namespace test_support

// Expects the condition to hold, but not to hold on that system.
#define KNOWN_GAP(system, reason, condition)                                                  \
    do {                                                                                      \
        const bool holds = static_cast<bool>(condition);                                      \
        if (test_support::CurrentSystem() == test_support::TestSystem::system)                \
            EXPECT_FALSE(holds) << "The gap is closed, the mark can go: " << reason;          \
        else                                                                                  \
            EXPECT_TRUE(holds) << #condition << " (a known gap elsewhere: " << reason << ")"; \
    } while (false)
