#include "TextReader.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "Numbers.h"
#include "System.h"

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

// "4,5" with a decimal comma: digits on both sides of one comma, or none.
bool ReadCommaNumber(std::string_view text, double* value) {
    const std::size_t comma = text.find(',');
    if (text.find('.') != std::string_view::npos) return false;
    if (comma == std::string_view::npos) return ParseNumber(text, value);
    std::string changed(text);
    changed[comma] = '.';
    return ParseNumber(changed, value);
}

// The values of a line may be separated by blanks and have decimal commas: "0,25 -75,6".
bool HasCommaNumbers(std::string_view line) {
    std::size_t count = 0;
    bool all = true;
    ForEachValue(line, ' ', [&](std::string_view text) {
        double value;
        ++count;
        all = ReadCommaNumber(text, &value) && text.back() != ',' && text.front() != ',';
        return all;
    });
    return all && count > 1;
}

char FindDelimiter(std::string_view line) {
    for (char c : {'\t', ';', ','}) {
        if (line.find(c) == std::string_view::npos) continue;
        return c == ',' && HasCommaNumbers(line) ? ' ' : c;
    }
    return ' ';
}

struct DelimiterWord {
    const char* word;
    char delimiter;
};
constexpr DelimiterWord kDelimiters[] = {
    {"tab", '\t'}, {"semicolon", ';'}, {"comma", ','}, {"blank", ' '}};

class Reader {
  public:
    Reader(const std::string& path, std::vector<TextColumn>* columns, char delimiter)
        : path_(path), columns_(columns), delimiter_(delimiter), isTold_(delimiter != 0) {}

    bool Run(const ReadProgress& progress, std::string* error) {
        if (!ReadAll(progress)) {
            columns_->clear();
            *error = error_;
            return false;
        }
        return true;
    }

  private:
    enum class Decimal { kUnknown, kPoint, kComma };

    bool Fail(const std::string& why) {
        error_ = path_ + ": " + why;
        return false;
    }
    bool FailAtLine(const std::string& why) {
        error_ = path_ + ":" + std::to_string(line_) + ": " + why;
        return false;
    }

    bool ReadAll(const ReadProgress& progress) {
        const std::filesystem::path path = PathOf(path_);
        std::error_code code;
        if (std::filesystem::is_directory(path, code)) return Fail("this is a folder, not a file");
        std::ifstream file(path, std::ios::binary);
        if (!file) return Fail(std::string("cannot be opened: ") + std::strerror(errno));
        const auto size = std::filesystem::file_size(path, code);
        fileSize_ = code ? 0.0 : static_cast<double>(size);
        std::vector<char> buffer(kPiece);
        std::size_t kept = 0;
        double done = 0.0;
        bool first = true;
        while (true) {
            if (buffer.size() < kept + kPiece) buffer.resize(kept + kPiece);
            file.read(buffer.data() + kept, kPiece);
            if (file.bad()) return FailAtLine("cannot be read further");
            const auto got = static_cast<std::size_t>(file.gcount());
            const bool last = got == 0;
            std::string_view text(buffer.data(), kept + got);
            if (first) {
                const std::string wrong = WrongEncoding(text);
                if (!wrong.empty()) return Fail(wrong);
                if (text.substr(0, 3) == "\xEF\xBB\xBF") text.remove_prefix(3);
            }
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
        if (MayBeDecimalCommas()) {
            return Fail(
                "the commas may separate columns or decimals; --delimiter comma says that they "
                "separate columns, and with decimal commas the values need tabs, semicolons or "
                "blanks between them");
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
            // Most lines of most files are rows like the one before.
            if (rows_ > 0 && TakeRow(line)) continue;
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

    bool Number(std::string_view text, double* value) const {
        if (decimal_ != Decimal::kComma && ParseNumber(text, value)) return true;
        return decimal_ != Decimal::kPoint && delimiter_ != ',' && ReadCommaNumber(text, value);
    }

    bool HasNumbers(std::string_view line) const {
        bool any = false;
        ForEachValue(line, delimiter_, [&](std::string_view text) {
            double value;
            any = Number(text, &value);
            return !any;
        });
        return any;
    }

    bool TakeHeading(std::string_view line) {
        if (++headings_ > 2) return FailAtLine("text where the first row of numbers should be");
        const std::size_t wrong = FindWrongByte(line);
        if (wrong != std::string_view::npos) {
            constexpr char kDigits[] = "0123456789ABCDEF";
            const auto byte = static_cast<unsigned char>(line[wrong]);
            return FailAtLine(std::string("byte ") + kDigits[byte >> 4] + kDigits[byte & 15] +
                              " at place " + std::to_string(wrong + 1) +
                              " is not UTF-8; save the file as UTF-8");
        }
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
        const std::size_t wanted = columns_->size();
        std::string text = std::to_string(count) + (count == 1 ? " value" : " values") +
                           " where the lines before have " + std::to_string(wanted);
        if (delimiter_ == ',' && count > wanted && count <= 2 * wanted)
            text += "; with decimal commas the values need tabs or semicolons between them";
        return text;
    }

    // Columns that grow by doubling would take up to three times their size.
    void Reserve(std::size_t lineSize) {
        const double rows = fileSize_ / static_cast<double>(lineSize + 1) * 1.05 + 16.0;
        const double most = static_cast<double>(kMaxValues) / static_cast<double>(columns_->size());
        for (TextColumn& column : *columns_)
            column.values.reserve(static_cast<std::size_t>(std::min(rows, most)));
        row_.resize(columns_->size());
    }

    bool IsBlank(char c) const { return c == ' ' || (c == '\t' && delimiter_ != '\t'); }

    // Takes a row that is as it should be; false leaves it, with nothing taken, to TakeLine, which
    // knows what may be wrong.
    bool TakeRow(std::string_view line) {
        const std::size_t wanted = row_.size();
        if ((rows_ + 1) * wanted > kMaxValues) return false;
        if (decimal_ == Decimal::kComma) {
            if (line.find('.') != std::string_view::npos) return false;
            changed_.assign(line);
            std::replace(changed_.begin(), changed_.end(), ',', '.');
            line = changed_;
        } else if (decimal_ == Decimal::kUnknown) {
            if (line.find('.') != std::string_view::npos) return false;
            if (delimiter_ != ',' && line.find(',') != std::string_view::npos) return false;
        }
        const char* at = line.data();
        const char* const end = at + line.size();
        for (std::size_t i = 0; i < wanted; ++i) {
            while (at < end && IsBlank(*at)) ++at;
            at = ReadDecimal(at, end, &row_[i]);
            if (at == nullptr) return false;
            if (i + 1 == wanted) break;
            if (delimiter_ == ' ') {
                if (at == end || !IsBlank(*at)) return false;
            } else {
                while (at < end && IsBlank(*at)) ++at;
                if (at == end || *at++ != delimiter_) return false;
            }
        }
        while (at < end && IsBlank(*at)) ++at;
        if (at != end) return false;
        for (std::size_t i = 0; i < wanted; ++i) (*columns_)[i].values.push_back(row_[i]);
        ++rows_;
        return true;
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
                good = TakeNumber(text, index, &value);
                if (!good) return false;
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

    bool TakeNumber(std::string_view text, std::size_t index, double* value) {
        if (!Number(text, value)) {
            const std::string where = " in column " + std::to_string(index + 1);
            if (text.empty()) return FailAtLine("a value is missing" + where);
            double other;
            std::string why = Shown(text) + where + " is not a number";
            if (delimiter_ != ',' && decimal_ == Decimal::kPoint && ReadCommaNumber(text, &other))
                why += ": the numbers before have decimal points";
            if (decimal_ == Decimal::kComma && ParseNumber(text, &other))
                why += ": the numbers before have decimal commas";
            return FailAtLine(why);
        }
        if (decimal_ == Decimal::kUnknown) {
            if (text.find('.') != std::string_view::npos) decimal_ = Decimal::kPoint;
            if (text.find(',') != std::string_view::npos) decimal_ = Decimal::kComma;
        }
        return true;
    }

    // "0,25" in a file with no heading: two columns of whole numbers, or one with decimals.
    bool MayBeDecimalCommas() const {
        if (isTold_ || delimiter_ != ',' || headings_ > 0) return false;
        if (decimal_ == Decimal::kPoint || columns_->size() % 2 != 0) return false;
        for (std::size_t i = 1; i < columns_->size(); i += 2) {
            for (double value : (*columns_)[i].values) {
                if (std::signbit(value)) return false;
            }
        }
        return true;
    }

    std::string path_;
    std::vector<TextColumn>* columns_;
    std::string error_;
    std::vector<double> row_;  // the one that is being read
    std::string changed_;      // its text with decimal points
    double fileSize_ = 0.0;
    std::size_t line_ = 0;
    std::size_t rows_ = 0;
    int headings_ = 0;
    char delimiter_;
    bool isTold_;
    Decimal decimal_ = Decimal::kUnknown;
};

}  // namespace

bool ReadTextColumns(const std::string& path, std::vector<TextColumn>* columns, std::string* error,
                     const ReadProgress& progress, char delimiter) {
    columns->clear();
    return Reader(path, columns, delimiter).Run(progress, error);
}

char DelimiterOf(const std::string& word) {
    for (const DelimiterWord& row : kDelimiters) {
        if (word == row.word) return row.delimiter;
    }
    return 0;
}

}  // namespace zxhost
