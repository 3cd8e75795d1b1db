#include <gtest/gtest.h>

#include "model/class_lists.h"
#include "results/individual_ranking.h"
#include "results/team_ranking.h"
#include "tests/support/random_contest.h"

namespace scorvane {

namespace {

// A second, slow ranking: every sum record by record, every team member by member.

RankValues sumSlowly(const Contest& contest, ContestantNumber number, ScoreKind kind,
                     const ClassSet& classSet) {
  RankValues sum;
  for (std::int32_t c = 0; c < 20; ++c) {
    const ScoreRecord& record = scoreRecord(contest, number, c);
    const std::array<std::int32_t, 4> byKind = {
        record.placingScore + record.reasonsScore + record.questionsScore, record.placingScore,
        record.reasonsScore, record.questionsScore};
    const bool questions = kind == ScoreKind::questions;
    sum.totalOverall += byKind[0];
    if (contest.classes.hasReasons(c)) sum.totalReasons += record.reasonsScore;
    if (questions ? contest.classes.hasQuestions(c) : contest.classes.hasReasons(c)) {
      sum.reasonsClassPlacings += record.placingScore;
    }
    if (std::find(classSet.begin(), classSet.end(), c) == classSet.end()) continue;
    sum.score += byKind.at(static_cast<std::size_t>(kind));
    sum.setReasons += questions ? record.questionsScore : record.reasonsScore;
  }
  return sum;
}

// What the ordering compares, so that plain ascending order is the ranking.
std::array<std::int32_t, 4> keyOf(const RankValues& v, TieOrder order) {
  switch (order) {
    case TieOrder::reasons:
      return {-v.score, v.reasonsClassPlacings, -v.totalOverall, 0};
    case TieOrder::category:
      return {-v.score, -v.setReasons, -v.totalReasons, -v.totalOverall};
    default:
      return {-v.score, -v.totalReasons, v.reasonsClassPlacings, 0};
  }
}

RankValues teamSlowly(const Contest& contest, const Team& team, ScoreKind kind,
                      const ClassSet& classSet) {
  std::vector<RankValues> members;
  for (std::int32_t slot = 0; slot < contest.settings.numPerTeam; ++slot) {
    const auto at = static_cast<std::size_t>(slot);
    const ContestantNumber number = at < team.members.size() ? team.members[at] : 0;
    const bool empty = contestantName(contest, number).empty();
    members.push_back(empty ? RankValues{} : sumSlowly(contest, number, kind, classSet));
  }
  for (std::size_t i = 0; i < members.size(); ++i) {
    for (std::size_t j = i + 1; j < members.size(); ++j) {
      if (members[i].score < members[j].score) std::swap(members[i], members[j]);
    }
  }
  RankValues sum;
  if (contest.settings.numToScore > contest.settings.numPerTeam) return sum;
  members.resize(static_cast<std::size_t>(contest.settings.numToScore));
  for (const RankValues& member : members) {
    sum = {sum.score + member.score, sum.totalReasons + member.totalReasons,
           sum.reasonsClassPlacings + member.reasonsClassPlacings,
           sum.totalOverall + member.totalOverall, sum.setReasons + member.setReasons};
  }
  return sum;
}

template <typename Ranking, typename Slowly>
void expectRanked(const Ranking& ranking, std::size_t size, TieOrder order, Slowly slowly) {
  EXPECT_EQ(ranking.size(), size);
  for (const auto& entry : ranking) EXPECT_EQ(entry.values, slowly(entry));
  EXPECT_TRUE(std::is_sorted(ranking.begin(), ranking.end(), [&](const auto& a, const auto& b) {
    return keyOf(a.values, order) < keyOf(b.values, order);
  }));
}

TEST(Ranking, AgreesWithASlowOneOnRandomContests) {
  for (unsigned seed = 1; seed <= 300; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const Contest contest = randomContest(random);
    ClassSet classSet = allClasses(contest.classes);
    const bool whole = random() % 2 == 0 || classSet.empty();
    if (!whole) classSet.erase(classSet.begin());
    for (const ScoreKind kind : kScoreKinds) {
      const bool reasons = kind == ScoreKind::reasons || kind == ScoreKind::questions;
      const TieOrder order = reasons ? TieOrder::reasons
                             : whole ? TieOrder::overall
                                     : TieOrder::category;
      const auto totals = contestantTotals(contest, kind, classSet);
      EXPECT_EQ(tieOrderFor(contest, kind, classSet), order);
      expectRanked(rankIndividuals(totals, order), contest.scores.size(), order,
                   [&](const IndividualRankEntry& entry) {
                     return sumSlowly(contest, entry.contestantNumber, kind, classSet);
                   });
      expectRanked(rankTeams(contest, totals, order), contest.teams.size(), order,
                   [&](const TeamRankEntry& entry) {
                     return teamSlowly(contest, entry.team->second, kind, classSet);
                   });
    }
  }
}

TEST(Ranking, CountsAbsurdScoresWithoutHarm) {
  ContestBuilder builder;
  builder.members(2, 2, 2).addClass({.reasons = true}).team("Adams", "", {"Ann", "Bob"});
  builder.scores(101, {{2147483647, 2147483647, 2147483647}}).scores(102, {{2147483647, 5}});
  builder.contest.scores[101][1999999999] = {'A', 1, 1, 1};  // a class that does not exist
  const ClassSet all = allClasses(builder.contest.classes);
  const auto totals = contestantTotals(builder.contest, ScoreKind::overall, all);
  EXPECT_EQ(totals[0].values.score, 2147483645);
  EXPECT_EQ(totals[0].values.totalOverall, -2147483648);
  EXPECT_EQ(rankTeams(builder.contest, totals, TieOrder::overall)[0].values.score, 1);
}

// Exchanging so many would never end; missing slots rank between members with 0 and those below.
TEST(TeamScoring, CountsTheBestOfAbsurdlyManyMembers) {
  std::vector<std::int32_t> many(100000, 10);
  many[500] = many[99999] = 11;
  struct Case {
    std::int32_t perTeam, toScore;
    std::vector<std::int32_t> scores;  ///< of the slots that the team has
    std::vector<std::size_t> counting;
  };
  std::vector<std::size_t> counting = {7, 7};
  for (const auto& [perTeam, toScore, scores, expected] :
       {Case{100000, 3, many, {500, 99999, 0}}, Case{65, 2, {-1, 0, 7}, {2, 1}},
        Case{65, 64, {-1, 7, -2}, {1, 0}}, Case{2147483647, 2147483646, {-1, 7, -2}, {1, 0}},
        Case{-1, -2, {}, {}}}) {
    ContestSettings settings;
    settings.numPerTeam = perTeam;
    settings.numToScore = toScore;
    chooseCountingSlots(settings, scores, counting);
    EXPECT_EQ(counting, expected) << perTeam << ", " << toScore;
  }
}

}  // namespace

}  // namespace scorvane
