#include "Timing.h"

#include <algorithm>
#include <chrono>
#include <cstdio>

namespace {

bool s_bAllMet = true;
volatile double s_dSink = 0;

void PrintRow(const std::string& sName, double dValue, double dTarget, bool bMet) {
    s_bAllMet = s_bAllMet && bMet;
    std::printf("%-52s %9.3f %9.2f  %s\n", sName.c_str(), dValue, dTarget, bMet ? "ok" : "MISSED");
}

}  // namespace

std::vector<double> Medians(int nRounds, const std::vector<std::function<void()>>& works) {
    using Clock = std::chrono::steady_clock;
    std::vector<std::vector<double>> times(works.size());
    for (int nRound = 0; nRound < nRounds; ++nRound) {
        for (std::size_t i = 0; i < works.size(); ++i) {
            const auto start = Clock::now();
            works[i]();
            times[i].push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& list : times) {
        std::sort(list.begin(), list.end());
        medians.push_back(list[list.size() / 2]);
    }
    return medians;
}

void PrintRatio(const std::string& sName, double dRatio, double dTarget) {
    PrintRow(sName, dRatio, dTarget, dRatio <= dTarget);
}

void PrintAtLeast(const std::string& sName, double dValue, double dTarget) {
    PrintRow(sName + " (at least)", dValue, dTarget, dValue >= dTarget);
}

void PrintFigure(const std::string& sName, double dValue, const char* szUnit) {
    std::printf("%-52s %9.3f %9s\n", sName.c_str(), dValue, szUnit);
}

bool AllTargetsMet() {
    return s_bAllMet;
}

void Consume(double dValue) {
    s_dSink = s_dSink + dValue;
}
