#include "entry/group_entry.h"

#include "session/open_contest.h"
#include "text/format.h"

namespace scorvane {

namespace {

// A line's key is the group's letter and not its position: beyond "Z" a sorted list need not be in
// the order of the letters.
std::vector<ListLine> groupLines(const std::vector<char>& letters) {
  std::vector<ListLine> lines;
  lines.reserve(letters.size());
  for (const char letter : letters) lines.push_back({formatText("   %c   ", letter), letter});
  return lines;
}

}  // namespace

void GroupEntryDialog::onOpen(Dialog& dialog) {
  const Contest& contest = currentContest();
  choice_.open(dialog, contest.classes, scores_.listed(contest.classes),
               groupLines(contest.groupLetters));
  dialog.focus(scores_.scoreField);
}

void GroupEntryDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (choice_.take(dialog, id, event)) {
    group_ = static_cast<char>(choice_.groupIndex());
    start(dialog);
  }
  if (id == kEntryScoreButton && event == ControlEvent::clicked) {
    if (choice_.isMade(dialog, "group")) {
      if (scores_.enter(dialog, choice_)) advance(dialog);
      // The next card is typed at once, also after a press by mouse.
      dialog.focus(scores_.scoreField);
    }
  }
  endOn(dialog, id, event, scores_.escape);
}

void GroupEntryDialog::onClose(Dialog& dialog) {
  saveAndEnd(dialog);
}

void GroupEntryDialog::start(Dialog& dialog) {
  const Contest& contest = currentContest();
  const std::optional<ContestantNumber> first = firstMember(contest, group_);
  // A group without members deliberately leaves everything as it stands, also a contestant still
  // shown from the group chosen before.
  if (!first) return;
  choice_.setContestant(first);
  const EnteredCount count = countEntered(contest, group_, choice_.classIndex(), scores_.score);
  if (confirmReentry(dialog, count, scores_.name)) {
    choice_.showContestant(dialog, first);
  } else {
    choice_.clear(dialog);
  }
  dialog.focus(scores_.scoreField);
}

void GroupEntryDialog::advance(Dialog& dialog) {
  const std::optional<ContestantNumber> current = choice_.contestant();
  const auto next = current ? nextMember(currentContest(), group_, *current) : std::nullopt;
  if (next) {
    choice_.showContestant(dialog, next);
  } else {
    choice_.clear(dialog);
  }
}

}  // namespace scorvane
