// The fields of the records that cross the boundary, as data: for a host that shows, compares,
// documents or scripts records without a table of its own.
#pragma once

#include <stdint.h>

enum ZXADLG_FieldType {
    ZXADLG_FIELD_BOOL8 = 0,
    ZXADLG_FIELD_BOOL32 = 1,
    ZXADLG_FIELD_U32 = 2,
    ZXADLG_FIELD_I32 = 3,
    ZXADLG_FIELD_FLOAT = 4,
    ZXADLG_FIELD_DOUBLE = 5,
    ZXADLG_FIELD_TEXT = 6,  // characters with a final zero
    ZXADLG_FIELD_BYTES = 7
};

// One field, or an array of it: `count` times, `stride` bytes apart. In an array of arrays the
// inner one has `innerCount` entries of `size` bytes each; 1 elsewhere. All texts live as long as
// the library is loaded.
struct ZXADLG_FieldInfo {
    const char* name;     // in the record; of an array, its name
    const char* member;   // what an element of the array that is a record has; null elsewhere
    const char* section;  // of the store; null: the section is that of the analysis
    const char* key;      // in the store, with "%d" for numbers that count from 0; null: not kept
    int32_t type;         // a ZXADLG_FieldType
    uint32_t offset;      // in the record, in bytes
    uint32_t size;        // of one field, in bytes
    uint32_t count;
    uint32_t stride;
    uint32_t innerCount;
};
