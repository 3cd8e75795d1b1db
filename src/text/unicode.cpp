#include "text/unicode.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace scorvane {

namespace {

constexpr char32_t kLastCharacter = 0x10FFFF;
constexpr char32_t kFirstOwn = 0x80;
constexpr char32_t kFirstLatin = 0xA0;

char in1252(char16_t unit) {
  if (unit < kFirstOwn || (unit >= kFirstLatin && unit <= 0xFF)) return byteOf(unit);
  const auto* const own = std::find(kWindows1252Own.begin(), kWindows1252Own.end(), unit);
  if (own == kWindows1252Own.end()) return '?';
  return byteOf(kFirstOwn + static_cast<char32_t>(own - kWindows1252Own.begin()));
}

}  // namespace

void appendCharacter(std::string& out, char32_t c) {
  constexpr char32_t kSixBits = 0x3F;
  if (c < 0x80) {
    out += byteOf(c);
    return;
  }
  if (c < 0x800) {
    out += byteOf(0xC0 | (c >> 6));
  } else {
    if (c < kFirstPair) {
      out += byteOf(0xE0 | (c >> 12));
    } else {
      out += byteOf(0xF0 | (c >> 18));
      out += byteOf(0x80 | ((c >> 12) & kSixBits));
    }
    out += byteOf(0x80 | ((c >> 6) & kSixBits));
  }
  out += byteOf(0x80 | (c & kSixBits));
}

std::optional<char32_t> takeCharacter(std::string_view utf8, std::size_t& i) {
  const auto byteAt = [utf8](std::size_t at) { return static_cast<unsigned char>(utf8[at]); };
  const unsigned lead = byteAt(i);
  const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, kFirstPair};
  if ((lead >= 0x80 && lead < 0xC2) || lead > 0xF4 || i + length > utf8.size()) {
    return std::nullopt;
  }
  char32_t c = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t k = i + 1; k < i + length; ++k) {
    if ((byteAt(k) & 0xC0U) != 0x80) return std::nullopt;
    c = (c << 6) | (byteAt(k) & 0x3FU);
  }
  if (c < kSmallest.at(length) || c > kLastCharacter) return std::nullopt;
  i += length;
  return c;
}

std::optional<std::u16string> utf16Of(std::string_view utf8) {
  std::u16string utf16;
  for (std::size_t i = 0; i < utf8.size();) {
    auto c = takeCharacter(utf8, i);
    if (!c) return std::nullopt;
    if (*c >= kFirstPair) {
      utf16 += static_cast<char16_t>(kSurrogates + ((*c - kFirstPair) >> 10));
      c = kLowSurrogates + ((*c - kFirstPair) & 0x3FF);
    }
    utf16 += static_cast<char16_t>(*c);
  }
  // Two halves in three bytes each would come back as the four of their pair.
  if (utf8Of(utf16) != utf8) return std::nullopt;
  return utf16;
}

std::string utf8Of(std::u16string_view utf16) {
  std::string utf8;
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    char32_t c = utf16[i];
    if (i + 1 < utf16.size() && isPair(c, utf16[i + 1])) c = characterOfPair(c, utf16[++i]);
    appendCharacter(utf8, c);
  }
  return utf8;
}

std::size_t countCharacters(std::string_view utf8) {
  const auto utf16 = utf16Of(utf8);
  if (!utf16) return utf8.size();
  std::size_t count = utf16->size();
  for (std::size_t i = 1; i < utf16->size(); ++i) {
    if (isPair((*utf16)[i - 1], (*utf16)[i])) --count;
  }
  return count;
}

std::string_view cutBetweenCharacters(std::string_view utf8, std::size_t most) {
  if (utf8.size() <= most) return utf8;
  const auto isInside = [utf8](std::size_t i) {
    return (static_cast<unsigned char>(utf8[i]) & 0xC0U) == 0x80;
  };
  std::size_t end = most;
  while (end > 0 && isInside(end)) --end;
  return utf8.substr(0, end);
}

std::string windows1252Of(std::string_view utf8) {
  std::string text;
  const auto utf16 = utf16Of(utf8);
  if (!utf16) {
    for (const char c : utf8) text += static_cast<unsigned char>(c) < kFirstOwn ? c : '?';
    return text;
  }
  for (std::size_t i = 0; i < utf16->size(); ++i) {
    const char16_t unit = (*utf16)[i];
    if (i > 0 && isPair((*utf16)[i - 1], unit)) continue;  // one "?" for a pair
    text += in1252(unit);
  }
  return text;
}

}  // namespace scorvane
