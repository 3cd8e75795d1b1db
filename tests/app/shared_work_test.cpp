// What others save to the open contest's file, and what its window shows of that.
#include "app/shared_work.h"

#include <gtest/gtest.h>

#include <variant>

#include "app/command_table.h"
#include "app/file_menu.h"
#include "model/contest_merge.h"
#include "reports/round_reports.h"
#include "reports/round_verification_ids.h"
#include "reports/verification_reports.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "storage/safe_save.h"
#include "tests/app/memory_main_window.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"

namespace scorvane {

namespace {

constexpr int kSave = 32773, kSetupContest = 32787, kRoundVerification = 32862, kLetters = 32846;
constexpr int kLookup = 32791, kCompare = 33021, kBringIn = 33022;
const std::string kPath = "fair.scv";

struct SharedWork : testing::Test {
  SharedWork() {
    disk.files[kPath] = {smallFile(), true, smallFile()};
    prepareContest();
    startKeepingWork(disk);
    openContestFile(window, kPath);
    window.log.clear();
  }
  ~SharedWork() override { stopKeepingWork(); }

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

  MemoryFiles disk;
  MemoryMainWindow window;
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
  window.operate = [&](MemoryDialog& dialog) {
    if (++dialogs == 1) {
      othersSave([](Contest& theirs) { theirs.classes.className[0] = "Pen Steers"; });
    } else {
      othersType(102, 'D');
    }
    dialog.choose(IDC_VERIFIED_ROUNDS, 0);
    dialog.click(kOkId);
  };
  runCommand(kRoundVerification, window);
  EXPECT_EQ(dialogs, 2);
  EXPECT_EQ(reportText(), roundVerificationReport(currentContest(), 0));
  EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, 'D');

  // When a dialog has closed without saving.
  window.operate = [&](MemoryDialog& dialog) {
    othersType(102, 'E');
    dialog.pressEscape();
  };
  runCommand(kLookup, window);
  EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, 'E');

  // When it was taken in by the save at the end of a dialog.
  window.operate = [&](MemoryDialog& dialog) {
    othersSave([](Contest& theirs) { theirs.settings.contestName = "Hill Fair"; });
    dialog.pressCloseBox();
  };
  runCommand(kLookup, window);
  EXPECT_NE(window.log.find("fair.scv - Hill Fair"), std::string::npos) << window.log;
  EXPECT_TRUE(window.desktop.messages.empty());
}

TEST_F(SharedWork, OfAnotherFileIsComparedWithWhatMustBeKnownOfIt) {
  const std::string odd = replaced(smallFile(), "C\t2,5,3", "D\t2,5,3");
  disk.files["odd.scv"] = {odd, true, odd};
  disk.files["torn.scv"] = {smallFile(), true, smallFile()};
  disk.hasOtherNames = true;
  disk.cutAtCall = disk.calls + 10;
  EXPECT_THROW(static_cast<void>(saveSafely(disk, "torn.scv", odd)), MemoryFiles::PowerCut);
  disk.cutAtCall = 0;
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
  window.operate = [&](MemoryDialog& dialog) {
    othersType(101, 'B');
    dialog.pressCloseBox();
    EXPECT_TRUE(dialog.desktop.messages.empty() && window.desktop.messages.empty());
  };
  runCommand(kSetupContest, window);
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
