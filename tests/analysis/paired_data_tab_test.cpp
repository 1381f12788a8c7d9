// The data tab of a sheet: columns for variables, a list of columns, a range of rows.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "PageDialog.h"
#include "fixtures/WindowReading.h"
#include "text/BoundedText.h"

namespace {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::SelectedIndexes;
using test_support::TextOf;
using Numbers = std::vector<int>;

constexpr char kOneIndependent[] = "Only one independent variable can be assigned.";
constexpr char kRangeOrder[] = "The first point of the data range must be smaller than the last.";
constexpr char kNoData[] = "No data have been selected. At least one data set must be specified.";

class PairedTab : public testing::Test, protected analysis_test::PageSetup {
  protected:
    PairedTab() {
        source.Kind(2).Groups({"Sheet 1", "Sheet 2"}).Sets(8).Points(100);
        source.setPrefix = "Column ";
        record.uDepVarDataSetIndex = 1;
        record.uFirstDataIndex = 9;
        record.uLastDataIndex = 49;
        record.eDataSet1SelectionMode = 3;
        for (auto& b : record.abIsConstant) b = 1;
        record.abIsConstant[0] = 0;
        CopyText(record.szDepVarSelectionList, "1");
    }
    static auto Selected(Numbers want) {
        return [want](HWND dialog) {
            const HWND list = FindControl(dialog, IDC_SET_LIST);
            if ((GetWindowLongPtrA(list, GWL_STYLE) & LBS_EXTENDEDSEL) != 0) {
                EXPECT_EQ(SelectedIndexes(list), want);
            } else {
                EXPECT_EQ(test_support::SelectedIndex(list), want.empty() ? -1 : want[0]);
            }
        };
    }
    static DialogScript& EnabledRange(DialogScript& script, bool enabled) {
        for (const int id :
             {IDC_RANGE_AVAILABLE, IDC_RANGE_FROM_LABEL, IDC_RANGE_FROM, IDC_RANGE_FROM_SPIN,
              IDC_RANGE_TO_LABEL, IDC_RANGE_TO, IDC_RANGE_TO_SPIN}) {
            script.ExpectEnabled(id, enabled);
        }
        return script;
    }
};

// --- Six variables

class SixVariables : public PairedTab {
  protected:
    int ShowSix(DialogScript& script) { return ShowPaired(script, IDD_PAIRED_SIX_VARIABLES); }
};

TEST_F(SixVariables, NamesAndConstantsAreShown) {
    record.uIndepVarDataSetIndex = 2;
    for (int i = 0; i < 6; ++i) record.adConstants[i] = 1.5 * i + 0.123456789;
    DialogScript script;
    for (int i = 0; i < 6; ++i) {
        script.ExpectText(IDC_VARIABLE_FIRST + i, "x" + std::to_string(i + 1))
            .ExpectEnabled(IDC_CONSTANT_FIRST + i, i != 0)
            .ExpectText(IDC_VARIABLE_NAME_FIRST + i, i == 0 ? "Column 3" : "Constant");
    }
    script.ExpectText(IDC_CONSTANT_FIRST + 1, "1.6235")
        .ExpectText(IDC_DEPENDENT, "y")
        .ExpectText(IDC_DEPENDENT_NAME, "Column 2")
        .ExpectText(IDC_RANGE_AVAILABLE, "Available data range = 1 to 100")
        .ExpectText(IDC_RANGE_FROM, "10")
        .ExpectText(IDC_RANGE_TO, "50")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.adConstants[1], 1.5 + 0.123456789);
    EXPECT_EQ(record.uIndepVarDataSetIndex, 2u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 1u);
    EXPECT_EQ(record.bPaired, 0);
}

TEST_F(SixVariables, ButtonThreeAssignsTheColumnToTheThirdVariable) {
    for (int i = 0; i < 6; ++i) record.adConstants[i] = 10 + i;
    DialogScript script;
    script.Choose(IDC_SET_LIST, 5).Do([this] { log.Take(); }).Click(IDC_VARIABLE_FIRST + 2);
    for (int i = 0; i < 6; ++i) {
        script.ExpectEnabled(IDC_CONSTANT_FIRST + i, i != 2)
            .ExpectText(IDC_CONSTANT_FIRST + i, std::to_string(10 + i))
            .ExpectText(IDC_VARIABLE_NAME_FIRST + i, i == 2 ? "Column 6" : "Constant");
    }
    script.Do([this] { EXPECT_EQ(log.Take(), (Numbers{2212})); })
        .Type(IDC_CONSTANT_FIRST, "2.5")
        .Type(IDC_CONSTANT_LAST, "-1e3")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(record.abIsConstant[i], i != 2) << i;
    EXPECT_EQ(record.uIndepVarDataSetIndex, 5u);
    EXPECT_EQ(record.adConstants[0], 2.5);
    EXPECT_EQ(record.adConstants[5], -1000.0);
}

TEST_F(SixVariables, DependentButtonAssignsTheColumn) {
    DialogScript script;
    script.Choose(IDC_SET_LIST, 7)
        .Do([this] { log.Take(); })
        .Click(IDC_DEPENDENT)
        .ExpectText(IDC_DEPENDENT_NAME, "Column 8")
        .Do([this] { EXPECT_EQ(log.Take(), (Numbers{2212})); })
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.uDepVarDataSetIndex, 7u);
    EXPECT_STREQ(record.szDepVarSelectionList, "1");
}

TEST_F(SixVariables, AllConstantsAssignTheFirstVariable) {
    record.abIsConstant[0] = 1;
    record.uIndepVarDataSetIndex = 4;
    DialogScript script;
    script.ExpectEnabled(IDC_CONSTANT_FIRST, false)
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 5")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.abIsConstant[0], 0);
    EXPECT_EQ(record.abIsConstant[1], 1);
}

TEST_F(SixVariables, VariableBeyondTheColumnsGivesWayToTheLastColumn) {
    source.Sets(3);
    for (auto& b : record.abIsConstant) b = 1;
    record.abIsConstant[4] = 0;
    DialogScript script;
    script.ExpectEnabled(IDC_CONSTANT_FIRST + 2, false)
        .ExpectEnabled(IDC_CONSTANT_FIRST + 4, true)
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(record.abIsConstant[i], i != 2) << i;
}

TEST_F(SixVariables, PlacesPastTheCountAreBlankAndDisabled) {
    DialogScript script;
    script
        .Do([this] {
            current->Model().SetConstantCount(4);
            paired->OnPageShow();
        })
        .ExpectText(IDC_VARIABLE_FIRST + 4, " ")
        .ExpectEnabled(IDC_VARIABLE_FIRST + 4, false)
        .ExpectEnabled(IDC_CONSTANT_FIRST + 5, false)
        .ExpectText(IDC_VARIABLE_NAME_FIRST + 5, " ")
        .ExpectEnabled(IDC_VARIABLE_FIRST + 3, true)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowSix(script), 2);
}

// --- Rows

TEST_F(SixVariables, RowsAreStoredWhenTheyAreInOrder) {
    DialogScript script;
    EnabledRange(script, true)
        .Type(IDC_RANGE_FROM, "60")
        .Do([this] { EXPECT_EQ(record.uFirstDataIndex, 5u); })  // "6" was in order, "60" is not
        .Do([this] { log.Take(); })
        .Type(IDC_RANGE_TO, "80")
        .Do([this] {
            EXPECT_EQ(record.uFirstDataIndex, 59u);
            EXPECT_EQ(record.uLastDataIndex, 79u);
            const Numbers told = log.Take();
            EXPECT_GE(std::count(told.begin(), told.end(), 2212), 1);
        })
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
}

TEST_F(SixVariables, RowsOutOfOrderAreToldOnceWithTheFieldFocused) {
    DialogScript script;
    script.Type(IDC_RANGE_FROM, "50")
        .Click(IDOK)
        .Answer(IDOK, kRangeOrder)
        .ExpectFocus(IDC_RANGE_FROM)
        .Type(IDC_RANGE_FROM, "0")
        .Click(IDOK)
        .Answer(IDOK)
        .Type(IDC_RANGE_FROM, "49")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.uFirstDataIndex, 48u);
}

TEST_F(SixVariables, AllRowsMakeTypedRowsIrrelevant) {
    DialogScript script;
    script.Type(IDC_RANGE_FROM, "99")
        .Do([this] {
            EXPECT_FALSE(paired->CheckRange(false));
            log.Take();
        })
        .Click(IDC_RANGE_ALL)
        .Do([this] {
            EXPECT_TRUE(paired->CheckRange(false));
            const Numbers told = log.Take();
            EXPECT_EQ(told[0], 2213);
            EXPECT_EQ(told[1], 2212);
        });
    EnabledRange(script, false).Click(IDC_RANGE_ALL);
    EnabledRange(script, true).Click(IDC_RANGE_ALL).Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.bUseFullDataRange, 1);
}

TEST_F(SixVariables, EqualRowsWidenToAllRows) {
    record.uFirstDataIndex = record.uLastDataIndex = 20;
    DialogScript script;
    script.ExpectText(IDC_RANGE_FROM, "1").ExpectText(IDC_RANGE_TO, "100").Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.uFirstDataIndex, 0u);
    EXPECT_EQ(record.uLastDataIndex, 99u);
}

TEST_F(SixVariables, LastRowBeyondThePointsMovesTheFirstAndFailsTheCheck) {
    record.uLastDataIndex = 500;
    DialogScript script;
    script.ExpectText(IDC_RANGE_FROM, "100")
        .Do([this] {
            EXPECT_FALSE(paired->CheckRange(false));
            EXPECT_EQ(record.uFirstDataIndex, 99u);
            EXPECT_EQ(record.uLastDataIndex, 500u);
        })
        .Click(IDOK)
        .Answer(IDOK, kRangeOrder)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowSix(script), 2);
}

TEST_F(SixVariables, StoredInfoHidesTheAvailableRowsAndPassesTheCheck) {
    flags.bUseStoredInfo = 1;
    params.bDeferredRun = 1;
    record.uFirstDataIndex = 40;
    record.uLastDataIndex = 20;
    DialogScript script;
    script.ExpectVisible(IDC_RANGE_AVAILABLE, false)
        .Do([this] { EXPECT_TRUE(paired->CheckRange(true)); })
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
}

TEST_F(SixVariables, SpinnersStepTheRows) {
    DialogScript script;
    script.Focus(IDC_RANGE_FROM)
        .Press(VK_UP)
        .ExpectText(IDC_RANGE_FROM, "11")
        .Do([this] { EXPECT_EQ(record.uFirstDataIndex, 10u); })
        .Focus(IDC_RANGE_TO)
        .Press(VK_DOWN)
        .ExpectText(IDC_RANGE_TO, "49")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.uLastDataIndex, 48u);
}

TEST_F(SixVariables, AnotherGroupShowsItsColumns) {
    source.setCounts = {8, 3};
    record.uIndepVarDataSetIndex = 6;
    DialogScript script;
    script.Choose(IDC_GROUP, "Sheet 2")
        .Do([](HWND dialog) {
            EXPECT_EQ(SendMessageA(FindControl(dialog, IDC_SET_LIST), LB_GETCOUNT, 0, 0), 3);
        })
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 3")
        .Click(IDOK);
    EXPECT_EQ(ShowSix(script), 1);
    EXPECT_EQ(record.uPairedGroupIndex, 1u);
    EXPECT_EQ(record.uIndepVarDataSetIndex, 2u);
}

TEST_F(SixVariables, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    DialogScript script;
    script.Choose(IDC_SET_LIST, 6)
        .Ungrey(IDC_VARIABLE_FIRST + 3)
        .Click(IDC_VARIABLE_FIRST + 3)
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 1")
        .ExpectText(IDC_VARIABLE_NAME_FIRST + 3, "Constant")
        .Ungrey(IDC_RANGE_ALL)
        .Click(IDC_RANGE_ALL)
        .ExpectChecked(IDC_RANGE_ALL, BST_UNCHECKED)
        .Do([](HWND dialog) {
            SetWindowTextA(FindControl(dialog, IDC_RANGE_FROM), "33");
            EXPECT_EQ(TextOf(FindControl(dialog, IDC_RANGE_FROM)), "10");
        })
        .Ungrey(IDC_GROUP)
        .Choose(IDC_GROUP, "Sheet 2")
        .ExpectSelected(IDC_GROUP, "Sheet 1")
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowSix(script), 2);
    EXPECT_EQ(record.uFirstDataIndex, 9u);
    EXPECT_EQ(record.uPairedGroupIndex, 0u);
}

TEST_F(SixVariables, EmptySheetOpensAndCloses) {
    for (const uint32_t sets : {0u, 1u}) {
        source.Sets(sets).Points(0);
        DialogScript script;
        script.Click(IDCANCEL);
        EXPECT_EQ(ShowSix(script), 2);
    }
    source.Groups({});
    DialogScript script;
    script.Click(IDCANCEL);
    EXPECT_EQ(ShowSix(script), 2);
}

// --- One variable

class OneVariable : public PairedTab {
  protected:
    int ShowOne(DialogScript& script) { return ShowPaired(script, IDD_PAIRED_ONE_VARIABLE); }
};

TEST_F(OneVariable, ShowsXAndTheDependentColumns) {
    record.uIndepVarDataSetIndex = 3;
    CopyText(record.szDepVarSelectionList, "4..6");
    DialogScript script;
    script.ExpectText(IDC_VARIABLE_FIRST, "x1")
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 4")
        .ExpectText(IDC_DEPENDENT_NAME, "5..7")
        .ExpectText(IDC_RANGE_AVAILABLE, "Available row range = 1 to 100")
        .Do(Selected({4, 5, 6}))
        .Click(IDOK);
    EXPECT_EQ(ShowOne(script), 1);
    EXPECT_EQ(record.uIndepVarDataSetIndex, 3u);
    EXPECT_STREQ(record.szDepVarSelectionList, "4..6");
    EXPECT_EQ(record.bPaired, 1);
}

TEST_F(OneVariable, SeveralColumnsCannotBeTheIndependentVariable) {
    DialogScript script;
    script.ClickItem(IDC_SET_LIST, 2)
        .ClickItem(IDC_SET_LIST, 4, test_support::kShift)
        .Click(IDC_VARIABLE_FIRST)
        .Answer(IDOK, kOneIndependent)
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 1")
        .Click(IDC_DEPENDENT)
        .ExpectText(IDC_DEPENDENT_NAME, "3..5")
        .ClickItem(IDC_SET_LIST, 6)
        .Click(IDC_VARIABLE_FIRST)
        .ExpectText(IDC_VARIABLE_NAME_FIRST, "Column 7")
        .ExpectText(IDC_DEPENDENT_NAME, "3..5")
        .Click(IDOK);
    EXPECT_EQ(ShowOne(script), 1);
    EXPECT_STREQ(record.szDepVarSelectionList, "2..4");
    EXPECT_EQ(record.uIndepVarDataSetIndex, 6u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 2u);
}

TEST_F(OneVariable, StoredListOutsideTheSheetShowsTheFirstColumn) {
    for (const char* text : {"50..60", "x", ""}) {
        SCOPED_TRACE(text);
        CopyText(record.szDepVarSelectionList, text);
        DialogScript script;
        script.Do(Selected({0})).ExpectText(IDC_DEPENDENT_NAME, "Column 1").Click(IDCANCEL);
        EXPECT_EQ(ShowOne(script), 2);
    }
}

TEST_F(OneVariable, SelectedCountIsThatOfTheColumns) {
    CopyText(record.szDepVarSelectionList, "4..6");
    std::uint32_t count = 0;
    DialogScript script;
    script
        .Do([&] {
            current->ReadControls();
            count = current->Model().GetSelectedGroupCount(0);
        })
        .Click(IDOK);
    EXPECT_EQ(ShowOne(script), 1);
    EXPECT_EQ(count, 3u);
}

// --- The list

class ColumnList : public PairedTab {
  protected:
    int ShowList(DialogScript& script) { return ShowPaired(script, IDD_PAIRED_LIST); }
};

TEST_F(ColumnList, RadioDecidesBetweenTextAndList) {
    CopyText(record.szDepVarSelectionList, "2..3");
    DialogScript script;
    script.ExpectChecked(IDC_SETS_LISTED, BST_CHECKED)
        .ExpectEnabled(IDC_SET_LIST, true)
        .ExpectEnabled(IDC_SELECT_ALL, true)
        .ExpectEnabled(IDC_SET_LIST_TEXT, false)
        .ExpectText(IDC_SET_LIST_TEXT, "3..4")
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: 3..4")
        .Do([this] { log.Take(); })
        .Click(IDC_SETS_TYPED)
        .Do([this] {
            EXPECT_EQ(log.Take(), (Numbers{2212}));
            EXPECT_EQ(record.eDataSet1SelectionMode, 4);
        })
        .ExpectEnabled(IDC_SET_LIST, false)
        .ExpectEnabled(IDC_SELECT_ALL, false)
        .ExpectEnabled(IDC_SELECT_NONE, false)
        .ExpectEnabled(IDC_SELECT_INVERT, false)
        .ExpectEnabled(IDC_SET_LIST_TEXT, true)
        .Type(IDC_SET_LIST_TEXT, "1,5")
        .Do(Selected({0, 4}))
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: 1,5")
        .Do([this] { EXPECT_STREQ(record.szDepVarSelectionList, "0,4"); })
        .Click(IDOK);
    EXPECT_EQ(ShowList(script), 1);
    EXPECT_EQ(record.eDataSet1SelectionMode, 4);
    EXPECT_STREQ(record.szDepVarSelectionList, "0,4");
}

TEST_F(ColumnList, TypedModeComesBack) {
    record.eDataSet1SelectionMode = 4;
    DialogScript script;
    script.ExpectChecked(IDC_SETS_TYPED, BST_CHECKED)
        .ExpectEnabled(IDC_SET_LIST_TEXT, true)
        .Click(IDOK);
    EXPECT_EQ(ShowList(script), 1);
    EXPECT_EQ(record.eDataSet1SelectionMode, 4);
}

TEST_F(ColumnList, ListAndToolsStoreTheSelection) {
    DialogScript script;
    script.ClickItem(IDC_SET_LIST, 3)
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: Column 4")
        .ExpectText(IDC_SET_LIST_TEXT, "4")
        .Do([this] { EXPECT_STREQ(record.szDepVarSelectionList, "3"); })
        .Click(IDC_SELECT_INVERT)
        .Do([this] { EXPECT_STREQ(record.szDepVarSelectionList, "0..2,4..7"); })
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: 1..3,5..8")
        .Click(IDC_SELECT_NONE)
        .Do([this] { EXPECT_STREQ(record.szDepVarSelectionList, ""); })
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: ")
        .ExpectText(IDC_SET_LIST_TEXT, "")
        .Click(IDOK)
        .Answer(IDOK, kNoData)
        .Click(IDC_SELECT_ALL)
        .Do([this] { EXPECT_STREQ(record.szDepVarSelectionList, "0..7"); })
        .Click(IDOK);
    EXPECT_EQ(ShowList(script), 1);
    EXPECT_EQ(record.eDataSet1SelectionMode, 3);
}

TEST_F(ColumnList, RowsAreLimitedByTheShortestColumn) {
    DialogScript script;
    script.ExpectText(IDC_RANGE_AVAILABLE, "Available row range = 1 to 100")
        .Do([this] { source.Points(30); })
        .ClickItem(IDC_SET_LIST, 2)
        .ExpectText(IDC_RANGE_AVAILABLE, "Available row range = 1 to 30")
        .Click(IDCANCEL);
    EXPECT_EQ(ShowList(script), 2);
}

TEST_F(ColumnList, VariablesAreNotAssigned) {
    DialogScript script;
    script
        .Do([this] {
            const ZXADLG_DataOptions before = record;
            paired->AssignVariable(2);
            EXPECT_EQ(std::memcmp(&before, &record, sizeof before), 0);
        })
        .Click(IDCANCEL);
    EXPECT_EQ(ShowList(script), 2);
}

TEST_F(ColumnList, DisabledTabGreysEverythingAndComesBack) {
    DialogScript script;
    script.Do([this] { paired->SetDisabled(true); })
        .ExpectEnabled(IDC_SET_LIST, false)
        .ExpectEnabled(IDC_RANGE_FROM, false)
        .ExpectEnabled(IDC_RANGE_FROM_SPIN, false)
        .ExpectEnabled(IDC_SETS_TYPED, false)
        .Do([this] { paired->SetDisabled(false); })
        .ExpectEnabled(IDC_SET_LIST, true)
        .ExpectEnabled(IDC_SET_LIST_TEXT, false)
        .ExpectEnabled(IDC_RANGE_FROM, true)
        .Click(IDCANCEL);
    EXPECT_EQ(ShowList(script), 2);
}

TEST_F(ColumnList, TenThousandColumnsAreListed) {
    source.Sets(10000).Points(2);
    DialogScript script(120000);
    script.Click(IDC_SELECT_ALL)
        .ExpectText(IDC_DEPENDENT_NAME, "Selection: 1..10000")
        .Click(IDC_RANGE_ALL)
        .Click(IDOK);
    EXPECT_EQ(ShowList(script), 1);
    EXPECT_STREQ(record.szDepVarSelectionList, "0..9999");
}

}  // namespace
