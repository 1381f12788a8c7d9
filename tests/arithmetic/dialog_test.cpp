// What the user does in the arithmetic dialog: choosing sets, assigning, building an expression,
// Undo and Clear.

#include "ArithmeticTest.h"

namespace {

using namespace arithmetic_test;

class ArithmeticUser : public ArithmeticDialog {};

std::vector<int> SelectedSets(HWND dialog) {
    return test_support::SelectedIndexes(GetDlgItem(dialog, IDC_SET_LIST));
}

// --- Sets ----------------------------------------------------------------------------------------

TEST_F(ArithmeticUser, EachModeEnablesWhatItNeeds) {
    const struct {
        int button;
        int mode;
        bool list;
        bool text;
    } rows[] = {{IDC_SETS_TYPED, 4, false, true},
                {IDC_SETS_LISTED, 3, true, false},
                {IDC_SETS_ACTIVE, 2, false, false},
                {IDC_SETS_ALL, 1, false, false},
                {IDC_SETS_VISIBLE, 0, false, false}};
    DialogScript script;
    script.ExpectEnabled(IDC_SET_LIST, false).ExpectEnabled(IDC_SET_LIST_TEXT, false);
    for (const auto& row : rows) {
        script.Click(row.button);
        for (const int id : {IDC_SET_LIST, IDC_SELECT_ALL, IDC_SELECT_NONE, IDC_SELECT_INVERT})
            script.ExpectEnabled(id, row.list);
        script.ExpectEnabled(IDC_SET_LIST_TEXT, row.text);
    }
    ShowAndCancel(script);
    for (const auto& row : rows) {
        options.eDataSet1SelectionMode = 1;
        DialogScript again;
        again.Click(row.button);
        ShowAndAccept(again);
        EXPECT_EQ(options.eDataSet1SelectionMode, row.mode);
    }
}

TEST_F(ArithmeticUser, RulesSelectTheirSets) {
    source.hiddenEvery = 4;
    source.Sets(6);
    std::strcpy(options.szSelectionList, "5");
    DialogScript script;
    script.Click(IDC_SETS_VISIBLE)
        .Do([](HWND dialog) {
            EXPECT_EQ(SelectedSets(dialog), (std::vector<int>{0, 1, 2, 4, 5}));
        })
        .Click(IDC_SETS_ALL)
        .Do([](HWND dialog) {
            EXPECT_EQ(SelectedSets(dialog), (std::vector<int>{0, 1, 2, 3, 4, 5}));
        })
        .Click(IDC_SETS_ACTIVE)
        .Do([](HWND dialog) { EXPECT_EQ(SelectedSets(dialog), std::vector<int>{1}); })
        .Click(IDC_SETS_LISTED)
        .Do([](HWND dialog) { EXPECT_EQ(SelectedSets(dialog), std::vector<int>{5}); });
    ShowAndAccept(script);
    EXPECT_STREQ(options.szSelectionList, "5");
}

TEST_F(ArithmeticUser, TheListAndItsToolsAreStored) {
    options.eDataSet1SelectionMode = 3;
    DialogScript script;
    script.ClickItem(IDC_SET_LIST, 2)
        .ClickItem(IDC_SET_LIST, 4, test_support::kControl)
        .ExpectText(IDC_SET_LIST_TEXT, "3,5")
        .Click(IDC_SELECT_INVERT)
        .ExpectText(IDC_SET_LIST_TEXT, "1..2,4,6..12")
        .Click(IDC_SELECT_NONE)
        .ExpectText(IDC_SET_LIST_TEXT, "")
        .Click(IDC_SELECT_ALL)
        .ExpectText(IDC_SET_LIST_TEXT, "1..12");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szSelectionList, "0..11");
}

TEST_F(ArithmeticUser, ATypedListIsStoredWhileItCanBeRead) {
    options.eDataSet1SelectionMode = 4;
    DialogScript script;
    script.Type(IDC_SET_LIST_TEXT, "2, 4")
        .Do([](HWND dialog) {
            EXPECT_EQ(SelectedSets(dialog), (std::vector<int>{1, 3}));
        })
        .TypeKeys("x");
    ShowAndAccept(script);
    EXPECT_STREQ(options.szSelectionList, "1,3");
}

TEST_F(ArithmeticUser, AGroupIsChosenByItsButtonAndBox) {
    source.activeGroup = 0;
    DialogScript script;
    script.ExpectEnabled(IDC_GROUP, false)
        .Click(IDC_GROUPS_ONE)
        .ExpectEnabled(IDC_GROUP, true)
        .Choose(IDC_GROUP, "IN 1")
        .Do([](HWND dialog) {
            EXPECT_EQ(SendDlgItemMessageA(dialog, IDC_SET_LIST, LB_GETCOUNT, 0, 0), 11);
        });
    ShowAndAccept(script);
    EXPECT_EQ(options.eDataGroup1SelectionMode, 1);
    EXPECT_EQ(options.uGroup1Index, 1u);
}

TEST_F(ArithmeticUser, TheRegionIsStoredByIdAndPlace) {
    DialogScript script;
    script.Choose(IDC_REGION, "Cursors 1..2");
    ShowAndAccept(script);
    EXPECT_EQ(options.eAnalysisRegion, 3);
    EXPECT_EQ(options.uRegionIndex, 1u);
}

// --- Assign --------------------------------------------------------------------------------------

TEST_F(ArithmeticUser, AssignWritesTheRulesOfTraces) {
    const std::pair<int, const char*> rows[] = {{IDC_SETS_VISIBLE, "T{VISIBLE} = |"},
                                                {IDC_SETS_ALL, "T{ALL} = |"},
                                                {IDC_SETS_ACTIVE, "T{ACTIVE} = |"}};
    DialogScript script;
    for (const auto& [button, wanted] : rows) {
        script.Type(IDC_EXPRESSION, "")
            .Click(button)
            .Click(IDC_ASSIGN)
            .Do([wanted = wanted](HWND dialog) {
                EXPECT_EQ(WithCaret(dialog), wanted);
                EXPECT_EQ(GetFocus(), EditOf(dialog, IDC_EXPRESSION));
            });
    }
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AssignWritesRunsOfTraces) {
    std::strcpy(options.szSelectionList, "0..2,4");
    options.eDataSet1SelectionMode = 3;
    DialogScript script;
    script.Type(IDC_EXPRESSION, "").Click(IDC_ASSIGN).Do([](HWND dialog) {
        EXPECT_EQ(WithCaret(dialog), "t1..3,t5 = |");
    });
    script.Click(IDC_SETS_TYPED)
        .Type(IDC_SET_LIST_TEXT, "1,2,3,5,6")
        .Type(IDC_EXPRESSION, "")
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "t1..3,t5..6 = ");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AssignWritesLabelsOfColumns) {
    UseColumns();
    std::strcpy(options.szSelectionList, "0..2,4");
    DialogScript script;
    script.Type(IDC_EXPRESSION, "").Click(IDC_ASSIGN).ExpectSelected(IDC_EXPRESSION, "A..C,E = ");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AssignInsertsIntoANewColumnAtTheCaret) {
    UseNewColumn();
    std::strcpy(options.szSelectionList, "1");
    DialogScript script;
    script.Type(IDC_EXPRESSION, "sin()+A")
        .Do([](HWND dialog) { SetCaret(dialog, 4); })
        .Click(IDC_ASSIGN)
        .Do([](HWND dialog) { EXPECT_EQ(WithCaret(dialog), "sin(B|)+A"); });
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AssignReplacesALeftSideAndInsertsBehindIt) {
    options.eDataSet1SelectionMode = 4;
    std::strcpy(options.szSelectionList, "1");
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1 = sin(x)")
        .Do([](HWND dialog) { SetCaret(dialog, 1); })
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "t2 = sin(x)")
        .Do([](HWND dialog) { SetCaret(dialog, 9); })
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "t2 = sin(t2x)")
        .Type(IDC_EXPRESSION, "sin(x)")
        .Click(IDC_ASSIGN)
        .Do([](HWND dialog) { EXPECT_EQ(WithCaret(dialog), "t2 = |sin(x)"); });
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AnotherGroupIsNamedInFrontOfTraces) {
    options.eDataGroup1SelectionMode = 1;
    options.uGroup1Index = 1;
    options.eDataSet1SelectionMode = 1;
    DialogScript script;
    script.Type(IDC_EXPRESSION, "")
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "IN 1:T{ALL} = ")
        .Choose(IDC_GROUP, "IN 0")
        .Type(IDC_EXPRESSION, "")
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "T{ALL} = ");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AGroupsNameIsCutAndAnythingInItStands) {
    source.Groups({"IN 0", "The %s%0 name of thirty chars."});
    options.eDataGroup1SelectionMode = 1;
    options.uGroup1Index = 1;
    options.eDataSet1SelectionMode = 4;
    std::strcpy(options.szSelectionList, "0..9");
    DialogScript script;
    script.Type(IDC_EXPRESSION, "")
        .Click(IDC_ASSIGN)
        .ExpectSelected(IDC_EXPRESSION, "The %s%0 name of th:t1..10 = ");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, NothingSelectedIsNotAssigned) {
    options.eDataSet1SelectionMode = 3;
    std::strcpy(options.szSelectionList, "3");
    const char* const text = "No data have been selected. At least one data set must be specified.";
    DialogScript script;
    script.Type(IDC_EXPRESSION, "x")
        .Click(IDC_SELECT_NONE)
        .Click(IDC_ASSIGN)
        .Answer(IDOK, text)
        .ExpectFocus(IDC_SET_LIST)
        .Click(IDC_SETS_TYPED)
        .Type(IDC_SET_LIST_TEXT, "2,4x")
        .Click(IDC_ASSIGN)
        .Answer(IDOK, text)
        .ExpectFocus(IDC_SET_LIST_TEXT)
        .Type(IDC_SET_LIST_TEXT, "0..3")
        .Click(IDC_ASSIGN)
        .Answer(IDOK, text)
        .ExpectSelected(IDC_EXPRESSION, "x");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, AListThatIsTooLongIsNotAssigned) {
    options.eDataSet1SelectionMode = 4;
    std::string odd = "101";
    for (int n = 103; n < 300; n += 2) odd += "," + std::to_string(n);
    DialogScript script;
    script.Type(IDC_EXPRESSION, "x")
        .Type(IDC_SET_LIST_TEXT, odd)
        .Click(IDC_ASSIGN)
        .Answer(IDOK,
                "The maximum length of the expression is 255 characters.\n"
                "The current expression contains 255 characters.")
        .ExpectFocus(IDC_EXPRESSION)
        .ExpectSelected(IDC_EXPRESSION, "x");
    ShowAndCancel(script);
}

// --- Building an expression ----------------------------------------------------------------------

TEST_F(ArithmeticUser, BuildsAnExpressionWithTheListsAlone) {
    UseStore();
    options.eDataSet1SelectionMode = 3;
    DialogScript script;
    script.Click(IDC_EXPRESSION_CLEAR)
        .ClickItem(IDC_SET_LIST, 0)
        .Click(IDC_ASSIGN)
        .TypeKeys("(")
        .ClickItem(IDC_SET_LIST, 1)
        .Click(IDC_ASSIGN)
        .MouseClick(IDC_OPERATOR)
        .PickFromMenu("- (subtract)")
        .ClickItem(IDC_SET_LIST, 2)
        .Click(IDC_ASSIGN)
        .TypeKeys(")")
        .MouseClick(IDC_OPERATOR)
        .PickFromMenu("* (multiply)")
        .MouseClick(IDC_CONSTANT)
        .PickFromMenu("_pi")
        .Do([](HWND dialog) {
            EXPECT_EQ(WithCaret(dialog), "t1 = (t2-t3)*_pi|");
            EXPECT_EQ(GetFocus(), EditOf(dialog, IDC_EXPRESSION));
        });
    ShowAndAccept(script);
    EXPECT_STREQ(options.szExpression, "t1 = (t2-t3)*_pi");
    options.szExpression[0] = '\0';
    Put("TraceArithmetic", "szExpression", "");
    DialogScript again;
    again.ExpectSelected(IDC_EXPRESSION, "t1 = (t2-t3)*_pi");
    ShowAndCancel(again);
}

TEST_F(ArithmeticUser, AFunctionTakesTheSelectionsPlace) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1=abc+t2")
        .Do([](HWND dialog) { SendMessageA(EditOf(dialog, IDC_EXPRESSION), EM_SETSEL, 3, 6); })
        .MouseClick(IDC_FUNCTION)
        .PickFromMenu("sin()")
        .Do([](HWND dialog) { EXPECT_EQ(WithCaret(dialog), "t1=sin(|)+t2"); })
        .TypeKeys("t9")
        .ExpectSelected(IDC_EXPRESSION, "t1=sin(t9)+t2");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, ConstantsAreThoseOfTheKindOfData) {
    UseColumns();
    DialogScript script;
    script.Type(IDC_EXPRESSION, "A=").MouseClick(IDC_CONSTANT).PickFromMenu("_row");
    script.ExpectSelected(IDC_EXPRESSION, "A=_row");
    ShowAndCancel(script);
    source.Kind(1);
    DialogScript other;
    other.Type(IDC_EXPRESSION, "A=").MouseClick(IDC_CONSTANT).PickFromMenu("_time");
    other.ExpectSelected(IDC_EXPRESSION, "A=_time");
    ShowAndCancel(other);
}

// --- Undo and Clear ------------------------------------------------------------------------------

TEST_F(ArithmeticUser, UndoBringsBackWhatClearTookOnce) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1=t2")
        .Click(IDC_EXPRESSION_CLEAR)
        .ExpectSelected(IDC_EXPRESSION, "")
        .Do([this] { EXPECT_STREQ(options.szExpression, ""); })
        .Click(IDC_EXPRESSION_UNDO)
        .Do([](HWND dialog) {
            EXPECT_EQ(WithCaret(dialog), "t1=t2|");
            EXPECT_EQ(GetFocus(), EditOf(dialog, IDC_EXPRESSION));
        })
        // From here on it is the edit's own.
        .TypeKeys("+")
        .ExpectSelected(IDC_EXPRESSION, "t1=t2+")
        .Click(IDC_EXPRESSION_UNDO)
        .ExpectSelected(IDC_EXPRESSION, "t1=t2");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, UndoOfALongTextIsWhole) {
    const std::string text(4000, 'x');
    DialogScript script;
    script.Do([&](HWND dialog) { SetDlgItemTextA(dialog, IDC_EXPRESSION, text.c_str()); })
        .Click(IDC_EXPRESSION_CLEAR)
        .Click(IDC_EXPRESSION_UNDO)
        .ExpectSelected(IDC_EXPRESSION, text);
    ShowAndCancel(script);
}

// --- No "=" in a new column ----------------------------------------------------------------------

TEST_F(ArithmeticUser, ANewColumnKeepsWhatStandsBehindEachEquals) {
    UseNewColumn();
    DialogScript script;
    script.Type(IDC_EXPRESSION, "")
        .Do([](HWND dialog) {
            // Pasted at once.
            SendMessageA(EditOf(dialog, IDC_EXPRESSION), EM_REPLACESEL, TRUE,
                         reinterpret_cast<LPARAM>("A=B=C"));
        })
        .Answer(IDOK, kNoEquals)
        .ExpectSelected(IDC_EXPRESSION, "C")
        .Type(IDC_EXPRESSION, "A=")
        .Answer(IDOK, kNoEquals)
        .ExpectSelected(IDC_EXPRESSION, "");
    ShowAndCancel(script);
}

// The histories of the two column forms are one.
TEST_F(ArithmeticUser, ChoosingALineWithALeftSideTellsAndTakesItsRightSide) {
    UseNewColumn();
    UseStore();
    Put("ColumnArithmetic", "ColumnExpression0", "A+B");
    Put("ColumnArithmetic", "ColumnExpression1", "A=B+C");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "A+B")
        .Choose(IDC_EXPRESSION, 1)
        .Answer(IDOK, kNoEquals)
        .ExpectSelected(IDC_EXPRESSION, "B+C");
    ShowAndCancel(script);
}

TEST_F(ArithmeticUser, TheFirstLineIsStrippedInSilence) {
    UseNewColumn();
    UseStore();
    Put("ColumnArithmetic", "ColumnExpression0", "A=B+C");
    DialogScript script;
    script.ExpectSelected(IDC_EXPRESSION, "B+C");
    ShowAndCancel(script);
}

}  // namespace
