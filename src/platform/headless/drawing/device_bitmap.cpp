#include "platform/headless/drawing/device_bitmap.h"

#include <algorithm>
#include <cstring>
#include <string>

#include "platform/headless/drawing/display_state.h"
#include "platform/headless/drawing/gdi_dc.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

constexpr std::size_t kCoreHeader = 12;
constexpr std::size_t kInfoHeader = 40;
constexpr std::uint32_t kBitFields = 3;

std::uint32_t Word(const std::uint8_t* at) {
    return at[0] | static_cast<std::uint32_t>(at[1]) << 8;
}
std::uint32_t Dword(const std::uint8_t* at) {
    return Word(at) | Word(at + 2) << 16;
}

std::size_t SectionStride(int width, int bitsPerPixel) {
    return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bitsPerPixel) + 31) / 32 * 4;
}

struct Header {
    std::int64_t width = 0;
    std::int64_t height = 0;  // negative: rows from the top
    int bitsPerPixel = 0;
    std::uint32_t compression = BI_RGB;
    std::size_t colors = 0;
    std::size_t colorSize = 4;
    std::size_t size = 0;
};

bool ReadHeader(const std::uint8_t* data, std::size_t size, Header& header) {
    if (data == nullptr || size < kCoreHeader) return false;
    header.size = Dword(data);
    std::size_t used = 0;
    std::uint32_t planes = 0;
    if (header.size == kCoreHeader) {
        header.width = Word(data + 4);
        header.height = Word(data + 6);
        planes = Word(data + 8);
        header.bitsPerPixel = static_cast<int>(Word(data + 10));
        header.colorSize = 3;
    } else {
        if (header.size < kInfoHeader || header.size > size) return false;
        header.width = static_cast<std::int32_t>(Dword(data + 4));
        header.height = static_cast<std::int32_t>(Dword(data + 8));
        planes = Word(data + 12);
        header.bitsPerPixel = static_cast<int>(Word(data + 14));
        header.compression = Dword(data + 16);
        used = Dword(data + 32);
    }
    if (planes != 1) return false;
    if (header.bitsPerPixel <= 8) {
        const std::size_t most = std::size_t{1} << std::max(header.bitsPerPixel, 0);
        header.colors = used == 0 ? most : std::min(used, most);
        if (used > 256) return false;
    } else {
        header.colors = used;
    }
    // The masks of a bitmap with fields stand behind a short header, before the colours.
    if (header.compression == kBitFields && header.size == kInfoHeader) header.size += 12;
    return true;
}

}  // namespace

DibResult ReadDib(const std::uint8_t* data, std::size_t size,
                  std::unique_ptr<gdi::Bitmap>& bitmap) {
    Header header;
    if (!ReadHeader(data, size, header)) return DibResult::kMalformed;
    constexpr std::int64_t kLargestSide = 32767;
    const bool bottomUp = header.height > 0;
    const std::int64_t height = bottomUp ? header.height : -header.height;
    if (header.width <= 0 || header.width > kLargestSide || height <= 0 || height > kLargestSide)
        return DibResult::kMalformed;
    if (header.size > size || header.colors > (size - header.size) / header.colorSize)
        return DibResult::kMalformed;
    if (header.compression != BI_RGB) return DibResult::kUnsupported;
    const std::size_t offset = header.size + header.colors * header.colorSize;
    const std::size_t stride = SectionStride(static_cast<int>(header.width), header.bitsPerPixel);
    if (stride * static_cast<std::size_t>(height) > size - offset) return DibResult::kMalformed;
    auto made = gdi::MakeBitmap(static_cast<int>(header.width), static_cast<int>(height),
                                header.bitsPerPixel, stride);
    if (made == nullptr) return DibResult::kMalformed;
    made->section = true;
    made->bottomUp = bottomUp;
    if (header.bitsPerPixel <= 8) {
        made->palette.clear();
        for (std::size_t i = 0; i < header.colors; ++i) {
            const std::uint8_t* color = data + header.size + i * header.colorSize;
            made->palette.push_back(RGB(color[2], color[1], color[0]));
        }
    }
    std::memcpy(made->bits.data(), data + offset, made->bits.size());
    bitmap = std::move(made);
    return DibResult::kGood;
}

namespace gdi {
namespace {

HBITMAP Add(std::unique_ptr<Bitmap> bitmap) {
    return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(AddObject(std::move(bitmap)));
}

bool IsBlackAndWhite(const Bitmap& bitmap) {
    if (bitmap.bitsPerPixel != 1 || bitmap.palette.size() != 2) return false;
    const COLORREF a = bitmap.palette[0];
    const COLORREF b = bitmap.palette[1];
    return (a == 0 && b == 0xFFFFFF) || (a == 0xFFFFFF && b == 0);
}

// A copy for the display, or the section itself; stretched to a size when one is given.
std::unique_ptr<Bitmap> Adapt(std::unique_ptr<Bitmap> source, int cx, int cy, bool section) {
    const int width = cx > 0 ? cx : source->width;
    const int height = cy > 0 ? cy : source->height;
    if (section && width == source->width && height == source->height) return source;
    const int depth = section                    ? source->bitsPerPixel
                      : IsBlackAndWhite(*source) ? 1
                                                 : DisplayDepth();
    auto made = MakeBitmap(width, height, depth, section ? SectionStride(width, depth) : 0);
    if (made == nullptr) return nullptr;
    if (section) {
        made->section = true;
        made->bottomUp = source->bottomUp;
        made->palette = source->palette;
    }
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            made->SetPixel(
                x, y,
                source->Pixel(
                    static_cast<int>(static_cast<long long>(x) * source->width / width),
                    static_cast<int>(static_cast<long long>(y) * source->height / height)));
    return made;
}

HBITMAP LoadFromResource(HINSTANCE instance, LPCSTR name, int cx, int cy, bool section) {
    const HRSRC found = FindResourceA(instance, name, RT_BITMAP);
    if (found == nullptr) return nullptr;
    const void* bytes = LockResource(LoadResource(instance, found));
    std::unique_ptr<Bitmap> bitmap;
    switch (
        ReadDib(static_cast<const std::uint8_t*>(bytes), SizeofResource(instance, found), bitmap)) {
        case DibResult::kGood:
            break;
        case DibResult::kUnsupported:
            ReportUnsupported("a compressed bitmap");
            return nullptr;
        case DibResult::kMalformed:
            return nullptr;
    }
    const Lock lock;
    return Add(Adapt(std::move(bitmap), cx, cy, section));
}

}  // namespace
}  // namespace gdi
}  // namespace headless

using namespace headless::gdi;

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits) {
    if (planes != 1) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const Lock lock;
    if (width == 0 || height == 0) return DefaultBitmap();
    auto bitmap = MakeBitmap(width, height < 0 ? -height : height, static_cast<int>(bitsPerPixel));
    if (bitmap == nullptr) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    if (bits != nullptr) std::memcpy(bitmap->bits.data(), bits, bitmap->bits.size());
    return Add(std::move(bitmap));
}

HBITMAP CreateCompatibleBitmap(HDC handle, int width, int height) {
    const Lock lock;
    const DeviceContext* dc = FindDc(handle);
    if (dc == nullptr) return nullptr;
    if (width == 0 || height == 0) return DefaultBitmap();
    const Bitmap* surface = dc->Surface();
    return Add(MakeBitmap(width, height,
                          surface != nullptr ? surface->bitsPerPixel : headless::DisplayDepth()));
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD) {
    if (bits != nullptr) *bits = nullptr;
    if (info == nullptr) return nullptr;
    const BITMAPINFOHEADER& header = info->bmiHeader;
    if (usage != DIB_RGB_COLORS || section != nullptr || header.biCompression != BI_RGB ||
        header.biSize < sizeof(BITMAPINFOHEADER)) {
        headless::ReportUnsupported("CreateDIBSection other than plain colours");
        return nullptr;
    }
    constexpr LONG kLargestSide = 32767;
    if (header.biWidth <= 0 || header.biWidth > kLargestSide || header.biHeight == 0 ||
        header.biHeight > kLargestSide || header.biHeight < -kLargestSide || header.biPlanes != 1)
        return nullptr;
    const Lock lock;
    const int depth = header.biBitCount;
    auto bitmap =
        MakeBitmap(header.biWidth, header.biHeight < 0 ? -header.biHeight : header.biHeight, depth,
                   headless::SectionStride(header.biWidth, depth));
    if (bitmap == nullptr) return nullptr;
    bitmap->section = true;
    bitmap->bottomUp = header.biHeight > 0;
    if (depth <= 8) {
        const std::size_t most = std::size_t{1} << depth;
        const std::size_t count =
            header.biClrUsed == 0 ? most : std::min<std::size_t>(header.biClrUsed, most);
        bitmap->palette.clear();
        for (std::size_t i = 0; i < count; ++i) {
            const RGBQUAD& color = info->bmiColors[i];
            bitmap->palette.push_back(RGB(color.rgbRed, color.rgbGreen, color.rgbBlue));
        }
    }
    if (bits != nullptr) *bits = bitmap->bits.data();
    return Add(std::move(bitmap));
}

HBITMAP LoadBitmapA(HINSTANCE instance, LPCSTR name) {
    return LoadFromResource(instance, name, 0, 0, false);
}

HANDLE LoadImageA(HINSTANCE instance, LPCSTR name, UINT type, int cx, int cy, UINT flags) {
    constexpr UINT kKnown = LR_DEFAULTSIZE | LR_SHARED | LR_CREATEDIBSECTION;
    if ((flags & ~kKnown) != 0) {
        headless::ReportUnsupported("LoadImageA flags " + std::to_string(flags));
        return nullptr;
    }
    switch (type) {
        case IMAGE_BITMAP:
            return LoadFromResource(instance, name, cx, cy, (flags & LR_CREATEDIBSECTION) != 0);
        case IMAGE_ICON:
            return LoadIconA(instance, name);
        case IMAGE_CURSOR:
            return LoadCursorA(instance, name);
        default:
            headless::ReportUnsupported("LoadImageA type " + std::to_string(type));
            return nullptr;
    }
}
