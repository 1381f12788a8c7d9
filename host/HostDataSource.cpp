#include "HostDataSource.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "System.h"

namespace zxhost {
namespace {

constexpr uint32_t kFirstGroupCode = 100;

uint32_t Size(std::size_t size) {
    return static_cast<uint32_t>(size);
}

}  // namespace

HostDataSource::HostDataSource(Recording* recording, std::string profile)
    : recording_(recording), profile_(std::move(profile)) {}

const Set* HostDataSource::FindSet(uint32_t group, uint32_t set) const {
    if (group >= recording_->groups.size()) return nullptr;
    const std::vector<Set>& sets = recording_->groups[group].sets;
    return set < sets.size() ? &sets[set] : nullptr;
}

HostDataSource::Span HostDataSource::SpanOf(const Region& region) const {
    const uint32_t points = recording_->PointCount();
    if (points == 0) return {};
    uint32_t first = region.firstPoint;
    uint32_t last = region.lastPoint;
    if (region.firstCursor != 0) {
        const auto at = [&](int cursor) {
            const int32_t point = recording_->cursors[static_cast<std::size_t>(cursor - 1)];
            return std::min(static_cast<uint32_t>(std::max(point, 0)), points - 1);
        };
        first = at(region.firstCursor);
        last = at(region.lastCursor);
        if (first > last) std::swap(first, last);
    }
    return {first, last - first + 1};
}

HostDataSource::Span HostDataSource::SpanOf(uint32_t group, uint32_t set,
                                            const ZXADLG_DataRange* range) const {
    const Set* found = FindSet(group, set);
    if (found == nullptr) return {};
    const uint32_t points = Size(found->values.size());
    const Span all = {0, points};
    if (range == nullptr) return all;
    if (range->uRegionId != 0) {
        for (const Region& region : recording_->regions) {
            if (region.id == static_cast<int32_t>(range->uRegionId)) return SpanOf(region);
        }
    }
    if (recording_->kind != DataKind::kSheet || range->bUseFullRange != 0) return all;
    if (range->uFirstIndex > range->uLastIndex || range->uLastIndex >= points) return {};
    return {range->uFirstIndex, range->uLastIndex - range->uFirstIndex + 1};
}

const char* HostDataSource::Told(const std::string& text) {
    told_ = ToSystem(text);
    return told_.c_str();
}

const char* HostDataSource::GetProfileName() {
    return profile_.empty() ? nullptr : profile_.c_str();
}

const double* HostDataSource::GetXValues(uint32_t group, uint32_t set,
                                         const ZXADLG_DataRange* range, uint32_t reserved) {
    if (recording_->kind == DataKind::kSheet) return GetYValues(group, set, range, reserved);
    const Span span = SpanOf(group, set, range);
    return span.count == 0 ? nullptr : recording_->x.data() + span.first;
}

const double* HostDataSource::GetYValues(uint32_t group, uint32_t set,
                                         const ZXADLG_DataRange* range, uint32_t) {
    const Span span = SpanOf(group, set, range);
    return span.count == 0 ? nullptr : FindSet(group, set)->values.data() + span.first;
}

uint32_t HostDataSource::GetPointCount(uint32_t group, uint32_t set, const ZXADLG_DataRange* range,
                                       uint32_t) {
    return SpanOf(group, set, range).count;
}

uint32_t HostDataSource::GetGroupCount() {
    return Size(recording_->groups.size());
}

uint32_t HostDataSource::GetSetCount(uint32_t group) {
    return group < recording_->groups.size() ? Size(recording_->groups[group].sets.size()) : 0;
}

uint32_t HostDataSource::GetGroupCode(uint32_t group) {
    return kFirstGroupCode + group;
}

const char* HostDataSource::GetGroupLabel() {
    return recording_->kind == DataKind::kSheet ? "Sheet" : "Signal";
}

const char* HostDataSource::GetSetLabel() {
    return recording_->kind == DataKind::kSheet ? "Column" : "Sweep";
}

const char* HostDataSource::GetGroupName(uint32_t group) {
    return group < recording_->groups.size() ? Told(recording_->groups[group].name) : nullptr;
}

const char* HostDataSource::GetSetName(uint32_t group, uint32_t set) {
    const Set* found = FindSet(group, set);
    return found ? Told(found->name) : nullptr;
}

const char* HostDataSource::GetUnits(uint32_t group, int32_t index) {
    if (group >= recording_->groups.size()) return nullptr;
    if (recording_->kind != DataKind::kSheet) return Told(recording_->groups[group].units);
    const Set* found = FindSet(group, static_cast<uint32_t>(index + 1));
    return found ? Told(found->units) : "";
}

uint32_t HostDataSource::GetDataKind() {
    return static_cast<uint32_t>(recording_->kind);
}

double HostDataSource::GetSamplingFrequency() {
    return recording_->samplingFrequency;
}

uint32_t HostDataSource::GetRegionCount() {
    return Size(recording_->regions.size());
}

uint32_t HostDataSource::GetEpochCount() {
    return Size(recording_->waveforms.size());
}

// The host's own mark in the records: where its cursors stood.
uint32_t HostDataSource::GetBlobSize() {
    return Size(sizeof recording_->cursors);
}

void HostDataSource::CopyBlob(void* dest, uint32_t size) {
    std::memcpy(dest, recording_->cursors.data(), std::min(size, GetBlobSize()));
}

uint32_t HostDataSource::GetActiveSet(uint32_t group) {
    return GetSetCount(group) == 0 ? 0 : recording_->activeSet + 1;
}

uint32_t HostDataSource::GetActiveGroup() {
    return recording_->activeGroup;
}

const char* HostDataSource::GetRegionName(uint32_t position) {
    const std::vector<Region>& regions = recording_->regions;
    const bool named = position < regions.size() && !regions[position].name.empty();
    return named ? Told(regions[position].name) : nullptr;
}

const char* HostDataSource::GetEpochName(uint32_t position, uint32_t* value) {
    if (position >= recording_->waveforms.size()) return nullptr;
    *value = recording_->waveforms[position].number;
    return Told(recording_->waveforms[position].name);
}

bool HostDataSource::GetRegionInfo(uint32_t position, ZXADLG_RegionInfo* info, uint32_t group,
                                   uint32_t set) {
    if (position >= recording_->regions.size()) return false;
    const Span span = SpanOf(recording_->regions[position]);
    if (span.count == 0) return false;
    info->uGroup = group;
    info->uSet = set;
    info->uFirstPoint = span.first;
    info->uLastPoint = span.first + span.count - 1;
    // The rows of a sheet are its axis.
    const std::vector<double>& x = recording_->x;
    info->dStart = x.empty() ? info->uFirstPoint : x[info->uFirstPoint];
    info->dEnd = x.empty() ? info->uLastPoint : x[info->uLastPoint];
    return true;
}

bool HostDataSource::IsGroupVisible(uint32_t group) {
    return group < recording_->groups.size() && recording_->groups[group].visible;
}

bool HostDataSource::IsSetVisible(uint32_t group, uint32_t set) {
    const Set* found = FindSet(group, set);
    return found != nullptr && found->visible;
}

int32_t HostDataSource::GetRegionId(uint32_t position) {
    return position < recording_->regions.size() ? recording_->regions[position].id : -1;
}

int32_t HostDataSource::GetCursor(uint32_t cursor) {
    return cursor >= 1 && cursor <= kCursors ? recording_->cursors[cursor - 1] : 0;
}

void HostDataSource::SetCursor(uint32_t cursor, int32_t position) {
    if (cursor >= 1 && cursor <= kCursors) recording_->cursors[cursor - 1] = position;
}

}  // namespace zxhost
