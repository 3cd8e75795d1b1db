#include "exchange/roster_names.h"

#include <array>
#include <cstddef>

#include "exchange/sheet.h"

namespace scorvane {

namespace {

// Capitals of code page 1252 as small letters.
constexpr std::array<char, 256> kFolded = [] {
  std::array<char, 256> table{};
  for (std::size_t c = 0; c < table.size(); ++c) {
    const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    const bool isOther = c == 0x8A || c == 0x8C || c == 0x8E;
    table[c] = static_cast<char>(c == 0x9F ? 0xFF : c + (isLetter ? 0x20 : isOther ? 0x10 : 0));
  }
  return table;
}();

char folded(char c) {
  return kFolded[static_cast<unsigned char>(c)];
}

}  // namespace

std::string keyOfName(std::string_view name) {
  std::string key = tidied(name);
  std::erase(key, ' ');
  for (char& c : key) c = folded(c);
  return key;
}

bool isSameName(std::string_view a, std::string_view b) {
  for (std::size_t i = 0, k = 0;; ++i, ++k) {
    while (i < a.size() && a[i] == ' ') ++i;
    while (k < b.size() && b[k] == ' ') ++k;
    if (i == a.size() || k == b.size()) return i == a.size() && k == b.size();
    if (folded(a[i]) != folded(b[k])) return false;
  }
}
std::uint32_t hashOfName(std::string_view name) {
  std::uint32_t hash = 0;
  for (const char c : name) {
    if (c != ' ') hash = hash * 31 + static_cast<unsigned char>(folded(c));
  }
  return hash;
}

std::string quotedName(std::string_view name) {
  // A name that is refused for its length need not be shown to its end.
  constexpr std::size_t kShown = 60;
  std::string quoted = "\"";
  quoted.append(name.substr(0, kShown)).append(name.size() > kShown ? "...\"" : "\"");
  return quoted;
}

}  // namespace scorvane
