// The bytes of a fuzz run as numbers, and what must hold in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// Ends the program where a promise is broken, which the fuzzer reports with its input.
inline void Require(bool bHolds, const char* szWhat) {
    if (bHolds) return;
    std::fprintf(stderr, "violated: %s\n", szWhat);
    std::abort();
}

// Behind the last byte there are zeros.
class FuzzBytes {
  public:
    FuzzBytes(const std::uint8_t* pData, std::size_t nSize) : m_pData(pData), m_nLeft(nSize) {}

    std::uint8_t Byte() {
        if (m_nLeft == 0) return 0;
        --m_nLeft;
        return *m_pData++;
    }
    // Any bits.
    template <class T>
    T Raw() {
        std::uint8_t bytes[sizeof(T)];
        for (std::uint8_t& b : bytes) b = Byte();
        T value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }
    // A number as data have it; any bits where its first byte is below nAnyBelow.
    double Value(int nAnyBelow) {
        const std::uint8_t uKind = Byte();
        if (uKind < nAnyBelow) return Raw<double>();
        return static_cast<std::int8_t>(Byte()) * 0.25 + uKind * 0.001;
    }
    std::size_t Left() const { return m_nLeft; }

  private:
    const std::uint8_t* m_pData;
    std::size_t m_nLeft;
};
