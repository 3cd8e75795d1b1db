#include "results/high_team_report.h"

#include "results/team_ranking.h"
#include "results/team_scoring.h"
#include "text/format.h"

namespace scorvane {

namespace {

void appendHeading(std::string& out, const Contest& contest, const HighReportRequest& request) {
  appendFormat(out, "High Team %s %s (scoring the top %d per team)\n\n",
               scoreKindWord(request.kind), request.title.c_str(), contest.settings.numToScore);
  out +=
      "Place        Team                 Team Members                  Score   Tie Breaker(s)\n"
      "-----  ---------------------  --------------------------------  -----  -----------------\n";
}

struct TeamRow {
  int place = 0;
  const char* team = "";
  const char* member = "";       ///< name of the contestant in the first slot
  const char* memberScore = "";  ///< six characters
  std::int32_t score = 0;
};

// The blanks before the score and between it and the tie breakers deliberately differ between the
// orderings, and within the overall one, so their columns do not line up with one another.
void appendOverallRow(std::string& out, const TeamRow& row, const TieColumns& ties) {
  const auto& [place, team, member, memberScore, score] = row;
  const auto& [first, second, third] = ties.values;
  if (ties.count == 0) {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s  %5d\n", place, team, member, memberScore,
                 score);
  } else if (ties.count == 1) {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s  %5d %6d\n", place, team, member, memberScore,
                 score, first);
  } else {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s %5d %6d %6d\n", place, team, member,
                 memberScore, score, first, second);
  }
}

void appendReasonsOrCategoryRow(std::string& out, const TeamRow& row, const TieColumns& ties) {
  const auto& [place, team, member, memberScore, score] = row;
  const auto& [first, second, third] = ties.values;
  if (ties.count == 0) {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s %5d\n", place, team, member, memberScore,
                 score);
  } else if (ties.count == 1) {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s %5d  %6d\n", place, team, member, memberScore,
                 score, first);
  } else if (ties.count == 2) {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s %5d  %6d %6d\n", place, team, member,
                 memberScore, score, first, second);
  } else {
    appendFormat(out, "  %-3d  %-21.21s  %-25.25s %s %5d  %6d %6d %6d\n", place, team, member,
                 memberScore, score, first, second, third);
  }
}

// The members in the slots that were not part of the team's row, and the coach.
class TeamLines {
 public:
  TeamLines(const Contest& contest, const std::vector<IndividualRankEntry>& totals)
      : contest_(contest), totals_(totals) {}

  [[nodiscard]] const std::string& memberName(const Team& team, std::size_t slot) const {
    static const std::string nobody;
    if (slot >= regularSlots(contest_.settings, team)) return nobody;
    return contestantName(contest_, team.members[slot]);
  }
  [[nodiscard]] std::int32_t memberScore(const Team& team, std::size_t slot) const {
    return totalsOf(contest_, totals_, team.members[slot]).score;
  }
  [[nodiscard]] std::string memberScoreText(const Team& team, std::size_t slot) const {
    if (memberName(team, slot).empty()) return "      ";
    return formatText("(%4d)", memberScore(team, slot));
  }

  void append(std::string& out, const Team& team) const {
    for (std::size_t slot = 1; slot < regularSlots(contest_.settings, team); ++slot) {
      const std::string& name = memberName(team, slot);
      if (name.empty()) continue;
      appendFormat(out, "  %-3.3s  %-21.21s  %-25.25s (%4d)  %5.5s   %-15.15s\n", "", "",
                   name.c_str(), memberScore(team, slot), "", "");
    }
    // The second text has no width at all: it leaves only the blanks around it.
    appendFormat(out, "  %-3.3s  %-.0s  Coach: %-30.30s  %5.5s   %-15.15s\n\n", "", "",
                 team.coach.c_str(), "", "");
  }

 private:
  const Contest& contest_;
  const std::vector<IndividualRankEntry>& totals_;
};

}  // namespace

std::string highTeamReport(const Contest& contest, const HighReportRequest& request) {
  const std::int64_t rows = rowsToList(request, contest.teams.size());
  const TieOrder order = tieOrderFor(contest, request.kind, request.classes);
  const auto totals = contestantTotals(contest, request.kind, request.classes);
  const std::vector<TeamRankEntry> ranking = rankTeams(contest, totals, order);
  const TeamLines lines(contest, totals);

  std::string out;
  appendHeading(out, contest, request);
  RankValues previous;
  for (std::size_t i = 0; i < ranking.size(); ++i) {
    const auto& [name, team] = *ranking[i].team;
    const RankValues& values = ranking[i].values;
    const RankValues next = i + 1 < ranking.size() ? ranking[i + 1].values : RankValues{};
    const TieColumns ties = tieColumns(order, values, previous, next);
    const int place = static_cast<int>(i) + 1;
    const std::string memberScore = lines.memberScoreText(team, 0);
    const TeamRow row = {place, name.c_str(), lines.memberName(team, 0).c_str(),
                         memberScore.c_str(), values.score};
    if (order == TieOrder::overall) {
      appendOverallRow(out, row, ties);
    } else {
      appendReasonsOrCategoryRow(out, row, ties);
    }
    lines.append(out, team);
    previous = values;
    // Asked after the team: a report of 0 teams still names the winner.
    if (place >= rows) break;
  }
  return out;
}

}  // namespace scorvane
