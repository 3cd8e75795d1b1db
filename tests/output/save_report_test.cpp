#include "output/save_report.h"

#include <gtest/gtest.h>

#include "model/new_contest.h"
#include "session/contest_file.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_writer.h"
#include "tests/storage/memory_files.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

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
