// Buttons, statics and tab controls in the less common ways: the space bar, lost captures, double
// clicks, owner drawing, pictures, and the figures of tabs in the dialog font.
#include <gtest/gtest.h>

#include <string>

#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::RecordingWindow;

constexpr int kId = 101;

class ControlStates : public testing::Test {
  protected:
    HWND Add(const char* className, const char* text, DWORD style, int width = 100, int height = 23,
             int id = kId) {
        HWND control = window_.Add(className, text, id, style, 10, 10, width, height);
        SendMessageA(control, WM_SETFONT,
                     reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)), FALSE);
        window_.Notifications().Take();
        return control;
    }
    static LRESULT Ask(HWND hwnd, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
        return SendMessageA(hwnd, message, wParam, lParam);
    }
    static bool IsPushed(HWND button) { return (Ask(button, BM_GETSTATE) & BST_PUSHED) != 0; }
    std::string Notes() { return window_.Notifications().Take(); }
    static std::string ClientSize(HWND hwnd) {
        RECT rect = {};
        GetClientRect(hwnd, &rect);
        return std::to_string(rect.right) + "x" + std::to_string(rect.bottom);
    }

    RecordingWindow window_;
};

TEST_F(ControlStates, TheSpaceBarPressesAndReleasingItClicks) {
    HWND button = Add("Button", "Push", BS_PUSHBUTTON);
    SetFocus(button);
    Ask(button, WM_KEYDOWN, VK_SPACE);
    EXPECT_TRUE(IsPushed(button));
    EXPECT_EQ(button, GetCapture());
    Ask(button, WM_KEYUP, VK_RETURN);
    EXPECT_TRUE(IsPushed(button)) << "another key does not release it";
    EXPECT_EQ("", Notes());
    Ask(button, WM_KEYUP, VK_SPACE);
    EXPECT_FALSE(IsPushed(button));
    EXPECT_EQ(nullptr, GetCapture());
    EXPECT_EQ("BN_CLICKED(101)", Notes());
}

TEST_F(ControlStates, AFocusThatLeavesCancelsThePress) {
    HWND button = Add("Button", "Push", BS_PUSHBUTTON);
    HWND other = Add("Button", "Other", BS_PUSHBUTTON, 50, 23, 102);
    SetFocus(button);
    Ask(button, WM_KEYDOWN, VK_SPACE);
    SetFocus(other);
    EXPECT_FALSE(IsPushed(button));
    EXPECT_EQ(nullptr, GetCapture());
    Ask(button, WM_KEYUP, VK_SPACE);
    EXPECT_EQ("", Notes());
}

TEST_F(ControlStates, ALostCaptureCancelsThePress) {
    HWND button = Add("Button", "Push", BS_PUSHBUTTON);
    Ask(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(IsPushed(button));
    ReleaseCapture();
    EXPECT_FALSE(IsPushed(button));
    Ask(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ("", Notes());
}

TEST_F(ControlStates, AReleaseWithoutAPressIsNoClick) {
    HWND button = Add("Button", "Push", BS_PUSHBUTTON);
    Ask(button, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ("", Notes());
}

TEST_F(ControlStates, ADoubleClickIsAClickOrTold) {
    HWND quiet = Add("Button", "Push", BS_PUSHBUTTON);
    Ask(quiet, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    Ask(quiet, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ("BN_CLICKED(101)", Notes());
    HWND loud = Add("Button", "Push", BS_PUSHBUTTON | BS_NOTIFY, 50, 23, 102);
    Ask(loud, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    Ask(loud, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_NE(std::string::npos, Notes().find("(102)"));
    EXPECT_FALSE(IsPushed(loud));
}

TEST_F(ControlStates, AMovedMousePressesAndReleasesTheLook) {
    HWND box = Add("Button", "Check", BS_AUTOCHECKBOX);
    Ask(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    Ask(box, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(500, 5));
    EXPECT_FALSE(IsPushed(box));
    Ask(box, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_TRUE(IsPushed(box));
    Ask(box, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    EXPECT_EQ(BST_CHECKED, Ask(box, BM_GETCHECK));
}

TEST_F(ControlStates, APushButtonCannotBeChecked) {
    HWND button = Add("Button", "Push", BS_PUSHBUTTON);
    HWND group = Add("Button", "Group", BS_GROUPBOX, 100, 60, 102);
    Ask(button, BM_SETCHECK, BST_CHECKED);
    Ask(group, BM_SETCHECK, BST_CHECKED);
    EXPECT_EQ(BST_UNCHECKED, Ask(button, BM_GETCHECK));
    EXPECT_EQ(BST_UNCHECKED, Ask(group, BM_GETCHECK));
}

TEST_F(ControlStates, ACheckBeyondTheStatesIsTheHighestState) {
    HWND two = Add("Button", "2", BS_AUTOCHECKBOX);
    HWND three = Add("Button", "3", BS_AUTO3STATE, 50, 23, 102);
    for (WPARAM check : {WPARAM{2}, WPARAM{3}, static_cast<WPARAM>(-1)}) {
        Ask(two, BM_SETCHECK, check);
        Ask(three, BM_SETCHECK, check);
        EXPECT_EQ(BST_CHECKED, Ask(two, BM_GETCHECK));
        EXPECT_EQ(BST_INDETERMINATE, Ask(three, BM_GETCHECK));
    }
}

TEST_F(ControlStates, ACheckedRadioButtonIsATabStop) {
    HWND radio = Add("Button", "R", BS_RADIOBUTTON);
    Ask(radio, BM_SETCHECK, BST_CHECKED);
    EXPECT_NE(0, GetWindowLongA(radio, GWL_STYLE) & WS_TABSTOP);
    Ask(radio, BM_SETCHECK, BST_UNCHECKED);
    EXPECT_EQ(0, GetWindowLongA(radio, GWL_STYLE) & WS_TABSTOP);
}

TEST_F(ControlStates, OnlyEnabledAndVisibleRadioButtonsAreCleared) {
    HWND radios[3];
    for (int i = 0; i < 3; ++i)
        radios[i] =
            Add("Button", "R", BS_AUTORADIOBUTTON | (i == 0 ? WS_GROUP : 0), 30, 20, 200 + i);
    for (HWND radio : radios) Ask(radio, BM_SETCHECK, BST_CHECKED);
    EnableWindow(radios[1], FALSE);
    ShowWindow(radios[2], SW_HIDE);
    Ask(radios[0], BM_CLICK);
    EXPECT_EQ(BST_CHECKED, Ask(radios[1], BM_GETCHECK));
    EXPECT_EQ(BST_CHECKED, Ask(radios[2], BM_GETCHECK));
}

TEST_F(ControlStates, AGroupBoxLetsTheMouseThrough) {
    HWND group = Add("Button", "Group", BS_GROUPBOX, 100, 60);
    EXPECT_EQ(HTTRANSPARENT, Ask(group, WM_NCHITTEST));
    EXPECT_EQ(DLGC_STATIC, Ask(group, WM_GETDLGCODE));
}

TEST_F(ControlStates, AnOwnerDrawnButtonTellsWhatChanged) {
    std::string drawn;
    window_.OnMessage([&](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
        if (message != WM_DRAWITEM) return false;
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        drawn += std::to_string(item.itemAction) + ":" + std::to_string(item.itemState) + " ";
        *result = TRUE;
        return true;
    });
    HWND button = Add("Button", "Own", BS_OWNERDRAW, 60, 20);
    UpdateWindow(button);
    drawn.clear();
    SetFocus(button);
    EXPECT_EQ("4:16 ", drawn) << "the focus came";
    drawn.clear();
    Ask(button, BM_SETSTATE, TRUE);
    EXPECT_EQ("2:17 ", drawn) << "pressed, with the focus";
    drawn.clear();
    Ask(button, BM_SETSTATE, FALSE);
    EXPECT_EQ("2:16 ", drawn);
    SetFocus(window_);
    drawn.clear();
    EnableWindow(button, FALSE);
    EXPECT_EQ("1:4 ", drawn) << "disabled";
    window_.OnMessage(nullptr);
}

TEST_F(ControlStates, AStaticWithNotifyTellsItsState) {
    HWND label = Add("Static", "Label", SS_LEFT | SS_NOTIFY);
    EnableWindow(label, FALSE);
    EXPECT_EQ("STN_DISABLE(101)", Notes());
    EnableWindow(label, TRUE);
    EXPECT_EQ("STN_ENABLE(101)", Notes());
    Ask(label, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    EXPECT_EQ("STN_DBLCLK(101)", Notes());
}

TEST_F(ControlStates, AnOwnerDrawnStaticAsksItsParent) {
    UINT kind = 0, state = 99;
    window_.OnMessage([&](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
        if (message != WM_DRAWITEM) return false;
        kind = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->CtlType;
        state = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)->itemState;
        *result = TRUE;
        return true;
    });
    HWND label = Add("Static", "Own", SS_OWNERDRAW, 30, 20);
    UpdateWindow(label);
    EXPECT_EQ(static_cast<UINT>(ODT_STATIC), kind);
    EXPECT_EQ(0u, state);
    EnableWindow(label, FALSE);
    EXPECT_EQ(static_cast<UINT>(ODS_DISABLED), state);
    window_.OnMessage(nullptr);
}

TEST_F(ControlStates, APictureGivesTheStaticItsSizeUnlessItIsCentred) {
    HBITMAP small = CreateBitmap(12, 9, 1, 1, nullptr);
    HBITMAP large = CreateBitmap(40, 30, 1, 1, nullptr);
    const LPARAM smallParam = reinterpret_cast<LPARAM>(small);
    HWND picture = Add("Static", "", SS_BITMAP, 30, 20);
    EXPECT_EQ(0, Ask(picture, STM_SETIMAGE, IMAGE_BITMAP, smallParam));
    EXPECT_EQ("12x9", ClientSize(picture));
    EXPECT_EQ(smallParam, Ask(picture, STM_GETIMAGE, IMAGE_BITMAP));
    EXPECT_EQ(smallParam,
              Ask(picture, STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(large)));
    EXPECT_EQ("40x30", ClientSize(picture));
    EXPECT_EQ(0, Ask(picture, STM_GETICON));
    HWND centred = Add("Static", "", SS_BITMAP | SS_CENTERIMAGE, 30, 20, 102);
    Ask(centred, STM_SETIMAGE, IMAGE_BITMAP, smallParam);
    EXPECT_EQ("30x20", ClientSize(centred));
    DestroyWindow(picture);
    DestroyWindow(centred);
    DeleteObject(small);
    DeleteObject(large);
}

TEST_F(ControlStates, AnIconGivesTheStaticItsSize) {
    HICON icon = LoadIconA(nullptr, IDI_HAND);
    ASSERT_NE(nullptr, icon);
    HWND picture = Add("Static", "", SS_ICON, 100, 100);
    EXPECT_EQ("100x100", ClientSize(picture));
    EXPECT_EQ(0, Ask(picture, STM_SETICON, reinterpret_cast<WPARAM>(icon)));
    EXPECT_EQ("32x32", ClientSize(picture));
    EXPECT_EQ(reinterpret_cast<LRESULT>(icon), Ask(picture, STM_GETICON));
    EXPECT_EQ(reinterpret_cast<LRESULT>(icon), Ask(picture, STM_GETIMAGE, IMAGE_ICON));
}

class TabFigures : public ControlStates {
  protected:
    void SetUp() override {
        InitCommonControls();
        tab_ = Add(WC_TABCONTROLA, "", WS_TABSTOP, 300, 200);
    }
    LRESULT Insert(int index, const char* title) {
        TCITEMA item = {};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<char*>(title);
        return Ask(tab_, TCM_INSERTITEMA, static_cast<WPARAM>(index),
                   reinterpret_cast<LPARAM>(&item));
    }
    static std::string Describe(const RECT& rect) {
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
               std::to_string(rect.right) + "," + std::to_string(rect.bottom);
    }
    std::string ItemRect(int index) {
        RECT rect = {};
        const LRESULT found =
            Ask(tab_, TCM_GETITEMRECT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&rect));
        return found != FALSE ? Describe(rect) : "none";
    }
    std::string Adjust(bool larger, RECT rect) {
        Ask(tab_, TCM_ADJUSTRECT, larger, reinterpret_cast<LPARAM>(&rect));
        return Describe(rect);
    }
    void Click(int x, int y) {
        Ask(tab_, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        Ask(tab_, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    }

    HWND tab_ = nullptr;
};

TEST_F(TabFigures, TabsInTheDialogFontAreEighteenHigh) {
    EXPECT_EQ("4,4,296,196", Adjust(false, {0, 0, 300, 200})) << "without a tab";
    EXPECT_EQ(0, Insert(0, "First"));
    EXPECT_EQ(1, Insert(99, "&Second page"));
    EXPECT_EQ(1, Insert(1, "Mid"));
    EXPECT_EQ(-1, Insert(-1, "No"));
    EXPECT_EQ("2,2,56,20", ItemRect(0));
    EXPECT_EQ("56,2,110,20", ItemRect(1));
    EXPECT_EQ("110,2,199,20", ItemRect(2));
    EXPECT_EQ("none", ItemRect(3));
    EXPECT_EQ("none", ItemRect(-1));
    EXPECT_EQ("4,22,296,196", Adjust(false, {0, 0, 300, 200}));
    EXPECT_EQ("6,-2,114,124", Adjust(true, {10, 20, 110, 120}));
}

TEST_F(TabFigures, ALargerFontMakesLargerTabs) {
    Insert(0, "First");
    HFONT font =
        CreateFontA(-17, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Tahoma");
    Ask(tab_, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    EXPECT_EQ("2,2,56,28", ItemRect(0));
    EXPECT_EQ("4,30,296,196", Adjust(false, {0, 0, 300, 200}));
    DestroyWindow(tab_);
    DeleteObject(font);
}

TEST_F(TabFigures, PaddingAndLeastWidthCanBeSet) {
    Ask(tab_, TCM_SETMINTABWIDTH, 0, 10);
    Insert(0, "a");
    EXPECT_EQ("2,2,21,20", ItemRect(0));
    Ask(tab_, TCM_SETPADDING, 0, MAKELPARAM(10, 6));
    Insert(1, "b");
    EXPECT_EQ("2,2,29,23", ItemRect(0));
    EXPECT_EQ("29,2,55,23", ItemRect(1));
}

TEST_F(TabFigures, HitsStopBeforeRightAndBottom) {
    Insert(0, "First");
    const auto hit = [&](int x, int y) {
        TCHITTESTINFO test = {{x, y}, 0};
        return Ask(tab_, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(&test));
    };
    EXPECT_EQ(0, hit(2, 2));
    EXPECT_EQ(-1, hit(1, 2));
    EXPECT_EQ(0, hit(55, 19));
    EXPECT_EQ(-1, hit(56, 19));
    EXPECT_EQ(-1, hit(55, 20));
}

TEST_F(TabFigures, AClickIsToldAfterTheChange) {
    Insert(0, "First");
    Insert(1, "Second");
    Notes();
    Click(60, 10);
    EXPECT_EQ("TCN_SELCHANGING(101) TCN_SELCHANGE(101) NM_CLICK(101)", Notes());
    EXPECT_EQ(tab_, GetFocus());
    Click(60, 10);
    EXPECT_EQ("NM_CLICK(101)", Notes());
    Click(10, 150);
    EXPECT_EQ("NM_CLICK(101)", Notes());
}

TEST_F(TabFigures, SettingTheFocusIsAUsersChange) {
    Insert(0, "First");
    Insert(1, "Second");
    Notes();
    Ask(tab_, TCM_SETCURFOCUS, 1);
    EXPECT_EQ("TCN_SELCHANGING(101) TCN_SELCHANGE(101)", Notes());
    EXPECT_EQ(1, Ask(tab_, TCM_GETCURSEL));
    Ask(tab_, TCM_SETCURFOCUS, 1);
    Ask(tab_, TCM_SETCURFOCUS, 99);
    EXPECT_EQ("", Notes());
}

TEST_F(TabFigures, AKeyThatIsRefusedChangesNothing) {
    Insert(0, "First");
    Insert(1, "Second");
    window_.OnMessage([](UINT message, WPARAM, LPARAM lParam, LRESULT* result) {
        if (message != WM_NOTIFY) return false;
        const NMHDR& header = *reinterpret_cast<const NMHDR*>(lParam);
        *result = header.code == static_cast<UINT>(TCN_SELCHANGING);
        return true;
    });
    Ask(tab_, WM_KEYDOWN, VK_RIGHT);
    KNOWN_GAP(kWine, "a refusal stops clicks but not keys", Ask(tab_, TCM_GETCURSEL) == 0);
    window_.OnMessage(nullptr);
}

TEST_F(TabFigures, DeletingTheSelectedTabLeavesNone) {
    for (const char* name : {"a", "b", "c"}) Insert(99, name);
    Ask(tab_, TCM_SETCURSEL, 2);
    EXPECT_EQ(TRUE, Ask(tab_, TCM_DELETEITEM, 0));
    EXPECT_EQ(1, Ask(tab_, TCM_GETCURSEL));
    EXPECT_EQ(TRUE, Ask(tab_, TCM_DELETEITEM, 1));
    EXPECT_EQ(-1, Ask(tab_, TCM_GETCURSEL));
    EXPECT_EQ(FALSE, Ask(tab_, TCM_DELETEITEM, 9));
    EXPECT_EQ(TRUE, Ask(tab_, TCM_DELETEALLITEMS));
    EXPECT_EQ(0, Ask(tab_, TCM_GETITEMCOUNT));
    Insert(0, "again");
    EXPECT_EQ(0, Ask(tab_, TCM_GETCURSEL));
    Insert(0, "before");
    EXPECT_EQ(1, Ask(tab_, TCM_GETCURSEL));
}

TEST_F(TabFigures, ATextIsCutToTheRoom) {
    Insert(0, "First");
    char text[30] = "xxxxxxxx";
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = 5;
    EXPECT_EQ(TRUE, Ask(tab_, TCM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item)));
    EXPECT_STREQ("Firs", text);
    EXPECT_EQ(FALSE, Ask(tab_, TCM_GETITEMA, 7, reinterpret_cast<LPARAM>(&item)));
}

}  // namespace
