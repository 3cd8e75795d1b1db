#include "storage/contest_writer.h"

#include <gtest/gtest.h>

#include "model/new_contest.h"
#include "storage/contest_format.h"
#include "storage/contest_reader.h"
#include "tests/storage/contest_text.h"
#include "tools/contest_maker.h"

namespace {

Contest read(const std::string& bytes) {
  return std::get<Contest>(readContest(bytes));
}

/// The line that begins with `start`, without its end.
std::string lineOf(const std::string& bytes, const std::string& start) {
  const std::size_t at = bytes.find("\r\n" + start) + 2;
  return bytes.substr(at, bytes.find("\r\n", at) - at);
}

TEST(ContestWriter, WritesWhatIsRead) {
  EXPECT_EQ(writeContest(read(smallFile())), smallFile());
  Contest fresh = newContest();
  fresh.settings.contestDate = "March 05, 2024";
  EXPECT_EQ(writeContest(fresh), sourceFile("fuzz/corpus/contests/new.scv"));
}

TEST(ContestWriter, CutsTextsToTheLine) {
  const std::string tooLong(600, 'x');
  Contest contest = read(smallFile());
  contest.settings.divisionName = tooLong;
  contest.classes.className[0] = tooLong;
  contest.contestantNames[101] = tooLong;
  contest.teams.clear();
  contest.settings.totalNumPerTeam = 90;
  contest.teams[std::string(600, 'T')] = {tooLong, std::vector<ContestantNumber>(90, 1234)};
  contest.categories.assign(60, "Category!");
  const std::string bytes = writeContest(contest);
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at) + 2;
    EXPECT_LE(end - at, kMaxContestLine);
    at = end;
  }
  const auto xs = [](std::size_t count) { return std::string(count, 'x'); };
  EXPECT_EQ(lineOf(bytes, "divisionName"), "divisionName:\t" + xs(497 - 14));
  EXPECT_EQ(lineOf(bytes, "xxx"), xs(497 - 17) + "\tYes\tNo\tC\t2,5,3\t0");
  EXPECT_EQ(lineOf(bytes, "101\tx"), "101\t" + xs(497 - 8) + "\t1\t0");
  // 40 bytes of the name and 24 of the coach leave room for 86 whole numbers.
  std::string team = std::string(40, 'T').append("\t").append(xs(24));
  for (int i = 0; i < 86; ++i) team += "\t1234";
  EXPECT_EQ(lineOf(bytes, "TTT"), team);
  EXPECT_TRUE(lineOf(bytes, "categories:").ends_with("\tCategory!\tCateg"));
}

// What would read as the end of a field or a line cannot stand in a field.
TEST(ContestWriter, EndsTextsBeforeSeparators) {
  using namespace std::string_literals;
  Contest contest = read(smallFile());
  contest.contestantNames[101] = "Ann\tLee";
  contest.contestantNames[102] = "Ben\r\nOde";
  contest.classes.className[0] = "Steers\0!"s;
  contest.teams["Clover"].coach = "\tPat";
  const std::string bytes = writeContest(contest);
  EXPECT_EQ(lineOf(bytes, "101\tA"), "101\tAnn\t1\t0");
  EXPECT_EQ(lineOf(bytes, "102\tB"), "102\tBen\t-1\t-1");
  EXPECT_EQ(lineOf(bytes, "Steers"), "Steers\tYes\tNo\tC\t2,5,3\t0");
  EXPECT_EQ(lineOf(bytes, "Clover"), "Clover\t \t101\t102\t103");
}

TEST(ContestWriter, SavesWhatItLoadedUnchanged) {
  std::vector<std::string> files = {sourceFile("samples/county.scv"),
                                    sourceFile("samples/state.scv")};
  for (std::int32_t shape = 0; shape < 64; ++shape) {
    ContestPlan plan;
    plan.contestants = shape % 4 * 9;
    plan.perTeam = 1 + shape % 5;
    plan.alternates = shape % 3;
    plan.emptyPercent = shape;
    plan.classes = shape / 8;
    plan.reasonsClasses = shape % 2;
    files.push_back(writeContest(makeContest(plan)));
  }
  for (const std::string& bytes : files) {
    EXPECT_TRUE(bytes.ends_with("0000-0000-0000-0000\r\n"));
    EXPECT_EQ(writeContest(read(bytes)), bytes);
  }
}

}  // namespace
