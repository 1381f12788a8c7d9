#include "parser/NameScan.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "parser/CharacterClass.h"
#include "parser/ParserErrors.h"
#include "parser/ZDCParser.h"
#include "text/FormatExpander.h"

namespace {

using NameTable = std::array<std::string, NAME_TABLE_SIZE>;

bool IsTextLength(const char* pszText) {
    const std::size_t nLength = strnlen(pszText, PARSER_TEXT_LIMIT);
    return nLength > 0 && nLength < PARSER_TEXT_LIMIT;
}

// Calls `name` for each name of the text, and `fault` with the scanner at the first error.
template <class Name, class Fault>
int ScanNames(char* pszText, int* pnCount, Name name, Fault fault) {
    if (!IsTextLength(pszText)) return 0;
    CZDCParser scanner(0, 0, 0, 0);
    scanner.SetText(pszText);
    *pnCount = 0;
    do {
        scanner.NextToken();
        if (scanner.GetError() != PARSER_OK) {
            fault(scanner);
            return 0;
        }
        if (scanner.GetTokenKind() == TOKEN_NAME && !IsPi(scanner.GetToken())) {
            name(scanner.GetToken());
        }
    } while (scanner.GetTokenKind() != TOKEN_END);
    return 1;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return ToUpper(x) == ToUpper(y); });
}

// A letter and a number, cut to a buffer of nSize characters.
char* FormatName(char* pszBuffer, std::size_t nSize, char cLetter, int nNumber) {
    const std::string strName = cLetter + std::to_string(nNumber);
    pszBuffer[strName.copy(pszBuffer, nSize - 1)] = '\0';
    return pszBuffer;
}

std::string LegalName(char cLetter, int nNumber) {
    char szName[4];
    return FormatName(szName, sizeof szName, cLetter, nNumber);
}

bool Contains(const NameTable& names, int nNames, std::string_view name) {
    return std::find(names.begin(), names.begin() + nNames, name) != names.begin() + nNames;
}

void ListVariables(const NameTable& names, int nNames, char cLetter, int nLast, int* pList,
                   int* pnCount) {
    *pnCount = 0;
    for (int i = 1; i <= nLast; ++i) {
        if (Contains(names, nNames, LegalName(cLetter, i))) pList[(*pnCount)++] = i;
    }
}

int Classify(const NameTable& names, int nNames, int* pIndependents, int* pnIndependents,
             int* pParameters, int* pnParameters, int* pDependents, int* pnDependents) {
    ListVariables(names, nNames, 'X', CUSTOM_INDEPENDENT_COUNT, pIndependents, pnIndependents);
    ListVariables(names, nNames, 'P', CUSTOM_PARAMETER_COUNT, pParameters, pnParameters);
    ListVariables(names, nNames, 'Y', CUSTOM_DEPENDENT_COUNT, pDependents, pnDependents);
    if (*pnIndependents == 0 || *pnDependents == 0) return 0;

    std::array<std::string,
               CUSTOM_INDEPENDENT_COUNT + CUSTOM_PARAMETER_COUNT + CUSTOM_DEPENDENT_COUNT>
        legal;
    auto next = legal.begin();
    for (int i = 1; i <= CUSTOM_INDEPENDENT_COUNT; ++i) *next++ = LegalName('X', i);
    for (int i = 1; i <= CUSTOM_PARAMETER_COUNT; ++i) *next++ = LegalName('P', i);
    for (int i = 1; i <= CUSTOM_DEPENDENT_COUNT; ++i) *next++ = LegalName('Y', i);
    return std::all_of(names.begin(), names.begin() + nNames, [&](const std::string& name) {
        return std::find(legal.begin(), legal.end(), name) != legal.end();
    });
}

}  // namespace

int IsPi(const char* pszName) {
    return std::strcmp(pszName, "PI") == 0;
}

int CollectVariableNames(char* pszText, std::string* pNames, int* pnCount) {
    const auto append = [&](const char* pszName) {
        if (std::find(pNames, pNames + *pnCount, pszName) == pNames + *pnCount) {
            pNames[(*pnCount)++] = pszName;
        }
    };
    return ScanNames(pszText, pnCount, append, [](const CZDCParser&) {});
}

int CollectExpressionNames(char* pszText, char (*pNames)[NAME_SLOT_SIZE], int* pnCount) {
    const auto append = [&](const char* pszName) {
        for (int i = 0; i < *pnCount; ++i) {
            if (EqualIgnoringCase(pNames[i], pszName)) return;
        }
        // The name is its own format string, which is required: a % sequence in it is processed.
        ExpandWithoutArguments(pszName, pNames[(*pnCount)++], NAME_SLOT_SIZE);
    };
    return ScanNames(pszText, pnCount, append, [](const CZDCParser& scanner) {
        char szWord[260];
        scanner.GetBadWord(szWord, sizeof szWord);
        SetBadWord(szWord);
    });
}

int AnalyzeCustomFunction(char* pszText, int* pIndependents, int* pnIndependents, int* pParameters,
                          int* pnParameters, int* pDependents, int* pnDependents) {
    NameTable names;
    int nNames = 0;
    if (!CollectVariableNames(pszText, names.data(), &nNames)) return 0;
    return Classify(names, nNames, pIndependents, pnIndependents, pParameters, pnParameters,
                    pDependents, pnDependents);
}

int AnalyzeCustomFunctions(char (*pTexts)[NAME_SLOT_SIZE], int nTexts, int* pIndependents,
                           int* pnIndependents, int* pParameters, int* pnParameters,
                           int* pDependents, int* pnDependents) {
    NameTable merged;
    int nMerged = 0;
    for (int i = 0; i < nTexts; ++i) {
        NameTable names;
        int nNames = 0;
        if (!CollectVariableNames(pTexts[i], names.data(), &nNames)) return 0;
        for (int n = 0; n < nNames; ++n) {
            if (Contains(merged, nMerged, names[n])) continue;
            // Several texts may fill the table; so many names cannot all be legal ones.
            if (nMerged == NAME_TABLE_SIZE) return 0;
            merged[nMerged++] = names[n];
        }
    }
    return Classify(merged, nMerged, pIndependents, pnIndependents, pParameters, pnParameters,
                    pDependents, pnDependents);
}

char* FormatIndependentName(char* pszBuffer, const int* pList, int nIndex) {
    return FormatName(pszBuffer, CUSTOM_NAME_SIZE, 'X', pList[nIndex]);
}
char* FormatParameterName(char* pszBuffer, const int* pList, int nIndex) {
    return FormatName(pszBuffer, CUSTOM_NAME_SIZE, 'P', pList[nIndex]);
}
char* FormatDependentName(char* pszBuffer, const int* pList, int nIndex) {
    return FormatName(pszBuffer, CUSTOM_NAME_SIZE, 'Y', pList[nIndex]);
}
