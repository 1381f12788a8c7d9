// The controls through which a user picks data: how they fill and what they read back.

#include <gtest/gtest.h>

#include <string>

#include "analysis/SelectionControls.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "ids.h"
#include "widgets/Framework.h"

namespace {

using test_support::ItemsOf;
using test_support::RecordingWindow;
using test_support::SelectedIndex;
using test_support::SelectedIndexes;
using test_support::TestDataSource;
using Texts = std::vector<std::string>;
using Numbers = std::vector<int>;

class SelectionControls : public testing::Test {
  protected:
    SelectionControls() { InitDialogFramework(GetModuleHandleA(nullptr)); }

    HWND Combo() {
        return window.Add("ComboBox", "", ++lastId, CBS_DROPDOWNLIST | WS_VSCROLL, 0, 0, 120, 200);
    }
    HWND List(DWORD style) {
        return window.Add("ListBox", "", ++lastId, LBS_NOTIFY | WS_VSCROLL | style, 0, 0, 120, 200);
    }
    // Binds a control for the life of the test.
    template <class Control>
    Control& Bind(Control& control, HWND hwnd) {
        control.Attach(hwnd);
        return control;
    }

    RecordingWindow window;
    int lastId = 100;
    TestDataSource source;
};

TEST_F(SelectionControls, GroupComboShowsAllNamedGroupsOrTheVisibleOnes) {
    source.Groups({"IN 0", "", "IN 2"}).hiddenGroup = 2;
    CZxDlgGroupCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source, true);
    EXPECT_EQ(ItemsOf(combo.GetHandle()), (Texts{"IN 0", "IN 2"}));
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.Fill(&source, false);
    EXPECT_EQ(ItemsOf(combo.GetHandle()), (Texts{"IN 0"}));
    source.NullTexts();
    combo.Fill(&source, true);
    EXPECT_EQ(combo.GetCount(), 0);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, SetListShowsNamesOfAtMost255Characters) {
    source.Sets(3);
    CZxDlgSetListBox list;
    Bind(list, List(LBS_EXTENDEDSEL));
    list.Fill(0, &source, false);
    EXPECT_EQ(ItemsOf(list.GetHandle()), (Texts{"Trace #1", "Trace #2", "Trace #3"}));
    EXPECT_EQ(list.GetTopIndex(), 0);
    source.setPrefix = std::string(300, 'n');
    list.Fill(0, &source, false);
    EXPECT_EQ(ItemsOf(list.GetHandle())[2], std::string(255, 'n'));
    source.NullTexts();
    list.Fill(0, &source, false);
    EXPECT_EQ(ItemsOf(list.GetHandle()), (Texts{"", "", ""}));
    list.Fill(9, &source, false);
    EXPECT_EQ(list.GetCount(), 0);
    list.Attach(nullptr);
}

TEST_F(SelectionControls, NumberedSetListCountsFromOneInOneWidth) {
    source.Sets(10);
    CZxDlgSetListBox list;
    Bind(list, List(LBS_EXTENDEDSEL));
    list.Fill(0, &source, true);
    EXPECT_EQ(ItemsOf(list.GetHandle())[0], " 1: Trace #1");
    EXPECT_EQ(ItemsOf(list.GetHandle())[9], "10: Trace #10");
    list.Attach(nullptr);
}

TEST_F(SelectionControls, SingleSetListBeginsWithTheFirstSelected) {
    CZxDlgSetListBox list;
    Bind(list, List(0));
    list.Fill(0, &source, false);
    EXPECT_EQ(list.GetCurSel(), 0);
    EXPECT_EQ(list.GetSelection(), (std::vector<std::int32_t>{0}));
    const std::int32_t items[] = {4, 5};
    list.SelectItems(items);
    EXPECT_EQ(list.GetCurSel(), 4);
    list.Attach(nullptr);
}

TEST_F(SelectionControls, SetListSelectsVisibleAllNoneInvertAndSingleItems) {
    source.Sets(6).hiddenEvery = 3;  // sets 2 and 5
    CZxDlgSetListBox list;
    Bind(list, List(LBS_EXTENDEDSEL));
    const HWND hwnd = list.GetHandle();
    list.Fill(0, &source, false);
    list.SelectVisible(0, &source);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{0, 1, 3, 4}));
    list.Invert();
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{2, 5}));
    list.SelectItem(0);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{0, 2, 5}));
    list.SelectItem(-1);  // not "every item"
    list.SelectItem(6);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{0, 2, 5}));
    list.SelectAll();
    EXPECT_EQ(list.GetSelCount(), 6);
    list.SelectNone();
    EXPECT_EQ(list.GetSelCount(), 0);
    list.Invert();
    EXPECT_EQ(list.GetSelCount(), 6);
    int items[4] = {};
    EXPECT_EQ(list.GetSelItems(4, items), 4);
    EXPECT_EQ(items[3], 3);
    char text[32];
    list.GetItemText(2, text, sizeof text);
    EXPECT_STREQ(text, "Trace #3");
    const std::int32_t wild[] = {-4, -3, 1, 3, 4, 99, 100};
    list.SelectItems(wild);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{1, 3, 4}));
    const std::int32_t across[] = {-2, -1, 0, 1};
    list.SelectItems(across);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{0, 1}));
    const std::int32_t beyond[] = {4, 5, 6, 7};
    list.SelectItems(beyond);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{4, 5}));
    const std::int32_t falling[] = {5, 4, 3};
    list.SelectItems(falling);
    EXPECT_EQ(SelectedIndexes(hwnd), (Numbers{3, 4, 5}));
    list.Attach(nullptr);
}

TEST_F(SelectionControls, TenThousandEntriesAreSelectedExactly) {
    source.Sets(10000);
    CZxDlgSetListBox list;
    Bind(list, List(LBS_EXTENDEDSEL));
    list.Fill(0, &source, false);
    ASSERT_EQ(list.GetCount(), 10000);
    std::vector<std::int32_t> odd;
    for (int i = 1; i < 10000; i += 2) odd.push_back(i);
    list.SelectItems(odd);
    EXPECT_EQ(list.GetSelection(), odd);
    list.Invert();
    EXPECT_EQ(list.GetSelection().size(), 5000u);
    EXPECT_EQ(list.GetSelection()[1], 2);
    list.Attach(nullptr);
}

TEST_F(SelectionControls, RegionComboLeavesOutNamelessAndHiddenRegions) {
    source.Region(5, "Five", 0, 1).Region(-1, "Hidden", 0, 1).Region(8, "", 0, 1);
    source.Region(9, "Nine", 0, 1);
    source.regions[2].hasName = false;
    CZxDlgRegionCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source);
    EXPECT_EQ(ItemsOf(combo.GetHandle()), (Texts{"Five", "Nine"}));
    EXPECT_EQ(combo.GetRegionId(), 5);
    combo.SelectById(9);
    EXPECT_EQ(combo.GetCurSel(), 1);
    EXPECT_EQ(combo.GetRegionId(), 9);
    combo.SelectById(77);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, RegionComboOfNoRegionsIsEmptyAndReadsZero) {
    CZxDlgRegionCombo combo;
    EXPECT_EQ(combo.GetRegionId(), 0);
    Bind(combo, Combo());
    combo.Fill(&source);
    EXPECT_EQ(combo.GetCount(), 0);
    EXPECT_EQ(combo.GetRegionId(), 0);
    combo.SelectById(3);
    EXPECT_EQ(SelectedIndex(combo.GetHandle()), -1);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, DataSetComboKeepsASelectionThatComesBeforeItsWindow) {
    source.Sets(4);
    CZxDlgDataSetCombo combo;
    combo.SetSelection(2);
    EXPECT_EQ(combo.GetCurSel(), 2);
    Bind(combo, Combo());
    combo.Fill(1, &source);
    EXPECT_EQ(combo.GetCount(), 4);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.SetSelection(3);
    EXPECT_EQ(combo.GetCurSel(), 3);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, WaveformComboShowsNamesWithTheirNumbers) {
    source.Waveform(4, "Wave A").Waveform(2, "Wave B");
    CZxDlgWaveformCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source);
    EXPECT_EQ(ItemsOf(combo.GetHandle()), (Texts{"Wave A", "Wave B"}));
    EXPECT_EQ(combo.GetWaveform(), 4u);
    combo.SelectByValue(2);
    EXPECT_EQ(combo.GetWaveform(), 2u);
    combo.SelectByValue(3);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, FileWithoutWaveformSaysSoAndReadsZero) {
    CZxDlgWaveformCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source);
    EXPECT_EQ(ItemsOf(combo.GetHandle()), (Texts{"Not a waveform file"}));
    EXPECT_EQ(combo.GetCurSel(), 0);
    EXPECT_EQ(combo.GetWaveform(), 0u);
    combo.Attach(nullptr);
}

class ControlFile : public ZXADLG_CDlgFileSource {
  public:
    virtual ~ControlFile() = default;
    int32_t GetGroupCount() override { return groups; }
    uint32_t GetFileHandle() override { return 0; }
    const char* GetGroupName(uint32_t group) override {
        if (group == 1) return nullptr;
        name = std::string(group == 2 ? 300 : 3, 'c');
        return name.c_str();
    }
    const char* GetTitle(HWND__*, HWND__*, intptr_t) override { return nullptr; }
    const char* BrowseForFile(HWND__*) override { return nullptr; }
    void SelectFile(uint32_t) override {}
    int32_t groups = 3;
    std::string name;
};

TEST_F(SelectionControls, GroupListOfAControlFileHoldsOneItemPerGroup) {
    ControlFile file;
    CZxDlgGroupListBox list;
    Bind(list, List(LBS_EXTENDEDSEL));
    list.Fill(&file);
    EXPECT_EQ(ItemsOf(list.GetHandle()), (Texts{"ccc", "", std::string(255, 'c')}));
    file.groups = 0;
    list.Fill(&file);
    EXPECT_EQ(list.GetCount(), 0);
    list.Attach(nullptr);
}

TEST_F(SelectionControls, EpochComboShowsLevelsThenDurationsThenTheUserList) {
    source.Region(26 + 12, "C duration", 0, 0).Region(26 + 9, "J level", 0, 0);
    source.Region(3, "Cursors", 0, 0).Region(26, "A level", 0, 0);
    source.userList = true;
    CZxDlgFixedEpochCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source);
    EXPECT_EQ(ItemsOf(combo.GetHandle()),
              (Texts{"Epoch A level", "Epoch J level", "Epoch C duration", "User list"}));
    EXPECT_EQ(combo.GetCode(), 0);
    for (const auto& [code, item] : std::vector<std::pair<int, int>>{{9, 1}, {12, 2}, {20, 3}}) {
        combo.SelectByCode(code);
        EXPECT_EQ(combo.GetCurSel(), item);
        EXPECT_EQ(combo.GetCode(), code);
    }
    combo.SelectByCode(5);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, EpochComboOfAFileWithAllVariablesHas21Entries) {
    for (int code = 0; code < 20; ++code) source.Region(26 + code, "v", 0, 0);
    source.Region(26, "again", 0, 0).userList = true;
    CZxDlgFixedEpochCombo combo;
    Bind(combo, Combo());
    combo.Fill(&source);
    const Texts items = ItemsOf(combo.GetHandle());
    ASSERT_EQ(items.size(), 21u);
    for (int i = 0; i < 10; ++i) {
        const std::string letter(1, static_cast<char>('A' + i));
        EXPECT_EQ(items[static_cast<std::size_t>(i)], "Epoch " + letter + " level");
        EXPECT_EQ(items[static_cast<std::size_t>(10 + i)], "Epoch " + letter + " duration");
    }
    EXPECT_EQ(items[20], "User list");
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, ConversionFactorsAreFive) {
    CZxDlgConversionFactorCombo combo;
    EXPECT_EQ(combo.GetFactor(), 1.0);
    Bind(combo, Combo());
    combo.Fill();
    EXPECT_EQ(ItemsOf(combo.GetHandle()),
              (Texts{"0.000001 (for pA and V)", "0.001 (for pA and mV)", "1 (for nA and mV)",
                     "1000 (for \xB5"
                     "A and mV)",
                     "1000000 (for mA and mV)"}));
    EXPECT_EQ(combo.GetFactor(), 0.000001);
    const double factors[] = {0.000001, 0.001, 1.0, 1000.0, 1000000.0};
    for (int i = 0; i < 5; ++i) {
        combo.SetFactor(factors[i]);
        EXPECT_EQ(combo.GetCurSel(), i);
        EXPECT_EQ(combo.GetFactor(), factors[i]);
    }
    combo.SetFactor(2.0);
    EXPECT_EQ(combo.GetCurSel(), 0);
    combo.AddString("another");
    combo.SetCurSel(5);
    EXPECT_EQ(combo.GetFactor(), 1.0);
    combo.Attach(nullptr);
}

TEST_F(SelectionControls, FillsWithNoWindowDoNothing) {
    source.Region(3, "x", 0, 1).Waveform(1, "w");
    ControlFile file;
    CZxDlgGroupCombo().Fill(&source, true);
    CZxDlgSetListBox list;
    list.Fill(0, &source, true);
    list.SelectVisible(0, &source);
    list.SelectAll();
    list.Invert();
    EXPECT_TRUE(list.GetSelection().empty());
    CZxDlgRegionCombo().Fill(&source);
    CZxDlgWaveformCombo().Fill(&source);
    CZxDlgFixedEpochCombo().Fill(&source);
    CZxDlgConversionFactorCombo().Fill();
    CZxDlgGroupListBox().Fill(&file);
}

}  // namespace
