// The model behind every data tab. It joins the data record of the dialog, the host's data source
// and the flags that say which features of the selection this dialog offers: it answers the tabs'
// questions, keeps the user's selection in the record, and at OK writes into the record a
// description of the data that the host keeps with the analysis.
//
// Nothing is owned but the two arrays of fetched values. Record, source and flags outlive the
// object. Indices are 0-based. A null array or a count of 0 means that there is no data.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "contract/COptionsInterfaceBase.h"
#include "contract/DataTabFlags.h"
#include "zxadlg/DataOptions.h"

class ZXADLG_CDlgDataSource;
struct ZXADLG_DataRange;

class CDataOptionsInterface : public COptionsInterfaceBase {
  public:
    static constexpr std::uint32_t kMaxConstants = 6;
    static constexpr int kMaxSelected =
        10000;  // the largest selection that a list text can express
    enum DataKind : std::uint32_t { kFileData = 0, kOtherSets = 1, kSheetData = 2 };
    enum GroupMode { kActiveGroup = 0, kOneGroup = 1, kVisibleGroups = 2, kAllGroups = 3 };
    enum SetMode {
        kVisibleSets = 0,
        kAllSets = 1,
        kActiveSet = 2,
        kListedSets = 3,
        kTypedSets = 4
    };

    // Corrects stored indices against the data that the source exposes.
    CDataOptionsInterface(ZXADLG_DataOptions* pRecord, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DataTabFlags* pFlags);
    ~CDataOptionsInterface() override;

    ZXADLG_CDlgDataSource* GetDataSource() const { return m_pSource; }
    const ZXADLG_DataTabFlags& GetFlags() const { return *m_pFlags; }
    bool IsFileData() const;
    bool IsSheetData() const;

    // --- The selection, field by field.
    int GetDataGroupSelectionMode(int n) const;
    void SetDataGroupSelectionMode(int n, int eMode);
    int GetDataSetSelectionMode(int n) const;
    void SetDataSetSelectionMode(int n, int eMode);
    std::uint32_t GetGroup1Index() const { return m_pRecord->uGroup1Index; }
    void SetGroup1Index(std::uint32_t u) { m_pRecord->uGroup1Index = u; }
    std::uint32_t GetGroup2Index() const { return m_pRecord->uGroup2Index; }
    void SetGroup2Index(std::uint32_t u) { m_pRecord->uGroup2Index = u; }
    std::uint32_t GetPairedGroupIndex() const { return m_pRecord->uPairedGroupIndex; }
    void SetPairedGroupIndex(std::uint32_t u) { m_pRecord->uPairedGroupIndex = u; }
    std::uint32_t GetSelectedDataSet() const { return m_pRecord->uSelectedDataSet; }
    void SetSelectedDataSet(std::uint32_t u) { m_pRecord->uSelectedDataSet = u; }
    std::uint32_t GetFirstDataIndex() const { return m_pRecord->uFirstDataIndex; }
    void SetFirstDataIndex(std::uint32_t u) { m_pRecord->uFirstDataIndex = u; }
    std::uint32_t GetLastDataIndex() const { return m_pRecord->uLastDataIndex; }
    void SetLastDataIndex(std::uint32_t u) { m_pRecord->uLastDataIndex = u; }
    bool GetUseFullDataRange() const { return m_pRecord->bUseFullDataRange != 0; }
    void SetUseFullDataRange(bool b) { m_pRecord->bUseFullDataRange = b ? 1 : 0; }
    std::uint32_t GetIndepVarDataSetIndex() const { return m_pRecord->uIndepVarDataSetIndex; }
    void SetIndepVarDataSetIndex(std::uint32_t u) { m_pRecord->uIndepVarDataSetIndex = u; }
    std::uint32_t GetDepVarDataSetIndex() const { return m_pRecord->uDepVarDataSetIndex; }
    void SetDepVarDataSetIndex(std::uint32_t u) { m_pRecord->uDepVarDataSetIndex = u; }
    std::uint32_t GetExtrapolationCursor() const { return m_pRecord->uExtrapolationCursor; }
    void SetExtrapolationCursor(std::uint32_t u) { m_pRecord->uExtrapolationCursor = u; }
    int GetAnalysisRegion() const { return m_pRecord->eAnalysisRegion; }

    // The texts of set selections, 0-based numbers without blanks; n is 0 or 1, any other gives the
    // empty text or changes nothing. At most 999 characters are kept.
    const char* GetSelectionList(int n) const;
    void SetSelectionList(int n, const char* szText);
    const char* GetDepVarSelectionList() const { return m_pRecord->szDepVarSelectionList; }
    void SetDepVarSelectionList(const char* szText);
    // How many entries selection n (0 or 1) has.
    std::uint32_t GetSelectedGroupCount(int n) const;
    void SetSelectedGroupCount(int n, std::uint32_t uCount);

    // The constants that stand for independent variables without a column; i is below 6.
    std::uint32_t GetConstantCount() const { return m_uConstantCount; }
    void SetConstantCount(std::uint32_t uCount) { m_uConstantCount = uCount; }
    bool GetIsConstant(std::uint32_t i) const;
    void SetIsConstant(std::uint32_t i, bool b);
    double GetConstant(std::uint32_t i) const;
    void SetConstant(std::uint32_t i, double d);
    // Names of at most 15 characters; empty at or beyond the constant count.
    const char* GetConstantName(std::uint32_t i) const;
    void SetConstantName(std::uint32_t i, const char* szName);
    const char* GetDependentName() const { return m_szDependentName.data(); }
    void SetDependentName(const char* szName);
    // The dependent data are a list of sets and not one set.
    bool GetUseDepVarList() const { return m_bUseDepVarList; }
    void SetUseDepVarList(bool b) { m_bUseDepVarList = b; }

    // --- Features that take effect only where the flags allow them.
    bool AllowsRegion() const;
    bool AllowsForceToZero() const;
    void SetRegion(int nRegionId, int nRegionPosition);
    int GetRegionId() const { return m_nRegionId; }
    int GetRegionPosition() const { return m_nRegionPosition; }
    void SetExtrapolate(bool b);
    bool GetExtrapolate() const;
    void SetForceToZero(bool b);
    bool GetForceToZero() const;

    // The host's data.
    ZXADLG_CDlgDataSource* GetSource() const { return m_pSource; }

    // --- Questions.
    std::uint32_t GetGroup() const;
    std::uint32_t GetSetCountInGroup() const;
    std::uint32_t GetXSet() const;
    std::uint32_t GetYSet() const;
    std::uint32_t GetPointCount() const;
    // Points of the current y set in a region of the host's.
    std::uint32_t GetPointCountInRegion(int nRegionId) const;
    // The smallest count over n sets of the current group; 0 for none.
    std::uint32_t GetFewestPoints(const std::int32_t* pnSets, int nSets) const;
    std::uint32_t GetSelectedPointCount() const;
    // What the limits of an analysis follow: the points to be analysed, the sampling frequency in
    // Hz (0: not known) and whether the data are segmented. A deferred run takes them from the
    // block, and from the source what the block does not tell.
    std::uint32_t GetAnalysisPointCount() const;
    double GetSamplingFrequency() const;
    bool IsSegmented() const;
    // Points of the shortest set of the current group, of a deferred run those to be analysed.
    std::uint32_t GetShortestPointCount() const;
    // First and last point of a region of the host's; nothing where it has none of that id, or one
    // without an extent.
    std::optional<ZXADLG_PointSpan> FindRegionPoints(int nRegionId) const;
    // Sets that are selected in a group, by the mode of the first selection; at least 1.
    std::uint32_t GetSelectedSetCount() const;
    // Points of the whole current set, whatever region is selected.
    std::uint32_t GetWholePointCount() const;
    // Private copies, valid until the next fetch of the same kind.
    const double* GetXValues();
    const double* GetYValues();
    // How many values a fetch gave that was not null.
    std::uint32_t GetFetchedXCount() const { return static_cast<std::uint32_t>(m_vdX.size()); }
    std::uint32_t GetFetchedYCount() const { return static_cast<std::uint32_t>(m_vdY.size()); }
    // First and last x value; false, and both 0, with none or with a single selected point.
    bool GetXRange(double* pdFirst, double* pdLast);
    // Smallest and largest y value over the selection, or over the first set of it that has values;
    // false, and both 0, when there are none. Scans the host's arrays where they are.
    bool GetYExtent(double* pdMin, double* pdMax, bool bFirstOnly);
    // 1-based; 0 means none. Data files only.
    std::uint32_t GetActiveSetForGroup() const;

    // Rebuilds the data-information block and tells the observers; with stored information, or in
    // deferred mode, the block stays the host's. Answers true.
    bool UpdateDataInfo();
    // Settings for an analysis that runs later: the block describes the data of an earlier run.
    void SetDeferred(bool bDeferred) { m_bDeferred = bDeferred; }

  private:
    void EndLists();
    void CorrectStoredIndices();
    std::uint32_t FirstOfCurrentList() const;
    const double* Fetch(bool bY, std::vector<double>& vdValues);
    bool ListGroups(std::vector<std::uint32_t>& vGroups) const;
    std::uint32_t GetMostSets() const;
    bool ListSets(std::uint32_t uGroup, std::vector<std::int32_t>& vSets) const;
    ZXADLG_DataRange ExtentRange() const;
    std::uint32_t FindRegionPosition(std::int32_t nRegionId) const;
    void StoreRegionPoints(struct ZXADLG_RegionInfo& info);
    void StoreFileProperties();
    void StoreVisibility();
    void StoreGroups();
    void StoreRegions(struct ZXADLG_RegionInfo& info);
    bool LookUpRegion(std::uint32_t uPosition, struct ZXADLG_RegionInfo& info) const;

    using Name = std::array<char, 16>;

    ZXADLG_CDlgDataSource* m_pSource;
    ZXADLG_DataOptions* m_pRecord;
    const ZXADLG_DataTabFlags* m_pFlags;
    std::vector<double> m_vdX;
    std::vector<double> m_vdY;
    std::uint32_t m_uConstantCount = 1;
    std::array<std::uint32_t, 2> m_auSelectedCounts = {};
    int m_nRegionId = 0;  // 0: the points are not confined to a region
    int m_nRegionPosition = 0;
    std::array<Name, kMaxConstants> m_aszConstantNames = {};
    Name m_szDependentName = {};
    bool m_bUseDepVarList = false;
    bool m_bDeferred = false;
};
