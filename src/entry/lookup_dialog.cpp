#include "entry/lookup_dialog.h"

#include <initializer_list>
#include <optional>
#include <string>

#include "entry/entry_choice.h"
#include "entry/entry_closing.h"
#include "entry/last_score.h"
#include "entry/score_card.h"
#include "entry/typed_letter.h"
#include "model/class_lists.h"
#include "session/open_contest.h"
#include "text/number.h"

namespace scorvane {

namespace {

constexpr ControlId kNumberField = 1026;
constexpr ControlId kLetterField = 1027;
constexpr ControlId kReasonsField = 1028;
constexpr ControlId kQuestionsField = 1056;
constexpr ControlId kLookupButton = 1005;

constexpr const char* kNoSuchContestant = "Error:  Contestant Number doesn't exist.";

void empty(Dialog& dialog, std::initializer_list<ControlId> fields) {
  for (const ControlId field : fields) dialog.setText(field, "");
}

// Shows why a press is refused, empties fields and goes to where that can be put right.
void refuse(Dialog& dialog, const std::string& message, std::initializer_list<ControlId> fields,
            ControlId place) {
  dialog.show(message, "Warning");
  empty(dialog, fields);
  dialog.focus(place);
}

bool isInRange(const std::optional<std::int64_t>& score) {
  return !score || (*score >= 0 && *score <= kTopNumberScore);
}

void enableFor(Dialog& dialog, ControlId field, bool carried) {
  dialog.setEnabled(field, carried);
  // What stands in a field that cannot be reached would still be stored.
  if (!carried) dialog.setText(field, "");
}

std::optional<ContestantNumber> existing(const Contest& contest, std::int64_t number) {
  const auto contestant = static_cast<ContestantNumber>(number);
  if (contestant != number || !contest.contestantNames.contains(contestant)) return std::nullopt;
  return contestant;
}

void showLastScore(Dialog& dialog, ContestantNumber number, std::int32_t classIndex) {
  const Contest& contest = currentContest();
  showLastPlacing(dialog, contest, number, classIndex);
  showLastReasons(dialog, contest, number, classIndex);
  showLastQuestions(dialog, contest, number, classIndex);
}

// The values of one press of Score.
struct Entry {
  ContestantNumber number = 0;
  std::int32_t classIndex = 0;
  std::string letter;
  std::optional<std::int64_t> reasons;
  std::optional<std::int64_t> questions;
};

// Reads the scores typed; false when one was refused, with a message.
bool readScores(Dialog& dialog, Entry& entry) {
  entry.reasons = typedNumber(dialog.text(kReasonsField));
  if (!isInRange(entry.reasons)) {
    refuse(dialog, "Error:  Reasons score must be between 0 and 50.", {kReasonsField},
           kReasonsField);
    return false;
  }
  entry.questions = typedNumber(dialog.text(kQuestionsField));
  if (!isInRange(entry.questions)) {
    refuse(dialog, "Error:  Questions score must be between 0 and 50.", {kQuestionsField},
           kQuestionsField);
    return false;
  }
  entry.letter = dialog.text(kLetterField);
  if (const auto error = letterError(entry.letter)) {
    // The reasons score deliberately goes too.
    refuse(dialog, *error, {kLetterField, kReasonsField}, kLetterField);
    return false;
  }
  return true;
}

// Reads class and contestant; false when one is missing, with a message.
bool readPlace(Dialog& dialog, Entry& entry) {
  const std::optional<int> line = dialog.selection(kEntryClassList);
  if (!line) {
    refuse(dialog, "Error:  no class selected.", {}, kEntryClassList);
    return false;
  }
  entry.classIndex = *line;
  const std::optional<std::int64_t> typed = typedNumber(dialog.text(kNumberField));
  if (!typed) {
    refuse(dialog, "Error:  no member number entered.", {}, kNumberField);
    return false;
  }
  const auto number = existing(currentContest(), *typed);
  if (!number) {
    refuse(dialog, kNoSuchContestant, {kNumberField, kLetterField, kReasonsField, kQuestionsField},
           kNumberField);
    return false;
  }
  entry.number = *number;
  return true;
}

void store(Contest& contest, const Entry& entry) {
  storeLetter(contest, entry.number, entry.classIndex, entry.letter);
  if (!entry.reasons && !entry.questions) return;
  ScoreRecord& record = contest.scores[entry.number][entry.classIndex];
  if (entry.reasons) record.reasonsScore = static_cast<std::int32_t>(*entry.reasons);
  if (entry.questions) record.questionsScore = static_cast<std::int32_t>(*entry.questions);
}

void score(Dialog& dialog) {
  Entry entry;
  if (!readScores(dialog, entry) || !readPlace(dialog, entry)) return;
  store(currentContest(), entry);
  showLastScore(dialog, entry.number, entry.classIndex);
  empty(dialog, {kLetterField, kReasonsField, kQuestionsField, kNumberField});
  dialog.focus(kNumberField);
}

void lookUp(Dialog& dialog) {
  empty(dialog, {kLetterField, kReasonsField});
  const std::int64_t typed = typedNumber(dialog.text(kNumberField)).value_or(0);
  const auto number = existing(currentContest(), typed);
  if (!number) {
    refuse(dialog, kNoSuchContestant, {kNumberField}, kNumberField);
    return;
  }
  const std::optional<int> line = dialog.selection(kEntryClassList);
  if (!line) {
    refuse(dialog, "Error:  A class must be selected.", {}, kEntryClassList);
    return;
  }
  showLastScore(dialog, *number, *line);
  dialog.focus(kNumberField);
  // The next number is typed over this one.
  dialog.selectText(kNumberField);
}

}  // namespace

void LookupDialog::onOpen(Dialog& dialog) {
  const JudgingClasses& classes = currentContest().classes;
  dialog.setLines(kEntryClassList, classLines(classes, allClasses(classes)));
  enableFor(dialog, kReasonsField, false);
  enableFor(dialog, kQuestionsField, false);
  dialog.focus(kNumberField);
}

void LookupDialog::onEvent(Dialog& dialog, ControlId id, ControlEvent event) {
  if (id == kEntryClassList && event == ControlEvent::selectionChanged) {
    const JudgingClasses& classes = currentContest().classes;
    const std::int32_t index = dialog.selection(kEntryClassList).value_or(-1);
    enableFor(dialog, kReasonsField, classes.hasReasons(index));
    enableFor(dialog, kQuestionsField, classes.hasQuestions(index));
  }
  if (event != ControlEvent::clicked) return;
  if (id == kEntryScoreButton) {
    score(dialog);
  } else if (id == kLookupButton) {
    lookUp(dialog);
  }
  endOn(dialog, id, event);
}

void LookupDialog::onClose(Dialog& dialog) {
  saveAndEnd(dialog);
}

}  // namespace scorvane
