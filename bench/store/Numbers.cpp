// Formatting and parsing of numbers against the C runtime.
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "Benchmarks.h"
#include "Timing.h"
#include "text/NumberFormat.h"

namespace {

constexpr int kValues = 4096;
constexpr int kRepeats = 20;
constexpr int kRounds = 15;

struct Mix {
    const char* szName;
    std::vector<double> values;
};

std::vector<Mix> MakeMixes() {
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> full(0, 1e6);
    std::uniform_real_distribution<double> power(-12, 9);
    std::vector<Mix> mixes = {{"integers", {}},
                              {"three decimals", {}},
                              {"full digits", {}},
                              {"1e-12 to 1e9", {}},
                              {"mix of all", {}}};
    for (int i = 0; i < kValues; ++i) {
        const double adValues[] = {static_cast<double>(random() % 1000000),
                                   static_cast<double>(random() % 10000000) / 1000, full(random),
                                   std::pow(10.0, power(random))};
        for (int n = 0; n < 4; ++n)
            mixes[static_cast<std::size_t>(n)].values.push_back(adValues[n]);
        mixes[4].values.push_back(adValues[i % 4]);
    }
    return mixes;
}

}  // namespace

void MeasureNumbers() {
    for (const Mix& mix : MakeMixes()) {
        std::vector<std::string> texts;
        for (const double dValue : mix.values) {
            char szText[64];
            FormatDouble(dValue, szText, sizeof szText, kFormatSignificant, 0, 15, nullptr);
            texts.push_back(szText);
        }
        const std::vector<double> times =
            Medians(kRounds, {[&] {
                                  for (int n = 0; n < kRepeats; ++n) {
                                      for (const double dValue : mix.values) {
                                          char szText[64];
                                          FormatDouble(dValue, szText, sizeof szText,
                                                       kFormatSignificant, 0, 15, nullptr);
                                          Consume(szText[0]);
                                      }
                                  }
                              },
                              [&] {
                                  for (int n = 0; n < kRepeats; ++n) {
                                      for (const double dValue : mix.values) {
                                          char szText[64];
                                          std::snprintf(szText, sizeof szText, "%.15g", dValue);
                                          Consume(szText[0]);
                                      }
                                  }
                              },
                              [&] {
                                  for (int n = 0; n < kRepeats; ++n) {
                                      for (const std::string& sText : texts) {
                                          double dValue = 0;
                                          ParseDouble(sText.c_str(), &dValue);
                                          Consume(dValue);
                                      }
                                  }
                              },
                              [&] {
                                  for (int n = 0; n < kRepeats; ++n) {
                                      for (const std::string& sText : texts)
                                          Consume(std::strtod(sText.c_str(), nullptr));
                                  }
                              }});
        const std::string sName = mix.szName;
        PrintFigure("FormatDouble, " + sName, times[0] / (kValues * kRepeats) * 1e9, "ns");
        PrintRatio("FormatDouble / snprintf, " + sName, times[0] / times[1], 0.5);
        PrintFigure("ParseDouble, " + sName, times[2] / (kValues * kRepeats) * 1e9, "ns");
        PrintRatio("ParseDouble / strtod, " + sName, times[2] / times[3], 0.5);
    }
}
