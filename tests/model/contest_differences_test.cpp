// What differs between two contests, and changes of cards told in the same terms.
#include "model/contest_differences.h"

#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <set>

#include "model/card_changes.h"
#include "model/change_summary.h"
#include "model/roster.h"
#include "storage/contest_writer.h"
#include "tests/model/merge_laws.h"
#include "tests/support/contest_builder.h"
#include "text/format.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

using Change = std::function<void(Contest&)>;

Contest fair() {
  ContestBuilder builder;
  builder.members(2, 3, 2).categories({"Beef", "Sheep"});
  builder.addClass({.name = "Steers", .reasons = true, .official = 'B'});
  builder.addClass({.name = "Ewes", .questions = true, .category = 1}).addClass({.name = "Rams"});
  builder.team("Elm", "Mr. Oak", {"Ann", "Bob", ""}).team("Ash", "", {"Cy", "Dee", "Eve"});
  builder.placings(101, "AB ").placings(102, "C ").placings(104, "DDD").placings(105, "   ");
  builder.contest.reasonsOrder.reset(6, 1);
  return builder.contest;
}

void renameTeam(Contest& c, const std::string& oldName, const std::string& newName) {
  replaceTeam(c, oldName, newName, Team(c.teams[oldName]));
}

TEST(ChangeSummary, TellsWhatASaveChanged) {
  struct Case {
    Change change;
    std::string told;
  };
  const auto enter = [](Contest& c, std::int32_t k) {
    for (const ContestantNumber n : {101, 105, 106}) c.scores[n][k].letter = 'E';
  };
  for (const Case& c : {
           Case{[](Contest&) {}, "nothing"},
           {[&](Contest& x) { enter(x, 2); }, "+3 scores in class 3"},
           {[&](Contest& x) { enter(x, 1); }, "+2 scores in class 2; 1 score changed in class 2"},
           {[&](Contest& x) { enter(x, 0), enter(x, 1), enter(x, 2); },
            "+7 scores in 3 classes; 2 scores changed in 3 classes"},
           {[](Contest& x) { x.scores[104][1] = {}; }, "-1 score in class 2"},
           {[](Contest& x) { x.scores[104][1].questionsScore = 9; }, "+1 score in class 2"},
           {[](Contest& x) { x.scores[104][1].placingScore = 9; },
            "1 score computed anew in class 2"},
           {[](Contest& x) {
              x.classes.cut2[2] = 9;
              recomputeAllPlacingScores(x);
            },
            "class 3 cuts"},
           {[](Contest& x) {
              x.classes.officialLetter[2] = 'X';
              x.classes.cut2[2] = 9;
              recomputeAllPlacingScores(x);
            },
            "class 3 official placing, cuts"},
           {[](Contest& x) { x.classes.className[0] = "Bulls"; }, "class 1 name"},
           {[](Contest& x) { std::swap(x.classes.className[0], x.classes.className[2]); },
            "order of the classes; class 1 reasons, official placing; "
            "class 3 reasons, official placing; +2 scores in class 1; -2 scores in class 3"},
           {[](Contest& x) { x.classes.add("Hogs", false, false, 'A', {}, 0); },
            "class 4 Hogs added"},
           {[](Contest& x) { x.classes.clear(); }, "-3 classes; -6 scores in 3 classes"},
           {[](Contest& x) { removeTeam(x, "Elm"); },
            "team Elm removed; contestant 101 Ann removed; contestant 102 Bob removed; "
            "-2 scores in class 1; -1 score in class 2"},
           {[](Contest& x) { renameTeam(x, "Elm", "Yew"); }, "team Elm is now team Yew"},
           {[](Contest& x) {
              x.teams["Elm"].coach = "";
              std::swap(x.teams["Elm"].members[0], x.teams["Elm"].members[1]);
            },
            "team Elm coach, members"},
           {[](Contest& x) { x.contestantNames[104] = "Cyd"; }, "contestant 104 Cyd renamed"},
           {[](Contest& x) { x.contestantNames[105] = ""; }, "contestant 105 Dee removed"},
           {[](Contest& x) { x.contestantNames[103] = "Zoe"; }, "contestant 103 Zoe added"},
           {[](Contest& x) {
              x.reasonsPlace[104] = {0, 3};
            },
            "reasons order"},
           {[](Contest& x) { x.categories[1] = "Goats"; },
            "class 2 category; category Sheep removed; category Goats added"},
           {[](Contest& x) {
              x.settings.numGroups = 9;
              x.settings.reportPercent = true;
            },
            "number of groups; number to report"},
       }) {
    Contest after = fair();
    c.change(after);
    EXPECT_EQ(changeSummary(fair(), after, 200), c.told);
  }
  Contest after = fair();
  removeTeam(after, "Elm");
  EXPECT_EQ(changeSummary(fair(), after, 80),
            "team Elm removed; contestant 101 Ann removed; and 3 more");
  EXPECT_EQ(changeSummary(fair(), after, 1), "team Elm removed; and 4 more");
}

TEST(ContestDifferences, MatchClassesByNameThenByPosition) {
  const auto classes = [](const std::vector<std::string>& names) {
    JudgingClasses made;
    for (const std::string& name : names) made.add(name, false, false, 'A', {}, 0);
    return made;
  };
  using Matches = std::vector<ClassMatch>;
  EXPECT_EQ(matchClasses(classes({"A", "B", "A", "C"}), classes({"A", "A", "D", "B"})),
            (Matches{{0, 0}, {1, 3}, {2, 1}, {3, std::nullopt}, {std::nullopt, 2}}));
  EXPECT_EQ(matchClasses(classes({"A", "B"}), classes({"X", "A"})),
            (Matches{{0, 1}, {1, std::nullopt}, {std::nullopt, 0}}));
  EXPECT_EQ(matchClasses(classes({"A", "B"}), classes({"A", "X"})), (Matches{{0, 0}, {1, 1}}));
  EXPECT_EQ(matchClasses(classes({"A", "B"}), classes({"X"})),
            (Matches{{0, std::nullopt}, {1, std::nullopt}, {std::nullopt, 0}}));
}

// By group; the cards of reasons by reasons group and position.
TEST(ContestDifferences, ComeInTheOrderInWhichCardsLie) {
  const Contest empty = [] {
    Contest contest = fair();
    contest.settings.numGroups = 2;
    regroupContestants(contest);
    contest.scores.clear();
    contest.reasonsPlace[104] = {0, 1};
    contest.reasonsPlace[101] = {1, 0};
    contest.reasonsPlace[105] = {0, 0};
    return contest;
  }();
  Contest full = empty;
  for (const ContestantNumber n : {101, 102, 104, 105}) {
    full.scores[n][0] = {'A', 0, 40, 0};
    full.scores[n][1] = {'A', 0, 0, 30};
  }
  full.scores[999][0].letter = 'B';  // nobody's
  for (const auto& differences :
       {contestDifferences(full, empty), contestDifferences(empty, full)}) {
    std::string order;
    for (const ScoreDifference& score : differences.scores) {
      order += formatText("%zu.%d:%d ", score.classMatch + 1, static_cast<int>(score.value),
                          score.number);
    }
    EXPECT_EQ(order,
              "1.0:101 1.0:105 1.0:102 1.0:104 1.1:105 1.1:104 1.1:101 1.1:102 "
              "2.0:101 2.0:105 2.0:102 2.0:104 2.2:101 2.2:105 2.2:102 2.2:104 ");
  }
}

// Two contests made alike, some values of one changed at random: they differ as their files do.
TEST(ContestDifferences, AreEmptyExactlyWhenTheFilesAreEqual) {
  std::mt19937 random(20261121);
  const Choose below = [&](std::uint32_t end) { return random() % end; };
  const ContestPlan plan{.contestants = 12,
                         .perTeam = 2,
                         .alternates = 1,
                         .classes = 3,
                         .reasonsClasses = 1,
                         .questionsClasses = 1,
                         .categories = 5,
                         .groups = 2};
  const Contest before = savedAndLoaded(makeContest(plan));
  int equal = 0;
  for (int round = 0; round < 3000; ++round) {
    Contest after = before;
    const auto number = static_cast<ContestantNumber>(101 + below(13));
    ScoreRecord& card = after.scores[number][static_cast<std::int32_t>(below(4))];
    // What no dialog does, and what they do.
    if (below(20) == 0) card.placingScore = 7;
    if (below(20) == 0) card.letter = 'C';
    if (below(20) == 0) after.contestantNames.erase(number);
    if (below(20) == 0) std::swap(after.classes.className[0], after.classes.className[2]);
    if (below(20) == 0) after.classes.cut1[0] = 4;
    if (below(20) == 0) after.settings.reportPercent = true;
    if (below(20) == 0) std::swap(after.categories[3], after.categories[4]);
    for (std::uint32_t edits = below(3); edits > 0; --edits) editAtRandom(after, below);
    const bool same = writeContest(before) == writeContest(after);
    equal += same ? 1 : 0;
    const ContestDifferences there = contestDifferences(after, before);
    const ContestDifferences back = contestDifferences(before, after);
    ASSERT_EQ(there.empty(), same) << writeContest(before) << writeContest(after);
    ASSERT_EQ(back.empty(), same);
    ASSERT_EQ(there.values.size(), back.values.size());
    ASSERT_EQ(there.counts.onlyOn,
              (decltype(back.counts.onlyOn){back.counts.onlyOn.there, back.counts.onlyOn.here}));
    ASSERT_EQ(there.counts.onBothSides, back.counts.onBothSides);
  }
  EXPECT_GT(equal, 100);
}

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
