// Tabs and pages while the user's theme is in force and the program takes part in it.
#include <gtest/gtest.h>

#include "fixtures/system.h"
#include "framework/ADM_TabbedDialog.h"
#include "framework/Theming.h"
#include "themed_ids.h"

namespace {

// A control that gives its parent a brush for its ground.
class Coloured : public ADM_Wnd {
  public:
    HBRUSH OnCtlColor(HWND, HDC, HWND, int) override { return hBrush; }
    HBRUSH hBrush = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
};

class Themed : public testing::Test {
  protected:
    Themed() : page(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_THEMED_PAGE), "Page") {
        test_support::SetSystemThemed(true);
        page.RegisterControl(IDC_THEMED_LABEL, &label);
        page.RegisterControl(IDC_THEMED_FIELD, &field);
        dialog.SetTabControlId(IDC_THEMED_TABS);
        dialog.AddPage(&page);
        dialog.CreateModeless(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_THEMED), nullptr);
    }
    ~Themed() override {
        dialog.Destroy();
        test_support::SetSystemThemed(false);
    }
    // What the page answers to a question for the ground of a control.
    HBRUSH Ground(UINT uMsg, const ADM_Wnd& control) {
        return reinterpret_cast<HBRUSH>(
            SendMessageA(page.GetHandle(), uMsg, 0, reinterpret_cast<LPARAM>(control.GetHandle())));
    }

    Coloured label, field;
    ADM_TabSubDialog page;
    ADM_TabbedDialog dialog;
};

TEST_F(Themed, TheProgramTakesPartWithVersion6OfTheCommonControls) {
    EXPECT_TRUE(IsDialogThemingActive());
    EXPECT_TRUE(IsThemedWithCommonControls6());
}

TEST_F(Themed, TheTabControlAndItsPagesGetTheTexture) {
    ASSERT_NE(page.GetHandle(), nullptr);
    EXPECT_TRUE(IsThemeDialogTextureEnabled(dialog.GetTabControl().GetHandle()));
    EXPECT_TRUE(IsThemeDialogTextureEnabled(page.GetHandle()));
    EXPECT_FALSE(IsThemeDialogTextureEnabled(label.GetHandle()));
}

TEST_F(Themed, ThePagesGroundShowsThroughItsLabelsAlone) {
    ASSERT_NE(label.GetHandle(), nullptr);
    EXPECT_NE(Ground(WM_CTLCOLORSTATIC, label), label.hBrush);
    EXPECT_EQ(Ground(WM_CTLCOLOREDIT, field), field.hBrush);
    constexpr int kStatic = WM_CTLCOLORSTATIC - WM_CTLCOLORMSGBOX;
    EXPECT_EQ(page.OnCtlColor(page.GetHandle(), nullptr, label.GetHandle(), kStatic), nullptr);
    EXPECT_EQ(dialog.OnCtlColor(dialog.GetHandle(), nullptr, label.GetHandle(), kStatic), nullptr)
        << "no child of the dialog";
}

TEST_F(Themed, TheTextureIsGivenOnceForEachWindow) {
    const HWND hTabs = dialog.GetTabControl().GetHandle();
    EnableThemeDialogTexture(hTabs, ETDT_DISABLE);
    dialog.GetTabControl().OnAttach();
    EXPECT_FALSE(IsThemeDialogTextureEnabled(hTabs));
    dialog.Destroy();
    dialog.CreateModeless(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(IDD_THEMED), nullptr);
    EXPECT_TRUE(IsThemeDialogTextureEnabled(dialog.GetTabControl().GetHandle()));
}

}  // namespace
