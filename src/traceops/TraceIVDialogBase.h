// What the two plots of one axis against another share: a waveform and a group for each axis, the
// invert check boxes, and the region information. The data record is the host's own, written
// directly.
#pragma once

#include "analysis/CUntabbedDialogBase.h"

template <class Record>
class CTraceIVDialogBase : public CRecordPage<Record, CUntabbedDialogBase> {
  public:
    CTraceIVDialogBase(HWND hwndParent, UINT uTemplateId, Record* pOptions,
                       ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                       const ZXADLG_DlgParams* pParams)
        : CRecordPage<Record, CUntabbedDialogBase>(pOptions, hwndParent, uTemplateId, pSource,
                                                   pParams, pData),
          m_options(pOptions, pSource) {
        this->SetOptionsInterface(&m_options);
    }

  protected:
    // The plots choose groups, sets and regions by controls of their own.
    void OfferData(std::uint8_t bUseStoredInfo) {
        m_flags = {.bAllowRegion = 0,
                   .bShowGroups = 0,
                   .bShowSetTools = 0,
                   .bUseStoredInfo = bUseStoredInfo};
        this->m_pDataOptionsObject =
            std::make_unique<CDataOptionsInterface>(this->m_pDataRecord, this->m_pSource, &m_flags);
        this->m_pDataOptionsObject->SetDeferred(this->m_pParams->bDeferredRun != 0);
    }

    ZXADLG_DataTabFlags m_flags;
    CRecordOptionsInterface<Record> m_options;
    CZxDlgWaveformCombo m_cmbXWaveform, m_cmbYWaveform;
    CZxDlgGroupCombo m_cmbXGroup, m_cmbYGroup;
    ADM_Button m_chkXInvert, m_chkYInvert;
};
