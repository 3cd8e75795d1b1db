// Contest files: what is read, what is written, and that both agree.
#include <gtest/gtest.h>

#include <sstream>

#include "model/new_contest.h"
#include "storage/contest_format.h"
#include "storage/contest_loader.h"
#include "storage/contest_writer.h"
#include "tests/storage/contest_text.h"
#include "tests/storage/memory_files.h"
#include "tests/support/contest_builder.h"
#include "text/format.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

using namespace std::string_literals;

Contest read(const std::string& bytes) {
  auto reading = readContest(bytes);
  EXPECT_TRUE(std::holds_alternative<Contest>(reading)) << bytes;
  return std::holds_alternative<Contest>(reading) ? std::get<Contest>(reading) : Contest{};
}

/// Which lines of the small contest changed, once the bytes were read and written again; or why
/// they were refused.
std::string changesIn(std::string_view bytes) {
  const auto reading = readContest(bytes);
  if (const auto* fault = std::get_if<ContestFault>(&reading)) {
    const std::string line = " (" + std::to_string(fault->line) + ")\n";
    return (fault->kind == ContestFault::notAContest ? "  no contest"
                                                     : "  wrong number of scores") +
           line;
  }
  const Contest& contest = std::get<Contest>(reading);
  const std::string written = writeContest(contest);
  // Nothing may be in memory that the file would not keep, except that it fills up cards.
  const Contest again = read(written);
  EXPECT_EQ(again.scores.size(), contest.scores.size());
  for (const auto& [number, cards] : contest.scores) {
    for (const auto& [judged, card] : cards) {
      EXPECT_TRUE(judged >= 0 && judged < contest.classes.count()) << number;
    }
  }
  EXPECT_EQ(again.categories, contest.categories);
  EXPECT_TRUE(again.settings == contest.settings) << bytes;
  std::istringstream before(smallFile()), after(written);
  std::string changes, old, line;
  while (std::getline(after, line, '\r')) {
    if (!std::getline(before, old, '\r')) old.clear();
    if (line != old) changes += "  " + line.substr(line.starts_with('\n') ? 1 : 0) + "\n";
  }
  return changes;
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
  expected.scores[102] = ClassScores::fromEntries({{0, {'X', 20, 0, 0}}, {1, blank}});
  expected.scores[103] = ClassScores::fromEntries({{0, blank}, {1, blank}});
  const Contest contest = read(smallFile());
  EXPECT_TRUE(contest == expected) << writeContest(contest);
}

// What is missing, odd or impossible: how it is written once it was read, or that it is refused.
TEST(ContestReader, MakesSenseOfOddLinesAsApproved) {
  const std::string names = "categories:\tBeef\tSwine";
  const std::string steers = "Market Steers\tYes\tNo\tC\t2,5,3\t0";
  const std::string anns = "Ann Lee\t1\t0", card = "101\t0\tC\t50\t44\t0";
  const std::string classes = "~~~~~Classes~~~~~", contestants = "~~~~~Contestants~~~~~\r\n";
  const std::string teams = "~~~~~Teams~~~~~\r\n", scores = "~~~~~Scores~~~~~\r\n";
  const std::string many = "a\r\nb\r\nc\r\n" + classes;  // 15 lines of settings
  const std::string people = smallFile().substr(smallFile().find("101\tAnn"));
  std::string log;
  for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
           {"contestName:\tCounty Fair", "contestName:"},
           {"divisionName:\tSenior", "divisionName:\t\tSenior"},
           {"numPerTeam:\t2", "numPerTeam:"},
           {"numToScore:\t1", "numToScore:\t"},
           {"numToReport:\t10", "numToReport:\t"},
           {"reportPercent:\t1", "reportPercent:\t2"},
           {"totalNumPerTeam:\t3", "totalNumPerTeam:"},
           {names, "categories:\t"},
           {names, "categories:"},
           {names, names + "\r\nx"},
           {names, "x\r\ncategories:\tA\t\tB"},
           {smallFile().substr(0, smallFile().find(classes)),
            "contestDate:\tJuly 04, 2026\r\ntotalNumPerTeam:\t3\r\n"},
           {"County Fair", "Cou\rnty\r\r Fa\nir\r"},
           {"County Fair", "County\0 Fair"s},
           {"County Fair", "County\tFair"},
           {steers, "Steers\tYes\tF\t1,2,3\t1"},  // from before there were questions
           {steers, "A\tNo\tYes\tA\t1,2,3\t2"},
           {steers, "A\tNo\tYes\tA\t1,2,3\t-1"},
           {"County Fair", "\0ounty Fair"s},
           {card, "101\t0\tBad\t41\t0\t0"},
           {card, "101\t0\tB\tx\t 7\t-3z"},
           {card, "101\t0\tB\t-2147483648\t4294967298\t123456789"},
           {anns, "Ann Lee\t2\t0"},
           {anns, "Ann Lee\t0\t3"},
           {anns, "Ann Lee\t-2\t0"},
           {anns, "Ann Lee\t0\t-5"},
           {"Ben Ode\t-1\t-1", "Ben Ode\t1\t0"},  // two in one cell: the later number keeps it
           {classes, many},
           {scores + "6", scores + "5"},
           {scores + "6", scores + "-6"},
           {contestants + "3", contestants + "2"},
           {"numReasonsGroups:\t2", "numReasonsGroups:\t2147483647"},
           {"numGroups:\t3", "numGroups:\t0"},
           // Records need not come in order, nor be long.
           {people, fileOf({"103\t", "102\tBen Ode", "101\tAnn Lee", "~~~~~Teams~~~~~", "1",
                            "Clover\t \t101\t102\t103", "~~~~~Scores~~~~~", "6", "103\t1\tB\t1",
                            "102\t1\tC\t2", "103\t0\tD\t3", "101\t1\tE\t4", "101\t0\tF\t5",
                            "102\t0\tG\t6"})}}) {
    const std::string given = replaced(smallFile(), from, to);
    ASSERT_NE(given, smallFile()) << from;
    log += testing::PrintToString(to) + "\n" + changesIn(given);
  }
  expectApproved(log, "storage/odd_lines.txt");
  struct Refusal {
    std::string from, to;
    int line;
  };
  for (const auto& [from, to, line] :
       std::vector<Refusal>{{people, "101\tAnn\rLee", 19},  // cut off
                            {steers, "A\tno\tNo\tA\t1,2\t1", 15},
                            {steers + "\r\n", "\r\n", 15},  // an empty line is no record
                            {"101\tAnn Lee\t1\t0\r\n", "\r\n", 19},
                            {"Clover\t \t101\t102\t103\r\n", "\r\n", 24},
                            {card + "\r\n", "\r\n", 27},
                            {card + "\r\n", "", 32},
                            {card, card + "\r\n" + card, 28},
                            {card, "0000-0000-0000-0000", 27},
                            {card, "104\t0\tC\t50\t44\t0", 27},
                            {"103\t1\t \t0\t0\t0", "103\t1\t \t0\t0\t0\r\n103\t1\tC\t0\t0\t0", 33},
                            {"102\tBen Ode", "101\tBen Ode", 20},
                            {"102\tBen Ode\t-1\t-1", "102\tBen", 20},
                            {"103\t\r\n", "103\r\n", 21},
                            {teams + "1\r\n", teams, 23},
                            {teams + "1", teams + "0", 24},
                            {"contestName", "\0ontestName"s, 1},
                            {"County", std::string(500, 'x'), 1},
                            {card, "101\t0\t\t5", 28},
                            {card, "101\t-1\tC\t50\t0\t0", 27},
                            {"Clover\t \t101\t102\t103", "Clover\t \t101\t102", 24},
                            {"Clover\t \t101\t102\t103", "Clover\t \t101\t102\t103\t104", 24},
                            {classes, "x\r\n" + many, 16},
                            {"~~~~~Teams~~~~~", "~~~~~Team~~~~~", 35},
                            {contestants + "3", contestants + "-1", 18},
                            {classes + "\r\n2", classes + "\r\n99999999999999999999", 17},
                            {teams + "1", teams + "-1", 23},
                            {teams + "1", teams + "2147483647", 25},
                            {"totalNumPerTeam:\t3", "totalNumPerTeam:\t-3", 24}}) {
    EXPECT_EQ(changesIn(replaced(smallFile(), from, to)),
              "  no contest (" + std::to_string(line) + ")\n")
        << testing::PrintToString(to);
  }
}

TEST(ContestReader, NoticesEveryTruncationAndNeedsNeitherSettingsNorClasses) {
  const std::string whole = smallFile();
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const bool onlyTheTrailerIsLost = size >= whole.find("0000-0000");
    const std::string refusal =
        "  no contest (" +
        std::to_string(std::count(whole.begin(), whole.begin() + static_cast<int>(size), '\n') + 1);
    EXPECT_EQ(changesIn(whole.substr(0, size)), onlyTheTrailerIsLost ? "" : refusal + ")\n");
  }
  // Everybody is ranked once there are classes, so everybody has an entry before; without any
  // settings there are those of a new contest.
  const Contest bare =
      read(fileOf({"~~~~~Classes~~~~~", "0", "~~~~~Contestants~~~~~", "2", "101\tAnn Lee", "102\t",
                   "~~~~~Teams~~~~~", "0", "~~~~~Scores~~~~~", "0"}));
  EXPECT_EQ(bare.scores.size(), 2U);
  EXPECT_EQ(bare.categories, std::vector<std::string>{"none"});
}

TEST(ContestReader, LoadsAFileWholeOrNotAtAll) {
  MemoryFiles disk;
  disk.files["contest.scv"].content = sourceFile("samples/state.scv");
  for (disk.failingCall = 1;; ++disk.failingCall) {
    disk.calls = 0;
    const auto loading = loadContestFile(disk, "contest.scv");
    if (const auto* loaded = std::get_if<LoadedContest>(&loading)) {
      EXPECT_EQ(writeContest(loaded->contest), loaded->bytes);
      EXPECT_EQ(loaded->bytes, disk.files["contest.scv"].content);
      break;
    }
    EXPECT_EQ(std::get<ContestFault>(loading).kind, ContestFault::unreadable);
  }
  EXPECT_GT(disk.failingCall, 64);
  const auto missing = loadContestFile(disk, "missing.scv");
  EXPECT_EQ(std::get<ContestFault>(missing).kind, ContestFault::unreadable);
}

// The longest texts and the oddest ones: what would read as the end of a field or a line cannot
// stand in a field. Of a team, 40 bytes of the name and 24 of the coach leave room for 86 whole
// numbers.
TEST(ContestWriter, CutsTextsAtSeparatorsAndToTheLineAsApproved) {
  const std::string tooLong(600, 'x');
  Contest contest = read(smallFile());
  contest.settings.divisionName = tooLong;
  contest.settings.totalNumPerTeam = 90;
  contest.classes.className = {tooLong, "Steers\0!"s};
  contest.contestantNames[101] = tooLong;
  contest.contestantNames[102] = "Ann\tLee";
  contest.contestantNames[103] = "Ben\r\nOde";
  contest.teams["Clover"].coach = "\tPat";
  contest.teams["Few members"] = {tooLong, {101}};
  contest.teams["T" + tooLong] = {tooLong, std::vector<ContestantNumber>(90, 1234)};
  contest.categories.assign(50, "Category!");
  std::istringstream lines(writeContest(contest));
  std::string approved;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LT(line.size(), kMaxContestLine);
    ASSERT_TRUE(line.ends_with('\r'));
    const bool isNew = smallFile().find(line) == std::string::npos;
    if (isNew) approved.append(line, 0, line.size() - 1).append("\n");
  }
  for (const Finding& cut : cutTexts(contest)) {
    EXPECT_EQ(cut.kind, FindingKind::textCut);
    approved += formatText("cut %d: number %d, class %d, team %.9s, text %.3s of %d\n",
                           static_cast<int>(cut.cut), cut.number, cut.classIndex,
                           cut.teams.empty() ? "" : cut.teams.front().c_str(), cut.text.c_str(),
                           static_cast<int>(cut.text.size()));
  }
  expectApproved(approved, "storage/long_texts.txt");
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

}  // namespace scorvane
