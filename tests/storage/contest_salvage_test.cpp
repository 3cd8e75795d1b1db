#include "storage/contest_salvage.h"

#include <gtest/gtest.h>

#include "storage/contest_writer.h"
#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

constexpr int kContestants = 4;
constexpr int kClasses = 3;

/// Reasons scores of which no single damaged or lost digit makes another one.
int scoreOf(int contestant, int classIndex) {
  return 101 * (10 + contestant + kContestants * classIndex);
}

Contest fair(std::int32_t classCount = kClasses) {
  ContestBuilder builder;
  for (std::int32_t k = 0; k < classCount; ++k) {
    builder.addClass({.name = std::string(4, static_cast<char>('K' + k)), .reasons = true});
  }
  builder.team("Avon", "", {"AAAA", "BBBB", "CCCC", "DDDD"});
  Contest& contest = builder.contest;
  for (int i = 0; i < kContestants; ++i) {
    for (int k = 0; k < classCount; ++k) contest.scores[101 + i][k].reasonsScore = scoreOf(i, k);
  }
  return contest;
}

/// Whether a name is one that another contestant or class has.
bool isAnothers(const std::string& name, char own, char first, int count) {
  for (int i = 0; i < count; ++i) {
    const char letter = static_cast<char>(first + i);
    if (letter != own && name == std::string(4, letter)) return true;
  }
  return false;
}

/// How many scores are there, each of them for the contestant and the class it was stored for.
int scoresInPlace(const Contest& whole, const Contest& left) {
  int found = 0;
  for (const auto& [number, records] : left.scores) {
    for (const auto& [k, record] : records) {
      if (record.reasonsScore < 1010 || record.reasonsScore % 101 != 0) continue;
      ++found;
      EXPECT_EQ(record.reasonsScore, scoreRecord(whole, number, k).reasonsScore);
      EXPECT_FALSE(isAnothers(contestantName(left, number), static_cast<char>('A' + number - 101),
                              'A', kContestants));
      EXPECT_FALSE(isAnothers(left.classes.name(k), static_cast<char>('K' + k), 'K', kClasses));
    }
  }
  return found;
}

TEST(ContestSalvage, PutsNoScoreUnderAnotherNameWhateverIsDamaged) {
  for (const std::int32_t classCount : {kClasses, 1}) {
    const Contest contest = fair(classCount);
    const std::string whole = writeContest(contest);
    const int all = kContestants * classCount;
    EXPECT_EQ(writeContest(*salvageContest(whole)), whole);
    const auto check = [&](const std::string& damaged, std::size_t at, int lost) {
      const auto left = salvageContest(damaged);
      ASSERT_TRUE(left || at < whole.find("~~~")) << damaged;
      if (!left) return;
      ASSERT_GE(scoresInPlace(contest, *left), all - lost) << damaged;
      ASSERT_FALSE(testing::Test::HasFailure()) << damaged;
    };
    const std::size_t firstContestant = whole.find("101\t");
    const std::size_t teams = whole.find("~~~~~Teams");
    const std::size_t scores = whole.find("~~~~~Scores");
    for (std::size_t at = whole.find("categories"); at < whole.size(); ++at) {
      SCOPED_TRACE(at);
      // A damaged contestant loses no others' scores, a damaged line's end two lines.
      const bool isEnd = whole[at] == '\r' || whole[at] == '\n';
      int lost = 0;
      if (at >= firstContestant - 3 && at < teams) lost = classCount * (isEnd ? 2 : 1);
      if (at >= teams - 2 && at < whole.find("101\t", scores)) lost = isEnd ? all : 0;
      if (at >= whole.find("101\t", scores)) lost = isEnd ? 2 : 1;
      if (at >= whole.find("~~~~~Con") - 2 && at < firstContestant && isEnd) lost = all;
      for (const char wrong : std::string("\0"
                                          "124\nK",
                                          6)) {
        std::string damaged = whole;
        damaged[at] = wrong;
        ASSERT_NO_FATAL_FAILURE(check(damaged, at, lost));
      }
      ASSERT_NO_FATAL_FAILURE(check(std::string(whole).erase(at, 1), at, lost));
      ASSERT_NO_FATAL_FAILURE(check(whole.substr(0, at), at, all));
      // Whole lines are lost or come twice.
      const std::size_t end = whole.find("\r\n", at) + 2;
      if (at > 0 && whole[at - 1] != '\n') continue;
      ASSERT_NO_FATAL_FAILURE(check(std::string(whole).erase(at, end - at), at, all));
      ASSERT_NO_FATAL_FAILURE(check(std::string(whole).insert(end, whole, at, end - at), at, all));
    }
  }
}

}  // namespace

}  // namespace scorvane
