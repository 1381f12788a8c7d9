// Tests on texts and their characters. They know the letters and signs of ASCII only, whatever the
// host's locale; a null text is taken as an empty one.
#pragma once

#include <string_view>

// Whether a text is null, empty or nothing but blanks.
bool IsBlank(const char* szText);

// Whether every character can be printed, or is a letter; true for an empty text.
bool IsAllPrintable(const char* szText);
bool IsAllAlpha(const char* szText);

// Whether any character lies below 31.
bool HasControlChars(const char* szText);

// Whether the first or the last character is a blank.
bool HasEdgeSpaces(const char* szText);

// Whether a typed character may pass: true for characters that can't be printed (they steer the
// control), otherwise whether the set holds it.
bool IsCharInSet(int ch, const char* szSet);

// Whether there are only digits and ".+-eE".
bool IsNumberText(const char* szText);

// Whether a list of `nCount` texts holds the text.
bool IsInList(const char* szText, const char* const* pszList, int nCount, bool bMatchCase);

// Compares two texts without regard to the case of ASCII letters.
bool EqualNoCase(std::string_view sLeft, std::string_view sRight);
