// Numbers out of text: the same as the library of the language gives, whatever the way.
#include "Numbers.h"

#include <gtest/gtest.h>

#include <charconv>
#include <cmath>
#include <cstring>
#include <random>
#include <string>

namespace {

// Where the number ends, or -1.
int Read(const std::string& text, double* value) {
    const char* stop = zxhost::ReadDecimal(text.data(), text.data() + text.size(), value);
    return stop == nullptr ? -1 : static_cast<int>(stop - text.data());
}

TEST(ReadDecimal, EndsWhereTheNumberEnds) {
    double value = 0.0;
    EXPECT_EQ(Read("12.5,3", &value), 4);
    EXPECT_EQ(value, 12.5);
    EXPECT_EQ(Read("-7 ", &value), 2);
    EXPECT_EQ(value, -7.0);
    EXPECT_EQ(Read("2e3;", &value), 3);
    EXPECT_EQ(value, 2000.0);
    EXPECT_EQ(Read(".5", &value), 2);
    EXPECT_EQ(value, 0.5);
    EXPECT_EQ(Read("5.", &value), 2);
    EXPECT_EQ(value, 5.0);
    EXPECT_EQ(Read("1.2.3", &value), 3);
    EXPECT_EQ(value, 1.2);
    for (const char* text : {"", "-", ".", "-.", "x", "+1", "nan", "inf", "1e999"})
        EXPECT_EQ(Read(text, &value), -1) << text;
    EXPECT_EQ(Read("-0", &value), 2);
    EXPECT_TRUE(std::signbit(value));
}

TEST(ReadDecimal, GivesTheNearestDouble) {
    std::mt19937_64 random(3);
    for (int i = 0; i < 200000; ++i) {
        const double source = static_cast<double>(static_cast<std::int64_t>(random())) /
                              static_cast<double>(std::uint64_t{1} << (random() % 63));
        char text[400];
        const auto form = random() % 2 ? std::chars_format::fixed : std::chars_format::general;
        const int digits = static_cast<int>(random() % 19);
        char* end = std::to_chars(text, text + sizeof text, source, form, digits).ptr;
        double wanted = 0.0, value = 0.0;
        std::from_chars(text, end, wanted);
        ASSERT_EQ(zxhost::ReadDecimal(text, end, &value), end) << std::string(text, end);
        ASSERT_EQ(std::memcmp(&value, &wanted, sizeof value), 0) << std::string(text, end);
    }
}

TEST(ShortNumber, HasSixDigitsAtMost) {
    EXPECT_EQ(zxhost::ShortNumber(0.25), "0.25");
    EXPECT_EQ(zxhost::ShortNumber(199.9), "199.9");
    EXPECT_EQ(zxhost::ShortNumber(1234567.0), "1.23457e+06");
}

}  // namespace
