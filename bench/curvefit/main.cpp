// Curves and seeds of a million points: evaluation against a loop by hand over the same formula,
// seeds against one evaluation, and what it costs to ask a function for its properties.

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include "CreateCurveFit.h"
#include "PairedTiming.h"

namespace {

constexpr std::size_t kPoints = 1000000;
constexpr int kRounds = 9;
constexpr double kEvaluationTarget = 1.25;
constexpr double kSeedTarget = 15.0;
constexpr double kPropertiesTarget = 0.020;  // ms

using Loop = void (*)(const double* p, const double* x, double* y, std::size_t n);

struct Row {
    const char* szName;
    int32_t eFunction;
    uint32_t uTerms;
    double dFrom, dTo;
    std::vector<double> flat;  // with offset and slope
    Loop pLoop;
};

const Row kRows[] = {
    {"charge-voltage",
     2,
     1,
     -140,
     60,
     {200, -30, 9, 12},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i)
             y[i] = p[0] / (1 + std::exp((p[1] - x[i]) / p[2])) + p[3];
     }},
    {"two sigmoids",
     3,
     2,
     -140,
     60,
     {3, 5, -80, -10, 6, 8, 1},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             y[i] = p[0] / (1 + std::exp((p[2] - x[i]) / p[4])) +
                    p[1] / (1 + std::exp((p[3] - x[i]) / p[5])) + p[6];
         }
     }},
    {"alpha",
     8,
     1,
     0,
     20,
     {50, 2, 1},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             const double u = (x[i] - x[0]) / p[1];
             y[i] = p[0] * u * std::exp(1 - u) + p[2];
         }
     }},
    {"sloping baseline",
     14,
     1,
     0,
     100,
     {9, 20, 2, 0.1},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             const double t = x[i] - x[0];
             y[i] = p[0] * std::exp(-t / p[1]) + p[3] * t + p[2];
         }
     }},
    {"exponential",
     15,
     1,
     0,
     100,
     {9, 20, 2},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) y[i] = p[0] * std::exp(-(x[i] - x[0]) / p[1]) + p[2];
     }},
    {"three exponentials",
     15,
     3,
     0,
     100,
     {9, 6, 3, 2, 8, 40, 2},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             const double t = x[i] - x[0];
             y[i] = p[0] * std::exp(-t / p[3]) + p[1] * std::exp(-t / p[4]) +
                    p[2] * std::exp(-t / p[5]) + p[6];
         }
     }},
    {"gaussian",
     18,
     1,
     -2,
     10,
     {300, 3, 1, 2},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             const double z = (x[i] - p[1]) / p[2];
             y[i] = p[0] / (p[2] * std::sqrt(2 * std::numbers::pi)) * std::exp(-0.5 * z * z) + p[3];
         }
     }},
    {"hill",
     22,
     1,
     0.01,
     300,
     {4, 50, 2.5, 1.4},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i)
             y[i] = p[0] + (p[1] - p[0]) / (1 + std::pow(p[2] / x[i], p[3]));
     }},
    {"lorentzian power",
     27,
     1,
     1,
     1000,
     {5, 60, 0.1},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) {
             const double r = x[i] / p[1];
             y[i] = p[0] / (1 + r * r) + p[2];
         }
     }},
    {"michaelis-menten",
     29,
     1,
     0.1,
     30,
     {70, 3},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) y[i] = p[0] * x[i] / (p[1] + x[i]);
     }},
    {"polynomial of degree 4",
     34,
     4,
     -2,
     2,
     {1, -2, 0.5, 0.25, 3},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i)
             y[i] = (((p[3] * x[i] + p[2]) * x[i] + p[1]) * x[i] + p[0]) * x[i] + p[4];
     }},
    {"straight line",
     35,
     1,
     -2,
     2,
     {1, -2},
     [](const double* p, const double* x, double* y, std::size_t n) {
         for (std::size_t i = 0; i < n; ++i) y[i] = p[0] * x[i] + p[1];
     }},
};

FitOptions OptionsOf(const Row& row) {
    FitOptions options = {};
    options.eFunctionType = row.eFunction;
    options.uFitOrder = row.uTerms;
    options.bAutoZeroShift = 1;
    return options;
}

bool Measure(const Row& row) {
    const FitOptions options = OptionsOf(row);
    std::vector<double> x(kPoints);
    for (std::size_t i = 0; i < kPoints; ++i)
        x[i] = row.dFrom + (row.dTo - row.dFrom) * static_cast<double>(i) / (kPoints - 1);
    std::vector<double> ours(kPoints);
    std::vector<double> peers(kPoints);
    ZXADLG_CCurveFit* pFit = curvefit::CreateCurveFit(&options);
    FitFunctionProps props;
    pFit->GetProperties(&props);
    FitDataStats stats = {};
    stats.uOrder = row.uTerms;
    stats.dFirstX = x[0];
    std::size_t nNext = row.uTerms * props.uParamsPerTerm;
    if (props.bHasOffset) stats.dOffsetSeed = row.flat[nNext++];
    if (props.bHasSlope) stats.dSlopeSeed = row.flat[nNext];
    pFit->SetUpCurve(&stats, row.flat.data());
    const double* arrays[] = {x.data(), ours.data()};
    const auto evaluate = [&] { pFit->Evaluate(arrays, ours.data(), kPoints); };
    const PairedTiming evaluation = TimeInTurn(
        kRounds, evaluate, [&] { row.pLoop(row.flat.data(), x.data(), peers.data(), kPoints); });
    bool bGood = PrintTiming((std::string("evaluation / loop, ") + row.szName).c_str(), evaluation,
                             kEvaluationTarget);
    for (std::size_t i = 0; i < kPoints; i += 997) {
        if (std::fabs(ours[i] - peers[i]) > 1e-9 * (1 + std::fabs(peers[i]))) {
            std::printf("the loops differ at %g: %g and %g\n", x[i], ours[i], peers[i]);
            return false;
        }
    }
    std::vector<double> y = ours;
    std::mt19937 random(1);
    std::normal_distribution<double> noise(0.0,
                                           0.02 * std::fabs(ours.front() - ours.back()) + 1e-3);
    for (double& d : y) d += noise(random);
    const double* data[] = {x.data(), y.data()};
    double seeds[26];
    const PairedTiming seeding = TimeInTurn(
        kRounds, [&] { pFit->ComputeSeeds(data, seeds, 2, kPoints); }, evaluate);
    bGood &= PrintTiming((std::string("seeds / evaluation, ") + row.szName).c_str(), seeding,
                         kSeedTarget);
    pFit->DeleteSelf(1);
    return bGood;
}

bool MeasureProperties() {
    constexpr int kRepeats = 1000;
    FitFunctionProps props;
    const PairedTiming timing = TimeInTurn(
        kRounds,
        [&] {
            for (int i = 0; i < kRepeats; ++i) {
                FitOptions options = {};
                options.eFunctionType = i % 38;
                ZXADLG_CCurveFit* pFit = curvefit::CreateCurveFit(&options);
                pFit->GetProperties(&props);
                pFit->DeleteSelf(1);
            }
        },
        [] {});
    const double dEach = timing.dOurs / kRepeats;
    const bool bGood = dEach <= kPropertiesTarget;
    std::printf("properties, object made and destroyed: %.4f ms, at most %.4f ms  %s\n", dEach,
                kPropertiesTarget, bGood ? "ok" : "MISSED");
    return bGood;
}

}  // namespace

int main() {
    bool bGood = MeasureProperties();
    for (const Row& row : kRows) bGood &= Measure(row);
    return bGood ? 0 : 1;
}
