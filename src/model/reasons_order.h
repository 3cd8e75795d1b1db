// The table of who gives oral reasons when: rows are speaking positions, columns reasons groups.
#pragma once

#include <cstdint>
#include <utility>
#include <vector>

#include "model/flat_map.h"

namespace scorvane {

/// A cell without a contestant, and either part of a place that is not assigned.
inline constexpr std::int32_t kNobody = -1;

/// More reasons groups than this are neither listed nor printed: nobody has so many officials, but
/// a slip of the finger or a damaged file can ask for billions.
inline constexpr std::int32_t kMostReasonsGroupsShown = 10000;

/// A contestant's place in the reasons order: reasons group and speaking position (row), both from
/// 0; both kNobody when unassigned.
struct ReasonsPlace {
  std::int32_t group = kNobody;
  std::int32_t position = kNobody;
  [[nodiscard]] bool isAssigned() const { return group != kNobody && position != kNobody; }
  friend bool operator==(const ReasonsPlace&, const ReasonsPlace&) = default;
};

/// Only occupied cells are stored: a huge table in a damaged file costs nothing, and a cell that a
/// row does not have reads as empty.
class ReasonsOrder {
 public:
  /// Drops every row and makes `rows` empty rows of `columns` cells (below 0 counts as 0).
  void reset(std::int64_t rows, std::int32_t columns);
  /// Appends empty rows of `columns` cells until there are `rows`.
  void growTo(std::int64_t rows, std::int32_t columns);

  [[nodiscard]] bool empty() const { return rows_ == 0; }
  [[nodiscard]] std::int32_t rowCount() const { return rows_; }
  /// Cells of the first row; 0 without rows.
  [[nodiscard]] std::int32_t columnCount() const { return rows_ == 0 ? 0 : columns_; }

  /// The contestant in a cell; kNobody when empty or outside the table.
  [[nodiscard]] std::int32_t cell(std::int32_t row, std::int32_t group) const;
  /// Puts a contestant into a cell, or empties it with kNobody. Cells outside the rows are ignored.
  void setCell(std::int32_t row, std::int32_t group, std::int32_t contestant);

  /// Occupied cells ordered by group, then row: ((group, row), contestant).
  using Cells = FlatMap<std::pair<std::int32_t, std::int32_t>, std::int32_t>;
  [[nodiscard]] const Cells& cells() const { return cells_; }
  /// Replaces all occupied cells; those outside the rows are dropped.
  void setCells(std::vector<Cells::Entry> cells);

  friend bool operator==(const ReasonsOrder&, const ReasonsOrder&) = default;

 private:
  [[nodiscard]] bool isInside(std::int32_t row, std::int32_t group) const {
    return row >= 0 && row < rows_ && group >= 0;
  }

  std::int32_t rows_ = 0;
  std::int32_t columns_ = 0;
  Cells cells_;
};

}  // namespace scorvane
