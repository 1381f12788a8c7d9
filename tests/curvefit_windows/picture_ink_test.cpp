// The equation pictures played by the platform itself, at the sizes of a pane at 100 and 150 %.
// With ZX_PICTURES set to a folder they are written there as bitmaps, to be looked at.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "framework/ADM_MetafileWnd.h"

namespace {

struct Ink {
    int nPixels = 0;
    int nLeft = 1 << 20, nTop = 1 << 20, nRight = -1, nBottom = -1;
};

class Canvas {
  public:
    Canvas(int nWidth, int nHeight) : m_nWidth(nWidth), m_nHeight(nHeight) {
        m_info.bmiHeader.biSize = sizeof m_info.bmiHeader;
        m_info.bmiHeader.biWidth = nWidth;
        m_info.bmiHeader.biHeight = -nHeight;
        m_info.bmiHeader.biPlanes = 1;
        m_info.bmiHeader.biBitCount = 32;
        m_hDC = CreateCompatibleDC(nullptr);
        m_hBitmap = CreateDIBSection(m_hDC, &m_info, DIB_RGB_COLORS, &m_pBits, nullptr, 0);
        m_hBefore = SelectObject(m_hDC, m_hBitmap);
        PatBlt(m_hDC, 0, 0, nWidth, nHeight, WHITENESS);
    }
    ~Canvas() {
        SelectObject(m_hDC, m_hBefore);
        DeleteObject(m_hBitmap);
        DeleteDC(m_hDC);
    }
    Canvas(const Canvas&) = delete;
    HDC Get() const { return m_hDC; }
    Ink Measure() const {
        GdiFlush();
        Ink ink;
        const auto* pixels = static_cast<const DWORD*>(m_pBits);
        for (int y = 0; y < m_nHeight; ++y) {
            for (int x = 0; x < m_nWidth; ++x) {
                if ((pixels[y * m_nWidth + x] & 0xFFu) > 0x80u) continue;
                ++ink.nPixels;
                ink.nLeft = std::min(ink.nLeft, x);
                ink.nRight = std::max(ink.nRight, x);
                ink.nTop = std::min(ink.nTop, y);
                ink.nBottom = std::max(ink.nBottom, y);
            }
        }
        return ink;
    }
    void Save(const std::string& sPath) const {
        BITMAPFILEHEADER header = {};
        header.bfType = 0x4D42;
        header.bfOffBits = sizeof header + sizeof m_info.bmiHeader;
        const auto uBits = static_cast<DWORD>(m_nWidth * m_nHeight * 4);
        header.bfSize = header.bfOffBits + uBits;
        std::ofstream file(sPath, std::ios::binary);
        file.write(reinterpret_cast<const char*>(&header), sizeof header);
        file.write(reinterpret_cast<const char*>(&m_info.bmiHeader), sizeof m_info.bmiHeader);
        file.write(static_cast<const char*>(m_pBits), uBits);
    }

  private:
    int m_nWidth, m_nHeight;
    BITMAPINFO m_info = {};
    HDC m_hDC = nullptr;
    HBITMAP m_hBitmap = nullptr;
    HGDIOBJ m_hBefore = nullptr;
    void* m_pBits = nullptr;
};

BOOL CALLBACK Collect(HMODULE, LPCSTR, LPSTR szName, LONG_PTR lParam) {
    reinterpret_cast<std::vector<std::string>*>(lParam)->push_back(szName);
    return TRUE;
}

TEST(PictureInk, IsInTheMiddleOfThePaneAtEverySize) {
    const HMODULE hModule = GetModuleHandleA(nullptr);
    std::vector<std::string> names;
    EnumResourceNamesA(hModule, "METAFILE", Collect, reinterpret_cast<LONG_PTR>(&names));
    ASSERT_EQ(names.size(), 52u);
    const char* szFolder = std::getenv("ZX_PICTURES");
    for (const std::string& sName : names) {
        for (const int nPercent : {100, 150}) {
            SCOPED_TRACE(sName + " " + std::to_string(nPercent));
            const int nWidth = 576 * nPercent / 100;
            const int nHeight = 96 * nPercent / 100;
            const Canvas canvas(nWidth, nHeight);
            ADM_MetafileWnd picture;
            picture.LoadMetafile(hModule, sName.c_str(), MM_ANISOTROPIC);
            picture.PlayInto(canvas.Get(), 0, 0, nWidth, nHeight);
            const Ink ink = canvas.Measure();
            EXPECT_GT(ink.nPixels, 150);
            EXPECT_GT(ink.nLeft, 2);
            EXPECT_LT(ink.nRight, nWidth - 3);
            EXPECT_GT(ink.nTop, 2);
            EXPECT_LT(ink.nBottom, nHeight - 3);
            EXPECT_NEAR(ink.nLeft + ink.nRight, nWidth, 6);
            EXPECT_NEAR(ink.nTop + ink.nBottom, nHeight, 6);
            if (szFolder != nullptr)
                canvas.Save(std::string(szFolder) + "/" + sName + std::to_string(nPercent) +
                            ".bmp");
        }
    }
}

}  // namespace
