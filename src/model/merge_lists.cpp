#include <algorithm>
#include <utility>

#include "model/contest_differences.h"
#include "model/merge_identity.h"

namespace scorvane {

namespace {

// Whether what only its position makes the ancestor's has the name of something else on the other
// side, which the ancestor lacks.
bool isRatherAdded(const std::array<const std::vector<std::string>*, 3>& lists,
                   const std::array<std::vector<ClassMatch>, 3>& matches, Side side,
                   std::int32_t base, std::int32_t index) {
  const Side other = side == kOurs ? kTheirs : kOurs;
  const std::string& name = (*lists[side])[static_cast<std::size_t>(index)];
  if (name == (*lists[kBase])[static_cast<std::size_t>(base)]) return false;
  return std::any_of(matches[other].begin(), matches[other].end(), [&](const ClassMatch& match) {
    return match.there && match.here != base &&
           (*lists[other])[static_cast<std::size_t>(*match.there)] == name &&
           (!match.here || (*lists[kBase])[static_cast<std::size_t>(*match.here)] != name);
  });
}

}  // namespace

std::vector<Three<std::int32_t>> sameNames(
    const std::array<const std::vector<std::string>*, 3>& lists) {
  std::vector<Three<std::int32_t>> same;
  for (std::size_t k = 0; k < lists[kBase]->size(); ++k) {
    same.emplace_back()[kBase] = static_cast<std::int32_t>(k);
  }
  std::array<std::vector<ClassMatch>, 3> matches;
  for (const Side side : {kOurs, kTheirs}) {
    matches[side] = matchNames(*lists[kBase], *lists[side], true);
  }
  std::array<std::vector<std::int32_t>, 3> added;
  std::array<std::vector<std::string>, 3> addedNames;
  for (const Side side : {kOurs, kTheirs}) {
    for (const auto& [base, index] : matches[side]) {
      if (base && (!index || !isRatherAdded(lists, matches, side, *base, *index))) {
        same[static_cast<std::size_t>(*base)][side] = index;
      } else if (index) {
        added[side].push_back(*index);
        addedNames[side].push_back((*lists[side])[static_cast<std::size_t>(*index)]);
      }
    }
  }
  for (const auto& [ours, theirs] : matchNames(addedNames[kOurs], addedNames[kTheirs], false)) {
    Three<std::int32_t>& element = same.emplace_back();
    if (ours) element[kOurs] = added[kOurs][static_cast<std::size_t>(*ours)];
    if (theirs) element[kTheirs] = added[kTheirs][static_cast<std::size_t>(*theirs)];
  }
  return same;
}

MergedList::MergedList(const std::array<const std::vector<std::string>*, 3>& lists)
    : elements(sameNames(lists)), stays(elements.size(), true), indexOf(elements.size()) {
  for (const Side side : {kBase, kOurs, kTheirs}) {
    elementOf[side].resize(lists[side]->size());
    for (std::size_t id = 0; id < elements.size(); ++id) {
      const auto index = elements[id][side];
      if (index) elementOf[side][static_cast<std::size_t>(*index)] = id;
    }
  }
}

void MergedList::arrange(std::vector<std::size_t> elementsInOrder) {
  order = std::move(elementsInOrder);
  indexOf.assign(elements.size(), std::nullopt);
  for (std::size_t k = 0; k < order.size(); ++k) indexOf[order[k]] = static_cast<std::int32_t>(k);
}

}  // namespace scorvane
