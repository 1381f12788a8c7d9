#include "platform/platform.h"
#include "support/LeakCheck.h"
#include "support/system.h"

namespace test_support {
namespace {

BOOL CALLBACK CountWindow(HWND hwnd, LPARAM count) {
    char name[64] = "";
    GetClassNameA(hwnd, name, sizeof name);
    if (!IsSystemWindowClass(name)) ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int CountWindows() {
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

}  // namespace

struct LeakCheck::Before {
    int windows;
};

LeakCheck::LeakCheck() : before_(new Before{CountWindows()}) {}

LeakCheck::~LeakCheck() = default;

std::string LeakCheck::Growth() const {
    const int more = CountWindows() - before_->windows;
    return more > 0 ? std::to_string(more) + " windows" : "";
}

int RandomEventBudget() {
    return 5000;
}

}  // namespace test_support
