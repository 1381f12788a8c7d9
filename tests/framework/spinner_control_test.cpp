// The gauge object that drives a spinner, and a field beside it.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "ControlHost.h"
#include "WindowPixels.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_Spinner.h"
#include "widgets/Framework.h"
#include "widgets/Spinner.h"

namespace {

using framework_test::ControlHost;
using framework_test::HoldShift;
using framework_test::KeyDown;
using framework_test::KeyUp;
using framework_test::NotificationLog;
using framework_test::PixelsOf;
using test_support::SelectedPart;
using test_support::TextOf;

class SpinnerControl : public testing::Test {
  protected:
    SpinnerControl() { InitDialogFramework(GetModuleHandleA(nullptr)); }
    ~SpinnerControl() override { HoldShift(false); }

    HWND BindSpinner() {
        return host.Bind(spinner, CommonCtls::kVerticalSpinnerClass, "", 20, 0, 200, 10, 20, 24);
    }
    // A press and release over an arrow.
    static void Click(HWND hSpinner, bool bUpper) {
        SendMessageA(hSpinner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(10, bUpper ? 3 : 20));
        SendMessageA(hSpinner, WM_LBUTTONUP, 0, MAKELPARAM(10, bUpper ? 3 : 20));
    }

    ControlHost host;
    ADM_Spinner spinner;
};

TEST_F(SpinnerControl, CodesBecomeGaugeNotifications) {
    NotificationLog log;
    spinner.SetNotifyTarget(&log);
    spinner.SetLinked(1);
    for (const int nCode : {1, 2, 11, 12, 0, 3, 10, 13})
        spinner.OnCommand(nullptr, 20, nullptr, nCode);
    EXPECT_EQ(log.Take(), "704(20) 703(20) 706(20) 705(20)");
}

TEST_F(SpinnerControl, AWindowWithNoPeriodGetsOne) {
    const HWND hSpinner = BindSpinner();
    EXPECT_EQ(CommonCtls::SpinnerGetRepeat(hSpinner), 50u);
    CommonCtls::SpinnerSetRepeat(hSpinner, 80);
    spinner.OnAttach();
    EXPECT_EQ(CommonCtls::SpinnerGetRepeat(hSpinner), 80u);
}

TEST_F(SpinnerControl, ARangeOfOnePositionDisablesIt) {
    BindSpinner();
    spinner.SetRange(0, 0);
    EXPECT_FALSE(spinner.IsEnabled());
    spinner.SetRange(0, 5);
    EXPECT_TRUE(spinner.IsEnabled());
}

TEST_F(SpinnerControl, PressingLightsTheArrow) {
    const HWND hSpinner = BindSpinner();
    spinner.SetLinked(1);
    const std::vector<COLORREF> plain = PixelsOf(hSpinner);
    CommonCtls::SpinnerPress(hSpinner, CommonCtls::kArrowFirst);
    const std::vector<COLORREF> up = PixelsOf(hSpinner);
    CommonCtls::SpinnerPress(hSpinner, CommonCtls::kArrowSecond);
    const std::vector<COLORREF> down = PixelsOf(hSpinner);
    ASSERT_NE(up, down);
    struct Row {
        void (ADM_GaugeControl::*pPress)(BOOL);
        bool bUp;
        const char* szLog;
    };
    for (const Row& row : {Row{&ADM_GaugeControl::PressPageDown, true, "706(20)"},
                           Row{&ADM_GaugeControl::PressLineDown, true, "704(20)"},
                           Row{&ADM_GaugeControl::PressPageUp, false, "705(20)"},
                           Row{&ADM_GaugeControl::PressLineUp, false, "703(20)"}}) {
        SCOPED_TRACE(row.szLog);
        for (const BOOL bNotify : {0, 1}) {
            spinner.ReleaseButtons();
            EXPECT_EQ(PixelsOf(hSpinner), plain);
            host.log.Take();
            (spinner.*row.pPress)(bNotify);
            EXPECT_EQ(PixelsOf(hSpinner), row.bUp ? up : down);
            EXPECT_EQ(host.log.Take(), bNotify ? row.szLog : "");
        }
    }
}

TEST_F(SpinnerControl, EverythingWorksUnbound) {
    spinner.SetRange(0, 10);
    spinner.PressLineDown(1);
    EXPECT_EQ(spinner.GetPos(), 10);
    spinner.PressLineUp(1);
    EXPECT_EQ(spinner.GetPos(), 9);
    spinner.ReleaseButtons();
    spinner.SetBuddy(nullptr);
    ADM_Text field;
    spinner.SetBuddy(&field);
    EXPECT_EQ(spinner.GetNotifyTarget(), &field);
}

TEST_F(SpinnerControl, StepsAnIntegerFieldOnlyOncePerClick) {
    ADM_IntegerGaugeText field;
    const HWND hEdit = host.BindEdit(field);
    const HWND hSpinner = BindSpinner();
    field.SetGauge(&spinner);
    field.SetRange(0, 100, 5);
    field.SetValue(50);
    Click(hSpinner, true);
    EXPECT_EQ(TextOf(hEdit), "55");
    EXPECT_EQ(SelectedPart(hEdit), "55");
    EXPECT_EQ(spinner.GetPos(), 11);
    Click(hSpinner, false);
    EXPECT_EQ(TextOf(hEdit), "50");
    HoldShift(true);
    Click(hSpinner, true);
    EXPECT_EQ(TextOf(hEdit), "100");
    Click(hSpinner, false);
    EXPECT_EQ(TextOf(hEdit), "50");
}

TEST_F(SpinnerControl, StepsADoubleField) {
    ADM_DoubleGaugeText field;
    const HWND hEdit = host.BindEdit(field);
    const HWND hSpinner = BindSpinner();
    field.SetGauge(&spinner);
    field.SetRange(0, 1, 0.01);
    field.SetDecimalPlaces(2);
    field.SetValue(0.5);
    Click(hSpinner, true);
    EXPECT_EQ(TextOf(hEdit), "0.51");
    HoldShift(true);
    Click(hSpinner, false);
    EXPECT_EQ(TextOf(hEdit), "0.50");
    Click(hSpinner, false);
    EXPECT_EQ(TextOf(hEdit), "0.40");
}

TEST_F(SpinnerControl, StepsAListField) {
    ADM_DoubleListText field;
    const HWND hEdit = host.BindEdit(field);
    const HWND hSpinner = BindSpinner();
    field.SetGauge(&spinner);
    const double kList[] = {0.5, 1, 2.5};
    field.SetValueList(3, kList);
    field.SetValue(1);
    Click(hSpinner, true);
    EXPECT_EQ(TextOf(hEdit), "2.5");
    Click(hSpinner, false);
    Click(hSpinner, false);
    EXPECT_EQ(TextOf(hEdit), "0.5");
    EXPECT_EQ(spinner.GetPos(), 0);
}

TEST_F(SpinnerControl, AnArrowKeyLightsTheArrowUntilItsRelease) {
    ADM_IntegerGaugeText field;
    const HWND hEdit = host.BindEdit(field);
    const HWND hSpinner = BindSpinner();
    field.SetGauge(&spinner);
    field.SetRange(0, 100, 5);
    const std::vector<COLORREF> plain = PixelsOf(hSpinner);
    KeyUp(hEdit, 'A');
    KeyDown(hEdit, VK_UP);
    EXPECT_NE(PixelsOf(hSpinner), plain);
    KeyUp(hEdit, VK_UP);
    EXPECT_EQ(PixelsOf(hSpinner), plain);
    EXPECT_EQ(TextOf(hEdit), "5");
}

TEST_F(SpinnerControl, ADisabledFieldDisablesItsSpinner) {
    ADM_IntegerGaugeText field;
    host.BindEdit(field);
    BindSpinner();
    field.SetGauge(&spinner);
    field.SetRange(3, 3, 1);
    EXPECT_FALSE(field.IsEnabled());
    EXPECT_FALSE(spinner.IsEnabled());
    field.SetRange(0, 10, 1);
    EXPECT_TRUE(spinner.IsEnabled());
    field.Enable(0);
    EXPECT_FALSE(spinner.IsEnabled());
}

TEST_F(SpinnerControl, AValueOutOfRangeStaysUntilItIsStepped) {
    ADM_IntegerGaugeText field;
    const HWND hEdit = host.BindEdit(field);
    const HWND hSpinner = BindSpinner();
    field.SetGauge(&spinner);
    field.SetRange(0, 100, 5);
    SetWindowTextA(hEdit, "500");
    EXPECT_EQ(TextOf(hEdit), "500");
    EXPECT_EQ(spinner.GetPos(), 20);
    Click(hSpinner, true);
    EXPECT_EQ(TextOf(hEdit), "100");
}

}  // namespace
