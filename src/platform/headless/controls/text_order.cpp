#include "platform/headless/controls/text_order.h"

#include <cstdint>

namespace headless {
namespace {

using Byte = unsigned char;

// Letters first by this weight. Weights from 1 to 31 are signs that a text is compared without.
constexpr std::uint8_t kPrimary[256] = {
    0,   1,   2,   3,   4,   5,   6,   7,   8,   34,  35,  36,  37,  38,  9,   10,   //
    11,  12,  13,  14,  15,  16,  17,  18,  19,  20,  21,  22,  23,  24,  25,  26,   //
    32,  39,  40,  41,  42,  43,  44,  28,  45,  46,  47,  86,  48,  29,  49,  50,   //
    109, 113, 115, 117, 119, 120, 121, 122, 123, 124, 51,  52,  87,  88,  89,  53,   //
    54,  125, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142,  //
    146, 147, 148, 149, 151, 154, 155, 156, 157, 158, 159, 55,  56,  57,  58,  59,   //
    60,  125, 129, 130, 131, 132, 133, 134, 135, 136, 137, 138, 139, 140, 141, 142,  //
    146, 147, 148, 149, 151, 154, 155, 156, 157, 158, 159, 61,  62,  63,  64,  27,   //
    85,  108, 75,  133, 78,  103, 104, 105, 58,  107, 149, 79,  145, 108, 159, 108,  //
    108, 73,  74,  76,  77,  106, 30,  31,  72,  153, 149, 80,  145, 108, 159, 158,  //
    33,  65,  81,  82,  83,  84,  66,  95,  67,  96,  125, 91,  97,  0,   98,  68,   //
    99,  90,  116, 118, 69,  100, 101, 102, 70,  114, 142, 92,  110, 111, 112, 71,   //
    125, 125, 125, 125, 125, 125, 128, 130, 132, 132, 132, 132, 136, 136, 136, 136,  //
    131, 141, 142, 142, 142, 142, 142, 93,  142, 154, 154, 154, 154, 158, 152, 150,  //
    125, 125, 125, 125, 125, 125, 128, 130, 132, 132, 132, 132, 136, 136, 136, 136,  //
    131, 141, 142, 142, 142, 142, 142, 94,  142, 154, 154, 154, 154, 158, 152, 158,
};

// Among equal primary weights, by accent.
constexpr std::uint8_t Accent(Byte c) {
    constexpr std::uint8_t kLow[32] = {0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 1, 1, 2,
                                       3, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 4, 1, 2};
    constexpr std::uint8_t kHigh[32] = {2, 1, 3, 5, 4, 6, 0, 1, 2, 1, 3, 4, 2, 1, 3, 4,
                                        1, 1, 2, 1, 3, 5, 4, 0, 6, 2, 1, 3, 4, 1, 0, 0};
    if (c < 0x80) return 0;
    if (c < 0xA0) return kLow[c - 0x80];
    if (c == 0xAA || c == 0xBA) return 7;
    if (c == 0xFF) return 2;
    return c < 0xC0 ? 0 : kHigh[c & 0x1F];
}

constexpr bool IsSkipped(Byte c) {
    return kPrimary[c] < 32;
}

// The letters of a text that carry primary weight, the joined ones taken apart.
class Letters {
  public:
    explicit Letters(std::string_view text) : m_text(text) {}

    // The next letter, or 0 at the end.
    Byte Next() {
        if (m_pending != 0) {
            const Byte c = m_pending;
            m_pending = 0;
            return c;
        }
        while (m_at < m_text.size()) {
            const Byte c = static_cast<Byte>(m_text[m_at++]);
            if (IsSkipped(c)) continue;
            switch (c) {
                case 0xC6:
                case 0xE6:
                    m_pending = 'e';
                    return 'a';
                case 0x8C:
                case 0x9C:
                    m_pending = 'e';
                    return 'o';
                case 0xDF:
                    m_pending = 's';
                    return 's';
                default:
                    return c;
            }
        }
        return 0;
    }

  private:
    std::string_view m_text;
    size_t m_at = 0;
    Byte m_pending = 0;
};

// Compares only the signs that the letters were compared without; one that has none stands first.
int CompareSkipped(std::string_view a, std::string_view b) {
    size_t i = 0;
    size_t j = 0;
    while (true) {
        while (i < a.size() && (!IsSkipped(static_cast<Byte>(a[i])) || a[i] == '\xAD')) ++i;
        while (j < b.size() && (!IsSkipped(static_cast<Byte>(b[j])) || b[j] == '\xAD')) ++j;
        if (i == a.size() || j == b.size()) return (i < a.size()) - (j < b.size());
        const int difference =
            kPrimary[static_cast<Byte>(a[i++])] - kPrimary[static_cast<Byte>(b[j++])];
        if (difference != 0) return difference;
    }
}

}  // namespace

char ToUpperCase(char c) {
    const Byte b = static_cast<Byte>(c);
    if ((b >= 'a' && b <= 'z') || (b >= 0xE0 && b <= 0xFE && b != 0xF7)) {
        return static_cast<char>(b - 32);
    }
    if (b == 0x9A || b == 0x9C || b == 0x9E) return static_cast<char>(b - 16);
    return b == 0xFF ? '\x9F' : c;
}

char ToLowerCase(char c) {
    const Byte b = static_cast<Byte>(c);
    if ((b >= 'A' && b <= 'Z') || (b >= 0xC0 && b <= 0xDE && b != 0xD7)) {
        return static_cast<char>(b + 32);
    }
    if (b == 0x8A || b == 0x8C || b == 0x8E) return static_cast<char>(b + 16);
    return b == 0x9F ? '\xFF' : c;
}

int CompareListText(std::string_view a, std::string_view b) {
    Letters left(a);
    Letters right(b);
    int accents = 0;
    while (true) {
        const Byte x = left.Next();
        const Byte y = right.Next();
        if (x == 0 || y == 0) {
            if (x != 0) return 1;
            if (y != 0) return -1;
            break;
        }
        if (kPrimary[x] != kPrimary[y]) return kPrimary[x] - kPrimary[y];
        if (accents == 0) accents = Accent(x) - Accent(y);
    }
    return accents != 0 ? accents : CompareSkipped(a, b);
}

bool BeginsWith(std::string_view text, std::string_view prefix) {
    if (text.size() < prefix.size()) return false;
    for (size_t i = 0; i < prefix.size(); ++i) {
        if (ToLowerCase(text[i]) != ToLowerCase(prefix[i])) return false;
    }
    return true;
}

}  // namespace headless
