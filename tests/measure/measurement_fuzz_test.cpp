// A short run of the fuzz target of the stored settings.

#include "MeasurementSectionFuzz.h"
#include "fixtures/FuzzCorpus.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(MeasurementSectionFuzz, StoredSettingsOfAnyBytesKeepTheRules) {
    const test_support::ScratchStore scratch;
    test_support::RunFuzzCorpus({.szFolder = ZX_SOURCE_DIR "/fuzz/measure/corpus",
                                 .nSeeds = 4,
                                 .nChanged = 40,
                                 .uRandom = 37},
                                [&](const std::uint8_t* pData, std::size_t nSize) {
                                    FuzzMeasurementSection(pData, nSize, scratch.ProfileFile());
                                });
}

}  // namespace
