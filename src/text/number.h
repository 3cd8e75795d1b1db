// Decimal numbers in text: read out of files and fields, and written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace scorvane {

/// Numbers of files and forgiving fields: the number that a text begins with, after blanks and with
/// a sign; what follows is ignored. 0 when there is none; the nearest 32-bit number when it is too
/// large.
[[nodiscard]] std::int32_t leadingNumber(std::string_view text);

/// Digits-only fields: the text must be decimal digits, blanks around them aside, as they come with
/// a number pasted from a table. Nothing for any other text, an empty one, or a number too large
/// for 32 bits.
[[nodiscard]] std::optional<std::uint32_t> unsignedNumber(std::string_view text);

/// The same without blanks, and with "-" before a number below 0: for words of a command line.
[[nodiscard]] std::optional<std::int32_t> exactNumber(std::string_view text);

/// As unsignedNumber(), for fields where a pasted number may be out of range and is to be refused
/// as such:
/// "-" may precede the digits, and a number of more than 18 digits returns the largest (or
/// smallest) one of 18.
[[nodiscard]] std::optional<std::int64_t> typedNumber(std::string_view text);

/// Appends the number in decimal digits.
void appendNumber(std::string& out, std::int64_t number);

}  // namespace scorvane
