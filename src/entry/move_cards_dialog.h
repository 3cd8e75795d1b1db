// Putting scores right that were typed for the wrong class, group or contestant.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "entry/entry_ids.h"
#include "model/card_changes.h"
#include "ui/dialog.h"

namespace scorvane {

/// Moves a group's or one contestant's scores of a class to another class, exchanges two
/// contestants' scores, or clears scores; shows beforehand what that changes, card by card. Ends
/// with kOkId when it was done and, if the contest has a file, saved; else with kCancelId.
class MoveCardsDialog : public DialogBehaviour {
 public:
  explicit MoveCardsDialog(Contest& contest) : contest_(contest) {}
  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

  /// The contest right before and after the change: saving it may take in what others typed.
  [[nodiscard]] const Contest& before() const { return before_; }
  [[nodiscard]] const Contest& after() const { return after_; }

 private:
  /// What would change, or what is still to be chosen.
  using Plan = std::variant<std::vector<CardChange>, std::string>;

  void showLists(Dialog& dialog);
  void showPlan(Dialog& dialog);
  void change(Dialog& dialog);
  [[nodiscard]] std::vector<ContestantNumber> chosen(const Dialog& dialog) const;
  [[nodiscard]] std::optional<ContestantNumber> contestant(const Dialog& dialog,
                                                           ControlId field) const;
  [[nodiscard]] Plan plan(const Dialog& dialog) const;
  [[nodiscard]] Plan exchange(const Dialog& dialog, std::optional<std::int32_t> from) const;

  Contest& contest_;
  Contest before_;
  Contest after_;
};

}  // namespace scorvane
