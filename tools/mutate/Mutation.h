// Read before every other line of a program built for a mutation run: the switch that says whether
// a mutant is the one that runs, and, while the tests' reach is recorded, the note that a test came
// by its place.
#pragma once

#include <type_traits>

namespace zx_mutation {

extern int g_nActive;      // the mutant that runs, from ZX_MUTANT; 0: the code as it is
extern bool g_bRecording;  // ZX_MUTANT_REACH names the file to write

void NoteReached(int nMutant);

inline bool IsActive(int nMutant) {
    if (g_bRecording) NoteReached(nMutant);
    return nMutant == g_nActive;
}

}  // namespace zx_mutation

inline bool ZxM(int nMutant) {
    return zx_mutation::IsActive(nMutant);
}

// In what must stay usable at compile time, where no mutant runs.
constexpr bool ZxMc(int nMutant) {
    return std::is_constant_evaluated() ? false : zx_mutation::IsActive(nMutant);
}
