// Entering scores of a rotation group for a class, in ascending contestant number.
#pragma once

#include "entry/entry_choice.h"

class GroupEntry {
 public:
  struct Kind {
    const char* name;      ///< what the re-enter question calls the scores
    ScoreField score;      ///< other than 0 counts as entered
    ControlId scoreField;  ///< where the operator types
  };
  explicit GroupEntry(const Kind& kind) : kind_(kind) {}

  /// Fills the lists, `listed` being the classes shown, and goes to the score field.
  void open(Dialog& dialog, std::vector<std::int32_t> listed);
  /// Answers a choice in one of the lists; ignores all other events.
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event);
  /// Goes on to the group's next contestant, or back to nothing chosen after the last one.
  void advance(Dialog& dialog);

  [[nodiscard]] const EntryChoice& choice() const { return choice_; }

 private:
  void start(Dialog& dialog);

  Kind kind_;
  EntryChoice choice_;
  char group_ = '\0';  ///< letter of the group chosen
};
