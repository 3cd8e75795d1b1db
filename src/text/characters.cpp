#include "text/characters.h"

#include <algorithm>

namespace scorvane {

std::string withWindowsLineEnds(std::string_view text) {
  const auto lines = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  std::string converted;
  converted.reserve(text.size() + lines);
  for (const char c : text) {
    if (c == '\n') converted += '\r';
    converted += c;
  }
  return converted;
}

std::string withoutControlCharacters(std::string_view text) {
  std::string cleaned(text);
  std::replace_if(
      cleaned.begin(), cleaned.end(), [](char c) { return static_cast<unsigned char>(c) < ' '; },
      ' ');
  return cleaned;
}

}  // namespace scorvane
