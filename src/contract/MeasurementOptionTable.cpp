// The keys of the measurements: single fields, then those of each of the 24 searches.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_MeasurementOptions;

constexpr OptionKey kMeasurementsSingleKeys[] = {
    KEY(nDlgSearchIndex),
    KEY(common.eDestinationOption),
    KEY_NAMED("bVerboseOutput", common.bWriteRegionInfo),
    KEY(bImportFromFile),
    // Required as it stands: written, and never read back.
    SaveOnly(KEY(eOutputOrder)),
};

constexpr OptionKey kMeasurementsSearchKeys[] = {
    KEY_OF_EACH("DoAutoGraph%d", aSearches, bDoAutoGraph),
    KEY_OF_EACH("RegionEnable%d", aSearches, bRegionEnable),
    KEY_OF_EACH("PeakAmplitude%d", aSearches, bPeakAmplitude),
    KEY_OF_EACH("PeakTime%d", aSearches, bPeakTime),
    KEY_OF_EACH("AntipeakAmplitude%d", aSearches, bAntipeakAmplitude),
    KEY_OF_EACH("AntipeakTime%d", aSearches, bAntipeakTime),
    KEY_OF_EACH("Mean%d", aSearches, bMean),
    KEY_OF_EACH("StanDev%d", aSearches, bStanDev),
    KEY_OF_EACH("Area%d", aSearches, bArea),
    KEY_OF_EACH("HalfWidth%d", aSearches, bHalfWidth),
    KEY_OF_EACH("MaxRiseSlope%d", aSearches, bMaxRiseSlope),
    KEY_OF_EACH("MaxRiseSlopeTime%d", aSearches, bMaxRiseSlopeTime),
    KEY_OF_EACH("MaxDecaySlope%d", aSearches, bMaxDecaySlope),
    KEY_OF_EACH("MaxDecaySlopeTime%d", aSearches, bMaxDecaySlopeTime),
    KEY_OF_EACH("RegionSlope%d", aSearches, bRegionSlope),
    KEY_OF_EACH("Baseline%d", aSearches, bBaseline),
    KEY_OF_EACH("RiseSlope%d", aSearches, bRiseSlope),
    KEY_OF_EACH("RiseTime%d", aSearches, bRiseTime),
    KEY_OF_EACH("DecaySlope%d", aSearches, bDecaySlope),
    KEY_OF_EACH("DecayTime%d", aSearches, bDecayTime),
    KEY_OF_EACH("PeakApplyToAll%d", aPolarities, bPeakApplyToAll),
    KEY_OF_EACH("ApplyFilter%d", aSearches, bApplyFilter),
    KEY_OF_EACH("EventDuration%d", aSearches, bEventDuration),
    KEY_OF_EACH("StatsRegion%d", aStatsRegions, eStatsRegion),
    KEY_OF_EACH("StatsRegionStartIndex%d", aStatsRegions, nStatsRegionStartIndex),
    KEY_OF_EACH("StatsRegionEndIndex%d", aStatsRegions, nStatsRegionEndIndex),
    KEY_OF_EACH("BaseRegion%d", aBaselines, eBaseRegion),
    KEY_OF_EACH("BaseRegionStartIndex%d", aBaselines, nBaseRegionStartIndex),
    KEY_OF_EACH("BaseRegionEndIndex%d", aBaselines, nBaseRegionEndIndex),
    KEY_OF_EACH("RiseFromPercent%d", aSearches, nRiseFromPercent),
    KEY_OF_EACH("RiseToPercent%d", aSearches, nRiseToPercent),
    KEY_OF_EACH("DecayFromPercent%d", aSearches, nDecayFromPercent),
    KEY_OF_EACH("DecayToPercent%d", aSearches, nDecayToPercent),
    KEY_OF_EACH("BaseMode%d", aBaselines, eBaseMode),
    KEY_OF_EACH("EventDurationPercent%d", aSearches, nEventDurationPercent),
    // No number in this key: all searches share it, and the last one wins.
    KEY_OF_EACH("AllGroupsPeakPolarity", aPolarities, eAllGroupsPeakPolarity),
    KEY_OF_EACH("SmoothingPoints%d", aSearches, nSmoothingPoints),
    KEY_OF_EACH("NumYPlotItems%d", aSearches, nNumYPlotItems),
    KEY_OF_EACH("AutoPlotXVariable%d", aSearches, eAutoPlotXVariable),
    // Required as they stand: read from a store that another version filled, and never written.
    LoadOnly(KEY_OF_EACH("StatsRegionEpisode1%d", aStatsRegions, nStatsRegionEpisode1)),
    LoadOnly(KEY_OF_EACH("BaseRegionEpisode1%d", aBaselines, nBaseRegionEpisode1)),
    LoadOnly(KEY_OF_EACH("BaseRegionEpisode2%d", aBaselines, nBaseRegionEpisode2)),
    LoadOnly(KEY_OF_EACH("STatsRegionEpisode2%d", aStatsRegions, nStatsRegionEpisode2)),
    // Required as it stands: 24 polarities although an entry has room for 16, so that the last
    // eight are the two fields behind them and the first six of the next search.
    KEY_OF_EACH_ELEMENT("PeakPolarity%d%d", aPolarities, aePeakPolarity, 24),
    KEY_OF_EACH_ELEMENT("AutoPlotYVariable%d%d", aSearches, aeAutoPlotYVariable, 24),
    KEY_OF_EACH("BaseFixedValue%d", aBaselines, dBaseFixedValue),
    KEY_OF_EACH("StatsRegionStartTime%d", aStatsRegions, dStatsRegionStartTime),
    KEY_OF_EACH("StatsRegionEndTime%d", aStatsRegions, dStatsRegionEndTime),
    KEY_OF_EACH("BaseRegionStartTime%d", aBaselines, dBaseRegionStartTime),
    KEY_OF_EACH("BaseRegionEndTime%d", aBaselines, dBaseRegionEndTime),
};

constexpr OptionBlock kMeasurementsBlocks[] = {{kMeasurementsSingleKeys},
                                               {kMeasurementsSearchKeys, 24}};

// The last polarity of the last search is the last word of the record.
static_assert(offsetof(Record, aPolarities[23]) + 24 * 4 == sizeof(ZXADLG_MeasurementOptions));

}  // namespace

const OptionSection kMeasurementsSection = {"Measurements", "ZXADLG_MeasurementOptions",
                                            kMeasurementsBlocks};
