// A short run of the fuzz target of the histogram's stored settings: its corpus, and changes of it
// with a fixed seed.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "HistogramSectionFuzz.h"
#include "fixtures/ScratchStore.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> Corpus() {
    std::vector<Bytes> corpus;
    for (const auto& entry :
         std::filesystem::directory_iterator(ZX_SOURCE_DIR "/fuzz/histogram/corpus")) {
        std::ifstream file(entry.path(), std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    std::sort(corpus.begin(), corpus.end());
    return corpus;
}

TEST(HistogramSectionFuzz, StoredSettingsOfAnyBytesAreMadeGood) {
    const test_support::ScratchStore scratch;
    const std::vector<Bytes> corpus = Corpus();
    ASSERT_EQ(corpus.size(), 4u);
    for (const Bytes& bytes : corpus)
        FuzzHistogramSection(bytes.data(), bytes.size(), scratch.ProfileFile());
    std::mt19937 random(41);
    for (int i = 0; i < 200; ++i) {
        Bytes bytes = corpus[random() % corpus.size()];
        for (int k = 0; k < 6; ++k)
            bytes[random() % bytes.size()] = static_cast<std::uint8_t>('*' + random() % 80);
        bytes.resize(bytes.size() - random() % 3);
        FuzzHistogramSection(bytes.data(), bytes.size(), scratch.ProfileFile());
    }
    FuzzHistogramSection(nullptr, 0, scratch.ProfileFile());
}

}  // namespace
