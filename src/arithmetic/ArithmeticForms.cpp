#include "arithmetic/ArithmeticForms.h"

#include "arithmetic_ids.h"
#include "contract/CDataOptionsInterface.h"

namespace {

constexpr ArithmeticForm kTraces = {.uTemplateId = IDD_ARITHMETIC_TRACES,
                                    .eExpressions = HistoryKind::kTraceExpression,
                                    .szExample = "t1=sin(time*2*pi)",
                                    .bLeftSide = true,
                                    .bSetRules = true,
                                    .bSetModes = true,
                                    .bRegion = true,
                                    .bRows = false,
                                    .bTitle = false};
constexpr ArithmeticForm kColumns = {.uTemplateId = IDD_ARITHMETIC_COLUMNS,
                                     .eExpressions = HistoryKind::kColumnExpression,
                                     .szExample = "A=(B+C)/2+sin(K$9)",
                                     .bLeftSide = true,
                                     .bSetRules = false,
                                     .bSetModes = true,
                                     .bRegion = false,
                                     .bRows = true,
                                     .bTitle = false};
constexpr ArithmeticForm kNewColumn = {.uTemplateId = IDD_ARITHMETIC_NEW_COLUMN,
                                       .eExpressions = HistoryKind::kColumnExpression,
                                       .szExample = "(B+C)/2+sin(K$9)",
                                       .bLeftSide = false,
                                       .bSetRules = false,
                                       .bSetModes = false,
                                       .bRegion = false,
                                       .bRows = true,
                                       .bTitle = true};

}  // namespace

const ArithmeticForm& FormOf(std::uint32_t eDataKind, const ZXADLG_DlgParams& params) {
    if (eDataKind == CDataOptionsInterface::kFileData) return kTraces;
    return params.bNewColumnArithmetic != 0 ? kNewColumn : kColumns;
}

bool WantsTitle(const ArithmeticForm& form, std::uint32_t eDataKind) {
    return form.bTitle && eDataKind == CDataOptionsInterface::kSheetData;
}

const char* ExampleShown(const ArithmeticForm& form, std::uint32_t eDataKind) {
    return eDataKind == CDataOptionsInterface::kSheetData ? form.szExample : kTraces.szExample;
}
