#include "contract/CDataOptionsInterface.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

#include "ZXADLG.h"
#include "contract/SelectionList.h"
#include "contract/ValueExtent.h"
#include "text/BoundedText.h"
#include "text/ListText.h"

CDataOptionsInterface::CDataOptionsInterface(ZXADLG_DataOptions* pRecord,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DataTabFlags* pFlags)
    : m_pSource(pSource), m_pRecord(pRecord), m_pFlags(pFlags) {
    EndLists();
    CorrectStoredIndices();
}

CDataOptionsInterface::~CDataOptionsInterface() = default;

void CDataOptionsInterface::EndLists() {
    // A host may fill a field to its last byte.
    const auto end = [](auto& szList) { szList[sizeof szList - 1] = '\0'; };
    end(m_pRecord->szUnitarySelectionList1);
    end(m_pRecord->szUnitarySelectionList2);
    end(m_pRecord->szDepVarSelectionList);
}

void CDataOptionsInterface::CorrectStoredIndices() {
    // With nothing to point at, an index of 0 stands for "the last".
    const auto last = [](std::uint32_t uCount) { return uCount == 0 ? 0 : uCount - 1; };

    // The kind is the first question to a source about its data.
    const bool bSheet = IsSheetData();
    const std::uint32_t uGroups = m_pSource->GetGroupCount();
    // No source is asked about a group that it does not have.
    for (std::uint32_t* puGroup :
         {&m_pRecord->uGroup1Index, &m_pRecord->uGroup2Index, &m_pRecord->uPairedGroupIndex}) {
        if (*puGroup >= uGroups) *puGroup = last(uGroups);
    }
    if (bSheet) {
        const std::uint32_t uSets = GetSetCountInGroup();
        if (m_pRecord->uIndepVarDataSetIndex >= uSets) {
            m_pRecord->uIndepVarDataSetIndex = uSets < 2 ? last(uSets) : uSets - 2;
        }
        if (m_pRecord->uDepVarDataSetIndex >= uSets) m_pRecord->uDepVarDataSetIndex = last(uSets);
    }
    for (std::uint32_t i = 0; i < kMaxConstants; ++i) {
        SetIsConstant(i, m_pRecord->abIsConstant[i] != 0);
    }
    if (bSheet) {
        std::uint32_t uFirst = std::min(m_pRecord->uFirstDataIndex, m_pRecord->uLastDataIndex);
        if (m_pFlags->bUseStoredInfo == 0 && uFirst >= GetPointCount()) uFirst = 0;
        m_pRecord->uFirstDataIndex = uFirst;
    }
}

bool CDataOptionsInterface::IsFileData() const {
    return m_pSource->GetDataKind() == kFileData;
}
bool CDataOptionsInterface::IsSheetData() const {
    return m_pSource->GetDataKind() == kSheetData;
}

// --- The selection ---------------------------------------------------------------------------

int CDataOptionsInterface::GetDataGroupSelectionMode(int n) const {
    return n == 1 ? m_pRecord->eDataGroup2SelectionMode : m_pRecord->eDataGroup1SelectionMode;
}

void CDataOptionsInterface::SetDataGroupSelectionMode(int n, int eMode) {
    (n == 1 ? m_pRecord->eDataGroup2SelectionMode : m_pRecord->eDataGroup1SelectionMode) = eMode;
}

int CDataOptionsInterface::GetDataSetSelectionMode(int n) const {
    return n == 1 ? m_pRecord->eDataSet2SelectionMode : m_pRecord->eDataSet1SelectionMode;
}

void CDataOptionsInterface::SetDataSetSelectionMode(int n, int eMode) {
    (n == 1 ? m_pRecord->eDataSet2SelectionMode : m_pRecord->eDataSet1SelectionMode) = eMode;
}

const char* CDataOptionsInterface::GetSelectionList(int n) const {
    if (n == 0) return m_pRecord->szUnitarySelectionList1;
    if (n == 1) return m_pRecord->szUnitarySelectionList2;
    return "";
}

void CDataOptionsInterface::SetSelectionList(int n, const char* szText) {
    if (n == 0) CopyText(m_pRecord->szUnitarySelectionList1, szText);
    if (n == 1) CopyText(m_pRecord->szUnitarySelectionList2, szText);
}

void CDataOptionsInterface::SetDepVarSelectionList(const char* szText) {
    CopyText(m_pRecord->szDepVarSelectionList, szText);
}

std::uint32_t CDataOptionsInterface::GetSelectedGroupCount(int n) const {
    return n == 0 || n == 1 ? m_auSelectedCounts[static_cast<std::size_t>(n)] : 0;
}

void CDataOptionsInterface::SetSelectedGroupCount(int n, std::uint32_t uCount) {
    if (n == 0 || n == 1) m_auSelectedCounts[static_cast<std::size_t>(n)] = uCount;
}

bool CDataOptionsInterface::GetIsConstant(std::uint32_t i) const {
    return i < kMaxConstants && m_pRecord->abIsConstant[i] != 0;
}

void CDataOptionsInterface::SetIsConstant(std::uint32_t i, bool b) {
    if (i < kMaxConstants) m_pRecord->abIsConstant[i] = b ? 1 : 0;
}

double CDataOptionsInterface::GetConstant(std::uint32_t i) const {
    return i < kMaxConstants ? m_pRecord->adConstants[i] : 0.0;
}

void CDataOptionsInterface::SetConstant(std::uint32_t i, double d) {
    if (i < kMaxConstants) m_pRecord->adConstants[i] = d;
}

const char* CDataOptionsInterface::GetConstantName(std::uint32_t i) const {
    return i < kMaxConstants && i < m_uConstantCount ? m_aszConstantNames[i].data() : "";
}

void CDataOptionsInterface::SetConstantName(std::uint32_t i, const char* szName) {
    if (i >= kMaxConstants) return;
    CopyText(m_aszConstantNames[i].data(), static_cast<int>(m_aszConstantNames[i].size()), szName);
}

void CDataOptionsInterface::SetDependentName(const char* szName) {
    CopyText(m_szDependentName.data(), static_cast<int>(m_szDependentName.size()), szName);
}

// --- Features that the flags allow -----------------------------------------------------------

bool CDataOptionsInterface::AllowsRegion() const {
    return m_pFlags->bAllowRegion != 0 && IsFileData();
}

bool CDataOptionsInterface::AllowsForceToZero() const {
    return m_pFlags->bAllowForceToZero != 0 && IsFileData();
}

void CDataOptionsInterface::SetRegion(int nRegionId, int nRegionPosition) {
    if (!AllowsRegion()) return;
    m_pRecord->eAnalysisRegion = nRegionId;
    m_nRegionId = nRegionId;
    m_nRegionPosition = nRegionPosition;
}

void CDataOptionsInterface::SetExtrapolate(bool b) {
    if (m_pFlags->bAllowExtrapolate != 0) m_pRecord->bExtrapolate = b ? 1 : 0;
}

bool CDataOptionsInterface::GetExtrapolate() const {
    return m_pFlags->bAllowExtrapolate != 0 && m_pRecord->bExtrapolate != 0;
}

void CDataOptionsInterface::SetForceToZero(bool b) {
    if (AllowsForceToZero()) m_pRecord->bForceExcludedRegionToZero = b ? 1 : 0;
}

bool CDataOptionsInterface::GetForceToZero() const {
    return AllowsForceToZero() && m_pRecord->bForceExcludedRegionToZero != 0;
}

// --- Questions -------------------------------------------------------------------------------

std::uint32_t CDataOptionsInterface::GetGroup() const {
    if (IsSheetData()) return m_pRecord->uPairedGroupIndex;
    return m_pRecord->uSelectedDataSet == 0 ? m_pRecord->uGroup1Index : m_pRecord->uGroup2Index;
}

std::uint32_t CDataOptionsInterface::GetSetCountInGroup() const {
    return m_pSource->GetSetCount(GetGroup());
}

namespace {

// The first number of a list text; 0 when it can't be read.
std::uint32_t FirstNumber(const char* szList) {
    std::int32_t nFirst = 0;
    return ParseList(szList, &nFirst, 1, 0, nullptr, 0) > 0 && nFirst > 0
               ? static_cast<std::uint32_t>(nFirst)
               : 0;
}

}  // namespace

std::uint32_t CDataOptionsInterface::FirstOfCurrentList() const {
    return FirstNumber(GetSelectionList(m_pRecord->uSelectedDataSet == 0 ? 0 : 1));
}

std::uint32_t CDataOptionsInterface::GetXSet() const {
    return IsSheetData() ? m_pRecord->uIndepVarDataSetIndex : FirstOfCurrentList();
}

std::uint32_t CDataOptionsInterface::GetYSet() const {
    if (!IsSheetData()) return FirstOfCurrentList();
    return m_bUseDepVarList ? FirstNumber(m_pRecord->szDepVarSelectionList)
                            : m_pRecord->uDepVarDataSetIndex;
}

namespace {

ZXADLG_DataRange RegionRange(int nRegionId) {
    ZXADLG_DataRange range = {};
    range.uRegionId = static_cast<std::uint32_t>(nRegionId);
    return range;
}

}  // namespace

std::uint32_t CDataOptionsInterface::GetPointCountInRegion(int nRegionId) const {
    const ZXADLG_DataRange range = RegionRange(nRegionId);
    return m_pSource->GetPointCount(GetGroup(), GetYSet(), &range, 0);
}

std::uint32_t CDataOptionsInterface::GetPointCount() const {
    const std::uint32_t uGroup = GetGroup();
    if (IsSheetData()) {
        const std::uint32_t uX = m_pSource->GetPointCount(uGroup, GetXSet(), nullptr, 0);
        const std::uint32_t uY = m_pSource->GetPointCount(uGroup, GetYSet(), nullptr, 0);
        return std::min(uX, uY);
    }
    return GetPointCountInRegion(m_nRegionId);
}

std::uint32_t CDataOptionsInterface::GetFewestPoints(const std::int32_t* pnSets, int nSets) const {
    const std::uint32_t uGroup = GetGroup();
    std::uint32_t uFewest = std::numeric_limits<std::uint32_t>::max();
    for (int i = 0; i < nSets; ++i) {
        uFewest = std::min(uFewest, m_pSource->GetPointCount(
                                        uGroup, static_cast<std::uint32_t>(pnSets[i]), nullptr, 0));
    }
    return nSets > 0 ? uFewest : 0;
}

std::uint32_t CDataOptionsInterface::GetSelectedPointCount() const {
    if (!IsSheetData() || m_pRecord->bUseFullDataRange != 0) return GetPointCount();
    return m_pRecord->uLastDataIndex - m_pRecord->uFirstDataIndex + 1;
}

namespace {

constexpr int kRegionsInBlock = std::extent_v<decltype(ZXADLG_DataOptions::aRegionPoints)>;

}  // namespace

std::uint32_t CDataOptionsInterface::GetAnalysisPointCount() const {
    if (m_bDeferred && m_nRegionId >= 1 && m_nRegionId <= kRegionsInBlock) {
        const auto& region = m_pRecord->aRegionPoints[m_nRegionId - 1];
        if (region.uLastPoint > region.uFirstPoint)
            return region.uLastPoint - region.uFirstPoint + 1;
    }
    return GetSelectedPointCount();
}

double CDataOptionsInterface::GetSamplingFrequency() const {
    const auto known = [](double d) { return d > 0.0 && std::isfinite(d) ? d : 0.0; };
    const double dStored = m_bDeferred ? known(m_pRecord->dSamplingFrequency) : 0.0;
    if (dStored > 0.0) return dStored;
    return IsFileData() ? known(m_pSource->GetSamplingFrequency()) : 0.0;
}

bool CDataOptionsInterface::IsSegmented() const {
    return (m_bDeferred && m_pRecord->bSegmented != 0) || m_pSource->IsSegmented();
}

std::uint32_t CDataOptionsInterface::GetShortestPointCount() const {
    if (m_bDeferred) return GetAnalysisPointCount();
    const std::uint32_t uGroup = GetGroup();
    const std::uint32_t uSets = m_pSource->GetSetCount(uGroup);
    std::uint32_t uFewest = uSets > 0 ? std::numeric_limits<std::uint32_t>::max() : 0;
    for (std::uint32_t s = 0; s < uSets; ++s)
        uFewest = std::min(uFewest, m_pSource->GetPointCount(uGroup, s, nullptr, 0));
    return uFewest;
}

std::uint32_t CDataOptionsInterface::GetSelectedSetCount() const {
    const std::uint32_t uSets = GetSetCountInGroup();
    std::uint32_t uCount = 0;
    switch (m_pRecord->eDataSet1SelectionMode) {
        case kVisibleSets:
            for (std::uint32_t s = 0; s < uSets; ++s) {
                if (m_pSource->IsSetVisible(GetGroup(), s)) ++uCount;
            }
            break;
        case kAllSets:
            uCount = uSets;
            break;
        case kActiveSet:
            break;
        default:
            uCount = static_cast<std::uint32_t>(
                ParseSelection(m_pRecord->szUnitarySelectionList1, 0).size());
            break;
    }
    return std::max(uCount, 1u);
}

std::uint32_t CDataOptionsInterface::GetWholePointCount() const {
    return m_pSource->GetPointCount(GetGroup(), GetYSet(), nullptr, 0);
}

const double* CDataOptionsInterface::Fetch(bool bY, std::vector<double>& vdValues) {
    const std::uint32_t uCount = GetPointCount();
    ZXADLG_DataRange range = RegionRange(m_nRegionId);
    range.uLastIndex = uCount - 1;
    range.bUseFullRange = bY || m_pRecord->bUseFullDataRange != 0 ? 1 : 0;
    const std::uint32_t uGroup = GetGroup();
    const double* pdSource = bY ? m_pSource->GetYValues(uGroup, GetYSet(), &range, 0)
                                : m_pSource->GetXValues(uGroup, GetXSet(), &range, 0);
    if (pdSource == nullptr || uCount == 0) return nullptr;

    std::uint32_t uFirst = 0;
    std::uint32_t uLast = uCount - 1;
    if (IsSheetData() && m_pRecord->bUseFullDataRange == 0) {
        uFirst = m_pRecord->uFirstDataIndex;
        uLast = std::min(uLast, m_pRecord->uLastDataIndex);
        if (uFirst > uLast) return nullptr;
    }
    vdValues.assign(pdSource + uFirst, pdSource + uLast + 1);
    return vdValues.data();
}

const double* CDataOptionsInterface::GetXValues() {
    return Fetch(false, m_vdX);
}
const double* CDataOptionsInterface::GetYValues() {
    return Fetch(true, m_vdY);
}

bool CDataOptionsInterface::GetXRange(double* pdFirst, double* pdLast) {
    const double* pdValues = GetSelectedPointCount() == 1 ? nullptr : GetXValues();
    *pdFirst = pdValues != nullptr ? m_vdX.front() : 0.0;
    *pdLast = pdValues != nullptr ? m_vdX.back() : 0.0;
    return pdValues != nullptr;
}

std::uint32_t CDataOptionsInterface::GetActiveSetForGroup() const {
    return IsFileData() ? m_pSource->GetActiveSet(GetGroup()) : 0;
}

// --- The extent of y values ------------------------------------------------------------------

bool CDataOptionsInterface::ListGroups(std::vector<std::uint32_t>& vGroups) const {
    if (IsSheetData()) {
        vGroups.push_back(m_pRecord->uPairedGroupIndex);
        return true;
    }
    const std::uint32_t uGroups = m_pSource->GetGroupCount();
    switch (m_pRecord->eDataGroup1SelectionMode) {
        case kAllGroups:
            for (std::uint32_t g = 0; g < uGroups; ++g) vGroups.push_back(g);
            return true;
        case kOneGroup:
        case kActiveGroup:
            vGroups.push_back(m_pRecord->uGroup1Index);
            return true;
        case kVisibleGroups:
            for (std::uint32_t g = 0; g < uGroups; ++g) {
                if (m_pSource->IsGroupVisible(g)) vGroups.push_back(g);
            }
            return true;
        default:
            return false;
    }
}

std::uint32_t CDataOptionsInterface::GetMostSets() const {
    std::uint32_t uMost = 0;
    const std::uint32_t uGroups = m_pSource->GetGroupCount();
    for (std::uint32_t g = 0; g < uGroups; ++g) uMost = std::max(uMost, m_pSource->GetSetCount(g));
    return uMost;
}

bool CDataOptionsInterface::ListSets(std::uint32_t uGroup, std::vector<std::int32_t>& vSets) const {
    vSets.clear();
    const auto parse = [&vSets](const char* szList, std::uint32_t uMost) {
        vSets = ParseSelection(szList, 0);
        if (vSets.size() > uMost) vSets.resize(uMost);
        return !vSets.empty();
    };
    if (IsSheetData()) {
        if (m_bUseDepVarList) return parse(m_pRecord->szDepVarSelectionList, kMaxSelected);
        vSets.push_back(static_cast<std::int32_t>(m_pRecord->uDepVarDataSetIndex));
        return true;
    }
    const std::uint32_t uSets = m_pSource->GetSetCount(uGroup);
    switch (m_pRecord->eDataSet1SelectionMode) {
        case kAllSets:
            for (std::uint32_t s = 0; s < uSets; ++s) vSets.push_back(static_cast<std::int32_t>(s));
            return true;
        case kActiveSet:
            // The host counts from 1; with no active set there is nothing to list.
            if (const std::uint32_t uActive = m_pSource->GetActiveSet(uGroup); uActive != 0) {
                vSets.push_back(static_cast<std::int32_t>(uActive - 1));
            }
            return true;
        case kListedSets:
        case kTypedSets:
            // A list names at most as many sets as the largest group has.
            return parse(m_pRecord->szUnitarySelectionList1, GetMostSets());
        case kVisibleSets:
            for (std::uint32_t s = 0; s < uSets; ++s) {
                if (m_pSource->IsSetVisible(uGroup, s))
                    vSets.push_back(static_cast<std::int32_t>(s));
            }
            return true;
        default:
            return false;
    }
}

ZXADLG_DataRange CDataOptionsInterface::ExtentRange() const {
    ZXADLG_DataRange range = {};
    if (IsFileData()) {
        range = RegionRange(m_nRegionId);
        range.bUseFullRange = 1;
        return range;
    }
    range.bUseFullRange = m_pRecord->bUseFullDataRange;
    range.uFirstIndex = m_pRecord->uFirstDataIndex;
    range.uLastIndex = m_pRecord->uLastDataIndex;
    // Required as it stands: unless the indices are out of order, the first takes the last.
    if (range.uLastIndex >= range.uFirstIndex) range.uFirstIndex = range.uLastIndex;
    return range;
}

bool CDataOptionsInterface::GetYExtent(double* pdMin, double* pdMax, bool bFirstOnly) {
    if (m_pFlags->bUseStoredInfo != 0) {
        *pdMin = m_pRecord->dMinValue;
        *pdMax = m_pRecord->dMaxValue;
        return true;
    }
    *pdMin = 0.0;
    *pdMax = 0.0;
    std::vector<std::uint32_t> vGroups;
    if (!ListGroups(vGroups)) return false;

    constexpr double kLargest = std::numeric_limits<double>::max();
    double dMin = kLargest;
    double dMax = -kLargest;
    bool bDone = false;
    std::vector<std::int32_t> vSets;
    for (std::size_t i = 0; i < vGroups.size() && !bDone; ++i) {
        const std::uint32_t uGroup = vGroups[i];
        if (!ListSets(uGroup, vSets)) return false;
        const std::uint32_t uSets = m_pSource->GetSetCount(uGroup);
        for (const std::int32_t nSet : vSets) {
            const auto uSet = static_cast<std::uint32_t>(nSet);
            if (uSet >= uSets) continue;  // the list was made for other data
            const ZXADLG_DataRange range = ExtentRange();
            const std::uint32_t uCount = m_pSource->GetPointCount(uGroup, uSet, &range, 0);
            const double* pdValues = m_pSource->GetYValues(uGroup, uSet, &range, 0);
            if (pdValues == nullptr || uCount == 0) continue;
            WidenExtent(pdValues, uCount, dMin, dMax);
            if (bFirstOnly) {
                bDone = true;
                break;
            }
        }
    }
    if (dMin == kLargest || dMax == -kLargest) return false;
    *pdMin = dMin;
    *pdMax = dMax;
    return true;
}
