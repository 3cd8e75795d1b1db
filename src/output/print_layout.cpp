#include "output/print_layout.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

using print_operation::EndPage;
using print_operation::SelectFont;
using print_operation::StartPage;
using print_operation::Text;

/// Lines of the report that every page repeats at its head.
constexpr int kHeaderLinesOfReport = 4;
/// The header takes seven rows, also when the report is too short to fill them.
constexpr std::int64_t kFirstBodyRow = 8;

/// Cuts the first line, without its line feed, off `text`; what follows the last line feed is no
/// line.
bool takeLine(std::string_view& text, std::string_view& line) {
  const std::size_t end = text.find('\n');
  if (end == std::string_view::npos) return false;
  line = text.substr(0, end);
  text.remove_prefix(end + 1);
  return true;
}

std::string replaced(std::string_view text, char from, char to) {
  std::string result(text);
  std::replace(result.begin(), result.end(), from, to);
  return result;
}

/// Lays out one job, page after page.
class Layout {
 public:
  Layout(std::string_view report, const PrintHeader& header, std::int64_t lastBodyRow)
      : body_(report), lastBodyRow_(lastBodyRow) {
    assembleHeader(header);
  }

  std::vector<PrintOperation> run() {
    startPage();
    std::string_view line;
    while (takeLine(body_, line)) {
      bodyLine(line);
      if (row_ > lastBodyRow_) {
        endPage();
        ++page_;
        startPage();
      }
    }
    // Odd but required, docs/required-behaviour.md: print-last-footer
    row_ = lastBodyRow_;
    endPage();
    return std::move(operations_);
  }

 private:
  /// Moves the report's first four lines out of the body into the header.
  void assembleHeader(const PrintHeader& header) {
    // The time brings its own line feed, so an empty line follows it.
    const std::string identity = header.contestName + "         " + header.contestDate + "\n" +
                                 header.divisionName + " - Printed " + header.printedAt + "\n";
    std::string_view rest = identity;
    std::string_view line;
    while (takeLine(rest, line)) header_.emplace_back(line);
    for (int i = 0; i < kHeaderLinesOfReport; ++i) {
      if (!takeLine(body_, line)) return;
      header_.push_back(replaced(replaced(line, '\t', ' '), '~', '-'));
    }
  }

  void startPage() {
    operations_.emplace_back(StartPage{page_});
    row_ = 1;
    for (const std::string& line : header_) draw(line);
    row_ = kFirstBodyRow;
  }

  void bodyLine(std::string_view raw) {
    std::string line = replaced(raw, '\t', ' ');
    if (line == kPageBreakLine) {
      row_ = lastBodyRow_ + 1;
    } else if (line == kSmallFontLine) {
      operations_.emplace_back(SelectFont{PrintFont::small});
    } else if (line == kLargeFontLine) {
      operations_.emplace_back(SelectFont{PrintFont::normal});
    } else {
      draw(std::move(line));
    }
  }

  /// Two empty rows, then the footer, drawn over the blank of the third.
  void endPage() {
    for (int i = 0; i < 3; ++i) draw(" ");
    operations_.emplace_back(Text{
        row_ - 1, formatText("%41s %-2lld-       visit %s", "Tabulated by Scorvane       -Page",
                             static_cast<long long>(page_), kWebAddress)});
    operations_.emplace_back(EndPage{});
  }

  void draw(std::string line) { operations_.emplace_back(Text{row_++, std::move(line)}); }

  std::vector<std::string> header_;
  std::string_view body_;
  std::int64_t lastBodyRow_;
  std::int64_t row_ = 1;
  std::int64_t page_ = 1;
  std::vector<PrintOperation> operations_;
};

/// The report's first line that is not blank, without the blanks around it.
std::string documentTitle(std::string_view report) {
  constexpr std::string_view kBlanks = " \t\n";
  const std::size_t begin = report.find_first_not_of(kBlanks);
  if (begin == std::string_view::npos) return "Report";
  const std::string_view line = report.substr(begin, report.find('\n', begin) - begin);
  return replaced(line.substr(0, line.find_last_not_of(kBlanks) + 1), '\t', ' ');
}

}  // namespace

std::vector<PrintOperation> layOutPrint(std::string_view report, const PrintHeader& header,
                                        std::int32_t linesPerPage, std::int32_t bottomMargin) {
  return Layout(report, header, std::int64_t{linesPerPage} - bottomMargin).run();
}

std::int64_t pageCount(const std::vector<PrintOperation>& operations) {
  return std::count_if(operations.begin(), operations.end(), [](const PrintOperation& operation) {
    return std::holds_alternative<StartPage>(operation);
  });
}

std::int32_t linesThatFit(std::int32_t pageHeight, std::int32_t lineHeight) {
  return pageHeight > 0 && lineHeight > 0 ? pageHeight / lineHeight : 0;
}

std::int32_t normalFontHeight(std::int32_t defaultLineHeight, std::int32_t pixelsPerInch) {
  constexpr std::int32_t kPointsPerInch = 72;
  constexpr std::int32_t kSmallestDefault = 8;  // points
  constexpr std::int32_t kReadable = 10;        // points
  if (defaultLineHeight * kPointsPerInch >= kSmallestDefault * pixelsPerInch) return 0;
  return -(kReadable * pixelsPerInch / kPointsPerInch);
}

std::string calendarTimeText(const std::tm& local) {
  // Written out, because the C libraries differ in how they pad the day.
  constexpr std::array kDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  constexpr std::array kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  return formatText("%s %s %2d %02d:%02d:%02d %d\n",
                    kDays.at(static_cast<std::size_t>(local.tm_wday)),
                    kMonths.at(static_cast<std::size_t>(local.tm_mon)), local.tm_mday,
                    local.tm_hour, local.tm_min, local.tm_sec, local.tm_year + 1900);
}

std::string printProgressText(std::string_view report, std::int64_t page, std::int64_t pages) {
  return formatText("%s, page %lld of %lld", documentTitle(report).c_str(),
                    static_cast<long long>(page), static_cast<long long>(pages));
}

}  // namespace scorvane
