#include "analysis/CUnitaryDataTab.h"

#include <algorithm>

#include "ZXADLG.h"
#include "analysis/DataChecks.h"
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
    Label(IDC_REGION_LABEL, m_lblRegion);
    Label(IDC_REGION, m_cmbRegion);
    Label(IDC_FORCE_TO_ZERO, m_chkForceToZero);

    OnEvent(m_lstSets, ADMN_LISTSELCHANGE, [this] { ChangeSelection(); });
    OnEvent(m_lstSets2, ADMN_LISTSELCHANGE, [this] { ChangeSelection(); });
    OnEvent(m_txtList, ADMN_TEXTCHANGE, [this] { WriteListText(GetSetMode()); });
    BindTools([this] { ChangeSelection(); });
    // Each selection has modes, a list and a group of its own.
    OnEvent(m_radDataSet, ADMN_CLICKED, [this] {
        ShowSelection(false);
        WriteListSelection(GetSetMode());
    });
    OnEvent(m_radSets, ADMN_CLICKED, [this] {
        ApplySetMode();
        m_pData->Notify(kNotifyDataSelectionChanged);
    });
    OnEvent(m_radGroups, ADMN_CLICKED, [this] {
        ApplyGroupMode();
        ShowGroupSets();
    });
    OnEvent(m_cmbGroup, ADMN_COMBOSELCHANGE, [this] { ChangeGroupOfSets(); });
    OnEvent(m_cmbRegion, ADMN_COMBOSELCHANGE, [this] { ChangeRegion(); });
    OnEvent(m_chkForceToZero, ADMN_CLICKED,
            [this] { m_pData->SetForceToZero(ReadValue(m_chkForceToZero)); });
}

bool CUnitaryDataTab::SetUp() {
    CDataTabBase::SetUp();
    const ZXADLG_DataTabFlags& flags = m_pData->GetFlags();
    ShowControls({&m_chkForceToZero}, m_pData->AllowsForceToZero());
    if (flags.bShowSetTools == 0) ShowControls({&m_btnAll, &m_btnNone, &m_btnInvert}, false);
    ShowControls({&m_radGroups}, flags.bShowGroups != 0);
    if (flags.bShowGroups == 0) CloseGroupGap();
    return true;
}

// Without the group selector the region stands at the top of its column, where that would be.
void CUnitaryDataTab::CloseGroupGap() {
    const auto place = [this](HWND hControl) {
        RECT rc;
        ::GetWindowRect(hControl, &rc);
        MapWindowPoints(nullptr, m_hWnd, reinterpret_cast<POINT*>(&rc), 2);
        return rc;
    };
    const LONG nUp =
        place(m_lblRegion.GetHandle()).top - place(GetDlgItem(m_hWnd, IDC_GROUPS_ACTIVE)).top;
    for (ADM_Wnd* pControl :
         {static_cast<ADM_Wnd*>(&m_lblRegion), static_cast<ADM_Wnd*>(&m_cmbRegion),
          static_cast<ADM_Wnd*>(&m_chkForceToZero)}) {
        const RECT rc = place(pControl->GetHandle());
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
    m_bFillRegions = false;
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

// --- Rules -----------------------------------------------------------------------------------

void CUnitaryDataTab::UpdateControls() {
    CDataTabBase::UpdateControls();
    const int eMode = GetSetMode();
    const bool bFile = m_pData->IsFileData();
    const bool bGroups = bFile && m_pData->GetFlags().bShowGroups != 0;
    const bool bList = eMode == Model::kListedSets;
    EnableControls({&m_txtList}, eMode == Model::kTypedSets);
    EnableControls({&m_btnAll, &m_btnNone, &m_btnInvert}, bList);
    // A list stays alive in read-only mode, to be scrolled.
    GetActiveList().Enable((bList || IsReadOnly()) && !IsDisabled());
    m_lblSets.Enable(GetActiveList().IsEnabled());
    // Only a data file has hidden and active sets, and groups chosen by a rule; other data keep to
    // the group of the combo box.
    for (int i = 0; i < 3; ++i) EnableButton(m_radSets, i, bFile);
    EnableButton(m_radGroups, -1, bGroups);
    EnableControls({&m_lblGroup, &m_cmbGroup},
                   !bFile || m_radGroups.GetValue() == Model::kOneGroup);
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
            return;
    }
    // What the rule selects can be read in the greyed edit; what was typed there is still stored.
    ShowListText(list.GetSelection());
}

void CUnitaryDataTab::ApplySetMode() {
    const UpdateScope updating(m_bUpdating);
    const int eMode = GetSetMode();
    m_pData->SetDataSetSelectionMode(m_nActiveList, eMode);
    SelectByMode(eMode);
}

void CUnitaryDataTab::ApplyGroupMode() {
    if (m_cmbGroup.GetCount() > 0 && IsReady()) m_pData->Notify(kNotifyDataSelectionChanged);
    const int eMode = m_radGroups.GetValue();
    // Only a data file has the group radios; other data keep to the group of the combo box.
    if (m_pData->IsFileData()) {
        const UpdateScope updating(m_bUpdating);
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

// Sets that are not there are no choice of the user's. A deferred run may find them in its data.
CheckResult CUnitaryDataTab::CheckTypedSets() {
    if (GetSetMode() != Model::kTypedSets || m_pData->GetFlags().bUseStoredInfo != 0) return {};
    char szNoun[64];
    const char* szSet = m_pData->GetDataSource()->GetSetLabel();
    LowerNoun(szNoun, szSet != nullptr ? szSet : "Set");
    return CheckSetsExist(ParseEdit(), GetActiveList().GetCount(), szNoun, IDC_SET_LIST_TEXT);
}

CheckResult CUnitaryDataTab::CheckSelected() {
    const int nWhere =
        GetSetMode() == Model::kTypedSets ? IDC_SET_LIST_TEXT : GetActiveList().GetControlId();
    return CheckAnySetSelected(GetListSelCount(), nWhere);
}

BOOL CUnitaryDataTab::Validate(BOOL bSilent, ADM_Wnd** ppFailed) {
    return Passes(CheckSelected(), bSilent, ppFailed) &&
           Passes(CheckTypedSets(), bSilent, ppFailed) && CDataTabBase::Validate(bSilent, ppFailed);
}

// --- Events ----------------------------------------------------------------------------------

void CUnitaryDataTab::ChangeSelection() {
    WriteListSelection(GetSetMode());
}

void CUnitaryDataTab::ChangeGroupOfSets() {
    ApplyGroupMode();
    ApplySetMode();
    ShowCount();
    m_pData->Notify(kNotifyDataSelectionChanged);
}

void CUnitaryDataTab::ChangeRegion() {
    TakeRegion();
    m_pData->Notify(kNotifyRegionChanged);
    m_pData->UpdateDataInfo();
    m_pData->Notify(kNotifyRegionRecount);
    m_pData->Notify(kNotifyDataSelectionChanged);
}
