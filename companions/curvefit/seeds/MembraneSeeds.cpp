// Seeds of functions that a transformation of y makes linear: potentials of several ions, and the
// time constant of a voltage-dependent relaxation.

#include <algorithm>
#include <cmath>
#include <limits>

#include "seeds/Dictionaries.h"
#include "seeds/ModelRefinement.h"
#include "seeds/SeedMethods.h"

namespace curvefit {

namespace {

constexpr int32_t kConstantFieldFunction = 19;
constexpr int kSteps = 12;
// A ratio of permeabilities that came out below zero.
constexpr double kSmallRatio = 0.01;
// Points that a refinement looks at.
constexpr std::size_t kRefinedPoints = 4096;

// Two unknowns by sums; false where the rows do not tell them apart.
struct TwoUnknowns {
    double aa = 0.0, ab = 0.0, bb = 0.0, ar = 0.0, br = 0.0;
    void Add(double a, double b, double r) {
        aa += a * a;
        ab += a * b;
        bb += b * b;
        ar += a * r;
        br += b * r;
    }
    bool Solve(double* pFirst, double* pSecond) const {
        const double dDeterminant = aa * bb - ab * ab;
        *pFirst = (ar * bb - br * ab) / dDeterminant;
        *pSecond = (br * aa - ar * ab) / dDeterminant;
        return std::isfinite(*pFirst) && std::isfinite(*pSecond);
    }
};

}  // namespace

bool SeedConstantField(SeedTask& task, double* seeds) {
    const std::size_t n = task.Points();
    const double dThermal = task.Options().dThermalMv;
    const bool bMonovalent = task.Row().eFunction == kConstantFieldFunction;
    TwoUnknowns rows;
    for (std::size_t i = 0; i < n; ++i) {
        double c[6];
        for (std::size_t k = 0; k < 6; ++k) c[k] = task.Array(k)[i];
        const double v = std::clamp(task.Array(6)[i] / dThermal, -300.0, 300.0);
        if (bMonovalent) {
            const double u = std::exp(v);
            const double w = 1.0 / (c[0] + c[2] + c[5]);
            rows.Add(w * (u * c[3] - c[2]), w * (u * c[4] - c[5]), w * (c[0] - u * c[1]));
        } else {
            const double u = std::exp(-v);
            const double w = 1.0 / ((c[1] + c[3]) * (1.0 + u));
            rows.Add(w * (c[3] - c[2] * u) * (1.0 + u), 4.0 * w * (c[5] - c[4] * u * u),
                     -w * (c[1] - c[0] * u) * (1.0 + u));
        }
    }
    std::vector<double> params(2);
    if (!rows.Solve(&params[0], &params[1])) params = {kSmallRatio, kSmallRatio};
    for (double& d : params) {
        if (!(d > 0.0)) d = kSmallRatio;
    }
    // Long records are refined on points spread over them.
    const std::size_t nStride = (n + kRefinedPoints - 1) / kRefinedPoints;
    std::vector<std::vector<double>> picked(7);
    ModelData data;
    for (std::size_t k = 0; k < 7; ++k) {
        for (std::size_t i = 0; i < n; i += nStride) picked[k].push_back(task.Array(k)[i]);
        if (k < 6) data.x.push_back(picked[k].data());
    }
    data.y = picked[6].data();
    data.n = picked[6].size();
    RefineModel(task, data, params, kSteps);
    // A ratio that was held at zero is no start for a search: nothing moves with it.
    for (double& d : params) d = std::max(d, 0.1 * kSmallRatio);
    std::copy(params.begin(), params.end(), seeds);
    return true;
}

bool SeedRelaxationTime(SeedTask& task, double* seeds) {
    const ReducedData& data = task.Data();
    const double dPeak = *std::max_element(data.y.begin(), data.y.end());
    if (!(dPeak > 0.0)) return false;
    ModelData model;
    model.x = {data.x.data()};
    model.y = data.y.data();
    model.weight = data.weight.data();
    model.n = data.Size();
    double dBest = std::numeric_limits<double>::infinity();
    std::vector<double> best;
    const std::vector<double> widths = Geometric(data.Span() / 30.0, 1.5 * data.Span(), 14);
    for (const double dAlphaWidth : widths) {
        for (const double dBetaWidth : widths) {
            // Rows of 1/y weighted by y^2: their differences are those of y, nearly. The exponents
            // are taken from their largest value on, which the rates take up.
            const double dTop = std::max(std::fabs(data.First()), std::fabs(data.Last()));
            const double dAlphaTop = dTop / dAlphaWidth;
            const double dBetaTop = dTop / dBetaWidth;
            TwoUnknowns rows;
            for (std::size_t i = 0; i < data.Size(); ++i) {
                const double y = data.y[i] / dPeak;
                if (y < 0.02) continue;
                const double w = std::sqrt(data.weight[i]) * y * y;
                rows.Add(w * std::exp(data.x[i] / dAlphaWidth - dAlphaTop),
                         w * std::exp(-data.x[i] / dBetaWidth - dBetaTop), w / y);
            }
            double dAlpha = 0.0;
            double dBeta = 0.0;
            if (!rows.Solve(&dAlpha, &dBeta) || dAlpha <= 0.0 || dBeta <= 0.0) continue;
            const std::vector<double> params = {dAlpha * std::exp(-dAlphaTop) / dPeak, dAlphaWidth,
                                                dBeta * std::exp(-dBetaTop) / dPeak, dBetaWidth};
            const double dSquares = SquaresOfModel(task, model, params);
            if (dSquares < dBest) {
                dBest = dSquares;
                best = params;
            }
        }
    }
    if (best.empty()) {
        // No bell: equal rates that give the peak in the middle.
        const double dMiddle = 0.5 * (data.First() + data.Last());
        const double dWidth = 0.25 * data.Span();
        best = {0.5 / dPeak * std::exp(-dMiddle / dWidth), dWidth,
                0.5 / dPeak * std::exp(dMiddle / dWidth), dWidth};
    }
    RefineModel(task, model, best, kSteps);
    // Nor is a width beyond all data: its rate is the same everywhere.
    constexpr double kWidestInSpans = 100.0;
    for (const std::size_t k : {1u, 3u}) best[k] = std::min(best[k], kWidestInSpans * data.Span());
    seeds[0] = best[0] / data.dScaleY;
    seeds[1] = best[1] * data.dScaleX;
    seeds[2] = best[2] / data.dScaleY;
    seeds[3] = best[3] * data.dScaleX;
    return true;
}

}  // namespace curvefit
