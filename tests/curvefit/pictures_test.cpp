// The equation pictures as a control shows them: all there, inside their frame, legible when small.

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "CurveFitFixture.h"
#include "platform/platform.h"

namespace {

using namespace curvefit_test;

std::vector<std::string> NamesInTable() {
    std::vector<std::string> names;
    std::istringstream text(ReadFile("resources/pictures/equations.txt"));
    for (std::string sLine; std::getline(text, sLine);) {
        if (sLine.rfind("EQ_", 0) == 0) names.push_back(sLine.substr(0, sLine.find(' ')));
    }
    return names;
}

int Word(const std::string& sBytes, std::size_t nAt) {
    return static_cast<int16_t>(static_cast<unsigned char>(sBytes[nAt]) |
                                static_cast<unsigned char>(sBytes[nAt + 1]) << 8);
}

std::string PictureOf(const std::string& sName) {
    const HMODULE hModule = GetModuleHandleA(nullptr);
    const HRSRC hResource = FindResourceA(hModule, sName.c_str(), "METAFILE");
    if (hResource == nullptr) return "";
    const auto* pBytes = static_cast<const char*>(LockResource(LoadResource(hModule, hResource)));
    return {pBytes, SizeofResource(hModule, hResource)};
}

TEST(Pictures, AreTheFiftyTwoOfTheTable) {
    const std::set<std::string> expected = {"EQ_BETA",
                                            "EQ_BINOM",
                                            "EQ_QVBOLT",
                                            "EQ_FBOLTS",
                                            "EQ_FBOLTM",
                                            "EQ_SBOLT",
                                            "EQ_ZDBOLT1",
                                            "EQ_ZDBOLT2",
                                            "EQ_CURTIM",
                                            "EQ_ALPHA",
                                            "EQ_CUMUL",
                                            "EQ_LOGEXP",
                                            "EQ_POWEXP",
                                            "EQ_MPOWEXP",
                                            "EQ_PDCEXP",
                                            "EQ_EXPPROD",
                                            "EQ_PDCEXPNOC",
                                            "EQ_SLPEXP",
                                            "EQ_STDEXP",
                                            "EQ_FTEXPN",
                                            "EQ_FTEXPC",
                                            "EQ_GAUSS",
                                            "EQ_GHK",
                                            "EQ_EXTGHK",
                                            "EQ_HILL",
                                            "EQ_HILLENZ",
                                            "EQ_LANGHILL",
                                            "EQ_LINBUR",
                                            "EQ_LOGISTIC",
                                            "EQ_LOREND",
                                            "EQ_LORENF",
                                            "EQ_LORENT",
                                            "EQ_MICMEN",
                                            "EQ_NERNST",
                                            "EQ_PARABN",
                                            "EQ_PARABC",
                                            "EQ_POISS",
                                            "EQ_POLYA",
                                            "EQ_LIN",
                                            "EQ_LINZI",
                                            "EQ_TAUFUN",
                                            "EQ_NOFUN",
                                            "EQ_RECTANGULAR_WINDOW",
                                            "EQ_BARTLETT_WINDOW",
                                            "EQ_BLACKMAN_WINDOW",
                                            "EQ_BLACKMANHARRIS3_WINDOW",
                                            "EQ_BLACKMANHARRIS4_WINDOW",
                                            "EQ_COSINE_WINDOW",
                                            "EQ_HAMMING_WINDOW",
                                            "EQ_KAISER_WINDOW",
                                            "EQ_POISSON_WINDOW",
                                            "EQ_VONHANN_WINDOW"};
    const std::vector<std::string> names = NamesInTable();
    EXPECT_EQ(names.size(), 52u);
    EXPECT_EQ(std::set<std::string>(names.begin(), names.end()), expected);
    for (const std::string& sName : names) EXPECT_NE(PictureOf(sName), "") << sName;
}

TEST(Pictures, ShareOneFrameOfSixToOne) {
    for (const std::string& sName : NamesInTable()) {
        SCOPED_TRACE(sName);
        const std::string sBytes = PictureOf(sName);
        ASSERT_GT(sBytes.size(), 40u);
        EXPECT_EQ(Word(sBytes, 0), static_cast<int16_t>(0xCDD7));
        EXPECT_EQ(Word(sBytes, 2), static_cast<int16_t>(0x9AC6));
        EXPECT_EQ(Word(sBytes, 6), 0);
        EXPECT_EQ(Word(sBytes, 8), 0);
        EXPECT_EQ(Word(sBytes, 10), 24000);
        EXPECT_EQ(Word(sBytes, 12), 4000);
        int nSum = 0;
        for (std::size_t i = 0; i < 20; i += 2) nSum ^= Word(sBytes, i);
        EXPECT_EQ(Word(sBytes, 20), nSum);
        // The header of the metafile behind it counts its words.
        const auto nWords = static_cast<std::size_t>(static_cast<uint16_t>(Word(sBytes, 28)) |
                                                     Word(sBytes, 30) << 16);
        EXPECT_EQ(nWords * 2, sBytes.size() - 22);
    }
}

TEST(Pictures, OutlinesLieInsideTheFrame) {
    constexpr int kPolyPolygon = 0x0538;
    for (const std::string& sName : NamesInTable()) {
        SCOPED_TRACE(sName);
        const std::string sBytes = PictureOf(sName);
        std::size_t nAt = 22 + 18;
        int nPolygons = 0;
        for (int nFunction = -1; nFunction != 0;) {
            ASSERT_LE(nAt + 6, sBytes.size());
            const auto nSize = static_cast<std::size_t>(static_cast<uint16_t>(Word(sBytes, nAt)));
            nFunction = Word(sBytes, nAt + 4);
            if (nFunction == kPolyPolygon) {
                const int nCount = Word(sBytes, nAt + 6);
                nPolygons += nCount;
                for (std::size_t i = nAt + 8 + 2 * static_cast<std::size_t>(nCount);
                     i + 4 <= nAt + 2 * nSize; i += 4) {
                    EXPECT_GE(Word(sBytes, i), 200);
                    EXPECT_LE(Word(sBytes, i), 23800);
                    EXPECT_GE(Word(sBytes, i + 2), 200);
                    EXPECT_LE(Word(sBytes, i + 2), 3800);
                }
            }
            nAt += 2 * nSize;
        }
        EXPECT_EQ(nAt, sBytes.size());
        EXPECT_GE(nPolygons, 5);
    }
}

}  // namespace
