// Texts between UTF-8 and the code page of the dialogs.
#include "System.h"
#include "host_test.h"

namespace {

TEST(Encoding, FindsTheFirstByteThatIsNotUtf8) {
    const std::size_t none = std::string::npos;
    EXPECT_EQ(zxhost::FindWrongByte("plain, µV, Ω, €, \U0001F600"), none);
    EXPECT_EQ(zxhost::FindWrongByte("a\xB5V"), 1u);
    EXPECT_EQ(zxhost::FindWrongByte("ab\xC2"), 2u);            // cut
    EXPECT_EQ(zxhost::FindWrongByte("\xC0\xAF"), 0u);          // too long
    EXPECT_EQ(zxhost::FindWrongByte("x\xE0\x80\xAF"), 1u);     // too long
    EXPECT_EQ(zxhost::FindWrongByte("\xED\xA0\x80"), 0u);      // half of a pair
    EXPECT_EQ(zxhost::FindWrongByte("\xF0\x80\x80\x80"), 0u);  // too long
    EXPECT_EQ(zxhost::FindWrongByte("\xF4\x90\x80\x80"), 0u);  // beyond the last
    EXPECT_EQ(zxhost::FindWrongByte("\xF5\x80\x80\x80"), 0u);
    EXPECT_EQ(zxhost::FindWrongByte("\xE2\x82x"), 0u);
}

TEST(Encoding, GivesTheDialogsTheirOwnBytesAndBack) {
    bool exact = false;
    EXPECT_EQ(zxhost::ToSystem("10 µV at 5 °C, €", &exact),
              "10 \xB5V at 5 \xB0"
              "C, \x80");
    EXPECT_TRUE(exact);
    EXPECT_EQ(zxhost::FromSystem("10 \xB5V at 5 \xB0"
                                 "C, \x80 \x9F"),
              "10 µV at 5 °C, € Ÿ");
    EXPECT_EQ(zxhost::ToSystem("10 Ωm", &exact), "10 ?m");
    EXPECT_FALSE(exact);
    EXPECT_EQ(zxhost::ToSystem("", &exact), "");
    EXPECT_TRUE(exact);
    for (int byte = 1; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        const std::string text = zxhost::FromSystem(one);
        EXPECT_EQ(zxhost::FindWrongByte(text), std::string::npos) << byte;
        if (byte < 0x80 || byte >= 0xA0) {
            EXPECT_EQ(zxhost::ToSystem(text), one) << byte;
        }
    }
}

class HostEncoding : public host_test::HostTest {};

TEST_F(HostEncoding, NamesAndUnitsReachTheDialogAndComeBack) {
    // The folder is named in ASCII; the file is not.
    std::string data = scratch.File("x");
    data.back() = '\xC2';
    data += "\xB5.csv";
    std::ofstream(zxhost::PathOf(data), std::ios::binary)
        << "Zeit (µs),Strom µ (µA)\n0,1.5\n1,2\n2,3\n";
    ASSERT_EQ(Play("tab Data\nexpect item 2189 \"Strom µ\"\ntab Options\nok\n", {"--data", data}),
              0)
        << err;
    EXPECT_TRUE(OutHas("data: µ.csv: 1 signal (Strom µ in µA), 1 sweep, 3 points at 1000 kHz"))
        << out;
    EXPECT_TRUE(OutHas("  aGroups[0].szName: \"\" -> \"Strom µ\"\n")) << out;
}

}  // namespace
