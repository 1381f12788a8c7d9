// One program on both systems:
//
//     zx_differential generate controls|dialogs BASE FIRST COUNT ACTIONS FILE
//     zx_differential play FILE TRACE
//
// writes random scenarios into a file, and plays a file of scenarios into a trace that is the same
// wherever the systems behave alike.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "Scenario.h"
#include "fixtures/HardLimit.h"
#include "fixtures/system.h"
#include "platform/platform.h"

namespace {

// Long enough for 200 actions on a machine that does much else.
constexpr unsigned kLimitOfAScenario = 900000;  // ms

int Fail(const char* why) {
    std::fprintf(stderr, "zx_differential: %s\n", why);
    return 2;
}

int Generate(char** words) {
    const bool dialogs = std::strcmp(words[0], "dialogs") == 0;
    const uint64_t base = std::strtoull(words[1], nullptr, 0);
    const int first = std::atoi(words[2]), count = std::atoi(words[3]);
    std::FILE* file = std::fopen(words[5], "wb");
    if (file == nullptr) return Fail("the file of scenarios cannot be written");
    for (int n = first; n < first + count; ++n) {
        (dialogs ? differential::GenerateDialogs : differential::GenerateControls)(
            file, base, n, std::atoi(words[4]));
    }
    std::fclose(file);
    return 0;
}

auto PlayerOf(const differential::Scenario& scenario) {
    const std::string first = scenario.lines.empty() ? "" : scenario.lines[0];
    if (first.rfind("picture ", 0) == 0) return differential::PlayPictures;
    return first.rfind("open ", 0) == 0 ? differential::PlayDialogs : differential::PlayControls;
}

int Play(char** words) {
    std::FILE* trace = std::fopen(words[1], "wb");
    if (trace == nullptr) return Fail("the trace cannot be written");
    test_support::StartSystem();
    SetCursorPos(1000, 740);
    for (const differential::Scenario& scenario : differential::ReadScenarios(words[0])) {
        test_support::SetRunningTestName(scenario.name);
        std::fprintf(trace, "scenario %s\n", scenario.name.c_str());
        // A crash leaves what led to it.
        std::fflush(trace);
        const test_support::HardLimit limit(kLimitOfAScenario);
        PlayerOf(scenario)(trace, scenario);
        std::fputs("end\n", trace);
    }
    test_support::StopSystem();
    std::fclose(trace);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 8 && std::strcmp(argv[1], "generate") == 0) return Generate(argv + 2);
    if (argc == 4 && std::strcmp(argv[1], "play") == 0) return Play(argv + 2);
    return Fail("generate controls|dialogs BASE FIRST COUNT ACTIONS FILE, or play FILE TRACE");
}
