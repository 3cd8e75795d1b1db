// How reports get onto paper and into files.
#include "output/print_layout.h"

#include <gtest/gtest.h>

#include <regex>

#include "model/new_contest.h"
#include "output/save_report.h"
#include "session/contest_file.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_writer.h"
#include "tests/storage/memory_files.h"
#include "tests/support/approved.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"
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

// On one line, with H for the header and F with its page and rows for a footer; of a page's lines
// the first and the last.
std::string inShort(std::string text) {
  static const std::regex header(R"(1\|County ~\tFair         March 7, 2026\n2\|Senior - Printed )"
                                 R"(Sat Mar  7 09:05:02 2026\n3\|\n)");
  static const std::regex footer(R"((-?\d+)\| \n-?\d+\| \n(-?\d+)\| \n\2\|        Tabulated by )"
                                 R"(Scorvane       -Page (\d+) -       visit Scorvane\n<\n)");
  static const std::regex own(R"(H\n4\|T\n5\|\n6\|H\n7\|R\n)");
  static const std::regex body(R"((\d+\|line \d+\n)(?:\d+\|line \d+\n)+(\d+\|line \d+\n))");
  text = std::regex_replace(text, header, "H\n");
  text = std::regex_replace(text, own, "H4-7\n");
  text = std::regex_replace(text, body, "$1...\n$2");
  text = std::regex_replace(text, footer, "F$3@$1-$2\n");
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

// Of 20 lines four are margin: rows 8 to 16 take nine lines of the report.
TEST(PrintLayout, TurnsReportsIntoPagesWithHeaderAndFooter) {
  const std::string marker = kPageBreakLine;
  const std::string small = "--- Small Font ---\n";
  expectApproved(written(layOutPrint(kFourLines, kHeader, 20)), "output/page.txt");
  struct Case {
    const char* promise;
    std::string report, pages;
    int linesPerPage = 20;
  };
  const Case cases[] = {
      {"what is not ended is no line", "T\nnot ended", "> 1 H 4|T F1@16-18 "},
      {"an empty report has a page", "", "> 1 H F1@16-18 "},
      {"tabs become blanks, tildes hyphens only in the report's header", "~T\t~\n\n\n\na\t~b\tc\n",
       "> 1 H 4|-T - 5| 6| 7| 8|a ~b c F1@16-18 "},
      {"the last row stays free", kFourLines + lines(8, 15),
       "> 1 H4-7 8|line 8 ... 15|line 15 F1@16-18 "},
      {"the next line is on the next page", kFourLines + lines(8, 17),
       "> 1 H4-7 8|line 8 ... 16|line 16 F1@17-19 > 2 H4-7 8|line 17 F2@16-18 "},
      {"the marker breaks the page", kFourLines + "a\n" + marker + "\nb\n" + marker + "\n",
       "> 1 H4-7 8|a F1@17-19 > 2 H4-7 8|b F2@17-19 > 3 H4-7 F3@16-18 "},
      {"only exactly, and ended", kFourLines + marker + " \n" + marker.substr(1) + "\n" + marker,
       "> 1 H4-7 8|" + marker + "  9|" + marker.substr(1) + " F1@16-18 "},
      {"not within the header", marker + "\n\n\n\n", "> 1 H 4|" + marker + " 5| 6| 7| F1@16-18 "},
      {"it takes no line on a page that is full", kFourLines + lines(8, 16) + marker + "\n",
       "> 1 H4-7 8|line 8 ... 16|line 16 F1@17-19 > 2 H4-7 F2@17-19 > 3 H4-7 F3@16-18 "},
      {"fonts change without a row",
       kFourLines + "a\n" + small + "b\n--- Large Font ---\nc\n--- small Font ---\n",
       "> 1 H4-7 8|a font small 9|b font normal 10|c 11|--- small Font --- F1@16-18 "},
      {"a page too short for its header has one line", kFourLines + "a\n" + small,
       "> 1 H4-7 8|a F1@9-11 > 2 H4-7 font small F2@8-10 > 3 H4-7 F3@7-9 ", 11},
      {"no room at all", kFourLines + "a\n", "> 1 H4-7 8|a F1@9-11 > 2 H4-7 F2@-4--2 ", 0}};
  for (const auto& [promise, report, pages, linesPerPage] : cases) {
    EXPECT_EQ(inShort(written(layOutPrint(report, kHeader, linesPerPage))), pages) << promise;
  }
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

// Saves `report` under a chosen name, or cancels; nothing but the question for it is shown.
void save(const char* report, const std::optional<std::string>& path) {
  MemoryWindow window;
  window.desktop.files = {path};
  reportText() = report;
  saveReport(window, systemFiles());
  EXPECT_TRUE(window.desktop.messages.empty());
  EXPECT_EQ(reportText(), report);
  EXPECT_EQ(window.desktop.fileQuestions.size(), 1U);
}

TEST(SaveReport, ReplacesTheChosenFileOrIsSilent) {
  const TemporaryFolder folder;
  const std::string path = folder.file("report.txt");
  makeFile(path, std::string(1000, 'x'));
  save("High\tIndividual\n--- Small Font ---\r\n\nno end", path);
  EXPECT_EQ(contentOf(path), "High\tIndividual\r\n--- Small Font ---\r\r\n\r\nno end");
  save("kept\n", std::nullopt);
  save("kept\n", folder.file("no folder/report.txt"));
  save("", path);
  EXPECT_EQ(contentOf(path), "");
  EXPECT_EQ(folder.count(), 1U);
}

// The dialog begins beside the contest; a contest that is replaced by mistake is an earlier save.
TEST(SaveReport, OverAContestKeepsIt) {
  MemoryFiles files;
  const std::string contest = writeContest(newContest());
  files.files = {{"fair/a.scv", {contest}}, {"fair/b.scv", {contest}}};
  startKeepingWork(files);
  MemoryWindow window;
  ASSERT_TRUE(openContest(window, "fair/a.scv"));
  window.desktop.files = {"fair/b.scv"};
  reportText() = "report\n";
  saveReport(window, files);
  EXPECT_EQ(window.desktop.fileQuestions.at(0).folder, "fair");
  currentFileName() = "E:\\a.scv";
  EXPECT_EQ(contestFolder(), "E:\\");
  currentFileName() = "a.scv";
  EXPECT_EQ(contestFolder(), "");
  EXPECT_EQ(files.files["fair/b.scv"].content, "report\r\n");
  ASSERT_EQ(earlierSaves(files, "fair/b.scv").size(), 1U);
  EXPECT_EQ(readEarlierSave(files, earlierSaves(files, "fair/b.scv")[0]), contest);
  stopKeepingWork();
  currentFileName().clear();
}

}  // namespace

}  // namespace scorvane
