#include "reports/round_verification_dialog.h"

#include <string>
#include <vector>

#include "model/class_lists.h"
#include "reports/round_reports.h"
#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

RoundVerificationDialog::RoundVerificationDialog() : rotation_(rotationOf(currentContest())) {}

void RoundVerificationDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  rotation_ = rotationOf(contest);
  std::vector<std::string> rounds;
  std::vector<std::string> groups;
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    rounds.push_back(formatText("%10d", k + 1));
  }
  for (const char letter : contest.groupLetters) groups.push_back(formatText("%8c", letter));
  dialog.setLines(kRounds, rounds);
  dialog.setLines(kGroups, groups);
  dialog.setLines(kClasses, classLines(contest.classes, allClasses(contest.classes)));
}

void RoundVerificationDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) {
    if (id == kRounds) {
      dialog.select(kGroups, std::nullopt);
      dialog.select(kClasses, std::nullopt);
    } else {
      selectRoundOfGroupAndClass(dialog);
    }
  } else if (event == ControlEvent::clicked) {
    if (id == kOkId) makeReport(dialog);
    if (id == kCancelId) dialog.end(kCancelId);
  }
}

void RoundVerificationDialog::onClose(Dialog& dialog) {
  dialog.end(0);
}

// A group that never judges the class leaves no round selected.
void RoundVerificationDialog::selectRoundOfGroupAndClass(Dialog& dialog) const {
  dialog.select(kRounds, std::nullopt);
  const auto group = dialog.selection(kGroups);
  const auto classIndex = dialog.selection(kClasses);
  if (!group || !classIndex) return;
  const std::vector<char>& letters = currentContest().groupLetters;
  const auto groupIndex = static_cast<std::size_t>(*group);
  if (groupIndex >= letters.size()) return;
  const std::int32_t round = rotation_.roundOf(letters[groupIndex], *classIndex);
  if (round < rotation_.rounds()) dialog.select(kRounds, round);
}

void RoundVerificationDialog::makeReport(Dialog& dialog) {
  const auto round = dialog.selection(kRounds);
  if (!round) {
    dialog.show("You must select either a round number or a group and class to report on.",
                "Information");
    return;
  }
  reportText() = roundVerificationReport(currentContest(), *round);
  dialog.end(kOkId);
}

}  // namespace scorvane
