#include "measure/MeasurementOptionsTab.h"

#include <algorithm>
#include <limits>
#include <numeric>

#include "ZXADLG.h"
#include "analysis/SmoothingLengths.h"
#include "text/CaptionText.h"
#include "text/NumberParse.h"

namespace {

using Search = ZXADLG_MeasurementSearch;

constexpr int kTimeDigits = 10;
constexpr int kIntervalDigits = 6;
constexpr int kCaptionSize = 80;
constexpr std::uint32_t kPolarityGroups = 16;

std::string StringText(UINT uId) {
    char szText[128] = "";
    LoadStringA(GetFrameworkInstance(), uId, szText, sizeof szText);
    return szText;
}

}  // namespace

// --- Controls ------------------------------------------------------------------------------------

CMeasurementOptionsTab::CMeasurementOptionsTab(CMeasurementOptionsInterface* pOptions,
                                               const ZXADLG_DlgParams* pParams,
                                               CDataOptionsInterface* pData)
    : CRecordPage(&pOptions->GetSearch(), pOptions, pParams, IDD_MEASUREMENT_OPTIONS,
                  IDS_TAB_MEASUREMENTS),
      m_pOptions(pOptions),
      m_pData(pData) {
    BindSearch();
    BindBaseline();
    BindPolarity();
    BindMeasurements();
    BindSmoothing();
    FollowData(pData, [this] { TakeAxis(); });
}

void CMeasurementOptionsTab::BindSearch() {
    Bind(IDC_MEASURE_SEARCH_ON, m_chkSearch, &Search::bRegionEnable).Then([this] {
        m_pOptions->Notify(kNotifyImportChanged);
    });
    // No row shows the number: it changes under the user's hands.
    RegisterControl(IDC_MEASURE_SEARCH, &m_txtSearch);
    m_txtSearch.SetStrict(TRUE);
    Spinner(IDC_MEASURE_SEARCH_SPIN, m_spnSearch, m_txtSearch);
    OnEvent(m_txtSearch, ADMN_TEXTCHANGE, [this] { TakeSearchNumber(); }).StaysAlive();
    OnEvent(m_spnSearch, ADMN_GAUGEPOSITION, [] {}).StaysAlive();
    Label(IDC_MEASURE_REGION_LABEL, m_lblRegion);
    BindRegion(
        {IDC_MEASURE_REGION,
         {IDC_MEASURE_FROM_LABEL, IDC_MEASURE_FROM, IDC_MEASURE_FROM_SPIN, IDC_MEASURE_FROM_UNIT},
         {IDC_MEASURE_TO_LABEL, IDC_MEASURE_TO, IDC_MEASURE_TO_SPIN, IDC_MEASURE_TO_UNIT}},
        m_region, [this]() -> ZXADLG_StatisticsRegion& { return m_pOptions->GetRegion(); });
    FollowSearch({&m_lblRegion, &m_region.cmb, &m_region.from.lbl, &m_region.from.unit,
                  &m_region.to.lbl, &m_region.to.unit});
    OnClick(IDC_MEASURE_IMPORT, m_btnImport, [this] { Import(); });
    Bind(
        IDC_MEASURE_USE_IMPORT, m_chkUseImport,
        [this] {
            // In read-only mode the record shows as it is.
            return IsReadOnly() ? m_pOptions->GetRecord()->bImportFromFile != 0
                                : m_pOptions->IsImportInUse();
        },
        [this](bool b) { m_pOptions->GetRecord()->bImportFromFile = b ? 1 : 0; })
        .Then([this] { m_pOptions->Notify(kNotifyImportChanged); });
}

template <class Get>
void CMeasurementOptionsTab::BindRegion(const RegionIds& ids, RegionControls& controls,
                                        Get region) {
    Bind(
        ids.nBox, controls.cmb, [region] { return KindOf(region()); },
        [region](int nKind) { KindOf(region()) = nKind; })
        .Then([this, &controls, region] {
            TakeRegion(region());
            ShowSpan(controls, SpanOf(region()));
            m_pOptions->Notify(kNotifySearchRegionChanged);
        });
    BindTime(ids.from, controls.from, region, &RegionSpan::dStart).Then([this, &controls, region] {
        TimeTyped(controls.to, SpanOf(region()).dEnd);
    });
    BindTime(ids.to, controls.to, region, &RegionSpan::dEnd).Then([this, &controls, region] {
        TimeTyped(controls.from, SpanOf(region()).dStart);
    });
}

template <class Get>
CMeasurementOptionsTab::Row& CMeasurementOptionsTab::BindTime(const SpinFieldIds& ids,
                                                              TimeField& field, Get region,
                                                              double RegionSpan::*pTime) {
    Row& row = BindClamped(
        ids.nField, field.txt, [region, pTime] { return SpanOf(region()).*pTime; },
        [this, region, pTime](double d) {
            RegionSpan span = SpanOf(region());
            span.*pTime = d;
            StoreSpan(region(), SpanOfTimes(m_axis, span.dStart, span.dEnd));
        });
    field.txt.SetSigDigits(kTimeDigits);
    Dress(ids, field);
    return row;
}

// Both ends are taken from the fields, so that the other one may have been pulled into the data.
void CMeasurementOptionsTab::TimeTyped(TimeField& other, double dOther) {
    other.txt.SetValue(dOther);
    m_pOptions->Notify(kNotifySearchRegionChanged);
}

void CMeasurementOptionsTab::BindBaseline() {
    Label(IDC_MEASURE_BASELINE_GROUP, m_grpBaseline);
    constexpr int kModes[] = {IDC_MEASURE_BASELINE_MEAN, IDC_MEASURE_BASELINE_FIXED};
    m_radBaseline.SetupIds(this, 2, kModes, nullptr);
    Row& mode = BindTo(
        m_radBaseline, [this] { return m_pOptions->GetBaseline().eBaseMode; },
        [this](int e) { m_pOptions->GetBaseline().eBaseMode = e; });
    if (!IsReadOnly()) mode.Corrects();
    BindRegion({IDC_MEASURE_BASELINE,
                {IDC_MEASURE_BASELINE_FROM_LABEL, IDC_MEASURE_BASELINE_FROM,
                 IDC_MEASURE_BASELINE_FROM_SPIN, IDC_MEASURE_BASELINE_FROM_UNIT},
                {IDC_MEASURE_BASELINE_TO_LABEL, IDC_MEASURE_BASELINE_TO,
                 IDC_MEASURE_BASELINE_TO_SPIN, IDC_MEASURE_BASELINE_TO_UNIT}},
               m_baseline,
               [this]() -> ZXADLG_BaselineRegion& { return m_pOptions->GetBaseline(); });
    Bind(
        IDC_MEASURE_FIXED_VALUE, m_txtFixed,
        [this] { return m_pOptions->GetBaseline().dBaseFixedValue; },
        [this](double d) { m_pOptions->GetBaseline().dBaseFixedValue = d; });
    m_txtFixed.SetSigDigits(kTimeDigits);
    Label(IDC_MEASURE_FIXED_UNIT, m_lblFixedUnit);
    FollowSearch({&m_grpBaseline, &m_radBaseline});
}

void CMeasurementOptionsTab::BindPolarity() {
    Labels({{IDC_MEASURE_POLARITY_GROUP, &m_grpPolarity}, {IDC_MEASURE_GROUP_LABEL, &m_lblGroup}});
    RegisterControl(IDC_MEASURE_GROUP, &m_cmbGroup);
    OnEvent(m_cmbGroup, ADMN_COMBOSELCHANGE, [this] {
        m_nGroup = m_cmbGroup.GetCurSel();
        ShowValue(m_radPolarity, Polarity());
    });
    constexpr int kPolarities[] = {IDC_MEASURE_POSITIVE, IDC_MEASURE_NEGATIVE,
                                   IDC_MEASURE_ABSOLUTE};
    m_radPolarity.SetupIds(this, 3, kPolarities, nullptr);
    Row& polarity = BindTo(
        m_radPolarity, [this] { return Polarity(); }, [this](int e) { Polarity() = e; });
    if (!IsReadOnly()) polarity.Corrects();
    Bind(
        IDC_MEASURE_ALL_GROUPS, m_chkAllGroups,
        [this] { return m_pOptions->GetPolarity().bPeakApplyToAll != 0; },
        [this](bool b) { m_pOptions->GetPolarity().bPeakApplyToAll = b ? 1 : 0; })
        .Then([this] { ShowValue(m_radPolarity, Polarity()); });
    FollowSearch({&m_grpPolarity, &m_lblGroup, &m_radPolarity, &m_chkAllGroups});
}

void CMeasurementOptionsTab::BindMeasurements() {
    for (int i = 0; i < kMeasurementCount; ++i) {
        Bind(kMeasurements[i].nCheck, m_chkMeasurements[i], kMeasurements[i].pOn).Then([this] {
            m_pOptions->Notify(kNotifyMeasurementSwitched);
        });
        FollowSearch({&m_chkMeasurements[i]});
    }
    OnClick(IDC_MEASURE_ALL, m_btnAll, [this] { SwitchAll(true); });
    OnClick(IDC_MEASURE_NONE, m_btnNone, [this] { SwitchAll(false); });
    FollowSearch({&m_btnAll, &m_btnNone});
    for (int i = 0; i < kPercentCount; ++i) {
        const MeasurementPercent& percent = kMeasurementPercents[i];
        auto& field = m_percents[i];
        Row& row = BindTyped(
            percent.nField, field.txt, [this, &percent] { return GetRecord()->*percent.pPercent; },
            [this, &percent](std::int32_t n) {
                // What is out of range is not kept: another search may come up meanwhile.
                if (n >= 0 && n <= kMostPercent) GetRecord()->*percent.pPercent = n;
            });
        Dress({percent.nLabel, percent.nField, percent.nSpin, percent.nUnit}, field);
        FollowSearch({&field.lbl, &field.unit});
        if (IsReadOnly()) continue;
        row.Corrects();
        field.txt.SetRange(0, kMostPercent, 1);
    }
    Labels(
        {{IDC_MEASURE_RISE_BRACKET, &m_riseBracket}, {IDC_MEASURE_DECAY_BRACKET, &m_decayBracket}});
    for (Bracket* pBracket : {&m_riseBracket, &m_decayBracket})
        pBracket->SetBitmap(m_hInstance, IDB_MEASURE_BRACKET, IDB_MEASURE_BRACKET_LARGER);
}

void CMeasurementOptionsTab::BindSmoothing() {
    Label(IDC_MEASURE_SMOOTHING_GROUP, m_grpSmoothing);
    Bind(IDC_MEASURE_SMOOTH, m_chkSmooth, &Search::bApplyFilter);
    BindTyped(
        IDC_MEASURE_LENGTH, m_length.txt, [this] { return GetRecord()->nSmoothingPoints; },
        [this](std::int32_t n) {
            if (m_length.txt.IndexOf() >= 0) GetRecord()->nSmoothingPoints = n;
        });
    m_length.txt.SetStrict(TRUE);
    Dress({IDC_MEASURE_LENGTH_LABEL, IDC_MEASURE_LENGTH, IDC_MEASURE_LENGTH_SPIN,
           IDC_MEASURE_LENGTH_TIME},
          m_length);
    FollowSearch({&m_grpSmoothing, &m_chkSmooth});
}

void CMeasurementOptionsTab::FollowSearch(std::initializer_list<ADM_Wnd*> controls) {
    m_vFollowers.insert(m_vFollowers.end(), controls);
}

bool CMeasurementOptionsTab::SetUp() {
    std::int32_t numbers[kMeasurementSearches];
    std::iota(std::begin(numbers), std::end(numbers), 1);
    m_txtSearch.SetValueList(kMeasurementSearches, numbers);
    m_txtSearch.SetValue(m_pOptions->GetSearchIndex() + 1);
    for (RegionControls* pControls : {&m_region, &m_baseline})
        pControls->cmb.Fill(m_pOptions->GetDataSource());
    FillGroups();
    return true;
}

void CMeasurementOptionsTab::FillGroups() {
    ZXADLG_CDlgDataSource& source = *m_pOptions->GetDataSource();
    if (const char* szNoun = source.GetGroupLabel()) {
        char szCaption[kCaptionSize];
        FormatCaption(szCaption, "%s:", szNoun);
        m_lblGroup.SetWindowText(szCaption);
    }
    m_cmbGroup.ResetContent();
    const std::uint32_t uGroups = std::min(source.GetGroupCount(), kPolarityGroups);
    for (std::uint32_t g = 0; g < uGroups; ++g) {
        const char* szName = source.GetGroupName(g);
        if (szName == nullptr || *szName == '\0') continue;
        m_cmbGroup.SetItemData(m_cmbGroup.AddString(szName), static_cast<LPARAM>(g));
    }
    m_cmbGroup.SetCurSel(0);
    m_cmbGroup.SelectData(0, static_cast<LPARAM>(source.GetActiveGroup()));
    m_nGroup = m_cmbGroup.GetCurSel();
    m_bGroupChoice = m_pParams->bMeasurementOptionA != 0 && m_cmbGroup.GetCount() > 1;
}

// --- What is shown ---------------------------------------------------------------------------

void CMeasurementOptionsTab::ShowOptions() {
    m_cmbGroup.SetCurSel(m_nGroup);
    if (IsReadOnly()) return;
    StoreShownKind(m_region, m_pOptions->GetRegion());
    StoreShownKind(m_baseline, m_pOptions->GetBaseline());
    std::int32_t& nPoints = GetRecord()->nSmoothingPoints;
    if (nPoints >= 3) return;
    nPoints = 3;
    m_length.txt.SetValue(nPoints);
}

// A kind that the data lack becomes the one that the box shows for it.
template <class Region>
void CMeasurementOptionsTab::StoreShownKind(RegionControls& controls, Region& region) {
    const int nShown = controls.cmb.GetRegionId();
    if (nShown == KindOf(region)) return;
    KindOf(region) = nShown;
    TakeRegion(region);
    ShowSpan(controls, SpanOf(region));
}

void CMeasurementOptionsTab::ShowSpan(RegionControls& controls, const RegionSpan& span) {
    controls.from.txt.SetValue(span.dStart);
    controls.to.txt.SetValue(span.dEnd);
}

// The polarity that the buttons stand for: of all groups, or of the one that the box shows.
std::int32_t& CMeasurementOptionsTab::Polarity() {
    ZXADLG_PolarityEntry& polarity = m_pOptions->GetPolarity();
    if (polarity.bPeakApplyToAll != 0) return polarity.eAllGroupsPeakPolarity;
    const LPARAM nGroup = m_nGroup >= 0 ? m_cmbGroup.GetItemData(m_nGroup) : 0;
    return polarity.aePeakPolarity[std::clamp<LPARAM>(nGroup, 0, kPolarityGroups - 1)];
}

void CMeasurementOptionsTab::ShowSearch(int nSearch) {
    {
        const UpdateScope updating(m_bUpdating);
        m_pOptions->SetSearchIndex(nSearch);
        if (m_txtSearch.GetTypedValue() != nSearch + 1) m_txtSearch.SetValue(nSearch + 1);
    }
    ShowRecord();
    m_pOptions->Notify(kNotifySearchChanged);
    RunUpdate();
}

// --- The data ------------------------------------------------------------------------------------

void CMeasurementOptionsTab::TakeAxis() {
    m_axis.dInterval = IntervalOfRate(m_pData->GetSamplingFrequency());
    m_axis.uPoints = m_pData->GetShortestPointCount();
    m_axis.bPointsKnown = m_pParams->bDeferredRun == 0 || m_axis.uPoints > 0;
    // The units of the set before the selected one, which can be none.
    ShowUnits(m_pOptions->GetDataSource()->GetUnits(
        m_pData->GetGroup(), static_cast<std::int32_t>(m_pData->GetYSet()) - 1));
    if (IsReadOnly()) return;
    LimitFields();
    if (m_bAxisTaken) return;
    m_bAxisTaken = true;
    TakeRegions();
    ShowRecord();
}

void CMeasurementOptionsTab::ShowUnits(const char* szUnit) {
    if (szUnit == nullptr) szUnit = "";
    for (int i = 0; i < kMeasurementCount; ++i) {
        if (kMeasurements[i].nString == 0) continue;
        char szCaption[kCaptionSize];
        FormatCaption(szCaption, StringText(static_cast<UINT>(kMeasurements[i].nString)).c_str(),
                      szUnit);
        m_chkMeasurements[i].SetWindowText(szCaption);
    }
    m_lblFixedUnit.SetArg(0, szUnit);
    const bool bCountsSamples = m_axis.dInterval == 0.0;
    const std::string sFormat = StringText(IsReadOnly()     ? IDS_MEASURE_MS
                                           : bCountsSamples ? IDS_MEASURE_SAMPLES
                                                            : IDS_MEASURE_SAMPLE_TIME);
    for (RegionControls* pControls : {&m_region, &m_baseline}) {
        for (TimeField* pField : {&pControls->from, &pControls->to}) {
            pField->unit.SetFormat(sFormat.c_str());
            pField->unit.SetArgDouble(0, m_axis.dInterval, -1, kIntervalDigits);
        }
    }
}

void CMeasurementOptionsTab::LimitFields() {
    for (RegionControls* pControls : {&m_region, &m_baseline}) {
        for (TimeField* pField : {&pControls->from, &pControls->to})
            pField->txt.SetLimits(0.0, m_axis.End(), m_axis.Step());
    }
    constexpr std::uint32_t kAnyNumber = std::numeric_limits<std::uint32_t>::max();
    const std::vector<std::int32_t> vLengths =
        SmoothingLengths(m_axis.bPointsKnown ? m_axis.uPoints : kAnyNumber);
    m_length.txt.SetValueList(static_cast<std::uint32_t>(vLengths.size()), vLengths.data());
}

// The region as the host has it; one without an extent is empty. A deferred run has no data to ask.
template <class Region>
void CMeasurementOptionsTab::TakeRegion(Region& region) {
    if (m_pParams->bDeferredRun != 0) return;
    const auto points = m_pData->FindRegionPoints(KindOf(region));
    StoreSpan(region, points.has_value()
                          ? SpanOfSamples(m_axis, points->uFirstPoint, points->uLastPoint)
                          : RegionSpan());
}

// What was stored may be of other data, or the host's regions have moved since. A kind that the
// data lack waits until its search is shown.
void CMeasurementOptionsTab::TakeRegions() {
    ZXADLG_MeasurementOptions& record = *m_pOptions->GetRecord();
    const auto take = [this](auto& region) {
        if (m_region.cmb.FindData(-1, KindOf(region)) >= 0) TakeRegion(region);
    };
    for (int i = 0; i < kMeasurementSearches; ++i) {
        take(record.aStatsRegions[i]);
        take(record.aBaselines[i]);
    }
}

// --- Events ------------------------------------------------------------------------------------

// A number of no search changes nothing; OK refuses it.
void CMeasurementOptionsTab::TakeSearchNumber() {
    const int nSearch = m_txtSearch.GetTypedValue() - 1;
    if (nSearch < 0 || nSearch >= kMeasurementSearches || nSearch == m_pOptions->GetSearchIndex())
        return;
    ShowSearch(nSearch);
}

void CMeasurementOptionsTab::Import() {
    m_pOptions->Import();
    TakeRegions();
    ShowSearch(0);
    m_pOptions->Notify(kNotifySearchRegionChanged);
}

void CMeasurementOptionsTab::SwitchAll(bool bOn) {
    for (int i = 0; i < kMeasurementCount; ++i) {
        GetRecord()->*kMeasurements[i].pOn = bOn ? 1 : 0;
        ShowValue(m_chkMeasurements[i], bOn);
    }
    m_pOptions->Notify(kNotifyMeasurementSwitched);
}

// --- Rules ---------------------------------------------------------------------------------------

void CMeasurementOptionsTab::UpdateControls() {
    CRecordPage::UpdateControls();
    const bool bImport = m_pOptions->IsImportInUse();
    const bool bActive = m_pOptions->IsSearchOn() && !bImport;
    EnableControls({&m_chkSearch}, !bImport);
    // The user can look at the searches of a dialog that only displays them.
    m_txtSearch.Enable(!bImport && !IsDisabled());
    EnableControls(m_vFollowers, bActive);
    EnableControls({&m_btnImport},
                   bActive && m_pParams->bMeasurementOptionB != 0 && m_pOptions->IsImportAllowed());
    EnableControls({&m_chkUseImport}, m_pOptions->IsImportAllowed());

    EnableByRegion(m_region, m_pOptions->GetRegion().eStatsRegion, bActive);
    const bool bFixed = m_radBaseline.GetSelected() == 1;
    EnableControls({&m_baseline.cmb, &m_baseline.from.lbl, &m_baseline.from.unit,
                    &m_baseline.to.lbl, &m_baseline.to.unit},
                   bActive && !bFixed);
    EnableByRegion(m_baseline, m_pOptions->GetBaseline().eBaseRegion, bActive && !bFixed);
    EnableControls({&m_txtFixed, &m_lblFixedUnit}, bActive && bFixed);

    EnableControls({&m_cmbGroup},
                   bActive && m_bGroupChoice && m_pOptions->GetPolarity().bPeakApplyToAll == 0);

    const Search& search = *GetRecord();
    for (int i = 0; i < kPercentCount; ++i) {
        const MeasurementPercent& percent = kMeasurementPercents[i];
        const bool bMeasured = search.*kMeasurements[percent.nFirst].pOn != 0 ||
                               search.*kMeasurements[percent.nSecond].pOn != 0;
        EnableControls({&m_percents[i].txt}, bActive && bMeasured);
    }

    EnableControls({&m_length.lbl, &m_length.txt, &m_length.unit},
                   bActive && search.bApplyFilter != 0);
    char szTime[24];
    WriteGeneral(search.nSmoothingPoints * m_axis.dInterval, szTime);
    m_length.unit.SetArg(0, szTime);
}

void CMeasurementOptionsTab::EnableByRegion(RegionControls& controls, int nKind, bool bEnable) {
    EnableControls({&controls.from.txt, &controls.to.txt}, bEnable && HasUsersEnds(nKind));
}
