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

void COptionsTabBase::FollowData(CDataOptionsInterface* pData, Step take) {
    m_takeData = std::move(take);
    pData->AddObserver(this);
    for (const NotificationCode eCode : {kNotifyDataSelectionChanged, kNotifyRegionChanged,
                                         kNotifyDataTabCurrent, kNotifyRegionRecount}) {
        OnBroadcast(eCode, [this] { TakeData(); });
    }
}

void COptionsTabBase::TakeData() {
    if (!m_takeData || !IsReady()) return;
    {
        const UpdateScope updating(m_bUpdating);
        m_takeData();
    }
    RunUpdate();
}

BOOL COptionsTabBase::OnPageShow() {
    const BOOL bResult = CEditPage::OnPageShow();
    TakeData();
    return bResult;
}

void COptionsTabBase::UpdateControls() {
    m_results.ShowWhere(*m_pParams);
    EnableControls({&m_results.grpDestination, &m_results.radDestination, &m_results.chkDynamicLink,
                    &m_results.chkWriteRegionInfo},
                   true);
}
