// A short run of the fuzz target of arithmetic over its corpus.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

#include "ArithmeticFuzz.h"
#include "fixtures/ScratchStore.h"
#include "store/ProfileStore.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> Corpus() {
    std::vector<Bytes> corpus;
    for (const auto& entry :
         std::filesystem::directory_iterator(ZX_SOURCE_DIR "/fuzz/arithmetic/corpus")) {
        std::ifstream file(entry.path(), std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    std::sort(corpus.begin(), corpus.end());
    return corpus;
}

TEST(ArithmeticFuzz, ExpressionsAndSettingsOfAnyBytesAreTaken) {
    const bool bUsedFile = SetUseProfileFile(true);
    const test_support::ScratchStore scratch;
    const std::vector<Bytes> corpus = Corpus();
    ASSERT_GE(corpus.size(), 5u);
    for (const Bytes& bytes : corpus)
        FuzzArithmetic(bytes.data(), bytes.size(), scratch.ProfileFile());
    std::mt19937 random(41);
    for (int i = 0; i < 200; ++i) {
        Bytes bytes = corpus[random() % corpus.size()];
        for (int k = 0; k < 4; ++k)
            bytes[random() % bytes.size()] = static_cast<std::uint8_t>(random());
        bytes.resize(bytes.size() - random() % 3);
        FuzzArithmetic(bytes.data(), bytes.size(), scratch.ProfileFile());
    }
    FuzzArithmetic(nullptr, 0, scratch.ProfileFile());
    SetUseProfileFile(bUsedFile);
}

}  // namespace
