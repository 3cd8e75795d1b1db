#include "exchange/sheet.h"

#include <algorithm>
#include <array>
#include <optional>

namespace scorvane {

namespace {

constexpr std::size_t kCharacters = 256;

// What each character of a cell is written as.
constexpr std::array<char, kCharacters> kTidy = [] {
  std::array<char, kCharacters> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    table[c] = c < ' ' || c == 0x7F || c == 0xA0 ? ' ' : static_cast<char>(c);
  }
  for (const std::size_t quote : {0x82U, 0x91U, 0x92U}) table[quote] = '\'';
  for (const std::size_t quote : {0x84U, 0x93U, 0x94U}) table[quote] = '"';
  return table;
}();

char tidyCharacter(char c) {
  return kTidy[static_cast<unsigned char>(c)];
}

// What a character does to a cell. Blanks are untidy beside others and at both ends.
constexpr unsigned kBlank = 1;
constexpr unsigned kUntidy = 2;
constexpr unsigned kEnd = 4;

bool isLineEnd(char c) {
  return c == '\r' || c == '\n';
}

void appendTidied(std::string& out, std::string_view text) {
  const std::size_t start = out.size();
  out.resize(start + text.size());
  char* to = out.data() + start;
  char before = ' ';
  for (const char c : text) {
    const char tidy = tidyCharacter(c);
    *to = tidy;
    to += tidy == ' ' && before == ' ' ? 0 : 1;
    before = tidy;
  }
  if (before == ' ' && to > out.data() + start) --to;
  out.resize(static_cast<std::size_t>(to - out.data()));
}

}  // namespace

std::string tidied(std::string_view text) {
  std::string name;
  appendTidied(name, text);
  return name;
}

class SheetReader {
 public:
  SheetReader(Sheet& sheet, const DecodedText& decoded, char separator)
      : sheet_(sheet), text_(decoded.text), changed_(decoded.changed), separator_(separator) {
    for (std::size_t c = 0; c < kCharacters; ++c) {
      does_[c] = c == ' ' ? kBlank : kTidy[c] == static_cast<char>(c) ? 0 : kUntidy;
    }
    for (const char c : {separator, '\r', '\n'}) does_[static_cast<unsigned char>(c)] = kEnd;
  }

  void read(std::size_t mostRows) {
    while (at_ < text_.size() && sheet_.rows_.size() < mostRows) readRow();
  }

 private:
  void readRow() {
    Sheet::Row row;
    row.line = line_;
    row.firstCell = static_cast<std::uint32_t>(sheet_.cells_.size());
    bool isFilled = false;
    for (bool hasMore = true; hasMore; ++row.cells) {
      readCell(row.isQuoteOpen);
      isFilled = isFilled || sheet_.cells_.back().size > 0;
      hasMore = at_ < text_.size() && text_[at_] == separator_;
      if (hasMore) ++at_;
    }
    if (at_ < text_.size()) passLineEnd();
    if (isFilled || row.isQuoteOpen) {
      sheet_.rows_.push_back(row);
    } else {
      sheet_.cells_.resize(row.firstCell);
    }
  }

  void readCell(bool& isQuoteOpen) {
    std::size_t quote = at_;
    while (quote < text_.size() && text_[quote] == ' ') ++quote;
    if (quote < text_.size() && text_[quote] == '"' && !isQuoteOpen) {
      const std::optional<std::size_t> end = endOfQuoted(quote + 1, isQuoteOpen);
      if (end) return takeQuoted(quote + 1, *end);
    }
    std::size_t end = at_;
    unsigned before = kBlank;
    unsigned untidy = 0;
    for (; end < text_.size(); ++end) {
      const unsigned does = does_[static_cast<unsigned char>(text_[end])];
      if (does == kEnd) break;
      untidy |= does & (before | kUntidy);
      before = does;
    }
    const std::string_view content = text_.substr(at_, end - at_);
    if (untidy != 0 || before == kBlank) {
      keep(content, at_, end);
    } else {
      keepPart(at_, end);  // as most cells
    }
    at_ = end;
  }

  // Where the closing quote is. Behind it the cell must end: a name that merely begins with a
  // nickname in quotes is no quoted cell, and a quote on another line that no cell ends with shows
  // that this one was left open.
  std::optional<std::size_t> endOfQuoted(std::size_t from, bool& isOpen) const {
    bool isOnLine = true;
    for (std::size_t i = from; i < text_.size(); ++i) {
      isOnLine = isOnLine && !isLineEnd(text_[i]);
      if (text_[i] != '"') continue;
      if (i + 1 < text_.size() && text_[i + 1] == '"') {
        ++i;
        continue;
      }
      std::size_t after = i + 1;
      while (after < text_.size() && text_[after] == ' ') ++after;
      if (after == text_.size() || text_[after] == separator_ || isLineEnd(text_[after])) return i;
      isOpen = !isOnLine;
      return std::nullopt;
    }
    isOpen = true;
    return std::nullopt;
  }

  void takeQuoted(std::size_t start, std::size_t end) {
    const std::string_view inside = text_.substr(start, end - start);
    if (inside.find("\"\"") == std::string_view::npos) {
      keep(inside, start, end);
    } else {
      std::string single;
      for (std::size_t i = 0; i < inside.size(); ++i) {
        single += inside[i];
        if (inside[i] == '"') ++i;
      }
      keep(single, start, end);
    }
    for (at_ = start; at_ < end;) {
      if (isLineEnd(text_[at_])) {
        passLineEnd();
      } else {
        ++at_;
      }
    }
    ++at_;
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
  }

  void keep(std::string_view content, std::size_t from, std::size_t to) {
    const std::size_t start = sheet_.tidied_.size();
    appendTidied(sheet_.tidied_, content);
    addCell(text_.size() + start, sheet_.tidied_.size() - start, from, to);
  }
  void keepPart(std::size_t from, std::size_t to) { addCell(from, to - from, from, to); }

  void addCell(std::size_t start, std::size_t size, std::size_t from, std::size_t to) {
    while (nextChange_ < changed_.size() && changed_[nextChange_] < to) {
      if (changed_[nextChange_] >= from) noteChange(text_[changed_[nextChange_]]);
      ++nextChange_;
    }
    sheet_.cells_.push_back({static_cast<std::uint32_t>(start), static_cast<std::uint32_t>(size)});
  }

  void noteChange(char character) {
    auto& cells = sheet_.changed_;
    const std::size_t cell = sheet_.cells_.size();
    if (cells.empty() || cells.back().cell != cell) cells.push_back({cell, ""});
    cells.back().characters += character;
  }

  void passLineEnd() {
    const bool isPair = text_.substr(at_, 2) == "\r\n";
    at_ += isPair ? 2 : 1;
    ++line_;
  }

  Sheet& sheet_;
  std::string_view text_;
  const std::vector<std::size_t>& changed_;
  char separator_;
  std::array<unsigned, kCharacters> does_{};
  std::size_t at_ = 0;
  std::size_t nextChange_ = 0;
  std::int32_t line_ = 1;
};

Sheet::Sheet(const DecodedText& decoded, char separator, std::size_t mostRows)
    : text_(decoded.text) {
  if (mostRows > decoded.text.size()) {
    cells_.reserve(
        static_cast<std::size_t>(std::count_if(
            text_.begin(), text_.end(), [&](char c) { return c == separator || c == '\n'; })) +
        1);
  }
  SheetReader(*this, decoded, separator).read(mostRows);
}

std::string_view Sheet::cell(const Row& row, std::size_t column) const {
  if (column >= row.cells) return {};
  const Cell& cell = cells_[std::size_t{row.firstCell} + column];
  if (cell.start < text_.size()) return text_.substr(cell.start, cell.size);
  return std::string_view(tidied_).substr(cell.start - text_.size(), cell.size);
}

std::string_view Sheet::changes(const Row& row, std::size_t column) const {
  if (changed_.empty() || column >= row.cells) return {};
  const std::size_t wanted = std::size_t{row.firstCell} + column;
  const auto found =
      std::lower_bound(changed_.begin(), changed_.end(), wanted,
                       [](const ChangedCell& changed, std::size_t i) { return changed.cell < i; });
  if (found == changed_.end() || found->cell != wanted) return {};
  return found->characters;
}

}  // namespace scorvane
