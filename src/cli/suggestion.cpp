#include "cli/suggestion.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <vector>

namespace scorvane {

namespace {

int lowered(char c) {
  return std::tolower(static_cast<unsigned char>(c));
}

// The fewest letters to change, leave out or put in to turn `a` into `b`.
std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);  // distances to the beginnings of `b`
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (const char letter : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t changed = diagonal + (lowered(letter) == lowered(b[j]) ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({changed, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string nearestName(std::string_view typed, std::span<const std::string> names) {
  std::string nearest;
  std::size_t least = typed.size() / 3 + 1;
  for (const std::string& name : names) {
    const std::size_t distance = editDistance(typed, name);
    if (distance >= least) continue;
    least = distance;
    nearest = name;
  }
  return nearest;
}

}  // namespace scorvane
