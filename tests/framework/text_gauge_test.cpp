// Fields beside a gauge: scale, steps, positions and what the user's moves do.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include "ControlHost.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_GaugeControl.h"
#include "framework/ADM_IntegerGaugeText.h"

namespace {

using framework_test::Beeps;
using framework_test::ControlHost;
using framework_test::HoldShift;
using framework_test::NotificationLog;
using framework_test::Stroke;
using framework_test::TypeText;
using test_support::SelectedPart;
using test_support::TextOf;

// A gauge that logs what the field presses on it.
class ProbeGauge : public ADM_GaugeControl {
  public:
    void PressPageDown(BOOL bNotify) override { Log("page-down", bNotify); }
    void PressPageUp(BOOL bNotify) override { Log("page-up", bNotify); }
    void PressLineDown(BOOL bNotify) override { Log("line-down", bNotify); }
    void PressLineUp(BOOL bNotify) override { Log("line-up", bNotify); }
    void ReleaseButtons() override { sLog += "release "; }
    void Enable(BOOL bEnable) override {
        bEnabled = bEnable;
        ADM_GaugeControl::Enable(bEnable);
    }
    std::string TakeLog() { return std::exchange(sLog, ""); }

    BOOL bEnabled = 1;

  private:
    void Log(const std::string& sWhat, BOOL bNotify) {
        sLog += sWhat + "(" + std::to_string(bNotify) + ") ";
    }
    std::string sLog;
};

int MinOf(ADM_GaugeControl& gauge) {
    int nMin = -1;
    gauge.GetRange(&nMin, nullptr);
    return nMin;
}

int MaxOf(ADM_GaugeControl& gauge) {
    int nMax = -1;
    gauge.GetRange(nullptr, &nMax);
    return nMax;
}

TEST(Gauge, StartsWithItsDefaults) {
    ADM_GaugeControl gauge;
    EXPECT_EQ(MinOf(gauge), 0);
    EXPECT_EQ(MaxOf(gauge), 100);
    EXPECT_EQ(gauge.GetPos(), 10);
    EXPECT_EQ(gauge.GetPageUp(), -10);
    EXPECT_EQ(gauge.GetPageDown(), 10);
    EXPECT_EQ(gauge.GetLineUp(), -1);
    EXPECT_EQ(gauge.GetLineDown(), 1);
    EXPECT_EQ(gauge.GetLinked(), 0);
    gauge.GetRange(nullptr, nullptr);
}

TEST(Gauge, ARangePullsThePositionIn) {
    ADM_GaugeControl gauge;
    gauge.SetRange(0, 5);
    EXPECT_EQ(gauge.GetPos(), 5);
    gauge.SetRange(7, 9);
    EXPECT_EQ(gauge.GetPos(), 7);
    EXPECT_EQ(gauge.GetForceModified(), 0);
}

TEST(Gauge, ANewPositionIsPulledInAndCountsAsAChange) {
    ADM_GaugeControl gauge;
    gauge.SetPos(10);
    EXPECT_EQ(gauge.GetForceModified(), 0);
    gauge.SetPos(500);
    EXPECT_EQ(gauge.GetPos(), 100);
    EXPECT_EQ(gauge.GetForceModified(), 1);
    EXPECT_EQ(gauge.IsModified(), 1);
    gauge.SetPos(-500);
    EXPECT_EQ(gauge.GetPos(), 0);
}

TEST(Gauge, AloneItMovesItselfAndTellsThePosition) {
    struct Row {
        int nCode;
        int nData;
        int nPos;
        const char* szLog;
    };
    const Row kRows[] = {
        {ADMN_GAUGEBOTTOM, 0, 100, "701(4) 700(4)"},   {ADMN_GAUGETOP, 0, 0, "702(4) 700(4)"},
        {ADMN_GAUGELINEUP, 0, 49, "703(4) 700(4)"},    {ADMN_GAUGELINEDOWN, 0, 51, "704(4) 700(4)"},
        {ADMN_GAUGEPAGEUP, 0, 40, "705(4) 700(4)"},    {ADMN_GAUGEPAGEDOWN, 0, 60, "706(4) 700(4)"},
        {ADMN_GAUGETHUMB, 77, 77, "707(4)=77 700(4)"}, {ADMN_GAUGETHUMB, 50, 50, "707(4)=50"},
        {ADMN_GAUGEENDSCROLL, 0, 50, "708(4)"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.nCode);
        ADM_GaugeControl gauge;
        NotificationLog log;
        gauge.SetPos(50);
        static_cast<ADM_Wnd&>(gauge).SetNotifyTarget(&log);
        EXPECT_EQ(gauge.GetNotifyTarget(), &log);
        gauge.Notify(&gauge, 4, row.nCode, row.nData);
        EXPECT_EQ(gauge.GetPos(), row.nPos);
        EXPECT_EQ(log.Take(), row.szLog);
    }
}

TEST(Gauge, LinkedItOnlyPassesOn) {
    ADM_GaugeControl gauge;
    NotificationLog log;
    gauge.SetNotifyTarget(&log);
    gauge.SetLinked(1);
    gauge.Notify(&gauge, 4, ADMN_GAUGELINEDOWN, 0);
    EXPECT_EQ(gauge.GetPos(), 10);
    EXPECT_EQ(log.Take(), "704(4)");
}

TEST(Gauge, AtItsEndsItTellsNoPosition) {
    ADM_GaugeControl gauge;
    NotificationLog log;
    gauge.SetNotifyTarget(&log);
    gauge.SetPos(100);
    gauge.Notify(&gauge, 4, ADMN_GAUGEPAGEDOWN, 0);
    EXPECT_EQ(gauge.GetPos(), 100);
    EXPECT_EQ(log.Take(), "706(4)");
    gauge.SetRange(-2147483647, 2147483647);
    gauge.SetPos(2147483647);
    gauge.Notify(&gauge, 4, ADMN_GAUGELINEDOWN, 0);
    EXPECT_EQ(gauge.GetPos(), 2147483647);
}

TEST(Gauge, PressedPartsAreToldOnlyWhenAsked) {
    ADM_GaugeControl gauge;
    NotificationLog log;
    gauge.SetControlId(4);
    gauge.SetNotifyTarget(&log);
    gauge.SetLinked(1);
    gauge.PressPageDown(0);
    gauge.PressPageUp(0);
    gauge.PressLineDown(0);
    gauge.PressLineUp(0);
    EXPECT_EQ(log.Take(), "");
    gauge.PressPageDown(1);
    gauge.PressPageUp(1);
    gauge.PressLineDown(1);
    gauge.PressLineUp(1);
    gauge.ReleaseButtons();
    EXPECT_EQ(log.Take(), "706(4) 705(4) 704(4) 703(4)");
}

TEST(Gauge, ItsBuddyReceivesItsNotifications) {
    ADM_GaugeControl gauge;
    ADM_Text field;
    gauge.SetBuddy(nullptr);
    EXPECT_EQ(gauge.GetNotifyTarget(), nullptr);
    gauge.SetBuddy(&field);
    EXPECT_EQ(gauge.GetNotifyTarget(), &field);
}

template <class Field>
class TextGauge : public testing::Test {
  protected:
    ~TextGauge() override { HoldShift(false); }

    // A field from 0 to 100 in steps of 10, at 50.
    HWND Bind() {
        control.SetGauge(&probe);
        probe.SetControlId(20);
        control.SetRange(0, 100, 10);
        control.SetValue(50);
        const HWND hWnd = host.BindEdit(control);
        probe.TakeLog();
        host.log.Take();
        return hWnd;
    }

    ControlHost host;
    ProbeGauge probe;
    Field control;
};

using Fields = testing::Types<ADM_IntegerGaugeText, ADM_DoubleGaugeText>;
TYPED_TEST_SUITE(TextGauge, Fields);

TYPED_TEST(TextGauge, TheRangeSetsTheScale) {
    auto& field = this->control;
    auto& gauge = this->probe;
    field.SetGauge(&gauge);
    EXPECT_EQ(gauge.GetNotifyTarget(), &field);
    field.SetRange(0, 100, 10);
    EXPECT_EQ(MinOf(gauge), 0);
    EXPECT_EQ(MaxOf(gauge), 10);
    EXPECT_EQ(gauge.GetPos(), 0);
    field.SetValue(50);
    const HWND hWnd = this->host.BindEdit(field);
    EXPECT_EQ(TextOf(hWnd), "50");
    EXPECT_TRUE(field.IsEnabled());
}

TEST(DoubleGaugeText, LimitsScaleTheGaugeAndLeaveTheValue) {
    ControlHost host;
    ProbeGauge gauge;
    ADM_DoubleGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(0, 100, 10);
    field.SetValue(50);
    const HWND hWnd = host.BindEdit(field);
    field.SetLimits(60, 80, 5);
    EXPECT_EQ(TextOf(hWnd), "50");
    EXPECT_EQ(MaxOf(gauge), 4);
    EXPECT_EQ(field.GetTypedValue(), 50.0);
    EXPECT_FALSE(field.Validate(TRUE, nullptr));
    // What the arrows do stays within.
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "60");
    EXPECT_TRUE(field.Validate(TRUE, nullptr));
    // Text that was typed and not yet read stays as well.
    SetWindowTextA(hWnd, "7.5");
    field.SetLimits(10, 20, 5);
    EXPECT_EQ(TextOf(hWnd), "7.5");
    EXPECT_EQ(field.GetTypedValue(), 7.5);
    EXPECT_EQ(field.GetValue(), 10.0);
    field.SetLimits(5, 5, 1);
    EXPECT_FALSE(field.IsEnabled());
}

TYPED_TEST(TextGauge, TheTypedValueKnowsNoRange) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    SetWindowTextA(hWnd, "700");
    EXPECT_EQ(field.GetTypedValue(), 700);
    SetWindowTextA(hWnd, "-3");
    EXPECT_EQ(field.GetTypedValue(), -3);
    SetWindowTextA(hWnd, "");
    EXPECT_EQ(field.GetTypedValue(), -3);
    EXPECT_EQ(TextOf(hWnd), "");
}

TYPED_TEST(TextGauge, ARangeOfNoWidthDisablesTheField) {
    auto& field = this->control;
    auto& gauge = this->probe;
    field.SetGauge(&gauge);
    field.SetRange(5, 5, 1);
    EXPECT_EQ(MaxOf(gauge), 0);
    this->host.BindEdit(field);
    EXPECT_FALSE(field.IsEnabled());
    EXPECT_EQ(gauge.bEnabled, 0);
    EXPECT_EQ(field.GetValue(), 5);
    field.Step(1);
    EXPECT_EQ(field.GetValue(), 5);
    field.SetRange(0, 10, 1);
    EXPECT_TRUE(field.IsEnabled());
    EXPECT_EQ(gauge.bEnabled, 1);
    field.SetRange(9, 3, 1);
    EXPECT_FALSE(field.IsEnabled());
}

TYPED_TEST(TextGauge, ArrowsMoveByOneStepAndShiftByTen) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetRange(0, 1000, 10);
    field.SetValue(500);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "510");
    EXPECT_EQ(this->probe.TakeLog(), "line-down(0) release ");
    EXPECT_EQ(this->probe.GetPos(), 51);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "500");
    EXPECT_EQ(this->probe.TakeLog(), "line-up(0) release ");
    HoldShift(true);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "600");
    EXPECT_EQ(this->probe.TakeLog(), "page-down(0) release ");
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "500");
    EXPECT_EQ(this->probe.TakeLog(), "page-up(0) release ");
}

TYPED_TEST(TextGauge, UpAtTheMaximumStaysWithoutABeep) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetValue(100);
    SetWindowTextA(hWnd, "+100");
    Beeps();
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "100");
    EXPECT_EQ(field.GetValue(), 100);
    EXPECT_EQ(Beeps(), 0);
}

TYPED_TEST(TextGauge, AMaximumOffTheGridIsReachedAndKept) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetRange(0, 95, 10);
    field.SetValue(90);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "95");
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "95");
    this->probe.Notify(&this->probe, 20, ADMN_GAUGELINEDOWN, 0);
    EXPECT_EQ(TextOf(hWnd), "95");
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "90");
}

TYPED_TEST(TextGauge, AStepFromOffTheGridLandsOnIt) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    field.SetValue(53);
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "60");
    field.SetValue(53);
    Stroke(hWnd, VK_DOWN);
    EXPECT_EQ(TextOf(hWnd), "50");
}

TYPED_TEST(TextGauge, TheGaugesArrowsStepTakeTheFocusAndSelect) {
    auto& field = this->control;
    const HWND hWnd = this->Bind();
    struct Row {
        int nCode;
        const char* szText;
        const char* szPressed;
    };
    const Row kRows[] = {
        {ADMN_GAUGELINEDOWN, "60", "line-down(0) "},
        {ADMN_GAUGELINEUP, "50", "line-up(0) "},
        {ADMN_GAUGEPAGEDOWN, "100", "page-down(0) "},
        {ADMN_GAUGEPAGEUP, "0", "page-up(0) "},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.nCode);
        this->host.FocusNowhere();
        this->host.log.Take();
        this->probe.Notify(&this->probe, 20, row.nCode, 0);
        EXPECT_EQ(TextOf(hWnd), row.szText);
        EXPECT_EQ(this->probe.TakeLog(), row.szPressed);
        EXPECT_TRUE(field.HasFocus());
        EXPECT_EQ(SelectedPart(hWnd), row.szText);
        const std::string sLog = this->host.log.Take();
        EXPECT_NE(sLog.find("700(20)"), std::string::npos) << sLog;
        EXPECT_NE(sLog.find(std::to_string(row.nCode) + "(20)"), std::string::npos) << sLog;
    }
}

TYPED_TEST(TextGauge, AGaugePositionBecomesTheValue) {
    auto& field = this->control;
    auto& gauge = this->probe;
    const HWND hWnd = this->Bind();
    gauge.SetPos(3);
    field.Notify(&gauge, 20, ADMN_GAUGEPOSITION, 0);
    EXPECT_EQ(TextOf(hWnd), "30");
    EXPECT_EQ(field.GetValue(), 30);
    EXPECT_TRUE(field.HasFocus());
    EXPECT_EQ(SelectedPart(hWnd), "30");
}

TYPED_TEST(TextGauge, ATextThatFollowsTheGaugeDoesNotMoveItBack) {
    auto& field = this->control;
    auto& gauge = this->probe;
    const HWND hWnd = this->Bind();
    field.SetRange(0, 95, 10);
    gauge.SetPos(10);
    field.Notify(&gauge, 20, ADMN_GAUGEPOSITION, 0);
    EXPECT_EQ(TextOf(hWnd), "95");
    EXPECT_EQ(gauge.GetPos(), 10);
    EXPECT_NE(this->host.log.Take().find("300(10)"), std::string::npos);
}

TYPED_TEST(TextGauge, AThumbPositionBecomesTheValue) {
    auto& field = this->control;
    auto& gauge = this->probe;
    const HWND hWnd = this->Bind();
    gauge.Notify(&gauge, 20, ADMN_GAUGETHUMB, 7);
    EXPECT_EQ(gauge.GetPos(), 7);
    EXPECT_EQ(TextOf(hWnd), "70");
    EXPECT_EQ(field.GetValue(), 70);
}

TYPED_TEST(TextGauge, TypingMovesTheGauge) {
    auto& field = this->control;
    auto& gauge = this->probe;
    const HWND hWnd = this->Bind();
    field.SelectContents();
    TypeText(hWnd, "80");
    EXPECT_EQ(gauge.GetPos(), 8);
    EXPECT_EQ(TextOf(hWnd), "80");
    field.SelectContents();
    TypeText(hWnd, "7");
    EXPECT_EQ(gauge.GetPos(), 0 + (std::is_same_v<TypeParam, ADM_DoubleGaugeText> ? 1 : 0));
}

TYPED_TEST(TextGauge, EnablingReachesTheGauge) {
    auto& field = this->control;
    this->Bind();
    field.Enable(0);
    EXPECT_FALSE(field.IsEnabled());
    EXPECT_EQ(this->probe.bEnabled, 0);
    field.Enable(1);
    EXPECT_EQ(this->probe.bEnabled, 1);
}

TYPED_TEST(TextGauge, WorksWithNoGauge) {
    auto& field = this->control;
    field.SetGauge(nullptr);
    field.SetRange(0, 100, 10);
    const HWND hWnd = this->host.BindEdit(field);
    EXPECT_TRUE(field.IsEnabled());
    SetWindowTextA(hWnd, "42");
    Stroke(hWnd, VK_UP);
    EXPECT_EQ(TextOf(hWnd), "42");
    field.Step(1);
    EXPECT_EQ(field.GetValue(), 42);
}

TYPED_TEST(TextGauge, WorksWithNoWindow) {
    auto& field = this->control;
    auto& gauge = this->probe;
    field.SetGauge(&gauge);
    field.SetRange(0, 100, 10);
    field.SetValue(50);
    field.Step(gauge.GetLineDown());
    EXPECT_EQ(field.GetValue(), 60);
    EXPECT_EQ(gauge.GetPos(), 6);
    gauge.Notify(&gauge, 20, ADMN_GAUGELINEUP, 0);
    EXPECT_EQ(field.GetValue(), 50);
}

TYPED_TEST(TextGauge, KeepsItsOwnNotificationTarget) {
    auto& field = this->control;
    field.SetNotifyTarget(&this->host.log);
    field.SetGauge(&this->probe);
    this->probe.Notify(&this->probe, 20, ADMN_GAUGEENDSCROLL, 0);
    EXPECT_EQ(this->host.log.Take(), "708(20)");
    EXPECT_EQ(this->host.log.pLastSender, &this->probe);
}

TEST(TextIntegerGauge, StepsBelowOneBecomeOne) {
    ADM_GaugeControl gauge;
    ADM_IntegerGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(0, 5, 0);
    field.SetValue(2);
    field.Step(1);
    EXPECT_EQ(field.GetValue(), 3);
}

TEST(TextIntegerGauge, NegativeValuesStepToo) {
    ADM_GaugeControl gauge;
    ADM_IntegerGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(-100, 100, 5);
    field.SetValue(-10);
    field.Step(1);
    EXPECT_EQ(field.GetValue(), -5);
    field.Step(-1);
    EXPECT_EQ(field.GetValue(), -10);
    EXPECT_EQ(gauge.GetPos(), 18);
}

TEST(TextIntegerGauge, PositionsDivideAsIntegers) {
    ADM_GaugeControl gauge;
    ADM_IntegerGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(0, 100, 10);
    field.SetValue(59);
    field.SetGauge(&gauge);
    EXPECT_EQ(gauge.GetPos(), 5);
}

TEST(TextIntegerGauge, TheWidestRangeIsScaledDown) {
    ADM_GaugeControl gauge;
    ADM_IntegerGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(-2147483647, 2147483647, 1);
    EXPECT_LE(MaxOf(gauge), 10000000);
    field.SetValue(2147483647);
    field.Step(1);
    EXPECT_EQ(field.GetValue(), 2147483647);
    field.SetValue(-2147483647);
    field.Step(-10);
    EXPECT_EQ(field.GetValue(), -2147483647);
}

TEST(TextDoubleGauge, SetGaugeLinksIt) {
    ADM_GaugeControl gauge;
    ADM_DoubleGaugeText field;
    field.SetGauge(&gauge);
    EXPECT_EQ(gauge.GetLinked(), 1);
    ADM_GaugeControl other;
    ADM_IntegerGaugeText integer;
    integer.SetGauge(&other);
    EXPECT_EQ(other.GetLinked(), 0);
}

TEST(TextDoubleGauge, KeepsTheRequestedStep) {
    ADM_GaugeControl gauge;
    ADM_DoubleGaugeText field;
    EXPECT_EQ(field.GetRequestedStep(), 1.0);
    field.SetGauge(&gauge);
    field.SetRange(0, 1e9, 0.5);
    EXPECT_EQ(field.GetRequestedStep(), 0.5);
    EXPECT_LE(MaxOf(gauge), 10000000);
}

TEST(TextDoubleGauge, AFractionAboveATenthCountsAsTheNextPosition) {
    ADM_GaugeControl gauge;
    ADM_DoubleGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(0, 10, 1);
    struct Row {
        double dValue;
        int nPos;
    };
    for (const Row& row :
         {Row{3, 3}, Row{3.05, 3}, Row{3.2, 4}, Row{3.9, 4}, Row{0, 0}, Row{10, 10}}) {
        field.SetValue(row.dValue);
        field.SetGauge(&gauge);
        EXPECT_EQ(gauge.GetPos(), row.nPos) << row.dValue;
    }
}

TEST(TextDoubleGauge, SmallStepsStayOnTheirGrid) {
    ADM_GaugeControl gauge;
    ADM_DoubleGaugeText field;
    field.SetGauge(&gauge);
    field.SetRange(0, 1, 0.1);
    field.SetValue(0);
    for (int i = 1; i <= 10; ++i) {
        field.Step(1);
        EXPECT_EQ(std::to_string(field.GetValue()).substr(0, 3),
                  i < 10 ? "0." + std::to_string(i) : "1.0");
        EXPECT_EQ(gauge.GetPos(), i);
    }
    for (int i = 9; i >= 0; --i) field.Step(-1);
    EXPECT_EQ(field.GetValue(), 0);
}

TEST(TextDoubleGauge, WithNoWidthAndNoGaugeItIsDisabledToo) {
    ControlHost host;
    ADM_DoubleGaugeText field;
    field.SetRange(5, 5, 1);
    host.BindEdit(field);
    EXPECT_FALSE(field.IsEnabled());
}

}  // namespace
