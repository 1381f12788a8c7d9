// The page of curve fitting with the fitting methods, their precisions, preprocessing, strategy,
// output, the range of the fitted curve and what stands in for an x of zero.
#pragma once

#include "analysis/COptionsTabBase.h"
#include "fit/CFitOptionsInterface.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"

class CFitAdvancedTab : public CRecordPage<FitOptions, COptionsTabBase> {
  public:
    CFitAdvancedTab(CFitOptionsInterface* pFit, const ZXADLG_DlgParams* pParams, bool bHasDataPage);

    void UpdateControls() override;
    // Tells that the page is left.
    BOOL CanLeavePage() override;

    // What the cursor pair shows becomes the record's where it is in use.
    void StoreCursorPair();

  private:
    // A precision with its method's default.
    struct Precision {
        ADM_DoubleText txt;
        ADM_Button chkDefault;
    };

    bool SetUp() override;
    void BindMethods();
    void BindPrecision(int nField, int nDefault, Precision& precision, double FitOptions::*pUser,
                       std::int32_t FitOptions::*pDefault);
    void BindPreprocessing();
    void BindRange();
    void ShowMethods();
    void ShowRange();
    void ShowStatus();
    void EnablePrecision(Precision& precision, std::int32_t eMethod,
                         std::int32_t FitOptions::*pDefault);
    void ChangeMethod();
    void ChangeZeroShift(bool bBefore);
    bool HasCursors() const;

    CFitOptionsInterface* m_pFit;
    bool m_bHasDataPage;

    ADM_Button m_chkAutomatic;
    ADM_Static m_grpSearch, m_lblPrecision, m_grpMinim, m_grpWeight;
    ADM_RadioButtons m_radSearch, m_radMinim, m_radWeight;
    Precision m_lm, m_vm, m_simplex;
    ADM_Button m_chkSmoothing;
    ADM_Static m_lblIterations;
    ADM_IntegerGaugeText m_txtIterations;
    ADM_Spinner m_spnIterations;
    ADM_Static m_grpPreprocessing, m_lblStatus, m_grpStrategy, m_grpOutput;
    ADM_Button m_chkZeroShift, m_chkZeroShiftAuto, m_chkFreeAndRefit, m_chkRefitOnFailure;
    ADM_Button m_chkStatistics;
    ADM_Static m_grpRange;
    ADM_Button m_chkFrom, m_chkTo, m_chkCursorPair;
    ADM_DoubleText m_txtFrom, m_txtTo;
    ADM_StaticText m_lblFromData, m_lblToData;
    ADM_ComboBox m_cmbCursorPair;
    ADM_Static m_lblDivisor;
    ADM_DoubleText m_txtDivisor;
};
