// Everything the Total Summary Report shows, as numbers: its columns, its lines, and how well each
// column was judged on the whole.
#pragma once

#include <cstdint>
#include <optional>
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

/// A named contestant's line.
struct SummaryRow {
  ContestantNumber number = 0;
  const std::string* name = nullptr;
  bool isAlternate = false;
  std::size_t firstCell = 0;
};

/// A team with its named members in slot order. The group without a team holds the named
/// contestants that no team has, in number order; it comes last, if there are any.
struct SummaryTeam {
  const std::string* name = nullptr;
  const std::string* coach = nullptr;  ///< null for the group without a team
  std::size_t firstRow = 0;
  std::size_t rowCount = 0;
  std::size_t firstTotal = 0;  ///< first cell of the team's totals; none without a team
};

/// Refers to the contest it was made of.
class SummaryTable {
 public:
  /// Nothing when the table would be larger than any real contest needs, as only a damaged file
  /// asks for (a team that lists the same few members a million times over).
  static std::optional<SummaryTable> of(const Contest& contest);

  [[nodiscard]] const SummaryColumns& columns() const { return columns_; }
  [[nodiscard]] const std::vector<SummaryTeam>& teams() const { return teams_; }
  [[nodiscard]] std::span<const SummaryRow> rowsOf(const SummaryTeam& team) const {
    return std::span(rows_).subspan(team.firstRow, team.rowCount);
  }
  [[nodiscard]] std::span<const SummaryRow> rows() const { return rows_; }
  /// The cells of a line, one per column.
  [[nodiscard]] std::span<const std::int32_t> cells(std::size_t firstCell) const {
    return std::span(cells_).subspan(firstCell, columns_.count());
  }

 private:
  explicit SummaryTable(const Contest& contest) : columns_(contest) {}
  std::size_t addCells(const ClassScores* records);
  void addTeam(const Contest& contest, const std::string& name, const Team& team);
  void addTeamTotals(const ContestSettings& settings, std::span<const std::size_t> regulars,
                     std::span<std::int32_t> totals) const;
  void addContestantsWithoutTeam(const Contest& contest);

  SummaryColumns columns_;
  std::vector<SummaryTeam> teams_;
  std::vector<SummaryRow> rows_;
  std::vector<std::int32_t> cells_;
};

/// Sums over one score of everybody; only those who reach a mark are counted for it.
struct ScoreStatistics {
  std::int64_t contestants = 0;
  std::int64_t sum = 0;
  std::int64_t at50 = 0;
  std::int64_t from45 = 0;
  std::int64_t from40 = 0;

  void add(std::int32_t score);
};

/// sum / count in two digits: 1 is added when the first decimal is 5 or more, the rest
/// is cut off, and 100 or more shows as 99. 0 when there is nobody.
[[nodiscard]] std::int64_t roundedToTwoDigits(std::int64_t sum, std::int64_t count);

}  // namespace scorvane
