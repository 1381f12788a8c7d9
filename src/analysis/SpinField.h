// A number with all that belongs to it: its label, its field, the arrows beside the field and its
// unit.
#pragma once

#include "framework/ADM_Spinner.h"
#include "framework/ADM_StaticText.h"

struct SpinFieldIds {
    int nLabel, nField, nSpin, nUnit;
};

template <class Field>
struct SpinField {
    ADM_Static lbl;
    Field txt;
    ADM_Spinner spn;
    ADM_StaticText unit;
};
