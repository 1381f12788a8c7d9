// What a user does with a graph.
#include "GraphFixture.h"

namespace graph_test {
namespace {

using Numbers = std::vector<double>;

class GraphInput : public GraphTest {
  protected:
    GraphInput() {
        source.Data({0, 100}, {0, 1000});
        Attach();
        graph::SetScale(pGraph, GMT_X, 0, 100);
        graph::SetScale(pGraph, GMT_Y, 0, 1000);
        graph::Redraw(pGraph);
        plot = Plot();
    }
    int X(double dShare) const {
        return static_cast<int>(std::lround(plot.left + (plot.right - 1 - plot.left) * dShare));
    }
    int Y(double dShare) const {
        return static_cast<int>(
            std::lround(plot.bottom - 1 - (plot.bottom - 1 - plot.top) * dShare));
    }
    void Press(int nKey) { SendMessageA(control, WM_KEYDOWN, static_cast<WPARAM>(nKey), 1); }
    void ExpectScale(uint32_t uAxis, double dMin, double dMax) const {
        const double dTolerance = uAxis == GMT_X ? 0.2 : 4;
        EXPECT_NEAR(Scale(uAxis)[0], dMin, dTolerance);
        EXPECT_NEAR(Scale(uAxis)[1], dMax, dTolerance);
    }
    RECT plot;
};

TEST_F(GraphInput, ADragShowsWhatItEncloses) {
    Drag(X(0.2), Y(0.8), X(0.6), Y(0.1));
    ExpectScale(GMT_X, 20, 60);
    ExpectScale(GMT_Y, 100, 800);
    ASSERT_EQ(source.scales.size(), 2u);
    EXPECT_EQ(source.scales[0], (Numbers{GMT_X, Scale(GMT_X)[0], Scale(GMT_X)[1]}));
    EXPECT_EQ(source.scales[1], (Numbers{GMT_Y, Scale(GMT_Y)[0], Scale(GMT_Y)[1]}));
}

TEST_F(GraphInput, ADragBackwardsIsTheSame) {
    Drag(X(0.6), Y(0.1), X(0.2), Y(0.8));
    ExpectScale(GMT_X, 20, 60);
    ExpectScale(GMT_Y, 100, 800);
}

TEST_F(GraphInput, ADragAlongOneAxisChangesThatAxisOnly) {
    Drag(X(0.2), Y(0.5), X(0.6), Y(0.5) + 5);
    ExpectScale(GMT_X, 20, 60);
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1000}));
    Drag(X(0.5), Y(0.2), X(0.5) + 5, Y(0.6));
    ExpectScale(GMT_X, 20, 60);
    ExpectScale(GMT_Y, 200, 600);
}

TEST_F(GraphInput, AClickChangesNothing) {
    Drag(X(0.5), Y(0.5), X(0.5) + 2, Y(0.5) - 2);
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 100}));
    EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1000}));
    EXPECT_EQ(GetFocus(), control);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(GraphInput, ADragEndsAtTheEdgeOfThePlot) {
    Drag(X(0.5), Y(0.5), -500, -500);
    ExpectScale(GMT_X, 0, 50);
    ExpectScale(GMT_Y, 500, 1000);
}

TEST_F(GraphInput, ADragThatBeginsOutsideOfThePlotIsNone) {
    Drag(0, 0, X(0.5), Y(0.5));
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 100}));
}

TEST_F(GraphInput, EscapeAndALostCaptureEndADrag) {
    Mouse(WM_LBUTTONDOWN, X(0.2), Y(0.2));
    Mouse(WM_MOUSEMOVE, X(0.7), Y(0.7));
    EXPECT_EQ(GetCapture(), control);
    Press(VK_ESCAPE);
    EXPECT_EQ(GetCapture(), nullptr);
    Mouse(WM_LBUTTONUP, X(0.7), Y(0.7));
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 100}));
    Mouse(WM_LBUTTONDOWN, X(0.2), Y(0.2));
    Mouse(WM_MOUSEMOVE, X(0.7), Y(0.7));
    SetCapture(owner);
    ReleaseCapture();
    Mouse(WM_LBUTTONUP, X(0.7), Y(0.7));
    EXPECT_EQ(Scale(GMT_X), (Numbers{0, 100}));
}

TEST_F(GraphInput, ADoubleClickAndHomeShowAll) {
    for (const bool bKey : {false, true}) {
        graph::SetScale(pGraph, GMT_X, 40, 41);
        graph::SetScale(pGraph, GMT_Y, 40, 41);
        source.scales.clear();
        if (bKey) {
            Press(VK_HOME);
        } else {
            Mouse(WM_LBUTTONDBLCLK, X(0.5), Y(0.5));
        }
        EXPECT_EQ(Scale(GMT_X), (Numbers{-5, 105}));
        EXPECT_EQ(Scale(GMT_Y), (Numbers{-50, 1050}));
        EXPECT_EQ(source.scales.size(), 2u);
    }
}

TEST_F(GraphInput, ArrowsMoveByATenth) {
    Press(VK_RIGHT);
    ExpectScale(GMT_X, 10, 110);
    Press(VK_LEFT);
    Press(VK_LEFT);
    ExpectScale(GMT_X, -10, 90);
    Press(VK_UP);
    ExpectScale(GMT_Y, 100, 1100);
    Press(VK_DOWN);
    Press(VK_DOWN);
    ExpectScale(GMT_Y, -100, 900);
}

TEST_F(GraphInput, PlusMinusAndPageKeysMagnifyAboutTheMiddle) {
    SendMessageA(control, WM_CHAR, '+', 1);
    ExpectScale(GMT_X, 10, 90);
    SendMessageA(control, WM_CHAR, '-', 1);
    ExpectScale(GMT_X, 0, 100);
    Press(VK_PRIOR);
    ExpectScale(GMT_Y, 100, 900);
    Press(VK_NEXT);
    Press(VK_NEXT);
    ExpectScale(GMT_Y, -125, 1125);
    SendMessageA(control, WM_CHAR, 'x', 1);
    ExpectScale(GMT_X, 0, 100);
}

TEST_F(GraphInput, MagnifyingHasAnEnd) {
    for (int i = 0; i < 500; ++i) SendMessageA(control, WM_CHAR, '+', 1);
    EXPECT_LT(Scale(GMT_X)[0], Scale(GMT_X)[1]);
    EXPECT_EQ(graph::Redraw(pGraph), 1);
    for (int i = 0; i < 5000; ++i) SendMessageA(control, WM_CHAR, '-', 1);
    EXPECT_TRUE(std::isfinite(Scale(GMT_X)[1] - Scale(GMT_X)[0]));
    EXPECT_EQ(graph::Redraw(pGraph), 1);
}

TEST_F(GraphInput, ALockedGraphKeepsItsScales) {
    for (const uint32_t uFlag : {GMT_FLAG_LOCKED, GMT_FLAG_CONTINUOUS}) {
        graph::SetFlag(pGraph, GMT_FLAG_LOCKED | GMT_FLAG_CONTINUOUS, 0);
        graph::SetFlag(pGraph, uFlag, 1);
        Drag(X(0.2), Y(0.8), X(0.6), Y(0.1));
        Mouse(WM_LBUTTONDBLCLK, X(0.5), Y(0.5));
        for (const int nKey : {VK_LEFT, VK_UP, VK_HOME, VK_PRIOR}) Press(nKey);
        SendMessageA(control, WM_CHAR, '+', 1);
        EXPECT_EQ(Scale(GMT_X), (Numbers{0, 100}));
        EXPECT_EQ(Scale(GMT_Y), (Numbers{0, 1000}));
        EXPECT_TRUE(source.scales.empty());
    }
}

TEST_F(GraphInput, TheSourceIsToldWhereThePointerStands) {
    Mouse(WM_MOUSEMOVE, X(0.25), Y(0.75));
    ASSERT_EQ(source.pointer.size(), 2u);
    EXPECT_NEAR(source.pointer[0], 25, 0.2);
    EXPECT_NEAR(source.pointer[1], 750, 4);
    source.pointer.clear();
    Mouse(WM_MOUSEMOVE, 0, 0);
    EXPECT_TRUE(source.pointer.empty()) << "outside of the plot";
}

TEST_F(GraphInput, TheDragIsSeenUntilItEnds) {
    const Picture before(control);
    Mouse(WM_LBUTTONDOWN, X(0.2), Y(0.2));
    Mouse(WM_MOUSEMOVE, X(0.7), Y(0.7));
    EXPECT_FALSE(Picture(control) == before);
    Press(VK_ESCAPE);
    Mouse(WM_MOUSEMOVE, 0, 0);
    SendMessageA(control, WM_MOUSELEAVE, 0, 0);
    SetFocus(owner);
    EXPECT_TRUE(Picture(control) == before);
}

TEST_F(GraphInput, ItWantsItsKeysAndLeavesTheOthersToTheDialog) {
    EXPECT_EQ(SendMessageA(control, WM_GETDLGCODE, 0, 0), DLGC_WANTARROWS | DLGC_WANTCHARS);
    EXPECT_EQ(SendMessageA(control, WM_NCHITTEST, 0, 0), HTCLIENT);
}

}  // namespace
}  // namespace graph_test
