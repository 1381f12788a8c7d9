#include <gtest/gtest.h>

#include <string>

#include "parser/Parser.h"
#include "parser/ParserErrors.h"

namespace {

// Leaves no bad word behind for the other tests.
class ErrorText : public testing::Test {
  protected:
    void SetUp() override { SetBadWord(""); }
    void TearDown() override { SetBadWord(""); }
    std::string TextOf(int nError) { return m_Parser.GetErrorText(nError); }

  private:
    CParser m_Parser{0, 0, 0, 0};
};

}  // namespace

TEST_F(ErrorText, EveryCodeHasItsText) {
    const char* const texts[] = {
        "You must enter an equation to be used.",
        "There has been a problem processing some of the values involved in the equation.",
        "There is a parenthesis in the open equation, but no corresponding close parenthesis.",
        "After a function (i.e., sin, cos) there must be a set of parenthesis.",
        "Missing operator.",
        "Illegal assignment.",
        "Missing independent variables.",
        "Missing dependent variables.",
        "The equation must have an equals sign to separate the dependent variable from the "
        "indepdent variable.",
        "There are too many variables in the equation.",
        "You can only have one dependent variable in the equation.",
        "There are too many independent variables in the equation.",
        "Too many parameter variables.",
        "Too many equations.",
        "Parser storage overflow.",
        "A variable was expected in the equation but none was found.",
        "Missing operand.",
        "The equation you have entered has no variables.",
        "Invalid numeric value.",
        "Out of memory.",
        "Variable out of range.",
        "Equation string too long.",
        "Empty model.",
        "There has been a problem parsing the equation.  Please re-check the syntax of the "
        "equation.",
        "A basic math error (divide by zero, log of a negative number, etc.) has occurred.",
        "Unknown Error.",
    };
    int nCode = 1;
    for (const char* pszText : texts) EXPECT_EQ(TextOf(nCode++), pszText);
    EXPECT_EQ(nCode, 27);
}

TEST_F(ErrorText, OtherCodesAreShownInHexadecimal) {
    EXPECT_EQ(TextOf(0), "Unknown error code: 0x0.");
    EXPECT_EQ(TextOf(27), "Unknown error code: 0x1B.");
    EXPECT_EQ(TextOf(-1), "Unknown error code: 0xFFFFFFFF.");
    EXPECT_EQ(TextOf(0x7FFFFFFF), "Unknown error code: 0x7FFFFFFF.");
}

TEST_F(ErrorText, UnknownNameTellsTheBadWord) {
    SetBadWord("Q7");
    EXPECT_EQ(TextOf(16), "The variable 'Q7' is not known.");
    SetBadWord("");
    EXPECT_EQ(TextOf(16), "A variable was expected in the equation but none was found.");
}

TEST_F(ErrorText, BadWordIsNoFormat) {
    SetBadWord("%n%s%99999d%%");
    EXPECT_EQ(TextOf(16), "The variable '%n%s%99999d%%' is not known.");
}

TEST_F(ErrorText, BadWordIsCutAt259CharactersAndItsMessageToo) {
    SetBadWord(std::string(100000, 'W').c_str());
    EXPECT_EQ(TextOf(16), "The variable '" + std::string(245, 'W'));
    SetBadWord(std::string(231, 'W').c_str());
    EXPECT_EQ(TextOf(16), "The variable '" + std::string(231, 'W') + "' is not known");
    const std::vector<char> unterminated(259, 'V');
    SetBadWord(unterminated.data());
    EXPECT_EQ(TextOf(16), "The variable '" + std::string(245, 'V'));
}

TEST_F(ErrorText, CompileLeavesTheBadWordAlone) {
    SetBadWord("OLD");
    CParser parser(0, 1, 0, 1);
    parser.SetDependentName(0, "Y1");
    parser.SetEquation(0, "Y1=NEW");
    EXPECT_EQ(parser.Compile(), 0);
    EXPECT_EQ(TextOf(parser.GetError()), "The variable 'OLD' is not known.");
}
