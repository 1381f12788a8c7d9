// What the option interfaces of most analyses share: the common block of the record, and the data
// source.
#pragma once

#include "contract/COptionsInterfaceBase.h"
#include "zxadlg/AnalysisCommon.h"

class ZXADLG_CDlgDataSource;

class CAnalysisOptionsInterfaceBase : public COptionsInterfaceBase {
  public:
    // Neither is owned; both outlive this object.
    CAnalysisOptionsInterfaceBase(ZXADLG_AnalysisCommon* pCommon, ZXADLG_CDlgDataSource* pSource)
        : m_pCommon(pCommon), m_pSource(pSource) {}

    // 0 append to the results, 1 replace them.
    void SetDestinationOption(int eOption) { m_pCommon->eDestinationOption = eOption; }
    int GetDestinationOption() const { return m_pCommon->eDestinationOption; }
    void SetDynamicLink(bool bLink) { m_pCommon->bDynamicLink = bLink ? 1 : 0; }
    bool GetDynamicLink() const { return m_pCommon->bDynamicLink != 0; }
    void SetWriteRegionInfo(bool bWrite) { m_pCommon->bWriteRegionInfo = bWrite ? 1 : 0; }
    bool GetWriteRegionInfo() const { return m_pCommon->bWriteRegionInfo != 0; }

    ZXADLG_CDlgDataSource* GetDataSource() const { return m_pSource; }

  private:
    ZXADLG_AnalysisCommon* m_pCommon;
    ZXADLG_CDlgDataSource* m_pSource;
};

// The interface of one analysis: a get and a set of every field of its record, by the field.
//
//     options.Set(&ZXADLG_NormalizeOptions::eBaselineRegion, 3);
//
// An analysis whose fields need more than that derives its own class.
template <class Record>
class CRecordOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CRecordOptionsInterface(Record* pRecord, ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    Record* GetRecord() const { return m_pRecord; }
    template <class Value>
    Value Get(Value Record::*pField) const {
        return m_pRecord->*pField;
    }
    template <class Value>
    void Set(Value Record::*pField, Value value) {
        m_pRecord->*pField = value;
    }

  private:
    Record* m_pRecord;
};
