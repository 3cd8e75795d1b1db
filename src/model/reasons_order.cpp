#include "model/reasons_order.h"

#include <algorithm>
#include <limits>

namespace scorvane {

namespace {

std::int32_t clampedRows(std::int64_t rows) {
  return static_cast<std::int32_t>(
      std::clamp<std::int64_t>(rows, 0, std::numeric_limits<std::int32_t>::max()));
}

}  // namespace

void ReasonsOrder::reset(std::int64_t rows, std::int32_t columns) {
  cells_.clear();
  rows_ = clampedRows(rows);
  columns_ = std::max(columns, 0);
}

void ReasonsOrder::growTo(std::int64_t rows, std::int32_t columns) {
  if (rows_ == 0) columns_ = std::max(columns, 0);
  rows_ = std::max(rows_, clampedRows(rows));
}

std::int32_t ReasonsOrder::cell(std::int32_t row, std::int32_t group) const {
  const std::int32_t* contestant = cells_.find({group, row});
  return contestant == nullptr ? kNobody : *contestant;
}

void ReasonsOrder::setCell(std::int32_t row, std::int32_t group, std::int32_t contestant) {
  if (!isInside(row, group)) return;
  if (contestant == kNobody) {
    cells_.erase({group, row});
  } else {
    cells_[{group, row}] = contestant;
  }
}

void ReasonsOrder::setCells(std::vector<Cells::Entry> cells) {
  std::erase_if(cells, [this](const Cells::Entry& entry) {
    return !isInside(entry.first.second, entry.first.first) || entry.second == kNobody;
  });
  cells_ = Cells::fromEntries(std::move(cells));
}

}  // namespace scorvane
