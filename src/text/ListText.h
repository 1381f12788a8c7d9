// List text: a set of numbers as "1..3, 7, 9..10", runs folded.
//
// One reader and one writer serve two uses. An index list (FormatIndexList, ParseIndexList) keeps
// blanks within its items and counts what goes beyond the array; a selection list (FormatList,
// ParseList) is stored without any blank and drops what goes beyond it. `nOffset` is added when
// numbers are written and subtracted when they are read, so that the user sees 1-based numbers for
// 0-based indices. Nothing is allocated but the copy of a selection list that holds white space.
#pragma once

#include <cstdint>

// Writes a rising list. A number that no longer fits whole ends the text, so that a cut never turns
// a number into another one; a count of 0 gives an empty text.
void FormatIndexList(char* szBuffer, int nSize, const std::int32_t* pnValues, int nCount,
                     int nOffset);
void FormatList(char* szBuffer, int nSize, const std::int32_t* pnNumbers, int nCount, int nOffset);

// Removes every blank from a text in its place; a selection list is stored in this form.
void RemoveSpaces(char* szText);

// Reads an index list. Items stand between commas, with blanks around them dropped. An item is a
// decimal number, one of `pszNames` without regard to case (it then stands for its entry of
// `pnNameValues`, with no offset), or two such bounds with ".." between, which name every number
// from the first to the second, downward if the first is higher. Values past `nMax` are counted but
// not stored. Returns the count, or 0 if any item can't be read; names may be null with `nNames` 0.
int ParseIndexList(const char* szText, std::int32_t* pnValues, int nMax, int nOffset,
                   const char* const* pszNames, const std::int32_t* pnNameValues, int nNames);

// Reads a selection list: as above, but all white space is removed first, a name stands for its
// place among the names, and numbers beyond `nMaxCount` are dropped. Returns the count of numbers
// stored.
int ParseList(const char* szText, std::int32_t* pnNumbers, int nMaxCount, int nOffset,
              const char* const* pszNames, int nNameCount);
