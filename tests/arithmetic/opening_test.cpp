// What the three forms show of a record, a host and a store.

#include "ArithmeticTest.h"

namespace {

using namespace arithmetic_test;

class ArithmeticOpening : public ArithmeticDialog {};

TEST_F(ArithmeticOpening, TracesHaveAllChoicesOfSetsAndARegion) {
    DialogScript script;
    script.ExpectTitle("Arithmetic")
        .ExpectText(IDC_EXPRESSION_LABEL, "E&xpression:")
        .ExpectText(IDC_EXPRESSION_EXAMPLE, "Example: t1=sin(time*2*pi)")
        .ExpectSelected(IDC_EXPRESSION, "t1=sin(time*2*pi)")
        .ExpectText(IDC_SETS_VISIBLE, "All visi&ble Traces")
        .ExpectText(IDC_SETS_ALL, "All Traces (including &hidden)")
        .ExpectText(IDC_SETS_ACTIVE, "Acti&ve Trace")
        .ExpectText(IDC_SETS_LISTED, "S&elect from list")
        .ExpectText(IDC_SETS_TYPED, "&Specify a list (Example: 1..5,18,25..40):")
        .ExpectText(IDC_GROUPS_ACTIVE, "Ac&tive Signal")
        .ExpectText(IDC_GROUPS_ONE, "Speci&fy a Signal")
        .ExpectText(IDC_GROUP_LABEL, "Select Signal:")
        .ExpectText(IDC_SET_LABEL, "Set:")
        .ExpectItems(IDC_GROUP, {"IN 0", "IN 1"})
        .ExpectItems(IDC_REGION, {"Whole trace", "Cursors 1..2"})
        .Do([](HWND dialog) {
            for (const int id : {IDC_RANGE_ALL, IDC_RANGE_PART, IDC_COLUMN_TITLE})
                EXPECT_EQ(GetDlgItem(dialog, id), nullptr) << id;
        });
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, ColumnsHaveAListAndRows) {
    UseColumns();
    DialogScript script;
    script.ExpectText(IDC_EXPRESSION_LABEL, "E&xpression: ")
        .ExpectText(IDC_EXPRESSION_EXAMPLE, "Example: A=(B+C)/2+sin(K$9)")
        .ExpectSelected(IDC_EXPRESSION, "A=(B+C)/2+sin(K$9)")
        .ExpectText(IDC_SET_LABEL, "Column:")
        .ExpectText(IDC_GROUP_LABEL, "Select Sheet:")
        .ExpectText(IDC_RANGE_ALL, "All")
        .ExpectText(IDC_RANGE_PART, "Use Range")
        .ExpectText(IDC_RANGE_NOTE, "Upper range limit is determined by the smallest column.")
        .ExpectText(IDC_RANGE_AVAILABLE, "Available data range = 1 to 1000 (from smallest column)")
        .Do([](HWND dialog) {
            for (const int id :
                 {IDC_SETS_VISIBLE, IDC_SETS_ALL, IDC_SETS_ACTIVE, IDC_REGION, IDC_COLUMN_TITLE})
                EXPECT_EQ(GetDlgItem(dialog, id), nullptr) << id;
        });
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, ANewColumnHasATitleAndNoModes) {
    UseNewColumn();
    DialogScript script;
    script.ExpectText(IDC_EXPRESSION_LABEL, "Ne&w column =")
        .ExpectText(IDC_EXPRESSION_EXAMPLE, "Example: (B+C)/2+sin(K$9)")
        .ExpectSelected(IDC_EXPRESSION, "(B+C)/2+sin(K$9)")
        .ExpectSelected(IDC_COLUMN_TITLE, "Example")
        .ExpectText(IDC_SET_LABEL, "Column:")
        .ExpectText(IDC_RANGE_NOTE, "Upper range limit is determined from the smallest column.")
        .ExpectEnabled(IDC_SET_LIST, true)
        .ExpectEnabled(IDC_SELECT_ALL, true)
        .Do([](HWND dialog) {
            for (const int id : {IDC_SETS_TYPED, IDC_SETS_LISTED, IDC_SET_LIST_TEXT, IDC_REGION})
                EXPECT_EQ(GetDlgItem(dialog, id), nullptr) << id;
        });
    ShowAndAccept(script);
    EXPECT_EQ(options.eDataSet1SelectionMode, 3);
}

// Data that are no sheet have the example of traces above the example of columns.
TEST_F(ArithmeticOpening, OtherSetsShowTheExampleOfTraces) {
    for (const bool isNew : {false, true}) {
        source.Kind(1);
        params.bNewColumnArithmetic = isNew;
        DialogScript script;
        script.ExpectText(IDC_EXPRESSION_EXAMPLE, "Example: t1=sin(time*2*pi)")
            .ExpectSelected(IDC_EXPRESSION, isNew ? "(B+C)/2+sin(K$9)" : "A=(B+C)/2+sin(K$9)")
            .ExpectText(IDC_SET_LABEL, isNew ? "Data set:" : "Set:");
        ShowAndCancel(script);
    }
}

TEST_F(ArithmeticOpening, ANewColumnOfADataFileIsTraceArithmetic) {
    params.bNewColumnArithmetic = 1;
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1=t2").ExpectSelected(IDC_EXPRESSION, "t1=t2");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "t1=t2");
    EXPECT_STREQ(options.szDisplayExpression, "");
}

TEST_F(ArithmeticOpening, AHostWithoutNounsGetsTheBuiltInOnes) {
    source.NullTexts();
    DialogScript script;
    script.ExpectText(IDC_SETS_VISIBLE, "All visi&ble Sets")
        .ExpectText(IDC_GROUPS_ONE, "Speci&fy a Group")
        .ExpectText(IDC_GROUP_LABEL, "Select Group:");
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, LongNounsAreCut) {
    source.setLabel = "Measurement of the membrane";
    source.groupLabel = "%s%0 Signal of the amplifier";
    DialogScript script;
    script.ExpectText(IDC_SETS_ACTIVE, "Acti&ve Measurement of the ")
        .ExpectText(IDC_SETS_ALL, "All Measurement of the s (including &hidden)")
        .ExpectText(IDC_GROUPS_ACTIVE, "Ac&tive %s%0 Signal of the ");
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, WithoutAGroupSelectorItsControlsAreHidden) {
    params.bShowGroupSelector = 0;
    DialogScript script;
    for (const int id : {IDC_GROUP, IDC_GROUP_LABEL, IDC_GROUPS_ACTIVE, IDC_GROUPS_ONE})
        script.ExpectVisible(id, false);
    script.ExpectVisible(IDC_SET_LIST, true);
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, EveryStoredFieldIsOnTheScreen) {
    options.eDataGroup1SelectionMode = 1;
    options.uGroup1Index = 1;
    options.eDataSet1SelectionMode = 4;
    options.eAnalysisRegion = 3;
    std::strcpy(options.szSelectionList, "0..2,4");
    std::strcpy(options.szExpression, "t9=t8");
    DialogScript script;
    script.ExpectChecked(IDC_GROUPS_ONE, BST_CHECKED)
        .ExpectSelected(IDC_GROUP, "IN 1")
        .ExpectChecked(IDC_SETS_TYPED, BST_CHECKED)
        .ExpectText(IDC_SET_LIST_TEXT, "1..3,5")
        .ExpectSelected(IDC_REGION, "Cursors 1..2")
        .ExpectSelected(IDC_EXPRESSION, "t9=t8")
        .Do([](HWND dialog) {
            EXPECT_EQ(test_support::SelectedIndexes(GetDlgItem(dialog, IDC_SET_LIST)),
                      (std::vector<int>{0, 1, 2, 4}));
            EXPECT_EQ(SendDlgItemMessageA(dialog, IDC_SET_LIST, LB_GETCOUNT, 0, 0), 11);
        });
    ShowAndAccept(script);
    EXPECT_EQ(options.uGroup1Index, 1u);
    EXPECT_EQ(options.eAnalysisRegion, 3);
    EXPECT_EQ(options.uRegionIndex, 1u);
    EXPECT_STREQ(options.szSelectionList, "0..2,4");
}

TEST_F(ArithmeticOpening, AGroupBeyondTheLastIsTheLast) {
    options.eDataGroup1SelectionMode = 1;
    options.uGroup1Index = 99;
    DialogScript script;
    script.ExpectSelected(IDC_GROUP, "IN 1");
    ShowAndAccept(script);
    EXPECT_EQ(options.uGroup1Index, 1u);
}

TEST_F(ArithmeticOpening, ColumnsTakeTheRulesOfTracesAsTheList) {
    UseColumns();
    options.eDataSet1SelectionMode = 0;
    DialogScript script;
    script.ExpectChecked(IDC_SETS_LISTED, BST_CHECKED).ExpectEnabled(IDC_SET_LIST, true);
    ShowAndAccept(script);
    EXPECT_EQ(options.eDataSet1SelectionMode, 3);
}

// --- Record, history, example --------------------------------------------------------------------

TEST_F(ArithmeticOpening, TheRecordComesBeforeTheHistory) {
    UseStore();
    Put("TraceArithmetic", "TraceExpression0", "t1=t2");
    Put("TraceArithmetic", "TraceExpression1", "t3=t4");
    std::strcpy(options.szExpression, "NEWCOL=sin(A)");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "sin(A)").ExpectItems(IDC_EXPRESSION, {"t1=t2", "t3=t4"});
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, TheFirstEntryIsShownWithTheCaretBehindIt) {
    UseStore();
    Put("TraceArithmetic", "TraceExpression0", "t1=t2");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "t1=t2").ExpectItems(IDC_EXPRESSION, {"t1=t2"});
    ShowAndCancel(script);
}

// A later OK moves the new expression above the example.
TEST_F(ArithmeticOpening, AnEmptyHistoryIsFilledByTheExample) {
    UseStore();
    DialogScript script;
    script.ExpectItems(IDC_EXPRESSION, {"t1=sin(time*2*pi)"}).Type(IDC_EXPRESSION, "t2=t3");
    ShowAndAccept(script);
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression0"), "t2=t3");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression1"), "t1=sin(time*2*pi)");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression2"), "");
}

TEST_F(ArithmeticOpening, WithoutAStoreTheBoxHasTheExample) {
    DialogScript script;
    script.ExpectItems(IDC_EXPRESSION, {"Not available"})
        .ExpectSelected(IDC_EXPRESSION, "t1=sin(time*2*pi)")
        .Type(IDC_EXPRESSION, "t4=t5")
        .Choose(IDC_EXPRESSION, 0)
        .ExpectSelected(IDC_EXPRESSION, "t4=t5");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "t4=t5");
}

TEST_F(ArithmeticOpening, TheExampleTitleStandsInAnEmptyListOnly) {
    UseNewColumn();
    UseStore();
    Put("ColumnArithmetic", "ColumnDescription0", "Sum");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "(B+C)/2+sin(K$9)")
        .ExpectSelected(IDC_COLUMN_TITLE, "Sum")
        .ExpectItems(IDC_COLUMN_TITLE, {"Sum"});
    ShowAndCancel(script);
}

TEST_F(ArithmeticOpening, AStoreOfFortyOneHistoriesShowsForty) {
    UseStore();
    for (int i = 0; i < 41; ++i) {
        Put("TraceArithmetic", ("TraceExpression" + std::to_string(i)).c_str(),
            ("t1=t" + std::to_string(i)).c_str());
    }
    DialogScript script;
    script
        .Do([](HWND dialog) {
            EXPECT_EQ(SendDlgItemMessageA(dialog, IDC_EXPRESSION, CB_GETCOUNT, 0, 0), 40);
        })
        .Type(IDC_EXPRESSION, "t1=new");
    ShowAndAccept(script);
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression0"), "t1=new");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression39"), "t1=t38");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression40"), "t1=t40");
}

// --- Remapping -----------------------------------------------------------------------------------

TEST_F(ArithmeticOpening, AStoredExpressionIsAppliedToOtherColumns) {
    UseColumns();
    UseStore();
    params.bRemapColumns = 1;
    std::strcpy(options.szExpression, "A=A+B");
    std::strcpy(data.szDepVarSelectionList, "2,3");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "C=C+D");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "C=C+D");
    // The history is left alone, but for the example that it began with.
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression0"), "A=(B+C)/2+sin(K$9)");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression1"), "");
}

TEST_F(ArithmeticOpening, ARemappedNewColumnShowsItsRightSide) {
    UseNewColumn();
    params.bRemapColumns = 1;
    std::strcpy(options.szExpression, "NEWCOL=A+K$9");
    std::strcpy(data.szDepVarSelectionList, "1,2");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "B+C$9");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "NEWCOL=B+C$9");
}

TEST_F(ArithmeticOpening, WhatCannotBeRemappedStays) {
    UseColumns();
    params.bRemapColumns = 1;
    std::strcpy(options.szExpression, "A=A+B");
    std::strcpy(data.szDepVarSelectionList, "2");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "A=A+B");
    ShowAndCancel(script);
}

// --- Read-only and deferred ----------------------------------------------------------------------

TEST_F(ArithmeticOpening, ReadOnlyShowsTheRecordAndReadsNoStore) {
    UseColumns();
    UseStore();
    Put("ColumnArithmetic", "ColumnExpression0", "Z=Y");
    params.bReadOnly = 1;
    std::strcpy(options.szExpression, "A=B+C");
    options.bUseFullDataRange = 0;
    options.uFirstDataIndex = 4999;
    options.uLastDataIndex = 5999;
    const ZXADLG_ArithmeticOptions before = options;
    DialogScript script;
    script.ExpectTitle("Arithmetic (read only)")
        .ExpectSelected(IDC_EXPRESSION, "A=B+C")
        .ExpectText(IDC_RANGE_FROM, "5000")
        .ExpectText(IDC_RANGE_TO, "6000")
        .ExpectText(IDCANCEL, "Close")
        .ExpectVisible(IDOK, false);
    for (const int id :
         {IDC_EXPRESSION, IDC_OPERATOR, IDC_FUNCTION, IDC_CONSTANT, IDC_ASSIGN, IDC_EXPRESSION_UNDO,
          IDC_EXPRESSION_CLEAR, IDC_RANGE_FROM, IDC_RANGE_ALL, IDC_SELECT_ALL, IDC_GROUP})
        script.ExpectEnabled(id, false);
    script.ExpectEnabled(IDC_SET_LIST, true);
    ShowAndCancel(script);
    EXPECT_EQ(std::memcmp(&before, &options, sizeof options), 0);
}

TEST_F(ArithmeticOpening, ADeferredRunLeavesTheStoreAlone) {
    UseStore();
    Put("TraceArithmetic", "TraceExpression0", "t1=t2");
    Put("TraceArithmetic", "szExpression", "t7=t8");
    const std::string before = store.ReadFile();
    params.bDeferredRun = 1;
    DialogScript script;
    script.ExpectItems(IDC_EXPRESSION, {"t1=sin(time*2*pi)"}).Type(IDC_EXPRESSION, "t5=t6");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "t5=t6");
    EXPECT_EQ(store.ReadFile(), before);
}

// With nothing behind it yet: what needs the data is not checked.
TEST_F(ArithmeticOpening, ADeferredRunOverNoDataPasses) {
    UseColumns();
    source.Points(0);
    params.bDeferredRun = 1;
    options.bUseFullDataRange = 0;
    DialogScript script;
    script.Type(IDC_RANGE_FROM, "5").Type(IDC_RANGE_TO, "9000").Type(IDC_EXPRESSION, "A=B");
    ShowAndAccept(script);
    EXPECT_EQ(options.uFirstDataIndex, 4u);
    EXPECT_EQ(options.uLastDataIndex, 8999u);
}

}  // namespace
