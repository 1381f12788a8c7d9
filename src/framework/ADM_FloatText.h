// A text field of single-precision numbers: 13 characters, "0123456789+-Ee. ".
#pragma once

#include "framework/NumericText.h"

class ADM_FloatText : public FloatingText<FloatTextFields> {};
