// A short run of the fuzz target of the stored settings of signal processing.

#include "SigprocSectionsFuzz.h"
#include "fixtures/FuzzCorpus.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(SigprocSectionsFuzz, StoredSettingsOfAnyBytesAreMadeGood) {
    const test_support::ScratchStore scratch;
    test_support::RunFuzzCorpus({.szFolder = ZX_SOURCE_DIR "/fuzz/sigproc/corpus",
                                 .nSeeds = 4,
                                 .nChanged = 40,
                                 .uRandom = 37},
                                [&](const std::uint8_t* pData, std::size_t nSize) {
                                    FuzzSigprocSections(pData, nSize, scratch.ProfileFile());
                                });
}

}  // namespace
