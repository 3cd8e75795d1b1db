#include "model/card_changes.h"

#include <random>
#include <set>

#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

using Cards = std::multiset<std::string>;

Cards cardsOf(const Contest& contest, ScoreValue kind) {
  Cards cards;
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [k, record] : records) {
      if (isEntered(kind, record)) cards.insert(scoreText(kind, record));
    }
  }
  return cards;
}

// Every card is somewhere afterwards, or was listed as typed over or cleared; other kinds of scores
// and placing scores stay true.
TEST(CardChanges, LoseNoCardThatIsNotListed) {
  std::mt19937 random(5);
  const auto pick = [&random](int below) {
    return static_cast<int>(random() % static_cast<unsigned>(below));
  };
  for (int round = 0; round < 500; ++round) {
    ContestBuilder builder;
    for (int k = 0; k < 4; ++k) {
      builder.addClass(
          {.name = "Class", .official = static_cast<char>('A' + pick(24)), .cuts = {2, 3, 4}});
    }
    builder.team("Elm", "", {"Ann", "Bob", "Cy", "Dee"});
    Contest& contest = builder.contest;
    for (int n = 101; n < 105; ++n) {
      for (int k = 0; k < 4; ++k) {
        contest.scores[n][k] = {};
        if (pick(3) == 0) continue;
        contest.scores[n][k] = {pick(5) == 0 ? 'Z' : static_cast<char>('A' + pick(24)), 0, pick(51),
                                pick(51)};
      }
    }
    recomputeAllPlacingScores(contest);
    const auto kind = static_cast<ScoreValue>(pick(3));
    const std::vector<ContestantNumber> some = {101, 103, 104};
    const int way = pick(3);
    const auto changes = way == 0   ? movedCards(contest, kind, some, pick(4), pick(4))
                         : way == 1 ? exchangedCards(contest, kind, 101, 103, pick(4))
                                    : clearedCards(contest, kind, some, pick(4));
    Contest after = contest;
    applyCardChanges(after, changes);
    Cards expected = cardsOf(contest, kind);
    for (const CardChange& change : changes) {
      const bool isLost = way == 0 ? isTypedOver(kind, change) : way == 2;
      if (isLost) expected.erase(expected.find(scoreText(kind, change.before)));
    }
    EXPECT_EQ(cardsOf(after, kind), expected) << round;
    for (const ScoreValue other :
         {ScoreValue::letter, ScoreValue::reasons, ScoreValue::questions}) {
      if (other == kind) continue;
      EXPECT_EQ(cardsOf(after, other), cardsOf(contest, other)) << round;
    }
    Contest computed = after;
    recomputeAllPlacingScores(computed);
    EXPECT_EQ(after, computed) << round;
  }
}

}  // namespace

}  // namespace scorvane
