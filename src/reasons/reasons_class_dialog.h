// "Reasons Class to Score": the operator chooses the reasons class of a sheet.
#pragma once

#include <cstdint>
#include <optional>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

class ReasonsClassDialog : public DialogBehaviour {
 public:
  /// Offers the reasons classes of `contest`, which must outlive the dialog.
  explicit ReasonsClassDialog(const Contest& contest) : contest_(contest) {}

  /// Index (from 0) of the class chosen with OK; nothing when the dialog was cancelled.
  [[nodiscard]] std::optional<std::int32_t> chosenClass() const { return chosen_; }

  void onOpen(Dialog& dialog) override;
  void onEvent(Dialog& dialog, ControlId id, ControlEvent event) override;
  void onClose(Dialog& dialog) override;

 private:
  void choose(Dialog& dialog);

  const Contest& contest_;
  std::optional<std::int32_t> chosen_;
};

}  // namespace scorvane
