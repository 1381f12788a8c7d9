// The Fourier transform behind long filters, and both ways of a symmetric filter.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>
#include <random>
#include <vector>

#include "Fft.h"
#include "SymmetricFir.h"

namespace {

TEST(Fft, IsTheSumThatItStandsFor) {
    std::mt19937 random(1);
    std::normal_distribution<double> noise;
    for (const std::size_t n : {2u, 4u, 8u, 16u, 32u, 256u, 512u}) {
        SCOPED_TRACE(n);
        std::vector<double> re(n), im(n);
        for (std::size_t i = 0; i < n; ++i) {
            re[i] = noise(random);
            im[i] = noise(random);
        }
        const std::vector<double> re0 = re, im0 = im;
        const filter::Fft fft(n);
        EXPECT_EQ(fft.Size(), n);
        fft.Forward(re.data(), im.data());
        for (std::size_t k = 0; k < n; ++k) {
            std::complex<double> sum = 0.0;
            for (std::size_t i = 0; i < n; ++i) {
                const double dAngle =
                    -2.0 * std::numbers::pi * static_cast<double>(i * k % n) / double(n);
                sum += std::complex<double>(re0[i], im0[i]) * std::polar(1.0, dAngle);
            }
            const std::size_t nPlace = fft.PlaceOf(k);
            ASSERT_LT(nPlace, n);
            EXPECT_NEAR(re[nPlace], sum.real(), 1e-12) << k;
            EXPECT_NEAR(im[nPlace], sum.imag(), 1e-12) << k;
        }
        fft.Backward(re.data(), im.data());
        for (std::size_t i = 0; i < n; ++i) {
            EXPECT_NEAR(re[i] / double(n), re0[i], 1e-14) << i;
            EXPECT_NEAR(im[i] / double(n), im0[i], 1e-14) << i;
        }
    }
}

TEST(SymmetricFir, IsTheSameBothWays) {
    std::mt19937 random(2);
    std::normal_distribution<double> noise;
    struct Row {
        std::size_t nSide, nPoints;
    };
    for (const Row& row : {Row{0, 1}, Row{2, 1}, Row{2, 5}, Row{100, 30}, Row{100, 201},
                           Row{63, 5000}, Row{700, 20000}, Row{4095, 9000}}) {
        SCOPED_TRACE(testing::Message() << row.nSide << " " << row.nPoints);
        std::vector<double> weights(row.nSide + 1);
        double dSum = 0.0;
        for (double& d : weights) dSum += std::fabs(d = noise(random));
        for (double& d : weights) d /= dSum;
        std::vector<double> direct(row.nPoints);
        for (double& d : direct) d = noise(random);
        const std::vector<double> before = direct;
        std::vector<double> transformed = direct;
        std::vector<double> chosen = direct;
        const filter::EndLevels levels = {3.0, -2.0};
        filter::RunFirDirectly(weights, levels, direct.data(), row.nPoints);
        filter::RunFirByFft(weights, levels, transformed.data(), row.nPoints);
        filter::RunSymmetricFir(weights, levels, chosen.data(), row.nPoints);
        const auto at = [&](std::ptrdiff_t i) {
            if (i < 0) return levels.dBefore;
            return i < static_cast<std::ptrdiff_t>(row.nPoints) ? before[std::size_t(i)]
                                                                : levels.dAfter;
        };
        for (std::size_t i = 0; i < row.nPoints; ++i) {
            ASSERT_NEAR(transformed[i], direct[i], 1e-13) << i;
            ASSERT_NEAR(chosen[i], direct[i], 1e-13) << i;
            if (i % 97 != 0) continue;
            double d = weights[0] * before[i];
            for (std::size_t k = 1; k <= row.nSide; ++k) {
                d += weights[k] * (at(std::ptrdiff_t(i) - std::ptrdiff_t(k)) +
                                   at(std::ptrdiff_t(i) + std::ptrdiff_t(k)));
            }
            ASSERT_NEAR(direct[i], d, 1e-13) << i;
        }
    }
}

}  // namespace
