// The text fields that step through a list of allowed values.
#pragma once

#include "framework/ADM_DoubleText.h"
#include "framework/ADM_FloatText.h"
#include "framework/ADM_IntegerText.h"
#include "framework/ValueListText.h"

extern template class ValueListText<ADM_IntegerText, IntegerListFields>;
extern template class ValueListText<ADM_FloatText, FloatListFields>;
extern template class ValueListText<ADM_DoubleText, DoubleListFields>;

class ADM_IntegerListText : public ValueListText<ADM_IntegerText, IntegerListFields> {};
class ADM_FloatListText : public ValueListText<ADM_FloatText, FloatListFields> {};
class ADM_DoubleListText : public ValueListText<ADM_DoubleText, DoubleListFields> {};
