// Frequency responses, out of the filtered impulse, and traces with both ends.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <vector>

#include "FilterFixture.h"
#include "Truth.h"

namespace {

using namespace filter_test;
using Complex = std::complex<double>;

struct ImpulseResponse {
    std::vector<double> values;
    std::size_t nImpulse;  // where the impulse was
};

// Far enough from both ends that nothing is left there.
ImpulseResponse ImpulseResponseOf(const FilterOptions& options) {
    const Filter filter = Make(options);
    // A wide notch has a slow pole beside the fast one.
    const std::size_t nReach =
        options.notch.m_bIsSelected ? 40000 : 6 * std::size_t{filter->GetMinimumPoints()} + 100;
    ImpulseResponse response = {std::vector<double>(2 * nReach + 1, 0.0), nReach};
    response.values[nReach] = 1.0;
    EXPECT_EQ(filter->FilterArray(response.values.data(),
                                  static_cast<std::uint32_t>(response.values.size())),
              1)
        << ErrorOf(*filter);
    return response;
}

// sum h[n] exp(-2 pi i f n), n counted from the impulse. The phasor is made anew every 64 points.
Complex GainAt(const ImpulseResponse& response, double f) {
    Complex sum = 0.0;
    const double dTurn = 2.0 * std::numbers::pi;
    const Complex step = std::polar(1.0, -dTurn * f);
    Complex phasor = 1.0;
    for (std::size_t i = 0; i < response.values.size(); ++i) {
        if (i % 64 == 0) {
            const double n = static_cast<double>(i) - static_cast<double>(response.nImpulse);
            phasor = std::polar(1.0, -dTurn * std::remainder(f * n, 1.0));
        }
        sum += response.values[i] * phasor;
        phasor *= step;
    }
    return sum;
}

TEST(Response, IsThatOfAnIndependentComputation) {
    double dWorst = 0.0;
    for (const TrueResponse& truth : GetTruth().responses) {
        SCOPED_TRACE(truth.sRecord);
        const ImpulseResponse response = ImpulseResponseOf(truth.options);
        for (const ResponsePoint& point : truth.points) {
            const double dError = std::abs(GainAt(response, point.dFraction) - point.gain);
            EXPECT_LT(dError, 1e-9) << point.dFraction;
            dWorst = std::max(dWorst, dError);
        }
    }
    EXPECT_EQ(GetTruth().responses.size(), 48u);
    RecordProperty("worst", std::to_string(dWorst * 1e12) + "e-12");
}

TEST(Trace, IsThatOfAnIndependentComputationUpToItsEnds) {
    const Truth& truth = GetTruth();
    ASSERT_EQ(truth.data.size(), 240u);
    for (const TrueTrace& trace : truth.traces) {
        SCOPED_TRACE(trace.sRecord);
        const Filter filter = Make(trace.options);
        std::vector<double> y = truth.data;
        ASSERT_EQ(filter->FilterArray(y.data(), 240), 1) << ErrorOf(*filter);
        double dWorst = 0.0;
        for (std::size_t i = 0; i < y.size(); ++i)
            dWorst = std::max(dWorst, std::fabs(y[i] - trace.values[i]));
        EXPECT_LT(dWorst, 1e-9);
    }
    EXPECT_EQ(truth.traces.size(), 27u);
}

}  // namespace
