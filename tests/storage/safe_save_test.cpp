#include "storage/safe_save.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "tests/storage/memory_files.h"
#include "tests/support/temporary_folder.h"

namespace {

const std::string kOld = "the old contest, whole";
const std::string kLonger = "the new contest, which is longer than the old one";
const std::string kShorter = "new";

struct DiskWithOldFile : MemoryFiles {
  DiskWithOldFile() { files["a.scv"] = {kOld, true}; }
};

using Mood = void (*)(MemoryFiles&);
constexpr Mood asItShouldBe = [](MemoryFiles&) {};
constexpr Mood withProtectedFolder = [](MemoryFiles& disk) { disk.folderIsProtected = true; };
constexpr Mood withDeniedReplacing = [](MemoryFiles& disk) { disk.replacingIsDenied = true; };
constexpr Mood withHardLinks = [](MemoryFiles& disk) { disk.targetFacts.hasOtherNames = true; };

/// Saves with the first call failing, then the second, and so on until a save reaches no fault,
/// and has `check` look at what each save left.
void failEachCall(const std::string& bytes, FileOutcome failure, bool stayBroken, Mood mood,
                  const std::function<void(MemoryFiles&, bool saved)>& check) {
  for (int call = 1;; ++call) {
    SCOPED_TRACE(call);
    ASSERT_LT(call, 100);
    DiskWithOldFile disk;
    mood(disk);
    disk.failingCall = call;
    disk.failure = failure;
    disk.stayBroken = stayBroken;
    const bool saved = saveSafely(disk, "a.scv", bytes);
    disk.failingCall = 0;
    check(disk, saved);
    EXPECT_FALSE(disk.replacedUnflushed);
    if (disk.calls < call) {
      EXPECT_TRUE(saved);
      return;
    }
  }
}

// Whatever single step fails, the name stands for the whole old or the whole new content, success
// is only told of the new one, and nothing is left beside it.
TEST(SafeSave, OneFailureLeavesAWholeFile) {
  for (const std::string& bytes : {kLonger, kShorter}) {
    for (const FileOutcome failure : {FileOutcome::failed, FileOutcome::denied}) {
      for (const Mood mood :
           {asItShouldBe, withProtectedFolder, withDeniedReplacing, withHardLinks}) {
        failEachCall(bytes, failure, false, mood, [&](MemoryFiles& disk, bool saved) {
          EXPECT_EQ(disk.files["a.scv"].content, saved ? bytes : kOld);
          // Only the removal itself can fail to clean up.
          EXPECT_TRUE(saved || disk.files.size() == 1);
        });
      }
    }
  }
}

// A disk that stays broken: where the old file was being written over, the new content stands
// complete beside it.
TEST(SafeSave, LastingFailureLosesNothing) {
  for (const std::string& bytes : {kLonger, kShorter}) {
    for (const Mood mood : {asItShouldBe, withDeniedReplacing, withHardLinks}) {
      failEachCall(bytes, FileOutcome::failed, true, mood, [&](MemoryFiles& disk, bool saved) {
        const std::string& content = disk.files["a.scv"].content;
        EXPECT_TRUE(!saved || content == bytes);
        if (content == kOld || content == bytes) return;
        ASSERT_TRUE(disk.files.contains("a.scv.1"));
        EXPECT_EQ(disk.files["a.scv.1"].content, bytes);
      });
    }
  }
}

TEST(SafeSave, FullDiskKeepsTheOldFile) {
  for (const Mood mood : {asItShouldBe, withProtectedFolder, withHardLinks}) {
    for (std::size_t room = kOld.size(); room < kLonger.size(); ++room) {
      DiskWithOldFile disk;
      mood(disk);
      disk.room = room;
      EXPECT_FALSE(saveSafely(disk, "a.scv", kLonger));
      EXPECT_EQ(disk.files["a.scv"].content, kOld);
      EXPECT_EQ(disk.files.size(), 1U);
    }
  }
}

TEST(SafeSave, LeavesOtherTemporaryFilesAlone) {
  DiskWithOldFile disk;
  disk.files["a.scv.1"] = {"another program's", true};
  EXPECT_TRUE(saveSafely(disk, "a.scv", kLonger));
  EXPECT_EQ(disk.files["a.scv"].content, kLonger);
  EXPECT_EQ(disk.files["a.scv.1"].content, "another program's");
}

struct SafeSaveOnDisk : testing::Test {
  static bool save(const std::string& path, const std::string& bytes) {
    return saveSafely(systemFiles(), path, bytes);
  }
  TemporaryFolder folder;
  const std::string path = folder.file("a.scv");
};

TEST_F(SafeSaveOnDisk, ReplacesAndMakesFiles) {
  EXPECT_TRUE(save(path, kLonger));
  EXPECT_EQ(contentOf(path), kLonger);
  std::filesystem::permissions(path, std::filesystem::perms{0640});
  EXPECT_TRUE(save(path, kShorter));
  EXPECT_EQ(contentOf(path), kShorter);
  EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0640});
  EXPECT_EQ(folder.count(), 1U);

  EXPECT_TRUE(save(folder.file(std::string(255, 'n')), kLonger));  // the longest name
}

TEST_F(SafeSaveOnDisk, WritesThroughLinks) {
  makeFile(path, kOld);
  std::filesystem::create_symlink("a.scv", folder.file("link.scv"));
  std::filesystem::create_symlink("new.scv", folder.file("dangling.scv"));
  std::filesystem::create_hard_link(path, folder.file("twin.scv"));
  EXPECT_TRUE(save(folder.file("link.scv"), kLonger));
  EXPECT_EQ(contentOf(path), kLonger);
  EXPECT_EQ(contentOf(folder.file("twin.scv")), kLonger);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.file("link.scv")));
  EXPECT_TRUE(save(folder.file("dangling.scv"), kShorter));
  EXPECT_EQ(contentOf(folder.file("new.scv")), kShorter);
  EXPECT_EQ(folder.count(), 5U);
}

TEST_F(SafeSaveOnDisk, RefusesWhatIsNotToBeWritten) {
  makeFile(path, kOld);
  std::filesystem::permissions(path, std::filesystem::perms{0444});
  for (const std::string& target : {path, folder.path(), folder.file("none/a.scv"), path + "/a.scv",
                                    std::string(), std::string("/dev/null"), folder.path() + "/"}) {
    EXPECT_FALSE(save(target, kLonger)) << target;
  }
  EXPECT_EQ(contentOf(path), kOld);
  EXPECT_EQ(folder.count(), 1U);
}

TEST_F(SafeSaveOnDisk, ReadsWholeFilesOnly) {
  makeFile(path, kLonger);
  makeFile(folder.file("empty.scv"), "");
  EXPECT_EQ(systemFiles().readWhole(path), kLonger);
  EXPECT_EQ(systemFiles().readWhole(folder.file("empty.scv")), "");
  for (const std::string& file : {folder.path(), folder.file("none.scv")}) {
    EXPECT_FALSE(systemFiles().readWhole(file)) << file;
  }
}

}  // namespace
