#include "output/save_report.h"

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"
#include "view/report_text.h"

namespace {

class SaveReport : public testing::Test {
 protected:
  ~SaveReport() override { reportText() = kWelcomeText; }

  void save(std::optional<std::string> path) {
    window_.desktop.files = {std::move(path)};
    saveReport(window_, systemFiles());
  }

  TemporaryFolder folder_;
  std::string path_ = folder_.file("report.txt");
  MemoryWindow window_;
};

TEST_F(SaveReport, ReplacesTheChosenFileWithTheTextInWindowsLineEnds) {
  makeFile(path_, std::string(1000, 'x'));
  reportText() = "High\tIndividual\n--- Small Font ---\r\n\nno end";
  save(path_);
  EXPECT_EQ(contentOf(path_), "High\tIndividual\r\n--- Small Font ---\r\r\n\r\nno end");
  EXPECT_EQ(folder_.count(), 1U);
  ASSERT_EQ(window_.desktop.fileQuestions.size(), 1U);
  const FileQuestion& question = window_.desktop.fileQuestions[0];
  EXPECT_EQ(question.purpose, FileQuestion::Purpose::save);
  EXPECT_EQ(question.defaultExtension, "txt");
  ASSERT_EQ(question.filters.size(), 2U);
  EXPECT_EQ(question.filters[0].name + question.filters[0].pattern, "Text*.txt");
  EXPECT_EQ(question.filters[1].name + question.filters[1].pattern, "All*.*");

  reportText().clear();
  save(path_);
  EXPECT_EQ(contentOf(path_), "");
  EXPECT_EQ(folder_.count(), 1U);
}

TEST_F(SaveReport, IsSilentWhenNothingCanBeWritten) {
  reportText() = "kept\n";
  save(std::nullopt);
  save(folder_.file("no folder/report.txt"));
  EXPECT_EQ(folder_.count(), 0U);
  EXPECT_TRUE(window_.desktop.messages.empty());
  EXPECT_EQ(reportText(), "kept\n");
}

}  // namespace
