#include "entry/reasons_dialog.h"

#include <algorithm>

#include "entry/entry_closing.h"
#include "entry/last_score.h"
#include "entry/score_card.h"
#include "model/class_lists.h"
#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

namespace {

constexpr NumericScoreField kCard = {"Reasons", 1028, &ScoreRecord::reasonsScore,
                                     "Error:  no member number entered."};

std::vector<ListLine> reasonsGroupLines(std::int32_t groups) {
  const std::int32_t shown = std::min(groups, kMostReasonsGroupsShown);
  std::vector<ListLine> lines;
  for (std::int32_t group = 0; group < shown; ++group) {
    lines.push_back({formatText("   %d   ", group + 1), group});
  }
  return lines;
}

}  // namespace

EnteredCount countReasonsEntered(const Contest& contest, std::int32_t reasonsGroup,
                                 std::int32_t classIndex) {
  const ReasonsOrder::Cells& cells = contest.reasonsOrder.cells();
  EnteredCount count;
  auto cell = cells.lowerBound({reasonsGroup, 0});
  for (; cell != cells.end() && cell->first.first == reasonsGroup; ++cell) {
    const ContestantNumber number = cell->second;
    if (contestantName(contest, number).empty()) continue;
    count.add(scoreRecord(contest, number, classIndex).reasonsScore);
  }
  return count;
}

void ReasonsDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  choice_.open(dialog, contest.classes, reasonsClasses(contest.classes),
               reasonsGroupLines(contest.reasonsOrder.columnCount()));
  dialog.focus(kCard.field);
}

void ReasonsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (choice_.take(dialog, id, event)) start(dialog);
  if (id == kEntryScoreButton && event == ControlEvent::clicked) {
    score(dialog);
  }
  endOn(dialog, id, event);
}

void ReasonsDialog::onClose(Dialog& dialog) {
  saveAndEnd(dialog);
}

std::optional<ContestantNumber> ReasonsDialog::speaker() const {
  const ContestantNumber number =
      currentContest().reasonsOrder.cell(position_, choice_.groupIndex());
  return number == kNobody ? std::nullopt : std::optional<ContestantNumber>(number);
}

// A single empty cell at the top of the column is passed over; a second one leaves the group
// without a contestant to start with.
void ReasonsDialog::start(Dialog& dialog) {
  position_ = 0;
  if (!speaker()) position_ = 1;
  choice_.setContestant(speaker());
  const EnteredCount count =
      countReasonsEntered(currentContest(), choice_.groupIndex(), choice_.classIndex());
  if (confirmReentry(dialog, count, "reasons")) {
    choice_.showContestant(dialog, choice_.contestant());
  } else {
    choice_.clear(dialog);
  }
  dialog.focus(kCard.field);
}

void ReasonsDialog::score(Dialog& dialog) {
  if (!choice_.isMade(dialog, "reasons group")) return;
  if (enterScore(dialog, kCard, choice_)) {
    showLastContestant(dialog, *choice_.contestant());
    showLastReasons(dialog, currentContest(), *choice_.contestant(), choice_.classIndex());
    advance(dialog);
  }
  dialog.focus(kCard.field);
}

// Past the top, an empty cell ends the group even when more contestants stand below it.
void ReasonsDialog::advance(Dialog& dialog) {
  ++position_;
  if (const std::optional<ContestantNumber> next = speaker()) {
    choice_.showContestant(dialog, next);
  } else {
    choice_.clear(dialog);
  }
}

}  // namespace scorvane
