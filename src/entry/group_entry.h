// Entering one kind of score of a rotation group for a class, in ascending contestant number.
#pragma once

#include "entry/entry_choice.h"
#include "entry/entry_closing.h"

namespace scorvane {

/// What is entered, and how.
struct GroupScores {
  const char* name;      ///< what the re-enter question calls the scores
  ScoreField score;      ///< other than 0 counts as entered
  ControlId scoreField;  ///< where the operator types
  std::vector<std::int32_t> (*listed)(
      const JudgingClasses& classes);  ///< the classes to choose from
  /// Takes over what is typed for the class and contestant chosen, and shows the last score. False
  /// when it was refused, with a message.
  bool (*enter)(Dialog& dialog, const EntryChoice& choice);
  Escape escape = Escape::leavesFile;
};

class GroupEntryDialog : public DialogBehaviour {
 public:
  explicit GroupEntryDialog(const GroupScores& scores) : scores_(scores) {}
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void start(Dialog& dialog);
  void advance(Dialog& dialog);

  GroupScores scores_;
  EntryChoice choice_;
  char group_ = '\0';  ///< letter of the group chosen
};

}  // namespace scorvane
