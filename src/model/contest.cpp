#include "model/contest.h"

#include <algorithm>
#include <utility>

namespace scorvane {

namespace {

template <typename Element>
Element elementOr(const std::vector<Element>& column, std::int32_t index, Element blank) {
  if (index < 0 || static_cast<std::size_t>(index) >= column.size()) return blank;
  return column[static_cast<std::size_t>(index)];
}

template <typename Element>
void removeAt(std::vector<Element>& column, std::int32_t index) {
  if (index >= 0 && static_cast<std::size_t>(index) < column.size()) {
    column.erase(column.begin() + index);
  }
}

const std::string kEmpty;

}  // namespace

std::size_t teamSlots(const ContestSettings& settings) {
  return static_cast<std::size_t>(std::clamp(settings.totalNumPerTeam, 0, kMostTeamSlots));
}

const std::string& JudgingClasses::name(std::int32_t index) const {
  if (index < 0 || index >= count()) return kEmpty;
  return className[static_cast<std::size_t>(index)];
}

bool JudgingClasses::hasReasons(std::int32_t index) const {
  return elementOr(reasonsFlag, index, false);
}

bool JudgingClasses::hasQuestions(std::int32_t index) const {
  return elementOr(questionsFlag, index, false);
}

PlacingLetter JudgingClasses::official(std::int32_t index) const {
  return elementOr(officialLetter, index, kNoLetter);
}

Cuts JudgingClasses::cuts(std::int32_t index) const {
  return {elementOr(cut1, index, 0), elementOr(cut2, index, 0), elementOr(cut3, index, 0)};
}

std::int32_t JudgingClasses::category(std::int32_t index) const {
  return elementOr(categoryIndex, index, 0);
}

void JudgingClasses::add(std::string name, bool reasons, bool questions, PlacingLetter official,
                         const Cuts& cuts, std::int32_t category) {
  className.push_back(std::move(name));
  reasonsFlag.push_back(reasons);
  questionsFlag.push_back(questions);
  officialLetter.push_back(official);
  cut1.push_back(cuts.cut1);
  cut2.push_back(cuts.cut2);
  cut3.push_back(cuts.cut3);
  categoryIndex.push_back(category);
}

void JudgingClasses::remove(std::int32_t index) {
  removeAt(className, index);
  removeAt(reasonsFlag, index);
  removeAt(questionsFlag, index);
  removeAt(officialLetter, index);
  removeAt(cut1, index);
  removeAt(cut2, index);
  removeAt(cut3, index);
  removeAt(categoryIndex, index);
}

void JudgingClasses::clear() {
  *this = JudgingClasses{};
}

const std::string& contestantName(const Contest& contest, ContestantNumber number) {
  const std::string* name = contest.contestantNames.find(number);
  return name == nullptr ? kEmpty : *name;
}

std::size_t countNamed(const Contest& contest) {
  return static_cast<std::size_t>(
      std::count_if(contest.contestantNames.begin(), contest.contestantNames.end(),
                    [](const auto& entry) { return !entry.second.empty(); }));
}

ReasonsPlace reasonsPlaceOf(const Contest& contest, ContestantNumber number) {
  const ReasonsPlace* place = contest.reasonsPlace.find(number);
  return place == nullptr ? ReasonsPlace{} : *place;
}

const ScoreRecord& scoreRecord(const Contest& contest, ContestantNumber number,
                               std::int32_t classIndex) {
  static const ScoreRecord blank;
  const ClassScores* records = contest.scores.find(number);
  const ScoreRecord* record = records == nullptr ? nullptr : records->find(classIndex);
  return record == nullptr ? blank : *record;
}

const std::string& categoryName(const Contest& contest, std::int32_t index) {
  if (contest.categories.empty()) return kEmpty;
  const bool exists = index >= 0 && static_cast<std::size_t>(index) < contest.categories.size();
  return contest.categories[exists ? static_cast<std::size_t>(index) : 0];
}

int countEntered(const ScoreRecord& record) {
  return (record.letter != kNoLetter ? 1 : 0) + (record.reasonsScore != 0 ? 1 : 0) +
         (record.questionsScore != 0 ? 1 : 0);
}

bool hasScores(const Contest& contest) {
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [classIndex, record] : records) {
      if (countEntered(record) > 0) return true;
    }
  }
  return false;
}

std::int64_t countScores(const Contest& contest) {
  std::int64_t count = 0;
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [classIndex, record] : records) {
      count += countEntered(record);
    }
  }
  return count;
}

void recomputeAllPlacingScores(Contest& contest) {
  const JudgingClasses& classes = contest.classes;
  std::vector<std::pair<PlacingLetter, Cuts>> officials;
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    officials.emplace_back(classes.official(k), classes.cuts(k));
  }
  for (auto& [number, records] : contest.scores) {
    for (std::int32_t k = 0; k < classes.count(); ++k) {
      const auto usual =
          records.begin() + std::min<std::ptrdiff_t>(k, records.end() - records.begin());
      ScoreRecord& record =
          usual != records.end() && usual->first == k ? usual->second : records[k];
      const auto& [letter, cuts] = officials[static_cast<std::size_t>(k)];
      record.placingScore =
          record.letter == kNoLetter ? 0 : placingScore(record.letter, letter, cuts);
    }
  }
}

}  // namespace scorvane
