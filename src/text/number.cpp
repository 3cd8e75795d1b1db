#include "text/number.h"

#include <algorithm>
#include <array>
#include <charconv>
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

std::string_view withoutOuterBlanks(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The number that all of the text is.
template <typename Number>
std::optional<Number> wholeText(std::string_view text) {
  Number value = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc() || stop != end) return std::nullopt;
  return value;
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

std::optional<std::uint32_t> unsignedNumber(std::string_view text) {
  return wholeText<std::uint32_t>(withoutOuterBlanks(text));
}

std::optional<std::int32_t> exactNumber(std::string_view text) {
  return wholeText<std::int32_t>(text);
}

std::optional<std::int64_t> typedNumber(std::string_view text) {
  constexpr std::int64_t kLargest = 999'999'999'999'999'999;
  text = withoutOuterBlanks(text);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative) text.remove_prefix(1);
  if (text.empty() || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
  std::int64_t value = 0;
  for (const char digit : text) {
    value = value > kLargest / 10 ? kLargest : value * 10 + (digit - '0');
  }
  return negative ? -value : value;
}

void appendNumber(std::string& out, std::int64_t number) {
  if (number >= 0 && number < 10) {
    out += static_cast<char>('0' + number);
    return;
  }
  std::array<char, 24> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  out.append(digits.data(), end.ptr);
}

}  // namespace scorvane
