// Fields of records that cross the boundary, by name, for showing and comparing them, as the
// library lists them; and the bytes of the parameter record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ZXADLG.h"

namespace zxhost {

struct FieldValue {
    std::string name;
    std::string before;
    std::string after;
    bool changed = false;
};

// Every field of two records of a type, by the name of the type. Numbers are told with the fewest
// digits that give them back, texts in quotes, bytes in hexadecimal.
std::vector<FieldValue> CompareRecords(const char* type, const void* before, const void* after);

// Sets a field by its name as CompareRecords tells it. A value that the field cannot have leaves
// it, with what it can have in `error`.
enum class FieldSetting { kSet, kNoField, kWrongValue };
FieldSetting SetField(const char* type, const std::string& name, const std::string& text,
                      void* record, std::string* error);

// A field, or an array of it as "name[0..5]": what it can be, and the value of the (first) one.
struct FieldLine {
    std::string name;
    std::string limits;
    std::string value;
};
std::vector<FieldLine> DescribeFields(const char* type, const void* record);

// The bytes of the parameter record by their names.
struct ParamName {
    const char* name;
    std::uint8_t ZXADLG_DlgParams::*byte;
    const char* meaning;
};
extern const std::span<const ParamName> kParamNames;

// What a host that offers everything sets.
ZXADLG_DlgParams DefaultParams();
// The selection as a first run shows it: all rows of a sheet, since not every dialog lets the user
// choose them.
ZXADLG_DataOptions DefaultData();

// Applies "name=0/1,name=0/1". On failure false with what is wrong; nothing is changed then.
bool ApplyParams(const std::string& text, ZXADLG_DlgParams* params, std::string* error);

}  // namespace zxhost
