// Work in the program's own dialogs: what is left of it when the power fails, and what others save
// to the open contest's file meanwhile.
#include <gtest/gtest.h>

#include <variant>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "app/shared_work.h"
#include "entry/entry_ids.h"
#include "model/contest_merge.h"
#include "reports/round_reports.h"
#include "reports/round_verification_ids.h"
#include "reports/verification_reports.h"
#include "session/data_folder.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "setup/setup_ids.h"
#include "storage/contest_loader.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"
#include "tests/app/memory_main_window.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

constexpr int kSave = 32773, kSetupContest = 32787, kSetupTeams = 32789, kLookup = 32791,
              kPlacings = 32822, kReasons = 32823, kQuestions = 32826, kLetters = 32846,
              kRoundVerification = 32862, kGenerateOrder = 32867, kCompare = 33021,
              kBringIn = 33022;
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

struct Work : testing::Test {
  ~Work() override { stopKeepingWork(); }

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

  MemoryFiles disk;
  MemoryMainWindow window;
};

struct KeptWork : Work {
  static void startGroup(MemoryDialog& dialog, int group) {
    dialog.choose(IDC_ENTRY_CLASS, 0);
    dialog.choose(IDC_ENTRY_GROUP, group);
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
      startGroup(dialog, 0);
      type(dialog, IDC_ENTRY_LETTER, "b", 0);
      type(dialog, IDC_ENTRY_LETTER, "c", 0);
      dialog.click(IDC_ENTRY_DONE);
    });
    run(kReasons, [&](MemoryDialog& dialog) {
      startGroup(dialog, 0);
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
      startGroup(dialog, 1);
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
    isCut = disk.isCutAt(call, [&] { aDay(); });
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
  disk.put(kPath, fair());
  start();
  run(kReasons, [&](MemoryDialog& dialog) {
    startGroup(dialog, 0);
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
  disk.put(kPath, fair());
  start();
  disk.readOnlyPath = disk.localData;
  window.log.clear();
  for (int time = 0; time < 2; ++time) {
    run(kReasons, [&](MemoryDialog& dialog) {
      dialog.desktop.answers = {Answer::yes};
      startGroup(dialog, 0);
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
    disk.files.clear();
    disk.put(kPath, fair());
    ASSERT_TRUE(disk.isCutAt(call, [&] { (void)saveSafely(disk, kPath, saved); }));
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

struct SharedWork : Work {
  SharedWork() {
    disk.put(kPath, smallFile());
    start();
    window.log.clear();
  }

  template <typename Edit>
  void othersSave(const Edit& edit) {
    Contest theirs = std::get<Contest>(readContest(disk.files[kPath].content));
    edit(theirs);
    recomputeAllPlacingScores(theirs);
    disk.files[kPath] = {writeContest(theirs), true};
  }
  void othersType(ContestantNumber number, char letter) {
    othersSave([&](Contest& theirs) { theirs.scores[number][0].letter = letter; });
  }
};

TEST_F(SharedWork, CountsInReportsAndDialogs) {
  othersSave([](Contest& theirs) {
    theirs.settings.contestName = "Town Fair";
    theirs.scores[102][0].letter = 'B';
  });
  const std::string before = verifyScoresReport(currentContest());
  runCommand(kLetters, window);
  EXPECT_NE(reportText(), before);
  EXPECT_NE(window.log.find("fair.scv - Town Fair"), std::string::npos) << window.log;

  // While the dialog of a report is open, and again with other classes than it has offered.
  int dialogs = 0;
  run(kRoundVerification, [&](MemoryDialog& dialog) {
    if (++dialogs == 1) {
      othersSave([](Contest& theirs) { theirs.classes.className[0] = "Pen Steers"; });
    } else {
      othersType(102, 'D');
    }
    dialog.choose(IDC_VERIFIED_ROUNDS, 0);
    dialog.click(kOkId);
  });
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(reportText(), roundVerificationReport(currentContest(), 0));
  EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, 'D');

  // When a dialog has closed without saving.
  run(kLookup, [&](MemoryDialog& dialog) {
    othersType(102, 'E');
    dialog.pressEscape();
  });
  EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, 'E');

  // When it was taken in by the save at the end of a dialog.
  run(kLookup, [&](MemoryDialog& dialog) {
    othersSave([](Contest& theirs) { theirs.settings.contestName = "Hill Fair"; });
    dialog.pressCloseBox();
  });
  EXPECT_NE(window.log.find("fair.scv - Hill Fair"), std::string::npos) << window.log;
  EXPECT_TRUE(window.desktop.messages.empty());
}

TEST_F(SharedWork, OfAnotherFileIsComparedWithWhatMustBeKnownOfIt) {
  const std::string odd = replaced(smallFile(), "C\t2,5,3", "D\t2,5,3");
  disk.put("odd.scv", odd);
  disk.put("torn.scv", smallFile());
  disk.hasOtherNames = true;
  EXPECT_TRUE(disk.isCutAt(10, [&] { EXPECT_FALSE(saveSafely(disk, "torn.scv", odd)); }));
  for (const int id : {kCompare, kBringIn}) {
    for (const char* path : {"odd.scv", "torn.scv"}) {
      window.log.clear();
      window.desktop.files = {path};
      window.desktop.answers = {Answer::ok, Answer::ok};
      runCommand(id, window);
      EXPECT_NE(window.log.find("cuts of these classes: 1."), std::string::npos) << window.log;
      EXPECT_EQ(window.log.find("left unfinished") != std::string::npos, path[0] == 't');
    }
  }
}

TEST_F(SharedWork, OfAnotherFileIsBroughtInOnceTheCountsWereAgreedTo) {
  othersSave([](Contest& other) {
    other.scores[102][0] = {'A', 0, 20, 9};
    other.classes.className[1] = "Hogs";
  });
  std::swap(disk.files["other.scv"], disk.files[kPath]);
  disk.files[kPath].content = smallFile();
  for (const Answer answer : {Answer::cancel, Answer::ok}) {
    const bool agrees = answer == Answer::ok;
    window.log.clear();
    window.desktop.files = {"other.scv"};
    window.desktop.answers = {answer};
    runCommand(kBringIn, window);
    EXPECT_NE(window.log.find("  Warning: 1 score that is missing here will be brought in from "
                              "other.scv.  1 score differs and stays as it is.  Left out: 0 "
                              "contestants and 2 classes that only one of the files has.  Left "
                              "out: 1 score of classes without such scores.  Continue? (Enter c"),
              std::string::npos)
        << window.log;
    EXPECT_EQ(disk.files[kPath].content != smallFile(), agrees);
    EXPECT_EQ(scoreRecord(currentContest(), 102, 0).reasonsScore, agrees ? 20 : 0);
    EXPECT_EQ(reportText().starts_with("Scores brought in"), agrees);
  }
  for (const int id : {kCompare, kBringIn}) {
    window.log.clear();
    window.desktop.files = {kPath};
    runCommand(id, window);
    EXPECT_NE(window.log.find("Error: This is the file of the open contest."), std::string::npos);
  }
}

TEST_F(SharedWork, WithOtherNumbersIsToldOfBeforeCardsAreTyped) {
  const Contest base = currentContest();
  const auto withTeam = [&base](const char* name) {
    Contest contest = base;
    for (auto& number : contest.teams[name].members = {104, 105, 106}) {
      contest.contestantNames[number] = name;
    }
    return contest;
  };
  currentContest() = withTeam("Avon");
  runCommand(kSave, window);
  disk.files[kPath].content =
      writeContest(mergeContests(base, withTeam("Birch"), withTeam("Avon")).contest);
  window.log.clear();
  runCommand(kLookup, window);
  EXPECT_NE(window.log.find("3 contestants have other numbers now."), std::string::npos)
      << window.log;
  EXPECT_NE(reportText().find("104 to 106 are now 107 to 109"), std::string::npos);
  EXPECT_EQ(window.log.find("dialog:"), std::string::npos) << window.log;
  runCommand(kLookup, window);
  EXPECT_NE(window.log.find("dialog:"), std::string::npos) << window.log;
}

TEST_F(SharedWork, IsToldOfWhenTheDialogHasClosed) {
  currentContest().scores[101][0].letter = 'A';
  run(kSetupContest, [&](MemoryDialog& dialog) {
    othersType(101, 'B');
    dialog.pressCloseBox();
    EXPECT_TRUE(dialog.desktop.messages.empty() && window.desktop.messages.empty());
  });
  ASSERT_EQ(window.desktop.messages.size(), 1U);
  const Message& box = window.desktop.messages[0];
  EXPECT_EQ(box.caption, "Information");
  EXPECT_NE(box.text.find("\r\n1 value differs; yours was saved.\r\n\r\nThe report lists"),
            std::string::npos)
      << box.text;
  EXPECT_EQ(reportText().find("Two sides of the contest were joined"), 0U);
  EXPECT_NE(reportText().find("101 Ann Lee"), std::string::npos);

  disk.files.erase(kPath);
  runCommand(kSave, window);
  EXPECT_NE(window.desktop.messages.at(1).text.find("was gone"), std::string::npos);
  disk.files[kPath].content = "no contest";
  runCommand(kSave, window);
  EXPECT_NE(window.desktop.messages.at(2).text.find("fair.scv\r\nWhat it held is one of the ear"),
            std::string::npos);
  runCommand(kSave, window);
  EXPECT_EQ(window.desktop.messages.size(), 3U);
}

}  // namespace

}  // namespace scorvane
