// Every exported dialog, in every mode, over every kind of data and over hostile hosts, under a
// user who does anything: the promises that hold for all of them.

#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "ZXADLG.h"
#include "fixtures/HardLimit.h"
#include "fixtures/LeakCheck.h"
#include "fixtures/RandomUser.h"
#include "fixtures/ScratchStore.h"
#include "fixtures/TestDataSource.h"
#include "fixtures/TestWindows.h"
#include "store/ProfileStore.h"

namespace {

using test_support::RandomUser;
using test_support::TestDataSource;

class NoFiles : public ZXADLG_CDlgFileSource {
  public:
    virtual ~NoFiles() = default;
    int32_t GetGroupCount() override { return 3; }
    uint32_t GetFileHandle() override { return 1; }
    const char* GetGroupName(uint32_t) override { return "IN"; }
    const char* GetTitle(HWND__*, HWND__*, intptr_t) override { return nullptr; }
    const char* BrowseForFile(HWND__*) override { return nullptr; }
    void SelectFile(uint32_t) override {}
};

// What one opening works on: the bytes of the option record, the data record, the host.
struct Opening {
    std::vector<unsigned char> options;
    ZXADLG_DataOptions data = {};
    TestDataSource source;
    ZXADLG_DlgParams params = {};
};

struct DialogRow {
    const char* szName;
    std::size_t nSize;
    bool bWritesDataDirectly;
    std::function<int(Opening&)> show;
};

template <class Record>
using TabbedShow = int32_t(ZXADLG_CALL*)(HWND__*, Record*, ZXADLG_DataOptions*,
                                         ZXADLG_CDlgDataSource*, const ZXADLG_DlgParams*);

template <class Record>
DialogRow Row(const char* szName, TabbedShow<Record> pShow, bool bWritesDataDirectly = false) {
    return {szName, sizeof(Record), bWritesDataDirectly, [pShow](Opening& o) {
                return pShow(nullptr, reinterpret_cast<Record*>(o.options.data()), &o.data,
                             &o.source, &o.params);
            }};
}

const std::vector<DialogRow>& Rows() {
    static const std::vector<DialogRow> rows = {
        Row("Normalize", &ZXADLG_ShowNormalizeDialog),
        Row("Time Shift", &ZXADLG_ShowTimeShiftDialog),
        Row("Force Values", &ZXADLG_ShowForceValuesDialog),
        Row("Adjust Baseline", &ZXADLG_ShowAdjustBaselineDialog),
        Row("Leak Subtraction", &ZXADLG_ShowLeakSubtractionDialog),
        Row("Resistance", &ZXADLG_ShowResistanceDialog),
        Row("Current/Voltage", &ZXADLG_ShowCurrentVoltageDialog, true),
        Row("Trace vs. Trace", &ZXADLG_ShowTraceVsTraceDialog, true),
        {"Data Reduction/Interpolation", sizeof(ZXADLG_ModifySampleRateOptions), false,
         [](Opening& o) {
             return ZXADLG_ShowModifySamplingRateDialog(
                 nullptr, reinterpret_cast<ZXADLG_ModifySampleRateOptions*>(o.options.data()),
                 &o.source, &o.params);
         }},
        {"Subtract Control", sizeof(ZXADLG_SubtractControlOptions), false,
         [](Opening& o) {
             NoFiles files;
             return ZXADLG_ShowSubtractControlDialog(
                 nullptr, reinterpret_cast<ZXADLG_SubtractControlOptions*>(o.options.data()),
                 nullptr, &o.source, &files, &o.params);
         }},
    };
    return rows;
}

struct SourceRow {
    const char* szName;
    bool bHostile;
    void (*build)(TestDataSource&);
};

const SourceRow kSources[] = {
    {"a data file", false, [](TestDataSource& s) { s.Kind(0); }},
    {"other sets", false, [](TestDataSource& s) { s.Kind(1); }},
    {"a sheet", false, [](TestDataSource& s) { s.Kind(2); }},
    {"null texts", true, [](TestDataSource& s) { s.NullTexts().NullArrays(); }},
    {"no data", true,
     [](TestDataSource& s) {
         s.Groups({});
         s.regions.clear();
         s.waveforms.clear();
     }},
    {"no points, no waveform", true,
     [](TestDataSource& s) {
         s.Points(0);
         s.waveforms.clear();
         s.samplingFrequency = 0.0;
     }},
};

enum class Mode { kNormal, kReadOnly, kDeferred };
constexpr Mode kModes[] = {Mode::kNormal, Mode::kReadOnly, Mode::kDeferred};

class EveryDialog : public testing::Test {
  protected:
    EveryDialog() : m_bOld(SetUseProfileFile(true)) {}
    ~EveryDialog() override { SetUseProfileFile(m_bOld); }

    Opening Open(const DialogRow& dialog, const SourceRow& source, Mode eMode) const {
        Opening o;
        o.options.assign(dialog.nSize, 0);
        o.source.Region(8, "Whole trace", 0, 999).Region(3, "Cursors 1..2", 100, 199);
        o.source.Waveform(5, "Analog OUT #0");
        source.build(o.source);
        o.source.Profile(m_store.ProfileFile());
        o.data.eDataSet1SelectionMode = 3;
        o.data.eDataGroup1SelectionMode = 1;
        std::strcpy(o.data.szUnitarySelectionList1, "0..2");
        o.params.bUseDataOptions = 1;
        o.params.bShowGroupSelector = 1;
        o.params.bShowDestination = 1;
        o.params.bShowDynamicLink = 1;
        o.params.bShowWriteRegionInfo = 1;
        o.params.bReadOnly = eMode == Mode::kReadOnly;
        o.params.bDeferredRun = eMode == Mode::kDeferred;
        return o;
    }

    // Opens the dialog under a random user and checks what every dialog promises.
    void Play(const DialogRow& dialog, const SourceRow& source, Mode eMode, int nEvents, int nEnd) {
        SCOPED_TRACE(std::string(dialog.szName) + " over " + source.szName + ", mode " +
                     std::to_string(static_cast<int>(eMode)) + ", end " + std::to_string(nEnd));
        Opening o = Open(dialog, source, eMode);
        const std::vector<unsigned char> optionsBefore = o.options;
        const ZXADLG_DataOptions dataBefore = o.data;
        const std::string storeBefore = m_store.ReadFile();
        int nResult;
        {
            RandomUser user(m_uSeed++, nEvents, nEnd);
            nResult = dialog.show(o);
        }
        ASSERT_TRUE(nResult == 1 || nResult == 2) << nResult;
        const bool bHandsBack = nResult == 1 && eMode != Mode::kReadOnly;
        if (bHandsBack) ++m_nHandedBack;
        if (!bHandsBack) {
            EXPECT_EQ(o.options, optionsBefore);
            if (!dialog.bWritesDataDirectly) {
                EXPECT_EQ(std::memcmp(&o.data, &dataBefore, sizeof dataBefore), 0);
            }
        }
        if (!bHandsBack || eMode == Mode::kDeferred) {
            EXPECT_EQ(m_store.ReadFile(), storeBefore);
            return;
        }
        ExpectShownAsStored(dialog, source);
    }

    // A second opening that is accepted at once stores just what is stored.
    void ExpectShownAsStored(const DialogRow& dialog, const SourceRow& source) {
        const std::string stored = m_store.ReadFile();
        EXPECT_NE(stored, "");
        Opening again = Open(dialog, source, Mode::kNormal);
        RandomUser user(0, 0, IDOK);
        EXPECT_EQ(dialog.show(again), 1);
        EXPECT_EQ(m_store.ReadFile(), stored);
    }

    test_support::ScratchStore m_store;
    bool m_bOld;
    unsigned m_uSeed = 20261120u;
    int m_nHandedBack = 0;
};

TEST_F(EveryDialog, KeepsItsPromisesUnderARandomUser) {
    const test_support::HardLimit limit(600000);
    // The budget is that of one long run; here it is spread over many short ones.
    const int nEvents = test_support::RandomEventBudget() / 50;
    {
        Opening first = Open(Rows()[0], kSources[0], Mode::kReadOnly);
        RandomUser user(1, 0);
        Rows()[0].show(first);
    }
    const test_support::LeakCheck leaks;
    for (const DialogRow& dialog : Rows()) {
        for (const SourceRow& source : kSources) {
            for (const Mode eMode : kModes) {
                const int nShare = source.bHostile ? nEvents / 10 : nEvents;
                Play(dialog, source, eMode, nShare, IDCANCEL);
                Play(dialog, source, eMode, nShare / 4, IDOK);
            }
        }
    }
    test_support::PumpMessages();
    EXPECT_EQ(leaks.Growth(), "");
    // The promises of OK were put to the test often enough.
    EXPECT_GT(m_nHandedBack, static_cast<int>(Rows().size()) * 4);
}

}  // namespace
