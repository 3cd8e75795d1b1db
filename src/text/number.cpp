#include "text/number.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace scorvane {

namespace {

bool isBlank(char character) {
  return character == ' ' || (character >= '\t' && character <= '\r');
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

}  // namespace

std::int32_t leadingNumber(std::string_view text) {
  constexpr std::int64_t kBeyond = std::int64_t{1} << 32;
  std::size_t at = 0;
  while (at < text.size() && isBlank(text[at])) ++at;
  bool negative = false;
  if (at < text.size() && (text[at] == '-' || text[at] == '+')) negative = text[at++] == '-';
  std::int64_t value = 0;
  for (; at < text.size() && isDigit(text[at]); ++at) {
    if (value < kBeyond) value = value * 10 + (text[at] - '0');
  }
  if (negative) value = -value;
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

std::optional<std::int64_t> typedNumber(std::string_view text) {
  constexpr std::int64_t kLargest = 999'999'999'999'999'999;
  text = withoutOuterBlanks(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  std::int64_t value = 0;
  for (const char digit : text) {
    if (!isDigit(digit)) return std::nullopt;
    value = value > kLargest / 10 ? kLargest : value * 10 + (digit - '0');
  }
  return negative ? -value : value;
}

std::string_view withoutOuterBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace scorvane
