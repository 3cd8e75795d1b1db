#include "entry/score_lists.h"

#include <algorithm>

#include "model/class_lists.h"
#include "text/format.h"

namespace scorvane {

std::vector<ListLine> linesOfClasses(const JudgingClasses& classes, EntryKind kind) {
  const std::vector<std::int32_t> listed = kind == EntryKind::placings  ? allClasses(classes)
                                           : kind == EntryKind::reasons ? reasonsClasses(classes)
                                                                        : questionsClasses(classes);
  std::vector<ListLine> lines;
  lines.reserve(listed.size());
  for (const std::int32_t index : listed) lines.push_back({classLine(classes, index), index});
  return lines;
}

std::vector<ListLine> linesOfGroups(const Contest& contest, EntryKind kind) {
  std::vector<ListLine> lines;
  if (kind == EntryKind::reasons) {
    const std::int32_t groups =
        std::min(contest.reasonsOrder.columnCount(), kMostReasonsGroupsShown);
    for (std::int32_t group = 0; group < groups; ++group) {
      lines.push_back({formatText("   %d   ", group + 1), group});
    }
    return lines;
  }
  for (const char letter : contest.groupLetters) {
    lines.push_back({formatText("   %c   ", letter), letter});
  }
  return lines;
}

}  // namespace scorvane
