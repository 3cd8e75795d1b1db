// Everything the Total Summary Report shows, as numbers.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "results/total_summary_columns.h"

namespace scorvane {

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

}  // namespace scorvane
