#include "entry/typed_number.h"

#include "text/number.h"

namespace scorvane {

std::optional<std::int64_t> typedNumber(std::string_view text) {
  constexpr std::int64_t kLargest = 999'999'999'999'999'999;
  text = withoutOuterBlanks(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    value = value > kLargest / 10 ? kLargest : value * 10 + (digit - '0');
  }
  return negative ? -value : value;
}

}  // namespace scorvane
