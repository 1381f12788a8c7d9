#include "widgets/TextFormat.h"

#include <charconv>
#include <string_view>

#include "text/BoundedText.h"

namespace {

constexpr int kStringSize = 1024;  // the longest string of the table, with room to spare

// A text that may be a string id: ids have a high word of 0.
class ResourceText {
  public:
    ResourceText(HINSTANCE hInstance, const char* szText) {
        const std::uintptr_t uId = reinterpret_cast<std::uintptr_t>(szText);
        if (uId >> 16 != 0) {
            m_sText = szText;
        } else if (uId != 0) {
            const int nLength =
                LoadStringA(hInstance, static_cast<UINT>(uId), m_szLoaded, kStringSize);
            m_sText =
                std::string_view(m_szLoaded, nLength > 0 ? static_cast<std::size_t>(nLength) : 0);
        }
    }
    ResourceText(const ResourceText&) = delete;
    ResourceText& operator=(const ResourceText&) = delete;

    std::string_view View() const { return m_sText; }

  private:
    char m_szLoaded[kStringSize];
    std::string_view m_sText;
};

void WriteOrdinal(std::uint32_t uMagnitude, bool bNegative, char* szBuffer, int nSize) {
    const std::uint32_t uTens = uMagnitude % 100;
    std::string_view sEnding = "th";
    if (uTens < 11 || uTens > 13) {
        switch (uMagnitude % 10) {
            case 1:
                sEnding = "st";
                break;
            case 2:
                sEnding = "nd";
                break;
            case 3:
                sEnding = "rd";
                break;
            default:
                break;
        }
    }
    char szNumber[12];
    const auto end = std::to_chars(szNumber, szNumber + sizeof szNumber, uMagnitude);
    BoundedWriter writer(szBuffer, nSize);
    if (bNegative) writer.Put('-');
    writer.Put(std::string_view(szNumber, static_cast<std::size_t>(end.ptr - szNumber)));
    writer.Put(sEnding);
}

}  // namespace

void FormatArgs(HINSTANCE hInstance, char* szBuffer, int nSize, const char* szFormat,
                const char* const* ppArgs) {
    BoundedWriter writer(szBuffer, nSize);
    const ResourceText format(hInstance, szFormat);
    const std::string_view sFormat = format.View();
    for (std::size_t i = 0; i < sFormat.size(); ++i) {
        if (sFormat[i] != '%') {
            writer.Put(sFormat[i]);
            continue;
        }
        if (++i == sFormat.size()) break;
        const char ch = sFormat[i];
        if (ch < '0' || ch > '9') {
            writer.Put(ch);
        } else if (ppArgs != nullptr) {
            writer.Put(ResourceText(hInstance, ppArgs[ch - '0']).View());
        }
    }
}

void FormatOrdinal(std::uint32_t uValue, char* szBuffer, int nSize) {
    WriteOrdinal(uValue, false, szBuffer, nSize);
}

void FormatOrdinal(std::int32_t nValue, char* szBuffer, int nSize) {
    const bool bNegative = nValue < 0;
    const std::uint32_t uValue = static_cast<std::uint32_t>(nValue);
    WriteOrdinal(bNegative ? 0u - uValue : uValue, bNegative, szBuffer, nSize);
}
