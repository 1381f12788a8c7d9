// A short run of the fuzz target of the stored settings of curve fitting.

#include "FitSectionFuzz.h"
#include "fixtures/FuzzCorpus.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(FitSectionFuzz, StoredSettingsOfAnyBytesOpen) {
    const test_support::ScratchStore scratch;
    test_support::RunFuzzCorpus(
        {.szFolder = ZX_SOURCE_DIR "/fuzz/fit/corpus", .nSeeds = 4, .nChanged = 200, .uRandom = 31},
        [&](const std::uint8_t* pData, std::size_t nSize) {
            FuzzFitSection(pData, nSize, scratch.ProfileFile());
        });
}

}  // namespace
