#include "results/team_ranking.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace scorvane {

namespace {

// A team of more regular members than this exists in damaged files only; exchanging would take
// too long there.
constexpr std::size_t kMostToExchange = 64;

// A plain exchange sort, highest first. It decides which of several equal scores comes first, and
// so whose tie-breaking values count; another sort would decide otherwise. Slots without a score
// are exchanged like members with 0.
void exchangeByScore(std::span<const std::int32_t> scores, std::vector<std::size_t>& order) {
  const auto scoreOf = [&](std::size_t slot) { return slot < scores.size() ? scores[slot] : 0; };
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (scoreOf(order[i]) < scoreOf(order[j])) std::swap(order[i], order[j]);
    }
  }
}

// Missing slots score 0: they come after the members with 0 and before those below 0. They add
// nothing, so only how many of the scores that count they take up matters.
void chooseOfHugeTeam(std::span<const std::int32_t> scores, std::size_t slots, std::size_t counted,
                      std::vector<std::size_t>& counting) {
  counting.resize(scores.size());
  std::iota(counting.begin(), counting.end(), std::size_t{0});
  std::stable_sort(counting.begin(), counting.end(),
                   [&](std::size_t a, std::size_t b) { return scores[a] > scores[b]; });
  const std::size_t missing = slots - scores.size();
  const auto firstBelowZero = std::find_if(counting.begin(), counting.end(),
                                           [&](std::size_t slot) { return scores[slot] < 0; });
  const auto notBelowZero = static_cast<std::size_t>(firstBelowZero - counting.begin());
  std::size_t count = std::min(counted, notBelowZero);
  const std::size_t left = counted - count;
  if (left > missing) count += std::min(left - missing, counting.size() - count);
  counting.resize(count);
}

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

std::size_t regularSlots(const ContestSettings& settings, const Team& team) {
  if (settings.numPerTeam <= 0) return 0;
  return std::min(team.members.size(), static_cast<std::size_t>(settings.numPerTeam));
}

void chooseCountingSlots(const ContestSettings& settings, std::span<const std::int32_t> scores,
                         std::vector<std::size_t>& counting) {
  counting.clear();
  if (settings.numToScore <= 0 || settings.numToScore > settings.numPerTeam) return;
  const auto slots = static_cast<std::size_t>(settings.numPerTeam);
  const auto counted = static_cast<std::size_t>(settings.numToScore);
  // Members of 0 and more are in order before the exchanges reach a missing slot.
  const bool anyBelowZero = std::any_of(scores.begin(), scores.end(), [](auto s) { return s < 0; });
  const std::size_t exchanged = anyBelowZero ? slots : scores.size();
  if (exchanged > kMostToExchange) {
    chooseOfHugeTeam(scores, slots, counted, counting);
    return;
  }
  counting.resize(exchanged);
  exchangeByScore(scores, counting);
  counting.resize(std::min(counted, exchanged));
  std::erase_if(counting, [&](std::size_t slot) { return slot >= scores.size(); });
}

RankValues totalsOf(const Contest& contest, const std::vector<IndividualRankEntry>& totals,
                    ContestantNumber number) {
  const std::size_t position = contest.scores.positionOf(number);
  return position == totals.size() ? RankValues{} : totals[position].values;
}

std::vector<std::size_t> countingSlots(const Contest& contest,
                                       const std::vector<IndividualRankEntry>& totals,
                                       const Team& team) {
  std::vector<std::int32_t> scores;
  for (std::size_t slot = 0; slot < regularSlots(contest.settings, team); ++slot) {
    scores.push_back(memberTotals(contest, totals, team.members[slot]).score);
  }
  std::vector<std::size_t> counting;
  chooseCountingSlots(contest.settings, scores, counting);
  return counting;
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
