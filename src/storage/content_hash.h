// Telling contents apart without keeping them. The value is written to disk, so it must stay the
// same on every machine; it guards against accidents only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace scorvane {

[[nodiscard]] constexpr std::uint64_t contentHash(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325;
  for (const char byte : bytes) {
    hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
  }
  return hash;
}

/// The last `digits` hexadecimal digits of a hash.
[[nodiscard]] inline std::string hashText(std::uint64_t hash, int digits = 16) {
  std::string text(static_cast<std::size_t>(digits), '0');
  for (auto digit = text.rbegin(); digit != text.rend(); ++digit, hash >>= 4) {
    *digit = "0123456789abcdef"[hash & 0xF];
  }
  return text;
}

}  // namespace scorvane
