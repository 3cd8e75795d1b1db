// Entering one kind of score for a class, card by card of a group: placings and questions by
// rotation group in ascending contestant number, reasons by reasons group in speaking order.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "entry/closing.h"
#include "entry/entry_ids.h"
#include "entry/group_members.h"
#include "entry/score_fields.h"
#include "ui/dialog.h"

namespace scorvane {

/// What one of the dialogs enters, and what sets it apart from the others.
struct GroupEntry {
  int resource;
  EntryKind kind;
  ScoreField score;          ///< other than 0 counts as entered
  const char* scoresName;    ///< what the question to enter again calls the scores
  const char* groupName;     ///< what messages call a group
  ControlId field;           ///< where the operator types
  const char* noContestant;  ///< message without a contestant to enter for
  Escape escape;
};

// Odd but required, docs/required-behaviour.md: escape-saves-placings
inline constexpr GroupEntry kPlacingsEntry = {.resource = IDD_ENTRY_PLACINGS,
                                              .kind = EntryKind::placings,
                                              .score = &ScoreRecord::placingScore,
                                              .scoresName = "placings",
                                              .groupName = "group",
                                              .field = IDC_ENTRY_LETTER,
                                              .noContestant = "Error:  no member number available.",
                                              .escape = Escape::saves};
inline constexpr GroupEntry kReasonsEntry = {.resource = IDD_ENTRY_REASONS,
                                             .kind = EntryKind::reasons,
                                             .score = &ScoreRecord::reasonsScore,
                                             .scoresName = "reasons",
                                             .groupName = "reasons group",
                                             .field = IDC_ENTRY_REASONS,
                                             .noContestant = "Error:  no member number entered.",
                                             .escape = Escape::leavesFile};
inline constexpr GroupEntry kQuestionsEntry = {
    .resource = IDD_ENTRY_QUESTIONS,
    .kind = EntryKind::questions,
    .score = &ScoreRecord::questionsScore,
    .scoresName = "questions",
    .groupName = "group",
    .field = IDC_ENTRY_QUESTIONS,
    .noContestant = "Error:  no member number available.",
    .escape = Escape::leavesFile};

class GroupEntryDialog : public DialogBehaviour {
 public:
  GroupEntryDialog(Contest& contest, const GroupEntry& entry) : contest_(contest), entry_(entry) {}
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void startGroup(Dialog& dialog);
  [[nodiscard]] bool confirmReentry(Dialog& dialog,
                                    const std::vector<ContestantNumber>& group) const;
  void score(Dialog& dialog);
  void goBack(Dialog& dialog);
  [[nodiscard]] std::optional<std::string> missingChoice() const;
  [[nodiscard]] bool enterCard(Dialog& dialog);
  void showContestant(Dialog& dialog);
  void clearChoice(Dialog& dialog);

  Contest& contest_;
  const GroupEntry entry_;
  std::optional<std::int32_t> class_;    ///< index of the class chosen
  std::optional<std::int32_t> group_;    ///< chosen: a group's letter, or a reasons group
  std::vector<ContestantNumber> cards_;  ///< of the group, in the order of entry
  std::size_t position_ = 0;             ///< in cards_, whose card is typed now; its end for nobody
  /// The class and group whose last card was typed just now, until something else is chosen.
  std::optional<std::pair<std::int32_t, std::int32_t>> finished_;
};

}  // namespace scorvane
