#include "reports/round_verification_dialog.h"

#include <string>
#include <vector>

#include "model/class_lists.h"
#include "reports/round_verification_ids.h"
#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

RoundVerificationDialog::RoundVerificationDialog() : rotation_(rotationOf(currentContest())) {}

void RoundVerificationDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  std::vector<std::string> rounds;
  std::vector<ListLine> groups;
  for (std::int32_t k = 0; k < contest.classes.count(); ++k) {
    rounds.push_back(formatText("%10d", k + 1));
  }
  for (const char letter : contest.groupLetters) {
    groups.push_back({formatText("%8c", letter), std::string(1, letter)});
  }
  dialog.setLines(IDC_VERIFIED_ROUNDS, rounds);
  dialog.setLines(IDC_VERIFIED_GROUPS, groups);
  dialog.setLines(IDC_VERIFIED_CLASSES, classLines(contest.classes, allClasses(contest.classes)));
}

void RoundVerificationDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) {
    if (id == IDC_VERIFIED_ROUNDS) {
      dialog.select(IDC_VERIFIED_GROUPS, std::nullopt);
      dialog.select(IDC_VERIFIED_CLASSES, std::nullopt);
    } else {
      selectRoundOfGroupAndClass(dialog);
    }
  } else if (event == ControlEvent::clicked) {
    if (id == kOkId) choose(dialog);
    if (id == kCancelId) dialog.end(kCancelId);
  }
}

void RoundVerificationDialog::onClose(Dialog& dialog) {
  dialog.end(0);
}

// A group that never judges the class leaves no round selected.
void RoundVerificationDialog::selectRoundOfGroupAndClass(Dialog& dialog) const {
  dialog.select(IDC_VERIFIED_ROUNDS, std::nullopt);
  const auto group = dialog.selectedText(IDC_VERIFIED_GROUPS);
  const auto classIndex = dialog.selectedNumber(IDC_VERIFIED_CLASSES);
  if (!group || !classIndex) return;
  const std::int32_t round = rotation_.roundOf(group->front(), *classIndex);
  if (round < rotation_.rounds()) dialog.select(IDC_VERIFIED_ROUNDS, round);
}

void RoundVerificationDialog::choose(Dialog& dialog) {
  const auto round = dialog.selectedNumber(IDC_VERIFIED_ROUNDS);
  if (!round) {
    dialog.show("You must select either a round number or a group and class to report on.",
                "Information");
    return;
  }
  request_.emplace().round = round;
  dialog.end(kOkId);
}

}  // namespace scorvane
