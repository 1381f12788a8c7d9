// The twelve functions: what they set, answer and refuse.
#include <limits>

#include "GraphFixture.h"

namespace graph_test {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
using Numbers = std::vector<double>;

TEST_F(GraphTest, ANewGraphHasScalesOfOneAndNoFlags) {
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 1}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1}));
    for (uint32_t uBit = 1; uBit != 0; uBit <<= 1) EXPECT_EQ(graph::GetFlag(pGraph, uBit), 0);
}

TEST_F(GraphTest, AControlIsOneGraphOnly) {
    EXPECT_EQ(graph::Create(control), nullptr);
    graph::Destroy(pGraph);
    pGraph = graph::Create(control);
    EXPECT_NE(pGraph, nullptr);
    EXPECT_EQ(graph::Create(nullptr), nullptr);
    EXPECT_EQ(graph::Create(reinterpret_cast<HWND__*>(0x7FF1)), nullptr);
}

TEST_F(GraphTest, TheControlIsGivenBack) {
    const LONG_PTR nGraphProc = GetWindowLongPtrA(control, GWLP_WNDPROC);
    graph::Destroy(pGraph);
    pGraph = nullptr;
    EXPECT_NE(GetWindowLongPtrA(control, GWLP_WNDPROC), nGraphProc);
    EXPECT_EQ(SendMessageA(control, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

TEST_F(GraphTest, AGraphOutlivesItsControl) {
    Attach();
    source.Data({0, 3}, {0, 6});
    DestroyWindow(control);
    EXPECT_EQ(graph::AutoScale(pGraph, GMT_X), 1);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
    double dX, dY;
    EXPECT_EQ(graph::ValueAt(pGraph, 100, 100, &dX, &dY), 0);
    EXPECT_EQ(Scale(GMT_X)[1], 3.15);
}

TEST(GraphFunctions, ANullGraphIsNothingToDo) {
    double d = 5;
    EXPECT_EQ(graph::SetSource(nullptr, nullptr), 0);
    EXPECT_EQ(graph::SetScale(nullptr, GMT_X, 0, 1), 0);
    EXPECT_EQ(graph::AutoScale(nullptr, GMT_X), 0);
    EXPECT_EQ(graph::Destroy(nullptr), 0);
    EXPECT_EQ(graph::GetScale(nullptr, GMT_X, &d, &d), 0);
    EXPECT_EQ(graph::CurveChanged(nullptr, 0), 0);
    EXPECT_EQ(graph::ValueAt(nullptr, 1, 1, &d, &d), 0);
    EXPECT_EQ(graph::GetFlag(nullptr, 1), 0);
    EXPECT_EQ(graph::Redraw(nullptr), 0);
    EXPECT_EQ(graph::SetFlag(nullptr, 1, 1), 0);
    EXPECT_EQ(graph::SetTitle(nullptr, GMT_X, "x"), 0);
    EXPECT_EQ(d, 5);
}

TEST_F(GraphTest, AScaleTakesUsableLimitsOnly) {
    EXPECT_EQ(graph::SetScale(pGraph, GMT_X, -3, 4), 1);
    const double aBad[][2] = {{1, 1}, {2, 1}, {kNaN, 1}, {0, kInf}, {-kInf, 0}, {-1e308, 1e308}};
    for (const auto& bad : aBad) EXPECT_EQ(graph::SetScale(pGraph, GMT_X, bad[0], bad[1]), 0);
    EXPECT_EQ(graph::SetScale(pGraph, 3, 0, 2), 0);
    EXPECT_EQ(graph::AutoScale(pGraph, 0), 0);
    EXPECT_EQ(Scale(GMT_X), (Numbers{-3, 4}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1}));
    double dMin = 9;
    EXPECT_EQ(graph::GetScale(pGraph, 4, &dMin, &dMin), 0);
    EXPECT_EQ(graph::GetScale(pGraph, GMT_X, &dMin, nullptr), 0);
    EXPECT_EQ(graph::GetScale(pGraph, GMT_X, nullptr, &dMin), 0);
    EXPECT_EQ(dMin, 9);
}

TEST_F(GraphTest, AutomaticScalesShowAllWithAMargin) {
    source.Data({0, 5, 10}, {-2, 8, 3}).Curve(GMT_KIND_TOTAL, [](double x) { return 2 * x; });
    Attach();
    EXPECT_EQ(graph::AutoScale(pGraph, GMT_X), 1);
    EXPECT_EQ(Scale(GMT_X), (Numbers{-0.5, 10.5}));
    EXPECT_EQ(graph::AutoScale(pGraph, GMT_Y), 1);
    // The curve reaches 20 where the data end.
    EXPECT_NEAR(Scale(GMT_Y)[0], -3.1, 1e-9);
    EXPECT_NEAR(Scale(GMT_Y)[1], 21.1, 1e-9);
}

TEST_F(GraphTest, TheYAxisIsScaledToWhatTheXAxisShows) {
    source.Data({0, 1, 2, 3}, {0, 10, 20, 1000});
    Attach();
    graph::SetScale(pGraph, GMT_X, 0.5, 2.5);
    graph::AutoScale(pGraph, GMT_Y);
    EXPECT_EQ(Scale(GMT_Y), (Numbers{9.5, 20.5}));
}

TEST_F(GraphTest, HiddenCurvesHaveNoPartInScales) {
    source.Data({0, 1}, {0, 1}).Data({0, 100}, {0, 100});
    source.items[1].bVisible = false;
    Attach();
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{-0.05, 1.05}));
    source.items[1].bVisible = true;
    graph::CurveChanged(pGraph, 1);
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{-5, 105}));
}

TEST_F(GraphTest, ASourceMayNameItsOwnRange) {
    source.Data({0, 1}, {0, 1});
    source.bHasRange = true;
    Attach();
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{-7, 8}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{-70, 80}));
}

TEST_F(GraphTest, NothingToSeeIsScaledFromZeroToOne) {
    graph::SetScale(pGraph, GMT_X, 5, 6);
    graph::SetScale(pGraph, GMT_Y, 5, 6);
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 1})) << "no source";
    source.Data({kNaN, 1}, {1, kNaN}).Data({}, {});
    source.Curve(GMT_KIND_TOTAL, [](double) { return kNaN; });
    Attach();
    graph::SetScale(pGraph, GMT_Y, 5, 6);
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 1}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1}));
}

TEST_F(GraphTest, OnePointAndConstantDataHaveSensibleAxes) {
    source.Data({4}, {-20});
    Attach();
    ScaleAll();
    EXPECT_EQ(Scale(GMT_X), (Numbers{3.6, 4.4}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{-22, -18}));
    source.items[0].y = {1e300};
    source.items[0].x = {1e-300};
    graph::CurveChanged(pGraph, 0);
    ScaleAll();
    EXPECT_NEAR(Scale(GMT_Y)[1], 1.1e300, 1e287);
    EXPECT_NEAR(Scale(GMT_X)[0] * 1e300, 0.9, 1e-9);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
}

TEST_F(GraphTest, FlagsAreSetAndClearedByWords) {
    graph::SetFlag(pGraph, GMT_FLAG_AXES | GMT_FLAG_LEGEND, 5);
    EXPECT_EQ(graph::GetFlag(pGraph, GMT_FLAG_AXES), 1);
    EXPECT_EQ(graph::GetFlag(pGraph, GMT_FLAG_AXES | GMT_FLAG_LEGEND), 1);
    EXPECT_EQ(graph::GetFlag(pGraph, GMT_FLAG_AXES | GMT_FLAG_GRID), 0) << "not all of them";
    graph::SetFlag(pGraph, GMT_FLAG_LEGEND | GMT_FLAG_GRID, 0);
    EXPECT_EQ(graph::GetFlag(pGraph, GMT_FLAG_LEGEND), 0);
    EXPECT_EQ(graph::GetFlag(pGraph, GMT_FLAG_AXES), 1);
}

TEST_F(GraphTest, TitlesAreThoseOfTheAxesAndTheHeading) {
    EXPECT_EQ(graph::SetTitle(pGraph, GMT_X, "Time"), 1);
    EXPECT_EQ(graph::SetTitle(pGraph, GMT_Y, nullptr), 1);
    EXPECT_EQ(graph::SetTitle(pGraph, GMT_HEADING, "A"), 1);
    EXPECT_EQ(graph::SetTitle(pGraph, 3, "A"), 0);
}

TEST_F(GraphTest, ValuesAreToldWithinThePlotOnly) {
    graph::SetScale(pGraph, GMT_X, 10, 20);
    graph::SetScale(pGraph, GMT_Y, -100, 100);
    const RECT plot = Plot();
    double dX = 7, dY = 7;
    EXPECT_EQ(graph::ValueAt(pGraph, plot.left - 1, plot.top, &dX, &dY), 0);
    EXPECT_EQ(graph::ValueAt(pGraph, plot.left, plot.bottom, &dX, &dY), 0);
    EXPECT_EQ(dX, 7);
    EXPECT_EQ(graph::ValueAt(pGraph, plot.left, plot.top, &dX, nullptr), 0);
    EXPECT_EQ(graph::ValueAt(pGraph, plot.left, plot.top, nullptr, &dY), 0);
    EXPECT_EQ(graph::ValueAt(pGraph, plot.left, plot.top, &dX, &dY), 1);
    EXPECT_EQ(dX, 10);
    EXPECT_EQ(dY, 100);
    EXPECT_EQ(graph::ValueAt(pGraph, plot.right - 1, plot.bottom - 1, &dX, &dY), 1);
    EXPECT_NEAR(dX, 20, 1e-9);
    EXPECT_NEAR(dY, -100, 1e-9);
}

TEST_F(GraphTest, ACurveIsComputedAgainOnlyWhenItHasChanged) {
    source.Data(Steps(10), Steps(10))
        .Curve(0, [](double x) { return x; })
        .Curve(GMT_KIND_TOTAL, [](double x) { return 2 * x; });
    Attach();
    ScaleAll();
    graph::Redraw(pGraph);
    source.evaluated.clear();
    source.nPointCalls = 0;
    graph::Redraw(pGraph);
    EXPECT_TRUE(source.evaluated.empty());
    graph::CurveChanged(pGraph, 2);
    graph::Redraw(pGraph);
    EXPECT_EQ(source.evaluated, (std::vector<uint32_t>{2}));
    EXPECT_EQ(source.nPointCalls, 0);
    graph::CurveChanged(pGraph, GMT_ALL_CURVES);
    graph::Redraw(pGraph);
    EXPECT_EQ(source.evaluated, (std::vector<uint32_t>{2, 1, 2}));
    EXPECT_EQ(source.nPointCalls, 1);
    graph::CurveChanged(pGraph, 99);
    graph::Redraw(pGraph);
    EXPECT_EQ(source.evaluated.size(), 3u);
}

TEST_F(GraphTest, CurvesAreAskedForWhereThePictureNeedsThem) {
    source.Data({2, 5}, {0, 1}).Curve(GMT_KIND_TOTAL, [](double x) { return x; });
    Attach();
    graph::SetScale(pGraph, GMT_X, 0, 10);
    graph::Redraw(pGraph);
    const RECT plot = Plot();
    // A place for each pixel between the ends of the data, and these.
    EXPECT_NEAR(static_cast<double>(source.asked.size()), (plot.right - plot.left) * 0.3, 3.0);
    EXPECT_EQ(source.asked.front(), 2);
    EXPECT_EQ(source.asked.back(), 5);
    for (std::size_t i = 1; i < source.asked.size(); ++i)
        EXPECT_LT(source.asked[i - 1], source.asked[i]);
    source.evaluated.clear();
    graph::SetScale(pGraph, GMT_X, 6, 10);
    graph::Redraw(pGraph);
    EXPECT_TRUE(source.evaluated.empty()) << "no data there";
}

TEST_F(GraphTest, ASourceMayGrowAndShrink) {
    source.Data({0, 1}, {0, 1});
    Attach();
    ScaleAll();
    graph::Redraw(pGraph);
    source.Curve(GMT_KIND_TOTAL, [](double x) { return x; });
    graph::Redraw(pGraph);
    EXPECT_EQ(source.evaluated, (std::vector<uint32_t>{1}));
    source.items.clear();
    EXPECT_EQ(graph::Redraw(pGraph), 1);
    EXPECT_EQ(graph::SetSource(pGraph, nullptr), 1);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
}

TEST_F(GraphTest, ASourceThatRefusesIsDrawnWithout) {
    source.Data({0, 1}, {0, 1}).Curve(GMT_KIND_TOTAL, [](double x) { return x * 50; });
    source.bHasPoints = 0;
    source.bEvaluates = 0;
    Attach();
    ScaleAll();
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1}));
    EXPECT_EQ(graph::Redraw(pGraph), 1);
}

// The library itself, as a dialog reaches it.
TEST(GraphLibrary, ExportsTwelveNumbersAndDraws) {
    const HMODULE hLibrary = LoadLibraryA("GraphMT.dll");
    ASSERT_NE(hLibrary, nullptr);
    const auto function = [hLibrary](int nOrdinal) {
        return reinterpret_cast<void*>(
            GetProcAddress(hLibrary, MAKEINTRESOURCEA(static_cast<WORD>(nOrdinal))));
    };
    for (const int nOrdinal :
         {1000, 1002, 1013, 1014, 1018, 1021, 1036, 1039, 1043, 1044, 1054, 1058})
        EXPECT_NE(function(nOrdinal), nullptr) << nOrdinal;
    for (const int nOrdinal : {999, 1001, 1003, 1012, 1015, 1057, 1059})
        EXPECT_EQ(function(nOrdinal), nullptr) << nOrdinal;
    const auto create = reinterpret_cast<GMT_CreateGraph>(function(GMT_ORDINAL_CREATE));
    const auto setSource = reinterpret_cast<GMT_SetSource>(function(GMT_ORDINAL_SET_SOURCE));
    const auto autoScale = reinterpret_cast<GMT_AutoScale>(function(GMT_ORDINAL_AUTO_SCALE));
    const auto setScale = reinterpret_cast<GMT_SetScale>(function(GMT_ORDINAL_SET_SCALE));
    const auto getScale = reinterpret_cast<GMT_GetScale>(function(GMT_ORDINAL_GET_SCALE));
    const auto changed = reinterpret_cast<GMT_CurveChanged>(function(GMT_ORDINAL_CURVE_CHANGED));
    const auto valueAt = reinterpret_cast<GMT_ValueAt>(function(GMT_ORDINAL_VALUE_AT));
    const auto getFlag = reinterpret_cast<GMT_GetFlag>(function(GMT_ORDINAL_GET_FLAG));
    const auto setFlag = reinterpret_cast<GMT_SetFlag>(function(GMT_ORDINAL_SET_FLAG));
    const auto setTitle = reinterpret_cast<GMT_SetTitle>(function(GMT_ORDINAL_SET_TITLE));
    const auto redraw = reinterpret_cast<GMT_Redraw>(function(GMT_ORDINAL_REDRAW));
    const auto destroy = reinterpret_cast<GMT_DestroyGraph>(function(GMT_ORDINAL_DESTROY));
    const HWND control = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100,
                                         nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    TestSource source;
    source.Data({1, 3}, {5, 9});
    GMT_Graph* pGraph = create(control);
    ASSERT_NE(pGraph, nullptr);
    EXPECT_EQ(setSource(pGraph, &source), 1);
    EXPECT_EQ(autoScale(pGraph, GMT_X), 1);
    EXPECT_EQ(setScale(pGraph, GMT_Y, 4, 10), 1);
    double dMin = 0, dMax = 0;
    EXPECT_EQ(getScale(pGraph, GMT_X, &dMin, &dMax), 1);
    EXPECT_EQ(dMin, 0.9);
    EXPECT_EQ(dMax, 3.1);
    EXPECT_EQ(changed(pGraph, 0), 1);
    EXPECT_EQ(setFlag(pGraph, GMT_FLAG_GRID, 1), 1);
    EXPECT_EQ(getFlag(pGraph, GMT_FLAG_GRID), 1);
    EXPECT_EQ(setTitle(pGraph, GMT_HEADING, "Heading"), 1);
    EXPECT_EQ(redraw(pGraph), 1);
    EXPECT_EQ(valueAt(pGraph, 100, 50, &dMin, &dMax), 1);
    EXPECT_NEAR(dMin, 2.0, 0.1);
    EXPECT_GT(Picture(control).Count({0, 0, 200, 100}, kDataColor), 20);
    EXPECT_EQ(destroy(pGraph), 1);
    DestroyWindow(control);
    FreeLibrary(hLibrary);
}

}  // namespace
}  // namespace graph_test
