// The record of the measurements as the pages see it: the search that is shown, and whether the
// settings of the acquisition take its place.
#pragma once

#include <cstdint>

#include "ZXADLG.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "measure/MeasurementRecord.h"
#include "measure/MeasurementRegions.h"
#include "zxadlg/MeasurementOptions.h"

class CMeasurementOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    // pHost is the record as the host passed it, before anything was restored. With bMerge its
    // searches take the place of what is stored, where the data supply them. Nothing is owned; all
    // outlive this object.
    CMeasurementOptionsInterface(ZXADLG_MeasurementOptions* pRecord,
                                 const ZXADLG_MeasurementOptions* pHost,
                                 ZXADLG_CDlgDataSource* pSource, bool bMerge)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource),
          m_pRecord(pRecord),
          m_pHost(pHost) {
        if (bMerge && IsImportAllowed()) Import();
        if (m_pRecord->nDlgSearchIndex < 0 || m_pRecord->nDlgSearchIndex >= kMeasurementSearches)
            SetSearchIndex(0);
    }

    ZXADLG_MeasurementOptions* GetRecord() const { return m_pRecord; }
    int GetSearchIndex() const { return m_pRecord->nDlgSearchIndex; }
    void SetSearchIndex(int nSearch) { m_pRecord->nDlgSearchIndex = nSearch; }

    // What belongs to the search that is shown.
    ZXADLG_MeasurementSearch& GetSearch() const { return m_pRecord->aSearches[GetSearchIndex()]; }
    ZXADLG_StatisticsRegion& GetRegion() const {
        return m_pRecord->aStatsRegions[GetSearchIndex()];
    }
    ZXADLG_BaselineRegion& GetBaseline() const { return m_pRecord->aBaselines[GetSearchIndex()]; }
    ZXADLG_PolarityEntry& GetPolarity() const { return m_pRecord->aPolarities[GetSearchIndex()]; }

    // Only a data file has settings of its acquisition, and the host decides on them.
    bool IsImportAllowed() const {
        return m_pHost->bImportAllowed != 0 && GetDataSource()->GetDataKind() == 0;
    }
    bool IsImportInUse() const { return IsImportAllowed() && m_pRecord->bImportFromFile != 0; }
    bool IsSearchOn() const { return GetSearch().bRegionEnable != 0; }
    void Import() { TakeSearches(*m_pRecord, *m_pHost); }

  private:
    ZXADLG_MeasurementOptions* m_pRecord;
    const ZXADLG_MeasurementOptions* m_pHost;
};
