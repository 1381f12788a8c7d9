#include "Columns.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

using graph::Column;
using graph::ColumnsOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

GMT_Points PointsOf(const std::vector<double>& x, const std::vector<double>& y) {
    return {x.data(), y.data(), static_cast<uint32_t>(x.size())};
}

TEST(Columns, KeepTheExtremesAndTheEndsOfEach) {
    const std::vector<double> x = {0, 0.1, 0.2, 0.3, 1.5}, y = {5, 9, -2, 6, 4};
    const auto columns = ColumnsOf(PointsOf(x, y), {0, 2}, 2);
    ASSERT_EQ(columns.size(), 2u);
    EXPECT_EQ(columns[0].dFirst, 5);
    EXPECT_EQ(columns[0].dMin, -2);
    EXPECT_EQ(columns[0].dMax, 9);
    EXPECT_EQ(columns[0].dLast, 6);
    EXPECT_EQ(columns[0].uCount, 4u);
    EXPECT_EQ(columns[1].dFirst, 4);
    EXPECT_EQ(columns[1].uCount, 1u);
}

TEST(Columns, LeaveOutWhatIsOutsideOfTheRange) {
    const std::vector<double> x = {-0.5, 0, 2, 2.5}, y = {100, 1, 2, 200};
    const auto columns = ColumnsOf(PointsOf(x, y), {0, 2}, 4);
    EXPECT_EQ(columns[0].uCount, 1u);
    EXPECT_EQ(columns[3].uCount, 1u) << "the last place belongs to the last column";
    EXPECT_EQ(columns[3].dMax, 2);
    EXPECT_EQ(columns[1].uCount + columns[2].uCount, 0u);
}

TEST(Columns, ANumberThatIsNoneIsAGapBeforeTheNextColumn) {
    for (const double dNone : {kNaN, kInf, -kInf}) {
        const std::vector<double> x = {0, 1, 2, 3}, y = {1, 2, dNone, 4};
        const auto columns = ColumnsOf(PointsOf(x, y), {0, 4}, 4);
        EXPECT_FALSE(columns[1].bGapBefore);
        EXPECT_EQ(columns[2].uCount, 0u);
        EXPECT_TRUE(columns[3].bGapBefore);
    }
}

TEST(Columns, PointsMayComeInAnyOrder) {
    const std::vector<double> x = {3, 0, 2, 1}, y = {30, 0, 20, 10};
    const auto columns = ColumnsOf(PointsOf(x, y), {0, 4}, 4);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(columns[static_cast<std::size_t>(i)].dMin, 10 * i);
}

TEST(Columns, ExtentsCountFinitePointsOnly) {
    const std::vector<double> x = {1, kNaN, 3, 4, kInf}, y = {10, 1000, kNaN, -5, 7};
    const graph::Extent extent = graph::ExtentOf(PointsOf(x, y));
    EXPECT_EQ(extent.uCount, 2u);
    EXPECT_EQ(extent.dMinX, 1);
    EXPECT_EQ(extent.dMaxX, 4);
    EXPECT_EQ(extent.dMinY, -5);
    EXPECT_EQ(extent.dMaxY, 10);
    EXPECT_EQ(graph::ExtentOf({nullptr, nullptr, 0}).uCount, 0u);
}

}  // namespace
