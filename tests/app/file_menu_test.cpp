#include "app/file_menu.h"

#include <gtest/gtest.h>

#include "app/command_table.h"
#include "model/contest.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "tests/app/memory_main_window.h"
#include "tests/support/approved.h"
#include "tests/support/temporary_folder.h"

namespace scorvane {

namespace {

TEST(ContestFileCommands, TakeThePathOutOfTheCommandLine) {
  struct Case {
    std::string line, path;
  };
  for (const Case& c : {Case{"", ""},
                        {" \t ", ""},
                        {"a.scv", "a.scv"},
                        {" C:\\My Contests\\a b.scv  ", "C:\\My Contests\\a b.scv"},
                        {"\"C:\\My Contests\\a.scv\" \"more\"", "C:\\My Contests\\a.scv"},
                        {"\"never closed.scv", "never closed.scv"},
                        {"\"\"", ""}}) {
    EXPECT_EQ(contestPath(c.line), c.path) << c.line;
  }
}

// From the start, over a first save that is cancelled, to names that are too long for the title.
TEST(ContestFileCommands, TellOfOneAfternoonAsApproved) {
  const TemporaryFolder folder;
  const std::string path = folder.file("county show.scv");
  MemoryMainWindow window;
  std::string& log = window.log;
  const auto step = [&](const std::string& name, const std::function<void()>& act) {
    reportText() = "a report\n";
    log += name + "\n";
    act();
    log += "  now: " + currentFileName() + ", " + currentContest().settings.contestName + "\n";
  };
  setProgramTitle("Scorvane");
  step("started", [&] {
    prepareContest();
    window.refreshReportView();
    openContestOfCommandLine(window, "  ");
  });
  EXPECT_EQ(currentContest().groupLetters, (std::vector<char>{'A', 'B', 'C', 'D', 'E'}));
  EXPECT_FALSE(currentContest().settings.contestDate.empty());
  currentContest().settings.contestName = "County Show";
  window.desktop.files = {std::nullopt, path, path, std::nullopt};
  for (const int command : {32774, 32773, 32771, 32772, 32772}) {
    step(std::string(findCommand(command)->caption), [&] { runCommand(command, window); });
  }
  step("named", [&] { openContestOfCommandLine(window, "\"" + path + "\""); });
  step("missing", [&] { openContestOfCommandLine(window, "nowhere.scv"); });
  // Cut to the longest path there is, this would be the name of the contest.
  const std::string slashes(kMaxPathLength - path.size(), '/');
  step("too long", [&] { openContestOfCommandLine(window, slashes + path + "x"); });
  log.erase(log.find(slashes), slashes.size());
  for (std::size_t at; (at = log.find(folder.path())) != std::string::npos;) {
    log.replace(at, folder.path().size(), "FOLDER");
  }
  expectApproved(log, "app/contest_files.txt");

  currentFileName() = std::string(300, 'f');
  currentContest().settings.contestName = std::string(300, 'c');
  log.clear();
  showContestTitle(window);
  EXPECT_EQ(log, "  title: Scorvane - " + currentFileName() + " - " + std::string(185, 'c') + "\n");
}

}  // namespace

}  // namespace scorvane
