#include "results/total_summary_columns.h"

#include <algorithm>
#include <limits>

#include "results/contestant_totals.h"

namespace scorvane {

namespace {

constexpr std::size_t kNotShown = std::numeric_limits<std::size_t>::max();

// The classes of each category.
std::vector<std::vector<std::int32_t>> classesByCategory(const Contest& contest) {
  std::vector<std::vector<std::int32_t>> members(
      std::max<std::size_t>(contest.categories.size(), 1));
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    const std::int32_t category = contest.classes.category(k);
    const bool exists = category >= 0 && static_cast<std::size_t>(category) < members.size();
    members[exists ? static_cast<std::size_t>(category) : 0].push_back(k);
  }
  return members;
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

}  // namespace scorvane
