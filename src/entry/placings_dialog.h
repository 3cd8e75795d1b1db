// Typing in the placing letters of one group for one class, card by card.
#pragma once

#include "entry/group_entry.h"

namespace scorvane {

inline constexpr int kPlacingsDialog = 147;

[[nodiscard]] GroupEntryDialog placingsDialog();

}  // namespace scorvane
