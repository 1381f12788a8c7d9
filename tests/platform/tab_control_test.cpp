// The tab control: its items, its selection, and what it tells its parent.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::RecordingWindow;

constexpr int kTab = 50;

class TabControl : public testing::Test {
  protected:
    void SetUp() override {
        InitCommonControls();
        tab_ = window_.Add(WC_TABCONTROLA, "", kTab, WS_TABSTOP, 10, 10, 300, 200);
        ASSERT_NE(nullptr, tab_);
        for (const char* title : {"Source", "Settings", "Limits"}) Insert(99, title);
        window_.Notifications().Take();
    }
    int Insert(int index, const char* title, LPARAM param = 0) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT | TCIF_PARAM;
        item.pszText = const_cast<char*>(title);
        item.lParam = param;
        return static_cast<int>(SendMessageA(tab_, TCM_INSERTITEMA, static_cast<WPARAM>(index),
                                             reinterpret_cast<LPARAM>(&item)));
    }
    int Ask(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return static_cast<int>(SendMessageA(tab_, message, wParam, lParam));
    }
    RECT ItemRect(int index) {
        RECT rect = {};
        EXPECT_TRUE(
            Ask(TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect)));
        return rect;
    }
    // The notifications about the selection alone.
    std::string SelectionNotes() {
        std::string notes;
        for (const std::string& line : window_.Notifications().Lines())
            if (line.find("TCN_SEL") == 0) notes += (notes.empty() ? "" : " ") + line;
        window_.Notifications().Take();
        return notes;
    }

    RecordingWindow window_;
    HWND tab_ = nullptr;
};

TEST_F(TabControl, CountsAndNamesItsItems) {
    EXPECT_EQ(3, Ask(TCM_GETITEMCOUNT));
    EXPECT_EQ((std::vector<std::string>{"Source", "Settings", "Limits"}),
              test_support::ItemsOf(tab_));
}

TEST_F(TabControl, InsertsAtAnIndexAndKeepsItsData) {
    EXPECT_EQ(1, Insert(1, "Between", 4711));
    EXPECT_EQ((std::vector<std::string>{"Source", "Between", "Settings", "Limits"}),
              test_support::ItemsOf(tab_));
    TCITEMA item = {};
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(Ask(TCM_GETITEMA, 1, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(4711, item.lParam);
    EXPECT_FALSE(Ask(TCM_GETITEMA, 9, reinterpret_cast<LPARAM>(&item)));
}

TEST_F(TabControl, TheFirstItemIsSelected) {
    EXPECT_EQ(0, Ask(TCM_GETCURSEL));
}

TEST_F(TabControl, SelectingByMessageNotifiesNobody) {
    EXPECT_EQ(0, Ask(TCM_SETCURSEL, 2));
    EXPECT_EQ(2, Ask(TCM_GETCURSEL));
    EXPECT_EQ(2, Ask(TCM_SETCURSEL, 1));
    EXPECT_EQ("", SelectionNotes());
}

TEST_F(TabControl, RejectsASelectionThatDoesNotExist) {
    EXPECT_EQ(-1, Ask(TCM_SETCURSEL, 7));
    EXPECT_EQ(0, Ask(TCM_GETCURSEL));
}

TEST_F(TabControl, AClickAsksAndThenTells) {
    DialogScript script;
    script.SelectTabOf(kTab, 1);
    script.RunModeless(window_);
    EXPECT_EQ("TCN_SELCHANGING(50) TCN_SELCHANGE(50)", SelectionNotes());
    EXPECT_EQ(1, Ask(TCM_GETCURSEL));
}

TEST_F(TabControl, TheSelectionIsTheOldOneWhileItAsks) {
    int asked = -1, told = -1;
    window_.OnMessage([&](UINT message, WPARAM, LPARAM lParam, LRESULT*) {
        if (message == WM_NOTIFY) {
            const auto& header = *reinterpret_cast<const NMHDR*>(lParam);
            if (header.code == TCN_SELCHANGING) asked = Ask(TCM_GETCURSEL);
            if (header.code == TCN_SELCHANGE) told = Ask(TCM_GETCURSEL);
        }
        return false;
    });
    DialogScript script;
    script.SelectTabOf(kTab, 2);
    script.RunModeless(window_);
    EXPECT_EQ(0, asked);
    EXPECT_EQ(2, told);
}

TEST_F(TabControl, ARefusedChangeDoesNotHappen) {
    window_.OnMessage([&](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
        if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(lParam)->code != TCN_SELCHANGING)
            return false;
        *result = TRUE;
        return true;
    });
    DialogScript script;
    script.SelectTabOf(kTab, 1);
    script.RunModeless(window_);
    EXPECT_EQ("TCN_SELCHANGING(50)", SelectionNotes());
    EXPECT_EQ(0, Ask(TCM_GETCURSEL));
}

TEST_F(TabControl, AClickOnTheSelectedTabChangesNothing) {
    DialogScript script;
    script.SelectTabOf(kTab, 0);
    script.RunModeless(window_);
    EXPECT_EQ("", SelectionNotes());
}

TEST_F(TabControl, ArrowKeysMoveTheSelectionAndNotify) {
    SetFocus(tab_);
    SelectionNotes();
    DialogScript script;
    script.Press(VK_RIGHT)
        .Do([&] {
            EXPECT_EQ(1, Ask(TCM_GETCURSEL));
            EXPECT_EQ("TCN_SELCHANGING(50) TCN_SELCHANGE(50)", SelectionNotes());
        })
        .Press(VK_LEFT)
        .Do([&] { EXPECT_EQ(0, Ask(TCM_GETCURSEL)); })
        .Do([&] { SelectionNotes(); })
        .Press(VK_LEFT)
        .Do([&] { EXPECT_EQ(0, Ask(TCM_GETCURSEL)); });
    script.RunModeless(window_);
    EXPECT_EQ("", SelectionNotes());
}

TEST_F(TabControl, DeletingItemsMovesTheSelection) {
    Ask(TCM_SETCURSEL, 1);
    EXPECT_TRUE(Ask(TCM_DELETEITEM, 0));
    EXPECT_EQ(0, Ask(TCM_GETCURSEL));
    EXPECT_TRUE(Ask(TCM_DELETEITEM, 0));
    EXPECT_EQ(-1, Ask(TCM_GETCURSEL));
    EXPECT_FALSE(Ask(TCM_DELETEITEM, 5));
    EXPECT_TRUE(Ask(TCM_DELETEALLITEMS));
    EXPECT_EQ(0, Ask(TCM_GETITEMCOUNT));
    EXPECT_EQ("", SelectionNotes());
}

TEST_F(TabControl, RenamesAnItem) {
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    char title[] =
        "Gr\xF6\xDF"
        "e";
    item.pszText = title;
    EXPECT_TRUE(Ask(TCM_SETITEMA, 1, reinterpret_cast<LPARAM>(&item)));
    EXPECT_EQ(
        "Gr\xF6\xDF"
        "e",
        test_support::ItemsOf(tab_)[1]);
}

TEST_F(TabControl, TabsStandInARowAndWidenWithTheirText) {
    const RECT first = ItemRect(0), second = ItemRect(1), third = ItemRect(2);
    EXPECT_LT(first.left, first.right);
    EXPECT_LE(first.right, second.left + 2);
    EXPECT_LT(second.left, third.left);
    EXPECT_NEAR(first.top, third.top, 2);
    // "Settings" is longer than "Limits".
    EXPECT_GT(second.right - second.left, third.right - third.left);
}

TEST_F(TabControl, HitTestFindsTheTab) {
    const RECT second = ItemRect(1);
    TCHITTESTINFO hit = {};
    hit.pt = {(second.left + second.right) / 2, (second.top + second.bottom) / 2};
    EXPECT_EQ(1, Ask(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    EXPECT_NE(0u, hit.flags & TCHT_ONITEM);
    hit.pt = {150, 150};
    EXPECT_EQ(-1, Ask(TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    EXPECT_EQ(static_cast<UINT>(TCHT_NOWHERE), hit.flags);
}

TEST_F(TabControl, AdjustRectGivesThePageBelowTheTabs) {
    RECT client = {};
    GetClientRect(tab_, &client);
    RECT page = client;
    Ask(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
    EXPECT_GE(page.top, ItemRect(0).bottom);
    EXPECT_GT(page.left, client.left);
    EXPECT_LT(page.right, client.right);
    EXPECT_LT(page.bottom, client.bottom);
    RECT back = page;
    Ask(TCM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&back));
    EXPECT_EQ(client.left, back.left);
    EXPECT_EQ(client.top, back.top);
    EXPECT_EQ(client.right, back.right);
    EXPECT_EQ(client.bottom, back.bottom);
}

TEST_F(TabControl, WantsArrows) {
    EXPECT_EQ(DLGC_WANTARROWS, Ask(WM_GETDLGCODE) & DLGC_WANTARROWS);
}

TEST_F(TabControl, FocusFollowsTheSelection) {
    Ask(TCM_SETCURSEL, 2);
    EXPECT_EQ(2, Ask(TCM_GETCURFOCUS));
}

TEST_F(TabControl, IsOneRowByDefault) {
    EXPECT_EQ(1, Ask(TCM_GETROWCOUNT));
}

}  // namespace
