#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "AxisTicks.h"

namespace {

using graph::NumberText;
using graph::Range;
using graph::TicksOf;

std::vector<std::string> Texts(const Range& range, int nMost) {
    std::vector<std::string> texts;
    for (const graph::Tick& tick : TicksOf(range, nMost)) texts.push_back(tick.sText);
    return texts;
}

using Strings = std::vector<std::string>;

TEST(AxisTicks, AreRoundValuesWithinTheRange) {
    EXPECT_EQ(Texts({0, 10}, 6), (Strings{"0", "2", "4", "6", "8", "10"}));
    EXPECT_EQ(Texts({-0.3, 10.3}, 6), (Strings{"0", "5", "10"}));
    EXPECT_EQ(Texts({-1, 1}, 5), (Strings{"-1", "-0.5", "0", "0.5", "1"}));
    EXPECT_EQ(Texts({0, 0.7}, 8), (Strings{"0", "0.1", "0.2", "0.3", "0.4", "0.5", "0.6", "0.7"}));
    EXPECT_EQ(Texts({17, 1234}, 5), (Strings{"500", "1000"}));
    EXPECT_EQ(Texts({99.95, 100.05}, 3), (Strings{"99.95", "100", "100.05"}));
}

TEST(AxisTicks, LargeAndSmallValuesHaveAnExponent) {
    EXPECT_EQ(Texts({0, 3e6}, 4), (Strings{"0", "1e6", "2e6", "3e6"}));
    EXPECT_EQ(Texts({0, 2e-5}, 3), (Strings{"0", "1e-5", "2e-5"}));
    EXPECT_EQ(Texts({1e300, 2e300}, 3), (Strings{"1e300", "1.5e300", "2e300"}));
    EXPECT_EQ(Texts({-1e-300, 1e-300}, 3), (Strings{"-1e-300", "0", "1e-300"}));
    EXPECT_EQ(Texts({0, 0.0002}, 3), (Strings{"0", "0.0001", "0.0002"}));
}

TEST(AxisTicks, ValuesAreTheNumbersThatTheyRead) {
    const auto ticks = TicksOf({0, 1}, 11);
    ASSERT_EQ(ticks.size(), 11u);
    EXPECT_EQ(ticks[3].dValue, 0.3);
    EXPECT_EQ(ticks[7].dValue, 0.7);
}

TEST(AxisTicks, NeverMoreThanAskedForAndNeverWithoutEnd) {
    for (const double dMin : {0.0, -1.0, 1e-300, 1e300, -8e307, 1e15, 12345.678})
        for (const double dSize : {1e-300, 1e-9, 1.0, 3.7, 1e9, 1e300, 8e307})
            for (const int nMost : {2, 3, 7, 12}) {
                const auto ticks = TicksOf({dMin, dMin + dSize}, nMost);
                EXPECT_LE(ticks.size(), static_cast<std::size_t>(nMost));
                for (std::size_t i = 1; i < ticks.size(); ++i) {
                    EXPECT_LT(ticks[i - 1].dValue, ticks[i].dValue) << dMin << " " << dSize;
                    EXPECT_NE(ticks[i - 1].sText, ticks[i].sText) << dMin << " " << dSize;
                }
            }
}

TEST(AxisTicks, AnUnusableRangeHasNone) {
    const double dNaN = std::numeric_limits<double>::quiet_NaN();
    const double dInf = std::numeric_limits<double>::infinity();
    for (const Range& range :
         {Range{1, 1}, Range{2, 1}, Range{dNaN, 1}, Range{0, dNaN}, Range{-dInf, 0}, Range{0, dInf},
          Range{-1e308, 1e308}, Range{1, 1 + 1e-15}}) {
        EXPECT_FALSE(graph::IsUsable(range)) << range.dMin << " " << range.dMax;
        EXPECT_TRUE(TicksOf(range, 5).empty());
    }
    EXPECT_TRUE(graph::IsUsable({-8e307, 8e307}));
    EXPECT_TRUE(TicksOf({0, 1}, 1).empty()) << "no room for two";
}

TEST(AxisTicks, MarginsAreATwentiethAndATenthOfASingleValue) {
    EXPECT_EQ(graph::WithMargin(0, 100), (Range{-5, 105}));
    EXPECT_EQ(graph::WithMargin(50, 50), (Range{45, 55}));
    EXPECT_EQ(graph::WithMargin(-50, -50), (Range{-55, -45}));
    EXPECT_EQ(graph::WithMargin(0, 0), (Range{-1, 1}));
    for (const double dValue : {1e-300, 1e300, -1e300, 1.7e308, 5e-324}) {
        EXPECT_TRUE(graph::IsUsable(graph::WithMargin(dValue, dValue))) << dValue;
        EXPECT_TRUE(graph::IsUsable(graph::WithMargin(-1.7e308, dValue))) << dValue;
    }
}

TEST(AxisTicks, NumbersHaveTheDigitsOfTheirStep) {
    EXPECT_EQ(NumberText(12.3456, 0.01), "12.35");
    EXPECT_EQ(NumberText(12.3, 0.01), "12.3");
    EXPECT_EQ(NumberText(-0.00000001, 0.1), "0");
    EXPECT_EQ(NumberText(1234567, 1000), "1.235e6");
    EXPECT_EQ(NumberText(0.0000123, 1e-7), "1.23e-5");
    EXPECT_EQ(NumberText(120, 10), "120");
}

}  // namespace
