// Pictures of records: what they draw is there, pixel by pixel.
#include <gtest/gtest.h>

#include <vector>

#include "platform/platform.h"

namespace {

// 100 x 100 white pixels.
class Canvas {
  public:
    Canvas() {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = kSide;
        info.bmiHeader.biHeight = -kSide;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc = CreateCompatibleDC(nullptr);
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_before = SelectObject(m_dc, m_bitmap);
        PatBlt(m_dc, 0, 0, kSide, kSide, WHITENESS);
    }
    ~Canvas() {
        SelectObject(m_dc, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void Play(const std::vector<WORD>& records) {
        std::vector<WORD> words = {1, 9, 0x300, 0, 0, 4, 100, 0, 0};
        words.insert(words.end(), records.begin(), records.end());
        words.insert(words.end(), {3, 0, 0});
        words[3] = static_cast<WORD>(words.size());
        const METAFILEPICT picture = {MM_ANISOTROPIC, 1000, 1000, nullptr};
        const HENHMETAFILE made =
            SetWinMetaFileBits(static_cast<UINT>(words.size() * sizeof(WORD)),
                               reinterpret_cast<const BYTE*>(words.data()), m_dc, &picture);
        ASSERT_NE(nullptr, made);
        const RECT whole = {0, 0, kSide, kSide};
        EXPECT_TRUE(PlayEnhMetaFile(m_dc, made, &whole));
        DeleteEnhMetaFile(made);
    }
    bool IsDark(int x, int y) const { return GetRValue(GetPixel(m_dc, x, y)) < 128; }

    static constexpr int kSide = 100;

  private:
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
};

// A window of 1000 x 1000 and a black brush without an outline.
const std::vector<WORD> kSetUp = {4, 0, 0x103, 8,                 // free scales
                                  5, 0, 0x20B, 0,    0,           // origin
                                  5, 0, 0x20C, 1000, 1000,        // extent
                                  7, 0, 0x2FC, 0,    0,    0, 0,  // brush
                                  4, 0, 0x12D, 0,                 //
                                  8, 0, 0x2FA, 5,    0,    0, 0, 0, 4, 0, 0x12D, 1};

TEST(MetafilePicture, FillsAFigureAndLeavesItsHole) {
    std::vector<WORD> records = kSetUp;
    // A square of 600 with one of 200 in its middle, which runs the other way round.
    const std::vector<WORD> figure = {22,  0,   0x538, 2,   4,   4,   200, 200, 800, 200, 800,
                                      800, 200, 800,   400, 400, 400, 600, 600, 600, 600, 400};
    records.insert(records.end(), figure.begin(), figure.end());
    Canvas canvas;
    canvas.Play(records);
    EXPECT_TRUE(canvas.IsDark(30, 30));
    EXPECT_TRUE(canvas.IsDark(70, 50));
    EXPECT_FALSE(canvas.IsDark(50, 50)) << "the hole";
    EXPECT_FALSE(canvas.IsDark(10, 50));
    EXPECT_FALSE(canvas.IsDark(90, 90));
}

TEST(MetafilePicture, DrawsLinesWithItsPen) {
    std::vector<WORD> records = kSetUp;
    const std::vector<WORD> line = {8,     0, 0x2FA, 0, 40,    0, 0, 0,   4,    0,
                                    0x12D, 2, 8,     0, 0x325, 2, 0, 500, 1000, 500};
    records.insert(records.end(), line.begin(), line.end());
    Canvas canvas;
    canvas.Play(records);
    EXPECT_TRUE(canvas.IsDark(50, 50));
    EXPECT_TRUE(canvas.IsDark(5, 50));
    EXPECT_FALSE(canvas.IsDark(50, 40));
}

}  // namespace
