// How a report is laid out on paper. Everything that decides where a line goes is here; the
// printer only performs the operations.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace scorvane {

/// The address that every footer invites to; fixed when the program is built.
inline constexpr const char* kWebAddress = SCORVANE_FOOTER_ADDRESS;

/// Rows at the foot of a page that take no line of the report.
inline constexpr std::int32_t kBottomMargin = 4;

enum class PrintFont { normal, small };

/// What the header of every page says before the report's own first four lines.
struct PrintHeader {
  std::string contestName;
  std::string contestDate;
  std::string divisionName;
  std::string printedAt;  ///< calendarTimeText() of the moment of printing
};

/// One step of a print job. Rows count from 1 at the top of the page.
namespace print_operation {

struct StartPage {
  std::int64_t page = 0;  ///< from 1
  friend bool operator==(const StartPage&, const StartPage&) = default;
};
/// Draws a line of text at the left edge.
struct Text {
  std::int64_t row = 0;
  std::string text;
  friend bool operator==(const Text&, const Text&) = default;
};
/// Later texts, of later pages too, are drawn in this font. The height of the rows stays.
struct SelectFont {
  PrintFont font = PrintFont::normal;
  friend bool operator==(const SelectFont&, const SelectFont&) = default;
};
struct EndPage {
  friend bool operator==(const EndPage&, const EndPage&) = default;
};

}  // namespace print_operation

using PrintOperation = std::variant<print_operation::StartPage, print_operation::Text,
                                    print_operation::SelectFont, print_operation::EndPage>;

/// The operations that print `report`, from the start of the first page to the end of the last.
/// Only lines that end in a line feed are printed. Pages without room for the header, one line of
/// the report and the footer take one line each, and footers run over the page's edges: rows past
/// the end, and below 1 on the last page.
[[nodiscard]] std::vector<PrintOperation> layOutPrint(std::string_view report,
                                                      const PrintHeader& header,
                                                      std::int32_t linesPerPage,
                                                      std::int32_t bottomMargin = kBottomMargin);

/// Pages of a laid out print.
[[nodiscard]] std::int64_t pageCount(const std::vector<PrintOperation>& operations);

/// Lines that fit on a page, both heights in pixels; 0 when a height is not known.
[[nodiscard]] std::int32_t linesThatFit(std::int32_t pageHeight, std::int32_t lineHeight);

/// The font height to ask a printer for, in pixels, where it answers a request for its default
/// height with lines of `defaultLineHeight` pixels: 0, its default, or the height of a readable
/// font (negative, as characters are measured) where the default is too small to be meant. Such a
/// printer is one that knows no default and takes that of a screen.
[[nodiscard]] std::int32_t normalFontHeight(std::int32_t defaultLineHeight,
                                            std::int32_t pixelsPerInch);

/// Date and time in the 24 characters of the C library's calendar form and a line feed:
/// "Sat Mar  7 09:05:02 2026\n".
[[nodiscard]] std::string calendarTimeText(const std::tm& local);

/// What tells the operator which report and page is being printed: the report's first line that
/// is not blank and the page, such as "High Individual Overall, page 2 of 5".
[[nodiscard]] std::string printProgressText(std::string_view report, std::int64_t page,
                                            std::int64_t pages);

}  // namespace scorvane
