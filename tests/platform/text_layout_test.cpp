// How wide and how high texts are, and where their lines break, in the font of dialogs.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "platform/platform.h"

namespace {

class TextLayout : public testing::Test {
  protected:
    TextLayout() : m_dc(CreateCompatibleDC(nullptr)), m_font(MakeFont(-11)) {
        SelectObject(m_dc, m_font);
    }
    ~TextLayout() override {
        DeleteDC(m_dc);
        DeleteObject(m_font);
    }

    static HFONT MakeFont(int height, int weight = FW_NORMAL, const char* face = "MS Shell Dlg") {
        return CreateFontA(height, 0, 0, 0, weight, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                           OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                           face);
    }
    int Width(const std::string& text) const {
        SIZE size = {};
        EXPECT_TRUE(
            GetTextExtentPoint32A(m_dc, text.c_str(), static_cast<int>(text.size()), &size));
        return size.cx;
    }
    struct Box {
        int width;
        int height;
        bool operator==(const Box&) const = default;
        friend void PrintTo(const Box& box, std::ostream* out) {
            *out << box.width << " x " << box.height;
        }
    };
    Box Measure(const std::string& text, UINT format, int width = 0, int height = 0) const {
        RECT rect = {0, 0, width, height};
        DrawTextA(m_dc, text.c_str(), -1, &rect, format | DT_CALCRECT);
        return {rect.right, rect.bottom};
    }
    int Lines(const std::string& text, int width, UINT format = DT_WORDBREAK) const {
        return Measure(text, format, width).height / 13;
    }
    // The text with the ellipsis that DT_MODIFYSTRING puts in.
    std::string Cut(const std::string& text, UINT format, int width, int height = 20) const {
        char buffer[200] = "";
        std::strcpy(buffer, text.c_str());
        RECT rect = {0, 0, width, height};
        DrawTextA(m_dc, buffer, -1, &rect, format | DT_MODIFYSTRING);
        return buffer;
    }

    HDC m_dc;
    HFONT m_font;
};

TEST_F(TextLayout, TheDialogFontHasABaseUnitOfSixByThirteen) {
    TEXTMETRICA metrics = {};
    ASSERT_TRUE(GetTextMetricsA(m_dc, &metrics));
    EXPECT_EQ(13, metrics.tmHeight);
    EXPECT_EQ(11, metrics.tmAscent);
    EXPECT_EQ(2, metrics.tmDescent);
    EXPECT_EQ(2, metrics.tmInternalLeading);
    EXPECT_EQ(0, metrics.tmExternalLeading);
    EXPECT_EQ(400, metrics.tmWeight);
    const int alphabet = Width("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(330, alphabet);
    EXPECT_EQ(6, (alphabet / 26 + 1) / 2);
}

TEST_F(TextLayout, OtherFontsHaveTheirOwnWidths) {
    struct Row {
        const char* face;
        int height, weight, cell, alphabet;
    };
    constexpr Row kRows[] = {
        {"Tahoma", -11, FW_BOLD, 13, 376},          {"Tahoma", -13, FW_NORMAL, 16, 385},
        {"Tahoma", -16, FW_NORMAL, 19, 475},        {"Tahoma", -16, FW_BOLD, 19, 537},
        {"Tahoma", -32, FW_NORMAL, 39, 919},        {"MS Sans Serif", -11, FW_NORMAL, 13, 323},
        {"MS Sans Serif", -13, FW_NORMAL, 16, 405}, {"MS Sans Serif", -16, FW_NORMAL, 20, 483},
        {"MS Sans Serif", -11, FW_BOLD, 13, 375},   {"Courier", -13, FW_NORMAL, 13, 416},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(std::string(row.face) + " " + std::to_string(row.height));
        HFONT font = MakeFont(row.height, row.weight, row.face);
        HGDIOBJ old = SelectObject(m_dc, font);
        TEXTMETRICA metrics = {};
        GetTextMetricsA(m_dc, &metrics);
        EXPECT_EQ(row.cell, metrics.tmHeight);
        EXPECT_EQ(row.alphabet, Width("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
        SelectObject(m_dc, old);
        DeleteObject(font);
    }
}

TEST_F(TextLayout, AnEmptyTextHasNoExtent) {
    SIZE size = {9, 9};
    EXPECT_TRUE(GetTextExtentPoint32A(m_dc, "", 0, &size));
    EXPECT_EQ(0, size.cx);
    EXPECT_EQ(0, size.cy);
    EXPECT_FALSE(GetTextExtentPoint32A(m_dc, "abc", -1, &size));
}

TEST_F(TextLayout, BytesAbove127HaveTheWidthOfTheirCharacter) {
    EXPECT_EQ(Width("u"), Width("\xFC"));
    EXPECT_EQ(7, Width("\xB5"));
    EXPECT_EQ(15, Width("\x89"));
}

TEST_F(TextLayout, OneLineIsAsWideAsItsCharacters) {
    EXPECT_EQ((Box{27, 13}), Measure("Hello", DT_SINGLELINE));
    EXPECT_EQ((Box{27, 13}), Measure("Hello", 0));
}

TEST_F(TextLayout, AmpersandsMarkMnemonics) {
    EXPECT_EQ((Box{71, 13}), Measure("&Hello && World", DT_SINGLELINE));
    EXPECT_EQ((Box{87, 13}), Measure("&Hello && World", DT_SINGLELINE | DT_NOPREFIX));
    EXPECT_EQ((Box{71, 13}), Measure("&Hello && World", DT_SINGLELINE | DT_HIDEPREFIX));
    EXPECT_EQ((Box{8, 13}), Measure("&", 0));
    EXPECT_EQ((Box{15, 13}), Measure("a&", 0));
    EXPECT_EQ((Box{21, 13}), Measure("a&&&b", 0));
}

TEST_F(TextLayout, LineEndsMakeLines) {
    EXPECT_EQ((Box{58, 26}), Measure("Hello\nWorld wide", 0));
    EXPECT_EQ((Box{58, 26}), Measure("Hello\r\nWorld wide", 0));
    EXPECT_EQ((Box{58, 26}), Measure("Hello\rWorld wide", 0));
    EXPECT_EQ((Box{96, 13}), Measure("Hello\nWorld wide", DT_SINGLELINE));
    EXPECT_EQ((Box{27, 39}), Measure("Hello\n\nx", 0));
    EXPECT_EQ((Box{27, 13}), Measure("Hello\n", 0));
    EXPECT_EQ(5, Lines("a\n\rb\r\rc\r\nd", 60, 0));
}

TEST_F(TextLayout, WordsBreakAtSpaces) {
    const char kText[] = "the quick brown fox jumps over the lazy dog";
    EXPECT_EQ((Box{97, 39}), Measure(kText, DT_WORDBREAK, 100));
    EXPECT_EQ((Box{58, 65}), Measure(kText, DT_WORDBREAK, 60));
    EXPECT_EQ((Box{33, 117}), Measure(kText, DT_WORDBREAK | DT_NOPREFIX, 33));
    EXPECT_EQ((Box{32, 65}), Measure("one two\nthree four five", DT_WORDBREAK, 40));
    EXPECT_EQ((Box{94, 13}), Measure("one   two   three   ", DT_WORDBREAK, 200));
    EXPECT_EQ((Box{29, 26}), Measure("  one two", DT_WORDBREAK, 30));
}

TEST_F(TextLayout, SpacesBetweenLinesStandWhereTheyFit) {
    const char kText[] = "one   two   three";
    EXPECT_EQ(5, Lines(kText, 20));
    EXPECT_EQ(5, Lines(kText, 23));
    EXPECT_EQ(4, Lines(kText, 25));
    EXPECT_EQ(3, Lines(kText, 26));
    EXPECT_EQ(3, Lines(kText, 29));
    EXPECT_EQ(2, Lines(kText, 60));
    EXPECT_EQ(3, Lines("a  b", 8, DT_WORDBREAK | DT_RIGHT));
}

TEST_F(TextLayout, WordsBreakAfterHyphensAndBeforeSigns) {
    EXPECT_EQ((Box{29, 39}), Measure("one-two-three", DT_WORDBREAK, 30));
    for (char sign : std::string("!$%+-/?\\|}")) {
        SCOPED_TRACE(sign);
        EXPECT_EQ(2, Lines(std::string("aaaa") + sign + "bbbb", 40));
    }
    for (char sign : std::string("\"#'()*,.:;<=>@[]^_`{~")) {
        SCOPED_TRACE(sign);
        EXPECT_EQ(1, Lines(std::string("aaaa") + sign + "bbbb", 40));
    }
    EXPECT_EQ(1, Lines("aaaa-5555", 40)) << "a hyphen before digits is a sign";
    EXPECT_EQ(1, Lines("aaaa/5555", 40));
}

TEST_F(TextLayout, AWordThatIsTooLongSticksOutOrIsCut) {
    EXPECT_EQ((Box{171, 26}), Measure("supercalifragilisticexpialidocious word", DT_WORDBREAK, 60));
    EXPECT_EQ((Box{171, 26}), Measure("word supercalifragilisticexpialidocious", DT_WORDBREAK, 60));
    EXPECT_EQ((Box{59, 52}), Measure("supercalifragilisticexpialidocious word",
                                     DT_WORDBREAK | DT_EDITCONTROL, 60));
    EXPECT_EQ(1, Lines("ab", 3));
    EXPECT_EQ(2, Lines("ab", 3, DT_WORDBREAK | DT_EDITCONTROL));
    EXPECT_EQ(2, Lines("ab", 0, DT_WORDBREAK | DT_EDITCONTROL));
    EXPECT_EQ(2, Lines("ab c", 0));
}

TEST_F(TextLayout, TabsExpandToEightAverageCharacters) {
    EXPECT_EQ((Box{62, 13}), Measure("a\tb", DT_EXPANDTABS));
    EXPECT_EQ((Box{62, 13}), Measure("a\tb", DT_EXPANDTABS | DT_SINGLELINE));
    EXPECT_EQ((Box{174, 13}), Measure("abcdefghijklm\tb\tc", DT_EXPANDTABS));
    EXPECT_EQ((Box{24, 13}), Measure("a\tb", 0));
}

TEST_F(TextLayout, OneLineStandsInTheMiddleOrAtTheBottomOfItsBox) {
    RECT rect = {0, 0, 100, 40};
    EXPECT_EQ(13, DrawTextA(m_dc, "Hello wide world", -1, &rect, DT_SINGLELINE));
    EXPECT_EQ(27, DrawTextA(m_dc, "Hello wide world", -1, &rect, DT_SINGLELINE | DT_VCENTER));
    EXPECT_EQ(40, DrawTextA(m_dc, "Hello wide world", -1, &rect, DT_SINGLELINE | DT_BOTTOM));
    EXPECT_EQ((Box{56, 26}), Measure("Hello\nwide world", DT_VCENTER | DT_CENTER, 100, 40));
}

TEST_F(TextLayout, LinesBelowTheBoxAreNotDrawn) {
    const auto height = [&](int room, UINT format) {
        RECT rect = {0, 0, 50, room};
        return DrawTextA(m_dc, "a\nb\nc\nd", -1, &rect, format);
    };
    EXPECT_EQ(13, height(12, 0));
    EXPECT_EQ(26, height(13, 0));
    EXPECT_EQ(26, height(25, 0));
    EXPECT_EQ(52, height(39, 0));
    EXPECT_EQ(52, height(5, DT_NOCLIP));
    EXPECT_EQ(13, height(14, DT_EDITCONTROL)) << "no line in part";
    EXPECT_EQ(26, height(25, DT_EDITCONTROL));
}

TEST_F(TextLayout, EllipsesStandForWhatIsCut) {
    const char kText[] = "Hello wide world";
    EXPECT_EQ("Hello wi...", Cut(kText, DT_SINGLELINE | DT_END_ELLIPSIS, 50));
    EXPECT_EQ("Hello wi...", Cut(kText, DT_SINGLELINE | DT_WORD_ELLIPSIS, 50));
    EXPECT_EQ("...", Cut(kText, DT_SINGLELINE | DT_END_ELLIPSIS, 5));
    EXPECT_EQ("H...", Cut(kText, DT_SINGLELINE | DT_END_ELLIPSIS, 17));
    EXPECT_EQ(kText, Cut(kText, DT_SINGLELINE | DT_END_ELLIPSIS, 100));
    EXPECT_EQ((Box{50, 13}), Measure(kText, DT_SINGLELINE | DT_END_ELLIPSIS, 50));
}

TEST_F(TextLayout, PathsKeepTheirLastPart) {
    constexpr UINT kPath = DT_SINGLELINE | DT_PATH_ELLIPSIS;
    EXPECT_EQ("c:\\wi...\\some.dll", Cut("c:\\windows\\system\\some.dll", kPath, 80));
    EXPECT_EQ("c:...\\some.dll", Cut("c:\\windows\\system\\some.dll", kPath, 65));
    EXPECT_EQ("...\\some.dll", Cut("c:\\windows\\system\\some.dll", kPath, 5));
    EXPECT_EQ("...\\somelongn...",
              Cut("c:\\windows\\system\\somelongname.dll", kPath | DT_END_ELLIPSIS, 80));
}

TEST_F(TextLayout, AnEmptyTextIsALineHighAndHasAnEmptyBox) {
    RECT rect = {3, 4, 10, 20};
    EXPECT_EQ(13, DrawTextA(m_dc, "", -1, &rect, DT_CALCRECT));
    EXPECT_EQ(3, rect.right);
    EXPECT_EQ(4, rect.bottom);
}

TEST_F(TextLayout, ACountReplacesTheEndOfTheText) {
    RECT rect = {};
    DrawTextA(m_dc, "Hello", 1, &rect, DT_CALCRECT);
    EXPECT_EQ(Width("H"), rect.right);
}

}  // namespace
