#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "WindowPixels.h"
#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "widgets/Framework.h"
#include "widgets/ProgressBar.h"

namespace {

using CommonCtls::CProgressBar;
using framework_test::PixelsOf;

class ProgressBar : public testing::Test {
  protected:
    ProgressBar() {
        InitDialogFramework(GetModuleHandleA(nullptr));
        hWnd = window.Add(CommonCtls::kProgressBarClass, "", 40, 0, 10, 10, 104, 20);
        pBar = CProgressBar::FromWindow(hWnd);
    }

    test_support::RecordingWindow window;
    HWND hWnd = nullptr;
    CProgressBar* pBar = nullptr;
};

TEST_F(ProgressBar, StartsAtZeroOfAHundred) {
    ASSERT_NE(pBar, nullptr);
    int nMin = -1;
    int nMax = -1;
    pBar->GetRange(&nMin, &nMax);
    EXPECT_EQ(nMin, 0);
    EXPECT_EQ(nMax, 100);
    EXPECT_EQ(pBar->GetPos(), 0);
    EXPECT_EQ(pBar->GetPercent(), 0);
    pBar->GetRange(nullptr, nullptr);
}

TEST_F(ProgressBar, StepsByTenAndStopsAtTheEnd) {
    for (int i = 1; i <= 12; ++i) {
        pBar->StepIt();
        EXPECT_EQ(pBar->GetPos(), std::min(10 * i, 100));
    }
    pBar->SetStep(-30);
    pBar->StepIt();
    EXPECT_EQ(pBar->GetPos(), 70);
    pBar->SetStep(INT_MAX);
    pBar->StepIt();
    EXPECT_EQ(pBar->GetPos(), 100);
}

TEST_F(ProgressBar, ThePositionIsPulledIntoTheRange) {
    pBar->SetPos(500);
    EXPECT_EQ(pBar->GetPos(), 100);
    pBar->SetPos(-5);
    EXPECT_EQ(pBar->GetPos(), 0);
    pBar->SetRange(20, 40);
    EXPECT_EQ(pBar->GetPos(), 20);
    pBar->SetPos(25);
    EXPECT_EQ(pBar->GetPercent(), 25);
}

TEST_F(ProgressBar, PercentsHoldForTheWidestRangeAndForNone) {
    pBar->SetRange(INT_MIN, INT_MAX);
    pBar->SetPos(0);
    EXPECT_EQ(pBar->GetPercent(), 50);
    pBar->SetPos(INT_MAX);
    EXPECT_EQ(pBar->GetPercent(), 100);
    pBar->SetRange(5, 5);
    EXPECT_EQ(pBar->GetPercent(), 0);
    pBar->SetRange(10, 0);
    EXPECT_EQ(pBar->GetPercent(), 0);
}

TEST_F(ProgressBar, TheFontIsTheSystemFontUntilOneIsSet) {
    const auto hSystem = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(pBar->GetFont(), hSystem);
    const auto hFont = static_cast<HFONT>(GetStockObject(DEFAULT_GUI_FONT));
    SendMessageA(hWnd, WM_SETFONT, reinterpret_cast<WPARAM>(hFont), 0);
    EXPECT_EQ(pBar->GetFont(), hFont);
    EXPECT_EQ(SendMessageA(hWnd, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(hFont));
    pBar->SetFont(nullptr);
    EXPECT_EQ(pBar->GetFont(), hSystem);
}

TEST_F(ProgressBar, PaintsItsPositionAndItsText) {
    pBar->SetFormat("");
    const std::vector<COLORREF> empty = PixelsOf(hWnd);
    pBar->SetPos(50);
    const std::vector<COLORREF> half = PixelsOf(hWnd);
    EXPECT_NE(half, empty);
    pBar->SetFormat("%0%%");
    const std::vector<COLORREF> labelled = PixelsOf(hWnd);
    KNOWN_GAP(kHeadless, "text leaves no pixels", labelled != half);
    pBar->SetFormat("50%%");
    EXPECT_EQ(PixelsOf(hWnd), labelled);
    pBar->SetFormat(nullptr);
    EXPECT_EQ(PixelsOf(hWnd), half);
}

TEST_F(ProgressBar, HalfOfItIsFilledAtHalf) {
    pBar->SetFormat("");
    pBar->SetPos(50);
    const std::vector<COLORREF> pixels = PixelsOf(hWnd);
    const std::size_t nRow = 10 * 104;
    EXPECT_EQ(pixels[nRow + 10], pixels[nRow + 45]);
    EXPECT_NE(pixels[nRow + 10], pixels[nRow + 60]);
    EXPECT_EQ(pixels[nRow + 60], pixels[nRow + 95]);
}

TEST_F(ProgressBar, ALongFormatIsCut) {
    pBar->SetFormat(std::string(5000, 'x').c_str());
    pBar->SetFormat((std::string(2040, 'x') + "%0%9%%").c_str());
    PixelsOf(hWnd);
    InvalidateRect(hWnd, nullptr, FALSE);
    UpdateWindow(hWnd);
}

TEST_F(ProgressBar, OtherWindowsHaveNone) {
    EXPECT_EQ(CProgressBar::FromWindow(nullptr), nullptr);
    EXPECT_EQ(CProgressBar::FromWindow(window), nullptr);
    EXPECT_EQ(CProgressBar::FromWindow(window.Add("Edit", "", 41, 0)), nullptr);
}

}  // namespace
