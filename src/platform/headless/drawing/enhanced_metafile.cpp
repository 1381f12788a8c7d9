#include "platform/headless/drawing/enhanced_metafile.h"

#include "platform/headless/drawing/gdi_dc.h"
#include "platform/headless/drawing/metafile_player.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/functions.h"

namespace headless {
namespace {

constexpr std::size_t kHeaderSize = 18;
constexpr std::size_t kSmallestRecord = 6;

std::uint32_t Word(const std::uint8_t* at) {
    return at[0] | static_cast<std::uint32_t>(at[1]) << 8;
}
std::uint32_t Dword(const std::uint8_t* at) {
    return Word(at) | Word(at + 2) << 16;
}

}  // namespace

int CountMetafileRecords(const std::uint8_t* data, std::size_t size) {
    if (data == nullptr || size < kHeaderSize) return -1;
    const std::uint32_t type = Word(data);
    const std::uint32_t version = Word(data + 4);
    if ((type != 1 && type != 2) || Word(data + 2) != kHeaderSize / 2) return -1;
    if (version != 0x0100 && version != 0x0300) return -1;
    int records = 0;
    for (std::size_t at = kHeaderSize; size - at >= kSmallestRecord;) {
        const std::size_t words = Dword(data + at);
        if (words < kSmallestRecord / 2 || words > (size - at) / 2) return -1;
        if (Word(data + at + 4) == 0) return records;
        ++records;
        at += words * 2;
    }
    return -1;
}

}  // namespace headless

using namespace headless::gdi;

HENHMETAFILE SetWinMetaFileBits(UINT size, const BYTE* data, HDC, const METAFILEPICT* picture) {
    if (headless::CountMetafileRecords(data, size) < 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const Lock lock;
    auto metafile = std::make_unique<Metafile>();
    metafile->bytes.assign(data, data + size);
    if (picture != nullptr) {
        metafile->picture = *picture;
    } else {
        // As large as the screen, in hundredths of a millimetre.
        const int dpi = headless::DisplayDpi();
        metafile->picture.mm = MM_ANISOTROPIC;
        metafile->picture.xExt = MulDiv(GetSystemMetrics(SM_CXSCREEN), 2540, dpi);
        metafile->picture.yExt = MulDiv(GetSystemMetrics(SM_CYSCREEN), 2540, dpi);
    }
    return static_cast<HENHMETAFILE>(AddObject(std::move(metafile)));
}

BOOL PlayEnhMetaFile(HDC handle, HENHMETAFILE metafile, const RECT* rect) {
    const Lock lock;
    DeviceContext* dc = FindDc(handle);
    const Metafile* object = Find<Metafile>(metafile);
    if (dc == nullptr || object == nullptr || rect == nullptr) return FALSE;
    headless::DrawOp op;
    op.kind = headless::DrawKind::kMetafile;
    op.rect = dc->ToDevice(*rect);
    op.handle = metafile;
    op.picture = object->picture;
    Record(*dc, std::move(op));
    headless::MetafilePlayer(handle, dc->ToDevice(*rect)).Play(object->bytes);
    return TRUE;
}

BOOL DeleteEnhMetaFile(HENHMETAFILE metafile) {
    const Lock lock;
    if (Find<Metafile>(metafile) == nullptr) return FALSE;
    RemoveObject(metafile);
    return TRUE;
}
