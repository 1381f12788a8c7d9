// The one sequence of all Show functions, with a callable in the place of a dialog: every property
// of a row on its own, and the modes that the parameters ask for.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>

#include "entry/ShowSequence.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "store/ProfileStore.h"
#include "text/BoundedText.h"
#include "widgets/Framework.h"

namespace {

using test_support::ScratchStore;
using test_support::TestDataSource;
using Options = ZXADLG_NormalizeOptions;
using Row = ShowRow<Options>;

constexpr Row kPlain = {"Normalize", DataRecord::kCopied, kDataOptionsNormal, &LoadNormalizeOptions,
                        &SaveNormalizeOptions};

class ShowSequence : public testing::Test {
  protected:
    ShowSequence() {
        source.Profile(store.ProfileFile()).Record();
        params.bUseDataOptions = 1;
        options.eBaselineRegion = 3;
        options.ePeakRegion = 4;
        CopyText(data.szUnitarySelectionList1, "2");
    }
    ~ShowSequence() override { SetUseProfileFile(oldUse); }

    using Dialog = std::function<int(Options*, ZXADLG_DataOptions*)>;

    // A dialog that changes everything and ends with the result.
    Dialog Editing(int result) {
        return [this, result](Options* o, ZXADLG_DataOptions* d) {
            seenOptions = *o;
            if (d != nullptr) seenData = *d;
            dialogs++;
            passedData = d;
            o->eBaselineRegion = 55;
            o->bUseAllPoints = 1;
            o->common.bDynamicLink = 1;
            d->uGroup1Index = 9;
            d->uGroupCount = 17;
            CopyText(d->szUnitarySelectionList1, "5..8");
            return result;
        };
    }
    int Show(const Row& row, int result = ZXADLG_OK) { return Show(row, Editing(result)); }
    int Show(const Row& row, const Dialog& dialog) {
        return RunShowSequence(row, &options, &data, &source, &params, dialog);
    }

    void Write(const char* section, const char* key, const char* value) {
        WriteString(section, key, value, store.ProfileFile().c_str());
    }
    std::string Read(const char* section, const char* key) {
        char text[1000];
        return ReadString(section, key, nullptr, text, sizeof text, store.ProfileFile().c_str())
                   ? text
                   : "(none)";
    }
    std::size_t NamesAsked() const {
        return static_cast<std::size_t>(
            std::count(source.calls.begin(), source.calls.end(), "GetProfileName()"));
    }

    bool oldUse = SetUseProfileFile(true);
    ScratchStore store;
    TestDataSource source;
    Options options = {};
    ZXADLG_DataOptions data = {};
    ZXADLG_DlgParams params = {};
    Options seenOptions = {};
    ZXADLG_DataOptions seenData = {};
    ZXADLG_DataOptions* passedData = nullptr;
    int dialogs = 0;
};

// --- The plain sequence

TEST_F(ShowSequence, OkCopiesBothRecordsBackAndStoresBoth) {
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(seenOptions.eBaselineRegion, 3u);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "2");
    EXPECT_NE(passedData, &data);
    EXPECT_EQ(options.eBaselineRegion, 55u);
    EXPECT_EQ(options.common.bDynamicLink, 1);
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(data.uGroupCount, 17u);
    EXPECT_EQ(Read("NormalizeSection", "eBaselineRegion"), "55");
    EXPECT_EQ(Read("NormalizeDataSection", "uGroup1Index"), "9");
    EXPECT_EQ(Read("NormalizeDataSection", "szUnitarySelectionList1"), "5..8");
}

TEST_F(ShowSequence, ProfileNameIsAskedAnewForEachLoadAndEachSave) {
    Show(kPlain);
    EXPECT_EQ(NamesAsked(), 4u);
    source.calls.clear();
    Show(kPlain, ZXADLG_CANCEL);
    EXPECT_EQ(NamesAsked(), 2u);
    source.calls.clear();
    params.bUseDataOptions = 0;
    Show(kPlain);
    EXPECT_EQ(NamesAsked(), 2u);
}

TEST_F(ShowSequence, AnyOtherResultCopiesAndStoresNothing) {
    const Options optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    for (const int result : {2, -1, 0, 3, 100}) {
        SCOPED_TRACE(result);
        EXPECT_EQ(Show(kPlain, result), result);
        EXPECT_EQ(std::memcmp(&options, &optionsBefore, sizeof options), 0);
        EXPECT_EQ(std::memcmp(&data, &dataBefore, sizeof data), 0);
        EXPECT_EQ(store.ReadFile(), "");
    }
}

TEST_F(ShowSequence, KeysOfAPartialSectionWinAndTheRestKeepsTheHostsValues) {
    Write("NormalizeSection", "ePeakRegion", "12");
    Write("NormalizeDataSection", "uGroup1Index", "1");
    data.uGroup2Index = 6;
    Show(kPlain, ZXADLG_CANCEL);
    EXPECT_EQ(seenOptions.eBaselineRegion, 3u);
    EXPECT_EQ(seenOptions.ePeakRegion, 12u);
    EXPECT_EQ(seenData.uGroup1Index, 1u);
    EXPECT_EQ(seenData.uGroup2Index, 6u);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "2");
}

TEST_F(ShowSequence, CleanStoreShowsTheHostsRecordsAndTheFirstOkWritesEveryKey) {
    Show(kPlain);
    for (const char* key : {"bUseAllPoints", "eBaselineRegion", "ePeakRegion"}) {
        EXPECT_NE(Read("NormalizeSection", key), "(none)") << key;
    }
    EXPECT_EQ(seenOptions.ePeakRegion, 4u);
}

TEST_F(ShowSequence, ReadOnlyRestoresCopiesAndStoresNothing) {
    Write("NormalizeSection", "ePeakRegion", "12");
    const std::string before = store.ReadFile();
    const Options optionsBefore = options;
    const ZXADLG_DataOptions dataBefore = data;
    params.bReadOnly = 1;
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(seenOptions.ePeakRegion, 4u);
    EXPECT_EQ(std::memcmp(&options, &optionsBefore, sizeof options), 0);
    EXPECT_EQ(std::memcmp(&data, &dataBefore, sizeof data), 0);
    EXPECT_EQ(store.ReadFile(), before);
    EXPECT_EQ(NamesAsked(), 0u);
}

TEST_F(ShowSequence, DeferredRunCopiesBackAndNeitherReadsNorWritesTheStore) {
    Write("NormalizeSection", "ePeakRegion", "12");
    const std::string before = store.ReadFile();
    params.bDeferredRun = 1;
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(seenOptions.ePeakRegion, 4u);
    EXPECT_EQ(options.eBaselineRegion, 55u);
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(store.ReadFile(), before);
    EXPECT_EQ(NamesAsked(), 0u);
}

TEST_F(ShowSequence, ReadOnlyAndDeferredTogetherChangeNothing) {
    const Options optionsBefore = options;
    params.bReadOnly = params.bDeferredRun = 1;
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(std::memcmp(&options, &optionsBefore, sizeof options), 0);
    EXPECT_EQ(NamesAsked(), 0u);
}

TEST_F(ShowSequence, NullProfileNameRunsAndStoresNothing) {
    source.hasProfile = false;
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(options.eBaselineRegion, 55u);
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(store.ReadFile(), "");
}

TEST_F(ShowSequence, StoreThatCannotBeWrittenLeavesTheResult) {
    source.Profile(store.Folder() + "/no/such/folder/x.ini");
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_EQ(options.eBaselineRegion, 55u);
}

TEST_F(ShowSequence, WithoutDataOptionsTheDataRecordIsReadAndNeverWritten) {
    Write("NormalizeDataSection", "uGroup1Index", "1");
    params.bUseDataOptions = 0;
    const ZXADLG_DataOptions before = data;
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "2");
    EXPECT_EQ(seenData.uGroup1Index, 0u);
    EXPECT_EQ(std::memcmp(&data, &before, sizeof data), 0);
    EXPECT_EQ(Read("NormalizeDataSection", "uGroup1Index"), "1");
}

TEST_F(ShowSequence, DependentListOfTheStoreIsNotReadButOverwritten) {
    Write("NormalizeDataSection", "szDepVarSelectionList", "7");
    params.bNoDependentList = 1;
    CopyText(data.szDepVarSelectionList, "3");
    EXPECT_EQ(Show(kPlain), 1);
    EXPECT_STREQ(seenData.szDepVarSelectionList, "3");
    EXPECT_EQ(Read("NormalizeDataSection", "szDepVarSelectionList"), "3");
}

TEST_F(ShowSequence, FrameworkIsSetUpBeforeTheDialog) {
    const auto probe = [](Options*, ZXADLG_DataOptions*) {
        EXPECT_TRUE(IsDialogFrameworkReady());
        EXPECT_NE(GetFrameworkInstance(), nullptr);
        return 2;
    };
    EXPECT_EQ(Show(kPlain, probe), 2);
    EXPECT_EQ(Show(kPlain, probe), 2);
}

TEST_F(ShowSequence, NoExceptionPasses) {
    const Options before = options;
    EXPECT_EQ(Show(kPlain,
                   [](Options* o, ZXADLG_DataOptions*) -> int {
                       o->ePeakRegion = 99;
                       throw std::runtime_error("host");
                   }),
              -1);
    EXPECT_EQ(std::memcmp(&options, &before, sizeof options), 0);
}

TEST_F(ShowSequence, NullArgumentsOpenNothing) {
    const Dialog dialog = Editing(1);
    EXPECT_EQ(
        RunShowSequence(kPlain, static_cast<Options*>(nullptr), &data, &source, &params, dialog),
        -1);
    EXPECT_EQ(RunShowSequence(kPlain, &options, &data, nullptr, &params, dialog), -1);
    EXPECT_EQ(RunShowSequence(kPlain, &options, &data, &source, nullptr, dialog), -1);
    EXPECT_EQ(dialogs, 0);
    EXPECT_EQ(RunShowSequence(kPlain, &options, nullptr, &source, &params, dialog), 1);
    EXPECT_EQ(Read("NormalizeDataSection", "uGroup1Index"), "(none)");
}

// --- No data record

constexpr Row kNoData = {nullptr, DataRecord::kNone, kDataOptionsNormal, &LoadNormalizeOptions,
                         &SaveNormalizeOptions};

TEST_F(ShowSequence, WithoutADataRecordOnlyTheOptionKeysMove) {
    Write("NormalizeSection", "ePeakRegion", "12");
    ZXADLG_DataOptions before = data;
    EXPECT_EQ(Show(kNoData), 1);
    EXPECT_EQ(seenOptions.ePeakRegion, 12u);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "");
    EXPECT_EQ(std::memcmp(&data, &before, sizeof data), 0);
    EXPECT_EQ(Read("NormalizeSection", "eBaselineRegion"), "55");
    EXPECT_EQ(Read("CommonDataSection", "uGroup1Index"), "(none)");
    EXPECT_EQ(NamesAsked(), 2u);
}

TEST_F(ShowSequence, WithoutADataRecordItsPointerMayBeNull) {
    EXPECT_EQ(RunShowSequence(kNoData, &options, nullptr, &source, &params, Editing(1)), 1);
    EXPECT_EQ(options.eBaselineRegion, 55u);
}

// --- The data record passed through

constexpr Row kThrough = {nullptr, DataRecord::kPassedThrough, kDataOptionsNormal,
                          &LoadNormalizeOptions, &SaveNormalizeOptions};

TEST_F(ShowSequence, DataRecordThatIsPassedThroughIsWrittenAlsoOnCancel) {
    EXPECT_EQ(Show(kThrough, ZXADLG_CANCEL), 2);
    EXPECT_EQ(passedData, &data);
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(options.eBaselineRegion, 3u);
}

TEST_F(ShowSequence, DataRecordThatIsPassedThroughIsNeitherRestoredNorStored) {
    Write("CommonDataSection", "uGroup1Index", "4");
    EXPECT_EQ(Show(kThrough), 1);
    EXPECT_EQ(seenData.uGroup1Index, 0u);
    EXPECT_EQ(Read("CommonDataSection", "uGroup1Index"), "4");
    EXPECT_EQ(Read("NormalizeSection", "eBaselineRegion"), "55");
    EXPECT_EQ(NamesAsked(), 2u);
}

TEST_F(ShowSequence, DataRecordThatIsPassedThroughMustBeThere) {
    EXPECT_EQ(RunShowSequence(kThrough, &options, nullptr, &source, &params, Editing(1)), -1);
    EXPECT_EQ(dialogs, 0);
}

// --- The selection that starts at its defaults

constexpr Row kReset = {nullptr, DataRecord::kCopied, kDataOptionsReset, &LoadNormalizeOptions,
                        &SaveNormalizeOptions};

TEST_F(ShowSequence, ResetLoadStartsAtTheDefaultsWhateverIsStored) {
    Write("CommonDataSection", "uGroup1Index", "4");
    Write("CommonDataSection", "szUnitarySelectionList1", "6");
    data.uGroup1Index = data.uGroup2Index = data.uSelectedDataSet = 3;
    data.uGroupCount = 2;
    CopyText(data.szUnitarySelectionList2, "8");
    EXPECT_EQ(Show(kReset), 1);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "0");
    EXPECT_STREQ(seenData.szUnitarySelectionList2, "8");
    EXPECT_STREQ(seenData.szDepVarSelectionList, "0");
    EXPECT_EQ(seenData.eDataGroup1SelectionMode, 1);
    EXPECT_EQ(seenData.eDataGroup2SelectionMode, 1);
    EXPECT_EQ(seenData.eDataSet1SelectionMode, 4);
    EXPECT_EQ(seenData.eDataSet2SelectionMode, 4);
    EXPECT_EQ(seenData.uGroup1Index, 0u);
    EXPECT_EQ(seenData.uGroup2Index, 0u);
    EXPECT_EQ(seenData.uSelectedDataSet, 0u);
    EXPECT_EQ(seenData.bUseFullDataRange, 1);
    EXPECT_EQ(seenData.uGroupCount, 2u);
    // Copied back, and never stored.
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(Read("CommonDataSection", "uGroup1Index"), "4");
    EXPECT_EQ(Read("NormalizeSection", "eBaselineRegion"), "55");
}

TEST_F(ShowSequence, ResetLoadNeedsDataOptionsAndALiveRun) {
    params.bUseDataOptions = 0;
    Show(kReset);
    EXPECT_STREQ(seenData.szUnitarySelectionList1, "2");
    params.bUseDataOptions = 1;
    for (const bool readOnly : {true, false}) {
        params.bReadOnly = readOnly;
        params.bDeferredRun = !readOnly;
        CopyText(data.szUnitarySelectionList1, "2");
        Show(kReset);
        EXPECT_STREQ(seenData.szUnitarySelectionList1, "2");
    }
}

// --- Hooks of a row

TEST_F(ShowSequence, PrepareChangesTheWorkingCopiesAfterTheRestore) {
    Row row = kPlain;
    row.pPrepare = [](Options* o, ZXADLG_DataOptions* d, const ZXADLG_DlgParams& p) {
        if (p.bFitSelectRegionOne != 0) d->eAnalysisRegion = 1;
        o->common.bWriteRegionInfo = p.bFitOptionByte;
    };
    Write("NormalizeDataSection", "eAnalysisRegion", "7");
    Show(row, ZXADLG_CANCEL);
    EXPECT_EQ(seenData.eAnalysisRegion, 7);
    params.bFitSelectRegionOne = 1;
    params.bFitOptionByte = 1;
    Show(row, ZXADLG_CANCEL);
    EXPECT_EQ(seenData.eAnalysisRegion, 1);
    EXPECT_EQ(seenOptions.common.bWriteRegionInfo, 1);
    EXPECT_EQ(data.eAnalysisRegion, 0);
    EXPECT_EQ(options.common.bWriteRegionInfo, 0);
}

TEST_F(ShowSequence, ReturnFieldByFieldTakesThePlaceOfTheFlatCopy) {
    Row row = kPlain;
    row.pReturn = [](Options* to, const Options& from) {
        to->eBaselineRegion = from.eBaselineRegion;
    };
    EXPECT_EQ(Show(row), 1);
    EXPECT_EQ(options.eBaselineRegion, 55u);
    EXPECT_EQ(options.bUseAllPoints, 0);
    EXPECT_EQ(options.common.bDynamicLink, 0);
    // What is stored is what the dialog left.
    EXPECT_EQ(Read("NormalizeSection", "bUseAllPoints"), "TRUE");
    options.eBaselineRegion = 3;
    EXPECT_EQ(Show(row, ZXADLG_CANCEL), 2);
    EXPECT_EQ(options.eBaselineRegion, 3u);
}

TEST_F(ShowSequence, DataKeysAreStoredOnlyWhereTheRowSaysSo) {
    Row row = kPlain;
    row.pStoresData = [](const Options& o) { return o.bUseAllPoints == 0; };
    EXPECT_EQ(Show(row), 1);  // the dialog set it
    EXPECT_EQ(data.uGroup1Index, 9u);
    EXPECT_EQ(Read("NormalizeSection", "eBaselineRegion"), "55");
    EXPECT_EQ(Read("NormalizeDataSection", "uGroup1Index"), "(none)");
    EXPECT_EQ(NamesAsked(), 3u);
    EXPECT_EQ(Show(row,
                   [](Options* o, ZXADLG_DataOptions* d) {
                       o->bUseAllPoints = 0;
                       d->uGroup1Index = 8;
                       return 1;
                   }),
              1);
    EXPECT_EQ(Read("NormalizeDataSection", "uGroup1Index"), "8");
}

}  // namespace
