// The contest commands on the files of this machine, also by odd names.
#include "session/contest_file.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "model/contest.h"
#include "model/new_contest.h"
#include "session/open_contest.h"
#include "storage/contest_writer.h"
#include "storage/file.h"
#include "tests/session/odd_names.h"
#include "tests/storage/contest_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

class ContestCommands : public testing::Test {
 protected:
  ContestCommands() { makeFile(path, smallFile()); }
  // A contest of which nothing may stay once another one was to be loaded.
  void edit(const std::string& name) {
    currentContest().settings.contestName = "State Fair";
    currentFileName() = name;
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
  edit("another.scv");
  window.desktop.files = {path, std::nullopt};
  EXPECT_TRUE(openChosenContest(window));
  EXPECT_EQ(writeContest(currentContest()), smallFile());
  EXPECT_EQ(currentFileName(), path);
  EXPECT_EQ(reportText(), kWelcomeText);
  EXPECT_FALSE(openChosenContest(window));  // cancelled
  EXPECT_TRUE(window.desktop.messages.empty());
  expectNewContest();
}

TEST_F(ContestCommands, FailedLoadSaysWhyAndLeavesANewContest) {
  const std::string wrongCount = replaced(smallFile(), "Scores~~~~~\r\n6", "Scores~~~~~\r\n7");
  makeFile(folder.file("corrupt.scv"), "no contest");
  makeFile(folder.file("count.scv"), wrongCount);
  const std::string roundabout = folder.path() + std::string(500, '/') + "county.scv";
  for (const std::string& missing : {folder.file("missing.scv"), folder.path(), roundabout,
                                     folder.file("corrupt.scv"), folder.file("count.scv")}) {
    edit("another.scv");
    EXPECT_FALSE(openContest(window, missing));
    expectNewContest();
  }
  std::vector<std::string> said;
  for (const Message& box : window.desktop.messages) said.push_back(box.caption + ": " + box.text);
  const std::string noFile = "Information: Invalid file name (%) , or file does not exist.";
  EXPECT_EQ(said, (std::vector<std::string>{
                      replaced(noFile, "%", folder.file("missing.scv")),
                      replaced(noFile, "%", folder.path()), replaced(noFile, "%", roundabout),
                      "Error!: Illegal or corrupt data file.",
                      "Information: Number of scores in the file is not correct.  None read."}));
  EXPECT_EQ(contentOf(folder.file("count.scv")), wrongCount);
}

// Saving as forgets the name before it asks, so a change of mind leaves the contest untitled.
TEST_F(ContestCommands, SavesToTheCurrentFileOrAsksForOneOrSaysThatItCouldNot) {
  startNewContest();
  edit(path);
  currentContest().categories = {"Beef"};
  const std::string saved = writeContest(currentContest());
  saveCurrent(window);
  EXPECT_EQ(contentOf(path), saved);
  EXPECT_TRUE(window.desktop.fileQuestions.empty());
  EXPECT_EQ(folder.count(), 1U);  // nothing is left beside it

  const std::string copy = folder.file("copy.scv");
  window.desktop.files = {std::nullopt, copy};
  saveContestAs(window);
  EXPECT_EQ(currentFileName(), "");
  currentContest().categories.clear();
  saveCurrent(window);
  EXPECT_EQ(currentFileName(), copy);
  EXPECT_EQ(contentOf(copy), replaced(saved, "Beef", "none"));
  EXPECT_EQ(currentContest().categories, std::vector<std::string>{"none"});
  EXPECT_EQ(contentOf(path), saved);

  currentContest().categories.clear();
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

TEST_F(ContestCommands, WaitsWhileAnotherCopyOfTheProgramSaves) {
  EXPECT_TRUE(openContest(window, path));
  currentContest().settings.contestName = "Ours";
  auto lock = systemFiles().lockForSaving(path, FileSystem::kSavePatience);
  std::atomic<bool> isSaved = false;
  std::thread saving([&] {
    saveCurrent(window);
    isSaved = true;
  });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_FALSE(isSaved);
  lock.hold.reset();
  saving.join();
  EXPECT_EQ(contentOf(path), replaced(smallFile(), "County Fair", "Ours"));
}

// The code page's own letters stay, everything else is lost.
std::vector<std::string> bent(const std::string& name) {
  const std::string marked = windows1252Of(name);
  std::string capitals = marked;
  for (char& c : capitals) c = c == '?' ? 'O' : c;
  return {marked, capitals};
}

TEST(OddNames, ReachTheirOwnFiles) {
  const TemporaryFolder contests;
  const LocalDataFolder local;
  const RawDisk disk{
      [](const std::string& path, const std::string& bytes) { makeFile(path, bytes); },
      [](const std::string& path) { return contentOf(path); }, bent};
  EXPECT_EQ(OddNames(contests.path(), disk, smallFile(), 2).faults(), std::vector<std::string>());
}

// A folder linked to, a file linked to, and a second name of the file.
TEST(OddNames, OneFileIsOneContestUnderAllItsNames) {
  const TemporaryFolder folder;
  const LocalDataFolder local;
  FileSystem& files = systemFiles();
  const std::string path = folder.file("Ω.scv");
  makeFile(path, smallFile());
  makeFile(folder.file("O.scv"), smallFile());
  std::filesystem::create_symlink(path, folder.file("link.scv"));
  std::filesystem::create_directory_symlink(folder.path(), folder.file("inner"));
  std::filesystem::create_hard_link(path, folder.file("twin.scv"));
  const std::string key = contestKey(files, path);
  for (const char* name : {"link.scv", "inner/Ω.scv", "inner/inner/link.scv", "./Ω.scv"}) {
    EXPECT_EQ(contestKey(files, folder.file(name)), key) << name;
    EXPECT_TRUE(reachesSameFile(files, path, folder.file(name))) << name;
  }
  EXPECT_TRUE(reachesSameFile(files, path, folder.file("twin.scv")));
  EXPECT_FALSE(reachesSameFile(files, path, folder.file("O.scv")));
  EXPECT_NE(contestKey(files, folder.file("O.scv")), key);
}

// Also where what is kept of it is named after the beginning of its name.
TEST(OddNames, AreCountedCutAndShownInCharacters) {
  const TemporaryFolder folder;
  const std::string longest =
      folder.path() + std::string(499 - folder.path().size() - 5, '/') + "Ω.scv";
  makeFile(longest, smallFile());
  MemoryWindow window;
  window.desktop.files = {"/" + longest};
  EXPECT_TRUE(openContest(window, longest));
  saveContestAs(window);
  EXPECT_FALSE(openContest(window, "/" + longest));
  EXPECT_FALSE(openContest(window, folder.file("Ωé.scv")));
  std::vector<std::string> said;
  for (const Message& box : window.desktop.messages) said.push_back(box.text.substr(0, 30));
  ASSERT_EQ(said.size(), 3U);
  EXPECT_TRUE(said[0].starts_with("Your file did NOT save!"));
  EXPECT_EQ(window.desktop.messages[2].text,
            "Invalid file name (" + folder.file("?\xE9.scv") + ") , or file does not exist.");
  for (const char* start : {"", "a"}) {
    std::string name = start;
    for (int i = 0; i < 60; ++i) name += "Ω";
    const std::string key = contestKey(systemFiles(), folder.file(name + ".scv"));
    EXPECT_TRUE(utf16Of(key).has_value()) << key;
  }
}

}  // namespace

}  // namespace scorvane
