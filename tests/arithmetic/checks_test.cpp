// What the arithmetic dialog refuses, what it stores, and the table of its forms.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>

#include "arithmetic/ArithmeticChecks.h"
#include "arithmetic/ArithmeticForms.h"
#include "fixtures/TestDataSource.h"

namespace {

using test_support::TestDataSource;

// --- Rows ----------------------------------------------------------------------------------------

// The string and the control of a finding, 0 and 0 for none.
std::pair<UINT, int> Found(const CheckResult& result) {
    return result ? std::pair<UINT, int>{result->nStringId, result->nControl}
                  : std::pair<UINT, int>{0, 0};
}

TEST(RowCheck, AnswersByTheNumbersAsTyped) {
    constexpr int kFrom = 2194, kTo = 2196;
    const struct {
        std::int32_t nFirst, nLast;
        std::pair<UINT, int> found;
    } rows[] = {
        {5, 5, {0, 0}},         {1, 1000, {0, 0}},           {6, 5, {2205, kFrom}},
        {0, 5, {2205, kFrom}},  {5, 0, {2205, kTo}},         {0, 0, {2205, kFrom}},
        {5, 1001, {2287, kTo}}, {1001, 1002, {2287, kFrom}}, {1001, 5, {2287, kFrom}},
        {0, 1001, {2287, kTo}}, {-3, 5, {2205, kFrom}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Found(CheckRows({row.nFirst, row.nLast, 1000, true})), row.found)
            << row.nFirst << ".." << row.nLast;
}

TEST(RowCheck, KnowsNoLimitInADeferredRun) {
    EXPECT_EQ(Found(CheckRows({5, 2000, 0, false})), Found({}));
    EXPECT_EQ(Found(CheckRows({6, 5, 0, false})).first, 2205u);
}

// A sheet whose columns have 1000, 999, 998 ... rows.
class UnequalColumns : public TestDataSource {
  public:
    UnequalColumns() { Kind(2).Sets(5).Points(1000); }
    uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                           uint32_t reserved) override {
        EXPECT_EQ(range, nullptr);
        const uint32_t whole = TestDataSource::GetPointCount(group, set, range, reserved);
        return whole == 0 ? 0 : whole - set;
    }
};

TEST(RowLimit, IsThatOfTheSmallestColumnNamed) {
    UnequalColumns source;
    const std::uint32_t uLongest = LongestColumn(source, 0);
    EXPECT_EQ(uLongest, 1000u);
    EXPECT_EQ(RowLimit(source, 0, {1, 3, 2}, uLongest), 998u);
    EXPECT_EQ(RowLimit(source, 0, {5}, uLongest), 996u);
    EXPECT_EQ(RowLimit(source, 0, {}, uLongest), 1000u);
    source.Points(0);
    EXPECT_EQ(LongestColumn(source, 0), 0u);
}

TEST(DataCheck, WantsASetWithPointsInAnyGroup) {
    TestDataSource source;
    EXPECT_FALSE(CheckAnyData(source));
    source.Points(0);
    const CheckResult result = CheckAnyData(source);
    ASSERT_TRUE(result);
    EXPECT_EQ(result->nStringId, 2410u);
    EXPECT_EQ(result->uFlags, static_cast<UINT>(MB_ICONASTERISK));
    source.Groups({});
    EXPECT_TRUE(CheckAnyData(source));
}

// --- The expression ------------------------------------------------------------------------------

TEST(ExpressionCheck, GoesByTextThenTitleThenLength) {
    EXPECT_EQ(Found(CheckExpression("sin(A)", "", false)), Found({}));
    EXPECT_EQ(Found(CheckExpression("", "Title", true)), (std::pair<UINT, int>{2386, 2527}));
    EXPECT_EQ(Found(CheckExpression("   ", "", true)), (std::pair<UINT, int>{2386, 2527}));
    EXPECT_EQ(Found(CheckExpression("A", "", true)), (std::pair<UINT, int>{2387, 2528}));
    EXPECT_EQ(Found(CheckExpression(std::string(300, 'A'), " ", true)),
              (std::pair<UINT, int>{2387, 2528}));
    EXPECT_EQ(Found(CheckExpression("A", "T", true)), Found({}));
}

TEST(ExpressionCheck, MeasuresTheTrimmedText) {
    EXPECT_EQ(Found(CheckExpression(std::string(254, 'A'), "", false)), Found({}));
    EXPECT_EQ(Found(CheckExpression(" " + std::string(255, 'A') + " ", "", false)), Found({}));
    for (const std::size_t nLength : {std::size_t{256}, std::size_t{4000}}) {
        const CheckResult result = CheckExpression(std::string(nLength, 'A'), "", false);
        EXPECT_EQ(Found(result), (std::pair<UINT, int>{2208, 2527}));
        EXPECT_EQ(result->vArguments, (std::vector<std::string>{"255", std::to_string(nLength)}));
    }
}

TEST(ExpressionCheck, AnAssignmentThatIsTooLongSaysTheLimitTwice) {
    EXPECT_EQ(TooLongAssignment().nStringId, 2208u);
    EXPECT_EQ(TooLongAssignment().vArguments, (std::vector<std::string>{"255", "255"}));
    EXPECT_EQ(TooLongAssignment().nControl, 2527);
}

std::unique_ptr<ZXADLG_ArithmeticOptions> Stored(std::string_view sTyped) {
    auto pOptions = std::make_unique<ZXADLG_ArithmeticOptions>();
    std::memset(pOptions.get(), 'x', sizeof *pOptions);
    StoreExpression(sTyped, *pOptions);
    return pOptions;
}

TEST(StoredExpression, GetsALeftSideWhereItHasNone) {
    EXPECT_STREQ(Stored(" sin(A) ")->szExpression, "NEWCOL=sin(A)");
    EXPECT_STREQ(Stored("sin(A)")->szDisplayExpression, "y=sin(A)");
    EXPECT_STREQ(Stored("A = B")->szExpression, "A = B");
    EXPECT_STREQ(Stored("A=B")->szDisplayExpression, "");
    EXPECT_STREQ(Stored("%s=%0%n")->szExpression, "%s=%0%n");
}

TEST(StoredExpression, IsCutToItsField) {
    const auto pOptions = Stored(std::string(255, 'A'));
    EXPECT_EQ(std::strlen(pOptions->szExpression), 254u);
    EXPECT_EQ(std::strlen(pOptions->szDisplayExpression), 254u);
    EXPECT_EQ(pOptions->szColumnTitle[0], 'x');
    EXPECT_EQ(pOptions->szSelectionList[0], 'x');
}

TEST(StoredExpression, IsShownAsItWasTyped) {
    EXPECT_EQ(TypedForm("NEWCOL=sin(A)"), "sin(A)");
    EXPECT_EQ(TypedForm("A=B"), "A=B");
    EXPECT_EQ(TypedForm("NEWCOL"), "NEWCOL");
    EXPECT_EQ(TypedForm(""), "");
}

// --- The forms -----------------------------------------------------------------------------------

TEST(ArithmeticForms, AreChosenByTheKindOfDataAndTheNewColumn) {
    const struct {
        std::uint32_t eKind;
        std::uint8_t bNew;
        UINT uTemplate;
        const char* szExample;
        const char* szShown;
        bool bWantsTitle;
    } rows[] = {
        {0, 0, 2383, "t1=sin(time*2*pi)", "t1=sin(time*2*pi)", false},
        {0, 1, 2383, "t1=sin(time*2*pi)", "t1=sin(time*2*pi)", false},
        {1, 0, 2384, "A=(B+C)/2+sin(K$9)", "t1=sin(time*2*pi)", false},
        {1, 1, 2385, "(B+C)/2+sin(K$9)", "t1=sin(time*2*pi)", false},
        {2, 0, 2384, "A=(B+C)/2+sin(K$9)", "A=(B+C)/2+sin(K$9)", false},
        {2, 1, 2385, "(B+C)/2+sin(K$9)", "(B+C)/2+sin(K$9)", true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.eKind << ' ' << int{row.bNew});
        ZXADLG_DlgParams params = {};
        params.bNewColumnArithmetic = row.bNew;
        const ArithmeticForm& form = FormOf(row.eKind, params);
        EXPECT_EQ(form.uTemplateId, row.uTemplate);
        EXPECT_STREQ(form.szExample, row.szExample);
        EXPECT_STREQ(ExampleShown(form, row.eKind), row.szShown);
        EXPECT_EQ(WantsTitle(form, row.eKind), row.bWantsTitle);
        EXPECT_EQ(form.bLeftSide, row.uTemplate != 2385);
        EXPECT_EQ(form.bRows, row.uTemplate != 2383);
        EXPECT_EQ(form.bRegion, row.uTemplate == 2383);
        EXPECT_EQ(form.bTitle, row.uTemplate == 2385);
        EXPECT_EQ(form.bSetRules, row.uTemplate == 2383);
        EXPECT_EQ(form.bSetModes, row.uTemplate != 2385);
    }
}

}  // namespace
