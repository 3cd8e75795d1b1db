// What is wrong with a contest although every part of it is allowed: to be looked at before awards.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

enum class FindingKind {
  numberInTwoTeams,    ///< `number` has `count` slots, of `teams`
  scoresWithoutName,   ///< `count` scores are entered under `number`, which nobody has
  recordWithoutClass,  ///< `count` scores are entered for `classIndex`, which no class has
  textCut,             ///< the contest file has no room for all of `text`
};

/// Which text is cut, and what says whose it is.
enum class CutText {
  contestName,
  divisionName,
  contestDate,
  category,
  className,       ///< classIndex
  contestantName,  ///< number
  teamName,        ///< teams
  coach,           ///< teams
  members,         ///< teams: the last member numbers are left out
};

struct Finding {
  FindingKind kind = FindingKind::numberInTwoTeams;
  ContestantNumber number = 0;
  std::int32_t classIndex = 0;     ///< from 0
  std::vector<std::string> teams;  ///< in name order; one that has the number twice comes twice
  std::int64_t count = 0;
  CutText cut = CutText::contestName;
  std::string text;  ///< the whole of what is cut
  friend bool operator==(const Finding&, const Finding&) = default;
};

/// All but the cut texts, which cutTexts() in storage/contest_writer.h finds; by kind, then by
/// number or class. Scores of a number that neither exists nor belongs to a team are no finding:
/// they are in no report and no file, and whoever gets the number next starts with blank records.
[[nodiscard]] std::vector<Finding> contestFindings(const Contest& contest);

}  // namespace scorvane
