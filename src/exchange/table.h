// Tables as workbooks and text files hold them, before either is written.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace scorvane {

struct Cell {
  enum class Kind { blank, text, number };
  Kind kind = Kind::blank;
  bool hasDecimal = false;
  std::int64_t value = 0;  ///< of a number, without its decimal point
  std::string_view text;   ///< 8-bit text

  [[nodiscard]] static Cell ofText(std::string_view text) {
    return text.empty() ? Cell{} : Cell{Kind::text, false, 0, text};
  }
  [[nodiscard]] static Cell ofNumber(std::int64_t value) {
    return {Kind::number, false, value, {}};
  }
  /// A number that is given in tenths.
  [[nodiscard]] static Cell ofTenths(std::int64_t value) { return {Kind::number, true, value, {}}; }
};

/// Appends a number's digits and decimal point.
void appendNumeral(std::string& out, const Cell& number);

struct Table {
  std::string name;
  std::vector<std::string> headings;
  std::size_t rows = 0;
  /// Appends the cells of a row, from 0. Their texts must stay as they are while the sheet is
  /// written, but for texts of one character: these need to last until the next call.
  std::function<void(std::size_t row, std::vector<Cell>& cells)> fill;
};

/// A sheet as comma-separated text: UTF-8 with its mark, CR LF, quoted as RFC 4180 says. A text
/// that spreadsheets would run as a formula gets an apostrophe before it.
[[nodiscard]] std::string csvText(const Table& table);

/// What a sheet of a workbook has room for.
struct SheetLimits {
  std::size_t rows = 1'048'576;  ///< the headings included
  std::size_t columns = 16'384;
  std::size_t text = 32'767;  ///< characters of a cell
};

/// The sheets as a workbook (Office Open XML): headings in bold that stay in sight, columns as wide
/// as their texts. What a sheet has no room for goes on in another one, or, beyond the last column,
/// is left out.
[[nodiscard]] std::string workbookBytes(const std::vector<Table>& tables,
                                        const SheetLimits& limits = {});

}  // namespace scorvane
