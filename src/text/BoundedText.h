// The one helper that copies text with a limit. Every fixed buffer of the library is filled through
// it: text is cut silently at the buffer's end and always ends with a zero.
//
// Sizes are in bytes and include the final zero. A null source counts as an empty text; a null
// buffer or a size of 0 or less takes nothing. Source and buffer may overlap only where the text is
// kept in its place (szTo == szFrom).
#pragma once

#include <cstddef>
#include <cstring>
#include <string_view>

// Copies `sFrom`, cut to the buffer. Returns the number of characters written, without the zero.
inline int CopyText(char* szTo, int nSize, std::string_view sFrom) {
    if (szTo == nullptr || nSize <= 0) return 0;
    const std::size_t nRoom = static_cast<std::size_t>(nSize) - 1;
    const std::size_t nCopy = sFrom.size() < nRoom ? sFrom.size() : nRoom;
    if (nCopy != 0) std::memmove(szTo, sFrom.data(), nCopy);
    szTo[nCopy] = '\0';
    return static_cast<int>(nCopy);
}

inline int CopyText(char* szTo, int nSize, const char* szFrom) {
    return CopyText(szTo, nSize, szFrom == nullptr ? std::string_view() : std::string_view(szFrom));
}

template <std::size_t N>
int CopyText(char (&szTo)[N], std::string_view sFrom) {
    return CopyText(szTo, static_cast<int>(N), sFrom);
}

template <std::size_t N>
int CopyText(char (&szTo)[N], const char* szFrom) {
    return CopyText(szTo, static_cast<int>(N), szFrom);
}

// Appends to a buffer, piece by piece, cut at its end. The buffer holds a finished text at all
// times.
class BoundedWriter {
  public:
    BoundedWriter(char* szBuffer, int nSize)
        : m_szBuffer(szBuffer), m_nRoom(szBuffer != nullptr && nSize > 0 ? nSize - 1 : 0) {
        if (szBuffer != nullptr && nSize > 0) szBuffer[0] = '\0';
    }

    // Returns false when the piece had to be cut; what fits of it is there.
    bool Put(std::string_view sPiece) {
        const int nLeft = m_nRoom - m_nUsed;
        const bool bFits = sPiece.size() <= static_cast<std::size_t>(nLeft);
        const int nCopy = bFits ? static_cast<int>(sPiece.size()) : nLeft;
        if (nCopy > 0) {
            std::memcpy(m_szBuffer + m_nUsed, sPiece.data(), static_cast<std::size_t>(nCopy));
            m_nUsed += nCopy;
            m_szBuffer[m_nUsed] = '\0';
        }
        return bFits;
    }

    bool Put(char ch) { return Put(std::string_view(&ch, 1)); }

    // Writes the piece only if all of it fits.
    bool PutWhole(std::string_view sPiece) {
        return sPiece.size() <= static_cast<std::size_t>(m_nRoom - m_nUsed) && Put(sPiece);
    }

    int Length() const { return m_nUsed; }

  private:
    char* m_szBuffer;
    int m_nRoom;
    int m_nUsed = 0;
};
