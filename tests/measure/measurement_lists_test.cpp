// The lists of the Output page, without a window.

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "measure/MeasurementOutputLists.h"

namespace {

using Ids = std::vector<int>;

class OutputLists : public testing::Test {
  protected:
    Ids X() const {
        Ids ids;
        for (const OutputRow* pRow : lists.GetX()) ids.push_back(pRow->nId);
        return ids;
    }
    int ChosenX() const {
        return lists.GetSelectedX() < 0
                   ? 0
                   : lists.GetX()[static_cast<std::size_t>(lists.GetSelectedX())]->nId;
    }
    Ids Y() const {
        Ids ids;
        for (const auto& item : lists.GetY()) ids.push_back(item.pRow->nId);
        return ids;
    }
    Ids ChosenY() const {
        Ids ids;
        for (const auto& item : lists.GetY()) {
            if (item.bSelected) ids.push_back(item.pRow->nId);
        }
        return ids;
    }
    // The ids that the search holds, and that the rest of its places is empty.
    Ids StoredY() const {
        Ids ids;
        for (int i = 0; i < 24; ++i) {
            if (i < search.nNumYPlotItems) {
                ids.push_back(search.aeAutoPlotYVariable[i]);
            } else {
                EXPECT_EQ(search.aeAutoPlotYVariable[i], -1) << i;
            }
        }
        return ids;
    }

    ZXADLG_MeasurementSearch search = {};
    MeasurementOutputLists lists;
};

TEST_F(OutputLists, ASearchWithNothingEnabledShowsOnlyTheTimeOfTheTrace) {
    lists.Fill(search, {});
    EXPECT_EQ(X(), (Ids{1}));
    EXPECT_EQ(Y(), Ids{});
    EXPECT_EQ(search.nNumYPlotItems, 0);
    EXPECT_EQ(StoredY(), Ids{});
    EXPECT_EQ(search.eAutoPlotXVariable, 1);
}

TEST_F(OutputLists, AFirstItemOfAmplitudesSelectsAllAmplitudesAndNoSlopes) {
    search.bAntipeakAmplitude = search.bMean = search.bRegionSlope = search.bBaseline = 1;
    lists.Fill(search, {});
    EXPECT_EQ(X(), (Ids{5, 8, 23, 22, 1}));
    EXPECT_EQ(Y(), (Ids{5, 8, 23, 22}));
    EXPECT_EQ(ChosenY(), (Ids{5, 8, 23}));
    EXPECT_EQ(StoredY(), (Ids{5, 8, 23}));
}

TEST_F(OutputLists, OnlyTheTimeOfThePeakStandsInBothListsAndIsSelectedByItsFamily) {
    search.bPeakTime = 1;
    lists.Fill(search, {});
    EXPECT_EQ(X(), (Ids{4, 1}));
    EXPECT_EQ(Y(), (Ids{4}));
    EXPECT_EQ(kOutputRows[14].eFamily, -1);
    EXPECT_EQ(ChosenY(), (Ids{4}));
}

TEST_F(OutputLists, TheMeanStoresItsOwnNumber) {
    search.bMean = 1;
    lists.Fill(search, {});
    EXPECT_EQ(StoredY(), (Ids{8}));
}

TEST_F(OutputLists, TheCountIsThatOfTheSelection) {
    search.bMean = search.bStanDev = search.bArea = search.bRegionSlope = search.bHalfWidth = 1;
    search.nNumYPlotItems = 2;
    search.aeAutoPlotYVariable[0] = 22;
    search.aeAutoPlotYVariable[1] = 10;
    lists.Fill(search, {});
    EXPECT_EQ(Y(), (Ids{8, 9, 10, 22, 11}));
    EXPECT_EQ(ChosenY(), (Ids{10, 22}));
    EXPECT_EQ(StoredY(), (Ids{10, 22}));
}

TEST_F(OutputLists, WhatIsStoredMayBeRubbish) {
    search.bMean = 1;
    search.nNumYPlotItems = -1;
    for (std::int32_t& eY : search.aeAutoPlotYVariable) eY = -2147483647;
    search.eAutoPlotXVariable = 2147483647;
    lists.Fill(search, {});
    EXPECT_EQ(StoredY(), Ids{});
    EXPECT_EQ(search.eAutoPlotXVariable, 1);
}

// --- The x axis ----------------------------------------------------------------------------------

struct XRow {
    const char* szName;
    int nStored;
    bool bPreselects;
    int nShown;
};

TEST_F(OutputLists, TheStoredXWinsThenTheTimeOfThePeakThenTheTime) {
    const XRow rows[] = {{"stored", 8, true, 8},
                         {"unset", 0, true, 4},
                         {"none", -1, true, 4},
                         {"not listed", 22, true, 4},
                         {"no preselection", -1, false, 1}};
    for (const XRow& row : rows) {
        SCOPED_TRACE(row.szName);
        search = {};
        search.bMean = search.bPeakAmplitude = search.bPeakTime = 1;
        search.bAntipeakAmplitude = search.bAntipeakTime = 1;
        search.eAutoPlotXVariable = row.nStored;
        lists.Fill(search, {.bPreselects = row.bPreselects});
        EXPECT_EQ(ChosenX(), row.nShown);
        EXPECT_EQ(search.eAutoPlotXVariable, row.nShown);
    }
}

TEST_F(OutputLists, TheTimeOfTheAntipeakIsPreselectedWithoutAPeak) {
    search.bAntipeakAmplitude = search.bAntipeakTime = search.bPeakTime = 1;
    lists.Fill(search, {});
    EXPECT_EQ(ChosenX(), 7);
}

TEST_F(OutputLists, ChoicesOfTheUserAreStored) {
    search.bMean = search.bArea = search.bHalfWidth = 1;
    lists.Fill(search, {});
    lists.SelectX(search, 2);
    EXPECT_EQ(search.eAutoPlotXVariable, 11);
    lists.SelectX(search, 9);
    lists.SelectX(search, -1);
    EXPECT_EQ(search.eAutoPlotXVariable, 11);
    lists.SelectY(search, {0, 2});
    EXPECT_EQ(StoredY(), (Ids{8, 11}));
    lists.SelectY(search, {});
    EXPECT_EQ(StoredY(), Ids{});
}

TEST_F(OutputLists, WhatOnlyDisplaysStoresNothing) {
    search.bMean = 1;
    const ZXADLG_MeasurementSearch before = search;
    lists.Fill(search, {.bPreselects = false, .bStores = false});
    EXPECT_EQ(X(), (Ids{8, 1}));
    EXPECT_EQ(ChosenY(), (Ids{8}));
    EXPECT_EQ(search.eAutoPlotXVariable, before.eAutoPlotXVariable);
    EXPECT_EQ(search.nNumYPlotItems, 0);
    EXPECT_EQ(search.aeAutoPlotYVariable[0], 0);
}

// --- One measurement changes ---------------------------------------------------------------------

TEST_F(OutputLists, TurningAMeasurementOffRemovesItsRowAndKeepsTheOtherSelections) {
    search.bMean = search.bStanDev = search.bArea = 1;
    lists.Fill(search, {});
    lists.SelectY(search, {1, 2});
    search.bStanDev = 0;
    lists.Follow(search, {});
    EXPECT_EQ(Y(), (Ids{8, 10}));
    EXPECT_EQ(ChosenY(), (Ids{10}));
    EXPECT_EQ(StoredY(), (Ids{10}));
    EXPECT_EQ(X(), (Ids{8, 10, 1}));
}

TEST_F(OutputLists, AMeasurementTurnedOnStandsInTheOrderOfTheTable) {
    search.bBaseline = search.bRegionSlope = 1;
    lists.Fill(search, {});
    search.bMean = search.bMaxRiseSlope = 1;
    lists.Follow(search, {});
    EXPECT_EQ(Y(), (Ids{8, 23, 12, 22}));
    EXPECT_EQ(ChosenY(), (Ids{8, 23}));
    EXPECT_EQ(X(), (Ids{8, 23, 12, 22, 1}));
}

TEST_F(OutputLists, TheFirstItemOfAnEmptyListDecidesOnTheFamily) {
    lists.Fill(search, {});
    search.bRegionSlope = search.bRiseSlope = search.bHalfWidth = 1;
    lists.Follow(search, {});
    EXPECT_EQ(ChosenY(), (Ids{22, 18}));
}

TEST_F(OutputLists, WithNothingLeftSelectedNoFamilyIsInForce) {
    search.bMean = search.bArea = 1;
    lists.Fill(search, {});
    lists.SelectY(search, {});
    search.bArea = 0;
    lists.Follow(search, {});
    search.bStanDev = search.bPeakTime = 1;
    lists.Follow(search, {});
    // The times of the trace are of no family.
    EXPECT_EQ(ChosenY(), (Ids{4}));
}

TEST_F(OutputLists, AnXThatIsRemovedGivesWay) {
    search.bAntipeakAmplitude = search.bPeakTime = 1;
    search.eAutoPlotXVariable = 4;
    lists.Fill(search, {});
    EXPECT_EQ(ChosenX(), 4);
    search.bPeakTime = 0;
    lists.Follow(search, {});
    EXPECT_EQ(X(), (Ids{5, 1}));
    EXPECT_EQ(ChosenX(), 1);
    EXPECT_EQ(search.eAutoPlotXVariable, 1);
}

// Required as it stands.
TEST_F(OutputLists, WithThePeakAmplitudeEachChangeEmptiesBothLists) {
    search.bPeakAmplitude = search.bMean = 1;
    lists.Fill(search, {});
    EXPECT_EQ(StoredY(), (Ids{2, 8}));
    search.bArea = 1;
    lists.Follow(search, {});
    EXPECT_EQ(X(), Ids{});
    EXPECT_EQ(Y(), Ids{});
    EXPECT_EQ(lists.GetSelectedX(), -1);
    EXPECT_EQ(search.nNumYPlotItems, 0);
    EXPECT_EQ(StoredY(), Ids{});
    search.bMean = 0;
    lists.Follow(search, {});
    EXPECT_EQ(Y(), Ids{});
    lists.Fill(search, {});
    EXPECT_EQ(Y(), (Ids{2, 10}));
    EXPECT_EQ(ChosenY(), (Ids{2}));
}

}  // namespace
