// Part of a test program in a mutation run: writes which mutants each test came by. The first line
// holds those that were passed before any test (tables that are set up with the program).
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <vector>

#include "Mutation.h"

namespace zx_mutation {
namespace {

std::vector<bool>& Reached() {
    static std::vector<bool> reached;
    return reached;
}

FILE* g_pFile = nullptr;

void WriteLine(const char* szSuite, const char* szTest, long long nMilliseconds) {
    std::fprintf(g_pFile, "%s.%s %lld", szSuite, szTest, nMilliseconds);
    for (std::size_t i = 0; i < Reached().size(); ++i) {
        if (Reached()[i]) std::fprintf(g_pFile, " %zu", i);
    }
    std::fprintf(g_pFile, "\n");
    std::fflush(g_pFile);
    Reached().clear();
}

class ReachListener final : public testing::EmptyTestEventListener {
  public:
    void OnTestProgramStart(const testing::UnitTest&) override {
        g_pFile = std::fopen(std::getenv("ZX_MUTANT_REACH"), "w");
        if (g_pFile == nullptr) std::abort();
        WriteLine("", "", 0);
    }
    void OnTestEnd(const testing::TestInfo& test) override {
        WriteLine(test.test_suite_name(), test.name(), test.result()->elapsed_time());
    }
    // Objects that a suite shares belong to no one test of it: the next one's line holds them.
};

const bool g_bListens = [] {
    if (g_bRecording) testing::UnitTest::GetInstance()->listeners().Append(new ReachListener);
    return true;
}();

}  // namespace

void NoteReached(int nMutant) {
    const auto uMutant = static_cast<std::size_t>(nMutant);
    if (Reached().size() <= uMutant) Reached().resize(uMutant + 1);
    Reached()[uMutant] = true;
}

}  // namespace zx_mutation
