// Plays pictures of records from the library's resources and writes them pixel by pixel, so that
// what both systems draw can be laid over each other.
#include "Scenario.h"
#include "framework/ADM_MetafileWnd.h"
#include "platform/platform.h"

namespace differential {
namespace {

constexpr int kDark = 128;  // and less

// White pixels, from the top.
class Canvas {
  public:
    Canvas(int width, int height) : m_width(width), m_height(height) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        m_dc = CreateCompatibleDC(nullptr);
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_before = SelectObject(m_dc, m_bitmap);
        PatBlt(m_dc, 0, 0, width, height, WHITENESS);
    }
    ~Canvas() {
        SelectObject(m_dc, m_before);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC Context() const { return m_dc; }
    void Write(std::FILE* out) const {
        for (int y = 0; y < m_height; ++y) {
            std::string row;
            for (int x = 0; x < m_width; ++x)
                row += GetRValue(GetPixel(m_dc, x, y)) < kDark ? '#' : '-';
            std::fprintf(out, "%s\n", row.c_str());
        }
    }

  private:
    int m_width, m_height;
    HDC m_dc = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_before = nullptr;
};

}  // namespace

void PlayPictures(std::FILE* out, const Scenario& scenario) {
    for (const std::string& line : scenario.lines) {
        std::fprintf(out, "@ %s\n", line.c_str());
        Words words(line);
        words.Next();
        const std::string name = words.Next();
        const int width = static_cast<int>(words.NextNumber());
        const int height = static_cast<int>(words.NextNumber());
        Canvas canvas(width, height);
        ADM_MetafileWnd picture;
        picture.LoadMetafile(GetModuleHandleA(nullptr), name.c_str(), MM_ANISOTROPIC);
        picture.PlayInto(canvas.Context(), 0, 0, width, height);
        canvas.Write(out);
    }
}

}  // namespace differential
