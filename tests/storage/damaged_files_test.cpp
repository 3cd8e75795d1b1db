// A damaged line of a contest file never changes a result without a word, and what is saved out of
// a damaged file is nobody else's.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "storage/contest_format.h"
#include "storage/contest_oddities.h"
#include "storage/contest_reader.h"
#include "storage/contest_salvage.h"
#include "storage/contest_writer.h"
#include "tests/support/approved.h"
#include "tests/support/contest_builder.h"
#include "tools/contest_maker.h"

namespace scorvane {

namespace {

std::vector<std::string> linesOf(std::string_view bytes) {
  std::vector<std::string> lines;
  for (std::size_t end = 0; (end = bytes.find(kLineEnd)) != std::string_view::npos;) {
    lines.emplace_back(bytes.substr(0, end));
    bytes.remove_prefix(end + kLineEnd.size());
  }
  return lines;
}

std::string joined(const std::vector<std::string>& lines) {
  std::string bytes;
  for (const std::string& line : lines) bytes.append(line).append(kLineEnd);
  return bytes;
}

/// The contest with its texts as they were, where they were cut off only.
Contest withTextsOf(const Contest& before, Contest contest) {
  const auto restore = [](std::string& text, const std::string& whole) {
    if (whole.starts_with(text)) text = whole;
  };
  restore(contest.settings.contestDate, before.settings.contestDate);
  restore(contest.settings.contestName, before.settings.contestName);
  restore(contest.settings.divisionName, before.settings.divisionName);
  for (auto& [number, name] : contest.contestantNames)
    restore(name, contestantName(before, number));
  return contest;
}

enum Damage { missing, doubled, exchanged, overwritten, cut, damages };

std::vector<std::string> damaged(std::vector<std::string> lines, std::size_t i, int damage) {
  const auto line = lines.begin() + static_cast<std::ptrdiff_t>(i);
  if (damage == missing) lines.erase(line);
  if (damage == doubled) lines.insert(line, *line);
  if (damage == exchanged && i + 1 < lines.size()) std::swap(line[0], line[1]);
  if (damage == overwritten && i + 1 < lines.size()) line[0] = line[1];
  if (damage == cut) line->resize(line->size() / 2);
  return lines;
}

void expectNothingSilent(const std::string& bytes) {
  const Contest contest = std::get<Contest>(readContest(bytes));
  EXPECT_EQ(contestOddities(bytes, contest), "");
  const std::vector<std::string> lines = linesOf(bytes);
  int refused = 0;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    for (int damage = missing; damage < damages; ++damage) {
      const std::string given = joined(damaged(lines, i, damage));
      const auto reading = readContest(given);
      if (const auto* fault = std::get_if<ContestFault>(&reading)) {
        const auto distance = fault->line - static_cast<std::int64_t>(i);
        EXPECT_GE(distance, 0) << lines[i];
        ++refused;
        continue;
      }
      const Contest& read = std::get<Contest>(reading);
      EXPECT_TRUE(!contestOddities(given, read).empty() || withTextsOf(contest, read) == contest)
          << lines[i] << ", damage " << damage << ", line " << i + 1;
    }
  }
  EXPECT_GT(refused, static_cast<int>(lines.size()));
}

TEST(DamagedLines, AreRefusedOrToldOrChangeNothing) {
  for (std::uint32_t seed = 1; seed <= 4; ++seed) {
    ContestPlan plan;
    plan.seed = seed;
    plan.contestants = 12;
    plan.alternates = static_cast<std::int32_t>(seed % 2);
    plan.emptyPercent = 20;
    plan.classes = 4;
    plan.reasonsClasses = 2;
    plan.questionsClasses = 1;
    plan.categories = 2;
    expectNothingSilent(writeContest(makeContest(plan)));
  }
}

// Without a card only the line itself tells.
TEST(DamagedLines, TellOfAClassThatIsACopyBeforeThereAreCards) {
  Contest contest = makeContest({});
  contest.scores.clear();
  std::vector<std::string> lines = linesOf(writeContest(contest));
  const auto count = std::find(lines.begin(), lines.end(), kClassesMarker) + 1;
  count[2] = count[1];
  const std::string bytes = joined(lines);
  EXPECT_EQ(contestOddities(bytes, std::get<Contest>(readContest(bytes))),
            "These classes are the same as the one before, to the letter: 2.\n");
}

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
