// Subtract Control: the control file, its signals, the multiplier.

#include <algorithm>
#include <vector>

#include "TraceopsTest.h"

namespace {

using namespace traceops_test;

// A host's control files: number n has n signals.
class ControlFiles : public ZXADLG_CDlgFileSource {
  public:
    virtual ~ControlFiles() = default;

    int32_t GetGroupCount() override { return static_cast<int32_t>(current); }
    uint32_t GetFileHandle() override { return browsedFile; }
    const char* GetGroupName(uint32_t group) override {
        name = "Control " + std::to_string(group);
        return nullNames ? nullptr : name.c_str();
    }
    const char* GetTitle(HWND__* dialog, HWND__*, intptr_t) override {
        titleDialog = dialog;
        return title;
    }
    const char* BrowseForFile(HWND__*) override {
        ++browsed;
        return path;
    }
    void SelectFile(uint32_t file) override { current = file; }

    uint32_t current = 0;
    uint32_t browsedFile = 5;
    const char* path = nullptr;
    const char* title = "file of step_family";
    bool nullNames = false;
    int browsed = 0;
    HWND__* titleDialog = nullptr;

  private:
    std::string name;
};

class SubtractControl : public testing::Test {
  protected:
    SubtractControl() {
        options.nFileID = 3;
        options.nNumGroups = 2;
        options.anListEntry[0] = 0;
        options.anListEntry[1] = 2;
        options.dMultiplier = 1.5;
        std::snprintf(options.szSubtractFileName, sizeof options.szSubtractFileName, "leak.dat");
    }
    int Show(DialogScript& script) {
        return script.Run([&] {
            return ZXADLG_ShowSubtractControlDialog(nullptr, &options, nullptr, &source, &files,
                                                    &params);
        });
    }
    static std::vector<int> Selected(HWND dialog) {
        HWND list = GetDlgItem(dialog, IDC_SUBTRACT_SIGNALS);
        std::vector<int> items(static_cast<std::size_t>(
            std::max<LRESULT>(0, SendMessageA(list, LB_GETSELCOUNT, 0, 0))));
        if (!items.empty()) {
            SendMessageA(list, LB_GETSELITEMS, items.size(),
                         reinterpret_cast<LPARAM>(items.data()));
        }
        return items;
    }

    Recording source;
    ControlFiles files;
    ZXADLG_SubtractControlOptions options = {};
    ZXADLG_DlgParams params = {};
};

TEST_F(SubtractControl, ShowsTheRecordAndHandsBackTheEdits) {
    DialogScript script;
    script.ExpectTitle("Subtract Control")
        .ExpectText(IDC_SUBTRACT_GROUP, "Control file of step_family")
        .ExpectText(IDC_SUBTRACT_PATH, "leak.dat")
        .ExpectItems(IDC_SUBTRACT_SIGNALS, {"Control 0", "Control 1", "Control 2"})
        .Do([](HWND dialog) {
            EXPECT_EQ(Selected(dialog), (std::vector<int>{0, 2}));
        })
        .ExpectEnabled(IDC_SUBTRACT_MULTIPLIER, false)
        .Click(IDC_SUBTRACT_USE_MULTIPLIER)
        .ExpectEnabled(IDC_SUBTRACT_MULTIPLIER, true)
        .Type(IDC_SUBTRACT_MULTIPLIER, "2.5")
        .Click(IDC_SUBTRACT_FIRST_ONLY)
        .Click(IDC_SUBTRACT_SELECT_ALL)
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.bUseMultiplier, 1);
    EXPECT_EQ(options.dMultiplier, 2.5);
    EXPECT_EQ(options.bUseFirstTraceOnly, 1);
    EXPECT_EQ(options.nNumGroups, 3);
    EXPECT_EQ(options.anListEntry[2], 2);
    EXPECT_EQ(options.anListEntry[3], 0);
}

TEST_F(SubtractControl, MoreStoredSignalsThanTheFileHasAreCut) {
    options.nNumGroups = 9;
    options.anListEntry[2] = 1;
    DialogScript script;
    script.Do([](HWND dialog) {
              EXPECT_EQ(Selected(dialog), (std::vector<int>{0, 1, 2}));
          })
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nNumGroups, 3);
}

TEST_F(SubtractControl, NoStoredSignalSelectsTheFirst) {
    options.nNumGroups = 0;
    options.anListEntry[0] = 2;
    DialogScript script;
    script.Do([](HWND dialog) { EXPECT_EQ(Selected(dialog), (std::vector<int>{0})); }).Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nNumGroups, 1);
    EXPECT_EQ(options.anListEntry[0], 0);
}

TEST_F(SubtractControl, AnEmptyControlFileStoresACountOfZero) {
    options.nFileID = 0;
    options.nNumGroups = 5;
    DialogScript script;
    script.ExpectItems(IDC_SUBTRACT_SIGNALS, {}).ExpectText(IDC_SUBTRACT_PATH, "").Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nNumGroups, 0);
}

TEST_F(SubtractControl, CancellingTheBrowseLeavesFilePathAndListAsTheyWere) {
    DialogScript script;
    script.Click(IDC_SUBTRACT_SELECT_FILE)
        .ExpectText(IDC_SUBTRACT_PATH, "leak.dat")
        .ExpectItems(IDC_SUBTRACT_SIGNALS, {"Control 0", "Control 1", "Control 2"})
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(files.browsed, 1);
    EXPECT_EQ(options.nFileID, 3);
    EXPECT_STREQ(options.szSubtractFileName, "leak.dat");
}

TEST_F(SubtractControl, ALongPathIsShortenedInItsMiddle) {
    const std::string path =
        "C:\\data" + std::string(40, 'd') + "\\cells" + std::string(40, 'c') + "\\2026\\leak.dat";
    files.path = path.c_str();
    DialogScript script;
    script.Click(IDC_SUBTRACT_SELECT_FILE)
        .ExpectText(IDC_SUBTRACT_PATH, "C:\\...\\2026\\leak.dat")
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.szSubtractFileName, path);
}

TEST_F(SubtractControl, AChosenFileIsShownStoredAndSelected) {
    const std::string longPath(600, 'p');
    files.path = longPath.c_str();
    DialogScript script;
    script.Click(IDC_SUBTRACT_SELECT_FILE)
        .ExpectText(IDC_SUBTRACT_PATH, longPath.substr(0, 511))
        .Do([](HWND dialog) {
            EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_SUBTRACT_SIGNALS), LB_GETCOUNT, 0, 0), 5);
            EXPECT_EQ(Selected(dialog), (std::vector<int>{0, 2}));
        })
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nFileID, 5);
    EXPECT_EQ(std::string(options.szSubtractFileName), longPath.substr(0, 511));
}

TEST_F(SubtractControl, AMultiplierOfZeroIsRefused) {
    options.bUseMultiplier = 1;
    DialogScript script;
    script.Type(IDC_SUBTRACT_MULTIPLIER, "0")
        .Click(IDOK)
        .Answer(101, "The multiplier value cannot be zero.")
        .ExpectFocus(IDC_SUBTRACT_MULTIPLIER)
        .Type(IDC_SUBTRACT_MULTIPLIER, "3")
        .Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(script.Messages().at(0).title, "Information");
    EXPECT_EQ(options.dMultiplier, 3.0);
}

TEST_F(SubtractControl, MoreThanSixteenSelectedSignalsDoNotPassTheTable) {
    options.nFileID = 20;
    options.bUseLastFile = 0x5A;
    DialogScript script;
    script.Click(IDC_SUBTRACT_SELECT_ALL).Click(IDOK);
    EXPECT_EQ(Show(script), 1);
    EXPECT_EQ(options.nNumGroups, 16);
    EXPECT_EQ(options.anListEntry[15], 15);
    EXPECT_EQ(options.nFileID, 20);
    EXPECT_EQ(options.bUseLastFile, 0x5A);
}

TEST_F(SubtractControl, HostileEntriesAndNamesBreakNothing) {
    options.nNumGroups = -7;
    options.nFileID = 4;
    files.nullNames = true;
    files.title = nullptr;
    DialogScript script;
    script.ExpectText(IDC_SUBTRACT_GROUP, "Control ").Click(IDCANCEL);
    const ZXADLG_SubtractControlOptions before = options;
    EXPECT_EQ(Show(script), 2);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);

    options.nNumGroups = 4;
    for (int32_t& entry : options.anListEntry) entry = -1;
    options.anListEntry[2] = 1 << 30;
    DialogScript again;
    again.Do([](HWND dialog) { EXPECT_EQ(Selected(dialog), std::vector<int>{}); }).Click(IDCANCEL);
    EXPECT_EQ(Show(again), 2);
}

TEST_F(SubtractControl, ReadOnlyUndoesEveryEdit) {
    params.bReadOnly = 1;
    const ZXADLG_SubtractControlOptions before = options;
    DialogScript script;
    script.ExpectVisible(IDOK, false)
        .Ungrey(IDC_SUBTRACT_SELECT_ALL)
        .Click(IDC_SUBTRACT_SELECT_ALL)
        .Do([](HWND dialog) {
            EXPECT_EQ(Selected(dialog), (std::vector<int>{0, 2}));
        })
        .Ungrey(IDC_SUBTRACT_SELECT_FILE)
        .Click(IDC_SUBTRACT_SELECT_FILE)
        .ExpectFocus(IDCANCEL)
        .Click(IDCANCEL);
    EXPECT_EQ(Show(script), 2);
    EXPECT_EQ(files.browsed, 0);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(SubtractControl, WithoutAFileSourceNothingOpens) {
    EXPECT_EQ(
        ZXADLG_ShowSubtractControlDialog(nullptr, &options, nullptr, &source, nullptr, &params),
        -1);
}

}  // namespace
