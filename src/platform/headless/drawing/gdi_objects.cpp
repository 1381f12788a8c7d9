#include "platform/headless/drawing/gdi_objects.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <unordered_map>

#include "zxadlg/headless/diagnostics.h"
#include "zxadlg/headless/display.h"
#include "zxadlg/headless/functions.h"

namespace headless::gdi {
namespace {

std::recursive_mutex& Mutex() {
    static std::recursive_mutex& mutex = *new std::recursive_mutex;
    return mutex;
}

struct Table {
    std::unordered_map<std::uintptr_t, std::unique_ptr<Object>> objects;
    std::uintptr_t next = 0x01000010;
    std::map<int, HANDLE> stock;          // by index of GetStockObject
    std::map<int, HANDLE> systemBrushes;  // by colour index
    HANDLE bitmap = nullptr;
};

// Lives to the end of the process: objects of static lifetime may still let go of handles then.
Table& Objects() {
    static Table& table = *new Table;
    return table;
}

std::uintptr_t Number(HANDLE handle) {
    return reinterpret_cast<std::uintptr_t>(handle);
}

HANDLE AddStock(std::unique_ptr<Object> object) {
    object->stock = true;
    return AddObject(std::move(object));
}

struct StockFont {
    int index;
    int points;  // 0: the height is fixed
    int height;
    int width;
    int weight;
    int charSet;
    int pitchAndFamily;
    const char* face;
};

// Heights are those of 96 dots per inch.
constexpr StockFont kStockFonts[] = {
    {OEM_FIXED_FONT, 0, 12, 0, 400, OEM_CHARSET, 49, ""},
    {ANSI_FIXED_FONT, 0, 12, 0, 400, ANSI_CHARSET, 49, "Courier"},
    {ANSI_VAR_FONT, 0, 12, 0, 400, ANSI_CHARSET, 34, "MS Sans Serif"},
    {SYSTEM_FONT, 0, 16, 7, 700, ANSI_CHARSET, 34, "System"},
    {SYSTEM_FIXED_FONT, 0, 16, 0, 400, ANSI_CHARSET, 49, "Courier"},
    {DEFAULT_GUI_FONT, 8, -11, 0, 400, ANSI_CHARSET, 34, "MS Shell Dlg"},
};

void Describe(const StockFont& stock, LOGFONTA& log) {
    log = {};
    log.lfHeight = stock.points != 0 ? -MulDiv(stock.points, DisplayDpi(), 72) : stock.height;
    log.lfWidth = stock.width;
    log.lfWeight = stock.weight;
    log.lfCharSet = static_cast<BYTE>(stock.charSet);
    log.lfPitchAndFamily = static_cast<BYTE>(stock.pitchAndFamily);
    std::strncpy(log.lfFaceName, stock.face, LF_FACESIZE - 1);
}

std::unique_ptr<Object> MakeStock(int index) {
    for (const StockFont& stock : kStockFonts) {
        if (stock.index != index) continue;
        auto font = std::make_unique<Font>();
        Describe(stock, font->log);
        return font;
    }
    constexpr COLORREF kBrushes[] = {RGB(255, 255, 255), RGB(192, 192, 192), RGB(128, 128, 128),
                                     RGB(64, 64, 64), RGB(0, 0, 0)};
    if (index >= WHITE_BRUSH && index <= NULL_BRUSH) {
        auto brush = std::make_unique<Brush>();
        brush->hollow = index == NULL_BRUSH;
        brush->color = brush->hollow ? 0 : kBrushes[index];
        return brush;
    }
    if (index >= WHITE_PEN && index <= NULL_PEN) {
        auto pen = std::make_unique<Pen>();
        pen->style = index == NULL_PEN ? PS_NULL : PS_SOLID;
        pen->color = index == WHITE_PEN ? RGB(255, 255, 255) : 0;
        return pen;
    }
    return nullptr;
}

template <typename T>
int CopyOut(const T& value, int size, void* buffer) {
    if (buffer == nullptr) return static_cast<int>(sizeof(T));
    if (size <= 0) return 0;
    const int count = std::min(size, static_cast<int>(sizeof(T)));
    std::memcpy(buffer, &value, static_cast<std::size_t>(count));
    return count;
}

}  // namespace

Lock::Lock() : guard_(Mutex()) {}

Object* FindObject(HANDLE handle) {
    auto& objects = Objects().objects;
    const auto found = objects.find(Number(handle));
    return found == objects.end() ? nullptr : found->second.get();
}

HANDLE AddObject(std::unique_ptr<Object> object) {
    Table& table = Objects();
    const std::uintptr_t number = table.next;
    table.next += 16;
    table.objects.emplace(number, std::move(object));
    return reinterpret_cast<HANDLE>(number);
}

void RemoveObject(HANDLE handle) {
    Objects().objects.erase(Number(handle));
}

void Select(HANDLE handle) {
    if (Object* object = FindObject(handle)) ++object->selections;
}

void Unselect(HANDLE handle) {
    Object* object = FindObject(handle);
    if (object == nullptr) return;
    --object->selections;
    if (object->doomed && object->selections == 0) RemoveObject(handle);
}

HBITMAP DefaultBitmap() {
    Table& table = Objects();
    if (table.bitmap == nullptr) {
        auto bitmap = MakeBitmap(1, 1, 1);
        table.bitmap = AddStock(std::move(bitmap));
    }
    return static_cast<HBITMAP>(table.bitmap);
}

Paint PaintOf(HBRUSH brush) {
    const std::uintptr_t number = Number(brush);
    // Small numbers are system colours plus one.
    if (number > 0 && number <= 31) return {GetSysColor(static_cast<int>(number) - 1), false};
    const Brush* object = Find<Brush>(brush);
    if (object == nullptr) return {0, true};
    if (object->systemColor >= 0) return {GetSysColor(object->systemColor), false};
    return {object->color, object->hollow};
}

void RefreshStockFonts() {
    const Lock lock;
    for (const StockFont& stock : kStockFonts) {
        const auto found = Objects().stock.find(stock.index);
        if (found != Objects().stock.end()) Describe(stock, Find<Font>(found->second)->log);
    }
}

DrawingCounts LiveCounts() {
    const Lock lock;
    DrawingCounts counts;
    for (const auto& [number, object] : Objects().objects) {
        if (object->stock) continue;
        switch (object->type) {
            case OBJ_FONT:
                ++counts.fonts;
                break;
            case OBJ_BRUSH:
                ++counts.brushes;
                break;
            case OBJ_PEN:
                ++counts.pens;
                break;
            case OBJ_BITMAP:
                ++counts.bitmaps;
                break;
            case OBJ_ENHMETAFILE:
                ++counts.metafiles;
                break;
            case OBJ_MEMDC:
                ++counts.memoryDcs;
                break;
            case OBJ_DC:
                ++counts.windowDcs;
                break;
            case Theme::kType:
                ++counts.themes;
                break;
            case GlobalBlock::kType:
                if (!static_cast<const GlobalBlock&>(*object).onClipboard) ++counts.globals;
                break;
            default:
                break;
        }
    }
    return counts;
}

}  // namespace headless::gdi

using namespace headless::gdi;

HGDIOBJ GetStockObject(int index) {
    const Lock lock;
    auto& stock = Objects().stock;
    const auto found = stock.find(index);
    if (found != stock.end()) return found->second;
    auto object = MakeStock(index);
    if (object == nullptr) {
        headless::ReportUnsupported("GetStockObject " + std::to_string(index));
        return nullptr;
    }
    return stock[index] = AddStock(std::move(object));
}

HBRUSH GetSysColorBrush(int index) {
    if (index < 0 || index > 30) return nullptr;
    const Lock lock;
    HANDLE& handle = Objects().systemBrushes[index];
    if (handle == nullptr) {
        auto brush = std::make_unique<Brush>();
        brush->systemColor = index;
        handle = AddStock(std::move(brush));
    }
    return static_cast<HBRUSH>(handle);
}

HFONT CreateFontIndirectA(const LOGFONTA* font) {
    if (font == nullptr) return nullptr;
    const Lock lock;
    auto object = std::make_unique<Font>();
    object->log = *font;
    object->log.lfFaceName[LF_FACESIZE - 1] = '\0';
    return static_cast<HFONT>(AddObject(std::move(object)));
}

HFONT CreateFontA(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                  DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, LPCSTR faceName) {
    LOGFONTA log{};
    log.lfHeight = height;
    log.lfWidth = width;
    log.lfEscapement = escapement;
    log.lfOrientation = orientation;
    log.lfWeight = weight;
    log.lfItalic = static_cast<BYTE>(italic);
    log.lfUnderline = static_cast<BYTE>(underline);
    log.lfStrikeOut = static_cast<BYTE>(strikeOut);
    log.lfCharSet = static_cast<BYTE>(charSet);
    log.lfOutPrecision = static_cast<BYTE>(outPrecision);
    log.lfClipPrecision = static_cast<BYTE>(clipPrecision);
    log.lfQuality = static_cast<BYTE>(quality);
    log.lfPitchAndFamily = static_cast<BYTE>(pitchAndFamily);
    if (faceName != nullptr)
        for (int i = 0; i < LF_FACESIZE - 1 && faceName[i] != '\0'; ++i)
            log.lfFaceName[i] = faceName[i];
    return CreateFontIndirectA(&log);
}

HPEN CreatePen(int style, int width, COLORREF color) {
    const Lock lock;
    auto pen = std::make_unique<Pen>();
    pen->style = style;
    pen->width = std::max(width, 0);
    pen->color = color;
    return static_cast<HPEN>(AddObject(std::move(pen)));
}

HBRUSH CreateSolidBrush(COLORREF color) {
    const Lock lock;
    auto brush = std::make_unique<Brush>();
    brush->color = color;
    return static_cast<HBRUSH>(AddObject(std::move(brush)));
}

BOOL DeleteObject(HGDIOBJ handle) {
    const Lock lock;
    Object* object = FindObject(handle);
    if (object == nullptr) return FALSE;
    if (object->type == OBJ_DC || object->type == OBJ_MEMDC)
        return DeleteDC(static_cast<HDC>(handle));
    if (object->type > OBJ_BITMAP || object->doomed) return FALSE;
    if (object->stock) return TRUE;
    if (object->selections > 0)
        object->doomed = true;
    else
        RemoveObject(handle);
    return TRUE;
}

int GetObjectA(HANDLE handle, int size, LPVOID buffer) {
    const Lock lock;
    if (const Font* font = Find<Font>(handle)) return CopyOut(font->log, size, buffer);
    if (const Bitmap* bitmap = Find<Bitmap>(handle)) {
        BITMAP info{};
        info.bmWidth = bitmap->width;
        info.bmHeight = bitmap->height;
        info.bmWidthBytes = static_cast<LONG>(bitmap->stride);
        info.bmPlanes = 1;
        info.bmBitsPixel = static_cast<WORD>(bitmap->bitsPerPixel);
        if (bitmap->section) info.bmBits = const_cast<std::uint8_t*>(bitmap->bits.data());
        return CopyOut(info, size, buffer);
    }
    if (FindObject(handle) != nullptr)
        headless::ReportUnsupported("GetObjectA of this kind of object");
    else
        SetLastError(ERROR_INVALID_HANDLE);
    return 0;
}

DWORD GetObjectType(HGDIOBJ handle) {
    const Lock lock;
    const Object* object = FindObject(handle);
    if (object == nullptr) SetLastError(ERROR_INVALID_HANDLE);
    return object == nullptr ? 0 : object->type;
}
