// The form of the Setup Classes dialog: reading one class from it and storing that class.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"
#include "ui/dialog.h"

namespace scorvane {

/// The form as the operator filled it in.
struct ClassForm {
  std::string name;
  bool reasons = false;
  bool questions = false;
  std::string official;        ///< text of the field, of any length
  std::int32_t category = -1;  ///< -1 when no category is chosen
  std::uint32_t cut1 = 0;
  std::uint32_t cut2 = 0;
  std::uint32_t cut3 = 0;
};

[[nodiscard]] ClassForm readClassForm(const Dialog& dialog);

/// Stores the form as a new class, or over the class at `updated` (from 0). A column that is too
/// short for that index is filled up with blank elements. Returns the message for the operator
/// when the form is refused; the columns have changed then, by the undo of what was stored.
///
/// Odd but required, docs/required-behaviour.md: refused-class-undone-at-the-wrong-end
[[nodiscard]] std::optional<std::string> storeClass(JudgingClasses& classes, const ClassForm& form,
                                                    std::optional<std::int32_t> updated);

}  // namespace scorvane
