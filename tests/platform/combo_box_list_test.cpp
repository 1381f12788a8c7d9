// The open list of a combo box and what typing and the focus do to the choice.
#include "combo_box_fixture.h"

namespace {

TEST_F(ComboBoxTest, AnIndexOutOfRangeClearsTheEdit) {
    MakeEdit();
    Send(CB_SETCURSEL, 2);
    EXPECT_EQ("item 2", Text());
    EXPECT_EQ(CB_ERR, Send(CB_SETCURSEL, 99));
    KNOWN_GAP(kWine, "an index out of range leaves the text", Text().empty());
}

TEST_F(ComboBoxTest, CaseStylesFoldTheItems) {
    MakeCombo(CBS_DROPDOWNLIST | CBS_UPPERCASE, 0);
    Add("Alpha \xE4");
    SendText(CB_INSERTSTRING, 0, "beta");
    EXPECT_EQ("ALPHA \xC4", test_support::ItemsOf(m_control)[1]);
    KNOWN_GAP(kWine, "an item that is inserted keeps its case",
              test_support::ItemsOf(m_control)[0] == "BETA");
    MakeCombo(CBS_DROPDOWN | CBS_LOWERCASE, 0);
    Add("Gamma");
    EXPECT_EQ(std::vector<std::string>{"gamma"}, test_support::ItemsOf(m_control));
}

TEST_F(ComboBoxTest, TypingMovesTheCaretOfTheListAndArrowsGoOnFromThere) {
    MakeEdit();
    SetFocus(m_control);
    TypeTo(m_edit, "ot");
    EXPECT_EQ(CB_ERR, Current());
    EXPECT_EQ(4, SendMessageA(m_list, LB_GETCARETINDEX, 0, 0));
    KeyTo(m_edit, VK_DOWN);
    EXPECT_EQ("other 4", Text()) << "the first key chooses what the text begins";
    KeyTo(m_edit, VK_DOWN);
    EXPECT_EQ("item 5", Text());
}

TEST_F(ComboBoxTest, TypingSelectsInAnOpenList) {
    MakeEdit();
    SetFocus(m_control);
    Send(CB_SHOWDROPDOWN, TRUE);
    TypeTo(m_edit, "oth");
    EXPECT_EQ(4, Current());
    Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboBoxTest, ACharacterOverAChosenItemTakesTheChoiceAway) {
    MakeEdit();
    SetFocus(m_control);
    KeyTo(m_edit, VK_DOWN);
    ASSERT_EQ(0, Current());
    TypeTo(m_edit, "x");
    EXPECT_EQ("x", Text());
    KNOWN_GAP(kWine, "the first character over a chosen item leaves the choice",
              Current() == CB_ERR);
}

TEST_F(ComboBoxTest, TheFocusSelectsTheTextEachTime) {
    MakeEdit();
    const HWND other = m_window.Add("Edit", "", 77, WS_CHILD | WS_VISIBLE, 10, 200);
    SetWindowTextA(m_edit, "text");
    SetFocus(m_control);
    EXPECT_EQ("text", test_support::SelectedPart(m_edit));
    SetFocus(other);
    SendMessageA(m_edit, EM_SETSEL, 0, 0);
    SetFocus(m_control);
    KNOWN_GAP(kWine, "only the first focus selects the text",
              test_support::SelectedPart(m_edit) == "text");
}

TEST_F(ComboBoxTest, AnOpenListHasTheMouse) {
    MakeList();
    SetFocus(m_control);
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_EQ(m_list, GetCapture());
    Send(CB_SHOWDROPDOWN, FALSE);
    EXPECT_EQ(nullptr, GetCapture());
}

TEST_F(ComboBoxTest, AClickElsewhereBringsBackWhatWasChosenWhenTheListOpened) {
    MakeList();
    SetFocus(m_control);
    Send(CB_SETCURSEL, 1);
    Send(CB_SHOWDROPDOWN, TRUE);
    Key(VK_DOWN);
    Key(VK_DOWN);
    EXPECT_EQ(3, Current());
    SendMessageA(m_list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(-40, -40));
    EXPECT_FALSE(IsDropped());
    EXPECT_EQ(1, Current());
}

TEST_F(ComboBoxTest, AClickInTheListOfAnotherBringsTheFocus) {
    MakeList();
    const HWND other = m_window.Add("Edit", "", 77, WS_CHILD | WS_VISIBLE, 10, 200);
    SetFocus(other);
    Send(CB_SHOWDROPDOWN, TRUE);
    ClickItem(2);
    EXPECT_EQ(m_control, GetFocus());
    EXPECT_EQ(2, Current());
}

TEST_F(ComboBoxTest, ALetterMovesInAnOpenListThatStaysOpen) {
    MakeList();
    SetFocus(m_control);
    Send(CB_SHOWDROPDOWN, TRUE);
    Type("o");
    EXPECT_EQ(4, Current());
    KNOWN_GAP(kWine, "a letter closes the list", IsDropped());
    Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboBoxTest, TheWheelScrollsAnOpenListAndChoosesNothing) {
    MakeList(30);
    SetFocus(m_control);
    Send(CB_SETCURSEL, 0);
    Send(CB_SHOWDROPDOWN, TRUE);
    Send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    KNOWN_GAP(kWine, "the wheel chooses in an open list", Current() == 0);
    Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboBoxTest, SpaceChoosesTheCaretOfAListWithoutChoice) {
    MakeList();
    SetFocus(m_control);
    Key(VK_SPACE);
    EXPECT_EQ(0, Current());
    EXPECT_EQ("CBN_SETFOCUS CBN_SELENDOK CBN_SELCHANGE", Events());
}

TEST_F(ComboBoxTest, AListThatWasNeverOpenScrollsByItsHeight) {
    MakeCombo(CBS_DROPDOWNLIST, 20, 100);
    Send(CB_SETCURSEL, 19);
    const LRESULT before = Send(CB_GETTOPINDEX);
    EXPECT_GT(before, 10);
    Send(CB_SHOWDROPDOWN, TRUE);
    Send(CB_SHOWDROPDOWN, FALSE);
    Send(CB_SETCURSEL, 0);
    Send(CB_SETCURSEL, 19);
    EXPECT_EQ(before, Send(CB_GETTOPINDEX));
}

TEST_F(ComboBoxTest, NoRedrawingIsAMarkOfItsOwn) {
    MakeEdit();
    ShowWindow(m_control, SW_HIDE);
    Send(WM_SETREDRAW, FALSE);
    Send(WM_SETREDRAW, TRUE);
    EXPECT_FALSE(IsWindowVisible(m_control));
    EXPECT_FALSE(IsWindowVisible(m_list)) << "a closed list stays hidden";
    ShowWindow(m_control, SW_SHOW);
    Send(WM_SETREDRAW, FALSE);
    EXPECT_TRUE(IsWindowVisible(m_control));
    Send(WM_SETREDRAW, TRUE);
}

TEST_F(ComboBoxTest, AResetAnswersThatAllIsWell) {
    MakeList();
    KNOWN_GAP(kWine, "a reset answers 1", Send(CB_RESETCONTENT) == CB_OKAY);
}

TEST_F(ComboBoxTest, OpeningByTheButtonTakesTheTextOfTheItemThatItMatches) {
    MakeEdit();
    SetWindowTextA(m_edit, "oth");
    ClickButton();
    EXPECT_EQ("other 4", Text());
    EXPECT_EQ("0..7", EditSelection());
    EXPECT_EQ(4, Current());
    Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboBoxTest, OpeningOverATextThatNoItemMatchesGoesToTheFirstItem) {
    MakeEdit();
    Send(CB_SETCURSEL, 3);
    SetWindowTextA(m_edit, "none");
    Send(CB_SHOWDROPDOWN, TRUE);
    EXPECT_EQ(CB_ERR, Current());
    EXPECT_EQ(0, SendMessageA(m_list, LB_GETCARETINDEX, 0, 0));
    EXPECT_EQ("none", Text());
    Send(CB_SHOWDROPDOWN, FALSE);
}

TEST_F(ComboBoxTest, ATextThatTheLimitCutsIsTold) {
    MakeEdit();
    SetFocus(m_control);
    Send(CB_LIMITTEXT, 2);
    TypeTo(m_edit, "ab");
    Events();
    TypeTo(m_edit, "c");
    EXPECT_EQ("ab", Text());
    EXPECT_EQ("0xFFFF CBN_EDITUPDATE CBN_EDITCHANGE", Events()) << "no space comes as -1";
}

TEST_F(ComboBoxTest, PageKeysInAClosedListMoveByWhatItWouldShow) {
    MakeCombo(CBS_DROPDOWNLIST, 6);
    const int item = static_cast<int>(Send(CB_GETITEMHEIGHT));
    const auto openHeight = [&](int rows) {
        SetWindowPos(m_control, nullptr, 0, 0, 100, Height() + rows * item + 2,
                     SWP_NOMOVE | SWP_NOZORDER);
    };
    openHeight(3);
    Send(CB_SETCURSEL, 0);
    Key(VK_NEXT);
    EXPECT_EQ(2, Current());
    Key(VK_PRIOR);
    EXPECT_EQ(0, Current());
    openHeight(1);
    Events();
    Key(VK_NEXT);
    EXPECT_EQ(0, Current()) << "one item that shows is the whole page";
    EXPECT_EQ("CBN_SELENDOK CBN_SELCHANGE", Events());
}

TEST_F(ComboBoxTest, ADoubleClickWhereNoItemIsIsNotTold) {
    MakeList(0);
    Send(CB_SHOWDROPDOWN, TRUE);
    Events();
    SendMessageA(m_list, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(5, 5));
    SendMessageA(m_list, WM_LBUTTONUP, 0, MAKELPARAM(5, 5));
    KNOWN_GAP(kWine, "a double click into an open list is told",
              Events().find("CBN_DBLCLK") == std::string::npos);
    Send(CB_SHOWDROPDOWN, FALSE);
}

}  // namespace
