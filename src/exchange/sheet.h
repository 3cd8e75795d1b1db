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
  std::uint8_t decimals = 0;
  std::int64_t value = 0;  ///< of a number, without its decimal point
  std::string_view text;   ///< 8-bit text

  [[nodiscard]] static Cell ofText(std::string_view text) {
    return text.empty() ? Cell{} : Cell{Kind::text, 0, 0, text};
  }
  [[nodiscard]] static Cell ofNumber(std::int64_t value) { return {Kind::number, 0, value, {}}; }
  /// A number that is given in hundredths.
  [[nodiscard]] static Cell ofHundredths(std::int64_t value) {
    return {Kind::number, 2, value, {}};
  }
};

/// Appends a number's digits and decimal point.
void appendNumeral(std::string& out, const Cell& number);

struct Sheet {
  std::string name;
  std::vector<std::string> headings;
  std::size_t rows = 0;
  /// Appends the cells of a row, from 0. Their texts need to live until the next call.
  std::function<void(std::size_t row, std::vector<Cell>& cells)> fill;
};

/// A sheet as comma-separated text: UTF-8 with its mark, CR LF, quoted as RFC 4180 says. A text
/// that spreadsheets would run as a formula gets an apostrophe before it.
[[nodiscard]] std::string csvText(const Sheet& sheet);

/// The sheets as a workbook (Office Open XML): headings in bold that stay in sight, columns as wide
/// as their texts. What a sheet has no room for goes on in another one, or, beyond the last column,
/// is left out.
[[nodiscard]] std::string workbookBytes(const std::vector<Sheet>& sheets);

inline constexpr std::size_t kMostSheetRows = 1'048'576;  ///< the headings included
inline constexpr std::size_t kMostSheetColumns = 16'384;
inline constexpr std::size_t kLongestCellText = 32'767;

}  // namespace scorvane
