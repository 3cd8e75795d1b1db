// Typing in the reasons scores of one reasons group for one class, in speaking order.
#pragma once

#include "entry/entry_choice.h"

namespace scorvane {

inline constexpr int kReasonsDialog = 148;

class ReasonsDialog : public DialogBehaviour {
 public:
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void start(Dialog& dialog);
  void score(Dialog& dialog);
  void advance(Dialog& dialog);
  [[nodiscard]] std::optional<ContestantNumber> speaker() const;

  EntryChoice choice_;
  std::int32_t position_ = 0;  ///< row of the reasons order
};

/// Counts the named contestants of a reasons group by their reasons score for a class.
[[nodiscard]] EnteredCount countReasonsEntered(const Contest& contest, std::int32_t reasonsGroup,
                                               std::int32_t classIndex);

}  // namespace scorvane
