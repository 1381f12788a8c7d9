// The fields of the option records, by name: one table per record, in the record's order.
#pragma once

#include <span>

#include "RecordFields.h"

namespace zxhost {

// Of the option record of this type; every record that Analyses.cpp names has a table.
template <class Record>
std::span<const Field> OptionFields();

}  // namespace zxhost
