// Time Shift from end to end.

#include <cmath>
#include <limits>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

class TimeShift : public TraceDialog<ZXADLG_TimeShiftOptions> {
  protected:
    TimeShift() : TraceDialog(&ZXADLG_ShowTimeShiftDialog) {
        options.eValueRegion = 3;
        options.eSearchRegion = 4;
        options.dShiftValue = 2.5;
    }
};

TEST_F(TimeShift, ShowsTheRecord) {
    options = {.eAlignmentMode = 1,
               .eDirection = 1,
               .eValueMode = 1,
               .eAdjustMode = 1,
               .ePeakPolarity = 2,
               .eValueRegion = 4,
               .eSearchRegion = 3,
               .uDataGroupIndex = 1,
               .dShiftValue = 12.25,
               .common = {}};
    DialogScript script;
    script.ExpectTitle("Time Shift")
        .ExpectChecked(IDC_SHIFT_ALIGN_PEAKS, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_RIGHT, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_BETWEEN_CURSORS, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_ZEROS, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_ABSOLUTE, BST_CHECKED)
        .ExpectText(IDC_SHIFT_VALUE, "12.25")
        .ExpectSelected(IDC_SHIFT_VALUE_REGION, "Cursors 3..4")
        .ExpectItems(IDC_SHIFT_VALUE_REGION, {"Whole trace", "Cursors 1..2", "Cursors 3..4"})
        .ExpectSelected(IDC_SHIFT_SEARCH_REGION, "Cursors 1..2")
        .ExpectItems(IDC_SHIFT_GROUP, {"IN 0", "IN 1"})
        .ExpectSelected(IDC_SHIFT_GROUP, "IN 1")
        .ExpectText(IDC_SHIFT_NOTE,
                    "The peaks in the search region are aligned at the center of the time scale.");
    ShowAndCancel(script);
}

TEST_F(TimeShift, EveryButtonStoresItsMode) {
    struct Row {
        int id;
        int32_t ZXADLG_TimeShiftOptions::*field;
        int32_t value;
    };
    const Row rows[] = {
        {IDC_SHIFT_INTERVAL, &ZXADLG_TimeShiftOptions::eAlignmentMode, 0},
        {IDC_SHIFT_ALIGN_PEAKS, &ZXADLG_TimeShiftOptions::eAlignmentMode, 1},
        {IDC_SHIFT_LEFT, &ZXADLG_TimeShiftOptions::eDirection, 0},
        {IDC_SHIFT_RIGHT, &ZXADLG_TimeShiftOptions::eDirection, 1},
        {IDC_SHIFT_FIXED, &ZXADLG_TimeShiftOptions::eValueMode, 0},
        {IDC_SHIFT_BETWEEN_CURSORS, &ZXADLG_TimeShiftOptions::eValueMode, 1},
        {IDC_SHIFT_POSITIVE, &ZXADLG_TimeShiftOptions::ePeakPolarity, 0},
        {IDC_SHIFT_NEGATIVE, &ZXADLG_TimeShiftOptions::ePeakPolarity, 1},
        {IDC_SHIFT_ABSOLUTE, &ZXADLG_TimeShiftOptions::ePeakPolarity, 2},
        {IDC_SHIFT_ROTATE, &ZXADLG_TimeShiftOptions::eAdjustMode, 0},
        {IDC_SHIFT_ZEROS, &ZXADLG_TimeShiftOptions::eAdjustMode, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.id);
        // Every set starts at another button than the one clicked, where that one is enabled.
        options.eDirection = 1 - (row.id == IDC_SHIFT_RIGHT);
        options.eValueMode = 1 - (row.id == IDC_SHIFT_BETWEEN_CURSORS);
        options.eAdjustMode = 1 - (row.id == IDC_SHIFT_ZEROS);
        options.ePeakPolarity = row.id == IDC_SHIFT_ABSOLUTE ? 0 : 2;
        const bool polarity = row.id >= IDC_SHIFT_POSITIVE;
        options.eAlignmentMode = polarity || row.id == IDC_SHIFT_INTERVAL ? 1 : 0;
        DialogScript script;
        script.Click(row.id);
        ShowAndAccept(script);
        EXPECT_EQ(options.*row.field, row.value);
    }
}

TEST_F(TimeShift, FieldsStoreWhatIsTypedAndChosen) {
    DialogScript script;
    script.Type(IDC_SHIFT_VALUE, "-7.125")
        .Click(IDC_SHIFT_BETWEEN_CURSORS)
        .Choose(IDC_SHIFT_VALUE_REGION, "Cursors 3..4")
        .Click(IDC_SHIFT_ALIGN_PEAKS)
        .Choose(IDC_SHIFT_GROUP, "IN 1")
        .Choose(IDC_SHIFT_SEARCH_REGION, "Whole trace");
    ShowAndAccept(script);
    EXPECT_EQ(options.dShiftValue, -7.125);
    EXPECT_EQ(options.eValueRegion, 4);
    EXPECT_EQ(options.uDataGroupIndex, 1u);
    EXPECT_EQ(options.eSearchRegion, 8);
}

TEST_F(TimeShift, ControlsAreEnabledByAlignmentAndValue) {
    const int shift[] = {IDC_SHIFT_DIRECTION,   IDC_SHIFT_LEFT,  IDC_SHIFT_RIGHT,
                         IDC_SHIFT_VALUE_GROUP, IDC_SHIFT_FIXED, IDC_SHIFT_BETWEEN_CURSORS};
    const int align[] = {IDC_SHIFT_GROUP_LABEL,   IDC_SHIFT_GROUP,    IDC_SHIFT_SEARCH_REGION_LABEL,
                         IDC_SHIFT_SEARCH_REGION, IDC_SHIFT_NOTE,     IDC_SHIFT_POLARITY,
                         IDC_SHIFT_POSITIVE,      IDC_SHIFT_NEGATIVE, IDC_SHIFT_ABSOLUTE};
    const auto expect = [&](DialogScript& script, bool shifts, int value) {
        for (int id : shift) script.ExpectEnabled(id, shifts);
        for (int id : align) script.ExpectEnabled(id, !shifts);
        script.ExpectEnabled(IDC_SHIFT_VALUE, shifts && value == 0);
        script.ExpectEnabled(IDC_SHIFT_VALUE_REGION, shifts && value == 1);
        script.ExpectEnabled(IDC_SHIFT_ROTATE, true).ExpectEnabled(IDC_SHIFT_ZEROS, true);
    };
    for (int alignment : {0, 1}) {
        for (int value : {0, 1}) {
            options.eAlignmentMode = alignment;
            options.eValueMode = value;
            DialogScript script;
            expect(script, alignment == 0, value);
            script.Click(alignment == 0 ? IDC_SHIFT_ALIGN_PEAKS : IDC_SHIFT_INTERVAL);
            expect(script, alignment != 0, value);
            script.Click(IDC_SHIFT_INTERVAL).Click(IDC_SHIFT_BETWEEN_CURSORS);
            expect(script, true, 1);
            script.Click(IDC_SHIFT_FIXED);
            expect(script, true, 0);
            ShowAndCancel(script);
        }
    }
}

TEST_F(TimeShift, AlignmentDisablesTheValueWhichKeepsItsText) {
    DialogScript script;
    script.Type(IDC_SHIFT_VALUE, "3.5")
        .Click(IDC_SHIFT_ALIGN_PEAKS)
        .ExpectEnabled(IDC_SHIFT_VALUE, false)
        .ExpectText(IDC_SHIFT_VALUE, "3.5");
    ShowAndAccept(script);
    EXPECT_EQ(options.dShiftValue, 3.5);
}

TEST_F(TimeShift, GroupSevenOfTwoShowsTheLastAndIsCorrected) {
    options.uDataGroupIndex = 7;
    DialogScript script;
    script.ExpectSelected(IDC_SHIFT_GROUP, "IN 1");
    ShowAndAccept(script);
    EXPECT_EQ(options.uDataGroupIndex, 1u);
}

TEST_F(TimeShift, SearchRegionThatTheDataLackBecomesTheFirst) {
    options.eSearchRegion = 77;
    DialogScript script;
    script.ExpectSelected(IDC_SHIFT_SEARCH_REGION, "Whole trace");
    ShowAndAccept(script);
    EXPECT_EQ(options.eSearchRegion, 8);
}

TEST_F(TimeShift, ValueRegionThatTheDataLackBecomesTheFirst) {
    options.eValueRegion = -1;
    DialogScript script;
    script.ExpectSelected(IDC_SHIFT_VALUE_REGION, "Whole trace");
    ShowAndAccept(script);
    EXPECT_EQ(options.eValueRegion, 8);
}

TEST_F(TimeShift, HiddenGroupsAreOfferedToo) {
    source.hiddenGroup = 1;
    DialogScript script;
    script.ExpectItems(IDC_SHIFT_GROUP, {"IN 0", "IN 1"});
    ShowAndCancel(script);
}

TEST_F(TimeShift, GroupLabelTakesTheNounOrDataGroup) {
    DialogScript script;
    script.ExpectText(IDC_SHIFT_GROUP_LABEL, "Signal to sear&ch:");
    ShowAndCancel(script);
    source.NullTexts();
    DialogScript bare;
    bare.ExpectText(IDC_SHIFT_GROUP_LABEL, "Data group to sear&ch:");
    ShowAndCancel(bare);
}

TEST_F(TimeShift, NounWithPlacesOfAFormatStandsAsItIs) {
    source.groupLabel = "%s%n%0";
    DialogScript script;
    script.ExpectText(IDC_SHIFT_GROUP_LABEL, "%s%n%0 to sear&ch:");
    ShowAndCancel(script);
}

TEST_F(TimeShift, DataTabHasNoGroupsToolsOrRegionWhateverTheParametersSay) {
    params.bShowGroupSelector = 1;
    DialogScript script;
    script.SelectTab("Data");
    for (int id : {IDC_GROUP_LABEL, IDC_GROUP, IDC_GROUPS_ACTIVE, IDC_GROUPS_ONE,
                   IDC_GROUPS_VISIBLE, IDC_GROUPS_ALL, IDC_SELECT_ALL, IDC_SELECT_NONE,
                   IDC_SELECT_INVERT, IDC_REGION_LABEL, IDC_REGION, IDC_FORCE_TO_ZERO}) {
        script.ExpectVisible(id, false);
    }
    script.ExpectVisible(IDC_SETS_VISIBLE, true).ExpectVisible(IDC_SET_LIST, true);
    ShowAndCancel(script);
}

TEST_F(TimeShift, ModesOutsideTheirRangeShowTheFirstButton) {
    for (const int32_t mode : {-1, 99, std::numeric_limits<int32_t>::min()}) {
        SCOPED_TRACE(mode);
        options.eAlignmentMode = options.eDirection = options.eValueMode = mode;
        options.eAdjustMode = options.ePeakPolarity = mode;
        DialogScript script;
        script.ExpectChecked(IDC_SHIFT_INTERVAL, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_LEFT, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_FIXED, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_ROTATE, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_POSITIVE, BST_CHECKED)
            .ExpectEnabled(IDC_SHIFT_VALUE, true);
        ShowAndAccept(script);
        EXPECT_EQ(options.eAlignmentMode, mode);
    }
}

TEST_F(TimeShift, ReadOnlyShowsTheFirstButtonOfAWrongModeAgainAfterAClick) {
    params.bReadOnly = 1;
    options.ePeakPolarity = 99;
    options.eAlignmentMode = 1;
    DialogScript script;
    script.Ungrey(IDC_SHIFT_NEGATIVE)
        .Click(IDC_SHIFT_NEGATIVE)
        .ExpectChecked(IDC_SHIFT_NEGATIVE, BST_UNCHECKED)
        .ExpectChecked(IDC_SHIFT_POSITIVE, BST_CHECKED);
    ShowAndCancel(script);
}

TEST_F(TimeShift, ValueThatIsNoNumberStaysUntilOneIsTyped) {
    using Limits = std::numeric_limits<double>;
    for (const double value : {Limits::quiet_NaN(), Limits::infinity(), -Limits::infinity(),
                               Limits::max(), Limits::denorm_min()}) {
        SCOPED_TRACE(value);
        options.dShiftValue = value;
        DialogScript look;
        look.Click(IDC_SHIFT_RIGHT);
        ShowAndAccept(look);
        EXPECT_EQ(std::memcmp(&options.dShiftValue, &value, sizeof value), 0);
        DialogScript edit;
        edit.Type(IDC_SHIFT_VALUE, "1.5");
        ShowAndAccept(edit);
        EXPECT_EQ(options.dShiftValue, 1.5);
    }
}

TEST_F(TimeShift, EmptiedValueKeepsTheLastNumber) {
    DialogScript script;
    script.Type(IDC_SHIFT_VALUE, "4.5").Type(IDC_SHIFT_VALUE, "");
    ShowAndAccept(script);
    EXPECT_EQ(options.dShiftValue, 4.5);
}

TEST_F(TimeShift, SourceWithoutGroupsOrRegionsHasNothingToChoose) {
    source.Groups({});
    source.regions.clear();
    params.bUseDataOptions = 0;
    options.uDataGroupIndex = 3;
    options.eValueRegion = 8;
    options.eSearchRegion = 4;
    options.eAlignmentMode = 1;
    DialogScript script;
    script.ExpectItems(IDC_SHIFT_GROUP, {})
        .ExpectItems(IDC_SHIFT_VALUE_REGION, {})
        .ExpectItems(IDC_SHIFT_SEARCH_REGION, {});
    ShowAndAccept(script);
    EXPECT_EQ(options.uDataGroupIndex, 0u);
    EXPECT_EQ(options.eValueRegion, 0);
    EXPECT_EQ(options.eSearchRegion, 0);
}

TEST_F(TimeShift, StoreFullOfNonsenseShowsTheFirstEntries) {
    UseStore();
    store.WriteFile(
        "[TimeShiftSection]\r\neAlignmentMode=-99999999999\r\neDirection=left\r\n"
        "eValueMode=cursors\r\nePeakPolarity=7\r\neSearchRegion=banana\r\neValueRegion=\r\n"
        "uDataGroupIndex=4294967295\r\ndShiftValue=nan\r\n");
    DialogScript script;
    script.ExpectChecked(IDC_SHIFT_INTERVAL, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_LEFT, BST_CHECKED)
        .ExpectChecked(IDC_SHIFT_POSITIVE, BST_CHECKED)
        .ExpectSelected(IDC_SHIFT_SEARCH_REGION, "Whole trace")
        .ExpectSelected(IDC_SHIFT_GROUP, "IN 1")
        .Type(IDC_SHIFT_VALUE, "1.5");
    ShowAndAccept(script);
    EXPECT_EQ(options.eSearchRegion, 8);
    EXPECT_EQ(options.uDataGroupIndex, 1u);
    EXPECT_EQ(options.dShiftValue, 1.5);
}

TEST_F(TimeShift, StoreKeepsSixDigits) {
    UseStore();
    options.dShiftValue = 1.23456789;
    DialogScript script;
    ShowAndAccept(script);
    EXPECT_EQ(options.dShiftValue, 1.23456789);
    EXPECT_EQ(Stored("TimeShiftSection", "dShiftValue"), "1.23457");
    EXPECT_EQ(Stored("TimeShiftSection", "uDataGroupIndex"), "0");
    EXPECT_EQ(Stored("TimeShiftSection", "eDestinationOption"), "(none)");
}

}  // namespace
