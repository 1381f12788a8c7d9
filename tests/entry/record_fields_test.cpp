// The exported list of a record's fields.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "ZXADLG.h"

namespace {

TEST(ExportedRecordFields, ListTheFieldsOfARecord) {
    const ZXADLG_FieldInfo* fields = nullptr;
    const uint32_t count = ZXADLG_GetRecordFields("ZXADLG_NormalizeOptions", &fields);
    ASSERT_NE(fields, nullptr);
    ASSERT_GE(count, 3u);
    bool found = false;
    for (uint32_t i = 0; i < count; ++i) {
        if (std::string(fields[i].name) != "ePeakRegion") continue;
        found = true;
        EXPECT_EQ(fields[i].offset, offsetof(ZXADLG_NormalizeOptions, ePeakRegion));
        EXPECT_STREQ(fields[i].section, "NormalizeSection");
    }
    EXPECT_TRUE(found);
    EXPECT_EQ(ZXADLG_GetRecordFields("ZXADLG_NormalizeOptions", nullptr), count);
}

TEST(ExportedRecordFields, UnknownRecordsHaveNone) {
    const ZXADLG_FieldInfo other = {};
    const ZXADLG_FieldInfo* fields = &other;
    EXPECT_EQ(ZXADLG_GetRecordFields("Nothing", &fields), 0u);
    EXPECT_EQ(fields, nullptr);
    fields = &other;
    EXPECT_EQ(ZXADLG_GetRecordFields(nullptr, &fields), 0u);
    EXPECT_EQ(fields, nullptr);
    EXPECT_EQ(ZXADLG_GetRecordFields(nullptr, nullptr), 0u);
    EXPECT_EQ(ZXADLG_GetRecordFields("Nothing", nullptr), 0u);
}

}  // namespace
