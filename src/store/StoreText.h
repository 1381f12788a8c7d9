// The text forms of the store's records: rectangles and points as lists of numbers, font
// definitions, and GUIDs.
#pragma once

#include <cstdint>

#include "platform/platform.h"

// Reads `nCount` numbers, each followed by one separating character; blanks may stand in front of a
// number. Returns false when the text ends too early; the numbers before that are stored.
bool ParseInts(const char* szText, std::int32_t* pnValues, int nCount);

// Reads the thirteen numbers and the face name of a font. Returns false when the text ends before
// the name; the fields before that are stored. The name is cut to the record's 31 characters.
bool ParseFontDefinition(const char* szText, LOGFONTA* pFont);

// Writes a font in the form that ParseFontDefinition reads.
void FormatFontDefinition(const LOGFONTA& font, char* szBuffer, int nSize);

// Reads a GUID from a text of at most 63 characters: five groups of 8, 4, 4, 4 and 12 hexadecimal
// digits with hyphens between, alone or in double quotes or braces. Returns false for any other
// text; the result is then left alone.
bool ReadRegistryGuid(const char* szText, GUID* pResult);

// Writes a GUID with capital letters and without braces.
void FormatRegistryGuid(const GUID& guid, char* szBuffer, int nSize);
