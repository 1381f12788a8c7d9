// The system's part of a test program on the headless window system.
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/headless/diagnostics.h"
#include "support/KnownGap.h"
#include "support/system.h"

namespace test_support {
namespace {

std::filesystem::path home;

}  // namespace

void StartSystem() {
    // Stored settings of a test never meet those of a user or of another test program.
    std::string pattern = (std::filesystem::temp_directory_path() / "zx-tests-XXXXXX").string();
    if (mkdtemp(pattern.data())) {
        home = pattern;
        setenv("ZX_HEADLESS_HOME", pattern.c_str(), 1);
    }
}

void StopSystem() {
    std::error_code ignored;
    if (!home.empty()) std::filesystem::remove_all(home, ignored);
}

std::vector<std::string> TakeSystemFaults() {
    std::vector<std::string> faults;
    for (const std::string& what : headless::TakeUnsupported())
        faults.push_back("The headless system does not support: " + what);
    return faults;
}

TestSystem CurrentSystem() {
    return TestSystem::kHeadless;
}

bool IsSystemWindowClass(const char*) {
    return false;
}

}  // namespace test_support
