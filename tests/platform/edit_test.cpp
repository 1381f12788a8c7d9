// The edit control: what it tells of changes, selection, limit, undo, keys, mouse and lines.
#include <cstring>
#include <string>

#include "control_fixture.h"

namespace {

constexpr char kChanged[] = "EN_UPDATE EN_CHANGE";

class EditTest : public ControlTest {
  protected:
    HWND MakeLine(DWORD style = ES_AUTOHSCROLL, const char* text = "") {
        return Make("Edit", style, 150, 22, text);
    }
    HWND MakeLines(DWORD style = ES_AUTOVSCROLL | ES_AUTOHSCROLL, int width = 150,
                   int height = 84) {
        return Make("Edit", style | ES_MULTILINE, width, height);
    }
    void SetText(const std::string& text) {
        SetWindowTextA(m_control, text.c_str());
        Events();
    }
    void Select(int start, int end) { Send(EM_SETSEL, static_cast<WPARAM>(start), end); }
    // "start..end"
    std::string Selection() {
        DWORD start = 0, end = 0;
        Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
        return std::to_string(start) + ".." + std::to_string(end);
    }
    std::string LineText(int line) {
        char buffer[100] = {};
        const WORD room = 99;
        std::memcpy(buffer, &room, sizeof(room));
        const LRESULT length =
            Send(EM_GETLINE, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(buffer));
        return std::string(buffer, static_cast<size_t>(length));
    }
    LPARAM PointOf(int index) {
        const LRESULT point = Send(EM_POSFROMCHAR, static_cast<WPARAM>(index), 0);
        return MAKELPARAM(LOWORD(point) + 1, HIWORD(point) + 4);
    }
    void Click(int index, WPARAM keys = 0) {
        Send(WM_LBUTTONDOWN, MK_LBUTTON | keys, PointOf(index));
        Send(WM_LBUTTONUP, keys, PointOf(index));
    }
};

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

TEST_F(EditTest, DoubleClickSelectsAWordWithTheSpacesAfterIt) {
    MakeLine(ES_AUTOHSCROLL, "one two  three");
    Click(5);
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(5));
    Send(WM_LBUTTONUP, 0, PointOf(5));
    EXPECT_EQ("4..9", Selection());
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

TEST_F(EditTest, LinesAreCountedAndRead) {
    MakeLines();
    SetText("hello\r\nworld\nlf\rcr\r\r\nsoft\r\n");
    EXPECT_EQ(5, Send(EM_GETLINECOUNT));
    EXPECT_EQ("hello", LineText(0));
    EXPECT_EQ("world", LineText(1));
    EXPECT_EQ("lf\rcr", LineText(2));
    EXPECT_EQ("soft", LineText(3));
    EXPECT_EQ("", LineText(4));
    EXPECT_EQ("", LineText(5));
    EXPECT_EQ(7, Send(EM_LINEINDEX, 1));
    EXPECT_EQ(21, Send(EM_LINEINDEX, 3));
    EXPECT_EQ(27, Send(EM_LINEINDEX, 4));
    EXPECT_EQ(-1, static_cast<int>(Send(EM_LINEINDEX, 5)));
    EXPECT_EQ(5, Send(EM_LINELENGTH, 8));
    EXPECT_EQ(0, Send(EM_LINELENGTH, 100));
    EXPECT_EQ(1, Send(EM_LINEFROMCHAR, 8));
    EXPECT_EQ(4, Send(EM_LINEFROMCHAR, 1000));
}

TEST_F(EditTest, MinusOneMeansTheSelectionsLines) {
    MakeLines();
    SetText("first line\r\n2nd\r\nthird one");
    Select(3, 18);
    EXPECT_EQ(3 + 8, Send(EM_LINELENGTH, static_cast<WPARAM>(-1)));
    EXPECT_EQ(0, Send(EM_LINEFROMCHAR, static_cast<WPARAM>(-1)));
    EXPECT_EQ(17, Send(EM_LINEINDEX, static_cast<WPARAM>(-1)));
}

TEST_F(EditTest, OneLineHasOneLine) {
    MakeLine(ES_AUTOHSCROLL, "abc");
    EXPECT_EQ(1, Send(EM_GETLINECOUNT));
    EXPECT_EQ(0, Send(EM_LINEINDEX, 1));
    EXPECT_EQ(3, Send(EM_LINELENGTH, 50));
    EXPECT_EQ("abc", LineText(0));
    char small[4];
    const WORD room = 2;
    std::memcpy(small, &room, sizeof(room));
    small[2] = '#';
    EXPECT_EQ(2, Send(EM_GETLINE, 0, reinterpret_cast<LPARAM>(small)));
    EXPECT_EQ("ab#", std::string(small, 3)) << "a full buffer gets no closing zero";
}

TEST_F(EditTest, EnterAndTabGoIntoSeveralLines) {
    MakeLines(ES_AUTOVSCROLL | ES_AUTOHSCROLL | ES_WANTRETURN);
    Type("a\rb\tc");
    EXPECT_EQ("a\r\nb\tc", Text());
}

TEST_F(EditTest, ALineEndIsOneStepAndOneDeletion) {
    MakeLines();
    SetText("ab\r\ncd");
    Select(2, 2);
    Key(VK_RIGHT);
    EXPECT_EQ("4..4", Selection());
    Key(VK_LEFT);
    EXPECT_EQ("2..2", Selection());
    Key(VK_DELETE);
    EXPECT_EQ("abcd", Text());
    Send(EM_UNDO);
    EXPECT_EQ("ab\r\ncd", Text());
    Select(4, 4);
    Type("\b");
    EXPECT_EQ("abcd", Text());
}

TEST_F(EditTest, LineKeysInSeveralLines) {
    MakeLines();
    SetText("same line\r\nsame line\r\nsame line");
    Select(4, 4);
    Key(VK_DOWN);
    EXPECT_EQ("15..15", Selection());
    Key(VK_DOWN, true);
    EXPECT_EQ("15..26", Selection());
    Key(VK_UP);
    EXPECT_EQ("15..15", Selection());
    Key(VK_HOME);
    EXPECT_EQ("11..11", Selection());
    Key(VK_END);
    EXPECT_EQ("20..20", Selection());
    Key(VK_END, false, true);
    EXPECT_EQ("31..31", Selection());
    Key(VK_HOME, false, true);
    EXPECT_EQ("0..0", Selection());
    Key(VK_UP);
    EXPECT_EQ("0..0", Selection());
}

TEST_F(EditTest, ControlArrowsStopAtLineEnds) {
    MakeLines();
    SetText("one two\r\nsix");
    for (const char* wanted : {"4..4", "7..7", "9..9", "12..12"}) {
        Key(VK_RIGHT, false, true);
        EXPECT_EQ(wanted, Selection());
    }
    for (const char* wanted : {"9..9", "7..7", "4..4", "0..0"}) {
        Key(VK_LEFT, false, true);
        EXPECT_EQ(wanted, Selection());
    }
}

TEST_F(EditTest, ScrollingIsToldAndCut) {
    MakeLines();
    std::string text;
    for (int i = 0; i < 50; ++i) text += "line " + std::to_string(i) + "\r\n";
    SetText(text);
    EXPECT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
    EXPECT_EQ(TRUE, Send(EM_LINESCROLL, 0, 10));
    EXPECT_EQ("EN_VSCROLL", Events());
    EXPECT_EQ(10, Send(EM_GETFIRSTVISIBLELINE));
    EXPECT_EQ(MAKELONG(-1, TRUE), Send(EM_SCROLL, SB_LINEUP));
    EXPECT_EQ(9, Send(EM_GETFIRSTVISIBLELINE));
    Send(EM_SCROLLCARET);
    EXPECT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
    const int start = static_cast<int>(Send(EM_LINEINDEX, 30));
    Select(start, start);
    const LRESULT first = Send(EM_GETFIRSTVISIBLELINE);
    EXPECT_LT(0, first);
    EXPECT_GE(30, first);
    EXPECT_LT(30 - 8, first);
}

TEST_F(EditTest, LinesWrapAtWords) {
    MakeLines(ES_AUTOVSCROLL, 60, 80);
    SetText("WWWW WWWW WWWW\r\nii");
    ASSERT_EQ(4, Send(EM_GETLINECOUNT));
    EXPECT_EQ("WWWW ", LineText(0));
    EXPECT_EQ("WWWW ", LineText(1));
    EXPECT_EQ("WWWW", LineText(2));
    EXPECT_EQ("ii", LineText(3));
    EXPECT_EQ(5, Send(EM_LINEINDEX, 1));
    EXPECT_EQ(1, Send(EM_LINEFROMCHAR, 5));
    EXPECT_EQ("WWWW WWWW WWWW\r\nii", Text());
}

TEST_F(EditTest, AWordWiderThanTheControlIsBrokenInside) {
    MakeLines(ES_AUTOVSCROLL, 60, 80);
    SetText("WWWWWWWWWWWWWWWWWWWWWWWW");
    EXPECT_LT(2, Send(EM_GETLINECOUNT));
    std::string joined;
    for (int i = 0; i < Send(EM_GETLINECOUNT); ++i) joined += LineText(i);
    EXPECT_EQ("WWWWWWWWWWWWWWWWWWWWWWWW", joined);
}

TEST_F(EditTest, WithoutScrollingNoMoreLinesThanFit) {
    MakeLines(ES_WANTRETURN | ES_AUTOHSCROLL, 60, 32);
    Type("a\ra\ra\ra");
    EXPECT_EQ("a\r\naaa", Text());
    EXPECT_NE(std::string::npos, Events().find("EN_MAXTEXT"));
}

TEST_F(EditTest, PlacesAndCharactersMatch) {
    MakeLines();
    SetText("first\r\nsecond");
    for (int index : {0, 2, 7, 9}) {
        const LRESULT found = Send(EM_CHARFROMPOS, 0, PointOf(index));
        EXPECT_EQ(index, LOWORD(found));
        EXPECT_EQ(index < 7 ? 0 : 1, HIWORD(found));
    }
    EXPECT_EQ(-1, static_cast<int>(Send(EM_CHARFROMPOS, 0, MAKELPARAM(500, 5))));
    EXPECT_EQ(-1, static_cast<int>(Send(EM_POSFROMCHAR, 1000)));
}

TEST_F(EditTest, ALongTextIsKeptWhole) {
    MakeLine();
    const std::string text(70000, 'x');
    SetText(text);
    EXPECT_EQ(70000, Send(WM_GETTEXTLENGTH));
    EXPECT_EQ(text, Text());
}

TEST_F(EditTest, PostedCharactersAreTyped) {
    HWND edit = MakeLine();
    SetFocus(edit);
    for (char c : std::string("12.5")) PostMessageA(edit, WM_CHAR, static_cast<WPARAM>(c), 1);
    test_support::PumpMessages();
    EXPECT_EQ("12.5", Text());
}

TEST_F(EditTest, AParentMayDestroyItFromANotification) {
    HWND edit = MakeLine();
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE) DestroyWindow(edit);
        return false;
    });
    Type("x");
    EXPECT_FALSE(IsWindow(edit));
}

}  // namespace
