// The list box: several selections, owner-drawn items, large lists.
#include "list_box_fixture.h"

namespace {

TEST_F(ListBoxTest, SeveralSelectionsBySetting) {
    MakeList(LBS_MULTIPLESEL);
    EXPECT_EQ(LB_ERR, Send(LB_SETCURSEL, 3));
    EXPECT_EQ(0, Send(LB_GETSELCOUNT));
    EXPECT_EQ(LB_OKAY, Send(LB_SETSEL, TRUE, 2));
    EXPECT_EQ("2", Selected());
    EXPECT_EQ(2, Caret());
    EXPECT_EQ(2, Anchor());
    EXPECT_EQ(LB_OKAY, Send(LB_SETSEL, TRUE, -1));
    EXPECT_EQ(10, Send(LB_GETSELCOUNT));
    EXPECT_EQ(LB_OKAY, Send(LB_SETSEL, FALSE, -1));
    EXPECT_EQ("", Selected());
    EXPECT_EQ(LB_ERR, Send(LB_SETSEL, TRUE, 99));
    EXPECT_EQ(LB_OKAY, Send(LB_SELITEMRANGE, TRUE, MAKELPARAM(2, 4)));
    EXPECT_EQ(LB_OKAY, Send(LB_SELITEMRANGE, TRUE, MAKELPARAM(8, 60)));
    EXPECT_EQ("2 3 4 8 9", Selected());
    EXPECT_EQ(LB_OKAY, Send(LB_SELITEMRANGEEX, 4, 3)) << "backwards takes the selection away";
    EXPECT_EQ("2 8 9", Selected());
    int items[10] = {};
    EXPECT_EQ(3, Send(LB_GETSELITEMS, 10, reinterpret_cast<LPARAM>(items)));
    EXPECT_EQ(8, items[1]);
    EXPECT_EQ(1, Send(LB_GETSELITEMS, 1, reinterpret_cast<LPARAM>(items)));
    EXPECT_EQ(1, Send(LB_GETSEL, 8));
    EXPECT_EQ(LB_ERR, Send(LB_GETSEL, 99));
}

TEST_F(ListBoxTest, MultipleSelectionSwitchesItemsOneByOne) {
    MakeList(LBS_MULTIPLESEL);
    Key(VK_DOWN);
    EXPECT_EQ("", Selected());
    EXPECT_EQ(1, Caret());
    Key(VK_SPACE);
    EXPECT_EQ("1", Selected());
    Key(VK_DOWN);
    Key(VK_SPACE);
    EXPECT_EQ("1 2", Selected());
    Key(VK_SPACE);
    EXPECT_EQ("1", Selected());
    Events();
    Click(4);
    EXPECT_EQ("LBN_SETFOCUS LBN_SELCHANGE", Events());
    EXPECT_EQ("1 4", Selected());
    Click(4);
    EXPECT_EQ("1", Selected());
    Click(5, true);
    EXPECT_EQ("1 5", Selected());
    Click(1, false, true);
    EXPECT_EQ("5", Selected());
}

TEST_F(ListBoxTest, ExtendedSelectionByKeys) {
    MakeList(LBS_EXTENDEDSEL);
    Key(VK_DOWN);
    EXPECT_EQ("LBN_SELCHANGE", Events());
    EXPECT_EQ("1", Selected());
    Key(VK_DOWN);
    EXPECT_EQ("2", Selected());
    EXPECT_EQ(2, Anchor());
    Key(VK_DOWN, true);
    Key(VK_DOWN, true);
    EXPECT_EQ("2 3 4", Selected());
    EXPECT_EQ(2, Anchor());
    EXPECT_EQ(4, Caret());
    Key(VK_UP, true);
    EXPECT_EQ("2 3", Selected());
    Key(VK_HOME, true);
    EXPECT_EQ("0 1 2", Selected());
    Key(VK_END);
    EXPECT_EQ("9", Selected());
}

TEST_F(ListBoxTest, ExtendedSelectionByMouse) {
    MakeList(LBS_EXTENDEDSEL);
    Click(4);
    EXPECT_EQ("LBN_SETFOCUS LBN_SELCHANGE", Events());
    EXPECT_EQ("4", Selected());
    Click(6, true);
    EXPECT_EQ("4 5 6", Selected());
    Click(5, false, true);
    EXPECT_EQ("4 6", Selected());
    Click(3, false, true);
    EXPECT_EQ("3 4 6", Selected());
    EXPECT_EQ(3, Anchor());
    Click(6, true);
    EXPECT_EQ("3 4 5 6", Selected());
    Click(2);
    EXPECT_EQ("2", Selected());
    Drag(1, {3, 4, 3});
    EXPECT_EQ("1 2 3", Selected());
}

TEST_F(ListBoxTest, SelectionsMoveWithTheirItems) {
    MakeList(LBS_EXTENDEDSEL);
    Send(LB_SELITEMRANGE, TRUE, MAKELPARAM(3, 5));
    Send(LB_DELETESTRING, 4);
    EXPECT_EQ("3 4", Selected());
    SendText(LB_INSERTSTRING, 0, "new");
    EXPECT_EQ("4 5", Selected());
}

TEST_F(ListBoxTest, DialogCodes) {
    MakeList();
    EXPECT_EQ(DLGC_WANTARROWS | DLGC_WANTCHARS, Send(WM_GETDLGCODE));
}

TEST_F(ListBoxTest, HorizontalExtentIsKept) {
    MakeList();
    EXPECT_EQ(0, Send(LB_GETHORIZONTALEXTENT));
    Send(LB_SETHORIZONTALEXTENT, 300);
    EXPECT_EQ(300, Send(LB_GETHORIZONTALEXTENT));
}

TEST_F(ListBoxTest, KeysMayBeAskedForByTheParent) {
    HWND list = MakeList(LBS_WANTKEYBOARDINPUT);
    std::string asked;
    LRESULT answer = -1;
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT* result) {
        if (message != WM_VKEYTOITEM && message != WM_CHARTOITEM) return false;
        asked += message == WM_VKEYTOITEM ? "key " : "char ";
        asked += std::to_string(LOWORD(wParam)) + " ";
        *result = answer;
        return true;
    });
    SetFocus(list);
    Key(VK_DOWN);
    EXPECT_EQ("key 40 ", asked);
    EXPECT_EQ(0, Current());
    answer = -2;
    Key(VK_DOWN);
    EXPECT_EQ(0, Current()) << "-2: the parent did it all";
    answer = 6;
    Key(VK_DOWN);
    EXPECT_EQ(6, Current());
}

class OwnerDrawnListBoxTest : public ListBoxTest {
  protected:
    OwnerDrawnListBoxTest() {
        m_window.OnMessage([this](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
            switch (message) {
                case WM_MEASUREITEM: {
                    auto* measure = reinterpret_cast<MEASUREITEMSTRUCT*>(lParam);
                    Note("measure", measure->itemID);
                    measure->itemHeight = 20;
                    break;
                }
                case WM_DRAWITEM: {
                    auto* draw = reinterpret_cast<DRAWITEMSTRUCT*>(lParam);
                    Note("draw", draw->itemID);
                    m_drawn = *draw;
                    break;
                }
                case WM_DELETEITEM: {
                    auto* deleted = reinterpret_cast<DELETEITEMSTRUCT*>(lParam);
                    Note("delete", static_cast<UINT>(deleted->itemData));
                    break;
                }
                case WM_COMPAREITEM: {
                    auto* compare = reinterpret_cast<COMPAREITEMSTRUCT*>(lParam);
                    const auto first = static_cast<INT_PTR>(compare->itemData1);
                    const auto second = static_cast<INT_PTR>(compare->itemData2);
                    *result = first < second ? -1 : first > second;
                    return true;
                }
                default:
                    return false;
            }
            *result = TRUE;
            return true;
        });
    }
    ~OwnerDrawnListBoxTest() override { m_window.OnMessage(nullptr); }
    void Note(const char* what, UINT number) {
        m_seen += std::string(m_seen.empty() ? "" : " ") + what + " " +
                  std::to_string(static_cast<int>(number));
    }
    std::string Seen() { return std::exchange(m_seen, std::string()); }

    std::string m_seen;
    DRAWITEMSTRUCT m_drawn = {};
};

TEST_F(OwnerDrawnListBoxTest, IsMeasuredOnceDrawnAndTakenDown) {
    HWND list = MakeList(LBS_OWNERDRAWFIXED, 0);
    EXPECT_EQ("measure -1", Seen());
    EXPECT_EQ(20, Send(LB_GETITEMHEIGHT));
    EXPECT_EQ(0, Send(LB_ADDSTRING, 0, 111));
    EXPECT_EQ(1, Send(LB_ADDSTRING, 0, 222));
    EXPECT_EQ(222, Send(LB_GETITEMDATA, 1));
    EXPECT_EQ(1, Send(LB_FINDSTRING, static_cast<WPARAM>(-1), 222));
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_TRUE(Seen().ends_with("draw 0 draw 1"));
    EXPECT_EQ(static_cast<UINT>(ODT_LISTBOX), m_drawn.CtlType);
    EXPECT_EQ(static_cast<UINT>(kId), m_drawn.CtlID);
    EXPECT_EQ(20, m_drawn.rcItem.top);
    EXPECT_EQ(40, m_drawn.rcItem.bottom);
    EXPECT_EQ(222u, m_drawn.itemData);
    EXPECT_EQ(0u, m_drawn.itemState);
    Send(LB_SETCURSEL, 1);
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(static_cast<UINT>(ODS_SELECTED), m_drawn.itemState);
    Seen();
    Send(LB_DELETESTRING, 0);
    EXPECT_TRUE(Seen().starts_with("delete 111"));
    DestroyWindow(list);
    EXPECT_EQ("delete 222", Seen());
}

TEST_F(OwnerDrawnListBoxTest, SortsByTheOwner) {
    MakeList(LBS_OWNERDRAWFIXED | LBS_SORT, 0);
    for (LPARAM number : {5, 3, 9, 4}) Send(LB_ADDSTRING, 0, number);
    std::string order;
    for (WPARAM i = 0; i < 4; ++i) order += std::to_string(Send(LB_GETITEMDATA, i));
    EXPECT_EQ("3459", order);
}

TEST_F(OwnerDrawnListBoxTest, ItemsOfSeveralHeightsAreMeasuredOneByOne) {
    MakeList(LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS, 2);
    EXPECT_EQ("measure 0 measure 1", Seen());
    EXPECT_EQ(LB_OKAY, Send(LB_SETITEMHEIGHT, 0, 33));
    EXPECT_EQ(33, Send(LB_GETITEMHEIGHT, 0));
    EXPECT_EQ(20, Send(LB_GETITEMHEIGHT, 1));
    EXPECT_EQ(33, ItemRect(m_control, 1).top);
    EXPECT_EQ(LB_ERR, Send(LB_GETITEMHEIGHT, 5));
}

TEST_F(OwnerDrawnListBoxTest, AnItemWithDataIsToldWhenItGoesEvenIfNotDrawn) {
    MakeList(0, 2);
    Send(LB_SETITEMDATA, 1, 7);
    Send(LB_RESETCONTENT);
    EXPECT_EQ("delete 7", Seen());
}

TEST_F(ListBoxTest, AListOfNumbersOnlyHoldsACount) {
    MakeList(LBS_NODATA | LBS_OWNERDRAWFIXED, 0);
    EXPECT_EQ(0, Send(LB_SETCOUNT, 1000));
    EXPECT_EQ(1000, Send(LB_GETCOUNT));
    Send(LB_SETCURSEL, 999);
    EXPECT_EQ(999, Current());
    MakeList(0, 0);
    EXPECT_EQ(LB_ERR, Send(LB_SETCOUNT, 5));
}

TEST_F(ListBoxTest, HoldsTenThousandItems) {
    MakeList(0, 0);
    EXPECT_LE(10000, Send(LB_INITSTORAGE, 10000, 100000));
    Send(WM_SETREDRAW, FALSE);
    for (int i = 0; i < 10000; ++i) ASSERT_EQ(i, Add(std::to_string(i)));
    Send(WM_SETREDRAW, TRUE);
    EXPECT_EQ(9999, Find(LB_FINDSTRINGEXACT, -1, "9999"));
    EXPECT_EQ(9999, Send(LB_SETCURSEL, 9999));
    EXPECT_EQ(9999, Send(LB_DELETESTRING, 0));
    EXPECT_EQ(9998, Current());
}

TEST_F(ListBoxTest, AParentMayDestroyItFromANotification) {
    HWND list = MakeList();
    m_window.OnMessage([&](UINT message, WPARAM wParam, LPARAM, LRESULT*) {
        if (message == WM_COMMAND && HIWORD(wParam) == LBN_SELCHANGE) DestroyWindow(list);
        return false;
    });
    Key(VK_DOWN);
    EXPECT_FALSE(IsWindow(list));
}

}  // namespace
