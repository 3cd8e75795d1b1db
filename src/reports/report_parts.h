// What the administrative and verification reports have in common.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"
#include "model/contest_differences.h"

namespace scorvane {

/// The rule under the heading of a column of fifty characters.
inline constexpr const char* kFiftyHyphens = "--------------------------------------------------";

/// The kind of a class in eleven characters: " (Reasons) ", " (Rsn/Qst) ", "(Questions)" or blank.
[[nodiscard]] const char* kindTag(const JudgingClasses& classes, std::int32_t classIndex);

/// What a line says of which score it tells: "Placing", "Reasons", "Questions", "Placing score".
[[nodiscard]] const char* scoreWord(ScoreValue value);

/// "-" for a value that is blank.
[[nodiscard]] std::string orHyphen(const std::string& text);

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

}  // namespace scorvane
