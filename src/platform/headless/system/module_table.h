// The table behind module handles. Private to the headless system.
#pragma once

#include <string>

#include "platform/headless/system/resources.h"

namespace headless {

// The program, as GetModuleHandleA(NULL) gives it.
HINSTANCE ProgramModule();
// The module that this code is linked into, whose folder LoadLibraryA searches first.
HINSTANCE OwnModule();

// The entry for a type and name; null for none. A module of null means the program.
const ResourceEntry* FindEntry(HMODULE module, const ResourceName& type, const ResourceName& name);

}  // namespace headless
