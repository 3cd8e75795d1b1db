// Sheets and workbooks as they are written, and the commands that write them and pages.
#include "exchange/table.h"

#include <gtest/gtest.h>

#include "exchange/exports.h"
#include "exchange/publish_dialog.h"
#include "exchange/publish_ids.h"
#include "exchange/zip_archive.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "tests/exchange/markup_check.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

// Texts and numbers row by row.
Table sheetOf(std::vector<std::string> headings, std::vector<std::vector<Cell>> rows) {
  Table sheet;
  sheet.name = "Sheet";
  sheet.headings = std::move(headings);
  sheet.rows = rows.size();
  sheet.fill = [rows](std::size_t row, std::vector<Cell>& cells) { cells = rows[row]; };
  return sheet;
}

std::map<std::string, std::string> partsOf(const std::vector<Table>& sheets,
                                           const SheetLimits& limits = {}) {
  std::map<std::string, std::string> parts;
  EXPECT_EQ(workbookFault(workbookBytes(sheets, limits),
                          [&](const std::string& name, std::string_view part) {
                            parts[name.substr(name.rfind('/') + 1)] = part;
                          }),
            "");
  return parts;
}

TEST(Csv, QuotesAndKeepsFormulasFromRunning) {
  const Table sheet = sheetOf({"=A", "B"}, {{Cell::ofText("+1"), Cell::ofText("-1")},
                                            {Cell::ofText("@x,\"y\""), Cell::ofText("\tTab")},
                                            {Cell::ofText("\rCR"), Cell::ofText("a \"b\" c")},
                                            {Cell{}, Cell::ofText("\x80=1")},
                                            {Cell::ofNumber(-12), Cell::ofTenths(-75)}});
  EXPECT_EQ(csvText(sheet),
            "\xEF\xBB\xBF'=A,B\r\n'+1,'-1\r\n\"'@x,\"\"y\"\"\",' Tab\r\n' CR,\"a \"\"b\"\" c\"\r\n"
            ",\u20AC=1\r\n-12,-7.5\r\n");
}

TEST(Workbook, HoldsNumbersAsNumbersAndEveryTextOnce) {
  auto parts = partsOf(
      {sheetOf({"Name", "Score", "Average"}, {{Cell::ofText("=1<2"), Cell::ofNumber(-5)},
                                              {Cell{}, Cell::ofNumber(46), Cell::ofTenths(46)},
                                              {Cell::ofText("=1<2"), Cell::ofText(" a ")}}),
       sheetOf({"_x0041_ _x004"}, {})});
  const std::string& rows = parts["sheet1.xml"];
  EXPECT_EQ(
      rows.substr(rows.find("<sheetData>")),
      "<sheetData><row><c s=\"1\" t=\"s\"><v>0</v></c><c s=\"1\" t=\"s\"><v>1</v></c>"
      "<c s=\"1\" t=\"s\"><v>2</v></c></row><row><c t=\"s\"><v>3</v></c><c><v>-5</v></c></row>"
      "<row><c/><c><v>46</v></c><c><v>4.6</v></c></row>"
      "<row><c t=\"s\"><v>3</v></c><c t=\"s\"><v>4</v></c></row></sheetData></worksheet>");
  EXPECT_NE(rows.find(" ySplit=\"1\" topLeftCell=\"A2\" "), std::string::npos);
  const std::string& texts = parts["sharedStrings.xml"];
  EXPECT_NE(texts.find("<t xml:space=\"preserve\">=1&lt;2</t></si><si><t xml:space=\"preserve\"> a "
                       "</t></si><si><t xml:space=\"preserve\">_x005F_x0041_ _x004</t>"),
            std::string::npos)
      << texts;
}

TEST(Workbook, GoesOnInAnotherSheetAndCutsWhatDoesNotFit) {
  std::vector<std::vector<Cell>> rows;
  for (int row = 0; row < 5; ++row) rows.push_back({Cell::ofNumber(row), Cell::ofText("abcdef")});
  auto parts = partsOf({sheetOf({"A", "B", "C"}, rows)}, {3, 2, 4});
  const std::string last = "</v></c><c t=\"s\"><v>2</v></c></row></sheetData></worksheet>";
  EXPECT_TRUE(parts["sheet1.xml"].ends_with("<v>1" + last));
  EXPECT_TRUE(parts["sheet3.xml"].ends_with("<row><c><v>4" + last));
  EXPECT_EQ(parts.count("sheet4.xml"), 0U);
  EXPECT_NE(parts["workbook.xml"].find("\"Sheet 3\" sheetId=\"3\" r:id=\"rId3\"/></sheets>"),
            std::string::npos);
  EXPECT_EQ(parts["sharedStrings.xml"].find(">C<"), std::string::npos);
  EXPECT_NE(parts["sharedStrings.xml"].find(">abcd<"), std::string::npos);
  auto wide = partsOf({sheetOf(std::vector<std::string>(16'385, "x"), {})});
  EXPECT_EQ(wide["sheet1.xml"].find("max=\"16385\""), std::string::npos);
  EXPECT_NE(wide["sheet1.xml"].find("max=\"16384\""), std::string::npos);
}

struct Exports : testing::Test {
  Exports() {
    ContestBuilder builder;
    builder.addClass({}).team("Elm", "", {"Ann", "Bob"}).placings(101, "A").placings(102, "B");
    builder.contest.settings.numToReport = 1;
    currentContest() = builder.contest;
    currentFileName() = "fair.html";
    disk.files["fair.html"].content = "a contest";
    startKeepingWork(disk);
  }
  ~Exports() override {
    stopKeepingWork();
    currentFileName().clear();
  }

  MemoryFiles disk;
};

TEST_F(Exports, ArePublishedAsChosenOrItIsSaidWhyNot) {
  struct Case {
    ControlId choice;
    std::optional<std::string> path;
    bool isFull;
    const char* message;
    const char* member;  // the first contestant, in awards, among the members or on a card
  };
  for (const Case& c :
       {Case{0, std::nullopt, false, "", nullptr},
        Case{0, "page.txt", false, "A web page needs a name that ends in .html.", nullptr},
        Case{0, "FAIR.html", false, "This is the file of the open contest.", nullptr},
        Case{0, "page.html", true, "The results could NOT be written to this file:\r\npage.html",
             nullptr},
        Case{0, "page.html", false, "The results were written to this file:\r\npage.html",
             "<th scope=\"row\">Ann<"},
        Case{IDC_PUBLISH_TEAMS, "page.htm", false, "The results were written", "<li>Bob 4"},
        Case{IDC_PUBLISH_CARDS, "page.html", false, "The results were written",
             "<h3>102 Bob</h3>"}}) {
    PublishDialog behaviour;
    MemoryDialog dialog(IDD_PUBLISH, behaviour);
    EXPECT_EQ(dialog.focused(), IDC_PUBLISH_AWARDS);
    EXPECT_TRUE(dialog.isChecked(IDC_PUBLISH_AWARDS));
    if (c.choice != 0) dialog.click(c.choice);
    disk.room = 1U << 20U;
    dialog.desktop.files = {c.path};
    disk.files.erase("page.html");
    if (c.isFull) disk.fill();
    dialog.pressEnter();
    EXPECT_TRUE(dialog.desktop.takeMessage().starts_with(c.message)) << c.message;
    EXPECT_EQ(dialog.desktop.fileQuestions.at(0).defaultExtension, "html");
    EXPECT_EQ(dialog.result().has_value(), c.member != nullptr);
    if (c.member == nullptr) {
      EXPECT_FALSE(disk.files.contains("page.html"));
      dialog.pressEscape();
      EXPECT_EQ(dialog.result(), kCancelId);
      continue;
    }
    const std::string& page = disk.files[*c.path].content;
    EXPECT_NE(page.find(c.member), std::string::npos) << page;
    EXPECT_EQ(page.find("Bob") == std::string::npos, c.choice == 0);
    EXPECT_EQ(page.find("<h3>101 ") == std::string::npos, c.choice != IDC_PUBLISH_CARDS);
  }
  EXPECT_EQ(disk.files["fair.html"].content, "a contest");
}

TEST_F(Exports, GoToASpreadsheetOfTheKindThatTheNameSays) {
  const auto exported = [&](const std::optional<std::string>& path) {
    MemoryWindow window;
    window.desktop.files = {path};
    exportScores(window, disk);
    EXPECT_EQ(window.desktop.fileQuestions.at(0).filters.size(), 2U);
    return window.desktop.takeMessage();
  };
  EXPECT_EQ(exported(std::nullopt), "");
  EXPECT_TRUE(exported("scores").starts_with("A spreadsheet needs a name that ends in .xlsx"));
  EXPECT_EQ(exported("s.xlsx"), "The scores were written to this file:\r\ns.xlsx");
  EXPECT_EQ(exported("s.CSV"), "The scores were written to this file:\r\ns.CSV");
  EXPECT_TRUE(disk.files["s.xlsx"].content.starts_with("PK\x03\x04"));
  EXPECT_NE(disk.files["s.CSV"].content.find("\r\n101,Ann,Elm,,"), std::string::npos);
  EXPECT_EQ(disk.files.size(), 3U);
}

}  // namespace

}  // namespace scorvane
