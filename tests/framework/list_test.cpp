// List boxes: the selection kept in the object and the list operations.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_ListBox.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::ItemsOf;
using test_support::PumpMessages;

class ListBox : public testing::Test {
  protected:
    ListBox() : dialog(log) {
        dialog.RegisterControl(IDC_LISTBOX, &list);
        dialog.RegisterControl(IDC_MULTILIST, &multi);
    }
    ~ListBox() override { dialog.Destroy(); }
    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
    }
    void Fill(ADM_ListBox& box) {
        for (const char* sz : {"Peak", "Area", "Rise time", "Decay"}) box.AddString(sz);
    }

    EventLog log;
    LoggedDialog dialog;
    ADM_ListBox list, multi;
};

TEST_F(ListBox, EverythingAnswersZeroWithNoWindow) {
    char szText[8] = "x";
    int anItems[2];
    EXPECT_EQ(list.GetCount(), 0);
    EXPECT_EQ(list.GetItemData(0), 0);
    EXPECT_EQ(list.SetItemData(0, 1), 0);
    EXPECT_EQ(list.GetText(0, szText, sizeof szText), 0);
    EXPECT_EQ(list.AddString("a"), 0);
    EXPECT_EQ(list.InsertString(0, "a"), 0);
    EXPECT_EQ(list.DeleteString(0), 0);
    EXPECT_EQ(list.ResetContent(), 0);
    EXPECT_EQ(list.FindString(-1, "a"), 0);
    EXPECT_EQ(list.FindStringExact(-1, "a"), 0);
    EXPECT_EQ(list.SelectString(-1, "a"), 0);
    EXPECT_EQ(list.SetTopIndex(1), 0);
    EXPECT_EQ(list.GetTopIndex(), 0);
    EXPECT_EQ(list.SetSel(0, TRUE), 0);
    EXPECT_EQ(list.GetSelCount(), 0);
    EXPECT_EQ(list.GetSelItems(2, anItems), 0);
    EXPECT_EQ(list.SetCaretIndex(1), 0);
    EXPECT_EQ(list.GetCaretIndex(), 0);
    EXPECT_EQ(list.SelectData(0, 0), 0);
    EXPECT_EQ(list.FindData(-1, 0), 0);
    EXPECT_EQ(list.AddInt(1), 0);
    EXPECT_EQ(list.AddLong(1), 0);
    EXPECT_EQ(list.AddFloat(1, 2, 0), 0);
    EXPECT_EQ(list.AddDouble(1, 2, 0), 0);
    EXPECT_EQ(list.AddResourceString(Module(), IDS_TAB_TITLE), 0);
}

TEST_F(ListBox, SelectionIsKeptAndNeverSavedAsInitial) {
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_FALSE(list.HasChanged());
    list.SetCurSel(2);
    EXPECT_EQ(list.GetCurSel(), 2);
    EXPECT_TRUE(list.HasChanged());
    list.SaveInitialValue();
    EXPECT_TRUE(list.HasChanged()) << "a list keeps no initial value";
    list.SetTrackChanges(FALSE);
    EXPECT_FALSE(list.HasChanged());
}

TEST_F(ListBox, AttachmentSelectsTheKeptIndex) {
    Open();
    Fill(list);
    list.SetCurSel(2);
    SendMessageA(list.GetHandle(), LB_SETCURSEL, 0, 0);
    list.OnAttach();
    EXPECT_EQ(SendMessageA(list.GetHandle(), LB_GETCURSEL, 0, 0), 2);
}

TEST_F(ListBox, ListOperationsMeanWhatThePlatformMeans) {
    Open();
    Fill(list);
    EXPECT_EQ(list.GetCount(), 4);
    EXPECT_EQ(list.InsertString(1, "Width"), 1);
    EXPECT_EQ(ItemsOf(list.GetHandle()),
              (std::vector<std::string>{"Peak", "Width", "Area", "Rise time", "Decay"}));
    EXPECT_EQ(list.DeleteString(1), 4);
    EXPECT_EQ(list.FindString(-1, "de"), 3);
    EXPECT_EQ(list.FindStringExact(-1, "Dec"), LB_ERR);
    EXPECT_EQ(list.FindStringExact(-1, "DECAY"), 3);
    EXPECT_EQ(list.SelectString(-1, "Ar"), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_NE(list.SetItemData(1, -77), LB_ERR);
    EXPECT_EQ(list.GetItemData(1), -77);
    EXPECT_EQ(list.GetItemData(9), LB_ERR) << "passed on as it is";
    EXPECT_EQ(list.GetTopIndex(), 0);
    list.SetCurSel(-1);
    EXPECT_EQ(list.GetCurSel(), -1);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ListBox, TopIndexScrollsALongList) {
    Open();
    for (int i = 0; i < 50; ++i) list.AddInt(i);
    list.SetTopIndex(20);
    EXPECT_EQ(list.GetTopIndex(), 20);
}

TEST_F(ListBox, SeveralSelections) {
    Open();
    Fill(multi);
    EXPECT_EQ(multi.SetSel(0, TRUE), 0);
    EXPECT_EQ(multi.SetSel(2, TRUE), 0);
    EXPECT_EQ(multi.GetSelCount(), 2);
    int anItems[4] = {-1, -1, -1, -1};
    EXPECT_EQ(multi.GetSelItems(4, anItems), 2);
    EXPECT_EQ(anItems[0], 0);
    EXPECT_EQ(anItems[1], 2);
    EXPECT_EQ(multi.SetSel(-1, TRUE), 0);
    EXPECT_EQ(multi.GetSelCount(), 4);
    multi.SetCaretIndex(3);
    EXPECT_EQ(multi.GetCaretIndex(), 3);
}

TEST_F(ListBox, ItemTextIsCutToTheBuffer) {
    Open();
    list.AddString("Rise time");
    char szText[5] = "";
    EXPECT_EQ(list.GetText(0, szText, sizeof szText), 4);
    EXPECT_STREQ(szText, "Rise");
    EXPECT_EQ(list.GetText(1, szText, sizeof szText), LB_ERR);
    EXPECT_STREQ(szText, "");
}

TEST_F(ListBox, FindDataStartsBehindAndSelectDataAtItsStart) {
    Open();
    for (const int nData : {5, 7, 5, 7}) list.SetItemData(list.AddString("item"), nData);
    EXPECT_EQ(list.FindData(-1, 5), 0);
    EXPECT_EQ(list.FindData(0, 5), 2);
    EXPECT_EQ(list.FindData(2, 5), -1);
    EXPECT_EQ(list.SelectData(-1, 7), 1);
    EXPECT_EQ(list.SelectData(2, 7), 3);
    EXPECT_EQ(list.GetCurSel(), 3);
    EXPECT_EQ(list.SelectData(0, 9), -1);
    EXPECT_EQ(list.GetCurSel(), 3);
}

TEST_F(ListBox, NumbersAndResourceStrings) {
    Open();
    list.AddInt(-42);
    list.AddLong(100000);
    list.AddFloat(0.1f, -1, 6);
    list.AddDouble(1.0 / 3.0, 3, 0);
    EXPECT_EQ(list.AddResourceString(Module(), IDS_TAB_TITLE), 4);
    EXPECT_EQ(list.AddResourceString(Module(), IDS_NOTHING), LB_ERR);
    EXPECT_EQ(ItemsOf(list.GetHandle()),
              (std::vector<std::string>{"-42", "100000", "0.1", "0.333", "Title of the table"}));
    list.AddResourceString(Module(), IDS_LONG_ITEM);
    EXPECT_EQ(ItemsOf(list.GetHandle())[5].size(), 254u);
}

TEST_F(ListBox, CodesBecomeNotifications) {
    Open();
    std::vector<int> anCodes;
    dialog.onNotify = [&](ADM_Wnd* pSender, int nId, int nCode, int nData) {
        EXPECT_EQ(pSender, &list);
        EXPECT_EQ(nId, IDC_LISTBOX);
        EXPECT_EQ(nData, 0);
        anCodes.push_back(nCode);
    };
    for (const int nRaw : {1, 2, 3, 4, 5, -2}) {
        SendMessageA(dialog.GetHandle(), WM_COMMAND,
                     MAKEWPARAM(IDC_LISTBOX, static_cast<WORD>(nRaw)),
                     reinterpret_cast<LPARAM>(list.GetHandle()));
    }
    EXPECT_EQ(anCodes, (std::vector<int>{400, 401, 403, 201, 202, 402}));
    list.OnCommand(dialog.GetHandle(), IDC_LISTBOX, list.GetHandle(), 0);
    EXPECT_EQ(anCodes.size(), 6u);
}

TEST_F(ListBox, SelectionIsReadAndTold) {
    dialog.onInit = [this] { Fill(list); };
    int nTold = -1;
    dialog.onNotify = [&](ADM_Wnd* pSender, int, int nCode, int) {
        if (pSender == &list && nCode == ADMN_LISTSELCHANGE) nTold = list.GetCurSel();
    };
    DialogScript script;
    script.Choose(IDC_LISTBOX, "Area").Do([&] { EXPECT_EQ(nTold, 1); }).Click(IDOK);
    script.Run([this] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
    EXPECT_EQ(list.GetCurSel(), 1);
}

TEST_F(ListBox, ReceiverOfASelectionMayCloseTheDialog) {
    Open();
    dialog.onNotify = [&](ADM_Wnd*, int, int nCode, int) {
        if (nCode == ADMN_LISTSELCHANGE) dialog.Destroy();
    };
    list.Notify(&list, IDC_LISTBOX, ADMN_LISTSELCHANGE, 0);
    EXPECT_EQ(dialog.GetHandle(), nullptr);
}

}  // namespace
}  // namespace framework_test
