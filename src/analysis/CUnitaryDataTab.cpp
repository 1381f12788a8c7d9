#include "analysis/CUnitaryDataTab.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/DialogMessages.h"
#include "contract/NotificationCodes.h"
#include "framework/UpdateScope.h"
#include "ids.h"
#include "text/CaptionText.h"

namespace {

using Model = CDataOptionsInterface;

// Indices of the set radios, which stand for the modes in this order.
constexpr int kSetModes[] = {Model::kVisibleSets, Model::kAllSets, Model::kActiveSet,
                             Model::kTypedSets, Model::kListedSets};
constexpr const char* kSetCaptions[] = {"All visi&ble %ss", "All %ss (including &hidden)",
                                        "Acti&ve %s"};

// The ids of the group radios have others between them, which belong to other pages.
constexpr int kNone = -1;
constexpr int kGroupModes[] = {
    Model::kVisibleGroups, kNone, Model::kAllGroups, kNone, Model::kActiveGroup, kNone, kNone,
    Model::kOneGroup};
constexpr const char* kGroupCaptions[] = {"A&ll visible %ss",
                                          nullptr,
                                          "All %ss (incl&uding hidden)",
                                          nullptr,
                                          "Ac&tive %s",
                                          nullptr,
                                          nullptr,
                                          "Spe&cify a %s"};

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CUnitaryDataTab::CUnitaryDataTab(CDataOptionsInterface* pData, UINT uTemplateId, bool bReadOnly)
    : CDataTabBase(uTemplateId, pData, bReadOnly) {
    m_radSets.Setup(this, IDC_SETS_VISIBLE, IDC_SETS_LISTED, 5, kSetModes);
    m_radGroups.Setup(this, IDC_GROUPS_VISIBLE, IDC_GROUPS_ONE, 8, kGroupModes);
    RegisterControl(IDC_REGION_LABEL, &m_lblRegion);
    RegisterControl(IDC_REGION, &m_cmbRegion);
    RegisterControl(IDC_FORCE_TO_ZERO, &m_chkForceToZero);
}

BOOL CUnitaryDataTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    const BOOL bResult = CDataTabBase::OnInitDialog(hWnd, hFocus, lParam);
    const UpdateScope updating(m_bUpdating);
    m_chkForceToZero.Show(m_pData->AllowsForceToZero() ? SW_SHOW : SW_HIDE);
    if (m_pData->GetFlags().bShowSetTools == 0) {
        m_btnAll.Show(SW_HIDE);
        m_btnNone.Show(SW_HIDE);
        m_btnInvert.Show(SW_HIDE);
    }
    const bool bShowGroups = m_pData->GetFlags().bShowGroups != 0;
    m_radGroups.Show(bShowGroups ? SW_SHOW : SW_HIDE);
    if (!bShowGroups) CloseGroupGap();
    ShowSelection(true);
    m_bReady = true;
    return bResult;
}

// Without the group selector the region stands at the top of its column, where that would be.
void CUnitaryDataTab::CloseGroupGap() {
    const auto place = [this](const ADM_Wnd& control) {
        RECT rc;
        control.GetWindowRect(&rc);
        MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rc), 2);
        return rc;
    };
    const LONG nUp = place(m_lblRegion).top - place(m_lblGroup).top;
    for (ADM_Wnd* pControl :
         {static_cast<ADM_Wnd*>(&m_lblRegion), static_cast<ADM_Wnd*>(&m_cmbRegion),
          static_cast<ADM_Wnd*>(&m_chkForceToZero)}) {
        const RECT rc = place(*pControl);
        SetWindowPos(pControl->GetHandle(), nullptr, rc.left, rc.top - nUp, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
}

// --- Display ---------------------------------------------------------------------------------

int CUnitaryDataTab::GetSetMode() {
    return m_radSets.GetValue();
}

void CUnitaryDataTab::ShowSelection(bool bFill) {
    const UpdateScope updating(m_bUpdating);
    m_cmbRegion.SetCurSel(m_nRegionPosition);
    int eSetMode = m_pData->GetDataSetSelectionMode(m_nActiveList);
    // Only a data file has hidden and active sets.
    if (!m_pData->IsFileData() && eSetMode < Model::kListedSets) eSetMode = Model::kListedSets;
    m_radSets.SetValue(eSetMode);
    m_chkForceToZero.SetCheck(m_pData->GetForceToZero() ? BST_CHECKED : BST_UNCHECKED);

    const bool bShowGroups = m_pData->GetFlags().bShowGroups != 0;
    const int eGroupMode = m_pData->GetDataGroupSelectionMode(m_nActiveList);
    if (bShowGroups) {
        m_uSpecifiedGroup = m_pData->GetGroup();
        m_eGroupMode = Model::kVisibleGroups;
        m_radGroups.SetValue(Model::kVisibleGroups);
    }
    ShowRegion(bFill);
    ReadListText();
    ApplySetMode();
    ShowCount();
    ShowSetCaptions();
    ShowGroupCaptions();
    EnableRadios();
    if (bShowGroups) {
        m_radGroups.SetValue(eGroupMode);
        ApplyGroupMode();
    }
    ShowGroupSets();
}

// The lists follow the group that the selection is in now.
void CUnitaryDataTab::ShowGroupSets() {
    const UpdateScope updating(m_bUpdating);
    if (!ListCurrentGroup()) return;
    ReadListText();
    ApplySetMode();
    ShowCount();
}

void CUnitaryDataTab::ShowRegion(bool bFill) {
    const bool bOffered = m_pData->AllowsRegion();
    m_lblRegion.Show(bOffered ? SW_SHOW : SW_HIDE);
    m_cmbRegion.Show(bOffered ? SW_SHOW : SW_HIDE);
    if (!bOffered) return;
    if (bFill) m_cmbRegion.Fill(m_pData->GetDataSource());
    m_cmbRegion.SelectById(m_pData->GetAnalysisRegion());
    TakeRegion();
}

void CUnitaryDataTab::TakeRegion() {
    // With no regions, position 0 stands for all lookups.
    m_nRegionPosition = std::max(m_cmbRegion.GetCurSel(), 0);
    m_pData->SetRegion(m_cmbRegion.GetRegionId(), m_nRegionPosition);
}

void CUnitaryDataTab::ShowCount() {
    ZXADLG_CDlgDataSource* pSource = m_pData->GetDataSource();
    const char* szName = pSource->GetGroupName(m_pData->GetGroup());
    m_lblCount.SetArg(0, szName != nullptr && *szName != '\0' ? szName : "Group");
    m_lblCount.SetArgInt(1, GetActiveList().GetCount());
    char szNoun[64];
    const char* szSet = pSource->GetSetLabel();
    LowerNoun(szNoun, szSet != nullptr ? szSet : "Set");
    m_lblCount.SetArg(2, szNoun);
}

void CUnitaryDataTab::ShowSetCaptions() {
    const char* szSet = m_pData->GetDataSource()->GetSetLabel();
    char szNoun[64];
    LowerNoun(szNoun, szSet != nullptr ? szSet : "Set");
    for (int i = 0; i < 3; ++i) {
        char szCaption[128];
        FormatCaption(szCaption, kSetCaptions[i], szNoun);
        m_radSets.SetButtonText(i, szCaption);
    }
}

void CUnitaryDataTab::ShowGroupCaptions() {
    const char* szGroup = m_pData->GetDataSource()->GetGroupLabel();
    char szNoun[64];
    LowerNoun(szNoun, szGroup != nullptr ? szGroup : "Group");
    for (int i = 0; i < m_radGroups.GetCount(); ++i) {
        if (kGroupCaptions[i] == nullptr) continue;
        char szCaption[128];
        FormatCaption(szCaption, kGroupCaptions[i], szNoun);
        m_radGroups.SetButtonText(i, szCaption);
    }
}

BOOL CUnitaryDataTab::OnPageShow() {
    const BOOL bResult = CDataTabBase::OnPageShow();
    ShowSelection(false);
    m_pData->Notify(kNotifyDataTabCurrent);
    return bResult;
}

// --- Enabling --------------------------------------------------------------------------------

void CUnitaryDataTab::EnableByMode(int eMode) {
    const bool bList = eMode == Model::kListedSets && !m_bDisabled;
    m_txtList.Enable(eMode == Model::kTypedSets && !m_bDisabled);
    GetActiveList().Enable(bList);
    m_btnAll.Enable(bList);
    m_btnNone.Enable(bList);
    m_btnInvert.Enable(bList);
}

void CUnitaryDataTab::EnableRadios() {
    const bool bFile = m_pData->IsFileData() && !m_bDisabled;
    for (int i = 0; i < 3; ++i) m_radSets.EnableButton(i, bFile);
    const bool bGroups = bFile && m_pData->GetFlags().bShowGroups != 0;
    m_radGroups.EnableButton(-1, bGroups);
}

void CUnitaryDataTab::SetDisabled(bool bDisabled) {
    CDataTabBase::SetDisabled(bDisabled);
    if (bDisabled || m_hWnd == nullptr) return;
    ShowLabels();
    ShowSelection(false);
}

void CUnitaryDataTab::SelectByMode(int eMode) {
    CZxDlgSetListBox& list = GetActiveList();
    switch (eMode) {
        case Model::kVisibleSets:
            list.SelectVisible(m_pData->GetGroup(), m_pData->GetDataSource());
            break;
        case Model::kAllSets:
            list.SelectAll();
            break;
        case Model::kActiveSet:
            list.SelectNone();
            list.SelectItem(static_cast<int>(m_pData->GetActiveSetForGroup()) - 1);
            break;
        default:
            ReadListText();
            break;
    }
}

void CUnitaryDataTab::ApplySetMode() {
    const UpdateScope updating(m_bUpdating);
    const int eMode = GetSetMode();
    m_pData->SetDataSetSelectionMode(m_nActiveList, eMode);
    SelectByMode(eMode);
    EnableByMode(eMode);
}

void CUnitaryDataTab::ApplyGroupMode() {
    if (m_cmbGroup.GetCount() > 0 && m_bReady) m_pData->Notify(kNotifyDataSelectionChanged);
    const int eMode = m_radGroups.GetValue();
    // Only a data file has the group radios; other data keep to the group of the combo box.
    if (m_pData->IsFileData()) {
        const UpdateScope updating(m_bUpdating);
        m_cmbGroup.Enable(eMode == Model::kOneGroup && !m_bDisabled);
        if (eMode == Model::kActiveGroup) {
            m_cmbGroup.SetCurSel(static_cast<int>(m_pData->GetDataSource()->GetActiveGroup()));
        } else if (eMode == Model::kOneGroup) {
            if (m_eGroupMode == Model::kOneGroup) {
                m_uSpecifiedGroup = static_cast<std::uint32_t>(m_cmbGroup.GetCurSel());
            } else {
                m_cmbGroup.SetCurSel(static_cast<int>(m_uSpecifiedGroup));
            }
        }
    }
    m_pData->SetDataGroupSelectionMode(m_nActiveList, eMode);
    if (const int nGroup = m_cmbGroup.GetCurSel(); nGroup >= 0) {
        if (m_nActiveList == 0) {
            m_pData->SetGroup1Index(static_cast<std::uint32_t>(nGroup));
        } else {
            m_pData->SetGroup2Index(static_cast<std::uint32_t>(nGroup));
        }
    }
    m_eGroupMode = eMode;
}

// --- Storing and checking --------------------------------------------------------------------

void CUnitaryDataTab::ReadControls() {
    CDataTabBase::ReadControls();
    m_pData->SetSelectedGroupCount(m_nActiveList, static_cast<std::uint32_t>(GetListSelCount()));
}

BOOL CUnitaryDataTab::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    if (GetListSelCount() == 0) {
        if (!bSilent) ShowErrorString(MessageOwner(), IDS_NO_DATA_SELECTED);
        if (ppFailed != nullptr) *ppFailed = &GetActiveList();
        return FALSE;
    }
    return CDataTabBase::Validate(bSilent, ppFailed);
}

// --- Events ----------------------------------------------------------------------------------

void CUnitaryDataTab::AfterTool() {
    WriteListSelection(GetSetMode());
}

void CUnitaryDataTab::ChangeRegion() {
    TakeRegion();
    m_pData->Notify(kNotifyRegionChanged);
    if (m_pData->GetFlags().bUseStoredInfo == 0) m_pData->UpdateDataInfo();
    m_pData->Notify(kNotifyRegionRecount);
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CUnitaryDataTab::Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) {
    CDataTabBase::Notify(pSender, nId, nCode, nData);
    if (!m_bReady || m_bUpdating != 0) return;
    if (m_bReadOnly) {
        ShowLabels();
        ShowSelection(false);
        GiveFocusAway();
        return;
    }
    if (nCode == ADMN_CLICKED) {
        if (pSender == &m_radDataSet) {
            // Each selection has modes, a list and a group of its own.
            ShowSelection(false);
            WriteListSelection(GetSetMode());
        } else if (pSender == &m_radSets) {
            ApplySetMode();
            m_pData->Notify(kNotifyDataSelectionChanged);
        } else if (pSender == &m_radGroups) {
            ApplyGroupMode();
            ShowGroupSets();
        } else if (pSender == &m_chkForceToZero) {
            m_pData->SetForceToZero(m_chkForceToZero.GetCheck() == BST_CHECKED);
        } else if (pSender == &m_btnAll || pSender == &m_btnNone || pSender == &m_btnInvert) {
            CZxDlgSetListBox& list = GetActiveList();
            const int nTop = list.GetTopIndex();
            if (pSender == &m_btnAll) list.SelectAll();
            if (pSender == &m_btnNone) list.SelectNone();
            if (pSender == &m_btnInvert) list.Invert();
            list.SetTopIndex(nTop);
            AfterTool();
        }
    } else if (nCode == ADMN_LISTSELCHANGE && pSender == &GetActiveList()) {
        WriteListSelection(GetSetMode());
    } else if (nCode == ADMN_COMBOSELCHANGE && pSender == &m_cmbRegion) {
        ChangeRegion();
    } else if (nCode == ADMN_COMBOSELCHANGE && pSender == &m_cmbGroup) {
        ApplyGroupMode();
        ApplySetMode();
        ShowCount();
        m_pData->Notify(kNotifyDataSelectionChanged);
    } else if (nCode == ADMN_TEXTCHANGE && pSender == &m_txtList) {
        WriteListText(GetSetMode());
    }
}
