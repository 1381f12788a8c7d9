// The keys of the measurements: single fields, then those of each of the 24 searches.

#include <cstddef>

#include "contract/OptionPersistence.h"
#include "contract/OptionTables.h"

namespace {

using enum OptionType;
using Record = ZXADLG_MeasurementOptions;

// The way from one search to the next in each of the four arrays.
constexpr std::uint32_t kSearch = sizeof(ZXADLG_MeasurementSearch);
constexpr std::uint32_t kStats = sizeof(ZXADLG_StatisticsRegion);
constexpr std::uint32_t kBase = sizeof(ZXADLG_BaselineRegion);
constexpr std::uint32_t kPolarity = sizeof(ZXADLG_PolarityEntry);

constexpr OptionKey kMeasurementsSingleKeys[] = {
    Single("nDlgSearchIndex", kInt32, offsetof(Record, nDlgSearchIndex)),
    Single("eDestinationOption", kInt32, offsetof(Record, common.eDestinationOption)),
    Single("bVerboseOutput", kBool8, offsetof(Record, common.bWriteRegionInfo)),
    Single("bImportFromFile", kBool8, offsetof(Record, bImportFromFile)),
    // Required as it stands: written, and never read back.
    SaveOnly(Single("eOutputOrder", kInt32, offsetof(Record, eOutputOrder))),
};

constexpr OptionKey kMeasurementsSearchKeys[] = {
    Repeated("DoAutoGraph%d", kBool8, offsetof(Record, aSearches[0].bDoAutoGraph), kSearch),
    Repeated("RegionEnable%d", kBool8, offsetof(Record, aSearches[0].bRegionEnable), kSearch),
    Repeated("PeakAmplitude%d", kBool8, offsetof(Record, aSearches[0].bPeakAmplitude), kSearch),
    Repeated("PeakTime%d", kBool8, offsetof(Record, aSearches[0].bPeakTime), kSearch),
    Repeated("AntipeakAmplitude%d", kBool8, offsetof(Record, aSearches[0].bAntipeakAmplitude),
             kSearch),
    Repeated("AntipeakTime%d", kBool8, offsetof(Record, aSearches[0].bAntipeakTime), kSearch),
    Repeated("Mean%d", kBool8, offsetof(Record, aSearches[0].bMean), kSearch),
    Repeated("StanDev%d", kBool8, offsetof(Record, aSearches[0].bStanDev), kSearch),
    Repeated("Area%d", kBool8, offsetof(Record, aSearches[0].bArea), kSearch),
    Repeated("HalfWidth%d", kBool8, offsetof(Record, aSearches[0].bHalfWidth), kSearch),
    Repeated("MaxRiseSlope%d", kBool8, offsetof(Record, aSearches[0].bMaxRiseSlope), kSearch),
    Repeated("MaxRiseSlopeTime%d", kBool8, offsetof(Record, aSearches[0].bMaxRiseSlopeTime),
             kSearch),
    Repeated("MaxDecaySlope%d", kBool8, offsetof(Record, aSearches[0].bMaxDecaySlope), kSearch),
    Repeated("MaxDecaySlopeTime%d", kBool8, offsetof(Record, aSearches[0].bMaxDecaySlopeTime),
             kSearch),
    Repeated("RegionSlope%d", kBool8, offsetof(Record, aSearches[0].bRegionSlope), kSearch),
    Repeated("Baseline%d", kBool8, offsetof(Record, aSearches[0].bBaseline), kSearch),
    Repeated("RiseSlope%d", kBool8, offsetof(Record, aSearches[0].bRiseSlope), kSearch),
    Repeated("RiseTime%d", kBool8, offsetof(Record, aSearches[0].bRiseTime), kSearch),
    Repeated("DecaySlope%d", kBool8, offsetof(Record, aSearches[0].bDecaySlope), kSearch),
    Repeated("DecayTime%d", kBool8, offsetof(Record, aSearches[0].bDecayTime), kSearch),
    Repeated("PeakApplyToAll%d", kBool8, offsetof(Record, aPolarities[0].bPeakApplyToAll),
             kPolarity),
    Repeated("ApplyFilter%d", kBool8, offsetof(Record, aSearches[0].bApplyFilter), kSearch),
    Repeated("EventDuration%d", kBool8, offsetof(Record, aSearches[0].bEventDuration), kSearch),
    Repeated("StatsRegion%d", kInt32, offsetof(Record, aStatsRegions[0].eStatsRegion), kStats),
    Repeated("StatsRegionStartIndex%d", kInt32,
             offsetof(Record, aStatsRegions[0].nStatsRegionStartIndex), kStats),
    Repeated("StatsRegionEndIndex%d", kInt32,
             offsetof(Record, aStatsRegions[0].nStatsRegionEndIndex), kStats),
    Repeated("BaseRegion%d", kInt32, offsetof(Record, aBaselines[0].eBaseRegion), kBase),
    Repeated("BaseRegionStartIndex%d", kInt32,
             offsetof(Record, aBaselines[0].nBaseRegionStartIndex), kBase),
    Repeated("BaseRegionEndIndex%d", kInt32, offsetof(Record, aBaselines[0].nBaseRegionEndIndex),
             kBase),
    Repeated("RiseFromPercent%d", kInt32, offsetof(Record, aSearches[0].nRiseFromPercent), kSearch),
    Repeated("RiseToPercent%d", kInt32, offsetof(Record, aSearches[0].nRiseToPercent), kSearch),
    Repeated("DecayFromPercent%d", kInt32, offsetof(Record, aSearches[0].nDecayFromPercent),
             kSearch),
    Repeated("DecayToPercent%d", kInt32, offsetof(Record, aSearches[0].nDecayToPercent), kSearch),
    Repeated("BaseMode%d", kInt32, offsetof(Record, aBaselines[0].eBaseMode), kBase),
    Repeated("EventDurationPercent%d", kInt32, offsetof(Record, aSearches[0].nEventDurationPercent),
             kSearch),
    // No number in this key: all searches share it, and the last one wins.
    Repeated("AllGroupsPeakPolarity", kInt32,
             offsetof(Record, aPolarities[0].eAllGroupsPeakPolarity), kPolarity),
    Repeated("SmoothingPoints%d", kInt32, offsetof(Record, aSearches[0].nSmoothingPoints), kSearch),
    Repeated("NumYPlotItems%d", kInt32, offsetof(Record, aSearches[0].nNumYPlotItems), kSearch),
    Repeated("AutoPlotXVariable%d", kInt32, offsetof(Record, aSearches[0].eAutoPlotXVariable),
             kSearch),
    // Required as they stand: read from a store that another version filled, and never written.
    LoadOnly(Repeated("StatsRegionEpisode1%d", kInt32,
                      offsetof(Record, aStatsRegions[0].nStatsRegionEpisode1), kStats)),
    LoadOnly(Repeated("BaseRegionEpisode1%d", kInt32,
                      offsetof(Record, aBaselines[0].nBaseRegionEpisode1), kBase)),
    LoadOnly(Repeated("BaseRegionEpisode2%d", kInt32,
                      offsetof(Record, aBaselines[0].nBaseRegionEpisode2), kBase)),
    LoadOnly(Repeated("STatsRegionEpisode2%d", kInt32,
                      offsetof(Record, aStatsRegions[0].nStatsRegionEpisode2), kStats)),
    // Required as it stands: 24 polarities although an entry has room for 16, so that the last
    // eight are the two fields behind them and the first six of the next search.
    RepeatedTwice("PeakPolarity%d%d", kInt32, offsetof(Record, aPolarities[0].aePeakPolarity),
                  kPolarity, 24, 4),
    RepeatedTwice("AutoPlotYVariable%d%d", kInt32,
                  offsetof(Record, aSearches[0].aeAutoPlotYVariable), kSearch, 24, 4),
    Repeated("BaseFixedValue%d", kDouble, offsetof(Record, aBaselines[0].dBaseFixedValue), kBase),
    Repeated("StatsRegionStartTime%d", kDouble,
             offsetof(Record, aStatsRegions[0].dStatsRegionStartTime), kStats),
    Repeated("StatsRegionEndTime%d", kDouble,
             offsetof(Record, aStatsRegions[0].dStatsRegionEndTime), kStats),
    Repeated("BaseRegionStartTime%d", kDouble, offsetof(Record, aBaselines[0].dBaseRegionStartTime),
             kBase),
    Repeated("BaseRegionEndTime%d", kDouble, offsetof(Record, aBaselines[0].dBaseRegionEndTime),
             kBase),
};

constexpr OptionBlock kMeasurementsBlocks[] = {{kMeasurementsSingleKeys},
                                               {kMeasurementsSearchKeys, 24}};

// The last polarity of the last search is the last word of the record.
static_assert(offsetof(Record, aPolarities[23]) + 24 * 4 == sizeof(ZXADLG_MeasurementOptions));

}  // namespace

const OptionSection kMeasurementsSection = {"Measurements", kMeasurementsBlocks};
