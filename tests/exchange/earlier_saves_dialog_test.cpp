// What the sessions beside this file speak of, and what becomes of the files.
#include "exchange/earlier_saves_dialog.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <ctime>

#include "app/tools_menu.h"
#include "exchange/import_roster_dialog.h"
#include "model/new_contest.h"
#include "model/roster.h"
#include "session/contest_file.h"
#include "session/open_contest.h"
#include "session/recovery.h"
#include "storage/contest_writer.h"
#include "tests/app/memory_main_window.h"
#include "tests/storage/memory_files.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "tests/ui/memory_dialog.h"
#include "tests/ui/session.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

constexpr const char* kFile = "fair.scv";
constexpr std::int64_t kHalfPastTwo = 1784385060LL;  // July 18, 2026, 2:31 PM (UTC)

// A day's work, from the morning on: teams, the cards of two groups, a correction, a removed team.
std::vector<Contest> daysWork() {
  ContestBuilder builder;
  builder.members(2, 2, 2).addClass({.name = "Steers"}).addClass({.name = "Ewes", .official = 'B'});
  builder.team("Elm", "Mr. Oak", {"Ann", "Bob"}).team("Coyote", "", {"Cy", ""});
  std::vector<Contest> states = {builder.contest};
  states.push_back(builder.placings(101, "AB").placings(102, "C ").contest);
  builder.contest.classes.officialLetter[1] = 'X';
  recomputeAllPlacingScores(builder.contest);
  states.push_back(builder.contest);
  removeTeam(builder.contest, "Coyote");
  states.push_back(builder.contest);
  return states;
}

class Disk {
 public:
  Disk() {
    ::setenv("TZ", "UTC0", 1);
    ::tzset();
    startKeepingWork(files);
  }
  Disk(const Disk&) = delete;
  Disk& operator=(const Disk&) = delete;
  ~Disk() {
    stopKeepingWork();
    currentFileName().clear();
    currentContest() = Contest{};
  }

  void keep(const std::string& path, const Contest& contest, std::int64_t minutes, bool isRest) {
    keepEarlierSave(files, path, writeContest(contest), isRest,
                    (kHalfPastTwo + 60 * minutes) * kTicksPerSecond);
  }
  /// The day's last state is open and saved; a card typed at 3:16 was not, and one save is damaged.
  void playDay() {
    const std::vector<Contest> states = daysWork();
    keep(kFile, states[0], -8 * 60, false);
    keep(kFile, Contest{}, -100, false);
    std::string& damaged = files.files.at(saves(kFile).front().path).content;
    damaged.assign(damaged.size(), '?');
    keep(kFile, states[1], 0, false);
    Contest rest = states[2];
    rest.scores[103][0].letter = 'D';
    keep(kFile, rest, 45, true);
    keep(kFile, states[2], 50, false);
    files.clock = (kHalfPastTwo + 55 * 60) * kTicksPerSecond;
    files.files[kFile] = {writeContest(states.back()), true, "", files.clock};
    currentContest() = newContest();
    MemoryWindow window;
    ASSERT_TRUE(openContest(window, kFile));
  }
  std::vector<EarlierSave> saves(const std::string& path) { return earlierSaves(files, path); }

  MemoryFiles files;
};

std::optional<Disk> disk;

const SessionWorld kWorld = {
    {{"Earlier Saves",
      [] { return std::make_unique<EarlierSavesDialog>(disk->saves(currentFileName())); }},
     {"Import Roster", [] { return std::make_unique<ImportRosterDialog>(); }}},
    {{"a day",
      [] {
        disk.emplace();
        disk->playDay();
        return currentContest();
      }},
     {"what it is now",
      [] {
        currentFileName() = kFile;
        return currentContest();
      }},
     {"two unsaved contests",
      [] {
        disk.emplace();
        Contest rest = daysWork()[1];
        rest.settings.contestDate = todaysDate();
        disk->keep("", rest, -60, true);
        rest.settings.contestName = "Fall Roundup";
        disk->keep("", rest, 0, true);
        return newContest();
      }}},
    {{"a card", [](Contest& c) { c.scores[101][0].letter = 'T'; }},
     {"a sheet on the disk",
      [](Contest&) {
        disk->files.files["sheet.csv"].content =
            "Club,Name\rYew,Dee\nYew,\xC5\x81ukasz\r\nYew,Fay\r\n" + std::string(1, '\0');
      }},
     {"its saves are gone",
      [](Contest&) {
        std::erase_if(disk->files.files, [](const auto& file) { return file.first != kFile; });
      }},
     {"a full disk", [](Contest&) { disk->files.fill(); }}},
    [] { disk.reset(); }};

// A card of the open contest that was typed and not saved comes back with the rest.
TEST(EarlierSaves, GoingBackKeepsTheFileAndWhatWasNotSaved) {
  Disk day;
  day.playDay();
  const std::string file = day.files.files[kFile].content;
  currentContest().scores[101][1].letter = 'T';
  const std::string typed = writeContest(currentContest());
  EarlierSavesDialog behaviour(day.saves(kFile));
  MemoryDialog dialog(IDD_EARLIER_SAVES, behaviour);
  dialog.desktop.answers = {Answer::ok};
  dialog.choose(IDC_SAVE_TIMES, 4);
  dialog.click(IDC_GO_BACK);
  EXPECT_EQ(day.files.files[kFile].content, writeContest(daysWork()[0]));
  const auto saves = day.saves(kFile);
  ASSERT_EQ(saves.size(), 7U);
  EXPECT_EQ(readEarlierSave(day.files, saves[0]), file);
  EXPECT_EQ(readEarlierSave(day.files, saves[1]), typed);
  EXPECT_TRUE(saves[1].isUnsavedRest);
  EXPECT_FALSE(saves[0].isUnsavedRest);
}

TEST(EarlierSaves, AreWrittenIntoFilesOfTheirOwn) {
  Disk day;
  day.playDay();
  day.files.files["old.scv"].content = "what it replaces";
  const auto saves = day.saves(kFile);
  EarlierSavesDialog behaviour(saves);
  MemoryDialog dialog(IDD_EARLIER_SAVES, behaviour);
  dialog.desktop.files = {"old.scv"};
  dialog.choose(IDC_SAVE_CHANGES, 1);
  dialog.click(IDC_WRITE_SAVE);
  EXPECT_EQ(day.files.files["old.scv"].content, readEarlierSave(day.files, saves[1]));
  ASSERT_EQ(day.saves("old.scv").size(), 1U);
  EXPECT_EQ(readEarlierSave(day.files, day.saves("old.scv")[0]), "what it replaces");
  EXPECT_EQ(dialog.result(), std::nullopt);
  EXPECT_EQ(dialog.desktop.messages.size(), 0U);
  EXPECT_EQ(currentFileName(), kFile);
}

TEST(ImportRoster, EndsWithTheTeamReport) {
  Disk day;
  day.playDay();
  MemoryMainWindow window;
  runImportRoster(window);
  EXPECT_EQ(reportText(), kWelcomeText);
  window.operate = [](MemoryDialog& dialog) {
    dialog.paste(IDC_ROSTER_TEXT, "Yew\tDee\tPat");
    dialog.click(kOkId);
  };
  runImportRoster(window);
  EXPECT_NE(reportText().find("     Yew                     103C  Dee  "), std::string::npos)
      << reportText();
  EXPECT_EQ(day.files.files[kFile].content, writeContest(currentContest()));
}

// What is left of the old lines is not shown anew.
TEST(ImportRoster, KeepsTheListInStepWithTheField) {
  Disk day;
  day.playDay();
  ImportRosterDialog behaviour;
  MemoryDialog dialog(IDD_IMPORT_ROSTER, behaviour);
  std::string sheet = "Team,Name\n";
  for (int i = 0; i < 600; ++i) sheet += "Team " + std::to_string(i) + ",Ann,\n";
  for (const std::size_t cut :
       {sheet.size(), sheet.find("Team 300"), std::size_t{0}, sheet.size() / 4}) {
    std::string text = sheet;
    for (const char* added : {"", "x", ",x", "Elm,Bob,x\n"}) {
      text.insert(std::min(cut, text.size()), added);
      dialog.paste(IDC_ROSTER_TEXT, text);
      const RosterPlan plan = planRoster(text, currentContest());
      ASSERT_EQ(dialog.lines(IDC_ROSTER_PLAN), planLines(plan, currentContest())) << cut << added;
      ASSERT_EQ(dialog.text(IDC_ROSTER_SUMMARY), planSummary(plan));
    }
  }
}

TEST(EarlierSaves, AreComparedWithTheOpenContestOnScreen) {
  Disk day;
  MemoryMainWindow window;
  startNewContest();
  runEarlierSaves(window);
  currentFileName() = "none.scv";
  runEarlierSaves(window);
  day.playDay();
  runEarlierSaves(window);
  window.operate = [](MemoryDialog& dialog) {
    dialog.choose(IDC_SAVE_TIMES, 1);
    dialog.pressEnter();
  };
  runEarlierSaves(window);
  EXPECT_NE(reportText().find("103 Cy                               -     "), std::string::npos);
  window.operate = [](MemoryDialog& dialog) {
    dialog.choose(IDC_SAVE_TIMES, 4);
    dialog.click(IDC_CHANGES_SINCE);
  };
  runEarlierSaves(window);
  EXPECT_NE(reportText().find("official placing             X (4,3,2,1)  "), std::string::npos);
  EXPECT_NE(reportText().find("\n\nPlaces that changed in the awards lists:\n\nHigh Individual "
                              "Overall          places 1 to 3\n"),
            std::string::npos);
  window.operate = [](MemoryDialog& dialog) {
    dialog.desktop.answers = {Answer::ok};
    dialog.click(IDC_GO_BACK);
  };
  runEarlierSaves(window);
  expectApproved(window.log, "exchange/earlier_saves.txt");
}

// The new contest that is open meanwhile is nothing to be kept; what the second choice replaces is.
TEST(EarlierSaves, OfContestsWithoutAFileStayWhenTheyAreBroughtBack) {
  Disk day;
  const std::string rest = writeContest(daysWork()[1]);
  currentContest() = newContest();
  day.keep("", daysWork()[1], 0, true);
  for (const std::size_t kept : {1U, 2U}) {
    currentContest().settings.contestName.append(kept - 1, '!');
    contestChanged();
    EarlierSavesDialog behaviour(day.saves(""));
    MemoryDialog dialog(IDD_EARLIER_SAVES, behaviour);
    dialog.desktop.answers = {Answer::ok};
    dialog.click(IDC_GO_BACK);  // the choice of a file is cancelled
    EXPECT_EQ(dialog.result(), IDC_GO_BACK);
    EXPECT_EQ(writeContest(currentContest()), rest);
    EXPECT_EQ(day.saves("").size(), kept);
  }
  // The program is ended now: the recovery copy is of the contest that was brought back.
  stopKeepingWork();
  startKeepingWork(day.files);
  ASSERT_EQ(day.saves("").size(), 3U);
  EXPECT_EQ(readEarlierSave(day.files, day.saves("").front()), rest);
}

const bool kPlays = playSessions("exchange", kWorld);

}  // namespace

}  // namespace scorvane
