// What the model behind the data tabs corrects, answers and stores.

#include <cmath>

#include "DataOptionsFixture.h"

namespace {

// --- Correction of what is stored

TEST_F(DataOptions, GroupIndexBeyondTheFileBecomesItsLastGroup) {
    record.uGroup1Index = 7;
    Model();
    EXPECT_EQ(record.uGroup1Index, 1u);
    record.uGroup1Index = 2;
    Model();
    EXPECT_EQ(record.uGroup1Index, 1u);
    record.uGroup1Index = 1;
    Model();
    EXPECT_EQ(record.uGroup1Index, 1u);
    source.Groups({});
    record.uGroup1Index = 3;
    Model();
    EXPECT_EQ(record.uGroup1Index, 0u);
}

TEST_F(DataOptions, SecondAndPairedGroupAreKeptBelowTheCountAsWell) {
    record.uGroup1Index = 0;
    record.uGroup2Index = 2;
    record.uPairedGroupIndex = 0xFFFFFFFFu;
    Model();
    EXPECT_EQ(record.uGroup1Index, 0u);
    EXPECT_EQ(record.uGroup2Index, 1u);
    EXPECT_EQ(record.uPairedGroupIndex, 1u);
}

TEST_F(DataOptions, SourceIsAskedItsKindFirstAndNeverOfAGroupThatItLacks) {
    record.uPairedGroupIndex = 5;
    source.Record();
    Sheet();
    const std::vector<std::string> expected = {"GetDataKind()", "GetGroupCount()"};
    ASSERT_GE(source.calls.size(), 3u);
    EXPECT_EQ(std::vector<std::string>(source.calls.begin(), source.calls.begin() + 2), expected);
    bool asked = false;
    for (const std::string& call : source.calls) {
        if (call.rfind("GetSetCount(", 0) != 0 && call.rfind("GetPointCount(", 0) != 0) continue;
        const std::string group = call.substr(call.find('(') + 1, 1);
        EXPECT_EQ(group, "1") << call;
        asked = true;
    }
    EXPECT_TRUE(asked);
}

TEST_F(DataOptions, SheetColumnsBeyondTheSheetBecomeTheLastTwo) {
    record.uIndepVarDataSetIndex = 12;
    record.uDepVarDataSetIndex = 99;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 10u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 11u);
}

TEST_F(DataOptions, FirstColumnBeyondASheetIsCorrectedAsWell) {
    record.uIndepVarDataSetIndex = 12;
    record.uDepVarDataSetIndex = 12;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 10u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 11u);
    record.uIndepVarDataSetIndex = 11;
    record.uDepVarDataSetIndex = 11;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 11u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 11u);
}

TEST_F(DataOptions, SheetWithTwoColumnsTakesBoth) {
    source.Sets(2);
    record.uIndepVarDataSetIndex = 9;
    record.uDepVarDataSetIndex = 9;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 0u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 1u);
}

TEST_F(DataOptions, SheetWithOneColumnTakesColumnZeroForX) {
    source.Sets(1);
    record.uIndepVarDataSetIndex = 5;
    record.uDepVarDataSetIndex = 5;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 0u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 0u);
}

TEST_F(DataOptions, SheetWithNoColumnsHasIndicesThatPointAtNothingElse) {
    source.Sets(0);
    record.uIndepVarDataSetIndex = 5;
    Sheet();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 0u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 0u);
}

TEST_F(DataOptions, OtherKindsKeepTheColumnsAndRows) {
    record.uIndepVarDataSetIndex = 99;
    record.uDepVarDataSetIndex = 98;
    record.uFirstDataIndex = 5000;
    record.uLastDataIndex = 4;
    Model();
    EXPECT_EQ(record.uIndepVarDataSetIndex, 99u);
    EXPECT_EQ(record.uDepVarDataSetIndex, 98u);
    EXPECT_EQ(record.uFirstDataIndex, 5000u);
    EXPECT_EQ(record.uLastDataIndex, 4u);
}

TEST_F(DataOptions, SheetRowsTakeTheSmallerAsTheFirstAndKeepTheLast) {
    record.uFirstDataIndex = 50;
    record.uLastDataIndex = 20;
    Sheet();
    EXPECT_EQ(record.uFirstDataIndex, 20u);
    EXPECT_EQ(record.uLastDataIndex, 20u);
}

TEST_F(DataOptions, SheetRowsBeyondThePointsStartAtTheFirstUnlessTheDataAreStored) {
    record.uFirstDataIndex = 1000;
    record.uLastDataIndex = 2000;
    Sheet();
    EXPECT_EQ(record.uFirstDataIndex, 0u);
    EXPECT_EQ(record.uLastDataIndex, 2000u);
    flags.bUseStoredInfo = 1;
    record.uFirstDataIndex = 1000;
    Sheet();
    EXPECT_EQ(record.uFirstDataIndex, 1000u);
}

TEST_F(DataOptions, ConstantMarksBecomeOneOrZero) {
    record.abIsConstant[0] = 9;
    record.abIsConstant[1] = 7;
    record.abIsConstant[5] = 8;
    record.bUseFullDataRange = 1;
    record.adConstants[5] = 1.5;
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(record.abIsConstant[1], 1);
    EXPECT_EQ(record.abIsConstant[0], 1);
    EXPECT_EQ(record.abIsConstant[2], 0);
    EXPECT_EQ(record.abIsConstant[5], 1);
    EXPECT_EQ(m.GetConstant(5), 1.5);
    EXPECT_EQ(m.GetConstant(6), 0.0);
    EXPECT_FALSE(m.GetIsConstant(6));
}

TEST_F(DataOptions, ListThatFillsItsFieldIsEnded) {
    std::memset(record.szUnitarySelectionList1, '1', sizeof record.szUnitarySelectionList1);
    std::memset(record.szUnitarySelectionList2, '1', sizeof record.szUnitarySelectionList2);
    std::memset(record.szDepVarSelectionList, '1', sizeof record.szDepVarSelectionList);
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(std::strlen(m.GetSelectionList(0)), 999u);
    EXPECT_EQ(std::strlen(m.GetSelectionList(1)), 999u);
    EXPECT_EQ(std::strlen(m.GetDepVarSelectionList()), 999u);
    EXPECT_EQ(m.GetXSet(), 0u);  // not a number of 32 bits
}

// --- The selection

TEST_F(DataOptions, SelectionListsAreTwoAndHold999Characters) {
    CDataOptionsInterface& m = Model();
    const std::string longText(1500, '7');
    m.SetSelectionList(0, longText.c_str());
    m.SetSelectionList(1, "4..6");
    m.SetSelectionList(2, "9");
    m.SetSelectionList(-1, "9");
    EXPECT_EQ(std::strlen(record.szUnitarySelectionList1), 999u);
    EXPECT_EQ(record.uGroup1Index, 0u);
    EXPECT_STREQ(m.GetSelectionList(1), "4..6");
    EXPECT_STREQ(m.GetSelectionList(2), "");
    EXPECT_STREQ(m.GetSelectionList(-1), "");
    m.SetSelectionList(0, nullptr);
    EXPECT_STREQ(m.GetSelectionList(0), "");
}

TEST_F(DataOptions, CountsOfEntriesAreKeptForTwoSelections) {
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(m.GetSelectedGroupCount(0), 0u);
    m.SetSelectedGroupCount(0, 3);
    m.SetSelectedGroupCount(1, 4);
    m.SetSelectedGroupCount(2, 5);
    m.SetSelectedGroupCount(-1, 5);
    EXPECT_EQ(m.GetSelectedGroupCount(0), 3u);
    EXPECT_EQ(m.GetSelectedGroupCount(1), 4u);
    EXPECT_EQ(m.GetSelectedGroupCount(2), 0u);
}

TEST_F(DataOptions, ConstantNamesHold15CharactersAndEndAtTheCount) {
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(m.GetConstantCount(), 1u);
    m.SetConstantName(0, "A name of some length");
    m.SetConstantName(1, "x2");
    m.SetDependentName("y");
    m.SetConstantName(6, "beyond");
    EXPECT_STREQ(m.GetDependentName(), "y");
    EXPECT_STREQ(m.GetConstantName(0), "A name of some ");
    EXPECT_STREQ(m.GetConstantName(1), "");
    m.SetConstantCount(9);
    EXPECT_STREQ(m.GetConstantName(1), "x2");
    EXPECT_STREQ(m.GetConstantName(6), "");
    m.SetDependentName("Another long name for it");
    EXPECT_STREQ(m.GetDependentName(), "Another long na");
}

TEST_F(DataOptions, FeaturesTakeEffectOnlyWhereTheFlagsAllowThem) {
    CDataOptionsInterface& m = Model();
    record.bExtrapolate = 1;
    record.bForceExcludedRegionToZero = 1;
    EXPECT_FALSE(m.GetExtrapolate());
    EXPECT_FALSE(m.GetForceToZero());
    m.SetExtrapolate(false);
    m.SetForceToZero(false);
    EXPECT_EQ(record.bExtrapolate, 1);
    EXPECT_EQ(record.bForceExcludedRegionToZero, 1);
    flags.bAllowExtrapolate = flags.bAllowForceToZero = 1;
    EXPECT_TRUE(m.GetExtrapolate());
    EXPECT_TRUE(m.GetForceToZero());
    m.SetForceToZero(false);
    m.SetExtrapolate(false);
    EXPECT_EQ(record.bExtrapolate, 0);
    EXPECT_EQ(record.bForceExcludedRegionToZero, 0);
    source.Kind(1);
    record.bForceExcludedRegionToZero = 1;
    EXPECT_FALSE(m.GetForceToZero());
    m.SetRegion(5, 2);
    EXPECT_EQ(record.eAnalysisRegion, 0);
    source.Kind(0);
    m.SetRegion(5, 2);
    EXPECT_EQ(record.eAnalysisRegion, 5);
    EXPECT_EQ(m.GetRegionPosition(), 2);
    flags.bAllowRegion = 0;
    m.SetRegion(6, 3);
    EXPECT_EQ(m.GetRegionId(), 5);
}

TEST_F(DataOptions, SelectionTextsAreCutBetweenNumbers) {
    std::vector<std::int32_t> odd;
    for (int i = 1; i < 10000; i += 2) odd.push_back(i);
    char text[1000];
    FormatSelection(text, odd, 0);
    const std::vector<std::int32_t> back = ParseSelection(text, 0);
    ASSERT_GT(back.size(), 200u);
    EXPECT_TRUE(std::equal(back.begin(), back.end(), odd.begin()));
    EXPECT_GT(std::strlen(text), 990u);
    char small[8];
    const std::vector<std::int32_t> run = {5, 6, 7, 100000, 100001};
    FormatSelection(small, run, 1);
    EXPECT_STREQ(small, "6..8");
    const std::vector<std::int32_t> wide = {123456, 123457};
    FormatSelection(small, wide, 0);
    EXPECT_STREQ(small, "123456");
}

// --- Questions

TEST_F(DataOptions, GroupFollowsTheKindAndTheSelectedDataSet) {
    record.uGroup1Index = 1;
    record.uGroup2Index = 0;
    record.uPairedGroupIndex = 1;
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(m.GetGroup(), 1u);
    record.uSelectedDataSet = 1;
    EXPECT_EQ(m.GetGroup(), 0u);
    source.Kind(2);
    EXPECT_EQ(m.GetGroup(), 1u);
    source.setCounts = {3, 7};
    EXPECT_EQ(m.GetSetCountInGroup(), 7u);
}

TEST_F(DataOptions, SetsAreTheFirstOfTheListOrTheColumnsOfTheSheet) {
    List("4..2");
    CopyText(record.szUnitarySelectionList2, "9,1");
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(m.GetXSet(), 4u);
    EXPECT_EQ(m.GetYSet(), 4u);
    record.uSelectedDataSet = 1;
    EXPECT_EQ(m.GetXSet(), 9u);
    CopyText(record.szUnitarySelectionList2, "1,,3");
    EXPECT_EQ(m.GetYSet(), 0u);
    source.Kind(2);
    record.uIndepVarDataSetIndex = 2;
    record.uDepVarDataSetIndex = 3;
    Dependents("7..9");
    EXPECT_EQ(m.GetXSet(), 2u);
    EXPECT_EQ(m.GetYSet(), 3u);
    m.SetUseDepVarList(true);
    EXPECT_EQ(m.GetYSet(), 7u);
}

TEST_F(DataOptions, CountsAskForTheRegionWithTheOtherFieldsZero) {
    source.Region(3, "Cursors", 100, 199);
    List("2");
    CDataOptionsInterface& m = Model();
    EXPECT_EQ(m.GetPointCount(), 1000u);
    m.SetRegion(3, 0);
    source.Record();
    EXPECT_EQ(m.GetPointCount(), 100u);
    EXPECT_EQ(LastAsked(), "GetPointCount(0,2,{3,0,0,0,part})");
    EXPECT_EQ(m.GetSelectedPointCount(), 100u);
    EXPECT_EQ(LastAsked(), "GetPointCount(0,2,{3,0,0,0,part})");
    EXPECT_EQ(m.GetPointCountInRegion(0), 1000u);
}

TEST_F(DataOptions, SheetCountIsTheSmallerOfTheTwoColumnsWithNoRange) {
    record.uIndepVarDataSetIndex = 1;
    record.uDepVarDataSetIndex = 4;
    CDataOptionsInterface& m = Sheet();
    source.Record();
    EXPECT_EQ(m.GetPointCount(), 1000u);
    ASSERT_GE(source.calls.size(), 2u);
    EXPECT_EQ(LastAsked(), "GetPointCount(0,4,null)");
    record.uFirstDataIndex = 10;
    record.uLastDataIndex = 19;
    EXPECT_EQ(m.GetSelectedPointCount(), 10u);
    record.bUseFullDataRange = 1;
    EXPECT_EQ(m.GetSelectedPointCount(), 1000u);
}

TEST_F(DataOptions, FiguresOfAnAnalysisComeFromTheSource) {
    source.Region(3, "Cursors", 100, 199);
    record.aRegionPoints[2] = {10, 59};
    record.dSamplingFrequency = 5.0;
    record.bSegmented = 1;
    CDataOptionsInterface& m = Model();
    m.SetRegion(3, 0);
    EXPECT_EQ(m.GetAnalysisPointCount(), 100u);
    EXPECT_EQ(m.GetSamplingFrequency(), 10000.0);
    EXPECT_FALSE(m.IsSegmented());
    source.segmented = true;
    EXPECT_TRUE(m.IsSegmented());
    for (const double dNone : {0.0, -1.0, std::nan(""), static_cast<double>(INFINITY)}) {
        source.samplingFrequency = dNone;
        EXPECT_EQ(m.GetSamplingFrequency(), 0.0);
    }
    source.Kind(1).samplingFrequency = 77.0;
    EXPECT_EQ(m.GetSamplingFrequency(), 0.0);
}

TEST_F(DataOptions, FiguresOfADeferredRunComeFromTheBlock) {
    source.Region(3, "Cursors", 100, 199).Region(26, "Epoch", 0, 299);
    record.aRegionPoints[2] = {10, 59};
    record.dSamplingFrequency = 5.0;
    record.bSegmented = 1;
    CDataOptionsInterface& m = Model();
    m.SetDeferred(true);
    EXPECT_EQ(m.GetAnalysisPointCount(), 1000u) << "no region";
    m.SetRegion(3, 0);
    EXPECT_EQ(m.GetAnalysisPointCount(), 50u);
    EXPECT_EQ(m.GetSamplingFrequency(), 5.0);
    EXPECT_TRUE(m.IsSegmented());
    // Where it tells nothing, the source does.
    record.aRegionPoints[2] = {59, 59};
    EXPECT_EQ(m.GetAnalysisPointCount(), 100u);
    record.aRegionPoints[24] = {0, 6};
    m.SetRegion(26, 0);
    EXPECT_EQ(m.GetAnalysisPointCount(), 300u);
    m.SetRegion(25, 0);
    EXPECT_EQ(m.GetAnalysisPointCount(), 7u);
    record.dSamplingFrequency = 0.0;
    EXPECT_EQ(m.GetSamplingFrequency(), 10000.0);
    record.dSamplingFrequency = std::nan("");
    EXPECT_EQ(m.GetSamplingFrequency(), 10000.0);
    record.bSegmented = 0;
    EXPECT_FALSE(m.IsSegmented());
    // Also for data that are no file: the block is what the host kept of them.
    record.dSamplingFrequency = 6.0;
    source.Kind(2);
    EXPECT_EQ(m.GetSamplingFrequency(), 6.0);
}

TEST_F(DataOptions, SelectedSetsCountByTheirMode) {
    source.hiddenEvery = 4;
    List("0..4,7");
    CDataOptionsInterface& m = Model();
    const auto count = [&](int eMode) {
        record.eDataSet1SelectionMode = eMode;
        return m.GetSelectedSetCount();
    };
    EXPECT_EQ(count(CDataOptionsInterface::kVisibleSets), 9u);
    EXPECT_EQ(count(CDataOptionsInterface::kAllSets), 12u);
    EXPECT_EQ(count(CDataOptionsInterface::kActiveSet), 1u);
    EXPECT_EQ(count(CDataOptionsInterface::kListedSets), 6u);
    EXPECT_EQ(count(CDataOptionsInterface::kTypedSets), 6u);
    List("x");
    EXPECT_EQ(count(CDataOptionsInterface::kListedSets), 1u);
    source.Sets(0);
    EXPECT_EQ(count(CDataOptionsInterface::kAllSets), 1u);
}

TEST_F(DataOptions, TheWholeSetCountsWithoutARange) {
    source.Region(3, "Cursors", 100, 199);
    List("2");
    CDataOptionsInterface& m = Model();
    m.SetRegion(3, 0);
    source.Record();
    EXPECT_EQ(m.GetWholePointCount(), 1000u);
    EXPECT_EQ(LastAsked(), "GetPointCount(0,2,null)");
}

TEST_F(DataOptions, FewestPointsAreTheSmallestCountOfTheSets) {
    struct Uneven : TestDataSource {
        uint32_t GetPointCount(uint32_t, uint32_t set, const ZXADLG_DataRange* range,
                               uint32_t) override {
            EXPECT_EQ(range, nullptr);
            return 100 - set;
        }
    } uneven;
    uneven.Kind(2);
    CDataOptionsInterface m(&record, &uneven, &flags);
    const std::int32_t sets[] = {1, 5, 3};
    EXPECT_EQ(m.GetFewestPoints(sets, 3), 95u);
    EXPECT_EQ(m.GetFewestPoints(sets, 1), 99u);
    EXPECT_EQ(m.GetFewestPoints(nullptr, 0), 0u);
}

TEST_F(DataOptions, ActiveSetIsAskedForDataFilesOnly) {
    source.activeSet = 5;
    record.uGroup1Index = 1;
    CDataOptionsInterface& m = Model();
    source.Record();
    EXPECT_EQ(m.GetActiveSetForGroup(), 5u);
    EXPECT_EQ(LastAsked(), "GetActiveSet(1)");
    source.Kind(1);
    EXPECT_EQ(m.GetActiveSetForGroup(), 0u);
}

// --- The fetch

TEST_F(DataOptions, FetchAsksForTheRegionAndCopies) {
    source.Region(3, "Cursors", 100, 199);
    List("2");
    CDataOptionsInterface& m = Model();
    m.SetRegion(3, 0);
    source.Record();
    const double* y = m.GetYValues();
    EXPECT_EQ(LastAsked(), "GetYValues(0,2,{3,0,99,0,full})");
    ASSERT_NE(y, nullptr);
    EXPECT_EQ(y[0], 200.0 + 100);
    EXPECT_EQ(y[99], 200.0 + 199);
    const double* x = m.GetXValues();
    EXPECT_EQ(LastAsked(), "GetXValues(0,2,{3,0,99,0,part})");
    ASSERT_NE(x, nullptr);
    EXPECT_EQ(x[0], 0.1 * 100);
    EXPECT_EQ(y[0], 300.0);  // a private copy, of its own beside the x values
}

TEST_F(DataOptions, SheetFetchNarrowsToTheRowsWithinTheColumn) {
    record.uIndepVarDataSetIndex = 1;
    record.uDepVarDataSetIndex = 2;
    record.uFirstDataIndex = 10;
    record.uLastDataIndex = 12;
    CDataOptionsInterface& m = Sheet();
    struct Whole : TestDataSource {
        const double* GetXValues(uint32_t, uint32_t, const ZXADLG_DataRange* range,
                                 uint32_t) override {
            last = *range;
            return values.data();
        }
        const double* GetYValues(uint32_t, uint32_t, const ZXADLG_DataRange* range,
                                 uint32_t) override {
            last = *range;
            return values.data();
        }
        std::vector<double> values;
        ZXADLG_DataRange last = {};
    } whole;
    whole.Kind(2);
    whole.values.resize(1000);
    std::iota(whole.values.begin(), whole.values.end(), 0.0);
    CDataOptionsInterface n(&record, &whole, &flags);
    const double* x = n.GetXValues();
    ASSERT_NE(x, nullptr);
    EXPECT_EQ(x[0], 10.0);
    EXPECT_EQ(x[2], 12.0);
    EXPECT_EQ(whole.last.uFirstIndex, 0u);
    EXPECT_EQ(whole.last.uLastIndex, 999u);
    EXPECT_EQ(whole.last.bUseFullRange, 0);
    ASSERT_NE(n.GetYValues(), nullptr);
    EXPECT_EQ(whole.last.bUseFullRange, 1);
    double first = -1, last = -1;
    EXPECT_TRUE(n.GetXRange(&first, &last));
    EXPECT_EQ(first, 10.0);
    EXPECT_EQ(last, 12.0);
    // Rows beyond the column are not read.
    record.uLastDataIndex = 5000;
    EXPECT_TRUE(n.GetXRange(&first, &last));
    EXPECT_EQ(last, 999.0);
    record.uFirstDataIndex = 4000;
    EXPECT_EQ(n.GetXValues(), nullptr);
    record.bUseFullDataRange = 1;
    EXPECT_TRUE(n.GetXRange(&first, &last));
    EXPECT_EQ(first, 0.0);
    EXPECT_EQ(last, 999.0);
    EXPECT_EQ(m.GetPointCount(), 1000u);
}

TEST_F(DataOptions, RangeOfASinglePointIsFalse) {
    record.uFirstDataIndex = record.uLastDataIndex = 4;
    CDataOptionsInterface& m = Sheet();
    double first = 5, last = 5;
    EXPECT_FALSE(m.GetXRange(&first, &last));
    EXPECT_EQ(first, 0.0);
    EXPECT_EQ(last, 0.0);
}

TEST_F(DataOptions, NoValuesGiveNull) {
    source.NullArrays();
    List("0");
    double first = 5, last = 5;
    {
        CDataOptionsInterface& m = Model();
        EXPECT_EQ(m.GetXValues(), nullptr);
        EXPECT_EQ(m.GetYValues(), nullptr);
        EXPECT_FALSE(m.GetXRange(&first, &last));
        EXPECT_EQ(first, 0.0);
    }
    source.nullArrays = false;
    source.Points(0);
    EXPECT_EQ(Model().GetXValues(), nullptr);
    source.Points(5).Sets(0);
    EXPECT_EQ(Model().GetYValues(), nullptr);
    source.Groups({});
    EXPECT_EQ(Model().GetYValues(), nullptr);
    EXPECT_EQ(Model().GetPointCount(), 0u);
}

}  // namespace
