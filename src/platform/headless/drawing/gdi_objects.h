// The drawing objects behind the handles. Internal to the drawing half.
//
// All objects of a process stand in one table under one lock; a handle is a number that is never
// used twice. An object that is selected into a device context and deleted lives on until it is
// selected out of its last one.
#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

#include "platform/headless/drawing/gdi.h"
#include "zxadlg/headless/recording.h"
#include "zxadlg/headless/types.h"

namespace headless::gdi {

// Held by every public function of the drawing half while it looks at objects; never while it calls
// out.
class Lock {
  public:
    Lock();

  private:
    std::lock_guard<std::recursive_mutex> guard_;
};

struct Object {
    explicit Object(UINT objectType) : type(objectType) {}
    virtual ~Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    const UINT type;  // OBJ_*
    bool stock = false;
    bool doomed = false;  // deleted while selected
    int selections = 0;
};

struct Font : Object {
    static constexpr UINT kType = 6;
    Font() : Object(kType) {}
    LOGFONTA log{};
};

struct Brush : Object {
    static constexpr UINT kType = 2;
    Brush() : Object(kType) {}
    COLORREF color = 0;
    bool hollow = false;
    int systemColor = -1;  // the brush follows this system colour
};

struct Pen : Object {
    static constexpr UINT kType = 1;
    Pen() : Object(kType) {}
    int style = 0;
    int width = 0;
    COLORREF color = 0;
};

// Rows of pixels with the operations that made them. A device-dependent bitmap keeps its rows from
// the top with 16-bit alignment, a section as its creator laid it out.
struct Bitmap : Object {
    static constexpr UINT kType = 7;
    Bitmap() : Object(kType) {}

    const std::uint8_t* Row(int y) const;
    std::uint8_t* Row(int y);
    // Colours as 0x00BBGGRR; y counts from the top. The place must lie inside.
    COLORREF Pixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);
    // The bit of a pixel of a bitmap of two colours.
    bool Bit(int x, int y) const;
    void SetBit(int x, int y, bool on);

    int width = 0;
    int height = 0;
    int bitsPerPixel = 32;
    std::size_t stride = 0;
    bool section = false;
    bool bottomUp = false;
    std::vector<COLORREF> palette;  // for 1 to 8 bits
    std::vector<std::uint8_t> bits;
    std::vector<DrawOp> ops;
};

struct Metafile : Object {
    static constexpr UINT kType = 13;
    Metafile() : Object(kType) {}
    METAFILEPICT picture{};
    bool hasPicture = false;
    std::vector<std::uint8_t> bytes;  // as they were given, well-formed
};

struct Theme : Object {
    static constexpr UINT kType = 0x100;
    Theme() : Object(kType) {}
    std::string name;
};

struct GlobalBlock : Object {
    static constexpr UINT kType = 0x101;
    GlobalBlock() : Object(kType) {}
    std::vector<std::uint8_t> bytes;
    SIZE_T size = 0;
    int locks = 0;
    bool fixed = false;
    bool onClipboard = false;
};

// The object of a handle, or null for a wrong handle and for another kind.
Object* FindObject(HANDLE handle);
template <typename T>
T* Find(HANDLE handle) {
    Object* object = FindObject(handle);
    return object != nullptr && object->type == T::kType ? static_cast<T*>(object) : nullptr;
}

// Puts the object into the table and returns its handle.
HANDLE AddObject(std::unique_ptr<Object> object);
// Takes the object out of the table at once.
void RemoveObject(HANDLE handle);

// Counts a selection of the object; the last Unselect of a deleted object ends it.
void Select(HANDLE handle);
void Unselect(HANDLE handle);

// A bitmap of zeros, or null when the size or the depth makes no sense. `stride` 0 means the
// alignment of a device-dependent bitmap.
std::unique_ptr<Bitmap> MakeBitmap(int width, int height, int bitsPerPixel, std::size_t stride = 0);
// The 1 x 1 bitmap that a device context in memory begins with.
HBITMAP DefaultBitmap();

// What a brush handle or a system colour plus one paints; `hollow` when nothing.
struct Paint {
    COLORREF color = 0;
    bool hollow = false;
};
Paint PaintOf(HBRUSH brush);

// The handles change their meaning with the resolution; called by SetDisplayDpi.
void RefreshStockFonts();

}  // namespace headless::gdi
