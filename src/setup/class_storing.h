// Storing one class of the Setup Classes form step by step, and taking back what was stored when
// a later step refuses.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/contest.h"

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

/// Stores the form as a new class, or over the class at `updated` (from 0). A column that is too
/// short for that index is lengthened by blank elements. Gives the message for the operator when
/// the form is refused; the class columns may have changed then, see below.
///
/// Deliberate, flaws included: the undo of a refusal always works on the end of the columns, as if
/// a class had been added. A refused update therefore loses the last class's name (and, for
/// illegal cuts, its letter, flags and category) and an illegal letter or illegal cuts empty the
/// name of the first class.
[[nodiscard]] std::optional<std::string> storeClass(JudgingClasses& classes, const ClassForm& form,
                                                    std::optional<std::int32_t> updated);

/// Removes a class (index from 0) from every column that has it.
void removeClass(JudgingClasses& classes, std::int32_t index);

}  // namespace scorvane
