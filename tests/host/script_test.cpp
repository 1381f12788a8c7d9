// The script language: what a line means, and what is refused with its line.
#include "Script.h"

#include "host_test.h"
#include "platform/platform.h"

namespace {

using zxhost::Script;
using zxhost::Step;
using zxhost::Verb;

class ScriptText : public testing::Test {
  protected:
    Step One(const std::string& line) {
        EXPECT_TRUE(zxhost::ParseScript(line, "s", &script, &error)) << error;
        return script.steps.empty() ? Step() : script.steps.back();
    }
    std::string Refused(const std::string& text) {
        EXPECT_FALSE(zxhost::ParseScript(text, "s", &script, &error)) << text;
        return error;
    }
    Script script;
    std::string error;
};

TEST_F(ScriptText, TakesControlsByNumberAndByCaption) {
    Step step = One("click 2364");
    EXPECT_EQ(step.verb, Verb::kClick);
    EXPECT_EQ(zxhost::NumberOf(step.control), 2364);
    step = One("  click \"Select &All\"  # all of them");
    EXPECT_EQ(step.control.text, "Select &All");
    EXPECT_EQ(zxhost::NumberOf(step.control), -1);
    step = One("click \"2364\"");
    EXPECT_EQ(zxhost::NumberOf(step.control), -1);
}

TEST_F(ScriptText, TakesTheFieldBehindAButton) {
    const Step step = One("\xEF\xBB\xBFtype field \"Value:\" 12");
    EXPECT_TRUE(step.field);
    EXPECT_EQ(step.control.text, "Value:");
    EXPECT_EQ(step.argument.text, "12");
    EXPECT_FALSE(One("type \"field\" 12").field);
    EXPECT_FALSE(One("click field").field);
}

TEST_F(ScriptText, TakesTextsWithQuotesAndLineEnds) {
    const Step step = One("expect message \"a \\\"b\\\" \\\\ c\\nd\"");
    EXPECT_EQ(step.verb, Verb::kExpectMessage);
    EXPECT_EQ(step.argument.text, "a \"b\" \\ c\nd");
    EXPECT_EQ(One("type 2400 12.5").argument.text, "12.5");
    EXPECT_EQ(One("type 2400 \"\"").argument.text, "");
}

TEST_F(ScriptText, TakesKeysAndWhatIsHeld) {
    Step step = One("press Shift+Tab");
    EXPECT_EQ(step.key, VK_TAB);
    EXPECT_EQ(step.held, static_cast<unsigned>(zxhost::kHoldShift));
    step = One("press alt+o");
    EXPECT_EQ(step.key, 'O');
    EXPECT_EQ(step.held, static_cast<unsigned>(zxhost::kHoldAlt));
    EXPECT_EQ(One("press PageDown").key, VK_NEXT);
    EXPECT_EQ(One("choose 2342 \"3: Sweep 3\" +control").held,
              static_cast<unsigned>(zxhost::kHoldControl));
}

TEST_F(ScriptText, KnowsEveryStep) {
    const char kAll[] =
        "tab Data\nclick 1\nchoose 1 2\npick 3\ntype 1 x\npress Tab\nfocus 1\nanswer OK\nwait "
        "5\nok\ncancel\n"
        "close\nexpect message a\nexpect title a\nexpect tab a\nexpect text 1 a\n"
        "expect chosen 1 a\nexpect item 1 a\nexpect enabled 1\nexpect disabled 1\nexpect shown 1\n"
        "expect hidden 1\nexpect checked 1\nexpect unchecked 1\nexpect focus 1\n"
        "expect record a 1\nexpect store a/b 1\n";
    ASSERT_TRUE(zxhost::ParseScript(kAll, "s", &script, &error)) << error;
    ASSERT_EQ(script.steps.size(), 27u);
    for (int i = 0; i < 27; ++i) {
        const Step& step = script.steps[static_cast<std::size_t>(i)];
        EXPECT_EQ(static_cast<int>(step.verb), i) << step.source;
        EXPECT_EQ(step.line, i + 1);
    }
}

TEST_F(ScriptText, RefusesAWrongLineWithItsNumber) {
    EXPECT_EQ(Refused("ok\nclik 5\n"), "s:2: \"clik\" is no step");
    EXPECT_EQ(Refused("expect joy 5"), "s:1: nothing is known to expect of \"joy\"");
    EXPECT_EQ(Refused("# a\n\nclick"), "s:3: this should be \"click CONTROL\"");
    EXPECT_EQ(Refused("ok now"), "s:1: this should be \"ok\"");
    EXPECT_EQ(Refused("choose 1 2 +meta"),
              "s:1: this should be \"choose CONTROL ITEM [+shift|+control]\"");
    EXPECT_EQ(Refused("wait long"), "s:1: this should be \"wait MILLISECONDS\"");
    EXPECT_EQ(Refused("press Hyper+X"), "s:1: there is no key \"Hyper+X\"");
    EXPECT_EQ(Refused("tab \"Data"), "s:1: a quote is not closed");
    EXPECT_EQ(Refused(std::string("ok\n\0", 4)), "s:2: this is not a text file");
    EXPECT_EQ(Refused("# nothing\n"), "s: the script has no steps");
    EXPECT_EQ(Refused("expect record a"), "s:1: this should be \"expect record FIELD VALUE\"");
    EXPECT_EQ(Refused("expect store a"), "s:1: this should be \"expect store SECTION/KEY VALUE\"");
    EXPECT_EQ(Refused("type field \"a\""), "s:1: this should be \"type CONTROL TEXT\"");
    EXPECT_EQ(Refused("# \xC2\xB5 is well\ntab \xB5\n"),
              "s:2: the byte at place 5 is not UTF-8; save the script as UTF-8");
    EXPECT_EQ(Refused(std::string("\xFF\xFEo\0k\0", 6)),
              "s: this is UTF-16 text; save it as UTF-8 (in a spreadsheet: \"CSV UTF-8\")");
    EXPECT_EQ(Refused("expect"), "s:1: \"expect\" is no step");
}

}  // namespace
