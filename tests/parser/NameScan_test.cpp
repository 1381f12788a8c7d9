#include "parser/NameScan.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "ParserInspector.h"
#include "parser/ParserErrors.h"

namespace {

// The names of a text, or the count -1 of a fault.
std::vector<std::string> VariableNames(std::string strText, int* pnResult = nullptr) {
    std::vector<std::string> names(NAME_TABLE_SIZE);
    int nCount = 0;
    strText.resize(strText.size() + 1);
    const int nResult = CollectVariableNames(strText.data(), names.data(), &nCount);
    if (pnResult) *pnResult = nResult;
    names.resize(static_cast<std::size_t>(nCount));
    return names;
}

std::vector<std::string> ExpressionNames(std::string strText, int* pnResult = nullptr) {
    std::vector<char[NAME_SLOT_SIZE]> slots(NAME_TABLE_SIZE);
    int nCount = 0;
    strText.resize(strText.size() + 1);
    const int nResult = CollectExpressionNames(strText.data(), slots.data(), &nCount);
    if (pnResult) *pnResult = nResult;
    std::vector<std::string> names;
    for (int i = 0; i < nCount; ++i) names.push_back(slots[i]);
    return names;
}

int ScanResult(const std::string& strText) {
    int nResult = -1;
    VariableNames(strText, &nResult);
    return nResult;
}

struct Analysis {
    int nResult = -1;
    std::vector<int> independent, parameters, dependent;
    bool operator==(const Analysis&) const = default;
};

Analysis Analyze(std::string strText) {
    strText.resize(strText.size() + 1);
    int independent[6], parameters[24], dependent[2];
    int nIndependent = 0, nParameters = 0, nDependent = 0;
    Analysis analysis;
    analysis.nResult = AnalyzeCustomFunction(strText.data(), independent, &nIndependent, parameters,
                                             &nParameters, dependent, &nDependent);
    analysis.independent.assign(independent, independent + nIndependent);
    analysis.parameters.assign(parameters, parameters + nParameters);
    analysis.dependent.assign(dependent, dependent + nDependent);
    return analysis;
}

std::string BadWord(std::string strText, int nSize = 260) {
    CZDCParser scanner(0, 0, 0, 0);
    strText.resize(strText.size() + 1);
    scanner.SetText(strText.data());
    do {
        scanner.NextToken();
    } while (scanner.GetError() == 0 && scanner.GetTokenKind() != TOKEN_END);
    std::vector<char> word(static_cast<std::size_t>(nSize) + 1, '?');
    scanner.GetBadWord(word.data(), nSize);
    EXPECT_EQ(word.back(), '?');
    return word.data();
}

std::string KeptWord() {
    return ParserErrorText(PARSER_UNKNOWN_NAME);
}

}  // namespace

TEST(NameScan, ListsEachNameOnceInOrder) {
    EXPECT_EQ(VariableNames("y1=p2*x1+p1*x1"), (std::vector<std::string>{"Y1", "P2", "X1", "P1"}));
    EXPECT_EQ(VariableNames("sin(a)+3.5"), (std::vector<std::string>{"A"}));
}

TEST(NameScan, PiIsNeverAName) {
    EXPECT_EQ(VariableNames("y1=pi*x1+PI"), (std::vector<std::string>{"Y1", "X1"}));
    EXPECT_EQ(ExpressionNames("pi*a"), (std::vector<std::string>{"A"}));
    EXPECT_EQ(IsPi("PI"), 1);
    EXPECT_EQ(IsPi("pi"), 0);
    EXPECT_EQ(IsPi("PI "), 0);
    EXPECT_EQ(IsPi("P"), 0);
}

TEST(NameScan, FoldsTheTextThatItIsGiven) {
    char szText[] = "y1=p1*x1";
    std::vector<std::string> names(NAME_TABLE_SIZE);
    int nCount = 0;
    EXPECT_EQ(CollectVariableNames(szText, names.data(), &nCount), 1);
    EXPECT_STREQ(szText, "Y1=P1*X1");
}

TEST(NameScan, LengthIsTestedFirst) {
    int nCount = 77;
    char szEmpty[] = "";
    EXPECT_EQ(CollectVariableNames(szEmpty, nullptr, &nCount), 0);
    EXPECT_EQ(CollectExpressionNames(szEmpty, nullptr, &nCount), 0);
    EXPECT_EQ(nCount, 77);
    EXPECT_EQ(ScanResult(std::string(255, 'A')), 1);
    EXPECT_EQ(ScanResult(std::string(256, 'A')), 0);
    EXPECT_EQ(ScanResult(std::string(100000, 'A')), 0);
    // A full slot without terminator is read to its size only.
    std::vector<char> slot(NAME_SLOT_SIZE, 'a');
    EXPECT_EQ(CollectVariableNames(slot.data(), nullptr, &nCount), 0);
}

TEST(NameScan, SeesLexicalFaultsOnly) {
    EXPECT_EQ(ScanResult("Y1=#"), 0);
    EXPECT_EQ(ScanResult("A**B"), 0);
    EXPECT_EQ(ScanResult("1.2.3"), 0);
    EXPECT_EQ(ScanResult("(A"), 0);
    EXPECT_EQ(ScanResult("SIN A"), 0);
    EXPECT_EQ(ScanResult("A* *B"), 1);
    EXPECT_EQ(ScanResult("A=B=C"), 1);
    EXPECT_EQ(ScanResult("(A)(B)"), 1);
    EXPECT_EQ(ScanResult("X1%2"), 1);
}

TEST(NameScan, FullestTextFitsTheTable) {
    // 128 names of one or more characters.
    std::string strText;
    for (int i = 0; i < 26; ++i) strText += std::string(1, static_cast<char>('A' + i)) + "+";
    for (int i = 0; strText.size() < 252; ++i) {
        strText +=
            std::string(1, static_cast<char>('A' + i % 26)) + static_cast<char>('0' + i / 26) + "+";
    }
    strText += "_";
    ASSERT_LE(strText.size(), 255u);
    EXPECT_GT(VariableNames(strText).size(), 90u);
    EXPECT_EQ(VariableNames(strText), ExpressionNames(strText));
}

TEST(NameScan, ExpressionNamesIgnoreCase) {
    EXPECT_EQ(ExpressionNames("t1+T1*a b"), (std::vector<std::string>{"T1", "A B"}));
}

TEST(NameScan, ExpressionNameIsItsOwnFormat) {
    EXPECT_EQ(ExpressionNames("1%n"), (std::vector<std::string>{"1"}));
    EXPECT_EQ(ExpressionNames("2%s"), (std::vector<std::string>{"2"}));
    EXPECT_EQ(ExpressionNames("3%99999d"), (std::vector<std::string>{"3"}));
    EXPECT_EQ(ExpressionNames("4%%q"), (std::vector<std::string>{"4%Q"}));
    EXPECT_EQ(ExpressionNames("5%2"), (std::vector<std::string>{"5"}));
    // The test for a duplicate meets what the slot holds, not the name that was written.
    EXPECT_EQ(ExpressionNames("5%2+5%2"), (std::vector<std::string>{"5", "5"}));
    EXPECT_EQ(VariableNames("5%2+5%2"), (std::vector<std::string>{"5%2"}));
}

TEST(NameScan, FaultInAnExpressionKeepsTheBadWord) {
    SetBadWord("");
    int nResult = -1;
    ExpressionNames("a+#bc", &nResult);
    EXPECT_EQ(nResult, 0);
    EXPECT_EQ(KeptWord(), "The variable '#BC' is not known.");
    // A scan of variable names leaves it.
    ScanResult("?");
    EXPECT_EQ(KeptWord(), "The variable '#BC' is not known.");
    ExpressionNames("a+b", &nResult);
    EXPECT_EQ(nResult, 1);
    EXPECT_EQ(KeptWord(), "The variable '#BC' is not known.");
    SetBadWord("");
}

TEST(NameScan, BadWordEndsAtTheLengthLessTheDelimitersPlace) {
    // No delimiter behind the fault: the rest of the text.
    EXPECT_EQ(BadWord("Y1=#ABC"), "#ABC");
    // A delimiter at 2 of 11: the word ends at 9.
    EXPECT_EQ(BadWord("#A+LONGWORD"), "#A+LONGWO");
    // A delimiter at 8 of 10: the word would end at 2, before its start at 6.
    EXPECT_EQ(BadWord("AB+CD*#E+F"), "");
    // A space is a delimiter here, % is none.
    EXPECT_EQ(BadWord("#%B C567"), "#%B C");
    EXPECT_EQ(BadWord("#%BC567"), "#%BC567");
}

TEST(NameScan, BadWordIsCutToItsBuffer) {
    EXPECT_EQ(BadWord("#ABCDEFG", 4), "#AB");
    EXPECT_EQ(BadWord("#ABCDEFG", 1), "");
    EXPECT_EQ(BadWord("#" + std::string(254, 'A')), "#" + std::string(254, 'A'));
    char cUntouched = '?';
    CZDCParser scanner(0, 0, 0, 0);
    scanner.GetBadWord(&cUntouched, 0);
    EXPECT_EQ(cUntouched, '?');
}

TEST(NameScan, AnalysisSortsTheVariables) {
    EXPECT_EQ(Analyze("y1=p2*x3+p1*x1"), (Analysis{1, {1, 3}, {1, 2}, {1}}));
    EXPECT_EQ(Analyze("y2=p24*x6+p10"), (Analysis{1, {6}, {10, 24}, {2}}));
    EXPECT_EQ(Analyze("Y1=X1"), (Analysis{1, {1}, {}, {1}}));
    EXPECT_EQ(Analyze("y1=x1+x2+p1"), (Analysis{1, {1, 2}, {1}, {1}}));
}

TEST(NameScan, AnalysisNeedsAnIndependentAndADependentVariable) {
    EXPECT_EQ(Analyze("p1*x1").nResult, 0);
    EXPECT_EQ(Analyze("y1=p1").nResult, 0);
    EXPECT_EQ(Analyze("y1=").nResult, 0);
}

TEST(NameScan, AnalysisKnowsTheLegalNamesOnly) {
    for (const char* pszName :
         {"x7", "p25", "a", "x0", "p0", "y3", "x01", "x", "p", "xx1", "1e5"}) {
        SCOPED_TRACE(pszName);
        EXPECT_EQ(Analyze("y1=x1*" + std::string(pszName)).nResult, 0);
    }
    for (int i = 1; i <= 24; ++i) {
        EXPECT_EQ(Analyze("y1=x1*p" + std::to_string(i)).nResult, 1);
    }
    for (int i = 1; i <= 6; ++i) EXPECT_EQ(Analyze("y2=x" + std::to_string(i)).nResult, 1);
}

TEST(NameScan, SeveralEquationsAreAnalyzedTogether) {
    char texts[2][NAME_SLOT_SIZE] = {"y1=p1*x1", "y2=y1+p3*x2"};
    int independent[6], parameters[24], dependent[2];
    int nIndependent = 0, nParameters = 0, nDependent = 0;
    const auto analyze = [&](int nTexts) {
        return AnalyzeCustomFunctions(texts, nTexts, independent, &nIndependent, parameters,
                                      &nParameters, dependent, &nDependent);
    };
    EXPECT_EQ(analyze(2), 1);
    EXPECT_EQ(nIndependent, 2);
    EXPECT_EQ(nParameters, 2);
    EXPECT_EQ(parameters[1], 3);
    EXPECT_EQ(nDependent, 2);
    EXPECT_STREQ(texts[1], "Y2=Y1+P3*X2");
    std::strcpy(texts[1], "y2=(x1");
    EXPECT_EQ(analyze(2), 0);
    std::strcpy(texts[1], "y2=b");
    EXPECT_EQ(analyze(2), 0);
    EXPECT_EQ(analyze(1), 1);
    EXPECT_EQ(analyze(0), 0);
}

TEST(NameScan, SeveralEquationsMayFillTheTableOfNames) {
    std::vector<char[NAME_SLOT_SIZE]> texts(6);
    for (int i = 0; i < 6; ++i) {
        std::string strText = "y1=x1";
        for (int n = 0; strText.size() < 250; ++n) {
            strText += "+" + std::string(1, static_cast<char>('a' + i)) + std::to_string(n);
        }
        std::memcpy(texts[i], strText.c_str(), strText.size() + 1);
    }
    int independent[6], parameters[24], dependent[2];
    int nIndependent = 0, nParameters = 0, nDependent = 0;
    EXPECT_EQ(AnalyzeCustomFunctions(texts.data(), 6, independent, &nIndependent, parameters,
                                     &nParameters, dependent, &nDependent),
              0);
}

TEST(NameScan, FormattersHaveRoomForTwoCharacters) {
    const int list[] = {1, 9, 10, 19, 20, 24};
    const char* const names[] = {"P1", "P9", "P1", "P1", "P2", "P2"};
    for (int i = 0; i < 6; ++i) {
        char szBuffer[4] = {'?', '?', '?', '?'};
        EXPECT_EQ(FormatParameterName(szBuffer, list, i), szBuffer);
        EXPECT_STREQ(szBuffer, names[i]);
        EXPECT_EQ(szBuffer[3], '?');
    }
    char szBuffer[CUSTOM_NAME_SIZE];
    EXPECT_STREQ(FormatIndependentName(szBuffer, list, 0), "X1");
    EXPECT_STREQ(FormatDependentName(szBuffer, list, 0), "Y1");
}
