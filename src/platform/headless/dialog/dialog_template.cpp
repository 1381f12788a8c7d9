#include "platform/headless/dialog/dialog_template.h"

#include "platform/headless/system/codepage.h"

namespace headless {

namespace {

constexpr std::size_t kMostItems = 1024;
constexpr std::size_t kLongestText = 4096;

class Reader {
  public:
    Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool Good() const { return good_; }
    std::size_t At() const { return at_; }

    std::uint8_t Byte() {
        if (!Has(1)) return 0;
        return data_[at_++];
    }

    WORD Word() {
        if (!Has(2)) return 0;
        const auto value = static_cast<WORD>(data_[at_] | data_[at_ + 1] << 8);
        at_ += 2;
        return value;
    }

    DWORD Double() {
        const DWORD low = Word();
        return low | static_cast<DWORD>(Word()) << 16;
    }

    int Signed() { return static_cast<SHORT>(Word()); }

    std::string TextAfter(WORD first) {
        std::u16string text;
        for (WORD unit = first; good_ && unit != 0; unit = Word()) {
            text.push_back(static_cast<char16_t>(unit));
            if (text.size() > kLongestText) good_ = false;
        }
        return ToAnsi(text);
    }

    std::string Text() { return TextAfter(Word()); }

    // A number behind FFFF, or a text; an empty text is number 0.
    ResourceName Name() {
        ResourceName name;
        const WORD first = Word();
        if (first == 0) return name;
        if (first == 0xFFFF) {
            name.number = Word();
            return name;
        }
        name.isNumber = false;
        name.text = TextAfter(first);
        return name;
    }

    void Align() {
        while (good_ && (at_ & 3) != 0) {
            if (at_ >= size_) {
                good_ = false;
            } else {
                ++at_;
            }
        }
    }

    void Skip(std::size_t count) {
        if (Has(count)) at_ += count;
    }

  private:
    bool Has(std::size_t count) {
        if (!good_ || size_ - at_ < count) good_ = false;
        return good_;
    }

    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
    bool good_ = true;
};

void ReadPlace(Reader& reader, int& x, int& y, int& cx, int& cy) {
    x = reader.Signed();
    y = reader.Signed();
    cx = reader.Signed();
    cy = reader.Signed();
}

void ReadFont(Reader& reader, DialogTemplate& dialog) {
    dialog.hasFont = true;
    dialog.points = reader.Word();
    dialog.weight = FW_NORMAL;
    if (dialog.extended) {
        dialog.weight = reader.Word();
        dialog.italic = reader.Byte() != 0;
        dialog.charset = reader.Byte();
    }
    // 0x7FFF stands for the message box's font and has no face.
    if (dialog.points != 0x7FFF) dialog.face = reader.Text();
}

DialogItem ReadItem(Reader& reader, bool extended) {
    DialogItem item;
    reader.Align();
    if (extended) {
        item.helpId = reader.Double();
        item.exStyle = reader.Double();
        item.style = reader.Double();
    } else {
        item.style = reader.Double();
        item.exStyle = reader.Double();
    }
    ReadPlace(reader, item.x, item.y, item.cx, item.cy);
    item.id = extended ? reader.Double() : reader.Word();
    item.className = reader.Name();
    item.title = reader.Name();
    const std::size_t dataAt = reader.At();
    const WORD dataSize = reader.Word();
    if (dataSize == 0) return item;
    item.dataAt = dataAt;
    // The older kind counts the length itself.
    const std::size_t rest = extended ? dataSize : dataSize < 2 ? 0u : dataSize - 2u;
    reader.Skip(rest);
    return item;
}

}  // namespace

bool ReadDialogTemplate(const std::uint8_t* data, std::size_t size, DialogTemplate& result) {
    result = {};
    if (data == nullptr) return false;
    Reader reader(data, size);
    const DWORD first = reader.Double();
    result.extended = first == 0xFFFF0001;
    if (result.extended) {
        result.helpId = reader.Double();
        result.exStyle = reader.Double();
        result.style = reader.Double();
    } else {
        result.style = first;
        result.exStyle = reader.Double();
    }
    const WORD count = reader.Word();
    ReadPlace(reader, result.x, result.y, result.cx, result.cy);
    const ResourceName menu = reader.Name();
    result.hasMenu = !menu.isNumber || menu.number != 0;
    result.className = reader.Name();
    result.title = reader.Text();
    if ((result.style & DS_SETFONT) != 0) ReadFont(reader, result);
    if (!reader.Good() || count > kMostItems) return false;
    for (WORD i = 0; i < count; ++i) {
        result.items.push_back(ReadItem(reader, result.extended));
        if (!reader.Good()) return false;
    }
    return true;
}

const char* ControlClassName(WORD atom) {
    switch (atom) {
        case 0x80:
            return "Button";
        case 0x81:
            return "Edit";
        case 0x82:
            return "Static";
        case 0x83:
            return "ListBox";
        case 0x84:
            return "ScrollBar";
        case 0x85:
            return "ComboBox";
        default:
            return nullptr;
    }
}

}  // namespace headless
