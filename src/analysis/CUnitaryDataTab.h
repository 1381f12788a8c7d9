// The data tab of every analysis that takes one family of sets: groups and sets by radio buttons,
// by list or by a typed list, and the analysis region.
//
// A dialog that has one selection uses the template IDD_UNITARY_DATA, one with two
// IDD_UNITARY_DATA_DUAL.
#pragma once

#include "analysis/CDataTabBase.h"

class CUnitaryDataTab : public CDataTabBase {
  public:
    CUnitaryDataTab(CDataOptionsInterface* pData, UINT uTemplateId, bool bReadOnly);

    void UpdateControls() override;
    BOOL OnPageShow() override;
    void ReadControls() override;
    // At least one set must be selected.
    CheckResult CheckSelected() override;
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;

    // Shows the stored selection; the combo boxes are filled only with bFill.
    void ShowSelection(bool bFill);

  private:
    bool SetUp() override;
    void ShowOptions() override { ShowSelection(m_bFillRegions); }
    void CloseGroupGap();
    int GetSetMode();
    void ShowRegion(bool bFill);
    void TakeRegion();
    CheckResult CheckTypedSets();
    void ShowCount();
    void ShowGroupSets();
    void ShowSetCaptions();
    void ShowGroupCaptions();
    void SelectByMode(int eMode);
    void ApplySetMode();
    void ApplyGroupMode();
    void ChangeRegion();
    void ChangeSelection();
    void ChangeGroupOfSets();

    int m_eGroupMode = CDataOptionsInterface::kVisibleGroups;  // in force
    std::uint32_t m_uSpecifiedGroup = 0;
    int m_nRegionPosition = 0;
    bool m_bFillRegions = true;  // until they have been shown once

    ADM_RadioButtons m_radSets;
    ADM_RadioButtons m_radGroups;
    ADM_Static m_lblRegion;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_Button m_chkForceToZero;
};
