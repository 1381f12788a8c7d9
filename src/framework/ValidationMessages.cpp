#include "framework/ValidationMessages.h"

#include <string_view>

#include "text/BoundedText.h"

namespace {

constexpr std::string_view kBeginning = "Validation Error\r\n\r\n";

struct Row {
    int nCode;
    std::string_view sText;
};

constexpr std::string_view kNamedList =
    "The value in field '%s' is not a member of the list of allowable values.";
constexpr std::string_view kUnnamedList =
    "The value in this field is not a member of the list of allowable values.";
constexpr std::string_view kNamedTextRange =
    "Value in field '%s' must fall within the range of %s to %s.";
constexpr std::string_view kUnnamedTextRange =
    "Value must fall within the range %s to %s.  Press OK to edit the value.";

// The range forms without a name have no "of", and they alone end in the words about OK.
constexpr Row kRows[] = {
    {1, "Value in field '%s' must fall within the range of %d to %d."},
    {2, kNamedList},
    {11, "Value must fall within the range %d to %d.  Press OK to edit the value."},
    {12, kUnnamedList},
    {21, "Value in field '%s' must fall within the range of %ld to %ld."},
    {22, kNamedList},
    {31, "Value must fall within the range %ld to %ld.  Press OK to edit the value."},
    {32, kUnnamedList},
    {41, kNamedTextRange},
    {42, kNamedList},
    {51, kUnnamedTextRange},
    {52, kUnnamedList},
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
    {81, kNamedTextRange},
    {82, kNamedList},
    {91, kUnnamedTextRange},
    {92, kUnnamedList},
};

constexpr int kTemplateSize = 512;

// The characters of one conversion at the start of `sRest`: "%s", "%d" or "%ld".
std::size_t ConversionLength(std::string_view sRest) {
    for (const std::string_view sConversion : {"%s", "%d", "%ld"}) {
        if (sRest.starts_with(sConversion)) return sConversion.size();
    }
    return 0;
}

}  // namespace

std::int32_t ValidationMessage(int nCode, char* szBuffer, int nSize) {
    BoundedWriter writer(szBuffer, nSize);
    for (const Row& row : kRows) {
        if (row.nCode != nCode) continue;
        writer.Put(kBeginning);
        writer.Put(row.sText);
        return 1;
    }
    return 0;
}

void WriteValidationMessage(int nCode, char* szMsg, int nMsgSize,
                            std::initializer_list<const char*> args) {
    char szTemplate[kTemplateSize];
    ValidationMessage(nCode, szTemplate, kTemplateSize);
    BoundedWriter writer(szMsg, nMsgSize);
    const auto* ppArg = args.begin();
    for (std::string_view sRest = szTemplate; !sRest.empty();) {
        const std::size_t nConversion = ConversionLength(sRest);
        if (nConversion == 0) {
            writer.Put(sRest.front());
            sRest.remove_prefix(1);
            continue;
        }
        if (ppArg != args.end() && *ppArg != nullptr) writer.Put(*ppArg);
        if (ppArg != args.end()) ++ppArg;
        sRest.remove_prefix(nConversion);
    }
}

void WriteRangeMessage(ValidationFamily family, const char* szField, const char* szMin,
                       const char* szMax, char* szMsg, int nMsgSize) {
    if (szField != nullptr) {
        WriteValidationMessage(family, szMsg, nMsgSize, {szField, szMin, szMax});
    } else {
        WriteValidationMessage(family + kUnnamedField, szMsg, nMsgSize, {szMin, szMax});
    }
}

void WriteListMessage(ValidationFamily family, const char* szField, char* szMsg, int nMsgSize) {
    const int nCode = static_cast<int>(family) + 1;
    if (szField != nullptr) {
        WriteValidationMessage(nCode, szMsg, nMsgSize, {szField});
    } else {
        WriteValidationMessage(nCode + kUnnamedField, szMsg, nMsgSize, {});
    }
}
