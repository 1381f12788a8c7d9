// The typed forms of the store: the text that each writes, and how each reads.
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>

#include "store_test.h"

namespace {

using StoreValues = StoreTest;

TEST_F(StoreValues, BooleansAreWordsOrNumbers) {
    InBothMedia([](const char* szApp) {
        EXPECT_TRUE(WriteBool("S", "B", 7, szApp));
        EXPECT_EQ(Text("S", "B", szApp), "TRUE");
        EXPECT_TRUE(WriteBool8("S", "B", 0, szApp));
        EXPECT_EQ(Text("S", "B", szApp), "FALSE");
        struct Row {
            const char* szText;
            int bValue;
        };
        for (const Row& row :
             {Row{"true", 1}, Row{"TRUE", 1}, Row{"False", 0}, Row{"2", 1}, Row{"0", 0}, Row{"", 0},
              Row{"-1", 1}, Row{"yes", 0}, Row{"trueish", 0}}) {
            SCOPED_TRACE(row.szText);
            WriteString("S", "B", row.szText, szApp);
            std::int32_t bWide = 9;
            std::uint8_t bNarrow = 9;
            EXPECT_TRUE(ReadBool("S", "B", !row.bValue, &bWide, szApp));
            EXPECT_EQ(bWide, row.bValue);
            EXPECT_TRUE(ReadBool8("S", "B", !row.bValue, &bNarrow, szApp));
            EXPECT_EQ(bNarrow, row.bValue);
        }
        std::int32_t bWide = 0;
        EXPECT_FALSE(ReadBool("S", "none", 5, &bWide, szApp));
        EXPECT_EQ(bWide, 5);
    });
}

TEST_F(StoreValues, LargestUnsignedNumbersSurvive) {
    InBothMedia([](const char* szApp) {
        std::uint64_t uLong = 0;
        EXPECT_TRUE(WriteUInt64("S", "U", 18446744073709551615u, szApp));
        EXPECT_EQ(Text("S", "U", szApp), "18446744073709551615");
        EXPECT_TRUE(ReadUInt64("S", "U", 1, &uLong, szApp));
        EXPECT_EQ(uLong, 18446744073709551615u);
        std::uint32_t uValue = 0;
        EXPECT_TRUE(WriteUInt32("S", "U", 4294967295u, szApp));
        EXPECT_EQ(Text("S", "U", szApp), "4294967295");
        EXPECT_TRUE(ReadUInt32("S", "U", 1, &uValue, szApp));
        EXPECT_EQ(uValue, 4294967295u);
    });
}

TEST_F(StoreValues, UnsignedReadsTakeEveryBase) {
    InBothMedia([](const char* szApp) {
        std::uint32_t uValue = 0;
        std::uint64_t uLong = 0;
        WriteString("S", "U", "0x1F", szApp);
        ReadUInt32("S", "U", 1, &uValue, szApp);
        ReadUInt64("S", "U", 1, &uLong, szApp);
        EXPECT_EQ(uValue, 31u);
        EXPECT_EQ(uLong, 31u);
        WriteString("S", "U", "010", szApp);
        ReadUInt32("S", "U", 1, &uValue, szApp);
        EXPECT_EQ(uValue, 8u);
        WriteString("S", "U", "rubbish", szApp);
        EXPECT_TRUE(ReadUInt32("S", "U", 1, &uValue, szApp));
        EXPECT_EQ(uValue, 0u);
        EXPECT_FALSE(ReadUInt64("S", "none", 77, &uLong, szApp));
        EXPECT_EQ(uLong, 77u);
    });
}

TEST_F(StoreValues, HexadecimalNumbersHaveCapitalDigits) {
    InBothMedia([](const char* szApp) {
        EXPECT_TRUE(WriteHex32("S", "H", 0xDEADBEEFu, szApp));
        EXPECT_EQ(Text("S", "H", szApp), "0xDEADBEEF");
        std::uint32_t uValue = 0;
        EXPECT_TRUE(ReadHex32("S", "H", 0, &uValue, szApp));
        EXPECT_EQ(uValue, 0xDEADBEEFu);
        WriteHex32("S", "H", 0, szApp);
        EXPECT_EQ(Text("S", "H", szApp), "0x0");
    });
}

TEST_F(StoreValues, SignedNumbersAreCutToTheirWidth) {
    InBothMedia([](const char* szApp) {
        std::int32_t nValue = 0;
        EXPECT_TRUE(WriteInt32("S", "I", INT_MIN, szApp));
        EXPECT_EQ(Text("S", "I", szApp), "-2147483648");
        EXPECT_TRUE(ReadInt32("S", "I", 0, &nValue, szApp));
        EXPECT_EQ(nValue, INT_MIN);
        EXPECT_TRUE(WriteInt16("S", "I", -2, szApp));
        EXPECT_EQ(Text("S", "I", szApp), "-2");
        EXPECT_TRUE(WriteUInt16("S", "I", 65534, szApp));
        EXPECT_EQ(Text("S", "I", szApp), "65534");
        std::int16_t nShort = 0;
        std::uint16_t uShort = 0;
        EXPECT_TRUE(ReadInt16("S", "I", 0, &nShort, szApp));
        EXPECT_EQ(nShort, -2);
        EXPECT_TRUE(ReadUInt16("S", "I", 0, &uShort, szApp));
        EXPECT_EQ(uShort, 65534);
        WriteString("S", "I", "65537", szApp);
        ReadInt16("S", "I", 0, &nShort, szApp);
        EXPECT_EQ(nShort, 1);
    });
}

TEST_F(StoreValues, RealNumbersKeepSixDigits) {
    InBothMedia([](const char* szApp) {
        double dValue = 0;
        EXPECT_TRUE(WriteDouble("S", "D", 0.123456789, szApp));
        EXPECT_EQ(Text("S", "D", szApp), "0.123457");
        EXPECT_TRUE(ReadDouble("S", "D", 0, &dValue, szApp));
        EXPECT_EQ(dValue, 0.123457);
        WriteDouble("S", "D", 1.23456789, szApp);
        ReadDouble("S", "D", 0, &dValue, szApp);
        EXPECT_EQ(dValue, 1.23457);
        WriteDouble("S", "D", -1e-12, szApp);
        EXPECT_EQ(Text("S", "D", szApp), "-1e-12");
        ReadDouble("S", "D", 0, &dValue, szApp);
        EXPECT_EQ(dValue, -1e-12);
        float fValue = 0;
        EXPECT_TRUE(WriteFloat("S", "F", 0.1f, szApp));
        EXPECT_EQ(Text("S", "F", szApp), "0.1");
        EXPECT_TRUE(ReadFloat("S", "F", 0, &fValue, szApp));
        EXPECT_EQ(fValue, 0.1f);
        WriteString("S", "F", "rubbish", szApp);
        EXPECT_TRUE(ReadFloat("S", "F", 5, &fValue, szApp));
        EXPECT_EQ(fValue, 0.0f);
        EXPECT_FALSE(ReadDouble("S", "none", 2.5, &dValue, szApp));
        EXPECT_EQ(dValue, 2.5);
    });
}

TEST_F(StoreValues, RealNumbersBeyondTheRangeDoNotCrash) {
    InBothMedia([](const char* szApp) {
        double dValue = 0;
        float fValue = 0;
        WriteDouble("S", "D", std::numeric_limits<double>::infinity(), szApp);
        ReadDouble("S", "D", 0, &dValue, szApp);
        EXPECT_TRUE(std::isinf(dValue));
        WriteDouble("S", "D", std::numeric_limits<double>::quiet_NaN(), szApp);
        ReadDouble("S", "D", 0, &dValue, szApp);
        EXPECT_TRUE(std::isnan(dValue));
        WriteString("S", "D", "1e999", szApp);
        ReadDouble("S", "D", 0, &dValue, szApp);
        EXPECT_TRUE(std::isinf(dValue));
        ReadFloat("S", "D", 0, &fValue, szApp);
        EXPECT_TRUE(std::isinf(fValue));
    });
}

TEST_F(StoreValues, RectanglesNeedFourNumbers) {
    InBothMedia([](const char* szApp) {
        const RECT rect = {1, -2, 3, 40};
        EXPECT_TRUE(WriteRect("S", "R", &rect, szApp));
        EXPECT_EQ(Text("S", "R", szApp), "1, -2, 3, 40");
        RECT result = {};
        EXPECT_TRUE(ReadRect("S", "R", nullptr, &result, szApp));
        EXPECT_EQ(result.top, -2);
        EXPECT_EQ(result.bottom, 40);
        const RECT preset = {9, 9, 9, 9};
        WriteString("S", "R", "1, 2, 3", szApp);
        EXPECT_FALSE(ReadRect("S", "R", &preset, &result, szApp));
        EXPECT_EQ(result.left, 9);
        EXPECT_EQ(result.bottom, 9);
        result.left = 5;
        EXPECT_FALSE(ReadRect("S", "none", nullptr, &result, szApp));
        EXPECT_EQ(result.left, 5);
        EXPECT_FALSE(ReadRect("S", "none", &preset, &result, szApp));
        EXPECT_EQ(result.left, 9);
        EXPECT_FALSE(WriteRect("S", "R", nullptr, szApp));
    });
}

TEST_F(StoreValues, PointsNeedTwoNumbers) {
    InBothMedia([](const char* szApp) {
        const POINT point = {-7, 8};
        EXPECT_TRUE(WritePoint("S", "P", &point, szApp));
        EXPECT_EQ(Text("S", "P", szApp), "-7, 8");
        POINT result = {};
        EXPECT_TRUE(ReadPoint("S", "P", nullptr, &result, szApp));
        EXPECT_EQ(result.x, -7);
        EXPECT_EQ(result.y, 8);
        WriteString("S", "P", "5", szApp);
        EXPECT_FALSE(ReadPoint("S", "P", &point, &result, szApp));
        EXPECT_EQ(result.x, -7);
    });
}

TEST_F(StoreValues, FontsKeepEveryField) {
    InBothMedia([](const char* szApp) {
        LOGFONTA font = {-12, 1, 2, 3, 700, 1, 0, 1, 2, 3, 4, 5, 34, "MS Sans Serif"};
        EXPECT_TRUE(WriteFont("S", "F", &font, szApp));
        EXPECT_EQ(Text("S", "F", szApp),
                  "-12, 1, 2, 3, 700, 1, 0, 1, 2, 3, 4, 5, 34, MS Sans Serif");
        LOGFONTA result = {};
        EXPECT_TRUE(ReadFont("S", "F", nullptr, &result, szApp));
        EXPECT_EQ(std::memcmp(&result, &font, sizeof font), 0);
        EXPECT_FALSE(ReadFont("S", "none", &font, &result, szApp));
        EXPECT_STREQ(result.lfFaceName, "MS Sans Serif");
    });
}

TEST_F(StoreValues, BinaryLivesInTheRegistryOnly) {
    const unsigned char abData[] = {0, 1, 255};
    SetUseProfileFile(false);
    EXPECT_TRUE(WriteBinary("S", "B", abData, 3, "App"));
    std::uint32_t nSize = 0;
    EXPECT_TRUE(ReadBinary("S", "B", nullptr, 0, &nSize, "App"));
    EXPECT_EQ(nSize, 3u);
    unsigned char abRead[4] = {9, 9, 9, 9};
    EXPECT_FALSE(ReadBinary("S", "B", abRead, 2, &nSize, "App"));
    EXPECT_TRUE(ReadBinary("S", "B", abRead, 4, nullptr, "App"));
    EXPECT_EQ(std::memcmp(abRead, abData, 3), 0);
    EXPECT_EQ(abRead[3], 9);
    EXPECT_FALSE(ReadBinary("S", "none", abRead, 4, &nSize, "App"));
    EXPECT_EQ(nSize, 0u);
    WriteString("S", "T", "text", "App");
    EXPECT_FALSE(ReadBinary("S", "T", abRead, 4, &nSize, "App"));
    const char* szApp = UseProfile();
    EXPECT_FALSE(WriteBinary("S", "B", abData, 3, szApp));
    EXPECT_FALSE(ReadBinary("S", "B", abRead, 4, &nSize, szApp));
}

TEST_F(StoreValues, EnumerationsAreStoredAsWhatStandsInTheTable) {
    static constexpr std::int32_t kNumbers[] = {10, 20, 40, -1};
    static const char* const kTexts[] = {"None", "Some", "All", ""};
    InBothMedia([](const char* szApp) {
        int nResult = -5;
        EXPECT_TRUE(WriteIntIndex("S", "E", kNumbers, 2, szApp));
        EXPECT_EQ(Text("S", "E", szApp), "40");
        EXPECT_TRUE(ReadIntIndex("S", "E", kNumbers, 0, &nResult, szApp));
        EXPECT_EQ(nResult, 2);
        EXPECT_TRUE(WriteStringIndex("S", "T", kTexts, 1, szApp));
        EXPECT_EQ(Text("S", "T", szApp), "Some");
        EXPECT_TRUE(ReadStringIndex("S", "T", kTexts, 0, &nResult, szApp));
        EXPECT_EQ(nResult, 1);
    });
}

TEST_F(StoreValues, EnumeratedValueOutsideTheTableGivesTheDefault) {
    static constexpr std::int32_t kNumbers[] = {10, 20, -1};
    static const char* const kTexts[] = {"None", "Some", ""};
    InBothMedia([](const char* szApp) {
        int nResult = -5;
        WriteString("S", "E", "30", szApp);
        EXPECT_FALSE(ReadIntIndex("S", "E", kNumbers, 7, &nResult, szApp));
        EXPECT_EQ(nResult, 7);
        WriteString("S", "E", "-1", szApp);
        EXPECT_FALSE(ReadIntIndex("S", "E", kNumbers, 7, &nResult, szApp));
        EXPECT_EQ(nResult, 7);
        EXPECT_FALSE(ReadIntIndex("S", "none", kNumbers, 6, &nResult, szApp));
        EXPECT_EQ(nResult, 6);
        WriteString("S", "T", "some", szApp);
        EXPECT_FALSE(ReadStringIndex("S", "T", kTexts, 7, &nResult, szApp)) << "case counts";
        EXPECT_EQ(nResult, 7);
        EXPECT_FALSE(WriteIntIndex("S", "E", kNumbers, 2, szApp));
        EXPECT_FALSE(WriteIntIndex("S", "E", kNumbers, -1, szApp));
        EXPECT_FALSE(WriteStringIndex("S", "T", kTexts, 2, szApp));
    });
}

TEST_F(StoreValues, EnumeratedTextsHaveAtMostThirtyOneCharacters) {
    const std::string sLong(31, 'n');
    const char* const apszTexts[] = {sLong.c_str(), ""};
    InBothMedia([&](const char* szApp) {
        int nResult = -5;
        WriteString("S", "T", (sLong + "more").c_str(), szApp);
        EXPECT_TRUE(ReadStringIndex("S", "T", apszTexts, 3, &nResult, szApp));
        EXPECT_EQ(nResult, 0);
    });
}

TEST_F(StoreValues, ArraysNumberTheirKeysFromZero) {
    InBothMedia([](const char* szApp) {
        const std::int32_t anValues[] = {5, -6, 7};
        EXPECT_TRUE(WriteInt32Array("S", "Item", anValues, 3, szApp));
        EXPECT_EQ(Text("S", "Item0", szApp), "5");
        EXPECT_EQ(Text("S", "Item2", szApp), "7");
        EXPECT_EQ(Text("S", "Item3", szApp), "(missing)");
        WriteString("S", "Item1", nullptr, szApp);
        std::int32_t anRead[4] = {};
        EXPECT_FALSE(ReadInt32Array("S", "Item", 99, anRead, 4, szApp));
        EXPECT_EQ(anRead[0], 5);
        EXPECT_EQ(anRead[1], 99);
        EXPECT_EQ(anRead[2], 7);
        EXPECT_EQ(anRead[3], 99);
    });
}

TEST_F(StoreValues, ArraysOfEveryType) {
    InBothMedia([](const char* szApp) {
        const std::int32_t abWide[] = {1, 0};
        const std::uint8_t abNarrow[] = {0, 1};
        const float afValues[] = {1.5f, -2};
        const double adValues[] = {0.123456789, 1e9};
        EXPECT_TRUE(WriteBoolArray("S", "W", abWide, 2, szApp));
        EXPECT_TRUE(WriteBool8Array("S", "N", abNarrow, 2, szApp));
        EXPECT_TRUE(WriteFloatArray("S", "F", afValues, 2, szApp));
        EXPECT_TRUE(WriteDoubleArray("S", "D", adValues, 2, szApp));
        EXPECT_EQ(Text("S", "W0", szApp), "TRUE");
        EXPECT_EQ(Text("S", "N0", szApp), "FALSE");
        EXPECT_EQ(Text("S", "D1", szApp), "1e+09");
        std::int32_t abWideRead[2];
        std::uint8_t abNarrowRead[2];
        float afRead[2];
        double adRead[2];
        EXPECT_TRUE(ReadBoolArray("S", "W", 0, abWideRead, 2, szApp));
        EXPECT_TRUE(ReadBool8Array("S", "N", 0, abNarrowRead, 2, szApp));
        EXPECT_TRUE(ReadFloatArray("S", "F", 0, afRead, 2, szApp));
        EXPECT_TRUE(ReadDoubleArray("S", "D", 0, adRead, 2, szApp));
        EXPECT_EQ(abWideRead[0], 1);
        EXPECT_EQ(abNarrowRead[1], 1);
        EXPECT_EQ(afRead[1], -2.0f);
        EXPECT_EQ(adRead[0], 0.123457);
    });
}

TEST_F(StoreValues, ArrayKeysAreCutAtTheirBuffer) {
    const char* szApp = UseProfile();
    const std::string sKey(300, 'k');
    const std::int32_t anValues[] = {1, 2};
    EXPECT_TRUE(WriteInt32Array("S", sKey.c_str(), anValues, 2, szApp));
    // No room is left for the index: the last element stands.
    EXPECT_EQ(Text("S", sKey.substr(0, 259).c_str(), szApp), "2");
}

TEST_F(StoreValues, ArrayWriteGoesOnAfterAFailure) {
    SetUseProfileFile(true);
    const std::int32_t anValues[] = {1, 2};
    EXPECT_FALSE(WriteInt32Array("S", "A", anValues, 2, m_scratch.Folder().c_str()));
}

}  // namespace
