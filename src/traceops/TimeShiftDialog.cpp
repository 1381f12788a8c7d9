#include "traceops/TimeShiftDialog.h"

#include <algorithm>

#include "ZXADLG.h"
#include "ids.h"

// --- Options tab: controls -------------------------------------------------------------------

CTimeShiftOptionsTab::CTimeShiftOptionsTab(CTimeShiftOptionsInterface* pOptions,
                                           const ZXADLG_DlgParams* pParams,
                                           CDataOptionsInterface* pData)
    : COptionsTabBase(pOptions, pParams, IDD_TIME_SHIFT_OPTIONS, IDS_TAB_OPTIONS),
      m_pShift(pOptions),
      m_pData(pData) {
    m_radAlignment.Setup(this, IDC_SHIFT_INTERVAL, IDC_SHIFT_ALIGN_PEAKS);
    RegisterControl(IDC_SHIFT_DIRECTION, &m_grpDirection);
    m_radDirection.Setup(this, IDC_SHIFT_LEFT, IDC_SHIFT_RIGHT);
    RegisterControl(IDC_SHIFT_VALUE_GROUP, &m_grpValue);
    m_radValue.Setup(this, IDC_SHIFT_FIXED, IDC_SHIFT_BETWEEN_CURSORS);
    RegisterControl(IDC_SHIFT_VALUE, &m_txtValue);
    RegisterControl(IDC_SHIFT_VALUE_REGION, &m_cmbValueRegion);
    RegisterControl(IDC_SHIFT_GROUP_LABEL, &m_lblGroup);
    RegisterControl(IDC_SHIFT_GROUP, &m_cmbGroup);
    RegisterControl(IDC_SHIFT_SEARCH_REGION_LABEL, &m_lblSearchRegion);
    RegisterControl(IDC_SHIFT_SEARCH_REGION, &m_cmbSearchRegion);
    RegisterControl(IDC_SHIFT_NOTE, &m_lblNote);
    RegisterControl(IDC_SHIFT_POLARITY, &m_grpPolarity);
    m_radPolarity.Setup(this, IDC_SHIFT_POSITIVE, IDC_SHIFT_ABSOLUTE);
    m_radAdjust.Setup(this, IDC_SHIFT_ROTATE, IDC_SHIFT_ZEROS);

    On(&m_radAlignment, ADMN_CLICKED, [this] {
        m_pShift->SetAlignmentMode(m_radAlignment.GetSelected());
        EnableByAlignment();
        EnableByValue();
    });
    On(&m_radValue, ADMN_CLICKED, [this] {
        m_pShift->SetValueMode(m_radValue.GetSelected());
        EnableByValue();
    });
    On(&m_radDirection, ADMN_CLICKED,
       [this] { m_pShift->SetDirection(m_radDirection.GetSelected()); });
    On(&m_radPolarity, ADMN_CLICKED,
       [this] { m_pShift->SetPeakPolarity(m_radPolarity.GetSelected()); });
    On(&m_radAdjust, ADMN_CLICKED, [this] { m_pShift->SetAdjustMode(m_radAdjust.GetSelected()); });
    On(&m_txtValue, ADMN_TEXTCHANGE, [this] { m_pShift->SetShiftValue(m_txtValue.GetValue()); });
    On(&m_cmbValueRegion, ADMN_COMBOSELCHANGE,
       [this] { m_pShift->SetValueRegion(m_cmbValueRegion.GetRegionId()); });
    On(&m_cmbGroup, ADMN_COMBOSELCHANGE,
       [this] { m_pShift->SetDataGroupIndex(static_cast<std::uint32_t>(m_cmbGroup.GetCurSel())); });
    On(&m_cmbSearchRegion, ADMN_COMBOSELCHANGE,
       [this] { m_pShift->SetSearchRegion(m_cmbSearchRegion.GetRegionId()); });
}

BOOL CTimeShiftOptionsTab::OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) {
    COptionsTabBase::OnInitDialog(hWnd, hFocus, lParam);
    m_cmbValueRegion.Fill(m_pData->GetDataSource());
    m_cmbSearchRegion.Fill(m_pData->GetDataSource());
    m_cmbGroup.Fill(m_pData->GetDataSource(), true);
    CaptionGroup();
    return FinishInitialization();
}

// --- Options tab: display --------------------------------------------------------------------

void CTimeShiftOptionsTab::ShowOptions() {
    SelectButton(m_radAlignment, m_pShift->GetAlignmentMode());
    SelectButton(m_radValue, m_pShift->GetValueMode());
    SelectButton(m_radDirection, m_pShift->GetDirection());
    m_txtValue.SetValue(m_pShift->GetShiftValue());
    SelectButton(m_radPolarity, m_pShift->GetPeakPolarity());
    SelectButton(m_radAdjust, m_pShift->GetAdjustMode());
    // Regions and groups that the data do not have become those that are shown in their place.
    m_pShift->SetValueRegion(m_cmbValueRegion.SelectOffered(m_pShift->GetValueRegion()));
    m_pShift->SetSearchRegion(m_cmbSearchRegion.SelectOffered(m_pShift->GetSearchRegion()));
    ShowGroup();
    EnableByAlignment();
    EnableByValue();
}

void CTimeShiftOptionsTab::ShowGroup() {
    const auto uLast = static_cast<std::uint32_t>(std::max(m_cmbGroup.GetCount(), 1) - 1);
    m_pShift->SetDataGroupIndex(std::min(m_pShift->GetDataGroupIndex(), uLast));
    m_cmbGroup.SetCurSel(static_cast<int>(m_pShift->GetDataGroupIndex()));
}

void CTimeShiftOptionsTab::CaptionGroup() {
    char szFormat[64];
    if (LoadStringA(m_hInstance, IDS_GROUP_TO_SEARCH, szFormat, sizeof szFormat) > 0) {
        m_lblGroup.SetFormat(szFormat);
    }
    const char* szGroup = m_pData->GetDataSource()->GetGroupLabel();
    if (szGroup != nullptr) {
        m_lblGroup.SetArg(0, szGroup);
    } else {
        m_lblGroup.SetArgString(0, m_hInstance, IDS_DATA_GROUP);
    }
}

// --- Options tab: enabling -------------------------------------------------------------------

void CTimeShiftOptionsTab::EnableByAlignment() {
    const BOOL bShift = ShiftsByInterval();
    m_grpDirection.Enable(bShift);
    m_radDirection.Enable(bShift);
    m_grpValue.Enable(bShift);
    m_radValue.Enable(bShift);
    m_lblGroup.Enable(!bShift);
    m_cmbGroup.Enable(!bShift);
    m_lblSearchRegion.Enable(!bShift);
    m_cmbSearchRegion.Enable(!bShift);
    m_lblNote.Enable(!bShift);
    m_grpPolarity.Enable(!bShift);
    m_radPolarity.Enable(!bShift);
}

void CTimeShiftOptionsTab::EnableByValue() {
    const bool bShift = ShiftsByInterval();
    m_txtValue.Enable(bShift && m_radValue.GetSelected() == 0);
    m_cmbValueRegion.Enable(bShift && m_radValue.GetSelected() == 1);
}

// --- Dialog ----------------------------------------------------------------------------------

CTimeShiftDialog::CTimeShiftDialog(HWND hwndParent, ZXADLG_TimeShiftOptions* pOptions,
                                   ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                                   const ZXADLG_DlgParams* pParams)
    // Required: this dialog alone offers neither groups nor tools, whatever the parameters say.
    : COptionsDialog(hwndParent, pOptions, pData, pSource, pParams, IDD_TIME_SHIFT,
                     {.bAllowRegion = 0, .bShowGroups = 0, .bShowSetTools = 0}) {}
