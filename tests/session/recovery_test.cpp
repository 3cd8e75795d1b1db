#include "session/recovery.h"

#include <gtest/gtest.h>

#include "model/new_contest.h"
#include "session/contest_file.h"
#include "session/data_folder.h"
#include "session/earlier_saves.h"
#include "session/open_contest.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/ui/memory_dialog.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

const std::string kPath = "county.scv";

struct Recovery : testing::Test {
  Recovery() { disk.put(kPath, smallFile(), 7); }
  ~Recovery() override { stopKeepingWork(); }

  /// The program is started and a contest opened; what is asked gets one answer.
  bool start(const std::string& path = kPath, Answer answer = Answer::yes) {
    stopKeepingWork();
    startNewContest();
    window.desktop = {};
    window.desktop.answers = {answer};
    startKeepingWork(disk);
    return path.empty() || openContest(window, path);
  }
  void type(ContestantNumber number, std::int32_t classIndex, ScoreRecord record,
            TypedFields fields = {}) {
    const JudgingClasses& classes = currentContest().classes;
    record.placingScore =
        placingScore(record.letter, classes.official(classIndex), classes.cuts(classIndex));
    currentContest().scores[number][classIndex] = record;
    scoreStored({{number, classIndex, record}, fields});
    shown.push_back({{number, classIndex, record}});
  }
  void addTeam(const std::string& name) {
    currentContest().teams[name].members = {0, 0, 0};
    contestChanged();
    teams.push_back(name);
  }
  std::vector<std::string> copies() {
    std::vector<std::string> names;
    for (const ListedFile& file : disk.list(recoveryFolder(disk))) {
      if (file.name.ends_with(".scv")) names.push_back(file.name);
    }
    return names;
  }
  std::string asked() {
    return window.desktop.messages.empty() ? "" : window.desktop.messages[0].text;
  }
  void expectEverythingShown() {
    ASSERT_EQ(writeContest(currentContest()), disk.files[kPath].content);
    std::map<std::pair<int, int>, ScoreRecord> last;
    for (const TypedScore& s : shown) last[{s.number, s.classIndex}] = s.record;
    for (const auto& [at, record] : last) {
      ASSERT_TRUE(scoreRecord(currentContest(), at.first, at.second) == record) << at.first;
    }
    for (const std::string& name : teams) ASSERT_TRUE(currentContest().teams.contains(name));
  }
  void anAfternoon() {
    start();
    type(101, 0, {'A', 40, 44, 0});
    type(103, 1, {'B', 0, 0, 9});
    type(103, 1, {'D', 0, 0, 10});
    saveCurrent(window);
    type(102, 0, {'X', 20, 3, 0});
    addTeam("Avon");
    type(102, 1, {'Z', 0, 0, 50});
    saveCurrent(window);
    type(103, 0, {'C', 50, 0, 0});
    addTeam("Brook");
  }

  MemoryFiles disk;
  MemoryWindow window;
  std::vector<TypedScore> shown;
  std::vector<std::string> teams;
};

TEST_F(Recovery, IsItselfSafeFromPowerCuts) {
  anAfternoon();
  stopKeepingWork();
  const auto left = disk.files;
  bool isCut = true;
  for (int call = 1; isCut; ++call) {
    disk.files = left;
    disk.losePower(0);
    isCut = disk.isCutAt(call, [&] { start(); });
    stopKeepingWork();
    disk.losePower(0);
    ASSERT_TRUE(start());
    ASSERT_NO_FATAL_FAILURE(expectEverythingShown());
  }
}

TEST_F(Recovery, AsksAndReportsWhatCameBack) {
  start();
  EXPECT_EQ(asked(), "");
  std::tm afternoon{0, 31, 14, 18, 6, 126, 0, 0, -1, 0, nullptr};
  disk.clock = std::mktime(&afternoon) * kTicksPerSecond;
  type(102, 1, {'Z', 0, 0, 50});
  type(101, 0, {'A', 40, 44, 0});
  type(103, 0, {}, {.reasons = true});
  type(101, 1, {'Z', 0, 0, 38}, {.letter = true});
  type(101, 1, {'Z', 0, 0, 38}, {.questions = true});
  disk.losePower(0);
  const std::string copy = copyPath(disk, contestKey(disk, kPath), 1);
  const MemoryFiles::File left = disk.files.at(copy);
  start();
  const Message question = window.desktop.messages.at(0);
  EXPECT_EQ(question.text,
            "Scorvane was ended before its last work on this contest was saved.\r\n\r\n"
            "4 scores typed until 2:31 PM were kept.\r\n\r\nWould you like to bring them back?");
  EXPECT_EQ(question.caption, "Information");
  EXPECT_EQ(question.buttons, Buttons::yesNo);
  EXPECT_EQ(question.defaultAnswer, Answer::yes);
  EXPECT_EQ(reportText().substr(reportText().find("Number")),
            "Number Name                 Class                    Letter Reasons Questions\n"
            "-----------------------------------------------------------------------------\n"
            "   102 Ben Ode               2.                        Z        ---        50\n"
            "   101 Ann Lee               1. Market Steers          A                  ---\n"
            "   103                       1. Market Steers                     0       ---\n"
            "   101 Ann Lee               2.                        Z        ---        38\n");
  expectEverythingShown();
  EXPECT_EQ(copies().size(), 0U);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 1U);  // what the save replaced
  disk.files[copy] = left;                          // as if the power had failed before it went
  start();
  EXPECT_EQ(asked(), "");
  EXPECT_EQ(reportText(), kWelcomeText);
  EXPECT_EQ(copies().size(), 0U);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 1U);

  // A change of cuts gives another score, but nobody typed it.
  currentContest().scores[101][0].placingScore = 30;
  contestChanged();
  disk.losePower(0);
  start(kPath, Answer::no);
  EXPECT_NE(asked().find("\nChanges of the setup until"), std::string::npos) << asked();

  // Setup can make another class of the one that a score was typed for.
  type(103, 1, {'B', 0, 0, 9});
  currentContest().scores.find(103)->operator[](1) = {};
  addTeam("Avon");
  disk.losePower(0);
  disk.clock += 48 * 3600 * kTicksPerSecond;
  disk.listsLate = true;  // the folder's entry was not brought up to date
  start(kPath, Answer::no);
  EXPECT_NE(asked().find("\nChanges of the setup until"), std::string::npos) << asked();
  EXPECT_NE(asked().find("until 2:31 PM on July 18, 2026 were"), std::string::npos) << asked();
  EXPECT_FALSE(currentContest().teams.contains("Avon"));
  EXPECT_EQ(copies().size(), 0U);
  const auto rests = earlierSaves(disk, kPath);
  ASSERT_TRUE(rests.at(0).isUnsavedRest);
  EXPECT_NE(readEarlierSave(disk, rests[0])->find("Avon"), std::string::npos);
}

TEST_F(Recovery, IsOfferedForTheVeryFileItGrewFromOnly) {
  const auto typeAndCut = [&] {
    start();
    type(101, 0, {'A', 40, 44, 0});
    disk.losePower(0);
    stopKeepingWork();
  };
  typeAndCut();
  const auto left = disk.files;
  const auto expectRestUnasked = [&](const std::string& why) {
    EXPECT_TRUE(start());
    EXPECT_EQ(asked(), "") << why;
    EXPECT_EQ(copies().size(), 0U) << why;
    EXPECT_EQ(earlierSaves(disk, kPath).size(), 1U) << why;
    disk.files = left;
  };
  disk.files[kPath].changed = 7 + 2 * kTicksPerSecond + 1;
  expectRestUnasked("another time of change");
  disk.files[kPath].content =
      replaced(replaced(smallFile(), "Market Steers", "Pen"), "\r\n\tNo", "\r\nHogs\tNo");
  expectRestUnasked("another contest");

  disk.files[kPath].changed = 7 + 2 * kTicksPerSecond;  // as a memory stick rounds it
  start();
  EXPECT_NE(asked(), "");

  // What two programs left is offered in one question, and all is kept.
  for (const Answer answer : {Answer::yes, Answer::no}) {
    disk.files = left;
    const auto busy = disk.claim(copyPath(disk, contestKey(disk, kPath), 1)).hold;
    start();
    disk.clock += kTicksPerSecond;
    type(102, 0, {'B', 30, 0, 0});
    disk.losePower(0);
    start(kPath, answer);
    EXPECT_EQ(window.desktop.messages.size(), 1U);
    EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, answer == Answer::yes ? 'B' : 'X');
    EXPECT_EQ(reportText() != kWelcomeText, answer == Answer::yes);
    EXPECT_EQ(copies().size(), 0U);
    const auto saves = earlierSaves(disk, kPath);
    const bool isBack = answer == Answer::yes;
    EXPECT_EQ(scoreRecord(currentContest(), 101, 0).letter, isBack ? 'A' : 'C');
    ASSERT_EQ(saves.size(), isBack ? 3U : 2U);
    EXPECT_NE(readEarlierSave(disk, saves[isBack ? 1 : 0])->find("101\t0\tA\t45\t44"),
              std::string::npos);
  }
  disk.files = left;

  // Renamed or moved it is the very file; a copy of a file that is still there is another one.
  disk.files["moved.scv"] = disk.files[kPath];
  start("moved.scv");
  EXPECT_EQ(asked(), "");
  disk.files.erase(kPath);
  start("moved.scv");
  EXPECT_NE(asked(), "");
  EXPECT_EQ(scoreRecord(currentContest(), 101, 0).reasonsScore, 44);

  // A damaged one is kept as it is, too, and one that finds no other room is not written over.
  disk.files = left;
  const std::string copy = copyPath(disk, contestKey(disk, kPath), 1);
  disk.files[copy].content[200] = '!';
  disk.readOnlyPath = earlierSavesFolder(disk);
  start(kPath, Answer::no);
  EXPECT_NE(asked(), "");
  type(102, 1, {'Z', 0, 0, 50});
  EXPECT_EQ(copies().size(), 2U);
  disk.readOnlyPath.clear();
  disk.files.erase(copyPath(disk, contestKey(disk, kPath), 2));
  start();
  EXPECT_EQ(scoreRecord(currentContest(), 101, 0).reasonsScore, 44);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 2U);
  EXPECT_NE(readEarlierSave(disk, earlierSaves(disk, kPath)[1])->find('!'), std::string::npos);

  disk.files = left;
  disk.files[copy].content[200] = '!';
  start(kPath, Answer::no);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 2U);
  EXPECT_NE(readEarlierSave(disk, earlierSaves(disk, kPath)[1])->find('!'), std::string::npos);

  // While another program works with the copy, this one uses its own.
  disk.files = left;
  {
    const auto claim = disk.claim(copy);
    start();
    EXPECT_EQ(asked(), "");
    type(102, 1, {'Z', 0, 0, 50});
    EXPECT_EQ(copies().size(), 2U);
  }
  disk.losePower(0);
  start();
  EXPECT_NE(asked(), "");
  start();
  EXPECT_EQ(copies().size(), 0U);
  EXPECT_EQ(earlierSaves(disk, kPath).size(), 3U);
}

TEST_F(Recovery, KeepsWhatAnOrderlyEndLeavesUnsaved) {
  start();
  type(101, 0, {'A', 40, 44, 0});
  startNewContest();
  EXPECT_EQ(copies().size(), 0U);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 1U);
  ASSERT_TRUE(openContest(window, kPath));
  type(103, 1, {'B', 0, 0, 9});
  ASSERT_TRUE(openContest(window, kPath));
  EXPECT_EQ(asked(), "");
  EXPECT_EQ(copies().size(), 0U);
  ASSERT_EQ(earlierSaves(disk, kPath).size(), 2U);

  // What could not be saved is offered.
  type(101, 0, {'A', 40, 44, 0});
  disk.readOnlyPath = kPath;
  saveCurrent(window);
  EXPECT_NE(asked().find("did NOT save"), std::string::npos);
  endKeepingWork();
  disk.readOnlyPath.clear();
  start();
  EXPECT_NE(asked().find("1 score typed until"), std::string::npos);
  EXPECT_NE(asked().find("M was kept."), std::string::npos) << asked();

  // The last card, too, for which the disk had no room as it was typed.
  type(101, 0, {'B', 40, 44, 0});
  const std::size_t room = disk.room;
  disk.fill(5);
  type(102, 0, {'C', 30, 0, 0});
  disk.readOnlyPath = kPath;
  saveCurrent(window);
  disk.readOnlyPath.clear();
  disk.room = room;
  endKeepingWork();
  start();
  EXPECT_NE(asked().find("2 scores typed until"), std::string::npos);
  EXPECT_EQ(scoreRecord(currentContest(), 102, 0).letter, 'C');

  // A cancelled Save As leaves a contest without a file, whose work was done on one.
  type(101, 0, {'D', 40, 44, 0});
  window.desktop.files = {std::nullopt};
  saveContestAs(window);
  const std::size_t before = earlierSaves(disk, kPath).size();
  endKeepingWork();
  start();
  EXPECT_EQ(asked(), "");
  ASSERT_EQ(earlierSaves(disk, kPath).size(), before + 1);
  EXPECT_TRUE(earlierSaves(disk, kPath)[0].isUnsavedRest);

  // Nothing is left of a contest that is as it was, and a contest without a file is kept, too.
  addTeam("Avon");
  disk.calls = 0;
  contestChanged();
  EXPECT_EQ(disk.calls, 0);
  currentContest().teams.erase("Avon");
  contestChanged();
  EXPECT_EQ(copies().size(), 0U);
  disk.put(recoveryFolder(disk) + "/other-1234.scv", smallFile(), 7);
  disk.calls = 0;
  start("");
  EXPECT_LT(disk.calls, 8) << "copies of contests with a file are not read before these are opened";
  disk.files.erase(recoveryFolder(disk) + "/other-1234.scv");
  stopKeepingWork();
  startNewContest();
  currentContest().settings.contestDate = "yesterday, when the program was started";
  startKeepingWork(disk);
  startNewContest();
  EXPECT_TRUE(earlierSaves(disk, "").empty());
  currentContest().teams["Brook"];
  window.desktop.files = {std::nullopt};
  saveContestAs(window);  // and thinks better of it
  disk.losePower(0);
  const std::string spares[] = {recoveryFolder(disk) + "/old.tmp",
                                recoveryFolder(disk) + "/new.tmp"};
  disk.put(spares[0], "", 7);
  disk.put(spares[1], "");
  start("");
  EXPECT_FALSE(disk.files.contains(spares[0]));
  EXPECT_TRUE(disk.files.contains(spares[1])) << "another program may be writing it";
  EXPECT_EQ(copies().size(), 0U);
  ASSERT_EQ(earlierSaves(disk, "").size(), 1U);
  EXPECT_NE(readEarlierSave(disk, earlierSaves(disk, "")[0])->find("Brook"), std::string::npos);
}

TEST_F(Recovery, CostsOneLineAScoreAndSaysOnceWhenItCannotBeKept) {
  start();
  type(101, 0, {'A', 40, 44, 0});
  type(102, 0, {'A', 40, 44, 0});
  disk.calls = 0;
  type(102, 1, {'Z', 0, 0, 50});
  EXPECT_EQ(disk.calls, 2);  // a write and a flush

  // A line cut off by a full disk is not written on to; later everything is there again.
  const std::size_t room = disk.room;
  disk.fill(5);
  type(103, 0, {'B', 1, 2, 0});
  sayIfWorkIsNotKept(window);
  ASSERT_EQ(window.desktop.messages.size(), 1U);
  EXPECT_EQ(window.desktop.messages[0].caption, "Warning");
  sayIfWorkIsNotKept(window);
  EXPECT_EQ(window.desktop.messages.size(), 1U);
  disk.room = room;
  disk.calls = 0;
  type(103, 1, {'E', 1, 0, 2});
  EXPECT_EQ(disk.calls, 0) << "a disk that failed just now is left in peace";
  disk.clock += 11 * kTicksPerSecond;
  type(101, 1, {'C', 1, 0, 2});
  disk.losePower(0);
  start();
  EXPECT_NE(asked().find("6 scores typed"), std::string::npos);
  expectEverythingShown();
}

}  // namespace

}  // namespace scorvane
