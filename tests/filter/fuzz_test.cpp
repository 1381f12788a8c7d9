// Short runs of the fuzz target's entry: over its corpus, changed by any bytes, and over random
// ones.

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "FilterFuzz.h"
#include "fixtures/FuzzCorpus.h"

namespace {

TEST(Fuzz, RecordsOfEveryFamilyHold) {
    test_support::RunFuzzCorpus({.szFolder = ZX_SOURCE_DIR "/fuzz/filter/corpus",
                                 .nSeeds = 18,
                                 .nChanged = 800,
                                 .uRandom = 43,
                                 .uFirst = 0,
                                 .uLast = 255},
                                FuzzFilter);
}

TEST(Fuzz, RandomRecordsAndTracesHold) {
    std::mt19937 random(20);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<std::size_t> length(0, 400);
    for (int i = 0; i < 4000; ++i) {
        std::vector<std::uint8_t> bytes(length(random));
        for (std::uint8_t& b : bytes) b = static_cast<std::uint8_t>(byte(random));
        // Most records have one filter; all of them together hardly ever fit.
        if (!bytes.empty() && i % 4 != 0) bytes[0] = static_cast<std::uint8_t>(1 << (i % 5));
        FuzzFilter(bytes.data(), bytes.size());
    }
}

}  // namespace
