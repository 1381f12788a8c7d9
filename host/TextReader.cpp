#include "TextReader.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string_view>

namespace zxhost {
namespace {

constexpr std::size_t kPiece = 1 << 20;
constexpr std::size_t kLongestLine = 8 << 20;
constexpr std::size_t kShown = 40;  // characters of a wrong value that a message shows

std::string Shown(std::string_view text) {
    std::string shown = "\"";
    for (char c : text.substr(0, kShown)) {
        const auto u = static_cast<unsigned char>(c);
        shown += u < 0x20 || u == 0x7F ? '?' : c;
    }
    return shown + (text.size() > kShown ? "...\"" : "\"");
}

std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

std::string_view Unquoted(std::string_view text) {
    if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
        return text.substr(1, text.size() - 2);
    return text;
}

bool ReadNumber(std::string_view text, double* value) {
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    const char* end = text.data() + text.size();
    const auto [stop, code] = std::from_chars(text.data(), end, *value);
    return code == std::errc() && stop == end && std::isfinite(*value);
}

char FindDelimiter(std::string_view line) {
    for (char c : {'\t', ';', ','}) {
        if (line.find(c) != std::string_view::npos) return c;
    }
    return ' ';
}

// Calls `take` with each value of the line; stops when it gives false.
template <class Take>
void ForEachValue(std::string_view line, char delimiter, Take take) {
    if (delimiter == ' ') {
        std::size_t at = 0;
        while (true) {
            at = line.find_first_not_of(" \t", at);
            if (at == std::string_view::npos) return;
            const std::size_t end = std::min(line.find_first_of(" \t", at), line.size());
            if (!take(line.substr(at, end - at))) return;
            at = end;
        }
    }
    while (true) {
        const std::size_t end = line.find(delimiter);
        if (!take(Trimmed(line.substr(0, end))) || end == std::string_view::npos) return;
        line.remove_prefix(end + 1);
    }
}

// "Vm (mV)" or "Vm [mV]" into its two parts.
void SplitHeading(std::string_view text, TextColumn* column) {
    text = Trimmed(Unquoted(text));
    const std::size_t open = text.find_last_of("([");
    if (open != std::string_view::npos && (text.back() == ')' || text.back() == ']')) {
        column->units = Trimmed(text.substr(open + 1, text.size() - open - 2));
        text = Trimmed(text.substr(0, open));
    }
    column->name = text;
}

class Reader {
  public:
    Reader(std::string path, std::vector<TextColumn>* columns) : path_(path), columns_(columns) {}

    bool Run(const ReadProgress& progress, std::string* error) {
        if (!ReadAll(progress)) {
            columns_->clear();
            *error = error_;
            return false;
        }
        return true;
    }

  private:
    bool Fail(const std::string& why) {
        error_ = path_ + ": " + why;
        return false;
    }
    bool FailAtLine(const std::string& why) {
        error_ = path_ + ":" + std::to_string(line_) + ": " + why;
        return false;
    }

    bool ReadAll(const ReadProgress& progress) {
        std::error_code code;
        if (std::filesystem::is_directory(path_, code)) return Fail("this is a folder, not a file");
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path_.c_str(), "rb"),
                                                                   &std::fclose);
        if (!file) return Fail(std::string("cannot be opened: ") + std::strerror(errno));
        const auto size = std::filesystem::file_size(path_, code);
        fileSize_ = code ? 0.0 : static_cast<double>(size);
        std::vector<char> buffer(kPiece);
        std::size_t kept = 0;
        double done = 0.0;
        bool first = true;
        while (true) {
            if (buffer.size() < kept + kPiece) buffer.resize(kept + kPiece);
            const std::size_t got = std::fread(buffer.data() + kept, 1, kPiece, file.get());
            if (std::ferror(file.get())) return FailAtLine("cannot be read further");
            const bool last = got == 0;
            std::string_view text(buffer.data(), kept + got);
            if (first && text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
            first = false;
            if (!TakeLines(&text, last)) return false;
            if (last) break;
            if (text.size() > kLongestLine) {
                ++line_;
                return FailAtLine("the line is longer than 8 MB; is this a text file?");
            }
            kept = text.size();
            std::memmove(buffer.data(), text.data(), kept);
            done += static_cast<double>(got);
            if (progress && fileSize_ > 0.0 && !progress(std::min(1.0, done / fileSize_)))
                return Fail("reading was stopped");
        }
        if (rows_ == 0) {
            return Fail(line_ == 0 ? "the file is empty" : "the file has no row of numbers");
        }
        for (TextColumn& column : *columns_) column.values.shrink_to_fit();
        return true;
    }

    // Takes whole lines off the text; the last one also without its end.
    bool TakeLines(std::string_view* text, bool last) {
        while (!text->empty()) {
            const std::size_t end = text->find('\n');
            if (end == std::string_view::npos && !last) return true;
            std::string_view line = text->substr(0, end);
            text->remove_prefix(end == std::string_view::npos ? text->size() : end + 1);
            ++line_;
            if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
            if (line.find('\0') != std::string_view::npos)
                return FailAtLine("this is not a text file (there is a byte 0)");
            if (!TakeLine(line)) return false;
        }
        return true;
    }

    bool TakeLine(std::string_view line) {
        if (Trimmed(line).empty() || line.front() == '#') return true;
        if (delimiter_ == 0) delimiter_ = FindDelimiter(line);
        if (rows_ == 0 && !HasNumbers(line)) return TakeHeading(line);
        if (columns_->empty()) {
            std::size_t count = 0;
            ForEachValue(line, delimiter_,
                         [&](std::string_view) { return ++count <= kMaxColumns; });
            if (count > kMaxColumns) return FailAtLine(TooManyColumns());
            columns_->resize(count);
        }
        if (rows_ == 0) Reserve(line.size());
        return TakeNumbers(line);
    }

    static std::string TooManyColumns() {
        return "there are more than " + std::to_string(kMaxColumns) + " columns";
    }

    bool HasNumbers(std::string_view line) const {
        bool any = false;
        ForEachValue(line, delimiter_, [&](std::string_view text) {
            double value;
            any = ReadNumber(text, &value);
            return !any;
        });
        return any;
    }

    bool TakeHeading(std::string_view line) {
        if (++headings_ > 2) return FailAtLine("text where the first row of numbers should be");
        std::size_t index = 0;
        bool tooMany = false;
        ForEachValue(line, delimiter_, [&](std::string_view text) {
            if (headings_ == 1) {
                tooMany = columns_->size() == kMaxColumns;
                if (!tooMany) SplitHeading(text, &columns_->emplace_back());
                return !tooMany;
            }
            if (index < columns_->size()) {
                std::string_view units = Trimmed(Unquoted(text));
                if (units.size() >= 2 && (units.front() == '(' || units.front() == '['))
                    units = units.substr(1, units.size() - 2);
                (*columns_)[index].units = units;
            }
            ++index;
            return true;
        });
        if (tooMany) return FailAtLine(TooManyColumns());
        if (headings_ == 2 && index != columns_->size()) return FailAtLine(Ragged(index));
        return true;
    }

    std::string Ragged(std::size_t count) const {
        return std::to_string(count) + (count == 1 ? " value" : " values") +
               " where the lines before have " + std::to_string(columns_->size());
    }

    // Columns that grow by doubling would take up to three times their size.
    void Reserve(std::size_t lineSize) {
        const double rows = fileSize_ / static_cast<double>(lineSize + 1) * 1.05 + 16.0;
        const double most = static_cast<double>(kMaxValues) / static_cast<double>(columns_->size());
        for (TextColumn& column : *columns_)
            column.values.reserve(static_cast<std::size_t>(std::min(rows, most)));
    }

    bool TakeNumbers(std::string_view line) {
        const std::size_t wanted = columns_->size();
        if ((rows_ + 1) * wanted > kMaxValues) {
            return FailAtLine("the file holds more than " + std::to_string(kMaxValues) +
                              " numbers");
        }
        std::size_t index = 0;
        bool good = true;
        ForEachValue(line, delimiter_, [&](std::string_view text) {
            if (index < wanted) {
                double value = 0.0;
                if (!ReadNumber(text, &value)) {
                    good = false;
                    const std::string where = " in column " + std::to_string(index + 1);
                    return text.empty() ? FailAtLine("a value is missing" + where)
                                        : FailAtLine(Shown(text) + where + " is not a number");
                }
                (*columns_)[index].values.push_back(value);
            }
            ++index;
            return true;
        });
        if (!good) return false;
        if (index != wanted) return FailAtLine(Ragged(index));
        ++rows_;
        return true;
    }

    std::string path_;
    std::vector<TextColumn>* columns_;
    std::string error_;
    double fileSize_ = 0.0;
    std::size_t line_ = 0;
    std::size_t rows_ = 0;
    int headings_ = 0;
    char delimiter_ = 0;
};

std::string FileName(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

bool Rises(const std::vector<double>& x, std::size_t* at) {
    for (std::size_t i = 1; i < x.size(); ++i) {
        if (x[i] > x[i - 1]) continue;
        *at = i;
        return false;
    }
    return true;
}

}  // namespace

bool ReadTextColumns(const std::string& path, std::vector<TextColumn>* columns, std::string* error,
                     const ReadProgress& progress) {
    columns->clear();
    return Reader(path, columns).Run(progress, error);
}

bool ReadRecording(const std::string& path, DataKind kind, Recording* recording, std::string* error,
                   const ReadProgress& progress) {
    std::vector<TextColumn> columns;
    if (!ReadTextColumns(path, &columns, error, progress)) return false;
    Recording made;
    made.title = FileName(path);
    made.kind = kind;
    Group group;
    std::size_t first = 0;
    if (kind == DataKind::kSheet) {
        group.name = "Sheet 1";
    } else {
        if (columns.size() < 2) {
            *error = path + ": a recording needs an x column and at least one trace; this has " +
                     "one column, which --recording sheet reads";
            return false;
        }
        std::size_t at = 0;
        if (!Rises(columns[0].values, &at)) {
            *error = path + ": the x column does not rise at its value " + std::to_string(at + 1) +
                     "; --recording sheet reads the columns as they are";
            return false;
        }
        made.xUnits = columns[0].units.empty() ? "ms" : columns[0].units;
        made.x = std::move(columns[0].values);
        const double span = made.x.back() - made.x.front();
        if (kind == DataKind::kRecording && span > 0.0) {
            const double perSecond = made.xUnits == "s" ? 1.0 : 1000.0;
            made.samplingFrequency = perSecond * static_cast<double>(made.x.size() - 1) / span;
        }
        group.name = columns.size() == 2 && !columns[1].name.empty() ? columns[1].name : "Signal 1";
        group.units = columns[1].units;
        first = 1;
    }
    for (std::size_t i = first; i < columns.size(); ++i) {
        Set set;
        set.name = columns[i].name;
        if (set.name.empty())
            set.name = (first ? "Sweep " : "Column ") + std::to_string(i + 1 - first);
        set.units = columns[i].units;
        set.values = std::move(columns[i].values);
        group.sets.push_back(std::move(set));
    }
    made.groups.push_back(std::move(group));
    AddCursorRegions(&made);
    *recording = std::move(made);
    return true;
}

}  // namespace zxhost
