#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "framework/AVC_Integer.h"

namespace {

const std::string kBeginning = "Validation Error\r\n\r\n";

struct Outcome {
    bool bPassed;
    std::string sMsg;
    std::int32_t nReason;
};

Outcome Check(AVC_Integer& v, const char* szField = nullptr) {
    char szMsg[256] = "untouched";
    std::int32_t nReason = -1;
    const bool bPassed = v.Validate(szField, szMsg, sizeof szMsg, &nReason) != 0;
    return {bPassed, szMsg, nReason};
}

TEST(ValidatorBase, KeepsATextAndPassesEverything) {
    AVC_Base v;
    EXPECT_STREQ(v.GetText(), "");
    EXPECT_EQ(v.m_bCheck, 0);
    EXPECT_EQ(v.SetText("anything"), 1);
    EXPECT_STREQ(v.GetText(), "anything");
    EXPECT_EQ(v.SetText(nullptr), 1);
    EXPECT_STREQ(v.GetText(), "");
    EXPECT_EQ(v.Validate("Field", nullptr, 0, nullptr), 1);
}

TEST(ValidatorInteger, StartsWithAStepAndNoRules) {
    AVC_Integer v;
    EXPECT_EQ(v.m_bCheck, 0);
    EXPECT_EQ(v.m_bRangeSet, 0);
    EXPECT_EQ(v.m_bListSet, 0);
    EXPECT_EQ(v.m_bStepSet, 1);
    EXPECT_EQ(v.m_nStep, 1);
    EXPECT_EQ(v.m_nValue, 0);
    EXPECT_EQ(v.m_nMin, 0);
    EXPECT_EQ(v.m_nMax, 0);
    EXPECT_EQ(v.m_pnList, nullptr);
    EXPECT_EQ(v.m_uListCount, 0u);
    EXPECT_STREQ(v.GetText(), "");
    v.SetText("123456");
    EXPECT_TRUE(Check(v).bPassed);
}

TEST(ValidatorInteger, TextIsReadByPlainConversionAndRewritten) {
    struct Row {
        const char* szText;
        std::int32_t nValue;
        const char* szShown;
    };
    const Row kRows[] = {
        {"", 0, "0"},
        {"12", 12, "12"},
        {"  +7x9", 7, "7"},
        {"-12.9", -12, "-12"},
        {"abc", 0, "0"},
        {"--5", 0, "0"},
        {"00042", 42, "42"},
        {"99999999999", INT_MAX, "2147483647"},
        {"-99999999999", INT_MIN, "-2147483648"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.szText);
        AVC_Integer v;
        EXPECT_EQ(v.SetText(row.szText), 1);
        EXPECT_EQ(v.m_nValue, row.nValue);
        EXPECT_STREQ(v.GetText(), row.szShown);
    }
    AVC_Integer v;
    v.SetText("5");
    EXPECT_EQ(v.SetText(nullptr), 1);
    EXPECT_STREQ(v.GetText(), "0");
}

TEST(ValidatorInteger, EmptyTextIsZeroAndCheckedLikeAnyValue) {
    AVC_Integer v;
    v.AVC_Base::SetText("");
    EXPECT_EQ(v.Reparse(), 0);
    v.SetRange(1, 5);
    v.AVC_Base::SetText("");
    EXPECT_EQ(Check(v).nReason, 1);
    v.SetRange(0, 5);
    v.AVC_Base::SetText("");
    EXPECT_TRUE(Check(v).bPassed);
}

TEST(ValidatorInteger, AStepSnapsTheValueAndLeavesTheTextUntilItIsRewritten) {
    AVC_Integer v;
    v.SetStep(5);
    v.AVC_Base::SetText("12");
    EXPECT_EQ(v.Reparse(), 10);
    EXPECT_STREQ(v.GetText(), "12");
    v.SetText("12");
    EXPECT_EQ(v.m_nValue, 10);
    EXPECT_STREQ(v.GetText(), "10");
}

TEST(ValidatorInteger, ANewStepWaitsForTheNextReparse) {
    AVC_Integer v;
    v.SetValue(12);
    v.SetStep(5);
    EXPECT_EQ(v.m_nValue, 12);
    EXPECT_STREQ(v.GetText(), "12");
    EXPECT_EQ(v.GetValue(), 10);
}

TEST(ValidatorInteger, SettingARangePullsTheValueIn) {
    AVC_Integer v;
    v.SetRange(3, 9);
    EXPECT_EQ(v.m_nValue, 3);
    EXPECT_STREQ(v.GetText(), "3");
    EXPECT_EQ(v.m_bCheck, 1);
    EXPECT_EQ(v.m_bRangeSet, 1);
    v.SetValue(20);
    v.ClampValue();
    EXPECT_EQ(v.m_nValue, 9);
    EXPECT_STREQ(v.GetText(), "9");
    std::int32_t nMin = 0;
    std::int32_t nMax = 0;
    v.GetRange(&nMin, &nMax);
    EXPECT_EQ(nMin, 3);
    EXPECT_EQ(nMax, 9);
    v.GetRange(nullptr, nullptr);
}

TEST(ValidatorInteger, SetValueIsNotPulledIntoTheRange) {
    AVC_Integer v;
    v.SetRange(0, 10);
    v.SetValue(20);
    EXPECT_EQ(v.m_nValue, 20);
    EXPECT_STREQ(v.GetText(), "20");
    EXPECT_EQ(v.GetValue(), 20);
}

TEST(ValidatorInteger, RangeIncludesBothEnds) {
    AVC_Integer v;
    v.SetRange(-5, 5);
    for (const int nValue : {-5, 0, 5}) {
        v.SetValue(nValue);
        EXPECT_TRUE(Check(v).bPassed) << nValue;
    }
    for (const int nValue : {-6, 6, INT_MIN, INT_MAX}) {
        v.SetValue(nValue);
        EXPECT_FALSE(Check(v).bPassed) << nValue;
    }
}

TEST(ValidatorInteger, RangeMessageNamesTheFieldAndLimits) {
    AVC_Integer v;
    v.SetRange(-5, 5);
    v.SetValue(6);
    Outcome outcome = Check(v, "Points");
    EXPECT_EQ(outcome.sMsg,
              kBeginning + "Value in field 'Points' must fall within the range of -5 to 5.");
    EXPECT_EQ(outcome.nReason, 1);
    outcome = Check(v);
    EXPECT_EQ(
        outcome.sMsg,
        kBeginning + "Value must fall within the range -5 to 5.  Press OK to edit the value.");
}

TEST(ValidatorInteger, ListMessageNamesTheField) {
    AVC_Integer v;
    const std::int32_t kList[] = {1, 2, 4};
    v.SetList(kList, 3);
    v.SetValue(3);
    Outcome outcome = Check(v, "Points");
    EXPECT_EQ(outcome.sMsg,
              kBeginning +
                  "The value in field 'Points' is not a member of the list of allowable values.");
    EXPECT_EQ(outcome.nReason, 2);
    EXPECT_EQ(
        Check(v).sMsg,
        kBeginning + "The value in this field is not a member of the list of allowable values.");
}

TEST(ValidatorInteger, AListAloneChecksOnlyTheList) {
    AVC_Integer v;
    const std::int32_t kList[] = {100, -7};
    v.SetList(kList, 2);
    EXPECT_EQ(v.m_bCheck, 1);
    EXPECT_EQ(v.m_bRangeSet, 0);
    v.SetValue(-7);
    EXPECT_TRUE(Check(v).bPassed);
    v.SetValue(0);
    EXPECT_EQ(Check(v).nReason, 2);
}

TEST(ValidatorInteger, OutsideRangeAndListReportsTheRangeOnly) {
    AVC_Integer v;
    const std::int32_t kList[] = {1, 2};
    v.SetRange(0, 10);
    v.SetList(kList, 2);
    v.SetValue(11);
    const Outcome outcome = Check(v, "F");
    EXPECT_EQ(outcome.nReason, 1);
    EXPECT_NE(outcome.sMsg.find("range of 0 to 10"), std::string::npos);
}

TEST(ValidatorInteger, AnEmptyListFailsEveryValue) {
    AVC_Integer v;
    v.SetList(nullptr, 0);
    EXPECT_EQ(v.m_bListSet, 1);
    EXPECT_EQ(v.m_bCheck, 1);
    EXPECT_EQ(Check(v).nReason, 2);
}

TEST(ValidatorInteger, AListWithNoMemoryStaysEmptyButSet) {
    AVC_Integer v;
    const std::int32_t kList[] = {0};
    v.SetList(kList, 1);
    EXPECT_TRUE(Check(v).bPassed);
    v.SetList(kList, 0xFFFFFFFFu);
    EXPECT_EQ(v.m_pnList, nullptr);
    EXPECT_EQ(v.m_uListCount, 0u);
    EXPECT_EQ(v.m_bListSet, 1);
    EXPECT_EQ(Check(v).nReason, 2);
}

TEST(ValidatorInteger, ANewListReplacesTheOldOne) {
    AVC_Integer v;
    const std::int32_t kFirst[] = {1};
    const std::int32_t kSecond[] = {2, 3};
    v.SetList(kFirst, 1);
    v.SetList(kSecond, 2);
    v.SetValue(1);
    EXPECT_FALSE(Check(v).bPassed);
    v.SetValue(3);
    EXPECT_TRUE(Check(v).bPassed);
}

TEST(ValidatorInteger, MessageAndReasonAreLeftAloneOrCut) {
    AVC_Integer v;
    v.SetRange(0, 1);
    v.SetValue(1);
    std::int32_t nReason = 77;
    char szMsg[64] = "old";
    EXPECT_EQ(v.Validate("F", szMsg, sizeof szMsg, &nReason), 1);
    EXPECT_EQ(nReason, 77);
    EXPECT_STREQ(szMsg, "");
    v.SetValue(2);
    EXPECT_EQ(v.Validate("F", nullptr, 0, nullptr), 0);
    EXPECT_EQ(v.Validate("F", szMsg, 30, &nReason), 0);
    EXPECT_EQ(std::string(szMsg), (kBeginning + "Value in field").substr(0, 29));
    EXPECT_EQ(v.Validate("F", szMsg, 1, &nReason), 0);
    EXPECT_STREQ(szMsg, "");
}

TEST(ValidatorInteger, WithNoRulesTheMessageIsNotTouched) {
    AVC_Integer v;
    const Outcome outcome = Check(v, "F");
    EXPECT_TRUE(outcome.bPassed);
    EXPECT_EQ(outcome.sMsg, "untouched");
}

TEST(ValidatorInteger, SettingItsOwnTextIsSafe) {
    AVC_Integer v;
    v.SetValue(31);
    v.SetText(v.GetText());
    EXPECT_EQ(v.m_nValue, 31);
    EXPECT_STREQ(v.GetText(), "31");
}

}  // namespace
