#include "text/line_ends.h"

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

}  // namespace scorvane
