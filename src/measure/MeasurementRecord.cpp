#include "measure/MeasurementRecord.h"

#include <algorithm>
#include <iterator>

#include "measure/MeasurementRegions.h"
#include "measure/MeasurementTables.h"

namespace {

template <class Entry, std::size_t N>
void CopyEntries(Entry (&to)[N], const Entry (&from)[N]) {
    std::copy(std::begin(from), std::end(from), std::begin(to));
}

// The named fields of a search. Members one by one: the bytes between them are the host's.
void ReturnSearch(ZXADLG_MeasurementSearch& to, const ZXADLG_MeasurementSearch& from) {
    for (const Measurement& measurement : kMeasurements)
        to.*measurement.pOn = from.*measurement.pOn;
    for (const MeasurementPercent& percent : kMeasurementPercents)
        to.*percent.pPercent = from.*percent.pPercent;
    to.bRegionEnable = from.bRegionEnable;
    to.bApplyFilter = from.bApplyFilter;
    to.bDoAutoGraph = from.bDoAutoGraph;
    to.nNumYPlotItems = from.nNumYPlotItems;
    to.nSmoothingPoints = from.nSmoothingPoints;
    to.eAutoPlotXVariable = from.eAutoPlotXVariable;
    CopyEntries(to.aeAutoPlotYVariable, from.aeAutoPlotYVariable);
}

void ReturnRegion(ZXADLG_StatisticsRegion& to, const ZXADLG_StatisticsRegion& from) {
    to.eStatsRegion = from.eStatsRegion;
    to.nStatsRegionEpisode1 = from.nStatsRegionEpisode1;
    to.nStatsRegionEpisode2 = from.nStatsRegionEpisode2;
    StoreSpan(to, SpanOf(from));
}

void ReturnBaseline(ZXADLG_BaselineRegion& to, const ZXADLG_BaselineRegion& from) {
    to.eBaseRegion = from.eBaseRegion;
    to.eBaseMode = from.eBaseMode;
    to.dBaseFixedValue = from.dBaseFixedValue;
    to.nBaseRegionEpisode1 = from.nBaseRegionEpisode1;
    to.nBaseRegionEpisode2 = from.nBaseRegionEpisode2;
    StoreSpan(to, SpanOf(from));
}

void ReturnPolarity(ZXADLG_PolarityEntry& to, const ZXADLG_PolarityEntry& from) {
    CopyEntries(to.aePeakPolarity, from.aePeakPolarity);
    to.bPeakApplyToAll = from.bPeakApplyToAll;
    to.eAllGroupsPeakPolarity = from.eAllGroupsPeakPolarity;
}

}  // namespace

void TakeSearches(ZXADLG_MeasurementOptions& to, const ZXADLG_MeasurementOptions& host) {
    const ZXADLG_MeasurementSearch own = to.aSearches[0];
    CopyEntries(to.aSearches, host.aSearches);
    CopyEntries(to.aStatsRegions, host.aStatsRegions);
    CopyEntries(to.aBaselines, host.aBaselines);
    CopyEntries(to.aPolarities, host.aPolarities);
    ZXADLG_MeasurementSearch& first = to.aSearches[0];
    first.bDoAutoGraph = own.bDoAutoGraph;
    first.nNumYPlotItems = own.nNumYPlotItems;
    first.eAutoPlotXVariable = own.eAutoPlotXVariable;
    CopyEntries(first.aeAutoPlotYVariable, own.aeAutoPlotYVariable);
}

void ReturnMeasurements(ZXADLG_MeasurementOptions* pTo, const ZXADLG_MeasurementOptions& from) {
    for (int i = 0; i < kMeasurementSearches; ++i) {
        ReturnSearch(pTo->aSearches[i], from.aSearches[i]);
        ReturnRegion(pTo->aStatsRegions[i], from.aStatsRegions[i]);
        ReturnBaseline(pTo->aBaselines[i], from.aBaselines[i]);
        ReturnPolarity(pTo->aPolarities[i], from.aPolarities[i]);
    }
    pTo->common.eDestinationOption = from.common.eDestinationOption;
    pTo->common.bDynamicLink = from.common.bDynamicLink;
    pTo->common.bWriteRegionInfo = from.common.bWriteRegionInfo;
    pTo->nDlgSearchIndex = from.nDlgSearchIndex;
    pTo->bImportFromFile = from.bImportFromFile;
    pTo->eOutputOrder = from.eOutputOrder;
}

int FirstSearchOn(const ZXADLG_MeasurementOptions& options) {
    for (int i = 0; i < kMeasurementSearches; ++i) {
        if (options.aSearches[i].bRegionEnable != 0) return i;
    }
    return -1;
}

void OrderRegions(ZXADLG_MeasurementOptions& options) {
    for (int i = 0; i < kMeasurementSearches; ++i) {
        if (options.aSearches[i].bRegionEnable == 0) continue;
        StoreSpan(options.aStatsRegions[i], Ordered(SpanOf(options.aStatsRegions[i])));
        StoreSpan(options.aBaselines[i], Ordered(SpanOf(options.aBaselines[i])));
    }
}

void AcceptImport(ZXADLG_MeasurementOptions& options, bool bImportInUse) {
    options.bImportFromFile = bImportInUse ? 1 : 0;
    if (!bImportInUse) return;
    for (int i = 0; i < kMeasurementSearches; ++i) options.aSearches[i].bRegionEnable = i == 0;
}
