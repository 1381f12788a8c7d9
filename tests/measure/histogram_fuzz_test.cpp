// A short run of the fuzz target of the histogram's stored settings.

#include "HistogramSectionFuzz.h"
#include "fixtures/FuzzCorpus.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(HistogramSectionFuzz, StoredSettingsOfAnyBytesAreMadeGood) {
    const test_support::ScratchStore scratch;
    test_support::RunFuzzCorpus({.szFolder = ZX_SOURCE_DIR "/fuzz/histogram/corpus",
                                 .nSeeds = 4,
                                 .nChanged = 200,
                                 .uRandom = 41},
                                [&](const std::uint8_t* pData, std::size_t nSize) {
                                    FuzzHistogramSection(pData, nSize, scratch.ProfileFile());
                                });
}

}  // namespace
