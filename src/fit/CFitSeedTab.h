// The page of curve fitting with a field and a "Fix" check for each parameter: estimated seeds,
// absolute or normalised proportions, positive signs.
#pragma once

#include <array>

#include "analysis/CEditPage.h"
#include "fit/CFitSeedInterface.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_TabSubDialog.h"

class CFitSeedTab : public CRecordPage<FitOptions, CEditPage<ADM_TabSubDialog>> {
  public:
    // bHasDataPage: whether the dialog has one to select data on. szGraphLibrary is the file of the
    // graph library beside the module.
    CFitSeedTab(CFitOptionsInterface* pFit, CFitSeedInterface* pSeeds,
                const ZXADLG_DlgParams* pParams, bool bHasDataPage, const char* szGraphLibrary);

    void UpdateControls() override;
    // Renews seeds that are stale, and estimates where there are none.
    BOOL OnPageShow() override;
    BOOL CanLeavePage() override;

    // Estimates the seeds through the library. False where that is not for the function, the data
    // do not do, or the library refuses; with bReport the user is told why.
    bool AutoEstimate(bool bReport);
    // Makes the most of what the user typed since: the signs are mended, with a message.
    void TakeTyped();
    // Shows the seeds and flags as they stand.
    void ShowSeeds();
    // Clears all seeds and flags.
    void ClearSeeds();
    // The seeds are those of the terms in effect: showing the page estimates none.
    void KeepForTerms();

  private:
    static constexpr std::uint32_t kGrid = CFitOptionsInterface::kOffsetPlace;
    static constexpr std::uint32_t kPlaces = CFitOptionsInterface::kPlaces;

    bool SetUp() override;
    void ShowOptions() override;
    void BindPlaces();
    void BindForcing();
    void Activate();
    bool CanEstimate() const;
    bool IsEstimateOffered() const;
    bool Compute();
    void ShowTexts();
    void ShowGrid();
    void ShowColumnLabels(bool bShown);
    void TellOfMended(bool bProportions, bool bOthers);
    void Normalize();
    void Restore();
    void SeedGraphically();
    int NoticeString() const;
    int NoteString() const;
    int ForceString() const;
    bool IsShownPlace(std::uint32_t uPlace) const;

    CFitOptionsInterface* m_pFit;
    CFitSeedInterface* m_pSeeds;
    bool m_bHasDataPage;
    const char* m_szGraphLibrary;
    bool m_bTyped = false;
    std::uint32_t m_uActivatedTerms = 0;  // in effect when the seeds were last seen to
    double m_dDataScale = 1.0;

    std::array<ADM_DoubleText, kPlaces> m_atxtSeed;
    std::array<ADM_Button, kPlaces> m_achkFix;
    std::array<ADM_Static, 6> m_albRow;
    std::array<ADM_Static, 4> m_albColumn;
    ADM_Static m_lblOffset, m_lblSlope, m_lblNote, m_lblNotice, m_lblForce, m_grpMultiple;
    ADM_Button m_btnEstimate, m_btnFreeAll, m_btnGraphical;
    ADM_Button m_chkForceProportions, m_chkForceTimeConstants;
    ADM_RadioButtons m_radProportions, m_radMultiple;
};
