#include "text/unsigned_number.h"

#include <charconv>

#include "text/number.h"

namespace scorvane {

std::optional<std::uint32_t> unsignedNumber(std::string_view text) {
  const std::string_view digits = withoutOuterBlanks(text);
  std::uint32_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
}

}  // namespace scorvane
