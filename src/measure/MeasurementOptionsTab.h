// The searches of the measurements, one at a time: where it looks, what its baseline is, which way
// peaks point, how the data are smoothed, and what is measured.
#pragma once

#include <vector>

#include "analysis/COptionsTabBase.h"
#include "analysis/SelectionControls.h"
#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_ListText.h"
#include "measure/MeasurementOptionsInterface.h"
#include "measure/MeasurementTables.h"

class CMeasurementOptionsTab : public CRecordPage<ZXADLG_MeasurementSearch, COptionsTabBase> {
  public:
    CMeasurementOptionsTab(CMeasurementOptionsInterface* pOptions, const ZXADLG_DlgParams* pParams,
                           CDataOptionsInterface* pData);

    void UpdateControls() override;
    // Makes a search, counted from 0, the one that is shown.
    void ShowSearch(int nSearch);
    const SampleAxis& GetAxis() const { return m_axis; }

  private:
    // A bracket has no edge around it.
    class Bracket : public ADM_BitmapPictureWnd {
        void DrawOverlay(HDC, const RECT*) override {}
    };
    using TimeField = SpinField<ADM_DoubleGaugeText>;
    struct RegionControls {
        CZxDlgRegionCombo cmb;
        TimeField from, to;
    };
    struct RegionIds {
        int nBox;
        SpinFieldIds from, to;
    };

    bool SetUp() override;
    void ShowOptions() override;
    ZXADLG_MeasurementSearch* GetRecord() override { return &m_pOptions->GetSearch(); }

    void BindSearch();
    template <class Get>
    void BindRegion(const RegionIds& ids, RegionControls& controls, Get region);
    template <class Get>
    Row& BindTime(const SpinFieldIds& ids, TimeField& field, Get region, double RegionSpan::*pTime);
    void BindBaseline();
    void BindPolarity();
    void BindMeasurements();
    void BindSmoothing();
    void FollowSearch(std::initializer_list<ADM_Wnd*> controls);

    void TakeAxis();
    void ShowUnits(const char* szUnit);
    void LimitFields();
    template <class Region>
    void TakeRegion(Region& region);
    void TakeRegions();
    template <class Region>
    void StoreShownKind(RegionControls& controls, Region& region);
    static void ShowSpan(RegionControls& controls, const RegionSpan& span);

    void TimeTyped(TimeField& other, double dOther);
    void TakeSearchNumber();
    void Import();
    void SwitchAll(bool bOn);
    std::int32_t& Polarity();
    void FillGroups();
    void EnableByRegion(RegionControls& controls, int nKind, bool bEnable);

    CMeasurementOptionsInterface* m_pOptions;  // not owned
    CDataOptionsInterface* m_pData;            // not owned
    SampleAxis m_axis;
    bool m_bAxisTaken = false;
    bool m_bGroupChoice = false;
    int m_nGroup = -1;                   // the item whose polarity is shown
    std::vector<ADM_Wnd*> m_vFollowers;  // enabled wherever the search can be edited

    ADM_Button m_chkSearch;
    ADM_IntegerListText m_txtSearch;
    ADM_Spinner m_spnSearch;
    ADM_Static m_lblRegion;
    RegionControls m_region;
    ADM_Button m_btnImport, m_chkUseImport;

    ADM_Static m_grpBaseline;
    ADM_RadioButtons m_radBaseline;
    RegionControls m_baseline;
    ADM_DoubleText m_txtFixed;
    ADM_StaticText m_lblFixedUnit;

    ADM_Static m_grpPolarity, m_lblGroup;
    ADM_ComboBox m_cmbGroup;  // the item data is the group
    ADM_Button m_chkAllGroups;
    ADM_RadioButtons m_radPolarity;

    ADM_Button m_chkMeasurements[kMeasurementCount];
    ADM_Button m_btnAll, m_btnNone;
    Bracket m_riseBracket, m_decayBracket;
    SpinField<ADM_IntegerGaugeText> m_percents[kPercentCount];

    ADM_Static m_grpSmoothing;
    ADM_Button m_chkSmooth;
    SpinField<ADM_IntegerListText> m_length;
};
