#include "entry/group_entry_dialog.h"

#include <tuple>
#include <utility>
#include <vector>

#include "entry/last_score.h"
#include "entry/score_lists.h"
#include "text/format.h"

namespace scorvane {

namespace {

std::optional<std::string> readNumber(std::optional<std::uint32_t> number, const char* scoreName,
                                      std::optional<std::int32_t>& score) {
  if (!number) return std::nullopt;
  if (*number > static_cast<std::uint32_t>(kTopNumberScore)) {
    return formatText("%s Score must be between 0 and %d.", scoreName, kTopNumberScore);
  }
  score = static_cast<std::int32_t>(*number);
  return std::nullopt;
}

// Reads the score field. Returns why its text is refused, or nothing.
std::optional<std::string> readScore(const Dialog& dialog, const GroupEntry& entry,
                                     TypedScores& typed) {
  switch (entry.kind) {
    case EntryKind::reasons:
      return readNumber(dialog.number(entry.field), "Reasons", typed.reasons);
    case EntryKind::questions:
      return readNumber(dialog.number(entry.field), "Questions", typed.questions);
    case EntryKind::placings:
      break;
  }
  return readLetter(dialog.text(entry.field), typed.letter);
}

}  // namespace

void GroupEntryDialog::onOpen(Dialog& dialog) {
  dialog.setLines(IDC_ENTRY_CLASS, linesOfClasses(contest_.classes, entry_.kind));
  dialog.setLines(IDC_ENTRY_GROUP, linesOfGroups(contest_, entry_.kind));
  dialog.focus(entry_.field);
}

void GroupEntryDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (event == ControlEvent::selectionChanged) {
    (id == IDC_ENTRY_CLASS ? class_ : group_) = dialog.selectedNumber(id);
    finished_.reset();
    if (class_ && group_) startGroup(dialog);
  }
  if (id == IDC_ENTRY_SCORE && event == ControlEvent::clicked) score(dialog);
  if (id == IDC_ENTRY_BACK && event == ControlEvent::clicked) goBack(dialog);
  endOn(dialog, id, event, entry_.escape);
}

void GroupEntryDialog::onClose(Dialog& dialog) {
  saveAndEnd(dialog);
}

void GroupEntryDialog::startGroup(Dialog& dialog) {
  const bool isReasons = entry_.kind == EntryKind::reasons;
  std::vector<ContestantNumber> cards = isReasons
                                            ? speakersUpToHole(contest_.reasonsOrder, *group_)
                                            : groupMembers(contest_, static_cast<char>(*group_));
  if (cards.empty() && !isReasons) {
    // Odd but required, docs/required-behaviour.md: group-without-members
    if (position_ < cards_.size()) cards_.resize(position_ + 1);
    return;
  }
  if (confirmReentry(dialog, isReasons ? groupSpeakers(contest_, *group_) : cards)) {
    cards_ = std::move(cards);
    position_ = 0;
    showContestant(dialog);
  } else {
    clearChoice(dialog);
  }
  dialog.focus(entry_.field);
}

// Asks whether to enter scores again of a group that has some.
bool GroupEntryDialog::confirmReentry(Dialog& dialog,
                                      const std::vector<ContestantNumber>& group) const {
  const EnteredCount count = countEntered(contest_, group, *class_, entry_.score);
  if (count.entered == 0) return true;
  const std::string question = formatText(
      "This group has %d (out of %d) %s scores that have already been entered.\n\n\n"
      "Would you like to re-enter scores for this group?",
      count.entered, count.entered + count.missing, entry_.scoresName);
  return dialog.ask({question, "Information", Buttons::yesNo, Answer::yes}) != Answer::no;
}

void GroupEntryDialog::score(Dialog& dialog) {
  if (const auto missing = missingChoice()) {
    dialog.show(*missing, "Error");
    return;
  }
  if (enterCard(dialog)) {
    if (++position_ < cards_.size()) {
      showContestant(dialog);
    } else {
      const std::pair done(*class_, *group_);
      clearChoice(dialog);
      finished_ = done;
    }
  }
  // The next card is typed at once, also after a press by mouse.
  dialog.focus(entry_.field);
}

// Shows the card before this one again, so that a slip of the key is typed over at once. Behind the
// last card of a group that is the last card, with class and group as they were.
void GroupEntryDialog::goBack(Dialog& dialog) {
  dialog.setText(entry_.field, "");
  dialog.focus(entry_.field);
  if (finished_) {
    std::tie(class_, group_) = *finished_;
    dialog.selectKey(IDC_ENTRY_CLASS, *class_);
    dialog.selectKey(IDC_ENTRY_GROUP, *group_);
    finished_.reset();
  } else if (position_ == cards_.size() || !class_) {
    return;
  }
  if (position_ > 0) --position_;
  showContestant(dialog);
  showLastScore(dialog, contest_, cards_[position_], *class_, entry_.kind);
}

std::optional<std::string> GroupEntryDialog::missingChoice() const {
  if (class_ && group_) return std::nullopt;
  return formatText("You must select a %s before entering a score.",
                    class_ ? entry_.groupName : "class");
}

// Stores the card and shows it as the last one; false when it is refused.
bool GroupEntryDialog::enterCard(Dialog& dialog) {
  TypedScores typed;
  if (const auto refusal = readScore(dialog, entry_, typed)) {
    dialog.show(*refusal, entry_.kind == EntryKind::placings ? "Warning" : "Error");
    dialog.setText(entry_.field, "");
    return false;
  }
  dialog.setText(entry_.field, "");
  if (position_ == cards_.size()) {
    dialog.show(entry_.noContestant, "Warning");
    return false;
  }
  storeScores(contest_, cards_[position_], *class_, typed);
  showLastScore(dialog, contest_, cards_[position_], *class_, entry_.kind);
  return true;
}

// Shows whose card is typed now.
void GroupEntryDialog::showContestant(Dialog& dialog) {
  const bool isSomebody = position_ < cards_.size();
  dialog.setText(IDC_ENTRY_CONTESTANT, isSomebody ? std::to_string(cards_[position_]) : "");
  showPerson(dialog, contest_, isSomebody ? std::optional(cards_[position_]) : std::nullopt);
}

// Back to nothing chosen.
void GroupEntryDialog::clearChoice(Dialog& dialog) {
  class_.reset();
  group_.reset();
  dialog.select(IDC_ENTRY_CLASS, std::nullopt);
  dialog.select(IDC_ENTRY_GROUP, std::nullopt);
  position_ = cards_.size();
  showContestant(dialog);
}

}  // namespace scorvane
