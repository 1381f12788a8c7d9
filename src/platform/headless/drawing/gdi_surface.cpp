// Pixels: reading and writing them at each depth, and the raster operations.
#include <algorithm>

#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

constexpr COLORREF kColorMask = 0xFFFFFF;

int Distance(COLORREF a, COLORREF b) {
    const int red = GetRValue(a) - GetRValue(b);
    const int green = GetGValue(a) - GetGValue(b);
    const int blue = GetBValue(a) - GetBValue(b);
    return red * red + green * green + blue * blue;
}

std::size_t Nearest(const std::vector<COLORREF>& palette, COLORREF color) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < palette.size(); ++i)
        if (Distance(palette[i], color) < Distance(palette[best], color)) best = i;
    return best;
}

COLORREF Entry(const std::vector<COLORREF>& palette, std::size_t index) {
    return index < palette.size() ? palette[index] : 0;
}

std::size_t DefaultStride(int width, int bitsPerPixel) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 15) / 16 * 2;
}

}  // namespace

std::unique_ptr<Bitmap> MakeBitmap(int width, int height, int bitsPerPixel, std::size_t stride) {
    // A limit on the area keeps a malformed header from taking all memory.
    constexpr long long kMostPixels = 1LL << 26;
    if (width <= 0 || height <= 0 || static_cast<long long>(width) * height > kMostPixels)
        return nullptr;
    if (bitsPerPixel != 1 && bitsPerPixel != 4 && bitsPerPixel != 8 && bitsPerPixel != 16 &&
        bitsPerPixel != 24 && bitsPerPixel != 32)
        return nullptr;
    auto bitmap = std::make_unique<Bitmap>();
    bitmap->width = width;
    bitmap->height = height;
    bitmap->bitsPerPixel = bitsPerPixel;
    bitmap->stride = stride != 0 ? stride : DefaultStride(width, bitsPerPixel);
    bitmap->bits.resize(bitmap->stride * static_cast<std::size_t>(height));
    if (bitsPerPixel == 1) bitmap->palette = {0, kColorMask};
    // Without a table of its own a bitmap of 4 or 8 bits is a ramp of greys.
    for (int i = 0; bitsPerPixel > 1 && bitsPerPixel <= 8 && i < 1 << bitsPerPixel; ++i) {
        const int grey = i * 255 / ((1 << bitsPerPixel) - 1);
        bitmap->palette.push_back(RGB(grey, grey, grey));
    }
    return bitmap;
}

const std::uint8_t* Bitmap::Row(int y) const {
    const int row = bottomUp ? height - 1 - y : y;
    return bits.data() + static_cast<std::size_t>(row) * stride;
}

std::uint8_t* Bitmap::Row(int y) {
    return const_cast<std::uint8_t*>(static_cast<const Bitmap*>(this)->Row(y));
}

bool Bitmap::Bit(int x, int y) const {
    return (Row(y)[x / 8] >> (7 - x % 8) & 1) != 0;
}

void Bitmap::SetBit(int x, int y, bool on) {
    std::uint8_t& byte = Row(y)[x / 8];
    const int mask = 1 << (7 - x % 8);
    byte = static_cast<std::uint8_t>(on ? byte | mask : byte & ~mask);
}

COLORREF Bitmap::Pixel(int x, int y) const {
    const std::uint8_t* row = Row(y);
    const std::size_t at = static_cast<std::size_t>(x);
    switch (bitsPerPixel) {
        case 1:
            return Entry(palette, Bit(x, y) ? 1 : 0);
        case 4:
            return Entry(palette, at % 2 == 0 ? row[at / 2] >> 4 : row[at / 2] & 15);
        case 8:
            return Entry(palette, row[at]);
        case 16: {
            // Five bits for each colour; the upper ones fill the lower ones of eight.
            const int value = row[at * 2] | row[at * 2 + 1] << 8;
            const auto wide = [](int five) { return five << 3 | five >> 2; };
            return RGB(wide(value >> 10 & 31), wide(value >> 5 & 31), wide(value & 31));
        }
        case 24:
            return RGB(row[at * 3 + 2], row[at * 3 + 1], row[at * 3]);
        default:
            return RGB(row[at * 4 + 2], row[at * 4 + 1], row[at * 4]);
    }
}

void Bitmap::SetPixel(int x, int y, COLORREF color) {
    std::uint8_t* row = Row(y);
    const std::size_t at = static_cast<std::size_t>(x);
    switch (bitsPerPixel) {
        case 1:
            SetBit(x, y, Nearest(palette, color) == 1);
            break;
        case 4: {
            const int index = static_cast<int>(Nearest(palette, color));
            std::uint8_t& byte = row[at / 2];
            byte = static_cast<std::uint8_t>(at % 2 == 0 ? (byte & 15) | index << 4
                                                         : (byte & 0xF0) | index);
            break;
        }
        case 8:
            row[at] = static_cast<std::uint8_t>(Nearest(palette, color));
            break;
        case 16: {
            const int value =
                GetRValue(color) >> 3 << 10 | GetGValue(color) >> 3 << 5 | GetBValue(color) >> 3;
            row[at * 2] = static_cast<std::uint8_t>(value);
            row[at * 2 + 1] = static_cast<std::uint8_t>(value >> 8);
            break;
        }
        default: {
            const std::size_t size = bitsPerPixel == 24 ? 3 : 4;
            row[at * size] = GetBValue(color);
            row[at * size + 1] = GetGValue(color);
            row[at * size + 2] = GetRValue(color);
            if (size == 4) row[at * size + 3] = 0;
            break;
        }
    }
}

COLORREF Combine(DWORD operation, COLORREF pattern, COLORREF source, COLORREF destination) {
    const DWORD table = operation >> 16 & 0xFF;
    COLORREF result = 0;
    for (unsigned i = 0; i < 8; ++i) {
        if ((table >> i & 1) == 0) continue;
        result |= ((i & 4) != 0 ? pattern : ~pattern) & ((i & 2) != 0 ? source : ~source) &
                  ((i & 1) != 0 ? destination : ~destination);
    }
    return result & kColorMask;
}

DWORD FromBinary(int rop2) {
    // A binary operation has a bit for each pair of pen and destination; the source does not
    // matter.
    const unsigned code = static_cast<unsigned>(rop2 - 1);
    DWORD table = 0;
    for (unsigned i = 0; i < 8; ++i) {
        const unsigned pair = (i & 4) / 2 + (i & 1);
        if ((code >> pair & 1) != 0) table |= 1u << i;
    }
    return table << 16;
}

void PaintPixels(DeviceContext& dc, const RECT& rect, COLORREF color, DWORD operation) {
    Bitmap* surface = dc.Surface();
    if (surface == nullptr) return;
    ForEachPixel(dc, *surface, rect, [&](int x, int y) {
        surface->SetPixel(x, y, Combine(operation, color, 0, surface->Pixel(x, y)));
    });
}

void Fill(DeviceContext& dc, const RECT& rect, COLORREF color) {
    DrawOp op;
    op.kind = DrawKind::kFill;
    op.rect = rect;
    op.color = color;
    Record(dc, std::move(op));
    PaintPixels(dc, rect, color);
}

}  // namespace headless::gdi
