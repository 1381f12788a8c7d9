#include "StoreShape.h"

#include <cstdio>
#include <fstream>

#include "store/ProfileStore.h"
#include "store/StoreBatch.h"

std::vector<StoreKey> MakeKeys(int nIndices) {
    using Type = StoreKey::Type;
    static const char* const kBooleans[] = {
        "DoAutoGraph",   "RegionEnable",      "PeakAmplitude",
        "PeakTime",      "AntipeakAmplitude", "AntipeakTime",
        "Mean",          "StanDev",           "Area",
        "HalfWidth",     "MaxRiseSlope",      "MaxRiseSlopeTime",
        "MaxDecaySlope", "MaxDecaySlopeTime", "RegionSlope",
        "Baseline",      "RiseSlope",         "RiseTime",
        "DecaySlope",    "DecayTime",         "PeakApplyToAll",
        "ApplyFilter",   "EventDuration"};
    static const char* const kIntegers[] = {"StatsRegion",
                                            "StatsRegionStartIndex",
                                            "StatsRegionEndIndex",
                                            "BaseRegion",
                                            "BaseRegionStartIndex",
                                            "BaseRegionEndIndex",
                                            "RiseFromPercent",
                                            "RiseToPercent",
                                            "DecayFromPercent",
                                            "DecayToPercent",
                                            "BaseMode",
                                            "EventDurationPercent",
                                            "SmoothingPoints",
                                            "NumYPlotItems",
                                            "AutoPlotXVariable",
                                            "PeakWidth"};
    static const char* const kDoubles[] = {"BaseFixedValue", "StatsRegionStartTime",
                                           "StatsRegionEndTime", "BaseRegionStartTime",
                                           "BaseRegionEndTime"};
    std::vector<StoreKey> keys;
    for (int i = 0; i < 92 * nIndices / 24; ++i)
        keys.push_back({"nOption" + std::to_string(i), Type::kInteger});
    for (int i = 0; i < nIndices; ++i) {
        const std::string sIndex = std::to_string(i);
        for (const char* szKey : kBooleans) keys.push_back({szKey + sIndex, Type::kBoolean});
        for (const char* szKey : kIntegers) keys.push_back({szKey + sIndex, Type::kInteger});
        for (const char* szKey : kDoubles) keys.push_back({szKey + sIndex, Type::kDouble});
        for (int j = 0; j < 24; ++j) {
            keys.push_back({"PeakPolarity" + sIndex + "_" + std::to_string(j), Type::kInteger});
            keys.push_back(
                {"AutoPlotYVariable" + sIndex + "_" + std::to_string(j), Type::kInteger});
        }
    }
    return keys;
}

void SaveBatch(const std::vector<StoreKey>& keys, int nRound, const char* szApp) {
    const StoreBatch batch(szApp);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const StoreValue value = ValueOf(i, nRound);
        const char* szKey = keys[i].sKey.c_str();
        switch (keys[i].eType) {
            case StoreKey::Type::kBoolean:
                WriteBool(kSectionName, szKey, value.nInteger & 1, szApp);
                break;
            case StoreKey::Type::kInteger:
                WriteInt32(kSectionName, szKey, value.nInteger, szApp);
                break;
            case StoreKey::Type::kDouble:
                WriteDouble(kSectionName, szKey, value.dDouble, szApp);
                break;
        }
    }
}

double LoadBatch(const std::vector<StoreKey>& keys, const char* szApp) {
    const StoreBatch batch(szApp);
    double dSum = 0;
    for (const StoreKey& key : keys) {
        std::int32_t nValue = 0;
        double dValue = 0;
        switch (key.eType) {
            case StoreKey::Type::kBoolean:
                ReadBool(kSectionName, key.sKey.c_str(), 0, &nValue, szApp);
                break;
            case StoreKey::Type::kInteger:
                ReadInt32(kSectionName, key.sKey.c_str(), 0, &nValue, szApp);
                break;
            case StoreKey::Type::kDouble:
                ReadDouble(kSectionName, key.sKey.c_str(), 0, &dValue, szApp);
                break;
        }
        dSum += nValue + dValue;
    }
    return dSum;
}

void WriteForeignFile(const char* szPath) {
    std::ofstream out(szPath, std::ios::binary);
    for (const char* szSection : {"Host", "CurveFitSection", "FilterDataSection"}) {
        out << "[" << szSection << "]\r\n";
        for (int i = 0; i < 60; ++i) out << "Entry" << i << "=some value " << i << "\r\n";
    }
}
