// The main function of every test program. After each test it fails what a test itself cannot see:
// a skip without a reason, windows left behind, and whatever the system noticed.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "support/system.h"

namespace test_support {
namespace {

// A crash handler reads the name, so it lives in plain memory that never moves.
char runningTest[256] = "";

BOOL CALLBACK CollectWindow(HWND hwnd, LPARAM list) {
    char name[64] = "";
    GetClassNameA(hwnd, name, sizeof name);
    if (!IsSystemWindowClass(name)) reinterpret_cast<std::vector<HWND>*>(list)->push_back(hwnd);
    return TRUE;
}

std::vector<HWND> ThreadWindows() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), CollectWindow, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

// A test starts with an empty queue: a quit message of the test before would end its first loop.
void DrainMessages() {
    MSG msg;
    for (int n = 0; n < 10000 && PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++n) {
    }
}

class FaultListener final : public testing::EmptyTestEventListener {
  public:
    void OnTestStart(const testing::TestInfo& test) override {
        std::snprintf(runningTest, sizeof runningTest, "%s.%s", test.test_suite_name(),
                      test.name());
        before_ = ThreadWindows();
        DrainMessages();
        TakeSystemFaults();
    }

    void OnTestEnd(const testing::TestInfo& test) override {
        FailSkipWithoutReason(*test.result());
        for (HWND hwnd : ThreadWindows()) {
            if (std::find(before_.begin(), before_.end(), hwnd) != before_.end()) continue;
            if (!IsWindow(hwnd)) continue;  // went with its owner
            char name[64] = "", text[64] = "";
            GetClassNameA(hwnd, name, sizeof name);
            GetWindowTextA(hwnd, text, sizeof text);
            ADD_FAILURE() << "The test left a window behind: class \"" << name << "\", text \""
                          << text << "\"";
            DestroyWindow(hwnd);
        }
        for (const std::string& fault : TakeSystemFaults()) ADD_FAILURE() << fault;
        runningTest[0] = 0;
    }

  private:
    static void FailSkipWithoutReason(const testing::TestResult& result) {
        if (!result.Skipped()) return;
        for (int i = 0; i < result.total_part_count(); ++i) {
            const testing::TestPartResult& part = result.GetTestPartResult(i);
            if (!part.skipped()) continue;
            std::string reason = part.message();
            reason.erase(0, reason.find_first_not_of(" \n\t"));
            if (reason.empty() || reason == "Skipped") ADD_FAILURE() << "A skip without a reason.";
        }
    }

    std::vector<HWND> before_;
};

}  // namespace

const char* RunningTestName() {
    return runningTest;
}

}  // namespace test_support

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) return RUN_ALL_TESTS();
    test_support::StartSystem();
    testing::UnitTest::GetInstance()->listeners().Append(new test_support::FaultListener);
    const int result = RUN_ALL_TESTS();
    test_support::StopSystem();
    std::fflush(stdout);
    return result;
}
