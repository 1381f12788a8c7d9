// What edits, lists and combo boxes draw, and which of their requests are reported as unsupported.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/TestWindows.h"
#include "platform/headless/diagnostics.h"
#include "platform/headless/recording.h"
#include "platform/platform.h"

namespace {

using headless::DrawKind;
using headless::DrawOp;
using headless::RecordedOps;
using headless::RecordedTexts;
using test_support::RecordingWindow;

using Texts = std::vector<std::string>;

Texts Painted(HWND hwnd) {
    RedrawWindow(hwnd, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    return RecordedTexts(hwnd);
}

// The operation that drew the text, or an empty one.
DrawOp TextOp(HWND hwnd, const std::string& text) {
    for (const DrawOp& op : RecordedOps(hwnd)) {
        if (op.kind == DrawKind::kText && op.text == text) return op;
    }
    ADD_FAILURE() << "not drawn: " << text;
    return DrawOp();
}

TEST(EditPainting, TheSelectionIsARunOfItsOwn) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "hello world", 7, ES_AUTOHSCROLL);
    SendMessageA(edit, EM_SETSEL, 2, 5);
    EXPECT_EQ((Texts{"hello world"}), Painted(edit)) << "hidden without the focus";
    SetFocus(edit);
    EXPECT_EQ((Texts{"he", "llo", " world"}), Painted(edit));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHTTEXT), TextOp(edit, "llo").textColor);
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), TextOp(edit, "llo").backColor);
    EXPECT_EQ(TextOp(edit, "he").rect.right, TextOp(edit, "llo").rect.left);
}

TEST(EditPainting, ADisabledTextIsGrey) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "text", 7, ES_AUTOHSCROLL);
    EnableWindow(edit, FALSE);
    Painted(edit);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), TextOp(edit, "text").textColor);
}

TEST(EditPainting, PasswordsAreMasked) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "secret", 7, ES_AUTOHSCROLL | ES_PASSWORD);
    EXPECT_EQ((Texts{"******"}), Painted(edit));
}

TEST(EditPainting, ALongTextIsScrolledToTheCaret) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "", 7, ES_AUTOHSCROLL, 10, 10, 60, 24);
    const std::string text = "a long text that does not fit";
    SendMessageA(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text.c_str()));
    const Texts painted = Painted(edit);
    ASSERT_EQ(1u, painted.size());
    EXPECT_LT(painted[0].size(), text.size());
    EXPECT_TRUE(text.ends_with(painted[0]));
    SendMessageA(edit, EM_SETSEL, 0, 0);
    EXPECT_EQ((Texts{text}), Painted(edit));
}

TEST(EditPainting, OnlyTheShownLinesAreDrawn) {
    RecordingWindow window;
    HWND edit = window.Add("Edit", "", 7, ES_MULTILINE | ES_AUTOVSCROLL, 10, 10, 120, 34);
    SetWindowTextA(edit, "one\r\ntwo\r\nthree\r\nfour");
    EXPECT_EQ((Texts{"one", "two"}), Painted(edit));
    SendMessageA(edit, EM_LINESCROLL, 0, 1);
    EXPECT_EQ((Texts{"two", "three"}), Painted(edit));
}

TEST(ListBoxPainting, ShownItemsWithTheSelectedOneLit) {
    RecordingWindow window;
    HWND list = window.Add("ListBox", "", 7, LBS_NOTIFY | LBS_NOINTEGRALHEIGHT, 10, 10, 120, 40);
    for (const char* text : {"a", "b", "c", "d", "e"}) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    SendMessageA(list, LB_SETCURSEL, 1, 0);
    EXPECT_EQ((Texts{"a", "b", "c"}), Painted(list));
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), TextOp(list, "b").backColor);
    EXPECT_NE(GetSysColor(COLOR_HIGHLIGHT), TextOp(list, "a").backColor);
    SendMessageA(list, LB_SETTOPINDEX, 3, 0);
    EXPECT_EQ((Texts{"d", "e"}), Painted(list));
}

TEST(ComboBoxPainting, TheFieldShowsTheSelectedItem) {
    RecordingWindow window;
    HWND combo = window.Add("ComboBox", "", 7, CBS_DROPDOWNLIST, 10, 10, 120, 120);
    SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
    SendMessageA(combo, CB_SETCURSEL, 0, 0);
    EXPECT_EQ((Texts{"item"}), Painted(combo));
    EXPECT_NE(GetSysColor(COLOR_HIGHLIGHT), TextOp(combo, "item").backColor);
    SetFocus(combo);
    Painted(combo);
    EXPECT_EQ(GetSysColor(COLOR_HIGHLIGHT), TextOp(combo, "item").backColor);
    EnableWindow(combo, FALSE);
    Painted(combo);
    EXPECT_EQ(GetSysColor(COLOR_GRAYTEXT), TextOp(combo, "item").textColor);
}

TEST(ComboBoxPainting, AnEditDrawsItsOwnText) {
    RecordingWindow window;
    HWND combo = window.Add("ComboBox", "", 7, CBS_DROPDOWN, 10, 10, 120, 120);
    SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
    SendMessageA(combo, CB_SETCURSEL, 0, 0);
    EXPECT_EQ(Texts(), Painted(combo));
    EXPECT_EQ((Texts{"item"}), Painted(GetDlgItem(combo, 1001)));
}

TEST(UnsupportedControls, AreReportedAndFail) {
    RecordingWindow window;
    headless::TakeUnsupported();
    EXPECT_EQ(nullptr, window.Add("ComboBox", "", 7, CBS_SIMPLE, 10, 10, 120, 120));
    EXPECT_EQ((Texts{"CBS_SIMPLE"}), headless::TakeUnsupported());
    HWND combo = window.Add("ComboBox", "", 7, CBS_DROPDOWNLIST, 10, 10, 120, 120);
    EXPECT_EQ(CB_ERR, SendMessageA(combo, CB_DIR, 0, reinterpret_cast<LPARAM>("*")));
    EXPECT_EQ((Texts{"CB_DIR"}), headless::TakeUnsupported());
    HWND list = window.Add("ListBox", "", 8, LBS_MULTICOLUMN, 10, 10, 120, 120);
    EXPECT_EQ((Texts{"LBS_MULTICOLUMN"}), headless::TakeUnsupported());
    EXPECT_EQ(LB_ERR, SendMessageA(list, LB_DIR, 0, reinterpret_cast<LPARAM>("*")));
    EXPECT_EQ((Texts{"LB_DIR"}), headless::TakeUnsupported());
    HWND edit = window.Add("Edit", "", 9, ES_AUTOHSCROLL);
    EXPECT_EQ(0, SendMessageA(edit, EM_SETHANDLE, 0, 0));
    EXPECT_EQ((Texts{"EM_SETHANDLE"}), headless::TakeUnsupported());
}

}  // namespace
