// The three plain numeric fields: reading, showing, checking and filtering.
#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <type_traits>

#include "ControlHost.h"
#include "fixtures/DialogScript.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_FloatText.h"
#include "framework/ADM_IntegerText.h"

namespace {

using framework_test::Beeps;
using framework_test::ControlHost;
using framework_test::TypeChar;
using framework_test::TypeText;
using test_support::DialogScript;
using test_support::SelectedPart;
using test_support::TextOf;

const std::string kBeginning = "Validation Error\r\n\r\n";

void CopyToClipboard(HWND hOwner, const std::string& sText) {
    ASSERT_TRUE(OpenClipboard(hOwner));
    EmptyClipboard();
    const HGLOBAL hMemory = GlobalAlloc(GMEM_MOVEABLE, sText.size() + 1);
    std::memcpy(GlobalLock(hMemory), sText.c_str(), sText.size() + 1);
    GlobalUnlock(hMemory);
    SetClipboardData(CF_TEXT, hMemory);
    CloseClipboard();
}

template <class Field>
struct Typing;
template <>
struct Typing<ADM_IntegerText> {
    static constexpr std::size_t kMost = 11;
    static constexpr const char* kAllowed = "0123456789+- ";
};
template <>
struct Typing<ADM_FloatText> {
    static constexpr std::size_t kMost = 13;
    static constexpr const char* kAllowed = "0123456789+-Ee. ";
};
template <>
struct Typing<ADM_DoubleText> {
    static constexpr std::size_t kMost = 23;
    static constexpr const char* kAllowed = "0123456789+-Ee. ";
};

template <class Field>
class TextNumeric : public testing::Test {
  protected:
    ControlHost host;
    Field control;
};

using Fields = testing::Types<ADM_IntegerText, ADM_FloatText, ADM_DoubleText>;
TYPED_TEST_SUITE(TextNumeric, Fields);

TYPED_TEST(TextNumeric, HoldsItsValueWithNoWindow) {
    auto& field = this->control;
    EXPECT_EQ(field.GetValue(), 0);
    EXPECT_EQ(field.HasChanged(), 0);
    field.SetValue(7);
    EXPECT_EQ(field.GetValue(), 7);
    EXPECT_EQ(field.HasChanged(), 1);
    EXPECT_EQ(field.IsModified(), 1);
    field.SaveInitialValue();
    EXPECT_EQ(field.IsModified(), 0);
    EXPECT_EQ(field.IsValidatable(), 0);
    EXPECT_EQ(field.Validate(1, nullptr), 1);
    field.ReadControl();
    EXPECT_EQ(field.GetValue(), 7);
    field.SelectContents();
    field.SetSel(0, 1);
    field.SetModify(1);
    field.LimitText(5);
    field.Cut();
    field.Copy();
    field.Paste();
    EXPECT_EQ(field.GetModify(), 0);
    EXPECT_EQ(field.GetLineCount(), 0);
    EXPECT_EQ(field.GetFirstVisibleLine(), 0);
    EXPECT_EQ(field.Undo(), 0);
}

TYPED_TEST(TextNumeric, ShowsItsValueInANewWindowAndKeepsItAfterwards) {
    auto& field = this->control;
    field.SetValue(7);
    const HWND hWnd = this->host.BindEdit(field);
    EXPECT_EQ(TextOf(hWnd), "7");
    SetWindowTextA(hWnd, "12");
    EXPECT_EQ(field.GetValue(), 12);
    field.Attach(nullptr);
    DestroyWindow(hWnd);
    EXPECT_EQ(field.GetValue(), 12);
    const HWND hNext = this->host.BindEdit(field, 11, "template text");
    EXPECT_EQ(TextOf(hNext), "12");
}

TYPED_TEST(TextNumeric, AValueSetDuringSetUpIsNoChange) {
    auto& field = this->control;
    this->host.BindEdit(field);
    field.SetValue(5);
    EXPECT_EQ(field.IsModified(), 1);
    field.SaveInitialValue();
    EXPECT_EQ(field.IsModified(), 0);
    SetWindowTextA(field.GetHandle(), "6");
    EXPECT_EQ(field.IsModified(), 1);
    field.SetTrackChanges(0);
    EXPECT_EQ(field.IsModified(), 0);
    EXPECT_EQ(field.HasChanged(), 0);
}

TYPED_TEST(TextNumeric, AttachingTakesTheValueToCompareWith) {
    auto& field = this->control;
    field.SetValue(5);
    this->host.BindEdit(field);
    EXPECT_EQ(field.IsModified(), 0);
}

TYPED_TEST(TextNumeric, TypedTextIsLimited) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    for (int i = 0; i < 2; ++i) {
        SetWindowTextA(hWnd, "");
        TypeText(hWnd, std::string(40, '1'));
        EXPECT_EQ(TextOf(hWnd).size(), Typing<TypeParam>::kMost);
    }
    // Each window of the field gets the limit.
    field.Attach(nullptr);
    const HWND hNext = this->host.BindEdit(field, 11);
    SetWindowTextA(hNext, "");
    TypeText(hNext, std::string(40, '1'));
    EXPECT_EQ(TextOf(hNext).size(), Typing<TypeParam>::kMost);
}

TYPED_TEST(TextNumeric, OnlyAllowedCharactersCanBeTyped) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    const std::string sAllowed = Typing<TypeParam>::kAllowed;
    Beeps();
    for (int ch = 0x21; ch < 0x7F; ++ch) {
        SCOPED_TRACE(ch);
        const bool bAllowed = sAllowed.find(static_cast<char>(ch)) != std::string::npos;
        SetWindowTextA(hWnd, "");
        TypeChar(hWnd, static_cast<char>(ch));
        EXPECT_EQ(TextOf(hWnd), bAllowed ? std::string(1, static_cast<char>(ch)) : "");
        EXPECT_EQ(Beeps(), bAllowed ? 0 : 1);
    }
    SetWindowTextA(hWnd, "");
    TypeChar(hWnd, ' ');
    EXPECT_EQ(TextOf(hWnd), " ");
}

TYPED_TEST(TextNumeric, UnprintableCharactersAreNotFiltered) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, "12");
    field.SetSel(2, 2);
    Beeps();
    TypeChar(hWnd, '\b');
    EXPECT_EQ(TextOf(hWnd), "1");
    TypeChar(hWnd, '\xE9');
    EXPECT_EQ(TextOf(hWnd), "1\xE9");
    EXPECT_EQ(Beeps(), 0);
    for (const int ch : {1, 8, 9, 13, 27, 31, 127, 128, 255})
        EXPECT_EQ(field.OnChar(hWnd, ch), 1) << ch;
}

TYPED_TEST(TextNumeric, LeavingTheFieldShowsTheDisplayForm) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    field.SetFocus();
    SetWindowTextA(hWnd, "+007");
    this->host.FocusNowhere();
    EXPECT_EQ(TextOf(hWnd), "7");
}

TYPED_TEST(TextNumeric, LeavingTheFieldDoesNotValidate) {
    auto& field = this->control;
    field.SetRange(0, 10);
    const HWND hWnd = this->host.BindEdit(field);
    field.SetFocus();
    SetWindowTextA(hWnd, "50");
    this->host.FocusNowhere();
    EXPECT_EQ(TextOf(hWnd), "50");
    EXPECT_EQ(field.Validate(1, nullptr), 0);
    EXPECT_EQ(TextOf(hWnd), "50");
}

TYPED_TEST(TextNumeric, PastedGarbageIsRewrittenOnLeaving) {
    auto& field = this->control;
    field.SetValue(5);
    const HWND hWnd = this->host.BindEdit(field);
    field.SetFocus();
    CopyToClipboard(this->host.window, "7 apples");
    field.SelectContents();
    field.Paste();
    EXPECT_EQ(TextOf(hWnd), "7 apples");
    this->host.FocusNowhere();
    // Plain conversion takes the digits in front; the floating fields refuse such a text whole.
    EXPECT_EQ(field.GetValue(), (std::is_same_v<TypeParam, ADM_IntegerText> ? 7 : 5));
}

TYPED_TEST(TextNumeric, APasteIsCutAtTheLimit) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    field.SetFocus();
    CopyToClipboard(this->host.window, std::string(200, '1'));
    field.SelectContents();
    field.Paste();
    EXPECT_LE(TextOf(hWnd).size(), Typing<TypeParam>::kMost);
}

TYPED_TEST(TextNumeric, ReadsAtMost63Characters) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, (std::string(62, '0') + "25").c_str());
    EXPECT_EQ(field.GetValue(), 2);
    SetWindowTextA(hWnd, std::string(5000, '9').c_str());
    field.ReadControl();
    SetWindowTextA(hWnd, "3");
    EXPECT_EQ(field.GetValue(), 3);
}

TYPED_TEST(TextNumeric, AFailureTellsTheFieldAndItsLimitsWithTheFocusFirst) {
    auto& field = this->control;
    field.SetFieldName("Level (100%)");
    field.SetRange(0, 10);
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, "50");
    this->host.FocusNowhere();
    this->host.log.Take();
    DialogScript script;
    script.Answer(
        IDOK, kBeginning + "Value in field 'Level (100%)' must fall within the range of 0 to 10.");
    EXPECT_EQ(script.Run([&] { return field.Validate(0, nullptr); }), 0);
    // A dialog would have the focus back on the field by now; a plain window only saw it come.
    EXPECT_NE(this->host.log.Take().find("201(10)"), std::string::npos);
    ASSERT_EQ(script.Messages().size(), 1u);
    EXPECT_EQ(script.Messages()[0].title, "Error");
}

TYPED_TEST(TextNumeric, AFieldWithNoNameSpeaksOfPressingOk) {
    auto& field = this->control;
    field.SetRange(0, 10);
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, "50");
    DialogScript script;
    script.Answer(
        IDOK,
        kBeginning + "Value must fall within the range 0 to 10.  Press OK to edit the value.");
    EXPECT_EQ(script.Run([&] { return field.Validate(0, nullptr); }), 0);
}

TYPED_TEST(TextNumeric, SilentValidationShowsNothing) {
    auto& field = this->control;
    field.SetRange(0, 10);
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, "50");
    this->host.FocusNowhere();
    EXPECT_EQ(field.Validate(1, nullptr), 0);
    EXPECT_FALSE(field.HasFocus());
    SetWindowTextA(hWnd, "5");
    EXPECT_EQ(field.Validate(1, nullptr), 1);
}

TYPED_TEST(TextNumeric, AListRuleIsChecked) {
    auto& field = this->control;
    const typename TypeParam::Value kList[] = {1, 2, 4};
    field.SetList(kList, 3);
    field.SetValue(3);
    EXPECT_EQ(field.Validate(1, nullptr), 0);
    field.SetValue(4);
    EXPECT_EQ(field.Validate(1, nullptr), 1);
}

TYPED_TEST(TextNumeric, SetValueIsClampedAndShown) {
    auto& field = this->control;
    field.SetRange(0, 10);
    const HWND hWnd = this->host.BindEdit(field);
    field.SetValue(50);
    EXPECT_EQ(TextOf(hWnd), "10");
    EXPECT_EQ(field.GetValue(), 10);
    typename TypeParam::Value low = 1;
    typename TypeParam::Value high = 1;
    field.GetRange(&low, &high);
    EXPECT_EQ(low, 0);
    EXPECT_EQ(high, 10);
}

TYPED_TEST(TextNumeric, AStepSnapsWhatIsRead) {
    auto& field = this->control;
    field.SetStep(5);
    const HWND hWnd = this->host.BindEdit(field);
    SetWindowTextA(hWnd, "12");
    EXPECT_EQ(field.GetValue(), 10);
}

TYPED_TEST(TextNumeric, ATextChangeAsksForALaterApply) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    test_support::PumpMessages();
    this->host.log.Take();
    WPARAM wSender = 0;
    LPARAM lCode = 0;
    int nPosts = 0;
    auto& window = this->host.window;
    SetWindowTextA(hWnd, "9");
    EXPECT_EQ(this->host.log.Take(), "301(10) 300(10)");
    window.OnMessage([&](UINT uMsg, WPARAM wParam, LPARAM lParam, LRESULT*) {
        if (uMsg != ADMM_APPLY_LATER) return false;
        ++nPosts;
        wSender = wParam;
        lCode = lParam;
        return true;
    });
    test_support::PumpMessages();
    EXPECT_EQ(nPosts, 1);
    EXPECT_EQ(wSender, reinterpret_cast<WPARAM>(static_cast<void*>(&field)));
    EXPECT_EQ(lCode, 300);
}

TYPED_TEST(TextNumeric, OnlySettersThatChangeTheTextAreTold) {
    auto& field = this->control;
    field.SetRange(0, 10);
    this->host.BindEdit(field);
    this->host.log.Take();
    field.SetValue(0);
    field.SetRange(0, 5);
    field.SetStep(1);
    field.SaveInitialValue();
    field.SetForceModified(1);
    field.OnAttach();
    EXPECT_EQ(this->host.log.Take(), "");
    field.SetValue(3);
    EXPECT_EQ(this->host.log.Take(), "301(10) 300(10)");
}

TYPED_TEST(TextNumeric, TakingTheFocusSelectsAllUnlessTurnedOff) {
    auto& field = this->control;
    field.SetValue(123);
    const HWND hWnd = this->host.BindEdit(field);
    field.SetFocus();
    EXPECT_EQ(SelectedPart(hWnd), "123");
    this->host.FocusNowhere();
    field.SetSel(0, 0);
    field.SetSelectOnFocus(0);
    field.SetFocus();
    EXPECT_EQ(SelectedPart(hWnd), "");
    EXPECT_EQ(field.GetFlag(), 1);
    field.SetFlag(0);
    EXPECT_EQ(field.GetFlag(), 0);
}

TYPED_TEST(TextNumeric, AWindowDestroyedUnderTheFieldLeavesItsValue) {
    auto& field = this->control;
    const HWND hWnd = this->host.BindEdit(field);
    field.SetValue(4);
    DestroyWindow(hWnd);
    EXPECT_EQ(field.GetValue(), 4);
    field.SetValue(5);
    EXPECT_EQ(field.GetValue(), 5);
    EXPECT_EQ(field.IsValidatable(), 0);
}

TYPED_TEST(TextNumeric, AFieldDestroyedWhileBoundLeavesAPlainEdit) {
    const HWND hWnd = this->host.window.Add("Edit", "1", 77, 0);
    {
        TypeParam field;
        field.Attach(hWnd);
    }
    TypeText(hWnd, "x");
    EXPECT_EQ(TextOf(hWnd), "x0");
}

TEST(TextInteger, TheLetterEIsRefusedWithABeep) {
    ControlHost host;
    ADM_IntegerText field;
    const HWND hWnd = host.BindEdit(field);
    Beeps();
    TypeChar(hWnd, 'e');
    EXPECT_EQ(TextOf(hWnd), "0");
    EXPECT_EQ(Beeps(), 1);
}

TEST(TextInteger, ReadingDoesNotClamp) {
    ControlHost host;
    ADM_IntegerText field;
    field.SetRange(0, 10);
    const HWND hWnd = host.BindEdit(field);
    SetWindowTextA(hWnd, "50");
    EXPECT_EQ(field.GetValue(), 50);
    SetWindowTextA(hWnd, "12abc");
    EXPECT_EQ(field.GetValue(), 12);
}

TEST(TextFloating, ReadingClamps) {
    ControlHost host;
    ADM_DoubleText field;
    field.SetRange(0, 10);
    const HWND hWnd = host.BindEdit(field);
    SetWindowTextA(hWnd, "50");
    EXPECT_EQ(field.GetValue(), 10);
    EXPECT_EQ(TextOf(hWnd), "50");
}

TEST(TextFloating, AnEmptyFloatFieldIsZeroAndChecked) {
    ControlHost host;
    ADM_FloatText field;
    field.SetRange(1, 10);
    field.SetValue(5);
    const HWND hWnd = host.BindEdit(field);
    field.SetFocus();
    SetWindowTextA(hWnd, "");
    EXPECT_EQ(field.Validate(1, nullptr), 0);
    host.FocusNowhere();
    EXPECT_EQ(TextOf(hWnd), "");
    field.SetRange(0, 10);
    SetWindowTextA(hWnd, "");
    EXPECT_EQ(field.Validate(1, nullptr), 1);
    EXPECT_EQ(field.GetValue(), 0);
}

template <class Field>
class TextKeepsLast : public testing::Test {};
using KeepingFields = testing::Types<ADM_IntegerText, ADM_DoubleText>;
TYPED_TEST_SUITE(TextKeepsLast, KeepingFields);

TYPED_TEST(TextKeepsLast, AnEmptyFieldKeepsTheLastValueUntilItLosesTheFocus) {
    ControlHost host;
    TypeParam field;
    field.SetRange(1, 10);
    field.SetValue(5);
    const HWND hWnd = host.BindEdit(field);
    field.SetFocus();
    SetWindowTextA(hWnd, "");
    EXPECT_EQ(field.Validate(1, nullptr), 1);
    EXPECT_EQ(field.GetValue(), 5);
    EXPECT_EQ(TextOf(hWnd), "");
    host.FocusNowhere();
    EXPECT_EQ(TextOf(hWnd), "5");
}

template <class Field>
class TextFormat : public testing::Test {};
using FloatingFields = testing::Types<ADM_FloatText, ADM_DoubleText>;
TYPED_TEST_SUITE(TextFormat, FloatingFields);

TYPED_TEST(TextFormat, DecimalPlacesReformatTheText) {
    ControlHost host;
    TypeParam field;
    const HWND hWnd = host.BindEdit(field);
    SetWindowTextA(hWnd, "1.23456");
    field.SetDecimalPlaces(2);
    EXPECT_EQ(TextOf(hWnd), "1.23");
    field.SetDecimalPlaces(4);
    EXPECT_EQ(TextOf(hWnd), "1.2300");
    field.SetDecimalPlaces(-1);
    EXPECT_EQ(TextOf(hWnd), "1.23");
    field.SetDecimalPlaces(0);
    EXPECT_EQ(TextOf(hWnd), "1");
}

TYPED_TEST(TextFormat, SignificantDigitsReformatTheText) {
    ControlHost host;
    TypeParam field;
    const HWND hWnd = host.BindEdit(field);
    SetWindowTextA(hWnd, "1234.56");
    field.SetSigDigits(3);
    EXPECT_EQ(TextOf(hWnd), "1230");
    EXPECT_EQ(field.GetValue(), 1230);
}

TYPED_TEST(TextFormat, FormatsWorkWithNoWindow) {
    TypeParam field;
    field.SetDecimalPlaces(1);
    field.SetValue(static_cast<typename TypeParam::Value>(2.34));
    EXPECT_EQ(field.GetValue(), static_cast<typename TypeParam::Value>(2.3));
}

TYPED_TEST(TextFormat, TheFirstUnparsableTextKeepsTheValueAndIsRewrittenLater) {
    ControlHost host;
    TypeParam field;
    field.SetValue(5);
    const HWND hWnd = host.BindEdit(field);
    field.SetFocus();
    SetWindowTextA(hWnd, "1 2");
    EXPECT_EQ(field.GetValue(), 5);
    EXPECT_EQ(field.Validate(1, nullptr), 1);
}

}  // namespace
