// The list box: items, order, search, the three kinds of selection, keys, mouse and owner drawing.
#include "list_box_fixture.h"

namespace {

TEST_F(ListBoxTest, StartsWithNothingSelected) {
    MakeList();
    EXPECT_EQ(10, Send(LB_GETCOUNT));
    EXPECT_EQ(LB_ERR, Current());
    EXPECT_EQ(0, Caret());
    EXPECT_EQ(-1, Anchor());
    EXPECT_EQ(0, Top());
}

TEST_F(ListBoxTest, SettersAreNotTold) {
    MakeList();
    Send(LB_SETCURSEL, 3);
    SendText(LB_SELECTSTRING, static_cast<WPARAM>(-1), "item 5");
    Send(LB_SETTOPINDEX, 2);
    Add("more");
    SendText(LB_INSERTSTRING, 0, "first");
    Send(LB_DELETESTRING, 6);
    Send(LB_SETITEMDATA, 0, 1);
    Send(LB_SETITEMDATA, 0, 0);
    Send(LB_RESETCONTENT);
    EXPECT_EQ("", Events());
    MakeList(LBS_EXTENDEDSEL);
    Send(LB_SETSEL, TRUE, 2);
    Send(LB_SELITEMRANGE, TRUE, MAKELPARAM(1, 4));
    Send(LB_SELITEMRANGEEX, 5, 7);
    Send(LB_SETCARETINDEX, 3);
    Send(LB_SETANCHORINDEX, 3);
    EXPECT_EQ("", Events());
}

TEST_F(ListBoxTest, SelectingAnItem) {
    MakeList();
    EXPECT_EQ(3, Send(LB_SETCURSEL, 3));
    EXPECT_EQ(3, Current());
    EXPECT_EQ(3, Caret());
    EXPECT_EQ(1, Send(LB_GETSEL, 3));
    EXPECT_EQ(0, Send(LB_GETSEL, 4));
    EXPECT_EQ(LB_ERR, Send(LB_SETCURSEL, static_cast<WPARAM>(-1)));
    EXPECT_EQ(LB_ERR, Current());
    Send(LB_SETCURSEL, 3);
    EXPECT_EQ(LB_ERR, Send(LB_SETCURSEL, 99));
    EXPECT_EQ(3, Current());
}

TEST_F(ListBoxTest, MessagesOfSeveralSelectionsFailWithOne) {
    MakeList();
    int items[5];
    EXPECT_EQ(LB_ERR, Send(LB_GETSELCOUNT));
    EXPECT_EQ(LB_ERR, Send(LB_GETSELITEMS, 5, reinterpret_cast<LPARAM>(items)));
    EXPECT_EQ(LB_ERR, Send(LB_SELITEMRANGE, TRUE, MAKELPARAM(0, 1)));
    EXPECT_EQ(LB_ERR, Send(LB_SELITEMRANGEEX, 0, 1));
}

TEST_F(ListBoxTest, InsertingMovesTheSelectionAlong) {
    MakeList();
    Send(LB_SETCURSEL, 5);
    EXPECT_EQ(0, SendText(LB_INSERTSTRING, 0, "first"));
    EXPECT_EQ(6, Current());
    EXPECT_EQ(11, SendText(LB_INSERTSTRING, static_cast<WPARAM>(-1), "last"));
    EXPECT_EQ(LB_ERR, SendText(LB_INSERTSTRING, 99, "nowhere"));
    EXPECT_EQ(11, Send(LB_DELETESTRING, 0));
    EXPECT_EQ(5, Current());
    EXPECT_EQ(10, Send(LB_DELETESTRING, 5));
    EXPECT_EQ(LB_ERR, Current()) << "the selected item itself is gone";
    EXPECT_EQ(LB_ERR, Send(LB_DELETESTRING, 99));
    EXPECT_EQ(LB_ERR, Send(LB_DELETESTRING, static_cast<WPARAM>(-1)));
}

TEST_F(ListBoxTest, ItemDataStaysWithItsItem) {
    MakeList(LBS_SORT, 0);
    EXPECT_EQ(0, Add("m"));
    EXPECT_EQ(1, Send(LB_SETITEMDATA, 0, 42));
    EXPECT_EQ(0, Add("a"));
    EXPECT_EQ(2, Add("z"));
    EXPECT_EQ(0, Send(LB_GETITEMDATA, 0));
    EXPECT_EQ(42, Send(LB_GETITEMDATA, 1));
    EXPECT_EQ(LB_ERR, Send(LB_GETITEMDATA, 99));
    EXPECT_EQ(LB_ERR, Send(LB_SETITEMDATA, 99, 1));
    Send(LB_SETITEMDATA, 1, 0);
}

TEST_F(ListBoxTest, TextsAreReadWhole) {
    MakeList();
    char text[20];
    EXPECT_EQ(6, Send(LB_GETTEXTLEN, 1));
    EXPECT_EQ(6, Send(LB_GETTEXT, 1, reinterpret_cast<LPARAM>(text)));
    EXPECT_STREQ("item 1", text);
    EXPECT_EQ(LB_ERR, Send(LB_GETTEXTLEN, 99));
    EXPECT_EQ(LB_ERR, Send(LB_GETTEXT, 99, reinterpret_cast<LPARAM>(text)));
    Send(LB_RESETCONTENT);
    Add("5 \xB5V \xC9");
    EXPECT_EQ("5 \xB5V \xC9", Items());
}

TEST_F(ListBoxTest, SortsAsWordsStandInADictionary) {
    MakeList(LBS_SORT, 0);
    for (const char* text : {"banana", "Apple", "cherry",   "10",     "9",      "_x", "x-ray",
                             "xray",   "x ray", "zoo",      "Zo\xEB", "(none)", "b",  "co-op",
                             "coop",   "coops", "\xE4pfel", "apfel",  "\xDF",   "st", "sr"}) {
        Add(text);
    }
    EXPECT_EQ(
        "(none) _x 10 9 apfel \xE4pfel Apple b banana cherry coop co-op coops sr \xDF st "
        "x ray xray x-ray Zo\xEB zoo",
        Items());
}

TEST_F(ListBoxTest, SortedListsTakeInsertionsAnywhere) {
    MakeList(LBS_SORT, 0);
    Add("b");
    EXPECT_EQ(0, SendText(LB_INSERTSTRING, 0, "z"));
    EXPECT_EQ("z b", Items());
}

TEST_F(ListBoxTest, SameTextsGoWhereTheSearchByHalvesMeetsThem) {
    MakeList(LBS_SORT, 0);
    for (int i = 0; i < 6; ++i) {
        const int index = Add("same");
        Send(LB_SETITEMDATA, static_cast<WPARAM>(index), i);
    }
    std::string order;
    for (int i = 0; i < 6; ++i)
        order += std::to_string(Send(LB_GETITEMDATA, static_cast<WPARAM>(i)));
    EXPECT_EQ("245310", order);
}

TEST_F(ListBoxTest, FindsByTheBeginningAfterTheStartAndAround) {
    MakeList(0, 0);
    for (const char* text : {"alpha", "Alphabet", "beta", "alp", "gamma", "alpha"}) Add(text);
    EXPECT_EQ(0, Find(LB_FINDSTRING, -1, "ALP"));
    EXPECT_EQ(1, Find(LB_FINDSTRING, 0, "ALP"));
    EXPECT_EQ(3, Find(LB_FINDSTRING, 1, "ALP"));
    EXPECT_EQ(0, Find(LB_FINDSTRING, 5, "ALP"));
    EXPECT_EQ(0, Find(LB_FINDSTRING, 99, "ALP"));
    EXPECT_EQ(LB_ERR, Find(LB_FINDSTRING, -1, "alphabetic"));
    EXPECT_EQ(LB_ERR, Find(LB_FINDSTRING, -1, ""));
    EXPECT_EQ(0, Find(LB_FINDSTRINGEXACT, -1, "ALPHA"));
    EXPECT_EQ(5, Find(LB_FINDSTRINGEXACT, 0, "ALPHA"));
    EXPECT_EQ(LB_ERR, Find(LB_FINDSTRINGEXACT, -1, "alph"));
    Add("\xC9t\xE9");
    KNOWN_GAP(kWine, "case of accented letters counts", Find(LB_FINDSTRING, -1, "\xE9T") == 6);
    EXPECT_EQ(LB_ERR, Find(LB_FINDSTRING, -1, "et"));
}

TEST_F(ListBoxTest, SelectsByTheBeginning) {
    MakeList(0, 0);
    for (const char* text : {"alpha", "Alphabet", "beta"}) Add(text);
    EXPECT_EQ(2, Find(LB_SELECTSTRING, -1, "be"));
    EXPECT_EQ(2, Current());
    EXPECT_EQ(LB_ERR, Find(LB_SELECTSTRING, -1, "zz"));
    EXPECT_EQ(2, Current());
    EXPECT_EQ(1, Find(LB_SELECTSTRING, 0, "alpha"));
    EXPECT_EQ(1, Current());
}

TEST_F(ListBoxTest, TheTopIsCutToTheLastPage) {
    MakeList();
    RECT client = {};
    GetClientRect(m_control, &client);
    const int page = client.bottom / static_cast<int>(Send(LB_GETITEMHEIGHT));
    EXPECT_EQ(LB_OKAY, Send(LB_SETTOPINDEX, 2));
    EXPECT_EQ(2, Top());
    EXPECT_EQ(LB_OKAY, Send(LB_SETTOPINDEX, 9));
    EXPECT_EQ(10 - page, Top());
    EXPECT_EQ(LB_OKAY, Send(LB_SETTOPINDEX, 0));
    Send(LB_SETCURSEL, 9);
    EXPECT_EQ(10 - page, Top()) << "selecting brings the item into view";
    Send(LB_SETCURSEL, 0);
    EXPECT_EQ(0, Top());
}

TEST_F(ListBoxTest, PlacesOfItems) {
    MakeList();
    const LONG height = static_cast<LONG>(Send(LB_GETITEMHEIGHT));
    RECT rect = ItemRect(m_control, 1);
    EXPECT_EQ(height, rect.top);
    EXPECT_EQ(2 * height, rect.bottom);
    Send(LB_SETTOPINDEX, 1);
    EXPECT_EQ(0, ItemRect(m_control, 1).top);
    EXPECT_EQ(-height, ItemRect(m_control, 0).top);
    EXPECT_EQ(LB_ERR, Send(LB_GETITEMRECT, 99, reinterpret_cast<LPARAM>(&rect)));
    EXPECT_EQ(MAKELONG(2, 0), Send(LB_ITEMFROMPOINT, 0, MAKELPARAM(5, height + 1)));
    EXPECT_EQ(MAKELONG(2, 1), Send(LB_ITEMFROMPOINT, 0, MAKELPARAM(500, height + 1)));
}

TEST_F(ListBoxTest, OnlyWholeItemsAreShownUnlessAskedOtherwise) {
    HWND list = MakeList();
    const int height = static_cast<int>(Send(LB_GETITEMHEIGHT));
    SetWindowPos(list, nullptr, 0, 0, 100, 5 * height + 8, SWP_NOMOVE | SWP_NOZORDER);
    RECT client = {};
    GetClientRect(list, &client);
    EXPECT_EQ(5 * height, client.bottom);
    list = MakeList(LBS_NOINTEGRALHEIGHT);
    SetWindowPos(list, nullptr, 0, 0, 100, 5 * height + 8, SWP_NOMOVE | SWP_NOZORDER);
    GetClientRect(list, &client);
    EXPECT_EQ(5 * height + 8, client.bottom);
}

TEST_F(ListBoxTest, ScrollBarOnlyWhileNeeded) {
    HWND list = MakeList(WS_VSCROLL, 2);
    EXPECT_EQ(0, GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL);
    for (int i = 0; i < 30; ++i) Add("more");
    EXPECT_NE(0, GetWindowLongA(list, GWL_STYLE) & WS_VSCROLL);
}

TEST_F(ListBoxTest, ArrowsSelectAndTell) {
    HWND list = MakeList();
    SetFocus(list);
    EXPECT_EQ("LBN_SETFOCUS", Events());
    Key(VK_DOWN);
    EXPECT_EQ("LBN_SELCHANGE", Events());
    EXPECT_EQ(0, Current());
    Key(VK_DOWN);
    EXPECT_EQ(1, Current());
    Key(VK_UP);
    Events();
    Key(VK_UP);
    EXPECT_EQ(0, Current());
    EXPECT_EQ("LBN_SELCHANGE", Events()) << "told at the end of the list as well";
    Key(VK_END);
    EXPECT_EQ(9, Current());
    Key(VK_HOME);
    EXPECT_EQ(0, Current());
    Key(VK_RIGHT);
    EXPECT_EQ(1, Current());
    Key(VK_LEFT);
    EXPECT_EQ(0, Current());
    SetFocus(m_window);
    EXPECT_TRUE(Events().ends_with("LBN_KILLFOCUS"));
}

TEST_F(ListBoxTest, PageKeysMoveByAPageLessOne) {
    MakeList();
    RECT client = {};
    GetClientRect(m_control, &client);
    const int page = client.bottom / static_cast<int>(Send(LB_GETITEMHEIGHT));
    Send(LB_SETCURSEL, 0);
    Key(VK_NEXT);
    EXPECT_EQ(page - 1, Current());
    Key(VK_PRIOR);
    EXPECT_EQ(0, Current());
    Key(VK_PRIOR);
    EXPECT_EQ(0, Current());
}

TEST_F(ListBoxTest, WithNothingSelectedAKeySelectsTheCaret) {
    MakeList();
    Send(LB_SETCURSEL, 4);
    Send(LB_SETCURSEL, static_cast<WPARAM>(-1));
    Key(VK_DOWN);
    EXPECT_EQ(4, Current());
}

TEST_F(ListBoxTest, KeysInAnEmptyListDoNothing) {
    MakeList(0, 0);
    Key(VK_DOWN);
    Key(VK_END);
    Type("x");
    EXPECT_EQ("", Events());
    EXPECT_EQ(LB_ERR, Current());
}

TEST_F(ListBoxTest, TypingALetterGoesToTheNextItemThatBeginsWithIt) {
    MakeList();
    SendText(LB_INSERTSTRING, 4, "Zeta");
    SendText(LB_INSERTSTRING, 7, "zulu");
    Type("z");
    EXPECT_EQ("LBN_SELCHANGE", Events());
    EXPECT_EQ(4, Current());
    Type("z");
    EXPECT_EQ(7, Current());
    Events();
    Type("q");
    EXPECT_EQ("", Events());
    EXPECT_EQ(7, Current());
}

TEST_F(ListBoxTest, AClickSelectsAndTellsWhenTheButtonGoesUp) {
    HWND list = MakeList();
    Send(WM_LBUTTONDOWN, MK_LBUTTON, PointOf(3));
    EXPECT_EQ("LBN_SETFOCUS", Events());
    EXPECT_EQ(3, Current());
    EXPECT_EQ(list, GetCapture());
    Send(WM_LBUTTONUP, 0, PointOf(3));
    EXPECT_EQ("LBN_SELCHANGE", Events());
    EXPECT_EQ(nullptr, GetCapture());
    Click(3);
    EXPECT_EQ("LBN_SELCHANGE", Events()) << "told though nothing changed";
}

TEST_F(ListBoxTest, DraggingSelectsTheLastItemReached) {
    MakeList();
    Drag(1, {2, 4});
    EXPECT_EQ("LBN_SETFOCUS LBN_SELCHANGE", Events());
    EXPECT_EQ(4, Current());
}

TEST_F(ListBoxTest, ADoubleClickIsTold) {
    MakeList();
    Click(2);
    Events();
    Send(WM_LBUTTONDBLCLK, MK_LBUTTON, PointOf(2));
    Send(WM_LBUTTONUP, 0, PointOf(2));
    EXPECT_EQ("LBN_DBLCLK", Events());
}

TEST_F(ListBoxTest, AClickBelowTheItemsChangesNothing) {
    MakeList(0, 2);
    Send(LB_SETCURSEL, 0);
    Send(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 80));
    Send(WM_LBUTTONUP, 0, MAKELPARAM(5, 80));
    EXPECT_EQ("LBN_SETFOCUS", Events());
    EXPECT_EQ(0, Current());
}

TEST_F(ListBoxTest, WithoutTheStyleOnlyFocusIsTold) {
    HWND list = Make("ListBox", 0);
    Add("a");
    Add("b");
    SetFocus(list);
    Key(VK_DOWN);
    Click(1);
    EXPECT_EQ("LBN_SETFOCUS", Events());
    EXPECT_EQ(1, Current());
}

TEST_F(ListBoxTest, TheScrollBarMovesTheTopItem) {
    MakeList(WS_VSCROLL, 40);
    const auto scroll = [&](int code, int place = 0) {
        Send(WM_VSCROLL, MAKEWPARAM(code, place));
        return Top();
    };
    EXPECT_EQ(1, scroll(SB_LINEDOWN));
    EXPECT_EQ(2, scroll(SB_LINEDOWN));
    EXPECT_EQ(1, scroll(SB_LINEUP));
    const int page = scroll(SB_PAGEDOWN) - 1;
    EXPECT_GT(page, 1);
    EXPECT_EQ(1, scroll(SB_PAGEUP));
    EXPECT_EQ(9, scroll(SB_THUMBPOSITION, 9));
    EXPECT_EQ(0, scroll(SB_TOP));
    const int last = scroll(SB_BOTTOM);
    EXPECT_GT(last, page);
    EXPECT_LT(last, 40);
    EXPECT_EQ(last, scroll(SB_LINEDOWN)) << "the last item stays at the bottom";
}

TEST_F(ListBoxTest, TheRectangleOfAnItemSaysWhetherItShows) {
    MakeList();
    const auto shows = [&](int index) {
        RECT rect = {};
        return Send(LB_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
    };
    const LONG height = static_cast<LONG>(Send(LB_GETITEMHEIGHT));
    EXPECT_EQ(1, shows(0));
    EXPECT_EQ(0, shows(9));
    Send(LB_SETTOPINDEX, 2);
    EXPECT_EQ(0, shows(1));
    EXPECT_EQ(1, shows(2));
    EXPECT_EQ(0, shows(-1));
    EXPECT_EQ(-3 * height, ItemRect(m_control, -1).top) << "where one more would stand";
}

TEST_F(ListBoxTest, AnEmptyListHasNoPlaceForTheCaret) {
    MakeList(0, 0);
    EXPECT_EQ(LB_ERR, Send(LB_SETCARETINDEX, 0));
    Add("one");
    EXPECT_EQ(LB_OKAY, Send(LB_SETCARETINDEX, 0));
}

}  // namespace
