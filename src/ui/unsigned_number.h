// Number fields: what their text is worth.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

/// The value of a text of decimal digits alone; nothing when it is empty, holds anything else or
/// is too large for 32 bits.
[[nodiscard]] std::optional<std::uint32_t> unsignedNumber(std::string_view digits);
