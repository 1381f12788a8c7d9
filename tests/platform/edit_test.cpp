// The edit control: what it tells of changes, selection, limit, undo, keys, mouse and lines.
#include <vector>

#include "edit_fixture.h"

namespace {

constexpr char kChanged[] = "EN_UPDATE EN_CHANGE";

TEST_F(EditTest, SettingTheTextOfOneLineIsTold) {
    MakeLine();
    EXPECT_EQ(TRUE, SetWindowTextA(m_control, "hello"));
    EXPECT_EQ(kChanged, Events());
    SetWindowTextA(m_control, "hello");
    EXPECT_EQ(kChanged, Events()) << "the same text again";
    EXPECT_EQ("hello", Text());
    EXPECT_EQ("0..0", Selection());
}

TEST_F(EditTest, SettingTheTextOfSeveralLinesIsNotTold) {
    MakeLines();
    SetWindowTextA(m_control, "hello\r\nworld");
    EXPECT_EQ("", Events());
    EXPECT_EQ("hello\r\nworld", Text());
}

TEST_F(EditTest, TypingIsToldOncePerCharacter) {
    MakeLine();
    Type("ab");
    EXPECT_EQ("EN_UPDATE EN_CHANGE EN_UPDATE EN_CHANGE", Events());
    EXPECT_EQ("ab", Text());
    EXPECT_EQ("2..2", Selection());
}

TEST_F(EditTest, UpdateComesWithTheNewTextAlready) {
    MakeLine();
    std::string seen;
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_UPDATE) seen = Text();
        return false;
    });
    Type("q");
    EXPECT_EQ("q", seen);
}

TEST_F(EditTest, OtherSettersAreNotTold) {
    MakeLine(ES_AUTOHSCROLL, "text");
    Select(0, 2);
    Send(EM_SETMODIFY, TRUE);
    Send(EM_LIMITTEXT, 10);
    Send(EM_SETREADONLY, TRUE);
    Send(EM_SETREADONLY, FALSE);
    Send(EM_EMPTYUNDOBUFFER);
    EnableWindow(m_control, FALSE);
    EXPECT_EQ("", Events());
}

TEST_F(EditTest, ReplacingTheSelectionIsTold) {
    MakeLine(ES_AUTOHSCROLL, "one two");
    Select(0, 3);
    SendText(EM_REPLACESEL, TRUE, "three");
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("three two", Text());
    EXPECT_EQ("5..5", Selection());
    SendText(EM_REPLACESEL, TRUE, "");
    EXPECT_EQ("", Events()) << "nothing for nothing is no change";
}

TEST_F(EditTest, FocusIsTold) {
    HWND edit = MakeLine();
    SetFocus(edit);
    EXPECT_EQ("EN_SETFOCUS", Events());
    SetFocus(m_window);
    EXPECT_EQ("EN_KILLFOCUS", Events());
}

TEST_F(EditTest, ModifyIsSetByTypingAndClearedBySettingTheText) {
    MakeLine();
    EXPECT_EQ(0, Send(EM_GETMODIFY));
    Type("a");
    EXPECT_EQ(1, Send(EM_GETMODIFY));
    SetText("b");
    EXPECT_EQ(0, Send(EM_GETMODIFY));
    Send(EM_SETMODIFY, TRUE);
    EXPECT_EQ(1, Send(EM_GETMODIFY));
}

TEST_F(EditTest, SelectionIsOrderedAndCut) {
    MakeLine(ES_AUTOHSCROLL, "longer than five");
    Select(3, 1);
    EXPECT_EQ("1..3", Selection());
    EXPECT_EQ(MAKELONG(1, 3), Send(EM_GETSEL));
    Select(0, -1);
    EXPECT_EQ("0..16", Selection());
    Select(-1, 0);
    EXPECT_EQ("16..16", Selection()) << "-1 takes the selection away and keeps the caret";
    Select(100, 200);
    EXPECT_EQ("16..16", Selection());
    Select(2, 1000);
    EXPECT_EQ("2..16", Selection());
}

TEST_F(EditTest, TheCaretIsAtTheEndThatWasGivenLast) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    Select(3, 1);
    Key(VK_RIGHT, true);
    EXPECT_EQ("2..3", Selection());
}

TEST_F(EditTest, TheLimitHoldsForTyping) {
    MakeLine();
    EXPECT_EQ(30000, Send(EM_GETLIMITTEXT));
    Send(EM_LIMITTEXT, 3);
    EXPECT_EQ(3, Send(EM_GETLIMITTEXT));
    Type("abc");
    Events();
    Type("d");
    EXPECT_EQ("EN_MAXTEXT EN_UPDATE EN_CHANGE", Events());
    EXPECT_EQ("abc", Text());
}

TEST_F(EditTest, TheLimitCutsReplacement) {
    MakeLine();
    Send(EM_LIMITTEXT, 5);
    SendText(EM_REPLACESEL, TRUE, "abcdefgh");
    EXPECT_EQ("EN_MAXTEXT EN_UPDATE EN_CHANGE", Events());
    EXPECT_EQ("abcde", Text());
}

TEST_F(EditTest, TheLimitDoesNotHoldForSettingTheText) {
    MakeLine();
    Send(EM_LIMITTEXT, 5);
    SetWindowTextA(m_control, "longer than five");
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("longer than five", Text());
    Type("q");
    EXPECT_EQ("EN_MAXTEXT EN_UPDATE EN_CHANGE", Events());
    EXPECT_EQ("longer than five", Text());
}

TEST_F(EditTest, ALimitOfZeroIsTheLargest) {
    MakeLine();
    Send(EM_LIMITTEXT, 0);
    EXPECT_EQ(0x7FFFFFFE, Send(EM_GETLIMITTEXT));
}

TEST_F(EditTest, UndoTakesTypingBackAndBringsItAgain) {
    MakeLine();
    EXPECT_EQ(0, Send(EM_CANUNDO));
    Type("abc");
    EXPECT_EQ(1, Send(EM_CANUNDO));
    Events();
    EXPECT_EQ(1, Send(EM_UNDO));
    EXPECT_TRUE(Events().starts_with(kChanged));
    EXPECT_EQ("", Text());
    EXPECT_EQ(1, Send(EM_CANUNDO));
    Send(EM_UNDO);
    EXPECT_EQ("abc", Text());
    EXPECT_EQ("0..3", Selection());
}

TEST_F(EditTest, UndoBringsDeletedTextBack) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    Select(2, 2);
    Key(VK_DELETE);
    Type("\b");
    EXPECT_EQ("adef", Text());
    Send(EM_UNDO);
    EXPECT_EQ("abcdef", Text());
    EXPECT_EQ("1..3", Selection());
}

TEST_F(EditTest, UndoHasOneLevel) {
    MakeLine(ES_AUTOHSCROLL, "0123456789");
    Select(1, 2);
    Type("\b");
    Select(5, 6);
    Type("\b");
    Send(EM_UNDO);
    EXPECT_EQ("023456789", Text());
    Send(EM_UNDO);
    EXPECT_EQ("02345789", Text()) << "the second undo undoes the first";
}

TEST_F(EditTest, SettingTheTextForgetsUndo) {
    MakeLine();
    Type("abc");
    SetText("x");
    EXPECT_EQ(0, Send(EM_CANUNDO));
    Type("y");
    Send(EM_EMPTYUNDOBUFFER);
    EXPECT_EQ(0, Send(EM_CANUNDO));
    SendText(EM_REPLACESEL, FALSE, "z");
    EXPECT_EQ(0, Send(EM_CANUNDO));
}

TEST_F(EditTest, ReadOnlyRefusesTheUserOnly) {
    MakeLine(ES_AUTOHSCROLL, "abc");
    EXPECT_EQ(1, Send(EM_SETREADONLY, TRUE));
    EXPECT_EQ(ES_READONLY, GetWindowLongA(m_control, GWL_STYLE) & ES_READONLY);
    Type("x\b");
    Key(VK_DELETE);
    Select(0, 1);
    Send(WM_CLEAR);
    EXPECT_EQ("", Events());
    EXPECT_EQ("abc", Text());
    SendText(EM_REPLACESEL, TRUE, "R");
    EXPECT_EQ("Rbc", Text());
    SetText("set");
    EXPECT_EQ("set", Text());
}

TEST_F(EditTest, NumbersOnlyRefusesOtherKeys) {
    MakeLine(ES_AUTOHSCROLL | ES_NUMBER);
    Type("a1-2.3");
    EXPECT_EQ("123", Text());
    SetText("free");
    EXPECT_EQ("free", Text());
}

TEST_F(EditTest, UpperCaseChangesWhatComesIn) {
    MakeLine(ES_AUTOHSCROLL | ES_UPPERCASE, "init");
    EXPECT_EQ("INIT", Text());
    SetText("");
    Type("ab\xE9");
    EXPECT_EQ("AB\xC9", Text());
    SetText("x\xE8y");
    EXPECT_EQ("X\xC8Y", Text());
}

TEST_F(EditTest, LowerCaseChangesWhatComesIn) {
    MakeLine(ES_AUTOHSCROLL | ES_LOWERCASE, "INIT\xC9");
    EXPECT_EQ("init\xE9", Text());
}

TEST_F(EditTest, BytesAbove127Survive) {
    const std::string text =
        "10 \xB5s at 20 \xB0"
        "C \x80 \x9F \xFF";
    MakeLine(ES_AUTOHSCROLL, text.c_str());
    EXPECT_EQ(text, Text());
    EXPECT_EQ(static_cast<LRESULT>(text.size()), Send(WM_GETTEXTLENGTH));
    SetText("");
    Type("\xB5\xDF");
    EXPECT_EQ("\xB5\xDF", Text());
}

TEST_F(EditTest, GettingTheTextIsCutToTheRoom) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    char buffer[8];
    std::memset(buffer, '#', sizeof(buffer));
    EXPECT_EQ(3, Send(WM_GETTEXT, 4, reinterpret_cast<LPARAM>(buffer)));
    EXPECT_STREQ("abc", buffer);
    EXPECT_EQ('#', buffer[4]);
}

TEST_F(EditTest, BackspaceAndDelete) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    Type("\b");
    EXPECT_EQ("", Events()) << "nothing to the left";
    Key(VK_DELETE);
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("bcdef", Text());
    Select(2, 4);
    Type("\b");
    EXPECT_EQ("bcf", Text());
    Key(VK_DELETE, true);
    EXPECT_EQ("bf", Text()) << "Shift+Delete takes the character to the left";
    SetText("abcdef");
    Select(1, 1);
    Key(VK_DELETE, false, true);
    EXPECT_EQ("a", Text()) << "Ctrl+Delete takes the rest of the line";
}

TEST_F(EditTest, TypingReplacesTheSelection) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    Select(0, -1);
    Type("x");
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("x", Text());
}

TEST_F(EditTest, OneLineTakesNoLineEndsAndTabs) {
    MakeLine(ES_AUTOHSCROLL, "abc");
    Type("\r\t\x1B");
    EXPECT_EQ("", Events());
    EXPECT_EQ("abc", Text());
}

TEST_F(EditTest, ArrowsMoveTheCaret) {
    MakeLine(ES_AUTOHSCROLL, "abcdef");
    Key(VK_END);
    EXPECT_EQ("6..6", Selection());
    Key(VK_LEFT, true);
    EXPECT_EQ("5..6", Selection());
    Key(VK_HOME, true);
    EXPECT_EQ("0..6", Selection());
    Key(VK_RIGHT);
    EXPECT_EQ("1..1", Selection());
    Key(VK_DOWN);
    EXPECT_EQ("2..2", Selection());
    Key(VK_UP);
    EXPECT_EQ("1..1", Selection());
    EXPECT_EQ("", Events());
}

TEST_F(EditTest, ControlArrowsMoveByWords) {
    MakeLine(ES_AUTOHSCROLL, "one two  three.four");
    for (const char* wanted : {"4..4", "9..9", "19..19", "19..19"}) {
        Key(VK_RIGHT, false, true);
        EXPECT_EQ(wanted, Selection());
    }
    for (const char* wanted : {"9..9", "4..4", "0..0", "0..0"}) {
        Key(VK_LEFT, false, true);
        EXPECT_EQ(wanted, Selection());
    }
}

TEST_F(EditTest, ANumberWithItsSignsIsOneWord) {
    struct Row {
        const char* text;
        std::vector<int> stops;  // of Ctrl+Right from the start
    };
    const Row rows[] = {
        {"-12.5", {5}},
        {"1e-3 x", {5, 6}},
        {"1.5e-3,2,3", {10}},
        {"1..5,18,25..40", {14}},
        {"a-b", {2, 3}},
        {"3 - 4", {2, 4, 5}},
        {"a -1", {2, 4}},
        {"10%", {3}},
        {"one, two; (three)", {5, 10, 17}},
        {"a , b", {4, 5}},
        {"C:\\data\\my file-1.txt", {2, 7, 11, 21}},
        {"/home/a.b/c-d", {1, 6, 10, 12, 13}},
        {"a/b/5", {2, 5}},
        {"{a}b", {3, 4}},
        {"a|b!c", {2, 4, 5}},
    };
    MakeLine(ES_AUTOHSCROLL);
    for (const Row& row : rows) {
        SCOPED_TRACE(row.text);
        SetText(row.text);
        Select(0, 0);
        for (int stop : row.stops) {
            Key(VK_RIGHT, false, true);
            EXPECT_EQ(std::to_string(stop) + ".." + std::to_string(stop), Selection());
        }
    }
}

TEST_F(EditTest, ClickAndDragSelect) {
    HWND edit = MakeLine(ES_AUTOHSCROLL, "one two  three");
    Click(5);
    EXPECT_EQ("5..5", Selection());
    EXPECT_EQ(edit, GetFocus());
    Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOf(1));
    EXPECT_EQ(edit, GetCapture());
    Send(WM_MOUSEMOVE, MK_LBUTTON, PointOf(5));
    EXPECT_EQ("1..5", Selection());
    Send(WM_LBUTTONUP, 0, PointOf(5));
    EXPECT_EQ(nullptr, GetCapture());
    Click(8, MK_SHIFT);
    EXPECT_EQ("1..8", Selection());
}

// A parent that selects the text when its field takes the focus: after a click all of it stays
// selected, so that typing replaces it.
TEST_F(EditTest, AClickThatBringsTheFocusLeavesTheSelectionToTheParent) {
    MakeLine(ES_AUTOHSCROLL, "one two  three");
    const HWND other =
        m_window.Add("Edit", "", 77, WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL, 10, 150);
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_SETFOCUS)
            SendMessageA(m_control, EM_SETSEL, 0, -1);
        return false;
    });
    SetFocus(other);
    Click(5);
    EXPECT_EQ("0..14", Selection());
    Type("7");
    EXPECT_EQ("7", Text());
    // With the focus there already a click sets the caret.
    SetWindowTextA(m_control, "one two");
    Click(2);
    EXPECT_EQ("2..2", Selection());
}

TEST_F(EditTest, DoubleClickSelectsAWordWithTheSpacesAfterIt) {
    MakeLine(ES_AUTOHSCROLL, "one two  three");
    Click(5);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(5));
    Send(WM_LBUTTONUP, 0, PointOf(5));
    EXPECT_EQ("4..9", Selection());
}

TEST_F(EditTest, DoubleClickWhereAWordBeginsSelectsTheOneBefore) {
    MakeLine(ES_AUTOHSCROLL, "one two  three");
    const auto twice = [&](int index) {
        Click(index);
        Send(WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(index));
        Send(WM_LBUTTONUP, 0, PointOf(index));
        return Selection();
    };
    EXPECT_EQ("0..4", twice(4));
    EXPECT_EQ("4..9", twice(9));
    EXPECT_EQ("0..4", twice(0));
    MakeLines(ES_AUTOVSCROLL | ES_AUTOHSCROLL);
    SetText("first line\r\n\r\nthird");
    EXPECT_EQ("6..12", twice(12)) << "with the end of its line";
    EXPECT_EQ("12..14", twice(14)) << "an empty line before is a word";
}

TEST_F(EditTest, ClipboardCutsCopiesAndPastes) {
    HWND edit = MakeLine(ES_AUTOHSCROLL, "one two");
    SetFocus(edit);
    Select(0, 3);
    TypeControl(3);
    Select(7, 7);
    Events();
    TypeControl(0x16);
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("one twoone", Text());
    Select(0, 4);
    TypeControl(0x18);
    EXPECT_EQ("twoone", Text());
    Select(6, 6);
    Send(WM_PASTE);
    EXPECT_EQ("twooneone ", Text());
    TypeControl(0x1A);
    EXPECT_EQ("twoone", Text());
}

TEST_F(EditTest, OneLinePastesTheFirstLineWithinTheLimit) {
    HWND edit = MakeLine(ES_AUTOHSCROLL, "line1\r\nline2");
    SetFocus(edit);
    Select(0, -1);
    Send(WM_COPY);
    SetText("");
    Send(WM_PASTE);
    EXPECT_EQ(kChanged, Events());
    EXPECT_EQ("line1", Text());
    Select(0, -1);
    Send(EM_LIMITTEXT, 3);
    Send(WM_PASTE);
    EXPECT_EQ("EN_MAXTEXT EN_UPDATE EN_CHANGE", Events());
    EXPECT_EQ("lin", Text());
}

TEST_F(EditTest, WithoutScrollingOnlyWhatFitsGoesIn) {
    Make("Edit", 0, 40, 22);
    Type("WWWWWWWWWW");
    const std::string text = Text();
    EXPECT_FALSE(text.empty());
    EXPECT_LT(text.size(), 10u);
    EXPECT_NE(std::string::npos, Events().find("EN_MAXTEXT"));
    SetText("WWWWWWWWWW");
    EXPECT_EQ("WWWWWWWWWW", Text());
}

TEST_F(EditTest, PasswordsAreNotCopied) {
    HWND edit = MakeLine(ES_AUTOHSCROLL | ES_PASSWORD, "secret");
    EXPECT_EQ('*', Send(EM_GETPASSWORDCHAR));
    EXPECT_EQ("secret", Text());
    SetFocus(edit);
    Select(0, -1);
    TypeControl(0x18);
    EXPECT_EQ("secret", Text());
    Send(EM_SETPASSWORDCHAR, 0);
    EXPECT_EQ(0, GetWindowLongA(edit, GWL_STYLE) & ES_PASSWORD);
}

TEST_F(EditTest, DialogCodes) {
    MakeLine();
    EXPECT_EQ(DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS, Send(WM_GETDLGCODE));
    MakeLines();
    EXPECT_EQ(DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_WANTARROWS | DLGC_WANTALLKEYS,
              Send(WM_GETDLGCODE));
}

TEST_F(EditTest, OneThatCannotBeEditedTakesTheColoursOfALabel) {
    HWND edit = MakeLine(ES_AUTOHSCROLL, "text");
    const auto colours = [&] {
        m_window.Messages().Take();
        RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const std::string seen = m_window.Messages().Take();
        return std::string(seen.find("WM_CTLCOLOREDIT") != std::string::npos ? "edit" : "") +
               (seen.find("WM_CTLCOLORSTATIC") != std::string::npos ? "static" : "");
    };
    EXPECT_EQ("edit", colours());
    Send(EM_SETREADONLY, TRUE);
    EXPECT_EQ("static", colours());
    Send(EM_SETREADONLY, FALSE);
    EnableWindow(edit, FALSE);
    EXPECT_EQ("static", colours());
}

TEST_F(EditTest, MarginsFollowTheFontAndCanBeSet) {
    MakeLine();
    EXPECT_NE(0, Send(EM_GETMARGINS));
    Send(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(4, 6));
    EXPECT_EQ(MAKELONG(4, 6), Send(EM_GETMARGINS));
    RECT rect = {};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(4, rect.left);
    EXPECT_EQ(144, rect.right);
}

TEST_F(EditTest, APlainBorderBelongsToTheClientArea) {
    HWND edit = MakeLine(ES_AUTOHSCROLL | WS_BORDER);
    EXPECT_EQ(0, GetWindowLongA(edit, GWL_STYLE) & static_cast<LONG>(WS_BORDER));
    RECT client = {};
    GetClientRect(edit, &client);
    EXPECT_EQ(150, client.right);
    EXPECT_EQ(22, client.bottom);
    RECT rect = {};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(2, rect.top);
}

}  // namespace
