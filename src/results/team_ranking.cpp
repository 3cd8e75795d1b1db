#include "results/team_ranking.h"

#include "results/team_scoring.h"

namespace scorvane {

namespace {

RankValues sumOf(const std::vector<RankValues>& members, const std::vector<std::size_t>& counting) {
  RankValues sum;
  for (const std::size_t slot : counting) {
    const RankValues& member = members[slot];
    sum.score = wrappingSum(sum.score, member.score);
    sum.totalReasons = wrappingSum(sum.totalReasons, member.totalReasons);
    sum.reasonsClassPlacings = wrappingSum(sum.reasonsClassPlacings, member.reasonsClassPlacings);
    sum.totalOverall = wrappingSum(sum.totalOverall, member.totalOverall);
    sum.setReasons = wrappingSum(sum.setReasons, member.setReasons);
  }
  return sum;
}

// An empty slot counts as a member with zeros, even if its number kept scores from a contestant who
// was deleted: nobody could see where the team's points come from.
RankValues memberTotals(const Contest& contest, const std::vector<IndividualRankEntry>& totals,
                        ContestantNumber number) {
  const bool isEmpty = contestantName(contest, number).empty();
  return isEmpty ? RankValues{} : totalsOf(contest, totals, number);
}

}  // namespace

RankValues totalsOf(const Contest& contest, const std::vector<IndividualRankEntry>& totals,
                    ContestantNumber number) {
  const std::size_t position = contest.scores.positionOf(number);
  return position == totals.size() ? RankValues{} : totals[position].values;
}

std::vector<TeamRankEntry> rankTeams(const Contest& contest,
                                     const std::vector<IndividualRankEntry>& totals,
                                     TieOrder order) {
  std::vector<TeamRankEntry> ranking;
  ranking.reserve(contest.teams.size());
  std::vector<RankValues> members;
  std::vector<std::int32_t> scores;
  std::vector<std::size_t> counting;
  for (auto team = contest.teams.begin(); team != contest.teams.end(); ++team) {
    members.clear();
    scores.clear();
    for (std::size_t slot = 0; slot < regularSlots(contest.settings, team->second); ++slot) {
      const ContestantNumber number = team->second.members[slot];
      members.push_back(memberTotals(contest, totals, number));
      scores.push_back(members.back().score);
    }
    chooseCountingSlots(contest.settings, scores, counting);
    ranking.push_back({team, sumOf(members, counting)});
  }
  sortByRank(ranking, order);
  return ranking;
}

}  // namespace scorvane
