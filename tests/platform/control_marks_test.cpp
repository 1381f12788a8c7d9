// Marks and edges of lists, tabs and fields that users meet and tests rarely look at.
#include "edit_fixture.h"
#include "list_box_fixture.h"

namespace {

TEST_F(ListBoxTest, NoRedrawingIsAMarkOfItsOwn) {
    MakeList();
    ShowWindow(m_control, SW_HIDE);
    Send(WM_SETREDRAW, FALSE);
    Send(WM_SETREDRAW, TRUE);
    EXPECT_FALSE(IsWindowVisible(m_control));
    ShowWindow(m_control, SW_SHOW);
    Send(WM_SETREDRAW, FALSE);
    EXPECT_TRUE(IsWindowVisible(m_control));
    Send(WM_SETREDRAW, TRUE);
}

TEST_F(ListBoxTest, SpaceChoosesTheCaretWhereNothingIsChosen) {
    MakeList();
    SetFocus(m_control);
    Events();
    Key(VK_SPACE);
    EXPECT_EQ(0, Current());
    EXPECT_EQ("LBN_SELCHANGE", Events());
    Key(VK_SPACE);
    EXPECT_EQ("", Events());
}

TEST_F(ListBoxTest, WithoutAnAnchorShiftMovesTheCaretAlone) {
    MakeList(LBS_EXTENDEDSEL);
    ASSERT_EQ(-1, Anchor());
    Key(VK_DOWN, true);
    EXPECT_EQ(1, Caret());
    EXPECT_EQ("", Selected());
    Key(VK_DOWN);
    EXPECT_EQ("2", Selected());
}

TEST_F(ListBoxTest, AClickLeavesAnItemThatShowsInPartWhereItIs) {
    Make("ListBox", LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 100, 13 * 4 + 6);
    for (int i = 0; i < 10; ++i) Add("item " + std::to_string(i));
    ASSERT_EQ(0, Top());
    Click(4);
    EXPECT_EQ(4, Current());
    EXPECT_EQ(0, Top());
    Key(VK_DOWN);
    EXPECT_EQ(2, Top()) << "a key brings it up whole";
}

TEST_F(ListBoxTest, TheItemWithTheFocusCountsAsTheChoiceOfSeveral) {
    MakeList(LBS_MULTIPLESEL);
    Send(LB_SETSEL, TRUE, 3);
    Send(LB_SETCARETINDEX, 5);
    EXPECT_EQ(5, Caret());
    EXPECT_EQ(5, Current());
}

class TabMouse : public ControlTest {};

TEST_F(TabMouse, BesideTheTabsItGoesThrough) {
    Make("SysTabControl32", WS_CLIPSIBLINGS, 200, 100);
    char title[] = "one";
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = title;
    Send(TCM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
    const auto hit = [&](int x, int y) {
        POINT at = {x, y};
        ClientToScreen(m_control, &at);
        return Send(WM_NCHITTEST, 0, MAKELPARAM(at.x, at.y));
    };
    EXPECT_EQ(HTCLIENT, hit(10, 8));
    EXPECT_EQ(HTTRANSPARENT, hit(150, 8));
    EXPECT_EQ(HTTRANSPARENT, hit(100, 60));
}

TEST_F(TabMouse, NoRedrawingIsAMarkOfItsOwn) {
    Make("SysTabControl32", WS_CLIPSIBLINGS, 200, 100);
    Send(WM_SETREDRAW, FALSE);
    EXPECT_TRUE(IsWindowVisible(m_control));
    ShowWindow(m_control, SW_HIDE);
    Send(WM_SETREDRAW, TRUE);
    EXPECT_FALSE(IsWindowVisible(m_control));
}

TEST_F(EditTest, AThirdOfTheFieldComesInWhenTheCaretLeavesIt) {
    MakeLine(ES_AUTOHSCROLL, "0123456789012345678901234567890123456789");
    Select(40, 40);
    const LRESULT atEnd = Send(EM_GETFIRSTVISIBLELINE);
    EXPECT_GT(atEnd, 10);
    // Back by one beyond the left edge.
    Select(static_cast<int>(atEnd) - 1, static_cast<int>(atEnd) - 1);
    const LRESULT back = Send(EM_GETFIRSTVISIBLELINE);
    EXPECT_GT(atEnd - back, 6) << "a third of 150 pixels is eight digits";
    EXPECT_LT(atEnd - back, 11);
    Select(0, 0);
    EXPECT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
}

TEST_F(EditTest, WhatIsDeletedToTheEndComesIntoViewFirst) {
    MakeLine(ES_AUTOHSCROLL, "0123456789012345678901234567890123456789");
    Select(10, 10);
    ASSERT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
    Key(VK_DELETE, false, true);
    EXPECT_EQ("0123456789", Text());
    EXPECT_GT(Send(EM_GETFIRSTVISIBLELINE), 0);
}

TEST_F(EditTest, PastingNothingKeepsTheSelection) {
    MakeLine(ES_AUTOHSCROLL, "text");
    ASSERT_TRUE(OpenClipboard(m_control));
    EmptyClipboard();
    CloseClipboard();
    Select(0, 4);
    Send(WM_PASTE);
    EXPECT_EQ("text", Text());
    EXPECT_EQ("", Events());
}

TEST_F(EditTest, UndoingWithNothingToUndoChangesNothing) {
    MakeLine(ES_AUTOHSCROLL, "text");
    SetText("other");
    Send(EM_UNDO);
    KNOWN_GAP(kWine, "an undo of nothing is told as a change", Events().empty());
    EXPECT_EQ("other", Text());
}

TEST_F(EditTest, ATextThatItIsMadeWithIsNoChange) {
    MakeLine(ES_AUTOHSCROLL, "text");
    KNOWN_GAP(kWine, "a text that a field is made with marks it as changed",
              Send(EM_GETMODIFY) == 0);
}

TEST_F(EditTest, ASpaceThatDoesNotFitStaysWithItsWord) {
    MakeLines(ES_AUTOVSCROLL, 60, 80);
    const HDC dc = GetDC(m_control);
    SelectObject(dc, m_font);
    SIZE word = {};
    GetTextExtentPoint32A(dc, "wide", 4, &word);
    ReleaseDC(m_control, dc);
    // As wide as the word and no wider.
    RECT format = {};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&format));
    const int beside = 60 - static_cast<int>(format.right - format.left);
    SetWindowPos(m_control, nullptr, 0, 0, word.cx + beside, 80, SWP_NOMOVE | SWP_NOZORDER);
    SetText("wide wide");
    KNOWN_GAP(kWine, "a word breaks where the space behind it does not fit",
              Send(EM_GETLINECOUNT) == 2);
}

TEST_F(EditTest, TheMouseMeansTheNearestLineThatShows) {
    MakeLines(ES_AUTOVSCROLL | ES_AUTOHSCROLL, 150, 13 * 3 + 6);
    SetText("a\r\nb\r\nc\r\nd\r\ne");
    RECT client = {};
    GetClientRect(m_control, &client);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(40, client.bottom - 1));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(40, client.bottom - 1));
    EXPECT_EQ("7..7", Selection());
    EXPECT_EQ(0, Send(EM_GETFIRSTVISIBLELINE));
}

int LeftOf(LRESULT point) {
    return static_cast<SHORT>(LOWORD(point));
}

TEST_F(EditTest, SeveralLinesScrollNoFurtherThanTheirTextGoes) {
    MakeLines(ES_AUTOVSCROLL | ES_AUTOHSCROLL, 120, 60);
    SetText("one");
    const std::string text = "word word word word word word word word word word";
    Select(0, 3);
    SendText(EM_REPLACESEL, 0, text.c_str());
    RECT format = {};
    Send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&format));
    const LRESULT last = Send(EM_POSFROMCHAR, text.size() - 1);
    EXPECT_LT(format.right - LeftOf(last), 15) << "the last letter stands at the right edge";
    EXPECT_LE(LeftOf(last), format.right);
}

TEST_F(EditTest, AProgramScrollsColumnsPastTheEndOfTheText) {
    MakeLines(ES_AUTOVSCROLL | ES_AUTOHSCROLL, 120, 60);
    SetText("word");
    const int before = LeftOf(Send(EM_POSFROMCHAR, 0));
    Send(EM_LINESCROLL, 1, 0);
    const int letter = before - LeftOf(Send(EM_POSFROMCHAR, 0));
    EXPECT_GT(letter, 3);
    EXPECT_LT(letter, 12);
    Send(EM_LINESCROLL, 1, 0);
    EXPECT_EQ(before - 2 * letter, LeftOf(Send(EM_POSFROMCHAR, 0)));
    Send(EM_LINESCROLL, 100, 0);
    const int width = before - LeftOf(Send(EM_POSFROMCHAR, 0));
    EXPECT_GT(width, 2 * letter);
    EXPECT_LT(width, 60) << "until nothing of it shows, and no further";
    Send(EM_LINESCROLL, static_cast<WPARAM>(-100), 0);
    EXPECT_EQ(before, LeftOf(Send(EM_POSFROMCHAR, 0)));
}

TEST_F(EditTest, WhatIsRefusedWholeLeavesTheLastChangeToBeUndone) {
    MakeLine();
    Send(EM_LIMITTEXT, 2);
    Type("ab");
    SendText(EM_REPLACESEL, FALSE, "cd");
    EXPECT_EQ("ab", Text());
    EXPECT_EQ(1, Send(EM_CANUNDO));
    Send(EM_LIMITTEXT, 3);
    SendText(EM_REPLACESEL, FALSE, "cd");
    EXPECT_EQ("abc", Text());
    EXPECT_EQ(0, Send(EM_CANUNDO));
}

TEST_F(EditTest, ADeletionIsNoTextBeyondTheLimit) {
    MakeLine(ES_AUTOHSCROLL, "long text");
    Send(EM_LIMITTEXT, 3);
    Select(4, 9);
    Send(WM_CLEAR);
    EXPECT_EQ("long", Text());
    KNOWN_GAP(kWine, "a deletion that leaves more than the limit is told as text beyond it",
              Events() == "EN_UPDATE EN_CHANGE");
}

}  // namespace
