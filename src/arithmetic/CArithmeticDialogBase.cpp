#include "arithmetic/CArithmeticDialogBase.h"

#include "ZXADLG.h"
#include "arithmetic/ArithmeticChecks.h"
#include "arithmetic/ColumnRemap.h"
#include "arithmetic/LeftSide.h"
#include "arithmetic_ids.h"
#include "contract/SelectionList.h"
#include "text/BoundedText.h"

namespace {

// Posted to the dialog: what was chosen in a history has reached its box.
constexpr UINT kHistoryChosen = WM_APP + 1;

constexpr char kExampleTitle[] = "Example";

}  // namespace

CArithmeticDialogBase::CArithmeticDialogBase(HWND hwndParent, ZXADLG_ArithmeticOptions* pOptions,
                                             ZXADLG_DataOptions* pData,
                                             ZXADLG_CDlgDataSource* pSource,
                                             const ZXADLG_DlgParams* pParams)
    : CRecordPage(pOptions, hwndParent, FormOf(pSource->GetDataKind(), *pParams).uTemplateId,
                  pSource, pParams, pData),
      m_eDataKind(pSource->GetDataKind()),
      m_form(FormOf(m_eDataKind, *pParams)),
      m_options(pOptions, pSource) {
    SetOptionsInterface(&m_options);
    Label(IDC_EXPRESSION, m_cmbExpression);
    OnEvent(m_cmbExpression, ADMN_COMBOEDITCHANGE, [this] { TakeExpression(true); });
    OnEvent(m_cmbExpression, ADMN_COMBOSELCHANGE,
            [this] { PostMessageA(m_hWnd, kHistoryChosen, 0, 0); });
    Label(IDC_OPERATOR, m_lstOperators);
    OnEvent(m_lstOperators, ADM_NoListCombo::kPicked, [this] {
        WORD uOperator = 0;
        m_lstOperators.GetOperator(&uOperator);
        m_cmbExpression.InsertOperator(static_cast<char>(LOBYTE(uOperator)));
        TakeExpression(true);
    });
    Label(IDC_FUNCTION, m_lstFunctions);
    OnEvent(m_lstFunctions, ADM_NoListCombo::kPicked, [this] {
        m_cmbExpression.InsertFunction(m_lstFunctions.GetFunction());
        TakeExpression(true);
    });
    Label(IDC_CONSTANT, m_lstConstants);
    m_lstConstants.SetColumnNames(IsSheetData());
    OnEvent(m_lstConstants, ADM_NoListCombo::kPicked, [this] {
        m_cmbExpression.InsertConstant(m_lstConstants.GetConstant());
        TakeExpression(true);
    });
    OnClick(IDC_EXPRESSION_UNDO, m_btnUndo, [this] { UndoExpression(); });
    OnClick(IDC_EXPRESSION_CLEAR, m_btnClear, [this] { ClearExpression(); });
    Label(IDC_EXPRESSION_EXAMPLE, m_lblExample);
    if (m_form.bTitle) Label(IDC_COLUMN_TITLE, m_cmbTitle);
}

// --- Set-up ----------------------------------------------------------------------------------

bool CArithmeticDialogBase::SetUp() {
    m_lblExample.SetArg(0, ("Example: " + std::string(ExampleShown(m_form, m_eDataKind))).c_str());
    m_cmbTitle.LimitText(static_cast<int>(sizeof m_pRecord->szColumnTitle) - 1);
    if (!IsReadOnly() && m_pParams->bRemapColumns != 0) RemapExpression();
    FillHistories();
    return true;
}

// An empty history begins with an example.
void CArithmeticDialogBase::FillHistories() {
    if (UsesStore()) {
        const char* szProfile = m_pSource->GetProfileName();
        m_cmbExpression.LoadList(szProfile, m_form.eExpressions);
        if (WantsTitle(m_form, m_eDataKind))
            m_cmbTitle.LoadList(m_pSource->GetProfileName(), HistoryKind::kColumnTitle);
    }
    if (!m_cmbExpression.IsListEmpty()) return;
    m_cmbExpression.PutOnTop(m_form.szExample);
    m_cmbExpression.SetText(m_form.szExample);
    if (!m_form.bTitle || !m_cmbTitle.IsListEmpty()) return;
    m_cmbTitle.PutOnTop(kExampleTitle);
    m_cmbTitle.SetText(kExampleTitle);
}

void CArithmeticDialogBase::ShowOptions() {
    const std::string_view sExpression = TypedForm(m_pRecord->szExpression);
    if (!sExpression.empty()) m_cmbExpression.SetText(sExpression);
    if (m_form.bTitle && m_pRecord->szColumnTitle[0] != '\0')
        m_cmbTitle.SetText(m_pRecord->szColumnTitle);
    TakeExpression(false);
}

void CArithmeticDialogBase::RemapExpression() {
    if (const auto sRemapped = RemapColumns(
            m_pRecord->szExpression, ParseSelection(m_pDataRecord->szDepVarSelectionList, 0))) {
        CopyText(m_pRecord->szExpression, *sRemapped);
    }
}

void CArithmeticDialogBase::UpdateControls() {
    CRecordPage::UpdateControls();
    EnableControls({&m_lstOperators, &m_lstFunctions, &m_lstConstants}, true);
}

// --- The expression --------------------------------------------------------------------------

INT_PTR CArithmeticDialogBase::DialogProc(HWND hWnd, UINT uMsg, WPARAM wParam, LPARAM lParam) {
    if (uMsg == kHistoryChosen && IsReady() && !IsReadOnly()) {
        const UpdateScope updating(m_bUpdating);
        TakeExpression(true);
        RequestUpdate();
        return TRUE;
    }
    return CRecordPage::DialogProc(hWnd, uMsg, wParam, lParam);
}

void CArithmeticDialogBase::TakeExpression(bool bShowMessage) {
    std::string sText = GetExpression();
    if (!m_form.bLeftSide && sText.find('=') != std::string::npos) {
        if (bShowMessage) {
            ShowFinding(m_hWnd, Refusal(IDS_EQUALS_NOT_ALLOWED, Finding::kCurrentPage));
        }
        // A text that the program sets tells of no change: all of them go at once.
        while (sText.find('=') != std::string::npos) sText = std::string(RightSideOf(sText));
        m_cmbExpression.SetText(sText);
        m_cmbExpression.SetCaret(0);
    }
    OnExpressionChanged();
}

void CArithmeticDialogBase::ClearExpression() {
    m_sUndo = GetExpression();
    m_cmbExpression.SetText("");
    CopyText(m_pRecord->szExpression, "");
    OnExpressionChanged();
}

void CArithmeticDialogBase::UndoExpression() {
    if (!m_sUndo.empty()) {
        m_cmbExpression.SetText(m_sUndo);
        CopyText(m_pRecord->szExpression, m_sUndo);
        m_sUndo.clear();
    }
    m_cmbExpression.FocusEdit();
    // A text that was just restored is nothing that the edit could undo.
    m_cmbExpression.Undo();
    TakeExpression(true);
}

CheckResult CArithmeticDialogBase::CheckText() const {
    return CheckExpression(GetExpression(), m_form.bTitle ? m_cmbTitle.GetText() : std::string(),
                           WantsTitle(m_form, m_eDataKind));
}

void CArithmeticDialogBase::OnAccepted() {
    const std::string sExpression(Trimmed(GetExpression()));
    StoreExpression(sExpression, *m_pRecord);
    const std::string sTitle(Trimmed(m_cmbTitle.GetText()));
    if (m_form.bTitle) CopyText(m_pRecord->szColumnTitle, sTitle);
    const bool bTitles = WantsTitle(m_form, m_eDataKind) && !sTitle.empty();
    if (m_pParams->bRemapColumns == 0) {
        m_cmbExpression.PutOnTop(sExpression);
        if (bTitles) m_cmbTitle.PutOnTop(sTitle);
    }
    if (!UsesStore()) return;
    m_cmbExpression.SaveList(m_pSource->GetProfileName(), m_form.eExpressions);
    if (bTitles) m_cmbTitle.SaveList(m_pSource->GetProfileName(), HistoryKind::kColumnTitle);
}
