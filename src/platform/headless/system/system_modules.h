// Libraries of the system that a program asks for by name although nothing of theirs is a file
// here.
#pragma once

#include <string>

#include "zxadlg/headless/types.h"

namespace headless {

// The library of that name without its ending, or null.
HMODULE SystemModule(const std::string& stem);
bool IsSystemModule(HMODULE module);
// Null, with the error set, for a function that it does not have.
FARPROC SystemFunction(HMODULE module, LPCSTR name);

}  // namespace headless
