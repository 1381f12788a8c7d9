// What a graph looks like, by the pixels of its control.
#include <algorithm>
#include <limits>

#include "GraphFixture.h"

namespace graph_test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST_F(GraphTest, PointsThatStandApartAreMarks) {
    source.Data({0, 5, 10}, {0, 5, 10});
    Attach();
    graph::SetScale(pGraph, GMT_X, -1, 11);
    graph::SetScale(pGraph, GMT_Y, -1, 11);
    const Picture picture(control);
    const RECT plot = Plot();
    EXPECT_EQ(picture.Count(plot, kDataColor), 3 * 5 * 5);
    const int x = (plot.left + plot.right) / 2, y = (plot.top + plot.bottom) / 2;
    EXPECT_EQ(picture.Count({x - 4, y - 4, x + 5, y + 5}, kDataColor), 25);
}

TEST_F(GraphTest, LinkedPointsAreJoined) {
    source.Data({0, 10}, {3, 3});
    Attach();
    graph::SetScale(pGraph, GMT_X, 0, 10);
    graph::SetScale(pGraph, GMT_Y, 0, 10);
    const RECT plot = Plot();
    const int nMiddle = (plot.left + plot.right) / 2;
    EXPECT_TRUE(Picture(control).Rows(nMiddle, kDataColor).empty());
    graph::SetFlag(pGraph, GMT_FLAG_LINK_POINTS, 1);
    EXPECT_EQ(Picture(control).Rows(nMiddle, kDataColor).size(), 1u);
}

TEST_F(GraphTest, OneSpikeAmongAMillionPointsIsSeen) {
    std::vector<double> y(1000000, 1.0);
    constexpr int kSpike = 333333;
    y[kSpike] = 9.0;
    source.Data(Steps(1000000), y);
    Attach();
    graph::SetScale(pGraph, GMT_X, 0, 999999);
    graph::SetScale(pGraph, GMT_Y, 0, 10);
    const Picture picture(control);
    const RECT plot = Plot();
    const int x = static_cast<int>(plot.left + (plot.right - plot.left) * kSpike / 1000000);
    const int nHeight = static_cast<int>(plot.bottom - plot.top) - 1;
    const auto rows = picture.Rows(x, kDataColor);
    ASSERT_FALSE(rows.empty());
    EXPECT_NEAR(rows.front(), plot.top + nHeight * 0.1, 1.0);
    EXPECT_NEAR(rows.back(), plot.top + nHeight * 0.9, 1.0);
    EXPECT_EQ(picture.Rows(x + 3, kDataColor).size(), 1u);
}

TEST_F(GraphTest, ANumberThatIsNoneIsAGap) {
    std::vector<double> y(10000, 5.0);
    std::fill(y.begin() + 4000, y.begin() + 6000, kNaN);
    source.Data(Steps(10000), y).Curve(GMT_KIND_TOTAL, [](double x) {
        return x > 4000 && x < 6000 ? kNaN : 8.0;
    });
    Attach();
    graph::SetScale(pGraph, GMT_X, 0, 9999);
    graph::SetScale(pGraph, GMT_Y, 0, 10);
    const Picture picture(control);
    const RECT plot = Plot();
    const auto column = [&plot](double dShare) {
        return static_cast<int>(plot.left + (plot.right - plot.left) * dShare);
    };
    for (const double dShare : {0.1, 0.39, 0.61, 0.9}) {
        EXPECT_FALSE(picture.Rows(column(dShare), kDataColor).empty()) << dShare;
        EXPECT_FALSE(picture.Rows(column(dShare), kTotalColor).empty()) << dShare;
    }
    for (const double dShare : {0.42, 0.5, 0.58}) {
        EXPECT_TRUE(picture.Rows(column(dShare), kDataColor).empty()) << dShare;
        EXPECT_TRUE(picture.Rows(column(dShare), kTotalColor).empty()) << dShare;
    }
}

TEST_F(GraphTest, TheTotalIsHeavyAndTermsAreBroken) {
    source.Curve(GMT_KIND_TOTAL, [](double) { return 7.0; }).Curve(0, [](double) { return 3.0; });
    Attach();
    graph::SetScale(pGraph, GMT_Y, 0, 10);
    const Picture picture(control);
    const RECT plot = Plot();
    const int nWidth = static_cast<int>(plot.right - plot.left);
    EXPECT_NEAR(picture.Count(plot, kTotalColor), 2 * nWidth, 6);
    // Seven pixels are drawn and four left out.
    EXPECT_NEAR(picture.Count(plot, kFirstTermColor), nWidth * 7 / 11, 8);
}

TEST_F(GraphTest, CurvesStandAboveTheDataAndTheTotalAboveTerms) {
    const auto flat = [](double) { return 5.0; };
    source.Curve(GMT_KIND_TOTAL, flat).Curve(0, flat).Data(Steps(5000), std::vector(5000, 5.0));
    Attach();
    graph::SetScale(pGraph, GMT_X, 0, 4999);
    graph::SetScale(pGraph, GMT_Y, 0, 10);
    const Picture picture(control);
    const RECT plot = Plot();
    EXPECT_EQ(picture.Count(plot, kDataColor), 0);
    EXPECT_EQ(picture.Count(plot, kFirstTermColor), 0);
    EXPECT_GT(picture.Count(plot, kTotalColor), 2 * (plot.right - plot.left) - 6);
}

TEST_F(GraphTest, ASourcesColourIsTakenAndOneColourIsThatOfText) {
    source.Curve(GMT_KIND_TOTAL, [](double) { return 0.5; });
    source.items[0].uColor = RGB(1, 99, 2);
    Attach();
    const RECT plot = Plot();
    EXPECT_GT(Picture(control).Count(plot, RGB(1, 99, 2)), 400);
    graph::SetFlag(pGraph, GMT_FLAG_ONE_COLOR, 1);
    EXPECT_EQ(Picture(control).Count(plot, RGB(1, 99, 2)), 0);
    EXPECT_GT(Picture(control).Count(plot, GetSysColor(COLOR_WINDOWTEXT)), 400);
}

TEST_F(GraphTest, TheFrameTheGridAndTheZeroLineAreFlags) {
    graph::SetScale(pGraph, GMT_Y, -1, 1);
    const COLORREF crText = GetSysColor(COLOR_WINDOWTEXT);
    constexpr COLORREF kFaint = RGB(0xAA, 0xAA, 0xAA);
    const RECT plot = Plot();
    EXPECT_EQ(Picture(control).At(plot.left - 1, plot.top + 5), crText);
    graph::SetFlag(pGraph, GMT_FLAG_NO_FRAME, 1);
    EXPECT_EQ(Picture(control).At(plot.left - 1, plot.top + 5), GetSysColor(COLOR_WINDOW));
    const int nMiddle = static_cast<int>(plot.top + plot.bottom) / 2;
    EXPECT_EQ(Picture(control).Count(plot, kFaint), 0);
    graph::SetFlag(pGraph, GMT_FLAG_ZERO_LINE, 1);
    EXPECT_EQ(Picture(control).Count(plot, kFaint), plot.right - plot.left);
    EXPECT_EQ(Picture(control).Count({plot.left, nMiddle - 1, plot.right, nMiddle + 2}, kFaint),
              plot.right - plot.left);
    graph::SetScale(pGraph, GMT_Y, 0.5, 1);
    EXPECT_EQ(Picture(control).Count(plot, kFaint), 0) << "zero is not shown";
    graph::SetFlag(pGraph, GMT_FLAG_GRID, 1);
    EXPECT_EQ(Picture(control).Count(plot, kFaint), 0) << "no axes, no ticks";
    graph::SetFlag(pGraph, GMT_FLAG_AXES, 1);
    const RECT inner = Plot();
    EXPECT_GT(Picture(control).Count(inner, kFaint), 3 * (inner.right - inner.left));
}

TEST_F(GraphTest, AxesTitlesLegendAndPointerTakeTheirRoom) {
    source.Curve(
        GMT_KIND_TOTAL, [](double) { return 0.5; }, "A curve");
    Attach();
    const RECT bare = Plot();
    graph::SetFlag(pGraph, GMT_FLAG_AXES, 1);
    const RECT axes = Plot();
    EXPECT_GT(axes.left, bare.left);
    EXPECT_LT(axes.bottom, bare.bottom);
    graph::SetFlag(pGraph, GMT_FLAG_NO_Y_NUMBERS, 1);
    EXPECT_LT(Plot().left, axes.left);
    graph::SetFlag(pGraph, GMT_FLAG_NO_X_NUMBERS, 1);
    EXPECT_GT(Plot().bottom, axes.bottom);
    const RECT noNumbers = Plot();
    graph::SetFlag(pGraph, GMT_FLAG_INNER_TICKS, 1);
    EXPECT_LT(Plot().left, noNumbers.left);
    EXPECT_GT(Plot().bottom, noNumbers.bottom);
    graph::SetFlag(pGraph, GMT_FLAG_INNER_TICKS | GMT_FLAG_NO_X_NUMBERS | GMT_FLAG_NO_Y_NUMBERS, 0);
    graph::SetTitle(pGraph, GMT_X, "Time");
    EXPECT_LT(Plot().bottom, axes.bottom);
    graph::SetFlag(pGraph, GMT_FLAG_NO_X_TITLE, 1);
    EXPECT_EQ(Plot().bottom, axes.bottom);
    graph::SetTitle(pGraph, GMT_Y, "Current");
    EXPECT_GT(Plot().top, axes.top);
    graph::SetFlag(pGraph, GMT_FLAG_NO_Y_TITLE, 1);
    EXPECT_EQ(Plot().top, axes.top);
    graph::SetFlag(pGraph, GMT_FLAG_POINTER, 1);
    EXPECT_GT(Plot().top, axes.top);
    graph::SetFlag(pGraph, GMT_FLAG_POINTER, 0);
    graph::SetTitle(pGraph, GMT_HEADING, "Heading");
    EXPECT_GT(Plot().top, axes.top);
    graph::SetFlag(pGraph, GMT_FLAG_NO_HEADING, 1);
    EXPECT_EQ(Plot().top, axes.top);
    graph::SetFlag(pGraph, GMT_FLAG_LEGEND, 1);
    EXPECT_LT(Plot().right, axes.right);
    EXPECT_GT(Picture(control).Count({Plot().right + 2, 0, 500, 300}, kTotalColor), 20);
    source.items[0].sName = "";
    graph::CurveChanged(pGraph, 0);
    EXPECT_EQ(Plot().right, axes.right) << "no names, no legend";
}

TEST_F(GraphTest, ALegendLeavesThePlotHalfOfTheControl) {
    source.Curve(
        GMT_KIND_TOTAL, [](double) { return 0.5; }, std::string(60, 'W'));
    Attach();
    const RECT bare = Plot();
    graph::SetFlag(pGraph, GMT_FLAG_LEGEND, 1);
    EXPECT_EQ(Plot().right, bare.right);
}

TEST_F(GraphTest, ContinuousScalingFollowsTheCurve) {
    double dHeight = 10;
    source.Data({0, 1}, {0, 1}).Curve(GMT_KIND_TOTAL, [&dHeight](double x) { return x * dHeight; });
    Attach();
    ScaleAll();
    EXPECT_NEAR(Scale(GMT_Y)[1], 10.5, 1e-9);
    dHeight = 100;
    graph::CurveChanged(pGraph, 1);
    graph::Redraw(pGraph);
    EXPECT_NEAR(Scale(GMT_Y)[1], 10.5, 1e-9);
    graph::SetFlag(pGraph, GMT_FLAG_CONTINUOUS, 1);
    graph::Redraw(pGraph);
    EXPECT_NEAR(Scale(GMT_Y)[1], 105, 1e-9);
    graph::SetScale(pGraph, GMT_X, 0.2, 0.3);
    graph::Redraw(pGraph);
    EXPECT_EQ(Scale(GMT_X)[1], 1.05);
}

TEST_F(GraphTest, AnotherSizeIsAnotherPicture) {
    source.Curve(GMT_KIND_TOTAL, [](double) { return 0.5; });
    Attach();
    graph::Redraw(pGraph);
    const LONG nRight = Plot().right;
    SetWindowPos(control, nullptr, 0, 0, 300, 200, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(Plot().right, nRight - 200);
    const Picture small(control);
    EXPECT_EQ(small.Width(), 300);
    EXPECT_GT(small.Count(Plot(), kTotalColor), 400);
    SetWindowPos(control, nullptr, 0, 0, 1, 1, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
    SetWindowPos(control, nullptr, 0, 0, 0, 0, SWP_NOZORDER | SWP_NOMOVE);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
}

TEST_F(GraphTest, ValuesFarOutsideOfThePlotStayInThePlot) {
    source.Curve(GMT_KIND_TOTAL, [](double x) { return x < 0.5 ? 1e300 : -1e300; });
    Attach();
    const Picture picture(control);
    const RECT plot = Plot();
    RECT all;
    GetClientRect(control, &all);
    EXPECT_GT(picture.Count(plot, kTotalColor), plot.bottom - plot.top);
    EXPECT_EQ(picture.Count(plot, kTotalColor), picture.Count(all, kTotalColor));
}

TEST_F(GraphTest, WhatIsDrawnDoesNotDependOnWhatWasDrawnBefore) {
    source.Data(Steps(3000), Steps(3000)).Curve(GMT_KIND_TOTAL, [](double x) { return x / 2; });
    Attach();
    graph::SetFlag(pGraph, GMT_FLAG_AXES | GMT_FLAG_LEGEND, 1);
    ScaleAll();
    const Picture fresh(control);
    graph::SetScale(pGraph, GMT_X, 100, 200);
    EXPECT_FALSE(Picture(control) == fresh);
    source.items[1].bVisible = false;
    graph::CurveChanged(pGraph, 1);
    graph::SetFlag(pGraph, GMT_FLAG_GRID, 1);
    Picture between(control);
    source.items[1].bVisible = true;
    graph::CurveChanged(pGraph, 1);
    graph::SetFlag(pGraph, GMT_FLAG_GRID, 0);
    ScaleAll();
    EXPECT_TRUE(Picture(control) == fresh);
}

}  // namespace
}  // namespace graph_test
