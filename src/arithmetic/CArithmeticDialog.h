// The arithmetic dialog: an expression over data, and to which data it applies. Its three forms are
// the table of ArithmeticForms.h. This class adds what goes on the left side of the expression, the
// analysis region of traces and the range of rows of columns.
//
// Sets and rows count from 0 in the record and from 1 on the screen.
#pragma once

#include <optional>

#include "arithmetic/ArithmeticChecks.h"
#include "arithmetic/CArithmeticDialogBase.h"
#include "framework/ADM_IntegerGaugeText.h"

class CArithmeticDialog : public CArithmeticDialogBase {
  public:
    CArithmeticDialog(HWND hwndParent, ZXADLG_ArithmeticOptions* pOptions,
                      ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                      const ZXADLG_DlgParams* pParams);

    void UpdateControls() override;

  private:
    bool SetUp() override;
    void ShowOptions() override;
    bool PrepareOK() override;
    void OnAccepted() override;
    void OnExpressionChanged() override;

    void BindSets();
    void BindTool(int nId, ADM_Button& btn, void (CZxDlgSetListBox::*pApply)());
    void BindRows();
    void ShowNouns();

    // How sets are chosen, and in which group.
    int GetSetMode();
    std::uint32_t GetGroupInForce() const;
    void ListGroup();
    void ApplySetMode();
    void ShowListText(const std::vector<std::int32_t>& vSets);
    std::vector<std::int32_t> GetTypedSets() const;
    void TakeSelectedSets();
    void TakeTypedSets();
    void Assign();
    // The left side that the choices make; none where a message was shown instead.
    std::optional<std::string> MakeLeftSide();
    std::optional<std::string> MakeListedSets(int eMode);
    std::string GetGroupPrefix() const;

    bool UsesRowRange() { return m_form.bRows && m_radRows.GetSelected() != 0; }
    void CountRows();
    RowRange GetTypedRows();
    void TakeRows();

    ZXADLG_DataTabFlags m_flags;
    RowExtent m_rows;

    ADM_RadioButtons m_radSets;
    ADM_Text m_txtList;
    ADM_Static m_lblSets;
    CZxDlgSetListBox m_lstSets;
    ADM_Button m_btnAll;
    ADM_Button m_btnNone;
    ADM_Button m_btnInvert;
    ADM_RadioButtons m_radGroups;
    ADM_Static m_lblGroup;
    CZxDlgGroupCombo m_cmbGroup;
    ADM_Static m_lblRegion;
    CZxDlgRegionCombo m_cmbRegion;
    ADM_Button m_btnAssign;
    ADM_RadioButtons m_radRows;
    ADM_Static m_lblNote;
    ADM_StaticText m_lblAvailable;
    ADM_Static m_lblFrom;
    ADM_IntegerGaugeText m_txtFrom;
    ADM_GaugeControl m_spnFrom;
    ADM_Static m_lblTo;
    ADM_IntegerGaugeText m_txtTo;
    ADM_GaugeControl m_spnTo;
};
