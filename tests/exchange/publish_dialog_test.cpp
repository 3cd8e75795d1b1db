#include "exchange/publish_dialog.h"

#include <gtest/gtest.h>

#include "exchange/exports.h"
#include "exchange/publish_ids.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

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
