// The extent of y values over the selection.

#include "DataOptionsFixture.h"

namespace {

// --- The extent of y values

class YExtent : public DataOptions {
  protected:
    struct Extent {
        bool found;
        double low;
        double high;
        bool operator==(const Extent&) const = default;
    };
    Extent Ask(bool firstOnly = false) {
        Extent e = {true, -1, -1};
        e.found = model->GetYExtent(&e.low, &e.high, firstOnly);
        return e;
    }
    static constexpr Extent kNone = {false, 0, 0};
};

TEST_F(YExtent, FollowsTheGroupModes) {
    record.eDataSet1SelectionMode = 1;
    source.Sets(2).Points(10);
    source.setCounts = {2, 5};
    Model();
    record.eDataGroup1SelectionMode = 3;
    EXPECT_EQ(Ask(), (Extent{true, 0, 409}));
    record.eDataGroup1SelectionMode = 1;
    EXPECT_EQ(Ask(), (Extent{true, 0, 109}));
    record.uGroup1Index = 1;
    EXPECT_EQ(Ask(), (Extent{true, 0, 409}));
    record.eDataGroup1SelectionMode = 0;
    EXPECT_EQ(Ask(), (Extent{true, 0, 409}));
    source.hiddenGroup = 1;
    record.eDataGroup1SelectionMode = 2;
    EXPECT_EQ(Ask(), (Extent{true, 0, 109}));
    record.eDataGroup1SelectionMode = 4;
    EXPECT_EQ(Ask(), kNone);
    record.eDataGroup1SelectionMode = -1;
    EXPECT_EQ(Ask(), kNone);
}

TEST_F(YExtent, FollowsTheSetModes) {
    record.eDataGroup1SelectionMode = 1;
    source.Sets(6).Points(10);
    source.hiddenEvery = 2;  // sets 1, 3 and 5
    source.activeSet = 4;
    List("2..3");
    Model();
    record.eDataSet1SelectionMode = 0;
    EXPECT_EQ(Ask(), (Extent{true, 0, 409}));
    record.eDataSet1SelectionMode = 1;
    EXPECT_EQ(Ask(), (Extent{true, 0, 509}));
    record.eDataSet1SelectionMode = 2;
    EXPECT_EQ(Ask(), (Extent{true, 300, 309}));
    for (const int mode : {3, 4}) {
        record.eDataSet1SelectionMode = mode;
        EXPECT_EQ(Ask(), (Extent{true, 200, 309}));
    }
    record.eDataSet1SelectionMode = 5;
    EXPECT_EQ(Ask(), kNone);
    record.eDataSet1SelectionMode = 2;
    source.activeSet = 0;
    EXPECT_EQ(Ask(), kNone);
}

TEST_F(YExtent, ListThatCannotBeParsedIsFalseWithBothLimitsZero) {
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    Model();
    for (const char* text : {"", "1,,3", "..3", "4x", "abc"}) {
        SCOPED_TRACE(text);
        List(text);
        EXPECT_EQ(Ask(), kNone);
    }
}

TEST_F(YExtent, ListNamesNoMoreSetsThanTheLargestGroupHas) {
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    source.Sets(3).Points(10);
    List("20,21,22,1");
    Model();
    EXPECT_EQ(Ask(), kNone);
    List("20,21,1,2");
    EXPECT_EQ(Ask(), (Extent{true, 100, 109}));
    List("-5..-3");
    EXPECT_EQ(Ask(), kNone);
}

TEST_F(YExtent, FirstOnlyStopsAfterTheFirstSetWithValues) {
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    source.Points(10);
    List("5,2");
    Model();
    EXPECT_EQ(Ask(true), (Extent{true, 500, 509}));
    struct FirstEmpty : TestDataSource {
        const double* GetYValues(uint32_t g, uint32_t set, const ZXADLG_DataRange* r,
                                 uint32_t n) override {
            return set == 5 ? nullptr : TestDataSource::GetYValues(g, set, r, n);
        }
    } firstEmpty;
    firstEmpty.Points(10);
    CDataOptionsInterface m(&record, &firstEmpty, &flags);
    double low = 0, high = 0;
    EXPECT_TRUE(m.GetYExtent(&low, &high, true));
    EXPECT_EQ(low, 200.0);
    EXPECT_EQ(high, 209.0);
}

TEST_F(YExtent, PassesOverNaNAndKeepsInfinities) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInf = std::numeric_limits<double>::infinity();
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    List("0");
    Model();
    const auto of = [&](std::vector<double> values) {
        source.Points(static_cast<uint32_t>(values.size()));
        source.yValues = std::move(values);
        return Ask();
    };
    EXPECT_EQ(of({kNaN, 3, kNaN, 1, kNaN}), (Extent{true, 1, 3}));
    EXPECT_EQ(of({kNaN, kNaN}), kNone);
    EXPECT_EQ(of({kInf, 2, -kInf}), (Extent{true, -kInf, kInf}));
    // A limit that never moved leaves nothing to tell.
    EXPECT_EQ(of({kInf}), kNone);
    EXPECT_EQ(of({-kInf, -kInf}), kNone);
    EXPECT_EQ(of({kLargest}), kNone);
    EXPECT_EQ(of({-kLargest}), kNone);
    EXPECT_EQ(of({7}), (Extent{true, 7, 7}));
}

TEST_F(YExtent, IsTheScalarComparisonForEveryLengthAndPlace) {
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    List("0");
    Model();
    for (uint32_t n = 1; n <= 70; ++n) {
        for (uint32_t at = 0; at < n; ++at) {
            std::vector<double> values(n, 1.0);
            values[at] = -5.0;
            values[(at * 7 + 3) % n] += 100.0;
            if (n > 8) values[(at + 5) % n] = kNaN;
            double low = kLargest, high = -kLargest;
            for (const double v : values) {
                if (v < low) low = v;
                if (v > high) high = v;
            }
            source.Points(n);
            source.yValues = values;
            ASSERT_EQ(Ask(), (Extent{true, low, high})) << n << " " << at;
        }
    }
}

TEST_F(YExtent, DataFileIsConfinedToTheRegion) {
    source.Region(3, "Cursors", 100, 199);
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    List("0");
    Model().SetRegion(3, 0);
    EXPECT_EQ(Ask(), (Extent{true, 100, 199}));
}

TEST_F(YExtent, FirstIndexTakesTheLastUnlessTheLastLiesBelow) {
    record.uDepVarDataSetIndex = 2;
    record.uFirstDataIndex = 10;
    record.uLastDataIndex = 20;
    Sheet();
    source.Record();
    EXPECT_EQ(Ask(), (Extent{true, 220, 220}));
    EXPECT_EQ(LastAsked(), "GetYValues(0,2,{0,20,20,0,part})");
    EXPECT_EQ(source.calls[source.calls.size() - 2], "GetPointCount(0,2,{0,20,20,0,part})");
    record.uFirstDataIndex = 20;
    EXPECT_EQ(Ask(), (Extent{true, 220, 220}));
    record.uFirstDataIndex = 30;
    Ask();
    EXPECT_EQ(LastAsked(), "GetYValues(0,2,{0,30,20,0,part})");
    record.bUseFullDataRange = 1;
    EXPECT_EQ(Ask(), (Extent{true, 200, 1199}));
    EXPECT_EQ(LastAsked(), "GetYValues(0,2,{0,30,20,0,full})");
    source.Kind(1);
    record.eDataGroup1SelectionMode = 1;
    record.eDataSet1SelectionMode = 4;
    record.uFirstDataIndex = 3;
    List("1");
    EXPECT_EQ(Ask(), (Extent{true, 100, 1099}));
    EXPECT_EQ(LastAsked(), "GetYValues(0,1,{0,20,20,0,full})");
}

TEST_F(YExtent, SheetTakesTheDependentColumnOrTheirList) {
    record.uDepVarDataSetIndex = 3;
    record.bUseFullDataRange = 1;
    record.uPairedGroupIndex = 1;
    Dependents("5..6");
    source.Points(10);
    Sheet();
    EXPECT_EQ(Ask(), (Extent{true, 300, 309}));
    model->SetUseDepVarList(true);
    EXPECT_EQ(Ask(), (Extent{true, 500, 609}));
    Dependents("x");
    EXPECT_EQ(Ask(), kNone);
}

TEST_F(YExtent, StoredInfoIsCopiedAndAlwaysThere) {
    flags.bUseStoredInfo = 1;
    record.dMinValue = 3;
    record.dMaxValue = -8;
    record.eDataGroup1SelectionMode = 77;
    Model();
    source.Record();
    EXPECT_EQ(Ask(), (Extent{true, 3, -8}));
    EXPECT_TRUE(source.calls.empty());
}

TEST_F(YExtent, NothingToScanIsFalse) {
    record.eDataGroup1SelectionMode = 3;
    record.eDataSet1SelectionMode = 1;
    source.NullArrays();
    Model();
    EXPECT_EQ(Ask(), kNone);
    source.nullArrays = false;
    source.Points(0);
    EXPECT_EQ(Ask(), kNone);
    source.Points(5).Sets(0);
    EXPECT_EQ(Ask(), kNone);
    source.Groups({});
    EXPECT_EQ(Ask(), kNone);
    source.Kind(2);
    EXPECT_EQ(Ask(), kNone);
}

}  // namespace
