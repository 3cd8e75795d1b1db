#include "exchange/table.h"
#include "text/number.h"
#include "text/windows_1252.h"

namespace scorvane {

namespace {

// Spreadsheets run a text that begins so, quoted or not.
bool looksLikeFormula(std::string_view text) {
  constexpr std::string_view kStarts = "=+-@\t\r";
  return !text.empty() && kStarts.find(text.front()) != std::string_view::npos;
}

void appendField(std::string& out, std::string_view text) {
  const bool isQuoted = text.find_first_of(",\"") != std::string_view::npos;
  if (isQuoted) out += '"';
  if (looksLikeFormula(text)) out += '\'';
  while (isQuoted) {
    const std::size_t quote = text.find('"');
    if (quote == std::string_view::npos) break;
    appendUtf8(out, text.substr(0, quote + 1));
    out += '"';
    text.remove_prefix(quote + 1);
  }
  appendUtf8(out, text);
  if (isQuoted) out += '"';
}

}  // namespace

void appendNumeral(std::string& out, const Cell& number) {
  if (!number.hasDecimal) return appendNumber(out, number.value);
  if (number.value < 0) out += '-';
  const std::int64_t value = number.value < 0 ? -number.value : number.value;
  appendNumber(out, value / 10);
  out += '.';
  appendNumber(out, value % 10);
}

std::string csvText(const Table& sheet) {
  std::string out = "\xEF\xBB\xBF";
  for (std::size_t column = 0; column < sheet.headings.size(); ++column) {
    if (column > 0) out += ',';
    appendField(out, sheet.headings[column]);
  }
  out += "\r\n";
  std::vector<Cell> cells;
  for (std::size_t row = 0; row < sheet.rows; ++row) {
    cells.clear();
    sheet.fill(row, cells);
    for (std::size_t column = 0; column < cells.size(); ++column) {
      if (column > 0) out += ',';
      const Cell& cell = cells[column];
      if (cell.kind == Cell::Kind::text) appendField(out, cell.text);
      if (cell.kind == Cell::Kind::number) appendNumeral(out, cell);
    }
    out += "\r\n";
  }
  return out;
}

}  // namespace scorvane
