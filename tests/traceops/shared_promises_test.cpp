// What all tabbed trace dialogs promise alike: nothing but OK changes the records or the store, and
// hostile hosts and stores break nothing.

#include <functional>
#include <limits>
#include <vector>

#include "TraceopsTest.h"
#include "fixtures/PageState.h"

namespace {

using namespace traceops_test;
using test_support::Disturb;
using test_support::IsInput;
using test_support::PageState;
using test_support::StateOf;
using test_support::VisibleControls;

// A case edits a few fields of its options page, and knows how the edited page looks.
struct NormalizeCase {
    using Record = ZXADLG_NormalizeOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowNormalizeDialog;
    static constexpr const char* kTitle = "Normalize";
    static constexpr const char* kSection = "NormalizeSection";
    static constexpr const char* kDataSection = "NormalizeDataSection";
    static constexpr const char* kKey = "eBaselineRegion";
    static void Edit(DialogScript& script) {
        script.Click(IDC_NORMALIZE_REGIONS).Choose(IDC_NORMALIZE_BASELINE, "Cursors 3..4");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectChecked(IDC_NORMALIZE_REGIONS, BST_CHECKED)
            .ExpectSelected(IDC_NORMALIZE_BASELINE, "Cursors 3..4");
    }
};

struct TimeShiftCase {
    using Record = ZXADLG_TimeShiftOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowTimeShiftDialog;
    static constexpr const char* kTitle = "Time Shift";
    static constexpr const char* kSection = "TimeShiftSection";
    static constexpr const char* kDataSection = "TimeShiftDataSection";
    static constexpr const char* kKey = "eAlignmentMode";
    static void Edit(DialogScript& script) {
        script.Click(IDC_SHIFT_RIGHT)
            .Type(IDC_SHIFT_VALUE, "7.5")
            .Click(IDC_SHIFT_ALIGN_PEAKS)
            .Click(IDC_SHIFT_NEGATIVE)
            .Click(IDC_SHIFT_ZEROS)
            .Choose(IDC_SHIFT_GROUP, "IN 1")
            .Choose(IDC_SHIFT_SEARCH_REGION, "Cursors 1..2");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectChecked(IDC_SHIFT_RIGHT, BST_CHECKED)
            .ExpectText(IDC_SHIFT_VALUE, "7.5")
            .ExpectChecked(IDC_SHIFT_ALIGN_PEAKS, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_NEGATIVE, BST_CHECKED)
            .ExpectChecked(IDC_SHIFT_ZEROS, BST_CHECKED)
            .ExpectSelected(IDC_SHIFT_GROUP, "IN 1")
            .ExpectSelected(IDC_SHIFT_SEARCH_REGION, "Cursors 1..2");
    }
};

struct ForceValuesCase {
    using Record = ZXADLG_ForceValuesOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowForceValuesDialog;
    static constexpr const char* kTitle = "Force Values";
    static constexpr const char* kSection = "ForceValuesSection";
    static constexpr const char* kDataSection = "ForceValuesDataSection";
    static constexpr const char* kKey = "eRegionToForce";
    static void Edit(DialogScript& script) {
        script.Choose(IDC_FORCE_REGION, "Cursors 3..4")
            .Click(IDC_FORCE_FIXED_VALUE)
            .Type(IDC_FORCE_VALUE, "7.5");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectSelected(IDC_FORCE_REGION, "Cursors 3..4")
            .ExpectChecked(IDC_FORCE_FIXED_VALUE, BST_CHECKED)
            .ExpectText(IDC_FORCE_VALUE, "7.5");
    }
};

struct AdjustBaselineCase {
    using Record = ZXADLG_AdjustBaselineOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowAdjustBaselineDialog;
    static constexpr const char* kTitle = "Adjust Baseline";
    static constexpr const char* kSection = "AdjustBaseline";
    static constexpr const char* kDataSection = "AdjustBaselineDataSection";
    static constexpr const char* kKey = "eAdjustMode";
    static void Edit(DialogScript& script) {
        script.Choose(IDC_BASELINE_REGION, "Cursors 3..4")
            .Click(IDC_BASELINE_FIXED_VALUE)
            .Type(IDC_BASELINE_VALUE, "7.5");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectSelected(IDC_BASELINE_REGION, "Cursors 3..4")
            .ExpectChecked(IDC_BASELINE_FIXED_VALUE, BST_CHECKED)
            .ExpectText(IDC_BASELINE_VALUE, "7.5");
    }
};

struct LeakSubtractionCase {
    using Record = ZXADLG_LeakSubtractionOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowLeakSubtractionDialog;
    static constexpr const char* kTitle = "Leak Subtraction";
    static constexpr const char* kSection = "LeakSubtractionSection";
    static constexpr const char* kDataSection = "LeakSubtractionDataSection";
    static constexpr const char* kKey = "uWaveformIndex";
    static void Edit(DialogScript& script) {
        script.Choose(IDC_WAVEFORM, "Analog OUT #2")
            .Choose(IDC_CONVERSION_FACTOR, 4)
            .Type(IDC_PASSIVE_RESISTANCE, "7.5");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectSelected(IDC_WAVEFORM, "Analog OUT #2")
            .ExpectSelected(IDC_CONVERSION_FACTOR, "1000000 (for mA and mV)")
            .ExpectText(IDC_PASSIVE_RESISTANCE, "7.5");
    }
};

struct ResistanceCase {
    using Record = ZXADLG_ResistanceOptions;
    static constexpr ShowFunction<Record> kShow = &ZXADLG_ShowResistanceDialog;
    static constexpr const char* kTitle = "Resistance";
    static constexpr const char* kSection = "ResistanceSection";
    static constexpr const char* kDataSection = "ResistanceDataSection";
    static constexpr const char* kKey = "uWaveformIndex";
    static void Edit(DialogScript& script) {
        script.Choose(IDC_WAVEFORM, "Analog OUT #2")
            .Choose(IDC_CONVERSION_FACTOR, 4)
            .Choose(IDC_EXPERIMENT_TYPE, "Current Clamp");
    }
    static void ExpectEdited(DialogScript& script) {
        script.ExpectSelected(IDC_WAVEFORM, "Analog OUT #2")
            .ExpectSelected(IDC_CONVERSION_FACTOR, "1000000 (for mA and mV)")
            .ExpectSelected(IDC_EXPERIMENT_TYPE, "Current Clamp");
    }
};

template <class Case>
class TraceDialogs : public TraceDialog<typename Case::Record> {
  protected:
    using Record = typename Case::Record;
    TraceDialogs() : TraceDialog<Record>(Case::kShow) {}

    bool SameRecords(const Record& optionsBefore, const ZXADLG_DataOptions& dataBefore) const {
        return std::memcmp(&this->options, &optionsBefore, sizeof optionsBefore) == 0 &&
               std::memcmp(&this->data, &dataBefore, sizeof dataBefore) == 0;
    }
};

using Cases = testing::Types<NormalizeCase, TimeShiftCase, ForceValuesCase, AdjustBaselineCase,
                             LeakSubtractionCase, ResistanceCase>;
TYPED_TEST_SUITE(TraceDialogs, Cases);

TYPED_TEST(TraceDialogs, OkHandsTheEditsBackAndDescribesTheData) {
    DialogScript script;
    TypeParam::Edit(script);
    script.ExpectTitle(TypeParam::kTitle)
        .Click(IDC_DESTINATION_REPLACE)
        .Click(IDC_DYNAMIC_LINK)
        .Click(IDC_WRITE_REGION_INFO);
    this->ShowAndAccept(script);
    EXPECT_EQ(this->options.common.eDestinationOption, 1);
    EXPECT_EQ(this->options.common.bDynamicLink, 1);
    EXPECT_EQ(this->options.common.bWriteRegionInfo, 1);
    EXPECT_EQ(this->data.uGroupCount, 2u);
    EXPECT_EQ(this->data.uRegionCount, 3u);
    DialogScript again;
    TypeParam::ExpectEdited(again);
    this->ShowAndCancel(again);
}

TYPED_TEST(TraceDialogs, ResultControlsShowAsTheParametersSay) {
    const struct {
        uint8_t ZXADLG_DlgParams::*parameter;
        std::vector<int> ids;
    } rows[] = {
        {&ZXADLG_DlgParams::bShowDestination,
         {IDC_DESTINATION_GROUP, IDC_DESTINATION_APPEND, IDC_DESTINATION_REPLACE}},
        {&ZXADLG_DlgParams::bShowDynamicLink, {IDC_DYNAMIC_LINK}},
        {&ZXADLG_DlgParams::bShowWriteRegionInfo, {IDC_WRITE_REGION_INFO}},
    };
    for (const auto& shown : rows) {
        for (const auto& row : rows) this->params.*row.parameter = &row == &shown;
        DialogScript script;
        for (const auto& row : rows) {
            for (int id : row.ids) script.ExpectVisible(id, &row == &shown);
        }
        this->ShowAndCancel(script);
    }
}

TYPED_TEST(TraceDialogs, CancelLeavesTheRecordsAndTheStoreAsTheyWere) {
    this->UseStore();
    const auto optionsBefore = this->options;
    const auto dataBefore = this->data;
    DialogScript script;
    TypeParam::Edit(script);
    script.Click(IDC_DESTINATION_REPLACE).SelectTab("Data").Click(IDC_SETS_ACTIVE);
    this->ShowAndCancel(script);
    EXPECT_TRUE(this->SameRecords(optionsBefore, dataBefore));
    EXPECT_EQ(this->store.ReadFile(), "");
}

TYPED_TEST(TraceDialogs, CloseBoxAndEscapeAreCancel) {
    const auto optionsBefore = this->options;
    DialogScript frame;
    TypeParam::Edit(frame);
    frame.CloseByFrame();
    EXPECT_EQ(this->Show(frame), 2);
    DialogScript key;
    TypeParam::Edit(key);
    key.Press(VK_ESCAPE);
    EXPECT_EQ(this->Show(key), 2);
    EXPECT_EQ(std::memcmp(&this->options, &optionsBefore, sizeof optionsBefore), 0);
}

TYPED_TEST(TraceDialogs, OkStoresAndASecondOpeningShowsIt) {
    this->UseStore();
    DialogScript script;
    TypeParam::Edit(script);
    this->ShowAndAccept(script);
    EXPECT_NE(this->Stored(TypeParam::kSection, TypeParam::kKey), "(none)");
    EXPECT_EQ(this->Stored(TypeParam::kDataSection, "eDataSet1SelectionMode"), "1");
    std::memset(&this->options, 0, sizeof this->options);
    DialogScript again;
    TypeParam::ExpectEdited(again);
    this->ShowAndCancel(again);
}

TYPED_TEST(TraceDialogs, DeferredRunReadsAndWritesNoStoreButHandsTheEditsBack) {
    this->UseStore();
    DialogScript first;
    this->ShowAndAccept(first);
    const std::string stored = this->store.ReadFile();
    EXPECT_NE(stored, "");

    this->params.bDeferredRun = 1;
    this->data.uGroupCount = 77;
    const auto before = this->options;
    DialogScript script;
    TypeParam::Edit(script);
    this->ShowAndAccept(script);
    EXPECT_EQ(this->store.ReadFile(), stored);
    EXPECT_NE(std::memcmp(&this->options, &before, sizeof before), 0);
    // The description of the data is the host's own.
    EXPECT_EQ(this->data.uGroupCount, 77u);
    // What is shown is the record, not the store.
    DialogScript again;
    TypeParam::ExpectEdited(again);
    this->ShowAndCancel(again);
}

TYPED_TEST(TraceDialogs, ReadOnlyUndoesEveryChangeAndTouchesNothing) {
    this->UseStore();
    this->params.bReadOnly = 1;
    const auto optionsBefore = this->options;
    const auto dataBefore = this->data;
    std::size_t controls = 0;
    DialogScript script;
    script.ExpectTitle(std::string(TypeParam::kTitle) + " (read only)")
        .ExpectVisible(IDOK, false)
        .ExpectText(IDCANCEL, "Close")
        .Do([&](HWND dialog) {
            const std::string before = PageState(dialog);
            for (HWND control : VisibleControls(dialog)) {
                SCOPED_TRACE(StateOf(control));
                ++controls;
                EXPECT_FALSE(IsInput(control) && IsWindowEnabled(control));
                Disturb(control);
                EXPECT_EQ(PageState(dialog), before);
            }
        })
        .Ungrey(IDC_DYNAMIC_LINK)
        .Click(IDC_DYNAMIC_LINK)
        .ExpectFocus(IDCANCEL);
    this->ShowAndCancel(script);
    EXPECT_GT(controls, 8u);
    EXPECT_TRUE(this->SameRecords(optionsBefore, dataBefore));
    EXPECT_EQ(this->store.ReadFile(), "");
}

TYPED_TEST(TraceDialogs, WithoutDataOptionsThereIsOneTabAndTheDataRecordIsNeverWritten) {
    this->params.bUseDataOptions = 0;
    const auto before = this->data;
    DialogScript script;
    script.Do([](HWND dialog) {
        EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETITEMCOUNT, 0, 0), 1);
    });
    this->ShowAndAccept(script);
    EXPECT_EQ(std::memcmp(&this->data, &before, sizeof before), 0);
}

TYPED_TEST(TraceDialogs, TabOfTheLastOkIsShownAgainAndCancelKeepsIt) {
    const auto expectTab = [](DialogScript& script, int tab) {
        script.Do([tab](HWND dialog) {
            EXPECT_EQ(SendMessageA(GetDlgItem(dialog, IDC_TABS), TCM_GETCURSEL, 0, 0), tab);
        });
    };
    DialogScript first;
    expectTab(first, 0);
    first.SelectTab("Data");
    this->ShowAndAccept(first);
    DialogScript second;
    expectTab(second, 1);
    second.SelectTab("Options");
    this->ShowAndCancel(second);
    // One tab less: the memory points past the end.
    this->params.bUseDataOptions = 0;
    DialogScript fewer;
    expectTab(fewer, 0);
    this->ShowAndCancel(fewer);
    this->params.bUseDataOptions = 1;
    this->params.bReadOnly = 1;
    DialogScript readOnly;
    expectTab(readOnly, 0);
    this->ShowAndCancel(readOnly);
    this->params.bReadOnly = 0;
    DialogScript last;
    expectTab(last, 1);
    last.SelectTab("Options");
    this->ShowAndAccept(last);
}

TYPED_TEST(TraceDialogs, SelectionOfNothingIsRefused) {
    // Time Shift has no tools: there the typed list is emptied.
    const bool tools = std::string(TypeParam::kTitle) != "Time Shift";
    DialogScript script;
    script.SelectTab("Data").Click(tools ? IDC_SETS_LISTED : IDC_SETS_TYPED);
    if (tools) {
        script.Click(IDC_SELECT_NONE);
    } else {
        script.Type(IDC_SET_LIST_TEXT, "");
    }
    script.Click(IDOK)
        .Answer(IDOK, "No data have been selected. At least one data set must be specified.")
        .SelectTab("Data");
    this->ShowAndCancel(script);
}

TYPED_TEST(TraceDialogs, RecordsFullOfRubbishAreShownAndCancelled) {
    this->params.bUseDataOptions = 0;
    for (const int byte : {0xFF, 0x7F, 0x80, 0x55}) {
        SCOPED_TRACE(byte);
        std::memset(&this->options, byte, sizeof this->options);
        const auto before = this->options;
        DialogScript look;
        look.ExpectChecked(IDC_DESTINATION_APPEND, BST_CHECKED);
        this->ShowAndCancel(look);
        EXPECT_EQ(std::memcmp(&this->options, &before, sizeof before), 0);
        DialogScript accept;
        accept.Click(IDC_DYNAMIC_LINK);
        this->ShowAndAccept(accept);
    }
}

TYPED_TEST(TraceDialogs, DataRecordsFullOfRubbishAreShownAndCancelled) {
    for (const int byte : {0xFF, 0x7F, 0x80}) {
        SCOPED_TRACE(byte);
        std::memset(&this->data, byte, sizeof this->data);
        const auto before = this->data;
        DialogScript script;
        script.SelectTab("Data");
        this->ShowAndCancel(script);
        EXPECT_EQ(std::memcmp(&this->data, &before, sizeof before), 0);
    }
}

TYPED_TEST(TraceDialogs, PoorSourcesAreShownInEveryMode) {
    const std::pair<const char*, std::function<void(Recording&)>> poverties[] = {
        {"rich", [](Recording&) {}},
        {"no regions", [](Recording& s) { s.regions.clear(); }},
        {"no waveforms", [](Recording& s) { s.waveforms.clear(); }},
        {"no groups", [](Recording& s) { s.Groups({}); }},
        {"no sets", [](Recording& s) { s.Sets(0); }},
        {"no points", [](Recording& s) { s.Points(0).NullArrays(); }},
        {"no texts", [](Recording& s) { s.NullTexts(); }},
        {"nothing",
         [](Recording& s) {
             s.regions.clear();
             s.waveforms.clear();
             s.Groups({}).NullTexts().NullArrays();
         }},
    };
    for (uint32_t kind = 0; kind < 3; ++kind) {
        for (const auto& [name, impoverish] : poverties) {
            SCOPED_TRACE(name);
            SCOPED_TRACE(kind);
            Recording poor;
            poor.Kind(kind);
            impoverish(poor);
            const auto optionsBefore = this->options;
            const auto dataBefore = this->data;
            const auto open = [&](DialogScript& script) {
                return script.Run([&] {
                    return this->show(nullptr, &this->options, &this->data, &poor, &this->params);
                });
            };
            DialogScript script;
            script.SelectTab("Data").Click(IDCANCEL);
            EXPECT_EQ(open(script), 2);
            EXPECT_TRUE(this->SameRecords(optionsBefore, dataBefore));
            this->params.bDeferredRun = 1;
            DialogScript deferred;
            deferred.Click(IDCANCEL);
            EXPECT_EQ(open(deferred), 2);
            this->params.bDeferredRun = 0;
            EXPECT_TRUE(this->SameRecords(optionsBefore, dataBefore));
            this->params.bUseDataOptions = 0;
            DialogScript accept;
            accept.Click(IDOK);
            EXPECT_EQ(open(accept), 1);
            this->params.bUseDataOptions = 1;
            this->options = optionsBefore;
        }
    }
}

TYPED_TEST(TraceDialogs, NullArgumentsOpenNothing) {
    EXPECT_EQ(TypeParam::kShow(nullptr, nullptr, &this->data, &this->source, &this->params), -1);
    EXPECT_EQ(TypeParam::kShow(nullptr, &this->options, &this->data, nullptr, &this->params), -1);
    EXPECT_EQ(TypeParam::kShow(nullptr, &this->options, &this->data, &this->source, nullptr), -1);
}

TYPED_TEST(TraceDialogs, ANullDataRecordIsRefusedOnlyWhereItTakesPart) {
    EXPECT_EQ(TypeParam::kShow(nullptr, &this->options, nullptr, &this->source, &this->params), -1);
    this->params.bUseDataOptions = 0;
    DialogScript script;
    TypeParam::Edit(script);
    script.Click(IDOK);
    EXPECT_EQ(script.Run([&] {
        return this->show(nullptr, &this->options, nullptr, &this->source, &this->params);
    }),
              1);
}

}  // namespace
