// A library for the tests to load at run time.
#include "platform/platform.h"

extern "C" int AddThree(int value) {
    return value + 3;
}

extern "C" int Ordinal12(int value) {
    return value * 12;
}

// An address within this module.
extern "C" const void* PluginAddress() {
    return reinterpret_cast<const void*>(&AddThree);
}
