// The data tab of an analysis over a sheet: columns are assigned to variables, or listed, and a
// range of rows confines them. Used for data kind 2 alone.
//
// Three forms, by template: IDD_PAIRED_SIX_VARIABLES assigns one column to one of six variables and
// gives the others constants; IDD_PAIRED_ONE_VARIABLE assigns an x column and one or more y
// columns; IDD_PAIRED_LIST selects columns by list or by typed text. Rows count from 1 for the user
// and from 0 in the record.
#pragma once

#include <array>

#include "analysis/CDataTabBase.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"

class CPairedDataTab : public CDataTabBase {
  public:
    // bDepList: the dependent data are a list of columns.
    CPairedDataTab(CDataOptionsInterface* pData, UINT uTemplateId, bool bDepList, bool bReadOnly);

    void UpdateControls() override;
    BOOL OnPageShow() override;
    void ReadControls() override;
    // The list form alone has nothing selected by itself.
    CheckResult CheckSelected() override;
    // In the list form a column must be selected; the rows must be in order.
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;

    // Assigns the current column to a variable, 0 to 5, and makes every other one a constant.
    // Nothing in the list form.
    virtual void AssignVariable(int nVariable);
    // Whether the first row lies before the last; with bReport a message says so when not.
    virtual bool CheckRange(bool bReport);

    // Makes a column selected, in a list of several selections beside those that are.
    void SelectColumn(int n);

  private:
    static constexpr int kVariables = 6;

    void ShowOptions() override;
    void BindAssignment();
    void BindList();
    void BindRange();
    void ShowButtons();
    void ShowVariables();
    void CorrectAssignment();
    void ShowDependent();
    void ShowDependentName(const std::vector<std::int32_t>& vColumns);
    void AssignDependent();
    void ShowLimits();
    void CorrectRange();
    void StoreListMode();
    std::uint32_t PointsForRange();
    bool HasSeveralVariables() const { return m_pData->GetConstantCount() > 1; }
    int CurrentColumn();
    int GetListMode();
    CheckResult FindRangeFault();
    void ChangeListSelection();
    void ChangeListText();
    void ChangeRow();
    void ChangeRange();

    bool m_bListMode;
    bool m_bDepList;
    int m_nAssigned = 0;  // the variable that has the column

    std::array<ADM_Button, kVariables> m_abtnVariable;
    std::array<ADM_StaticText, kVariables> m_albVariable;
    std::array<ADM_DoubleText, kVariables> m_atxtConstant;
    ADM_Button m_btnDependent;
    ADM_StaticText m_lblDependent;
    ADM_Static m_lblUnused;
    ADM_Button m_chkAll;
    ADM_Static m_lblFrom;
    ADM_IntegerGaugeText m_txtFrom;
    ADM_Spinner m_spnFrom;
    ADM_Static m_lblTo;
    ADM_IntegerGaugeText m_txtTo;
    ADM_Spinner m_spnTo;
    ADM_StaticText m_lblAvailable;
    ADM_RadioButtons m_radList;
};
