// The columns of the Total Summary Report, and adding up a contestant's scores in them.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "model/contest.h"

namespace scorvane {

/// Neighbouring columns under one title: a class, a category's totals, or the overall totals.
struct SummaryBlock {
  enum class Kind { judgingClass, category, overall };
  Kind kind = Kind::judgingClass;
  std::string title;  ///< class number, category name or "All Classes"
  std::size_t firstColumn = 0;
  std::vector<const char*> headings;  ///< one per column: "PLC", "RSN", "QUE", "Total", "Overall"
};

/// A class has a column for its placing score and, if it has them, its reasons and questions
/// scores. A category that has classes follows with the kinds of its classes and a total of all
/// kinds; a class without a category of its own counts for the first one. The last block holds
/// the contest's totals. Every column is a sum that the results reports rank by: of one kind, over
/// one class, the classes of one category, or all classes.
class SummaryColumns {
 public:
  explicit SummaryColumns(const Contest& contest);

  [[nodiscard]] const std::vector<SummaryBlock>& blocks() const { return blocks_; }
  [[nodiscard]] std::size_t count() const { return count_; }
  /// Adds a contestant's scores to `row`, which has count() cells. Sums count modulo 2^32.
  void addUp(const ClassScores& records, std::span<std::int32_t> row) const;

 private:
  // The columns that a class's scores go into.
  struct Targets {
    std::size_t placing = 0, reasons = 0, questions = 0;
    std::size_t categoryPlacing = 0, categoryReasons = 0, categoryQuestions = 0;
    std::size_t categoryTotal = 0;
  };

  SummaryBlock& addBlock(SummaryBlock::Kind kind, const std::string& title);
  std::size_t addColumn(SummaryBlock& block, const char* heading);
  void addClassBlocks(const JudgingClasses& classes);
  void addCategoryBlock(const Contest& contest, std::size_t category,
                        const std::vector<std::int32_t>& members);

  std::vector<SummaryBlock> blocks_;
  std::vector<Targets> targets_;  ///< by class index
  std::size_t count_ = 0;
  std::size_t overall_ = 0;  ///< first of the four overall columns
};

}  // namespace scorvane
