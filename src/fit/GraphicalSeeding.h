// Graphical seeding: the data and the curve of the seeds in a graph, with a spinner for each seed.
// It works on the work values of the seed interface, which its caller fills and takes back.
#pragma once

#include <array>
#include <functional>

#include "analysis/CUntabbedDialogBase.h"
#include "contract/FitGraphView.h"
#include "fit/CZxFitGWDataSource.h"
#include "fit/GraphLibrary.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"
#include "framework/GaugeText.h"

// A seed beside a spinner. A step is a share of the value itself, so that there is no range and no
// grid.
class CSeedGaugeText : public GaugeText<CSeedGaugeText, ADM_DoubleText> {
  public:
    // How far a step moves a value; asked for at each.
    void SetStep(std::function<double(double)> step) { m_step = std::move(step); }

  private:
    friend GaugeText<CSeedGaugeText, ADM_DoubleText>;

    bool HasGaugeStep() const { return true; }
    bool TakesThumb() const { return false; }
    void LinkGauge() { m_pGauge->SetLinked(1); }
    void StepBy(int nDelta);
    // The gauge stands in its middle whatever the value, so that it never comes to an end.
    void ShowPosition() {}
    void SetFromPosition(int) {}

    std::function<double(double)> m_step;
};

class CGraphicalSeedDialog : public CSinglePage {
  public:
    // All outlive the dialog. A null profile keeps no view.
    CGraphicalSeedDialog(HWND hwndParent, CFitOptionsInterface& fit, CFitSeedInterface& seeds,
                         GraphLibrary& library, const char* pszProfile);
    ~CGraphicalSeedDialog() override;

    void UpdateControls() override;
    // OK keeps the view.
    void EndDialogWith(INT_PTR nResult) override;
    // Edits are seen in the graph while the dialog stays open; they are kept by OK alone.
    void OnApply() override { Redraw(); }

  private:
    static constexpr std::uint32_t kColumns = CFitSeedInterface::kColumns;
    static constexpr std::uint32_t kTerms = CFitOptionsInterface::kMaxTerms;
    static constexpr std::uint32_t kNoPlace = CFitOptionsInterface::kPlaces;

    // One seed: its place of now, its name, field and spinner.
    struct Seed {
        std::uint32_t uPlace = kNoPlace;
        ADM_Static lbl;
        CSeedGaugeText txt;
        ADM_Spinner spn;
    };

    bool SetUp() override;
    void BindSeed(Seed& seed, int nLabel, int nEdit, int nSpinner);
    void BindView();
    std::uint32_t PlaceInRow(std::uint32_t uColumn);
    void ChooseTerm();
    std::uint32_t ChosenRow();
    std::string NameInRow(std::uint32_t uColumn);
    void ShowSeed(Seed& seed, const std::string& sName);
    void ShowAllTerms(bool bShow);
    void SetUpGraph();
    void ApplyView();
    void Redraw();

    CFitOptionsInterface& m_fit;
    CFitSeedInterface& m_seeds;
    GraphLibrary& m_library;
    const char* m_pszProfile;
    CZxFitGWDataSource m_source;
    FitGraphView m_view;
    GMT_Graph* m_pGraph = nullptr;
    CFitSeedInterface::Values m_drawn{};  // the work values in the graph

    ADM_StaticText m_lblHeading;
    ADM_Static m_lblTerm, m_grpTerms;
    ADM_IntegerGaugeText m_txtTerm;
    ADM_Spinner m_spnTerm;
    std::array<Seed, kColumns> m_aSeeds;
    Seed m_offset, m_slope;
    std::array<ADM_Button, kTerms> m_achkTerm;
    ADM_Button m_btnAllTerms, m_btnNoTerms;
    ADM_Button m_chkLegend, m_chkAxes, m_chkContinuous, m_btnYAxis, m_btnXAxis;
};
