// A text field of double-precision numbers: 23 characters, "0123456789+-Ee. ".
#pragma once

#include "framework/NumericText.h"

class ADM_DoubleText : public FloatingText<DoubleTextFields> {};
