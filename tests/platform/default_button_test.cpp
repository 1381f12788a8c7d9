// Which button a dialog takes as its default one, and who has the focus when pages come.
#include <gtest/gtest.h>

#include "fixtures/DialogScript.h"
#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "fixtures/WindowReading.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::DialogTemplate;
using test_support::TestDialog;

constexpr int kPush = 120, kBox = 121, kInPage = 130, kLabel = 140, kField = 141;

TEST(DefaultButton, IsOkWhereTheTemplateHasNone) {
    DialogTemplate shape("None", 120, 60);
    shape.PushButton("Other", kPush, 5, 5);
    TestDialog dialog;
    const HWND made = dialog.Create(shape);
    const LRESULT answer = SendMessageA(made, DM_GETDEFID, 0, 0);
    EXPECT_EQ(DC_HASDEFID, HIWORD(answer));
    EXPECT_EQ(IDOK, LOWORD(answer));
    DestroyWindow(made);
}

TEST(DefaultButton, AButtonIsItOnlyWhileItHasTheFocus) {
    DialogTemplate shape("Border", 120, 60);
    shape.PushButton("Other", kPush, 5, 5).CheckBox("Box", kBox, 5, 30);
    TestDialog dialog;
    const HWND made = dialog.Create(shape);
    ShowWindow(made, SW_SHOW);
    const auto type = [&] {
        return GetWindowLongA(GetDlgItem(made, kPush), GWL_STYLE) & BS_TYPEMASK;
    };
    const auto focus = [&](int id) {
        SendMessageA(made, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(made, id)), TRUE);
    };
    focus(kPush);
    EXPECT_EQ(BS_DEFPUSHBUTTON, type());
    focus(kBox);
    EXPECT_EQ(BS_PUSHBUTTON, type()) << "though no OK takes it over";
    DestroyWindow(made);
}

TEST(PageFocus, APageThatIsMadeHiddenLeavesTheFocusAlone) {
    DialogTemplate shape("Dialog", 120, 60);
    shape.PushButton("Other", kPush, 5, 5);
    TestDialog dialog, page;
    const HWND made = dialog.Create(shape);
    ShowWindow(made, SW_SHOW);
    ASSERT_EQ(GetDlgItem(made, kPush), GetFocus());
    DialogTemplate pageShape("", 100, 30);
    pageShape.At(5, 25).AsPage().Edit(kInPage, 5, 5);
    const HWND child = page.Create(pageShape, made);
    EXPECT_EQ(GetDlgItem(made, kPush), GetFocus());
    ShowWindow(child, SW_SHOW);
    EXPECT_EQ(GetDlgItem(made, kPush), GetFocus());
    DestroyWindow(made);
}

TEST(MessageBoxArrows, LeftOnTheFirstButtonGoesRound) {
    DialogScript script;
    script.Press(VK_LEFT).Press(VK_RETURN);
    EXPECT_EQ(IDCANCEL,
              script.Run([] { return MessageBoxA(nullptr, "Text", "Title", MB_YESNOCANCEL); }));
}

TEST(MessageBoxArrows, RightGoesOnToTheNext) {
    DialogScript script;
    script.Press(VK_RIGHT).Press(VK_RETURN);
    EXPECT_EQ(IDNO,
              script.Run([] { return MessageBoxA(nullptr, "Text", "Title", MB_YESNOCANCEL); }));
    DialogScript further;
    further.Press(VK_RIGHT).Press(VK_RIGHT).Press(VK_RIGHT).Press(VK_RETURN);
    EXPECT_EQ(IDYES,
              further.Run([] { return MessageBoxA(nullptr, "Text", "Title", MB_YESNOCANCEL); }));
}

TEST(SharedMnemonic, GoesOnFromTheOneThatHasTheFocus) {
    DialogTemplate shape("Twice", 120, 60);
    shape.CheckBox("&Epoch", kPush, 5, 5).CheckBox("&Every", kBox, 5, 25);
    TestDialog dialog;
    DialogScript script;
    script.ExpectFocus(kPush)
        .Mnemonic('e')
        .Do([](HWND made) {
            KNOWN_GAP(kWine, "a shared mnemonic begins with the control that has the focus",
                      GetFocus() == GetDlgItem(made, kBox));
        })
        .Press(VK_ESCAPE);
    script.Run([&] { dialog.Run(shape); });
}

TEST(SystemKeys, AMnemonicOfNothingClosesAnOpenList) {
    DialogTemplate shape("List", 120, 90);
    shape.DropDownList(kBox, 5, 5);
    TestDialog dialog;
    DialogScript script;
    script
        .Do([](HWND made) {
            const HWND combo = GetDlgItem(made, kBox);
            SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("item"));
            SendMessageA(combo, CB_SHOWDROPDOWN, TRUE, 0);
        })
        .Mnemonic('q')
        .Do([](HWND made) {
            EXPECT_EQ(0, SendMessageA(GetDlgItem(made, kBox), CB_GETDROPPEDSTATE, 0, 0));
            EXPECT_EQ(nullptr, GetCapture());
        })
        .Press(VK_ESCAPE);
    script.Run([&] { dialog.Run(shape); });
}

TEST(LabelMnemonic, GivesAFieldThatHasTheFocusTheFocusAgain) {
    DialogTemplate shape("Mnemonic", 200, 100);
    shape.Label("&Name:", kLabel, 5, 5).Edit(kField, 5, 20);
    TestDialog dialog;
    DialogScript script;
    script.ExpectFocus(kField)
        .Type(kField, "typed")
        .Do([&](HWND made) {
            SendMessageA(GetDlgItem(made, kField), EM_SETSEL, 2, 2);
            dialog.Notifications().Take();
        })
        .Mnemonic('n')
        .ExpectFocus(kField)
        .Do([&](HWND made) {
            EXPECT_EQ("EN_KILLFOCUS(141) EN_SETFOCUS(141)", dialog.Notifications().Take());
            EXPECT_EQ("typed", test_support::SelectedPart(GetDlgItem(made, kField)));
        })
        .Press(VK_ESCAPE);
    script.Run([&] { dialog.Run(shape); });
}

}  // namespace
