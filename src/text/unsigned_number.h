// Number fields: what their text is worth.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace scorvane {

/// The value of a text of decimal digits; nothing when it is empty, holds anything else or is too
/// large for 32 bits. Blanks around the digits, as they come with a number pasted from a table, do
/// not matter.
[[nodiscard]] std::optional<std::uint32_t> unsignedNumber(std::string_view text);

}  // namespace scorvane
