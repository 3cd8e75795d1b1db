#include "output/print_layout.h"

#include <gtest/gtest.h>

#include <regex>

#include "tests/support/approved.h"
#include "text/format.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

const PrintHeader kHeader = {"County ~\tFair", "March 7, 2026", "Senior",
                             "Sat Mar  7 09:05:02 2026\n"};
const std::string kFourLines = "T\n\nH\nR\n";

/// Operations as lines: "> page", "row|text", "font small", "<".
std::string written(const std::vector<PrintOperation>& operations) {
  std::string out;
  for (const PrintOperation& operation : operations) {
    if (const auto* start = std::get_if<print_operation::StartPage>(&operation)) {
      appendFormat(out, "> %d\n", static_cast<int>(start->page));
    } else if (const auto* text = std::get_if<print_operation::Text>(&operation)) {
      appendFormat(out, "%d|%s\n", static_cast<int>(text->row), text->text.c_str());
    } else if (const auto* font = std::get_if<print_operation::SelectFont>(&operation)) {
      out += font->font == PrintFont::small ? "font small\n" : "font normal\n";
    } else {
      out += "<\n";
    }
  }
  return out;
}

std::string lines(int first, int last) {
  std::string out;
  for (int i = first; i <= last; ++i) appendFormat(out, "line %d\n", i);
  return out;
}

// Of 20 lines four are margin: rows 8 to 16 take nine lines of the report.
TEST(PrintLayout, TurnsReportsIntoPagesWithHeaderAndFooter) {
  const std::string marker = kPageBreakLine;
  const std::string small = "--- Small Font ---\n";
  struct Case {
    const char* promise;
    std::string report;
    int linesPerPage = 20;
  };
  const Case cases[] = {
      {"four lines or fewer are all header", kFourLines},
      {"what is not ended is no line", "T\nnot ended"},
      {"an empty report has a page", ""},
      {"tabs become blanks, tildes hyphens only in the report's header", "~T\t~\n\n\n\na\t~b\tc\n"},
      {"the last row stays free", kFourLines + lines(8, 15)},
      {"the next line is on the next page", kFourLines + lines(8, 17)},
      {"the marker breaks the page", kFourLines + "a\n" + marker + "\nb\n" + marker + "\n"},
      {"only exactly, and ended", kFourLines + marker + " \n" + marker.substr(1) + "\n" + marker},
      {"not within the header", marker + "\n\n\n\n"},
      {"it takes no line on a page that is full", kFourLines + lines(8, 16) + marker + "\n"},
      {"fonts change without a row",
       kFourLines + "a\n" + small + "b\n--- Large Font ---\nc\n--- small Font ---\n"},
      {"a page too short for its header has one line", kFourLines + "a\n" + small, 11},
      {"no room at all", kFourLines + "a\n", 0}};
  std::string all;
  for (const auto& [promise, report, linesPerPage] : cases) {
    all +=
        "== " + std::string(promise) + '\n' + written(layOutPrint(report, kHeader, linesPerPage));
  }
  // Header with the report's own, and footer are there in full once, and of a page's lines the
  // first and the last.
  const std::size_t second = all.find("== ", 1);
  static const std::regex header(R"(1\|County ~\tFair         March 7, 2026\n2\|Senior - Printed )"
                                 R"(Sat Mar  7 09:05:02 2026\n3\|\n)");
  static const std::regex footer(R"((-?\d+)\| \n-?\d+\| \n(-?\d+)\| \n\2\|        Tabulated by )"
                                 R"(Scorvane       -Page (\d+) -       visit Scorvane\n<)");
  static const std::regex own(R"(\(header\)\n4\|T\n5\|\n6\|H\n7\|R\n)");
  static const std::regex body(R"((\d+\|line \d+\n)(?:\d+\|line \d+\n)+(\d+\|line \d+\n))");
  std::string shortened = std::regex_replace(all.substr(second), header, "(header)\n");
  shortened = std::regex_replace(shortened, own, "(header and rows 4 to 7)\n");
  shortened = std::regex_replace(shortened, body, "$1...\n$2");
  shortened = std::regex_replace(shortened, footer, "(footer of page $3 from row $1 to $2)");
  expectApproved(all.substr(0, second) + shortened, "output/pages.txt");
}

TEST(PrintLayout, WidensTheFooterFromPage100On) {
  const auto operations = layOutPrint(kFourLines + lines(1, 99 * 9), kHeader, 20);
  EXPECT_EQ(pageCount(operations), 100);
  const std::string text = written(operations);
  for (const char* page : {"-Page 9 - ", "-Page 10- ", "-Page 99- ", "-Page 100- "}) {
    EXPECT_NE(text.find(page), std::string::npos) << page;
  }
}

TEST(PrintLayout, MeasuresPagesAndFonts) {
  EXPECT_EQ(linesThatFit(6600, 100), 66);
  EXPECT_EQ(linesThatFit(6600, 0), 0);
  EXPECT_EQ(normalFontHeight(100, 600), 0);   // 12 points
  EXPECT_EQ(normalFontHeight(67, 600), 0);    // just over 8 points
  EXPECT_EQ(normalFontHeight(66, 600), -83);  // just under
  EXPECT_EQ(normalFontHeight(16, 300), -41);
  EXPECT_EQ(normalFontHeight(8, 72), 0);  // just 8 points
}

TEST(PrintLayout, TellsTheTimeAndTheProgress) {
  constexpr std::time_t kDay = 24 * 60 * 60;
  std::time_t moment = 1772874302;
  EXPECT_EQ(calendarTimeText(*std::gmtime(&moment)), "Sat Mar  7 09:05:02 2026\n");
  for (int day = 0; day < 366; ++day, moment += kDay) {
    const std::tm time = *std::gmtime(&moment);
    EXPECT_EQ(calendarTimeText(time), std::asctime(&time));
  }
  EXPECT_EQ(printProgressText("\n\n \tReasons\tOrder \n\nx\n", 2, 12),
            "Reasons Order, page 2 of 12");
  EXPECT_EQ(printProgressText(" \n", 1, 1), "Report, page 1 of 1");
  EXPECT_EQ(printProgressText("Tail", 1, 1), "Tail, page 1 of 1");
}

}  // namespace

}  // namespace scorvane
