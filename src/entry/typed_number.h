// Whole numbers as typed or pasted into fields that only take digits from the keyboard.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace scorvane {

/// The number a text holds: digits, with "-" before them for one below 0, and blanks around it or
/// not. Numbers of more than 18 digits give the largest (or smallest) one of 18. Nothing for any
/// other text.
[[nodiscard]] std::optional<std::int64_t> typedNumber(std::string_view text);

}  // namespace scorvane
