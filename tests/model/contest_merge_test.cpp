#include "model/contest_merge.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "model/bring_in_scores.h"
#include "model/roster.h"
#include "storage/contest_writer.h"
#include "tests/model/merge_laws.h"
#include "tests/support/contest_builder.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

// SCORVANE_TRIPLES=10000 checks more contests.
TEST(ContestMerge, KeepsItsLaws) {
  const char* wanted = std::getenv("SCORVANE_TRIPLES");
  const int triples = wanted == nullptr ? 400 : std::atoi(wanted);
  int smooth = 0, differing = 0, lost = 0, renumbered = 0, joined = 0;
  for (int round = 0; round < triples; ++round) {
    std::mt19937 random(static_cast<std::uint32_t>(round));
    const Choose choose = [&](std::uint32_t end) { return random() % end; };
    const auto edited = [&](Contest contest, std::uint32_t edits) {
      for (std::uint32_t i = choose(edits); i > 0; --i) editAtRandom(contest, choose);
      return savedAndLoaded(contest);
    };
    const ContestPlan plan{.seed = choose(100),
                           .contestants = static_cast<std::int32_t>(choose(12)),
                           .perTeam = 1 + static_cast<std::int32_t>(choose(3)),
                           .alternates = static_cast<std::int32_t>(choose(2)),
                           .classes = static_cast<std::int32_t>(choose(5)),
                           .reasonsClasses = 1,
                           .questionsClasses = 1,
                           .categories = 2,
                           .groups = 2};
    const Contest base = edited(makeContest(plan), 10);
    const Contest ours = edited(base, 12), theirs = edited(base, 12);
    const Merge merge = mergeContests(base, ours, theirs);
    smooth += merge.isSmooth() ? 1 : 0;
    differing += merge.values.empty() && merge.scores.empty() ? 0 : 1;
    lost += merge.lostRemovals.empty() ? 0 : 1;
    renumbered += merge.numbers.empty() ? 0 : 1;
    joined += merge.contest != ours && merge.contest != theirs ? 1 : 0;
    ASSERT_EQ(brokenMergeLaw(base, ours, theirs), "") << "round " << round << "\nbase\n"
                                                      << writeContest(base) << "\nours\n"
                                                      << writeContest(ours) << "\ntheirs\n"
                                                      << writeContest(theirs) << "\nmerged\n"
                                                      << writeContest(merge.contest);
  }
  for (const int count : {smooth, differing, lost, renumbered, joined}) {
    EXPECT_GT(count, triples / 20);
  }
}

TEST(ContestMerge, GivesClashingTeamsOtherNumbers) {
  const auto with = [](ContestBuilder builder, const std::string& team, const char* first) {
    const bool isAl = std::string(first) == "Al";
    builder.team(team, "", {first, isAl ? "Bo" : "Ben", "Cy", isAl ? "Di" : ""});
    builder.placings(105, isAl ? "A" : "B");
    return savedAndLoaded(builder.contest);
  };
  ContestBuilder base;
  base.addClass({.name = "Steers"}).team("Ash", "", {"An", "Ben", "Cal", "Dan"});
  const Contest ours = with(base, "Elm", "Al");
  const Merge merge = mergeContests(savedAndLoaded(base.contest), ours, with(base, "Fir", "Ed"));
  EXPECT_EQ(numberChangeLines(merge.numbers),
            std::vector<std::string>{"105 to 108 are now 109 to 112"});
  EXPECT_EQ(scoreRecord(merge.contest, 105, 0).letter, 'A');
  EXPECT_EQ(scoreRecord(merge.contest, 109, 0).letter, 'B');
  EXPECT_EQ(contestantName(merge.contest, 109), "Ed");

  // One name for two teams: who finds no room among others forms a second team.
  const Merge two = mergeContests(savedAndLoaded(base.contest), ours, with(base, "Elm", "Ed"));
  EXPECT_EQ(numberChangeLines(two.numbers),
            std::vector<std::string>{"105 to 106 are now 109 to 110"});
  EXPECT_EQ(two.contest.teams.at("Elm"), ours.teams.at("Elm"));
  EXPECT_EQ(two.contest.teams.at("Elm (2)").members, (std::vector{109, 110, 111, 112}));
  ASSERT_EQ(two.values.size(), 1U);
  EXPECT_EQ(two.values[0].subject, "team Elm (2)");
}

TEST(ContestMerge, GivesNobodyTheScoresOfARemovedMember) {
  ContestBuilder base;
  base.addClass({.name = "Steers"}).team("Ash", "", {"An", "Ben"}).team("Elm", "", {"Cal", "Dan"});
  ContestBuilder ours = base, theirs = base;
  removeTeam(ours.contest, "Ash");
  ours.team("Ash", "", {"An", "Eve"});  // entered again, under new numbers
  theirs.placings(101, "A").placings(102, "B");
  const Contest known = savedAndLoaded(base.contest);
  const Merge merge =
      mergeContests(known, savedAndLoaded(ours.contest), savedAndLoaded(theirs.contest));
  for (const auto& [number, name] : merge.contest.contestantNames) {
    const char letter = name == "An" ? 'A' : name == "Ben" ? 'B' : kNoLetter;
    EXPECT_EQ(scoreRecord(merge.contest, number, 0).letter, letter) << number << " " << name;
  }
  ASSERT_EQ(merge.lostRemovals.size(), 1U);
  EXPECT_EQ(merge.lostRemovals[0].subject, "102 Ben");

  // Nor of somebody of the same name whose place in the team was taken.
  ours = base;
  replaceTeam(ours.contest, "Elm", "Ash", ours.contest.teams["Elm"]);
  ours.contest.contestantNames[103] = "An";
  const Merge other =
      mergeContests(known, savedAndLoaded(ours.contest), savedAndLoaded(theirs.contest));
  EXPECT_EQ(scoreRecord(other.contest, 101, 0).letter, 'A');
  EXPECT_EQ(scoreRecord(other.contest, 103, 0).letter, kNoLetter);
}

TEST(ContestMerge, LeavesOutAndListsTheirCategoriesThatHaveNoRoom) {
  Contest base = makeContest({.classes = 2});
  base.categories = {"Beef", "Sheep"};
  Contest ours = base, theirs = base;
  for (int k = 0; k < 24; ++k) {
    ours.categories.push_back("Ours " + std::to_string(100000 + k));
    theirs.categories.push_back("Theirs " + std::to_string(1000 + k));
  }
  theirs.classes.categoryIndex = {1, 20};
  const Merge merge = mergeContests(base, ours, theirs);
  EXPECT_EQ(merge.contest.categories, ours.categories);
  EXPECT_EQ(merge.contest.classes.categoryIndex, (std::vector<std::int32_t>{1, 1}));
  ASSERT_EQ(merge.values.size(), 24U);
  EXPECT_EQ(merge.values[0].subject, "category Theirs 1000");
  EXPECT_EQ(merge.values[23].sides.there, "Theirs 1023");
}

TEST(BringInScores, TakesOverWhatIsMissing) {
  ContestBuilder builder;
  builder.addClass({.name = "Steers"})
      .addClass({.name = "Ewes", .questions = true})
      .team("Ash", "", {"An", "Ben"});
  builder.placings(101, "A").placings(102, "B");
  const Contest here = builder.contest;
  Contest there = here;
  there.scores[101][0].letter = 'C';
  there.scores[101][1] = {'D', 0, 30, 30};
  there.scores[102][0].letter = kNoLetter;
  there.contestantNames[102] = "Bo";
  const BroughtScores brought = bringInScores(here, there);
  EXPECT_EQ(brought.broughtIn.size(), 2U);
  EXPECT_EQ(brought.differing.size(), 1U);
  EXPECT_EQ(brought.people.here, std::vector<std::string>{"102 Ben"});
  EXPECT_EQ(brought.people.there, std::vector<std::string>{"102 Bo"});
  EXPECT_EQ(scoreRecord(brought.contest, 101, 0), scoreRecord(here, 101, 0));
  EXPECT_EQ(brought.leftOut.size(), 1U) << "the class has no reasons";
  EXPECT_EQ(scoreRecord(brought.contest, 101, 1),
            (ScoreRecord{'D', placingScore('D', 'A', {2, 3, 4}), 0, 30}));
}

TEST(ContestMerge, KnowsAnotherContest) {
  ContestBuilder builder;
  builder.addClass({.name = "Steers"}).team("Ash", "", {"An", "Ben", "Cal", "Dan"});
  Contest other = builder.contest;
  other.contestantNames[101] = other.contestantNames[102] = "Eve";
  EXPECT_TRUE(isSameContest(builder.contest, other));
  other.contestantNames[103] = "Eve";
  EXPECT_FALSE(isSameContest(builder.contest, other));
  other = builder.contest;
  other.classes.className[0] = "Ewes";
  EXPECT_FALSE(isSameContest(builder.contest, other));
}

}  // namespace

}  // namespace scorvane
