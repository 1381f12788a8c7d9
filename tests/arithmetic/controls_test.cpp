// The buttons that open menus, and the boxes with a history, in a dialog of their own.
#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "arithmetic/ExpressionBoxes.h"
#include "arithmetic/PickLists.h"
#include "arithmetic_ids.h"
#include "entry/ShowSequence.h"
#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_Dialog.h"
#include "store/ProfileStore.h"

namespace {

using test_support::DialogScript;
using test_support::FindControl;
using test_support::ItemsOf;
using test_support::MenuItems;
using test_support::OpenMenuWindow;
using test_support::ScratchStore;
using test_support::TextOf;

// A box that cannot store the property of its edit, on request.
class Box : public CArithmeticEquationComboBox {
  public:
    BOOL KeepOldProcedure(HWND hEdit, WNDPROC pOld) override {
        return bRefuses ? FALSE : CArithmeticEquationComboBox::KeepOldProcedure(hEdit, pOld);
    }
    HWND Edit() const { return m_hEdit; }
    using CHistoryComboBox::Select;

    bool bRefuses = false;
};

class Demonstration : public ADM_NoListCombo {
  public:
    bool bWithoutMenu = false;
    void BuildMenu() override {
        ADM_NoListCombo::BuildMenu();
        if (bWithoutMenu) {
            DestroyMenu(m_hMenu);
            m_hMenu = nullptr;
        }
    }
    HMENU Menu() const { return m_hMenu; }
};

// The template of traces with these controls alone.
class Picks : public ADM_Dialog {
  public:
    Picks() {
        RegisterControl(IDC_EXPRESSION, &box);
        RegisterControl(IDC_OPERATOR, &operators);
        RegisterControl(IDC_FUNCTION, &functions);
        RegisterControl(IDC_CONSTANT, &constants);
        RegisterControl(IDC_EXPRESSION_EXAMPLE, &demonstration);
    }
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        ADM_Dialog::OnInitDialog(hWnd, hFocus, lParam);
        if (nFocus != 0) ::SetFocus(GetDlgItem(hWnd, nFocus));
        return nFocus == 0;
    }
    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
        ADM_Dialog::Notify(pSender, nId, nCode, nData);
        if (nCode == ADM_NoListCombo::kPicked) picked.push_back(nId);
    }

    Box box;
    COperatorComboBox operators;
    CFunctionComboBox functions;
    CSpecialComboBox constants;
    Demonstration demonstration;
    std::vector<int> picked;
    int nFocus = 0;  // of the control that has the focus at first
};

class PickControls : public testing::Test {
  protected:
    PickControls() { PrepareLibrary(); }

    void Run(DialogScript& script) {
        script.Click(IDCANCEL);
        EXPECT_EQ(script.Run([&] {
            return dialog.DoModal(GetModuleHandleA(nullptr),
                                  MAKEINTRESOURCEA(IDD_ARITHMETIC_TRACES), nullptr);
        }),
                  IDCANCEL);
    }
    std::string TextWithCaret() {
        int nStart, nEnd;
        dialog.box.GetSelection(&nStart, &nEnd);
        std::string sText = dialog.box.GetText();
        if (nEnd != nStart) sText.insert(static_cast<std::size_t>(nEnd), "]");
        return sText.insert(static_cast<std::size_t>(nStart), nEnd != nStart ? "[" : "|");
    }

    Picks dialog;
};

// --- The menus -----------------------------------------------------------------------------------

TEST_F(PickControls, OffersTheseMenus) {
    const struct {
        int nId;
        std::vector<std::string> vItems;
    } rows[] = {
        {IDC_OPERATOR, {"+ (add)", "- (subtract)", "* (multiply)", "/ (divide)", "^ (power)"}},
        {IDC_FUNCTION,
         {"arcos()", "arsin()", "artan()", "cos()", "diff()", "exp()", "intg()", "inv()", "ln()",
          "log()", "norm()", "normax()", "normin()", "ramp()", "rect()", "sin()", "sqrt()",
          "tan()"}},
        {IDC_CONSTANT, {"_time", "_maxtime", "_pi"}},
        {IDC_EXPRESSION_EXAMPLE, {"This", "is", "a", "test"}},
    };
    DialogScript script;
    for (const auto& row : rows) {
        script.MouseClick(row.nId)
            .WaitUntil([] { return OpenMenuWindow() != nullptr; })
            .Do([vItems = row.vItems] { EXPECT_EQ(MenuItems(OpenMenuWindow()), vItems); })
            .Press(VK_ESCAPE)
            .WaitUntil([] { return OpenMenuWindow() == nullptr; });
    }
    script.Do([this] { EXPECT_TRUE(dialog.picked.empty()); });
    Run(script);
}

TEST_F(PickControls, OffersRowsOfASheet) {
    dialog.constants.SetColumnNames(true);
    DialogScript script;
    for (const char* szText : {"_row", "_maxrows", "_pi"}) {
        script.MouseClick(IDC_CONSTANT).PickFromMenu(szText).Do([this, szText] {
            EXPECT_STREQ(dialog.constants.GetConstant(), szText);
        });
    }
    Run(script);
}

TEST_F(PickControls, StartOnTheirFirstPicks) {
    EXPECT_EQ(dialog.operators.GetPick(), 1);
    EXPECT_EQ(dialog.functions.GetPick(), 0);
    EXPECT_EQ(dialog.constants.GetPick(), 0);
    WORD uOperator = 7;
    dialog.operators.GetOperator(&uOperator);
    EXPECT_EQ(uOperator, '+');
    EXPECT_STREQ(dialog.functions.GetFunction(), "arcos()");
    EXPECT_STREQ(dialog.constants.GetConstant(), "_time");
}

TEST_F(PickControls, APickIsKeptAndTold) {
    const std::pair<const char*, char> operators[] = {{"+ (add)", '+'},
                                                      {"- (subtract)", '-'},
                                                      {"* (multiply)", '*'},
                                                      {"/ (divide)", '/'},
                                                      {"^ (power)", '^'}};
    DialogScript script;
    for (const auto& [szText, chOperator] : operators) {
        script.MouseClick(IDC_OPERATOR).PickFromMenu(szText).Do([this, wanted = chOperator] {
            WORD uOperator = 0;
            dialog.operators.GetOperator(&uOperator);
            EXPECT_EQ(uOperator, wanted);
            EXPECT_EQ(dialog.picked, std::vector<int>{IDC_OPERATOR});
            dialog.picked.clear();
        });
    }
    for (const char* szText : {"arcos()", "ln()", "tan()"}) {
        script.MouseClick(IDC_FUNCTION).PickFromMenu(szText).Do([this, szText] {
            EXPECT_STREQ(dialog.functions.GetFunction(), szText);
        });
    }
    script.Do([this] { EXPECT_EQ(dialog.picked, (std::vector<int>(3, IDC_FUNCTION))); });
    Run(script);
}

TEST_F(PickControls, OpenByKeysAsWell) {
    DialogScript script;
    for (const int key : {VK_SPACE, VK_DOWN}) {
        script.Focus(IDC_FUNCTION)
            .Press(key)
            .PickFromMenu("cos()")
            .WaitUntil([] { return OpenMenuWindow() == nullptr; })
            .ExpectFocus(IDC_FUNCTION);
    }
    script.Do([this] { EXPECT_EQ(dialog.picked.size(), 2u); });
    // The mnemonic of a caption.
    script.Do([](HWND hDialog) { SetDlgItemTextA(hDialog, IDC_CONSTANT, "Constan&ts"); })
        .Mnemonic('t')
        .PickFromMenu("_maxtime")
        .Do([this] { EXPECT_STREQ(dialog.constants.GetConstant(), "_maxtime"); });
    Run(script);
}

TEST_F(PickControls, WhatIsGreyedOrHasNoMenuOpensNothing) {
    dialog.demonstration.bWithoutMenu = true;
    DialogScript script;
    script.MouseClick(IDC_EXPRESSION_EXAMPLE).Wait(50).Do([this] {
        EXPECT_EQ(OpenMenuWindow(), nullptr);
        dialog.functions.Enable(FALSE);
        SendMessageA(dialog.functions.GetHandle(), BM_CLICK, 0, 0);
        EXPECT_EQ(OpenMenuWindow(), nullptr);
        EXPECT_TRUE(dialog.picked.empty());
    });
    Run(script);
}

TEST_F(PickControls, HaveAClassOfTheirOwnAtEveryOpening) {
    char szClass[64] = {};
    DialogScript script;
    script.Do([&](HWND hDialog) {
        GetClassNameA(GetDlgItem(hDialog, IDC_OPERATOR), szClass, sizeof szClass);
        EXPECT_EQ(TextOf(GetDlgItem(hDialog, IDC_CONSTANT)), "Constants");
    });
    Run(script);
    EXPECT_STREQ(szClass, "ZXADLG_NoListCombo_PictureWnd32");
    // A second opening makes class and menus anew.
    DialogScript again;
    again.MouseClick(IDC_FUNCTION).PickFromMenu("sin()");
    Run(again);
}

TEST_F(PickControls, TheirMenusGoWithTheObject) {
    HMENU hMenu = nullptr;
    {
        Picks inner;
        DialogScript script;
        script
            .Do([&] {
                hMenu = inner.demonstration.Menu();
                EXPECT_TRUE(IsMenu(hMenu));
            })
            .Click(IDCANCEL);
        script.Run([&] {
            return inner.DoModal(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_ARITHMETIC_TRACES),
                                 nullptr);
        });
    }
    EXPECT_FALSE(IsMenu(hMenu));
}

// --- The expression box --------------------------------------------------------------------------

TEST_F(PickControls, AFunctionReplacesTheSelectionAndLeavesTheCaretInside) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "a+bcd+e").Do([this] {
        dialog.box.Select(2, 5);
        dialog.box.InsertFunction("sin()");
        EXPECT_EQ(TextWithCaret(), "a+sin(|)+e");
        EXPECT_EQ(GetFocus(), dialog.box.Edit());
        dialog.box.InsertOperator('-');
        EXPECT_EQ(TextWithCaret(), "a+sin(-|)+e");
        dialog.box.InsertConstant("_pi");
        EXPECT_EQ(TextWithCaret(), "a+sin(-_pi|)+e");
    });
    Run(script);
}

TEST_F(PickControls, TheSelectionIsKeptWhileAnotherControlHasTheFocus) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "a+bcd+e")
        .Do([this] { dialog.box.Select(2, 5); })
        .Focus(IDC_EXPRESSION_CLEAR)
        .Do([this] {
            EXPECT_EQ(TextWithCaret(), "a+[bcd]+e");
            dialog.box.InsertText("x");
            EXPECT_EQ(TextWithCaret(), "a+x|+e");
        });
    Run(script);
}

TEST_F(PickControls, ABoxThatNeverHadTheFocusIsWrittenAtItsEnd) {
    dialog.nFocus = IDC_EXPRESSION_CLEAR;
    DialogScript script;
    script.Do([this] {
        SetWindowTextA(dialog.box.GetHandle(), "a+");
        EXPECT_EQ(TextWithCaret(), "a+|");
    });
    script.Do([this] {
        dialog.box.InsertText("b");
        EXPECT_EQ(TextWithCaret(), "a+b|");
    });
    Run(script);
}

TEST_F(PickControls, ALeftSideIsAssignedInTheBox) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "t1 = sin(x)").Do([this] {
        dialog.box.Select(0, 0);
        dialog.box.AssignLeftSide("t2", true);
        EXPECT_EQ(TextWithCaret(), "t2 = |sin(x)");
        EXPECT_EQ(dialog.box.FindLastEquals(), 3);
        EXPECT_FALSE(dialog.box.EndsWithOperator());
        dialog.box.SetText("");
        dialog.box.AssignLeftSide("t1", true);
        EXPECT_EQ(TextWithCaret(), "t1 = |");
        dialog.box.AssignLeftSide("t2", true);
        dialog.box.InsertOperator('+');
        EXPECT_EQ(TextWithCaret(), "t1 = t2+|");
        EXPECT_TRUE(dialog.box.EndsWithOperator());
    });
    Run(script);
}

TEST_F(PickControls, TheEditUndoesWhatWasTyped) {
    DialogScript script;
    script.Type(IDC_EXPRESSION, "abc").Do([this] {
        EXPECT_TRUE(dialog.box.CanUndo());
        dialog.box.Undo();
        EXPECT_NE(dialog.box.GetText(), "abc");
        dialog.box.SetText("new");
        EXPECT_FALSE(dialog.box.CanUndo());
        dialog.box.Undo();
        EXPECT_EQ(dialog.box.GetText(), "new");
    });
    Run(script);
}

TEST_F(PickControls, TheEditIsSubclassedUnderItsProperty) {
    HWND hEdit = nullptr;
    DialogScript script;
    script.Do([&] {
        hEdit = dialog.box.Edit();
        EXPECT_NE(GetPropA(hEdit, "COB_OldWndProc"), nullptr);
        EXPECT_NE(GetPropA(hEdit, "ADM_OldWndProc"), nullptr);
    });
    Run(script);
    EXPECT_FALSE(IsWindow(hEdit));
    // Both are there again at the next opening.
    DialogScript again;
    again.Do([&] { EXPECT_NE(GetPropA(dialog.box.Edit(), "COB_OldWndProc"), nullptr); });
    Run(again);
}

TEST_F(PickControls, WithoutThePropertyTheEditStaysAsItWas) {
    dialog.box.bRefuses = true;
    DialogScript script;
    script.Do([&] {
        EXPECT_NE(dialog.box.Edit(), nullptr);
        EXPECT_EQ(GetPropA(dialog.box.Edit(), "COB_OldWndProc"), nullptr);
    });
    script.Type(IDC_EXPRESSION, "abc").Focus(IDC_EXPRESSION_CLEAR).Do([&] {
        dialog.box.InsertText("d");
        EXPECT_EQ(dialog.box.GetText(), "abcd");
    });
    Run(script);
}

TEST_F(PickControls, LongTextsAndAnyBytesStayWhole) {
    const std::string sLong(4000, 'A');
    DialogScript script;
    script.Do([&] {
        dialog.box.SetText(sLong);
        EXPECT_EQ(dialog.box.GetText(), sLong);
        dialog.box.SetCaretToEnd();
        dialog.box.InsertText("\xC4\xFF%s");
        EXPECT_EQ(dialog.box.GetText(), sLong + "\xC4\xFF%s");
    });
    Run(script);
}

// --- Histories -----------------------------------------------------------------------------------

class History : public PickControls {
  protected:
    ~History() override { SetUseProfileFile(usedFile); }
    const char* Profile() const { return store.ProfileFile().c_str(); }
    std::string Stored(const char* szSection, const std::string& sKey) const {
        char szText[300] = "";
        return ReadString(szSection, sKey.c_str(), "", szText, sizeof szText, Profile()) ? szText
                                                                                         : "(none)";
    }
    static std::string Key(const char* szName, int n) { return szName + std::to_string(n); }

    const ScratchStore store;
    const bool usedFile = SetUseProfileFile(true);
};

TEST_F(History, OfFortyOneEntriesStoresTheFirstForty) {
    std::vector<std::string> vLines;
    for (int i = 0; i < 41; ++i) vLines.push_back("line " + std::to_string(i));
    SaveHistory(Profile(), HistoryKind::kTraceExpression, vLines);
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression0"), "line 0");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression39"), "line 39");
    EXPECT_EQ(Stored("TraceArithmetic", "TraceExpression40"), "(none)");
    vLines.resize(40);
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kTraceExpression), vLines);
    // What else is in the store is not read.
    WriteString("TraceArithmetic", "TraceExpression40", "more", Profile());
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kTraceExpression).size(), 40u);
}

TEST_F(History, EndsWithOneEmptyLine) {
    SaveHistory(Profile(), HistoryKind::kColumnExpression, {"a", "b", "c"});
    SaveHistory(Profile(), HistoryKind::kColumnExpression, {"d", "e"});
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression0"), "d");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression1"), "e");
    EXPECT_EQ(Stored("ColumnArithmetic", "ColumnExpression2"), "");
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kColumnExpression),
              (std::vector<std::string>{"d", "e"}));
}

TEST_F(History, OfTitlesEndsAtItsOwnFirstEmptyLine) {
    WriteString("ColumnArithmetic", "ColumnExpression0", "a", Profile());
    WriteString("ColumnArithmetic", "ColumnExpression1", "b", Profile());
    WriteString("ColumnArithmetic", "ColumnDescription0", "first", Profile());
    WriteString("ColumnArithmetic", "ColumnDescription2", "third", Profile());
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kColumnTitle), std::vector<std::string>{"first"});
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kColumnExpression).size(), 2u);
}

TEST_F(History, CutsALineAtTwoHundredAndFiftyFiveCharacters) {
    SaveHistory(Profile(), HistoryKind::kTraceExpression, {std::string(300, 'x')});
    EXPECT_EQ(LoadHistory(Profile(), HistoryKind::kTraceExpression),
              std::vector<std::string>{std::string(255, 'x')});
}

TEST_F(History, WithoutAStoreSaysSoAndIsNoText) {
    DialogScript script;
    script
        .Do([this] {
            dialog.box.LoadList(nullptr, HistoryKind::kTraceExpression);
            EXPECT_TRUE(dialog.box.IsListEmpty());
            EXPECT_EQ(dialog.box.GetText(), "");
            dialog.box.SetText("mine");
            dialog.box.PutOnTop("never");
        })
        .ExpectItems(IDC_EXPRESSION, {"Not available"})
        .Choose(IDC_EXPRESSION, 0)
        .WaitUntil([this] { return dialog.box.GetText() == "mine"; })
        .Do([this] {
            dialog.box.SaveList(Profile(), HistoryKind::kTraceExpression);
            EXPECT_EQ(store.ReadFile(), "");
        });
    Run(script);
}

TEST_F(History, ShowsItsFirstEntryWithTheCaretBehindIt) {
    SaveHistory(Profile(), HistoryKind::kTraceExpression, {"t1=t2", "t3=t4"});
    DialogScript script;
    script
        .Do([this] {
            dialog.box.LoadList(Profile(), HistoryKind::kTraceExpression);
            EXPECT_EQ(TextWithCaret(), "t1=t2|");
        })
        .ExpectItems(IDC_EXPRESSION, {"t1=t2", "t3=t4"});
    Run(script);
}

// The same text without regard to case is one entry, on top and in its new spelling.
TEST_F(History, PutsATextOnTopOnce) {
    DialogScript script;
    script
        .Do([this] {
            for (const char* szText : {"a", "b", "c"}) dialog.box.PutOnTop(szText);
            dialog.box.PutOnTop("A");
        })
        .ExpectItems(IDC_EXPRESSION, {"A", "c", "b"});
    Run(script);
}

}  // namespace
