// Adjust Baseline from end to end.

#include <limits>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class AdjustBaseline : public TraceDialog<ZXADLG_AdjustBaselineOptions> {
  protected:
    AdjustBaseline() : TraceDialog(&ZXADLG_ShowAdjustBaselineDialog) {
        options.eValueRegion = 3;
        options.dFixedValue = -2.5;
    }
};

constexpr int kModes[] = {IDC_BASELINE_MEAN, IDC_BASELINE_SLOPE, IDC_BASELINE_FIXED_VALUE,
                          IDC_BASELINE_BY_HAND};

TEST_F(AdjustBaseline, ShowsTheRecord) {
    options.eAdjustMode = 1;
    DialogScript script;
    script.ExpectTitle("Adjust Baseline")
        .ExpectItems(IDC_BASELINE_REGION, {"Whole trace", "Cursors 1..2", "Cursors 3..4"})
        .ExpectSelected(IDC_BASELINE_REGION, "Cursors 1..2")
        .ExpectChecked(IDC_BASELINE_SLOPE, BST_CHECKED)
        .ExpectText(IDC_BASELINE_VALUE, "-2.5")
        .ExpectText(IDC_BASELINE_MEAN, "Subtract &mean of:")
        .ExpectText(IDC_BASELINE_SLOPE, "Subtract sl&ope of:")
        .ExpectText(IDC_BASELINE_FIXED_VALUE, "Subtract fi&xed value:")
        .ExpectText(IDC_BASELINE_BY_HAND, "&Adjust manually");
    ShowAndCancel(script);
}

TEST_F(AdjustBaseline, EveryMethodIsStoredAndEnablesItsField) {
    for (int mode = 0; mode < 4; ++mode) {
        SCOPED_TRACE(mode);
        options.eAdjustMode = (mode + 1) % 4;
        DialogScript script;
        script.Click(kModes[mode])
            .ExpectEnabled(IDC_BASELINE_VALUE, mode == 2)
            .ExpectEnabled(IDC_BASELINE_REGION, mode == 0 || mode == 1)
            .ExpectText(IDC_BASELINE_VALUE, "-2.5");
        ShowAndAccept(script);
        EXPECT_EQ(options.eAdjustMode, mode);
        DialogScript again;
        again.ExpectEnabled(IDC_BASELINE_VALUE, mode == 2)
            .ExpectEnabled(IDC_BASELINE_REGION, mode == 0 || mode == 1);
        ShowAndCancel(again);
    }
}

TEST_F(AdjustBaseline, ManualMethodDisablesRegionAndValue) {
    options.eAdjustMode = 3;
    DialogScript script;
    script.ExpectChecked(IDC_BASELINE_BY_HAND, BST_CHECKED)
        .ExpectEnabled(IDC_BASELINE_REGION, false)
        .ExpectEnabled(IDC_BASELINE_VALUE, false);
    ShowAndCancel(script);
}

TEST_F(AdjustBaseline, FieldsStoreWhatIsTypedAndChosen) {
    DialogScript script;
    script.Choose(IDC_BASELINE_REGION, "Cursors 3..4")
        .Click(IDC_BASELINE_FIXED_VALUE)
        .Type(IDC_BASELINE_VALUE, "1.23456789");
    ShowAndAccept(script);
    EXPECT_EQ(options.eValueRegion, 4);
    // Five significant digits: the number that is kept is the one that shows.
    EXPECT_EQ(options.dFixedValue, 1.2346);
}

TEST_F(AdjustBaseline, RegionThatTheDataLackBecomesTheFirst) {
    for (const int32_t region : {77, -1, std::numeric_limits<int32_t>::min()}) {
        SCOPED_TRACE(region);
        options.eValueRegion = region;
        DialogScript script;
        script.ExpectSelected(IDC_BASELINE_REGION, "Whole trace");
        ShowAndAccept(script);
        EXPECT_EQ(options.eValueRegion, 8);
    }
}

TEST_F(AdjustBaseline, WithheldManualMethodStaysInTheRecordWithNoVisibleButtonSelected) {
    params.bAdjustBaselineFourthMethod = 0;
    options.eAdjustMode = 3;
    DialogScript script;
    script.ExpectVisible(IDC_BASELINE_BY_HAND, false)
        .ExpectChecked(IDC_BASELINE_MEAN, BST_UNCHECKED)
        .ExpectChecked(IDC_BASELINE_SLOPE, BST_UNCHECKED)
        .ExpectChecked(IDC_BASELINE_FIXED_VALUE, BST_UNCHECKED)
        .ExpectEnabled(IDC_BASELINE_REGION, false)
        .ExpectEnabled(IDC_BASELINE_VALUE, false);
    ShowAndAccept(script);
    EXPECT_EQ(options.eAdjustMode, 3);
}

TEST_F(AdjustBaseline, FrameEndsBelowTheLastMethodThatShows) {
    const auto roomBelow = [](HWND dialog, int id) {
        RECT frame, button;
        GetWindowRect(FindControl(dialog, IDC_BASELINE_METHOD), &frame);
        GetWindowRect(FindControl(dialog, id), &button);
        return frame.bottom - button.bottom;
    };
    LONG offered = 0, withheld = 0;
    DialogScript all;
    all.Do([&](HWND dialog) { offered = roomBelow(dialog, IDC_BASELINE_BY_HAND); });
    ShowAndCancel(all);
    params.bAdjustBaselineFourthMethod = 0;
    DialogScript three;
    three.Do([&](HWND dialog) { withheld = roomBelow(dialog, IDC_BASELINE_FIXED_VALUE); });
    ShowAndCancel(three);
    EXPECT_GT(offered, 0);
    EXPECT_NEAR(withheld, offered, 2);
}

TEST_F(AdjustBaseline, ManualMethodIsOfferedByTheParameter) {
    DialogScript script;
    script.ExpectVisible(IDC_BASELINE_BY_HAND, true);
    ShowAndCancel(script);
}

TEST_F(AdjustBaseline, ModeOutsideItsRangeShowsTheFirstButtonAndStays) {
    for (const int32_t mode : {-1, 4, std::numeric_limits<int32_t>::max()}) {
        SCOPED_TRACE(mode);
        options.eAdjustMode = mode;
        DialogScript script;
        script.ExpectChecked(IDC_BASELINE_MEAN, BST_CHECKED)
            .ExpectEnabled(IDC_BASELINE_REGION, true)
            .ExpectEnabled(IDC_BASELINE_VALUE, false);
        ShowAndAccept(script);
        EXPECT_EQ(options.eAdjustMode, mode);
    }
}

TEST_F(AdjustBaseline, ValueThatIsNoNumberStays) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max()}) {
        SCOPED_TRACE(value);
        options.dFixedValue = value;
        DialogScript script;
        script.Click(IDC_BASELINE_FIXED_VALUE);
        ShowAndAccept(script);
        EXPECT_EQ(std::memcmp(&options.dFixedValue, &value, sizeof value), 0);
    }
}

TEST_F(AdjustBaseline, DataTabOffersNoRegion) {
    DialogScript script;
    script.SelectTab("Data")
        .ExpectVisible(IDC_REGION, false)
        .ExpectVisible(IDC_FORCE_TO_ZERO, false)
        .ExpectVisible(IDC_GROUP, true)
        .ExpectVisible(IDC_SELECT_ALL, true);
    ShowAndCancel(script);
}

TEST_F(AdjustBaseline, SectionHasItsPlainName) {
    UseStore();
    options.dFixedValue = 1.23456789;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(Stored("AdjustBaseline", "dFixedValue"), "1.23457");
    EXPECT_EQ(Stored("AdjustBaseline", "eValueRegion"), "3");
    EXPECT_EQ(Stored("AdjustBaselineSection", "eValueRegion"), "(none)");
    EXPECT_EQ(Stored("AdjustBaselineDataSection", "uGroup1Index"), "0");
}

}  // namespace
