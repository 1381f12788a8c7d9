// The table of validation messages and how a message is put together from it.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "framework/ValidationMessages.h"

namespace {

const std::string kBeginning = "Validation Error\r\n\r\n";

std::string Template(int nCode) {
    char szText[512] = "untouched";
    ValidationMessage(nCode, szText, sizeof szText);
    return szText;
}

TEST(ValidatorMessage, EveryCodeHasItsText) {
    struct Row {
        int nCode;
        const char* szText;
    };
    const Row kRows[] = {
        {1, "Value in field '%s' must fall within the range of %d to %d."},
        {2, "The value in field '%s' is not a member of the list of allowable values."},
        {11, "Value must fall within the range %d to %d.  Press OK to edit the value."},
        {12, "The value in this field is not a member of the list of allowable values."},
        {21, "Value in field '%s' must fall within the range of %ld to %ld."},
        {22, "The value in field '%s' is not a member of the list of allowable values."},
        {31, "Value must fall within the range %ld to %ld.  Press OK to edit the value."},
        {32, "The value in this field is not a member of the list of allowable values."},
        {41, "Value in field '%s' must fall within the range of %s to %s."},
        {42, "The value in field '%s' is not a member of the list of allowable values."},
        {51, "Value must fall within the range %s to %s.  Press OK to edit the value."},
        {52, "The value in this field is not a member of the list of allowable values."},
        {61, "Field '%s' must be filled in."},
        {62, "Field '%s' contains characters that are invalid."},
        {63, "Field '%s' must contain characters that are printable."},
        {64, "Field '%s' must be a number."},
        {65, "Field '%s' must contain letters."},
        {66, "Field '%s' must be a valid file name."},
        {67, "Field '%s' must be a valid file path."},
        {68, "Field '%s' must be a valid directory."},
        {71, "This field must be filled in."},
        {72, "This field contains characters that are invalid."},
        {73, "This field must contain characters that are printable."},
        {74, "This field must be a number."},
        {75, "This field must contain letters."},
        {76, "This field must be a valid file name."},
        {77, "This field must be a valid file path."},
        {78, "This field must be a valid directory."},
        {81, "Value in field '%s' must fall within the range of %s to %s."},
        {82, "The value in field '%s' is not a member of the list of allowable values."},
        {91, "Value must fall within the range %s to %s.  Press OK to edit the value."},
        {92, "The value in this field is not a member of the list of allowable values."},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.nCode);
        char szText[512];
        EXPECT_EQ(ValidationMessage(row.nCode, szText, sizeof szText), 1);
        EXPECT_EQ(szText, kBeginning + row.szText);
    }
}

TEST(ValidatorMessage, UnknownCodesGiveAnEmptyText) {
    for (const int nCode :
         {0, 3, 10, 13, 20, 23, 30, 33, 40, 43, 50, 53, 60, 69, 70, 79, 80, 83, 90, 93, -1, 1000}) {
        SCOPED_TRACE(nCode);
        char szText[512] = "old";
        EXPECT_EQ(ValidationMessage(nCode, szText, sizeof szText), 0);
        EXPECT_STREQ(szText, "");
    }
}

TEST(ValidatorMessage, OnlyRangeFormsWithoutANameSpeakOfPressingOk) {
    for (int nCode = 1; nCode <= 100; ++nCode) {
        SCOPED_TRACE(nCode);
        const bool bRangeWithoutName = nCode == 11 || nCode == 31 || nCode == 51 || nCode == 91;
        EXPECT_EQ(Template(nCode).find("Press OK") != std::string::npos, bRangeWithoutName);
    }
}

TEST(ValidatorMessage, IsCutToTheBuffer) {
    char szText[24];
    std::memset(szText, '#', sizeof szText);
    EXPECT_EQ(ValidationMessage(1, szText, 23), 1);
    EXPECT_EQ(std::string(szText), (kBeginning + "Va").substr(0, 22));
    EXPECT_EQ(szText[23], '#');
    EXPECT_EQ(ValidationMessage(1, nullptr, 0), 1);
}

TEST(ValidatorMessage, ArgumentsStandAsTheyAre) {
    char szText[256];
    WriteRangeMessage(kDoubleFamily, "Level %s %d 100%", "0.5", "1", szText, sizeof szText);
    EXPECT_EQ(
        szText,
        kBeginning + "Value in field 'Level %s %d 100%' must fall within the range of 0.5 to 1.");
    WriteValidationMessage(11, szText, sizeof szText, {"1", nullptr});
    EXPECT_EQ(szText,
              kBeginning + "Value must fall within the range 1 to .  Press OK to edit the value.");
    WriteValidationMessage(11, szText, sizeof szText, {});
    EXPECT_EQ(szText,
              kBeginning + "Value must fall within the range  to .  Press OK to edit the value.");
}

TEST(ValidatorMessage, LongAndTextFamiliesTakeArguments) {
    char szText[256];
    WriteRangeMessage(kLongFamily, "Count", "1", "9", szText, sizeof szText);
    EXPECT_EQ(szText, kBeginning + "Value in field 'Count' must fall within the range of 1 to 9.");
    WriteValidationMessage(61, szText, sizeof szText, {"Name"});
    EXPECT_EQ(szText, kBeginning + "Field 'Name' must be filled in.");
}

}  // namespace
