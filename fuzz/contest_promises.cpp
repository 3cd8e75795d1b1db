#include "fuzz/contest_promises.h"

#include <algorithm>
#include <set>
#include <string>

#include "fuzz/checks.h"
#include "model/reasons_check.h"
#include "storage/contest_writer.h"

namespace {

constexpr int kSetupClasses = 32788;
constexpr int kSetupTeams = 32789;
constexpr int kEditContestants = 32856;

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

// A cell may be left to somebody whose place was given up, but nobody stands in two cells, and a
// place that is held is a cell that is held.
void requireSoundReasonsOrder(const Contest& contest) {
  std::set<ContestantNumber> seen;
  for (const auto& [cell, number] : contest.reasonsOrder.cells()) {
    require(seen.insert(number).second, "nobody stands in the reasons order twice");
  }
  for (const auto& [number, place] : contest.reasonsPlace) {
    if (!place.isAssigned()) continue;
    require(contest.reasonsOrder.cell(place.position, place.group) == number,
            "whoever has a place stands there");
  }
}

bool isShort(const std::string& text) {
  constexpr std::size_t kFitsAnyLine = 100;
  return text.size() <= kFitsAnyLine;
}

// Whether no line of the file has to leave anything out, and no value is one that loading mends.
bool fitsTheFile(const Contest& contest) {
  constexpr std::int32_t kSlotsOnAnyLine = 20;
  if (contest.settings.totalNumPerTeam > kSlotsOnAnyLine) return false;
  std::size_t categories = 0;
  for (const std::string& name : contest.categories) categories += name.size() + 1;
  const auto count = static_cast<std::int32_t>(contest.categories.size());
  const auto& indexes = contest.classes.categoryIndex;
  return categories < 400 &&
         std::all_of(indexes.begin(), indexes.end(),
                     [count](auto i) { return i >= 0 && i < std::max(count, 1); }) &&
         std::all_of(contest.teams.begin(), contest.teams.end(), [](const auto& team) {
           return isShort(team.first) && isShort(team.second.coach);
         });
}

}  // namespace

void ContestPromises::dialogActed(const MemoryDialog& dialog) {
  // Deleting a contestant can leave a cell to somebody without a place, and numbers given up can be
  // given out again while the order still names them.
  if (command_ == kSetupTeams || command_ == kEditContestants) numbersGivenUp_ = true;
  if (command_ != kSetupClasses) return;
  // The undo of a refused class leaves columns of different lengths.
  for (const Message& message : dialog.desktop.messages) {
    classRefused_ = classRefused_ || message.text.rfind("Error:", 0) == 0 ||
                    message.text.rfind("Illegal value", 0) == 0;
  }
}

void ContestPromises::check(const Contest& contest) const {
  require(classRefused_ || evenColumns(contest.classes), "the columns of classes are even");
  requireWholeTeams(contest);
  requireSoundReasonsOrder(contest);
  if (!numbersGivenUp_) {
    const std::string fault = reasonsOrderFault(contest);
    require(fault.empty(), fault);
  }
  const std::string saved = writeContest(contest);
  const std::string savedAgain = writeContest(readAgain(saved));
  if (fitsTheFile(contest) && !numbersGivenUp_) {
    require(savedAgain == saved, "loading and saving give the same bytes");
  }
  require(writeContest(readAgain(savedAgain)) == savedAgain, "saving again changes nothing");
}
