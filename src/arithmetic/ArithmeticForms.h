// The three forms of the arithmetic dialog, as a table: what each edits, shows and remembers.
#pragma once

#include <cstdint>
#include <span>

#include "arithmetic/ExpressionHistory.h"
#include "platform/platform.h"
#include "zxadlg/DlgParams.h"

struct ArithmeticForm {
    UINT uTemplateId;
    HistoryKind eExpressions;
    const char* szExample;  // of an expression, the first entry of an empty history
    bool bLeftSide;         // expressions may have one; an assigned one gets an "="
    bool bSetRules;         // visible, all and active sets can be chosen
    bool bSetModes;         // a list can be typed instead of selected
    bool bRegion;           // an analysis region can be chosen
    bool bRows;             // a range of rows can be chosen
    bool bTitle;            // there is a box for the title of the new column
};

// The form for a kind of data. A host that asks for a new column of a data file gets none.
const ArithmeticForm& FormOf(std::uint32_t eDataKind, const ZXADLG_DlgParams& params);

// Whether the form wants the title of a new column: only a sheet's column has one that must be
// given and is remembered.
bool WantsTitle(const ArithmeticForm& form, std::uint32_t eDataKind);

// The expression that the example line shows. What is not a sheet has the one of traces, in every
// form.
const char* ExampleShown(const ArithmeticForm& form, std::uint32_t eDataKind);
