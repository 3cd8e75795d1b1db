#include "storage/safe_save.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <filesystem>
#include <set>

#include "storage/contest_loader.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/temporary_folder.h"

namespace scorvane {

namespace {

const std::string kOld = "the old contest, whole";
const std::string kLonger = "the new contest, which is longer than the old one";
const std::string kShorter = "new";

struct DiskWithOldFile : MemoryFiles {
  DiskWithOldFile() { files["a.scv"] = {kOld, true}; }
};

constexpr void (*kMoods[])(MemoryFiles&) = {
    [](MemoryFiles&) {}, [](MemoryFiles& disk) { disk.folderIsProtected = true; },
    [](MemoryFiles& disk) { disk.deniedReplacings = 1000; },
    [](MemoryFiles& disk) { disk.hasOtherNames = true; }};

// After one failure the name stands for the whole old or the whole new content, success is only
// told of the new one, and nothing is left beside it. Where the disk stays broken, a complete copy
// of the new content stands beside a file that could not be put right, or else among the temporary
// files.
void expectNothingLost(MemoryFiles& disk, bool saved, const std::string& bytes) {
  EXPECT_FALSE(disk.replacedUnflushed);
  EXPECT_TRUE(saved || disk.calls >= disk.failingCall);
  const auto& [content, isFlushed, onMedium, changed] = disk.files["a.scv"];
  if (saved) {
    EXPECT_EQ(content, bytes);
    EXPECT_TRUE(isFlushed);
  } else if (!disk.stayBroken) {
    EXPECT_EQ(content, kOld);
    EXPECT_EQ(disk.files.size(), 1U);
  } else if (content != kOld && content != bytes) {
    disk.failingCall = 0;
    const auto copy = unfinishedSave(disk, "a.scv", nullptr);
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->bytes, bytes);
    EXPECT_EQ(copy->path.starts_with("temporary/"), disk.folderIsProtected);
  }
}

// The first operation fails, then the second, and so on until a save meets no failure.
TEST(SafeSave, LosesNothingWhicheverStepFails) {
  for (int variant = 0; variant < 32; ++variant) {
    const std::string& bytes = variant % 2 == 0 ? kLonger : kShorter;
    for (int call = 1, calls = 1; call <= calls + 1; ++call) {
      SCOPED_TRACE(std::to_string(variant) + ", call " + std::to_string(call));
      DiskWithOldFile disk;
      disk.failingCall = call;
      disk.failure = variant / 2 % 2 == 0 ? FileOutcome::failed : FileOutcome::denied;
      disk.stayBroken = variant / 4 % 2 == 1;
      kMoods[variant / 8](disk);
      expectNothingLost(disk, saveSafely(disk, "a.scv", bytes), bytes);
      calls = disk.calls;
    }
  }
}

TEST(SafeSave, KeepsTheOldFileUntouchedOnAFullDisk) {
  for (const auto mood : kMoods) {
    // What is written in place needs room for itself beside a copy.
    const std::size_t enough = (mood == kMoods[0] ? kOld : kLonger).size() + kLonger.size();
    for (std::size_t room = kOld.size(); room < enough; ++room) {
      DiskWithOldFile disk;
      mood(disk);
      disk.room = room;
      EXPECT_FALSE(saveSafely(disk, "a.scv", kLonger));
      EXPECT_FALSE(disk.writtenOver);
      EXPECT_EQ(disk.files["a.scv"].content, kOld);
      EXPECT_EQ(disk.files.size(), 1U);
    }
  }
}

/// A contest in which a card at the start and one at the end tell which save it is of.
std::string contestWith(const std::string& name, char letter) {
  const std::string scores = "\t0\t" + std::string(1, letter) + "\t0\t0\t0";
  return fileOf({"contestName:\t" + name, "~~~~~Classes~~~~~", "1", "S\tNo\tNo\tA\t1,1,1\t0",
                 "~~~~~Contestants~~~~~", "2", "1\tA\t0\t0", "2\tB\t0\t0", "~~~~~Teams~~~~~", "0",
                 "~~~~~Scores~~~~~", "2", "1" + scores, "2" + scores, "0", "0"});
}

// The power goes at each operation of a save in place, and of what was not flushed then any part is
// on the disk. Opening finds the old contest or the new one, whole, and the new one once the save
// has begun to write.
TEST(SafeSave, InPlaceLeavesAWholeContestToOpenWheneverThePowerGoes) {
  const std::string old = contestWith("Fair", 'B');
  for (const bool isBeside : {false, true}) {
    for (const std::string& bytes : {contestWith("State Fair", 'C'), contestWith("F", 'C')}) {
      bool isSaved = false;
      int fromCopy = 0;
      std::set<std::string> states;
      for (int call = 1; !isSaved; ++call) {
        MemoryFiles cut;
        cut.files["a.scv"] = {old, true, old};
        cut.folderIsProtected = !isBeside;
        cut.hasOtherNames = isBeside;
        cut.isCutAt(call, [&] { isSaved = saveSafely(cut, "a.scv", bytes); });
        for (std::size_t torn = 0;; ++torn) {
          MemoryFiles disk;
          disk.files = cut.files;
          if (!disk.tearAt(torn)) break;
          std::string state;
          for (const auto& [path, file] : disk.files) state += path + file.content;
          if (!states.insert(state).second) continue;
          const auto loading = loadContestFile(disk, "a.scv");
          const auto* loaded = std::get_if<LoadedContest>(&loading);
          ASSERT_NE(loaded, nullptr) << call << " " << torn;
          const bool isNew = loaded->contest == std::get<Contest>(readContest(bytes));
          EXPECT_TRUE(isNew || loaded->contest == std::get<Contest>(readContest(old))) << call;
          if (!loaded->copy.empty()) ++fromCopy;
          EXPECT_TRUE(isNew || loaded->copy.empty());
        }
      }
      EXPECT_GT(fromCopy, 100);
    }
  }
}

// A copy is read for its own file only, and not over a content that was saved since.
TEST(SafeSave, LeavesCopiesAloneThatDoNotBelong) {
  MemoryFiles disk;
  const std::string old = contestWith("Fair", 'B');
  disk.files["a.scv"] = disk.files["b.scv"] = {old};
  disk.hasOtherNames = true;
  EXPECT_TRUE(disk.isCutAt(10, [&] { EXPECT_FALSE(saveSafely(disk, "a.scv", kLonger)); }));
  ASSERT_EQ(disk.files.size(), 3U);
  EXPECT_TRUE(unfinishedSave(disk, "a.scv", nullptr));
  EXPECT_TRUE(unfinishedSave(disk, "a.scv", &old));
  EXPECT_FALSE(unfinishedSave(disk, "b.scv", nullptr));
  EXPECT_FALSE(unfinishedSave(disk, "a.scv", &kShorter));
  // Its save is over.
  EXPECT_FALSE(unfinishedSave(disk, "a.scv", &kLonger));
  EXPECT_EQ(disk.files.size(), 2U);
}

TEST(SafeSave, WaitsForOtherProgramsAndLeavesTheirFilesAlone) {
  DiskWithOldFile disk;
  disk.files["a.scv.1"] = {"another program's", true};
  disk.deniedReplacings = 10;
  EXPECT_TRUE(saveSafely(disk, "a.scv", kLonger));
  EXPECT_FALSE(disk.writtenOver);
  EXPECT_EQ(disk.pausedFor, 1375);
  EXPECT_EQ(disk.files["a.scv"].content, kLonger);
  EXPECT_EQ(disk.files["a.scv.1"].content, "another program's");
  for (int i = 2; i <= 100; ++i) disk.files["a.scv." + std::to_string(i)] = {};
  EXPECT_FALSE(saveSafely(disk, "a.scv", kOld));
}

TEST(FileSystem, ReadsNoMoreThanItMay) {
  for (const bool tellsSizes : {true, false}) {
    DiskWithOldFile disk;
    disk.tellsSizes = tellsSizes;
    const std::string large(10000, 'x');
    disk.files["a.scv"].content = large;
    EXPECT_EQ(disk.readWhole("a.scv"), large);
    EXPECT_EQ(disk.readWhole("a.scv", large.size()), large);
    EXPECT_EQ(disk.readWhole("a.scv", large.size() - 1), std::nullopt);
  }
}

struct SafeSaveOnDisk : testing::Test {
  static bool save(const std::string& path, const std::string& bytes) {
    return saveSafely(systemFiles(), path, bytes);
  }
  TemporaryFolder folder;
  const std::string path = folder.file("a.scv");
};

TEST_F(SafeSaveOnDisk, MakesFilesAndReplacesThemWithTheirRightsAndLinks) {
  EXPECT_TRUE(save(path, kLonger));
  std::filesystem::permissions(path, std::filesystem::perms{0640});
  EXPECT_TRUE(save(path, kShorter));
  EXPECT_EQ(contentOf(path), kShorter);
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0640});
  EXPECT_TRUE(save(folder.file(std::string(255, 'n')), kLonger));  // the longest name

  std::filesystem::create_symlink("a.scv", folder.file("link.scv"));
  std::filesystem::create_symlink("new.scv", folder.file("dangling.scv"));
  std::filesystem::create_hard_link(path, folder.file("twin.scv"));
  EXPECT_TRUE(save(folder.file("link.scv"), kLonger));
  EXPECT_EQ(contentOf(path), kLonger);
  EXPECT_EQ(contentOf(folder.file("twin.scv")), kLonger);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.scv")));
  EXPECT_TRUE(save(folder.file("dangling.scv"), kShorter));
  EXPECT_EQ(contentOf(folder.file("new.scv")), kShorter);
  EXPECT_EQ(folder.count(), 6U);
}

TEST_F(SafeSaveOnDisk, RefusesWhatIsNotToBeWrittenOrRead) {
  makeFile(path, kOld);
  std::filesystem::permissions(path, std::filesystem::perms{0444});
  ASSERT_EQ(::mkfifo(folder.file("pipe").c_str(), 0600), 0);
  for (const std::string& target : {path, folder.path(), folder.file("none/a.scv"), path + "/a.scv",
                                    std::string(), folder.file("pipe"), folder.path() + "/"}) {
    EXPECT_FALSE(save(target, kLonger)) << target;
  }
  EXPECT_EQ(systemFiles().readWhole(path), kOld);
  EXPECT_EQ(folder.count(), 2U);

  const std::string huge = folder.file("huge.scv");
  makeFile(huge, "");
  EXPECT_EQ(systemFiles().readWhole(huge), "");
  std::filesystem::resize_file(huge, kMaxFileSize + 1);
  for (const std::string& file : {huge, folder.path(), folder.file("none.scv")}) {
    EXPECT_FALSE(systemFiles().readWhole(file)) << file;
  }
}

}  // namespace

}  // namespace scorvane
