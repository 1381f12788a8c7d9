// Seeds by moments, for distributions without an amplitude.

#include <algorithm>
#include <cmath>
#include <limits>

#include "seeds/Dictionaries.h"
#include "seeds/ModelRefinement.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

// What stands out of the noise.
constexpr double kPeakShare = 0.08;
constexpr int kSteps = 12;

struct Moments {
    double dMean = 0.0;
    double dVariance = 0.0;
};

// Each point counts with its value times `spacing`; what is below `dLeast` of the peak does not.
Moments MomentsOf(const ReducedData& data, const std::vector<double>& spacing, double dLeast) {
    const double dPeak = *std::max_element(data.y.begin(), data.y.end());
    double dSum = 0.0;
    Moments moments;
    std::vector<double> share(data.Size());
    for (std::size_t i = 0; i < data.Size(); ++i) {
        if (data.y[i] > dLeast * dPeak) share[i] = data.y[i] * spacing[i];
        dSum += share[i];
        moments.dMean += share[i] * data.x[i];
    }
    moments.dMean /= dSum;
    for (std::size_t i = 0; i < data.Size(); ++i) {
        const double d = data.x[i] - moments.dMean;
        moments.dVariance += share[i] / dSum * d * d;
    }
    return moments;
}

// The data as a model's, with y in its own units: these functions have no scale.
struct UnscaledData {
    explicit UnscaledData(const ReducedData& data) : y(data.y) {
        for (double& d : y) d *= data.dScaleY;
        model.x = {data.x.data()};
        model.y = y.data();
        model.weight = data.weight.data();
        model.n = data.Size();
    }
    UnscaledData(const UnscaledData&) = delete;
    std::vector<double> y;
    ModelData model;
};

}  // namespace

bool SeedBeta(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const std::size_t n = data.Size();
    std::vector<double> spacing(n);
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t nBefore = i == 0 ? 0 : i - 1;
        const std::size_t nBehind = i + 1 == n ? i : i + 1;
        spacing[i] = (data.x[nBehind] - data.x[nBefore]) /
                     std::max<double>(1.0, static_cast<double>(nBehind - nBefore));
    }
    const Moments moments = MomentsOf(data, spacing, kPeakShare);
    const double m = moments.dMean;
    double dBoth = m * (1.0 - m) / moments.dVariance - 1.0;
    if (!(dBoth > 0.01) || !std::isfinite(dBoth)) dBoth = 2.0;
    std::vector<double> params = {std::max(m * dBoth, 0.01), std::max((1.0 - m) * dBoth, 0.01)};
    const UnscaledData unscaled(data);
    RefineModel(task, unscaled.model, params, kSteps);
    std::copy(params.begin(), params.end(), seeds);
    return true;
}

bool SeedBinomial(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const std::vector<double> spacing(data.Size(), 1.0);
    const double dMean = std::max(MomentsOf(data, spacing, kPeakShare).dMean, 0.01);
    const UnscaledData unscaled(data);
    const double dFewest = std::max(1.0, std::ceil(dMean));
    const double dMost = std::max(4.0 * data.Last(), dFewest + 1.0);
    // Each number where there are few, a few hundred where there are many.
    constexpr double kMostTried = 400.0;
    const double dStep = std::max(1.0, std::floor((dMost - dFewest) / kMostTried));
    double dBest = std::numeric_limits<double>::infinity();
    std::vector<double> params = {dFewest, 0.5};
    for (double n = dFewest; n <= dMost; n += dStep) {
        const double p = dMean / n;
        if (p >= 1.0) continue;
        const double dSquares = SquaresOfModel(task, unscaled.model, {n, p});
        if (dSquares < dBest) {
            dBest = dSquares;
            params = {n, p};
        }
    }
    // The number of trials stays whole unless the data say otherwise.
    std::vector<double> refined = params;
    const double dRefined = RefineModel(task, unscaled.model, refined, kSteps);
    if (dRefined < 0.9 * dBest && refined[1] < 1.0) params = refined;
    std::copy(params.begin(), params.end(), seeds);
    return true;
}

bool SeedPoisson(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const UnscaledData unscaled(data);
    // Under noise the least squares over many means are safer than the mean of the data.
    double dBest = std::numeric_limits<double>::infinity();
    std::vector<double> params = {1.0};
    for (const double dMean : Geometric(0.05, std::max(data.Last(), 0.0) + 1.0, 60)) {
        const double dSquares = SquaresOfModel(task, unscaled.model, {dMean});
        if (dSquares < dBest) {
            dBest = dSquares;
            params[0] = dMean;
        }
    }
    RefineModel(task, unscaled.model, params, kSteps);
    seeds[0] = params[0];
    return true;
}

}  // namespace curvefit
