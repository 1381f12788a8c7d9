// Equations against muParser and against the same operations written by hand: one table, each row a
// ratio of processor times of one run, with its target. In each round the competitors take turns
// and give their ratios; a row is the median over the rounds, so that what else the machine does
// meets all of them.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <vector>

#include "Competitors.h"

namespace {

constexpr int kPoints = 1000000;
constexpr int kRounds = 15;
constexpr int kCompileRounds = 51;
constexpr int kCompiles = 20;  // in each round

double Seconds(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

void Repeat(const std::function<void()>& work) {
    for (int i = 0; i < kCompiles; ++i) work();
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// The times of works that took turns.
class Times {
  public:
    Times(int nRounds, const std::vector<std::function<void()>>& works) : m_Times(works.size()) {
        for (int nRound = 0; nRound < nRounds; ++nRound) {
            for (std::size_t i = 0; i < works.size(); ++i) m_Times[i].push_back(Seconds(works[i]));
        }
    }
    double Of(int nWork) const { return Median(m_Times[nWork]); }
    double Ratio(int nWork, int nPeer) const {
        std::vector<double> ratios;
        for (std::size_t i = 0; i < m_Times[nWork].size(); ++i) {
            ratios.push_back(m_Times[nWork][i] / m_Times[nPeer][i]);
        }
        return Median(ratios);
    }

  private:
    std::vector<std::vector<double>> m_Times;
};

bool g_bAllGood = true;

void PrintRow(const char* pszEquation, const char* pszWhat, double dRatio, double dTarget) {
    const bool bGood = dRatio <= dTarget;
    g_bAllGood = g_bAllGood && bGood;
    std::printf("%-24s %-32s %6.3f  %5.2f  %s\n", pszEquation, pszWhat, dRatio, dTarget,
                bGood ? "ok" : "MISSED");
}

// A ratio of times says nothing when the results are not those of the same operations.
bool SameResults(const std::vector<double>& a, const std::vector<double>& b) {
    return std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

void Measure(const Equation& equation) {
    std::vector<double> x(kPoints);
    for (int i = 0; i < kPoints; ++i) x[i] = 0.01 + 2.0 * i / kPoints;
    std::vector<double> points(kPoints), block(kPoints), hand(kPoints), peer(kPoints),
        bulk(kPoints);
    const Parameters parameters = BenchmarkParameters();
    OurCompetitor ours(equation);
    MuParserCompetitor theirs(equation);
    MuParserCompetitor theirsBulk(equation);

    const Times t(kRounds,
                  {[&] { ours.EvaluatePoints(x.data(), points.data(), kPoints); },
                   [&] { ours.EvaluateBlock(x.data(), block.data(), kPoints); },
                   [&] { equation.pHandWritten(parameters, x.data(), hand.data(), kPoints); },
                   [&] { theirs.EvaluatePoints(x.data(), peer.data(), kPoints); },
                   [&] { theirsBulk.EvaluateBulk(x.data(), bulk.data(), kPoints); }});
    const Times c(kCompileRounds,
                  {[&] { Repeat([&] { OurCompetitor::Compile(equation); }); },
                   [&] { Repeat([&] { MuParserCompetitor::Compile(equation); }); }});

    std::printf(
        "%-24s points %.1f, block %.1f, by hand %.1f, muParser %.1f, its bulk %.1f ns a point; "
        "compile %.2f, muParser %.2f us\n",
        equation.pszName, t.Of(0) * 1e9 / kPoints, t.Of(1) * 1e9 / kPoints, t.Of(2) * 1e9 / kPoints,
        t.Of(3) * 1e9 / kPoints, t.Of(4) * 1e9 / kPoints, c.Of(0) * 1e6 / kCompiles,
        c.Of(1) * 1e6 / kCompiles);
    PrintRow(equation.pszName, "points / muParser", t.Ratio(0, 3), 0.85);
    PrintRow(equation.pszName, "block / by hand", t.Ratio(1, 2), 1.25);
    if (equation.bBulkTarget) {
        PrintRow(equation.pszName, "block / muParser bulk", t.Ratio(1, 4), 0.50);
    }
    PrintRow(equation.pszName, "compile / muParser", c.Ratio(0, 1), 0.10);
    if (!SameResults(points, block) || !SameResults(points, hand)) {
        g_bAllGood = false;
        std::printf("%-24s RESULTS DIFFER\n", equation.pszName);
    }
}

}  // namespace

int main() {
    std::printf("%-24s %-32s %6s  %5s\n", "name", "what", "ratio", "target");
    for (const Equation& equation : kEquations) Measure(equation);
    return g_bAllGood ? 0 : 1;
}
