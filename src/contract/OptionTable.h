// Option records and the store: a record's keys are one table that load and save both walk.
//
// A key that the store does not have leaves its field as it is, so there are no defaults here: the
// host's record holds them. Nothing is reported; a failed write is dropped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// How a field is written as text. Widths are those of the field.
enum class OptionType : std::uint8_t {
    kBool8,
    kBool32,
    kUInt32,
    kInt32,
    kFloat,          // a float field
    kFloatInDouble,  // a double field whose text is that of a float
    kDouble,
    kText,  // a character array of uSize bytes
};

// Which ways a key travels. The default is both.
enum class OptionUse : std::uint8_t { kBoth, kSaveOnly, kLoadOnly, kDependent };

// One key. In a block that repeats, "%d" in the key stands for the number of the repetition and the
// field moves by uStride bytes each time; a second "%d" counts from 0 to uInner - 1 within it and
// moves the field by uInnerStride.
struct OptionKey {
    const char* szKey;
    OptionType eType;
    std::uint32_t uOffset;
    std::uint32_t uSize = 0;
    std::uint32_t uStride = 0;
    std::uint32_t uInner = 0;
    std::uint32_t uInnerStride = 0;
    OptionUse eUse = OptionUse::kBoth;
};

// The rows of a table, so that it reads as one.
constexpr OptionKey Single(const char* szKey, OptionType eType, std::size_t uOffset) {
    return {.szKey = szKey, .eType = eType, .uOffset = static_cast<std::uint32_t>(uOffset)};
}
constexpr OptionKey Text(const char* szKey, std::size_t uOffset, std::uint32_t uSize) {
    OptionKey key = Single(szKey, OptionType::kText, uOffset);
    key.uSize = uSize;
    return key;
}
constexpr OptionKey Repeated(const char* szKey, OptionType eType, std::size_t uOffset,
                             std::uint32_t uStride) {
    OptionKey key = Single(szKey, eType, uOffset);
    key.uStride = uStride;
    return key;
}
constexpr OptionKey RepeatedText(const char* szKey, std::size_t uOffset, std::uint32_t uSize,
                                 std::uint32_t uStride) {
    OptionKey key = Text(szKey, uOffset, uSize);
    key.uStride = uStride;
    return key;
}
constexpr OptionKey RepeatedTwice(const char* szKey, OptionType eType, std::size_t uOffset,
                                  std::uint32_t uStride, std::uint32_t uInner,
                                  std::uint32_t uInnerStride) {
    OptionKey key = Repeated(szKey, eType, uOffset, uStride);
    key.uInner = uInner;
    key.uInnerStride = uInnerStride;
    return key;
}
constexpr OptionKey WithUse(OptionKey key, OptionUse eUse) {
    key.eUse = eUse;
    return key;
}
constexpr OptionKey SaveOnly(OptionKey key) {
    return WithUse(key, OptionUse::kSaveOnly);
}
constexpr OptionKey LoadOnly(OptionKey key) {
    return WithUse(key, OptionUse::kLoadOnly);
}
constexpr OptionKey Dependent(OptionKey key) {
    return WithUse(key, OptionUse::kDependent);
}

// Keys that are walked uRepeat times in turn.
struct OptionBlock {
    std::span<const OptionKey> keys;
    std::uint32_t uRepeat = 1;
};

// One section of the store and the record that it holds.
struct OptionSection {
    const char* szSection;
    std::span<const OptionBlock> blocks;
};

// A key with its numbers in place has at most this many characters and is cut there.
inline constexpr int kMaxOptionKey = 23;

// Move one section; nothing happens with a null profile. bSkipDependent passes over the keys of
// OptionUse::kDependent. A save returns whether everything reached the store, or is left to the
// batch around it.
void LoadSection(const char* pszProfile, const OptionSection& section, void* pRecord,
                 const char* szSectionName, bool bSkipDependent = false);
bool SaveSection(const char* pszProfile, const OptionSection& section, const void* pRecord,
                 const char* szSectionName);

inline void LoadSection(const char* pszProfile, const OptionSection& section, void* pRecord) {
    LoadSection(pszProfile, section, pRecord, section.szSection);
}
inline bool SaveSection(const char* pszProfile, const OptionSection& section, const void* pRecord) {
    return SaveSection(pszProfile, section, pRecord, section.szSection);
}

// The key with the numbers in place of its first and second "%d", cut to kMaxOptionKey characters,
// in a static buffer that the next call overwrites.
const char* FormatOptionKey(const char* szKey, std::uint32_t uIndex, std::uint32_t uInner);
