#include "model/contest_merge.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "storage/contest_writer.h"
#include "tests/model/merge_laws.h"
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
    ASSERT_EQ(brokenMergeLaw(base, ours, theirs), "")
        << "round " << round << "\nbase\n"
        << writeContest(base) << "\nours\n"
        << writeContest(ours) << "\ntheirs\n"
        << writeContest(theirs) << "\nmerged\n"
        << writeContest(merge.contest) << "\ntwice\n"
        << writeContest(mergeContests(base, merge.contest, theirs).contest) << "\nunchanged\n"
        << writeContest(mergeContests(base, base, theirs).contest);
  }
  for (const int count : {smooth, differing, lost, renumbered, joined}) {
    EXPECT_GT(count, triples / 20);
  }
}

}  // namespace

}  // namespace scorvane
