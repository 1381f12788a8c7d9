// The description of the data that is left in the data record for the host: the order in which the
// source is asked, and every field at its place.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "contract/CDataOptionsInterface.h"
#include "contract/NotificationCodes.h"
#include "fixtures/TestDataSource.h"
#include "framework/ADM_Wnd.h"
#include "text/BoundedText.h"

namespace {

using test_support::TestDataSource;

class DataInformation : public testing::Test {
  protected:
    CDataOptionsInterface& Model() {
        model = std::make_unique<CDataOptionsInterface>(&record, &source, &flags);
        return *model;
    }

    // What is asked from here on, without the kind of the data, which any question may need.
    std::vector<std::string> AskedBy(CDataOptionsInterface& m) {
        source.calls.clear();
        source.Record();
        EXPECT_TRUE(m.UpdateDataInfo());
        source.recording = false;
        std::vector<std::string> asked;
        for (const std::string& call : source.calls) {
            if (call != "GetDataKind()") asked.push_back(call);
        }
        return asked;
    }

    // The value of a field by its place in the record.
    template <class T>
    T At(std::size_t offset) const {
        T value;
        std::memcpy(&value, reinterpret_cast<const char*>(&record) + offset, sizeof value);
        return value;
    }
    std::string TextAt(std::size_t offset) const {
        return reinterpret_cast<const char*>(&record) + offset;
    }

    TestDataSource source;
    ZXADLG_DataOptions record = {};
    ZXADLG_DataTabFlags flags;
    std::unique_ptr<CDataOptionsInterface> model;
};

TEST_F(DataInformation, SourceIsAskedInThisOrder) {
    source.Groups({"IN 0", "IN 1"}).Sets(2).Points(3);
    source.Region(0, "Whole", 0, 2).Region(2, "Cursors", 1, 2);
    source.Waveform(7, "Wave A");
    source.blobSize = 12;
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    CopyText(record.szUnitarySelectionList1, "1");
    std::vector<std::string> want = {"GetActiveGroup()", "GetRegionCount()", "GetGroupCount()",
                                     "GetActiveSet(0)", "GetActiveSet(0)"};
    for (int id = 1; id <= 25; ++id) {
        want.insert(want.end(), {"GetRegionCount()", "GetRegionId(0)", "GetRegionId(1)"});
        want.push_back(id == 2 ? "GetRegionInfo(1,0,0)" : "GetRegionInfo(0,0,0)");
    }
    want.insert(want.end(), {"GetSamplingFrequency()", "GetBlobSize()", "CopyBlob(12)",
                             "GetEpochCount()", "GetEpochName(0)"});
    for (int g = 0; g < 16; ++g) want.push_back("IsGroupVisible(" + std::to_string(g) + ")");
    want.insert(want.end(),
                {"GetActiveGroup()", "GetSetCount(0)", "IsSetVisible(0,0)", "IsSetVisible(0,1)"});
    want.insert(want.end(), {"GetGroupCount()", "GetGroupCode(0)", "GetGroupName(0)",
                             "GetGroupCode(1)", "GetGroupName(1)"});
    want.insert(want.end(), {"GetRegionId(0)", "GetRegionInfo(0,0,0)", "GetRegionId(1)",
                             "GetRegionInfo(1,0,0)"});
    want.insert(
        want.end(),
        {"GetGroupCount()", "GetSetCount(0)", "GetGroupCount()", "GetSetCount(0)", "GetSetCount(1)",
         "GetSetCount(0)", "GetPointCount(0,1,{0,0,0,0,full})", "GetYValues(0,1,{0,0,0,0,full})"});
    want.insert(want.end(),
                {"HasUserList()", "IsSegmented()", "GetGroupCount()", "GetSetCount(0)"});
    EXPECT_EQ(AskedBy(Model()), want);
    EXPECT_EQ(source.calls[source.calls.size() - 3], "GetDataKind()");  // between these two
    EXPECT_EQ(source.calls[source.calls.size() - 4], "IsSegmented()");
}

TEST_F(DataInformation, SheetAsksRegionZeroOfTheCurrentGroupAndXColumn) {
    source.Kind(2).Sets(3);
    source.Region(5, "Rows", 10, 20);
    record.uPairedGroupIndex = 1;
    record.uIndepVarDataSetIndex = 2;
    int lookups = 0;
    for (const std::string& call : AskedBy(Model())) {
        EXPECT_NE(call, "GetSamplingFrequency()");
        EXPECT_NE(call, "GetEpochCount()");
        if (call.starts_with("GetRegionInfo")) {
            ++lookups;
            EXPECT_EQ(call, "GetRegionInfo(0,1,2)");
        }
    }
    EXPECT_EQ(lookups, 26);
    EXPECT_EQ(At<std::uint32_t>(2000 + 12), 1u);
    EXPECT_EQ(At<std::uint32_t>(2000 + 16), 2u);
    EXPECT_EQ(At<std::uint32_t>(0), 2u);
    // Sets of the current group, not of the active one.
    EXPECT_EQ(At<std::uint32_t>(392), 3u);
}

TEST_F(DataInformation, EveryFieldStandsAtItsPlace) {
    source.Groups({"First signal with a long name", "IN 1", "IN 2"}).Sets(4).Points(10);
    source.setCounts = {4, 6, 2};
    source.hiddenGroup = 1;
    source.hiddenEvery = 3;
    source.activeGroup = 1;
    source.activeSet = 3;
    source.segmented = source.userList = true;
    source.blobSize = 16;
    source.samplingFrequency = 2500.0;
    source.Region(0, "Whole", 0, 9).Region(1, "R1", 2, 5).Region(25, "R25", 3, 4);
    source.Waveform(3, "Wave A").Waveform(4, "A waveform with a very long name");
    record.eDataGroup1SelectionMode = 3;
    record.eDataSet1SelectionMode = 1;
    Model().SetUseDepVarList(true);
    ASSERT_TRUE(model->UpdateDataInfo());
    EXPECT_EQ(At<std::uint32_t>(0), 0u);
    EXPECT_EQ(TextAt(4), "First signal with a");
    EXPECT_EQ(At<std::uint32_t>(24), 700u);
    EXPECT_EQ(TextAt(28), "IN 1");
    EXPECT_EQ(At<std::uint32_t>(48), 701u);
    EXPECT_EQ(At<std::uint32_t>(388), 2u);
    EXPECT_EQ(At<std::uint32_t>(392), 4u);  // of the active group's six
    EXPECT_EQ(At<std::uint32_t>(396), 3u);
    EXPECT_EQ(At<std::uint32_t>(400), 4u);
    EXPECT_EQ(At<std::uint32_t>(404), 1u);
    EXPECT_EQ(At<std::uint32_t>(408), 3u);
    EXPECT_EQ(At<double>(416), 2500.0);
    EXPECT_EQ(At<double>(424), 0.0);
    EXPECT_EQ(At<double>(432), 509.0);
    EXPECT_EQ(At<std::uint8_t>(440), 1);
    EXPECT_EQ(At<std::uint32_t>(444), 16u);
    EXPECT_EQ(At<std::uint8_t>(448), 0x5A);
    EXPECT_EQ(At<std::uint8_t>(448 + 15), 0x5A);
    EXPECT_EQ(At<std::uint8_t>(448 + 16), 0);
    EXPECT_EQ(At<std::uint32_t>(648), 2u);
    EXPECT_EQ(At<std::uint32_t>(652), 5u);
    EXPECT_EQ(At<std::uint32_t>(648 + 8), 0u);  // no region 2: position 0
    EXPECT_EQ(At<std::uint32_t>(648 + 12), 9u);
    EXPECT_EQ(At<std::uint32_t>(648 + 24 * 8), 3u);
    EXPECT_EQ(At<std::uint32_t>(648 + 24 * 8 + 4), 4u);
    EXPECT_EQ(At<std::uint32_t>(848), 1u);
    for (std::size_t g = 0; g < 3; ++g) EXPECT_EQ(At<std::uint32_t>(852 + 4 * g), 2u);
    EXPECT_EQ(At<std::uint32_t>(852 + 12), 0u);
    EXPECT_EQ(At<std::uint32_t>(916), 2u);
    EXPECT_EQ(At<std::uint32_t>(920), 3u);
    EXPECT_EQ(TextAt(924), "Wave A");
    EXPECT_EQ(At<std::uint32_t>(944), 4u);
    EXPECT_EQ(TextAt(948), "A waveform with a v");
    EXPECT_EQ(TextAt(968), "0,2");
    EXPECT_EQ(TextAt(1000), "0..1,3..4");
    EXPECT_EQ(At<std::int32_t>(2040), 1);
    EXPECT_EQ(At<std::uint32_t>(2044), 2u);
    EXPECT_EQ(At<std::uint32_t>(2048), 5u);
    EXPECT_EQ(At<double>(2064), 0.1 * 2);
    EXPECT_EQ(At<double>(2072), 0.1 * 5);
    EXPECT_EQ(At<std::int32_t>(2080), 25);
    EXPECT_EQ(At<std::uint8_t>(4000), 1);
}

TEST_F(DataInformation, BlockIsZeroedAndTheSelectionIsNot) {
    std::memset(static_cast<void*>(&record), 0x7F, sizeof record);
    source.Kind(1).Groups({}).NullTexts().NullArrays();
    record.uFirstDataIndex = 8;
    Model().UpdateDataInfo();
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(&record);
    for (std::size_t i = 4; i < 4008; ++i) {
        // uActiveGroup and the kind are all that there is to say.
        ASSERT_EQ(bytes[i], 0) << i;
    }
    EXPECT_EQ(At<std::uint32_t>(0), 1u);
    EXPECT_EQ(record.eDataGroup2SelectionMode, 0x7F7F7F7F);
    EXPECT_EQ(record.uFirstDataIndex, 8u);
    EXPECT_EQ(record.eAnalysisRegion, 0x7F7F7F7F);
}

TEST_F(DataInformation, NoActiveSetIsStoredAsTheLargestNumber) {
    source.activeSet = 0;
    Model().UpdateDataInfo();
    EXPECT_EQ(At<std::uint32_t>(852), 0xFFFFFFFFu);
}

TEST_F(DataInformation, ActiveSetsAreAllThoseOfTheSelectedGroup) {
    struct ByGroup : TestDataSource {
        uint32_t GetActiveSet(uint32_t group) override { return 10 + group; }
    } byGroup;
    record.uGroup1Index = 1;
    CDataOptionsInterface m(&record, &byGroup, &flags);
    m.UpdateDataInfo();
    EXPECT_EQ(At<std::uint32_t>(852), 10u);
    EXPECT_EQ(At<std::uint32_t>(856), 10u);
}

TEST_F(DataInformation, LookupThatFailsKeepsThePointsBeforeItAndHasNoExtent) {
    source.Region(1, "R1", 10, 20).Region(2, "R2", 30, 40);
    source.regions[1].hasExtent = false;
    Model().UpdateDataInfo();
    EXPECT_EQ(At<std::uint32_t>(648 + 8), 10u);  // region 2 shows what region 1 left
    EXPECT_EQ(At<std::uint32_t>(648 + 12), 20u);
    EXPECT_EQ(At<std::int32_t>(2040), 2);
    EXPECT_EQ(At<std::uint32_t>(2044), 10u);
    EXPECT_EQ(At<double>(2064), 0.0);
    EXPECT_EQ(At<double>(2072), 0.0);
}

TEST_F(DataInformation, NoRegionsAskForPositionZero) {
    std::vector<std::string> asked = AskedBy(Model());
    EXPECT_EQ(std::count(asked.begin(), asked.end(), "GetRegionInfo(0,0,0)"), 25);
    EXPECT_EQ(At<std::uint32_t>(408), 0u);
    EXPECT_EQ(At<std::uint32_t>(648), 0u);
}

TEST_F(DataInformation, MoreThanTheRecordHoldsIsLeftOut) {
    std::vector<std::string> names;
    for (int i = 0; i < 20; ++i) names.push_back(std::string(300, static_cast<char>('A' + i)));
    source.Groups(names).Sets(3).Points(4);
    for (int i = 0; i < 60; ++i) {
        source.Region(100 + i, std::string(300, 'r'), static_cast<uint32_t>(i), 1000);
    }
    source.Waveform(1, "a").Waveform(2, "b").Waveform(3, "c");
    source.blobSize = 300;
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 1;
    const std::vector<std::string> asked = AskedBy(Model());
    EXPECT_EQ(std::count(asked.begin(), asked.end(), "CopyBlob(200)"), 1);
    EXPECT_EQ(std::count(asked.begin(), asked.end(), "IsGroupVisible(16)"), 0);
    EXPECT_EQ(At<std::uint32_t>(396), 20u);
    EXPECT_EQ(At<std::uint32_t>(388), 16u);
    EXPECT_EQ(TextAt(968), "0..15");
    EXPECT_EQ(TextAt(4 + 15 * 24), std::string(19, 'P'));
    EXPECT_EQ(At<std::uint32_t>(4 + 15 * 24 + 20), 715u);
    EXPECT_EQ(At<std::uint32_t>(408), 60u);
    EXPECT_EQ(At<std::int32_t>(2000 + 49 * 40), 149);
    EXPECT_EQ(At<std::uint8_t>(4000), 0);
    EXPECT_EQ(At<std::uint32_t>(444), 300u);
    EXPECT_EQ(At<std::uint8_t>(448 + 199), 0x5A);
    EXPECT_EQ(At<std::uint32_t>(916), 3u);
    EXPECT_EQ(TextAt(948), "b");
    EXPECT_EQ(record.eDataGroup1SelectionMode, 1);
}

TEST_F(DataInformation, VisibleGroupsOfTheLongestTextFit) {
    struct Pairs : TestDataSource {
        bool IsGroupVisible(uint32_t group) override { return group % 3 != 2; }
    } pairs;
    CDataOptionsInterface m(&record, &pairs, &flags);
    m.UpdateDataInfo();
    EXPECT_EQ(TextAt(968), "0..1,3..4,6..7,9..10,12..13,15");
    EXPECT_EQ(At<std::uint32_t>(388), 11u);
}

TEST_F(DataInformation, VisibleSetsAreCutBetweenNumbersAndCountedUpTo10000) {
    source.Sets(20000).hiddenEvery = 2;
    Model().UpdateDataInfo();
    EXPECT_EQ(At<std::uint32_t>(392), 5000u);
    EXPECT_EQ(At<std::uint32_t>(400), 20000u);
    const std::string text = TextAt(1000);
    EXPECT_LT(text.size(), 1000u);
    EXPECT_TRUE(text.ends_with(",510") || text.find(",500,") != std::string::npos) << text;
    EXPECT_EQ(At<std::int32_t>(2000), 0);
}

TEST_F(DataInformation, SourceThatAnswersNothingLeavesEmptyTexts) {
    source.NullTexts().NullArrays();
    source.Waveform(9, "x").Region(4, "y", 1, 2);
    Model().UpdateDataInfo();
    EXPECT_EQ(TextAt(4), "");
    EXPECT_EQ(TextAt(924), "");
    EXPECT_EQ(At<std::uint32_t>(920), 9u);
    EXPECT_EQ(At<double>(424), 0.0);
    EXPECT_EQ(At<double>(432), 0.0);
}

TEST_F(DataInformation, ObserversAreToldWhenTheBlockIsThere) {
    struct Listener : ADM_Wnd {
        void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override {
            EXPECT_EQ(pSender, nullptr);
            EXPECT_EQ(nId, 0);
            EXPECT_EQ(nData, 0);
            log->push_back(name + std::to_string(nCode) + (record->uGroupCount == 2 ? "" : "?"));
        }
        std::vector<std::string>* log;
        std::string name;
        const ZXADLG_DataOptions* record;
    } first, second;
    std::vector<std::string> log;
    first.log = second.log = &log;
    first.name = "a";
    second.name = "b";
    first.record = second.record = &record;
    CDataOptionsInterface& m = Model();
    m.AddObserver(&first);
    m.AddObserver(nullptr);
    m.AddObserver(&second);
    m.UpdateDataInfo();
    EXPECT_EQ(log, (std::vector<std::string>{"a2229", "b2229"}));
    static_assert(kNotifyDataInfoRebuilt == 2229);
}

TEST_F(DataInformation, StoredInfoIsLeftAloneAndTheSourceIsNotAsked) {
    flags.bUseStoredInfo = 1;
    record.uGroupCount = 33;
    CDataOptionsInterface& m = Model();
    EXPECT_TRUE(AskedBy(m).empty());
    EXPECT_EQ(record.uGroupCount, 33u);
}

TEST_F(DataInformation, OtherKindsHaveNoFileProperties) {
    source.Kind(1).Waveform(1, "a").blobSize = 9;
    Model().UpdateDataInfo();
    EXPECT_EQ(At<double>(416), 0.0);
    EXPECT_EQ(At<std::uint32_t>(444), 0u);
    EXPECT_EQ(At<std::uint32_t>(916), 0u);
    EXPECT_EQ(TextAt(924), "");
}

}  // namespace
