#include "results/total_summary_table.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

#include "model/class_lists.h"
#include "model/team_index.h"
#include "results/individual_ranking.h"
#include "results/team_ranking.h"

namespace scorvane {

namespace {

constexpr std::size_t kNotShown = std::numeric_limits<std::size_t>::max();

// A hundred thousand contestants judging thirty classes with everything need two thirds of this.
constexpr std::size_t kMostCells = 16U << 20U;

std::size_t linesNeeded(const Contest& contest) {
  std::size_t lines = contest.contestantNames.size() + contest.teams.size();
  for (const auto& [name, team] : contest.teams) lines += team.members.size();
  return lines;
}

}  // namespace

SummaryColumns::SummaryColumns(const Contest& contest) {
  addClassBlocks(contest.classes);
  const auto categories = classesByCategory(contest);
  for (std::size_t category = 0; category < categories.size(); ++category) {
    if (!categories[category].empty()) addCategoryBlock(contest, category, categories[category]);
  }
  SummaryBlock& overall = addBlock(SummaryBlock::Kind::overall, "All Classes");
  overall_ = count_;
  for (const char* heading : {"PLC", "RSN", "QUE", "Overall"}) addColumn(overall, heading);
}

SummaryBlock& SummaryColumns::addBlock(SummaryBlock::Kind kind, const std::string& title) {
  return blocks_.emplace_back(SummaryBlock{kind, title, count_, {}});
}

std::size_t SummaryColumns::addColumn(SummaryBlock& block, const char* heading) {
  block.headings.push_back(heading);
  return count_++;
}

void SummaryColumns::addClassBlocks(const JudgingClasses& classes) {
  for (std::int32_t k = 0; k < classes.count(); ++k) {
    SummaryBlock& block = addBlock(SummaryBlock::Kind::judgingClass, std::to_string(k + 1));
    Targets& targets = targets_.emplace_back();
    targets.placing = addColumn(block, "PLC");
    targets.reasons = classes.hasReasons(k) ? addColumn(block, "RSN") : kNotShown;
    targets.questions = classes.hasQuestions(k) ? addColumn(block, "QUE") : kNotShown;
  }
}

void SummaryColumns::addCategoryBlock(const Contest& contest, std::size_t category,
                                      const std::vector<std::int32_t>& members) {
  const auto any = [&](auto has) { return std::any_of(members.begin(), members.end(), has); };
  const JudgingClasses& classes = contest.classes;
  const bool reasons = any([&](std::int32_t k) { return classes.hasReasons(k); });
  const bool questions = any([&](std::int32_t k) { return classes.hasQuestions(k); });
  SummaryBlock& block = addBlock(SummaryBlock::Kind::category,
                                 categoryName(contest, static_cast<std::int32_t>(category)));
  const std::size_t placingColumn = addColumn(block, "PLC");
  const std::size_t reasonsColumn = reasons ? addColumn(block, "RSN") : kNotShown;
  const std::size_t questionsColumn = questions ? addColumn(block, "QUE") : kNotShown;
  const std::size_t totalColumn = addColumn(block, "Total");
  for (const std::int32_t k : members) {
    Targets& targets = targets_[static_cast<std::size_t>(k)];
    targets.categoryPlacing = placingColumn;
    targets.categoryReasons = reasonsColumn;
    targets.categoryQuestions = questionsColumn;
    targets.categoryTotal = totalColumn;
  }
}

void SummaryColumns::addUp(const ClassScores& records, std::span<std::int32_t> row) const {
  const auto add = [&](std::size_t column, std::int32_t score) {
    if (column != kNotShown) row[column] = wrappingSum(row[column], score);
  };
  for (const auto& [classIndex, record] : records) {
    if (classIndex < 0 || static_cast<std::size_t>(classIndex) >= targets_.size()) continue;
    const Targets& targets = targets_[static_cast<std::size_t>(classIndex)];
    const auto& [letter, placing, reasons, questions] = record;
    const std::int32_t total = wrappingSum(wrappingSum(placing, reasons), questions);
    add(targets.placing, placing);
    add(targets.reasons, reasons);
    add(targets.questions, questions);
    add(targets.categoryPlacing, placing);
    add(targets.categoryReasons, reasons);
    add(targets.categoryQuestions, questions);
    add(targets.categoryTotal, total);
    add(overall_, placing);
    add(overall_ + 1, reasons);
    add(overall_ + 2, questions);
    add(overall_ + 3, total);
  }
}

std::optional<SummaryTable> SummaryTable::of(const Contest& contest) {
  SummaryTable table(contest);
  if (linesNeeded(contest) > kMostCells / table.columns_.count()) return std::nullopt;
  for (const auto& [name, team] : contest.teams) table.addTeam(contest, name, team);
  table.addContestantsWithoutTeam(contest);
  return table;
}

std::size_t SummaryTable::addCells(const ClassScores* records) {
  const std::size_t first = cells_.size();
  cells_.resize(first + columns_.count());
  if (records != nullptr) columns_.addUp(*records, std::span(cells_).subspan(first));
  return first;
}

void SummaryTable::addTeam(const Contest& contest, const std::string& name, const Team& team) {
  SummaryTeam& summary = teams_.emplace_back(SummaryTeam{&name, &team.coach, rows_.size(), 0, 0});
  const std::size_t regularCount = regularSlots(contest.settings, team);
  std::vector<std::size_t> regulars;  // first cells
  for (std::size_t slot = 0; slot < team.members.size(); ++slot) {
    const ContestantNumber number = team.members[slot];
    const std::string& member = contestantName(contest, number);
    const bool isAlternate = slot >= regularCount;
    if (isAlternate && member.empty()) continue;
    // An empty slot counts as a member with zeros, as in the ranking of teams.
    const std::size_t cells = addCells(member.empty() ? nullptr : contest.scores.find(number));
    if (!isAlternate) regulars.push_back(cells);
    if (!member.empty()) rows_.push_back({number, &member, isAlternate, cells});
  }
  summary.rowCount = rows_.size() - summary.firstRow;
  summary.firstTotal = addCells(nullptr);
  addTeamTotals(contest.settings, regulars,
                std::span(cells_).subspan(summary.firstTotal, columns_.count()));
}

// Each column counts the members who are best in it, so that it shows the very total that the
// high team report of that kind and those classes ranks the team by.
void SummaryTable::addTeamTotals(const ContestSettings& settings,
                                 std::span<const std::size_t> regulars,
                                 std::span<std::int32_t> totals) const {
  std::vector<std::int32_t> scores(regulars.size());
  std::vector<std::size_t> counting;
  for (std::size_t column = 0; column < totals.size(); ++column) {
    for (std::size_t i = 0; i < regulars.size(); ++i) scores[i] = cells_[regulars[i] + column];
    chooseCountingSlots(settings, scores, counting);
    for (const std::size_t slot : counting) {
      totals[column] = wrappingSum(totals[column], scores[slot]);
    }
  }
}

void SummaryTable::addContestantsWithoutTeam(const Contest& contest) {
  const TeamIndex index(contest);
  SummaryTeam group;
  group.firstRow = rows_.size();
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty() || index.hasTeam(number)) continue;
    rows_.push_back({number, &name, false, addCells(contest.scores.find(number))});
  }
  group.rowCount = rows_.size() - group.firstRow;
  if (group.rowCount > 0) teams_.push_back(group);
}

void ScoreStatistics::add(std::int32_t score) {
  ++contestants;
  sum += score;
  if (score >= 50) ++at50;
  if (score >= 45) ++from45;
  if (score >= 40) ++from40;
}

std::int64_t roundedToTwoDigits(std::int64_t sum, std::int64_t count) {
  if (count == 0) return 0;
  const std::int64_t firstDecimal = std::abs(sum % count) * 10 / count;
  const std::int64_t rounded = (firstDecimal >= 5 ? sum + count : sum) / count;
  return std::min<std::int64_t>(rounded, 99);
}

}  // namespace scorvane
