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

// One contest's longest texts and oddest ones: what would read as the end of a field or a line
// cannot stand in a field.
TEST(ContestWriter, CutsTextsAtSeparatorsAndToTheLine) {
  using namespace std::string_literals;
  const auto xs = [](std::size_t count) { return std::string(count, 'x'); };
  Contest contest = read(smallFile());
  contest.settings.divisionName = xs(600);
  contest.settings.totalNumPerTeam = 90;
  contest.classes.className = {xs(600), "Steers\0!"s};
  contest.contestantNames[101] = xs(600);
  contest.contestantNames[102] = "Ann\tLee";
  contest.contestantNames[103] = "Ben\r\nOde";
  contest.teams["Clover"].coach = "\tPat";
  contest.teams[std::string(600, 'T')] = {xs(600), std::vector<ContestantNumber>(90, 1234)};
  contest.categories.assign(60, "Category!");
  const std::string bytes = writeContest(contest);
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at) + 2;
    EXPECT_LE(end - at, kMaxContestLine);
    at = end;
  }
  std::string members, zeros;
  for (int i = 0; i < 86; ++i) members += "\t1234";
  for (int i = 3; i < 90; ++i) zeros += "\t0";
  for (const auto& [start, line] : std::map<std::string, std::string>{
           {"divisionName", "divisionName:\t" + xs(497 - 14)},
           {"xxx", xs(497 - 17) + "\tYes\tNo\tC\t2,5,3\t0"},
           {"Steers", "Steers\tNo\tYes\t \t0,0,0\t1"},
           {"101\tx", "101\t" + xs(497 - 8) + "\t1\t0"},
           {"102\tA", "102\tAnn\t-1\t-1"},
           {"103\tB", "103\tBen\t-1\t-1"},
           {"Clover", "Clover\t \t101\t102\t103" + zeros},
           // 40 bytes of the name and 24 of the coach leave room for 86 whole numbers.
           {"TTT", std::string(40, 'T') + "\t" + xs(24) + members}}) {
    EXPECT_EQ(lineOf(bytes, start), line);
  }
  EXPECT_TRUE(lineOf(bytes, "categories:").ends_with("\tCategory!\tCateg"));
}

TEST(ContestWriter, SavesWhatItLoadedUnchanged) {
  Contest fresh = newContest();
  fresh.settings.contestDate = "March 05, 2024";
  EXPECT_EQ(writeContest(fresh), sourceFile("fuzz/corpus/contests/new.scv"));
  std::vector<std::string> files = {smallFile(), sourceFile("samples/county.scv"),
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
