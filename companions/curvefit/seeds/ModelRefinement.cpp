#include "seeds/ModelRefinement.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace curvefit {

namespace {

Curve CurveOf(const SeedTask& task, const double* params) {
    Curve curve;
    curve.pSettings = &task.Options();
    curve.pGrid = params;
    return curve;
}

}  // namespace

double RefineModel(const SeedTask& task, const ModelData& data, std::vector<double>& params,
                   int nSteps) {
    SearchTask search;
    search.nRows = data.n;
    search.mend = [&](const double* before, double* after) {
        for (std::size_t k = 0; k < params.size(); ++k)
            after[k] = std::max(after[k], 0.1 * before[k]);
    };
    std::vector<double> y(data.n);
    search.evaluate = [&](const double* p, double* differences, Columns* pColumns) {
        const Curve curve = CurveOf(task, p);
        task.Row().pEvaluate(curve, data.x.data(), data.n, y.data());
        if (pColumns != nullptr)
            task.Row().pGradient(curve, data.x.data(), data.n, pColumns->At(0));
        for (std::size_t i = 0; i < data.n; ++i) {
            const double dRoot = data.weight == nullptr ? 1.0 : std::sqrt(data.weight[i]);
            differences[i] = dRoot * (data.y[i] - y[i]);
            for (std::size_t k = 0; pColumns != nullptr && k < params.size(); ++k)
                pColumns->At(k)[i] *= dRoot;
        }
        return true;
    };
    return Refine(search, params, nSteps);
}

double SquaresOfModel(const SeedTask& task, const ModelData& data,
                      const std::vector<double>& params) {
    std::vector<double> y(data.n);
    task.Row().pEvaluate(CurveOf(task, params.data()), data.x.data(), data.n, y.data());
    double dSum = 0.0;
    for (std::size_t i = 0; i < data.n; ++i) {
        const double d = data.y[i] - y[i];
        dSum += (data.weight == nullptr ? 1.0 : data.weight[i]) * d * d;
    }
    return std::isfinite(dSum) ? dSum : std::numeric_limits<double>::infinity();
}

}  // namespace curvefit
