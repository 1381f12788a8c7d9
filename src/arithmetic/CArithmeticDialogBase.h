// What all forms of the arithmetic dialog share: the expression box with its history, the title of
// a new column, the pick lists, Undo, Clear and the example line.
//
// The library does not compute the expression and knows little of its grammar: it checks its length
// and hands it on. Record, source and parameters outlive the dialog.
#pragma once

#include <string>

#include "analysis/CUntabbedDialogBase.h"
#include "arithmetic/ArithmeticForms.h"
#include "arithmetic/ExpressionBoxes.h"
#include "arithmetic/PickLists.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/ArithmeticOptions.h"

class CArithmeticOptionsInterface : public CRecordOptionsInterface<ZXADLG_ArithmeticOptions> {
  public:
    using CRecordOptionsInterface::CRecordOptionsInterface;
};

class CArithmeticDialogBase : public CRecordPage<ZXADLG_ArithmeticOptions, CUntabbedDialogBase> {
  public:
    CArithmeticDialogBase(HWND hwndParent, ZXADLG_ArithmeticOptions* pOptions,
                          ZXADLG_DataOptions* pData, ZXADLG_CDlgDataSource* pSource,
                          const ZXADLG_DlgParams* pParams);

    INT_PTR DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) override;
    void UpdateControls() override;

  protected:
    bool SetUp() override;
    void ShowOptions() override;
    // Writes the expression and the title, and brings the histories up to date.
    void OnAccepted() override;
    // What follows another text of the expression.
    virtual void OnExpressionChanged() {}

    // The expression as it stands in the box.
    std::string GetExpression() const { return m_cmbExpression.GetText(); }
    bool HasLiveData() const { return m_pParams->bDeferredRun == 0; }
    bool IsFileData() const { return m_eDataKind == CDataOptionsInterface::kFileData; }
    bool IsSheetData() const { return m_eDataKind == CDataOptionsInterface::kSheetData; }
    CheckResult CheckText() const;
    // Nothing before "=" is left in an expression that has no left side. Tells once with
    // bShowMessage.
    void TakeExpression(bool bShowMessage);

    const std::uint32_t m_eDataKind;
    const ArithmeticForm& m_form;
    CArithmeticEquationComboBox m_cmbExpression;

  private:
    void FillHistories();
    void RemapExpression();
    void ClearExpression();
    void UndoExpression();
    bool UsesStore() const { return HasLiveData() && !IsReadOnly(); }

    CArithmeticOptionsInterface m_options;
    CDescriptionComboBox m_cmbTitle;
    ADM_StaticText m_lblExample;
    COperatorComboBox m_lstOperators;
    CFunctionComboBox m_lstFunctions;
    CSpecialComboBox m_lstConstants;
    ADM_Button m_btnUndo;
    ADM_Button m_btnClear;
    std::string m_sUndo;  // what Clear took away
};
