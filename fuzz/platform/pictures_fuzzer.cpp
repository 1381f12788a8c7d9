// Pictures from outside: any bytes as a bitmap and as a metafile. What is read is also copied.
#include "platform/headless/drawing/device_bitmap.h"
#include "platform/headless/drawing/enhanced_metafile.h"
#include "platform/platform.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::unique_ptr<headless::gdi::Bitmap> bitmap;
    if (headless::ReadDib(data, size, bitmap) == headless::DibResult::kGood) {
        unsigned sum = 0;
        for (int y = 0; y < bitmap->height && y < 64; ++y)
            for (int x = 0; x < bitmap->width && x < 64; ++x) {
                sum += bitmap->Pixel(x, y);
                bitmap->SetPixel(x, y, sum & 0xFFFFFF);
            }
    }
    const METAFILEPICT picture = {MM_ANISOTROPIC, 100, 100, nullptr};
    const HENHMETAFILE metafile =
        SetWinMetaFileBits(static_cast<UINT>(size), data, nullptr, &picture);
    if (metafile != nullptr) DeleteEnhMetaFile(metafile);
    return 0;
}
