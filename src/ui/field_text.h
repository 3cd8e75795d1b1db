// What a dialog's fields hold, read the way the contest stores it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "ui/dialog.h"

namespace scorvane {

/// Longest text taken from an edit field, in bytes.
inline constexpr std::size_t kMaxFieldText = 499;

/// An edit field's text as it is stored: at most kMaxFieldText bytes, no control characters.
[[nodiscard]] std::string fieldText(const Dialog& dialog, ControlId id);

/// A number field's value. An empty one, or one that holds no number, reads as 0. Values
/// beyond 2^31 - 1 wrap to below 0, so that a number below 0 out of a contest file, shown unsigned
/// by showNumber, reads back as the same.
[[nodiscard]] std::int32_t fieldNumber(const Dialog& dialog, ControlId id);

/// Shows a number in a digits-only field.
void showNumber(Dialog& dialog, ControlId id, std::int32_t value);

}  // namespace scorvane
