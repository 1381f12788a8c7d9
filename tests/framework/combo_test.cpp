// Combo boxes: the selection kept in the object, the list operations, typing in the edit part.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "TestDialogs.h"
#include "fixtures/DialogScript.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "framework/ADM_ComboBox.h"

namespace framework_test {
namespace {

using test_support::DialogScript;
using test_support::ItemsOf;
using test_support::PumpMessages;

// Counts what the control does before it tells its dialog.
class CountingCombo : public ADM_ComboBox {
  public:
    void OnListChanged() override {
        ++nListChanges;
        ADM_ComboBox::OnListChanged();
    }
    void ReadControl() override {
        ++nReads;
        ADM_ComboBox::ReadControl();
    }
    LRESULT OnChar(HWND, int nChar) override { return nChar != 'x'; }

    int nListChanges = 0;
    int nReads = 0;
    using ADM_ComboBox::m_bEditHooked;
    using ADM_ComboBox::m_hEdit;
};

class ComboBox : public testing::Test {
  protected:
    ComboBox() : dialog(log) {
        dialog.RegisterControl(IDC_COMBO, &combo);
        dialog.RegisterControl(IDC_COMBOEDIT, &edit);
    }
    ~ComboBox() override { dialog.Destroy(); }
    void Open() {
        dialog.CreateModeless(Module(), Template(IDD_PLAIN), nullptr);
        PumpMessages();
    }
    void Fill() {
        for (const char* sz : {"Boxcar", "Gaussian", "Bessel"}) {
            const int nIndex = combo.AddString(sz);
            combo.SetItemData(nIndex, 10 * (nIndex + 1));
        }
    }

    EventLog log;
    LoggedDialog dialog;
    CountingCombo combo, edit;
};

TEST_F(ComboBox, ListOpensAsWideAsItsWidestItemAndNeverNarrowerThanItsField) {
    Open();
    const HWND hCombo = combo.GetHandle();
    RECT rcField;
    GetWindowRect(hCombo, &rcField);
    const int nField = rcField.right - rcField.left;
    const auto widthOpen = [&] {
        combo.ShowDropDown(TRUE);
        const auto nWidth = static_cast<int>(SendMessageA(hCombo, CB_GETDROPPEDWIDTH, 0, 0));
        combo.ShowDropDown(FALSE);
        return nWidth;
    };
    Fill();
    EXPECT_EQ(widthOpen(), nField);
    const std::string sLong(60, 'W');
    combo.AddString(sLong.c_str());
    const HDC hDC = GetDC(hCombo);
    SelectObject(hDC, reinterpret_cast<HGDIOBJ>(SendMessageA(hCombo, WM_GETFONT, 0, 0)));
    SIZE size;
    GetTextExtentPoint32A(hDC, sLong.c_str(), 60, &size);
    ReleaseDC(hCombo, hDC);
    EXPECT_GT(size.cx, nField);
    EXPECT_GE(widthOpen(), size.cx + GetSystemMetrics(SM_CXVSCROLL));
    EXPECT_LE(widthOpen(), size.cx + GetSystemMetrics(SM_CXVSCROLL) + 12);
    combo.DeleteString(combo.FindStringExact(-1, sLong.c_str()));
    EXPECT_EQ(widthOpen(), nField);
}

TEST_F(ComboBox, EverythingAnswersZeroWithNoWindow) {
    char szText[8] = "x";
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.ResetContent(), 0);
    EXPECT_EQ(combo.AddString("a"), 0);
    EXPECT_EQ(combo.InsertString(0, "a"), 0);
    EXPECT_EQ(combo.DeleteString(0), 0);
    EXPECT_EQ(combo.GetItemData(0), 0);
    EXPECT_EQ(combo.SetItemData(0, 1), 0);
    EXPECT_EQ(combo.GetLBText(0, szText, sizeof szText), 0);
    EXPECT_EQ(combo.FindString(-1, "a"), 0);
    EXPECT_EQ(combo.FindStringExact(-1, "a"), 0);
    EXPECT_EQ(combo.SelectString(-1, "a"), 0);
    EXPECT_EQ(combo.ShowDropDown(TRUE), 0);
    EXPECT_EQ(combo.GetDroppedState(), 0);
    EXPECT_EQ(combo.SetEditSel(0, 1), 0);
    EXPECT_EQ(combo.LimitText(5), 0);
    EXPECT_EQ(combo.SetExtendedUI(TRUE), 0);
    EXPECT_EQ(combo.GetExtendedUI(), 0);
    EXPECT_EQ(combo.SetItemHeight(-1, 20), 0);
    EXPECT_EQ(combo.GetItemHeight(-1), 0);
    EXPECT_EQ(combo.FindData(-1, 0), 0);
    EXPECT_EQ(combo.SelectData(0, 0), 0);
    EXPECT_EQ(combo.AddInt(1), 0);
    EXPECT_EQ(combo.AddLong(1), 0);
    EXPECT_EQ(combo.AddFloat(1, 2, 0), 0);
    EXPECT_EQ(combo.AddDouble(1, 2, 0), 0);
    EXPECT_EQ(combo.AddResourceString(Module(), IDS_TAB_TITLE), 0);
}

TEST_F(ComboBox, SelectionIsKeptWithNoWindow) {
    EXPECT_EQ(combo.GetCurSel(), -1);
    combo.SetCurSel(2);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_TRUE(combo.HasChanged());
    combo.SaveInitialValue();
    EXPECT_FALSE(combo.HasChanged());
    combo.SetCurSel(1);
    combo.SetTrackChanges(FALSE);
    EXPECT_FALSE(combo.HasChanged());
}

TEST_F(ComboBox, ItemsAreAddedAgainAndTheSelectionSurvives) {
    combo.SetCurSel(1);
    dialog.onInit = [this] {
        Fill();
        combo.SetCurSel(1);
    };
    DialogScript script;
    script.ExpectSelected(IDC_COMBO, "Gaussian").Choose(IDC_COMBO, "Bessel").Click(IDOK);
    const auto run = [this] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); };
    script.Run(run);
    EXPECT_EQ(combo.GetCurSel(), 2);
    EXPECT_EQ(combo.GetHandle(), nullptr);
    const int nKept = combo.GetCurSel();
    dialog.onInit = [this, nKept] {
        EXPECT_EQ(combo.GetCount(), 0) << "the items went with the window";
        Fill();
        combo.SetCurSel(nKept);
        combo.OnAttach();
    };
    DialogScript again;
    again.ExpectSelected(IDC_COMBO, "Bessel").Click(IDCANCEL);
    again.Run(run);
}

TEST_F(ComboBox, SecondAttachmentSelectsTheKeptIndex) {
    Open();
    Fill();
    combo.SetCurSel(2);
    SendMessageA(combo.GetHandle(), CB_SETCURSEL, 0, 0);
    combo.OnAttach();
    EXPECT_EQ(SendMessageA(combo.GetHandle(), CB_GETCURSEL, 0, 0), 2);
}

TEST_F(ComboBox, ListOperationsMeanWhatThePlatformMeans) {
    Open();
    Fill();
    EXPECT_EQ(combo.GetCount(), 3);
    EXPECT_EQ(combo.InsertString(1, "RC"), 1);
    EXPECT_EQ(ItemsOf(combo.GetHandle()),
              (std::vector<std::string>{"Boxcar", "RC", "Gaussian", "Bessel"}));
    EXPECT_EQ(combo.DeleteString(1), 3);
    EXPECT_EQ(combo.FindString(-1, "B"), 0);
    EXPECT_EQ(combo.FindString(0, "B"), 2);
    EXPECT_EQ(combo.FindStringExact(-1, "Bess"), -1);
    EXPECT_EQ(combo.FindStringExact(-1, "bessel"), 2);
    EXPECT_EQ(combo.SelectString(-1, "Gau"), 1);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.GetItemData(2), 30);
    EXPECT_NE(combo.SetItemData(2, -7), CB_ERR);
    EXPECT_EQ(combo.GetItemData(2), -7);
    EXPECT_EQ(combo.GetItemData(9), CB_ERR) << "passed on as it is";
    EXPECT_EQ(combo.DeleteString(9), CB_ERR);
    combo.SetCurSel(-1);
    EXPECT_EQ(combo.GetCurSel(), -1);
    EXPECT_EQ(combo.GetExtendedUI(), 0);
    combo.SetExtendedUI(TRUE);
    EXPECT_EQ(combo.GetExtendedUI(), 1);
    EXPECT_NE(combo.SetItemHeight(-1, 30), CB_ERR);
    EXPECT_GE(combo.GetItemHeight(-1), 30);
    EXPECT_EQ(combo.GetDroppedState(), 0);
    combo.ResetContent();
    EXPECT_EQ(combo.GetCount(), 0);
}

TEST_F(ComboBox, ItemTextIsCutToTheBuffer) {
    Open();
    combo.AddString("Gaussian");
    char szText[5] = "";
    EXPECT_EQ(combo.GetLBText(0, szText, sizeof szText), 4);
    EXPECT_STREQ(szText, "Gaus");
    char szLong[32] = "";
    EXPECT_EQ(combo.GetLBText(0, szLong, sizeof szLong), 8);
    EXPECT_STREQ(szLong, "Gaussian");
    EXPECT_EQ(combo.GetLBText(1, szLong, sizeof szLong), CB_ERR);
    EXPECT_STREQ(szLong, "");
    EXPECT_EQ(combo.GetLBText(0, nullptr, 5), 0);
}

TEST_F(ComboBox, FindDataStartsBehindAndSelectDataAtItsStart) {
    Open();
    for (const int nData : {5, 7, 5, 7}) combo.SetItemData(combo.AddString("item"), nData);
    EXPECT_EQ(combo.FindData(-1, 5), 0);
    EXPECT_EQ(combo.FindData(0, 5), 2);
    EXPECT_EQ(combo.FindData(2, 5), -1);
    EXPECT_EQ(combo.FindData(-9, 5), 0);
    EXPECT_EQ(combo.SelectData(-4, 7), 1) << "below 0 counts as 0";
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.SelectData(1, 7), 1);
    EXPECT_EQ(combo.SelectData(2, 7), 3);
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_EQ(combo.SelectData(0, 9), -1);
    EXPECT_EQ(combo.GetCurSel(), 3);
    EXPECT_EQ(combo.SelectData(4, 7), -1);
}

TEST_F(ComboBox, NumbersStandInTheirDisplayForm) {
    Open();
    combo.AddInt(-42);
    combo.AddLong(100000);
    combo.AddFloat(0.1f, -1, 6);
    combo.AddFloat(2.5f, 2, 0);
    combo.AddDouble(1.0 / 3.0, -1, 4);
    combo.AddDouble(1.0 / 3.0, 3, 0);
    combo.AddDouble(2.0, -1, 15);
    EXPECT_EQ(ItemsOf(combo.GetHandle()),
              (std::vector<std::string>{"-42", "100000", "0.1", "2.50", "0.3333", "0.333", "2"}));
}

TEST_F(ComboBox, ResourceStringHasAtMost254Characters) {
    Open();
    EXPECT_EQ(combo.AddResourceString(Module(), IDS_TAB_TITLE), 0);
    EXPECT_EQ(combo.AddResourceString(Module(), IDS_NOTHING), CB_ERR);
    EXPECT_EQ(combo.GetCount(), 1) << "nothing was added";
    combo.AddResourceString(Module(), IDS_LONG_ITEM);
    EXPECT_EQ(ItemsOf(combo.GetHandle())[1].size(), 254u);
}

TEST_F(ComboBox, CodesBecomeNotificationsAfterTheirReading) {
    Open();
    struct Row {
        int nRaw, nCode, nListChanges, nReads;
    };
    const Row kRows[] = {
        {-1, 503, 0, 0}, {1, 500, 1, 1}, {2, 501, 0, 1},  {3, 201, 0, 1},
        {4, 202, 0, 1},  {5, 502, 0, 1}, {6, 504, 0, 1},  {7, 505, 1, 1},
        {8, 506, 1, 1},  {9, 507, 1, 1}, {10, 508, 1, 1},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.nRaw);
        std::vector<int> anCodes;
        dialog.onNotify = [&](ADM_Wnd* pSender, int nId, int nCode, int nData) {
            EXPECT_EQ(pSender, &combo);
            EXPECT_EQ(nId, IDC_COMBO);
            EXPECT_EQ(nData, 0);
            EXPECT_EQ(combo.nReads, row.nReads) << "before it is told";
            anCodes.push_back(nCode);
        };
        combo.nListChanges = combo.nReads = 0;
        SendMessageA(dialog.GetHandle(), WM_COMMAND,
                     MAKEWPARAM(IDC_COMBO, static_cast<WORD>(row.nRaw)),
                     reinterpret_cast<LPARAM>(combo.GetHandle()));
        EXPECT_EQ(anCodes, (std::vector<int>{row.nCode}));
        EXPECT_EQ(combo.nListChanges, row.nListChanges);
    }
    dialog.onNotify = [&](ADM_Wnd* pSender, int, int, int) {
        EXPECT_EQ(pSender, nullptr) << "no such code";
    };
    combo.OnCommand(dialog.GetHandle(), IDC_COMBO, combo.GetHandle(), 0);
    combo.OnCommand(dialog.GetHandle(), IDC_COMBO, combo.GetHandle(), 11);
    combo.OnCommand(dialog.GetHandle(), IDC_COMBO, combo.GetHandle(), -2);
}

TEST_F(ComboBox, TypingInTheEditPartIsFiltered) {
    DialogScript script;
    script.Focus(IDC_COMBOEDIT)
        .TypeKeys("1x2x3")
        .Do([this] { EXPECT_EQ(test_support::TextOf(edit.GetHandle()), "123"); })
        .Press(VK_BACK)
        .Do([this] { EXPECT_EQ(test_support::TextOf(edit.GetHandle()), "12"); })
        .Click(IDCANCEL);
    script.Run([this] { return dialog.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
}

TEST_F(ComboBox, EditPartIsHookedOnceAndLetGo) {
    Open();
    EXPECT_TRUE(edit.m_bEditHooked);
    ASSERT_NE(edit.m_hEdit, nullptr);
    EXPECT_NE(GetPropA(edit.m_hEdit, "ADM_OldWndProc"), nullptr);
    EXPECT_EQ(combo.m_hEdit, nullptr) << "a drop-down list has none";
    const LONG_PTR nProc = GetWindowLongPtrA(edit.m_hEdit, GWLP_WNDPROC);
    edit.OnAttach();
    EXPECT_EQ(GetWindowLongPtrA(edit.m_hEdit, GWLP_WNDPROC), nProc);
    dialog.Destroy();
    EXPECT_FALSE(edit.m_bEditHooked);
    EXPECT_EQ(edit.m_hEdit, nullptr);
}

TEST_F(ComboBox, EditPartOutlivesAControlThatIsDestroyed) {
    auto gone = std::make_unique<CountingCombo>();
    LoggedDialog other(log);
    other.RegisterControl(IDC_COMBOEDIT, gone.get());
    DialogScript script;
    script.Do([&] { gone.reset(); }).Focus(IDC_COMBOEDIT).TypeKeys("x1").Click(IDCANCEL);
    script.Run([&] { return other.DoModal(Module(), Template(IDD_PLAIN), nullptr); });
}

}  // namespace
}  // namespace framework_test
