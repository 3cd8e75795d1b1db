#include "session/earlier_saves.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <set>

#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/temporary_folder.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

constexpr std::int64_t kHour = 3600;

/// The times of those that stay, newest first.
std::vector<std::int64_t> thinned(const std::vector<EarlierSave>& saves) {
  std::vector<std::int64_t> times;
  for (const EarlierSave& save : saves) times.push_back(save.time);
  const auto gone = superfluousSaves(saves);
  for (auto i = gone.rbegin(); i != gone.rend(); ++i) {
    times.erase(times.begin() + static_cast<std::ptrdiff_t>(*i));
  }
  return times;
}

EarlierSave savedAt(std::int64_t time, std::uint64_t size = 1) {
  return {"", time, false, "", size};
}

TEST(EarlierSaves, AreThinnedByTheDaysOfWork) {
  // Ten days of work from 8 to 1 at night, saved every 20 minutes: 52 a day; the last one all day.
  std::vector<EarlierSave> saves;
  for (std::int64_t day = 9; day >= 0; --day) {
    for (std::int64_t third = 51; third >= 0; --third) {
      saves.push_back(savedAt(((day * 24) + 8) * kHour + third * 1200));
    }
  }
  const std::vector<std::int64_t> times = thinned(saves);
  EXPECT_EQ(times.size(), 52U + 6 * 18 + 3);
  EXPECT_EQ(times[51], (9 * 24 + 8) * kHour);
  EXPECT_EQ(times[52], (9 * 24 + 1) * kHour);  // the last of the day before, at 1 in the night
  EXPECT_EQ(times[53], (9 * 24) * kHour + 2400);
  EXPECT_EQ(times.back(), 25 * kHour);
  saves[100].isUnsavedRest = true;
  EXPECT_EQ(thinned(saves).size(), times.size() + 1);

  // A busy day keeps 200, before them the last of each hour; what is thin stays as it is.
  saves.clear();
  for (std::int64_t minute = 600; minute > 0; --minute) saves.push_back(savedAt(minute * 60));
  const std::vector<std::int64_t> busy = thinned(saves);
  EXPECT_EQ(busy.size(), 200U + 6);
  EXPECT_EQ(busy[199], 401 * 60);
  EXPECT_EQ(busy[200], 359 * 60);

  // A clock set back puts nothing out of order: the newest stays, also when it is huge.
  const std::uint64_t most = 200U << 20;
  EXPECT_EQ(thinned({savedAt(100, most + 1), savedAt(90 * kHour), savedAt(90 * kHour - 1)}),
            (std::vector<std::int64_t>{100}));
  EXPECT_EQ(thinned({savedAt(3, most / 2), savedAt(2, most / 2), savedAt(1)}),
            (std::vector<std::int64_t>{3, 2}));
}

const std::string kPath = "county.scv";

struct KeptSaves : testing::Test {
  KeptSaves() { disk.files[kPath] = {smallFile(), true, smallFile(), 60 * kTicksPerSecond}; }
  ~KeptSaves() override { stopKeepingWork(); }

  void open(const std::string& path = kPath) {
    stopKeepingWork();
    startNewContest();
    startKeepingWork(disk);
    ASSERT_TRUE(openContest(window, path));
  }
  void save(const std::string& contestName) {
    currentContest().settings.contestName = contestName;
    saveCurrent(window);
    EXPECT_NE(disk.files[currentFileName()].content.find(contestName), std::string::npos)
        << disk.failingCall << " " << disk.room;
  }
  std::string kept(const std::string& path = kPath) {
    std::string names;
    for (const EarlierSave& save : earlierSaves(disk, path)) {
      const std::string bytes = readEarlierSave(disk, save).value_or("unreadable");
      const std::size_t end = std::min(bytes.find('\r'), bytes.size());
      names += bytes.substr(bytes.find('\t') + 1, end - bytes.find('\t') - 1) + ";";
    }
    return names;
  }

  MemoryFiles disk;
  MemoryWindow window;
};

TEST_F(KeptSaves, AreWhatSavesReplaced) {
  open();
  save("Two");
  disk.losePower(0);
  EXPECT_EQ(kept(), "County Fair;");
  disk.clock -= 100 * kHour * kTicksPerSecond;  // the clock is set back
  save("Three");
  save("Four");
  save("Four");  // nothing differs
  EXPECT_EQ(kept(), "Three;Two;County Fair;");
  EXPECT_EQ(earlierSaves(disk, kPath)[2].time, 60);  // since when it was the contest
  EXPECT_LT(earlierSaves(disk, kPath)[0].time, earlierSaves(disk, kPath)[1].time);
  EXPECT_FALSE(earlierSaves(disk, kPath)[0].isUnsavedRest);
  EXPECT_EQ(earlierSaves(disk, kPath)[0].contestPath, kPath);

  // The last of an hour stays of a day that is over, and only that one.
  for (const char* name : {"Five", "Six", "Seven"}) {
    disk.clock += (name[0] == 'F' ? 5 * kHour : 60) * kTicksPerSecond;
    save(name);
  }
  disk.clock += 5 * kHour * kTicksPerSecond;
  save("Eight");
  save("Nine");
  EXPECT_EQ(kept().substr(0, 17), "Eight;Seven;Four;") << kept();

  // Save As over another contest, or whatever it is.
  disk.files["other.scv"] = {"some\tnotes\r\n", true};
  window.desktop.files = {"other.scv"};
  saveContestAs(window);
  EXPECT_EQ(kept("other.scv"), "notes;");

  // What was cut off while it was kept is not listed, and its number is not used again.
  auto& [path, file] = *disk.files.find(earlierSaves(disk, kPath)[0].path);
  file.content.pop_back();
  EXPECT_TRUE(kept().starts_with("Seven;")) << kept();
  EXPECT_EQ(keepEarlierSave(disk, kPath, "a\tTen\r\n", false), Keeping::kept);
  EXPECT_EQ(keepEarlierSave(disk, kPath, "a\tTen\r\n", false), Keeping::known);
  EXPECT_TRUE(kept().starts_with("Ten;Seven;")) << kept();
}

TEST_F(KeptSaves, NeverStandInTheWayOfASave) {
  for (int call = 1, calls = 1; call <= calls; ++call) {
    disk.files = {{kPath, {smallFile(), true}}};
    open();
    disk.calls = 0;
    disk.failingCall = call;
    save("Two");
    disk.failingCall = 0;
    calls = disk.calls;
  }
  EXPECT_TRUE(window.desktop.messages.empty());

  // On a disk with room for one copy more the save comes first, and with more room both are done.
  int keptCount = 0;
  for (std::size_t room = 2 * smallFile().size() + 20; room < 4 * smallFile().size(); room += 5) {
    disk.files = {{kPath, {smallFile(), true}}};
    disk.room = 1U << 20;
    open();
    disk.room = room;
    save("Two");
    keptCount += kept().empty() ? 0 : 1;
  }
  EXPECT_GT(keptCount, 0);
  EXPECT_TRUE(window.desktop.messages.empty());
  disk.room = 1U << 20;
  disk.readOnlyPath = disk.localData;
  save("Three");
  disk.localData = "";
  save("Four");
  EXPECT_TRUE(window.desktop.messages.empty());
}

TEST_F(KeptSaves, AreFoundUnderAContestsNewName) {
  EXPECT_EQ(contestKey(disk, "C:\\Fairs\\a.scv"), contestKey(disk, "c:\\FAIRS\\a.scv"));
  EXPECT_NE(contestKey(disk, "C:\\Fairs\\a.scv"), contestKey(disk, "C:\\Shows\\a.scv"));
  open();
  save("Two");
  save("Three");
  const auto rename = [&](const std::string& from, const std::string& to) {
    disk.files[to] = disk.files[from];
    disk.files.erase(from);
  };
  disk.files["copy.scv"] = disk.files[kPath];
  open("copy.scv");
  EXPECT_EQ(kept("copy.scv"), "") << "the other file still has that name";
  rename(kPath, "moved.scv");
  open("moved.scv");
  EXPECT_EQ(kept("moved.scv"), "Two;County Fair;");
  save("Four");
  rename("moved.scv", "again.scv");
  open("again.scv");
  EXPECT_EQ(kept("again.scv"), "Three;Two;County Fair;");
}

/// Another program keeps a save of the same name whenever this one is about to.
struct CrowdedFiles : MemoryFiles {
  Opened create(const std::string& path) override {
    if (others-- > 0) files[path] = {"B" + std::to_string(others)};
    return MemoryFiles::create(path);
  }
  int others = 2;
};

TEST(EarlierSaves, AreNeverWrittenOverAnothers) {
  CrowdedFiles disk;
  EXPECT_EQ(keepEarlierSave(disk, kPath, "A9", true, 7), Keeping::kept);
  std::string contents;
  for (const EarlierSave& save : earlierSaves(disk, kPath)) {
    contents += *readEarlierSave(disk, save);
  }
  EXPECT_EQ(contents, "A9B0B1");
}

/// The machine's own files with a folder for application data.
struct LocalSaves : testing::Test {
  /// One that takes no room on the disk.
  void keepLarge(const std::string& contestPath, int number) const {
    const std::string path = earlierSavesFolder(files) + "/" + contestKey(files, contestPath) +
                             "/0000000" + std::to_string(number) + "-9-150000000-rest.scv";
    ASSERT_TRUE(files.create(path).file->resize(150'000'000));
  }

  LocalDataFolder folder;
  FileSystem& files = systemFiles();
};

TEST_F(LocalSaves, HaveOneLimitOfSizeAlsoWithoutAFileOrUnderTwoNames) {
  const auto keep = [&](const std::string& path, const std::string& bytes) {
    return keepEarlierSave(files, path, bytes, true);
  };
  EXPECT_EQ(keep("", "a\r\n"), Keeping::kept);
  keepLarge("", 2);
  keepLarge("", 3);
  EXPECT_EQ(keep("", "b\r\n"), Keeping::kept);
  EXPECT_EQ(earlierSaves(files, "").size(), 2U);

  const std::string before = folder.file("before.scv");
  const std::string after = folder.file("after.scv");
  EXPECT_EQ(keep(before, "a\r\n"), Keeping::kept);
  keepLarge(before, 2);
  keepLarge(before, 3);
  tidyEarlierSaves(files, before, 5);
  EXPECT_EQ(earlierSaves(files, before).size(), 1U);
  followRenamedContest(files, after, 5);
  keepLarge(before, 4);
  EXPECT_EQ(keep(after, "b\r\n"), Keeping::kept);
  keepLarge(after, 5);
  EXPECT_EQ(earlierSaves(files, after).size(), 3U);
  ASSERT_EQ(files.create(before).outcome, FileOutcome::done);  // another contest by that name
  tidyEarlierSaves(files, after, 6);
  EXPECT_EQ(earlierSaves(files, after).size(), 3U);
  files.remove(before);
  tidyEarlierSaves(files, after, 6);
  EXPECT_EQ(earlierSaves(files, after).size(), 2U);
}

TEST_F(LocalSaves, OfTwoProgramsAreAllKeptAndNumberedOnce) {
  constexpr int kSaves = 60;
  const auto keepAll = [&](const std::string& program) {
    bool isKept = true;
    for (int i = 0; i < kSaves; ++i) {
      // Of one length and one time, so that only the number tells their files apart.
      const std::string bytes = program + std::to_string(100 + i) + "\r\n";
      isKept &= keepEarlierSave(files, kPath, bytes, true, 7) == Keeping::kept;
    }
    return isKept;
  };
  const pid_t other = ::fork();
  if (other == 0) ::_exit(keepAll("B") ? 0 : 1);
  EXPECT_TRUE(keepAll("A"));
  int status = -1;
  ::waitpid(other, &status, 0);
  EXPECT_EQ(status, 0);
  std::set<std::string> contents;
  for (const EarlierSave& save : earlierSaves(files, kPath)) {
    contents.insert(*readEarlierSave(files, save));
  }
  EXPECT_EQ(contents.size(), 2U * kSaves);
}

// The port's own sides: the folder of this machine.
TEST(LocalFiles, AreMadeListedAppendedToAndClaimed) {
  const TemporaryFolder folder;
  FileSystem& files = systemFiles();
  {
    const LocalDataFolder local;
    EXPECT_EQ(files.localDataFolder(), local.path());
  }
  EXPECT_EQ(files.localDataFolder(), std::string(std::getenv("HOME")) + "/.local/share");
  ASSERT_TRUE(files.makeFolders(folder.file("a/b")));
  const std::string path = folder.file("a/b/c");
  const std::int64_t before = files.now() - kTicksPerSecond;
  for (const char* line : {"one", "two"}) {
    const auto opened = files.openToAppend(path);
    EXPECT_TRUE(opened.file->write(line) && opened.file->flush() && opened.file->close());
  }
  EXPECT_EQ(contentOf(path), "onetwo");
  EXPECT_FALSE(files.makeFolders(path));
  {
    const FileSystem::Claim claim = files.claim(path);
    EXPECT_EQ(claim.outcome, FileOutcome::done);
    EXPECT_EQ(files.claim(path).outcome, FileOutcome::denied);
    EXPECT_EQ(files.list(folder.file("a/b")).size(), 2U);
  }
  EXPECT_EQ(files.claim(path).outcome, FileOutcome::done);
  EXPECT_EQ(files.claim(folder.file("none/c")).outcome, FileOutcome::failed);
  const auto listed = files.list(folder.file("a/b"));
  ASSERT_EQ(listed.size(), 1U);
  EXPECT_EQ(listed[0].name, "c");
  EXPECT_EQ(listed[0].size, 6U);
  EXPECT_EQ(listed[0].changed, files.lastChange(path));
  EXPECT_GT(listed[0].changed, before);
  EXPECT_TRUE(files.list(folder.file("a")).at(0).isFolder);
  EXPECT_TRUE(files.list(path).empty());
}

}  // namespace

}  // namespace scorvane
