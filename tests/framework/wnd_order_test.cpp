// The layers above rely on the order of the virtual operations. The destructor takes the first
// places; how many is the compilers' business.
#include <gtest/gtest.h>

#include "PlaceOf.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_GaugeControl.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_StaticText.h"
#include "framework/ADM_SubClassWnd.h"
#include "widgets/Spinner.h"

namespace {

using framework_test::StandInOrder;

TEST(WndOrder, ValidatorsSetTheTextAndThenValidate) {
    EXPECT_TRUE(StandInOrder(&AVC_Base::SetText, &AVC_Base::Validate));
}

TEST(WndOrder, TheRootHasTwentyFiveAndTheHookOneMore) {
    EXPECT_TRUE(StandInOrder(
        &ADM_Wnd::Attach, &ADM_Wnd::SetControlId, &ADM_Wnd::OnAttach, &ADM_Wnd::ReadControl,
        &ADM_Wnd::SaveInitialValue, &ADM_Wnd::HasChanged, &ADM_Wnd::SetForceModified,
        &ADM_Wnd::IsModified, &ADM_Wnd::Validate, &ADM_Wnd::IsValidatable, &ADM_Wnd::SelectContents,
        &ADM_Wnd::SetWindowText, &ADM_Wnd::IsHandle, &ADM_Wnd::OnCommand, &ADM_Wnd::OnNotify,
        &ADM_Wnd::Notify, &ADM_Wnd::OnChar, &ADM_Wnd::OnGetDlgCode, &ADM_Wnd::OnDrawItem,
        &ADM_Wnd::OnDeleteItem, &ADM_Wnd::OnCompareItem, &ADM_Wnd::OnCtlColor, &ADM_Wnd::Show,
        &ADM_Wnd::Enable, &ADM_SubClassWnd::SubclassProc));
}

TEST(WndOrder, GaugeTextsAddTheirGauge) {
    EXPECT_TRUE(StandInOrder(&ADM_SubClassWnd::SubclassProc, &ADM_IntegerGaugeText::SetGauge));
    EXPECT_TRUE(StandInOrder(&ADM_SubClassWnd::SubclassProc, &ADM_DoubleGaugeText::SetGauge));
}

TEST(WndOrder, ListTextsAddTheirValueAndGauge) {
    EXPECT_TRUE(StandInOrder(&ADM_SubClassWnd::SubclassProc, &ADM_IntegerListText::SetValue,
                             &ADM_IntegerListText::SetGauge));
    EXPECT_TRUE(StandInOrder(&ADM_SubClassWnd::SubclassProc, &ADM_FloatListText::SetValue,
                             &ADM_FloatListText::SetGauge));
    EXPECT_TRUE(StandInOrder(&ADM_SubClassWnd::SubclassProc, &ADM_DoubleListText::SetValue,
                             &ADM_DoubleListText::SetGauge));
}

TEST(WndOrder, LabelsAddTheirRefresh) {
    EXPECT_TRUE(StandInOrder(&ADM_Wnd::Enable, &ADM_StaticText::Refresh));
}

TEST(WndOrder, GaugesAddEleven) {
    using G = ADM_GaugeControl;
    EXPECT_TRUE(StandInOrder(&ADM_Wnd::Enable, &G::SetRange, &G::SetPos, &G::GetRange, &G::GetPos,
                             &G::PressPageDown, &G::PressPageUp, &G::PressLineDown, &G::PressLineUp,
                             &G::ReleaseButtons, &G::SetBuddy, &G::GetNotifyTarget));
}

TEST(WndOrder, SpinnerWindowsHaveSevenBehindTheirDestructor) {
    using S = CommonCtls::CSpinnerBase;
    EXPECT_TRUE(StandInOrder(&S::OnCreate, &S::FitSize, &S::SetBuddy, &S::OnDraw, &S::Paint,
                             &S::SetSize, &S::GetArrowRect));
}

}  // namespace
