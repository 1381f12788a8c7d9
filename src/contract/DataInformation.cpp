// The description of the data that a dialog leaves in the data record for its host.

#include <algorithm>
#include <cstring>

#include "ZXADLG.h"
#include "contract/CDataOptionsInterface.h"
#include "contract/NotificationCodes.h"
#include "contract/SelectionList.h"
#include "text/BoundedText.h"

namespace {

constexpr std::size_t kBlockSize = offsetof(ZXADLG_DataOptions, eDataGroup1SelectionMode);
static_assert(kBlockSize == 4008);

constexpr std::uint32_t kMaxGroups = 16;
constexpr std::uint32_t kMaxWaveforms = 2;
constexpr std::uint32_t kMaxRegions = 50;
constexpr std::int32_t kLastNumberedRegion = 25;

}  // namespace

bool CDataOptionsInterface::UpdateDataInfo() {
    if (m_pFlags->bUseStoredInfo != 0 || m_bDeferred) return true;
    std::memset(static_cast<void*>(m_pRecord), 0, kBlockSize);

    m_pRecord->uActiveGroup = m_pSource->GetActiveGroup();
    m_pRecord->uRegionCount = m_pSource->GetRegionCount();
    const std::uint32_t uGroups = std::min(m_pSource->GetGroupCount(), kMaxGroups);
    // Every entry is looked up through the selected group, so that all hold the same value.
    for (std::uint32_t g = 0; g < uGroups; ++g) {
        m_pRecord->aActiveSets[g] = m_pSource->GetActiveSet(GetGroup()) - 1;
    }

    ZXADLG_RegionInfo info = {};
    StoreRegionPoints(info);
    if (IsFileData()) StoreFileProperties();
    StoreVisibility();
    StoreGroups();
    StoreRegions(info);
    GetYExtent(&m_pRecord->dMinValue, &m_pRecord->dMaxValue, false);

    m_pRecord->bHasUserList = m_pSource->HasUserList() ? 1 : 0;
    m_pRecord->bSegmented = m_pSource->IsSegmented() ? 1 : 0;
    m_pRecord->eDataKind = m_pSource->GetDataKind();
    m_pRecord->uGroupCount = m_pSource->GetGroupCount();
    m_pRecord->uSetCount = m_pSource->GetSetCount(0);
    m_pRecord->bPaired = m_bUseDepVarList ? 1 : 0;
    Notify(kNotifyDataInfoRebuilt);
    return true;
}

std::uint32_t CDataOptionsInterface::FindRegionPosition(std::int32_t nRegionId) const {
    const std::uint32_t uRegions = m_pSource->GetRegionCount();
    for (std::uint32_t uPosition = 0; uPosition < uRegions; ++uPosition) {
        if (m_pSource->GetRegionId(uPosition) == nRegionId) return uPosition;
    }
    return 0;
}

bool CDataOptionsInterface::LookUpRegion(std::uint32_t uPosition, ZXADLG_RegionInfo& info) const {
    if (IsSheetData()) return m_pSource->GetRegionInfo(0, &info, GetGroup(), GetXSet());
    return m_pSource->GetRegionInfo(uPosition, &info, 0, 0);
}

std::optional<ZXADLG_PointSpan> CDataOptionsInterface::FindRegionPoints(int nRegionId) const {
    const std::uint32_t uPosition = FindRegionPosition(nRegionId);
    ZXADLG_RegionInfo info = {};
    // The search answers the first position for an id that is none.
    if (uPosition >= m_pSource->GetRegionCount() ||
        m_pSource->GetRegionId(uPosition) != nRegionId || !LookUpRegion(uPosition, info))
        return {};
    return ZXADLG_PointSpan{info.uFirstPoint, info.uLastPoint};
}

void CDataOptionsInterface::StoreRegionPoints(ZXADLG_RegionInfo& info) {
    for (std::int32_t nId = 1; nId <= kLastNumberedRegion; ++nId) {
        // The points are kept also when the lookup fails: they are then those of the one before.
        LookUpRegion(FindRegionPosition(nId), info);
        m_pRecord->aRegionPoints[nId - 1] = {info.uFirstPoint, info.uLastPoint};
    }
}

void CDataOptionsInterface::StoreFileProperties() {
    m_pRecord->dSamplingFrequency = m_pSource->GetSamplingFrequency();
    m_pRecord->uBlobSize = m_pSource->GetBlobSize();
    const auto uRoom = static_cast<std::uint32_t>(sizeof m_pRecord->aBlob);
    m_pSource->CopyBlob(m_pRecord->aBlob, std::min(m_pRecord->uBlobSize, uRoom));
    m_pRecord->uEpochCount = m_pSource->GetEpochCount();
    const std::uint32_t uWaveforms = std::min(m_pRecord->uEpochCount, kMaxWaveforms);
    for (std::uint32_t i = 0; i < uWaveforms; ++i) {
        ZXADLG_EpochEntry& entry = m_pRecord->aEpochs[i];
        CopyText(entry.szName, m_pSource->GetEpochName(i, &entry.uNumber));
    }
}

void CDataOptionsInterface::StoreVisibility() {
    std::vector<std::int32_t> vVisible;
    for (std::uint32_t g = 0; g < kMaxGroups; ++g) {
        if (m_pSource->IsGroupVisible(g)) vVisible.push_back(static_cast<std::int32_t>(g));
    }
    m_pRecord->uVisibleGroups = static_cast<std::uint32_t>(vVisible.size());
    FormatSelection(m_pRecord->szVisibleGroups, vVisible, 0);

    vVisible.clear();
    const std::uint32_t uGroup = IsSheetData() ? GetGroup() : m_pSource->GetActiveGroup();
    const std::uint32_t uSets = std::min<std::uint32_t>(m_pSource->GetSetCount(uGroup),
                                                        static_cast<std::uint32_t>(kMaxSelected));
    for (std::uint32_t s = 0; s < uSets; ++s) {
        if (m_pSource->IsSetVisible(uGroup, s)) vVisible.push_back(static_cast<std::int32_t>(s));
    }
    m_pRecord->uVisibleSets = static_cast<std::uint32_t>(vVisible.size());
    FormatSelection(m_pRecord->szVisibleSets, vVisible, 0);
}

void CDataOptionsInterface::StoreGroups() {
    const std::uint32_t uGroups = std::min(m_pSource->GetGroupCount(), kMaxGroups);
    for (std::uint32_t g = 0; g < uGroups; ++g) {
        m_pRecord->aGroups[g].uCode = m_pSource->GetGroupCode(g);
        CopyText(m_pRecord->aGroups[g].szName, m_pSource->GetGroupName(g));
    }
}

void CDataOptionsInterface::StoreRegions(ZXADLG_RegionInfo& info) {
    const std::uint32_t uRegions = std::min(m_pRecord->uRegionCount, kMaxRegions);
    for (std::uint32_t uPosition = 0; uPosition < uRegions; ++uPosition) {
        ZXADLG_RegionEntry& entry = m_pRecord->aRegions[uPosition];
        entry.nRegionId = m_pSource->GetRegionId(uPosition);
        const bool bFound = LookUpRegion(uPosition, info);
        entry.uFirstPoint = info.uFirstPoint;
        entry.uLastPoint = info.uLastPoint;
        entry.uGroup = info.uGroup;
        entry.uSet = info.uSet;
        entry.dStart = bFound ? info.dStart : 0.0;
        entry.dEnd = bFound ? info.dEnd : 0.0;
    }
}
