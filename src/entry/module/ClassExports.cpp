// The special members of the two abstract classes, under the decorated names of both kinds of
// compiler.
//
// A host class derives from them, so that its constructor calls ours with the host's object; all
// that there is to construct is the table, which the host's own replaces at once. Our table answers
// every operation with null, so that a call in between (from the constructor of a host class) does
// no harm. The names are given in the module's definition file; the functions have the calling
// convention of members.

#include <cstddef>

#include "platform/platform.h"

namespace {

constexpr std::size_t kDataSourcePlaces = 33;
constexpr std::size_t kFileSourcePlaces = 7;

struct Object {
    const void* const* table;
};

}  // namespace

extern "C" {

// The operations of a class that nobody has implemented. Arguments are removed by the caller's
// compiler for the convention of members, so that there is one function for each count of argument
// words.
std::size_t __thiscall ZxNothing0(Object*) {
    return 0;
}
std::size_t __thiscall ZxNothing1(Object*, std::size_t) {
    return 0;
}
std::size_t __thiscall ZxNothing2(Object*, std::size_t, std::size_t) {
    return 0;
}
std::size_t __thiscall ZxNothing3(Object*, std::size_t, std::size_t, std::size_t) {
    return 0;
}
std::size_t __thiscall ZxNothing4(Object*, std::size_t, std::size_t, std::size_t, std::size_t) {
    return 0;
}
double __thiscall ZxNothingDouble(Object*) {
    return 0.0;
}
// Place 0, the deleting destructor: the memory is the host's.
void* __thiscall ZxDeleteSelf(Object* self, unsigned) {
    return self;
}

#define ZX_AT(function) reinterpret_cast<const void*>(&function)

// One null word in front of the first operation, where a compiler keeps its type information.
extern const void* const ZxDataSourceTable[1 + kDataSourcePlaces];
const void* const ZxDataSourceTable[1 + kDataSourcePlaces] = {
    nullptr,
    ZX_AT(ZxDeleteSelf),
    ZX_AT(ZxNothing0),       // GetProfileName
    ZX_AT(ZxNothing4),       // GetXValues
    ZX_AT(ZxNothing4),       // GetYValues
    ZX_AT(ZxNothing4),       // GetPointCount
    ZX_AT(ZxNothing0),       // GetGroupCount
    ZX_AT(ZxNothing1),       // GetSetCount
    ZX_AT(ZxNothing1),       // GetGroupCode
    ZX_AT(ZxNothing0),       // Reserved8
    ZX_AT(ZxNothing0),       // GetGroupLabel
    ZX_AT(ZxNothing0),       // GetSetLabel
    ZX_AT(ZxNothing1),       // GetGroupName
    ZX_AT(ZxNothing2),       // GetSetName
    ZX_AT(ZxNothing2),       // GetUnits
    ZX_AT(ZxNothing0),       // Reserved14
    ZX_AT(ZxNothing0),       // GetDataKind
    ZX_AT(ZxNothingDouble),  // GetSamplingFrequency
    ZX_AT(ZxNothing0),       // GetRegionCount
    ZX_AT(ZxNothing0),       // GetEpochCount
    ZX_AT(ZxNothing0),       // GetBlobSize
    ZX_AT(ZxNothing1),       // GetActiveSet
    ZX_AT(ZxNothing0),       // GetActiveGroup
    ZX_AT(ZxNothing1),       // GetRegionName
    ZX_AT(ZxNothing2),       // GetEpochName
    ZX_AT(ZxNothing4),       // GetRegionInfo
    ZX_AT(ZxNothing1),       // IsGroupVisible
    ZX_AT(ZxNothing2),       // IsSetVisible
    ZX_AT(ZxNothing2),       // CopyBlob
    ZX_AT(ZxNothing0),       // IsSegmented
    ZX_AT(ZxNothing1),       // GetRegionId
    ZX_AT(ZxNothing0),       // HasUserList
    ZX_AT(ZxNothing1),       // GetCursor
    ZX_AT(ZxNothing2),       // SetCursor
};

extern const void* const ZxFileSourceTable[1 + kFileSourcePlaces];
const void* const ZxFileSourceTable[1 + kFileSourcePlaces] = {
    nullptr,           ZX_AT(ZxDeleteSelf),
    ZX_AT(ZxNothing0),  // GetGroupCount
    ZX_AT(ZxNothing0),  // GetFileHandle
    ZX_AT(ZxNothing1),  // GetGroupName
    ZX_AT(ZxNothing3),  // GetTitle
    ZX_AT(ZxNothing1),  // BrowseForFile
    ZX_AT(ZxNothing1),  // SelectFile
};

#undef ZX_AT

// The exported name of a table stands for its first operation, behind the null word: that is the
// address which an object holds and which a compiler stores by itself when it knows the table.
#define ZX_TEXT_OF(value) #value
#define ZX_TEXT(value) ZX_TEXT_OF(value)
#define ZX_NAME_OPERATIONS(operations, table)                    \
    __asm__(".globl " ZX_TEXT(__USER_LABEL_PREFIX__) #operations \
            "\n"                                                 \
            ".set " ZX_TEXT(__USER_LABEL_PREFIX__) #operations   \
            ", " ZX_TEXT(__USER_LABEL_PREFIX__) #table " + " ZX_TEXT(__SIZEOF_POINTER__) "\n")

ZX_NAME_OPERATIONS(ZxDataSourceOperations, ZxDataSourceTable);
ZX_NAME_OPERATIONS(ZxFileSourceOperations, ZxFileSourceTable);

#undef ZX_NAME_OPERATIONS
#undef ZX_TEXT
#undef ZX_TEXT_OF

Object* __thiscall ZxDataSourceConstruct(Object* self) {
    self->table = ZxDataSourceTable + 1;
    return self;
}
Object* __thiscall ZxDataSourceCopy(Object* self, const Object&) {
    return ZxDataSourceConstruct(self);
}
void __thiscall ZxDataSourceDestroy(Object* self) {
    self->table = ZxDataSourceTable + 1;
}
Object* __thiscall ZxDataSourceAssign(Object* self, const Object&) {
    return self;
}

Object* __thiscall ZxFileSourceConstruct(Object* self) {
    self->table = ZxFileSourceTable + 1;
    return self;
}
Object* __thiscall ZxFileSourceCopy(Object* self, const Object&) {
    return ZxFileSourceConstruct(self);
}
void __thiscall ZxFileSourceDestroy(Object* self) {
    self->table = ZxFileSourceTable + 1;
}
Object* __thiscall ZxFileSourceAssign(Object* self, const Object&) {
    return self;
}

}  // extern "C"
