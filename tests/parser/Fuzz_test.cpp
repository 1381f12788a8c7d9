// A short run of the fuzz target: its corpus, mutations of it with a fixed seed, and the sizes at
// the limits.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "EquationFuzz.h"
#include "EquationGenerator.h"

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> ReadCorpus() {
    std::vector<std::filesystem::path> files;
    for (const auto& entry :
         std::filesystem::directory_iterator(ZX_SOURCE_DIR "/fuzz/parser/corpus")) {
        files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    std::vector<Bytes> corpus;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        corpus.emplace_back(std::istreambuf_iterator<char>(stream),
                            std::istreambuf_iterator<char>());
    }
    return corpus;
}

void Fuzz(const Bytes& bytes) {
    // A copy of just its size, so that a reader beyond it is caught.
    const Bytes exact(bytes);
    FuzzEquation(exact.data(), exact.size());
}

}  // namespace

TEST(Fuzz, CorpusRunsThrough) {
    const auto corpus = ReadCorpus();
    ASSERT_GE(corpus.size(), 20u);
    for (const Bytes& bytes : corpus) Fuzz(bytes);
}

TEST(Fuzz, MutatedCorpusRunsThrough) {
    const auto corpus = ReadCorpus();
    EquationGenerator random(5);
    static constexpr char kUseful[] = "+-*/%^=() .0123456789XxPpYyEesinSQRTLOGNORM_$#\n";
    for (int n = 0; n < 4000; ++n) {
        Bytes bytes = corpus[random.Below(static_cast<int>(corpus.size()))];
        for (int nChange = random.Below(6); nChange >= 0; --nChange) {
            const auto nAt =
                static_cast<std::ptrdiff_t>(random.Below(static_cast<int>(bytes.size())));
            const auto uNew = static_cast<std::uint8_t>(
                random.Below(4) == 0 ? random.Below(256)
                                     : kUseful[random.Below(sizeof kUseful - 1)]);
            switch (random.Below(3)) {
                case 0:
                    bytes[nAt] = uNew;
                    break;
                case 1:
                    bytes.insert(bytes.begin() + nAt, uNew);
                    break;
                default:
                    if (bytes.size() > 1) bytes.erase(bytes.begin() + nAt);
            }
        }
        Fuzz(bytes);
    }
}

TEST(Fuzz, RandomEquationsRunThrough) {
    EquationGenerator generator(6);
    for (int n = 0; n < 300; ++n) {
        const std::string strText = static_cast<char>(generator.Below(16)) + generator.RightSide();
        Fuzz(Bytes(strText.begin(), strText.end()));
    }
}

TEST(Fuzz, EveryByteAtEveryClassOfPlace) {
    for (int c = 0; c < 256; ++c) {
        const auto uByte = static_cast<std::uint8_t>(c);
        Fuzz({uByte});
        Fuzz({0, uByte});
        Fuzz({0, 'X', '1', uByte});
        Fuzz({0, 'X', '1', '+', uByte});
        Fuzz({0, '2', uByte, '3'});
        Fuzz({0, '(', uByte, ')'});
        Fuzz({0, 'S', 'I', 'N', uByte, '('});
    }
}

TEST(Fuzz, TextsAtAndBeyondTheLimits) {
    for (const std::size_t nSize :
         {251u, 252u, 253u, 254u, 255u, 256u, 257u, 999u, 1000u, 100000u}) {
        for (const char c : {'(', ')', '-', '+', 'X', '1', '.', ' ', '%', '#', '\0'}) {
            Bytes bytes(nSize + 1, static_cast<std::uint8_t>(c));
            bytes[0] = 0;
            Fuzz(bytes);
        }
    }
}
