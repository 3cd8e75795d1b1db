#include "storage/contest_reader.h"

#include <gtest/gtest.h>

#include "model/new_contest.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"
#include "tests/support/contest_builder.h"

namespace {

using namespace std::string_literals;

Contest read(const std::string& bytes) {
  auto reading = readContest(bytes);
  EXPECT_TRUE(std::holds_alternative<Contest>(reading)) << bytes;
  return std::holds_alternative<Contest>(reading) ? std::get<Contest>(reading) : Contest{};
}

constexpr int kRead = -1;
constexpr int kNotAContest = static_cast<int>(ContestFault::notAContest);
constexpr int kMismatch = static_cast<int>(ContestFault::scoreCountMismatch);

/// The fault found in the bytes; -1 when they are read.
int faultIn(std::string_view bytes) {
  const auto reading = readContest(bytes);
  const auto* fault = std::get_if<ContestFault>(&reading);
  return fault == nullptr ? kRead : static_cast<int>(*fault);
}

TEST(ContestReader, FillsTheWholeContest) {
  ContestBuilder builder;
  Contest& expected = builder.contest;
  expected.settings = {
      "County Fair", "Senior Division", "July 04, 2026", 101, 2, 3, 1, true, 10, 3, 2};
  expected.groupLetters = {'A', 'B', 'C'};
  builder.categories({"Beef", "Swine"})
      .addClass({"Market Steers", true, false, 'C', {2, 5, 3}, 0})
      .addClass({"", false, true, ' ', {0, 0, 0}, 1})
      .team("Clover", "", {"Ann Lee", "Ben Ode", ""});
  expected.reasonsPlace[101] = {1, 0};
  expected.reasonsOrder.reset(3, 2);
  expected.reasonsOrder.setCell(0, 1, 101);
  const ScoreRecord blank;
  expected.scores[101] = ClassScores::fromEntries({{0, {'C', 50, 44, 0}}, {1, {'Z', 0, 0, 38}}});
  expected.scores[102] = ClassScores::fromEntries({{0, {'X', -2, 0, 0}}, {1, blank}});
  expected.scores[103] = ClassScores::fromEntries({{0, blank}, {1, blank}});
  const Contest contest = read(smallFile());
  EXPECT_TRUE(contest == expected) << writeContest(contest);
}

// What is missing, odd or impossible, and how it is written once it was read.
TEST(ContestReader, MakesSenseOfOddLines) {
  const std::string names = "categories:\tBeef\tSwine",
                    steers = "Market Steers\tYes\tNo\tC\t2,5,3\t0";
  const std::string annsCard = "101\t0\tC\t50\t44\t0", annsPlace = "Ann Lee\t1\t0";
  const std::string nowhere = "Ann Lee\t-1\t-1";
  struct Case {
    std::string from, to, written;
    std::string alsoFrom = "", alsoWritten = "";
  };
  for (const Case& odd : {
           Case{"contestName:\tCounty Fair", "contestName:", "contestName:\tJudging Contest"},
           {"divisionName:\tSenior", "divisionName:\t\tSenior", "divisionName:\tJunior"},
           {"contestDate:\tJuly 04, 2026", "contestDate:\t", "contestDate:\t" + todaysDate()},
           {"startNum:\t101", "startNum:", "startNum:\t101"},
           {"numPerTeam:\t2", "numPerTeam:", "numPerTeam:\t4"},
           // Deliberately what a new contest has the other way round.
           {"numToScore:\t1", "numToScore:\t", "numToScore:\t20"},
           {"numToReport:\t10", "numToReport:\t", "numToReport:\t3"},
           {"reportPercent:\t1", "reportPercent:\t2", "reportPercent:\t0"},
           {"numGroups:\t3", "numGroups:\t", "numGroups:\t5"},
           {"totalNumPerTeam:\t3", "totalNumPerTeam:", "totalNumPerTeam:\t2", "\t102\t103",
            "\t102"},
           {"numReasonsGroups:\t2", "numReasonsGroups:", "numReasonsGroups:\t1", annsPlace,
            nowhere},
           {names, "categories:\t", "categories:\tnone", "0,0,0\t1", "0,0,0\t0"},
           {names, names + "\r\nx", "categories:\tnone", "0,0,0\t1", "0,0,0\t0"},
           {names, "x\r\ncategories:\tA\t\tB", "categories:\tA\t\tB"},
           {"County Fair", "Cou\rnty\r\r Fa\nir\r", "County Fa\nir"},
           {"County Fair", "County\0 Fair"s, "County"},
           {"County Fair", "County\tFair", "County"},
           // Before there were questions.
           {steers, "Steers\tYes\tF\t1,2,3\t1", "Steers\tYes\tNo\tF\t1,2,3\t1"},
           {steers, "A\tno\tNo\tA\t1,2\t1", "A\tNo\tNo\tA\t1,2,0\t1"},
           {steers, "A\tNo\tNo", "A\tNo\tNo\t \t0,0,0\t0"},
           {steers, "A\tNo\tYes\tA\t1,2,3\t2", "A\tNo\tYes\tA\t1,2,3\t0"},
           {steers, "A\tNo\tYes\tA\t1,2,3\t-1", "A\tNo\tYes\tA\t1,2,3\t0"},
           {annsCard, "101\t0", "101\t0\t \t0\t0\t0"},
           {annsCard, "101\t0\t\t5", "101\t0\t \t0\t0\t0"},
           {annsCard, "101\t0\tBad\t41", "101\t0\tB\t41\t0\t0"},
           {annsCard, "101\t0\tB\tx\t 7\t-3z", "101\t0\tB\t0\t7\t-3"},
           {annsCard, "101\t0\tB\t-2147483648\t4294967298\t123456789",
            "101\t0\tB\t-2147483648\t2147483647\t123456789"},
           {"Clover\t \t101\t102\t103", "Clover\t \t101", "Clover\t \t101\t0\t0"},
           {annsPlace, "Ann Lee\t2\t0", nowhere},
           {annsPlace, "Ann Lee\t0\t3", nowhere},
           {annsPlace, "Ann Lee\t-2\t0", nowhere},
           {annsPlace, "Ann Lee\t0\t-5", nowhere},
           {annsPlace, "Ann Lee\t2000000000\t2000000000", nowhere},
           // Two in one cell: the later number keeps it.
           {"Ben Ode\t-1\t-1", "Ben Ode\t1\t0", "Ben Ode\t1\t0", annsPlace, nowhere},
       }) {
    const std::string given = replaced(smallFile(), odd.from, odd.to);
    ASSERT_NE(given, smallFile()) << odd.from;
    EXPECT_EQ(writeContest(read(given)), replaced(replaced(smallFile(), odd.from, odd.written),
                                                  odd.alsoFrom, odd.alsoWritten));
  }
  const std::string longName = replaced(smallFile(), "County", std::string(100000, 'x'));
  EXPECT_EQ(read(longName).settings.contestName, std::string(500 - 13, 'x'));
  const Contest bare = read(smallFile().substr(smallFile().find("~~~~~Classes")));
  EXPECT_EQ(bare.settings.numToScore, 3);
  EXPECT_EQ(bare.settings.numToReport, 20);
  EXPECT_EQ(bare.categories, std::vector<std::string>{"none"});
}

TEST(ContestReader, RefusesWhatIsNoContest) {
  struct Case {
    std::string from, to;
    int fault;
  };
  const std::string manyKeys = "a\r\nb\r\nc\r\n~~~~~Classes~~~~~";
  for (const auto& [from, to, fault] : {
           Case{"~~~~~Classes~~~~~", manyKeys, kRead},  // 15 lines of settings, one more is refused
           Case{"~~~~~Classes~~~~~", "x\r\n" + manyKeys, kNotAContest},
           Case{"~~~~~Teams~~~~~", "~~~~~Team~~~~~", kNotAContest},
           Case{"~~~~~Scores~~~~~\r\n6", "~~~~~Scores~~~~~\r\n5", kMismatch},
           Case{"~~~~~Scores~~~~~\r\n6", "~~~~~Scores~~~~~\r\n-6", kMismatch},
           Case{"~~~~~Contestants~~~~~\r\n3", "~~~~~Contestants~~~~~\r\n2", kMismatch},
           Case{"~~~~~Contestants~~~~~\r\n3", "~~~~~Contestants~~~~~\r\n-1", kNotAContest},
           Case{"~~~~~Contestants~~~~~\r\n3", "~~~~~Contestants~~~~~\r\n2147483647", kNotAContest},
           Case{"~~~~~Classes~~~~~\r\n2", "~~~~~Classes~~~~~\r\n99999999999999999999",
                kNotAContest},
           Case{"~~~~~Teams~~~~~\r\n1", "~~~~~Teams~~~~~\r\n-1", kNotAContest},
           Case{"totalNumPerTeam:\t3", "totalNumPerTeam:\t2147483647", kRead},
           Case{"~~~~~Teams~~~~~\r\n1", "~~~~~Teams~~~~~\r\n2147483647", kNotAContest},
           Case{"totalNumPerTeam:\t3", "totalNumPerTeam:\t-3", kRead},
           Case{"numReasonsGroups:\t2", "numReasonsGroups:\t2147483647", kRead},
           Case{"numGroups:\t3", "numGroups:\t0", kRead},
           Case{"numGroups:\t3", "numGroups:\t-2147483648", kRead},
       }) {
    EXPECT_EQ(faultIn(replaced(smallFile(), from, to)), fault) << from << " -> " << to;
  }
  // Cut off anywhere, a file is refused, or only its trailer was lost.
  const std::string whole = smallFile();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_EQ(faultIn(whole.substr(0, size)) == kRead, size >= whole.find("0000-0000")) << size;
  }
}

// Everybody is ranked once there are classes, so everybody has an entry before.
TEST(ContestReader, KeepsEntriesForContestantsWithoutClasses) {
  const Contest contest =
      read(fileOf({"~~~~~Classes~~~~~", "0", "~~~~~Contestants~~~~~", "2", "101\tAnn Lee", "102\t",
                   "~~~~~Teams~~~~~", "0", "~~~~~Scores~~~~~", "0"}));
  EXPECT_EQ(contest.scores.size(), 2U);
}

// Records need not come in order; the last one of a contestant and class counts, and those of
// contestants and classes that do not exist are passed over.
TEST(ContestReader, SortsRecords) {
  const std::string cards = smallFile().substr(smallFile().find("101\t0\tC"));
  const std::string given =
      replaced(replaced(smallFile(), "101\tAnn Lee\t1\t0\r\n102\tBen Ode\t-1\t-1\r\n103\t",
                        "103\t\r\n102\tBen Ode\r\n102\tBea Ode"),
               cards,
               fileOf({"103\t1\tB\t1", "102\t1\tC\t2", "103\t0\tD\t3", "102\t1\tE\t4",
                       "101\t0\tF\t5", "102\t2\tG\t6"}));
  const Contest contest = read(given);
  EXPECT_EQ(contest.scores.find(102)->size(), 1U);
  const std::string trailer = cards.substr(cards.find("0000"));
  EXPECT_TRUE(writeContest(contest).ends_with(
      fileOf({"~~~~~Contestants~~~~~", "2", "102\tBea Ode\t-1\t-1", "103\t", "~~~~~Teams~~~~~", "1",
              "Clover\t \t101\t102\t103", "~~~~~Scores~~~~~", "4", "102\t0\t \t0\t0\t0",
              "102\t1\tE\t4\t0\t0", "103\t0\tD\t3\t0\t0", "103\t1\tB\t1\t0\t0"}) +
      trailer));
  EXPECT_EQ(contest.scores.size(), 2U);
}

}  // namespace
