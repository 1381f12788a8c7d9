// The edit control: several lines, wrapping, scrolling.
#include "edit_fixture.h"

namespace {

constexpr char kChanged[] = "EN_UPDATE EN_CHANGE";

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

TEST_F(EditTest, UpAndDownAtTheEdgesEndASelection) {
    MakeLines();
    SetText("same line\r\nsame line");
    Select(2, 5);
    Key(VK_UP);
    EXPECT_EQ("5..5", Selection());
    Select(13, 16);
    Key(VK_DOWN);
    EXPECT_EQ("16..16", Selection());
    Select(13, 16);
    Key(VK_DOWN, true);
    EXPECT_EQ("13..16", Selection());
}

TEST_F(EditTest, ALongTextThatItIsMadeWithStartsAtItsBeginning) {
    std::string text(300, 'w');
    text += "\r\nend";
    Make("Edit", ES_MULTILINE | ES_AUTOVSCROLL | ES_AUTOHSCROLL, 150, 84, text.c_str());
    EXPECT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
    const auto x = static_cast<SHORT>(LOWORD(Send(EM_POSFROMCHAR, 0)));
    EXPECT_GE(x, 0);
    EXPECT_LT(x, 20);
    EXPECT_EQ("0..0", Selection());
}

TEST_F(EditTest, LinesThatDoNotFitAreRefusedWhole) {
    MakeLines(ES_AUTOHSCROLL, 150, 40);
    SetText("one");
    Select(1, 1);
    SendText(EM_REPLACESEL, TRUE, "a\r\nb\r\nc\r\nd\r\ne\r\nf");
    EXPECT_EQ("one", Text());
    EXPECT_EQ("1..1", Selection());
    EXPECT_EQ("EN_MAXTEXT EN_UPDATE EN_CHANGE", Events());
    SendText(EM_REPLACESEL, TRUE, "x");
    EXPECT_EQ("oxne", Text());
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
