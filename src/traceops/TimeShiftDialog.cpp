#include "traceops/TimeShiftDialog.h"

#include "ZXADLG.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_StaticText.h"
#include "ids.h"

namespace {

using Record = ZXADLG_TimeShiftOptions;

class CTimeShiftOptionsTab : public COptionsTab<Record> {
  public:
    CTimeShiftOptionsTab(Options* pOptions, const ZXADLG_DlgParams* pParams,
                         CDataOptionsInterface* pData)
        : COptionsTab(pOptions, pParams, pData, IDD_TIME_SHIFT_OPTIONS) {
        BindRadios({IDC_SHIFT_INTERVAL, IDC_SHIFT_ALIGN_PEAKS}, m_radAlignment,
                   &Record::eAlignmentMode);
        Label(IDC_SHIFT_DIRECTION, m_grpDirection);
        BindRadios({IDC_SHIFT_LEFT, IDC_SHIFT_RIGHT}, m_radDirection, &Record::eDirection);
        Label(IDC_SHIFT_VALUE_GROUP, m_grpValue);
        BindRadios({IDC_SHIFT_FIXED, IDC_SHIFT_BETWEEN_CURSORS}, m_radValue, &Record::eValueMode);
        Bind(IDC_SHIFT_VALUE, m_txtValue, &Record::dShiftValue);
        Bind(IDC_SHIFT_VALUE_REGION, m_cmbValueRegion, &Record::eValueRegion).Corrects();
        Label(IDC_SHIFT_GROUP_LABEL, m_lblGroup);
        Bind(IDC_SHIFT_GROUP, m_cmbGroup, &Record::uDataGroupIndex).Corrects();
        Label(IDC_SHIFT_SEARCH_REGION_LABEL, m_lblSearchRegion);
        Bind(IDC_SHIFT_SEARCH_REGION, m_cmbSearchRegion, &Record::eSearchRegion).Corrects();
        Label(IDC_SHIFT_NOTE, m_lblNote);
        Label(IDC_SHIFT_POLARITY, m_grpPolarity);
        BindRadios({IDC_SHIFT_POSITIVE, IDC_SHIFT_NEGATIVE, IDC_SHIFT_ABSOLUTE}, m_radPolarity,
                   &Record::ePeakPolarity);
        BindRadios({IDC_SHIFT_ROTATE, IDC_SHIFT_ZEROS}, m_radAdjust, &Record::eAdjustMode);
    }

    void UpdateControls() override {
        COptionsTab::UpdateControls();
        const bool bShift = m_radAlignment.GetSelected() == 0;
        const bool bFixed = m_radValue.GetSelected() == 0;
        EnableControls({&m_grpDirection, &m_radDirection, &m_grpValue, &m_radValue}, bShift);
        EnableControls({&m_txtValue}, bShift && bFixed);
        EnableControls({&m_cmbValueRegion}, bShift && !bFixed);
        EnableControls({&m_lblGroup, &m_cmbGroup, &m_lblSearchRegion, &m_cmbSearchRegion,
                        &m_lblNote, &m_grpPolarity, &m_radPolarity},
                       !bShift);
    }

  private:
    bool SetUp() override {
        m_cmbValueRegion.Fill(Source());
        m_cmbSearchRegion.Fill(Source());
        m_cmbGroup.Fill(Source(), true);
        char szFormat[64];
        if (LoadStringA(m_hInstance, IDS_GROUP_TO_SEARCH, szFormat, sizeof szFormat) > 0)
            m_lblGroup.SetFormat(szFormat);
        const char* szGroup = Source()->GetGroupLabel();
        if (szGroup == nullptr) m_lblGroup.SetArgString(0, m_hInstance, IDS_DATA_GROUP);
        m_lblGroup.SetArg(0, szGroup);
        return true;
    }

    ADM_RadioButtons m_radAlignment, m_radDirection, m_radValue, m_radPolarity, m_radAdjust;
    ADM_Static m_grpDirection, m_grpValue, m_lblSearchRegion, m_lblNote, m_grpPolarity;
    ADM_StaticText m_lblGroup;
    ADM_DoubleText m_txtValue;
    CZxDlgRegionCombo m_cmbValueRegion, m_cmbSearchRegion;
    CZxDlgGroupCombo m_cmbGroup;
};

}  // namespace

CTimeShiftDialog::CTimeShiftDialog(HWND hwndParent, ZXADLG_TimeShiftOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    : CParentDialogBase(hwndParent, pData, pSource, pParams, IDD_TIME_SHIFT, IDC_TABS) {
    // Required: this dialog alone offers neither groups nor tools, whatever the parameters say.
    BuildTabs<CTimeShiftOptionsTab>(pOptions,
                                    {.bAllowRegion = 0, .bShowGroups = 0, .bShowSetTools = 0});
}
