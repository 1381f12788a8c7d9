// The classes of characters that the equation syntax knows. A text is single bytes; bytes above 127
// are in none of the classes, whatever the locale says.
#pragma once

#include <string_view>

inline bool IsLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}
inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}
inline char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// A set of characters, asked in one step. The terminator is in no set.
class CharacterSet {
  public:
    constexpr explicit CharacterSet(std::string_view characters) {
        for (char c : characters) m_bHas[static_cast<unsigned char>(c)] = true;
    }
    constexpr bool Has(char c) const { return m_bHas[static_cast<unsigned char>(c)]; }

  private:
    bool m_bHas[256] = {};
};
