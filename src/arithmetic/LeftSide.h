// Where a left side goes in an expression: it takes the place of one that is there, stands in front
// of an expression that has none, and goes to the caret where the user is on the right side.
#pragma once

#include <string>
#include <string_view>

// A part of a text, and what takes its place.
struct TextEdit {
    int nFirst;
    int nEnd;  // behind the last character
    std::string sText;
};

// What puts sLeftSide into an expression whose caret stands at nCaret. With bAddEquals " = " comes
// behind it; a form without left sides gives none and gets the text at the caret.
TextEdit AssignToLeftSide(std::string_view sExpression, int nCaret, std::string_view sLeftSide,
                          bool bAddEquals);

// What stands behind the first "=", without blanks around it; the whole text without one.
std::string_view RightSideOf(std::string_view sExpression);

std::string_view Trimmed(std::string_view sText);

// Whether the last character is an operator.
bool EndsWithOperator(std::string_view sText);
// The index of the last "=", or -1.
int FindLastEquals(std::string_view sText);
