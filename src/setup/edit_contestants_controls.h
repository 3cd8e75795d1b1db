// Controls of the Edit Contestants dialog.
#pragma once

#include "ui/dialog.h"

namespace scorvane {

namespace edit_contestants {

inline constexpr int kDialog = 163;

inline constexpr ControlId kNumber = 1054;
inline constexpr ControlId kContestantName = 1070;
inline constexpr ControlId kGroup = 1021;
inline constexpr ControlId kList = 1069;
inline constexpr ControlId kUpdate = 1009;
/// Deliberate: Delete is what Escape presses. Escape deletes the selected contestant.
inline constexpr ControlId kDelete = kCancelId;
inline constexpr ControlId kDone = 1003;

}  // namespace edit_contestants

}  // namespace scorvane
