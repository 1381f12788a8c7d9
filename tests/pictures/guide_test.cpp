// The figures of the user's page of the spectral windows, computed from the windows.

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "Windows.h"

namespace {

using namespace window_test;

// The width of the main lobe, both sides, at a level in decibels.
double WidthAt(const Transform& transform, double dLevel) {
    std::size_t i = 1;
    while (transform.Decibel(i) > dLevel) ++i;
    const double dBefore = transform.Decibel(i - 1);
    const double dPart = (dBefore - dLevel) / (dBefore - transform.Decibel(i));
    return 2.0 * (static_cast<double>(i) - 1.0 + dPart) / Transform::kPerBin;
}

double HighestSideLobe(const Transform& transform) {
    std::size_t i = 1;
    // Down to the first minimum, which every window of the page has.
    while (transform.Decibel(i) < transform.Decibel(i - 1)) ++i;
    double dMost = -1000.0;
    for (; i < transform.Size(); ++i) dMost = std::max(dMost, transform.Decibel(i));
    return dMost;
}

double NoiseBandwidth(const Window& window) {
    constexpr int kPoints = 4096;
    double dSum = 0.0;
    double dSquares = 0.0;
    for (int n = 0; n < kPoints; ++n) {
        const double d = WeightOf(window, (n + 0.5) / kPoints);
        dSum += d;
        dSquares += d * d;
    }
    return kPoints * dSquares / (dSum * dSum);
}

TEST(Guide, HasTheFiguresOfTheWindows) {
    std::ifstream file(ZX_SOURCE_DIR "/docs/spectral-windows.md");
    ASSERT_TRUE(file.is_open());
    int nRows = 0;
    for (std::string sLine; std::getline(file, sLine);) {
        for (const Window& window : AllWindows()) {
            std::string sName = window.szName;
            if (window.eType == 7 || window.eType == 8)
                sName += " " + std::to_string(static_cast<int>(window.dAlpha));
            if (sLine.rfind("| " + sName + " |", 0) != 0) continue;
            SCOPED_TRACE(sName);
            ++nRows;
            std::istringstream in(sLine.substr(sName.size() + 4));
            double dLobe = 0.0, dThree = 0.0, dSix = 0.0, dNoise = 0.0;
            char chBar = 0;
            in >> dLobe >> chBar >> dThree >> chBar >> dSix >> chBar >> dNoise;
            ASSERT_FALSE(in.fail());
            const Transform transform(window, 24);
            EXPECT_NEAR(HighestSideLobe(transform), dLobe, 0.02);
            EXPECT_NEAR(WidthAt(transform, -3.0103), dThree, 0.002);
            EXPECT_NEAR(WidthAt(transform, -6.0206), dSix, 0.002);
            EXPECT_NEAR(NoiseBandwidth(window), dNoise, 0.001);
        }
    }
    EXPECT_EQ(nRows, 16);
}

}  // namespace
