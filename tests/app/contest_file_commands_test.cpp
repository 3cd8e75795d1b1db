#include "app/contest_file_commands.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "app/command_table.h"
#include "model/contest.h"
#include "storage/contest_commands.h"
#include "tests/app/memory_main_window.h"
#include "tests/support/temporary_folder.h"
#include "view/report_text.h"

namespace {

constexpr int kNew = 32771, kOpen = 32772, kSave = 32773, kSaveAs = 32774;

class ContestFileCommands : public testing::Test {
 protected:
  void SetUp() override {
    prepareContest();
    setProgramTitle("Scorvane");
    reportText() = "a report\n";
  }
  // A saved contest, and another one in memory.
  std::string savedContest() {
    const std::string path = folder_.file("county show.scv");
    currentContest().settings.contestName = "County Show";
    currentFileName() = path;
    runCommand(kSave, window_);
    runCommand(kNew, window_);
    expectNewContest();
    reportText() = "a report\n";
    return path;
  }
  void expectNewContest() const {
    EXPECT_EQ(window_.title, "Scorvane");
    EXPECT_EQ(currentFileName(), "");
    EXPECT_EQ(currentContest().settings.contestName, "Judging Contest");
    EXPECT_EQ(reportText(), kWelcomeText);
  }
  TemporaryFolder folder_;
  MemoryMainWindow window_;
};

}  // namespace

TEST_F(ContestFileCommands, StartWithAContestOfTodayWithItsGroups) {
  EXPECT_EQ(currentContest().groupLetters, (std::vector<char>{'A', 'B', 'C', 'D', 'E'}));
  EXPECT_FALSE(currentContest().settings.contestDate.empty());
  openContestOfCommandLine(window_, "  ");
  EXPECT_EQ(window_.title, "");
  EXPECT_TRUE(window_.desktop.messages.empty());
}

TEST_F(ContestFileCommands, TakeThePathOutOfTheCommandLine) {
  struct Case {
    const char* line;
    const char* path;
  };
  for (const Case& c : {Case{"", ""}, Case{" \t ", ""}, Case{"a.scv", "a.scv"},
                        Case{" C:\\My Contests\\a b.scv  ", "C:\\My Contests\\a b.scv"},
                        Case{"\"C:\\My Contests\\a.scv\" more", "C:\\My Contests\\a.scv"},
                        Case{"\"never closed.scv", "never closed.scv"}, Case{"\"\"", ""}}) {
    EXPECT_EQ(contestPath(c.line), c.path) << c.line;
  }
  EXPECT_EQ(contestPath(std::string(700, 'x')).size(), kMaxPathLength);
}

TEST_F(ContestFileCommands, OpenTheContestNamedAtTheStartOrANewOne) {
  const std::string path = savedContest();
  openContestOfCommandLine(window_, "\"" + path + "\"");
  EXPECT_EQ(window_.title, "Scorvane - " + path + " - County Show");
  EXPECT_EQ(reportText(), kWelcomeText);
  EXPECT_TRUE(window_.desktop.messages.empty());
  openContestOfCommandLine(window_, "nowhere.scv");
  EXPECT_EQ(window_.desktop.takeMessage(),
            "Invalid file name (nowhere.scv) , or file does not exist.");
  expectNewContest();
}

TEST_F(ContestFileCommands, OpenSetsTheTitleEvenWhenCancelled) {
  const std::string path = savedContest();
  window_.desktop.files = {path, std::nullopt};
  runCommand(kOpen, window_);
  EXPECT_EQ(window_.title, "Scorvane - " + path + " - County Show");
  runCommand(kOpen, window_);
  EXPECT_EQ(window_.title, "Scorvane -  - Judging Contest");
  EXPECT_EQ(reportText(), kWelcomeText);
}

TEST_F(ContestFileCommands, SavingKeepsTheReportAndNamesTheFile) {
  const std::string path = folder_.file("saved as.scv");
  window_.desktop.files = {std::nullopt, path};
  runCommand(kSaveAs, window_);
  EXPECT_EQ(window_.title, "Scorvane -  - Judging Contest");
  runCommand(kSave, window_);  // untitled: asks again
  EXPECT_EQ(window_.title, "Scorvane - " + path + " - Judging Contest");
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(reportText(), "a report\n");
}

TEST_F(ContestFileCommands, CutTitlesThatAreTooLong) {
  currentFileName() = std::string(300, 'f');
  currentContest().settings.contestName = std::string(300, 'c');
  showContestTitle(window_);
  EXPECT_EQ(window_.title,
            "Scorvane - " + std::string(300, 'f') + " - " + std::string(499 - 314, 'c'));
}
