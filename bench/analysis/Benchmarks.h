// The measurements of this program. Each prints its rows and returns whether they met their
// targets.
#pragma once

#include <string>
#include <vector>

#include "ZXADLG.h"
#include "platform/platform.h"

// A host that has everything at hand, so that only the dialog is timed: two groups, two regions,
// and sets of 100 points.
class NamedSource : public ZXADLG_CDlgDataSource {
  public:
    explicit NamedSource(std::uint32_t uSets) : values(kPoints, 1.0) {
        for (std::uint32_t s = 0; s < uSets; ++s)
            names.push_back("Trace #" + std::to_string(s + 1));
    }
    virtual ~NamedSource() = default;

    const char* GetProfileName() override { return nullptr; }
    const double* GetXValues(uint32_t, uint32_t, const ZXADLG_DataRange*, uint32_t) override {
        return values.data();
    }
    const double* GetYValues(uint32_t, uint32_t, const ZXADLG_DataRange*, uint32_t) override {
        return values.data();
    }
    uint32_t GetPointCount(uint32_t, uint32_t, const ZXADLG_DataRange*, uint32_t) override {
        return kPoints;
    }
    uint32_t GetGroupCount() override { return 2; }
    uint32_t GetSetCount(uint32_t) override { return static_cast<uint32_t>(names.size()); }
    uint32_t GetGroupCode(uint32_t group) override { return group; }
    void Reserved8() override {}
    const char* GetGroupLabel() override { return "Signal"; }
    const char* GetSetLabel() override { return "Trace"; }
    const char* GetGroupName(uint32_t group) override { return kGroupNames[group]; }
    const char* GetSetName(uint32_t, uint32_t set) override { return names[set].c_str(); }
    const char* GetUnits(uint32_t, int32_t) override { return "pA"; }
    void Reserved14() override {}
    uint32_t GetDataKind() override { return 0; }
    double GetSamplingFrequency() override { return 10000; }
    uint32_t GetRegionCount() override { return 2; }
    uint32_t GetEpochCount() override { return 0; }
    uint32_t GetBlobSize() override { return 0; }
    uint32_t GetActiveSet(uint32_t) override { return 1; }
    uint32_t GetActiveGroup() override { return 0; }
    const char* GetRegionName(uint32_t position) override { return kRegionNames[position]; }
    const char* GetEpochName(uint32_t, uint32_t*) override { return nullptr; }
    bool GetRegionInfo(uint32_t, ZXADLG_RegionInfo* info, uint32_t, uint32_t) override {
        info->uLastPoint = kPoints - 1;
        return true;
    }
    bool IsGroupVisible(uint32_t group) override { return group < 2; }
    bool IsSetVisible(uint32_t, uint32_t) override { return true; }
    void CopyBlob(void*, uint32_t) override {}
    bool IsSegmented() override { return false; }
    int32_t GetRegionId(uint32_t position) override { return position == 0 ? 0 : 3; }
    bool HasUserList() override { return false; }
    int32_t GetCursor(uint32_t) override { return 0; }
    void SetCursor(uint32_t, int32_t) override {}

    static constexpr uint32_t kPoints = 100;
    static constexpr const char* kGroupNames[] = {"IN 0", "IN 1"};
    static constexpr const char* kRegionNames[] = {"Whole trace", "Cursors 1..2"};
    std::vector<std::string> names;
    std::vector<double> values;
};

// Dispatches what waits.
inline void DrainMessages() {
    MSG msg;
    while (PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&msg);
        DispatchMessageA(&msg);
    }
}

bool MeasureDataTab();
bool MeasureNormalize();
