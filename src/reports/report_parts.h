// What the administrative and verification reports have in common.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/class_lists.h"
#include "model/contest.h"

namespace scorvane {

/// The rule under the heading of a column of fifty characters.
inline constexpr const char* kFiftyHyphens = "--------------------------------------------------";

/// The kind of a class in eleven characters: " (Reasons) ", " (Rsn/Qst) ", "(Questions)" or blank.
[[nodiscard]] const char* kindTag(const JudgingClasses& classes, std::int32_t classIndex);

/// A line of fixedPart + perClass * (number of all classes) hyphens.
[[nodiscard]] std::string makeRule(const JudgingClasses& classes, std::size_t fixedPart,
                                   std::size_t perClass);

/// Appends " | %2d " with the number of each class, counted from 1.
void appendClassNumbers(std::string& out, const std::vector<std::int32_t>& classes);

/// A contestant with a name, as the grids list them. `scores` is null without any record.
struct ListedContestant {
  ContestantNumber number = 0;
  const std::string* name = nullptr;
  const ClassScores* scores = nullptr;
};

/// The contestants whose name is not empty, in ascending number order; refers to the contest.
[[nodiscard]] std::vector<ListedContestant> listedContestants(const Contest& contest);

/// A team's members with a name, in slot order; refers to the contest.
struct ListedMember {
  ListedContestant contestant;
  bool isAlternate = false;
};
[[nodiscard]] std::vector<ListedMember> listedMembers(const Contest& contest, const Team& team);

/// Appends number and name in 26 characters: the name cut to 20, an alternate's to 16 and marked.
void appendMember(std::string& out, const ListedMember& member);

/// Reads one contestant's records class by class in ascending order, without a search per cell.
class RecordCursor {
 public:
  explicit RecordCursor(const ClassScores* scores);
  /// The record of a class, a blank one when it is missing. `classIndex` must not go back.
  [[nodiscard]] const ScoreRecord& at(std::int32_t classIndex);

 private:
  ClassScores::const_iterator next_;
  ClassScores::const_iterator end_;
};

}  // namespace scorvane
