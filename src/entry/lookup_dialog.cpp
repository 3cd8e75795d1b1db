#include "entry/lookup_dialog.h"

#include <optional>
#include <string>
#include <vector>

#include "entry/closing.h"
#include "entry/entry_ids.h"
#include "entry/last_score.h"
#include "entry/score_fields.h"
#include "model/class_lists.h"
#include "text/format.h"
#include "text/number.h"

namespace scorvane {

namespace {

constexpr const char* kNoSuchContestant = "Error:  Contestant Number doesn't exist.";

/// Why a press is refused, which fields are emptied, and where that can be put right.
struct Refusal {
  std::string message;
  std::vector<ControlId> emptied;
  ControlId focus;
};

void empty(Dialog& dialog, const std::vector<ControlId>& fields) {
  for (const ControlId field : fields) dialog.setText(field, "");
}

void show(Dialog& dialog, const Refusal& refusal) {
  dialog.show(refusal.message, "Warning");
  empty(dialog, refusal.emptied);
  dialog.focus(refusal.focus);
}

void enableFor(Dialog& dialog, ControlId field, bool carried) {
  dialog.setEnabled(field, carried);
  // A score left in a field that cannot be reached would still be stored.
  if (!carried) dialog.setText(field, "");
}

// Reads a reasons or questions score; no number is none. Returns why it is refused, or nothing.
std::optional<Refusal> readNumber(const Dialog& dialog, ControlId field, const char* scoreName,
                                  std::optional<std::int32_t>& score) {
  const std::optional<std::int64_t> typed = typedNumber(dialog.text(field));
  if (!typed) return std::nullopt;
  if (*typed < 0 || *typed > kTopNumberScore) {
    return Refusal{
        formatText("Error:  %s score must be between 0 and %d.", scoreName, kTopNumberScore),
        {field},
        field};
  }
  score = static_cast<std::int32_t>(*typed);
  return std::nullopt;
}

std::optional<Refusal> readScores(const Dialog& dialog, TypedScores& typed) {
  if (auto refusal = readNumber(dialog, IDC_ENTRY_REASONS, "Reasons", typed.reasons)) {
    return refusal;
  }
  if (auto refusal = readNumber(dialog, IDC_ENTRY_QUESTIONS, "Questions", typed.questions)) {
    return refusal;
  }
  if (const auto refusal = readLetter(dialog.text(IDC_ENTRY_LETTER), typed.letter)) {
    // Odd but required, docs/required-behaviour.md: refused-letter-takes-the-reasons-score
    return Refusal{*refusal, {IDC_ENTRY_LETTER, IDC_ENTRY_REASONS}, IDC_ENTRY_LETTER};
  }
  return std::nullopt;
}

// The contestant number typed; one too large for 32 bits is none.
std::optional<ContestantNumber> typedContestant(const Dialog& dialog) {
  const std::optional<std::int64_t> typed = typedNumber(dialog.text(IDC_LOOKUP_CONTESTANT));
  if (!typed || *typed != static_cast<ContestantNumber>(*typed)) return std::nullopt;
  return static_cast<ContestantNumber>(*typed);
}

void showLastScores(Dialog& dialog, const Contest& contest, ContestantNumber number,
                    std::int32_t classIndex) {
  for (const EntryKind kind : {EntryKind::placings, EntryKind::reasons, EntryKind::questions}) {
    showLastScore(dialog, contest, number, classIndex, kind);
  }
}

}  // namespace

void LookupDialog::onOpen(Dialog& dialog) {
  const JudgingClasses& classes = contest_.classes;
  dialog.setLines(IDC_ENTRY_CLASS, classLines(classes, allClasses(classes)));
  chooseClass(dialog);
  dialog.focus(IDC_LOOKUP_CONTESTANT);
}

void LookupDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == IDC_ENTRY_CLASS && event == ControlEvent::selectionChanged) chooseClass(dialog);
  if (id == IDC_LOOKUP_CONTESTANT && event == ControlEvent::textChanged) {
    showPerson(dialog, contest_, typedContestant(dialog));
  }
  if (id == IDC_ENTRY_SCORE && event == ControlEvent::clicked) score(dialog);
  if (id == IDC_LOOKUP && event == ControlEvent::clicked) lookUp(dialog);
  endOn(dialog, id, event);
}

void LookupDialog::onClose(Dialog& dialog) {
  saveAndEnd(dialog);
}

void LookupDialog::chooseClass(Dialog& dialog) {
  const std::int32_t index = dialog.selectedNumber(IDC_ENTRY_CLASS).value_or(-1);
  enableFor(dialog, IDC_ENTRY_REASONS, contest_.classes.hasReasons(index));
  enableFor(dialog, IDC_ENTRY_QUESTIONS, contest_.classes.hasQuestions(index));
}

void LookupDialog::score(Dialog& dialog) {
  TypedScores typed;
  if (const auto refusal = readScores(dialog, typed)) return show(dialog, *refusal);
  const std::optional<std::int32_t> classIndex = dialog.selectedNumber(IDC_ENTRY_CLASS);
  if (!classIndex) return show(dialog, {"Error:  no class selected.", {}, IDC_ENTRY_CLASS});
  // Odd but required, docs/required-behaviour.md: number-too-large-is-none
  const std::optional<ContestantNumber> number = typedContestant(dialog);
  if (!number) {
    return show(dialog, {"Error:  no member number entered.", {}, IDC_LOOKUP_CONTESTANT});
  }
  const std::vector<ControlId> fields = {IDC_LOOKUP_CONTESTANT, IDC_ENTRY_LETTER, IDC_ENTRY_REASONS,
                                         IDC_ENTRY_QUESTIONS};
  if (!contest_.contestantNames.contains(*number)) {
    return show(dialog, {kNoSuchContestant, fields, IDC_LOOKUP_CONTESTANT});
  }
  storeScores(contest_, *number, *classIndex, typed);
  showLastScores(dialog, contest_, *number, *classIndex);
  empty(dialog, fields);
  dialog.focus(IDC_LOOKUP_CONTESTANT);
}

void LookupDialog::lookUp(Dialog& dialog) {
  empty(dialog, {IDC_ENTRY_LETTER, IDC_ENTRY_REASONS});
  const ContestantNumber number = typedContestant(dialog).value_or(0);
  if (!contest_.contestantNames.contains(number)) {
    return show(dialog, {kNoSuchContestant, {IDC_LOOKUP_CONTESTANT}, IDC_LOOKUP_CONTESTANT});
  }
  const std::optional<std::int32_t> classIndex = dialog.selectedNumber(IDC_ENTRY_CLASS);
  if (!classIndex) return show(dialog, {"Error:  A class must be selected.", {}, IDC_ENTRY_CLASS});
  showLastScores(dialog, contest_, number, *classIndex);
  dialog.focus(IDC_LOOKUP_CONTESTANT);
  // The next number is typed over this one.
  dialog.selectText(IDC_LOOKUP_CONTESTANT);
}

}  // namespace scorvane
