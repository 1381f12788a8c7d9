#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "widgets/PathText.h"

namespace {

constexpr char kPath[] = "C:\\data\\cells\\patch\\2026\\run.dat";  // 32 characters

std::string Shorten(const char* szPath, int nMax) {
    char szOut[600];
    std::memset(szOut, 'x', sizeof szOut);
    ShortenPath(szPath, szOut, nMax);
    EXPECT_EQ(szOut[nMax + 1], 'x') << "written behind the buffer";
    return szOut;
}

std::string DocumentsFolder() {
    char szFolder[MAX_PATH] = "";
    EXPECT_TRUE(SUCCEEDED(
        SHGetFolderPathA(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, szFolder)));
    return szFolder;
}

TEST(ShortenPath, PathThatFitsStaysWhole) {
    EXPECT_EQ(Shorten(kPath, 200), kPath);
    EXPECT_EQ(Shorten(kPath, 32), kPath);
    EXPECT_EQ(Shorten("C:\\data\\run.dat\\", 200), "C:\\data\\run.dat");
}

TEST(ShortenPath, LeadingFoldersGoFirst) {
    EXPECT_EQ(Shorten(kPath, 31), "C:\\...\\cells\\patch\\2026\\run.dat");
    EXPECT_EQ(Shorten(kPath, 30), "C:\\...\\patch\\2026\\run.dat");
    EXPECT_EQ(Shorten(kPath, 24), "C:\\...\\2026\\run.dat");
    EXPECT_EQ(Shorten(kPath, 18), "C:\\...\\run.dat");
    EXPECT_EQ(Shorten(kPath, 14), "C:\\...\\run.dat");
}

TEST(ShortenPath, FileNameAloneIsTheLastForm) {
    EXPECT_EQ(Shorten(kPath, 13), "run.dat");
    EXPECT_EQ(Shorten(kPath, 7), "run.dat");
}

TEST(ShortenPath, FileNameThatDoesNotFitGivesNothing) {
    EXPECT_EQ(Shorten(kPath, 6), "");
    EXPECT_EQ(Shorten(kPath, 0), "");
    char szOut[8];
    EXPECT_FALSE(ShortenPath(kPath, szOut, 6));
    EXPECT_TRUE(ShortenPath(kPath, szOut, 7));
}

TEST(ShortenPath, EmptyTextGivesNothing) {
    EXPECT_EQ(Shorten("", 50), "");
    EXPECT_EQ(Shorten(nullptr, 50), "");
    EXPECT_EQ(Shorten("\\", 50), "");
    EXPECT_FALSE(ShortenPath(kPath, nullptr, 10));
}

TEST(ShortenPath, ServerAndShareAreTheRoot) {
    const char* szPath = "\\\\lab\\rig 1\\data\\patch\\run.dat";
    EXPECT_EQ(Shorten(szPath, 100), szPath);
    EXPECT_EQ(Shorten(szPath, 29), "\\\\lab\\rig 1\\...\\patch\\run.dat");
    EXPECT_EQ(Shorten(szPath, 24), "\\\\lab\\rig 1\\...\\run.dat");
    EXPECT_EQ(Shorten(szPath, 22), "run.dat");
}

TEST(ShortenPath, PathIsMadeFullFirst) {
    EXPECT_EQ(Shorten("C:/data/./old/../run.dat", 100), "C:\\data\\run.dat");
}

TEST(ShortenPath, DocumentsFolderIsShownByItsName) {
    const std::string sFolder = DocumentsFolder();
    const std::string sName = sFolder.substr(sFolder.rfind('\\') + 1);
    EXPECT_EQ(Shorten((sFolder + "\\cells\\run.dat").c_str(), 200), sName + "\\cells\\run.dat");
    EXPECT_EQ(
        Shorten((sFolder + "\\cells\\patch\\run.dat").c_str(), static_cast<int>(sName.size()) + 19),
        sName + "\\...\\patch\\run.dat");
    // The folder itself, and one whose name only begins like it, are paths like any other.
    EXPECT_EQ(Shorten(sFolder.c_str(), 300), sFolder);
    EXPECT_EQ(Shorten((sFolder + "2\\run.dat").c_str(), 300), sFolder + "2\\run.dat");
}

TEST(ShortenPath, LongPathsAreCutNotRefused) {
    const std::string sLong = "C:\\" + std::string(200, 'a') + "\\" + std::string(200, 'b') + "\\" +
                              std::string(400, 'c');
    const std::string sOut = Shorten(sLong.c_str(), 550);
    EXPECT_EQ(sOut, sLong.substr(0, 519));
}

class ShortenPathToWidthTest : public testing::Test {
  protected:
    void SetUp() override { m_hDC = GetDC(nullptr); }
    void TearDown() override { ReleaseDC(nullptr, m_hDC); }

    int Width(const std::string& sText) const {
        SIZE size = {};
        GetTextExtentPoint32A(m_hDC, sText.c_str(), static_cast<int>(sText.size()), &size);
        return static_cast<int>(size.cx);
    }
    std::string Shorten(const char* szPath, int nMax, int nWidth) const {
        char szOut[600];
        ShortenPathToWidth(m_hDC, szPath, szOut, nMax, nWidth);
        return szOut;
    }

    HDC m_hDC = nullptr;
};

TEST_F(ShortenPathToWidthTest, WidthDecidesHowMuchIsShown) {
    EXPECT_EQ(Shorten(kPath, 500, Width(kPath)), kPath);
    const std::string sShort = "C:\\...\\2026\\run.dat";
    EXPECT_EQ(Shorten(kPath, 500, Width(sShort)), sShort);
    EXPECT_EQ(Shorten(kPath, 500, Width("run.dat")), "run.dat");
}

TEST_F(ShortenPathToWidthTest, FileNameIsCutWhenNothingFits) {
    EXPECT_EQ(Shorten(kPath, 500, Width("run.")), "run.");
    EXPECT_EQ(Shorten(kPath, 500, 0), "");
    EXPECT_EQ(Shorten("", 500, 1000), "");
}

TEST_F(ShortenPathToWidthTest, CharactersStillCount) {
    EXPECT_EQ(Shorten(kPath, 14, 100000), "C:\\...\\run.dat");
    EXPECT_EQ(Shorten(kPath, 6, 100000), "");
}

}  // namespace
