// A text field of whole numbers: 11 characters, "0123456789+- ".
#pragma once

#include "framework/NumericText.h"

class ADM_IntegerText : public NumericText<IntegerTextFields> {};
