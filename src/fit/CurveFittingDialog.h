// Curve Fitting: the function, its methods, the seeds of its parameters and the data, on four pages
// over one record. The dialog fits nothing: OK hands a finished record back.
//
// The pages talk through the options interface. The dialog hears every code before they do; it
// keeps the line and the picture under the pages, exchanges the data page when another function
// needs another form of it, and walks the checks at OK.
#pragma once

#include <span>
#include <string>

#include "analysis/CParentDialogBase.h"
#include "fit/CFitSeedInterface.h"
#include "fit/FitNameLine.h"
#include "framework/ADM_MetafileWnd.h"
#include "framework/ADM_StaticText.h"

class CFitAdvancedTab;
class CFitFunctionTab;
class CFitSeedTab;

class CFitDialog : public CParentDialogBase {
  public:
    // szLibrary is the file of the curve-fit library beside the module.
    CFitDialog(HWND hwndParent, FitOptions* pOptions, ZXADLG_DataOptions* pData,
               ZXADLG_CDlgDataSource* pSource, const ZXADLG_DlgParams* pParams,
               const char* szLibrary = "CURVEFIT.dll");

    // Without the library there is a message and no dialog.
    INT_PTR DoModal() override;
    void UpdateControls() override;
    void OnOK() override;

    // What the pages work on.
    CFitOptionsInterface& Fit() { return *m_pFit; }
    CFitSeedInterface& Seeds() { return *m_pSeeds; }

  protected:
    bool SetUp() override;
    void OnAccepted() override;
    // Its checks look at the model alone: what a field tells is stored as it is typed.
    TypedValues GetTyped() const override { return {}; }

  private:
    using CheckStep = CheckResult (CFitDialog::*)();
    enum class DataForm { kNone, kSets, kOneVariable, kSeveralVariables };

    // --- Building.
    void OpenRecord();
    bool OpenFunction();
    void AddPages();
    void BindEvents();
    void SetUpSeeds();
    DataForm FormOfDataPage() const;
    void ShowDataPage();

    // --- Events.
    void Settle();
    void HandToPages(int nCode);
    void ChangeData(NotificationCode eCode);
    std::string SelectedData() const;

    // --- OK, in the order of Checks.
    CheckResult CheckDataPage();
    CheckResult CheckCustomFunction();
    CheckResult CheckColumns();
    CheckResult CheckData();
    CheckResult CheckSpacing();
    CheckResult CheckNegatives();
    CheckResult CheckLengths();
    CheckResult CheckSeedValues();
    CheckResult CheckEstimated();
    CheckResult CheckComparison();
    CheckResult CheckFixed();
    CheckResult CheckRange();
    static std::span<const CheckStep> Checks();
    bool ReadsData() const { return !IsReadOnly() && HasLiveData(); }

    // --- Under the pages.
    void ShowName();
    void ShowPicture();

    CurveFitLibrary m_library;
    FitOptions* m_pRecord;
    CFitOptionsInterface* m_pFit = nullptr;  // the base owns it
    std::unique_ptr<CFitSeedInterface> m_pSeeds;
    CFitFunctionTab* m_pFunctionTab = nullptr;  // so with the pages
    CFitAdvancedTab* m_pAdvancedTab = nullptr;
    CFitSeedTab* m_pSeedTab = nullptr;
    bool m_bRefused = false;  // the library is missing or refuses the function
    bool m_bDataPageWanted = false;
    DataForm m_eDataForm = DataForm::kNone;
    std::string m_sSelectedData;  // that the pages know of

    ADM_StaticText m_lblName;
    FitNameFields m_name;  // shown
    ADM_Static m_lblHelp;
    ADM_MetafileWnd m_picture;
    std::string m_sPicture;  // shown
};
