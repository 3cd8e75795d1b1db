#include "tests/session/odd_names.h"

#include <gtest/gtest.h>

#include "tests/storage/contest_text.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

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
