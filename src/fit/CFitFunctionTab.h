// The page of curve fitting on which the function is chosen: the group and the list of predefined
// functions or the custom equation, the function's own numbers, the number of terms, and the
// comparison of models.
#pragma once

#include "analysis/CEditPage.h"
#include "fit/CFitOptionsInterface.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_TabSubDialog.h"

class CFitFunctionTab : public CRecordPage<FitOptions, CEditPage<ADM_TabSubDialog>> {
  public:
    CFitFunctionTab(CFitOptionsInterface* pFit, const ZXADLG_DlgParams* pParams);

    void UpdateControls() override;
    BOOL OnPageShow() override;
    // The custom text must be a function, the terms of a comparison in order, numbers in range.
    BOOL Validate(BOOL bSilent, ADM_Wnd** ppFailed) override;

    // Checks the custom text, unless it is the one that was accepted. A new one is another
    // function. False for a fault, of which bReport tells.
    bool Compile(bool bReport);

  private:
    using Get = std::function<std::int32_t()>;
    using Set = std::function<void(std::int32_t)>;
    // A number with its label and spinner.
    struct Number {
        ADM_Static lbl;
        ADM_IntegerListText txt;
        ADM_Spinner spn;
        Get get;
    };

    bool SetUp() override;
    void ShowOptions() override;
    void BindNumber(int nLabel, int nField, int nSpin, Number& number, Get get, Set set);
    void BindNumbers();
    void BindComparison();
    void BindFunction();
    void ShowNumbers();
    void ShowStoredNumbers();
    void ShowFunction();
    void FillList();
    void FillEquations();
    bool IsListed(std::int32_t eFunction) const;
    bool SelectListed(std::int32_t eFunction);
    std::int32_t SelectedFunction();
    std::string TypedEquation() const;
    void ChangeGroup();
    void ChangeFunction(std::int32_t eFunction);
    void ChangeKind();
    void ChangeEquation(const std::string& sText);
    void ChangeOrder(std::uint32_t uOrder);
    void ChangeComparison();
    void ChangeNumber();
    // Settles the record; a refusal of the library is told, and what went back is shown.
    void Settle();

    CFitOptionsInterface* m_pFit;
    std::int32_t m_eListedGroup = -1;  // whose functions the list holds
    bool m_bAskedToStop = false;       // since the page was shown

    ADM_RadioButtons m_radKind;
    ADM_Static m_lblGroup;
    ADM_ComboBox m_cmbGroup;
    ADM_ListBox m_lstFunctions;
    Number m_terms, m_powerA, m_powerB, m_valence, m_start, m_end;
    ADM_Static m_lblTemperature, m_lblCelsius, m_lblConfidence, m_lblCompareNote;
    ADM_DoubleGaugeText m_txtTemperature, m_txtConfidence;
    ADM_Spinner m_spnTemperature, m_spnConfidence;
    ADM_Button m_chkCompare, m_chkAutoCompare;
    ADM_Static m_lblEquation;
    ADM_ComboBox m_cmbEquation;
};
