// Compiled resources: reading the bytes that the resource compilers write. The reader believes
// nothing: a file that is cut or malformed gives the entries before the fault and says so.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "zxadlg/headless/types.h"

namespace headless {

// A type or a name: a number or a text.
struct ResourceName {
    bool isNumber = true;
    WORD number = 0;
    std::string text;
};

struct ResourceEntry {
    ResourceName type;
    ResourceName name;
    WORD language = 0;
    const std::uint8_t* data = nullptr;  // within the bytes that were read
    std::size_t size = 0;
};

struct ResourceList {
    std::vector<ResourceEntry> entries;
    bool complete = true;  // false when the bytes end in the middle or make no sense
};

// Reads one or several .res files that follow each other. The bytes must stay where they are.
ResourceList ReadResources(const std::uint8_t* begin, std::size_t size);

// A name as a caller gives it: a number, "#number", or a text.
ResourceName NameFromCaller(LPCSTR name);
bool SameResourceName(const ResourceName& a, const ResourceName& b);

// Text number `id` in a block of 16 strings; false when the block ends before it.
bool StringInBlock(const std::uint8_t* block, std::size_t size, unsigned id, std::string& text);

// The number of bytes from `data` to the end of the resource that it lies in, 0 when it is in none.
std::size_t BytesLeftInResource(const void* data);

}  // namespace headless
