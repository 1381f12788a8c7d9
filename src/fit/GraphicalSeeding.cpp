#include "fit/GraphicalSeeding.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "fit_control_ids.h"
#include "fit_ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr int kSigDigits = 6;
constexpr UINT kRedrawDelay = 600;  // ms without a further key
constexpr std::uint32_t kRows = 6;

// What the graph begins with; the view adds its own.
constexpr std::uint32_t kClearFlags[] = {
    GMT_FLAG_NO_HEADING,
    GMT_FLAG_ONE_COLOR,
    GMT_FLAG_GRID,
    GMT_FLAG_LINK_POINTS,
    GMT_FLAG_INNER_TICKS,
    GMT_FLAG_CONTINUOUS,
    GMT_FLAG_LOCKED,
    GMT_FLAG_NO_UNITS,
    GMT_FLAG_NO_FRAME,
    GMT_FLAG_NO_X_NUMBERS | GMT_FLAG_NO_Y_NUMBERS | GMT_FLAG_NO_X_TITLE | GMT_FLAG_NO_Y_TITLE,
};
constexpr std::uint32_t kSetFlags[] = {GMT_FLAG_AXES, GMT_FLAG_LEGEND, GMT_FLAG_ZERO_LINE,
                                       GMT_FLAG_POINTER};

}  // namespace

void CSeedGaugeText::StepBy(int nDelta) {
    double dValue = HeldValue();
    for (int i = 0; i < std::abs(nDelta); ++i) dValue += (nDelta < 0 ? -1 : 1) * m_step(dValue);
    m_validator.SetValue(dValue);
}

// --- Controls ------------------------------------------------------------------------------------

CGraphicalSeedDialog::CGraphicalSeedDialog(HWND hwndParent, CFitOptionsInterface& fit,
                                           CFitSeedInterface& seeds, GraphLibrary& library,
                                           const char* pszProfile)
    : CSinglePage(hwndParent, IDD_FIT_GRAPH, false),
      m_fit(fit),
      m_seeds(seeds),
      m_library(library),
      m_pszProfile(pszProfile),
      m_source(fit, seeds) {
    Label(IDC_GRAPH_HEADING, m_lblHeading);
    Label(IDC_GRAPH_TERM_LABEL, m_lblTerm);
    RegisterControl(IDC_GRAPH_TERM, &m_txtTerm);
    Spinner(IDC_GRAPH_TERM_SPIN, m_spnTerm, m_txtTerm);
    OnEvent(m_txtTerm, ADMN_TEXTCHANGE, [this] { ChooseTerm(); });
    for (std::uint32_t c = 0; c < kColumns; ++c) {
        const int n = static_cast<int>(c);
        BindSeed(m_aSeeds[c], IDC_GRAPH_LABEL_FIRST + n, IDC_GRAPH_SEED_FIRST + n,
                 IDC_GRAPH_SPIN_FIRST + n);
    }
    BindSeed(m_offset, IDC_GRAPH_OFFSET_LABEL, IDC_GRAPH_OFFSET, IDC_GRAPH_OFFSET_SPIN);
    BindSeed(m_slope, IDC_GRAPH_SLOPE_LABEL, IDC_GRAPH_SLOPE, IDC_GRAPH_SLOPE_SPIN);
    BindView();
    SetAutoApply(TRUE, kRedrawDelay);
}

CGraphicalSeedDialog::~CGraphicalSeedDialog() {
    m_library.destroy(m_pGraph);
}

void CGraphicalSeedDialog::BindSeed(Seed& seed, int nLabel, int nEdit, int nSpinner) {
    seed.txt.SetSigDigits(kSigDigits);
    seed.txt.SetStep([this, &seed](double dValue) {
        m_seeds.dWork[seed.uPlace] = dValue;
        return m_seeds.StepForSeed(seed.uPlace / kColumns, seed.uPlace % kColumns);
    });
    Label(nLabel, seed.lbl);
    Bind(
        nEdit, seed.txt,
        [this, &seed] { return seed.uPlace == kNoPlace ? 0.0 : m_seeds.dWork[seed.uPlace]; },
        [this, &seed](double d) {
            if (seed.uPlace != kNoPlace) m_seeds.dWork[seed.uPlace] = d;
        });
    Spinner(nSpinner, seed.spn, seed.txt);
    // A step is seen at once.
    OnEvent(seed.spn, ADMN_GAUGEPOSITION, [this, &seed] {
        m_seeds.dWork[seed.uPlace] = seed.txt.GetValue();
        Redraw();
    });
}

void CGraphicalSeedDialog::BindView() {
    Label(IDC_GRAPH_TERMS_GROUP, m_grpTerms);
    for (std::uint32_t i = 0; i < kTerms; ++i) {
        OnClick(IDC_GRAPH_SHOW_TERM_FIRST + static_cast<int>(i), m_achkTerm[i], [this, i] {
            m_source.ShowTerm(i, m_achkTerm[i].GetCheck() == BST_CHECKED);
            m_library.curveChanged(m_pGraph, CZxFitGWDataSource::kFirstTerm + i);
        });
    }
    OnClick(IDC_GRAPH_ALL_TERMS, m_btnAllTerms, [this] { ShowAllTerms(true); });
    OnClick(IDC_GRAPH_NO_TERMS, m_btnNoTerms, [this] { ShowAllTerms(false); });
    const auto bindView = [this](int nId, ADM_Button& chk, std::int32_t FitGraphView::*pField) {
        Bind(
            nId, chk, [this, pField] { return m_view.*pField != 0; },
            [this, pField](bool b) {
                m_view.*pField = b ? 1 : 0;
                ApplyView();
            });
    };
    bindView(IDC_GRAPH_LEGEND, m_chkLegend, &FitGraphView::bShowLegend);
    bindView(IDC_GRAPH_AXES, m_chkAxes, &FitGraphView::bShowAxes);
    bindView(IDC_GRAPH_CONTINUOUS, m_chkContinuous, &FitGraphView::bContinuousAutoScale);
    OnClick(IDC_GRAPH_X_AXIS, m_btnXAxis, [this] { m_library.autoScale(m_pGraph, GMT_X); });
    OnClick(IDC_GRAPH_Y_AXIS, m_btnYAxis, [this] { m_library.autoScale(m_pGraph, GMT_Y); });
}

bool CGraphicalSeedDialog::SetUp() {
    LoadFitGraphView(m_pszProfile, &m_view);
    m_txtTerm.SetRange(1, static_cast<int>(m_seeds.VisibleRows()), 1);
    m_txtTerm.SetValue(1);
    const auto place = [this](std::uint32_t uPlace) {
        return m_seeds.HasPlace(uPlace) ? uPlace : kNoPlace;
    };
    m_offset.uPlace = place(CFitOptionsInterface::kOffsetPlace);
    m_slope.uPlace = place(CFitOptionsInterface::kSlopePlace);
    for (std::uint32_t c = 0; c < kColumns; ++c) m_aSeeds[c].uPlace = PlaceInRow(c);
    char szCaption[64] = "";
    LoadStringA(m_hInstance, static_cast<UINT>(FitCaptionString(m_fit.GetFunction())), szCaption,
                sizeof szCaption);
    const CDataOptionsInterface& data = m_fit.Data();
    m_lblHeading.SetArg(0, szCaption);
    m_lblHeading.SetArg(1, data.GetSource()->GetSetName(data.GetGroup(), data.GetYSet()));
    SetUpGraph();
    return true;
}

// --- Display -------------------------------------------------------------------------------------

std::uint32_t CGraphicalSeedDialog::ChosenRow() {
    return static_cast<std::uint32_t>(
        std::clamp(m_txtTerm.GetValue() - 1, 0, static_cast<int>(m_seeds.VisibleRows()) - 1));
}

// The place that stands in a column of the chosen row, if the function has it.
std::uint32_t CGraphicalSeedDialog::PlaceInRow(std::uint32_t uColumn) {
    const std::uint32_t uPlace = CFitSeedInterface::PlaceOf(ChosenRow(), uColumn);
    return m_seeds.HasPlace(uPlace) ? uPlace : kNoPlace;
}

std::string CGraphicalSeedDialog::NameInRow(std::uint32_t uColumn) {
    if (!m_fit.IsCustomFunction()) return m_fit.GetParamName(uColumn);
    return "P" + std::to_string(ChosenRow() + 1 + uColumn * kRows);
}

void CGraphicalSeedDialog::ShowSeed(Seed& seed, const std::string& sName) {
    ShowControls({&seed.lbl, &seed.txt, &seed.spn}, seed.uPlace != kNoPlace);
    seed.lbl.SetWindowText((sName + ":").c_str());
    // Under Chebyshev only what is fixed needs a seed.
    const bool bUsed = seed.uPlace != kNoPlace && (m_fit.GetSearchMethod() != kSearchChebyshev ||
                                                   m_seeds.uFixed[seed.uPlace] != 0);
    EnableControls({&seed.lbl, &seed.txt}, bUsed);
}

void CGraphicalSeedDialog::UpdateControls() {
    for (std::uint32_t c = 0; c < kColumns; ++c) ShowSeed(m_aSeeds[c], NameInRow(c));
    ShowSeed(m_offset, m_fit.GetOffsetName());
    ShowSeed(m_slope, m_fit.GetSlopeName());
    EnableControls({&m_lblTerm, &m_txtTerm}, m_seeds.VisibleRows() > 1);
    const std::uint32_t uTerms = m_source.TermCount();
    ShowControls({&m_grpTerms, &m_btnAllTerms, &m_btnNoTerms}, uTerms > 0);
    for (std::uint32_t i = 0; i < kTerms; ++i) {
        ShowControls({&m_achkTerm[i]}, i < uTerms);
        ShowValue(m_achkTerm[i], i < uTerms && m_source.IsTermShown(i));
    }
    EnableControls({&m_btnXAxis, &m_btnYAxis}, m_view.bContinuousAutoScale == 0);
}

// --- Events --------------------------------------------------------------------------------------

void CGraphicalSeedDialog::ChooseTerm() {
    for (std::uint32_t c = 0; c < kColumns; ++c) {
        Seed& seed = m_aSeeds[c];
        seed.uPlace = PlaceInRow(c);
        if (seed.uPlace != kNoPlace) seed.txt.SetValue(m_seeds.dWork[seed.uPlace]);
    }
    RequestUpdate();
}

void CGraphicalSeedDialog::ShowAllTerms(bool bShow) {
    for (std::uint32_t i = 0; i < m_source.TermCount(); ++i) {
        if (m_source.IsTermShown(i) == bShow) continue;
        m_source.ShowTerm(i, bShow);
        m_library.curveChanged(m_pGraph, CZxFitGWDataSource::kFirstTerm + i);
    }
    RequestUpdate();
}

void CGraphicalSeedDialog::EndDialogWith(INT_PTR nResult) {
    CSinglePage::EndDialogWith(nResult);
    if (nResult == ZXADLG_OK) SaveFitGraphView(m_pszProfile, &m_view);
}

// --- The graph -----------------------------------------------------------------------------------

void CGraphicalSeedDialog::SetUpGraph() {
    m_pGraph = m_library.create(GetDlgItem(m_hWnd, IDC_GRAPH_AREA));
    m_library.setSource(m_pGraph, &m_source);
    for (const std::uint32_t uFlags : kClearFlags) m_library.setFlag(m_pGraph, uFlags, 0);
    for (const std::uint32_t uFlags : kSetFlags) m_library.setFlag(m_pGraph, uFlags, 1);
    const CDataOptionsInterface& data = m_fit.Data();
    const auto nSet = static_cast<std::int32_t>(data.GetSelectedDataSet() - 1);
    const auto& szVariable = m_fit.Properties().szVariableNames[0];
    m_library.setTitle(m_pGraph, GMT_X,
                       std::string(szVariable, strnlen(szVariable, sizeof szVariable)).c_str());
    m_library.setTitle(m_pGraph, GMT_Y, data.GetSource()->GetUnits(data.GetGroup(), nSet));
    m_library.autoScale(m_pGraph, GMT_X);
    m_library.autoScale(m_pGraph, GMT_Y);
    m_drawn = m_seeds.dWork;
    ApplyView();
    Redraw();
}

void CGraphicalSeedDialog::ApplyView() {
    m_library.setFlag(m_pGraph, GMT_FLAG_LEGEND, m_view.bShowLegend);
    m_library.setFlag(m_pGraph, GMT_FLAG_AXES, m_view.bShowAxes);
    // What is scaled all the time is not moved by hand.
    m_library.setFlag(m_pGraph, GMT_FLAG_LOCKED, m_view.bContinuousAutoScale);
}

// A curve is computed anew when a seed of its own is another one.
void CGraphicalSeedDialog::Redraw() {
    const auto changed = [this](std::uint32_t uPlace) {
        return m_drawn[uPlace] != m_seeds.dWork[uPlace];
    };
    const bool bAll =
        changed(CFitOptionsInterface::kOffsetPlace) || changed(CFitOptionsInterface::kSlopePlace);
    bool bAny = bAll;
    for (std::uint32_t t = 0; t < kTerms; ++t) {
        bool bTerm = bAll;
        for (std::uint32_t c = 0; c < kColumns; ++c)
            bTerm = bTerm || changed(CFitSeedInterface::PlaceOf(t, c));
        if (bTerm && t < m_source.TermCount())
            m_library.curveChanged(m_pGraph, CZxFitGWDataSource::kFirstTerm + t);
        bAny = bAny || bTerm;
    }
    if (bAny) m_library.curveChanged(m_pGraph, CZxFitGWDataSource::kTotal);
    m_drawn = m_seeds.dWork;
    if (m_view.bContinuousAutoScale != 0) {
        m_library.autoScale(m_pGraph, GMT_X);
        m_library.autoScale(m_pGraph, GMT_Y);
    }
    m_library.redraw(m_pGraph);
}
