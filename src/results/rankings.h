// The results as plain rows: who has which place, by which score, and what decided it. Reports only
// write them down.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "results/individual_ranking.h"

namespace scorvane {

/// Rows refer to names in the contest, which must outlive them.
struct IndividualRow {
  int place = 0;  ///< the rows' running numbers: tied rows never share a place
  ContestantNumber number = 0;
  const std::string* name = nullptr;
  const std::string* team = nullptr;  ///< "" without a team
  std::int32_t score = 0;
  TieColumns ties;
  TieOutcome outcome;  ///< against the contestants with a name, listed or behind the last one
};

struct MemberRow {
  ContestantNumber number = 0;
  const std::string* name = nullptr;  ///< "" for a slot without a person
  std::int32_t score = 0;             ///< the member's own, whether it counts or not
  bool counts = false;                ///< toward the team's score, a slot without a person as 0
};

struct TeamRow {
  int place = 0;
  const std::string* name = nullptr;
  const std::string* coach = nullptr;
  std::vector<MemberRow> members;  ///< of the regular slots, in slot order
  std::int32_t score = 0;
  TieColumns ties;
  TieOutcome outcome;
};

/// The request of the menu commands: every class, number and percentage as set, no title.
[[nodiscard]] ReportRequest wholeContestRequest(const Contest& contest, ScoreKind kind);

/// The same for a list that leaves nobody out.
[[nodiscard]] ReportRequest everybodyRequest(const Contest& contest, ScoreKind kind);

/// The contestants with a name, best first, as many as the request asks for. Asked for none it
/// returns the leader, or no row when the leader has no name. A percentage is taken of all
/// contestants with a name.
[[nodiscard]] std::vector<IndividualRow> individualRows(const Contest& contest,
                                                        const ReportRequest& request);

/// The same from totals that were added up already, for this kind and these classes.
[[nodiscard]] std::vector<IndividualRow> individualRows(
    const Contest& contest, const ReportRequest& request,
    const std::vector<IndividualRankEntry>& totals);

/// The teams, best first, as many as the request asks for but one at least. A percentage is taken
/// of all teams.
[[nodiscard]] std::vector<TeamRow> teamRows(const Contest& contest, const ReportRequest& request);
[[nodiscard]] std::vector<TeamRow> teamRows(const Contest& contest, const ReportRequest& request,
                                            const std::vector<IndividualRankEntry>& totals);

}  // namespace scorvane
