// What the dialogs see of a recording: the host's half of the interface.
//
// The recording and the profile name are kept by reference to the caller's and must outlive the
// object. A dialog may move the cursors; nothing else of the recording changes.
#pragma once

#include <string>

#include "Recording.h"
#include "ZXADLG.h"

namespace zxhost {

class HostDataSource final : public ZXADLG_CDlgDataSource {
  public:
    // With an empty profile name the dialogs remember nothing.
    HostDataSource(Recording* recording, std::string profile);

    const char* GetProfileName() override;
    const double* GetXValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                             uint32_t reserved) override;
    const double* GetYValues(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                             uint32_t reserved) override;
    uint32_t GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                           uint32_t reserved) override;
    uint32_t GetGroupCount() override;
    uint32_t GetSetCount(uint32_t group) override;
    uint32_t GetGroupCode(uint32_t group) override;
    void Reserved8() override {}
    const char* GetGroupLabel() override;
    const char* GetSetLabel() override;
    const char* GetGroupName(uint32_t group) override;
    const char* GetSetName(uint32_t group, uint32_t set) override;
    const char* GetUnits(uint32_t group, int32_t index) override;
    void Reserved14() override {}
    uint32_t GetDataKind() override;
    double GetSamplingFrequency() override;
    uint32_t GetRegionCount() override;
    uint32_t GetEpochCount() override;
    uint32_t GetBlobSize() override;
    uint32_t GetActiveSet(uint32_t group) override;
    uint32_t GetActiveGroup() override;
    const char* GetRegionName(uint32_t position) override;
    const char* GetEpochName(uint32_t position, uint32_t* value) override;
    bool GetRegionInfo(uint32_t position, ZXADLG_RegionInfo* info, uint32_t group,
                       uint32_t set) override;
    bool IsGroupVisible(uint32_t group) override;
    bool IsSetVisible(uint32_t group, uint32_t set) override;
    void CopyBlob(void* dest, uint32_t size) override;
    bool IsSegmented() override { return false; }
    int32_t GetRegionId(uint32_t position) override;
    bool HasUserList() override { return false; }
    int32_t GetCursor(uint32_t cursor) override;
    void SetCursor(uint32_t cursor, int32_t position) override;

  private:
    struct Span {
        uint32_t first = 0;
        uint32_t count = 0;
    };
    const Set* FindSet(uint32_t group, uint32_t set) const;
    Span SpanOf(const Region& region) const;
    Span SpanOf(uint32_t group, uint32_t set, const ZXADLG_DataRange* range) const;

    // The dialogs have another encoding than the host.
    const char* Told(const std::string& text);

    Recording* recording_;
    std::string profile_;
    std::string told_;  // the last text
};

}  // namespace zxhost
