#include "TemplateBytes.h"

#include <algorithm>
#include <cstring>

namespace {

class Reader {
  public:
    Reader(const BYTE* data, std::size_t size) : data_(data), size_(size) {}

    template <class T>
    T Take() {
        T value{};
        if (at_ + sizeof value <= size_) std::memcpy(&value, data_ + at_, sizeof value);
        at_ += sizeof value;
        return value;
    }
    void Align() { at_ = (at_ + 3) & ~std::size_t{3}; }
    void Skip(std::size_t count) { at_ += count; }

    // A name or "#" and an id; the texts of the library stay within code page 1252.
    std::string TakeName() {
        const auto first = Take<WORD>();
        if (first == 0xFFFF) return "#" + std::to_string(Take<WORD>());
        std::string text;
        for (WORD unit = first; unit != 0; unit = Take<WORD>()) text += static_cast<char>(unit);
        return text;
    }

  private:
    const BYTE* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

std::string KindOf(const std::string& name) {
    if (name == "#128") return "BUTTON";
    if (name == "#129") return "EDIT";
    if (name == "#130") return "STATIC";
    if (name == "#131") return "LISTBOX";
    if (name == "#133") return "COMBOBOX";
    return name;
}

TemplateBytes Read(int id, const BYTE* data, std::size_t size) {
    Reader reader(data, size);
    TemplateBytes result;
    result.id = id;
    reader.Skip(4 + 4 + 4);
    result.style = reader.Take<DWORD>();
    const auto count = reader.Take<WORD>();
    reader.Skip(4);
    result.cx = reader.Take<SHORT>();
    result.cy = reader.Take<SHORT>();
    reader.TakeName();
    reader.TakeName();
    result.caption = reader.TakeName();
    if ((result.style & DS_SETFONT) != 0) {
        result.points = reader.Take<WORD>();
        reader.Skip(4);
        result.face = reader.TakeName();
    }
    for (WORD i = 0; i < count; ++i) {
        reader.Align();
        TemplateItem item;
        reader.Skip(4);
        item.exStyle = reader.Take<DWORD>();
        item.style = reader.Take<DWORD>();
        item.x = reader.Take<SHORT>();
        item.y = reader.Take<SHORT>();
        item.cx = reader.Take<SHORT>();
        item.cy = reader.Take<SHORT>();
        item.id = reader.Take<LONG>();
        item.kind = KindOf(reader.TakeName());
        item.text = reader.TakeName();
        reader.Skip(reader.Take<WORD>());
        result.items.push_back(item);
    }
    return result;
}

BOOL CALLBACK Collect(HMODULE module, LPCSTR, LPSTR name, LONG_PTR param) {
    const HRSRC resource = FindResourceA(module, name, RT_DIALOG);
    const auto* data = static_cast<const BYTE*>(LockResource(LoadResource(module, resource)));
    reinterpret_cast<std::vector<TemplateBytes>*>(param)->push_back(
        Read(static_cast<int>(reinterpret_cast<ULONG_PTR>(name)), data,
             SizeofResource(module, resource)));
    return TRUE;
}

}  // namespace

std::vector<TemplateBytes> ReadTemplates() {
    std::vector<TemplateBytes> templates;
    EnumResourceNamesA(GetModuleHandleA(nullptr), RT_DIALOG, &Collect,
                       reinterpret_cast<LONG_PTR>(&templates));
    std::sort(templates.begin(), templates.end(),
              [](const TemplateBytes& a, const TemplateBytes& b) { return a.id < b.id; });
    return templates;
}
