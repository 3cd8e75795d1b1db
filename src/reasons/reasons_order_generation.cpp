#include "reasons/reasons_order_generation.h"

#include <map>
#include <set>
#include <utility>
#include <vector>

#include "model/class_lists.h"
#include "model/reasons_places.h"

namespace scorvane {

namespace {

/// One column of the table while it is being filled.
struct GroupRows {
  std::set<std::int32_t> taken;
  std::int32_t firstFree = 0;  ///< rows are never given back, so this only grows
};

/// Takes a free row at random; the first free one after too many tries. Nothing when all rows are
/// taken.
std::optional<std::int32_t> takeFreeRow(GroupRows& group, std::int32_t rows,
                                        ReasonsRandom& random) {
  constexpr int kMostTries = 100;
  while (group.taken.count(group.firstFree) != 0) ++group.firstFree;
  if (group.firstFree >= rows) return std::nullopt;
  std::int32_t row = random.draw() % rows;
  for (int tries = 1; group.taken.count(row) != 0; ++tries) {
    row = random.draw() % rows;
    if (tries > kMostTries) row = group.firstFree;
  }
  group.taken.insert(row);
  return row;
}

/// The occupied cells of a new order; nothing when a group has no row left for a contestant.
std::optional<std::vector<ReasonsOrder::Cells::Entry>> drawOrder(const Contest& contest,
                                                                 std::int32_t step,
                                                                 std::uint32_t seed) {
  const std::int64_t groups = contest.settings.numReasonsGroups;
  ReasonsRandom random(seed);
  std::map<std::int32_t, GroupRows> rowsOfGroup;
  std::vector<ReasonsOrder::Cells::Entry> cells;
  std::int32_t group = 0;
  bool oddPlace = true;
  for (const auto& [number, name] : contest.contestantNames) {
    if (name.empty()) continue;
    const auto row = takeFreeRow(rowsOfGroup[group], contest.reasonsOrder.rowCount(), random);
    if (!row) return std::nullopt;
    cells.push_back({{group, *row}, number});
    group = static_cast<std::int32_t>((std::int64_t{group} + (oddPlace ? step : 1)) % groups);
    oddPlace = !oddPlace;
  }
  return cells;
}

void replaceReasonsOrder(Contest& contest, std::vector<ReasonsOrder::Cells::Entry> cells) {
  resetReasonsOrder(contest, contest.reasonsOrder.rowCount());
  for (const auto& [cell, number] : cells) {
    contest.reasonsPlace[number] = {cell.first, cell.second};
  }
  contest.reasonsOrder.setCells(std::move(cells));
  compactReasonsOrder(contest);
}

}  // namespace

std::int32_t ReasonsRandom::draw() {
  state_ = state_ * 214013U + 2531011U;
  return static_cast<std::int32_t>(state_ >> 16U & 0x7fffU);
}

std::int32_t reasonsGroupStep(std::int32_t groups, std::int32_t classes) {
  return classes > 0 && groups > classes && groups % classes == 0 ? classes : 1;
}

std::optional<std::string> generateReasonsOrder(Contest& contest, std::uint32_t seed) {
  const std::int32_t groups = contest.settings.numReasonsGroups;
  const auto classes = static_cast<std::int32_t>(reasonsClasses(contest.classes).size());
  if (classes == 0) return "There are no reasons classes.  Reasons order cannot be generated.";
  if (groups < classes) {
    return "There must be at least as many reasons takers as there are reasons classes.\n"
           "\t\tA reasons order can not be assigned.";
  }
  auto cells = drawOrder(contest, reasonsGroupStep(groups, classes), seed);
  if (!cells) {
    return "There are more contestants than places in the reasons order.  "
           "Reasons order cannot be generated.";
  }
  replaceReasonsOrder(contest, std::move(*cells));
  return std::nullopt;
}

}  // namespace scorvane
