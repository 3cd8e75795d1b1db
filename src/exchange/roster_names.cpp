#include "exchange/roster_names.h"

#include "exchange/sheet.h"

namespace scorvane {

namespace {

char folded(char c) {
  const auto byte = static_cast<unsigned char>(c);
  const bool isLatin = byte >= 0xC0 && byte <= 0xDE && byte != 0xD7;
  if ((c >= 'A' && c <= 'Z') || isLatin) return static_cast<char>(byte + ('a' - 'A'));
  if (byte == 0x8A || byte == 0x8C || byte == 0x8E) return static_cast<char>(byte + 0x10);
  return byte == 0x9F ? '\xFF' : c;
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
