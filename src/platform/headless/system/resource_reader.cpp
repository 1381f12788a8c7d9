#include "platform/headless/system/codepage.h"
#include "platform/headless/system/resources.h"
#include "zxadlg/headless/constants.h"

namespace headless {

namespace {

// Steps over bytes and never beyond their end.
class Reader {
  public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    std::size_t Left() const { return size_ - at_; }
    std::size_t At() const { return at_; }

    bool Word(WORD& value) {
        if (Left() < 2) return false;
        value = static_cast<WORD>(data_[at_] | data_[at_ + 1] << 8);
        at_ += 2;
        return true;
    }

    bool Double(DWORD& value) {
        WORD low = 0;
        WORD high = 0;
        if (!Word(low) || !Word(high)) return false;
        value = static_cast<DWORD>(low) | static_cast<DWORD>(high) << 16;
        return true;
    }

    bool Name(ResourceName& name) {
        WORD first = 0;
        if (!Word(first)) return false;
        if (first == 0xFFFF) return Word(name.number);
        name.isNumber = false;
        std::u16string text;
        for (WORD unit = first; unit != 0;) {
            text.push_back(static_cast<char16_t>(unit));
            if (!Word(unit)) return false;
        }
        name.text = ToAnsi(text);
        return true;
    }

    // To a multiple of four from the start; the very end may lack its padding.
    void Align() {
        at_ = (at_ + 3) & ~static_cast<std::size_t>(3);
        if (at_ > size_) at_ = size_;
    }

    bool Skip(std::size_t count) {
        if (Left() < count) return false;
        at_ += count;
        return true;
    }

  private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

bool ReadEntry(Reader& reader, const std::uint8_t* begin, ResourceEntry& entry) {
    const std::size_t start = reader.At();
    DWORD dataSize = 0;
    DWORD headerSize = 0;
    if (!reader.Double(dataSize) || !reader.Double(headerSize)) return false;
    if (!reader.Name(entry.type) || !reader.Name(entry.name)) return false;
    reader.Align();
    DWORD version = 0;
    WORD flags = 0;
    DWORD ignored = 0;
    if (!reader.Double(version) || !reader.Word(flags) || !reader.Word(entry.language) ||
        !reader.Double(ignored) || !reader.Double(ignored))
        return false;
    // The header says its own size; it may hold more than is known here but not less.
    const std::size_t read = reader.At() - start;
    if (headerSize < read || !reader.Skip(headerSize - read)) return false;
    if (reader.Left() < dataSize) return false;
    entry.data = begin + reader.At();
    entry.size = dataSize;
    reader.Skip(dataSize);
    reader.Align();
    return true;
}

}  // namespace

ResourceList ReadResources(const std::uint8_t* begin, std::size_t size) {
    ResourceList list;
    Reader reader(begin, size);
    while (reader.Left() >= 4) {
        ResourceEntry entry;
        if (!ReadEntry(reader, begin, entry)) {
            list.complete = false;
            return list;
        }
        // Each file begins with an empty entry.
        const bool empty = entry.type.isNumber && entry.type.number == 0;
        if (!empty) list.entries.push_back(std::move(entry));
    }
    list.complete = reader.Left() == 0;
    return list;
}

ResourceName NameFromCaller(LPCSTR name) {
    ResourceName result;
    if (IS_INTRESOURCE(name)) {
        result.number = LOWORD(reinterpret_cast<ULONG_PTR>(name));
        return result;
    }
    if (name[0] == '#') {
        unsigned number = 0;
        bool digits = name[1] != '\0';
        for (const char* p = name + 1; *p != '\0'; ++p) {
            if (*p < '0' || *p > '9' || number > 0xFFFF) {
                digits = false;
                break;
            }
            number = number * 10 + static_cast<unsigned>(*p - '0');
        }
        if (digits && number <= 0xFFFF) {
            result.number = static_cast<WORD>(number);
            return result;
        }
    }
    result.isNumber = false;
    result.text = name;
    return result;
}

bool SameResourceName(const ResourceName& a, const ResourceName& b) {
    if (a.isNumber != b.isNumber) return false;
    return a.isNumber ? a.number == b.number : SameName(a.text, b.text);
}

bool StringInBlock(const std::uint8_t* block, std::size_t size, unsigned id, std::string& text) {
    Reader reader(block, size);
    for (unsigned i = 0; i < 16; ++i) {
        WORD length = 0;
        if (!reader.Word(length)) return false;
        if (i != (id & 15)) {
            if (!reader.Skip(static_cast<std::size_t>(length) * 2)) return false;
            continue;
        }
        std::u16string wide;
        for (WORD n = 0; n < length; ++n) {
            WORD unit = 0;
            if (!reader.Word(unit)) return false;
            wide.push_back(static_cast<char16_t>(unit));
        }
        text = ToAnsi(wide);
        return true;
    }
    return false;
}

}  // namespace headless
