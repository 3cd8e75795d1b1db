#include "setup/class_table.h"

#include <cstddef>
#include <vector>

#include "model/class_lists.h"
#include "session/open_contest.h"
#include "setup/setup_classes_controls.h"
#include "text/format.h"

namespace scorvane {

using namespace setup_classes;

namespace {

const char* flagsLine(bool reasons, bool questions) {
  if (reasons && questions) return "   R-Q";
  if (reasons) return "   R--";
  return questions ? "   --Q" : "   ---";
}

}  // namespace

std::array<std::string, 5> classLines(const Contest& contest, std::int32_t index) {
  const JudgingClasses& classes = contest.classes;
  const PlacingLetter official = classes.official(index);
  const auto order = orderOfLetter(official);
  const Cuts cuts = classes.cuts(index);
  return {classLine(classes, index),
          flagsLine(classes.hasReasons(index), classes.hasQuestions(index)),
          formatText("   %c (%d,%d,%d,%d)", official, order[0], order[1], order[2], order[3]),
          formatText("  (%d,%d,%d)", cuts.cut1, cuts.cut2, cuts.cut3),
          categoryName(contest, classes.category(index))};
}

void reloadClassTable(Dialog& dialog) {
  const Contest& contest = currentContest();
  std::array<std::vector<std::string>, kTable.size()> columns;
  for (std::int32_t i = 0; i < contest.classes.count(); ++i) {
    const auto lines = classLines(contest, i);
    for (std::size_t k = 0; k < lines.size(); ++k) columns[k].push_back(lines[k]);
  }
  for (std::size_t k = 0; k < kTable.size(); ++k) dialog.setLines(kTable[k], columns[k]);
}

void appendToClassTable(Dialog& dialog, std::int32_t index) {
  const auto lines = classLines(currentContest(), index);
  for (std::size_t k = 0; k < kTable.size(); ++k) dialog.addLine(kTable[k], {lines[k], index});
}

void selectInClassTable(Dialog& dialog, std::optional<int> line) {
  for (const ControlId list : kTable) dialog.select(list, line);
}

}  // namespace scorvane
