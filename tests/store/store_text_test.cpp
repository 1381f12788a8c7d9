#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "store/StoreText.h"

namespace {

TEST(ParseInts, OneSeparatorStandsBetweenNumbers) {
    std::int32_t anValues[4] = {};
    EXPECT_TRUE(ParseInts("1, 2, 3, 4", anValues, 4));
    EXPECT_EQ(anValues[3], 4);
    EXPECT_TRUE(ParseInts("1;2x-3 4", anValues, 4));
    EXPECT_EQ(anValues[1], 2);
    EXPECT_EQ(anValues[2], -3);
    EXPECT_EQ(anValues[3], 4);
    EXPECT_TRUE(ParseInts("1,2,3,4,5", anValues, 4));
    EXPECT_TRUE(ParseInts("7", anValues, 1));
}

TEST(ParseInts, TextThatEndsTooEarlyFails) {
    std::int32_t anValues[4] = {};
    EXPECT_FALSE(ParseInts("1, 2, 3", anValues, 4));
    EXPECT_FALSE(ParseInts("", anValues, 2));
    EXPECT_FALSE(ParseInts(nullptr, anValues, 2));
}

TEST(ParseInts, WhatIsNoNumberReadsAsZero) {
    std::int32_t anValues[3] = {9, 9, 9};
    EXPECT_TRUE(ParseInts("a,1", anValues, 2));
    EXPECT_EQ(anValues[0], 0);
    EXPECT_EQ(anValues[1], 0);  // the letter served as the separator, and the comma ends this one
}

TEST(ParseFontDefinition, NameIsWhatRemains) {
    LOGFONTA font = {};
    EXPECT_TRUE(ParseFontDefinition("-12,0,0,0,400,0,0,0,1,0,0,0,34,   Arial, Narrow", &font));
    EXPECT_EQ(font.lfHeight, -12);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfCharSet, 1);
    EXPECT_EQ(font.lfPitchAndFamily, 34);
    EXPECT_STREQ(font.lfFaceName, "Arial, Narrow");
}

TEST(ParseFontDefinition, ShortTextLeavesTheFontPartlyFilled) {
    LOGFONTA font = {};
    font.lfWeight = 7;
    EXPECT_FALSE(ParseFontDefinition("-12,5,6", &font));
    EXPECT_EQ(font.lfHeight, -12);
    EXPECT_EQ(font.lfWidth, 5);
    EXPECT_EQ(font.lfEscapement, 0) << "the last number has no separator";
    EXPECT_EQ(font.lfWeight, 7);
    EXPECT_FALSE(ParseFontDefinition("1,2,3,4,5,6,7,8,9,10,11,12,13", &font));
    EXPECT_TRUE(ParseFontDefinition("1,2,3,4,5,6,7,8,9,10,11,12,13,", &font));
    EXPECT_STREQ(font.lfFaceName, "");
    EXPECT_FALSE(ParseFontDefinition(nullptr, &font));
}

TEST(ParseFontDefinition, NameIsCutToItsField) {
    LOGFONTA font = {};
    const std::string sText = "1,2,3,4,5,6,7,8,9,10,11,12,13," + std::string(60, 'n');
    EXPECT_TRUE(ParseFontDefinition(sText.c_str(), &font));
    EXPECT_EQ(std::string(font.lfFaceName), std::string(31, 'n'));
}

TEST(RegistryGuid, ReadsWithAndWithoutWrapping) {
    for (const char* szText :
         {"12345678-9ABC-def0-1122-334455667788", "{12345678-9ABC-def0-1122-334455667788}",
          "\"12345678-9ABC-def0-1122-334455667788\"", "  12345678-9ABC-def0-1122-334455667788",
          "id {  12345678-9ABC-def0-1122-334455667788} rest",
          "12345678-9ABC-def0-1122-334455667788 rest"}) {
        SCOPED_TRACE(szText);
        GUID guid = {};
        ASSERT_TRUE(ReadRegistryGuid(szText, &guid));
        EXPECT_EQ(guid.Data1, 0x12345678u);
        EXPECT_EQ(guid.Data2, 0x9ABC);
        EXPECT_EQ(guid.Data3, 0xDEF0);
        EXPECT_EQ(guid.Data4[0], 0x11);
        EXPECT_EQ(guid.Data4[1], 0x22);
        EXPECT_EQ(guid.Data4[7], 0x88);
        char szBack[64];
        FormatRegistryGuid(guid, szBack, sizeof szBack);
        EXPECT_STREQ(szBack, "12345678-9ABC-DEF0-1122-334455667788");
    }
}

TEST(RegistryGuid, OtherTextsAreRefused) {
    GUID guid = {};
    guid.Data1 = 77;
    for (const char* szText :
         {"", "12345678-9ABC-DEF0-1122-33445566778", "12345678x9ABC-DEF0-1122-334455667788",
          "G2345678-9ABC-DEF0-1122-334455667788", "12345678-9ABC-DEF0-1122-3344556677889",
          "123456789ABCDEF01122334455667788", "1234567-89ABC-DEF0-1122-334455667788"}) {
        EXPECT_FALSE(ReadRegistryGuid(szText, &guid)) << szText;
    }
    EXPECT_FALSE(ReadRegistryGuid(nullptr, &guid));
    EXPECT_EQ(guid.Data1, 77u);
    // Only 63 characters count.
    const std::string sLate = std::string(30, ' ') + "{12345678-9ABC-DEF0-1122-334455667788}";
    EXPECT_FALSE(ReadRegistryGuid(sLate.c_str(), &guid));
    const std::string sEarly = std::string(25, ' ') + "{12345678-9ABC-DEF0-1122-334455667788}";
    EXPECT_TRUE(ReadRegistryGuid(sEarly.c_str(), &guid));
}

}  // namespace
