// The data tab of one family of sets: coming and going, read-only, two selections.

#include "UnitaryTabFixture.h"

namespace {

// --- Coming and going

TEST_F(UnitaryTab, OtherTabsAreToldOfComingAndGoing) {
    DialogScript script;
    script.Do([this] { log.Take(); })
        .SelectTab("Options")
        .Do([this] { EXPECT_EQ(log.Take(), (Numbers{2222})); })
        .SelectTab("Data")
        .Do([this] {
            const Numbers told = log.Take();
            ASSERT_GE(told.size(), 2u);
            EXPECT_EQ(told.front(), 2221);
            EXPECT_EQ(told.back(), 2218);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

TEST_F(UnitaryTab, TabWithNothingSelectedIsNotLeft) {
    DialogScript script;
    script.Click(IDC_SELECT_NONE)
        .SelectTab("Options")
        .Answer(IDOK, kNoData)
        .ExpectVisible(IDC_SET_LIST, true)
        .ExpectFocus(IDC_SET_LIST)
        .Click(IDC_SELECT_ALL)
        .SelectTab("Options")
        .ExpectVisible(IDC_SET_LIST, false)
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, DisabledTabGreysEverythingAndComesBack) {
    const auto tab = [this] { return static_cast<CUnitaryDataTab*>(current->DataTab()); };
    DialogScript script;
    script.Do([=] { tab()->SetDisabled(true); });
    for (const int id : {IDC_SETS_VISIBLE, IDC_SETS_LISTED, IDC_SETS_TYPED, IDC_SET_LIST,
                         IDC_SELECT_ALL, IDC_GROUP, IDC_GROUP_LABEL, IDC_GROUPS_ONE, IDC_REGION,
                         IDC_REGION_LABEL, IDC_SET_LABEL, IDC_SET_COUNT, IDC_SET_LIST_TEXT}) {
        script.ExpectEnabled(id, false);
    }
    script.Do([=] { tab()->SetDisabled(false); });
    EnabledList(script, true)
        .ExpectEnabled(IDC_SET_LIST_TEXT, false)
        .ExpectEnabled(IDC_GROUP, true)
        .ExpectEnabled(IDC_SETS_VISIBLE, true)
        .Do(Selected({0, 1, 2}))
        .Click(IDOK);
    EXPECT_EQ(ShowUnitary(script), 1);
}

TEST_F(UnitaryTab, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    flags.bAllowForceToZero = 1;
    const ZXADLG_DataOptions before = record;
    DialogScript script;
    script.ClickItem(IDC_SET_LIST, 8)
        .Do(Selected({0, 1, 2}))
        .ExpectFocus(IDCANCEL)
        .Ungrey(IDC_SETS_ALL)
        .Click(IDC_SETS_ALL)
        .ExpectChecked(IDC_SETS_LISTED, BST_CHECKED)
        .Ungrey(IDC_SELECT_ALL)
        .Click(IDC_SELECT_ALL)
        .Do(Selected({0, 1, 2}))
        .Ungrey(IDC_GROUP)
        .Choose(IDC_GROUP, "IN 1")
        .ExpectSelected(IDC_GROUP, "IN 0")
        .Ungrey(IDC_GROUPS_ALL)
        .Click(IDC_GROUPS_ALL)
        .ExpectChecked(IDC_GROUPS_ONE, BST_CHECKED)
        .ExpectChecked(IDC_GROUPS_ALL, BST_UNCHECKED)
        .Ungrey(IDC_REGION)
        .Choose(IDC_REGION, "Cursors 1..2")
        .ExpectSelected(IDC_REGION, "Whole trace")
        .Ungrey(IDC_FORCE_TO_ZERO)
        .Click(IDC_FORCE_TO_ZERO)
        .ExpectChecked(IDC_FORCE_TO_ZERO, BST_UNCHECKED)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
    EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
    EXPECT_TRUE(messages.empty());
}

TEST_F(UnitaryTab, ReadOnlyTypingIsUndone) {
    params.bReadOnly = 1;
    record.eDataSet1SelectionMode = 4;
    DialogScript script;
    script
        .Do([](HWND dialog) {
            SetWindowTextA(FindControl(dialog, IDC_SET_LIST_TEXT), "7..9");
            EXPECT_EQ(TextOf(FindControl(dialog, IDC_SET_LIST_TEXT)), "1..3");
        })
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowUnitary(script), 2);
}

// --- Two selections

class DualTab : public UnitaryTab {
  protected:
    DualTab() {
        record.eDataSet2SelectionMode = 3;
        record.eDataGroup2SelectionMode = 1;
        CopyText(record.szUnitarySelectionList2, "5,7");
    }
    int ShowDual(DialogScript& script) { return ShowUnitary(script, IDD_UNITARY_DATA_DUAL); }
};

TEST_F(DualTab, ShowsBothSelectionsAndEditsTheChosenOne) {
    DialogScript script;
    script.ExpectText(IDC_DATA_SET_1, "Select Trace Set &1:")
        .ExpectText(IDC_DATA_SET_2, "Select Trace Set &2:")
        .ExpectChecked(IDC_DATA_SET_1, BST_CHECKED)
        .ExpectEnabled(IDC_SET_LIST, true)
        .ExpectEnabled(IDC_SET_LIST_2, false)
        .Do(Selected({0, 1, 2}))
        .Do(Selected({5, 7}, IDC_SET_LIST_2))
        .ExpectText(IDC_SET_LIST_TEXT, "1..3")
        .Click(IDC_DATA_SET_2)
        .ExpectEnabled(IDC_SET_LIST, false)
        .ExpectEnabled(IDC_SET_LIST_2, true)
        .ExpectText(IDC_SET_LIST_TEXT, "6,8")
        .Do([this] { EXPECT_EQ(record.uSelectedDataSet, 1u); })
        .ClickItem(IDC_SET_LIST_2, 9)
        .ExpectText(IDC_SET_LIST_TEXT, "10")
        .Do(Selected({0, 1, 2}))
        .Click(IDC_DATA_SET_1)
        .ExpectText(IDC_SET_LIST_TEXT, "1..3")
        .Click(IDOK);
    EXPECT_EQ(ShowDual(script), 1);
    EXPECT_STREQ(record.szUnitarySelectionList1, "0..2");
    EXPECT_STREQ(record.szUnitarySelectionList2, "9");
    EXPECT_EQ(record.uSelectedDataSet, 0u);
}

TEST_F(DualTab, NullNounsGiveTheBuiltInRadios) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_DATA_SET_1, "Select Set &1:")
        .ExpectText(IDC_DATA_SET_2, "Select Set &2:")
        .Click(IDCANCEL);
    EXPECT_EQ(ShowDual(script), 2);
}

TEST_F(DualTab, EachSelectionHasModesAndAGroupOfItsOwn) {
    source.setCounts = {12, 8};
    record.eDataSet2SelectionMode = 1;
    record.uGroup2Index = 1;
    DialogScript script;
    script.ExpectSelected(IDC_GROUP, "IN 0")
        .Click(IDC_DATA_SET_2)
        .ExpectSelected(IDC_GROUP, "IN 1")
        .ExpectChecked(IDC_SETS_ALL, BST_CHECKED)
        .ExpectEnabled(IDC_SET_LIST_2, false)
        .ExpectText(IDC_SET_COUNT, "IN 1 contains 8 traces")
        .Do(Selected(Upto(8), IDC_SET_LIST_2))
        .Choose(IDC_GROUP, "IN 0")
        .Click(IDC_SETS_LISTED)
        .Click(IDOK);
    EXPECT_EQ(ShowDual(script), 1);
    EXPECT_EQ(record.uGroup1Index, 0u);
    EXPECT_EQ(record.uGroup2Index, 0u);
    EXPECT_EQ(record.eDataSet1SelectionMode, 3);
    EXPECT_EQ(record.eDataSet2SelectionMode, 3);
}

TEST_F(DualTab, ReadOnlyKeepsTheFirstSelection) {
    params.bReadOnly = 1;
    DialogScript script;
    script.Ungrey(IDC_DATA_SET_2)
        .Click(IDC_DATA_SET_2)
        .ExpectChecked(IDC_DATA_SET_1, BST_CHECKED)
        .ExpectEnabled(IDC_SET_LIST_2, false)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowDual(script), 2);
    EXPECT_EQ(record.uSelectedDataSet, 0u);
}

}  // namespace
