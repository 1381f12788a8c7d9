#include "gallery_dialog.h"

#include <iterator>

#include "framework/ADM_BitmapPictureWnd.h"
#include "framework/ADM_Button.h"
#include "framework/ADM_ComboBox.h"
#include "framework/ADM_DoubleGaugeText.h"
#include "framework/ADM_DoubleText.h"
#include "framework/ADM_FloatText.h"
#include "framework/ADM_IntegerGaugeText.h"
#include "framework/ADM_IntegerText.h"
#include "framework/ADM_ListBox.h"
#include "framework/ADM_ListText.h"
#include "framework/ADM_MetafileWnd.h"
#include "framework/ADM_RadioButtons.h"
#include "framework/ADM_Spinner.h"
#include "framework/ADM_Static.h"
#include "framework/ADM_StaticText.h"
#include "framework/ADM_TabbedDialog.h"
#include "framework_test.h"
#include "gallery.h"
#include "widgets/Framework.h"

namespace gallery {
namespace {

constexpr const char* kFilters[] = {"Boxcar", "Gaussian",    "Bessel",
                                    "RC",     "Butterworth", "Chebyshev"};

class FieldsPage : public ADM_TabSubDialog {
  public:
    explicit FieldsPage(HINSTANCE hInstance)
        : ADM_TabSubDialog(hInstance, MAKEINTRESOURCEA(IDD_GALLERY_FIELDS), "Fields") {
        struct Row {
            int nId;
            ADM_Wnd* pControl;
        };
        const Row kRows[] = {
            {IDC_G_INTEGER, &m_integer},
            {IDC_G_FLOAT, &m_float},
            {IDC_G_DOUBLE, &m_double},
            {IDC_G_FIXED, &m_fixed},
            {IDC_G_GREYED_LABEL, &m_label},
            {IDC_G_DISABLED, &m_disabled},
            {IDC_G_FLAT_LABEL, &m_flatLabel},
            {IDC_G_SINGLE_LABEL, &m_singleLabel},
            {IDC_G_SENTENCE, &m_sentence},
            {IDC_G_WARNING, &m_warning},
            {IDC_G_POINTS, &m_points},
            {IDC_G_POINTS_SPIN, &m_pointsSpin},
            {IDC_G_CUTOFF, &m_cutoff},
            {IDC_G_CUTOFF_SPIN, &m_cutoffSpin},
            {IDC_G_FLAT, &m_flat},
            {IDC_G_FLAT_SPIN, &m_flatSpin},
            {IDC_G_POWER, &m_power},
            {IDC_G_POWER_SPIN, &m_powerSpin},
            {IDC_G_GAIN, &m_gain},
            {IDC_G_GAIN_SPIN, &m_gainSpin},
            {IDC_G_INTERVAL, &m_interval},
            {IDC_G_INTERVAL_SPIN, &m_intervalSpin},
            {IDC_G_SINGLE, &m_single},
            {IDC_G_SINGLE_SPIN, &m_singleSpin},
        };
        // A field is its spinner's target before the page would be.
        m_points.SetGauge(&m_pointsSpin);
        m_cutoff.SetGauge(&m_cutoffSpin);
        m_flat.SetGauge(&m_flatSpin);
        m_power.SetGauge(&m_powerSpin);
        m_gain.SetGauge(&m_gainSpin);
        m_interval.SetGauge(&m_intervalSpin);
        m_single.SetGauge(&m_singleSpin);
        for (const Row& row : kRows) RegisterControl(row.nId, row.pControl);

        m_integer.SetFieldName("Whole number");
        m_integer.SetRange(1, 1000);
        m_integer.SetValue(25);
        m_float.SetRange(-10.0f, 10.0f);
        m_float.SetValue(2.5f);
        m_double.SetFieldName("Double precision");
        m_double.SetRange(0.0, 1e6);
        m_double.SetValue(1234.56789);
        m_fixed.SetRange(0.0, 100.0);
        m_fixed.SetDecimalPlaces(2);
        m_fixed.SetValue(33.333);
        m_disabled.SetValue(42.0);
    }

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        ADM_TabSubDialog::OnInitDialog(hWnd, hFocus, lParam);
        static constexpr std::int32_t kPowers[] = {64, 128, 256, 512, 1024};
        static constexpr float kGains[] = {0.5f, 1.0f, 2.0f, 5.0f, 10.0f, 20.0f};
        static constexpr double kIntervals[] = {0.1, 0.25, 0.5, 1.0, 2.5};
        m_points.SetRange(1, 500, 1);
        m_points.SetValue(100);
        m_cutoff.SetRange(0.1, 5.0, 0.1);
        m_cutoff.SetValue(1.5);
        m_flat.SetRange(7, 7, 1);
        m_flat.SetValue(7);
        m_power.SetValueList(std::size(kPowers), kPowers);
        m_power.SetStrict(TRUE);
        m_power.SetValue(256);
        m_gain.SetValueList(std::size(kGains), kGains);
        m_gain.SetValue(3.0f);
        m_interval.SetValueList(std::size(kIntervals), kIntervals);
        m_interval.SetValue(0.5);
        m_single.SetStrict(TRUE);
        m_single.SetValueList(1, kIntervals);
        m_single.SetValue(kIntervals[0]);
        m_pointsSpin.SetBuddy(&m_points);
        m_cutoffSpin.SetBuddy(&m_cutoff);
        m_flatSpin.SetBuddy(&m_flat);
        m_powerSpin.SetBuddy(&m_power);
        m_gainSpin.SetBuddy(&m_gain);
        m_intervalSpin.SetBuddy(&m_interval);
        m_singleSpin.SetBuddy(&m_single);
        m_warning.SetTextColor(RGB(176, 0, 0));
        return 1;
    }

    void UpdateControls() override {
        m_label.Enable(m_bEverything);
        m_disabled.Enable(m_bEverything);
        // A field greys together with its label.
        m_flatLabel.Enable(m_flat.IsEnabled());
        m_singleLabel.Enable(m_single.IsEnabled());
        const double dCutoff = m_cutoff.GetValue();
        m_sentence.SetArgInt(0, m_points.GetValue());
        m_sentence.SetArgDouble(1, dCutoff, -1, 4);
        m_warning.Show(dCutoff > 4.5 ? SW_SHOW : SW_HIDE);
    }

    void EnableEverything(BOOL bEnable) { m_bEverything = bEnable; }

  private:
    ADM_IntegerText m_integer;
    ADM_FloatText m_float;
    ADM_DoubleText m_double, m_fixed, m_disabled;
    ADM_Static m_label, m_flatLabel, m_singleLabel;
    ADM_StaticText m_sentence, m_warning;
    ADM_IntegerGaugeText m_points, m_flat;
    ADM_DoubleGaugeText m_cutoff;
    ADM_IntegerListText m_power;
    ADM_FloatListText m_gain;
    ADM_DoubleListText m_interval, m_single;
    ADM_Spinner m_pointsSpin, m_cutoffSpin, m_flatSpin, m_powerSpin, m_gainSpin, m_intervalSpin,
        m_singleSpin;
    BOOL m_bEverything = FALSE;
};

class ChoicesPage : public ADM_TabSubDialog {
  public:
    explicit ChoicesPage(HINSTANCE hInstance)
        : ADM_TabSubDialog(hInstance, MAKEINTRESOURCEA(IDD_GALLERY_CHOICES), "Choices"), m_on(1) {
        RegisterControl(IDC_G_CHECK_OFF, &m_off);
        RegisterControl(IDC_G_CHECK_ON, &m_on);
        RegisterControl(IDC_G_CHECK_GREY, &m_grey);
        RegisterControl(IDC_G_TRI_OFF, &m_triOff);
        RegisterControl(IDC_G_TRI_ON, &m_triOn);
        RegisterControl(IDC_G_TRI_HALF, &m_triHalf);
        m_filter.SetupValues(this, IDC_G_RADIO_A, IDC_G_RADIO_C, 3, 2, 5, 1);
        RegisterControl(IDC_G_PUSH, &m_push);
        RegisterControl(IDC_G_PUSH_GREY, &m_pushGrey);
        RegisterControl(IDC_G_COMBO, &m_combo);
        RegisterControl(IDC_G_COMBOEDIT, &m_comboEdit);
        RegisterControl(IDC_G_COMBO_GREY, &m_comboGrey);
        RegisterControl(IDC_G_LIST, &m_list);
        RegisterControl(IDC_G_MULTI, &m_multi);
        RegisterControl(IDC_G_LIST_GREY, &m_listGrey);
        m_triOn.SetTriState(1);
        m_triHalf.SetTriState(2);
        m_filter.SetValue(5);
        m_combo.SetCurSel(1);
        m_comboGrey.SetCurSel(0);
        m_list.SetCurSel(2);
    }

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        ADM_TabSubDialog::OnInitDialog(hWnd, hFocus, lParam);
        // The values chosen last outlive the lists, which are new at each opening.
        const int nCombo = m_nCombo, nList = m_nList;
        for (const char* szFilter : kFilters) {
            for (ADM_ComboBox* pCombo : {&m_combo, &m_comboGrey}) pCombo->AddString(szFilter);
            for (ADM_ListBox* pList : {&m_list, &m_multi, &m_listGrey}) pList->AddString(szFilter);
        }
        for (const double dValue : {0.5, 1.0, 2.25}) m_comboEdit.AddDouble(dValue, 2, 0);
        m_combo.SetCurSel(nCombo);
        m_comboEdit.SetCurSel(1);
        m_comboGrey.SetCurSel(0);
        m_list.SetCurSel(nList);
        m_multi.SetSel(0, TRUE);
        m_multi.SetSel(2, TRUE);
        return 1;
    }

    void UpdateControls() override {
        m_grey.Enable(m_bEverything);
        m_pushGrey.Enable(m_bEverything || m_on.GetCheck() == 0);
        m_comboGrey.Enable(m_bEverything);
        m_listGrey.Enable(m_bEverything);
        // Bessel needs the check box above.
        m_filter.EnableButton(2, m_on.GetCheck() != 0);
        m_nCombo = m_combo.GetCurSel();
        m_nList = m_list.GetCurSel();
    }

    void EnableEverything(BOOL bEnable) { m_bEverything = bEnable; }

  private:
    ADM_Button m_off, m_on, m_grey, m_push, m_pushGrey;
    ADM_TriStateCheck m_triOff, m_triOn, m_triHalf;
    ADM_RadioButtons m_filter;
    ADM_ComboBox m_combo, m_comboEdit, m_comboGrey;
    ADM_ListBox m_list, m_multi, m_listGrey;
    int m_nCombo = 1;
    int m_nList = 2;
    BOOL m_bEverything = FALSE;
};

class PicturesPage : public ADM_TabSubDialog {
  public:
    explicit PicturesPage(HINSTANCE hInstance)
        : ADM_TabSubDialog(hInstance, MAKEINTRESOURCEA(IDD_GALLERY_PICTURES), "Pictures") {
        RegisterControl(IDC_G_BITMAP, &m_bitmap);
        RegisterControl(IDC_G_METAFILE, &m_metafile);
        RegisterControl(IDC_G_ICON, &m_icon);
        RegisterControl(IDC_G_EMPTY, &m_empty);
        RegisterControl(IDC_G_SCALE, &m_scale);
        m_bitmap.SetBitmap(hInstance, IDB_RAMP);
        m_metafile.LoadMetafile(hInstance, "EQ_BELL", MM_ANISOTROPIC);
        m_empty.LoadMetafile(hInstance, "EQ_WRONG_KEY", MM_ANISOTROPIC);
        m_scale.SetRange(1, 20);
        m_scale.SetValue(1);
    }

    BOOL OnInitDialog(HWND hWnd, HWND hFocus, LPARAM lParam) override {
        ADM_TabSubDialog::OnInitDialog(hWnd, hFocus, lParam);
        m_icon.SetIcon(LoadIconA(nullptr, IDI_QUESTION));
        return 1;
    }

    void UpdateControls() override {
        const int nScale = m_scale.GetValue();
        if (nScale == m_nShownScale) return;
        m_nShownScale = nScale;
        m_metafile.SetScale(nScale);
    }

  private:
    ADM_BitmapPictureWnd m_bitmap;
    ADM_MetafileWnd m_metafile, m_empty;
    ADM_Static m_icon;
    ADM_IntegerText m_scale;
    int m_nShownScale = 1;
};

class GalleryDialog : public ADM_TabbedDialog {
  public:
    explicit GalleryDialog(HINSTANCE hInstance)
        : m_fields(hInstance), m_choices(hInstance), m_pictures(hInstance) {
        m_nTabControlId = IDC_G_TABS;
        RegisterControl(IDC_G_ENABLE, &m_enable);
        SetHelp(IDC_G_HELP, nullptr, "gallery.htm", 1);
        AddPage(&m_fields);
        AddPage(&m_choices);
        AddPage(&m_pictures);
    }

    void UpdateControls() override {
        const BOOL bEverything = m_enable.GetCheck() != 0;
        m_fields.EnableEverything(bEverything);
        m_choices.EnableEverything(bEverything);
        ADM_TabbedDialog::UpdateControls();
    }

  private:
    ADM_Button m_enable;
    FieldsPage m_fields;
    ChoicesPage m_choices;
    PicturesPage m_pictures;
};

}  // namespace

std::unique_ptr<ADM_TabbedDialog> MakeGallery(HINSTANCE hInstance) {
    if (!InitDialogFramework(hInstance)) return nullptr;
    return std::make_unique<GalleryDialog>(hInstance);
}

LPCSTR GalleryTemplate() {
    return MAKEINTRESOURCEA(IDD_GALLERY);
}

}  // namespace gallery
