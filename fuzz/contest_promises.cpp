#include "fuzz/contest_promises.h"

#include <algorithm>
#include <string>
#include <vector>

#include "app/command_table.h"
#include "fuzz/checks.h"
#include "model/contest_findings.h"
#include "model/numbering.h"
#include "session/open_contest.h"
#include "storage/contest_writer.h"
#include "tests/reasons/reasons_contest.h"

namespace scorvane {

namespace {

constexpr int kSetupClasses = 32788;
constexpr int kSetupTeams = 32789;
constexpr int kEditContestants = 32856;
constexpr int kImportRoster = 33001;
constexpr int kMoveCards = 33024;

bool evenColumns(const JudgingClasses& classes) {
  const std::size_t count = classes.className.size();
  const auto isEven = [count](const auto&... columns) {
    return ((columns.size() == count) && ...);
  };
  return isEven(classes.reasonsFlag, classes.questionsFlag, classes.officialLetter, classes.cut1,
                classes.cut2, classes.cut3, classes.categoryIndex);
}

void requireWholeTeams(const Contest& contest) {
  for (const auto& [name, team] : contest.teams) {
    require(team.members.size() == teamSlots(contest.settings), "every team has all slots");
  }
}

// Reports read the stored placing scores, so none may be left behind by a change of the class.
void requireScoresAsComputed(const Contest& contest) {
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [k, record] : records) {
      if (k >= contest.classes.count()) continue;
      require(record.placingScore ==
                  placingScore(record.letter, contest.classes.official(k), contest.classes.cuts(k)),
              "placing scores are those of the letters, officials and cuts");
    }
  }
}

// Whether no value is one that loading mends.
bool isKeptAsItIs(const Contest& contest) {
  const auto count = static_cast<std::int32_t>(contest.categories.size());
  const auto& indexes = contest.classes.categoryIndex;
  return std::all_of(indexes.begin(), indexes.end(),
                     [count](auto i) { return i >= 0 && i < std::max(count, 1); }) &&
         std::all_of(contest.teams.begin(), contest.teams.end(), [](const auto& team) {
           return team.first != " " && team.second.coach != " ";  // an empty text is a blank there
         });
}

bool isTold(const std::vector<Finding>& cuts, CutText cut, ContestantNumber number,
            std::int32_t classIndex) {
  return std::any_of(cuts.begin(), cuts.end(), [&](const Finding& finding) {
    return finding.cut == cut && finding.number == number && finding.classIndex == classIndex;
  });
}

// Also of a contest with a text that is cut, all others survive; and categories always do, as
// they are refused where they are typed.
void requireTextsAlike(const Contest& contest, const Contest& loaded,
                       const std::vector<Finding>& cuts) {
  require(contest.categories.empty() || loaded.categories == contest.categories,
          "every category is saved");
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    require(
        isTold(cuts, CutText::className, 0, k) || loaded.classes.name(k) == contest.classes.name(k),
        "every class's name is saved");
    require(contest.categories.empty() || categoryName(loaded, loaded.classes.category(k)) ==
                                              categoryName(contest, contest.classes.category(k)),
            "every class stays in its category");
  }
  for (const auto& [number, name] : contest.contestantNames) {
    require(
        isTold(cuts, CutText::contestantName, number, 0) || contestantName(loaded, number) == name,
        "every contestant's name is saved");
  }
  for (const auto& [name, team] : contest.teams) {
    // A name that is cut can become that of another team.
    const bool mayBeCut = std::any_of(cuts.begin(), cuts.end(), [](const Finding& finding) {
      return finding.cut == CutText::teamName;
    });
    require(mayBeCut || loaded.teams.contains(name == " " ? "" : name), "every team is saved");
  }
}

void requireAlike(Contest contest, Contest loaded) {
  require(loaded.contestantNames == contest.contestantNames, "contestants come back alike");
  require(loaded.teams == contest.teams, "teams come back alike");
  require(!evenColumns(contest.classes) || loaded.classes == contest.classes,
          "classes come back alike");
  require(contest.categories.empty() || loaded.categories == contest.categories,
          "categories come back alike");
  // A new contest has none until it is set up.
  require(contest.groupLetters.empty() || loaded.groupLetters == contest.groupLetters,
          "group letters come back alike");
  updateNextContestant(contest);
  require(loaded.settings == contest.settings, "settings come back alike");
  for (const auto& [number, name] : contest.contestantNames) {
    require(reasonsPlaceOf(loaded, number) == reasonsPlaceOf(contest, number),
            "reasons places come back alike");
    require(groupOfContestant(loaded, number) == groupOfContestant(contest, number),
            "groups come back alike");
    for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
      require(scoreRecord(loaded, number, k) == scoreRecord(contest, number, k),
              "scores come back alike");
    }
  }
}

}  // namespace

void ContestPromises::dialogActed(const MemoryDialog& dialog) {
  const Contest& contest = currentContest();
  // Clearing all teams leaves the reasons order as it is, and the numbers are given out again.
  if (command_ == kSetupTeams && contest.contestantNames.empty()) teamsCleared_ = true;
  keepLedger(contest);
  checkReasonsOrder(contest);
  if (command_ != kSetupClasses) return;
  // The undo of a refused class leaves columns of different lengths until all are cleared.
  if (evenColumns(contest.classes)) classRefused_ = false;
  for (const Message& message : dialog.desktop.messages) {
    classRefused_ = classRefused_ || message.text.rfind("Error:", 0) == 0 ||
                    message.text.rfind("Illegal value", 0) == 0;
  }
}

// Scores come in by these menus only, or with another contest. A roster brings none.
void ContestPromises::keepLedger(const Contest& contest) {
  const std::string_view menu = findCommand(command_)->menu;
  if (command_ == kMoveCards) {
    ledger_.move(contest);
  } else if (command_ == kImportRoster) {
    ledger_.watch(contest);
  } else if (menu == "Score" || menu == "File" || menu == "Tools") {
    ledger_.enter(contest);
  } else {
    ledger_.watch(contest);
  }
}

// Nobody is in two cells, a place that is held is a cell that is held, and the other way round.
// Only whoever is deleted from the first row or the first group keeps the cell.
void ContestPromises::checkReasonsOrder(const Contest& contest) {
  std::set<ContestantNumber> seen;
  std::set<ContestantNumber> strays;
  for (const auto& [cell, number] : contest.reasonsOrder.cells()) {
    const auto [group, row] = cell;
    require(seen.insert(number).second, "nobody stands in the reasons order twice");
    require(group < contest.settings.numReasonsGroups, "every cell belongs to a reasons group");
    if (reasonsPlaceOf(contest, number) == ReasonsPlace{group, row}) continue;
    const bool mayBeKept =
        (command_ == kSetupTeams || command_ == kEditContestants) && (group == 0 || row == 0);
    require(mayBeKept || teamsCleared_ || strays_.contains(number),
            "whoever stands in the reasons order has that place");
    strays.insert(number);
  }
  strays_ = strays;
  for (const auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    require(contest.reasonsOrder.cell(place.position, place.group) == number,
            "whoever has a place stands there");
  }
}

bool ContestPromises::comesBackAlike(const Contest& contest) const {
  return isKeptAsItIs(contest) && strays_.empty() && !teamsCleared_;
}

void ContestPromises::check(const Contest& contest) {
  require(classRefused_ || evenColumns(contest.classes), "the columns of classes are even");
  requireWholeTeams(contest);
  keepLedger(contest);
  ledger_.checkFindings(contest);
  checkReasonsOrder(contest);
  requireScoresAsComputed(contest);
  const std::string saved = writeContest(contest);
  const Contest loaded = readAgain(saved);
  require(evenColumns(loaded.classes), "the columns of loaded classes are even");
  requireWholeTeams(loaded);
  require(orderAgreesWithPlaces(loaded), "a loaded reasons order agrees with the places");
  const std::vector<Finding> cuts = cutTexts(contest);
  requireTextsAlike(contest, loaded, cuts);
  const std::string savedAgain = writeContest(loaded);
  if (comesBackAlike(contest) && cuts.empty()) {
    require(savedAgain == saved, "loading and saving give the same bytes");
    requireAlike(contest, loaded);
  }
  require(writeContest(readAgain(savedAgain)) == savedAgain, "saving again changes nothing");
}

}  // namespace scorvane
