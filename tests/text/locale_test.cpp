// A host may set the C runtime's locale to one with a decimal comma. Numbers must not notice.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

#include "text/ListText.h"
#include "text/NumberFormat.h"
#include "text/NumberParse.h"

namespace {

class GermanNumbers : public std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

// Sets what a host can set: the first locale with a decimal comma that the system has, and in any
// case a global C++ locale with one.
class CommaLocale {
  public:
    CommaLocale()
        : m_old(std::locale::global(std::locale(std::locale::classic(), new GermanNumbers))) {
        m_sOld = std::setlocale(LC_ALL, nullptr);
        for (const char* szName : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "German_Germany.1252",
                                   "fr_FR.UTF-8", "German"}) {
            if (std::setlocale(LC_ALL, szName) != nullptr) break;
        }
    }
    ~CommaLocale() {
        std::locale::global(m_old);
        std::setlocale(LC_ALL, m_sOld.c_str());
    }

  private:
    std::locale m_old;
    std::string m_sOld;
};

TEST(HostLocale, DecimalCommaChangesNoNumber) {
    const CommaLocale locale;
    char szText[64];
    FormatDouble(1234.5, szText, 64, kFormatFixed, 2, 0, nullptr);
    EXPECT_STREQ(szText, "1234.50");
    FormatFloat(-0.25f, szText, 64, kFormatSignificant, 0, 6, nullptr);
    EXPECT_STREQ(szText, "-0.25");
    double dValue = 0;
    EXPECT_EQ(ParseDouble("1234.5", &dValue), 0);
    EXPECT_EQ(dValue, 1234.5);
    EXPECT_EQ(ParseDouble("1234,5", &dValue), 3);
    // Long enough to leave the fast way.
    EXPECT_EQ(ParseDouble("1.2500000000000000000000000", &dValue), 0);
    EXPECT_EQ(dValue, 1.25);
    EXPECT_EQ(TextToDouble("1.5"), 1.5);
    EXPECT_EQ(TextToDouble("1,5"), 1.0);
    EXPECT_EQ(TextToInt("1.234"), 1);
    WriteGeneral(1234.5, szText);
    EXPECT_STREQ(szText, "1234.5");
    const std::int32_t anValues[] = {1234, 5678};
    FormatIndexList(szText, 64, anValues, 2, 0);
    EXPECT_STREQ(szText, "1234, 5678");
}

}  // namespace
