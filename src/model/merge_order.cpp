#include "model/merge_order.h"

#include <algorithm>

namespace scorvane {

namespace {

using Elements = std::vector<Three<std::int32_t>>;

std::vector<std::size_t> orderOf(const Elements& elements, const std::vector<bool>& stays,
                                 Side side) {
  std::vector<std::size_t> order;
  for (std::size_t id = 0; id < elements.size(); ++id) {
    if (stays[id] && elements[id][side]) order.push_back(id);
  }
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return *elements[a][side] < *elements[b][side]; });
  return order;
}

std::vector<std::size_t> those(std::vector<std::size_t> order, const Elements& elements,
                               Side side) {
  std::erase_if(order, [&](std::size_t id) { return !elements[id][side]; });
  return order;
}

bool isReordered(const std::vector<std::size_t>& order, const Elements& elements) {
  const std::vector<std::size_t> known = those(order, elements, kBase);
  return !std::is_sorted(known.begin(), known.end());  // the ancestor's are in their order
}

}  // namespace

MergedOrder mergedOrder(const Elements& elements, const std::vector<bool>& stays,
                        const std::function<bool(std::size_t, std::size_t)>& isBefore) {
  const std::vector<std::size_t> ours = orderOf(elements, stays, kOurs);
  const std::vector<std::size_t> theirs = orderOf(elements, stays, kTheirs);
  MergedOrder merged;
  const bool movedHere = isReordered(ours, elements), movedThere = isReordered(theirs, elements);
  const bool contradict = those(ours, elements, kTheirs) != those(theirs, elements, kOurs);
  merged.differs = contradict && movedHere == movedThere;
  const bool prefersTheirs = contradict && movedThere && !movedHere;
  std::vector<bool> isTaken(elements.size());
  auto a = ours.begin();
  auto b = theirs.begin();
  while (true) {
    while (a != ours.end() && isTaken[*a]) ++a;
    while (b != theirs.end() && isTaken[*b]) ++b;
    if (a == ours.end() && b == theirs.end()) return merged;
    const bool aIsFree = a != ours.end() && !elements[*a][kTheirs];
    const bool bIsFree = b != theirs.end() && !elements[*b][kOurs];
    bool takesTheirs = prefersTheirs;
    if (a == ours.end() || b == theirs.end()) {
      takesTheirs = a == ours.end();
    } else if (aIsFree || bIsFree) {
      takesTheirs = aIsFree ? bIsFree && isBefore(*b, *a) : true;
    }
    merged.elements.push_back(takesTheirs ? *b : *a);
    isTaken[merged.elements.back()] = true;
  }
}

}  // namespace scorvane
