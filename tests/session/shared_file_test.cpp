#include "session/shared_file.h"

#include <gtest/gtest.h>

#include <functional>
#include <variant>

#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "session/save_lock.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/ui/memory_dialog.h"

namespace scorvane {

namespace {

const std::string kPath = "county.scv";
constexpr auto kTwoSeconds = 2 * kTicksPerSecond;

/// A disk that others can write to right before and after this program has, and that may be slow.
struct SharedDisk : MemoryFiles {
  FileOutcome lockOutcome = FileOutcome::done;
  std::function<void()> beforeSave = nullptr, afterSave = nullptr;
  int othersSaves = 0;  ///< that are still to come after one of this program
  std::int64_t slowness = 0;

  Claim lockForSaving(const std::string& /*path*/, int /*patience*/) override {
    return {lockOutcome, nullptr};
  }
  FileOutcome replace(const std::string& from, const std::string& to) override {
    const FileOutcome outcome = MemoryFiles::replace(from, to);
    if (to == kPath && othersSaves-- > 0) afterSave();
    return outcome;
  }
  Opened create(const std::string& path) override {
    if (path.starts_with(kPath) && beforeSave) std::exchange(beforeSave, nullptr)();
    return MemoryFiles::create(path);
  }
  std::unique_ptr<InputFile> openToRead(const std::string& path) override {
    clock += slowness;
    return MemoryFiles::openToRead(path);
  }
};

struct SharedFile : testing::Test {
  SharedFile() {
    put(smallFile());
    start();
  }
  ~SharedFile() override { stopKeepingWork(); }

  void start() {
    stopKeepingWork();
    startNewContest();
    startKeepingWork(disk);
    ASSERT_TRUE(openContest(window, kPath));
  }
  void put(const std::string& bytes) { disk.put(kPath, bytes); }
  Contest inFile() { return std::get<Contest>(readContest(disk.files[kPath].content)); }
  /// Another program stores a letter and saves.
  void othersSave(ContestantNumber number, std::int32_t classIndex, char letter) {
    Contest theirs = inFile();
    theirs.scores[number][classIndex].letter = letter;
    recomputeAllPlacingScores(theirs);
    put(writeContest(theirs));
  }
  void type(ContestantNumber number, std::int32_t classIndex, char letter) {
    const ScoreRecord record{letter, 0, 0, 0};
    currentContest().scores[number][classIndex].letter = letter;
    scoreStored({{number, classIndex, record}, {.letter = true}});
  }
  /// The letters of three people in the first class.
  static std::string letters(const Contest& contest) {
    std::string text;
    for (const int number : {101, 102, 103}) text += scoreRecord(contest, number, 0).letter;
    return text;
  }
  void expectBothHold(const std::string& wanted) {
    EXPECT_EQ(letters(currentContest()), wanted);
    EXPECT_EQ(letters(inFile()), wanted);
  }
  bool looksAndReads() {
    disk.calls = 0;
    takeInOthersWork();
    return disk.calls > 1;
  }
  std::size_t copies() { return disk.list(recoveryFolder(disk)).size(); }

  SharedDisk disk;
  MemoryWindow window;
};

TEST_F(SharedFile, HoldsEverybodysWorkAfterASave) {
  type(101, 0, 'A');
  othersSave(102, 0, 'B');
  saveCurrent(window);
  expectBothHold("AB ");
  EXPECT_FALSE(takeNews());

  // What both have changed to different values stays as here, and is there in whole.
  type(101, 0, 'C');
  type(103, 0, 'D');
  othersSave(101, 0, 'E');
  disk.readOnlyPath = kPath;
  saveCurrent(window);
  EXPECT_FALSE(takeNews()) << "not before it is saved";
  disk.readOnlyPath.clear();
  saveCurrent(window);
  expectBothHold("CBD");
  const auto news = takeNews();
  ASSERT_TRUE(news);
  ASSERT_EQ(news->merge.scores.size(), 1U);
  EXPECT_EQ(news->merge.scores[0].records.there.letter, 'E');
  EXPECT_TRUE(news->isKept);
  EXPECT_FALSE(takeNews());
  const auto newest = readEarlierSave(disk, earlierSaves(disk, kPath).at(0));
  EXPECT_EQ(letters(std::get<Contest>(readContest(newest.value()))), "EB ");
  ASSERT_EQ(window.desktop.messages.size(), 1U);  // that of the save that failed
}

TEST_F(SharedFile, TellsOfTheClassByItsPositionNowAndOfWhatWasNotKept) {
  type(101, 1, 'A');
  othersSave(101, 1, 'E');
  disk.localData.clear();
  EXPECT_TRUE(takeInOthersWork());
  currentContest().classes.remove(0);
  newsMayBeTold();
  const auto news = takeNews();
  ASSERT_TRUE(news && news->merge.scores.size() == 1);
  EXPECT_EQ(news->merge.scores[0].classIndex, 0);
  EXPECT_FALSE(news->isKept);

  currentContest().settings.contestName = "Ours";
  Contest theirs = inFile();
  theirs.settings.contestName = "Theirs";
  put(writeContest(theirs));
  saveCurrent(window);
  EXPECT_EQ(takeNews().value().isKept, false);
}

TEST_F(SharedFile, IsLookedAtAgainOnlyWhileItsTimeMayHideAChange) {
  EXPECT_TRUE(looksAndReads());
  othersSave(102, 0, 'B');  // with the same size and time
  EXPECT_TRUE(takeInOthersWork());
  disk.clock += kTwoSeconds;
  disk.slowness = kTwoSeconds;
  EXPECT_TRUE(looksAndReads());
  disk.slowness = 0;
  EXPECT_TRUE(looksAndReads()) << "what changed while it was read";
  EXPECT_FALSE(looksAndReads());
  othersSave(102, 0, 'C');
  disk.calls = 0;
  disk.failingCall = 2;  // another program is just replacing it
  EXPECT_FALSE(takeInOthersWork());
  disk.failingCall = 0;
  EXPECT_EQ(letters(currentContest())[1], 'B');
  EXPECT_TRUE(takeInOthersWork());
  EXPECT_EQ(letters(currentContest())[1], 'C');
  EXPECT_EQ(copies(), 0U) << "nothing is unsaved";
}

// Each step with a power cut: unsaved work and that of others are both there again.
TEST_F(SharedFile, LosesNoUnsavedWorkToOthersSaves) {
  for (const bool hasLooked : {true, false}) {
    put(smallFile());
    start();
    type(101, 0, 'A');
    type(102, 0, 'E');
    othersSave(102, 0, 'B');
    if (hasLooked) {
      EXPECT_TRUE(takeInOthersWork());
    }
    disk.losePower(0);
    othersSave(103, 0, 'C');
    window.desktop = {};
    window.desktop.answers = {Answer::yes};
    start();
    ASSERT_EQ(window.desktop.messages.size(), 1U);
    EXPECT_NE(window.desktop.messages[0].text.find("2 scores typed"), std::string::npos);
    expectBothHold("AEC");
    EXPECT_EQ(copies(), 0U);
    // What the work was done on is known where it was kept; else a score typed again differs.
    const auto news = takeNews();
    EXPECT_EQ(news ? news->merge.scores.size() : 0U, hasLooked ? 0U : 2U);
    start();
    EXPECT_EQ(window.desktop.messages.size(), 1U) << "asked once";
  }

  // The setup, too, where a program on this machine has kept what the work was done on.
  type(101, 0, 'B');
  currentContest().teams["Avon"].members = {0, 0, 0};
  contestChanged();
  keepEarlierSave(disk, kPath, disk.files[kPath].content, false);
  othersSave(103, 0, 'D');
  disk.losePower(0);
  window.desktop.answers = {Answer::yes};
  start();
  expectBothHold("BED");
  EXPECT_TRUE(inFile().teams.contains("Avon"));
}

TEST_F(SharedFile, IsReplacedByNoOtherContest) {
  using Replaced = SharingNews::Replaced;
  const std::string another =
      replaced(replaced(smallFile(), "Market Steers", "Pen"), "\r\n\tNo", "\r\nHogs\tNo");
  for (const std::string& found : {std::string("no contest"), another, std::string()}) {
    type(101, 0, 'A');
    put(found);
    if (found.empty()) disk.files.erase(kPath);
    EXPECT_FALSE(takeInOthersWork());
    saveCurrent(window);
    EXPECT_EQ(letters(inFile())[0], 'A');
    const auto news = takeNews();
    ASSERT_TRUE(news) << found;
    EXPECT_EQ(news->replaced, found.empty()      ? Replaced::missingFile
                              : found == another ? Replaced::anotherContest
                                                 : Replaced::noContest);
    const auto newest = readEarlierSave(disk, earlierSaves(disk, kPath).at(0));
    EXPECT_EQ(newest == found, !found.empty());
  }
  // The name was chosen.
  disk.files["hogs.scv"] = {another, true, another};
  window.desktop.files = {"hogs.scv"};
  saveContestAs(window);
  EXPECT_NE(disk.files["hogs.scv"].content, another);
  EXPECT_FALSE(takeNews());
}

TEST_F(SharedFile, LosesNothingWhenItsNameIsChosenAgainOrAnotherOne) {
  type(101, 0, 'A');
  othersSave(102, 0, 'B');
  window.desktop.files = {"copy.scv", std::nullopt, "COPY.scv"};
  saveContestAs(window);
  EXPECT_EQ(letters(currentContest()), "AB ");
  saveContestAs(window);
  put(disk.files["copy.scv"].content);
  othersSave(103, 0, 'C');
  disk.files["COPY.scv"] = disk.files[kPath];
  saveContestAs(window);
  EXPECT_EQ(letters(currentContest()), "ABC");
}

// Without the lock, somebody who read the file before may replace it at any moment.
TEST_F(SharedFile, IsNotLostToASaveAtTheSameMoment) {
  enum class Moment { before, after, later };
  for (const Moment moment : {Moment::before, Moment::after, Moment::later}) {
    put(smallFile());
    start();
    type(101, 0, 'A');
    const auto replaceIt = [&] {
      put(smallFile());
      othersSave(102, 0, 'B');
    };
    disk.lockOutcome = FileOutcome::denied;
    disk.afterSave = replaceIt;
    if (moment == Moment::before) disk.beforeSave = replaceIt;
    if (moment == Moment::after) disk.othersSaves = 2;
    saveCurrent(window);
    if (moment == Moment::later) replaceIt();
    if (moment != Moment::later) expectBothHold("AB ");
    disk.lockOutcome = FileOutcome::done;
    saveCurrent(window);
    expectBothHold("AB ");
  }
}

TEST_F(SharedFile, IsLockedForFiveSecondsAtMostByAFileBesideIt) {
  auto other = disk.claim(kPath);
  disk.files[kPath + kClaimEnding];
  EXPECT_FALSE(SaveLock(disk, kPath).isHeld());
  EXPECT_GE(disk.pausedFor, 5000);
  EXPECT_LT(disk.pausedFor, 5100);
  other.hold.reset();
  disk.pausedFor = 0;
  EXPECT_TRUE(SaveLock(disk, kPath).isHeld());
  other = disk.claim(kPath);
  disk.files.erase(kPath + kClaimEnding);  // refused without a file: the folder takes none
  EXPECT_FALSE(SaveLock(disk, kPath).isHeld());
  EXPECT_LT(disk.pausedFor, 200);
  other.hold.reset();
  const SaveLock lock(disk, kPath);
  EXPECT_EQ(disk.claim(kPath).outcome, FileOutcome::denied);
}

}  // namespace

}  // namespace scorvane
