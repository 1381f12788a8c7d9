// Profile files of any bytes: an unchanged text keeps every byte, what is set is found again, and
// nothing else changes.
#include <cstdint>
#include <cstdlib>
#include <string>

#include "text/ProfileText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize) {
    const std::string sText(reinterpret_cast<const char*>(pData), nSize);
    ProfileText profile(sText);
    std::string_view sValue;
    profile.Find("Section", "Key", &sValue);
    if (profile.Text() != sText && sText.find_first_of("\r\n") != std::string::npos &&
        profile.IsChanged())
        std::abort();
    std::string_view sOther;
    const bool bOther = profile.Find("Other", "Key", &sOther);
    const std::string sOtherBefore(sOther);
    profile.Set("Section", "Key", "a value");
    profile.Set("Section", "Second", "");
    if (!profile.Find("section", "KEY", &sValue) || sValue != "a value") std::abort();
    const std::string sNew = profile.Text();
    ProfileText again(sNew);
    if (!again.Find("Section", "Key", &sValue) || sValue != "a value") std::abort();
    if (!again.Find("Section", "Second", &sValue) || !sValue.empty()) std::abort();
    if (again.Find("Other", "Key", &sOther) != bOther || (bOther && sOther != sOtherBefore))
        std::abort();
    again.RemoveKey("Section", "Key");
    again.RemoveSection("Other");
    again.ClearSection("Section");
    again.EachSection([](std::string_view) {});
    again.EachEntry("Section", [](std::string_view, std::string_view, bool) { std::abort(); });
    ProfileText last(again.Text());
    last.Find("Section", "Second", &sValue);
    return 0;
}
