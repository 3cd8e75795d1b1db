#include "storage/contest_commands.h"

#include <gtest/gtest.h>

#include "model/contest.h"
#include "model/new_contest.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"
#include "view/report_text.h"

namespace {

class ContestCommands : public testing::Test {
 protected:
  ContestCommands() {
    makeFile(path, smallFile());
    currentFileName() = path;
    EXPECT_TRUE(loadContest(window, true));
    reportText() = "a report";
  }

  void expectNewContest() {
    EXPECT_TRUE(currentContest() == newContest());
    EXPECT_EQ(currentFileName(), "");
    EXPECT_EQ(reportText(), kWelcomeText);
  }

  TemporaryFolder folder;
  const std::string path = folder.file("county.scv");
  MemoryWindow window;
};

TEST_F(ContestCommands, LoadsTheFileThatIsChosen) {
  resetContest();
  EXPECT_EQ(reportText(), "");
  EXPECT_EQ(currentFileName(), path);  // resetting leaves the name alone
  window.desktop.files = {path};
  EXPECT_TRUE(loadContest(window, false));
  EXPECT_EQ(writeContest(currentContest()), smallFile());
  EXPECT_EQ(currentFileName(), path);
  const FileQuestion& question = window.desktop.fileQuestions.at(0);
  EXPECT_EQ(question.purpose, FileQuestion::Purpose::open);
  EXPECT_TRUE(question.fileMustExist);
  EXPECT_EQ(question.defaultExtension, "scv");
  ASSERT_EQ(question.filters.size(), 2U);
  EXPECT_EQ(question.filters[0].name + question.filters[0].pattern, "Scorvane*.scv");
  EXPECT_EQ(question.filters[1].name + question.filters[1].pattern, "All*.*");
}

// Saving as forgets the name before it asks, so a change of mind leaves the contest untitled.
TEST_F(ContestCommands, CancelledQuestionsForgetTheFileOrTheContest) {
  window.desktop.files = {std::nullopt, std::nullopt};
  saveContest(window, true);
  EXPECT_EQ(currentFileName(), "");
  EXPECT_EQ(currentContest().settings.contestName, "County Fair");
  EXPECT_EQ(contentOf(path), smallFile());
  EXPECT_FALSE(loadContest(window, false));
  EXPECT_TRUE(window.desktop.messages.empty());
  expectNewContest();
}

TEST_F(ContestCommands, FailedLoadSaysWhyAndLeavesANewContest) {
  const std::string wrongCount = replaced(smallFile(), "Scores~~~~~\r\n6", "Scores~~~~~\r\n7");
  makeFile(folder.file("corrupt.scv"), "no contest");
  makeFile(folder.file("count.scv"), wrongCount);
  const std::string missing = folder.file("missing.scv");
  const std::string noFile = "Invalid file name (%) , or file does not exist.";
  struct Case {
    std::string path, text, caption;
  };
  for (const auto& [file, text, caption] : {
           Case{missing, replaced(noFile, "%", missing), "Information"},
           Case{folder.path(), replaced(noFile, "%", folder.path()), "Information"},
           Case{folder.file("corrupt.scv"), "Illegal or corrupt data file.", "Error!"},
           Case{folder.file("count.scv"),
                "Number of scores in the file is not correct.  None read.", "Information"},
       }) {
    currentContest().settings.contestName = "Another";
    currentFileName() = file;
    EXPECT_FALSE(loadContest(window, true));
    ASSERT_EQ(window.desktop.messages.size(), 1U) << file;
    EXPECT_EQ(window.desktop.messages[0].text, text);
    EXPECT_EQ(window.desktop.messages[0].caption, caption);
    window.desktop.messages.clear();
    expectNewContest();
  }
  EXPECT_EQ(contentOf(folder.file("count.scv")), wrongCount);
}

TEST_F(ContestCommands, SavesToTheCurrentFileOrAsksForOne) {
  currentContest().settings.contestName = "State Fair";
  saveCurrent(window);
  EXPECT_EQ(contentOf(path), replaced(smallFile(), "County Fair", "State Fair"));
  EXPECT_TRUE(window.desktop.fileQuestions.empty());
  EXPECT_EQ(folder.count(), 1U);  // nothing is left beside it

  resetContest();
  currentFileName().clear();
  window.desktop.files = {folder.file("new.scv")};
  saveCurrent(window);
  EXPECT_EQ(window.desktop.fileQuestions.at(0).purpose, FileQuestion::Purpose::save);
  EXPECT_FALSE(window.desktop.fileQuestions[0].fileMustExist);
  EXPECT_EQ(currentFileName(), folder.file("new.scv"));
  EXPECT_EQ(contentOf(currentFileName()), writeContest(currentContest()));
  EXPECT_EQ(currentContest().categories, std::vector<std::string>{"none"});
}

TEST_F(ContestCommands, SaysWhenItCouldNotSave) {
  resetContest();
  currentFileName() = folder.file("gone/county.scv");
  saveCurrent(window);
  ASSERT_EQ(window.desktop.messages.size(), 1U);
  EXPECT_EQ(window.desktop.messages[0].text,
            "Your file did NOT save!\r\n"
            "Perhaps you previously saved to removable media like a thumb drive.\r\n"
            "Select File->Save As and save your file to another location.\r\n"
            "Again, your file did NOT save!  Please use File->Save As to ensure your work is "
            "saved.\r\n");
  EXPECT_EQ(window.desktop.messages[0].caption, "File Save Error");
  EXPECT_EQ(currentFileName(), folder.file("gone/county.scv"));
  EXPECT_TRUE(currentContest().categories.empty());
}

}  // namespace
