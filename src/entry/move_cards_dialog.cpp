#include "entry/move_cards_dialog.h"

#include <algorithm>

#include "entry/closing.h"
#include "entry/group_members.h"
#include "entry/last_score.h"
#include "entry/score_lists.h"
#include "session/recovery.h"
#include "text/format.h"
#include "text/number.h"

namespace scorvane {

namespace {

EntryKind kind(const Dialog& dialog) {
  if (dialog.isChecked(IDC_CARDS_REASONS)) return EntryKind::reasons;
  return dialog.isChecked(IDC_CARDS_QUESTIONS) ? EntryKind::questions : EntryKind::placings;
}

ScoreValue valueOf(const Dialog& dialog) {
  switch (kind(dialog)) {
    case EntryKind::reasons:
      return ScoreValue::reasons;
    case EntryKind::questions:
      return ScoreValue::questions;
    case EntryKind::placings:
      break;
  }
  return ScoreValue::letter;
}

// How many scores change, in words that need no plural.
std::string summaryOf(const Dialog& dialog, const std::vector<CardChange>& changes) {
  const ScoreValue value = valueOf(dialog);
  const auto count = [&](auto&& counts) {
    return static_cast<std::size_t>(std::count_if(changes.begin(), changes.end(), counts));
  };
  if (dialog.isChecked(IDC_CARDS_CLEAR)) return formatText("Scores to clear: %zu.", changes.size());
  if (dialog.isChecked(IDC_CARDS_EXCHANGE)) {
    return formatText("Scores to exchange: %zu.",
                      count([&](const auto& change) { return isEntered(value, change.before); }));
  }
  return formatText("Scores to move: %zu.  Scores typed over: %zu.",
                    count([&](const auto& change) { return !isEntered(value, change.after); }),
                    count([&](const auto& change) { return isTypedOver(value, change); }));
}

}  // namespace

void MoveCardsDialog::onOpen(Dialog& dialog) {
  dialog.setChecked(IDC_CARDS_PLACINGS, true);
  dialog.setChecked(IDC_CARDS_MOVE, true);
  showLists(dialog);
  showPlan(dialog);
  dialog.focus(IDC_CARDS_GROUP);
}

void MoveCardsDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == IDC_CARDS_GROUP && event == ControlEvent::selectionChanged) {
    dialog.setText(IDC_CARDS_NUMBER, "");
  }
  if (id == IDC_CARDS_NUMBER && event == ControlEvent::textChanged) {
    if (!dialog.text(id).empty()) dialog.select(IDC_CARDS_GROUP, std::nullopt);
    showPerson(dialog, contest_, contestant(dialog, id));
  }
  if (event == ControlEvent::clicked) {
    if (id == IDC_CARDS_PLACINGS || id == IDC_CARDS_REASONS || id == IDC_CARDS_QUESTIONS) {
      showLists(dialog);
    }
    if (id == IDC_CARDS_CHANGE) return change(dialog);
    if (id == kCancelId) return dialog.end(kCancelId);
  }
  const bool isAnswer = event == ControlEvent::gotFocus || event == ControlEvent::lostFocus;
  if (!isAnswer && id != IDC_CARDS_CHANGES) showPlan(dialog);
}

void MoveCardsDialog::onClose(Dialog& dialog) {
  dialog.end(kCancelId);
}

// The classes that carry such scores, and the groups in which they are typed.
void MoveCardsDialog::showLists(Dialog& dialog) {
  const std::vector<ListLine> classes = linesOfClasses(contest_.classes, kind(dialog));
  dialog.setLines(IDC_CARDS_CLASS, classes);
  dialog.setLines(IDC_CARDS_TARGET, classes);
  dialog.setLines(IDC_CARDS_GROUP, linesOfGroups(contest_, kind(dialog)));
}

std::optional<ContestantNumber> MoveCardsDialog::contestant(const Dialog& dialog,
                                                            ControlId field) const {
  const auto typed = typedNumber(dialog.text(field));
  if (!typed || *typed != static_cast<ContestantNumber>(*typed)) return std::nullopt;
  const auto number = static_cast<ContestantNumber>(*typed);
  return contest_.contestantNames.contains(number) ? std::optional(number) : std::nullopt;
}

// The contestant whose number is typed, else those of the group chosen.
std::vector<ContestantNumber> MoveCardsDialog::chosen(const Dialog& dialog) const {
  if (const auto number = contestant(dialog, IDC_CARDS_NUMBER)) return {*number};
  const auto group = dialog.selectedNumber(IDC_CARDS_GROUP);
  if (!group) return {};
  return kind(dialog) == EntryKind::reasons ? groupSpeakers(contest_, *group)
                                            : groupMembers(contest_, static_cast<char>(*group));
}

MoveCardsDialog::Plan MoveCardsDialog::plan(const Dialog& dialog) const {
  const auto from = dialog.selectedNumber(IDC_CARDS_CLASS);
  const std::vector<ContestantNumber> contestants = chosen(dialog);
  if (contestants.empty()) {
    return dialog.text(IDC_CARDS_NUMBER).empty() ? "Choose a group, or type a contestant's number."
                                                 : "No contestant has this number.";
  }
  if (dialog.isChecked(IDC_CARDS_EXCHANGE)) return exchange(dialog, from);
  if (!from) return "Choose the class in which the cards are.";
  if (dialog.isChecked(IDC_CARDS_CLEAR)) {
    return clearedCards(contest_, valueOf(dialog), contestants, *from);
  }
  const auto to = dialog.selectedNumber(IDC_CARDS_TARGET);
  if (!to || *to == *from) return "Choose the class to which the cards belong.";
  return movedCards(contest_, valueOf(dialog), contestants, *from, *to);
}

MoveCardsDialog::Plan MoveCardsDialog::exchange(const Dialog& dialog,
                                                std::optional<std::int32_t> from) const {
  const auto one = contestant(dialog, IDC_CARDS_NUMBER);
  const auto other = contestant(dialog, IDC_CARDS_OTHER);
  if (!one) return "Only two contestants exchange: type a number, not a group.";
  if (!other || *one == *other) return "Type the number of the other contestant.";
  const bool everywhere = dialog.isChecked(IDC_CARDS_ALL_CLASSES);
  if (!everywhere && !from) return "Choose the class in which the cards are.";
  return exchangedCards(contest_, valueOf(dialog), *one, *other, everywhere ? std::nullopt : from);
}

void MoveCardsDialog::showPlan(Dialog& dialog) {
  const Plan found = plan(dialog);
  const auto* changes = std::get_if<std::vector<CardChange>>(&found);
  std::vector<std::string> lines;
  std::string summary =
      changes == nullptr ? std::get<std::string>(found) : "No such score is entered there.";
  if (changes != nullptr && !changes->empty()) {
    for (const CardChange& change : *changes) {
      lines.push_back(cardChangeLine(contest_, valueOf(dialog), change));
    }
    summary = summaryOf(dialog, *changes);
  }
  dialog.setLines(IDC_CARDS_CHANGES, lines);
  dialog.setText(IDC_CARDS_SUMMARY, summary);
  dialog.setEnabled(IDC_CARDS_TARGET, dialog.isChecked(IDC_CARDS_MOVE));
  dialog.setEnabled(IDC_CARDS_OTHER, dialog.isChecked(IDC_CARDS_EXCHANGE));
  dialog.setEnabled(IDC_CARDS_ALL_CLASSES, dialog.isChecked(IDC_CARDS_EXCHANGE));
}

void MoveCardsDialog::change(Dialog& dialog) {
  const Plan found = plan(dialog);
  const auto* changes = std::get_if<std::vector<CardChange>>(&found);
  if (changes == nullptr || changes->empty()) {
    dialog.show(dialog.text(IDC_CARDS_SUMMARY), "Information");
    return;
  }
  if (!dialog.confirm(
          dialog.text(IDC_CARDS_SUMMARY) +
          "\r\n\r\nPress OK to change the scores as listed, or Cancel to leave them.")) {
    return;
  }
  before_ = contest_;
  applyCardChanges(contest_, *changes);
  after_ = contest_;
  contestChanged();
  saveAndEnd(dialog);
}

}  // namespace scorvane
