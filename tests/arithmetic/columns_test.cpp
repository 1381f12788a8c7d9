// Column labels, which columns an expression names, the list of an assignment, and remapping.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "arithmetic/AssignedList.h"
#include "arithmetic/ColumnLabels.h"
#include "arithmetic/ColumnRemap.h"
#include "arithmetic/ColumnScan.h"

namespace {

using Columns = std::vector<std::int32_t>;

// --- Labels --------------------------------------------------------------------------------------

TEST(ColumnLabels, CountInTwentySixLettersWithoutAZero) {
    const struct {
        std::int64_t nColumn;
        const char* szLabel;
    } rows[] = {{1, "A"},          {2, "B"},           {26, "Z"},       {27, "AA"},
                {28, "AB"},        {52, "AZ"},         {53, "BA"},      {702, "ZZ"},
                {703, "AAA"},      {18278, "ZZZ"},     {18279, "AAAA"}, {475254, "ZZZZ"},
                {475255, "AAAAA"}, {11881376, "YYYYZ"}};
    for (const auto& row : rows) {
        EXPECT_EQ(ColumnLabel(row.nColumn), row.szLabel) << row.nColumn;
        EXPECT_EQ(ColumnNumber(row.szLabel), row.nColumn) << row.szLabel;
    }
}

TEST(ColumnLabels, OutsideOfTheRangeSayOve) {
    for (const std::int64_t nColumn :
         {std::int64_t{0}, std::int64_t{-1}, std::int64_t{11881377}, std::int64_t{1} << 60})
        EXPECT_EQ(ColumnLabel(nColumn), "Ove") << nColumn;
}

TEST(ColumnLabels, AreReadUpToNineLettersInAnyCase) {
    EXPECT_EQ(ColumnNumber("aB"), 28);
    EXPECT_EQ(ColumnNumber("AAAAAA"), 12356631);
    EXPECT_EQ(ColumnNumber("ZZZZZZZZZ"), 5646683826134);
    EXPECT_EQ(ColumnNumber("AAAAAAAAAA"), 0);
    for (const char* szOther : {"", "A1", "A ", "$", "\xC4"}) EXPECT_EQ(ColumnNumber(szOther), 0);
}

// --- The scan ------------------------------------------------------------------------------------

struct Scanned {
    const char* szText;
    Columns vColumns;
};

void PrintTo(const Scanned& row, std::ostream* pOut) {
    *pOut << row.szText;
}

class ColumnScan : public testing::TestWithParam<Scanned> {};

TEST_P(ColumnScan, FindsTheseColumns) {
    EXPECT_EQ(ScanColumns(GetParam().szText, false, 1000000), GetParam().vColumns);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ColumnScan,
    testing::Values(
        Scanned{"", {}}, Scanned{"A", {1}}, Scanned{"a+b", {1, 2}}, Scanned{" A + A ", {1}},
        Scanned{"(B+C)/2+sin(K$9)", {2, 3, 11}}, Scanned{"A=B", {1, 2}},
        // A word of three letters before "(" is a function; others count.
        Scanned{"sin(A)", {1}}, Scanned{"sin+A", {13092, 1}}, Scanned{"s in(A)", {1}},
        Scanned{"LN(A)", {326, 1}}, Scanned{"SQRT(A)", {345924, 1}}, Scanned{"PI", {425}},
        Scanned{"ARCOS(A)", {775781, 1}}, Scanned{"NORMAX(A)", {1}}, Scanned{"NORMIN", {}},
        // Digits end a word.
        Scanned{"1e-3*a", {5, 1}}, Scanned{"A1B", {1, 2}}, Scanned{"2*A", {1}},
        // "$" closes a word and skips letters and digits.
        Scanned{"K$9", {11}}, Scanned{"K$9B+C", {11, 3}}, Scanned{"$A", {}},
        // "_" drops a word and skips letters.
        Scanned{"_ROW", {}}, Scanned{"_MAXROWS+B", {2}}, Scanned{"A_B", {}}, Scanned{"_A1B", {2}},
        // Ranges.
        Scanned{"A..C", {1, 2, 3}}, Scanned{"C..A", {3, 2, 1}}, Scanned{"A..C,E", {1, 2, 3, 5}},
        Scanned{"A .. C", {1, 2, 3}}, Scanned{"B..B", {2}}, Scanned{"A..C..E", {3, 4, 5}},
        Scanned{"Z..A", {26, 25, 24, 23, 22, 21, 20, 19, 18, 17, 16, 15, 14,
                         13, 12, 11, 10, 9,  8,  7,  6,  5,  4,  3,  2,  1}},
        Scanned{"A..(C)", {1, 2, 3}}, Scanned{"A..sin(C)", {3}}, Scanned{"A..NORMAX+C", {3}},
        Scanned{"A..C$9+E", {1, 2, 3, 5}}, Scanned{"AAAAAA..C", {3}}, Scanned{"A..AAAAAA+C", {3}},
        // Points that are no range.
        Scanned{"A.B", {2}}, Scanned{"0.5*A", {1}}, Scanned{"A...C", {3}}, Scanned{"..", {}},
        Scanned{"..C", {3}}, Scanned{"A..", {}}, Scanned{"A.5.C", {3}},
        Scanned{"A.B..D", {2, 3, 4}}, Scanned{"A....C", {3}}, Scanned{"AAAAAA", {}},
        Scanned{"AAAAA", {475255}}, Scanned{"\xC4+A\xFF", {1}}, Scanned{"%s+%0", {19}}));

TEST(ColumnScanOfARange, StopsAfterTenThousandColumns) {
    const Columns vColumns = ScanColumns("A..ZZZ", false, 1000000);
    ASSERT_EQ(vColumns.size(), 10000u);
    EXPECT_EQ(vColumns.front(), 1);
    EXPECT_EQ(vColumns.back(), 10000);
    EXPECT_EQ(ScanColumns("ZZZ..A", false, 1000000).back(), 18278 - 9999);
}

TEST(ColumnScanOfASheet, LeavesOutWhatLiesBeyondIt) {
    EXPECT_EQ(ScanColumns("A+SQRT(B)+Z", false, 12), (Columns{1, 2}));
    EXPECT_EQ(ScanColumns("J..ZZ", false, 12), (Columns{10, 11, 12}));
    EXPECT_EQ(ScanColumns("A", false, 0), Columns{});
    EXPECT_EQ(ScanColumns("A", false, -1), Columns{});
}

TEST(ColumnScanOfANewColumn, BeginsBehindTheFirstEquals) {
    EXPECT_EQ(ScanColumns("A=B", true, 12), Columns{2});
    EXPECT_EQ(ScanColumns("A=B=C", true, 12), (Columns{2, 3}));
    EXPECT_EQ(ScanColumns("A+B", true, 12), (Columns{1, 2}));
}

// --- The list of an assignment -------------------------------------------------------------------

TEST(AssignedList, WritesEachRunOnce) {
    const struct {
        Columns vNumbers;
        const char* szTraces;
        const char* szColumns;
    } rows[] = {
        {{1, 2, 3, 5}, "t1..3,t5", "A..C,E"},
        {{1, 2, 3, 5, 6}, "t1..3,t5..6", "A..C,E..F"},
        {{4}, "t4", "D"},
        {{1, 2}, "t1..2", "A..B"},
        {{5, 1, 3}, "t1,t3,t5", "A,C,E"},
        {{2, 2, 1, 2}, "t1..2", "A..B"},
        {{26, 27, 28}, "t26..28", "Z..AB"},
        {{}, "", ""},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(FormatAssignedList(row.vNumbers, false), row.szTraces);
        EXPECT_EQ(FormatAssignedList(row.vNumbers, true), row.szColumns);
    }
}

TEST(AssignedList, StopsWhereTheTextReachesTheLongestExpression) {
    Columns vOdd;
    for (std::int32_t n = 1; n < 200; n += 2) vOdd.push_back(n);
    EXPECT_EQ(FormatAssignedList(vOdd, false), std::nullopt);
    Columns vFits;
    for (std::int32_t n = 10; vFits.size() < 45; n += 2) vFits.push_back(n);
    EXPECT_EQ(FormatAssignedList(vFits, false)->size(), 45u * 4 - 1);
    Columns vNumbers;
    for (std::int32_t n = 1000; vNumbers.size() < 42; n += 2) vNumbers.push_back(n);
    EXPECT_EQ(FormatAssignedList(vNumbers, false)->size(), 251u);
    vNumbers.push_back(1);  // "t1," makes 254
    EXPECT_EQ(FormatAssignedList(vNumbers, false)->size(), 254u);
    vNumbers.back() = 10;  // "t10," would make 255
    EXPECT_EQ(FormatAssignedList(vNumbers, false), std::nullopt);
}

TEST(AssignedList, TakesTenThousandNumbers) {
    Columns vAll;
    for (std::int32_t n = 1; n <= 10000; ++n) vAll.push_back(n);
    EXPECT_EQ(FormatAssignedList(vAll, false), "t1..10000");
    EXPECT_EQ(FormatAssignedList(vAll, true), "A..NTP");
}

// --- Remapping -----------------------------------------------------------------------------------

struct Remapped {
    const char* szExpression;
    Columns vColumns;
    const char* szResult;  // null: none
};

void PrintTo(const Remapped& row, std::ostream* pOut) {
    *pOut << row.szExpression;
}

class ColumnRemap : public testing::TestWithParam<Remapped> {};

TEST_P(ColumnRemap, GivesThis) {
    const auto sResult = RemapColumns(GetParam().szExpression, GetParam().vColumns);
    if (GetParam().szResult == nullptr) {
        EXPECT_EQ(sResult, std::nullopt);
    } else {
        EXPECT_EQ(sResult, GetParam().szResult);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Expressions, ColumnRemap,
    testing::Values(Remapped{"A=A+B", {2, 3}, "C=C+D"},
                    Remapped{"NEWCOL=A+K$9", {1, 2}, "NEWCOL=B+C$9"},
                    // A column whose label has just changed does not change a second time.
                    Remapped{"Z=A/B", {1, 0}, "Z=B/A"}, Remapped{"A+B", {1, 2}, "B+C"},
                    Remapped{"C= a * b ", {3, 27}, "C= D * AB "}, Remapped{"A+A+a", {4}, "E+E+E"},
                    Remapped{"A=sin(B)^2-_row", {6}, "A=sin(G)^2-_row"},
                    // A fixed row is of the same column.
                    Remapped{"B=A*K$9+K", {0, 2}, "B=A*C$9+C"},
                    // None to replace, other numbers of columns, no columns.
                    Remapped{"", {1}, nullptr}, Remapped{"A=2+3", {}, nullptr},
                    Remapped{"A=B", {1, 2}, nullptr}, Remapped{"A=B+C", {1}, nullptr},
                    Remapped{"A=B+t12", {1, 2}, nullptr}, Remapped{"A=TOOLONG", {1}, nullptr},
                    Remapped{"A=B++", {1}, nullptr}, Remapped{"A=", {1}, nullptr},
                    Remapped{"A=B\xC4", {1}, nullptr}));

TEST(ColumnRemapOfLongTexts, LeavesWhatWouldNotFit) {
    std::string sLong = "A";
    while (sLong.size() + 2 <= 253) sLong += "+A";
    ASSERT_EQ(sLong.size(), 253u);
    EXPECT_EQ(RemapColumns(sLong, Columns{1})->size(), 253u);
    EXPECT_EQ(RemapColumns(sLong, Columns{26}), std::nullopt);
    EXPECT_EQ(RemapColumns(std::string(4000, 'A'), Columns{1}), std::nullopt);
}

}  // namespace
