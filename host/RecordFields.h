// Fields of records that cross the boundary, by name, for showing and comparing them; those of the
// data record, and the bytes of the parameter record.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "ZXADLG.h"

namespace zxhost {

enum class FieldType { kU8, kU32, kI32, kDouble, kText, kBytes };

// One field, or an array of it: `count` times, `stride` bytes apart, each shown as "name[i]member".
struct Field {
    const char* name;
    FieldType type;
    std::size_t offset;
    std::size_t size = 0;  // of a text or of bytes
    std::size_t count = 1;
    std::size_t stride = 0;
    const char* member = "";
};

struct FieldValue {
    std::string name;
    std::string before;
    std::string after;
    bool changed = false;
};

extern const std::span<const Field> kDataFields;

// Numbers with the fewest digits that give them back, texts in quotes, bytes in hexadecimal.
std::string FormatField(const Field& field, std::size_t index, const void* record);

// Every field of two records of one kind.
std::vector<FieldValue> CompareRecords(std::span<const Field> fields, const void* before,
                                       const void* after);

// The bytes of the parameter record by their names.
struct ParamName {
    const char* name;
    std::uint8_t ZXADLG_DlgParams::*byte;
    const char* meaning;
};
extern const std::span<const ParamName> kParamNames;

// What a host that offers everything sets.
ZXADLG_DlgParams DefaultParams();

// Applies "name=0/1,name=0/1". On failure false with what is wrong; nothing is changed then.
bool ApplyParams(const std::string& text, ZXADLG_DlgParams* params, std::string* error);

}  // namespace zxhost
