// Force Values from end to end.

#include <limits>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class ForceValues : public TraceDialog<ZXADLG_ForceValuesOptions> {
  protected:
    ForceValues() : TraceDialog(&ZXADLG_ShowForceValuesDialog) {
        options.eRegionToForce = 3;
        options.dFixedValue = -2.5;
    }
};

constexpr int kModes[] = {IDC_FORCE_CURSOR_VALUE, IDC_FORCE_MEAN_1_2, IDC_FORCE_MEAN_3_4,
                          IDC_FORCE_LINE, IDC_FORCE_FIXED_VALUE};

TEST_F(ForceValues, ShowsTheRecord) {
    options.eForceValuesMode = 4;
    DialogScript script;
    script.ExpectTitle("Force Values")
        .ExpectItems(IDC_FORCE_REGION, {"Whole trace", "Cursors 1..2", "Cursors 3..4"})
        .ExpectSelected(IDC_FORCE_REGION, "Cursors 1..2")
        .ExpectChecked(IDC_FORCE_FIXED_VALUE, BST_CHECKED)
        .ExpectText(IDC_FORCE_VALUE, "-2.5")
        .ExpectText(IDC_FORCE_CURSOR_VALUE, "&Data value at cursor 1")
        .ExpectText(IDC_FORCE_MEAN_1_2, "Mean between cursors &1..2")
        .ExpectText(IDC_FORCE_MEAN_3_4, "Mean between cursors &3..4")
        .ExpectText(IDC_FORCE_LINE, "&Straight line between cursors 1..2");
    ShowAndCancel(script);
}

TEST_F(ForceValues, EveryMethodIsStoredAndOnlyTheLastEnablesTheValueWhichIsKept) {
    for (int mode = 0; mode < 5; ++mode) {
        SCOPED_TRACE(mode);
        options.eForceValuesMode = mode == 0 ? 4 : 0;
        options.dFixedValue = -2.5;
        DialogScript script;
        script.ExpectEnabled(IDC_FORCE_VALUE, mode == 0)
            .Click(kModes[mode])
            .ExpectEnabled(IDC_FORCE_VALUE, mode == 4)
            .ExpectText(IDC_FORCE_VALUE, "-2.5");
        ShowAndAccept(script);
        EXPECT_EQ(options.eForceValuesMode, mode);
        EXPECT_EQ(options.dFixedValue, -2.5);
    }
}

TEST_F(ForceValues, FieldsStoreWhatIsTypedAndChosen) {
    DialogScript script;
    script.Choose(IDC_FORCE_REGION, "Cursors 3..4")
        .Click(IDC_FORCE_FIXED_VALUE)
        .Type(IDC_FORCE_VALUE, "1.23456789");
    ShowAndAccept(script);
    EXPECT_EQ(options.eRegionToForce, 4);
    // Five significant digits: the number that is kept is the one that shows.
    EXPECT_EQ(options.dFixedValue, 1.2346);
}

TEST_F(ForceValues, ValueShowsFiveDigitsAndTheRecordKeepsAll) {
    options.dFixedValue = 1.23456789;
    DialogScript script;
    script.ExpectText(IDC_FORCE_VALUE, "1.2346");
    ShowAndAccept(script);
    EXPECT_EQ(options.dFixedValue, 1.23456789);
}

TEST_F(ForceValues, LastMethodNamesTheUnits) {
    DialogScript script;
    script.ExpectText(IDC_FORCE_FIXED_VALUE, "&Fixed value (pA):");
    ShowAndCancel(script);
    EXPECT_EQ(source.lastUnitsIndex, -1);
}

TEST_F(ForceValues, UnitsThatAreMissingLeaveTheirPlaceEmpty) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_FORCE_FIXED_VALUE, "&Fixed value ():");
    ShowAndCancel(script);
}

TEST_F(ForceValues, UnitsWithPlacesOfAFormatStandAsTheyAre) {
    source.units = "%s%1";
    DialogScript script;
    script.ExpectText(IDC_FORCE_FIXED_VALUE, "&Fixed value (%s%1):");
    ShowAndCancel(script);
}

TEST_F(ForceValues, UnitsFollowTheGroupOfTheDataTab) {
    DialogScript script;
    script.SelectTab("Data")
        .Choose(IDC_GROUP, "IN 1")
        .SelectTab("Options")
        .ExpectText(IDC_FORCE_FIXED_VALUE, "&Fixed value (mV):");
    ShowAndCancel(script);
}

TEST_F(ForceValues, UnitsAreThoseOfTheGroupThatTheDataTabPutInForce) {
    data.eDataGroup1SelectionMode = 0;
    source.activeGroup = 1;
    DialogScript script;
    script.ExpectText(IDC_FORCE_FIXED_VALUE, "&Fixed value (mV):");
    ShowAndCancel(script);
}

TEST_F(ForceValues, RegionThatTheDataLackSelectsTheFirstEntry) {
    options.eRegionToForce = 77;
    DialogScript script;
    script.ExpectSelected(IDC_FORCE_REGION, "Whole trace");
    ShowAndAccept(script);
    // Nothing was chosen.
    EXPECT_EQ(options.eRegionToForce, 77);
}

TEST_F(ForceValues, DataTabOffersToForceTheExcludedRegionAndNoRegion) {
    DialogScript script;
    script.SelectTab("Data")
        .ExpectVisible(IDC_FORCE_TO_ZERO, true)
        .ExpectText(IDC_FORCE_TO_ZERO, "Force excluded region to &zero")
        .ExpectVisible(IDC_REGION, false)
        .ExpectVisible(IDC_REGION_LABEL, false)
        .ExpectVisible(IDC_GROUP, true)
        .ExpectVisible(IDC_SELECT_ALL, true)
        .Click(IDC_FORCE_TO_ZERO)
        .SelectTab("Options");
    ShowAndAccept(script);
    EXPECT_EQ(data.bForceExcludedRegionToZero, 1);
}

TEST_F(ForceValues, ModeOutsideItsRangeShowsTheFirstButtonAndStays) {
    for (const int32_t mode : {-1, 5, std::numeric_limits<int32_t>::max()}) {
        SCOPED_TRACE(mode);
        options.eForceValuesMode = mode;
        DialogScript script;
        script.ExpectChecked(IDC_FORCE_CURSOR_VALUE, BST_CHECKED)
            .ExpectEnabled(IDC_FORCE_VALUE, false);
        ShowAndAccept(script);
        EXPECT_EQ(options.eForceValuesMode, mode);
    }
}

TEST_F(ForceValues, ValueThatIsNoNumberStays) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::max()}) {
        SCOPED_TRACE(value);
        options.dFixedValue = value;
        DialogScript script;
        script.Click(IDC_FORCE_FIXED_VALUE);
        ShowAndAccept(script);
        EXPECT_EQ(std::memcmp(&options.dFixedValue, &value, sizeof value), 0);
    }
}

TEST_F(ForceValues, SourceWithoutRegionsHasNothingToChoose) {
    source.regions.clear();
    DialogScript script;
    script.ExpectItems(IDC_FORCE_REGION, {});
    ShowAndAccept(script);
    EXPECT_EQ(options.eRegionToForce, 3);
}

}  // namespace
