// Which names a text of an equation uses, found with the tokeniser alone: the faults seen here are
// lexical ones. Two uses: a custom function, whose names are fixed (X1 to X6, P1 to P24, Y1 and
// Y2), and an arithmetic expression, which may use any name.
//
// A text is a modifiable buffer: it is folded to upper case in place, which is required, since the
// caller compiles the same buffer afterwards. It is never read beyond its terminator or 256
// characters; as many characters or none are a fault. All operations give 1 or 0 and show nothing.
#pragma once

#include <string>

// The capacity of a table of names. A text of at most 255 characters cannot fill it.
constexpr int NAME_TABLE_SIZE = 288;
// The characters of one slot of the arithmetic name table and of one custom function text.
constexpr int NAME_SLOT_SIZE = 256;

constexpr int CUSTOM_INDEPENDENT_COUNT = 6;
constexpr int CUSTOM_PARAMETER_COUNT = 24;
constexpr int CUSTOM_DEPENDENT_COUNT = 2;
// The buffer of one formatted name. Its size is required: P10 to P19 are cut to P1, P20 to P24 to
// P2.
constexpr int CUSTOM_NAME_SIZE = 3;

// The distinct names of a text, compared exactly and in order of appearance, without PI. The table
// has room for NAME_TABLE_SIZE names.
int CollectVariableNames(char* pszText, std::string* pNames, int* pnCount);

// The same for an arithmetic expression: names are compared without case, and each is written to
// its slot as a format string without arguments. A fault leaves the word where it was met as the
// module's bad word. The table has room for half as many names as the text has characters.
int CollectExpressionNames(char* pszText, char (*pNames)[NAME_SLOT_SIZE], int* pnCount);

// The numbers of the variables that a custom function uses, ascending, into lists with room for 6,
// 24 and 2 of them. 1 when the text can be read, has an independent and a dependent variable and no
// other name.
int AnalyzeCustomFunction(char* pszText, int* pIndependents, int* pnIndependents, int* pParameters,
                          int* pnParameters, int* pDependents, int* pnDependents);

// The same over the names of several equations.
int AnalyzeCustomFunctions(char (*pTexts)[NAME_SLOT_SIZE], int nTexts, int* pIndependents,
                           int* pnIndependents, int* pParameters, int* pnParameters,
                           int* pDependents, int* pnDependents);

// Write the name of a list's variable into a buffer of CUSTOM_NAME_SIZE characters and give the
// buffer.
char* FormatIndependentName(char* pszBuffer, const int* pList, int nIndex);
char* FormatParameterName(char* pszBuffer, const int* pList, int nIndex);
char* FormatDependentName(char* pszBuffer, const int* pList, int nIndex);

// 1 when the name is exactly PI.
int IsPi(const char* pszName);
