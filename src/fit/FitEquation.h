// The custom function of curve fitting: the equation in the record, its right side that the user
// types, and the list of equations that were used most recently. No window.
#pragma once

#include <string>

#include "fit/CFitOptionsInterface.h"
#include "parser/CustomFunction.h"

// The text behind the first "=" without its blanks; a text without one as it stands.
std::string RightSideOf(const char* szEquation);
// The text without its blanks.
std::string WithoutBlanks(const char* szText);

// Entries of the list that are shown: those of one character are kept and not shown.
bool IsShownEquation(const char* szEquation);
// Stores the nine examples where the list is empty.
void StoreExampleEquations(FitOptions& options);
// An equal text, whatever its letters, moves to the first place in its old spelling; a new one
// pushes the others down and the last one off.
void PutRecentEquation(FitOptions& options, const std::string& sRightSide);

// Checks the right side that the user typed. An accepted one goes into the record and onto the
// list, and the function is another one; a fault leaves the record as it was, and the function not
// compiled. Properties are not read here.
bool CompileEquation(CFitOptionsInterface& fit, const char* szRightSide, bool bReport,
                     CustomFunctionMessages& messages);
