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

std::string withoutCommands(std::string_view text) {
  constexpr char kDelete = '\x7F';
  std::string cleaned(text);
  for (std::size_t i = 0; i < cleaned.size(); ++i) {
    const char c = cleaned[i];
    const bool endsLine = c == '\n' || cleaned.compare(i, 2, "\r\n") == 0;
    const bool isBelowBlank = static_cast<unsigned char>(c) < ' ' && c != '\t' && !endsLine;
    if (isBelowBlank || c == kDelete) cleaned[i] = ' ';
    const bool mayLead = c == '\xC2' && i + 1 < cleaned.size();
    if (mayLead && (static_cast<unsigned char>(cleaned[i + 1]) & 0xE0U) == 0x80) {
      cleaned[i] = cleaned[i + 1] = ' ';
    }
  }
  return cleaned;
}

}  // namespace scorvane
