#include "analysis/COptionsTabBase.h"

#include "widgets/FrameworkSetup.h"

COptionsTabBase::COptionsTabBase(CAnalysisOptionsInterfaceBase* pOptions,
                                 const ZXADLG_DlgParams* pParams, UINT uTemplateId,
                                 UINT uCaptionStringId)
    : CEditPage(pParams->bReadOnly != 0, GetFrameworkInstance(), MAKEINTRESOURCEA(uTemplateId),
                MAKEINTRESOURCEA(uCaptionStringId)),
      m_pParams(pParams) {
    m_results.Register(this);
    BindResults(m_results, pOptions);
}

void COptionsTabBase::UpdateControls() {
    m_results.ShowWhere(*m_pParams);
    EnableControls({&m_results.grpDestination, &m_results.radDestination, &m_results.chkDynamicLink,
                    &m_results.chkWriteRegionInfo},
                   true);
}
