// Rows and cells of a spreadsheet, out of text as it is copied or exported.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "text/decoding.h"

namespace scorvane {

/// A name without blanks around it, with one blank where there are several inside, and with
/// straight quotes. Control characters are blanks.
[[nodiscard]] std::string tidied(std::string_view text);

class Sheet {
 public:
  /// Rows that hold something; cells are counted from 0 and tidied.
  struct Row {
    std::int32_t line = 0;     ///< its first line in the text, from 1
    std::size_t cells = 0;     ///< how many, empty ones too
    bool isQuoteOpen = false;  ///< a quote is never closed: the row is its first line alone
    std::size_t firstCell = 0;
  };

  /// Reads at most so many rows of a text, which must outlive the sheet. Cells may be quoted, with
  /// quotes doubled, separators and line ends inside.
  Sheet(const DecodedText& decoded, char separator, std::size_t mostRows);

  [[nodiscard]] const std::vector<Row>& rows() const { return rows_; }
  /// "" when the row has no such cell.
  [[nodiscard]] std::string_view cell(const Row& row, std::size_t column) const;
  [[nodiscard]] bool hasChanges() const { return !changed_.empty(); }
  /// What became of the characters of a cell that had to be changed; mostly "".
  [[nodiscard]] std::string_view changes(const Row& row, std::size_t column) const;

 private:
  friend class SheetReader;
  struct Cell {
    std::uint32_t start = 0;  ///< in the text; behind its end in what was tidied
    std::uint32_t size = 0;
  };
  struct ChangedCell {
    std::size_t cell = 0;
    std::string characters;
  };

  std::vector<Row> rows_;
  std::vector<Cell> cells_;
  std::vector<ChangedCell> changed_;  ///< ascending
  std::string_view text_;
  std::string tidied_;  ///< cells that are not in the text as they are
};

}  // namespace scorvane
