#include "arithmetic/PickLists.h"

#include <iterator>
#include <utility>

#include "arithmetic_ids.h"
#include "widgets/FrameworkSetup.h"

namespace {

constexpr int kMostOperatorText = 24;
constexpr int kFirstOperatorShown = 1;

struct OperatorRow {
    UINT nStringId;
    char chOperator;
};
constexpr OperatorRow kOperators[] = {
    {IDS_OPERATOR_EQUALS, '='},   {IDS_OPERATOR_ADD, '+'},    {IDS_OPERATOR_SUBTRACT, '-'},
    {IDS_OPERATOR_MULTIPLY, '*'}, {IDS_OPERATOR_DIVIDE, '/'}, {IDS_OPERATOR_POWER, '^'},
};

constexpr const char* kFunctions[] = {
    "arcos()", "arsin()", "artan()",  "cos()",    "diff()", "exp()",  "intg()", "inv()",  "ln()",
    "log()",   "norm()",  "normax()", "normin()", "ramp()", "rect()", "sin()",  "sqrt()", "tan()",
};

constexpr const char* kTraceConstants[] = {"_time", "_maxtime", "_pi"};
constexpr const char* kColumnConstants[] = {"_row", "_maxrows", "_pi"};

template <std::size_t N>
const char* TextOf(const char* const (&texts)[N], int nPick) {
    return nPick >= 0 && std::cmp_less(nPick, N) ? texts[nPick] : "";
}

}  // namespace

void COperatorComboBox::BuildMenu() {
    for (int i = kFirstOperatorShown; std::cmp_less(i, std::size(kOperators)); ++i) {
        char szText[kMostOperatorText + 1] = {};
        LoadStringA(GetFrameworkInstance(), kOperators[i].nStringId, szText, sizeof szText);
        AppendPick(i, szText);
    }
}

void COperatorComboBox::GetOperator(WORD* puOperator) const {
    if (m_nPick < 0 || std::cmp_greater_equal(m_nPick, std::size(kOperators))) return;
    *puOperator = static_cast<WORD>(kOperators[m_nPick].chOperator);
}

void CFunctionComboBox::BuildMenu() {
    for (int i = 0; std::cmp_less(i, std::size(kFunctions)); ++i) AppendPick(i, kFunctions[i]);
}

LPCSTR CFunctionComboBox::GetFunction() const {
    return TextOf(kFunctions, m_nPick);
}

void CSpecialComboBox::BuildMenu() {
    for (int i = 0; std::cmp_less(i, std::size(kTraceConstants)); ++i)
        AppendPick(i, m_bColumnNames ? kColumnConstants[i] : kTraceConstants[i]);
}

LPCSTR CSpecialComboBox::GetConstant() const {
    return TextOf(m_bColumnNames ? kColumnConstants : kTraceConstants, m_nPick);
}
