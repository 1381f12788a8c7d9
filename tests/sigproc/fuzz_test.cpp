// A short run of the fuzz target of the stored settings.

#include "SigprocSectionsFuzz.h"
#include "fixtures/CorpusRun.h"
#include "fixtures/ScratchStore.h"

namespace {

TEST(SigprocSectionsFuzz, StoredSettingsOfAnyBytesAreMadeGood) {
    const test_support::ScratchStore scratch;
    test_support::RunCorpus(ZX_SOURCE_DIR "/fuzz/sigproc/corpus",
                            [&](const std::uint8_t* pData, std::size_t nSize) {
                                FuzzSigprocSections(pData, nSize, scratch.ProfileFile());
                            });
}

}  // namespace
