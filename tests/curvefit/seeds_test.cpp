// Seeds from synthetic data: the curve of the seeds is near the curve that the data were made from,
// under noise, an offset, points in another order, uneven spacing, an outlier, points before the
// event.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

#include "CurveFitFixture.h"

namespace {

using namespace curvefit_test;
using Arrays = std::vector<std::vector<double>>;

struct Sample {
    FitOptions options;
    std::vector<double> flat;
    Arrays x;
};

std::vector<double> Even(double dFrom, double dTo, std::size_t n) {
    std::vector<double> x(n);
    for (std::size_t i = 0; i < n; ++i)
        x[i] = dFrom + (dTo - dFrom) * static_cast<double>(i) / static_cast<double>(n - 1);
    return x;
}

std::vector<double> Decades(double dFrom, double dTo, std::size_t n) {
    std::vector<double> x = Even(std::log(dFrom), std::log(dTo), n);
    for (double& d : x) d = std::exp(d);
    return x;
}

Sample Of(int32_t eFunction, uint32_t uTerms, std::vector<double> flat, Arrays x) {
    return {OptionsFor(eFunction, uTerms), std::move(flat), std::move(x)};
}

Arrays Ions(std::vector<double> potassium, double dCalcium) {
    const std::size_t n = potassium.size();
    return {std::move(potassium),          std::vector<double>(n, 140.0),
            std::vector<double>(n, 145.0), std::vector<double>(n, 12.0),
            std::vector<double>(n, 120.0), std::vector<double>(n, dCalcium)};
}

// One realistic record a function, and more terms where it has them.
std::vector<Sample> Samples() {
    const std::vector<double> time = Even(0.0, 100.0, 500);
    const std::vector<double> volts = Even(-140.0, 80.0, 45);
    const std::vector<double> doses = Decades(0.02, 300.0, 14);
    const std::vector<double> hertz = Even(2.0, 1024.0, 512);
    return {
        Of(0, 1, {3.0, 5.0}, {Even(0.01, 0.99, 50)}),
        Of(1, 1, {9.0, 0.4}, {Even(0.0, 13.0, 14)}),
        Of(2, 1, {200.0, -35.0, 9.0, 12.0}, {volts}),
        Of(3, 1, {-7.0, -20.0, 8.0, 1.5}, {volts}),
        Of(3, 2, {4.0, 6.0, -80.0, 10.0, 6.0, 8.0, 1.5}, {volts}),
        Of(3, 3, {4.0, 6.0, 5.0, -90.0, -30.0, 30.0, 5.0, 6.0, 7.0, -1.5}, {Even(-160, 100, 131)}),
        Of(4, 1, {3.0, -30.0, -7.0}, {volts}),
        Of(5, 1, {5.0, -40.0, 3.0, 0.5}, {volts}),
        Of(6, 1, {-5.0, -40.0, 3.0, 0.5}, {volts}),
        Of(7, 1, {-5.0, 0.6, 0.1, 5.0, 0.25}, {Even(0.0, 20.0, 400)}),
        Of(8, 1, {80.0, 2.5, -4.0}, {Even(0.0, 25.0, 400)}),
        Of(9, 1, {50.0, 25.0, 1.0}, {time}),
        Of(9, 2, {30.0, 20.0, 5.0, 30.0, 1.0}, {time}),
        Of(10, 1, {40.0, 20.0}, {Even(-1.5, 3.5, 51)}),
        Of(10, 3, {40.0, 60.0, 30.0, 0.6, 9.0, 120.0}, {Even(-1.5, 3.5, 51)}),
        Of(11, 1, {9.0, 12.0, 1.0}, {time}),
        Of(11, 2, {5.0, 7.0, 4.0, 22.0, 1.0}, {time}),
        Of(12, 1, {300.0, 22.0, 0.4}, {Even(0.1, 100.1, 500)}),
        Of(12, 2, {200.0, 300.0, 4.0, 28.0, 0.4}, {Even(0.1, 100.1, 500)}),
        Of(13, 1, {-90.0, 1.2, 14.0, 3.0}, {time}),
        Of(14, 1, {9.0, 16.0, 2.0, 0.03}, {time}),
        Of(14, 2, {9.0, 6.0, 3.0, 20.0, 2.0, -0.02}, {time}),
        Of(15, 1, {-9.0, 22.0, 2.0}, {time}),
        Of(15, 2, {9.0, 6.0, 4.0, 25.0, -2.0}, {time}),
        Of(15, 3, {9.0, 6.0, 7.0, 1.5, 7.0, 35.0, -2.0}, {Even(0.0, 100.0, 1000)}),
        Of(16, 1, {9.0, 0.05, 2.0}, {time}),
        Of(16, 2, {9.0, 6.0, 0.25, 0.04, 2.0}, {time}),
        Of(17, 1, {1.0, 0.05, 0.1}, {time}),
        Of(17, 2, {0.6, 0.4, 0.25, 0.04, 0.1}, {time}),
        Of(18, 1, {300.0, 3.0, 0.8, 2.0}, {Even(-2.0, 10.0, 121)}),
        Of(18, 2, {300.0, 500.0, 1.5, 6.0, 0.8, 1.0, 2.0}, {Even(-2.0, 10.0, 121)}),
        Of(18, 3, {300.0, 500.0, 400.0, 0.5, 3.5, 6.5, 0.5, 0.6, 0.7, 2.0},
           {Even(-2.0, 10.0, 121)}),
        Of(19, 1, {0.05, 0.3}, Ions(Decades(1.0, 120.0, 12), 8.0)),
        Of(20, 1, {0.6, 2.0}, Ions(Decades(1.0, 120.0, 15), 1e-3)),
        Of(21, 1, {30.0, 2.5, 1.6}, {doses}),
        Of(22, 1, {4.0, 50.0, 2.5, -1.4}, {doses}),
        Of(22, 1, {-4.0, 50.0, 2.5, 1.4}, {doses}),
        Of(23, 1, {-30.0, 2.5, 1.6, 3.0}, {doses}),
        Of(24, 1, {40.0, 2.0}, {Even(0.1, 3.0, 12)}),
        Of(25, 1, {500.0, 20.0, 0.12}, {Even(0.0, 70.0, 40)}),
        Of(26, 1, {120.0, 1.5, 1.2, 4.0}, {Even(-10.0, 10.0, 101)}),
        Of(27, 1, {5.0, 60.0, 0.05}, {hertz}),
        Of(27, 2, {3.0, 5.0, 140.0, 20.0, 0.05}, {hertz}),
        Of(28, 1, {5.0, 0.0025, 0.05}, {hertz}),
        Of(28, 2, {5.0, 3.0, 0.0012, 0.008, 0.05}, {hertz}),
        Of(29, 1, {70.0, 3.0}, {Even(0.3, 20.0, 14)}),
        Of(30, 1, {130.0}, {Decades(1.0, 140.0, 8)}),
        Of(31, 1, {1.5, 400.0, 12.0}, {Even(0.0, 500.0, 40)}),
        Of(32, 1, {0.006, -0.5, 12.0}, {Even(-100.0, 60.0, 33)}),
        Of(33, 1, {4.5}, {Even(0.0, 20.0, 21)}),
        Of(34, 1, {2.0, -3.0}, {Even(-4.0, 9.0, 60)}),
        Of(34, 6, {2.0, -0.3, 0.05, -0.02, 0.001, 0.0004, 5.0}, {Even(-4.0, 6.0, 60)}),
        Of(35, 1, {2.0, -3.0}, {Even(-4.0, 9.0, 60)}),
        Of(36, 1, {-2.0}, {Even(-4.0, 9.0, 60)}),
        Of(37, 1, {0.4, 25.0, 0.05, 18.0}, {Even(-120.0, 60.0, 19)}),
    };
}

std::string NameOf(const Sample& sample) {
    return "function " + std::to_string(sample.options.eFunctionType) + ", terms " +
           std::to_string(sample.options.uFitOrder);
}

double RangeOf(const std::vector<double>& y) {
    const auto [low, high] = std::minmax_element(y.begin(), y.end());
    return *high - *low;
}

double RootMeanSquare(const std::vector<double>& a, const std::vector<double>& b) {
    double dSum = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i) dSum += (a[i] - b[i]) * (a[i] - b[i]);
    return std::sqrt(dSum / static_cast<double>(a.size()));
}

// How far the curve of the seeds is from the true one, in ranges of it.
double DistanceOf(const Sample& sample, const std::vector<double>& clean,
                  const std::vector<double>& data) {
    const Seeds seeds = SeedsFrom(sample.options, sample.x, data);
    EXPECT_TRUE(seeds.bFound) << seeds.sError;
    if (!seeds.bFound) return 1e9;
    for (const double d : seeds.values) EXPECT_TRUE(std::isfinite(d));
    return RootMeanSquare(CurveAt(sample.options, seeds.values, sample.x), clean) / RangeOf(clean);
}

std::vector<double> Noisy(const std::vector<double>& clean, double dNoise, unsigned uSeed) {
    std::mt19937 random(uSeed);
    std::normal_distribution<double> normal(0.0, dNoise * RangeOf(clean));
    std::vector<double> y = clean;
    for (double& d : y) d += normal(random);
    return y;
}

TEST(Seeds, FindWhatCleanDataWereMadeFrom) {
    for (const Sample& sample : Samples()) {
        SCOPED_TRACE(NameOf(sample));
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        EXPECT_LE(DistanceOf(sample, clean, clean), 0.004);
    }
}

TEST(Seeds, StandFivePercentNoise) {
    for (const Sample& sample : Samples()) {
        SCOPED_TRACE(NameOf(sample));
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        // What least squares leave of the noise: one part in parameters over points, twice over.
        const double dShare =
            static_cast<double>(sample.flat.size()) / static_cast<double>(clean.size());
        for (unsigned uSeed = 1; uSeed <= 3; ++uSeed) {
            const std::vector<double> data = Noisy(clean, 0.05, uSeed);
            EXPECT_LE(DistanceOf(sample, clean, data), 0.1 * std::sqrt(dShare) + 0.005) << uSeed;
        }
    }
}

bool IsMonotonous(const Sample& sample) {
    return sample.x.size() == 1;
}

TEST(Seeds, AreTheSameForReversedAndShuffledPoints) {
    for (const Sample& sample : Samples()) {
        SCOPED_TRACE(NameOf(sample));
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        const std::vector<double> data = Noisy(clean, 0.02, 9);
        const Seeds straight = SeedsFrom(sample.options, sample.x, data);
        std::vector<std::size_t> order(clean.size());
        std::iota(order.begin(), order.end(), std::size_t{0});
        for (const bool bShuffle : {false, true}) {
            std::reverse(order.begin(), order.end());
            if (bShuffle) std::shuffle(order.begin(), order.end(), std::mt19937(5));
            Arrays x = sample.x;
            std::vector<double> y = data;
            for (std::size_t i = 0; i < order.size(); ++i) {
                for (std::size_t k = 0; k < x.size(); ++k) x[k][i] = sample.x[k][order[i]];
                y[i] = data[order[i]];
            }
            const Seeds other = SeedsFrom(sample.options, x, y);
            ASSERT_TRUE(other.bFound) << other.sError;
            for (std::size_t k = 0; k < straight.values.size(); ++k) {
                const double dSize = std::fabs(straight.values[k]) + 1e-6;
                EXPECT_NEAR(other.values[k], straight.values[k], 1e-6 * dSize) << k;
            }
        }
    }
}

TEST(Seeds, StandALargeOffset) {
    for (const Sample& sample : Samples()) {
        const FitFunctionProps props = PropertiesOf(sample.options);
        if (!props.bHasOffset) continue;
        SCOPED_TRACE(NameOf(sample));
        std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        const double dOffset = 50.0 * RangeOf(clean);
        for (double& d : clean) d += dOffset;
        const double dShare =
            static_cast<double>(sample.flat.size()) / static_cast<double>(clean.size());
        EXPECT_LE(DistanceOf(sample, clean, Noisy(clean, 0.02, 3)),
                  0.04 * std::sqrt(dShare) + 0.004);
    }
}

TEST(Seeds, StandUnevenSpacing) {
    for (Sample sample : Samples()) {
        const FitFunctionProps props = PropertiesOf(sample.options);
        if (!IsMonotonous(sample) || props.bIntegralX) continue;
        SCOPED_TRACE(NameOf(sample));
        std::mt19937 random(7);
        std::uniform_real_distribution<double> shift(-0.4, 0.4);
        std::vector<double>& x = sample.x[0];
        const std::vector<double> even = x;
        for (std::size_t i = 1; i + 1 < x.size(); ++i)
            x[i] += shift(random) * (even[i + 1] - even[i]);
        std::sort(x.begin(), x.end());
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        const double dShare =
            static_cast<double>(sample.flat.size()) / static_cast<double>(clean.size());
        EXPECT_LE(DistanceOf(sample, clean, Noisy(clean, 0.02, 3)),
                  0.04 * std::sqrt(dShare) + 0.004);
    }
}

TEST(Seeds, StandASingleOutlier) {
    for (const Sample& sample : Samples()) {
        const FitFunctionProps props = PropertiesOf(sample.options);
        // Of a dozen points one is a twelfth of the evidence; regressions weigh every point.
        if (sample.x[0].size() < 40 || props.bStraightLine || props.bPolynomial ||
            sample.options.eFunctionType == 31 || sample.options.eFunctionType == 36 ||
            sample.options.eFunctionType == 37) {
            continue;
        }
        SCOPED_TRACE(NameOf(sample));
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        std::vector<double> data = Noisy(clean, 0.02, 4);
        data[data.size() / 3] += 3.0 * RangeOf(clean);
        EXPECT_LE(DistanceOf(sample, clean, data), 0.03);
    }
}

TEST(Seeds, StandPointsBeforeTheEvent) {
    for (Sample sample : Samples()) {
        const int32_t e = sample.options.eFunctionType;
        if (e != 7 && e != 8 && e != 11 && e != 13) continue;
        SCOPED_TRACE(NameOf(sample));
        const std::vector<double> clean = CurveAt(sample.options, sample.flat, sample.x);
        std::vector<double> data = Noisy(clean, 0.02, 4);
        const std::size_t nLeading = data.size() / 25;
        const double dStep = sample.x[0][1] - sample.x[0][0];
        data.insert(data.begin(), nLeading, clean[0]);
        for (std::size_t i = 0; i < nLeading; ++i)
            sample.x[0].push_back(sample.x[0].back() + dStep);
        std::vector<double> whole = clean;
        whole.insert(whole.begin(), nLeading, clean[0]);
        // The function cannot follow the delay; its best is a few percent away.
        EXPECT_LE(DistanceOf(sample, whole, data), 0.12);
    }
}

TEST(Seeds, ComeOrderedAndWithTheUsualSigns) {
    const auto seeds = [](const Sample& sample) {
        return SeedsFrom(sample.options, sample.x, CurveAt(sample.options, sample.flat, sample.x))
            .values;
    };
    for (const Sample& sample : Samples()) {
        SCOPED_TRACE(NameOf(sample));
        const FitFunctionProps props = PropertiesOf(sample.options);
        const uint32_t n = props.bMultiTerm ? sample.options.uFitOrder : 1;
        const std::vector<double> found = seeds(sample);
        const int32_t e = sample.options.eFunctionType;
        const bool bFalling = e == 16 || e == 17 || e == 27;
        for (uint32_t t = 1; t < n && e != 34; ++t) {
            EXPECT_EQ(found[n + t - 1] > found[n + t], bFalling) << t;
        }
        if (e == 2 || e == 3 || e == 5 || e == 6) {
            EXPECT_GT(found[2 * n], 0.0);
        }
        if (e == 18 || e == 26) {
            EXPECT_GT(found[2 * n], 0.0);
        }
        if (e == 22) {
            EXPECT_LT(found[0], found[1]);
        }
        if (e == 17) {
            EXPECT_NEAR(std::accumulate(found.begin(), found.begin() + n, 0.0), 1.0, 1e-12);
        }
    }
}

TEST(Seeds, ParametersComeBackToAPartInAHundred) {
    // Functions whose parameters the clean data determine sharply.
    for (const Sample& sample : Samples()) {
        const int32_t e = sample.options.eFunctionType;
        if (e == 1 || e == 37 || sample.options.uFitOrder > 2) continue;
        SCOPED_TRACE(NameOf(sample));
        const Seeds seeds =
            SeedsFrom(sample.options, sample.x, CurveAt(sample.options, sample.flat, sample.x));
        ASSERT_EQ(seeds.values.size(), sample.flat.size());
        const std::vector<double>& expected = sample.flat;
        for (std::size_t k = 0; k < expected.size(); ++k)
            EXPECT_NEAR(seeds.values[k], expected[k], 1e-2 * std::fabs(expected[k])) << k;
    }
}

TEST(Seeds, WithoutZeroShiftAreThoseOfXAsItIs) {
    for (const int32_t e : {14, 15, 16, 25}) {
        SCOPED_TRACE(e);
        const double x0 = 40.0;
        FitOptions options = OptionsFor(e);
        options.bAutoZeroShift = 0;
        const std::vector<double> flat = e == 14   ? std::vector<double>{9.0, 30.0, 2.0, 0.03}
                                         : e == 16 ? std::vector<double>{9.0, 0.03, 2.0}
                                         : e == 25 ? std::vector<double>{500.0, 2.0, 0.1}
                                                   : std::vector<double>{9.0, 30.0, 2.0};
        const Arrays x = {Even(x0, x0 + 120.0, 400)};
        const Seeds seeds = SeedsFrom(options, x, CurveAt(options, flat, x));
        ASSERT_TRUE(seeds.bFound) << seeds.sError;
        for (std::size_t k = 0; k < flat.size(); ++k)
            EXPECT_NEAR(seeds.values[k], flat[k], 2e-2 * std::fabs(flat[k])) << k;
        // The same with a shift by hand.
        options.bDoZeroShift = 1;
        const Seeds shifted = SeedsFrom(options, x, CurveAt(options, flat, x));
        ASSERT_TRUE(shifted.bFound);
        for (std::size_t k = 0; k < flat.size(); ++k)
            EXPECT_NEAR(shifted.values[k], flat[k], 2e-2 * std::fabs(flat[k])) << k;
    }
}

TEST(Seeds, FindGrowth) {
    const FitOptions options = OptionsFor(15);
    const Arrays x = {Even(0.0, 100.0, 300)};
    const std::vector<double> flat = {0.5, -30.0, 2.0};
    const Seeds seeds = SeedsFrom(options, x, CurveAt(options, flat, x));
    ASSERT_TRUE(seeds.bFound);
    for (std::size_t k = 0; k < flat.size(); ++k)
        EXPECT_NEAR(seeds.values[k], flat[k], 1e-2 * std::fabs(flat[k])) << k;
}

TEST(Seeds, KeepToTheSignsThatAreForced) {
    // Falling data would have a negative amplitude, growing ones a negative time constant.
    const Arrays x = {Even(0.0, 100.0, 300)};
    FitOptions options = OptionsFor(15, 2);
    const std::vector<double> data =
        Noisy(CurveAt(options, {-9.0, -6.0, 3.0, 25.0, 2.0}, x), 0.02, 1);
    options.bForcePropsPositive = 1;
    Seeds seeds = SeedsFrom(options, x, data);
    ASSERT_TRUE(seeds.bFound);
    EXPECT_GT(seeds.values[0], 0.0);
    EXPECT_GT(seeds.values[1], 0.0);

    options = OptionsFor(15);
    const std::vector<double> growth = CurveAt(options, {0.5, -30.0, 2.0}, x);
    options.bForceTausPositive = 1;
    seeds = SeedsFrom(options, x, growth);
    ASSERT_TRUE(seeds.bFound);
    EXPECT_GT(seeds.values[1], 0.0);

    // A falling sigmoid with a positive amplitude has a negative width.
    const Arrays volts = {Even(-140.0, 80.0, 45)};
    options = OptionsFor(3);
    const std::vector<double> falling = CurveAt(options, {-7.0, -20.0, 8.0, 9.0}, volts);
    options.bForcePropsPositive = 1;
    seeds = SeedsFrom(options, volts, falling);
    ASSERT_TRUE(seeds.bFound);
    EXPECT_NEAR(seeds.values[0], 7.0, 0.1);
    EXPECT_NEAR(seeds.values[2], -8.0, 0.1);
    EXPECT_NEAR(seeds.values[3], 2.0, 0.1);
}

TEST(Seeds, OfDwellTimesUnderMaximumLikelihood) {
    // Counts with the noise of counts.
    std::mt19937 random(11);
    for (const int32_t e : {10, 12}) {
        SCOPED_TRACE(e);
        FitOptions options = OptionsFor(e, 2);
        options.eSearchMethod = 1;
        options.eMinimMethod = 1;
        const Arrays x = {e == 10 ? Even(-1.5, 3.5, 51) : Even(0.5, 199.5, 200)};
        const std::vector<double> flat = e == 10 ? std::vector<double>{120.0, 180.0, 1.0, 60.0}
                                                 : std::vector<double>{900.0, 1500.0, 6.0, 50.0};
        std::vector<double> y = CurveAt(options, flat, x);
        for (double& d : y) {
            std::poisson_distribution<int> counts(std::max(d, 1e-12));
            d = counts(random);
        }
        const Seeds seeds = SeedsFrom(options, x, y);
        ASSERT_TRUE(seeds.bFound) << seeds.sError;
        ASSERT_EQ(seeds.values.size(), 4u);
        for (std::size_t k = 0; k < 4; ++k)
            EXPECT_NEAR(seeds.values[k], flat[k], 0.35 * flat[k]) << k;
    }
}

TEST(Seeds, OfLongRecordsAreAsGood) {
    const FitOptions options = OptionsFor(15, 2);
    const Arrays x = {Even(0.0, 100.0, 20000)};
    const std::vector<double> clean = CurveAt(options, {9.0, 6.0, 4.0, 25.0, -2.0}, x);
    std::vector<double> data = Noisy(clean, 0.02, 4);
    data[7000] += 3.0 * RangeOf(clean);
    const Sample sample = {options, {}, x};
    EXPECT_LE(DistanceOf(sample, clean, data), 0.003);
}

TEST(Seeds, RegressionsAreExactForAnyNumberOfPoints) {
    for (const std::size_t n :
         {std::size_t{7}, std::size_t{300}, std::size_t{4096}, std::size_t{9000}}) {
        SCOPED_TRACE(n);
        const Arrays x = {Even(100.0, 160.0, n)};
        const std::vector<double> line =
            SeedsFrom(OptionsFor(35), x, CurveAt(OptionsFor(35), {2.0, -3.0}, x)).values;
        EXPECT_NEAR(line[0], 2.0, 1e-12);
        EXPECT_NEAR(line[1], -3.0, 1e-10);
        FitOptions options = OptionsFor(34, 3);
        const Arrays close = {Even(-3.0, 5.0, n)};
        const std::vector<double> cubic =
            SeedsFrom(options, close, CurveAt(options, {1.5, -0.5, 0.25, 4.0}, close)).values;
        EXPECT_NEAR(cubic[0], 1.5, 1e-11);
        EXPECT_NEAR(cubic[1], -0.5, 1e-11);
        EXPECT_NEAR(cubic[2], 0.25, 1e-11);
        EXPECT_NEAR(cubic[3], 4.0, 1e-11);
    }
}

TEST(Seeds, AreMovedOffZeroButWhereZeroIsAllowed) {
    // A level parabola: the quadratic coefficient may not be zero, the linear one may.
    const Arrays x = {Even(-2.0, 2.0, 21)};
    const Seeds seeds = SeedsFrom(OptionsFor(32), x, std::vector<double>(21, 4.0));
    ASSERT_TRUE(seeds.bFound) << seeds.sError;
    EXPECT_NE(seeds.values[0], 0.0);
    EXPECT_NEAR(seeds.values[2], 4.0, 1e-12);
    // A level line through the data.
    const Seeds line = SeedsFrom(OptionsFor(35), x, std::vector<double>(21, 4.0));
    ASSERT_TRUE(line.bFound);
    EXPECT_NE(line.values[0], 0.0);
}

}  // namespace
