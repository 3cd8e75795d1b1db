#include "model/card_changes.h"

#include <random>
#include <set>

#include "tests/support/contest_builder.h"

namespace scorvane {

namespace {

constexpr ScoreValue kKinds[] = {ScoreValue::letter, ScoreValue::reasons, ScoreValue::questions};

using Card = std::pair<ScoreValue, std::string>;

std::multiset<Card> cardsOf(const Contest& contest) {
  std::multiset<Card> cards;
  for (const auto& [number, records] : contest.scores) {
    for (const auto& [k, record] : records) {
      for (const ScoreValue kind : kKinds) {
        if (isEntered(kind, record)) cards.emplace(kind, scoreText(kind, record));
      }
    }
  }
  return cards;
}

// Every card is somewhere afterwards, or was listed as typed over or cleared; other kinds of scores
// and placing scores stay true.
TEST(CardChanges, LoseNoCardThatIsNotListed) {
  std::mt19937 random(5);
  const auto pick = [&](std::uint32_t below) { return static_cast<int>(random() % below); };
  for (int round = 0; round < 500; ++round) {
    ContestBuilder builder;
    for (int k = 0; k < 4; ++k) builder.addClass({.official = static_cast<char>('A' + pick(24))});
    Contest& contest = builder.team("Elm", "", {"Ann", "Bob", "Cy", "Dee"}).contest;
    for (int card = 0; card < 16; ++card) {
      ScoreRecord& record = contest.scores[101 + card / 4][card % 4];
      if (pick(3) > 0) record = {"ABCKLMVWXZ "[pick(11)], 0, pick(51), pick(51)};
    }
    recomputeAllPlacingScores(contest);
    const ScoreValue kind = kKinds[pick(3)];
    const std::vector<ContestantNumber> some = {101, 103, 104};
    const int way = pick(3);
    const auto changes = way == 0   ? movedCards(contest, kind, some, pick(4), pick(4))
                         : way == 1 ? exchangedCards(contest, kind, 101, 103, pick(4))
                                    : clearedCards(contest, kind, some, pick(4));
    auto expected = cardsOf(contest);
    for (const CardChange& change : changes) {
      const bool isLost = way == 0 ? isTypedOver(kind, change) : way == 2;
      if (isLost) expected.erase(expected.find({kind, scoreText(kind, change.before)}));
    }
    applyCardChanges(contest, changes);
    EXPECT_EQ(cardsOf(contest), expected) << round;
    const Contest after = contest;
    recomputeAllPlacingScores(contest);
    EXPECT_EQ(after, contest) << round;
  }
}

}  // namespace

}  // namespace scorvane
