// The simulated data and what the dialogs are told of them.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

#include "Analyses.h"
#include "HostDataSource.h"
#include "MembraneModel.h"
#include "RecordFields.h"
#include "host_test.h"

namespace {

using zxhost::HostDataSource;
using zxhost::Recording;
using zxhost::SimulateRecording;
using zxhost::Simulation;

double Mean(const std::vector<double>& values, std::size_t first, std::size_t last) {
    double sum = 0.0;
    for (std::size_t i = first; i <= last; ++i) sum += values[i];
    return sum / static_cast<double>(last - first + 1);
}

TEST(SimulatedRecording, IsAVoltageClampFamilyOfTwelveSweeps) {
    const Recording recording = SimulateRecording(Simulation::kFamily);
    ASSERT_EQ(recording.groups.size(), 2u);
    EXPECT_EQ(recording.PointCount(), 2000u);
    double before = -1e9;
    for (std::size_t sweep = 0; sweep < 12; ++sweep) {
        // The clamp holds the potential near its command; the delayed current grows with the step.
        const double command = -100.0 + 15.0 * static_cast<double>(sweep);
        const std::vector<double>& potential = recording.groups[1].sets[sweep].values;
        EXPECT_NEAR(Mean(potential, 0, 299), -80.0, 1.0);
        EXPECT_LT(std::fabs(Mean(potential, 1100, 1299) - command), 60.0);
        const double steady = Mean(recording.groups[0].sets[sweep].values, 1100, 1299);
        EXPECT_GT(steady, before);
        before = steady;
    }
    // Outward at the last step, inward below the leak's own potential.
    EXPECT_GT(before, 2000.0);
    EXPECT_LT(Mean(recording.groups[0].sets[0].values, 1100, 1299), 0.0);
}

TEST(SimulatedRecording, IsTheSameOnEverySystem) {
    const Recording recording = SimulateRecording(Simulation::kFamily);
    std::uint64_t hash = 14695981039346656037u;
    for (const zxhost::Group& group : recording.groups) {
        for (const zxhost::Set& set : group.sets) {
            for (double value : set.values) {
                std::uint64_t bits;
                std::memcpy(&bits, &value, sizeof bits);
                hash = (hash ^ bits) * 1099511628211u;
            }
        }
    }
    EXPECT_EQ(hash, 14489650367988753469u);
}

TEST(SimulatedRecording, ComesInEveryKindOfData) {
    EXPECT_EQ(SimulateRecording(Simulation::kFamily).waveforms.size(), 1u);
    EXPECT_EQ(SimulateRecording(Simulation::kFamily).regions.size(), 5u);
    const Recording bare = SimulateRecording(Simulation::kNoWaveform);
    EXPECT_EQ(bare.waveforms.size(), 0u);
    EXPECT_EQ(bare.kind, zxhost::DataKind::kRecording);
    const Recording second = SimulateRecording(Simulation::kSecondKind);
    EXPECT_EQ(second.kind, zxhost::DataKind::kSecondKind);
    const Recording sheet = SimulateRecording(Simulation::kSheet);
    EXPECT_EQ(sheet.kind, zxhost::DataKind::kSheet);
    EXPECT_EQ(
        sheet.Describe(),
        "Simulated results sheet: 5 columns (Step in mV, Peak in pA, Steady in pA, Tail in pA, "
        "Holding in pA), 12 rows");
    EXPECT_EQ(sheet.groups[0].sets[0].values.front(), -100.0);
}

TEST(HostDataSource, AnswersForARecording) {
    Recording recording = SimulateRecording(Simulation::kFamily);
    HostDataSource source(&recording, "store");
    EXPECT_STREQ(source.GetProfileName(), "store");
    EXPECT_EQ(source.GetDataKind(), 0u);
    EXPECT_EQ(source.GetGroupCount(), 2u);
    EXPECT_EQ(source.GetSetCount(1), 12u);
    EXPECT_EQ(source.GetSetCount(2), 0u);
    EXPECT_EQ(source.GetGroupCode(1), 101u);
    EXPECT_STREQ(source.GetGroupLabel(), "Signal");
    EXPECT_STREQ(source.GetSetLabel(), "Sweep");
    EXPECT_STREQ(source.GetGroupName(1), "Vm");
    EXPECT_EQ(source.GetGroupName(2), nullptr);
    EXPECT_STREQ(source.GetSetName(0, 11), "Sweep 12");
    EXPECT_EQ(source.GetSetName(0, 12), nullptr);
    EXPECT_STREQ(source.GetUnits(0, -1), "pA");
    EXPECT_EQ(source.GetSamplingFrequency(), 10000.0);
    EXPECT_EQ(source.GetActiveSet(0), 1u);
    EXPECT_EQ(source.GetActiveSet(9), 0u);
    uint32_t value = 9;
    EXPECT_STREQ(source.GetEpochName(0, &value), "Command potential");
    EXPECT_EQ(value, 0u);
    EXPECT_EQ(source.GetEpochName(1, &value), nullptr);
    EXPECT_TRUE(source.IsGroupVisible(0));
    EXPECT_FALSE(source.IsGroupVisible(5));
    EXPECT_TRUE(source.IsSetVisible(0, 3));
    EXPECT_EQ(source.GetRegionId(9), -1);
    EXPECT_EQ(source.GetBlobSize(), 16u);
}

TEST(HostDataSource, GivesThePointsOfARegion) {
    Recording recording = SimulateRecording(Simulation::kFamily);
    HostDataSource source(&recording, "");
    EXPECT_EQ(source.GetProfileName(), nullptr);
    ZXADLG_DataRange range = {};
    range.uRegionId = 1;
    EXPECT_EQ(source.GetPointCount(0, 0, &range, 0), 100u);
    EXPECT_EQ(source.GetXValues(0, 0, &range, 0), recording.x.data() + 100);
    EXPECT_EQ(source.GetYValues(1, 2, &range, 0), recording.groups[1].sets[2].values.data() + 100);
    EXPECT_EQ(source.GetPointCount(0, 0, nullptr, 0), 2000u);
    EXPECT_EQ(source.GetPointCount(0, 12, nullptr, 0), 0u);
    EXPECT_EQ(source.GetXValues(0, 12, nullptr, 0), nullptr);
    ZXADLG_RegionInfo info = {};
    EXPECT_TRUE(source.GetRegionInfo(1, &info, 0, 0));
    EXPECT_EQ(info.uFirstPoint, 100u);
    EXPECT_EQ(info.uLastPoint, 199u);
    EXPECT_EQ(info.dStart, 10.0);
    EXPECT_FALSE(source.GetRegionInfo(5, &info, 0, 0));
    // Cursors that the user dragged past each other still enclose a region.
    source.SetCursor(1, 500);
    EXPECT_EQ(source.GetCursor(1), 500);
    EXPECT_TRUE(source.GetRegionInfo(1, &info, 0, 0));
    EXPECT_EQ(info.uFirstPoint, 199u);
    EXPECT_EQ(info.uLastPoint, 500u);
    source.SetCursor(1, 999999);
    EXPECT_TRUE(source.GetRegionInfo(1, &info, 0, 0));
    EXPECT_EQ(info.uLastPoint, 1999u);
    source.SetCursor(5, 1);
    EXPECT_EQ(source.GetCursor(5), 0);
}

TEST(HostDataSource, GivesTheRowsOfASheet) {
    Recording sheet = SimulateRecording(Simulation::kSheet);
    HostDataSource source(&sheet, "");
    EXPECT_STREQ(source.GetSetLabel(), "Column");
    EXPECT_STREQ(source.GetUnits(0, -1), "mV");
    ZXADLG_DataRange range = {};
    range.uFirstIndex = 2;
    range.uLastIndex = 5;
    EXPECT_EQ(source.GetPointCount(0, 1, &range, 0), 4u);
    EXPECT_EQ(source.GetXValues(0, 1, &range, 0), sheet.groups[0].sets[1].values.data() + 2);
    range.uLastIndex = 12;
    EXPECT_EQ(source.GetPointCount(0, 1, &range, 0), 0u);
    range.bUseFullRange = 1;
    EXPECT_EQ(source.GetPointCount(0, 1, &range, 0), 12u);
}

TEST(RecordFields, NamesEveryByteOfTheSelectionAndTellsWhatChanged) {
    ZXADLG_DataOptions before = {}, after = {};
    after.eDataSet1SelectionMode = 3;
    std::strcpy(after.szUnitarySelectionList1, "0..4");
    after.adConstants[5] = 0.1;
    after.aRegions[49].nRegionId = -1;
    std::string changed;
    for (const zxhost::FieldValue& value :
         zxhost::CompareRecords("ZXADLG_DataOptions", &before, &after)) {
        if (value.changed) changed += value.name + " " + value.before + " " + value.after + "\n";
    }
    EXPECT_EQ(changed,
              "aRegions[49].nRegionId 0 -1\neDataSet1SelectionMode 0 3\n"
              "szUnitarySelectionList1 \"\" \"0..4\"\nadConstants[5] 0 0.1\n");
}

// Bytes of a record that no field of its table shows. Byte k of all fields changes at once, which
// large records need.
std::size_t UnseenBytes(const char* type, std::size_t size) {
    const ZXADLG_FieldInfo* fields = nullptr;
    const std::uint32_t count = ZXADLG_GetRecordFields(type, &fields);
    std::vector<std::pair<std::size_t, std::size_t>> places;  // of each value, and its size
    std::size_t largest = 0;
    for (std::uint32_t f = 0; f < count; ++f) {
        const ZXADLG_FieldInfo& field = fields[f];
        for (std::uint32_t i = 0; i < field.count; ++i) {
            for (std::uint32_t j = 0; j < field.innerCount; ++j)
                places.emplace_back(field.offset + i * field.stride + j * field.size, field.size);
        }
        largest = std::max<std::size_t>(largest, field.size);
    }
    const std::vector<unsigned char> before(size, 0);
    std::vector<bool> seen(size, false);
    for (std::size_t k = 0; k < largest; ++k) {
        std::vector<unsigned char> after = before;
        for (const auto& [place, bytes] : places) {
            if (k < bytes) after[place + k] = 1;
        }
        const auto values = zxhost::CompareRecords(type, before.data(), after.data());
        for (std::size_t v = 0; v < values.size(); ++v) {
            const auto& [place, bytes] = places[v];
            if (k < bytes && values[v].changed) seen[place + k] = true;
        }
    }
    return static_cast<std::size_t>(std::count(seen.begin(), seen.end(), false));
}

TEST(RecordFields, ShowEveryByteOfTheOptionRecordsButTheirPadding) {
    struct Row {
        const char* name;
        std::size_t padding;
    };
    // Of curve fitting: what is reserved, the ends of its texts, padding, and what has no key.
    constexpr std::size_t kFitUnseen = 2220 + (255 + 20 * 255 + 44) + 8 + 163;
    // Of signal processing: what is reserved, in the record and its four sections, and padding.
    constexpr std::size_t kSigprocUnseen = 8 + 3 * (3 + 28) + 54 + 4 + 16 + 4 + 4 + 4 + 2;
    // Of arithmetic: what is reserved, padding, and what stands behind the end of its texts.
    constexpr std::size_t kArithmeticUnseen = 3 * 254 + 999 + 1000 + 1 + 1 + 3 + 2;
    // Of each search of the measurements: what is reserved and padding. The polarities that run
    // over their place show the rest.
    constexpr std::size_t kMeasurementUnseen = 24 * (6 + 4);
    // A common block has two bytes of padding; texts show what stands before their end alone.
    const Row kRows[] = {{"normalize", 5},
                         {"time-shift", 2},
                         {"curve-fit", kFitUnseen},
                         {"filter", kSigprocUnseen},
                         {"power-spectrum", kSigprocUnseen},
                         {"correlation", 4 + 68 + 2},
                         {"histogram", 1 + 2 + 130 + 2},
                         {"arithmetic", kArithmeticUnseen},
                         {"new-column", kArithmeticUnseen},
                         {"measurement", kMeasurementUnseen},
                         {"force-values", 2},
                         {"adjust-baseline", 2},
                         {"leak-subtraction", 6},
                         {"resistance", 2},
                         {"sampling-rate", 2},
                         {"current-voltage", 3},
                         {"trace-vs-trace", 4},
                         {"subtract-control", 511 + 12 + 1}};
    EXPECT_EQ(std::size(kRows), zxhost::kAnalyses.size());
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.name);
        const zxhost::Analysis* analysis = zxhost::FindAnalysis(row.name);
        ASSERT_NE(analysis, nullptr);
        EXPECT_EQ(UnseenBytes(analysis->record, analysis->size), row.padding);
    }
}

TEST(RecordFields, SetsParametersByName) {
    ZXADLG_DlgParams params = zxhost::DefaultParams();
    std::string error;
    EXPECT_TRUE(zxhost::ApplyParams("bShowDestination=0,bReadOnly=1", &params, &error));
    EXPECT_EQ(params.bShowDestination, 0);
    EXPECT_EQ(params.bReadOnly, 1);
    EXPECT_FALSE(zxhost::ApplyParams("bReadOnly=0,bNone=1", &params, &error));
    EXPECT_EQ(error, "there is no parameter \"bNone\"; zxhost list names them");
    EXPECT_EQ(params.bReadOnly, 1);
    EXPECT_FALSE(zxhost::ApplyParams("bReadOnly=2", &params, &error));
    EXPECT_EQ(error, "\"bReadOnly=2\" should be NAME=0 or NAME=1");
    EXPECT_EQ(zxhost::kParamNames.size(), sizeof(ZXADLG_DlgParams));
}

}  // namespace
