// A short run of the fuzz target of the stored settings.

#include "MeasurementSectionFuzz.h"
#include "fixtures/CorpusRun.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(MeasurementSectionFuzz, StoredSettingsOfAnyBytesKeepTheRules) {
    const test_support::ScratchStore scratch;
    test_support::RunCorpus(ZX_SOURCE_DIR "/fuzz/measure/corpus",
                            [&](const std::uint8_t* pData, std::size_t nSize) {
                                FuzzMeasurementSection(pData, nSize, scratch.ProfileFile());
                            });
}

}  // namespace
