// A damaged line of a contest file never changes a result without a word.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "storage/contest_format.h"
#include "storage/contest_oddities.h"
#include "storage/contest_reader.h"
#include "storage/contest_writer.h"
#include "tests/support/approved.h"
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

}  // namespace

}  // namespace scorvane
