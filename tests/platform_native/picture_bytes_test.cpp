// Pictures as bytes from outside: bitmaps and metafiles, well formed and not.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "platform/platform.h"
#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/modules.h"

namespace {

class Bytes {
  public:
    Bytes& Word(unsigned value) {
        m_bytes.push_back(static_cast<std::uint8_t>(value));
        m_bytes.push_back(static_cast<std::uint8_t>(value >> 8));
        return *this;
    }
    Bytes& Dword(unsigned value) { return Word(value & 0xFFFF).Word(value >> 16); }
    Bytes& Add(std::initializer_list<int> bytes) {
        for (int byte : bytes) m_bytes.push_back(static_cast<std::uint8_t>(byte));
        return *this;
    }
    const std::vector<std::uint8_t>& Get() const { return m_bytes; }

  private:
    std::vector<std::uint8_t> m_bytes;
};

// A header of 40 bytes.
Bytes Header(int width, int height, int depth, unsigned compression = 0, unsigned colors = 0) {
    Bytes bytes;
    bytes.Dword(40).Dword(static_cast<unsigned>(width)).Dword(static_cast<unsigned>(height));
    bytes.Word(1).Word(static_cast<unsigned>(depth)).Dword(compression).Dword(0);
    return bytes.Dword(0).Dword(0).Dword(colors).Dword(0);
}

enum class DibResult { kGood, kMalformed, kUnsupported };

// The bytes as the one bitmap of a module's resources, and what loading it gives.
class LoadedBitmap {
  public:
    explicit LoadedBitmap(const std::vector<std::uint8_t>& bytes) {
        Bytes file;
        file.Dword(0).Dword(32).Dword(0xFFFF).Dword(0xFFFF).Dword(0).Dword(0).Dword(0).Dword(0);
        file.Dword(static_cast<unsigned>(bytes.size())).Dword(32);
        file.Word(0xFFFF).Word(2).Word(0xFFFF).Word(5).Dword(0).Dword(0).Dword(0).Dword(0);
        // No byte of padding behind the picture: a reader beyond its end is seen.
        std::vector<std::uint8_t> all = file.Get();
        all.insert(all.end(), bytes.begin(), bytes.end());
        const HMODULE module = headless::RegisterModule(all.data(), all.data() + all.size());
        m_bitmap = static_cast<HBITMAP>(
            LoadImageA(module, MAKEINTRESOURCEA(5), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
        headless::UnregisterModule(all.data());
        m_unsupported = headless::TakeUnsupported();
        m_dc = CreateCompatibleDC(nullptr);
        if (m_bitmap != nullptr) m_old = SelectObject(m_dc, m_bitmap);
    }
    ~LoadedBitmap() {
        if (m_old != nullptr) SelectObject(m_dc, m_old);
        DeleteDC(m_dc);
        if (m_bitmap != nullptr) DeleteObject(m_bitmap);
    }
    LoadedBitmap(const LoadedBitmap&) = delete;
    LoadedBitmap& operator=(const LoadedBitmap&) = delete;

    DibResult Result() const {
        if (m_bitmap != nullptr) return DibResult::kGood;
        return m_unsupported == std::vector<std::string>{"a compressed bitmap"}
                   ? DibResult::kUnsupported
                   : DibResult::kMalformed;
    }
    COLORREF Pixel(int x, int y) const { return GetPixel(m_dc, x, y); }
    int Height() const {
        BITMAP bitmap{};
        GetObjectA(m_bitmap, sizeof bitmap, &bitmap);
        return bitmap.bmHeight;
    }

  private:
    HBITMAP m_bitmap = nullptr;
    HDC m_dc = nullptr;
    HGDIOBJ m_old = nullptr;
    std::vector<std::string> m_unsupported;
};

DibResult Read(const std::vector<std::uint8_t>& bytes) {
    return LoadedBitmap(bytes).Result();
}

TEST(BitmapBytes, RowsStandFromTheBottom) {
    Bytes bytes = Header(2, 2, 24);
    bytes.Add({1, 2, 3, 4, 5, 6, 0, 0}).Add({7, 8, 9, 10, 11, 12, 0, 0});
    const LoadedBitmap bitmap(bytes.Get());
    ASSERT_EQ(DibResult::kGood, bitmap.Result());
    EXPECT_EQ(RGB(9, 8, 7), bitmap.Pixel(0, 0));
    EXPECT_EQ(RGB(3, 2, 1), bitmap.Pixel(0, 1));
    EXPECT_EQ(RGB(6, 5, 4), bitmap.Pixel(1, 1));
}

TEST(BitmapBytes, ANegativeHeightMeansFromTheTop) {
    Bytes bytes = Header(1, -2, 24);
    bytes.Add({1, 2, 3, 0}).Add({7, 8, 9, 0});
    const LoadedBitmap bitmap(bytes.Get());
    ASSERT_EQ(DibResult::kGood, bitmap.Result());
    EXPECT_EQ(RGB(3, 2, 1), bitmap.Pixel(0, 0));
    EXPECT_EQ(2, bitmap.Height());
}

TEST(BitmapBytes, PalettesOfEachDepth) {
    Bytes mono = Header(3, 1, 1);
    mono.Add({0, 0, 0, 0}).Add({255, 255, 255, 0}).Add({0xA0, 0, 0, 0});
    const LoadedBitmap ofTwo(mono.Get());
    ASSERT_EQ(DibResult::kGood, ofTwo.Result());
    EXPECT_EQ(RGB(255, 255, 255), ofTwo.Pixel(0, 0));
    EXPECT_EQ(RGB(0, 0, 0), ofTwo.Pixel(1, 0));
    Bytes four = Header(2, 1, 4, 0, 2);
    four.Add({1, 2, 3, 0}).Add({4, 5, 6, 0}).Add({0x10, 0, 0, 0});
    const LoadedBitmap ofSixteen(four.Get());
    ASSERT_EQ(DibResult::kGood, ofSixteen.Result());
    EXPECT_EQ(RGB(6, 5, 4), ofSixteen.Pixel(0, 0));
    EXPECT_EQ(RGB(3, 2, 1), ofSixteen.Pixel(1, 0));
    Bytes eight = Header(2, 1, 8, 0, 1);
    eight.Add({1, 2, 3, 0}).Add({0, 9, 0, 0});
    const LoadedBitmap ofMany(eight.Get());
    ASSERT_EQ(DibResult::kGood, ofMany.Result());
    EXPECT_EQ(RGB(3, 2, 1), ofMany.Pixel(0, 0));
    EXPECT_EQ(RGB(0, 0, 0), ofMany.Pixel(1, 0)) << "a colour that is not in the table";
}

TEST(BitmapBytes, EachCutIsMalformed) {
    Bytes bytes = Header(2, 2, 24);
    bytes.Add({1, 2, 3, 4, 5, 6, 0, 0}).Add({7, 8, 9, 10, 11, 12, 0, 0});
    for (std::size_t size = 0; size < bytes.Get().size(); ++size) {
        const std::vector<std::uint8_t> cut(
            bytes.Get().begin(), bytes.Get().begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(DibResult::kMalformed, Read(cut)) << size;
    }
}

TEST(BitmapBytes, NonsenseIsMalformed) {
    EXPECT_EQ(DibResult::kMalformed, Read(Header(0, 1, 24).Add({0, 0, 0, 0}).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(-1, 1, 24).Add({0, 0, 0, 0}).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(0x7FFFFFFF, 0x7FFFFFFF, 32).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(1, static_cast<int>(0x80000000), 32).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(1, 1, 7).Add({0, 0, 0, 0, 0, 0}).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(1, 1, 8, 0, 0xFFFFFFFF).Add({0, 0, 0, 0}).Get()));
    EXPECT_EQ(DibResult::kMalformed, Read(Header(1, 1, 24, 0, 0x40000000).Add({0, 0, 0, 0}).Get()));
    EXPECT_EQ(DibResult::kUnsupported, Read(Header(1, 1, 8, 1, 1).Add({0, 0, 0, 0, 0, 0}).Get()));
}

Bytes MetafileHeader() {
    Bytes bytes;
    return bytes.Word(1).Word(9).Word(0x300).Dword(0).Word(0).Dword(0).Word(0);
}

bool IsMetafile(const std::uint8_t* data, std::size_t size) {
    const METAFILEPICT picture = {MM_ANISOTROPIC, 100, 100, nullptr};
    const HENHMETAFILE metafile =
        SetWinMetaFileBits(static_cast<UINT>(size), data, nullptr, &picture);
    return metafile != nullptr && DeleteEnhMetaFile(metafile);
}

TEST(MetafileBytes, RecordsEndWithTheEmptyOne) {
    Bytes bytes = MetafileHeader();
    bytes.Dword(4).Word(0x0103).Word(8).Dword(3).Word(0);
    EXPECT_TRUE(IsMetafile(bytes.Get().data(), bytes.Get().size()));
}

TEST(MetafileBytes, EachCutIsMalformed) {
    Bytes bytes = MetafileHeader();
    bytes.Dword(4).Word(0x0103).Word(8).Dword(3).Word(0);
    for (std::size_t size = 0; size < bytes.Get().size(); ++size)
        EXPECT_FALSE(IsMetafile(bytes.Get().data(), size)) << size;
}

TEST(MetafileBytes, WrongLengthsAndHeadersAreMalformed) {
    const auto good = [](const Bytes& bytes) {
        return IsMetafile(bytes.Get().data(), bytes.Get().size());
    };
    EXPECT_FALSE(good(MetafileHeader().Dword(2).Word(0x0103).Dword(3).Word(0)));
    EXPECT_FALSE(good(MetafileHeader().Dword(0xFFFFFFFF).Word(0x0103).Dword(3).Word(0)));
    EXPECT_FALSE(good(MetafileHeader().Dword(0).Word(0x0103)));
    EXPECT_FALSE(good(MetafileHeader()));
    EXPECT_FALSE(good(
        Bytes().Word(3).Word(9).Word(0x300).Dword(0).Word(0).Dword(0).Word(0).Dword(3).Word(0)));
    EXPECT_FALSE(good(
        Bytes().Word(1).Word(8).Word(0x300).Dword(0).Word(0).Dword(0).Word(0).Dword(3).Word(0)));
    EXPECT_FALSE(IsMetafile(nullptr, 40));
}

}  // namespace
