// The two floating validators: the same rules, with the widths of their types.
#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <limits>
#include <string>

#include "framework/AVC_Double.h"
#include "framework/AVC_Float.h"

namespace {

const std::string kBeginning = "Validation Error\r\n\r\n";

template <class Validator>
struct Parts;
template <>
struct Parts<AVC_Double> {
    using Value = double;
    static Value Held(const AVC_Double& v) { return v.m_dValue; }
    static Value Step(const AVC_Double& v) { return v.m_dStep; }
    static void Hold(AVC_Double& v, Value value) { v.m_dValue = value; }
    static constexpr unsigned kDigits = 15;
    static constexpr const char* kHuge = "1e300";
};
template <>
struct Parts<AVC_Float> {
    using Value = float;
    static Value Held(const AVC_Float& v) { return v.m_fValue; }
    static Value Step(const AVC_Float& v) { return v.m_fStep; }
    static void Hold(AVC_Float& v, Value value) { v.m_fValue = value; }
    static constexpr unsigned kDigits = 6;
    static constexpr const char* kHuge = "1e30";
};

template <class Validator>
class ValidatorFloating : public testing::Test {
  protected:
    using Value = typename Parts<Validator>::Value;

    // Numbers written as decimals mean the value of this type.
    static Value Of(double dValue) { return static_cast<Value>(dValue); }
    Value Held() const { return Parts<Validator>::Held(validator); }

    bool Check(const char* szField = nullptr) {
        char szMsg[256] = "untouched";
        nReason = -1;
        const bool bPassed = validator.Validate(szField, szMsg, sizeof szMsg, &nReason) != 0;
        sMsg = szMsg;
        return bPassed;
    }

    Validator validator;
    std::string sMsg;
    std::int32_t nReason = -1;
};

using Validators = testing::Types<AVC_Double, AVC_Float>;
TYPED_TEST_SUITE(ValidatorFloating, Validators);

#define HELD this->Held()
#define OF(x) this->Of(x)

TYPED_TEST(ValidatorFloating, StartsWithNoRules) {
    auto& v = this->validator;
    EXPECT_EQ(v.m_bCheck, 0);
    EXPECT_EQ(v.m_bRangeSet, 0);
    EXPECT_EQ(v.m_bListSet, 0);
    EXPECT_EQ(v.m_bStepSet, 0);
    EXPECT_EQ(v.m_eFormat, 1);
    EXPECT_EQ(v.m_uDecimals, 0u);
    EXPECT_EQ(v.m_uSigDigits, Parts<TypeParam>::kDigits);
    EXPECT_EQ(v.m_uListCount, 0u);
    EXPECT_EQ(Parts<TypeParam>::Step(v), 1);
    EXPECT_EQ(HELD, 0);
    EXPECT_STREQ(v.GetText(), "");
    EXPECT_TRUE(this->Check());
    EXPECT_EQ(this->sMsg, "untouched");
}

TYPED_TEST(ValidatorFloating, TheInitialValueLeavesTheTextEmpty) {
    TypeParam v(OF(2.5));
    EXPECT_EQ(Parts<TypeParam>::Held(v), OF(2.5));
    EXPECT_STREQ(v.GetText(), "");
}

TYPED_TEST(ValidatorFloating, ATextThatRoundsToItsLimitPasses) {
    auto& v = this->validator;
    v.SetFormat(0, 1);
    v.SetRange(0, 10);
    EXPECT_EQ(v.SetText("10.04"), 1);
    EXPECT_STREQ(v.GetText(), "10.0");
    EXPECT_EQ(HELD, 10);
    EXPECT_TRUE(this->Check());
}

TYPED_TEST(ValidatorFloating, LimitsAreComparedAndToldAsTheyShow) {
    auto& v = this->validator;
    v.SetFormat(0, 2);
    v.SetRange(0, OF(0.123456));
    EXPECT_EQ(v.RoundToDisplay(OF(0.123456)), OF(0.12));
    v.SetText("0.12");
    EXPECT_TRUE(this->Check());
    v.SetText("0.13");
    EXPECT_FALSE(this->Check("Ratio"));
    EXPECT_EQ(this->sMsg,
              kBeginning + "Value in field 'Ratio' must fall within the range of 0.00 to 0.12.");
}

TYPED_TEST(ValidatorFloating, TheLargestValueIsNoLimit) {
    auto& v = this->validator;
    const auto largest = std::numeric_limits<typename Parts<TypeParam>::Value>::max();
    EXPECT_EQ(v.RoundToDisplay(largest), largest);
    EXPECT_EQ(v.RoundToDisplay(-largest), -largest);
    v.SetRange(1, largest);
    v.SetText("0");
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->sMsg, kBeginning + "Value must fall within the range 1 to " +
                              Parts<TypeParam>::kHuge + ".  Press OK to edit the value.");
}

TYPED_TEST(ValidatorFloating, EmptyTextIsZeroAndCheckedLikeAnyValue) {
    auto& v = this->validator;
    v.SetText("5");
    v.SetText("");
    EXPECT_EQ(HELD, 0);
    EXPECT_STREQ(v.GetText(), "");
    EXPECT_TRUE(this->Check());
    v.SetRange(1, 5);
    v.SetText(nullptr);
    EXPECT_EQ(HELD, 0);
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->nReason, 1);
}

TYPED_TEST(ValidatorFloating, ATextTakesItsDisplayForm) {
    auto& v = this->validator;
    v.SetText("+0012.500");
    EXPECT_STREQ(v.GetText(), "12.5");
    EXPECT_EQ(HELD, OF(12.5));
    v.SetText("1.5E-5");
    EXPECT_STREQ(v.GetText(), "1.5e-5");
    v.SetFormat(0, 3);
    v.SetText("1.23456");
    EXPECT_STREQ(v.GetText(), "1.235");
    EXPECT_EQ(HELD, OF(1.235));
}

TYPED_TEST(ValidatorFloating, GarbageKeepsTheLastGoodValue) {
    auto& v = this->validator;
    v.SetText("2.5");
    for (const char* szGarbage :
         {"abc", "1 2", " 3", "0x10", "inf", "nan", "1,5", "\x80\xff", "5%"}) {
        SCOPED_TRACE(szGarbage);
        EXPECT_EQ(v.SetText(szGarbage), 1);
        EXPECT_EQ(HELD, OF(2.5));
        EXPECT_STREQ(v.GetText(), szGarbage);
        EXPECT_TRUE(this->Check());
    }
}

TYPED_TEST(ValidatorFloating, AGoodTextAfterGarbageCounts) {
    auto& v = this->validator;
    v.SetText("2.5");
    v.SetText("x");
    v.SetText("3");
    EXPECT_EQ(HELD, 3);
}

TYPED_TEST(ValidatorFloating, TheLastGoodValueIsTheOneThatIsChecked) {
    auto& v = this->validator;
    v.SetRange(0, 10);
    v.SetText("20");
    v.SetText("x");
    EXPECT_FALSE(this->Check());
    v.SetText("5");
    v.SetText("x");
    EXPECT_TRUE(this->Check());
}

TYPED_TEST(ValidatorFloating, TextIsCutAt63Characters) {
    auto& v = this->validator;
    v.SetText((std::string(62, '0') + "25").c_str());
    EXPECT_EQ(HELD, 2);
    EXPECT_STREQ(v.GetText(), "2");
    v.SetText((std::string(64, 'x')).c_str());
    EXPECT_EQ(std::string(v.GetText()), std::string(63, 'x'));
}

TYPED_TEST(ValidatorFloating, MagnitudesAreLimited) {
    auto& v = this->validator;
    v.SetText("1e305");
    EXPECT_STREQ(v.GetText(), Parts<TypeParam>::kHuge);
    v.SetText("-1e305");
    EXPECT_EQ(std::string(v.GetText()), std::string("-") + Parts<TypeParam>::kHuge);
}

TYPED_TEST(ValidatorFloating, AStepSnapsValueAndText) {
    auto& v = this->validator;
    v.SetStep(OF(0.5));
    EXPECT_EQ(v.m_bStepSet, 1);
    v.SetText("1.3");
    EXPECT_EQ(HELD, OF(1.5));
    EXPECT_STREQ(v.GetText(), "1.5");
    v.SetText("-1.2");
    EXPECT_EQ(HELD, OF(-1));
    EXPECT_STREQ(v.GetText(), "-1");
}

TYPED_TEST(ValidatorFloating, ANewStepWaitsForTheNextReparse) {
    auto& v = this->validator;
    v.SetText("1.3");
    v.SetStep(OF(0.5));
    EXPECT_STREQ(v.GetText(), "1.3");
    EXPECT_EQ(v.Reparse(), OF(1.5));
    EXPECT_STREQ(v.GetText(), "1.5");
}

TYPED_TEST(ValidatorFloating, AStepTurnsGarbageIntoTheLastGoodValue) {
    auto& v = this->validator;
    v.SetStep(OF(0.5));
    v.SetText("2.5");
    v.SetText("oops");
    EXPECT_EQ(HELD, OF(2.5));
    EXPECT_STREQ(v.GetText(), "2.5");
}

TYPED_TEST(ValidatorFloating, SetValuePullsIntoTheRange) {
    auto& v = this->validator;
    v.SetRange(0, 10);
    v.SetValue(20);
    EXPECT_EQ(HELD, 10);
    EXPECT_STREQ(v.GetText(), "10");
    v.SetValue(OF(-1));
    EXPECT_EQ(HELD, 0);
    EXPECT_STREQ(v.GetText(), "0");
}

TYPED_TEST(ValidatorFloating, SettingARangePullsTheValueIn) {
    auto& v = this->validator;
    v.SetValue(20);
    v.SetRange(1, 10);
    EXPECT_EQ(HELD, 10);
    EXPECT_STREQ(v.GetText(), "10");
    EXPECT_EQ(v.m_bCheck, 1);
    typename Parts<TypeParam>::Value low = 0;
    typename Parts<TypeParam>::Value high = 0;
    v.GetRange(&low, &high);
    EXPECT_EQ(low, 1);
    EXPECT_EQ(high, 10);
    v.GetRange(nullptr, nullptr);
}

TYPED_TEST(ValidatorFloating, ReadingTheValueCanChangeTheText) {
    auto& v = this->validator;
    v.SetRange(0, 10);
    v.SetText("20");
    EXPECT_STREQ(v.GetText(), "20");
    EXPECT_EQ(v.GetValue(), 10);
    EXPECT_STREQ(v.GetText(), "10");
}

TYPED_TEST(ValidatorFloating, RangeIncludesBothEnds) {
    auto& v = this->validator;
    v.SetRange(OF(-0.5), OF(0.5));
    for (const char* szText : {"-0.5", "0", "0.5", "0.50"}) {
        v.SetText(szText);
        EXPECT_TRUE(this->Check()) << szText;
    }
    for (const char* szText : {"-0.51", "0.51", "1e20"}) {
        v.SetText(szText);
        EXPECT_FALSE(this->Check()) << szText;
        EXPECT_EQ(this->nReason, 1);
    }
}

TYPED_TEST(ValidatorFloating, NotANumberFailsTheRange) {
    auto& v = this->validator;
    v.SetRange(0, 10);
    v.AVC_Base::SetText("x");
    Parts<TypeParam>::Hold(v, std::numeric_limits<typename Parts<TypeParam>::Value>::quiet_NaN());
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->nReason, 1);
    v.ClampValue();
    EXPECT_TRUE(std::isnan(HELD));
}

TYPED_TEST(ValidatorFloating, MessageUsesTheDisplayFormat) {
    auto& v = this->validator;
    v.SetSigDigits(3);
    v.SetRange(OF(0.00012345), OF(1234.5));
    v.SetText("0");
    EXPECT_FALSE(this->Check("Rate"));
    EXPECT_EQ(this->sMsg,
              kBeginning + "Value in field 'Rate' must fall within the range of 1.23e-4 to 1230.");
    v.SetFormat(0, 4);
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(
        this->sMsg,
        kBeginning +
            "Value must fall within the range 0.0001 to 1234.5000.  Press OK to edit the value.");
}

TYPED_TEST(ValidatorFloating, AListAloneChecksOnlyTheListAndExactly) {
    auto& v = this->validator;
    const typename Parts<TypeParam>::Value kList[] = {OF(0.125), 4, OF(0.123456)};
    v.SetList(kList, 3);
    EXPECT_EQ(v.m_bCheck, 1);
    EXPECT_EQ(v.m_bRangeSet, 0);
    v.SetText("4.0");
    EXPECT_TRUE(this->Check());
    v.SetText("5");
    EXPECT_FALSE(this->Check("Gain"));
    EXPECT_EQ(this->nReason, 2);
    EXPECT_EQ(
        this->sMsg,
        kBeginning + "The value in field 'Gain' is not a member of the list of allowable values.");
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(
        this->sMsg,
        kBeginning + "The value in this field is not a member of the list of allowable values.");
    // Shown with two decimals the entry is not equal any more: entries do not pass through the
    // format.
    v.SetFormat(0, 2);
    v.SetText("0.12");
    EXPECT_FALSE(this->Check());
}

TYPED_TEST(ValidatorFloating, OutsideRangeAndListReportsTheRangeOnly) {
    auto& v = this->validator;
    const typename Parts<TypeParam>::Value kList[] = {1, 2};
    v.SetList(kList, 2);
    v.SetRange(0, 10);
    v.SetText("11");
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->nReason, 1);
    v.SetText("3");
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->nReason, 2);
}

TYPED_TEST(ValidatorFloating, AListWithNoMemoryStaysEmptyButSet) {
    auto& v = this->validator;
    const typename Parts<TypeParam>::Value kList[] = {0};
    v.SetList(kList, 0xFFFFFFFFu);
    EXPECT_EQ(v.m_uListCount, 0u);
    EXPECT_EQ(v.m_bListSet, 1);
    EXPECT_FALSE(this->Check());
    EXPECT_EQ(this->nReason, 2);
}

TYPED_TEST(ValidatorFloating, ReasonIsLeftAloneOnSuccess) {
    auto& v = this->validator;
    v.SetRange(0, 1);
    EXPECT_TRUE(this->Check());
    EXPECT_EQ(this->nReason, -1);
    EXPECT_EQ(this->sMsg, "");
    v.SetText("2");
    EXPECT_EQ(v.Validate("F", nullptr, 0, nullptr), 0);
}

TYPED_TEST(ValidatorFloating, FormatsAreStoredAndNothingElse) {
    auto& v = this->validator;
    v.SetText("1.23456");
    v.SetFormat(0, 2);
    v.SetSigDigits(4);
    EXPECT_STREQ(v.GetText(), "1.23456");
    EXPECT_EQ(v.m_eFormat, 0);
    EXPECT_EQ(v.m_uDecimals, 2u);
    EXPECT_EQ(v.m_uSigDigits, 4u);
}

TYPED_TEST(ValidatorFloating, WhatIsCheckedIsAlwaysWhatIsShown) {
    auto& v = this->validator;
    v.SetFormat(0, 1);
    v.SetRange(0, 1);
    for (int i = 0; i <= 120; ++i) {
        const std::string sText =
            std::to_string(i / 100) + "." + std::to_string(i % 100 / 10) + std::to_string(i % 10);
        v.SetText(sText.c_str());
        const bool bPassed = this->Check();
        TypeParam shown;
        shown.SetText(v.GetText());
        EXPECT_EQ(Parts<TypeParam>::Held(shown), HELD) << sText;
        EXPECT_EQ(bPassed, HELD <= 1) << sText;
    }
}

TEST(ValidatorFloat, FloatHasSixDigitsAndDoubleFifteen) {
    AVC_Float f;
    f.SetText("1.23456789");
    EXPECT_STREQ(f.GetText(), "1.23457");
    AVC_Double d;
    d.SetText("1.23456789012345678");
    EXPECT_STREQ(d.GetText(), "1.23456789012346");
}

}  // namespace
