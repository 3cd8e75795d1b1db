// What a sheet with teams and contestants would do to a contest, and doing it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/contest.h"

namespace scorvane {

struct PlannedMember {
  std::string name;
  ContestantNumber number = 0;
  std::size_t slot = 0;
  bool isNew = false;  ///< not in the team yet
};

/// A team of the sheet, in the contest already or new.
struct PlannedTeam {
  std::string name;
  bool isNew = false;
  std::string coach;                      ///< as it will be
  bool isCoachNew = false;                ///< the team is there and has no coach yet
  std::vector<PlannedMember> members;     ///< of the sheet, in its order
  std::vector<ContestantNumber> numbers;  ///< of all slots, as they will be
};

/// Something to be said of a row of the sheet.
struct SheetNote {
  std::int32_t line = 0;  ///< the row's first
  std::string text;
};

struct RosterPlan {
  std::vector<PlannedTeam> teams;   ///< in the order of the sheet
  std::vector<SheetNote> problems;  ///< their lines are left out of the plan
  std::vector<SheetNote> remarks;
  std::size_t contestants = 0;  ///< in regular slots, those who are there already too
  std::size_t alternates = 0;
  bool holdsNobody = true;     ///< the sheet has no team and no contestant
  bool changesNothing = true;  ///< all is in the contest already
};

/// Reads the bytes of a sheet, in any encoding and with any of the usual separators, as teams and
/// contestants for a contest. Rows with problems are as if they were not there.
[[nodiscard]] RosterPlan planRoster(std::string_view bytes, const Contest& contest);

/// Does what was planned for this very contest: afterwards it is what it would be had the same been
/// typed in Setup Teams.
void importRoster(Contest& contest, const RosterPlan& plan);

/// The plan in words: problems, a line for each team, remarks.
[[nodiscard]] std::vector<std::string> planLines(const RosterPlan& plan, const Contest& contest);
/// Such as "32 teams, 121 contestants, 7 alternates; 2 problems".
[[nodiscard]] std::string planSummary(const RosterPlan& plan);

/// Bytes of the largest sheet that is read.
inline constexpr std::size_t kMostSheetBytes = std::size_t{16} << 20U;

}  // namespace scorvane
