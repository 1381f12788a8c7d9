// Pictures as bytes from outside: bitmaps and metafiles, well formed and not.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "platform/headless/drawing/device_bitmap.h"
#include "platform/headless/drawing/enhanced_metafile.h"
#include "platform/platform.h"

namespace {

using headless::CountMetafileRecords;
using headless::DibResult;
using headless::ReadDib;

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

DibResult Read(const std::vector<std::uint8_t>& bytes,
               std::unique_ptr<headless::gdi::Bitmap>* bitmap = nullptr) {
    std::unique_ptr<headless::gdi::Bitmap> local;
    return ReadDib(bytes.data(), bytes.size(), bitmap == nullptr ? local : *bitmap);
}

TEST(BitmapBytes, RowsStandFromTheBottom) {
    Bytes bytes = Header(2, 2, 24);
    bytes.Add({1, 2, 3, 4, 5, 6, 0, 0}).Add({7, 8, 9, 10, 11, 12, 0, 0});
    std::unique_ptr<headless::gdi::Bitmap> bitmap;
    ASSERT_EQ(DibResult::kGood, Read(bytes.Get(), &bitmap));
    EXPECT_EQ(RGB(9, 8, 7), bitmap->Pixel(0, 0));
    EXPECT_EQ(RGB(3, 2, 1), bitmap->Pixel(0, 1));
    EXPECT_EQ(RGB(6, 5, 4), bitmap->Pixel(1, 1));
}

TEST(BitmapBytes, ANegativeHeightMeansFromTheTop) {
    Bytes bytes = Header(1, -2, 24);
    bytes.Add({1, 2, 3, 0}).Add({7, 8, 9, 0});
    std::unique_ptr<headless::gdi::Bitmap> bitmap;
    ASSERT_EQ(DibResult::kGood, Read(bytes.Get(), &bitmap));
    EXPECT_EQ(RGB(3, 2, 1), bitmap->Pixel(0, 0));
    EXPECT_EQ(2, bitmap->height);
}

TEST(BitmapBytes, PalettesOfEachDepth) {
    Bytes mono = Header(3, 1, 1);
    mono.Add({0, 0, 0, 0}).Add({255, 255, 255, 0}).Add({0xA0, 0, 0, 0});
    std::unique_ptr<headless::gdi::Bitmap> bitmap;
    ASSERT_EQ(DibResult::kGood, Read(mono.Get(), &bitmap));
    EXPECT_EQ(RGB(255, 255, 255), bitmap->Pixel(0, 0));
    EXPECT_EQ(RGB(0, 0, 0), bitmap->Pixel(1, 0));
    Bytes four = Header(2, 1, 4, 0, 2);
    four.Add({1, 2, 3, 0}).Add({4, 5, 6, 0}).Add({0x10, 0, 0, 0});
    ASSERT_EQ(DibResult::kGood, Read(four.Get(), &bitmap));
    EXPECT_EQ(RGB(6, 5, 4), bitmap->Pixel(0, 0));
    EXPECT_EQ(RGB(3, 2, 1), bitmap->Pixel(1, 0));
    Bytes eight = Header(2, 1, 8, 0, 1);
    eight.Add({1, 2, 3, 0}).Add({0, 9, 0, 0});
    ASSERT_EQ(DibResult::kGood, Read(eight.Get(), &bitmap));
    EXPECT_EQ(RGB(3, 2, 1), bitmap->Pixel(0, 0));
    EXPECT_EQ(RGB(0, 0, 0), bitmap->Pixel(1, 0)) << "a colour that is not in the table";
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

TEST(MetafileBytes, RecordsAreCountedUpToTheEmptyOne) {
    Bytes bytes = MetafileHeader();
    bytes.Dword(4).Word(0x0103).Word(8).Dword(3).Word(0);
    EXPECT_EQ(1, CountMetafileRecords(bytes.Get().data(), bytes.Get().size()));
}

TEST(MetafileBytes, EachCutIsMalformed) {
    Bytes bytes = MetafileHeader();
    bytes.Dword(4).Word(0x0103).Word(8).Dword(3).Word(0);
    for (std::size_t size = 0; size < bytes.Get().size(); ++size)
        EXPECT_EQ(-1, CountMetafileRecords(bytes.Get().data(), size)) << size;
}

TEST(MetafileBytes, WrongLengthsAndHeadersAreMalformed) {
    const auto count = [](const Bytes& bytes) {
        return CountMetafileRecords(bytes.Get().data(), bytes.Get().size());
    };
    EXPECT_EQ(-1, count(MetafileHeader().Dword(2).Word(0x0103).Dword(3).Word(0)));
    EXPECT_EQ(-1, count(MetafileHeader().Dword(0xFFFFFFFF).Word(0x0103).Dword(3).Word(0)));
    EXPECT_EQ(-1, count(MetafileHeader().Dword(0).Word(0x0103)));
    EXPECT_EQ(-1, count(MetafileHeader()));
    EXPECT_EQ(
        -1,
        count(Bytes().Word(3).Word(9).Word(0x300).Dword(0).Word(0).Dword(0).Word(0).Dword(3).Word(
            0)));
    EXPECT_EQ(
        -1,
        count(Bytes().Word(1).Word(8).Word(0x300).Dword(0).Word(0).Dword(0).Word(0).Dword(3).Word(
            0)));
    EXPECT_EQ(-1, CountMetafileRecords(nullptr, 40));
}

}  // namespace
