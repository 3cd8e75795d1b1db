// The reasons order: how it is dealt out and closes up, and the reports that show it.
#include "reasons/reasons_order_generation.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "model/reasons_places.h"
#include "reasons/reasons_reports.h"
#include "tests/reasons/reasons_contest.h"
#include "tests/support/approved.h"
#include "text/report_marks.h"

namespace scorvane {

namespace {

using Groups = std::vector<std::int32_t>;

Groups groupsOfSpeakers(Contest contest) {
  EXPECT_EQ(generateReasonsOrder(contest, 7), std::nullopt);
  EXPECT_TRUE(orderAgreesWithPlaces(contest));
  Groups groups;
  for (const auto& [number, place] : contest.reasonsPlace) groups.push_back(place.group);
  return groups;
}

TEST(ReasonsOrderGeneration, DealsTheGroupsOutInTheirPattern) {
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(3, 3, 6)), (Groups{0, 1, 2, 0, 1, 2}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(6, 3, 6)), (Groups{0, 3, 4, 1, 2, 5}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(9, 3, 8)), (Groups{0, 3, 4, 7, 8, 2, 3, 6}));
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(5, 3, 6)), (Groups{0, 1, 2, 3, 4, 0}));
  // Reserved slots and former places do not count.
  Contest contest = reasonsContest(3, 3, 5);
  contest.contestantNames[102] = "";
  contest.reasonsPlace[102] = {1, 0};
  contest.reasonsPlace[999] = {0, 4};
  EXPECT_EQ(groupsOfSpeakers(contest), (Groups{0, kNobody, 1, 2, 0}));
}

// The generator's first draws from seed 1 are 41, 18467 and 6334. Of three rows they name 2; 2
// again, then 1. That leaves row 0 for the gap to close.
TEST(ReasonsOrderGeneration, DrawsRowsUntilOneIsFree) {
  Contest contest = reasonsContest(1, 1, 2);
  Contest expected = contest;
  contest.reasonsOrder.reset(3, 9);
  ASSERT_EQ(generateReasonsOrder(contest, 1), std::nullopt);
  expected.reasonsOrder.reset(3, 1);
  placeGroup(expected, 0, {102, 101});
  EXPECT_EQ(contest, expected);
  // Chance does not hit the last rows of many in time; the first free ones are taken.
  EXPECT_EQ(groupsOfSpeakers(reasonsContest(1, 1, 500)), Groups(500, 0));
}

// Of ten rows seed 1 names 1, 7, 4, 0, 9; seed 2 names 5, 6, 8, 5 again and so 4, then 0.
TEST(ReasonsOrderGeneration, FollowsItsSeed) {
  struct Case {
    std::uint32_t seed;
    std::vector<std::int32_t> draws;
    std::vector<ContestantNumber> speakers;
  };
  for (const auto& [seed, draws, speakers] :
       {Case{1, {41, 18467, 6334, 26500, 19169}, {104, 101, 103, 102, 105}},
        Case{2, {45, 29216, 24198, 17795, 29484}, {105, 104, 101, 102, 103}}}) {
    ReasonsRandom random(seed);
    for (const std::int32_t draw : draws) EXPECT_EQ(random.draw(), draw) << seed;
    Contest contest = reasonsContest(1, 1, 5);
    contest.reasonsOrder.reset(10, 1);
    ASSERT_EQ(generateReasonsOrder(contest, seed), std::nullopt);
    std::vector<ContestantNumber> order;
    for (const auto& [cell, number] : contest.reasonsOrder.cells()) order.push_back(number);
    EXPECT_EQ(order, speakers) << seed;
  }
}

// Before the teams are entered: reserved slots take no part.
TEST(ReasonsOrderGeneration, RunsThroughWithNobodyToPlace) {
  Contest contest = reasonsContest(2, 1, 0);
  contest.contestantNames[101] = "";
  contest.reasonsPlace[101] = {1, 0};
  EXPECT_EQ(generateReasonsOrder(contest, 1), std::nullopt);
  EXPECT_EQ(reasonsPlaceOf(contest, 101), ReasonsPlace{});
}

TEST(ReasonsOrderGeneration, RefusesAndChangesNothing) {
  struct Case {
    std::int32_t groups;
    int classes;
    std::int64_t rows;
  };
  std::string refusals;
  for (const auto& [groups, classes, rows] :
       {Case{2, 3, 4}, Case{2, 0, 4}, Case{0, 0, 4}, Case{2, 1, 0}, Case{2, 1, 1}}) {
    Contest contest = reasonsContest(groups, classes, 4);
    contest.reasonsOrder.reset(rows, groups);
    placeGroup(contest, 0, {102, 101});
    const Contest before = contest;
    refusals += generateReasonsOrder(contest, 1).value_or("none") + '\n';
    EXPECT_EQ(contest, before) << refusals;
  }
  expectApproved(refusals, "reasons/reasons_order_refused.txt");
}

TEST(ReasonsBands, AreAtMostEightWideAndEven) {
  using Widths = std::vector<std::int32_t>;
  for (const auto& [groups, expected] : std::map<std::int32_t, Widths>{
           {8, {8}}, {9, {5, 4}}, {17, {6, 6, 5}}, {25, {7, 7, 7, 4}}, {0, {0}}, {-3, {0}}}) {
    Widths widths;
    std::int32_t first = 0;
    for (const ReasonsBand& band : reasonsBands(groups)) {
      EXPECT_EQ(band.first, first);
      first = band.end;
      widths.push_back(band.width());
    }
    EXPECT_EQ(widths, expected) << groups;
  }
  EXPECT_EQ(reasonsBands(2147483647).size(), 1250U);
}

// Ten groups, so two bands of five: the first group has two speakers, group 4 none, group 7 three.
// 115 has no place, 116 is a reserved slot.
Contest twoBandContest() {
  Contest contest = reasonsContest(10, 3, 16);
  std::int32_t group = 0;
  for (const std::vector<ContestantNumber>& speakers :
       std::vector<std::vector<ContestantNumber>>{{104, 101},
                                                  {102, 105},
                                                  {103},
                                                  {},
                                                  {106},
                                                  {107},
                                                  {108, 113, 114},
                                                  {109},
                                                  {110},
                                                  {111, 112}}) {
    placeGroup(contest, group++, speakers);
  }
  contest.contestantNames[116] = "";
  contest.classes.officialLetter[2] = 'N';
  contest.scores[104][2] = {'N', 50, 47, 0};
  contest.scores[101][2] = {'Z', 0, 8, 0};
  contest.scores[108][2] = {'A', 33, 39, 0};
  return contest;
}

// 114, the third speaker of group 7, is not on the sheets: they end where the first group ends.
TEST(ReasonsSheet, ShowsPlacingsOrScoresInBandsOfReasonsClassesOnly) {
  Contest contest = twoBandContest();
  const std::string scores = reasonsSheet(contest, ReasonsSheet::verification, 2).value_or("");
  expectApproved(reasonsSheet(contest, ReasonsSheet::order, 2).value_or("") +
                     scores.substr(0, scores.find(kPageBreakLine)),
                 "reasons/sheets_of_ten_groups.txt");
  for (const std::int32_t index : {-1, 0, 1, 8}) {
    EXPECT_EQ(reasonsSheet(contest, ReasonsSheet::order, index).has_value(), index == 1) << index;
  }
  contest.reasonsOrder.reset(0, 10);
  EXPECT_FALSE(reasonsSheet(contest, ReasonsSheet::order, 1));
}

// Three classes in bands of five: in the room form turn i of group c is class (6i + c) mod 3. In
// the plain form the first groups of a band and its last are enough.
TEST(ReasonsOrderReport, ShowsOrderUnassignedAndClassOrderInBands) {
  const Contest contest = twoBandContest();
  static const std::regex between("  Reasons Group  [34789] .*\n.*\n.*\n\n");
  const std::string plain = reasonsOrderReport(contest, ReasonsOrderForm::plain);
  expectApproved(
      std::regex_replace(plain, between, "") + reasonsOrderReport(contest, ReasonsOrderForm::room),
      "reasons/reasons_orders.txt");
}

TEST(ReasonsOrderReport, EndsAtAGapInTheFirstRowAndNeedsNoReasonsClasses) {
  Contest gap = reasonsContest(1, 0, 2);
  placeGroup(gap, 0, {kNobody, 101});
  const std::string report = reasonsOrderReport(gap, ReasonsOrderForm::plain);
  const std::size_t grid = report.find("   ----- \n") + 10;
  EXPECT_EQ(report.substr(grid),
            "\n\t\tContestants Not Assigned in Reasons Order\n"
            "     102 - Taker 102\n\n\n"
            "Reasons Class Order\n-------------------\n\n\n\n");
}

// Rows end with their own band, whatever the groups on either side of it have.
TEST(ReasonsOrderReport, HasNoBlankRowsBesideFullerBands) {
  Contest contest = reasonsContest(17, 1, 17);
  for (std::int32_t g = 0; g < 17; ++g) placeGroup(contest, g, {101 + g});
  contest.reasonsOrder.setCell(1, 6, 118);   // the first group of the second band
  contest.reasonsOrder.setCell(1, 11, 119);  // its last group
  const std::string report = reasonsOrderReport(contest, ReasonsOrderForm::plain);
  EXPECT_EQ(report.find("\n" + std::string(5 * 9, ' ')), std::string::npos);
}

// The rule itself, word by word: as often as there are rows, whatever is below an empty cell
// moves up by one. Whoever gave up the place stays unassigned.
void moveUpSlowly(Contest& contest) {
  ReasonsOrder& order = contest.reasonsOrder;
  const std::int32_t rows = order.rowCount();
  for (std::int32_t step = 0; step < rows * rows; ++step) {
    for (std::int32_t g = 0; g < contest.settings.numReasonsGroups; ++g) {
      if (order.cell(step % rows, g) != kNobody) continue;
      for (std::int32_t s = step % rows + 1; s < rows; ++s) {
        const std::int32_t moved = order.cell(s, g);
        order.setCell(s - 1, g, moved);
        order.setCell(s, g, kNobody);
        if (reasonsPlaceOf(contest, moved).isAssigned()) --contest.reasonsPlace[moved].position;
      }
    }
  }
}

TEST(ReasonsCompaction, AgreesWithTheRuleOnRandomTables) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 random(seed);
    Contest contest = reasonsContest(3, 1, static_cast<int>(random() % 12));
    for (const auto& [number, name] : contest.contestantNames) {
      const auto cell = static_cast<std::int32_t>(random() % (contest.teams.size() * 3));
      if (contest.reasonsOrder.cell(cell / 3, cell % 3) != kNobody) continue;  // unassigned
      contest.reasonsOrder.setCell(cell / 3, cell % 3, number);
      if (random() % 4 != 0) contest.reasonsPlace[number] = {cell % 3, cell / 3};
    }
    Contest expected = contest;
    moveUpSlowly(expected);
    compactReasonsOrder(contest);
    ASSERT_EQ(contest, expected) << "seed " << seed;
  }
}

}  // namespace

}  // namespace scorvane
