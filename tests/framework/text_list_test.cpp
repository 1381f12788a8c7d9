// Fields that step through a list of allowed values.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "ControlHost.h"
#include "fixtures/DialogScript.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_ListText.h"

namespace {

using framework_test::Beeps;
using framework_test::ControlHost;
using framework_test::HoldShift;
using framework_test::Stroke;
using test_support::DialogScript;
using test_support::SelectedPart;
using test_support::TextOf;

class ProbeGauge : public ADM_GaugeControl {
  public:
    void PressLineDown(BOOL bNotify) override {
        sLog += "line-down(" + std::to_string(bNotify) + ") ";
    }
    void PressLineUp(BOOL bNotify) override { sLog += "line-up(" + std::to_string(bNotify) + ") "; }
    void ReleaseButtons() override { sLog += "release "; }
    void Enable(BOOL bEnable) override {
        bEnabled = bEnable;
        ADM_GaugeControl::Enable(bEnable);
    }
    std::string TakeLog() { return std::exchange(sLog, ""); }

    BOOL bEnabled = 1;

  private:
    std::string sLog;
};

template <class Field>
class TextList : public testing::Test {
  protected:
    using Value = typename Field::Value;

    ~TextList() override { HoldShift(false); }

    // The list 10, 20, 50, 100 with the value 20.
    HWND Bind() {
        probe.SetControlId(20);
        control.SetGauge(&probe);
        const Value kList[] = {10, 20, 50, 100};
        EXPECT_EQ(control.SetValueList(4, kList), 1);
        control.SetValue(20);
        const HWND hWnd = host.BindEdit(control);
        host.log.Take();
        probe.TakeLog();
        Beeps();
        return hWnd;
    }

    ControlHost host;
    ProbeGauge probe;
    Field control;
};

using Fields = testing::Types<ADM_IntegerListText, ADM_FloatListText, ADM_DoubleListText>;
TYPED_TEST_SUITE(TextList, Fields);

TYPED_TEST(TextList, StartsWithNoListAndNotStrict) {
    auto& field = this->control;
    EXPECT_EQ(field.GetStrict(), 0);
    EXPECT_EQ(field.GetGauge(), nullptr);
    EXPECT_EQ(field.IndexOf(), -1);
    EXPECT_EQ(field.FloorIndex(), 0);
    field.StepListUp();
    field.StepListDown();
    EXPECT_EQ(field.GetValue(), 0);
}

TYPED_TEST(TextList, UpAndDownWalkTheList) {
    const HWND hWnd = this->Bind();
    for (const char* szText : {"50", "100"}) {
        Stroke(hWnd, VK_UP);
        EXPECT_EQ(TextOf(hWnd), szText);
    }
    EXPECT_EQ(Beeps(), 0);
    for (const char* szText : {"50", "20", "10"}) {
        Stroke(hWnd, VK_DOWN);
        EXPECT_EQ(TextOf(hWnd), szText);
    }
    EXPECT_EQ(Beeps(), 0);
}

TYPED_TEST(TextList, TheEndsBeepAndStay) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetValue(100);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "100");
    EXPECT_EQ(Beeps(), 1);
    field.SetValue(10);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "10");
    EXPECT_EQ(Beeps(), 1);
}

TYPED_TEST(TextList, BetweenTwoEntriesUpGoesHigherAndDownLower) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetValue(30);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "50");
    field.SetValue(30);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "20");
    EXPECT_EQ(Beeps(), 0);
}

TYPED_TEST(TextList, AboveTheEndBothGoToTheLastEntryWithABeep) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    for (const int nKey : {VK_UP, VK_DOWN}) {
        field.SetValue(500);
        Stroke(hWnd, nKey);
        EXPECT_EQ(TextOf(hWnd), "100");
        EXPECT_EQ(Beeps(), 1);
    }
}

TYPED_TEST(TextList, BelowTheStartBothGoToTheFirstEntryWithABeep) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    for (const int nKey : {VK_UP, VK_DOWN}) {
        field.SetValue(3);
        Stroke(hWnd, nKey);
        EXPECT_EQ(TextOf(hWnd), "10");
        EXPECT_EQ(Beeps(), 1);
    }
}

TYPED_TEST(TextList, IndexAndFloorIndexFollowTheValue) {
    auto& field = this->control;
    this->Bind();
    struct Row {
        int nValue, nIndex, nFloor;
    };
    for (const Row& row :
         {Row{3, -1, 0}, Row{10, 0, 0}, Row{15, -1, 0}, Row{20, 1, 0}, Row{21, -1, 1},
          Row{50, 2, 1}, Row{99, -1, 2}, Row{100, 3, 2}, Row{101, -1, 3}}) {
        field.SetValue(static_cast<typename TypeParam::Value>(row.nValue));
        EXPECT_EQ(field.IndexOf(), row.nIndex) << row.nValue;
        EXPECT_EQ(field.FloorIndex(), row.nFloor) << row.nValue;
    }
}

TYPED_TEST(TextList, KeysPressTheGaugeAndShiftStepsTheSame) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(this->probe.TakeLog(), "line-down(0) release ");
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(this->probe.TakeLog(), "line-up(0) release ");
    HoldShift(true);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(this->probe.TakeLog(), "line-down(0) release ");
    EXPECT_EQ(field.GetValue(), 50);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(this->probe.TakeLog(), "line-up(0) release ");
    EXPECT_EQ(field.GetValue(), 20);
}

TYPED_TEST(TextList, TheGaugesArrowsStepTakeTheFocusAndSelect) {
    auto& field = this->control;
    auto& gauge = this->probe;
    const HWND hWnd = this->Bind();
    struct Row {
        int nCode;
        const char* szText;
    };
    for (const Row& row : {Row{ADMN_GAUGELINEDOWN, "50"}, Row{ADMN_GAUGEPAGEDOWN, "100"},
                           Row{ADMN_GAUGELINEUP, "50"}, Row{ADMN_GAUGEPAGEUP, "20"}}) {
        SCOPED_TRACE(row.nCode);
        this->host.FocusNowhere();
        gauge.Notify(&gauge, 20, row.nCode, 0);
        EXPECT_EQ(TextOf(hWnd), row.szText);
        EXPECT_TRUE(field.HasFocus());
        EXPECT_EQ(SelectedPart(hWnd), row.szText);
        EXPECT_EQ(gauge.GetPos(), field.IndexOf());
    }
}

TYPED_TEST(TextList, AThumbPositionInsideTheListSetsItsEntry) {
    auto& field = this->control;
    auto& gauge = this->probe;
    this->Bind();
    gauge.Notify(&gauge, 20, ADMN_GAUGETHUMB, 3);
    EXPECT_EQ(field.GetValue(), 100);
    for (const int nPos : {-1, 4, 1000}) {
        field.Notify(&gauge, 20, ADMN_GAUGETHUMB, nPos);
        EXPECT_EQ(field.GetValue(), 100) << nPos;
    }
}

TYPED_TEST(TextList, AValueMovesTheGaugeToItsIndexAndTellsIt) {
    auto& field = this->control;
    this->Bind();
    this->host.FocusNowhere();
    this->host.log.Take();
    field.SetValue(100);
    EXPECT_EQ(this->probe.GetPos(), 3);
    EXPECT_NE(this->host.log.Take().find("700(20)"), std::string::npos);
    // The program set it: nothing takes the focus.
    EXPECT_FALSE(field.HasFocus());
    field.SetValue(30);
    EXPECT_EQ(this->probe.GetPos(), 3);
}

TYPED_TEST(TextList, TheListSetsTheGaugesRange) {
    auto& field = this->control;
    auto& gauge = this->probe;
    field.SetNotifyTarget(&this->host.log);
    field.SetGauge(&gauge);
    gauge.SetControlId(20);
    EXPECT_EQ(gauge.GetNotifyTarget(), &field);
    field.SetValue(50);
    const typename TypeParam::Value kList[] = {10, 20, 50};
    EXPECT_EQ(field.SetValueList(3, kList), 1);
    int nMin = -1;
    int nMax = -1;
    gauge.GetRange(&nMin, &nMax);
    EXPECT_EQ(nMin, 0);
    EXPECT_EQ(nMax, 2);
    EXPECT_EQ(gauge.GetPos(), 2);
    EXPECT_EQ(this->host.log.Take(), "700(20)");
    const typename TypeParam::Value kOther[] = {1, 2};
    EXPECT_EQ(field.SetValueList(2, kOther), 1);
    EXPECT_EQ(this->host.log.Take(), "");
}

TYPED_TEST(TextList, AGaugeThatComesLaterTakesTheListsRange) {
    auto& field = this->control;
    const typename TypeParam::Value kList[] = {10, 20, 50};
    field.SetValueList(3, kList);
    field.SetValue(20);
    field.SetGauge(&this->probe);
    int nMax = -1;
    this->probe.GetRange(nullptr, &nMax);
    EXPECT_EQ(nMax, 2);
    EXPECT_EQ(this->probe.GetPos(), 1);
    field.SetGauge(nullptr);
    field.SetValue(50);
    EXPECT_EQ(this->probe.GetPos(), 1);
}

TYPED_TEST(TextList, AListWithNoMemoryIsRefused) {
    auto& field = this->control;
    const typename TypeParam::Value kList[] = {0, 5};
    EXPECT_EQ(field.SetValueList(2, kList), 1);
    EXPECT_EQ(field.SetValueList(0xFFFFFFFFu, kList), 0);
    EXPECT_EQ(field.IndexOf(), -1);
    EXPECT_EQ(field.SetValueList(3, nullptr), 0);
    EXPECT_EQ(field.SetValueList(0, nullptr), 1);
}

TYPED_TEST(TextList, AStrictListOfOneEntryDisablesTheField) {
    auto& field = this->control;
    field.SetGauge(&this->probe);
    const typename TypeParam::Value kList[] = {10, 20};
    field.SetStrict(1);
    field.SetValueList(1, kList);
    this->host.BindEdit(field);
    EXPECT_FALSE(field.IsEnabled());
    EXPECT_FALSE(field.IsValidatable());
    EXPECT_EQ(this->probe.bEnabled, 0);
    field.SetValueList(2, kList);
    EXPECT_TRUE(field.IsEnabled());
    EXPECT_EQ(this->probe.bEnabled, 1);
    field.SetStrict(0);
    field.SetValueList(1, kList);
    EXPECT_TRUE(field.IsEnabled());
}

TYPED_TEST(TextList, AStrictListRefusesOtherValuesWithoutNamingTheField) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetFieldName("Gain");
    SetWindowTextA(hWnd, "30");
    EXPECT_EQ(field.Validate(0, nullptr), 1);
    field.SetStrict(1);
    EXPECT_EQ(field.Validate(1, nullptr), 0);
    DialogScript script;
    script.Answer(IDOK,
                  "Validation Error\r\n\r\nThe value in this field is not a member of the list of "
                  "allowable values.");
    EXPECT_EQ(script.Run([&] { return field.Validate(0, nullptr); }), 0);
    SetWindowTextA(hWnd, "50");
    EXPECT_EQ(field.Validate(0, nullptr), 1);
}

TYPED_TEST(TextList, TheRangeIsCheckedBeforeTheList) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetStrict(1);
    field.SetRange(0, 100);
    SetWindowTextA(hWnd, "300");
    DialogScript script;
    script.Answer(
        IDOK,
        "Validation Error\r\n\r\nValue must fall within the range 0 to 100.  Press OK to edit "
        "the value.");
    EXPECT_EQ(script.Run([&] { return field.Validate(0, nullptr); }), 0);
}

TYPED_TEST(TextList, StepsWithNoWindowAndNoGauge) {
    auto& field = this->control;
    const typename TypeParam::Value kList[] = {10, 20, 50};
    field.SetValueList(3, kList);
    field.SetValue(10);
    field.StepListUp();
    EXPECT_EQ(field.GetValue(), 20);
    field.StepListDown();
    EXPECT_EQ(field.GetValue(), 10);
}

}  // namespace
