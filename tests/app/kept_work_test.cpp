// Work in the program's own dialogs, and what is left of it when the power fails.
#include <gtest/gtest.h>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "entry/entry_ids.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "setup/setup_ids.h"
#include "storage/contest_loader.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"
#include "tests/app/memory_main_window.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

constexpr int kSetupTeams = 32789, kLookup = 32791, kPlacings = 32822, kReasons = 32823,
              kQuestions = 32826, kGenerateOrder = 32867;
const std::string kPath = "fair.scv";

std::string fair() {
  ContestBuilder builder;
  builder.contest.settings.numGroups = 2;
  builder.addClass({.name = "Steers", .questions = true, .official = 'A', .cuts = {2, 3, 4}});
  builder.addClass({.name = "Ewes", .reasons = true, .official = 'X', .cuts = {5, 5, 5}});
  builder.team("Avon", "", {"Ann", "Bob", "Cay", "Dee"});
  ReasonsOrder& order = builder.contest.reasonsOrder;
  order.reset(4, 1);
  order.setCells({{{0, 0}, 103}, {{0, 1}, 101}});
  builder.contest.reasonsPlace[103] = {0, 0};
  builder.contest.reasonsPlace[101] = {0, 1};
  return writeContest(builder.contest);
}

struct KeptWork : testing::Test {
  ~KeptWork() override { stopKeepingWork(); }

  void start() {
    window.log.clear();
    window.onScreen.clear();
    window.desktop = {};
    window.desktop.answers = {Answer::yes};
    stopKeepingWork();
    prepareContest();
    startKeepingWork(disk);
    openContestFile(window, kPath);
  }
  void run(int command, const std::function<void(MemoryDialog&)>& operate) {
    window.operate = operate;
    runCommand(command, window);
  }
  void type(MemoryDialog& dialog, ControlId field, const char* score, std::int32_t classIndex) {
    dialog.fill(field, score);
    dialog.pressEnter();
    const int number = std::stoi(dialog.text(IDC_LAST_CONTESTANT));
    shown[{number, classIndex}] = scoreRecord(currentContest(), number, classIndex);
  }
  // Cards in all four dialogs; only the first is left by Done.
  void aDay() {
    start();
    run(kPlacings, [&](MemoryDialog& dialog) {
      dialog.choose(IDC_ENTRY_CLASS, 0);
      dialog.choose(IDC_ENTRY_GROUP, 0);
      type(dialog, IDC_ENTRY_LETTER, "b", 0);
      type(dialog, IDC_ENTRY_LETTER, "c", 0);
      dialog.click(IDC_ENTRY_DONE);
    });
    run(kReasons, [&](MemoryDialog& dialog) {
      dialog.choose(IDC_ENTRY_CLASS, 0);
      dialog.choose(IDC_ENTRY_GROUP, 0);
      type(dialog, IDC_ENTRY_REASONS, "44", 1);
      type(dialog, IDC_ENTRY_REASONS, "31", 1);
      dialog.pressEscape();
    });
    run(kSetupTeams, [&](MemoryDialog& dialog) {
      dialog.fill(IDC_TEAM_NAME, "Brook");
      dialog.click(IDC_ADD_TEAM);
      teamIsShown = true;
      dialog.pressCloseBox();
    });
    run(kQuestions, [&](MemoryDialog& dialog) {
      dialog.choose(IDC_ENTRY_CLASS, 0);
      dialog.choose(IDC_ENTRY_GROUP, 1);
      type(dialog, IDC_ENTRY_QUESTIONS, "50", 0);
      dialog.pressEscape();
    });
    run(kLookup, [&](MemoryDialog& dialog) {
      dialog.choose(IDC_ENTRY_CLASS, 1);
      dialog.fill(IDC_LOOKUP_CONTESTANT, "103");
      dialog.fill(IDC_ENTRY_REASONS, "45");
      type(dialog, IDC_ENTRY_LETTER, "x", 1);
      dialog.pressEscape();
    });
  }
  // A score that was being stored as the power failed may be there, too.
  void expectEverythingShown(const Contest& typed) {
    for (const auto& [at, record] : shown) {
      const ScoreRecord& found = scoreRecord(currentContest(), at.first, at.second);
      ASSERT_TRUE(found == record || found == scoreRecord(typed, at.first, at.second)) << at.first;
    }
    ASSERT_TRUE(!teamIsShown || currentContest().teams.contains("Brook"));
    ASSERT_EQ(writeContest(currentContest()), disk.files[kPath].content);
    for (const ListedFile& file : disk.list(recoveryFolder(disk))) {
      ASSERT_FALSE(file.name.ends_with(".scv")) << file.name;
    }
  }

  MemoryFiles disk;
  MemoryMainWindow window;
  std::map<std::pair<ContestantNumber, std::int32_t>, ScoreRecord> shown;
  bool teamIsShown = false;
};

// The power fails at the first operation of the disk, the second, and so on; of what was not
// flushed the first byte is there, the first two, and so on.
TEST_F(KeptWork, IsThereAsFarAsItWasShownWhereverThePowerFailed) {
  const MemoryFiles::File untouched = {fair(), true, fair(), 7};
  bool isCut = true;
  int broughtBack = 0;
  for (int call = 1; isCut; ++call) {
    disk.files = {{kPath, untouched}};
    shown.clear();
    teamIsShown = false;
    disk.calls = 0;
    disk.cutAtCall = call;
    isCut = false;
    try {
      aDay();
    } catch (const MemoryFiles::PowerCut&) {
      isCut = true;
    }
    stopKeepingWork();
    const Contest typed = currentContest();
    const auto left = disk.files;
    for (std::size_t torn = 0; disk.losePower(torn); ++torn) {
      SCOPED_TRACE(std::to_string(call) + ", torn at " + std::to_string(torn));
      start();
      broughtBack += window.log.find("shown: Scores Brought Back") != std::string::npos ? 1 : 0;
      ASSERT_NO_FATAL_FAILURE(expectEverythingShown(typed));
      disk.files = left;
    }
  }
  EXPECT_EQ(shown.size(), 5U);
  EXPECT_GT(broughtBack, 1000);
}

TEST_F(KeptWork, HasTheReasonsOrderThatCouldNotBeSaved) {
  disk.files[kPath] = {fair(), true, fair(), 7};
  start();
  run(kReasons, [&](MemoryDialog& dialog) {
    dialog.choose(IDC_ENTRY_CLASS, 0);
    dialog.choose(IDC_ENTRY_GROUP, 0);
    type(dialog, IDC_ENTRY_REASONS, "44", 1);
    dialog.pressEscape();
  });
  disk.readOnlyPath = kPath;
  window.desktop.answers = {Answer::ok, Answer::ok};
  runCommand(kGenerateOrder, window);
  const auto order = currentContest().reasonsPlace;
  EXPECT_EQ(order.size(), 4U);
  disk.readOnlyPath.clear();
  disk.losePower(0);
  start();
  EXPECT_TRUE(currentContest().reasonsPlace == order);
  expectEverythingShown(currentContest());
}

TEST_F(KeptWork, IsSaidToBeUnsafeOnceADialogHasClosed) {
  disk.files[kPath] = {fair(), true};
  start();
  disk.readOnlyPath = disk.localData;
  window.log.clear();
  for (int time = 0; time < 2; ++time) {
    run(kReasons, [&](MemoryDialog& dialog) {
      dialog.desktop.answers = {Answer::yes};
      dialog.choose(IDC_ENTRY_CLASS, 0);
      dialog.choose(IDC_ENTRY_GROUP, 0);
      type(dialog, IDC_ENTRY_REASONS, "44", 1);
      EXPECT_EQ(window.log.find("Warning"), std::string::npos) << "not while cards are typed";
      dialog.pressEscape();
    });
    const std::size_t said = window.log.find("Warning: Scorvane could not keep a recovery copy");
    EXPECT_EQ(said != std::string::npos, time == 0);
    window.log.clear();
  }
  EXPECT_EQ(scoreRecord(currentContest(), 103, 1).reasonsScore, 44);
}

TEST_F(KeptWork, OfASaveThatWasCutOffIsFoundInItsCopyAndSaved) {
  const std::string saved = replaced(fair(), "Bob", "Bobby");
  disk.hasOtherNames = true;
  std::string copy;
  for (int call = 1; copy.empty(); ++call) {
    disk.files = {{kPath, {fair(), true, fair()}}};
    disk.calls = 0;
    disk.cutAtCall = call;
    ASSERT_THROW((void)saveSafely(disk, kPath, saved), MemoryFiles::PowerCut);
    disk.cutAtCall = 0;
    copy = std::get<LoadedContest>(loadContestFile(disk, kPath)).copy;
  }
  for (const bool isReadOnly : {true, false}) {
    disk.readOnlyPath = isReadOnly ? kPath : "";
    disk.hasOtherNames = isReadOnly;  // a save in place clears such copies away by itself
    start();
    EXPECT_EQ(writeContest(currentContest()), saved);
    EXPECT_NE(window.log.find(copy), std::string::npos);
    EXPECT_EQ(window.log.find("It could NOT be saved") != std::string::npos, isReadOnly);
    EXPECT_EQ(disk.files[kPath].content == saved, !isReadOnly);
    EXPECT_EQ(disk.files.contains(copy), isReadOnly);
  }
}

}  // namespace

}  // namespace scorvane
