// Message boxes: their buttons, keys and results.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "fixtures/DialogScript.h"
#include "fixtures/KnownGap.h"
#include "fixtures/TestWindows.h"
#include "platform/platform.h"

namespace {

using test_support::DialogScript;
using test_support::RecordingWindow;

struct Kind {
    const char* name;
    UINT type;
    std::vector<int> buttons;
};

const Kind kKinds[] = {
    {"OK", MB_OK, {IDOK}},
    {"OKCANCEL", MB_OKCANCEL, {IDOK, IDCANCEL}},
    {"ABORTRETRYIGNORE", MB_ABORTRETRYIGNORE, {IDABORT, IDRETRY, IDIGNORE}},
    {"YESNOCANCEL", MB_YESNOCANCEL, {IDYES, IDNO, IDCANCEL}},
    {"YESNO", MB_YESNO, {IDYES, IDNO}},
    {"RETRYCANCEL", MB_RETRYCANCEL, {IDRETRY, IDCANCEL}},
};

TEST(MessageBoxes, EachKindHasItsButtonsAndGivesTheirIds) {
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        for (int answer : kind.buttons) {
            DialogScript script;
            script.Answer(answer, "Text");
            EXPECT_EQ(answer,
                      script.Run([&] { return MessageBoxA(nullptr, "Text", "Title", kind.type); }));
            ASSERT_EQ(1u, script.Messages().size());
            EXPECT_EQ("Title", script.Messages()[0].title);
            const auto& buttons = script.Messages()[0].buttons;
            ASSERT_EQ(kind.buttons.size(), buttons.size());
            if (buttons.size() == 1) continue;  // its one button may carry the id of Cancel
            for (std::size_t i = 0; i < buttons.size(); ++i)
                EXPECT_EQ(kind.buttons[i], buttons[i].id);
        }
    }
}

// What a box gives when Escape and then its last button come: that button, if Escape does nothing.
int ResultOfEscape(UINT type, int lastButton) {
    DialogScript script;
    script.Do([lastButton](HWND dialog) {
        PostMessageA(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
        PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(lastButton), 0);
    });
    return script.Run([&] { return MessageBoxA(nullptr, "Text", "Title", type); });
}

TEST(MessageBoxes, EscapeCancelsWhereThereIsSomethingToCancel) {
    EXPECT_EQ(IDCANCEL, ResultOfEscape(MB_OKCANCEL, IDOK));
    EXPECT_EQ(IDCANCEL, ResultOfEscape(MB_YESNOCANCEL, IDNO));
    EXPECT_EQ(IDCANCEL, ResultOfEscape(MB_RETRYCANCEL, IDRETRY));
}

TEST(MessageBoxes, EscapeGivesOkWhereThereIsNothingElse) {
    KNOWN_GAP(kWine, "Escape gives Cancel", ResultOfEscape(MB_OK, IDOK) == IDOK);
}

TEST(MessageBoxes, EscapeDoesNothingWithoutCancel) {
    KNOWN_GAP(kWine, "Escape gives Cancel", ResultOfEscape(MB_YESNO, IDNO) == IDNO);
    KNOWN_GAP(kWine, "Escape gives Cancel",
              ResultOfEscape(MB_ABORTRETRYIGNORE, IDIGNORE) == IDIGNORE);
}

TEST(MessageBoxes, EnterGivesTheDefaultButton) {
    const struct {
        UINT type;
        int result;
    } cases[] = {{MB_YESNO, IDYES},
                 {MB_YESNO | MB_DEFBUTTON2, IDNO},
                 {MB_YESNOCANCEL | MB_DEFBUTTON3, IDCANCEL},
                 {MB_OKCANCEL | MB_DEFBUTTON2, IDCANCEL}};
    for (const auto& one : cases) {
        SCOPED_TRACE(one.type);
        DialogScript script;
        script.Press(VK_RETURN);
        EXPECT_EQ(one.result,
                  script.Run([&] { return MessageBoxA(nullptr, "Text", "Title", one.type); }));
    }
}

TEST(MessageBoxes, MnemonicsPressTheirButtons) {
    DialogScript script;
    script.TypeKeys("n");
    EXPECT_EQ(IDNO, script.Run([] { return MessageBoxA(nullptr, "Text", "Title", MB_YESNO); }));
}

TEST(MessageBoxes, NamesItsButtons) {
    DialogScript script;
    script.Answer(IDNO);
    script.Run([] { MessageBoxA(nullptr, "Text", "Title", MB_YESNOCANCEL); });
    const auto& buttons = script.Messages().at(0).buttons;
    ASSERT_EQ(3u, buttons.size());
    EXPECT_EQ("&Yes", buttons[0].text);
    EXPECT_EQ("&No", buttons[1].text);
    EXPECT_EQ("Cancel", buttons[2].text);
}

TEST(MessageBoxes, DisablesItsOwner) {
    RecordingWindow owner;
    DialogScript script;
    script.Do([&] { EXPECT_FALSE(IsWindowEnabled(owner)); }).Click(IDNO);
    EXPECT_EQ(IDNO, script.Run([&] { return MessageBoxA(owner, "Text", "Title", MB_YESNO); }));
    EXPECT_TRUE(IsWindowEnabled(owner));
}

TEST(MessageBoxes, WithoutTitleIsAnError) {
    DialogScript script;
    script.Answer(IDOK);
    script.Run([] { MessageBoxA(nullptr, "Text", nullptr, MB_OK); });
    EXPECT_EQ("Error", script.Messages().at(0).title);
}

TEST(MessageBoxes, ShowsItsTextAsItIs) {
    DialogScript script;
    script.Answer(IDOK, "100% of R&D\n\xB5s \xB0");
    script.Run([] { MessageBoxA(nullptr, "100% of R&D\n\xB5s \xB0", "T", MB_OK); });
}

TEST(MessageBoxes, TakesNoText) {
    DialogScript script;
    script.Answer(IDOK, "");
    EXPECT_EQ(IDOK, script.Run([] { return MessageBoxA(nullptr, nullptr, "Title", MB_OK); }));
}

TEST(MessageBoxes, ClosesByItsFrameAsCancel) {
    DialogScript script;
    script.CloseByFrame();
    EXPECT_EQ(IDCANCEL, script.Run([] { return MessageBoxA(nullptr, "T", "T", MB_OKCANCEL); }));
}

TEST(MessageBoxes, GrowsWithItsText) {
    int narrow = 0, wide = 0;
    const auto width = [](int* result) {
        return [result](HWND dialog) {
            RECT rect = {};
            GetWindowRect(dialog, &rect);
            *result = rect.right - rect.left;
        };
    };
    DialogScript first, second;
    first.Do(width(&narrow)).Press(VK_RETURN);
    first.Run([] { MessageBoxA(nullptr, "short", "T", MB_OK); });
    second.Do(width(&wide)).Press(VK_RETURN);
    second.Run([] {
        MessageBoxA(nullptr, "a text that is a good deal longer than the other one", "T", MB_OK);
    });
    EXPECT_GT(wide, narrow);
}

}  // namespace
