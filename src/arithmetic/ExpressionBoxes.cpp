#include "arithmetic/ExpressionBoxes.h"

#include "arithmetic/LeftSide.h"

void CArithmeticEquationComboBox::InsertText(std::string_view sText) {
    FocusEdit();
    int nStart, nEnd;
    GetSelection(&nStart, &nEnd);
    if (nEnd > nStart && nStart >= 0 && nStart < GetWindowTextLength())
        SendEdit(WM_CHAR, VK_BACK, 1);
    for (const char c : sText) SendEdit(WM_CHAR, static_cast<unsigned char>(c), 1);
}

void CArithmeticEquationComboBox::InsertOperator(char chOperator) {
    InsertText(std::string_view(&chOperator, 1));
}

void CArithmeticEquationComboBox::InsertFunction(std::string_view sText) {
    InsertText(sText);
    int nStart, nEnd;
    GetSelection(&nStart, &nEnd);
    if (nEnd > 0) Select(nEnd - 1, nEnd - 1);
}

void CArithmeticEquationComboBox::InsertConstant(std::string_view sText) {
    InsertText(sText);
}

void CArithmeticEquationComboBox::AssignLeftSide(std::string_view sText, bool bAddEquals) {
    FocusEdit();
    int nStart, nEnd;
    GetSelection(&nStart, &nEnd);
    const TextEdit edit = AssignToLeftSide(GetText(), nStart, sText, bAddEquals);
    Select(edit.nFirst, edit.nEnd);
    SendEdit(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(edit.sText.c_str()));
}

bool CArithmeticEquationComboBox::EndsWithOperator() const {
    return ::EndsWithOperator(GetText());
}

int CArithmeticEquationComboBox::FindLastEquals() const {
    return ::FindLastEquals(GetText());
}
