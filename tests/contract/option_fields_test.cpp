// Each operation on a field of a record reaches that field, whole, and nothing beside it.

#include "DataOptionsFixture.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"

namespace {

class OptionFields : public DataOptions {
  protected:
    // Sets a field by an operation: the record is as it was but for that field.
    template <class Field, class Set>
    void ExpectSets(Field& field, Field value, Set set) {
        ZXADLG_DataOptions expected = record;
        const auto nOffset =
            reinterpret_cast<const char*>(&field) - reinterpret_cast<const char*>(&record);
        ASSERT_NE(field, value);
        std::memcpy(reinterpret_cast<char*>(&expected) + nOffset, &value, sizeof value);
        set();
        EXPECT_EQ(std::memcmp(&record, &expected, sizeof record), 0);
    }
};

TEST_F(OptionFields, ModesOfBothSelections) {
    auto& m = Model();
    ExpectSets(record.eDataGroup1SelectionMode, 3, [&] { m.SetDataGroupSelectionMode(0, 3); });
    ExpectSets(record.eDataGroup2SelectionMode, 2, [&] { m.SetDataGroupSelectionMode(1, 2); });
    ExpectSets(record.eDataSet1SelectionMode, 4, [&] { m.SetDataSetSelectionMode(0, 4); });
    ExpectSets(record.eDataSet2SelectionMode, 1, [&] { m.SetDataSetSelectionMode(1, 1); });
    EXPECT_EQ(m.GetDataGroupSelectionMode(0), 3);
    EXPECT_EQ(m.GetDataGroupSelectionMode(1), 2);
    EXPECT_EQ(m.GetDataSetSelectionMode(0), 4);
    EXPECT_EQ(m.GetDataSetSelectionMode(1), 1);
}

TEST_F(OptionFields, IndicesOfGroupsSetsAndPoints) {
    auto& m = Model();
    ExpectSets(record.uGroup1Index, 21u, [&] { m.SetGroup1Index(21); });
    ExpectSets(record.uGroup2Index, 22u, [&] { m.SetGroup2Index(22); });
    ExpectSets(record.uPairedGroupIndex, 23u, [&] { m.SetPairedGroupIndex(23); });
    ExpectSets(record.uSelectedDataSet, 24u, [&] { m.SetSelectedDataSet(24); });
    ExpectSets(record.uFirstDataIndex, 25u, [&] { m.SetFirstDataIndex(25); });
    ExpectSets(record.uLastDataIndex, 26u, [&] { m.SetLastDataIndex(26); });
    ExpectSets(record.uIndepVarDataSetIndex, 27u, [&] { m.SetIndepVarDataSetIndex(27); });
    ExpectSets(record.uDepVarDataSetIndex, 28u, [&] { m.SetDepVarDataSetIndex(28); });
    ExpectSets(record.uExtrapolationCursor, 29u, [&] { m.SetExtrapolationCursor(29); });
    EXPECT_EQ(m.GetGroup1Index(), 21u);
    EXPECT_EQ(m.GetGroup2Index(), 22u);
    EXPECT_EQ(m.GetPairedGroupIndex(), 23u);
    EXPECT_EQ(m.GetSelectedDataSet(), 24u);
    EXPECT_EQ(m.GetFirstDataIndex(), 25u);
    EXPECT_EQ(m.GetLastDataIndex(), 26u);
    EXPECT_EQ(m.GetIndepVarDataSetIndex(), 27u);
    EXPECT_EQ(m.GetDepVarDataSetIndex(), 28u);
    EXPECT_EQ(m.GetExtrapolationCursor(), 29u);
}

TEST_F(OptionFields, RangeFlagAndRegion) {
    auto& m = Model();
    ExpectSets(record.bUseFullDataRange, uint8_t{1}, [&] { m.SetUseFullDataRange(true); });
    EXPECT_TRUE(m.GetUseFullDataRange());
    ExpectSets(record.bUseFullDataRange, uint8_t{0}, [&] { m.SetUseFullDataRange(false); });
    EXPECT_FALSE(m.GetUseFullDataRange());
    record.eAnalysisRegion = 8;
    EXPECT_EQ(m.GetAnalysisRegion(), 8);
}

// Six constants; a seventh would be the flag behind them.
TEST_F(OptionFields, ConstantsStayWithinTheirSixPlaces) {
    auto& m = Model();
    ExpectSets(record.adConstants[5], 6.5, [&] { m.SetConstant(5, 6.5); });
    ExpectSets(record.abIsConstant[5], uint8_t{1}, [&] { m.SetIsConstant(5, true); });
    EXPECT_EQ(m.GetConstant(5), 6.5);
    EXPECT_TRUE(m.GetIsConstant(5));
    const ZXADLG_DataOptions before = record;
    m.SetConstant(6, 7.5);
    m.SetIsConstant(6, true);
    EXPECT_EQ(std::memcmp(&record, &before, sizeof record), 0);
    EXPECT_EQ(m.GetConstant(6), 0.0);
    EXPECT_FALSE(m.GetIsConstant(6));
}

TEST(AnalysisOptions, TheCommonBlockIsReadAndWrittenFieldByField) {
    ZXADLG_AnalysisCommon common = {};
    TestDataSource source;
    CAnalysisOptionsInterfaceBase options(&common, &source);
    EXPECT_EQ(options.GetDataSource(), &source);
    options.SetDestinationOption(1);
    EXPECT_EQ(common.eDestinationOption, 1);
    EXPECT_EQ(options.GetDestinationOption(), 1);
    options.SetDynamicLink(true);
    EXPECT_EQ(common.bDynamicLink, 1);
    EXPECT_EQ(common.bWriteRegionInfo, 0);
    EXPECT_TRUE(options.GetDynamicLink());
    options.SetDynamicLink(false);
    options.SetWriteRegionInfo(true);
    EXPECT_EQ(common.bDynamicLink, 0);
    EXPECT_EQ(common.bWriteRegionInfo, 1);
    EXPECT_TRUE(options.GetWriteRegionInfo());
    EXPECT_FALSE(options.GetDynamicLink());
    options.SetWriteRegionInfo(false);
    EXPECT_EQ(common.bWriteRegionInfo, 0);
    EXPECT_FALSE(options.GetWriteRegionInfo());
}

}  // namespace
