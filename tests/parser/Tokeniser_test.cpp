#include <gtest/gtest.h>

#include <string>

#include "ParserInspector.h"

namespace {

struct Token {
    int nKind;
    std::string strText;
    bool operator==(const Token&) const = default;
};
void PrintTo(const Token& token, std::ostream* out) {
    *out << token.nKind << ":'" << token.strText << "'";
}

// All tokens of a text but the end; the error goes to *pnError.
std::vector<Token> Scan(std::string strText, int* pnError = nullptr) {
    CZDCParser scanner(0, 0, 0, 0);
    strText.resize(strText.size() + 1);
    scanner.SetText(strText.data(), strText.size());
    std::vector<Token> tokens;
    while (scanner.GetError() == 0) {
        scanner.NextToken();
        if (scanner.GetError() != 0 || scanner.GetTokenKind() == TOKEN_END) break;
        tokens.push_back({scanner.GetTokenKind(), scanner.GetToken()});
    }
    if (pnError) *pnError = scanner.GetError();
    return tokens;
}

int ScanError(const std::string& strText) {
    int nError = 0;
    Scan(strText, &nError);
    return nError;
}

std::string Function(int eOpcode) {
    return std::string(1, static_cast<char>(eOpcode));
}

}  // namespace

TEST(Tokeniser, KindsHaveTheirNumbers) {
    EXPECT_EQ(TOKEN_DELIMITER, 1);
    EXPECT_EQ(TOKEN_NAME, 2);
    EXPECT_EQ(TOKEN_NUMBER, 3);
    EXPECT_EQ(TOKEN_FUNCTION, 4);
    EXPECT_EQ(TOKEN_END, 6);
    EXPECT_EQ(TOKEN_UNKNOWN, 7);
}

TEST(Tokeniser, EveryDelimiterIsOneToken) {
    const auto tokens = Scan("A+B*C-D/E%F^G=(H)");
    std::string strDelimiters;
    for (const Token& token : tokens) {
        if (token.nKind == TOKEN_DELIMITER) strDelimiters += token.strText;
    }
    EXPECT_EQ(strDelimiters, "+*-/%^=()");
}

TEST(Tokeniser, FoldsTheCallersBufferToUpperCase) {
    char szText[] = "y1=p1*x1+\xE4";
    CZDCParser scanner(0, 0, 0, 0);
    scanner.SetText(szText, sizeof szText);
    EXPECT_STREQ(szText, "Y1=P1*X1+\xE4");
}

TEST(Tokeniser, FunctionTokenIsOneByteWithTheOpcode) {
    const struct {
        const char* pszName;
        int eOpcode;
    } rows[] = {
        {"RECT", 17}, {"ARCOS", 18},  {"ARSIN", 19},  {"ARTAN", 20}, {"COS", 21},
        {"EXP", 22},  {"LN", 23},     {"LOG", 24},    {"SIN", 25},   {"SQRT", 26},
        {"TAN", 27},  {"RAMP", 28},   {"INTG", 29},   {"DIFF", 30},  {"INV", 31},
        {"NORM", 32}, {"NORMAX", 33}, {"NORMIN", 34}, {"FACT", 35},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.pszName);
        const auto tokens = Scan(std::string(row.pszName) + "(X)");
        ASSERT_EQ(tokens.size(), 4u);
        EXPECT_EQ(tokens[0], (Token{TOKEN_FUNCTION, Function(row.eOpcode)}));
        EXPECT_EQ(tokens[1], (Token{TOKEN_DELIMITER, "("}));
    }
}

TEST(Tokeniser, KeywordEndsWhereALetterFollows) {
    EXPECT_EQ(Scan("SINE"), (std::vector<Token>{{TOKEN_NAME, "SINE"}}));
    EXPECT_EQ(Scan("LNX"), (std::vector<Token>{{TOKEN_NAME, "LNX"}}));
    EXPECT_EQ(Scan("SI"), (std::vector<Token>{{TOKEN_NAME, "SI"}}));
    EXPECT_EQ(ScanError("LOG10(X)"), 4);
    EXPECT_EQ(ScanError("SIN_1"), 4);
    EXPECT_EQ(ScanError("SIN"), 4);
    EXPECT_EQ(ScanError("SIN X"), 4);
    EXPECT_EQ(ScanError("SIN  (X)"), 0);
}

TEST(Tokeniser, NamesStartWithALetterUnderscoreOrDollar) {
    EXPECT_EQ(Scan("_A"), (std::vector<Token>{{TOKEN_NAME, "_A"}}));
    EXPECT_EQ(Scan("$1"), (std::vector<Token>{{TOKEN_NAME, "$1"}}));
    EXPECT_EQ(Scan("A#?\xFF"), (std::vector<Token>{{TOKEN_NAME, "A#?\xFF"}}));
}

TEST(Tokeniser, SpacesAndLineEndsBelongToNames) {
    EXPECT_EQ(
        Scan("Y1 = 2"),
        (std::vector<Token>{{TOKEN_NAME, "Y1 "}, {TOKEN_DELIMITER, "="}, {TOKEN_NUMBER, "2"}}));
    EXPECT_EQ(Scan("A\t\r\nB +C")[0], (Token{TOKEN_NAME, "A\t\r\nB "}));
}

TEST(Tokeniser, OnlySpacesAreSkipped) {
    EXPECT_EQ(Scan("   A"), (std::vector<Token>{{TOKEN_NAME, "A"}}));
    EXPECT_EQ(ScanError("\tA"), 26);
    EXPECT_EQ(ScanError("\nA"), 26);
}

TEST(Tokeniser, UnknownCharacterKeepsItsKind) {
    CZDCParser scanner(0, 0, 0, 0);
    char szText[] = "#";
    scanner.SetText(szText, sizeof szText);
    scanner.NextToken();
    EXPECT_EQ(scanner.GetError(), 26);
    EXPECT_EQ(scanner.GetTokenKind(), TOKEN_UNKNOWN);
    EXPECT_STREQ(scanner.GetToken(), "");
}

TEST(Tokeniser, EveryByteHasOneClassAtTheStart) {
    for (int c = 1; c < 256; ++c) {
        SCOPED_TRACE(c);
        const char ch = static_cast<char>(c);
        const std::string strText{ch, 'Z', '*', 'Q'};
        int nError = 0;
        const auto tokens = Scan(strText, &nError);
        const bool bLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        if (bLetter || c == '_' || c == '$' || (c >= '0' && c <= '9') || c == '.') {
            ASSERT_FALSE(tokens.empty());
            EXPECT_EQ(tokens[0].nKind, TOKEN_NAME);
        } else if (std::string("+-*/%^=()").find(ch) != std::string::npos) {
            // An open or close parenthesis alone is reported, the other delimiters are not.
            EXPECT_EQ(nError, c == '(' || c == ')' ? 3 : 0);
        } else if (c == ' ') {
            EXPECT_EQ(tokens[0], (Token{TOKEN_NAME, "Z"}));
        } else {
            EXPECT_EQ(nError, 26);
        }
    }
}

TEST(Tokeniser, WordWithAnythingButDigitsIsAName) {
    EXPECT_EQ(Scan("2X"), (std::vector<Token>{{TOKEN_NAME, "2X"}}));
    EXPECT_EQ(Scan("3%2"), (std::vector<Token>{{TOKEN_NAME, "3%2"}}));
    EXPECT_EQ(Scan("2 X"), (std::vector<Token>{{TOKEN_NAME, "2 X"}}));
    EXPECT_EQ(Scan("1E5"), (std::vector<Token>{{TOKEN_NAME, "1E5"}}));
    EXPECT_EQ(
        Scan("1.5E-3"),
        (std::vector<Token>{{TOKEN_NAME, "1.5E"}, {TOKEN_DELIMITER, "-"}, {TOKEN_NUMBER, "3"}}));
}

TEST(Tokeniser, NumbersAreDigitsWithOnePoint) {
    EXPECT_EQ(Scan("12.50*.5+3.*4"), (std::vector<Token>{{TOKEN_NUMBER, "12.50"},
                                                         {TOKEN_DELIMITER, "*"},
                                                         {TOKEN_NUMBER, ".5"},
                                                         {TOKEN_DELIMITER, "+"},
                                                         {TOKEN_NUMBER, "3."},
                                                         {TOKEN_DELIMITER, "*"},
                                                         {TOKEN_NUMBER, "4"}}));
    EXPECT_EQ(ScanError("1.2.3"), 19);
    EXPECT_EQ(ScanError("1..5"), 19);
    EXPECT_EQ(ScanError("..5"), 19);
}

TEST(Tokeniser, PointThatEndsTheTextIsNotPartOfANumber) {
    EXPECT_EQ(ScanError("2."), 5);
    EXPECT_EQ(ScanError("."), 5);
    EXPECT_EQ(ScanError("1.2."), 5);
    EXPECT_EQ(ScanError("2. "), 0);
}

TEST(Tokeniser, NumberNeedsAnOperatorBehindIt) {
    EXPECT_EQ(ScanError("2 3"), 5);
    EXPECT_EQ(ScanError("2(X)"), 5);
    EXPECT_EQ(ScanError("2=X"), 5);
    EXPECT_EQ(ScanError("2  "), 0);
    EXPECT_EQ(ScanError("(2)"), 0);
}

TEST(Tokeniser, OperatorNeedsAnOperandBehindIt) {
    for (const char* pszText : {"A+", "A*", "A-", "A/", "A%", "A^", "A=", "A**B", "A+*B", "A-/B",
                                "A*%B", "A/^B", "A^=B", "A==B", "A=*B", "A=^B"}) {
        SCOPED_TRACE(pszText);
        EXPECT_EQ(ScanError(pszText), 17);
    }
    for (const char* pszText : {"A+-B", "A*-B", "A*+B", "A=-B", "A=+B", "A* *B", "(*A)", "A+ "}) {
        SCOPED_TRACE(pszText);
        EXPECT_EQ(ScanError(pszText), 0);
    }
}

TEST(Tokeniser, TrailingParenthesisIsASyntaxProblem) {
    EXPECT_EQ(ScanError("A*("), 24);
    EXPECT_EQ(ScanError("("), 24);
}

TEST(Tokeniser, ParenthesesMustBalance) {
    EXPECT_EQ(ScanError("(A"), 3);
    EXPECT_EQ(ScanError("A)"), 3);
    EXPECT_EQ(ScanError(")A("), 3);
    EXPECT_EQ(ScanError("((A)+(B))"), 0);
    EXPECT_EQ(ScanError("()"), 0);
}

TEST(Tokeniser, LengthOfTheTextIsLimited) {
    EXPECT_EQ(ScanError(""), 1);
    EXPECT_EQ(ScanError(std::string(255, 'A')), 0);
    EXPECT_EQ(ScanError(std::string(256, 'A')), 22);
    EXPECT_EQ(ScanError(std::string(100000, 'A')), 22);
}

TEST(Tokeniser, BufferWithoutTerminatorIsReadToItsSizeOnly) {
    std::vector<char> text = {'a', '+', 'b'};
    CZDCParser scanner(0, 0, 0, 0);
    scanner.SetText(text.data(), text.size());
    scanner.NextToken();
    EXPECT_STREQ(scanner.GetToken(), "A");
    EXPECT_EQ(std::string(text.begin(), text.end()), "A+B");
    std::vector<char> full(256, 'a');
    CZDCParser other(0, 0, 0, 0);
    other.SetText(full.data());
    EXPECT_EQ(other.GetError(), 22);
    EXPECT_EQ(full[0], 'a');
}

TEST(Tokeniser, PositionAfterTheLastGoodTokenIsKept) {
    CZDCParser scanner(0, 0, 0, 0);
    char szText[] = "AB + #";
    scanner.SetText(szText, sizeof szText);
    scanner.NextToken();
    EXPECT_EQ(ParserInspector::LastGoodPosition(scanner), 3);
    scanner.NextToken();
    EXPECT_EQ(ParserInspector::LastGoodPosition(scanner), 5);
    scanner.NextToken();
    EXPECT_EQ(scanner.GetError(), 26);
    EXPECT_EQ(ParserInspector::LastGoodPosition(scanner), 5);
    EXPECT_EQ(ParserInspector::Position(scanner), 5);
}

TEST(Tokeniser, ExponentScannerHasItsFaults) {
    const struct {
        const char* pszText;
        int nError;
        const char* pszToken;
    } rows[] = {
        {"1E5", 0, "1E5"},      {"1e+123", 0, "1e+123"},  {"1E-2*X", 0, "1E-2"},
        {"1E", 19, nullptr},    {"1E+", 19, nullptr},     {"1EX", 19, nullptr},
        {"1E1234", 2, nullptr}, {"1E-00001", 2, nullptr}, {"1E5 3", 5, nullptr},
        {"1E5(", 5, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.pszText);
        CZDCParser parser(0, 0, 0, 0);
        ParserInspector::ScanExponent(parser, row.pszText, 1);
        EXPECT_EQ(parser.GetError(), row.nError);
        if (row.pszToken) {
            EXPECT_STREQ(parser.GetToken(), row.pszToken);
        }
    }
}
