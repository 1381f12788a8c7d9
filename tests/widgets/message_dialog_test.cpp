// The message dialog as its user and its caller meet it: buttons, titles, texts, keys, forms.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/ScratchStore.h"
#include "widgets/MessageDialog.h"

namespace {

using CommonCtls::CZDMsgDialog;
using CommonCtls::ShowMessage;
using CommonCtls::ShowMessageByKey;
using CommonCtls::ShowMessageTimed;
using test_support::DialogScript;
using test_support::ScopedEnvironment;

// The id of a button by its place in the row.
int ButtonId(int nIndex) {
    return CZDMsgDialog::kFirstButtonId + nIndex;
}

class OwnerWindow {
  public:
    OwnerWindow() {
        m_hWnd = CreateWindowExA(0, "STATIC", "owner", WS_OVERLAPPEDWINDOW, 100, 100, 500, 400,
                                 nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
        ShowWindow(m_hWnd, SW_SHOW);
    }
    ~OwnerWindow() { DestroyWindow(m_hWnd); }
    HWND Get() const { return m_hWnd; }

  private:
    HWND m_hWnd;
};

struct ButtonCase {
    const char* szName;
    UINT uFlags;
    std::vector<std::string> labels;
    std::vector<UINT> results;
    int nCancelButton;
};

class MessageButtons : public testing::TestWithParam<ButtonCase> {};

TEST_P(MessageButtons, HaveLabelsAndResultsInOrder) {
    const ButtonCase& row = GetParam();
    CZDMsgDialog dialog;
    dialog.Prepare("text", row.uFlags);
    ASSERT_EQ(dialog.GetButtonCount(), row.labels.size());
    for (UINT i = 0; i < dialog.GetButtonCount(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_EQ(dialog.GetButtonLabel(i), row.labels[i]);
        EXPECT_EQ(dialog.GetButtonResult(i), row.results[i]);
    }
    EXPECT_EQ(dialog.GetCancelButton(), row.nCancelButton);
}

TEST_P(MessageButtons, EndTheBoxWithTheirResults) {
    const ButtonCase& row = GetParam();
    const OwnerWindow owner;
    for (std::size_t i = 0; i < row.results.size(); ++i) {
        SCOPED_TRACE(i);
        DialogScript script;
        script.Click(ButtonId(static_cast<int>(i)));
        EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", row.uFlags); }),
                  row.results[i]);
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllRows, MessageButtons,
    testing::Values(ButtonCase{"Default", 0, {"OK"}, {1}, 0},
                    ButtonCase{"OkCancel", 1, {"OK", "Cancel"}, {1, 2}, 1},
                    ButtonCase{
                        "AbortRetryIgnore", 2, {"&Abort", "&Retry", "&Ignore"}, {3, 4, 5}, -1},
                    ButtonCase{"YesNoCancel", 3, {"&Yes", "&No", "Cancel"}, {6, 7, 2}, 2},
                    ButtonCase{"YesNo", 4, {"&Yes", "&No"}, {6, 7}, -1},
                    ButtonCase{"RetryCancel", 5, {"&Retry", "Cancel"}, {4, 2}, 1},
                    ButtonCase{"AnyOther", 9, {"OK"}, {1}, 0}),
    [](const auto& row) { return std::string(row.param.szName); });

struct TitleCase {
    UINT uFlags;
    const char* szTitle;
};

TEST(MessageTitle, FollowsTheIconBits) {
    const TitleCase rows[] = {{0x00, "Information"}, {0x10, "Error"},
                              {0x20, "Query"},       {0x30, "Warning"},
                              {0x40, "Information"}, {0xE0, "Unexpected Error"},
                              {0x70, "Information"}};
    for (const TitleCase& row : rows) {
        SCOPED_TRACE(row.uFlags);
        CZDMsgDialog dialog;
        dialog.Prepare("text", row.uFlags);
        EXPECT_STREQ(dialog.GetTitle(), row.szTitle);
    }
}

TEST(MessageTitle, FlagsOfZeroGiveOneOkAndInformation) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectTitle("Information")
        .ExpectText(ButtonId(0), "OK")
        .ExpectFocus(ButtonId(0))
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", 0); }), 1u);
}

TEST(MessageTitle, ApplicationNameStandsBeforeTheTitle) {
    const ScopedEnvironment name("ZCC_ApplicationName", "Patch Lab");
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectTitle("Patch Lab - Warning").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_ICONEXCLAMATION); }), 1u);
}

TEST(MessageTitle, IsCutTo255Characters) {
    const std::string sName(300, 'n');
    const ScopedEnvironment name("ZCC_ApplicationName", sName.c_str());
    CZDMsgDialog dialog;
    dialog.Prepare("text", MB_ICONHAND);
    EXPECT_EQ(std::string(dialog.GetTitle()), sName.substr(0, 255));
}

TEST(MessageDefaultButton, BeyondTheLastSelectsTheLast) {
    CZDMsgDialog dialog;
    dialog.Prepare("text", MB_YESNO | 0x700);
    EXPECT_EQ(dialog.GetDefaultButton(), 1u);

    const OwnerWindow owner;
    DialogScript script;
    script.ExpectFocus(ButtonId(1)).Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_YESNO | 0x700); }), 7u);
}

TEST(MessageDefaultButton, IsTheOneThatEnterPresses) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectFocus(ButtonId(1)).Press(VK_RETURN);
    EXPECT_EQ(script.Run(
                  [&] { return ShowMessage(owner.Get(), "text", MB_YESNOCANCEL | MB_DEFBUTTON2); }),
              7u);
}

TEST(MessageModality, TaskModalWinsOverSystemModal) {
    const auto modality = [](UINT uFlags) {
        CZDMsgDialog dialog;
        dialog.Prepare("text", uFlags);
        return dialog.GetModality();
    };
    EXPECT_EQ(modality(0), 2);
    EXPECT_EQ(modality(MB_SYSTEMMODAL), 1);
    EXPECT_EQ(modality(MB_TASKMODAL), 0);
    EXPECT_EQ(modality(MB_TASKMODAL | MB_SYSTEMMODAL), 0);
}

TEST(MessageModality, TaskModalTakesInputFromTheOtherWindowsOfTheThread) {
    const OwnerWindow owner;
    const OwnerWindow other;
    DialogScript script;
    script.Do([&] { EXPECT_FALSE(IsWindowEnabled(other.Get())); }).Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_TASKMODAL); }), 1u);
    EXPECT_TRUE(IsWindowEnabled(other.Get()));
    EXPECT_TRUE(IsWindowEnabled(owner.Get()));
}

TEST(MessageEscape, DoesNothingOnYesAndNo) {
    const OwnerWindow owner;
    DialogScript script;
    script.Press(VK_ESCAPE).Wait(30).ExpectTitle("Information").Click(ButtonId(1));
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_YESNO); }), 7u);
}

TEST(MessageEscape, OnASingleOkEndsWithOne) {
    const OwnerWindow owner;
    DialogScript script;
    script.Press(VK_ESCAPE);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_OK); }), 1u);
}

TEST(MessageEscape, PressesCancelWhereThereIsOne) {
    for (const UINT uFlags : {MB_OKCANCEL, MB_YESNOCANCEL, MB_RETRYCANCEL}) {
        SCOPED_TRACE(uFlags);
        const OwnerWindow owner;
        DialogScript script;
        script.Press(VK_ESCAPE);
        EXPECT_EQ(
            script.Run([&] { return ShowMessage(owner.Get(), "text", static_cast<UINT>(uFlags)); }),
            2u);
    }
}

TEST(MessageKeys, MnemonicsPressTheirButtons) {
    const OwnerWindow owner;
    DialogScript script;
    script.Mnemonic('n');
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_YESNO); }), 7u);
}

TEST(MessageKeys, IdOkEndsWithOneWhateverTheButtons) {
    const OwnerWindow owner;
    DialogScript script;
    script.Do([](HWND hDialog) { PostMessageA(hDialog, WM_COMMAND, IDOK, 0); });
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_YESNO); }), 1u);
}

TEST(MessageText, NullReturnsAtOnce) {
    EXPECT_EQ(ShowMessage(nullptr, nullptr, MB_OK), 0xFFFFu);
    EXPECT_EQ(ShowMessageTimed(nullptr, 10, nullptr, MB_OK), 0xFFFFu);
    EXPECT_EQ(ShowMessageByKey(nullptr, nullptr, nullptr, MB_OK), 0xFFFFu);
}

TEST(MessageText, EmptyTextStillShowsABox) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectText(CZDMsgDialog::kTextId, "").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "", MB_OK); }), 1u);
}

TEST(MessageText, PlaceholdersTakeTheArguments) {
    const OwnerWindow owner;
    DialogScript script;
    script
        .ExpectText(CZDMsgDialog::kTextId, "Validation Error:\r\n\r\nA value of 50% is too small.")
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] {
        return ShowMessage(owner.Get(), "%0:\r\n\r\n%1", MB_ICONHAND,
                           {"Validation Error", "A value of 50% is too small."});
    }),
              1u);
}

TEST(MessageText, APlaceholderWithoutAnArgumentIsEmpty) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectText(CZDMsgDialog::kTextId, "[] []").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "[%0] [%9]", MB_OK); }), 1u);
}

TEST(MessageText, IsLoadedByIdFromTheModuleOfTheOwner) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectText(CZDMsgDialog::kTextId, "Some groups hold 3 sets.").Press(VK_RETURN);
    EXPECT_EQ(
        script.Run([&] { return ShowMessage(owner.Get(), MAKEINTRESOURCEA(2304), MB_OK, {"3"}); }),
        1u);
}

TEST(MessageText, AnUnknownIdShowsNothingAndReturnsZero) {
    const OwnerWindow owner;
    EXPECT_EQ(ShowMessage(owner.Get(), MAKEINTRESOURCEA(9999), MB_OK), 0u);
}

TEST(MessageText, IsCutTo2048Characters) {
    CZDMsgDialog dialog;
    const std::string sLong(3000, 'x');
    dialog.Prepare(sLong.c_str(), MB_OK);
    EXPECT_EQ(std::string(dialog.GetText()), sLong.substr(0, 2048));
}

TEST(MessageText, BytesAbove127AreShownAsTheyAre) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectText(CZDMsgDialog::kTextId, "Interval = 50 \xB5s").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "Interval = 50 \xB5s", MB_OK); }),
              1u);
}

// As when a dialog has something to say before it shows.
TEST(MessageDialog, BeforeItsOwnerShowsItIsCentredOnTheWindowBehind) {
    const OwnerWindow owner;
    SetWindowPos(owner.Get(), nullptr, 40, 30, 420, 340, SWP_NOZORDER | SWP_NOACTIVATE);
    const HWND hidden = CreateWindowExA(0, "STATIC", "", WS_POPUP, 600, 500, 50, 50, owner.Get(),
                                        nullptr, GetModuleHandleA(nullptr), nullptr);
    RECT rc = {};
    DialogScript script;
    script.Do([&](HWND dialog) { GetWindowRect(dialog, &rc); }).Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(hidden, "text", MB_OK); }), 1u);
    DestroyWindow(hidden);
    // Halves are cut.
    EXPECT_NEAR((rc.left + rc.right) / 2, 40 + 210, 1);
    EXPECT_NEAR((rc.top + rc.bottom) / 2, 30 + 170, 1);
}

TEST(MessageByKey, JoinsBothTextsByAnEmptyLine) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectText(CZDMsgDialog::kTextId, "first\r\n\r\nsecond").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessageByKey(owner.Get(), "second", "first", MB_OK); }),
              1u);
}

TEST(MessageByKey, ShowsTheOneThatIsGiven) {
    const OwnerWindow owner;
    DialogScript first;
    first.ExpectText(CZDMsgDialog::kTextId, "first").Press(VK_RETURN);
    EXPECT_EQ(first.Run([&] { return ShowMessageByKey(owner.Get(), nullptr, "first", MB_OK); }),
              1u);
    DialogScript second;
    second.ExpectText(CZDMsgDialog::kTextId, "second").Press(VK_RETURN);
    EXPECT_EQ(second.Run([&] { return ShowMessageByKey(owner.Get(), "second", nullptr, MB_OK); }),
              1u);
}

TEST(MessageByKey, AnUnknownIdShowsNothing) {
    const OwnerWindow owner;
    const LPCSTR szUnknown = MAKEINTRESOURCEA(64999);
    EXPECT_EQ(ShowMessageByKey(owner.Get(), nullptr, szUnknown, MB_OK), 0u);
    EXPECT_EQ(ShowMessageByKey(owner.Get(), szUnknown, nullptr, MB_OK), 0u);
    EXPECT_EQ(ShowMessageByKey(owner.Get(), "second", szUnknown, MB_OK), 0u);
    EXPECT_EQ(ShowMessageByKey(owner.Get(), szUnknown, "first", MB_OK), 0u);
}

constexpr char kUnexpectedError[] =
    "An unexpected error has occurred.\r\n\r\nWe recommend that you exit the application and try "
    "again.  If "
    "the problem persists after re-running the application we recommend restarting your "
    "computer.\r\n\r\nIf "
    "this problem continues, contact Technical Support.\r\n\r\n";

TEST(MessageUnexpectedError, KeepsTheFixedWordsAnd1023CharactersOfTheText) {
    CZDMsgDialog dialog;
    const std::string sText(2000, 'x');
    dialog.Prepare(sText.c_str(), 0xE0);
    EXPECT_EQ(std::string(dialog.GetText()), kUnexpectedError + sText.substr(0, 1023));
}

TEST(MessageUnexpectedError, ShowsItsFirstParagraphBesideTheIcon) {
    const OwnerWindow owner;
    DialogScript script;
    script.ExpectTitle("Unexpected Error")
        .ExpectText(CZDMsgDialog::kHeadingId, "An unexpected error has occurred.")
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "disk full", 0xE0); }), 1u);
}

TEST(MessageTimeout, EndsTheBoxByItself) {
    const OwnerWindow owner;
    DialogScript script;
    script.Do([](HWND dialog) { EXPECT_TRUE(IsWindowVisible(dialog)); });
    EXPECT_EQ(script.Run([&] { return ShowMessageTimed(owner.Get(), 200, "text", MB_OK); }),
              0xFFFCu);
}

TEST(MessageTimeout, DoesNotMatterOnceTheUserAnswers) {
    const OwnerWindow owner;
    DialogScript script;
    script.Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessageTimed(owner.Get(), 60000, "text", MB_OK); }), 1u);
}

TEST(MessageLayout, ALongTextScrollsInsteadOfGrowingPastTheScreen) {
    std::string sText;
    for (int i = 0; i < 300; ++i) sText += "line\r\n";
    const OwnerWindow owner;
    DialogScript script;
    script
        .Do([](HWND hDialog) {
            char szClass[32] = {};
            GetClassNameA(GetDlgItem(hDialog, CZDMsgDialog::kTextId), szClass, sizeof szClass);
            EXPECT_STREQ(szClass, "Edit");
            RECT rc;
            GetWindowRect(hDialog, &rc);
            EXPECT_LE(rc.bottom - rc.top, GetSystemMetrics(SM_CYSCREEN));
        })
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), sText.c_str(), MB_OK); }), 1u);
}

TEST(MessageLayout, OneWordWiderThanTheScreenScrollsToo) {
    const std::string sText(1500, 'W');
    const OwnerWindow owner;
    DialogScript script;
    script
        .Do([](HWND hDialog) {
            RECT rc;
            GetWindowRect(hDialog, &rc);
            EXPECT_LE(rc.right - rc.left, GetSystemMetrics(SM_CXSCREEN));
        })
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), sText.c_str(), MB_OK); }), 1u);
}

TEST(MessageLayout, NothingOverlapsOrLeavesTheDialog) {
    for (const char* szText : {"short",
                               "A longer text.\r\n\r\nWith a second paragraph that has to be "
                               "broken into lines because it is longer than a comfortable line."}) {
        SCOPED_TRACE(szText);
        const OwnerWindow owner;
        DialogScript script;
        script
            .Do([](HWND hDialog) {
                RECT client;
                GetClientRect(hDialog, &client);
                std::vector<RECT> places;
                for (HWND h = GetWindow(hDialog, GW_CHILD); h != nullptr;
                     h = GetWindow(h, GW_HWNDNEXT)) {
                    RECT rc;
                    GetWindowRect(h, &rc);
                    MapWindowPoints(nullptr, hDialog, reinterpret_cast<POINT*>(&rc), 2);
                    EXPECT_GE(rc.left, 0);
                    EXPECT_GE(rc.top, 0);
                    EXPECT_LE(rc.right, client.right);
                    EXPECT_LE(rc.bottom, client.bottom);
                    for (const RECT& other : places) {
                        RECT both;
                        EXPECT_FALSE(IntersectRect(&both, &rc, &other));
                    }
                    places.push_back(rc);
                }
                EXPECT_EQ(places.size(), 5u);  // icon, text, three buttons
            })
            .Click(ButtonId(0));
        EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), szText, MB_YESNOCANCEL); }), 6u);
    }
}

// The height of the font of the text, as the font definition in the environment says.
LOGFONTA FontOfMessage(const char* szDefinition) {
    const ScopedEnvironment definition("ZCC_Font_Definition", szDefinition);
    const OwnerWindow owner;
    LOGFONTA font = {};
    DialogScript script;
    script
        .Do([&](HWND hDialog) {
            const auto hFont = reinterpret_cast<HFONT>(
                SendMessageA(GetDlgItem(hDialog, CZDMsgDialog::kTextId), WM_GETFONT, 0, 0));
            GetObjectA(hFont, sizeof font, &font);
        })
        .Press(VK_RETURN);
    script.Run([&] { return ShowMessage(owner.Get(), "text", MB_OK); });
    return font;
}

TEST(MessageFont, IsNinePointMsSansSerif) {
    const LOGFONTA font = FontOfMessage("");
    EXPECT_STREQ(font.lfFaceName, "MS Sans Serif");
    EXPECT_EQ(font.lfHeight, -12);
    EXPECT_EQ(font.lfWeight, FW_NORMAL);
}

TEST(MessageFont, FollowsTheFontDefinition) {
    const LOGFONTA both = FontOfMessage("Tahoma,12.0");
    EXPECT_STREQ(both.lfFaceName, "Tahoma");
    EXPECT_EQ(both.lfHeight, -16);
    const LOGFONTA size = FontOfMessage("12");
    EXPECT_STREQ(size.lfFaceName, "MS Sans Serif");
    EXPECT_EQ(size.lfHeight, -16);
    const LOGFONTA face = FontOfMessage("Tahoma");
    EXPECT_STREQ(face.lfFaceName, "Tahoma");
    EXPECT_EQ(face.lfHeight, -12);
    const LOGFONTA longFace = FontOfMessage("ABCDEFGHIJKLMNOPQRSTUVWXYZABCDEFGHIJ,9");
    EXPECT_STREQ(longFace.lfFaceName, "ABCDEFGHIJKLMNOPQRSTUVWXYZABCDE");
}

TEST(MessageOwner, IsRestoredWhenItIsMinimised) {
    const OwnerWindow owner;
    ShowWindow(owner.Get(), SW_MINIMIZE);
    ASSERT_TRUE(IsIconic(owner.Get()));
    DialogScript script;
    script.Do([&] { EXPECT_FALSE(IsIconic(owner.Get())); }).Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(owner.Get(), "text", MB_OK); }), 1u);
}

TEST(MessageOwner, IsTheFirstPlainWindowOfTheThreadWhenNoneIsGiven) {
    const OwnerWindow owner;
    DialogScript script;
    script
        .Do([&](HWND hDialog) {
            EXPECT_EQ(GetWindow(hDialog, GW_OWNER), owner.Get());
            EXPECT_FALSE(IsWindowEnabled(owner.Get()));
        })
        .Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(nullptr, "text", MB_OK); }), 1u);
    EXPECT_TRUE(IsWindowEnabled(owner.Get()));
}

TEST(MessageOwner, ThatIsGoneLeadsToTheSevereForm) {
    HWND hGone;
    {
        const OwnerWindow owner;
        hGone = owner.Get();
    }
    DialogScript script;
    script.ExpectTitle("Severe Error").Press(VK_RETURN);
    EXPECT_EQ(script.Run([&] { return ShowMessage(hGone, "text", MB_OK); }), 0xFFFDu);
}

}  // namespace
