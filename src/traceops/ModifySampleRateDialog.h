// Data Reduction/Interpolation: how the sampling rate of the data is to be changed, with a note
// that tells the new sampling interval at once. A single page with no data tab.
#pragma once

#include <memory>

#include "analysis/EditEvents.h"
#include "contract/CAnalysisOptionsInterfaceBase.h"
#include "framework/ADM_Dialog.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_Static.h"
#include "framework/ADM_StaticText.h"
#include "zxadlg/ModifySampleRateOptions.h"

class CModifySampleRateOptionsInterface : public CAnalysisOptionsInterfaceBase {
  public:
    CModifySampleRateOptionsInterface(ZXADLG_ModifySampleRateOptions* pRecord,
                                      ZXADLG_CDlgDataSource* pSource)
        : CAnalysisOptionsInterfaceBase(&pRecord->common, pSource), m_pRecord(pRecord) {}

    // 0 reduction, 1 interpolation.
    int GetConversion() const { return m_pRecord->eRateConversionType; }
    void SetConversion(int e) { m_pRecord->eRateConversionType = e; }
    // 0 decimate, 1 substitute average, 2 min/max.
    int GetReductionMethod() const { return m_pRecord->eReductionMethod; }
    void SetReductionMethod(int e) { m_pRecord->eReductionMethod = e; }
    // 0 straight line, 1 cubic spline.
    int GetInterpolationMethod() const { return m_pRecord->eInterpolationMethod; }
    void SetInterpolationMethod(int e) { m_pRecord->eInterpolationMethod = e; }
    int GetReduceFactor() const { return m_pRecord->nReduceFactor; }
    void SetReduceFactor(int n) { m_pRecord->nReduceFactor = n; }
    int GetInterpolFactor() const { return m_pRecord->nInterpolFactor; }
    void SetInterpolFactor(int n) { m_pRecord->nInterpolFactor = n; }

  private:
    ZXADLG_ModifySampleRateOptions* m_pRecord;
};

class CModifySampleRateDialog : public ADM_Dialog {
  public:
    // Record and source outlive the dialog.
    CModifySampleRateDialog(HWND hwndParent, ZXADLG_ModifySampleRateOptions* pOptions,
                            ZXADLG_CDlgDataSource* pSource, bool bReadOnly);

    void Notify(ADM_Wnd* pSender, int nId, int nCode, int nData) override;
    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override;

  private:
    void ShowOptions();
    void ShowNote();
    void EnableMethods();
    bool IsReduction() { return m_radConversion.GetSelected() == 0; }

    ZXADLG_ModifySampleRateOptions* m_pRecord;
    ZXADLG_CDlgDataSource* m_pSource;
    bool m_bReadOnly;
    std::unique_ptr<CModifySampleRateOptionsInterface> m_pOptions;
    EditEvents m_events;

    ADM_RadioButtons m_radConversion;
    ADM_RadioButtons m_radReduction;
    ADM_Static m_lblReduceFactor;
    ADM_IntegerGaugeText m_txtReduceFactor;
    ADM_Spinner m_spnReduceFactor;
    ADM_RadioButtons m_radInterpolation;
    ADM_Static m_lblInterpolFactor;
    ADM_IntegerGaugeText m_txtInterpolFactor;
    ADM_Spinner m_spnInterpolFactor;
    ADM_StaticText m_lblNote;
};
