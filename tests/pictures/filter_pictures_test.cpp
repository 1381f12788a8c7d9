// The pictures of the filter arrangements are what the filters do.

#include <gtest/gtest.h>

#include <cmath>
#include <complex>

#include "Picture.h"

namespace {

using namespace picture_test;

enum Arrangement { kBandpass, kHighpass, kLowpass, kInterference, kNotch };

// Half power at 1: the polynomial of degree 8 in a frequency that is stretched for it.
double BesselGain(double f) {
    double factorials[17] = {1.0};
    for (int i = 1; i <= 16; ++i) factorials[i] = factorials[i - 1] * i;
    const std::complex<double> s(0.0, 3.1796172375106513 * f);
    std::complex<double> sum = 0.0;
    for (int k = 8; k >= 0; --k) {
        sum = sum * s +
              factorials[16 - k] / (std::ldexp(1.0, 8 - k) * factorials[k] * factorials[8 - k]);
    }
    return 2027025.0 / std::abs(sum);
}

double NotchGain(double f, double dCenter, double dWidth) {
    const double d = dCenter * dCenter - f * f;
    return std::fabs(d) / std::hypot(d, dWidth * f);
}

// `dPart` runs over the axis: three decades, or four and a half harmonics.
double GainOf(Arrangement arrangement, double dPart) {
    const double f = std::pow(10.0, 3.0 * (dPart - 0.5));
    const double dBand = std::pow(10.0, 0.75);
    switch (arrangement) {
        case kBandpass:
            return BesselGain(f / dBand) * BesselGain(1.0 / (dBand * f));
        case kHighpass:
            return BesselGain(1.0 / f);
        case kLowpass:
            return BesselGain(f);
        case kNotch:
            return NotchGain(f, 1.0, 0.6);
        case kInterference:
            break;
    }
    double dGain = 1.0;
    for (int k = 1; k <= 4; ++k) dGain *= NotchGain(4.5 * dPart, k, 0.12);
    return dGain;
}

TEST(FilterPicture, IsTheResponseOfItsArrangement) {
    for (const Arrangement arrangement : {kBandpass, kHighpass, kLowpass, kInterference, kNotch}) {
        for (const bool bLarger : {false, true}) {
            SCOPED_TRACE(testing::Message() << arrangement << (bLarger ? ", larger" : ""));
            const Picture picture(2630 + arrangement + (bLarger ? 200 : 0));
            ASSERT_TRUE(picture.IsThere());
            EXPECT_EQ(picture.Width(), bLarger ? 246 : 160);
            EXPECT_EQ(picture.Height(), bLarger ? 142 : 92);
            EXPECT_EQ(picture.Header().biBitCount, 1);
            const Plot plot(picture, bLarger ? 1.5 : 1.0, 36, 10, 4, 20);
            const auto nHalfPower = static_cast<int>(std::lround(plot.Row(std::sqrt(0.5) / 1.1)));
            EXPECT_TRUE(picture.IsInk(plot.left + 3, nHalfPower));
            ExpectCurve(picture, plot, {nHalfPower}, [&](double dFrom, double dTo) {
                Rows rows = {1e9, -1e9};
                for (int i = 0; i <= 64; ++i) {
                    const double dRow =
                        plot.Row(GainOf(arrangement, dFrom + (dTo - dFrom) * i / 64) / 1.1);
                    rows.dHighest = std::min(rows.dHighest, dRow);
                    rows.dLowest = std::max(rows.dLowest, dRow);
                }
                return rows;
            });
        }
    }
}

}  // namespace
