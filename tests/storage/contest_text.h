// Contest files written down in tests: lines instead of bytes.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "tests/support/approved.h"

namespace scorvane {

/// The lines joined, each ended by CR LF.
inline std::string fileOf(std::initializer_list<std::string_view> lines) {
  std::string bytes;
  for (const std::string_view line : lines) bytes.append(line).append("\r\n");
  return bytes;
}

/// A small contest with every kind of line, in the words of the file.
inline std::string smallFile() {
  return sourceFile("fuzz/corpus/contests/small.scv");
}

/// The text with the first occurrence of `from` replaced; unchanged when there is none.
inline std::string replaced(std::string text, std::string_view from, std::string_view to) {
  const std::size_t at = text.find(from);
  return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

}  // namespace scorvane
