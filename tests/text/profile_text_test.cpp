// The text of a profile file, read and changed in memory.

#include <gtest/gtest.h>

#include <string>

#include "text/ProfileText.h"

namespace {

std::string Value(const std::string& text, std::string_view key, std::string_view section = "S") {
    ProfileText profile(text);
    std::string_view value;
    return profile.Find(section, key, &value) ? std::string(value) : "(none)";
}

// The entries of a section, "key=value" or "key", each with a bar behind it.
std::string Entries(ProfileText& profile, std::string_view section = "S") {
    std::string entries;
    profile.EachEntry(section, [&](std::string_view key, std::string_view value, bool hasEqual) {
        entries += std::string(key) + (hasEqual ? "=" : "") + std::string(value) + "|";
    });
    return entries;
}

TEST(ProfileText, LinesEndInThreeWays) {
    for (const char* text : {"[S]\na=1\nb=2\n", "[S]\r\na=1\r\nb=2\r\n", "[S]\ra=1\rb=2\r",
                             "[S]\ra=1\rb=2\r\n", "[S]\na=1\r\nb=2", "[S]\r\na=1\rb=2\nc=3"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(Value(text, "a"), "1");
        EXPECT_EQ(Value(text, "b"), "2");
    }
}

TEST(ProfileText, BlanksAroundNamesAndValuesDoNotCount) {
    const std::string text =
        "[ S ]\n\t k \t=\v\f v 1 \x1A\n"
        "low=\x08z\nhigh=\x0Ez\nescape=\x1Bz\n  [ T ]  \n \tj=2\n";
    EXPECT_EQ(Value(text, " k "), "v 1");
    EXPECT_EQ(Value(text, "low"), "\x08z");
    EXPECT_EQ(Value(text, "high"), "\x0Ez");
    EXPECT_EQ(Value(text, "escape"), "\x1Bz");
    EXPECT_EQ(Value(text, "j", " T "), "2");
    EXPECT_EQ(Value("[S]\r\n\tk=1", "k"), "1");
    EXPECT_EQ(Value(" [S]\r\nk=1", "k"), "1");
}

TEST(ProfileText, NamesAreComparedWithoutTheCaseOfTheirLetters) {
    EXPECT_EQ(Value("[sAZ]\nkAZ=1\n", "Kaz", "Saz"), "1");
    EXPECT_EQ(Value("[S]\nk[=1\n", "k{"), "(none)");
    EXPECT_EQ(Value("[S]\nk@=1\n", "k`"), "(none)");
    EXPECT_EQ(Value("[S]\nk=1\n", "kk"), "(none)");
}

TEST(ProfileText, HeadersBeginTheirLine) {
    EXPECT_EQ(Value("[S]\nk=[a]\n\nj=2\n", "k"), "[a]");
    EXPECT_EQ(Value("[S]\nk=[a]\n\nj=2\n", "j"), "2");
    EXPECT_EQ(Value("[S]\n[open\nj=2\n", "j"), "2");
    EXPECT_EQ(Value("[S]]\nj=2\n", "j", "S]"), "2");
}

TEST(ProfileText, FirstOfTwoCounts) {
    EXPECT_EQ(Value("[S]\nk=1\nk=2\n[S]\nk=3\nj=4\n", "k"), "1");
    EXPECT_EQ(Value("[S]\nk=1\nk=2\n[S]\nk=3\nj=4\n", "j"), "(none)");
}

TEST(ProfileText, CommentsAndLinesWithoutEqualSignHaveNoValue) {
    EXPECT_EQ(Value("[S]\n;k=1\nk\n", "k"), "(none)");
    EXPECT_EQ(Value("[S]\n;k=1\nk\n", ";k"), "(none)");
    ProfileText profile("[S]\n;c\n\nk\na = 1\nb=\n");
    EXPECT_EQ(Entries(profile), "k|a=1|b=|");
}

TEST(ProfileText, UnicodeIsToldByItsFirstBytes) {
    EXPECT_TRUE(ProfileText::IsUnicode("\xEF\xBB\xBFx"));
    EXPECT_TRUE(ProfileText::IsUnicode("\xFF\xFEx"));
    EXPECT_TRUE(ProfileText::IsUnicode("\xFE\xFFx"));
    EXPECT_FALSE(ProfileText::IsUnicode("\xEF\xBB"));
    EXPECT_FALSE(ProfileText::IsUnicode("\xFF"));
    EXPECT_FALSE(ProfileText::IsUnicode("[S]"));
    EXPECT_FALSE(ProfileText::IsUnicode(""));
}

// Only the first line may begin with the mark.
TEST(ProfileText, MarkBeforeTheFirstHeaderIsPassedOver) {
    EXPECT_EQ(Value("\xEF\xBB\xBF[S]\nk=1\n", "k"), "1");
    EXPECT_EQ(Value("[S]\n\xEF\xBB\xBF[T]\nk=1\n", "k"), "1");
}

std::string Changed(const char* text) {
    ProfileText profile(text);
    profile.Set("S", "k", "v");
    return profile.Text();
}

TEST(ProfileText, NewLinesEndAsTheFirstOne) {
    EXPECT_EQ(Changed(""), "[S]\r\nk=v\r\n");
    EXPECT_EQ(Changed("\n"), "\n[S]\nk=v\n");
    EXPECT_EQ(Changed("\n;x\r\n"), "\n;x\r\n[S]\nk=v\n");
    EXPECT_EQ(Changed("x\n"), "x\n[S]\nk=v\n");
    EXPECT_EQ(Changed("x\r\ny\n"), "x\r\ny\n[S]\r\nk=v\r\n");
    EXPECT_EQ(Changed("x\ny\r\n"), "x\ny\r\n[S]\nk=v\n");
    EXPECT_EQ(Changed("x"), "x\r\n[S]\r\nk=v\r\n");
    EXPECT_EQ(Changed("[S]\ra=1\r"), "[S]\ra=1\rk=v\r\n");
}

TEST(ProfileText, ChangedValuesStandInTheirPlace) {
    EXPECT_EQ(Changed("[S]\nk=old\nj=2\n\n\n[T]\n"), "[S]\nk=v\nj=2\n\n\n[T]\n");
    EXPECT_EQ(Changed("[S]\nj=2\n\n\n[T]\n"), "[S]\nj=2\nk=v\n\n\n[T]\n");
    EXPECT_EQ(Changed("[S]\nk\n"), "[S]\nk=v\n");
    EXPECT_EQ(Changed("[S]\nk = v\n"), "[S]\nk = v\n");
    EXPECT_EQ(Changed("[T]\n  ; c\nk=1"), "[T]\n  ; c\nk=1\n[S]\nk=v\n");
}

TEST(ProfileText, SetKeepsWhatAReaderWillSee) {
    ProfileText profile("[S]\nk\n");
    profile.Set("S", " a ", " 1 2 \r3");
    profile.Set("S", "b", "4\n5");
    profile.Set("S", "k", "6");
    EXPECT_EQ(Entries(profile), "k=6|a=1 2|b=4|");
    std::string_view value;
    EXPECT_TRUE(profile.Find("S", "k", &value));
    EXPECT_EQ(value, "6");
    EXPECT_TRUE(profile.Find("S", "a", &value));
    EXPECT_EQ(value, "1 2");
}

TEST(ProfileText, OnlyChangesCount) {
    ProfileText profile("; c\n[S]\nk = 1\n;\n");
    profile.Set("S", "  ", "2");
    profile.Set("S", "k", "1");
    profile.RemoveKey("S", "j");
    profile.RemoveKey("T", "k");
    profile.RemoveSection("T");
    profile.RemoveSection("");
    EXPECT_FALSE(profile.IsChanged());
    EXPECT_EQ(profile.Text(), "; c\n[S]\nk = 1\n;\n");
    profile.RemoveKey("S", "k");
    EXPECT_TRUE(profile.IsChanged());
    EXPECT_EQ(profile.Text(), "; c\n[S]\n;\n");
}

TEST(ProfileText, ClearedSectionKeepsItsCommentsAndIsMadeIfNeeded) {
    ProfileText profile("[S]\n;c\na=1\n[T]\nb=2\n");
    profile.Set("S", "n", "3");
    profile.ClearSection("S");
    EXPECT_EQ(Entries(profile), "");
    EXPECT_EQ(profile.Text(), "[S]\n;c\n[T]\nb=2\n");
    ProfileText one("[S]\na=1\n");
    one.ClearSection("S");
    EXPECT_TRUE(one.IsChanged());
    ProfileText comments("[S]\n;c\n");
    comments.ClearSection("S");
    EXPECT_FALSE(comments.IsChanged());
    ProfileText none("[S]\n;c\n");
    none.ClearSection(" New ");
    EXPECT_TRUE(none.IsChanged());
    EXPECT_EQ(none.Text(), "[S]\n;c\n[New]\n");
    EXPECT_TRUE(none.EachEntry("new", [](std::string_view, std::string_view, bool) {}));
}

TEST(ProfileText, RemovedSectionIsMadeAnewAtTheEnd) {
    ProfileText profile("[S]\na=1\n[T]\nb=2\n");
    std::string_view value;
    EXPECT_TRUE(profile.Find("S", "a", &value));
    profile.RemoveSection("s");
    EXPECT_TRUE(profile.IsChanged());
    EXPECT_FALSE(profile.Find("S", "a", &value));
    profile.Set("S", "c", "3");
    EXPECT_EQ(profile.Text(), "[T]\nb=2\n[S]\nc=3\n");
    std::string sections;
    profile.EachSection([&](std::string_view name) { sections += std::string(name) + "|"; });
    EXPECT_EQ(sections, "T|S|");
}

TEST(ProfileText, RemovedKeyIsSetAnewBehindTheOthers) {
    ProfileText profile("[S]\na=1\nb=2\n");
    profile.RemoveKey("S", " A ");
    EXPECT_EQ(Entries(profile), "b=2|");
    profile.Set("S", "a", "3");
    EXPECT_EQ(profile.Text(), "[S]\nb=2\na=3\n");
}

TEST(ProfileText, ThousandsOfKeysAreFoundAsTheyGrow) {
    ProfileText profile("[S]\nfirst=0\n");
    const auto key = [](int i) { return "k" + std::to_string(i); };
    for (int i = 1; i <= 3000; ++i) {
        profile.Set("S", key(i), std::to_string(i * 3));
        std::string_view value;
        ASSERT_TRUE(profile.Find("S", key(i / 2 + 1), &value)) << i;
        ASSERT_EQ(value, std::to_string((i / 2 + 1) * 3));
        ASSERT_FALSE(profile.Find("S", key(i + 1), &value)) << i;
    }
}

TEST(ProfileText, OnePairOfQuotesIsTakenOff) {
    EXPECT_EQ(ProfileText::Unquoted("\"\""), "");
    EXPECT_EQ(ProfileText::Unquoted("''"), "");
    EXPECT_EQ(ProfileText::Unquoted("\"a b\""), "a b");
    EXPECT_EQ(ProfileText::Unquoted("'a'"), "a");
    EXPECT_EQ(ProfileText::Unquoted("\""), "\"");
    EXPECT_EQ(ProfileText::Unquoted("\"a'"), "\"a'");
    EXPECT_EQ(ProfileText::Unquoted("aba"), "aba");
    EXPECT_EQ(ProfileText::Unquoted(""), "");
}

}  // namespace
