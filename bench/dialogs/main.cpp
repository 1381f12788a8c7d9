// What the framework costs over the bare platform: one table, each row the median of rounds in
// which the competitors take turns, so that what else the machine does meets both. Pin the program
// to one core.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

#include "BareDialog.h"
#include "FrameworkDialog.h"
#include "fixtures/system.h"

// Crash reports of the test start-up name the running test; here there is none.
const char* test_support::RunningTestName() {
    return "benchmark";
}

namespace {

constexpr int kRounds = 41;
constexpr int kBurst = 10000;

double Seconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double Median(std::vector<double> times) {
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

void MeasureOpening() {
    std::vector<double> bare, framework, ratios;
    OpenAndCloseBare();
    OpenAndCloseFramework();
    for (int i = 0; i < kRounds; ++i) {
        bare.push_back(Seconds(OpenAndCloseBare));
        framework.push_back(Seconds(OpenAndCloseFramework));
        ratios.push_back(framework.back() / bare.back());
    }
    std::printf("open and close 40 controls, bare        %9.3f ms\n", Median(bare) * 1e3);
    std::printf("open and close 40 controls, framework   %9.3f ms\n", Median(framework) * 1e3);
    std::printf(
        "  ratio of medians                      %9.3f     (at most 1.15 on the real system)\n",
        Median(framework) / Median(bare));
    std::printf("  median of ratios                      %9.3f\n", Median(ratios));
}

void MeasureBurst() {
    OpenFields fields;
    int nUpdates = 0;
    const double dBurst = Seconds([&] { nUpdates = fields.Burst(kBurst); });
    std::printf("%d requests run the update %d time(s)   %9.3f us each\n", kBurst, nUpdates,
                dBurst / kBurst * 1e6);
}

}  // namespace

int main() {
    test_support::StartSystem();
    MeasureOpening();
    MeasureBurst();
    test_support::StopSystem();
    return 0;
}
