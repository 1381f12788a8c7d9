#include "arithmetic/CArithmeticDialog.h"

#include <algorithm>
#include <limits>

#include "ZXADLG.h"
#include "arithmetic/AssignedList.h"
#include "arithmetic/ColumnScan.h"
#include "arithmetic_ids.h"
#include "contract/SelectionList.h"
#include "ids.h"
#include "text/CaptionText.h"
#include "widgets/FrameworkSetup.h"

namespace {

using Record = ZXADLG_ArithmeticOptions;
using Model = CDataOptionsInterface;

// Captions and nouns are cut to these sizes.
constexpr int kCaptionSize = 60;
constexpr int kNounSize = 20;
constexpr int kPrefixSize = 21;

// By set mode: the buttons that take the host's noun, and the left side of each.
constexpr const char* kSetCaptions[] = {"All visi&ble %ss", "All %ss (including &hidden)",
                                        "Acti&ve %s"};
constexpr UINT kRuleStrings[] = {IDS_LEFT_VISIBLE, IDS_LEFT_ALL, IDS_LEFT_ACTIVE};
constexpr const char* kGroupCaptions[] = {"Ac&tive %s", "Speci&fy a %s"};

// The row that the user sees for one of the record.
std::int32_t ShownRow(std::uint32_t uRow) {
    return std::min(ShownCount(uRow), std::numeric_limits<std::int32_t>::max() - 1) + 1;
}

}  // namespace

// --- Controls --------------------------------------------------------------------------------

CArithmeticDialog::CArithmeticDialog(HWND hwndParent, Record* pOptions, ZXADLG_DataOptions* pData,
                                     ZXADLG_CDlgDataSource* pSource,
                                     const ZXADLG_DlgParams* pParams)
    : CArithmeticDialogBase(hwndParent, pOptions, pData, pSource, pParams),
      m_flags{.bShowGroups = pParams->bShowGroupSelector} {
    m_pDataOptionsObject = std::make_unique<Model>(pData, pSource, &m_flags);
    BindSets();
    if (m_form.bRegion) {
        Label(IDC_REGION_LABEL, m_lblRegion);
        Bind(IDC_REGION, m_cmbRegion, &Record::eAnalysisRegion);
    }
    OnClick(IDC_ASSIGN, m_btnAssign, [this] { Assign(); });
    if (m_form.bRows) BindRows();
    // What nobody can change is not checked.
    if (IsReadOnly()) return;
    AddCheck([this](const TypedValues&) -> CheckResult {
        if (!UsesRowRange()) return {};
        OnExpressionChanged();
        return CheckRows(GetTypedRows());
    });
    AddCheck([this](const TypedValues&) -> CheckResult {
        return HasLiveData() ? CheckAnyData(*m_pSource) : CheckResult{};
    });
    AddCheck([this](const TypedValues&) { return CheckText(); });
}

void CArithmeticDialog::BindSets() {
    if (m_form.bSetRules) {
        BindRadios(
            {IDC_SETS_VISIBLE, IDC_SETS_ALL, IDC_SETS_ACTIVE, IDC_SETS_LISTED, IDC_SETS_TYPED},
            {Model::kVisibleSets, Model::kAllSets, Model::kActiveSet, Model::kListedSets,
             Model::kTypedSets},
            m_radSets, &Record::eDataSet1SelectionMode)
            .Then([this] { ApplySetMode(); });
    } else if (m_form.bSetModes) {
        m_radSets.SetupIds(this, 2, std::data({IDC_SETS_TYPED, IDC_SETS_LISTED}),
                           std::data({int{Model::kTypedSets}, int{Model::kListedSets}}));
        // The rules of traces become a list.
        BindTo(
            m_radSets,
            [this] { return std::max<int>(m_pRecord->eDataSet1SelectionMode, Model::kListedSets); },
            [this](int eMode) { m_pRecord->eDataSet1SelectionMode = eMode; })
            .Then([this] { ApplySetMode(); });
    }
    if (m_form.bSetModes) {
        Label(IDC_SET_LIST_TEXT, m_txtList);
        OnEvent(m_txtList, ADMN_TEXTCHANGE, [this] { TakeTypedSets(); });
    }
    Label(IDC_SET_LABEL, m_lblSets);
    Label(IDC_SET_LIST, m_lstSets);
    OnEvent(m_lstSets, ADMN_LISTSELCHANGE, [this] { TakeSelectedSets(); });
    BindTool(IDC_SELECT_ALL, m_btnAll, &CZxDlgSetListBox::SelectAll);
    BindTool(IDC_SELECT_NONE, m_btnNone, &CZxDlgSetListBox::SelectNone);
    BindTool(IDC_SELECT_INVERT, m_btnInvert, &CZxDlgSetListBox::Invert);
    BindRadios({IDC_GROUPS_ACTIVE, IDC_GROUPS_ONE}, m_radGroups, &Record::eDataGroup1SelectionMode)
        .Then([this] { ListGroup(); });
    Label(IDC_GROUP_LABEL, m_lblGroup);
    Bind(IDC_GROUP, m_cmbGroup, &Record::uGroup1Index).Then([this] { ListGroup(); });
}

void CArithmeticDialog::BindTool(int nId, ADM_Button& btn, void (CZxDlgSetListBox::*pApply)()) {
    OnClick(nId, btn, [this, pApply] {
        const int nTop = m_lstSets.GetTopIndex();
        (m_lstSets.*pApply)();
        m_lstSets.SetTopIndex(nTop);
        TakeSelectedSets();
    });
}

void CArithmeticDialog::BindRows() {
    m_radRows.SetupIds(this, 2, std::data({IDC_RANGE_ALL, IDC_RANGE_PART}), nullptr);
    BindTo(
        m_radRows, [this] { return m_pRecord->bUseFullDataRange != 0 ? 0 : 1; },
        [this](int nPart) { m_pRecord->bUseFullDataRange = nPart == 0; });
    Label(IDC_RANGE_NOTE, m_lblNote);
    Label(IDC_RANGE_FROM_LABEL, m_lblFrom);
    BindTyped(
        IDC_RANGE_FROM, m_txtFrom, [this] { return ShownRow(m_pRecord->uFirstDataIndex); },
        [this](std::int32_t) { TakeRows(); });
    Spinner(IDC_RANGE_FROM_SPIN, m_spnFrom, m_txtFrom);
    Label(IDC_RANGE_TO_LABEL, m_lblTo);
    BindTyped(
        IDC_RANGE_TO, m_txtTo, [this] { return ShownRow(m_pRecord->uLastDataIndex); },
        [this](std::int32_t) { TakeRows(); });
    Spinner(IDC_RANGE_TO_SPIN, m_spnTo, m_txtTo);
    Label(IDC_RANGE_AVAILABLE, m_lblAvailable);
}

// --- Display ---------------------------------------------------------------------------------

bool CArithmeticDialog::SetUp() {
    m_txtList.LimitText(static_cast<int>(sizeof m_pRecord->szSelectionList) - 1);
    const bool bGroups = m_pParams->bShowGroupSelector != 0;
    ShowControls({&m_lblGroup, &m_cmbGroup, &m_radGroups}, bGroups);
    if (bGroups) m_cmbGroup.Fill(m_pSource, true);
    if (m_form.bRegion) m_cmbRegion.Fill(m_pSource);
    ShowNouns();
    CountRows();
    return CArithmeticDialogBase::SetUp();
}

void CArithmeticDialog::ShowNouns() {
    const char* szGroup = m_pSource->GetGroupLabel();
    char szNoun[kNounSize];
    char szCaption[kCaptionSize];
    CopyText(szNoun, szGroup != nullptr ? szGroup : "Group");
    FormatCaption(szCaption, "Select %s:", szNoun);
    m_lblGroup.SetWindowText(szCaption);
    for (int i = 0; i < m_radGroups.GetCount(); ++i) {
        FormatCaption(szCaption, kGroupCaptions[i], szNoun);
        m_radGroups.SetButtonText(i, szCaption);
    }
    const char* szSet = m_pSource->GetSetLabel();
    CopyText(szNoun, szSet != nullptr ? szSet : "Set");
    for (int i = 0; m_form.bSetRules && i < static_cast<int>(std::size(kSetCaptions)); ++i) {
        FormatCaption(szCaption, kSetCaptions[i], szNoun);
        m_radSets.SetButtonText(i, szCaption);
    }
    if (IsSheetData()) m_lblSets.SetWindowText("Column:");
}

void CArithmeticDialog::ShowOptions() {
    ShowListText(ParseSelection(m_pRecord->szSelectionList, 0));
    ListGroup();
    CArithmeticDialogBase::ShowOptions();
}

// --- Rules -----------------------------------------------------------------------------------

void CArithmeticDialog::UpdateControls() {
    CArithmeticDialogBase::UpdateControls();
    const int eMode = GetSetMode();
    const bool bListed = eMode == Model::kListedSets;
    EnableControls({&m_txtList}, eMode == Model::kTypedSets);
    EnableControls({&m_btnAll, &m_btnNone, &m_btnInvert}, bListed);
    // A list stays alive in read-only mode, to be scrolled.
    m_lstSets.Enable(bListed || IsReadOnly());
    m_lblSets.Enable(m_lstSets.IsEnabled());
    EnableControls({&m_lblGroup, &m_cmbGroup}, m_radGroups.GetSelected() == Model::kOneGroup);
    if (!m_form.bRows) return;
    const bool bPart = UsesRowRange();
    EnableControls({&m_lblNote}, !bPart);
    EnableControls(
        {&m_lblAvailable, &m_lblFrom, &m_txtFrom, &m_spnFrom, &m_lblTo, &m_txtTo, &m_spnTo}, bPart);
}

// --- Sets ------------------------------------------------------------------------------------

int CArithmeticDialog::GetSetMode() {
    return m_form.bSetModes ? m_radSets.GetValue() : Model::kListedSets;
}

std::uint32_t CArithmeticDialog::GetGroupInForce() const {
    if (m_pRecord->eDataGroup1SelectionMode != Model::kOneGroup) return m_pSource->GetActiveGroup();
    const std::uint32_t uGroups = m_pSource->GetGroupCount();
    return std::min(m_pRecord->uGroup1Index, std::max(uGroups, 1U) - 1);
}

// The list holds the sets of the group in force, and the rows are counted there.
void CArithmeticDialog::ListGroup() {
    m_lstSets.Fill(GetGroupInForce(), m_pSource, false);
    ApplySetMode();
    CountRows();
    OnExpressionChanged();
}

void CArithmeticDialog::ApplySetMode() {
    const UpdateScope updating(m_bUpdating);
    const std::uint32_t uGroup = GetGroupInForce();
    switch (GetSetMode()) {
        case Model::kVisibleSets:
            m_lstSets.SelectVisible(uGroup, m_pSource);
            break;
        case Model::kAllSets:
            m_lstSets.SelectAll();
            break;
        case Model::kActiveSet:
            m_lstSets.SelectNone();
            m_lstSets.SelectItem(static_cast<int>(m_pSource->GetActiveSet(uGroup)) - 1);
            break;
        default:
            m_lstSets.SelectItems(ParseSelection(m_pRecord->szSelectionList, 0));
            break;
    }
}

void CArithmeticDialog::ShowListText(const std::vector<std::int32_t>& vSets) {
    char szText[sizeof m_pRecord->szSelectionList];
    FormatSelection(szText, vSets, 1);
    m_txtList.SetWindowText(szText);
}

// Empty where the text cannot be read or names a set before the first.
std::vector<std::int32_t> CArithmeticDialog::GetTypedSets() const {
    char szText[sizeof m_pRecord->szSelectionList];
    m_txtList.GetWindowText(szText, sizeof szText);
    std::vector<std::int32_t> vSets = ParseSelection(szText, 1);
    if (std::any_of(vSets.begin(), vSets.end(), [](std::int32_t n) { return n < 0; })) return {};
    return vSets;
}

void CArithmeticDialog::TakeSelectedSets() {
    const UpdateScope updating(m_bUpdating);
    const std::vector<std::int32_t> vSets = m_lstSets.GetSelection();
    FormatSelection(m_pRecord->szSelectionList, vSets, 0);
    ShowListText(vSets);
}

// What cannot be read leaves the last list in the record.
void CArithmeticDialog::TakeTypedSets() {
    const std::vector<std::int32_t> vSets = GetTypedSets();
    if (vSets.empty()) return;
    const UpdateScope updating(m_bUpdating);
    FormatSelection(m_pRecord->szSelectionList, vSets, 0);
    m_lstSets.SelectItems(vSets);
}

// --- The left side ---------------------------------------------------------------------------

void CArithmeticDialog::Assign() {
    const std::optional<std::string> sLeftSide = MakeLeftSide();
    if (!sLeftSide) return;
    m_cmbExpression.AssignLeftSide(*sLeftSide, m_form.bLeftSide);
    TakeExpression(true);
}

std::optional<std::string> CArithmeticDialog::MakeLeftSide() {
    const int eMode = GetSetMode();
    if (eMode == Model::kListedSets || eMode == Model::kTypedSets) return MakeListedSets(eMode);
    char szRule[32] = {};
    LoadStringA(GetFrameworkInstance(), kRuleStrings[eMode], szRule, sizeof szRule);
    return GetGroupPrefix() + szRule;
}

std::optional<std::string> CArithmeticDialog::MakeListedSets(int eMode) {
    const bool bTyped = eMode == Model::kTypedSets;
    std::vector<std::int32_t> vSets = bTyped ? GetTypedSets() : m_lstSets.GetSelection();
    if (vSets.empty()) {
        ShowFinding(m_hWnd, Refusal(IDS_NO_DATA_SELECTED, Finding::kCurrentPage));
        FocusControl(*this, bTyped ? IDC_SET_LIST_TEXT : IDC_SET_LIST);
        return std::nullopt;
    }
    for (std::int32_t& nSet : vSets) ++nSet;
    const std::optional<std::string> sSets = FormatAssignedList(std::move(vSets), IsSheetData());
    if (sSets) return GetGroupPrefix() + *sSets;
    const Finding finding = TooLongAssignment();
    ShowFinding(m_hWnd, finding);
    FocusControl(*this, finding.nControl);
    return std::nullopt;
}

// Sets of a trace group that is not the active one are named with their group.
std::string CArithmeticDialog::GetGroupPrefix() const {
    const std::uint32_t uGroup = GetGroupInForce();
    if (!IsFileData() || uGroup == m_pSource->GetActiveGroup()) return {};
    const char* szName = m_pSource->GetGroupName(uGroup);
    if (szName == nullptr || *szName == '\0') return {};
    // The colon stays however long the name is.
    char szKept[kPrefixSize - 1];
    CopyText(szKept, szName);
    return std::string(szKept) + ':';
}

// --- Rows ------------------------------------------------------------------------------------

// Half-typed names never pull the rows down: the range of their fields is the longest column. A
// deferred run has no live data that could limit it, and what nobody can change stays as it is.
void CArithmeticDialog::CountRows() {
    if (!m_form.bRows) return;
    m_rows.uLongest = LongestColumn(*m_pSource, GetGroupInForce());
    if (IsReadOnly()) return;
    const std::int32_t nMost =
        HasLiveData() ? ShownCount(m_rows.uLongest) : std::numeric_limits<std::int32_t>::max();
    for (ADM_IntegerGaugeText* pRow : {&m_txtFrom, &m_txtTo})
        pRow->SetRange(1, std::max(nMost, 1), 1);
}

void CArithmeticDialog::OnExpressionChanged() {
    if (!m_form.bRows) return;
    const std::uint32_t uGroup = GetGroupInForce();
    const std::vector<std::int32_t> vColumns =
        ScanColumns(GetExpression(), !m_form.bLeftSide, ShownCount(m_pSource->GetSetCount(uGroup)));
    m_rows.uLimit = RowLimit(*m_pSource, uGroup, vColumns, m_rows.uLongest);
    m_lblAvailable.SetArgInt(0, m_rows.uLimit > 0 ? 1 : 0);
    m_lblAvailable.SetArgInt(1, ShownCount(m_rows.uLimit));
}

RowRange CArithmeticDialog::GetTypedRows() {
    return {m_txtFrom.GetTypedValue(), m_txtTo.GetTypedValue(), m_rows.uLimit, HasLiveData()};
}

// Rows that are refused leave the last good ones in the record.
void CArithmeticDialog::TakeRows() {
    const RowRange rows = GetTypedRows();
    if (CheckRows(rows)) return;
    m_pRecord->uFirstDataIndex = static_cast<std::uint32_t>(rows.nFirst - 1);
    m_pRecord->uLastDataIndex = static_cast<std::uint32_t>(rows.nLast - 1);
}

// --- Storing ---------------------------------------------------------------------------------

// The description of the data needs the selection.
bool CArithmeticDialog::PrepareOK() {
    if (IsReadOnly()) return true;
    if (UsesRowRange()) TakeRows();
    ZXADLG_DataOptions& data = *m_pDataRecord;
    data.eDataGroup1SelectionMode = data.eDataGroup2SelectionMode = Model::kAllGroups;
    data.eDataSet1SelectionMode = data.eDataSet2SelectionMode = Model::kAllSets;
    data.uFirstDataIndex = m_pRecord->uFirstDataIndex;
    data.uLastDataIndex = m_pRecord->uLastDataIndex;
    data.bUseFullDataRange = m_pRecord->bUseFullDataRange;
    return CArithmeticDialogBase::PrepareOK();
}

void CArithmeticDialog::OnAccepted() {
    CArithmeticDialogBase::OnAccepted();
    m_pRecord->eDataSet1SelectionMode = GetSetMode();
    // What the boxes show; a host that offers nothing keeps its own.
    if (m_cmbGroup.GetCount() > 0) m_pRecord->uGroup1Index = m_cmbGroup.GetGroup();
    if (m_cmbRegion.GetCount() == 0) return;
    m_pRecord->eAnalysisRegion = m_cmbRegion.GetRegionId();
    m_pRecord->uRegionIndex = static_cast<std::uint32_t>(std::max(m_cmbRegion.GetCurSel(), 0));
}
