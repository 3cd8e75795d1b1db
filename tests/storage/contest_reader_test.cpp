#include "storage/contest_reader.h"

#include <gtest/gtest.h>

#include "model/new_contest.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"

namespace {

Contest read(const std::string& bytes) {
  auto reading = readContest(bytes);
  EXPECT_TRUE(std::holds_alternative<Contest>(reading)) << bytes;
  return std::holds_alternative<Contest>(reading) ? std::get<Contest>(reading) : Contest{};
}

/// The fault found in the small contest with one place changed; -1 when it is read.
int faultWith(std::string_view from, std::string_view to) {
  const std::string bytes = replaced(smallFile(), from, to);
  EXPECT_NE(bytes, smallFile()) << from;
  const auto reading = readContest(bytes);
  const auto* fault = std::get_if<ContestFault>(&reading);
  return fault == nullptr ? -1 : static_cast<int>(*fault);
}

constexpr int kRead = -1;
constexpr int kNotAContest = static_cast<int>(ContestFault::notAContest);
constexpr int kMismatch = static_cast<int>(ContestFault::scoreCountMismatch);

TEST(ContestReader, FillsTheWholeContest) {
  const Contest contest = read(smallFile());
  Contest expected = newContest();
  ContestSettings& settings = expected.settings;
  settings = {"County Fair", "Senior Division", "July 04, 2026", 101, 2, 3, 1, true, 10, 3, 2};
  settings.nextContestantNum = 104;
  settings.nextGroupLetter = 'A';
  expected.groupLetters = {'A', 'B', 'C'};
  expected.categories = {"Beef", "Swine"};
  expected.classes.add("Market Steers", true, false, 'C', {2, 5, 3}, 0);
  expected.classes.add("", false, true, ' ', {0, 0, 0}, 1);
  expected.contestantNames[101] = "Ann Lee";
  expected.contestantNames[102] = "Ben Ode";
  expected.contestantNames[103] = "";
  for (const int i : {0, 1, 2}) {
    expected.contestantGroup[101 + i] = static_cast<char>('A' + i);
    expected.reasonsPlace[101 + i] = {};
    expected.scores[101 + i][0] = {};
    expected.scores[101 + i][1] = {};
  }
  expected.reasonsPlace[101] = {1, 0};
  expected.reasonsOrder.reset(3, 2);
  expected.reasonsOrder.setCell(0, 1, 101);
  expected.teams["Clover"] = {"", {101, 102, 103}};
  expected.scores[101][0] = {'C', 50, 44, 0};
  expected.scores[101][1] = {'Z', 0, 0, 38};
  expected.scores[102][0] = {'X', -2, 0, 0};
  EXPECT_TRUE(contest == expected) << writeContest(contest);
}

TEST(ContestReader, TakesDefaultsForMissingValues) {
  const std::string sections = smallFile().substr(smallFile().find("~~~~~Classes"));
  const std::string keys = fileOf({"contestName:", "divisionName:\t", "contestDate:\t",
                                   "startNum:", "numPerTeam:", "numToScore:\t", "reportPercent:\t2",
                                   "numToReport:\t", "numGroups:\t", "numReasonsGroups:"});
  const ContestSettings given = read(keys + "totalNumPerTeam:\t\r\n" + sections).settings;
  ContestSettings expected = newContest().settings;
  expected.numToScore = 20;  // a missing value takes what a new contest has the other way round
  expected.numToReport = 3;
  expected.nextContestantNum = 104;
  expected.nextGroupLetter = 'D';
  EXPECT_TRUE(given == expected);
  EXPECT_EQ(read("numPerTeam:\t7\r\ntotalNumPerTeam:\r\n" + sections).settings.totalNumPerTeam, 7);

  const Contest bare = read(sections);  // no settings at all
  EXPECT_EQ(bare.settings.numToScore, 3);
  EXPECT_EQ(bare.settings.numToReport, 20);
  using Names = std::vector<std::string>;
  EXPECT_EQ(bare.categories, Names{"none"});
  EXPECT_EQ(read("unknown\tx\r\n" + sections).categories, Names{"none"});
  EXPECT_EQ(read("categories:\t\r\n" + sections).categories, Names{"none"});
  EXPECT_EQ(read("categories:\tA\r\nx\r\n" + sections).categories, Names{"none"});
  EXPECT_EQ(read("x\r\ncategories:\tA\t\tB\r\n" + sections).categories, (Names{"A", "", "B"}));
}

TEST(ContestReader, ReadsLinesThatLackFields) {
  const auto classOf = [](std::string_view line) {
    return read(replaced(smallFile(), "Market Steers\tYes\tNo\tC\t2,5,3\t0", line)).classes;
  };
  const JudgingClasses old = classOf("Steers\tYes\tF\t1,2,3\t1");  // before there were questions
  EXPECT_EQ(old.official(0), 'F');
  EXPECT_FALSE(old.hasQuestions(0));
  EXPECT_TRUE(old.hasReasons(0));
  EXPECT_EQ(old.cuts(0), (Cuts{1, 2, 3}));
  EXPECT_EQ(old.category(0), 1);
  for (const char* category : {"", "\t", "\t2", "\t7", "\t-1", "\tx"}) {
    EXPECT_EQ(classOf(std::string("A\tNo\tNo\tA\t1,2") + category).category(0), 0) << category;
  }
  EXPECT_EQ(classOf("A\tno\tNo\tA\t1,2\t1").cuts(0), (Cuts{1, 2, 0}));

  const auto recordOf = [](std::string_view line) {
    const Contest contest = read(replaced(smallFile(), "101\t0\tC\t50\t44\t0", line));
    return scoreRecord(contest, 101, 0);
  };
  EXPECT_EQ(recordOf("101\t0"), ScoreRecord{});
  EXPECT_EQ(recordOf("101\t0\t\t5"), ScoreRecord{});
  EXPECT_EQ(recordOf("101\t0\tBad\t41"), (ScoreRecord{'B', 41, 0, 0}));
  EXPECT_EQ(recordOf("101\t0\tB\tx\t 7\t-3z"), (ScoreRecord{'B', 0, 7, -3}));
  EXPECT_EQ(recordOf("101\t0\tB\t-2147483648\t4294967298\t123456789"),
            (ScoreRecord{'B', INT32_MIN, INT32_MAX, 123456789}));

  const Contest shortTeam = read(replaced(smallFile(), "\t102\t103\r\n", "\r\n"));
  EXPECT_EQ(shortTeam.teams.at("Clover").members, (std::vector<ContestantNumber>{101, 0, 0}));
}

TEST(ContestReader, UnassignsPlacesOutsideTheTable) {
  for (const char* place : {"2\t0", "0\t3", "-2\t0", "0\t-5", "2000000000\t2000000000"}) {
    const Contest contest =
        read(replaced(smallFile(), "Ann Lee\t1\t0", "Ann Lee\t" + std::string(place)));
    EXPECT_EQ(*contest.reasonsPlace.find(101), ReasonsPlace{}) << place;
    EXPECT_TRUE(contest.reasonsOrder.cells().empty()) << place;
  }
  // Two in one cell: the later number keeps it.
  const Contest crowded = read(replaced(smallFile(), "Ben Ode\t-1\t-1", "Ben Ode\t1\t0"));
  EXPECT_EQ(crowded.reasonsOrder.cell(0, 1), 102);
  EXPECT_EQ(*crowded.reasonsPlace.find(101), ReasonsPlace{});
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
    EXPECT_EQ(faultWith(from, to), fault) << from << " -> " << to;
  }
}

// Everybody is ranked once there are classes, so everybody has an entry before.
TEST(ContestReader, KeepsEntriesForContestantsWithoutClasses) {
  const Contest contest =
      read(fileOf({"~~~~~Classes~~~~~", "0", "~~~~~Contestants~~~~~", "2", "101\tAnn Lee", "102\t",
                   "~~~~~Teams~~~~~", "0", "~~~~~Scores~~~~~", "0"}));
  EXPECT_EQ(contest.scores.size(), 2U);
}

// Cut off anywhere, a file is refused, or only its trailer was lost.
TEST(ContestReader, NoticesEveryTruncation) {
  const std::string whole = smallFile();
  const std::size_t scoresEnd = whole.find("0000-0000");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto reading = readContest(whole.substr(0, size));
    EXPECT_EQ(std::holds_alternative<Contest>(reading), size >= scoresEnd) << size;
  }
}

TEST(ContestReader, EndsLinesAtCrLfOnly) {
  const auto nameOf = [](std::string_view value) {
    return read(replaced(smallFile(), "County Fair", value)).settings.contestName;
  };
  using namespace std::string_view_literals;
  EXPECT_EQ(nameOf("Cou\rnty\r\r Fa\nir\r"), "County Fa\nir");
  EXPECT_EQ(nameOf("County\0 Fair"sv), "County");
  EXPECT_EQ(nameOf("County\tFair"), "County");
  EXPECT_EQ(nameOf(std::string(100000, 'x')), std::string(500 - 13, 'x'));
}

// Records need not come in order; the last one of a contestant and class counts, and those of
// contestants and classes that do not exist are passed over.
TEST(ContestReader, SortsRecords) {
  const std::string bytes =
      replaced(replaced(smallFile(), "101\tAnn Lee\t1\t0\r\n102\tBen Ode\t-1\t-1\r\n103\t",
                        "103\t\r\n102\tBen Ode\r\n102\tBea Ode"),
               smallFile().substr(smallFile().find("101\t0\tC")),
               fileOf({"103\t1\tB\t1", "102\t1\tC\t2", "103\t0\tD\t3", "102\t1\tE\t4",
                       "101\t0\tF\t5", "102\t9\tG\t6"}));
  const Contest contest = read(bytes);
  EXPECT_EQ(contest.contestantNames.size(), 2U);
  EXPECT_EQ(contestantName(contest, 102), "Bea Ode");
  EXPECT_EQ(contest.scores.size(), 2U);
  EXPECT_EQ(scoreRecord(contest, 102, 1), (ScoreRecord{'E', 4, 0, 0}));
  EXPECT_EQ(scoreRecord(contest, 103, 0), (ScoreRecord{'D', 3, 0, 0}));
  EXPECT_EQ(scoreRecord(contest, 103, 1), (ScoreRecord{'B', 1, 0, 0}));
  EXPECT_EQ(contest.scores.find(102)->size(), 1U);
}

}  // namespace
