// Two ways of doing the same, timed in turn in one run: the ratio of each round is free of what
// else the machine is doing, and the median of the rounds is the figure.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

struct PairedTiming {
    double dOurs;  // medians, in milliseconds
    double dPeers;
    double dRatio;  // median of the rounds' ratios
};

inline double Median(std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

template <class Ours, class Peer>
PairedTiming TimeInTurn(int nRounds, Ours ours, Peer peer) {
    using Clock = std::chrono::steady_clock;
    const auto time = [](auto& work) {
        const auto start = Clock::now();
        work();
        return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
    };
    time(peer);
    time(ours);
    std::vector<double> vOurs, vPeers, vRatios;
    for (int i = 0; i < nRounds; ++i) {
        vPeers.push_back(time(peer));
        vOurs.push_back(time(ours));
        vRatios.push_back(vOurs.back() / vPeers.back());
    }
    return {Median(vOurs), Median(vPeers), Median(vRatios)};
}

// "name ratio target ok", with the two times behind.
inline bool PrintTiming(const char* szName, const PairedTiming& timing, double dTarget) {
    const bool bGood = timing.dRatio <= dTarget;
    std::printf("%-52s %6.2f %6.2f  %s  (%.3f ms against %.3f ms)\n", szName, timing.dRatio,
                dTarget, bGood ? "ok" : "MISSED", timing.dOurs, timing.dPeers);
    std::fflush(stdout);
    return bGood;
}
