// Option records and the store: a record's keys are one table that load and save both walk.
//
// A key that the store does not have leaves its field as it is, so there are no defaults here: the
// host's record holds them. Nothing is reported; a failed write is dropped.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

// How a field is written as text. Widths are those of the field.
enum class OptionType : std::uint8_t {
    kBool8,
    kBool32,
    kUInt32,
    kInt32,
    kFloat,          // a float field
    kFloatInDouble,  // a double field whose text is that of a float
    kDouble,
    kText,   // a character array of uSize bytes
    kBytes,  // any bytes; never kept
};

// Which ways a key travels. The default is both.
enum class OptionUse : std::uint8_t { kBoth, kSaveOnly, kLoadOnly, kDependent, kNotKept };

// One key and its field. In a block that repeats, "%d" in the key stands for the number of the
// repetition and the field moves by uStride bytes each time; a second "%d" counts from 0 to
// uInner - 1 within it and moves the field by uInnerStride.
struct OptionKey {
    const char* szKey;
    const char* szField;   // its name in the record; of an element of an array, that of the array
    const char* szMember;  // of an element that is a record; else null
    OptionType eType;
    std::uint32_t uOffset;
    std::uint32_t uSize;  // of one field, in bytes
    std::uint32_t uStride = 0;
    std::uint32_t uInner = 0;
    std::uint32_t uInnerStride = 0;
    OptionUse eUse = OptionUse::kBoth;
};

// The name behind the last dot: the key of a field that has no other.
constexpr const char* LastName(const char* szField) {
    const char* szLast = szField;
    for (const char* p = szField; *p != '\0'; ++p) {
        if (*p == '.') szLast = p + 1;
    }
    return szLast;
}

// A field's type follows from the member; a 32-bit field is a boolean when its name begins so.
template <class Member>
constexpr OptionType TypeOfMember(const char* szName) {
    if constexpr (std::is_array_v<Member>) {
        static_assert(std::is_same_v<std::remove_extent_t<Member>, char>, "an array of texts?");
        return OptionType::kText;
    } else if constexpr (std::is_same_v<Member, double>) {
        return OptionType::kDouble;
    } else if constexpr (std::is_same_v<Member, float>) {
        return OptionType::kFloat;
    } else if constexpr (sizeof(Member) == 1) {
        return OptionType::kBool8;
    } else {
        static_assert(sizeof(Member) == 4, "no such field is kept");
        if (szName[0] == 'b') return OptionType::kBool32;
        return std::is_unsigned_v<Member> ? OptionType::kUInt32 : OptionType::kInt32;
    }
}

template <class Member>
constexpr OptionKey MemberKey(const char* szKey, const char* szField, std::size_t uOffset) {
    return {.szKey = szKey,
            .szField = szField,
            .szMember = nullptr,
            .eType = TypeOfMember<Member>(LastName(szField)),
            .uOffset = static_cast<std::uint32_t>(uOffset),
            .uSize = static_cast<std::uint32_t>(sizeof(Member))};
}

// A field that is the same in each element of an array of records.
template <class Element, class Member>
constexpr OptionKey ElementKey(const char* szKey, const char* szArray, const char* szMember,
                               std::size_t uOffset) {
    OptionKey key = MemberKey<Member>(szKey, szMember, uOffset);
    key.szField = szArray;
    key.szMember = szMember;
    key.uStride = static_cast<std::uint32_t>(sizeof(Element));
    return key;
}

// The rows of a table over `Record`, a name that each table declares. The key of a field is its
// name, and type, size and place come from the member; what is odd is a row that says so.
#define ZX_MEMBER(field) decltype(Record::field)
#define ZX_ELEMENT(array) std::remove_extent_t<ZX_MEMBER(array)>
#define KEY(field) KEY_NAMED(LastName(#field), field)
#define KEY_NAMED(key, field) MemberKey<ZX_MEMBER(field)>(key, #field, offsetof(Record, field))
// An unsigned field whose text is that of a signed number.
#define SIGNED_KEY(field) WithType(KEY(field), OptionType::kInt32)
// A double whose text is that of a float.
#define FLOAT_KEY(field) WithType(KEY(field), OptionType::kFloatInDouble)
// Bytes that are no text.
#define BYTES(field)                                                           \
    OptionKey {                                                                \
        nullptr, #field, nullptr, OptionType::kBytes, offsetof(Record, field), \
            sizeof(ZX_MEMBER(field))                                           \
    }
// Element %d of an array.
#define KEY_OF_ELEMENTS(key, array)                                                \
    WithStride(MemberKey<ZX_ELEMENT(array)>(key, #array, offsetof(Record, array)), \
               sizeof(ZX_ELEMENT(array)))
// A field of element %d of an array of records.
#define KEY_OF_EACH(key, array, member)                                 \
    ElementKey<ZX_ELEMENT(array), decltype(ZX_ELEMENT(array)::member)>( \
        key, #array, #member, offsetof(Record, array) + offsetof(ZX_ELEMENT(array), member))
// Entry %d of an array in element %d of an array of records; `count` entries from its first on.
#define KEY_OF_EACH_ELEMENT(key, array, member, count)                                            \
    WithInner(                                                                                    \
        ElementKey<ZX_ELEMENT(array), std::remove_extent_t<decltype(ZX_ELEMENT(array)::member)>>( \
            key, #array, #member, offsetof(Record, array) + offsetof(ZX_ELEMENT(array), member)), \
        count)

constexpr OptionKey WithType(OptionKey key, OptionType eType) {
    key.eType = eType;
    return key;
}
constexpr OptionKey WithStride(OptionKey key, std::size_t uStride) {
    key.uStride = static_cast<std::uint32_t>(uStride);
    return key;
}
constexpr OptionKey WithInner(OptionKey key, std::uint32_t uCount) {
    key.uInner = uCount;
    key.uInnerStride = key.uSize;
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
// A field of the record that the store does not keep.
constexpr OptionKey NotKept(OptionKey key) {
    return WithUse(key, OptionUse::kNotKept);
}

// Keys that are walked uRepeat times in turn.
struct OptionBlock {
    std::span<const OptionKey> keys;
    std::uint32_t uRepeat = 1;
};

// One section of the store and the record that it holds.
struct OptionSection {
    const char* szSection;  // null: named after the analysis
    const char* szRecord;   // the record's type
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
