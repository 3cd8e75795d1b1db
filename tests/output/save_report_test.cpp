#include "output/save_report.h"

#include <gtest/gtest.h>

#include "session/open_contest.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

// Saves `report` under a chosen name, or cancels; returns the question asked and nothing else
// shown.
FileQuestion save(const char* report, const std::optional<std::string>& path) {
  MemoryWindow window;
  window.desktop.files = {path};
  reportText() = report;
  saveReport(window, systemFiles());
  EXPECT_TRUE(window.desktop.messages.empty());
  EXPECT_EQ(reportText(), report);
  return window.desktop.fileQuestions.at(0);
}

TEST(SaveReport, ReplacesTheChosenFileOrIsSilent) {
  const TemporaryFolder folder;
  const std::string path = folder.file("report.txt");
  makeFile(path, std::string(1000, 'x'));
  const FileQuestion question = save("High\tIndividual\n--- Small Font ---\r\n\nno end", path);
  EXPECT_EQ(contentOf(path), "High\tIndividual\r\n--- Small Font ---\r\r\n\r\nno end");
  EXPECT_EQ(question.purpose, FileQuestion::Purpose::save);
  EXPECT_EQ(question.defaultExtension, "txt");
  EXPECT_TRUE(question.fileMustExist);
  std::string filters;
  for (const auto& [name, pattern] : question.filters) filters += name + pattern + ' ';
  EXPECT_EQ(filters, "Text*.txt All*.* ");
  save("kept\n", std::nullopt);
  save("kept\n", folder.file("no folder/report.txt"));
  save("", path);
  EXPECT_EQ(contentOf(path), "");
  EXPECT_EQ(folder.count(), 1U);
}

}  // namespace

}  // namespace scorvane
