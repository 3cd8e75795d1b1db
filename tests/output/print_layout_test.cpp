#include "output/print_layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "text/format.h"
#include "view/report_text.h"

namespace {

const PrintHeader kHeader = {"County Fair", "March 7, 2026", "Senior",
                             "Sat Mar  7 09:05:02 2026\n"};

constexpr const char* kIdentity =
    "> 1\n"
    "1|County Fair         March 7, 2026\n"
    "2|Senior - Printed Sat Mar  7 09:05:02 2026\n"
    "3|\n";

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

std::string printed(const std::string& report, std::int32_t linesPerPage = 20) {
  return written(layOutPrint(report, kHeader, linesPerPage));
}

/// What ends a page: the footer's first row and the page number as it stands in the footer.
std::string footer(int row, const std::string& page) {
  return formatText(
      "%d| \n%d| \n%d| \n"
      "%d|        Tabulated by Scorvane       -Page %s-       visit www.scorvane.example\n<\n",
      row, row + 1, row + 2, row + 2, page.c_str());
}

/// Header of a page whose report starts with "T", "", "H", "R".
std::string head(int page) {
  return formatText("> %d\n", page) + std::string(kIdentity).substr(4) + "4|T\n5|\n6|H\n7|R\n";
}

const std::string kFourLines = "T\n\nH\nR\n";

std::string linesNamed(int first, int last) {
  std::string out;
  for (int i = first; i <= last; ++i) appendFormat(out, "line %d\n", i);
  return out;
}

TEST(PrintLayout, PrintsAReportOfFourLinesOrFewerAsHeaderAndFooter) {
  EXPECT_EQ(printed(kFourLines), head(1) + footer(16, "1 "));
  EXPECT_EQ(printed("T\nnot ended"), std::string(kIdentity) + "4|T\n" + footer(16, "1 "));
  EXPECT_EQ(printed(""), std::string(kIdentity) + footer(16, "1 "));
}

TEST(PrintLayout, ChangesTabsEverywhereAndTildesInTheHeaderOnly) {
  EXPECT_EQ(printed("~T\t~\n\nH\nR\na\t~b\tc\n"),
            std::string(kIdentity) + "4|-T -\n5|\n6|H\n7|R\n8|a ~b c\n" + footer(16, "1 "));
  const PrintHeader tilde = {"A~\tB", "", "", "x\n"};
  EXPECT_EQ(layOutPrint("", tilde, 20).at(1),
            PrintOperation(print_operation::Text{1, "A~\tB         "}));
}

// 20 lines less the margin of 4: rows 8 to 16 take nine lines of the report.
TEST(PrintLayout, TurnsThePageWhenTheLastRowIsTaken) {
  std::string eight;
  for (int i = 8; i <= 15; ++i) appendFormat(eight, "%d|line %d\n", i, i);
  EXPECT_EQ(printed(kFourLines + linesNamed(8, 15)), head(1) + eight + footer(16, "1 "));

  const std::string full = head(1) + eight + "16|line 16\n" + footer(17, "1 ") + head(2);
  EXPECT_EQ(printed(kFourLines + linesNamed(8, 16)), full + footer(16, "2 "));
  EXPECT_EQ(printed(kFourLines + linesNamed(8, 17)), full + "8|line 17\n" + footer(16, "2 "));
}

TEST(PrintLayout, BreaksThePageAtTheExactMarkerOnly) {
  const std::string marker = kPageBreakLine;
  EXPECT_EQ(printed(kFourLines + "a\n" + marker + "\nb\n"),
            head(1) + "8|a\n" + footer(17, "1 ") + head(2) + "8|b\n" + footer(16, "2 "));
  EXPECT_EQ(printed(kFourLines + "a\n" + marker + "\n"),
            head(1) + "8|a\n" + footer(17, "1 ") + head(2) + footer(16, "2 "));
  EXPECT_EQ(printed(kFourLines + marker + " \n" + marker.substr(1) + "\n" + marker),
            head(1) + "8|" + marker + " \n9|" + marker.substr(1) + "\n" + footer(16, "1 "));
  // Within the first four lines it is a line like any other, and it takes no line of its own when
  // the page is full already.
  EXPECT_EQ(pageCount(layOutPrint(marker + "\n\n\n\n", kHeader, 20)), 1);
  EXPECT_EQ(pageCount(layOutPrint(kFourLines + linesNamed(8, 16) + marker + "\n", kHeader, 20)), 3);
}

TEST(PrintLayout, SwitchesTheFontWithoutMovingTheRow) {
  EXPECT_EQ(printed(kFourLines + "a\n--- Small Font ---\nb\n--- Large Font ---\nc\n"
                                 "--- small Font ---\n"),
            head(1) + "8|a\nfont small\n9|b\nfont normal\n10|c\n11|--- small Font ---\n" +
                footer(16, "1 "));
}

TEST(PrintLayout, WidensTheFooterFromPage100On) {
  const std::string text = printed(kFourLines + linesNamed(1, 99 * 9));
  for (const char* page : {"9 ", "10", "99"}) {
    EXPECT_NE(text.find(footer(17, page)), std::string::npos) << page;
  }
  EXPECT_TRUE(text.ends_with(head(100) + footer(16, "100")));
}

TEST(PrintLayout, GivesEveryLineItsPageWherePagesAreTooShort) {
  const std::string marker = "--- Small Font ---\n";
  const std::string pages = head(1) + "8|a\n" + footer(9, "1 ") + head(2);
  EXPECT_EQ(printed(kFourLines + "a\n" + marker, 12), pages + "font small\n" + footer(8, "2 "));
  for (const int lines : {0, 4, 11}) {
    EXPECT_EQ(printed(kFourLines + "a\n" + marker, lines),
              pages + "font small\n" + footer(8, "2 ") + head(3) + footer(lines - 4, "3 "));
  }
  EXPECT_EQ(linesThatFit(6600, 100), 66);
  EXPECT_EQ(linesThatFit(6600, 0), 0);
}

TEST(PrintFontHeight, TakesTheDefaultOfAPrinterUnlessItIsTooSmallToRead) {
  EXPECT_EQ(normalFontHeight(100, 600), 0);   // 12 points
  EXPECT_EQ(normalFontHeight(67, 600), 0);    // just over 8 points
  EXPECT_EQ(normalFontHeight(66, 600), -83);  // just under
  EXPECT_EQ(normalFontHeight(16, 300), -41);
}

TEST(CalendarTime, PadsTheDayWithABlankAndTheTimeWithZeros) {
  std::time_t moment = 1772874302;
  const std::tm time = *std::gmtime(&moment);
  EXPECT_EQ(calendarTimeText(time), "Sat Mar  7 09:05:02 2026\n");
  EXPECT_EQ(calendarTimeText(time), std::asctime(&time));
}

TEST(PrintProgress, NamesTheReportByItsFirstLineWithText) {
  EXPECT_EQ(printProgressText("\n\n \tReasons\tOrder \n\nx\n", 2, 12),
            "Reasons Order, page 2 of 12");
  EXPECT_EQ(printProgressText(" \n", 1, 1), "Report, page 1 of 1");
  EXPECT_EQ(printProgressText("Tail", 1, 1), "Tail, page 1 of 1");
}

}  // namespace
