// The player itself, on dialogs that are not the library's.
#include "ScriptPlayer.h"
#include "host_test.h"

namespace {

using zxhost::Script;
using zxhost::ScriptPlayer;

class Player : public testing::Test {
  protected:
    // Plays the script on what the call opens; gives the error.
    std::string Play(const std::string& text, const std::function<std::int32_t()>& open) {
        Script script;
        std::string error;
        EXPECT_TRUE(zxhost::ParseScript(text, "s", &script, &error)) << error;
        ScriptPlayer player(script, 5000);
        result = player.Play(open);
        return player.Error();
    }
    std::int32_t result = 0;
};

TEST_F(Player, TellsThatNoDialogOpened) {
    EXPECT_EQ(Play("ok\n", [] { return -1; }), "s:1: no dialog opened (the call gave -1)");
    EXPECT_EQ(result, -1);
}

TEST_F(Player, AnswersADialogOfTheSystem) {
    EXPECT_EQ(Play("expect title \"Sure?\"\nclick \"Yes\"\n",
                   [] { return MessageBoxA(nullptr, "Really?", "Sure?", MB_YESNO); }),
              "");
    EXPECT_EQ(result, IDYES);
}

TEST_F(Player, MeetsTheMessagesOfAStep) {
    const auto open = [] {
        const int first = MessageBoxA(nullptr, "One", "A", MB_OK);
        return first == IDOK ? MessageBoxA(nullptr, "Two\nlines", "B", MB_OKCANCEL) : 0;
    };
    // The second box is not the dialog that opened first, and so a message.
    EXPECT_EQ(Play("click \"OK\"\nexpect message \"Two\\nlines\"\nanswer Cancel\n", open), "");
    EXPECT_EQ(result, IDCANCEL);
}

TEST_F(Player, MeetsAMessageInPlaceOfTheDialog) {
    const auto open = [] { return MessageBoxA(nullptr, "No waveform", "A", MB_OK) + 1; };
    EXPECT_EQ(Play("expect message \"No waveform\"\nanswer OK\n", open), "");
    EXPECT_EQ(result, 2);
    EXPECT_EQ(Play("expect message \"No waveform\"\nanswer OK\nclick 5\n", open),
              "s:3: no dialog opened (the call gave 2)");
    EXPECT_EQ(Play("expect message \"Another\"\nanswer OK\n", open),
              "s:1: the message is \"No waveform\" and should be \"Another\"");
}

TEST_F(Player, EndsADialogThatTheScriptLeavesOpen) {
    EXPECT_NE(Play("expect title \"Other\"\n",
                   [] { return MessageBoxA(nullptr, "x", "Sure?", MB_OKCANCEL); }),
              "");
    EXPECT_EQ(result, IDCANCEL);
    EXPECT_EQ(zxhost::ActiveDialog(), nullptr);
}

}  // namespace
