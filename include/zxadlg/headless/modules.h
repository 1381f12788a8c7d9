// Modules: the program and the shared objects that it loads. A module's compiled resources lie in
// its section zx_resources and are found there without any help; RegisterModule is for bytes that
// lie elsewhere.
//
// LoadLibraryA("X.dll") looks for libX.so and X.so, first beside the library that
// the headless system is, then beside the program, then where the system looks. A
// function that is asked for by number n (MAKEINTRESOURCEA(n)) is the symbol "Ordinal<n>".
#pragma once

#include "zxadlg/headless/types.h"

namespace headless {

// Makes a module of the resources between two addresses, or adds them to the module that the first
// one lies in. Null when the bytes cannot be read as resources.
HMODULE RegisterModule(const void* begin, const void* end);

// Takes back what RegisterModule added at this address.
void UnregisterModule(const void* begin);

}  // namespace headless
