// The pictures of the spectral windows are what their formulas say, pixel by pixel.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <vector>

#include "Picture.h"
#include "Windows.h"

namespace {

using namespace picture_test;
using namespace window_test;

constexpr int kBins = 16;
constexpr double kFloor = -120.0;

int ShapeId(const Window& window) {
    const int nIndex = static_cast<int>(window.dAlpha);
    if (window.eType == 7) return 2540 + nIndex;
    if (window.eType == 8) return 2580 + nIndex;
    return 2500 + window.eType;
}

int MagnitudeId(const Window& window) {
    return ShapeId(window) + 20;
}

double ScaleOf(const Picture& picture) {
    return picture.Width() / 176.0;
}

Plot ShapePlot(const Picture& picture) {
    return Plot(picture, ScaleOf(picture), 18, 12, 16, 20);
}

Plot MagnitudePlot(const Picture& picture) {
    return Plot(picture, ScaleOf(picture), 34, 8, 16, 20);
}

TEST(Picture, OfEveryWindowIsThereAtTwoSizesInOneBitAPixel) {
    EXPECT_EQ(AllWindows().size(), 30u);
    for (const Window& window : AllWindows()) {
        for (const int nId : {ShapeId(window), MagnitudeId(window)}) {
            for (const int nLarger : {0, 200}) {
                SCOPED_TRACE(nId + nLarger);
                const Picture picture(nId + nLarger);
                ASSERT_TRUE(picture.IsThere());
                EXPECT_EQ(picture.Width(), nLarger == 0 ? 176 : 264);
                EXPECT_EQ(picture.Height(), nLarger == 0 ? 126 : 190);
                EXPECT_EQ(picture.Header().biSize, 40u);
                EXPECT_EQ(picture.Header().biBitCount, 1);
                const std::uint8_t colours[] = {0, 0, 0, 0, 255, 255, 255, 0};
                EXPECT_EQ(std::memcmp(picture.Bytes().data() + 40, colours, 8), 0);
                for (int y = 0; y < picture.Height(); ++y) {
                    // The edge of the control is drawn over the outermost pixels.
                    EXPECT_FALSE(picture.IsInk(0, y) || picture.IsInk(picture.Width() - 1, y));
                }
                for (int x = 0; x < picture.Width(); ++x)
                    EXPECT_FALSE(picture.IsInk(x, 0) || picture.IsInk(x, picture.Height() - 1));
            }
        }
    }
}

TEST(Picture, IsLoadedAsOneThatTakesTheColoursOfItsControl) {
    for (const int nId : {2500, 2770}) {
        SCOPED_TRACE(nId);
        const HBITMAP hBitmap = LoadBitmapA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(nId));
        ASSERT_NE(hBitmap, nullptr);
        BITMAP bitmap = {};
        GetObjectA(hBitmap, sizeof bitmap, &bitmap);
        EXPECT_EQ(bitmap.bmBitsPixel, 1);

        // Copied to a surface of colours, ink is the text's and paper the background's.
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = bitmap.bmWidth;
        info.bmiHeader.biHeight = -bitmap.bmHeight;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pBits = nullptr;
        const HDC hTarget = CreateCompatibleDC(nullptr);
        const HDC hSource = CreateCompatibleDC(hTarget);
        const HBITMAP hSurface =
            CreateDIBSection(hTarget, &info, DIB_RGB_COLORS, &pBits, nullptr, 0);
        const HGDIOBJ hBefore = SelectObject(hTarget, hSurface);
        const HGDIOBJ hBeforeSource = SelectObject(hSource, hBitmap);
        SetTextColor(hTarget, RGB(200, 10, 20));
        SetBkColor(hTarget, RGB(30, 40, 250));
        BitBlt(hTarget, 0, 0, bitmap.bmWidth, bitmap.bmHeight, hSource, 0, 0, SRCCOPY);
        const Picture picture(nId);
        EXPECT_EQ(GetPixel(hTarget, 1, 1), RGB(30, 40, 250));
        int nInk = 0;
        for (int x = 0; x < picture.Width(); ++x) {
            const int y = picture.Height() - 1 - picture.Height() / 6;  // through the ticks
            const bool bInk = picture.IsInk(x, y);
            nInk += bInk;
            EXPECT_EQ(GetPixel(hTarget, x, y), bInk ? RGB(200, 10, 20) : RGB(30, 40, 250)) << x;
        }
        EXPECT_GT(nInk, 0);
        SelectObject(hSource, hBeforeSource);
        SelectObject(hTarget, hBefore);
        DeleteDC(hSource);
        DeleteDC(hTarget);
        DeleteObject(hSurface);
        DeleteObject(hBitmap);
    }
}

TEST(Shape, IsTheWindowsFormula) {
    for (const Window& window : AllWindows()) {
        for (const int nLarger : {0, 200}) {
            SCOPED_TRACE(ShapeId(window) + nLarger);
            const Picture picture(ShapeId(window) + nLarger);
            const Plot plot = ShapePlot(picture);
            ExpectCurve(picture, plot, {}, [&](double dFrom, double dTo) {
                // Rising to the middle and falling behind it.
                const double dAtFrom = WeightOf(window, dFrom);
                const double dAtTo = WeightOf(window, dTo);
                const double dMost = dFrom < 0.5 && dTo > 0.5 ? 1.0 : std::max(dAtFrom, dAtTo);
                return Rows{plot.Row(dMost), plot.Row(std::min(dAtFrom, dAtTo))};
            });
        }
    }
}

TEST(Magnitude, IsTheTransformOfTheWindow) {
    for (const Window& window : AllWindows()) {
        const Transform transform(window, kBins);
        for (const int nLarger : {0, 200}) {
            SCOPED_TRACE(MagnitudeId(window) + nLarger);
            const Picture picture(MagnitudeId(window) + nLarger);
            const Plot plot = MagnitudePlot(picture);
            std::set<int> dotted;
            for (const double dLevel : {-40.0, -80.0})
                dotted.insert(static_cast<int>(std::lround(plot.Row(1.0 - dLevel / kFloor))));
            ExpectCurve(picture, plot, dotted, [&](double dFrom, double dTo) {
                const double dScale = kBins * Transform::kPerBin;
                const auto nFrom = static_cast<std::size_t>(std::ceil(dFrom * dScale));
                const auto nTo =
                    std::max(nFrom, static_cast<std::size_t>(std::floor(dTo * dScale)));
                double dMost = -1000.0;
                double dLeast = 1000.0;
                for (std::size_t i = nFrom; i <= nTo; ++i) {
                    dMost = std::max(dMost, transform.Decibel(i));
                    dLeast = std::min(dLeast, transform.Decibel(i));
                    if (i > nFrom && transform.Value(i) * transform.Value(i - 1) <= 0.0)
                        dLeast = kFloor;
                }
                return Rows{plot.Row(1.0 - dMost / kFloor), plot.Row(1.0 - dLeast / kFloor)};
            });
        }
    }
}

TEST(Axes, HaveTheirTicksAndLabels) {
    for (const Window& window : AllWindows()) {
        for (const int nLarger : {0, 200}) {
            for (const bool bMagnitude : {false, true}) {
                const int nId = (bMagnitude ? MagnitudeId(window) : ShapeId(window)) + nLarger;
                SCOPED_TRACE(nId);
                const Picture picture(nId);
                const Plot plot = bMagnitude ? MagnitudePlot(picture) : ShapePlot(picture);
                for (int x = plot.left; x <= plot.right; ++x)
                    ASSERT_TRUE(picture.IsInk(x, plot.bottom)) << x;
                for (int y = plot.top; y <= plot.bottom; ++y)
                    ASSERT_TRUE(picture.IsInk(plot.left, y)) << y;
                std::vector<int> ticks;
                for (int x = plot.left - 1; x <= plot.right + 1; ++x) {
                    if (picture.IsInk(x, plot.bottom + 2) && picture.IsInk(x, plot.bottom + 3))
                        ticks.push_back(x);
                }
                ASSERT_EQ(ticks.size(), bMagnitude ? 5u : 3u);
                for (std::size_t i = 0; i < ticks.size(); ++i) {
                    EXPECT_NEAR(ticks[i],
                                plot.left + double(i) / (double(ticks.size()) - 1.0) *
                                                (plot.right - plot.left),
                                0.51);
                }
                ticks.clear();
                for (int y = plot.top - 1; y <= plot.bottom + 1; ++y) {
                    if (picture.IsInk(plot.left - 2, y) && picture.IsInk(plot.left - 3, y))
                        ticks.push_back(y);
                }
                ASSERT_EQ(ticks.size(), bMagnitude ? 7u : 3u);
                for (std::size_t i = 0; i < ticks.size(); ++i) {
                    EXPECT_NEAR(ticks[i],
                                plot.top + double(i) / (double(ticks.size()) - 1.0) *
                                               (plot.bottom - plot.top),
                                0.51);
                }
                // Lettering left of the axis and below it.
                int nInk = 0;
                for (int y = 0; y < picture.Height(); ++y) {
                    for (int x = 0; x < plot.left - 5; ++x) nInk += picture.IsInk(x, y);
                }
                EXPECT_GT(nInk, bMagnitude ? 60 : 10);
                nInk = 0;
                for (int y = plot.bottom + 5; y < picture.Height(); ++y) {
                    for (int x = 0; x < picture.Width(); ++x) nInk += picture.IsInk(x, y);
                }
                EXPECT_GT(nInk, 40);
            }
        }
    }
}

// The text above the plot of a series tells one alpha from the others; shape and magnitude say the
// same.
TEST(Alpha, IsNamedOnThePicturesOfASeries) {
    const auto lettering = [](int nId) {
        const Picture picture(nId);
        std::vector<bool> ink;
        const int nTop = picture.Width() == 264 ? 20 : 13;
        for (int y = 0; y < nTop; ++y) {
            for (int x = picture.Width() / 2; x < picture.Width(); ++x)
                ink.push_back(picture.IsInk(x, y));
        }
        return ink;
    };
    for (const int nLarger : {0, 200}) {
        const std::vector<bool> none = lettering(2500 + nLarger);
        EXPECT_EQ(std::count(none.begin(), none.end(), true), 0);
        std::set<std::vector<bool>> texts;
        for (int i = 0; i <= 10; ++i) {
            const std::vector<bool> kaiser = lettering(2540 + nLarger + i);
            EXPECT_GT(std::count(kaiser.begin(), kaiser.end(), true), 60) << i;
            EXPECT_EQ(lettering(2580 + nLarger + i), kaiser) << i;
            texts.insert(kaiser);
        }
        EXPECT_EQ(texts.size(), 11u);
    }
}

}  // namespace
