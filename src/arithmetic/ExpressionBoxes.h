// The box in which an arithmetic expression is written, and the one of the title of a new column.
//
// What the pick lists insert is typed into the edit, so that its own undo and the dialog's watch on
// typed characters work.
#pragma once

#include <string_view>

#include "arithmetic/CHistoryComboBox.h"

class CArithmeticEquationComboBox : public CHistoryComboBox {
  public:
    // Replaces the selection and leaves the caret behind what was inserted.
    void InsertText(std::string_view sText);
    void InsertOperator(char chOperator);
    // Leaves the caret between the parentheses that the text ends with.
    void InsertFunction(std::string_view sText);
    void InsertConstant(std::string_view sText);
    // Puts a left side where it belongs; see LeftSide.h.
    void AssignLeftSide(std::string_view sText, bool bAddEquals);

    // Whether the last character of the text is an operator.
    bool EndsWithOperator() const;
    // The index of the last "=", or -1.
    int FindLastEquals() const;
};

class CDescriptionComboBox : public CHistoryComboBox {};
