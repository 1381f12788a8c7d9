// A host's data, built in a few words:
//
//     TestDataSource source;
//     source.Kind(0).Groups({"IN 0", "IN 1"}).Sets(12).Points(1000);
//     source.Region(3, "Cursors 1..2", 100, 199);
//
// Every call of the library is written to `calls` when recording is on, as "GetSetCount(0)". Texts
// can be taken away (NullTexts) and arrays as well (NullArrays), as hosts do that have nothing to
// say.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include "ZXADLG.h"

namespace test_support {

class TestDataSource : public ZXADLG_CDlgDataSource {
  public:
    struct RegionRow {
        int id;
        std::string name;
        uint32_t first;
        uint32_t last;
        bool hasExtent = true;
        bool hasName = true;
    };
    struct WaveformRow {
        uint32_t number;
        std::string name;
    };

    // Goes behind the operations of the library's table.
    virtual ~TestDataSource() = default;

    // --- Building.
    TestDataSource& Kind(uint32_t value) { return kind = value, *this; }
    TestDataSource& Groups(std::vector<std::string> names) {
        groupNames = std::move(names);
        setCounts.assign(groupNames.size(), sets);
        return *this;
    }
    TestDataSource& Sets(uint32_t count) {
        sets = count;
        setCounts.assign(groupNames.size(), count);
        return *this;
    }
    TestDataSource& Points(uint32_t count) { return points = count, *this; }
    TestDataSource& Profile(std::string text) {
        profile = std::move(text);
        hasProfile = true;
        return *this;
    }
    TestDataSource& Region(int id, std::string text, uint32_t first, uint32_t last) {
        regions.push_back({id, std::move(text), first, last});
        return *this;
    }
    TestDataSource& Waveform(uint32_t number, std::string text) {
        waveforms.push_back({number, std::move(text)});
        return *this;
    }
    TestDataSource& NullTexts() { return nullTexts = true, *this; }
    TestDataSource& NullArrays() { return nullArrays = true, *this; }
    TestDataSource& Record() { return recording = true, *this; }

    // --- What the library asks.
    const char* GetProfileName() override {
        Log("GetProfileName()");
        return hasProfile ? profile.c_str() : nullptr;
    }
    const double* GetXValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                             uint32_t) override {
        Log("GetXValues(" + Numbers(group, set) + Range(range) + ")");
        return Values(group, set, range, true);
    }
    const double* GetYValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                             uint32_t) override {
        Log("GetYValues(" + Numbers(group, set) + Range(range) + ")");
        return Values(group, set, range, false);
    }
    uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                           uint32_t) override {
        Log("GetPointCount(" + Numbers(group, set) + Range(range) + ")");
        return Span(group, set, range).second;
    }
    uint32_t GetGroupCount() override {
        return Log("GetGroupCount()"), static_cast<uint32_t>(groupNames.size());
    }
    uint32_t GetSetCount(uint32_t group) override {
        Log("GetSetCount(" + std::to_string(group) + ")");
        return group < setCounts.size() ? setCounts[group] : 0;
    }
    uint32_t GetGroupCode(uint32_t group) override {
        return Log("GetGroupCode(" + std::to_string(group) + ")"), 700 + group;
    }
    void Reserved8() override { Log("Reserved8()"); }
    const char* GetGroupLabel() override { return Log("GetGroupLabel()"), Text(groupLabel); }
    const char* GetSetLabel() override { return Log("GetSetLabel()"), Text(setLabel); }
    const char* GetGroupName(uint32_t group) override {
        Log("GetGroupName(" + std::to_string(group) + ")");
        return group < groupNames.size() ? Text(groupNames[group]) : nullptr;
    }
    const char* GetSetName(uint32_t group, uint32_t set) override {
        Log("GetSetName(" + Numbers(group, set) + ")");
        setName = setPrefix + std::to_string(set + 1);
        return Text(setName);
    }
    const char* GetUnits(uint32_t, int32_t) override { return Log("GetUnits"), Text(units); }
    void Reserved14() override { Log("Reserved14()"); }
    uint32_t GetDataKind() override { return Log("GetDataKind()"), kind; }
    double GetSamplingFrequency() override {
        return Log("GetSamplingFrequency()"), samplingFrequency;
    }
    uint32_t GetRegionCount() override {
        return Log("GetRegionCount()"), static_cast<uint32_t>(regions.size());
    }
    uint32_t GetEpochCount() override {
        return Log("GetEpochCount()"), static_cast<uint32_t>(waveforms.size());
    }
    uint32_t GetBlobSize() override { return Log("GetBlobSize()"), blobSize; }
    uint32_t GetActiveSet(uint32_t group) override {
        return Log("GetActiveSet(" + std::to_string(group) + ")"), activeSet;
    }
    uint32_t GetActiveGroup() override { return Log("GetActiveGroup()"), activeGroup; }
    const char* GetRegionName(uint32_t position) override {
        Log("GetRegionName(" + std::to_string(position) + ")");
        if (position >= regions.size() || !regions[position].hasName) return nullptr;
        return Text(regions[position].name);
    }
    const char* GetEpochName(uint32_t position, uint32_t* value) override {
        Log("GetEpochName(" + std::to_string(position) + ")");
        if (position >= waveforms.size()) return nullptr;
        *value = waveforms[position].number;
        return Text(waveforms[position].name);
    }
    bool GetRegionInfo(uint32_t position, ZXADLG_RegionInfo* info, uint32_t group,
                       uint32_t set) override {
        Log("GetRegionInfo(" + std::to_string(position) + "," + Numbers(group, set) + ")");
        if (position >= regions.size() || !regions[position].hasExtent) return false;
        info->uGroup = group;
        info->uSet = set;
        info->uFirstPoint = regions[position].first;
        info->uLastPoint = regions[position].last;
        info->dStart = 0.1 * regions[position].first;
        info->dEnd = 0.1 * regions[position].last;
        return true;
    }
    bool IsGroupVisible(uint32_t group) override {
        Log("IsGroupVisible(" + std::to_string(group) + ")");
        return group < groupNames.size() &&
               (hiddenGroup < 0 || group != static_cast<uint32_t>(hiddenGroup));
    }
    bool IsSetVisible(uint32_t group, uint32_t set) override {
        Log("IsSetVisible(" + Numbers(group, set) + ")");
        return set % hiddenEvery != hiddenEvery - 1;
    }
    void CopyBlob(void* dest, uint32_t size) override {
        Log("CopyBlob(" + std::to_string(size) + ")");
        std::memset(dest, 0x5A, size);
    }
    bool IsSegmented() override { return Log("IsSegmented()"), segmented; }
    int32_t GetRegionId(uint32_t position) override {
        Log("GetRegionId(" + std::to_string(position) + ")");
        return position < regions.size() ? regions[position].id : 0;
    }
    bool HasUserList() override { return Log("HasUserList()"), userList; }
    int32_t GetCursor(uint32_t cursor) override {
        Log("GetCursor(" + std::to_string(cursor) + ")");
        return cursor < 17 ? cursors[cursor] : 0;
    }
    void SetCursor(uint32_t cursor, int32_t position) override {
        Log("SetCursor(" + std::to_string(cursor) + ")");
        if (cursor < 17) cursors[cursor] = position;
    }

    // --- The data. x values count in tenths, y values are `base` plus the index within their set.
    uint32_t kind = 0;
    std::vector<std::string> groupNames = {"IN 0", "IN 1"};
    std::vector<uint32_t> setCounts = {12, 12};
    uint32_t sets = 12;
    uint32_t points = 1000;
    std::string groupLabel = "Signal";
    std::string setLabel = "Trace";
    std::string setPrefix = "Trace #";
    std::string units = "pA";
    std::string profile;
    bool hasProfile = false;
    double samplingFrequency = 10000.0;
    std::vector<RegionRow> regions;
    std::vector<WaveformRow> waveforms;
    uint32_t blobSize = 0;
    uint32_t activeSet = 1;
    uint32_t activeGroup = 0;
    int hiddenGroup = -1;
    uint32_t hiddenEvery = 1000000;  // every n-th set is hidden
    bool segmented = false;
    bool userList = false;
    bool nullTexts = false;
    bool nullArrays = false;
    bool recording = false;
    int32_t cursors[17] = {};
    std::vector<std::string> calls;
    // Where not empty, the y values of every set.
    std::vector<double> yValues;

  private:
    void Log(const std::string& call) {
        if (recording) calls.push_back(call);
    }
    static std::string Numbers(uint32_t a, uint32_t b) {
        return std::to_string(a) + "," + std::to_string(b);
    }
    static std::string Range(const ZXADLG_DataRange* range) {
        if (range == nullptr) return ",null";
        return ",{" + std::to_string(range->uRegionId) + "," + std::to_string(range->uFirstIndex) +
               "," + std::to_string(range->uLastIndex) + "," + std::to_string(range->reserved) +
               "," + (range->bUseFullRange != 0 ? "full" : "part") + "}";
    }
    const char* Text(const std::string& text) const { return nullTexts ? nullptr : text.c_str(); }
    // First point and number of points under a range.
    std::pair<uint32_t, uint32_t> Span(uint32_t group, uint32_t set,
                                       const ZXADLG_DataRange* range) const {
        if (group >= setCounts.size() || set >= setCounts[group]) return {0, 0};
        if (range == nullptr) return {0, points};
        for (const RegionRow& region : regions) {
            if (range->uRegionId != 0 && region.id == static_cast<int>(range->uRegionId)) {
                return {region.first, region.last - region.first + 1};
            }
        }
        if (kind == 0 || range->bUseFullRange != 0) return {0, points};
        if (range->uFirstIndex > range->uLastIndex || range->uLastIndex >= points) return {0, 0};
        return {range->uFirstIndex, range->uLastIndex - range->uFirstIndex + 1};
    }
    const double* Values(uint32_t group, uint32_t set, const ZXADLG_DataRange* range, bool isX) {
        const auto [first, count] = Span(group, set, range);
        if (nullArrays || count == 0) return nullptr;
        std::vector<double>& values = isX ? xBuffer : yBuffer;
        if (!isX && !yValues.empty()) {
            values = yValues;
            values.resize(points);
            return values.data() + first;
        }
        values.resize(points);
        for (uint32_t i = 0; i < points; ++i) values[i] = isX ? 0.1 * i : 100.0 * set + i;
        return values.data() + first;
    }

    std::string setName;
    std::vector<double> xBuffer;
    std::vector<double> yBuffer;
};

}  // namespace test_support
