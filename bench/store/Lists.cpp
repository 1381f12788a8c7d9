// Reading list text against a plain loop over the library's own conversion.
#include <charconv>
#include <cstdint>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Timing.h"
#include "text/ListText.h"

namespace {

constexpr int kMost = 10000;
constexpr int kRepeats = 200;
constexpr int kRounds = 15;

// What a list costs at least: each number converted, each range filled in.
int PlainLoop(const std::string& sText, std::vector<std::int32_t>& numbers) {
    std::size_t nCount = 0;
    const char* p = sText.data();
    const char* pEnd = p + sText.size();
    while (p != pEnd) {
        std::int32_t nFirst = 0;
        p = std::from_chars(p, pEnd, nFirst).ptr;
        std::int32_t nLast = nFirst;
        if (pEnd - p > 2 && p[0] == '.') p = std::from_chars(p + 2, pEnd, nLast).ptr;
        for (; nFirst <= nLast && nCount < numbers.size(); ++nFirst) numbers[nCount++] = nFirst;
        if (p != pEnd) ++p;
    }
    return static_cast<int>(nCount);
}

void Measure(const char* szName, const std::string& sText) {
    std::vector<std::int32_t> numbers(kMost);
    const std::vector<double> times = Medians(
        kRounds, {[&] {
                      for (int n = 0; n < kRepeats; ++n)
                          Consume(ParseIndexList(sText.c_str(), numbers.data(), kMost, 0, nullptr,
                                                 nullptr, 0));
                  },
                  [&] {
                      for (int n = 0; n < kRepeats; ++n)
                          Consume(ParseList(sText.c_str(), numbers.data(), kMost, 0, nullptr, 0));
                  },
                  [&] {
                      for (int n = 0; n < kRepeats; ++n) Consume(PlainLoop(sText, numbers));
                  }});
    PrintRatio(std::string("ParseIndexList / from_chars loop, ") + szName, times[0] / times[2],
               1.5);
    PrintRatio(std::string("ParseList / from_chars loop, ") + szName, times[1] / times[2], 1.5);
}

}  // namespace

void MeasureLists() {
    std::string sNumbers;
    for (int i = 0; i < 200; ++i) sNumbers += (i == 0 ? "" : ",") + std::to_string(i * 37 % 9973);
    Measure("200 numbers", sNumbers);
    Measure("a range of 10,000", "1..10000");

    // The text of 10,000 numbers ends where a small buffer is full.
    std::vector<std::int32_t> numbers;
    for (int i = 0; i < kMost; ++i) numbers.push_back(2 * i);
    std::vector<char> large(100000);
    char szSmall[100];
    const std::vector<double> times = Medians(
        kRounds, {[&] {
                      for (int n = 0; n < kRepeats; ++n) {
                          FormatIndexList(szSmall, sizeof szSmall, numbers.data(), kMost, 0);
                          Consume(szSmall[0]);
                      }
                  },
                  [&] {
                      for (int n = 0; n < kRepeats; ++n) {
                          FormatIndexList(large.data(), static_cast<int>(large.size()),
                                          numbers.data(), kMost, 0);
                          Consume(large[0]);
                      }
                  }});
    PrintRatio("FormatIndexList, full at 100 bytes / whole text", times[0] / times[1], 0.05);
}
