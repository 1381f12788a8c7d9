#include "Mutation.h"

#include <cstdlib>

namespace zx_mutation {

int g_nActive = 0;
bool g_bRecording = false;

namespace {

// Before the tables of the program are set up, which read the switch.
__attribute__((constructor(101))) void ReadSwitch() {
    if (const char* szMutant = std::getenv("ZX_MUTANT")) g_nActive = std::atoi(szMutant);
    g_bRecording = std::getenv("ZX_MUTANT_REACH") != nullptr;
}

}  // namespace

}  // namespace zx_mutation
