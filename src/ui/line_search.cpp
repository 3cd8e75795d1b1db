#include "ui/line_search.h"

namespace scorvane {

namespace {

char capital(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::optional<int> lineBeginningWith(const std::vector<std::string>& lines, char typed,
                                     std::optional<int> after) {
  const int count = static_cast<int>(lines.size());
  const int first = after ? *after + 1 : 0;
  for (int step = 0; step < count; ++step) {
    const int index = (first + step) % count;
    const std::string& line = lines[static_cast<std::size_t>(index)];
    const std::size_t start = line.find_first_not_of(' ');
    if (start != std::string::npos && capital(line[start]) == capital(typed)) return index;
  }
  return std::nullopt;
}

}  // namespace scorvane
