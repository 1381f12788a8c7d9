#include "contract/OptionTable.h"

#include <algorithm>
#include <charconv>
#include <cstring>

#include "store/ProfileStore.h"
#include "store/StoreBatch.h"
#include "text/BoundedText.h"

namespace {

// A key with no number in it stands as it is, whatever its length.
const char* KeyName(const char* szKey, std::uint32_t uIndex, std::uint32_t uInner) {
    return std::strchr(szKey, '%') == nullptr ? szKey : FormatOptionKey(szKey, uIndex, uInner);
}

// Calls visit(key, field offset) for every key of the section, in order.
template <class Visit>
void Walk(const OptionSection& section, Visit visit) {
    for (const OptionBlock& block : section.blocks) {
        for (std::uint32_t i = 0; i < block.uRepeat; ++i) {
            for (const OptionKey& key : block.keys) {
                const std::uint32_t uInner = key.uInner == 0 ? 1 : key.uInner;
                for (std::uint32_t j = 0; j < uInner; ++j) {
                    visit(key, KeyName(key.szKey, i, j),
                          key.uOffset + i * key.uStride + j * key.uInnerStride);
                }
            }
        }
    }
}

// Room for the longest text field and a final zero.
constexpr std::size_t kLongestText = 1024;

// A field is copied out and in, since a packed record may hold it at any address.
template <class T>
T Get(const void* pField) {
    T value;
    std::memcpy(&value, pField, sizeof value);
    return value;
}

template <class T, class Read>
void LoadField(void* pField, Read read) {
    T value = Get<T>(pField);
    if (read(value, &value)) std::memcpy(pField, &value, sizeof value);
}

void LoadKey(const char* szProfile, const char* szSection, const char* szKey, const OptionKey& key,
             void* pField) {
    switch (key.eType) {
        case OptionType::kBool8:
            return LoadField<std::uint8_t>(pField, [&](std::uint8_t b, std::uint8_t* p) {
                return ReadBool8(szSection, szKey, b, p, szProfile);
            });
        case OptionType::kBool32:
            return LoadField<std::int32_t>(pField, [&](std::int32_t b, std::int32_t* p) {
                return ReadBool(szSection, szKey, b, p, szProfile);
            });
        case OptionType::kUInt32:
            return LoadField<std::uint32_t>(pField, [&](std::uint32_t u, std::uint32_t* p) {
                return ReadUInt32(szSection, szKey, u, p, szProfile);
            });
        case OptionType::kInt32:
            return LoadField<std::int32_t>(pField, [&](std::int32_t n, std::int32_t* p) {
                return ReadInt32(szSection, szKey, n, p, szProfile);
            });
        case OptionType::kFloat:
            return LoadField<float>(pField, [&](float f, float* p) {
                return ReadFloat(szSection, szKey, f, p, szProfile);
            });
        case OptionType::kFloatInDouble:
            return LoadField<double>(pField, [&](double d, double* p) {
                float f = 0.0F;
                if (!ReadFloat(szSection, szKey, static_cast<float>(d), &f, szProfile))
                    return false;
                *p = static_cast<double>(f);
                return true;
            });
        case OptionType::kDouble:
            return LoadField<double>(pField, [&](double d, double* p) {
                return ReadDouble(szSection, szKey, d, p, szProfile);
            });
        case OptionType::kText: {
            // By way of a copy: a field that the host did not end with a zero stays so if nothing
            // is stored for it.
            char szText[kLongestText];
            const int nSize = static_cast<int>(std::min<std::size_t>(key.uSize, sizeof szText));
            if (ReadString(szSection, szKey, nullptr, szText, nSize, szProfile)) {
                CopyText(static_cast<char*>(pField), static_cast<int>(key.uSize), szText);
            }
            return;
        }
    }
}

void SaveKey(const char* szProfile, const char* szSection, const char* szKey, const OptionKey& key,
             const void* pField) {
    switch (key.eType) {
        case OptionType::kBool8:
            WriteBool8(szSection, szKey, Get<std::uint8_t>(pField), szProfile);
            return;
        case OptionType::kBool32:
            WriteBool(szSection, szKey, Get<std::int32_t>(pField), szProfile);
            return;
        case OptionType::kUInt32:
            WriteUInt32(szSection, szKey, Get<std::uint32_t>(pField), szProfile);
            return;
        case OptionType::kInt32:
            WriteInt32(szSection, szKey, Get<std::int32_t>(pField), szProfile);
            return;
        case OptionType::kFloat:
            WriteFloat(szSection, szKey, Get<float>(pField), szProfile);
            return;
        case OptionType::kFloatInDouble:
            WriteFloat(szSection, szKey, static_cast<float>(Get<double>(pField)), szProfile);
            return;
        case OptionType::kDouble:
            WriteDouble(szSection, szKey, Get<double>(pField), szProfile);
            return;
        case OptionType::kText: {
            // The host's array may lack its final zero.
            char szText[kLongestText];
            const char* szField = static_cast<const char*>(pField);
            CopyText(szText, std::string_view(szField, strnlen(szField, key.uSize)));
            WriteString(szSection, szKey, szText, szProfile);
            return;
        }
    }
}

}  // namespace

const char* FormatOptionKey(const char* szKey, std::uint32_t uIndex, std::uint32_t uInner) {
    static char szFormatted[kMaxOptionKey + 1];
    BoundedWriter writer(szFormatted, static_cast<int>(sizeof szFormatted));
    std::uint32_t uNumber = uIndex;
    for (const char* p = szKey; *p != '\0'; ++p) {
        if (p[0] != '%' || p[1] != 'd') {
            writer.Put(*p);
            continue;
        }
        char szDigits[12];
        const char* pEnd = std::to_chars(szDigits, szDigits + sizeof szDigits, uNumber).ptr;
        writer.Put(std::string_view(szDigits, static_cast<std::size_t>(pEnd - szDigits)));
        uNumber = uInner;
        ++p;
    }
    return szFormatted;
}

void LoadSection(const char* pszProfile, const OptionSection& section, void* pRecord,
                 const char* szSectionName, bool bSkipDependent) {
    if (pszProfile == nullptr) return;
    const StoreBatch batch(pszProfile);
    Walk(section, [&](const OptionKey& key, const char* szKey, std::uint32_t uOffset) {
        if (key.eUse == OptionUse::kSaveOnly) return;
        if (key.eUse == OptionUse::kDependent && bSkipDependent) return;
        LoadKey(pszProfile, szSectionName, szKey, key, static_cast<char*>(pRecord) + uOffset);
    });
}

void SaveSection(const char* pszProfile, const OptionSection& section, const void* pRecord,
                 const char* szSectionName) {
    if (pszProfile == nullptr) return;
    const StoreBatch batch(pszProfile);
    Walk(section, [&](const OptionKey& key, const char* szKey, std::uint32_t uOffset) {
        if (key.eUse == OptionUse::kLoadOnly) return;
        SaveKey(pszProfile, szSectionName, szKey, key, static_cast<const char*>(pRecord) + uOffset);
    });
}
