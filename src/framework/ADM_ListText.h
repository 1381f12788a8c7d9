// The text fields that step through a list of allowed values.
#pragma once

#include "framework/ADM_DoubleText.h"
#include "framework/ADM_FloatText.h"
#include "framework/ADM_IntegerText.h"
#include "framework/ListText.h"

extern template class ListText<ADM_IntegerText, IntegerListFields>;
extern template class ListText<ADM_FloatText, FloatListFields>;
extern template class ListText<ADM_DoubleText, DoubleListFields>;

class ADM_IntegerListText : public ListText<ADM_IntegerText, IntegerListFields> {};
class ADM_FloatListText : public ListText<ADM_FloatText, FloatListFields> {};
class ADM_DoubleListText : public ListText<ADM_DoubleText, DoubleListFields> {};
