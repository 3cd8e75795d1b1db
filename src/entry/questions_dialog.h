// Typing in the questions scores of one group for one class.
#pragma once

#include "entry/group_entry.h"

namespace scorvane {

inline constexpr int kQuestionsDialog = 149;

[[nodiscard]] GroupEntryDialog questionsDialog();

}  // namespace scorvane
