// Reading decimal numbers out of text.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace scorvane {

/// The number that a text begins with: leading blanks, a sign and decimal digits; what follows is
/// ignored. 0 when there is none; a number beyond 32 bits gives the nearest one that fits.
[[nodiscard]] std::int32_t leadingNumber(std::string_view text);

/// The number a text holds: digits, a "-" before them or not, blanks around it or not; nothing for
/// any other text. A number of more than 18 digits returns the largest (or smallest) one of 18.
[[nodiscard]] std::optional<std::int64_t> typedNumber(std::string_view text);

/// The text without the blanks, tabs and line ends before and after it.
[[nodiscard]] std::string_view withoutOuterBlanks(std::string_view text);

}  // namespace scorvane
