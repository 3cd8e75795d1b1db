// What the dialogs that enter scores contestant by contestant have in common: a class and a group
// are chosen from two lists, and a contestant of that group is shown whose card is next.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "entry/group_members.h"
#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

inline constexpr ControlId kContestantField = 1054;
inline constexpr ControlId kEntryClassList = 1016;
inline constexpr ControlId kEntryGroupList = 1053;
inline constexpr ControlId kEntryScoreButton = 1004;

/// The class, the group and the contestant that scores are being entered for; none at first.
class EntryChoice {
 public:
  /// Fills both lists; `listed` are the indexes of the classes shown.
  void open(Dialog& dialog, const JudgingClasses& classes, const std::vector<std::int32_t>& listed,
            const std::vector<ListLine>& groupLines);
  /// Takes over what an event has changed in one of the lists. True when the event was such a
  /// choice and both lists have one now, so that entry starts anew.
  bool take(const Dialog& dialog, ControlId id, ControlEvent event);
  /// Whether a class and a group are chosen; shows what is missing, the class first. `groupName`
  /// is what the message calls a group.
  [[nodiscard]] bool isMade(Dialog& dialog, const char* groupName) const;
  /// Makes a contestant the current one and shows the number, or nothing when there is none.
  void showContestant(Dialog& dialog, std::optional<ContestantNumber> number);
  /// Makes a contestant the current one without showing the number yet.
  void setContestant(std::optional<ContestantNumber> number) { contestant_ = number; }
  /// Back to nothing chosen: no selections, no contestant.
  void clear(Dialog& dialog);

  [[nodiscard]] std::optional<ContestantNumber> contestant() const { return contestant_; }
  /// The class chosen; none, below 0, before a choice.
  [[nodiscard]] std::int32_t classIndex() const { return classIndex_; }
  /// The key of the group chosen; nothing before a choice.
  [[nodiscard]] std::int32_t groupIndex() const { return *groupIndex_; }

 private:
  static constexpr std::int32_t kNone = -1;

  std::int32_t classIndex_ = kNone;
  std::optional<std::int32_t> groupIndex_;  ///< a letter may be a number below 0
  std::optional<ContestantNumber> contestant_;
};

/// Asks whether to enter scores again of a group that has some; `kind` is what they are called.
/// True without asking when none is entered.
[[nodiscard]] bool confirmReentry(Window& owner, const EnteredCount& count, const char* kind);

}  // namespace scorvane
