// The check of a custom function, as one operation: from the text in the dialog's box to the
// equation that the host gets and the variables that it uses. The user types the right side only.
//
// The check compiles the equation to find its faults and throws the steps away. The dialog says how
// a message is shown; without messages the same steps run in silence.
#pragma once

#include "parser/NameScan.h"

// How a check ended. The values of three of them are the ids of the strings that tell them.
enum CustomFunctionFault {
    CUSTOM_FUNCTION_GOOD = 0,
    CUSTOM_FUNCTION_NOT_COMPILED = 1,          // nError has the parser's error
    CUSTOM_FUNCTION_NOT_INTERPRETED = 2214,    // a lexical fault or a name that is not legal
    CUSTOM_FUNCTION_MANY_INDEPENDENTS = 2219,  // one is the limit
    CUSTOM_FUNCTION_NO_PARAMETERS = 2226,
};

// A checked function. The equation is kept by every check, and nError; the rest by a good one only.
struct CustomFunction {
    char szEquation[256] = {};  // "y1=" and the text without spaces, in the user's letters
    int nError = 0;
    int nIndependents = 0;
    int nParameters = 0;
    int nDependents = 0;
    int aIndependents[CUSTOM_INDEPENDENT_COUNT] = {};  // the number behind the letter
    int aParameters[CUSTOM_PARAMETER_COUNT] = {};
    int aDependents[CUSTOM_DEPENDENT_COUNT] = {};
    char szIndependents[CUSTOM_INDEPENDENT_COUNT][CUSTOM_NAME_SIZE] = {};
    char szParameters[CUSTOM_PARAMETER_COUNT][CUSTOM_NAME_SIZE] = {};
    char szDependents[CUSTOM_DEPENDENT_COUNT][CUSTOM_NAME_SIZE] = {};
};

// Shows the messages of a check.
class CustomFunctionMessages {
  public:
    // A message of the string table.
    virtual void ShowString(int nStringId) = 0;
    // A message of the parser, as an error message.
    virtual void ShowError(const char* pszText) = 0;

  protected:
    ~CustomFunctionMessages() = default;
};

// Checks the text of the box, of which at most 255 characters are read. Shows the fault when
// bShowMessages is set.
CustomFunctionFault CheckCustomFunction(const char* pszText, bool bShowMessages,
                                        CustomFunctionMessages& messages, CustomFunction& function);

// The values of a custom function at `nPoints` places, for parameters in the order of their
// numbers. Where it has no finite value there is NaN. False, and no values, for a text that a check
// refuses and for fewer parameters than it names.
bool EvaluateCustomFunction(const char* pszText, const double* pParameters, int nParameters,
                            const double* pX, double* pY, int nPoints);
