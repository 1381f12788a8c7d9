// A bitmap of the resources and the plot on it, pixel by pixel.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <set>
#include <vector>

#include "platform/platform.h"

namespace picture_test {

// A bitmap of the resources, by its bytes.
class Picture {
  public:
    explicit Picture(int nId) {
        const HMODULE hModule = GetModuleHandleA(nullptr);
        const HRSRC hResource = FindResourceA(hModule, MAKEINTRESOURCEA(nId), RT_BITMAP);
        if (hResource == nullptr) return;
        const auto* p =
            static_cast<const std::uint8_t*>(LockResource(LoadResource(hModule, hResource)));
        m_bytes.assign(p, p + SizeofResource(hModule, hResource));
        std::memcpy(&m_header, p, sizeof m_header);
    }
    bool IsThere() const { return !m_bytes.empty(); }
    const std::vector<std::uint8_t>& Bytes() const { return m_bytes; }
    const BITMAPINFOHEADER& Header() const { return m_header; }
    int Width() const { return m_header.biWidth; }
    int Height() const { return m_header.biHeight; }
    // Black, counted from the upper left corner.
    bool IsInk(int x, int y) const {
        const std::size_t nStride = static_cast<std::size_t>((Width() + 31) / 32 * 4);
        const std::size_t nAt = 48 + static_cast<std::size_t>(Height() - 1 - y) * nStride +
                                static_cast<std::size_t>(x) / 8;
        return (m_bytes[nAt] >> (7 - x % 8) & 1) == 0;
    }

  private:
    std::vector<std::uint8_t> m_bytes;
    BITMAPINFOHEADER m_header = {};
};

// Where the curve is on a picture of either size.
struct Plot {
    // Margins are those of the smaller size.
    Plot(const Picture& picture, double dScale, int nLeft, int nRight, int nTop, int nBottom) {
        nPen = dScale > 1.0 ? 2 : 1;
        left = static_cast<int>(nLeft * dScale);
        right = picture.Width() - 1 - static_cast<int>(nRight * dScale);
        top = static_cast<int>(nTop * dScale);
        bottom = picture.Height() - 1 - static_cast<int>(nBottom * dScale);
    }
    double Part(double x) const { return std::clamp((x - left) / (right - left), 0.0, 1.0); }
    double Row(double dHeight) const {
        return bottom - std::clamp(dHeight, 0.0, 1.0) * (bottom - top);
    }
    int nPen, left, right, top, bottom;
};

// The rows that a curve covers between two places, 0 to 1 each.
struct Rows {
    double dHighest, dLowest;  // counted downwards: the highest is the smaller number
};

// `covered(from, to)` tells the rows; `dotted` are rows that carry other ink.
template <class Covered>
void ExpectCurve(const Picture& picture, const Plot& plot, const std::set<int>& dotted,
                 Covered covered) {
    for (int x = plot.left + plot.nPen; x <= plot.right - 1; ++x) {
        // What lies within the column for sure, and what may touch it.
        const Rows sure = covered(plot.Part(x - 0.4), plot.Part(x + 0.4));
        const Rows around = covered(plot.Part(x - 0.75 - (plot.nPen - 1)), plot.Part(x + 0.75));
        for (int y = 0; y < plot.bottom; ++y) {
            if (dotted.count(y) != 0 || y < plot.top - plot.nPen) continue;
            if (picture.IsInk(x, y)) {
                ASSERT_GE(y, around.dHighest - 1.0) << "ink above the curve at " << x;
                ASSERT_LE(y, around.dLowest + plot.nPen) << "ink below the curve at " << x;
            } else {
                ASSERT_FALSE(y > sure.dHighest + 1.0 && y < sure.dLowest - 1.0)
                    << "a gap in the curve at " << x << ", " << y;
            }
        }
        bool bAny = sure.dLowest > plot.bottom - 1.5;  // upon the axis
        for (int y = 0; y < plot.bottom; ++y) {
            bAny |=
                picture.IsInk(x, y) && y >= sure.dHighest - 1.0 && y <= sure.dLowest + plot.nPen;
        }
        ASSERT_TRUE(bAny) << "no curve at " << x;
    }
}

}  // namespace picture_test
